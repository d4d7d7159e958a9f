#include "KSTimeView/painting/DayPainter.h"

#include <algorithm>

#include "KSTimeView/model/TimeViewItem.h"
#include "KSTimeView/model/TimeviewDay.h"
#include "KSTimeView/painting/CanvasTools.h"
#include "KSTimeView/painting/ItemPainter.h"
#include "vcl/controls/Control.h"
#include "vcl/graphics/DrawText.h"
#include "vcl/system/FormatDateTime.h"
#include "vcl/system/Rects.h"

namespace timeview
{

namespace
{

constexpr unsigned CaptionFlags =
    vcl::DT_CENTER | vcl::DT_VCENTER | vcl::DT_SINGLELINE | vcl::DT_NOPREFIX | vcl::DT_END_ELLIPSIS;

void RaisedPanel(vcl::TCanvas& Canvas, const vcl::TRect& Panel, vcl::TColor Color)
{
    Canvas.GetBrush()->SetColor(Color);
    Canvas.FillRect(Panel);
    UsePen(Canvas, vcl::clBtnHighlight);
    Canvas.MoveTo(Panel.Right - 1, Panel.Top);
    Canvas.LineTo(Panel.Left, Panel.Top);
    Canvas.LineTo(Panel.Left, Panel.Bottom - 1);
    Canvas.GetPen()->SetColor(vcl::clBtnShadow);
    Canvas.LineTo(Panel.Right - 1, Panel.Bottom - 1);
    Canvas.LineTo(Panel.Right - 1, Panel.Top - 1);
}

} // namespace

TDayPainter::TDayPainter(vcl::TCanvas& Canvas, const TTimeViewLook& Look, const TViewFrame& Frame,
                         TKSTimeviewDay& Day, IOwnerDraw& Owner)
    : FCanvas(Canvas), FLook(Look), FFrame(Frame), FDay(Day), FOwner(Owner), FLeft(Day.GetLeft()),
      FRight(SaturatedInt(std::int64_t{FLeft} + Day.GetWidth())),
      FGapRight(SaturatedInt(std::int64_t{FLeft} + Frame.Geometry.DaysGapWidth))
{
}

void TDayPainter::Paint() const
{
    using TStep = void (TDayPainter::*)() const;
    static constexpr TStep Steps[] = {
        &TDayPainter::PaintDay,           &TDayPainter::PaintGap,         &TDayPainter::PaintWorkingHours,
        &TDayPainter::PaintTimeSelection, &TDayPainter::PaintTimeLines,   &TDayPainter::PaintItems,
        &TDayPainter::PaintSelectedItems, &TDayPainter::PaintTopSpace,    &TDayPainter::PaintAllDayItems,
        &TDayPainter::PaintCaption,       &TDayPainter::PaintBottomSpace,
    };
    // What a day paints beside its column, all-day items of several days, the other days paint as well; only
    // the bars of a selected item reach into the gap.
    const int Reach = std::max(FFrame.Geometry.DaysGapWidth, 0) + 1;
    if (!FOwner.DrawsDays() &&
        FCanvas.IsClippedOut({FLeft - Reach, 0, FRight + Reach, FFrame.Geometry.ClientHeight}))
        return;
    for (const TStep Step : Steps) {
        (this->*Step)();
        if (FOwner.Interrupted())
            return;
    }
}

void TDayPainter::PaintDay() const
{
    FOwner.DrawDay(&FDay, {FLeft, FFrame.Scale.Top(), FRight, FFrame.Geometry.ClientHeight},
                   FFrame.Geometry.ScrollOffset);
}

void TDayPainter::PaintGap() const
{
    const vcl::TRect Gap{FLeft, FFrame.Scale.ScaleTop(), FGapRight, FFrame.Scale.ScaleBottom()};
    if (FCanvas.IsClippedOut(Gap))
        return;
    UseBrush(FCanvas, FLook.DaysGapColor);
    FCanvas.FillRect(Gap);
    UsePen(FCanvas, vcl::clBlack);
    Line(FCanvas, FLeft, Gap.Top, FLeft, Gap.Bottom);
    Line(FCanvas, FGapRight - 1, Gap.Top, FGapRight - 1, Gap.Bottom);
}

void TDayPainter::FillTimes(vcl::TTime Start, vcl::TTime End, vcl::TColor Color) const
{
    UseBrush(FCanvas, Color);
    FCanvas.FillRect({FGapRight, FFrame.Scale.TimeToPos(Start, 1), FRight, FFrame.Scale.TimeToPos(End, 1)});
}

void TDayPainter::PaintWorkingHours() const
{
    if (FDay.GetShowWorkingHours())
        FillTimes(FDay.GetBeginWork(), FDay.GetEndWork(), FLook.WorkingHoursColor);
}

void TDayPainter::PaintTimeSelection() const
{
    const vcl::TDateTime Start = FLook.SelectedStart;
    const vcl::TDateTime End = FLook.SelectedEnd;
    const vcl::TDateTime Date = FDay.GetDate();
    if (Start == -1 || End == -1 || !(Date + 1 > Start) || End < Date)
        return;
    FillTimes(Start < Date ? 0.0 : TimeOfDay(Start), End >= Date + 1 ? 1.0 : TimeOfDay(End),
              FLook.TimeSelectionColor);
}

void TDayPainter::PaintTimeLines() const
{
    const TViewGeometry& Geometry = FFrame.Geometry;
    if (!FLook.ShowTimeLines || FCanvas.IsClippedOut({FGapRight, 0, FRight, Geometry.ClientHeight}))
        return;
    UsePen(FCanvas, FLook.TimeLinesColor);
    for (std::int64_t Distance = 0; Distance < Geometry.TotalScaleHeight;
         Distance += Geometry.RulerMarkHeight) {
        const int Y = SaturatedInt(FFrame.Scale.ScaleTop() + Distance + Geometry.RulerMarkHeight - 1);
        Line(FCanvas, FGapRight, Y, FRight, Y);
    }
}

/// Goes by position, because the program's drawing may free items.
template <class TWanted>
void TDayPainter::DrawItems(TWanted&& IsWanted) const
{
    const TItemPainter Painter(FCanvas, FLook, FFrame, FDay, FOwner);
    for (int Index = 0; Index < FDay.GetCount(); ++Index) {
        TKSTimeViewItem* const Item = FDay.GetItem(Index);
        if (!IsWanted(*Item))
            continue;
        Painter.Draw(Item);
        if (FOwner.Interrupted())
            return;
    }
}

void TDayPainter::PaintItems() const
{
    const TKSTimeViewItem* const Selected = SelectedItem();
    DrawItems([Selected](const TKSTimeViewItem& Item) {
        return !Item.GetAllDay() && !Item.GetDragOutside() && &Item != Selected;
    });
}

void TDayPainter::PaintSelectedItems() const
{
    const TKSTimeViewItem* const Selected = SelectedItem();
    if (Selected && !Selected->GetAllDay())
        DrawItems([Selected](const TKSTimeViewItem& Item) { return &Item == Selected; });
}

const TKSTimeViewItem* TDayPainter::SelectedItem() const
{
    return FDay.GetHost() ? FDay.GetHost()->SelectedItem() : nullptr;
}

void TDayPainter::PaintAllDayItems() const
{
    DrawItems([](const TKSTimeViewItem& Item) { return Item.GetAllDay(); });
}

void TDayPainter::DrawItem(TKSTimeViewItem* Item) const
{
    TItemPainter(FCanvas, FLook, FFrame, FDay, FOwner).Draw(Item);
}

void TDayPainter::PaintTopSpace() const
{
    const vcl::TRect Top{FLeft, FFrame.Geometry.CaptionHeight, FRight, FFrame.Scale.Top()};
    if (FOwner.DrawTopSpace(&FDay, Top))
        return;
    const bool IsSelected =
        FDay.GetDate() >= FLook.AllDaySelectionStart && FDay.GetDate() <= FLook.AllDaySelectionEnd;
    UseBrush(FCanvas, IsSelected ? FLook.AllDaySelectionColor : FLook.TopSpaceColor);
    FCanvas.FillRect(Top);
    UsePen(FCanvas, vcl::clBlack);
    Line(FCanvas, Top.Left, Top.Top, Top.Left, Top.Bottom);
    FCanvas.GetPen()->SetColor(FLook.RulerMarksColor);
    Line(FCanvas, Top.Left + 1, Top.Bottom - 1, Top.Right, Top.Bottom - 1);
}

void TDayPainter::PaintCaption() const
{
    vcl::TRect Caption{FLeft, 0, FRight, FFrame.Geometry.CaptionHeight - 1};
    if (FOwner.DrawCaption(&FDay, Caption))
        return;
    if (FCanvas.IsClippedOut({Caption.Left, Caption.Top, Caption.Right, Caption.Bottom + 1}))
        return;
    FCanvas.GetBrush()->SetStyle(vcl::TBrushStyle::bsSolid);
    RaisedPanel(FCanvas, Caption, vcl::clBtnFace);
    FCanvas.GetPen()->SetColor(vcl::cl3DDkShadow);
    Line(FCanvas, Caption.Left, Caption.Bottom, Caption.Right, Caption.Bottom);
    FCanvas.SetFont(FLook.Font);
    vcl::InflateRect(Caption, -2, -1);
    vcl::AnsiString Text = CaptionFor(Caption.Width());
    vcl::DrawTextEx(FCanvas, Text, Caption, FLook.Control->DrawTextBiDiModeFlags(CaptionFlags));
}

/// The longest of the three formats that fits; the shortest one if it fits or not.
vcl::AnsiString TDayPainter::CaptionFor(int Width) const
{
    for (const vcl::AnsiString* Format : {&FLook.LongCaptionFormat, &FLook.MediumCaptionFormat}) {
        vcl::AnsiString Text = vcl::FormatDateTime(*Format, FDay.GetDate());
        if (FCanvas.TextWidth(Text) <= Width)
            return Text;
    }
    return vcl::FormatDateTime(FLook.ShortCaptionFormat, FDay.GetDate());
}

} // namespace timeview
