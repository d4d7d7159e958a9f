#include "vcl/controls/ControlWindow.h"

#include "vcl/controls/ClientSurface.h"
#include "vcl/controls/Drag.h"
#include "vcl/controls/MouseTracker.h"
#include "vcl/controls/Program.h"
#include "vcl/controls/WinControl.h"
#include "vcl/controls/WindowScrollBars.h"

namespace vcl
{

namespace
{

bool IsMouse(unsigned Msg)
{
    return Msg >= WM_MOUSEMOVE && Msg <= WM_MBUTTONDBLCLK;
}

unsigned NotificationOfKey(unsigned Msg)
{
    switch (Msg) {
    case WM_KEYDOWN:
        return CN_KEYDOWN;
    case WM_SYSKEYDOWN:
        return CN_SYSKEYDOWN;
    case WM_CHAR:
        return CN_CHAR;
    default:
        return 0;
    }
}

} // namespace

template <class TAction>
void TControlWindow::Run(TAction&& Action) noexcept
{
    // The control may be freed on the way, and this object with it: nothing of it is used afterwards.
    const TWeak<TWinControl> Sender = &FControl;
    try {
        Action();
    } catch (...) {
        Program().HandleException(Sender.Get());
    }
}

void TControlWindow::WindowMessage(TMessage& Message) noexcept
{
    Run([this, &Message] { Handle(Message); });
}

void TControlWindow::Handle(TMessage& Message)
{
    TAliveGuard Guard(FControl);
    if (DragSession().Handle(FControl, Message) || !Guard.IsAlive())
        return;
    if (Message.Msg == WM_CAPTURECHANGED)
        return MouseTracker().CaptureLost(FControl);
    if (Message.Msg == WM_MOUSELEAVE)
        return MouseTracker().WindowLeft(FControl);
    if (Message.Msg == WM_SIZE || Message.Msg == WM_MOVE)
        return FControl.PlatformMoved(Message);
    if (IsMouse(Message.Msg)) {
        FollowMouse(Message);
        if (!Guard.IsAlive())
            return;
    }
    if (BeforeKey(Message) || !Guard.IsAlive())
        return;
    if (Message.Msg == WM_HSCROLL || Message.Msg == WM_VSCROLL)
        return Scroll(Message);
    FControl.WndProc(Message);
}

void TControlWindow::Scroll(TMessage& Message)
{
    TAliveGuard Guard(FControl);
    const TScrollBarKind Kind =
        Message.Msg == WM_HSCROLL ? TScrollBarKind::sbHorizontal : TScrollBarKind::sbVertical;
    const unsigned Request = ScrollRequest(Message.WParam);
    const int Position = ScrollPosition(Message.WParam);
    FControl.FScrollBars->Track(Kind, Request, Position, false);
    FControl.WndProc(Message);
    if (Guard.IsAlive())
        FControl.FScrollBars->Track(Kind, Request, Position, true);
}

bool TControlWindow::BeforeKey(TMessage& Message)
{
    const unsigned Notification = NotificationOfKey(Message.Msg);
    if (Notification == 0)
        return false;
    if (FControl.Perform(Notification, Message.WParam, Message.LParam) == 0)
        return false;
    Message.Result = 1;
    return true;
}

void TControlWindow::FollowMouse(const TMessage& Message)
{
    TControl* const Captured = MouseTracker().GetCapture();
    if (Captured && WindowControlOf(Captured) == &FControl)
        MouseTracker().MouseOver(Captured);
    else
        MouseTracker().MouseOver(ControlUnder(FControl, PointOfParam(Message.LParam)));
}

void TControlWindow::WindowUpdate() noexcept
{
    Run([this] { FControl.Update(); });
}

TPixelBuffer TControlWindow::WindowPixels() noexcept
{
    return FControl.FClient->Pixels();
}

void TControlWindow::WindowScaleChanged() noexcept
{
    Run([this] {
        FControl.FClient->Resize();
        FControl.Invalidate();
    });
}

void TControlWindow::WindowDestroyed() noexcept
{
    Run([this] { FControl.WindowGone(); });
}

} // namespace vcl
