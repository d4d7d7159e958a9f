#include "vcl/graphics/RasterTarget.h"

#include <algorithm>

namespace vcl
{

TRasterTarget::TRasterTarget(TSurface& Surface) : FSurface(Surface)
{
    SetClip(nullptr);
}

void TRasterTarget::SetClip(const TRegion* Clip)
{
    FClip.clear();
    FBounds = {};
    const TRect Whole = FSurface.DeviceBounds();
    if (Clip == nullptr) {
        FBounds = IntersectionOf(Whole, Whole);
        if (!FBounds.IsEmpty())
            FClip.push_back(FBounds);
        return;
    }
    for (const TRect& Rect : Clip->GetRects()) {
        const TRect Part = IntersectionOf(FSurface.ToDevice(Rect), Whole);
        if (Part.IsEmpty())
            continue;
        if (FClip.empty())
            FBounds = Part;
        FBounds = {std::min(FBounds.Left, Part.Left), std::min(FBounds.Top, Part.Top),
                   std::max(FBounds.Right, Part.Right), std::max(FBounds.Bottom, Part.Bottom)};
        FClip.push_back(Part);
    }
}

std::size_t TRasterTarget::FirstClipBelow(int Y) const
{
    const auto Found =
        std::partition_point(FClip.begin(), FClip.end(), [Y](const TRect& Rect) { return Rect.Bottom <= Y; });
    return static_cast<std::size_t>(Found - FClip.begin());
}

void TRasterTarget::Span(int Y, int From, int To, const TInk& Ink)
{
    if (Ink.PaintsNothing() || Y < FBounds.Top || Y >= FBounds.Bottom)
        return;
    From = std::max(From, FBounds.Left);
    To = std::min(To, FBounds.Right);
    if (From >= To)
        return;
    if (FClip.size() == 1)
        Ink.Paint(FSurface.Row(Y), Y, From, To);
    else
        FillRect({From, Y, To, Y + 1}, Ink);
}

void TRasterTarget::FillRect(const TRect& Rect, const TInk& Ink)
{
    if (!Ink.PaintsNothing())
        ForEachPart(Rect, [&](const TRect& Part) { FillUnclipped(Part, Ink); });
}

void TRasterTarget::FillUnclipped(const TRect& Rect, const TInk& Ink)
{
    for (int Y = Rect.Top; Y < Rect.Bottom; ++Y)
        Ink.Paint(FSurface.Row(Y), Y, Rect.Left, Rect.Right);
}

} // namespace vcl
