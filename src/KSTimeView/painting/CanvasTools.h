#pragma once

#include "vcl/graphics/Canvas.h"

namespace timeview
{

inline void UseBrush(vcl::TCanvas& Canvas, vcl::TColor Color)
{
    Canvas.GetBrush()->SetStyle(vcl::TBrushStyle::bsSolid);
    Canvas.GetBrush()->SetColor(Color);
}

/// A solid line of one pixel.
inline void UsePen(vcl::TCanvas& Canvas, vcl::TColor Color)
{
    Canvas.GetPen()->SetStyle(vcl::TPenStyle::psSolid);
    Canvas.GetPen()->SetWidth(0);
    Canvas.GetPen()->SetColor(Color);
}

inline void Line(vcl::TCanvas& Canvas, int FromX, int FromY, int ToX, int ToY)
{
    Canvas.MoveTo(FromX, FromY);
    Canvas.LineTo(ToX, ToY);
}

/// Rect with its edges in order, as Rectangle draws it: narrow columns make inverted ones.
inline vcl::TRect Normalized(const vcl::TRect& Rect)
{
    return {Rect.Left < Rect.Right ? Rect.Left : Rect.Right, Rect.Top < Rect.Bottom ? Rect.Top : Rect.Bottom,
            Rect.Left < Rect.Right ? Rect.Right : Rect.Left, Rect.Top < Rect.Bottom ? Rect.Bottom : Rect.Top};
}

} // namespace timeview
