#include "KSTimeView/TimeViewHintWindow.h"

#include "vcl/graphics/DrawText.h"
#include "vcl/system/Rects.h"

namespace
{

constexpr int TextOffset = 2;
constexpr int ExtraWidth = 6;
constexpr int ExtraHeight = 2;
constexpr int ExtraBottom = 4;

} // namespace

const vcl::TClass& TKSTimeViewHintWindow::StaticClass()
{
    static const vcl::TClass Class =
        vcl::DefineClass<TKSTimeViewHintWindow, vcl::THintWindow>("TKSTimeViewHintWindow");
    return Class;
}

void TKSTimeViewHintWindow::Paint()
{
    vcl::TRect Rect = GetClientRect();
    vcl::OffsetRect(Rect, TextOffset, TextOffset);
    vcl::TCanvas& Canvas = *GetCanvas();
    Canvas.SetFont(GetFont());
    Canvas.GetFont()->SetColor(vcl::clInfoText);
    Canvas.GetBrush()->SetStyle(vcl::TBrushStyle::bsClear);
    vcl::DrawText(Canvas, GetCaption(), Rect,
                  DrawTextBiDiModeFlags(vcl::DT_LEFT | vcl::DT_WORDBREAK | vcl::DT_NOPREFIX));
}

vcl::TRect TKSTimeViewHintWindow::CalcHintRect(int MaxWidth, const vcl::AnsiString& Hint)
{
    vcl::TRect Rect{0, 0, MaxWidth, 0};
    GetCanvas()->SetFont(GetFont());
    vcl::DrawText(*GetCanvas(), Hint, Rect, vcl::DT_CALCRECT | vcl::DT_WORDBREAK | vcl::DT_NOPREFIX);
    Rect.Right += ExtraWidth;
    Rect.Bottom += ExtraHeight;
    return Rect;
}

void TKSTimeViewHintWindow::ActivateHint(const vcl::TRect& Rect, const vcl::AnsiString& Hint)
{
    if (GetCaption() != Hint) {
        SetCaption(Hint);
        Refresh();
    }
    vcl::TRect Place = Rect;
    Place.Bottom += ExtraBottom;
    SetBoundsRect(Place);
    // A hint window never takes the focus.
    SetVisible(true);
    GetHandle()->BringToFront();
}
