#pragma once

#include <array>
#include <cstdint>

#include "vcl/system/AnsiString.h"

namespace vcl
{

/// A fixed-point number: ten-thousandths as a 64-bit integer.
struct TCurrency {
    std::int64_t Scaled = 0;
    constexpr bool operator==(const TCurrency&) const = default;
};

/// The form file's floating point value: 64-bit significand with explicit integer bit, then 15-bit exponent
/// and sign, little-endian. Kept as its ten bytes so that what is read is written unchanged on every
/// processor.
class TExtended
{
public:
    constexpr TExtended() = default;
    /// Exact: every double is an extended.
    explicit TExtended(double Value);
    /// The nearest extended.
    explicit TExtended(TCurrency Value);
    explicit TExtended(const std::array<std::uint8_t, 10>& Bytes) : FBytes(Bytes) {}

    /// Rounded to nearest, halves to even; beyond the range of double gives infinity.
    double ToDouble() const;
    /// Rounded to nearest, halves to even; NaN gives zero, values beyond the range saturate.
    TCurrency ToCurrency() const;
    /// True for zero of either sign.
    bool IsZero() const;
    bool IsFinite() const;
    bool IsNegative() const { return (FBytes[9] & 0x80) != 0; }

    /// The parts of the format: value = Significand * 2^(Exponent - 16446).
    std::uint64_t Significand() const;
    int Exponent() const { return (FBytes[9] & 0x7F) << 8 | FBytes[8]; }
    /// Exact.
    static TExtended FromInt64(std::int64_t Value);
    static TExtended FromParts(bool Negative, int Exponent, std::uint64_t Significand);

    /// The shortest of at most 21 significant digits that Parse turns into the same bytes, in positional
    /// notation while that is readable ("0.5", "3.0"), else with an exponent ("1.5E100"). Infinity and NaN
    /// have no such text: "INF", "-INF", "NAN".
    AnsiString ToText() const;
    /// The nearest extended of an unsigned or signed decimal number ("12", "-1.5E-3"); false when Text is not
    /// one. Beyond the range gives infinity or zero.
    static bool Parse(std::string_view Text, TExtended& Result);

    const std::array<std::uint8_t, 10>& Bytes() const { return FBytes; }
    bool operator==(const TExtended&) const = default;

private:
    std::array<std::uint8_t, 10> FBytes{};
};

} // namespace vcl
