#pragma once

#include "vcl/system/Types.h"

namespace vcl
{

class TCanvas;

} // namespace vcl

namespace timeview
{

/// A black clock face with white ticks and hands that fills Rect.
void DrawClock(vcl::TCanvas& Canvas, const vcl::TRect& Rect, vcl::TTime Time);

} // namespace timeview
