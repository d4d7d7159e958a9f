#pragma once

#include <array>
#include <cstdint>

namespace vcl
{

/// The form file's floating point value: 64-bit significand with explicit integer bit, then 15-bit exponent
/// and sign, little-endian. Kept as its ten bytes so that what is read is written unchanged on every
/// processor.
class TExtended
{
public:
    constexpr TExtended() = default;
    /// Exact: every double is an extended.
    explicit TExtended(double Value);
    explicit TExtended(const std::array<std::uint8_t, 10>& Bytes) : FBytes(Bytes) {}

    /// Rounded to nearest, halves to even; beyond the range of double gives infinity.
    double ToDouble() const;
    bool IsZero() const;
    const std::array<std::uint8_t, 10>& Bytes() const { return FBytes; }
    bool operator==(const TExtended&) const = default;

private:
    std::array<std::uint8_t, 10> FBytes{};
};

} // namespace vcl
