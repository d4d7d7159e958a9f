#include "KSTimeView/painting/LayoutOutlines.h"

#include "KSTimeView/model/TimeViewItem.h"
#include "KSTimeView/model/TimeviewDay.h"
#include "KSTimeView/painting/CanvasTools.h"

namespace timeview
{

namespace
{

void Outline(vcl::TCanvas& Canvas, const vcl::TRect& Rect, vcl::TColor Color)
{
    UseBrush(Canvas, Color);
    Canvas.FrameRect(Rect);
}

vcl::AnsiString NameOf(TTimeViewDays& Days, vcl::TPoint Pointer)
{
    const TKSTimeviewDay* const Day = Days.GetOverDay(Pointer.X);
    if (!Day)
        return "no day";
    const TKSTimeViewItem* const Item = Day->GetItemAt(Pointer.X, Pointer.Y);
    const vcl::AnsiString Name = "day " + vcl::IntToStr(Day->GetIndex());
    return Item ? Name + ", item \"" + Item->GetCaption() + "\", column " +
                      vcl::IntToStr(Day->GetColumn(Item)) + " of " + vcl::IntToStr(Day->GetColumnCount())
                : Name;
}

} // namespace

void PaintLayoutOutlines(vcl::TCanvas& Canvas, const TViewFrame& Frame, TTimeViewDays& Days,
                         vcl::TPoint Pointer)
{
    for (const TKSTimeviewDay* Day : Days) {
        vcl::TRect Column = Day->GetClientRect();
        Outline(Canvas, Column, vcl::clRed);
        Column.Top = Frame.Scale.Top();
        Outline(Canvas, Column, vcl::clFuchsia);
        for (const TKSTimeViewItem* Item : *Day)
            Outline(Canvas, Day->GetItemRect(Item, Frame), Item->GetAllDay() ? vcl::clTeal : vcl::clLime);
    }
    UseBrush(Canvas, vcl::clYellow);
    Canvas.TextOut(0, 0, NameOf(Days, Pointer));
}

} // namespace timeview
