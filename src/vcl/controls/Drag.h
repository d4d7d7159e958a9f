#pragma once

#include <memory>

#include "vcl/controls/ControlTypes.h"
#include "vcl/platform/Messages.h"
#include "vcl/system/Liveness.h"
#include "vcl/system/Object.h"

namespace vcl
{

/// What is dragged. A handler of OnStartDrag may make one of a class of its own; it then frees it after
/// OnEndDrag, and gets it as Source in OnDragOver and OnDragDrop. Otherwise Source is the control.
class TDragObject : public TObject
{
    VCL_CLASS
public:
    /// The cursor over a target; crNoDrop where it is not accepted.
    virtual TCursor GetDragCursor(bool Accepted, int X, int Y);
    /// The drag has ended over Target (null: cancelled). X and Y are the target's client coordinates.
    virtual void Finished(TObject* Target, int X, int Y, bool Accepted);

    /// Screen point of the pointer, and the control under it.
    TPoint GetDragPos() const { return FDragPos; }
    TObject* GetDragTarget() const { return FDragTarget; }

private:
    friend class TDragSession;
    TPoint FDragPos;
    TObject* FDragTarget = nullptr;
};

/// A drag that a control is the source of.
class TDragControlObject : public TDragObject
{
    VCL_CLASS
public:
    explicit TDragControlObject(TControl* Control) : FControl(Control) {}

    /// Null when the control died meanwhile.
    TControl* GetControl() const { return FControl.Get(); }

    TCursor GetDragCursor(bool Accepted, int X, int Y) override;
    void Finished(TObject* Target, int X, int Y, bool Accepted) override;

private:
    TWeak<TControl> FControl;
};

/// The one drag that may be under way.
class TDragSession
{
public:
    bool IsActive() const { return FSource.Get() != nullptr; }
    TControl* GetSource() const { return FSource.Get(); }
    /// True once the pointer has moved far enough.
    bool IsDragging() const { return IsActive() && FMoving; }

    void Begin(TControl& Source, bool Immediate, int Threshold);
    void Move(TPoint Screen);
    /// Drops on what accepts, or cancels.
    void End(bool Drop);
    /// A message for any window while a drag is under way; true: it was the drag's.
    bool Handle(TWinControl& Window, TMessage& Message);

private:
    void Start();
    void EnterTarget(TControl* Target);
    bool AskTarget(TDragState State);
    TObject* EventSource() const;
    void Forget();

    TWeak<TControl> FSource;
    TWeak<TControl> FTarget;
    std::unique_ptr<TDragObject> FOwned;
    TDragObject* FObject = nullptr;
    TPoint FStartPos;
    int FThreshold = 0;
    bool FMoving = false;
    bool FAccepted = false;
    bool FEnding = false;
};

TDragSession& DragSession();

} // namespace vcl
