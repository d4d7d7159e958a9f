#include "vcl/controls/MouseTracker.h"

#include "vcl/controls/Program.h"
#include "vcl/controls/WinControl.h"

namespace vcl
{

TMouseTracker& MouseTracker()
{
    static TMouseTracker Tracker;
    return Tracker;
}

TWinControl* WindowControlOf(TControl* Control)
{
    if (!Control)
        return nullptr;
    TWinControl* const Own = As<TWinControl>(Control);
    return Own ? Own : Control->GetParent();
}

TControl* ControlUnder(TWinControl& Window, TPoint Client)
{
    TControl* const Child = Window.ControlAtPos(Client, false);
    return Child ? Child : &Window;
}

void TMouseTracker::SetCapture(TControl* Control)
{
    TControl* const Old = FCapture.Get();
    if (Old == Control)
        return;
    FCapture = Control;
    TWinControl* const OldWindow = WindowControlOf(Old);
    TWinControl* const NewWindow = WindowControlOf(Control);
    if (OldWindow && OldWindow != NewWindow && OldWindow->GetWindow())
        OldWindow->GetWindow()->SetCapture(false);
    if (NewWindow && OldWindow != NewWindow)
        NewWindow->GetHandle()->SetCapture(true);
    if (Old)
        Old->Perform(WM_CAPTURECHANGED);
}

void TMouseTracker::CaptureLost(TWinControl& Control)
{
    TControl* const Captured = FCapture.Get();
    if (!Captured || WindowControlOf(Captured) != &Control)
        return;
    FCapture = nullptr;
    Captured->Perform(WM_CAPTURECHANGED);
}

void TMouseTracker::MouseOver(TControl* Control)
{
    const TWeak<TControl> Old = FMouseControl;
    if (Old.Get() == Control)
        return;
    const TWeak<TControl> New = Control;
    FMouseControl = Control;
    if (Old.Get())
        Old.Get()->Perform(CM_MOUSELEAVE);
    // A handler of the first message may have freed the second control, or moved on.
    if (New.Get() && FMouseControl.Get() == New.Get())
        New.Get()->Perform(CM_MOUSEENTER);
    UpdateCursor();
}

void TMouseTracker::WindowLeft(TWinControl& Control)
{
    if (WindowControlOf(FMouseControl.Get()) == &Control)
        MouseOver(nullptr);
}

void TMouseTracker::WindowGone(TWinControl& Control)
{
    if (WindowControlOf(FCapture.Get()) == &Control)
        SetCapture(nullptr);
    if (WindowControlOf(FMouseControl.Get()) == &Control)
        FMouseControl = nullptr;
}

void TMouseTracker::ControlDestroyed(const TControl* Control)
{
    if (FCapture.Get() == Control) {
        if (TWinControl* const Window = WindowControlOf(FCapture.Get()); Window && Window->GetWindow())
            Window->GetWindow()->SetCapture(false);
        FCapture = nullptr;
    }
    if (FMouseControl.Get() == Control)
        FMouseControl = nullptr;
}

void TMouseTracker::SetDragCursor(TCursor Value)
{
    FDragCursor = Value;
    UpdateCursor();
}

void TMouseTracker::UpdateCursor()
{
    TControl* const Over = FCapture.Get() ? FCapture.Get() : FMouseControl.Get();
    TWinControl* const Window = WindowControlOf(Over);
    if (!Window || !Window->HandleAllocated())
        return;
    TCursor Cursor = Program().GetScreenCursor();
    if (Cursor == crDefault)
        Cursor = FDragCursor;
    for (const TControl* Control = Over; Control && Cursor == crDefault; Control = Control->GetParent())
        Cursor = Control->GetCursor();
    Window->GetWindow()->SetCursor(Cursor);
}

} // namespace vcl
