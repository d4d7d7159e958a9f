#include "vcl/system/AnsiString.h"

#include <algorithm>

namespace vcl
{

namespace
{

char Fold(char Character)
{
    return Character >= 'A' && Character <= 'Z' ? static_cast<char>(Character - 'A' + 'a') : Character;
}

char Raise(char Character)
{
    return Character >= 'a' && Character <= 'z' ? static_cast<char>(Character - 'a' + 'A') : Character;
}

} // namespace

AnsiString IntToStr(std::int64_t Value)
{
    return std::to_string(Value);
}

bool SameText(std::string_view Left, std::string_view Right)
{
    return Left.size() == Right.size() && CompareText(Left, Right) == 0;
}

int CompareText(std::string_view Left, std::string_view Right)
{
    const std::size_t Shared = std::min(Left.size(), Right.size());
    for (std::size_t Index = 0; Index < Shared; ++Index) {
        const int Difference =
            static_cast<unsigned char>(Fold(Left[Index])) - static_cast<unsigned char>(Fold(Right[Index]));
        if (Difference != 0)
            return Difference;
    }
    return Left.size() < Right.size() ? -1 : Left.size() > Right.size() ? 1 : 0;
}

AnsiString UpperCase(std::string_view Text)
{
    AnsiString Result(Text);
    std::transform(Result.begin(), Result.end(), Result.begin(), Raise);
    return Result;
}

AnsiString LowerCase(std::string_view Text)
{
    AnsiString Result(Text);
    std::transform(Result.begin(), Result.end(), Result.begin(), Fold);
    return Result;
}

} // namespace vcl
