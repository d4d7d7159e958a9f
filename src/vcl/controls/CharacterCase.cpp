#include "vcl/controls/CharacterCase.h"

namespace vcl
{

namespace
{

/// Capitals First..Last whose small letters follow at a fixed distance, or (Distance 1) each at once.
struct TCaseRange {
    char32_t First;
    char32_t Last;
    char32_t Distance;
};

constexpr TCaseRange Ranges[] = {
    {'A', 'Z', 32},     {0xC0, 0xD6, 32},    {0xD8, 0xDE, 32},   {0x100, 0x12E, 1},  {0x132, 0x136, 1},
    {0x139, 0x147, 1},  {0x14A, 0x176, 1},   {0x179, 0x17D, 1},  {0x391, 0x3A1, 32}, {0x3A3, 0x3AB, 32},
    {0x400, 0x40F, 80}, {0x410, 0x42F, 32},  {0x460, 0x480, 1},  {0x48A, 0x4BE, 1},  {0x4D0, 0x52E, 1},
    {0x531, 0x556, 48}, {0x1E00, 0x1E94, 1}, {0x1EA0, 0x1EFE, 1}};

bool IsCapital(const TCaseRange& Range, char32_t Char)
{
    return Char >= Range.First && Char <= Range.Last &&
           (Range.Distance != 1 || (Char - Range.First) % 2 == 0);
}

bool IsContinuation(char Byte)
{
    return (static_cast<unsigned char>(Byte) & 0xC0u) == 0x80u;
}

} // namespace

char32_t NextCodePoint(const AnsiString& Text, std::size_t& Index)
{
    const unsigned First = static_cast<unsigned char>(Text[Index++]);
    const std::size_t More = First >= 0xF0 ? 3 : First >= 0xE0 ? 2 : First >= 0xC0 ? 1 : 0;
    if (More == 0 || Index + More > Text.size())
        return First;
    char32_t Char = First & (0x3Fu >> More);
    for (std::size_t Offset = 0; Offset < More; ++Offset) {
        if (!IsContinuation(Text[Index + Offset]))
            return First;
        Char = Char << 6u | (static_cast<unsigned char>(Text[Index + Offset]) & 0x3Fu);
    }
    Index += More;
    return Char;
}

void AppendCodePoint(AnsiString& Text, char32_t Char)
{
    const auto Put = [&Text](char32_t Byte) { Text += static_cast<char>(Byte); };
    if (Char < 0x80) {
        Put(Char);
        return;
    }
    const int More = Char < 0x800 ? 1 : Char < 0x10000 ? 2 : 3;
    constexpr char32_t Leads[] = {0, 0xC0, 0xE0, 0xF0};
    Put(Leads[More] | Char >> 6 * More);
    for (int Left = More - 1; Left >= 0; --Left)
        Put(0x80u | (Char >> 6 * Left & 0x3Fu));
}

char32_t UpperCodePoint(char32_t Char)
{
    for (const TCaseRange& Range : Ranges)
        if (Char >= Range.Distance && IsCapital(Range, Char - Range.Distance))
            return Char - Range.Distance;
    return Char;
}

char32_t LowerCodePoint(char32_t Char)
{
    for (const TCaseRange& Range : Ranges)
        if (IsCapital(Range, Char))
            return Char + Range.Distance;
    return Char;
}

} // namespace vcl
