#pragma once

#include <algorithm>
#include <cstdint>
#include <limits>

namespace vcl
{

/// Products of two coordinate differences need up to 66 bits.
__extension__ typedef __int128 TWide;

/// Floor of Number / Divisor; Divisor is positive.
constexpr TWide FloorDiv(TWide Number, TWide Divisor)
{
    const TWide Quotient = Number / Divisor;
    return Number % Divisor < 0 ? Quotient - 1 : Quotient;
}

/// Ceiling of Number / Divisor; Divisor is positive.
constexpr TWide CeilDiv(TWide Number, TWide Divisor)
{
    return -FloorDiv(-Number, Divisor);
}

/// Nearest value that fits an int.
constexpr int Saturate(TWide Value)
{
    return static_cast<int>(
        std::clamp<TWide>(Value, std::numeric_limits<int>::min(), std::numeric_limits<int>::max()));
}

} // namespace vcl
