#include "vcl/platform/record/Utf8Text.h"

namespace vcl::record
{

namespace
{

/// Length of the sequence that a first byte announces; 1 for what cannot begin one.
std::size_t SequenceLength(unsigned char First)
{
    if (First >= 0xF0 && First < 0xF8)
        return 4;
    if (First >= 0xE0)
        return First < 0xF0 ? 3 : 1;
    return First >= 0xC0 ? 2 : 1;
}

} // namespace

std::vector<char32_t> CodePointsOf(const AnsiString& Text)
{
    std::vector<char32_t> Result;
    for (std::size_t Place = 0; Place < Text.size();) {
        const unsigned char First = static_cast<unsigned char>(Text[Place]);
        const std::size_t Length = SequenceLength(First);
        char32_t Value = Length == 1 ? First : First & (0xFFu >> (Length + 1));
        std::size_t Taken = 1;
        while (Taken < Length && Place + Taken < Text.size() &&
               (static_cast<unsigned char>(Text[Place + Taken]) & 0xC0u) == 0x80u) {
            Value = (Value << 6) | (static_cast<unsigned char>(Text[Place + Taken]) & 0x3Fu);
            ++Taken;
        }
        if (Taken < Length) {
            Value = First;
            Taken = 1;
        }
        Result.push_back(Value);
        Place += Taken;
    }
    return Result;
}

AnsiString TextOf(const std::vector<char32_t>& CodePoints)
{
    AnsiString Result;
    const auto Tail = [&Result](char32_t Value, int Shift) {
        Result += static_cast<char>(0x80u | ((Value >> Shift) & 0x3Fu));
    };
    for (const char32_t Value : CodePoints) {
        if (Value < 0x80)
            Result += static_cast<char>(Value);
        else if (Value < 0x800) {
            Result += static_cast<char>(0xC0u | (Value >> 6));
            Tail(Value, 0);
        } else if (Value < 0x10000) {
            Result += static_cast<char>(0xE0u | (Value >> 12));
            Tail(Value, 6);
            Tail(Value, 0);
        } else {
            Result += static_cast<char>(0xF0u | (Value >> 18));
            Tail(Value, 12);
            Tail(Value, 6);
            Tail(Value, 0);
        }
    }
    return Result;
}

} // namespace vcl::record
