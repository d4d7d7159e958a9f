// How a window's message becomes a call: keyboard, notifications, the window's own life.

#include <vector>

#include "vcl/controls/ClientSurface.h"
#include "vcl/controls/MouseTracker.h"
#include "vcl/controls/WinControl.h"
#include "vcl/platform/Platform.h"
#include "vcl/platform/VirtualKeys.h"

namespace vcl
{

namespace
{

bool IsMouse(unsigned Msg)
{
    return Msg >= WM_MOUSEMOVE && Msg <= WM_MBUTTONDBLCLK;
}

TShiftState CurrentShift()
{
    return KeyShiftStateOf(Platform().Windows().GetKeyFlags());
}

/// What WM_GETDLGCODE has to answer for the control to keep the key; 0: the form has no use for it.
int DialogCodeOfKey(std::uint64_t Key)
{
    switch (Key) {
    case VK_TAB:
        return DLGC_WANTTAB;
    case VK_LEFT:
    case VK_RIGHT:
    case VK_UP:
    case VK_DOWN:
        return DLGC_WANTARROWS;
    case VK_RETURN:
    case VK_EXECUTE:
    case VK_ESCAPE:
    case VK_CANCEL:
        return DLGC_WANTALLKEYS;
    default:
        return 0;
    }
}

std::int64_t PointerParam(const void* Pointer)
{
    return static_cast<std::int64_t>(reinterpret_cast<std::intptr_t>(Pointer));
}

} // namespace

void TWinControl::WndProc(TMessage& Message)
{
    if (Message.Msg == WM_SETFOCUS) {
        TAliveGuard Guard(*this);
        IFormSite* const Site = GetFormSiteOf(this);
        // A handler that moved the focus on has had its way already.
        if ((Site && !Site->SetFocusedControl(this)) || !Guard.IsAlive())
            return;
    }
    if (IsMouse(Message.Msg) && RouteMouse(Message))
        return;
    TControl::WndProc(Message);
}

bool TWinControl::RouteMouse(TMessage& Message)
{
    const TPoint Point = PointOfParam(Message.LParam);
    TControl* Target = MouseTracker().GetCapture();
    if (Target == this)
        return false;
    if (!Target || Target->GetParent() != this || As<TWinControl>(Target))
        Target = ControlAtPos(Point, false);
    if (!Target)
        return false;
    const TPoint Inside{Point.X - Target->GetLeft(), Point.Y - Target->GetTop()};
    Message.Result = Target->Perform(Message.Msg, Message.WParam, MakePointParam(Inside.X, Inside.Y));
    return true;
}

void TWinControl::Dispatch(TMessage& Message)
{
    if (!DispatchWindow(Message) && !DispatchNotification(Message) && !DispatchKey(Message))
        TControl::Dispatch(Message);
}

void TWinControl::DefaultHandler(TMessage& Message)
{
    if (FHandle && Message.Msg < CM_BASE)
        FWindow->DefaultMessage(Message);
}

bool TWinControl::DispatchWindow(TMessage& Message)
{
    switch (Message.Msg) {
    case WM_SIZE:
        WMSize(Message);
        return true;
    case WM_MOVE:
        WMMove(Message);
        return true;
    case WM_TIMER:
        WMTimer(Message);
        return true;
    case WM_HSCROLL:
        WMHScroll(Message);
        return true;
    case WM_VSCROLL:
        WMVScroll(Message);
        return true;
    case WM_SETFOCUS:
        WMSetFocus(Message);
        return true;
    case WM_KILLFOCUS:
        WMKillFocus(Message);
        return true;
    case WM_ERASEBKGND:
        WMEraseBkgnd(Message);
        return true;
    case WM_PAINT:
        WMPaint(Message);
        return true;
    case WM_GETDLGCODE:
        WMGetDlgCode(Message);
        return true;
    case CN_COMMAND:
        PeerNotice(static_cast<TPeerNotice>(Message.WParam), Message.LParam);
        return true;
    default:
        return false;
    }
}

bool TWinControl::DispatchNotification(TMessage& Message)
{
    switch (Message.Msg) {
    case CM_CTL3DCHANGED:
        CMCtl3DChanged(Message);
        return true;
    case CM_PARENTCTL3DCHANGED:
        TakeCtl3DFromParent();
        return true;
    case CM_SHOWINGCHANGED:
        CMShowingChanged(Message);
        return true;
    case CM_DIALOGKEY:
        CMDialogKey(Message);
        return true;
    case CM_DIALOGCHAR:
        CMDialogChar(Message);
        return true;
    case CM_FOCUSCHANGED:
        CMFocusChanged(Message);
        return true;
    case CM_WANTSPECIALKEY:
        CMWantSpecialKey(Message);
        return true;
    case CM_CHILDKEY:
        if (GetParent())
            GetParent()->WndProc(Message);
        return true;
    case CM_ENTER:
        DoEnter();
        return true;
    case CM_EXIT:
        DoExit();
        return true;
    case CM_SYSCOLORCHANGE:
        CMSysColorChange(Message);
        return true;
    case CM_SYSFONTCHANGED:
        CMSysFontChanged(Message);
        return true;
    default:
        return false;
    }
}

bool TWinControl::DispatchKey(TMessage& Message)
{
    switch (Message.Msg) {
    case CN_KEYDOWN:
    case CN_SYSKEYDOWN:
        CNKeyDown(Message);
        return true;
    case CN_CHAR:
        CNChar(Message);
        return true;
    case WM_KEYDOWN:
    case WM_SYSKEYDOWN:
        if (!DoKeyDown(Message))
            DefaultHandler(Message);
        return true;
    case WM_KEYUP:
    case WM_SYSKEYUP:
        if (!DoKeyUp(Message))
            DefaultHandler(Message);
        return true;
    case WM_CHAR:
        if (!DoKeyPress(Message))
            DefaultHandler(Message);
        return true;
    case WM_SYSCHAR:
        SysChar(Message);
        return true;
    default:
        return false;
    }
}

void TWinControl::CNKeyDown(TMessage& Message)
{
    Message.Result = 1;
    TAliveGuard Guard(*this);
    IFormSite* const Site = GetFormSiteOf(this);
    if (Site && Site->IsShortCut(static_cast<std::uint16_t>(Message.WParam), CurrentShift()))
        return;
    if (!Guard.IsAlive())
        return;
    if (Perform(CM_CHILDKEY, Message.WParam, PointerParam(this)) != 0 || !Guard.IsAlive())
        return;
    const int Code = DialogCodeOfKey(Message.WParam);
    const bool Wanted = Code == 0 || Perform(CM_WANTSPECIALKEY, Message.WParam) != 0 ||
                        (Perform(WM_GETDLGCODE) & (Code | DLGC_WANTALLKEYS)) != 0;
    if (!Guard.IsAlive())
        return;
    if (!Wanted && Site && Site->SiteControl().Perform(CM_DIALOGKEY, Message.WParam) != 0)
        return;
    Message.Result = 0;
}

void TWinControl::CNChar(TMessage& Message)
{
    Message.Result = 1;
    TAliveGuard Guard(*this);
    IFormSite* const Site = GetFormSiteOf(this);
    const bool Wanted = (Perform(WM_GETDLGCODE) & DLGC_WANTCHARS) != 0;
    if (!Guard.IsAlive())
        return;
    if (!Wanted && Site && Site->SiteControl().Perform(CM_DIALOGCHAR, Message.WParam) != 0)
        return;
    Message.Result = 0;
}

void TWinControl::SysChar(TMessage& Message)
{
    // With Alt a character is an access key even to a control that writes.
    TAliveGuard Guard(*this);
    IFormSite* const Site = GetFormSiteOf(this);
    if (Site && Site->SiteControl().Perform(CM_DIALOGCHAR, Message.WParam) != 0)
        Message.Result = 1;
    else if (Guard.IsAlive())
        DefaultHandler(Message);
}

namespace
{

/// Whether the form sees the key first and consumes it.
template <class TAction>
bool PreviewConsumes(TWinControl& Control, TAction&& Action)
{
    IFormSite* const Site = GetFormSiteOf(&Control);
    return Site && &Site->SiteControl() != &Control && Site->GetKeyPreview() && Action(Site->SiteControl());
}

} // namespace

bool TWinControl::DoKeyDown(TMessage& Message)
{
    TAliveGuard Guard(*this);
    if (PreviewConsumes(*this, [&](TWinControl& Form) { return Form.DoKeyDown(Message); }) ||
        !Guard.IsAlive())
        return true;
    if (FControlStyle.Contains(TControlStyleFlag::csNoStdEvents))
        return false;
    std::uint16_t Key = static_cast<std::uint16_t>(Message.WParam);
    KeyDown(Key, CurrentShift());
    Message.WParam = Key;
    return Key == 0 || !Guard.IsAlive();
}

bool TWinControl::DoKeyUp(TMessage& Message)
{
    TAliveGuard Guard(*this);
    if (PreviewConsumes(*this, [&](TWinControl& Form) { return Form.DoKeyUp(Message); }) || !Guard.IsAlive())
        return true;
    if (FControlStyle.Contains(TControlStyleFlag::csNoStdEvents))
        return false;
    std::uint16_t Key = static_cast<std::uint16_t>(Message.WParam);
    KeyUp(Key, CurrentShift());
    Message.WParam = Key;
    return Key == 0 || !Guard.IsAlive();
}

bool TWinControl::DoKeyPress(TMessage& Message)
{
    TAliveGuard Guard(*this);
    if (PreviewConsumes(*this, [&](TWinControl& Form) { return Form.DoKeyPress(Message); }) ||
        !Guard.IsAlive())
        return true;
    if (FControlStyle.Contains(TControlStyleFlag::csNoStdEvents))
        return false;
    char32_t Key = static_cast<char32_t>(Message.WParam);
    KeyPress(Key);
    Message.WParam = Key;
    return Key == 0 || !Guard.IsAlive();
}

void TWinControl::Broadcast(TMessage& Message)
{
    std::vector<TWeak<TControl>> Children;
    for (int Index = 0; Index < GetControlCount(); ++Index)
        Children.emplace_back(GetControl(Index));
    for (const TWeak<TControl>& Child : Children) {
        if (TControl* const Control = Child.Get())
            Control->WndProc(Message);
        if (Message.Result != 0)
            return;
    }
}

void TWinControl::NotifyControls(unsigned Msg)
{
    TMessage Message{Msg, 0, 0, 0};
    Broadcast(Message);
}

void TWinControl::CMDialogKey(TMessage& Message)
{
    Broadcast(Message);
}

void TWinControl::CMDialogChar(TMessage& Message)
{
    Broadcast(Message);
}

void TWinControl::CMFocusChanged(TMessage& Message)
{
    Broadcast(Message);
}

void TWinControl::CMShowHintChanged(TMessage&)
{
    NotifyControls(CM_PARENTSHOWHINTCHANGED);
}

void TWinControl::CMBiDiModeChanged(TMessage& Message)
{
    TAliveGuard Guard(*this);
    TControl::CMBiDiModeChanged(Message);
    if (!Guard.IsAlive())
        return;
    // Reading order and the side of the scroll bar are part of the window's style.
    RecreateWnd();
    if (Guard.IsAlive())
        NotifyControls(CM_PARENTBIDIMODECHANGED);
}

void TWinControl::CMCtl3DChanged(TMessage&)
{
    TAliveGuard Guard(*this);
    Invalidate();
    if (Guard.IsAlive())
        NotifyControls(CM_PARENTCTL3DCHANGED);
}

void TWinControl::CMEnabledChanged(TMessage&)
{
    TAliveGuard Guard(*this);
    if (!GetEnabled() && GetParent())
        RemoveFocus(false);
    if (!Guard.IsAlive())
        return;
    if (FHandle)
        FWindow->SetEnabled(GetEnabled());
    Invalidate();
}

void TWinControl::CMVisibleChanged(TMessage&)
{
    TAliveGuard Guard(*this);
    if (!GetVisible() && GetParent())
        RemoveFocus(false);
    if (Guard.IsAlive())
        UpdateControlState();
}

void TWinControl::CMTextChanged(TMessage& Message)
{
    if (FHandle)
        FWindow->SetText(GetText());
    TControl::CMTextChanged(Message);
}

void TWinControl::WMSize(TMessage& Message)
{
    TAliveGuard Guard(*this);
    DefaultHandler(Message);
    Realign();
    if (Guard.IsAlive() && !Is(TComponentState::csLoading))
        Resize();
}

void TWinControl::WMMove(TMessage& Message)
{
    DefaultHandler(Message);
}

void TWinControl::WMSetFocus(TMessage& Message)
{
    DefaultHandler(Message);
}

void TWinControl::WMKillFocus(TMessage& Message)
{
    DefaultHandler(Message);
}

} // namespace vcl
