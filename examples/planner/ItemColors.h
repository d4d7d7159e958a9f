#pragma once

#include "vcl/system/Types.h"

namespace planner
{

/// The background of a calendar's items: its light tint as it is, or on dark system colours the dark shade of
/// the same hue, so that text in the system's colour reads well either way.
vcl::TColor ItemColor(vcl::TColor Tint, bool IsDark);

/// True when the system's windows are darker than their text wants them to be on paper.
bool HasDarkWindows();

} // namespace planner
