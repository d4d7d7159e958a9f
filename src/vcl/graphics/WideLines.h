#pragma once

#include <initializer_list>

#include "vcl/graphics/Polygons.h"
#include "vcl/system/Types.h"

namespace vcl
{

/// The pixels that a round pen of a whole number of pixels covers on its way: around a centre n it covers
/// n - Width / 2 up to Width pixels. What lies outside Bounds is left out. Joins and ends are round.
class TWideStroke
{
public:
    TWideStroke(const TRect& Bounds, int Width);

    /// The pen standing at a point.
    void AddDot(TPoint Point);
    /// The pen moved from one point to the other.
    void AddLine(TPoint From, TPoint To);
    /// Lines from point to point with the pen at each; a pen of one pixel draws thin lines, ends included.
    void AddPath(std::initializer_list<TPoint> Points);
    /// Pixels found in another way.
    void AddSpan(int Y, int From, int To);
    void Emit(const TSpanSink& Sink) { FSpans.Emit(Sink); }

private:
    int RowAtLeast(double Y) const;
    int RowAtMost(double Y) const;
    void AddThinLine(TPoint From, TPoint To);
    void AddBetween(int Y, double Low, double High);

    TRect FBounds;
    double FWidth;
    double FAxis; // from a point to the pen's exact centre
    TSpanSet FSpans;
};

} // namespace vcl
