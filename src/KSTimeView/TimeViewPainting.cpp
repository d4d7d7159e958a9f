// The view paints: ruler, then each day.

#include <cstdlib>

#include "KSTimeView/TimeView.h"
#include "KSTimeView/painting/DayPainter.h"
#include "KSTimeView/painting/LayoutOutlines.h"
#include "KSTimeView/painting/RulerPainter.h"
#include "vcl/platform/Platform.h"
#include "vcl/platform/WindowSystem.h"

/// Raises the draw events that CustomDrawOptions ask for.
class TKSTimeView::TOwnerDraw final : public timeview::IOwnerDraw
{
public:
    explicit TOwnerDraw(TKSTimeView& View)
        : FView(View), FCanvas(View.GetCanvas()), FGuard(View), FRevision(View.FDays->GetRevision())
    {
    }

    bool DrawsItems() const override { return Wants(TKSTVCustomDrawOption::cdoItems) && FView.OnDrawItem; }
    bool DrawsDays() const override
    {
        return DrawsItems() || (Wants(TKSTVCustomDrawOption::cdoCaptions) && FView.OnDrawCaption) ||
               (Wants(TKSTVCustomDrawOption::cdoDays) && (FView.OnDrawDay || FView.OnDrawTopSpace));
    }
    bool DrawRuler(const vcl::TRect& Rect, int YOffset) override
    {
        return Wants(TKSTVCustomDrawOption::cdoRuler) && Raise(FView.OnDrawRuler, Rect, YOffset);
    }
    bool DrawDay(TKSTimeviewDay* Day, const vcl::TRect& Rect, int YOffset) override
    {
        return Wants(TKSTVCustomDrawOption::cdoDays) && Raise(FView.OnDrawDay, Day, Rect, YOffset);
    }
    /// The member for the day bodies decides here too; cdoTopSpace is never asked.
    bool DrawTopSpace(TKSTimeviewDay* Day, const vcl::TRect& Rect) override
    {
        return Wants(TKSTVCustomDrawOption::cdoDays) && Raise(FView.OnDrawTopSpace, Day, Rect);
    }
    bool DrawItem(TKSTimeViewItem* Item, const vcl::TRect& Rect) override
    {
        return Wants(TKSTVCustomDrawOption::cdoItems) && Raise(FView.OnDrawItem, Item, Rect);
    }
    bool DrawCaption(TKSTimeviewDay* Day, const vcl::TRect& Rect) override
    {
        return Wants(TKSTVCustomDrawOption::cdoCaptions) && Raise(FView.OnDrawCaption, Rect, Day);
    }
    bool Interrupted() const override { return !FGuard.IsAlive() || FView.FDays->GetRevision() != FRevision; }

private:
    bool Wants(TKSTVCustomDrawOption Part) const { return FView.FCustomDrawOptions.Contains(Part); }
    template <class TDrawEvent, class... TArguments>
    bool Raise(const TDrawEvent& Event, TArguments... Arguments) const
    {
        if (!Event)
            return false;
        Event(&FView, FCanvas, Arguments...);
        return true;
    }

    TKSTimeView& FView;
    vcl::TCanvas* FCanvas;
    vcl::TAliveGuard FGuard;
    std::uint32_t FRevision;
};

timeview::TTimeViewLook TKSTimeView::Look()
{
    timeview::TTimeViewLook Look;
    Look.RulerColor = FRulerColor;
    Look.RulerMarksColor = FRulerMarksColor;
    Look.DaysGapColor = FDaysGapColor;
    Look.DaysGapCoverColor = FDaysGapCoverColor;
    Look.TimeLinesColor = FTimeLinesColor;
    Look.TopSpaceColor = FTopSpaceColor;
    Look.WorkingHoursColor = FWorkingHoursColor;
    Look.TimeSelectionColor = FTimeSelectionColor;
    Look.AllDaySelectionColor = FAllDaySelectionColor;
    Look.ItemSelectionColor = FItemSelectionColor;
    Look.AllDayItemSelectionColor = FAllDayItemSelectionColor;
    Look.ShowTimeLines = FShowTimeLines;
    Look.HourMarks = FRulerMarkMinutes == TKSTVRulerMarkMinutes::rmm60Minutes;
    // Either option enables both marks.
    Look.ShowItemsMarks = FOptions.Contains(TKSTVOption::tvoItemsBelowMark) ||
                          FOptions.Contains(TKSTVOption::tvoItemsAboveMark);
    Look.RightToLeftReading = UseRightToLeftReading();
    Look.Font = GetFont();
    Look.RulerFont = FRulerFont.get();
    Look.ItemsAboveMark = FItemsAboveMark.get();
    Look.ItemsBelowMark = FItemsBelowMark.get();
    Look.Images = FImages;
    Look.PrivateImageIndex = FPrivateImageIndex;
    Look.ReminderImageIndex = FReminderImageIndex;
    Look.LongCaptionFormat = FLongCaptionFormat;
    Look.MediumCaptionFormat = FMediumCaptionFormat;
    Look.ShortCaptionFormat = FShortCaptionFormat;
    Look.SelectedStart = FSelectedStart;
    Look.SelectedEnd = FSelectedEnd;
    Look.AllDaySelectionStart = FAllDaySelectionStart;
    Look.AllDaySelectionEnd = FAllDaySelectionEnd;
    Look.Control = this;
    return Look;
}

void TKSTimeView::Paint()
{
    static const bool ShowOutlines = std::getenv("KS_DEBUG_LAYOUT") != nullptr;
    // All-day items may have moved the top of the scale since the bar was set.
    if (FBarTopSpace != GetEffectiveTopSpace())
        UpdateVScrollBar();
    const timeview::TViewFrame Frame = FDays->Frame();
    const timeview::TTimeViewLook Looks = Look();
    TOwnerDraw Owner(*this);
    timeview::TRulerPainter(*GetCanvas(), Looks, Frame, *FDays, Owner).PaintRuler();
    for (int Index = 0; !Owner.Interrupted() && Index < FDays->GetCount(); ++Index)
        timeview::TDayPainter(*GetCanvas(), Looks, Frame, *FDays->GetDay(Index), Owner).Paint();
    if (ShowOutlines && !Owner.Interrupted())
        timeview::PaintLayoutOutlines(*GetCanvas(), Frame, *FDays,
                                      ScreenToClient(vcl::Platform().Windows().GetCursorPos()));
}

void TKSTimeView::PaintDay(TKSTimeviewDay& Day)
{
    const timeview::TViewFrame Frame = FDays->Frame();
    const timeview::TTimeViewLook Looks = Look();
    TOwnerDraw Owner(*this);
    timeview::TDayPainter(*GetCanvas(), Looks, Frame, Day, Owner).Paint();
}

void TKSTimeView::DrawItem(TKSTimeviewDay& Day, TKSTimeViewItem* Item)
{
    const timeview::TViewFrame Frame = FDays->Frame();
    const timeview::TTimeViewLook Looks = Look();
    TOwnerDraw Owner(*this);
    timeview::TDayPainter(*GetCanvas(), Looks, Frame, Day, Owner).DrawItem(Item);
}
