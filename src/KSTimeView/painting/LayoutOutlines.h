#pragma once

#include "KSTimeView/model/TimeViewDays.h"

namespace vcl
{

class TCanvas;

} // namespace vcl

namespace timeview
{

/// For those who work on the layout (KS_DEBUG_LAYOUT=1): outlines every day, its body and every item, and
/// names what is under Pointer.
void PaintLayoutOutlines(vcl::TCanvas& Canvas, const TViewFrame& Frame, TTimeViewDays& Days,
                         vcl::TPoint Pointer);

} // namespace timeview
