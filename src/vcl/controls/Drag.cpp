#include "vcl/controls/Drag.h"

#include <cstdlib>

#include "vcl/controls/ControlWindow.h"
#include "vcl/controls/MouseTracker.h"
#include "vcl/controls/WinControl.h"
#include "vcl/platform/Platform.h"
#include "vcl/platform/System.h"
#include "vcl/platform/VirtualKeys.h"
#include "vcl/system/Exception.h"

namespace vcl
{

const TClass& TDragObject::StaticClass()
{
    static const TClass Class = {"TDragObject", &TObject::StaticClass(), nullptr, nullptr};
    return Class;
}

TCursor TDragObject::GetDragCursor(bool Accepted, int, int)
{
    return Accepted ? crDrag : crNoDrop;
}

void TDragObject::Finished(TObject*, int, int, bool)
{
}

const TClass& TDragControlObject::StaticClass()
{
    static const TClass Class = {"TDragControlObject", &TDragObject::StaticClass(), nullptr, nullptr};
    return Class;
}

TCursor TDragControlObject::GetDragCursor(bool Accepted, int, int)
{
    return Accepted && GetControl() ? GetControl()->GetDragCursor() : crNoDrop;
}

void TDragControlObject::Finished(TObject* Target, int X, int Y, bool Accepted)
{
    TControl* const Source = GetControl();
    if (!Source)
        return;
    TAliveGuard Guard(*Source);
    if (!Accepted) {
        Source->DragCanceled();
        Target = nullptr;
    }
    if (Guard.IsAlive())
        Source->DoEndDrag(Target, X, Y);
}

TDragSession& DragSession()
{
    static TDragSession Session;
    return Session;
}

void TDragSession::Begin(TControl& Source, bool Immediate, int Threshold)
{
    if (IsActive())
        throw EInvalidOperation("Cannot drag while another drag is under way");
    Forget();
    FSource = &Source;
    FStartPos = Platform().Windows().GetCursorPos();
    FThreshold = Threshold >= 0 ? Threshold : Platform().System().Metric(TSystemMetric::DragThreshold);
    MouseTracker().SetCapture(&Source);
    if (Immediate)
        Start();
}

void TDragSession::Start()
{
    TControl* const Source = FSource.Get();
    FMoving = true;
    TDragObject* Object = nullptr;
    Source->DoStartDrag(Object);
    if (!FSource.Get() || !FMoving)
        return; // freed or ended by the handler
    if (!Object) {
        FOwned = std::make_unique<TDragControlObject>(Source);
        Object = FOwned.get();
    }
    FObject = Object;
    Move(Platform().Windows().GetCursorPos());
}

TObject* TDragSession::EventSource() const
{
    return FOwned ? static_cast<TObject*>(FSource.Get()) : FObject;
}

namespace
{

TControl* ControlAt(TPoint Screen)
{
    IWindow* const Window = Platform().Windows().WindowAt(Screen);
    if (!Window || !Window->GetOwner())
        return nullptr;
    TWinControl& Control = static_cast<TControlWindow*>(Window->GetOwner())->GetControl();
    return ControlUnder(Control, Control.ScreenToClient(Screen));
}

} // namespace

void TDragSession::Move(TPoint Screen)
{
    if (!IsActive())
        return;
    if (!FMoving) {
        const bool Far =
            std::abs(Screen.X - FStartPos.X) >= FThreshold || std::abs(Screen.Y - FStartPos.Y) >= FThreshold;
        if (Far)
            Start();
        return;
    }
    if (!FObject)
        return; // OnStartDrag is still running
    FObject->FDragPos = Screen;
    TControl* const Target = ControlAt(Screen);
    if (Target != FTarget.Get())
        EnterTarget(Target);
    if (IsActive() && FTarget.Get())
        FAccepted = AskTarget(TDragState::dsDragMove);
    if (!IsActive())
        return;
    const TControl* const Over = FTarget.Get();
    const TPoint Point = Over ? Over->ScreenToClient(Screen) : Screen;
    MouseTracker().SetDragCursor(FObject->GetDragCursor(Over && FAccepted, Point.X, Point.Y));
}

void TDragSession::EnterTarget(TControl* Target)
{
    const TWeak<TControl> Next = Target;
    if (FTarget.Get())
        AskTarget(TDragState::dsDragLeave);
    FTarget = Next.Get();
    FAccepted = false;
    if (FObject)
        FObject->FDragTarget = FTarget.Get();
    if (IsActive() && FTarget.Get())
        FAccepted = AskTarget(TDragState::dsDragEnter);
}

bool TDragSession::AskTarget(TDragState State)
{
    TControl* const Target = FTarget.Get();
    const TPoint Point = Target->ScreenToClient(FObject->FDragPos);
    bool Accept = false;
    Target->DragOver(EventSource(), Point.X, Point.Y, State, Accept);
    return Accept;
}

void TDragSession::End(bool Drop)
{
    if (!IsActive() || FEnding)
        return;
    FEnding = true;
    if (!FMoving || !FObject) {
        Forget();
        return;
    }
    const TWeak<TControl> Target = FTarget;
    const bool Accepted = Drop && FAccepted && Target.Get();
    TPoint Point = FObject->FDragPos;
    if (Target.Get()) {
        Point = Target.Get()->ScreenToClient(Point);
        if (!Accepted)
            EnterTarget(nullptr);
    }
    // The object may be the handler's: OnEndDrag is where it frees it.
    TObject* const Source = EventSource();
    const std::unique_ptr<TDragObject> Owned = std::move(FOwned);
    TDragObject* const Object = FObject;
    Forget();
    if (Accepted && Target.Get())
        Target.Get()->DragDrop(Source, Point.X, Point.Y);
    Object->Finished(Target.Get(), Point.X, Point.Y, Accepted);
}

void TDragSession::Forget()
{
    TControl* const Source = FSource.Get();
    FSource = nullptr;
    FTarget = nullptr;
    FOwned.reset();
    FObject = nullptr;
    FMoving = false;
    FAccepted = false;
    FEnding = false;
    // While the source still has the capture, so that its window gets its own cursor back.
    MouseTracker().SetDragCursor(crDefault);
    if (Source && MouseTracker().GetCapture() == Source)
        MouseTracker().SetCapture(nullptr);
}

bool TDragSession::Handle(TWinControl& Window, TMessage& Message)
{
    if (!IsActive())
        return false;
    switch (Message.Msg) {
    case WM_MOUSEMOVE:
        Move(Window.ClientToScreen(PointOfParam(Message.LParam)));
        return IsDragging();
    case WM_LBUTTONUP:
    case WM_RBUTTONUP:
    case WM_MBUTTONUP: {
        // A press that never became a drag stays a click of the control.
        const bool Mine = FMoving;
        if (Mine)
            Move(Window.ClientToScreen(PointOfParam(Message.LParam)));
        End(true);
        return Mine;
    }
    case WM_KEYDOWN:
        if (Message.WParam != VK_ESCAPE)
            return false;
        Message.Result = 1; // no character follows
        End(false);
        return true;
    case WM_CAPTURECHANGED:
        End(false);
        return false;
    default:
        return false;
    }
}

} // namespace vcl
