#pragma once

#include "vcl/platform/Messages.h"
#include "vcl/system/Liveness.h"
#include "vcl/system/Types.h"

namespace vcl
{

class TControl;
class TWinControl;

/// Which control the mouse belongs to: the captured one, the one under the pointer, and the cursor that
/// shows.
class TMouseTracker
{
public:
    TControl* GetCapture() const { return FCapture.Get(); }
    /// The control that had the capture gets WM_CAPTURECHANGED.
    void SetCapture(TControl* Control);
    /// The platform ended a capture.
    void CaptureLost(TWinControl& Control);

    /// The control under the pointer, or null.
    TControl* GetMouseControl() const { return FMouseControl.Get(); }
    /// The pointer is over Control now: CM_MOUSELEAVE and CM_MOUSEENTER where that is new.
    void MouseOver(TControl* Control);
    /// The pointer left the window of Control.
    void WindowLeft(TWinControl& Control);
    /// The handle of Control is about to go.
    void WindowGone(TWinControl& Control);
    void ControlDestroyed(const TControl* Control);

    /// Overrides controls' cursors while not crDefault: what a drag shows.
    void SetDragCursor(TCursor Value);
    /// Shows the cursor of the control under the pointer.
    void UpdateCursor();

private:
    TWeak<TControl> FCapture;
    TWeak<TControl> FMouseControl;
    TCursor FDragCursor = crDefault;
};

TMouseTracker& MouseTracker();

/// The deepest control at a client point of Window: itself or a graphic child.
TControl* ControlUnder(TWinControl& Window, TPoint Client);
/// The control itself when it has a window, else its parent.
TWinControl* WindowControlOf(TControl* Control);

} // namespace vcl
