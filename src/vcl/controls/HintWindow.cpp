#include "vcl/controls/HintWindow.h"

#include <algorithm>

#include "vcl/graphics/DrawText.h"
#include "vcl/platform/Platform.h"

namespace vcl
{

namespace
{

// Room around the text: two pixels before it, four behind it, and a little below.
constexpr int TextOffset = 2;
constexpr int ExtraWidth = 6;
constexpr int ExtraHeight = 2;
constexpr int ExtraBottom = 4;

} // namespace

const TClass& THintWindow::StaticClass()
{
    static const TClass Class = DefineClass<THintWindow, TCustomControl>("THintWindow");
    return Class;
}

THintWindow::THintWindow(TComponent* Owner) : TCustomControl(Owner)
{
    SetVisible(false);
    SetColor(clInfoBk);
    GetCanvas()->GetBrush()->SetStyle(TBrushStyle::bsClear);
}

void THintWindow::CreateParams(TCreateParams& Params)
{
    TCustomControl::CreateParams(Params);
    Params.Kind = TWindowKind::Hint;
    Params.Style = WS_POPUP | WS_BORDER;
    Params.ExStyle |= WS_EX_TOPMOST | WS_EX_TOOLWINDOW;
}

void THintWindow::Paint()
{
    TRect Rect = GetClientRect();
    Rect.Left += TextOffset;
    Rect.Top += TextOffset;
    TCanvas& Canvas = *GetCanvas();
    Canvas.GetFont()->Assign(GetFont());
    Canvas.GetFont()->SetColor(clInfoText);
    Canvas.GetBrush()->SetStyle(TBrushStyle::bsClear);
    DrawText(Canvas, GetCaption(), Rect, DrawTextBiDiModeFlags(DT_LEFT | DT_NOPREFIX | DT_WORDBREAK));
}

TRect THintWindow::CalcHintRect(int MaxWidth, const AnsiString& Hint)
{
    TCanvas& Canvas = *GetCanvas();
    Canvas.GetFont()->Assign(GetFont());
    TRect Rect{0, 0, MaxWidth, 0};
    DrawText(Canvas, Hint, Rect, DT_CALCRECT | DrawTextBiDiModeFlags(DT_LEFT | DT_WORDBREAK | DT_NOPREFIX));
    Rect.Right += ExtraWidth;
    Rect.Bottom += ExtraHeight;
    return Rect;
}

void THintWindow::ActivateHint(const TRect& Rect, const AnsiString& Hint)
{
    SetCaption(Hint);
    TRect Place = Rect;
    Place.Bottom += ExtraBottom;
    ShowAt(Place);
}

void THintWindow::ShowAt(const TRect& Rect)
{
    const TRect Screen = Platform().Windows().GetWorkArea({Rect.Left, Rect.Top});
    const int Left = std::max(std::min(Rect.Left, Screen.Right - Rect.Width()), Screen.Left);
    const int Top = std::max(std::min(Rect.Top, Screen.Bottom - Rect.Height()), Screen.Top);
    SetBounds(Left, Top, Rect.Width(), Rect.Height());
    SetVisible(true);
    GetHandle()->BringToFront();
    Invalidate();
}

void THintWindow::ReleaseHandle()
{
    SetVisible(false);
}

} // namespace vcl
