// The client area: what needs painting, when it is painted, and onto what.

#include "vcl/controls/ClientSurface.h"
#include "vcl/controls/GraphicControl.h"
#include "vcl/controls/WinControl.h"

namespace vcl
{

TCanvas& TWinControl::ClientCanvas()
{
    return FClient->Canvas();
}

void TWinControl::Invalidate()
{
    InvalidateRect(GetClientRect());
}

void TWinControl::InvalidateRect(const TRect& Rect, bool)
{
    if (FHandle)
        FClient->Invalidate(Rect);
}

void TWinControl::ChildInvalidated(const TRect& Rect)
{
    InvalidateRect(Rect);
}

void TWinControl::Update()
{
    if (FHandle && GetShowing() && FClient->IsDamaged())
        Perform(WM_PAINT);
}

void TWinControl::Repaint()
{
    Invalidate();
    Update();
}

void TWinControl::WMPaint(TMessage&)
{
    FClient->Paint();
}

void TWinControl::PaintContents(TCanvas& Canvas)
{
    TAliveGuard Guard(*this);
    Perform(WM_ERASEBKGND);
    if (Guard.IsAlive())
        PaintWindow(Canvas);
    if (Guard.IsAlive())
        PaintControls(Canvas);
}

void TWinControl::WMEraseBkgnd(TMessage& Message)
{
    TCanvas& Canvas = FClient->Canvas();
    TBrush Before;
    Before.Assign(Canvas.GetBrush());
    Canvas.GetBrush()->Assign(FBrush.get());
    Canvas.FillRect(GetClientRect());
    Canvas.GetBrush()->Assign(&Before);
    Message.Result = 1;
}

void TWinControl::PaintControls(TCanvas& Canvas)
{
    TAliveGuard Guard(*this);
    const TPoint Origin = Canvas.GetOrigin();
    const std::vector<TWeak<TControl>> Children(FControls.begin(), FControls.end());
    for (const TWeak<TControl>& Child : Children) {
        TGraphicControl* const Control = As<TGraphicControl>(Child.Get());
        if (!Control || Control->GetParent() != this || !Control->GetVisible())
            continue;
        if (!Canvas.IsClippedOut(Control->GetBoundsRect()))
            Control->PaintOn(Canvas, {Origin.X + Control->GetLeft(), Origin.Y + Control->GetTop()},
                             FClient->GetPaintClip());
        if (!Guard.IsAlive())
            return;
    }
}

void TWinControl::PaintTo(TCanvas& Canvas, int X, int Y)
{
    HandleNeeded();
    TAliveGuard Guard(*this);
    if (Canvas.GetClipRect().IsEmpty()) // also attaches a canvas that waits for its first drawing
        return;
    const TCanvasStateGuard State(Canvas);
    const TPoint Before = Canvas.GetOrigin();
    const TPoint Corner{Before.X + X, Before.Y + Y};
    if (TSurface* const Surface = Canvas.GetSurface())
        FWindow->RenderTo(Surface->Buffer(), {Surface->ToDevice(Corner.X), Surface->ToDevice(Corner.Y)});
    const TPoint Inset = ClientInset();
    const TPoint Client{Corner.X + Inset.X, Corner.Y + Inset.Y};
    if (IsSelfDrawn()) {
        Canvas.SetOrigin(Client);
        FClient->PaintOn(Canvas);
        if (!Guard.IsAlive())
            return;
    }
    const std::vector<TWeak<TWinControl>> Children(FWinControls.begin(), FWinControls.end());
    for (const TWeak<TWinControl>& Child : Children) {
        TWinControl* const Control = Child.Get();
        if (!Control || !Control->GetVisible() || (Control->FWindow && Control->IsTopLevel()))
            continue;
        Canvas.SetOrigin(Client);
        Control->PaintTo(Canvas, Control->GetLeft(), Control->GetTop());
    }
}

bool TWinControl::IsSelfDrawn() const
{
    return FKind == TWindowKind::Client || FKind == TWindowKind::Form || FKind == TWindowKind::Hint;
}

TPoint TWinControl::ClientInset() const
{
    // Top-level windows are painted without what surrounds their client area.
    if (!GetParent() || FTopLevel)
        return {};
    const TPoint Client = GetClientOrigin();
    const TPoint Parent = GetParent()->GetClientOrigin();
    return {Client.X - Parent.X - FLeft, Client.Y - Parent.Y - FTop};
}

void TWinControl::ColorChanged()
{
    FBrush->SetColor(GetColor());
}

void TWinControl::CMColorChanged(TMessage& Message)
{
    TAliveGuard Guard(*this);
    TControl::CMColorChanged(Message);
    if (!Guard.IsAlive())
        return;
    ApplyFontAndColors();
    NotifyControls(CM_PARENTCOLORCHANGED);
}

void TWinControl::CMFontChanged(TMessage& Message)
{
    TAliveGuard Guard(*this);
    TControl::CMFontChanged(Message);
    if (!Guard.IsAlive())
        return;
    ApplyFontAndColors();
    NotifyControls(CM_PARENTFONTCHANGED);
}

void TWinControl::CMSysColorChange(TMessage& Message)
{
    ApplyFontAndColors();
    Invalidate();
    Broadcast(Message);
}

void TWinControl::CMSysFontChanged(TMessage& Message)
{
    Invalidate();
    Broadcast(Message);
}

} // namespace vcl
