#pragma once

#include "KSTimeView/model/TimeViewDays.h"
#include "KSTimeView/painting/TimeViewLook.h"

namespace timeview
{

/// Paints one day: its column, its items and what stands above them.
class TDayPainter
{
public:
    TDayPainter(vcl::TCanvas& Canvas, const TTimeViewLook& Look, const TViewFrame& Frame, TKSTimeviewDay& Day,
                IOwnerDraw& Owner);

    /// All steps in their order. Captions and all-day area come after the timed items, so they cover what
    /// scrolled under them.
    void Paint() const;

    void PaintDay() const;
    void PaintGap() const;
    void PaintWorkingHours() const;
    void PaintTimeSelection() const;
    void PaintTimeLines() const;
    void PaintItems() const;
    void PaintSelectedItems() const;
    void PaintTopSpace() const;
    void PaintAllDayItems() const;
    void PaintCaption() const;
    /// Nothing is shown below the scale.
    void PaintBottomSpace() const {}

    /// Nothing for null and while the view has no window.
    void DrawItem(TKSTimeViewItem* Item) const;

private:
    template <class TWanted>
    void DrawItems(TWanted&& IsWanted) const;
    void FillTimes(vcl::TTime Start, vcl::TTime End, vcl::TColor Color) const;
    const TKSTimeViewItem* SelectedItem() const;
    vcl::AnsiString CaptionFor(int Width) const;

    vcl::TCanvas& FCanvas;
    const TTimeViewLook& FLook;
    const TViewFrame& FFrame;
    TKSTimeviewDay& FDay;
    IOwnerDraw& FOwner;
    int FLeft;
    int FRight;
    int FGapRight;
};

} // namespace timeview
