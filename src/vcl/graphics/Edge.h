#pragma once

#include <cstdint>
#include <functional>

#include "vcl/graphics/Painter.h"
#include "vcl/system/Types.h"

namespace vcl
{

/// Rings of an edge, the outer one first; one of each may be set.
constexpr unsigned BDR_RAISEDOUTER = 0x1;
constexpr unsigned BDR_SUNKENOUTER = 0x2;
constexpr unsigned BDR_RAISEDINNER = 0x4;
constexpr unsigned BDR_SUNKENINNER = 0x8;
constexpr unsigned BDR_OUTER = BDR_RAISEDOUTER | BDR_SUNKENOUTER;
constexpr unsigned BDR_INNER = BDR_RAISEDINNER | BDR_SUNKENINNER;
constexpr unsigned EDGE_RAISED = BDR_RAISEDOUTER | BDR_RAISEDINNER;
constexpr unsigned EDGE_SUNKEN = BDR_SUNKENOUTER | BDR_SUNKENINNER;
constexpr unsigned EDGE_ETCHED = BDR_SUNKENOUTER | BDR_RAISEDINNER;
constexpr unsigned EDGE_BUMP = BDR_RAISEDOUTER | BDR_SUNKENINNER;

/// Sides to draw and how.
constexpr unsigned BF_LEFT = 0x1;
constexpr unsigned BF_TOP = 0x2;
constexpr unsigned BF_RIGHT = 0x4;
constexpr unsigned BF_BOTTOM = 0x8;
constexpr unsigned BF_TOPLEFT = BF_TOP | BF_LEFT;
constexpr unsigned BF_TOPRIGHT = BF_TOP | BF_RIGHT;
constexpr unsigned BF_BOTTOMLEFT = BF_BOTTOM | BF_LEFT;
constexpr unsigned BF_BOTTOMRIGHT = BF_BOTTOM | BF_RIGHT;
constexpr unsigned BF_RECT = BF_TOPLEFT | BF_BOTTOMRIGHT;
constexpr unsigned BF_MIDDLE = 0x800;  // fill what remains inside
constexpr unsigned BF_SOFT = 0x1000;   // lighter rings on the left and top
constexpr unsigned BF_ADJUST = 0x2000; // give back the rectangle that remains inside
constexpr unsigned BF_FLAT = 0x4000;
constexpr unsigned BF_MONO = 0x8000;

/// Gives the pixel value, 0x00RRGGBB, of a colour; of system colours the one to be used.
using TColorResolver = std::function<std::uint32_t(TColor Color)>;

/// Draws the sides of a bevelled edge inside Rect: up to two rings of one unit. With BF_ADJUST Rect becomes
/// what remains inside the sides drawn, else it stays. False, and nothing is drawn, when a ring is asked to
/// be both raised and sunken.
bool DrawEdge(IPainter& Painter, const TColorResolver& Resolve, TRect& Rect, unsigned Edge, unsigned Flags);

} // namespace vcl
