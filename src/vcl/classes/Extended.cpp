#include "vcl/classes/Extended.h"

#include <bit>
#include <cmath>

namespace vcl
{

namespace
{

constexpr int TopBitBias = 16383;
constexpr int SpecialExponent = 0x7FFF;
constexpr std::uint64_t IntegerBit = std::uint64_t{1} << 63;

/// Significand / 2^Shift, rounded to nearest, halves to even.
std::uint64_t ShiftRounded(std::uint64_t Significand, int Shift)
{
    if (Shift <= 0)
        return Significand;
    if (Shift > 64)
        return 0;
    const std::uint64_t Kept = Shift == 64 ? 0 : Significand >> Shift;
    const std::uint64_t Half = std::uint64_t{1} << (Shift - 1);
    const std::uint64_t Rest = Shift == 64 ? Significand : Significand & ((Half << 1) - 1);
    const bool Up = Rest > Half || (Rest == Half && (Kept & 1) != 0);
    return Kept + (Up ? 1 : 0);
}

} // namespace

TExtended TExtended::FromParts(bool Negative, int Exponent, std::uint64_t Significand)
{
    TExtended Result;
    for (int Index = 0; Index < 8; ++Index)
        Result.FBytes[static_cast<std::size_t>(Index)] =
            static_cast<std::uint8_t>(Significand >> (8 * Index));
    Result.FBytes[8] = static_cast<std::uint8_t>(Exponent);
    Result.FBytes[9] = static_cast<std::uint8_t>((Exponent >> 8) | (Negative ? 0x80 : 0));
    return Result;
}

TExtended TExtended::FromInt64(std::int64_t Value)
{
    if (Value == 0)
        return {};
    const std::uint64_t Bits = static_cast<std::uint64_t>(Value);
    const std::uint64_t Magnitude = Value < 0 ? ~Bits + 1 : Bits;
    const int Leading = std::countl_zero(Magnitude);
    return FromParts(Value < 0, TopBitBias + 63 - Leading, Magnitude << Leading);
}

TExtended::TExtended(double Value)
{
    const std::uint64_t Bits = std::bit_cast<std::uint64_t>(Value);
    const bool Negative = (Bits >> 63) != 0;
    const int Exponent = static_cast<int>((Bits >> 52) & 0x7FF);
    const std::uint64_t Fraction = Bits & ((std::uint64_t{1} << 52) - 1);
    if (Exponent == 0x7FF)
        *this = FromParts(Negative, SpecialExponent, IntegerBit | Fraction << 11);
    else if (Exponent != 0)
        *this = FromParts(Negative, Exponent - 1023 + TopBitBias, IntegerBit | Fraction << 11);
    else if (Fraction == 0)
        *this = FromParts(Negative, 0, 0);
    else {
        const int Shift = std::countl_zero(Fraction);
        *this = FromParts(Negative, 11 - 1022 + TopBitBias - Shift, Fraction << Shift);
    }
}

TExtended::TExtended(TCurrency Value)
{
    Parse(IntToStr(Value.Scaled) + "E-4", *this);
}

std::uint64_t TExtended::Significand() const
{
    std::uint64_t Result = 0;
    for (int Index = 7; Index >= 0; --Index)
        Result = Result << 8 | FBytes[static_cast<std::size_t>(Index)];
    return Result;
}

bool TExtended::IsZero() const
{
    return Significand() == 0 && Exponent() != SpecialExponent;
}

bool TExtended::IsFinite() const
{
    return Exponent() != SpecialExponent;
}

double TExtended::ToDouble() const
{
    const std::uint64_t Bits = Significand();
    const double Sign = IsNegative() ? -1.0 : 1.0;
    if (!IsFinite())
        return (Bits & ~IntegerBit) == 0 ? Sign * HUGE_VAL : std::copysign(std::nan(""), Sign);
    if (Bits == 0)
        return Sign * 0.0;
    const int Leading = std::countl_zero(Bits);
    // Exponent 0 has the scale of exponent 1, as in every binary format with gradual underflow.
    const int TopBit = (Exponent() == 0 ? 1 : Exponent()) - TopBitBias - Leading;
    if (TopBit > 1023)
        return Sign * HUGE_VAL;
    // Below the smallest normal number fewer bits than 53 remain.
    const int Missing = TopBit < -1022 ? -1022 - TopBit : 0;
    const std::uint64_t Rounded = ShiftRounded(Bits << Leading, 11 + Missing);
    return Sign * std::ldexp(static_cast<double>(Rounded), TopBit - 52 + Missing);
}

TCurrency TExtended::ToCurrency() const
{
    // Significand * 2^Power * 10000, in 128 bits; what does not fit saturates.
    const std::int64_t Limit = IsNegative() ? INT64_MIN : INT64_MAX;
    const std::uint64_t Bits = Significand();
    if (!IsFinite())
        return {(Bits & ~IntegerBit) == 0 ? Limit : 0};
    const int Power = Exponent() - TopBitBias - 63;
    if (Bits == 0 || Power < -126)
        return {0};
    if (Power >= 0)
        return {Limit};
    // 64 x 14 bits: the product as two halves.
    const std::uint64_t Low = (Bits & 0xFFFFFFFFu) * 10000;
    const std::uint64_t High = (Bits >> 32) * 10000 + (Low >> 32);
    const int Shift = -Power;
    std::uint64_t Kept = 0;
    bool IsHalf = false;
    bool IsRest = false;
    for (int Bit = 95; Bit >= 0; --Bit) {
        const std::uint64_t Digit = Bit >= 32 ? (High >> (Bit - 32)) & 1 : (Low >> Bit) & 1;
        if (Bit >= Shift) {
            if (Kept >> 62 != 0)
                return {Limit};
            Kept = Kept << 1 | Digit;
        } else if (Bit == Shift - 1)
            IsHalf = Digit != 0;
        else
            IsRest = IsRest || Digit != 0;
    }
    if (IsHalf && (IsRest || (Kept & 1) != 0))
        ++Kept;
    if (Kept > static_cast<std::uint64_t>(INT64_MAX))
        return {Limit};
    return {IsNegative() ? -static_cast<std::int64_t>(Kept) : static_cast<std::int64_t>(Kept)};
}

} // namespace vcl
