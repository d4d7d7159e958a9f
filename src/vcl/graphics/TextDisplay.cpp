#include "vcl/graphics/TextDisplay.h"

#include <algorithm>
#include <iterator>

#include "vcl/system/CodePage.h"

namespace vcl
{

namespace
{

struct TRange {
    char32_t First;
    char32_t Last;
};

template <std::size_t Count>
bool IsIn(const TRange (&Ranges)[Count], char32_t Value)
{
    const TRange* const Range =
        std::lower_bound(std::begin(Ranges), std::end(Ranges), Value,
                         [](const TRange& Candidate, char32_t Wanted) { return Candidate.Last < Wanted; });
    return Range != std::end(Ranges) && Value >= Range->First;
}

constexpr TRange CombiningRanges[] = {
    {0x0300, 0x036F}, {0x0483, 0x0489},   {0x0591, 0x05BD},   {0x05BF, 0x05BF},   {0x05C1, 0x05C2},
    {0x05C4, 0x05C5}, {0x0610, 0x061A},   {0x064B, 0x065F},   {0x0670, 0x0670},   {0x06D6, 0x06DC},
    {0x06DF, 0x06E4}, {0x06E7, 0x06E8},   {0x06EA, 0x06ED},   {0x0900, 0x0903},   {0x093A, 0x093C},
    {0x093E, 0x094F}, {0x0E31, 0x0E31},   {0x0E34, 0x0E3A},   {0x0E47, 0x0E4E},   {0x1AB0, 0x1AFF},
    {0x1DC0, 0x1DFF}, {0x200C, 0x200D},   {0x20D0, 0x20FF},   {0x3099, 0x309A},   {0xFE00, 0xFE0F},
    {0xFE20, 0xFE2F}, {0x1F3FB, 0x1F3FF}, {0xE0020, 0xE007F}, {0xE0100, 0xE01EF},
};

constexpr TRange RightToLeftRanges[] = {
    {0x0590, 0x08FF}, {0x200F, 0x200F}, {0x202B, 0x202B},   {0x202E, 0x202E},   {0x2067, 0x2067},
    {0xFB1D, 0xFDFF}, {0xFE70, 0xFEFF}, {0x10800, 0x10FFF}, {0x1E800, 0x1EFFF},
};

constexpr TRange IdeographicRanges[] = {
    {0x2E80, 0x2FFF}, {0x3001, 0x303F}, {0x3041, 0x3098},   {0x309B, 0x30FF}, {0x3100, 0x312F},
    {0x31A0, 0x31FF}, {0x3200, 0x4DBF}, {0x4E00, 0x9FFF},   {0xA000, 0xA4CF}, {0xF900, 0xFAFF},
    {0xFE30, 0xFE4F}, {0xFF01, 0xFF60}, {0x20000, 0x3FFFD},
};

} // namespace

AnsiString ToDisplayLine(const AnsiString& Text)
{
    AnsiString Result = AnsiToUtf8(Text);
    for (char& Byte : Result) {
        if (static_cast<unsigned char>(Byte) < ' ' || Byte == 0x7F)
            Byte = ' ';
    }
    return Result;
}

TCodePoint CodePointAt(std::string_view Text, std::size_t Offset)
{
    const auto Byte = [&](std::size_t Index) {
        return Index < Text.size() ? static_cast<unsigned char>(Text[Index]) : 0u;
    };
    const unsigned Lead = Byte(Offset);
    const int Length = Lead < 0xC0 ? 1 : Lead < 0xE0 ? 2 : Lead < 0xF0 ? 3 : 4;
    if (Length == 1 || Offset + static_cast<std::size_t>(Length) > Text.size())
        return {static_cast<char32_t>(Lead), 1};
    char32_t Value = Lead & (0x7Fu >> Length);
    for (int Index = 1; Index < Length; ++Index)
        Value = Value << 6 | (Byte(Offset + static_cast<std::size_t>(Index)) & 0x3F);
    return {Value, Length};
}

bool IsCombining(char32_t Value)
{
    return Value >= 0x300 && IsIn(CombiningRanges, Value);
}

bool IsRightToLeft(char32_t Value)
{
    return Value >= 0x590 && IsIn(RightToLeftRanges, Value);
}

bool IsIdeographic(char32_t Value)
{
    return Value >= 0x2E80 && IsIn(IdeographicRanges, Value);
}

bool IsClosingPunctuation(char32_t Value)
{
    constexpr std::u32string_view Closing =
        U"\u3001\u3002\u3009\u300B\u300D\u300F\u3011\u3015\u3017\u301F\uFF01\uFF09\uFF0C\uFF0E\uFF1A\uFF1B"
        U"\uFF1F\uFF3D\uFF5D\u30FC\u3005";
    return Closing.find(Value) != std::u32string_view::npos;
}

} // namespace vcl
