#pragma once

#include <vector>

#include "vcl/graphics/RasterOps.h"
#include "vcl/graphics/Region.h"
#include "vcl/graphics/Surface.h"

namespace vcl
{

/// The pixels of a surface seen through a clip region: everything below works in device pixels and paints
/// nothing outside. Shapes hand their spans and rectangles to it.
class TRasterTarget
{
public:
    explicit TRasterTarget(TSurface& Surface);

    /// The region is in units; null: the whole surface.
    void SetClip(const TRegion* Clip);
    /// The smallest device rectangle around what can be painted; all zero when nothing can.
    const TRect& GetBounds() const { return FBounds; }
    /// Device rectangles, in bands as those of a region.
    const std::vector<TRect>& GetClipRects() const { return FClip; }
    TSurface& GetSurface() { return FSurface; }
    const TSurface& GetSurface() const { return FSurface; }

    /// Paints the pixels From .. To - 1 of row Y.
    void Span(int Y, int From, int To, const TInk& Ink);
    /// Empty and inverted rectangles paint nothing.
    void FillRect(const TRect& Rect, const TInk& Ink);
    /// Calls Visit with each non-empty part of a rectangle that the clip leaves.
    template <class TVisit>
    void ForEachPart(const TRect& Rect, TVisit Visit) const;

private:
    std::size_t FirstClipBelow(int Y) const;
    void FillUnclipped(const TRect& Rect, const TInk& Ink);

    TSurface& FSurface;
    std::vector<TRect> FClip;
    TRect FBounds;
};

template <class TVisit>
void TRasterTarget::ForEachPart(const TRect& Rect, TVisit Visit) const
{
    const TRect Inside = IntersectionOf(Rect, FBounds);
    if (Inside.IsEmpty())
        return;
    if (FClip.size() == 1) {
        Visit(Inside);
        return;
    }
    for (std::size_t Index = FirstClipBelow(Inside.Top); Index < FClip.size(); ++Index) {
        if (FClip[Index].Top >= Inside.Bottom)
            return;
        const TRect Part = IntersectionOf(Inside, FClip[Index]);
        if (!Part.IsEmpty())
            Visit(Part);
    }
}

} // namespace vcl
