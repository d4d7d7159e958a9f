#include "KSTimeView/painting/RulerPainter.h"

#include "KSTimeView/model/TimeViewItem.h"
#include "KSTimeView/model/TimeviewDay.h"
#include "KSTimeView/painting/CanvasTools.h"
#include "vcl/graphics/Bitmap.h"
#include "vcl/graphics/DrawText.h"

namespace timeview
{

namespace
{

constexpr int LineMargin = 4;  // ruler lines end this far from its edges
constexpr int LabelMargin = 2; // rows between a line and its label
constexpr int NumberLeft = 2;  // large hour numbers
constexpr int NumberGap = 8;   // between their right edge and the small "00"
constexpr unsigned RightLabel = vcl::DT_RIGHT | vcl::DT_VCENTER | vcl::DT_SINGLELINE;
constexpr unsigned CenteredLabel = vcl::DT_CENTER | vcl::DT_VCENTER | vcl::DT_SINGLELINE;

} // namespace

int TRulerPainter::RowTop(int Distance) const
{
    return SaturatedInt(std::int64_t{FFrame.Scale.ScaleTop()} + Distance - 1);
}

void TRulerPainter::Label(const char* Text, const vcl::TRect& Rect, unsigned Flags) const
{
    if (FCanvas.IsClippedOut(Rect))
        return;
    vcl::AnsiString Shown = Text;
    vcl::TRect Inside = Rect;
    vcl::DrawTextEx(FCanvas, Shown, Inside, Flags);
}

void TRulerPainter::PaintRuler() const
{
    const TViewGeometry& Geometry = FFrame.Geometry;
    if (!Geometry.ShowRuler)
        return;
    const vcl::TRect Ruler{0, FFrame.Scale.Top(), Geometry.RulerWidth, Geometry.ClientHeight};
    if (FOwner.DrawRuler(Ruler, Geometry.ScrollOffset))
        return;
    if (FCanvas.IsClippedOut({0, 0, Geometry.RulerWidth, Geometry.ClientHeight}))
        return;
    UseBrush(FCanvas, FLook.RulerColor);
    FCanvas.FillRect(Ruler);
    FCanvas.SetFont(FLook.RulerFont);
    if (FLook.HourMarks)
        PaintHourMarks();
    else
        PaintHourNumbers();
    PaintItemsMark();
    PaintCorner();
}

/// With a mark an hour: 0:00 to 24:00 at every mark.
void TRulerPainter::PaintHourMarks() const
{
    const int Width = FFrame.Geometry.RulerWidth;
    const int MarkHeight = FFrame.Geometry.RulerMarkHeight;
    UsePen(FCanvas, FLook.RulerMarksColor);
    for (int Hour = 0; Hour <= 24; ++Hour) {
        const int Y = RowTop(SaturatedInt(std::int64_t{Hour} * MarkHeight));
        Line(FCanvas, LineMargin, Y, Width - LineMargin, Y);
        Label((vcl::IntToStr(Hour) + ":00").c_str(),
              {LineMargin, Y + LabelMargin, Width - LineMargin, Y + MarkHeight - LabelMargin}, RightLabel);
    }
}

/// With finer marks: large hours, a small 00 beside each, and a short line at every mark.
void TRulerPainter::PaintHourNumbers() const
{
    const int Width = FFrame.Geometry.RulerWidth;
    const int MarkHeight = FFrame.Geometry.RulerMarkHeight;
    const int HourHeight = FFrame.Geometry.TotalScaleHeight / 24;
    const int MinutesWidth = FCanvas.TextWidth("00");
    FCanvas.GetFont()->SetHeight(SaturatedInt(std::int64_t{FCanvas.GetFont()->GetHeight()} * 2));
    UsePen(FCanvas, FLook.RulerMarksColor);
    for (int Hour = 0; Hour < 24; ++Hour) {
        const int Y = RowTop(Hour * HourHeight);
        Line(FCanvas, LineMargin, Y, Width - LineMargin, Y);
        Label(
            vcl::IntToStr(Hour).c_str(),
            {NumberLeft, Y + LabelMargin, Width - MinutesWidth - NumberGap, Y + 2 * MarkHeight - LabelMargin},
            RightLabel);
    }
    FCanvas.SetFont(FLook.RulerFont);
    const int MinutesLeft = Width - MinutesWidth - LineMargin;
    for (int Hour = 0; Hour < 24; ++Hour) {
        const int Y = RowTop(Hour * HourHeight);
        Label("00", {MinutesLeft, Y + LabelMargin, Width - LineMargin, Y + MarkHeight}, CenteredLabel);
    }
    for (std::int64_t Distance = 0; Distance < FFrame.Geometry.TotalScaleHeight; Distance += MarkHeight) {
        const int Y = RowTop(static_cast<int>(Distance));
        Line(FCanvas, MinutesLeft, Y, Width - LineMargin, Y);
    }
}

/// Covers labels that scrolled into captions and all-day area.
void TRulerPainter::PaintCorner() const
{
    const int Width = FFrame.Geometry.RulerWidth;
    const int Bottom = FFrame.Scale.Top();
    UseBrush(FCanvas, FLook.RulerColor);
    FCanvas.FillRect({0, 0, Width, Bottom});
    FCanvas.GetPen()->SetColor(FLook.RulerMarksColor);
    Line(FCanvas, LineMargin, Bottom - 1, Width - LineMargin, Bottom - 1);
}

void TRulerPainter::PaintItemsMark() const
{
    if (!FLook.ShowItemsMarks)
        return;
    bool Above = false;
    bool Below = false;
    for (const TKSTimeviewDay* Day : FDays)
        for (const TKSTimeViewItem* Item : *Day) {
            if (Item->GetAllDay())
                continue;
            const TKSTimeviewDay::TRows Rows = Day->GetItemRows(*Item, FFrame.Scale);
            Above = Above || FFrame.Scale.Top() >= Rows.Bottom;
            Below = Below || FFrame.Geometry.ClientHeight < Rows.Top;
            if (Above && Below)
                break;
        }
    vcl::TBitmap* const AboveMark = FLook.ItemsAboveMark;
    vcl::TBitmap* const BelowMark = FLook.ItemsBelowMark;
    if (Above && !AboveMark->GetEmpty())
        FCanvas.Draw(FFrame.Geometry.RulerWidth - AboveMark->GetWidth(), FFrame.Scale.Top(), AboveMark);
    if (Below && !BelowMark->GetEmpty())
        FCanvas.Draw(FFrame.Geometry.RulerWidth - BelowMark->GetWidth(),
                     FFrame.Geometry.ClientHeight - BelowMark->GetHeight(), BelowMark);
}

} // namespace timeview
