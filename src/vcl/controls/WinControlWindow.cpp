// The life of a window: made, shown, moved, re-made, lost.

#include <vector>

#include "vcl/controls/ClientSurface.h"
#include "vcl/controls/ControlWindow.h"
#include "vcl/controls/MouseTracker.h"
#include "vcl/controls/WinControl.h"
#include "vcl/controls/WindowScrollBars.h"
#include "vcl/graphics/Colors.h"
#include "vcl/platform/Platform.h"

namespace vcl
{

void TWinControl::CreateParams(TCreateParams& Params)
{
    Params.Style = WS_CHILD | WS_CLIPSIBLINGS;
    if (!GetEnabled())
        Params.Style |= WS_DISABLED;
    if (FTabStop)
        Params.Style |= WS_TABSTOP;
    if (FControlStyle.Contains(TControlStyleFlag::csAcceptsControls)) {
        Params.Style |= WS_CLIPCHILDREN;
        Params.ExStyle |= WS_EX_CONTROLPARENT;
    }
    if (UseRightToLeftAlignment())
        Params.ExStyle |= WS_EX_RIGHT;
    if (UseRightToLeftReading())
        Params.ExStyle |= WS_EX_RTLREADING;
    if (UseRightToLeftScrollBar())
        Params.ExStyle |= WS_EX_LEFTSCROLLBAR;
    Params.X = GetLeft();
    Params.Y = GetTop();
    Params.Width = GetWidth();
    Params.Height = GetHeight();
    Params.Caption = GetText();
}

void TWinControl::HandleNeeded()
{
    if (FHandle)
        return;
    if (GetParent())
        GetParent()->HandleNeeded();
    // Making the parent's handle may have made this one.
    if (!FHandle)
        CreateHandle();
}

IWindow* TWinControl::GetHandle()
{
    HandleNeeded();
    return FWindow.get();
}

void TWinControl::CreateHandle()
{
    CreateWnd();
}

void TWinControl::CreateWnd()
{
    TCreateParams Params;
    CreateParams(Params);
    if (!GetParent() && !Params.ForeignParent && !CanLiveWithoutParent())
        throw EInvalidOperation("Control '" + GetName() + "' has no parent window");
    const TWindowStyle Style{Params.Kind, Params.Style, Params.ExStyle};
    IWindow* const Parent = GetParent() ? GetParent()->FWindow.get() : nullptr;
    const TRect Place = vcl::Bounds(Params.X, Params.Y, Params.Width, Params.Height);
    if (!FWindow)
        FWindow = Platform().Windows().CreateWindow(*FPlatform, Style, Parent, Place, Params.ForeignParent);
    else {
        FWindow->SetStyle(Style);
        if (!Params.ForeignParent)
            FWindow->SetParent(Parent);
        FWindow->SetBounds(Place);
    }
    FKind = Params.Kind;
    FTopLevel = (Params.Style & WS_POPUP) != 0;
    FHandle = true;
    FWindow->SetText(Params.Caption);
    FWindow->SetEnabled(GetEnabled());
    ApplyFontAndColors();
    FScrollBars->SetStyle((Params.Style & WS_HSCROLL) != 0, (Params.Style & WS_VSCROLL) != 0);
    ApplyScrollBars(true);
    TAliveGuard Guard(*this);
    Perform(WM_CREATE);
    if (Guard.IsAlive() && FHandle)
        TellSize(true);
}

void TWinControl::ApplyFontAndColors()
{
    if (!FHandle)
        return;
    FWindow->SetFont(GetFont()->GetSpec());
    const bool UseNative = IsSystemColor(GetColor()) && GetFont()->GetColor() == clWindowText;
    FWindow->SetColors(ColorToRGB(GetFont()->GetColor()), ColorToRGB(GetColor()), UseNative);
}

void TWinControl::DestroyHandle()
{
    for (std::size_t Index = 0; Index < FWinControls.size(); ++Index)
        FWinControls[Index]->DestroyHandle();
    if (FHandle)
        DestroyWnd();
}

void TWinControl::DestroyWnd()
{
    Perform(WM_DESTROY);
    LoseHandle();
}

void TWinControl::LoseHandle()
{
    KillTimers();
    MouseTracker().WindowGone(*this);
    FHandle = false;
    FShowing = false;
    FClient->Drop();
    FSentClientSize = {-1, -1};
}

void TWinControl::WindowGone()
{
    // The platform's object is being destroyed already: nothing may be asked of it any more.
    [[maybe_unused]] IWindow* const Gone = FWindow.release();
    for (std::size_t Index = 0; Index < FWinControls.size(); ++Index)
        FWinControls[Index]->DestroyHandle();
    LoseHandle();
}

void TWinControl::RecreateWnd()
{
    if (!FHandle)
        return;
    TAliveGuard Guard(*this);
    const bool HadFocus = Focused();
    DestroyHandle();
    if (!Guard.IsAlive())
        return;
    UpdateControlState();
    if (!Guard.IsAlive())
        return;
    // A hidden window without a handle would stay on the screen otherwise.
    if (!FHandle && FWindow)
        FWindow->SetVisible(false);
    if (HadFocus && FHandle && !Focused())
        FWindow->SetFocus();
}

void TWinControl::UpdateControlState()
{
    TWinControl* Control = this;
    while (Control->GetParent()) {
        Control = Control->GetParent();
        if (!Control->FShowing)
            return;
    }
    if (Control->CanLiveWithoutParent())
        Control->UpdateShowing();
}

bool TWinControl::GetShowing() const
{
    return FShowing && (!GetParent() || GetParent()->GetShowing());
}

void TWinControl::UpdateShowing()
{
    TAliveGuard Guard(*this);
    const bool Show = (GetVisible() || Is(TComponentState::csDesigning)) &&
                      !FControlState.Contains(TControlStateFlag::csReadingState);
    if (Show) {
        if (!FHandle)
            CreateHandle();
        if (!Guard.IsAlive())
            return;
        const std::vector<TWeak<TWinControl>> Children(FWinControls.begin(), FWinControls.end());
        for (const TWeak<TWinControl>& Child : Children)
            if (Child.Get() && Child.Get()->GetParent() == this)
                Child.Get()->UpdateShowing();
    }
    if (!Guard.IsAlive() || !FHandle || FShowing == Show)
        return;
    FShowing = Show;
    Perform(CM_SHOWINGCHANGED);
}

void TWinControl::CMShowingChanged(TMessage&)
{
    FWindow->SetVisible(FShowing);
    if (FShowing)
        Invalidate();
}

void TWinControl::ShowControl(TControl*)
{
    if (GetParent())
        GetParent()->ShowControl(this);
}

TRect TWinControl::GetClientRect() const
{
    if (!FHandle)
        return TControl::GetClientRect();
    const TSize Size = FWindow->GetClientSize();
    return {0, 0, Size.Width, Size.Height};
}

TPoint TWinControl::GetClientOrigin() const
{
    return FHandle ? FWindow->ClientToScreen({0, 0}) : TControl::GetClientOrigin();
}

void TWinControl::SetBounds(int Left, int Top, int Width, int Height)
{
    TAliveGuard Guard(*this);
    if (!CheckNewSize(Width, Height) || !Guard.IsAlive())
        return;
    const TRect Old = GetBoundsRect();
    if (Old == vcl::Bounds(Left, Top, Width, Height))
        return;
    FLeft = Left;
    FTop = Top;
    FWidth = Width;
    FHeight = Height;
    // Before the window moves: what its handlers see must hold already.
    UpdateAnchorRules();
    if (FHandle) {
        FWindow->SetBounds(GetBoundsRect());
        TellMove(Old);
    }
    if (Guard.IsAlive())
        RequestAlign();
}

void TWinControl::TellMove(const TRect& Old)
{
    TAliveGuard Guard(*this);
    if (Old.Left != FLeft || Old.Top != FTop)
        Perform(WM_MOVE, 0, MakePointParam(FLeft, FTop));
    if (Guard.IsAlive() && FHandle)
        TellSize(Old.Width() != FWidth || Old.Height() != FHeight);
}

void TWinControl::TellSize(bool Always)
{
    const TSize Size = FWindow->GetClientSize();
    if (!Always && Size == FSentClientSize)
        return;
    FSentClientSize = Size;
    FClient->Resize();
    Invalidate();
    Perform(WM_SIZE, SIZE_RESTORED, MakePointParam(Size.Width, Size.Height));
}

void TWinControl::PlatformMoved(TMessage& Message)
{
    if (!FHandle)
        return;
    if (Message.Msg == WM_SIZE && Message.WParam == SIZE_MINIMIZED) {
        WndProc(Message);
        return;
    }
    const TRect Old = GetBoundsRect();
    const TRect Now = FWindow->GetBounds();
    FLeft = Now.Left;
    FTop = Now.Top;
    FWidth = Now.Width();
    FHeight = Now.Height();
    UpdateAnchorRules();
    TAliveGuard Guard(*this);
    TellMove(Old);
    if (Guard.IsAlive() && Message.Msg == WM_SIZE)
        PlatformState(static_cast<unsigned>(Message.WParam));
}

std::uint64_t TWinControl::SetTimer(std::uint64_t Id, unsigned Interval)
{
    HandleNeeded();
    KillTimer(Id);
    FTimers[Id] = Platform().Windows().StartTimer(Interval, [this, Id] {
        TMessage Message{WM_TIMER, Id, 0, 0};
        FPlatform->WindowMessage(Message);
    });
    return Id;
}

bool TWinControl::KillTimer(std::uint64_t Id)
{
    const auto Found = FTimers.find(Id);
    if (Found == FTimers.end())
        return false;
    Platform().Windows().StopTimer(Found->second);
    FTimers.erase(Found);
    return true;
}

void TWinControl::KillTimers()
{
    while (!FTimers.empty())
        KillTimer(FTimers.begin()->first);
}

void TWinControl::PostMessage(unsigned Msg, std::uint64_t WParam, std::int64_t LParam)
{
    HandleNeeded();
    Platform().Windows().Post([Target = TWeak<TWinControl>(this), Msg, WParam, LParam] {
        TWinControl* const Control = Target.Get();
        if (!Control || !Control->HandleAllocated())
            return;
        TMessage Message{Msg, WParam, LParam, 0};
        Control->FPlatform->WindowMessage(Message);
    });
}

} // namespace vcl
