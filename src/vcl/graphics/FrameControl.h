#pragma once

#include "vcl/graphics/Edge.h"

namespace vcl
{

/// Kinds of control.
constexpr unsigned DFC_SCROLL = 3;
constexpr unsigned DFC_BUTTON = 4;

/// DFC_SCROLL: the arrow's direction.
constexpr unsigned DFCS_SCROLLUP = 0x0;
constexpr unsigned DFCS_SCROLLDOWN = 0x1;
constexpr unsigned DFCS_SCROLLLEFT = 0x2;
constexpr unsigned DFCS_SCROLLRIGHT = 0x3;
/// DFC_BUTTON: what kind of button.
constexpr unsigned DFCS_BUTTONCHECK = 0x0;
constexpr unsigned DFCS_BUTTONPUSH = 0x10;
/// State of any control.
constexpr unsigned DFCS_INACTIVE = 0x100;
constexpr unsigned DFCS_PUSHED = 0x200;
constexpr unsigned DFCS_CHECKED = 0x400;
constexpr unsigned DFCS_FLAT = 0x4000;

/// Draws a scroll button, a check box or a push button that fills Rect. False, and nothing is drawn, for
/// another type.
bool DrawFrameControl(IPainter& Painter, const TColorResolver& Resolve, const TRect& Rect, unsigned Type,
                      unsigned State);

} // namespace vcl
