#pragma once

#include "KSTimeView/model/TimeViewDays.h"
#include "KSTimeView/painting/TimeViewLook.h"

namespace timeview
{

/// Paints single items of a day.
class TItemPainter
{
public:
    TItemPainter(vcl::TCanvas& Canvas, const TTimeViewLook& Look, const TViewFrame& Frame,
                 TKSTimeviewDay& Day, IOwnerDraw& Owner)
        : FCanvas(Canvas), FLook(Look), FFrame(Frame), FDay(Day), FOwner(Owner)
    {
    }

    /// Nothing for null and while the view has no window.
    void Draw(TKSTimeViewItem* Item) const;

private:
    /// Where text and images of an item go.
    struct TContents {
        vcl::TRect Text;
        vcl::TRect ImageClip;
        bool Reminder = false;
        bool Private = false;
    };

    vcl::TRect Extent(const vcl::TRect& Rect, bool AllDay) const;
    vcl::TColor FillColor(const TKSTimeViewItem& Item) const;
    void DrawSelection(const vcl::TRect& Rect, vcl::TColor Fill) const;
    void DrawGapCovers(const TKSTimeViewItem& Item, const vcl::TRect& Rect) const;
    TContents Contents(const TKSTimeViewItem& Item, const vcl::TRect& Rect) const;
    void DrawCaption(const TKSTimeViewItem& Item, vcl::TRect Rect) const;
    void DrawImages(const TContents& Contents, const vcl::TRect& Rect) const;

    vcl::TCanvas& FCanvas;
    const TTimeViewLook& FLook;
    const TViewFrame& FFrame;
    TKSTimeviewDay& FDay;
    IOwnerDraw& FOwner;
};

} // namespace timeview
