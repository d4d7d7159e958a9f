#include "vcl/system/CodePage.h"

#include <algorithm>
#include <array>

namespace vcl
{

namespace
{

/// Capital letters First to Last, every Step-th one, whose small letters lie Offset further on.
struct TCaseRange {
    char32_t First;
    char32_t Last;
    unsigned Step;
    char32_t Offset;
};

constexpr std::array<TCaseRange, 24> CaseRanges = {{
    {U'A', U'Z', 1, 32},     {0x00C0, 0x00D6, 1, 32}, // Latin-1
    {0x00D8, 0x00DE, 1, 32}, {0x0100, 0x012E, 2, 1},  // Latin Extended-A
    {0x0132, 0x0136, 2, 1},  {0x0139, 0x0147, 2, 1},  {0x014A, 0x0176, 2, 1},
    {0x0179, 0x017D, 2, 1},  {0x0218, 0x021A, 2, 1}, // Romanian S and T with comma
    {0x0386, 0x0386, 1, 38},                         // Greek
    {0x0388, 0x038A, 1, 37}, {0x038C, 0x038C, 1, 64}, {0x038E, 0x038F, 1, 63},
    {0x0391, 0x03A1, 1, 32}, {0x03A3, 0x03AB, 1, 32}, {0x0400, 0x040F, 1, 80}, // Cyrillic
    {0x0410, 0x042F, 1, 32}, {0x0490, 0x0490, 1, 1},  {0x0531, 0x0556, 1, 48}, // Armenian
}};

char32_t ToSmall(char32_t CodePoint)
{
    if (CodePoint == 0x0178) // the small letter of this capital lies in Latin-1
        return 0x00FF;
    for (const TCaseRange& Range : CaseRanges)
        if (CodePoint >= Range.First && CodePoint <= Range.Last &&
            (CodePoint - Range.First) % Range.Step == 0)
            return CodePoint + Range.Offset;
    return CodePoint;
}

bool IsPlain(std::string_view Text)
{
    return std::all_of(Text.begin(), Text.end(),
                       [](char Byte) { return static_cast<unsigned char>(Byte) < 0x80; });
}

int CompareFolded(std::string_view Left, std::string_view Right)
{
    std::size_t LeftPosition = 0;
    std::size_t RightPosition = 0;
    while (LeftPosition < Left.size() && RightPosition < Right.size()) {
        const char32_t LeftLetter = ToSmall(DecodeUtf8(Left, LeftPosition));
        const char32_t RightLetter = ToSmall(DecodeUtf8(Right, RightPosition));
        if (LeftLetter != RightLetter)
            return LeftLetter < RightLetter ? -1 : 1;
    }
    const bool LeftEnds = LeftPosition == Left.size();
    const bool RightEnds = RightPosition == Right.size();
    return LeftEnds == RightEnds ? 0 : LeftEnds ? -1 : 1;
}

} // namespace

int AnsiCompareText(std::string_view Left, std::string_view Right)
{
    if (IsPlain(Left) && IsPlain(Right))
        return CompareText(Left, Right);
    return CompareFolded(AnsiToUtf8(Left), AnsiToUtf8(Right));
}

bool AnsiSameText(std::string_view Left, std::string_view Right)
{
    return AnsiCompareText(Left, Right) == 0;
}

} // namespace vcl
