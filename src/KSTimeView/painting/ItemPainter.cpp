#include "KSTimeView/painting/ItemPainter.h"

#include <algorithm>

#include "KSTimeView/model/TimeViewItem.h"
#include "KSTimeView/model/TimeviewDay.h"
#include "KSTimeView/painting/CanvasTools.h"
#include "vcl/controls/Control.h"
#include "vcl/graphics/DrawText.h"
#include "vcl/graphics/ImageList.h"
#include "vcl/graphics/Region.h"
#include "vcl/system/Rects.h"

namespace timeview
{

namespace
{

constexpr int ImageMargin = 2;
constexpr unsigned TextFlags = vcl::DT_WORDBREAK | vcl::DT_EDITCONTROL | vcl::DT_END_ELLIPSIS;

} // namespace

void TItemPainter::Draw(TKSTimeViewItem* Item) const
{
    if (!Item || !FDay.GetHost() || !FDay.GetHost()->HasWindow())
        return;
    const vcl::TRect Rect = FDay.GetItemRect(Item, FFrame);
    const bool IsVisible = !FCanvas.IsClippedOut(Extent(Rect, Item->GetAllDay()));
    if (!IsVisible && !FOwner.DrawsItems())
        return;
    const vcl::TColor Fill = FillColor(*Item);
    UsePen(FCanvas, vcl::clBlack);
    UseBrush(FCanvas, Fill);
    if (FOwner.DrawItem(Item, Rect))
        return;
    const TContents Parts = Contents(*Item, Rect);
    if (!Item->GetAllDay() && Item->Selected())
        DrawSelection(Rect, Fill);
    FCanvas.Rectangle(Rect);
    if (!Item->GetAllDay())
        DrawGapCovers(*Item, Rect);
    FCanvas.GetBrush()->SetColor(Fill);
    DrawCaption(*Item, Parts.Text);
    DrawImages(Parts, Rect);
}

/// Everything that is painted of an item, with the bars above and below a selected one.
vcl::TRect TItemPainter::Extent(const vcl::TRect& Rect, bool AllDay) const
{
    vcl::TRect Result = Normalized(Rect);
    if (AllDay)
        return Result;
    const int Gap = std::max(FFrame.Geometry.DaysGapWidth, 0);
    Result.Left = std::min(SaturatedInt(std::int64_t{Result.Left} - Gap), FDay.GetLeft());
    Result.Right = SaturatedInt(
        std::max<std::int64_t>(std::int64_t{Result.Right} + 1, std::int64_t{FDay.GetLeft()} + Gap));
    vcl::InflateRect(Result, 0, SaturatedInt(std::int64_t{Gap} + 1));
    return Result;
}

vcl::TColor TItemPainter::FillColor(const TKSTimeViewItem& Item) const
{
    if (!Item.GetAllDay())
        return Item.GetColor();
    return Item.Selected() ? FLook.AllDayItemSelectionColor : Item.GetAllDayColor();
}

/// Bars above and below the item that reach into the gap on the left.
void TItemPainter::DrawSelection(const vcl::TRect& Rect, vcl::TColor Fill) const
{
    const int Gap = FFrame.Geometry.DaysGapWidth;
    const int Left = Rect.Left - Gap + 1;
    FCanvas.GetBrush()->SetColor(FLook.ItemSelectionColor);
    FCanvas.Rectangle(Left, Rect.Top - Gap, Rect.Right, Rect.Top + 1);
    FCanvas.Rectangle(Left, Rect.Bottom - 1, Rect.Right, Rect.Bottom + Gap);
    FCanvas.GetBrush()->SetColor(Fill);
}

/// The cover beside an item that has another one to its left, and in any case the one in the day's gap.
void TItemPainter::DrawGapCovers(const TKSTimeViewItem& Item, const vcl::TRect& Rect) const
{
    const int Gap = FFrame.Geometry.DaysGapWidth;
    FCanvas.GetBrush()->SetColor(FLook.DaysGapCoverColor);
    if (FFrame.Geometry.ShowDaysGapCover && FDay.GetColumn(&Item) != 0)
        FCanvas.Rectangle(Rect.Left - Gap + 1, Rect.Top, Rect.Left + 1, Rect.Bottom);
    FCanvas.Rectangle(FDay.GetLeft(), Rect.Top, FDay.GetLeft() + Gap, Rect.Bottom);
}

TItemPainter::TContents TItemPainter::Contents(const TKSTimeViewItem& Item, const vcl::TRect& Rect) const
{
    TContents Result;
    Result.Reminder = Item.ReminderImageExists();
    Result.Private = Item.PrivateImageExists();
    Result.Text = Rect;
    Result.Text.Left += FFrame.Geometry.DaysGapWidth - 1;
    if (!Result.Reminder && !Result.Private)
        return Result;
    const int Room = FLook.Images->GetWidth() + ImageMargin;
    if (FLook.RightToLeftReading) {
        Result.Text.Right = std::max(Result.Text.Right - Room, Result.Text.Left);
        Result.ImageClip = {Result.Text.Right, Rect.Top, Rect.Right, Rect.Bottom - 1};
    } else {
        Result.Text.Left = std::min(Result.Text.Left + Room, Result.Text.Right);
        Result.ImageClip = {Rect.Left, Rect.Top, Result.Text.Left, Rect.Bottom - 1};
    }
    return Result;
}

void TItemPainter::DrawCaption(const TKSTimeViewItem& Item, vcl::TRect Rect) const
{
    vcl::InflateRect(Rect, -3, -2);
    if (FCanvas.IsClippedOut(Rect))
        return;
    FCanvas.SetFont(FLook.Font);
    vcl::AnsiString Text = Item.GetCaption();
    const unsigned Flags = Item.GetAllDay() ? TextFlags | vcl::DT_CENTER : TextFlags;
    vcl::DrawTextEx(FCanvas, Text, Rect, FLook.Control->DrawTextBiDiModeFlags(Flags));
}

/// The reminder's image and, below it, the private one.
void TItemPainter::DrawImages(const TContents& Contents, const vcl::TRect& Rect) const
{
    if (!Contents.Reminder && !Contents.Private)
        return;
    const int X = FLook.RightToLeftReading ? Rect.Right - FLook.Images->GetWidth() - ImageMargin
                                           : Rect.Left + FFrame.Geometry.DaysGapWidth + 1;
    int Y = Rect.Top + ImageMargin;
    const vcl::TRegion Clip(Contents.ImageClip);
    FCanvas.SelectClipRegion(&Clip);
    if (Contents.Reminder) {
        FLook.Images->Draw(&FCanvas, X, Y, FLook.ReminderImageIndex, true);
        Y += FLook.Images->GetHeight() + 1;
    }
    if (Contents.Private)
        FLook.Images->Draw(&FCanvas, X, Y, FLook.PrivateImageIndex, true);
    FCanvas.SelectClipRegion(nullptr);
}

} // namespace timeview
