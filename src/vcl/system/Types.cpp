#include "vcl/system/Types.h"

#include <climits>
#include <cmath>

namespace vcl
{

int RoundHalfEven(double Value)
{
    if (std::isnan(Value))
        return 0;
    // nearbyint rounds halves to even in the default rounding mode, the only one the library runs in.
    const double Rounded = std::nearbyint(Value);
    if (Rounded <= INT_MIN)
        return INT_MIN;
    if (Rounded >= INT_MAX)
        return INT_MAX;
    return static_cast<int>(Rounded);
}

} // namespace vcl
