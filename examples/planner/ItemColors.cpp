#include "planner/ItemColors.h"

#include <algorithm>

#include "vcl/graphics/Colors.h"

namespace planner
{

namespace
{

/// What white becomes; a tint is as far below it as it is below white.
constexpr int DarkLevel = 84;

int Channel(vcl::TColor Color, int Shift)
{
    return (static_cast<std::int32_t>(Color) >> Shift) & 0xFF;
}

} // namespace

vcl::TColor ItemColor(vcl::TColor Tint, bool IsDark)
{
    if (!IsDark)
        return Tint;
    std::int32_t Result = 0;
    for (const int Shift : {0, 8, 16})
        Result |= std::max(0, DarkLevel - (255 - Channel(Tint, Shift))) << Shift;
    return vcl::TColor(Result);
}

bool HasDarkWindows()
{
    const vcl::TColor Window = vcl::ColorToRGB(vcl::clWindow);
    return Channel(Window, 0) + Channel(Window, 8) + Channel(Window, 16) < 3 * 128;
}

} // namespace planner
