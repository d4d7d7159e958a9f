// How a message becomes a call: the mouse, notifications and dragging.

#include "vcl/controls/Control.h"
#include "vcl/controls/Drag.h"
#include "vcl/controls/MouseTracker.h"
#include "vcl/controls/Program.h"
#include "vcl/controls/WinControl.h"
#include "vcl/platform/Platform.h"

namespace vcl
{

namespace
{

TShiftState ShiftOf(const TMessage& Message)
{
    return ShiftStateOf(static_cast<unsigned>(Message.WParam & 0xFFFFu));
}

bool IsButtonDown(unsigned Msg)
{
    return Msg == WM_LBUTTONDOWN || Msg == WM_RBUTTONDOWN || Msg == WM_MBUTTONDOWN;
}

bool IsDoubleClick(unsigned Msg)
{
    return Msg == WM_LBUTTONDBLCLK || Msg == WM_RBUTTONDBLCLK || Msg == WM_MBUTTONDBLCLK;
}

constexpr unsigned DoubleClickToDown = WM_LBUTTONDBLCLK - WM_LBUTTONDOWN;

} // namespace

std::int64_t TControl::Perform(unsigned Msg, std::uint64_t WParam, std::int64_t LParam)
{
    TMessage Message{Msg, WParam, LParam, 0};
    WndProc(Message);
    return Message.Result;
}

void TControl::WndProc(TMessage& Message)
{
    if (IsDoubleClick(Message.Msg) && !FControlStyle.Contains(TControlStyleFlag::csDoubleClicks))
        Message.Msg -= DoubleClickToDown;
    if (Message.Msg == WM_MOUSEMOVE)
        Program().HintMouseMessage(this, Message);
    if (IsButtonDown(Message.Msg) || IsDoubleClick(Message.Msg)) {
        TAliveGuard Guard(*this);
        Program().HintMouseMessage(this, Message);
        if (!Guard.IsAlive())
            return;
        if (Message.Msg == WM_LBUTTONDOWN || Message.Msg == WM_LBUTTONDBLCLK) {
            if (FDragMode == TDragMode::dmAutomatic && !Is(TComponentState::csDesigning)) {
                BeginAutoDrag();
                return;
            }
            FControlState.Include(TControlStateFlag::csLButtonDown);
        }
    }
    if (Message.Msg == WM_LBUTTONUP)
        FControlState.Exclude(TControlStateFlag::csLButtonDown);
    Dispatch(Message);
}

void TControl::Dispatch(TMessage& Message)
{
    if (Message.Msg >= WM_MOUSEMOVE && Message.Msg <= WM_MOUSEHWHEEL)
        DispatchMouse(Message);
    else if (!DispatchNotification(Message))
        DefaultHandler(Message);
}

void TControl::DispatchMouse(TMessage& Message)
{
    switch (Message.Msg) {
    case WM_MOUSEMOVE:
        return WMMouseMove(Message);
    case WM_LBUTTONDOWN:
        return ButtonDown(Message, TMouseButton::mbLeft);
    case WM_RBUTTONDOWN:
        return ButtonDown(Message, TMouseButton::mbRight);
    case WM_MBUTTONDOWN:
        return ButtonDown(Message, TMouseButton::mbMiddle);
    case WM_LBUTTONDBLCLK:
        return ButtonDoubleClicked(Message, TMouseButton::mbLeft);
    case WM_RBUTTONDBLCLK:
        return ButtonDoubleClicked(Message, TMouseButton::mbRight);
    case WM_MBUTTONDBLCLK:
        return ButtonDoubleClicked(Message, TMouseButton::mbMiddle);
    case WM_LBUTTONUP:
        return ButtonUp(Message, TMouseButton::mbLeft);
    case WM_RBUTTONUP:
        return ButtonUp(Message, TMouseButton::mbRight);
    case WM_MBUTTONUP:
        return ButtonUp(Message, TMouseButton::mbMiddle);
    case WM_MOUSEWHEEL:
        return WMMouseWheel(Message);
    default:
        DefaultHandler(Message);
    }
}

bool TControl::DispatchNotification(TMessage& Message)
{
    switch (Message.Msg) {
    case CM_FONTCHANGED:
        CMFontChanged(Message);
        return true;
    case CM_COLORCHANGED:
        CMColorChanged(Message);
        return true;
    case CM_ENABLEDCHANGED:
        CMEnabledChanged(Message);
        return true;
    case CM_VISIBLECHANGED:
        CMVisibleChanged(Message);
        return true;
    case CM_TEXTCHANGED:
        CMTextChanged(Message);
        return true;
    case CM_BIDIMODECHANGED:
        CMBiDiModeChanged(Message);
        return true;
    case CM_SHOWHINTCHANGED:
        CMShowHintChanged(Message);
        return true;
    case CM_PARENTCOLORCHANGED:
    case CM_PARENTFONTCHANGED:
    case CM_PARENTSHOWHINTCHANGED:
    case CM_PARENTBIDIMODECHANGED:
        TakeFromParent(Message.Msg);
        return true;
    case CM_MOUSEENTER:
        CMMouseEnter(Message);
        return true;
    case CM_MOUSELEAVE:
        CMMouseLeave(Message);
        return true;
    case CM_HITTEST:
        CMHitTest(Message);
        return true;
    case WM_CONTEXTMENU:
        WMContextMenu(Message);
        return true;
    case WM_CANCELMODE:
    case CM_CANCELMODE:
        WMCancelMode(Message);
        return true;
    default:
        return false;
    }
}

void TControl::SendCancelMode()
{
    IFormSite* const Site = GetFormSiteOf(this);
    TWinControl* const Active = Site ? Site->GetActiveControl() : nullptr;
    if (Active && Active != this)
        Active->Perform(CM_CANCELMODE, 0, static_cast<std::int64_t>(reinterpret_cast<std::intptr_t>(this)));
}

/// What a press and a double click begin with. False when a handler has freed this control.
bool TControl::TakeButton(TMessage& Message, TMouseButton Button)
{
    TAliveGuard Guard(*this);
    if (Button == TMouseButton::mbLeft)
        SendCancelMode();
    if (Guard.IsAlive())
        DefaultHandler(Message);
    if (!Guard.IsAlive())
        return false;
    if (Button == TMouseButton::mbLeft && FControlStyle.Contains(TControlStyleFlag::csCaptureMouse))
        SetMouseCapture(true);
    return true;
}

void TControl::ButtonDown(TMessage& Message, TMouseButton Button)
{
    if (!TakeButton(Message, Button))
        return;
    if (Button == TMouseButton::mbLeft && FControlStyle.Contains(TControlStyleFlag::csClickEvents))
        FControlState.Include(TControlStateFlag::csClicked);
    DoMouseDown(Message, Button, {});
}

void TControl::ButtonDoubleClicked(TMessage& Message, TMouseButton Button)
{
    if (!TakeButton(Message, Button))
        return;
    TAliveGuard Guard(*this);
    if (Button == TMouseButton::mbLeft && FControlStyle.Contains(TControlStyleFlag::csClickEvents))
        DblClick();
    if (Guard.IsAlive())
        DoMouseDown(Message, Button, {TShiftKey::ssDouble});
}

void TControl::ButtonUp(TMessage& Message, TMouseButton Button)
{
    TAliveGuard Guard(*this);
    DefaultHandler(Message);
    if (!Guard.IsAlive())
        return;
    if (Button == TMouseButton::mbLeft) {
        if (FControlStyle.Contains(TControlStyleFlag::csCaptureMouse))
            SetMouseCapture(false);
        const bool WasClicked = FControlState.Contains(TControlStateFlag::csClicked);
        FControlState.Exclude(TControlStateFlag::csClicked);
        if (WasClicked && GetClientRect().Contains(PointOfParam(Message.LParam)))
            Click();
    }
    if (Guard.IsAlive())
        DoMouseUp(Message, Button);
}

void TControl::DoMouseDown(TMessage& Message, TMouseButton Button, TShiftState Shift)
{
    if (FControlStyle.Contains(TControlStyleFlag::csNoStdEvents))
        return;
    const TPoint Point = PointOfParam(Message.LParam);
    MouseDown(Button, ShiftOf(Message) + Shift, Point.X, Point.Y);
}

void TControl::DoMouseUp(TMessage& Message, TMouseButton Button)
{
    if (FControlStyle.Contains(TControlStyleFlag::csNoStdEvents))
        return;
    const TPoint Point = PointOfParam(Message.LParam);
    MouseUp(Button, ShiftOf(Message), Point.X, Point.Y);
}

void TControl::WMMouseMove(TMessage& Message)
{
    TAliveGuard Guard(*this);
    DefaultHandler(Message);
    if (!Guard.IsAlive() || FControlStyle.Contains(TControlStyleFlag::csNoStdEvents))
        return;
    const TPoint Point = PointOfParam(Message.LParam);
    MouseMove(ShiftOf(Message), Point.X, Point.Y);
}

void TControl::MouseDown(TMouseButton Button, TShiftState Shift, int X, int Y)
{
    OnMouseDown(this, Button, Shift, X, Y);
}

void TControl::MouseMove(TShiftState Shift, int X, int Y)
{
    OnMouseMove(this, Shift, X, Y);
}

void TControl::MouseUp(TMouseButton Button, TShiftState Shift, int X, int Y)
{
    OnMouseUp(this, Button, Shift, X, Y);
}

void TControl::WMMouseWheel(TMessage& Message)
{
    TAliveGuard Guard(*this);
    if (DoMouseWheel(ShiftOf(Message), WheelDistance(Message.WParam), PointOfParam(Message.LParam))) {
        Message.Result = 1;
        return;
    }
    if (!Guard.IsAlive())
        return;
    DefaultHandler(Message);
    if (Guard.IsAlive() && Message.Result == 0 && FParent)
        Message.Result = FParent->Perform(Message.Msg, Message.WParam, Message.LParam);
}

bool TControl::DoMouseWheel(TShiftState Shift, int WheelDelta, TPoint MousePos)
{
    TAliveGuard Guard(*this);
    bool Handled = false;
    OnMouseWheel(this, Shift, WheelDelta, MousePos, Handled);
    if (Handled || !Guard.IsAlive())
        return true;
    // A turn the other way starts anew.
    if ((FWheelRest < 0) != (WheelDelta < 0))
        FWheelRest = 0;
    FWheelRest += WheelDelta;
    while (FWheelRest <= -WHEEL_DELTA || FWheelRest >= WHEEL_DELTA) {
        const bool Down = FWheelRest < 0;
        FWheelRest += Down ? WHEEL_DELTA : -WHEEL_DELTA;
        Handled |= Down ? DoMouseWheelDown(Shift, MousePos) : DoMouseWheelUp(Shift, MousePos);
        if (!Guard.IsAlive())
            return true;
    }
    return Handled;
}

bool TControl::DoMouseWheelDown(TShiftState Shift, TPoint MousePos)
{
    bool Handled = false;
    OnMouseWheelDown(this, Shift, MousePos, Handled);
    return Handled;
}

bool TControl::DoMouseWheelUp(TShiftState Shift, TPoint MousePos)
{
    bool Handled = false;
    OnMouseWheelUp(this, Shift, MousePos, Handled);
    return Handled;
}

void TControl::CMMouseEnter(TMessage&)
{
    if (FParent)
        FParent->Perform(CM_MOUSEENTER, 0, static_cast<std::int64_t>(reinterpret_cast<std::intptr_t>(this)));
}

void TControl::CMMouseLeave(TMessage&)
{
    if (FParent)
        FParent->Perform(CM_MOUSELEAVE, 0, static_cast<std::int64_t>(reinterpret_cast<std::intptr_t>(this)));
}

void TControl::WMCancelMode(TMessage& Message)
{
    if (GetMouseCapture()) {
        SetMouseCapture(false);
        FControlState.Exclude(TControlStateFlag::csClicked);
    }
    DefaultHandler(Message);
}

void TControl::WMContextMenu(TMessage& Message)
{
    TPopupMenuBase* const Menu = Is(TComponentState::csDesigning) ? nullptr : GetPopupMenuToShow();
    if (!Menu || !Menu->GetAutoPopup()) {
        DefaultHandler(Message);
        if (Message.Result == 0 && FParent)
            Message.Result = FParent->Perform(Message.Msg, Message.WParam, Message.LParam);
        return;
    }
    TAliveGuard Guard(*this);
    SendCancelMode();
    if (!Guard.IsAlive())
        return;
    // Asked for by the keyboard there is no point: the menu opens inside the control.
    const TPoint Point = Message.LParam == -1 ? ClientToScreen({0, 0}) : PointOfParam(Message.LParam);
    Menu->SetPopupComponent(this);
    Menu->Popup(Point.X, Point.Y);
    Message.Result = 1;
}

void TControl::BeginDrag(bool Immediate, int Threshold)
{
    DragSession().Begin(*this, Immediate, Threshold);
}

void TControl::EndDrag(bool Drop)
{
    if (DragSession().GetSource() == this)
        DragSession().End(Drop);
}

bool TControl::Dragging() const
{
    return DragSession().IsDragging() && DragSession().GetSource() == this;
}

void TControl::DragDrop(TObject* Source, int X, int Y)
{
    OnDragDrop(this, Source, X, Y);
}

void TControl::DragOver(TObject* Source, int X, int Y, TDragState State, bool& Accept)
{
    Accept = false;
    if (!OnDragOver)
        return;
    Accept = true;
    OnDragOver(this, Source, X, Y, State, Accept);
}

void TControl::ChangeControlState(TControlStateFlag Flag, bool Value)
{
    if (Value)
        FControlState.Include(Flag);
    else
        FControlState.Exclude(Flag);
}

} // namespace vcl
