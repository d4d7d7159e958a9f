#pragma once

#include <cstdint>
#include <functional>

#include "vcl/platform/Dialogs.h"
#include "vcl/platform/Menu.h"
#include "vcl/platform/Window.h"
#include "vcl/system/AnsiString.h"
#include "vcl/system/Types.h"

namespace vcl
{

enum class TSystemChange {
    Colors,  // palette or theme
    Fonts,   // the default font or its size
    Metrics, // scroll-bar sizes, wheel lines, double-click time, screens
};

/// What the platform tells the whole program rather than one window. Nothing here throws.
class ISystemListener
{
public:
    virtual void SystemChanged(TSystemChange Change) noexcept = 0;
    /// The program came to the front (true) or left it.
    virtual void ProgramActivated(bool Active) noexcept = 0;
    /// The event loop has nothing left to do; false: call again without waiting for an event.
    virtual bool Idle() noexcept = 0;
    /// The platform ends before the program does (its application object is gone). Every window has had its
    /// WindowDestroyed.
    virtual void PlatformEnding() noexcept = 0;

protected:
    ~ISystemListener() = default;
};

class IClipboard
{
public:
    virtual ~IClipboard() = default;
    virtual bool HasText() = 0;
    virtual AnsiString GetText() = 0;
    virtual void SetText(const AnsiString& Text) = 0;
};

using TTimerHandle = std::uint64_t;

/// Windows, input, time and the event loop. Everything but Post belongs to the thread of the user interface.
class IWindowSystem
{
public:
    virtual ~IWindowSystem() = default;

    /// False where there are no windows at all: CreateWindow then raises EInvalidOperation.
    virtual bool HasWindows() const { return true; }

    /// Makes a hidden window. Parent is null for top-level windows. ForeignParent (QWidget*) puts it into
    /// a window of the surrounding program instead.
    virtual TWindowPtr CreateWindow(IWindowOwner& Owner, const TWindowStyle& Style, IWindow* Parent,
                                    const TRect& Bounds, void* ForeignParent = nullptr) = 0;

    /// Calls Tick every Interval milliseconds (at least 1) from the event loop, never more than once
    /// behind. Ends with StopTimer, which may be called from within Tick.
    virtual TTimerHandle StartTimer(unsigned Interval, std::function<void()> Tick) = 0;
    /// Unknown handles and 0 are ignored.
    virtual void StopTimer(TTimerHandle Timer) = 0;
    /// Milliseconds of a clock that only goes forward.
    virtual std::uint64_t Now() = 0;

    /// Runs Call from the event loop, in the order posted; from any thread.
    virtual void Post(std::function<void()> Call) = 0;
    /// Handles what has arrived and returns; posted calls and due timers included.
    virtual void ProcessMessages() = 0;
    /// Runs the event loop until Done, asked after each event, says true or the platform ends.
    virtual void RunUntil(const std::function<bool()>& Done) = 0;
    /// Makes RunUntil ask again.
    virtual void WakeUp() = 0;

    virtual TPoint GetCursorPos() = 0;
    /// MK_... flags: modifier keys and buttons as of the event that is being handled.
    virtual unsigned GetKeyFlags() = 0;
    /// The window of ours at a screen point, or null.
    virtual IWindow* WindowAt(TPoint Screen) = 0;
    /// The screen (without task bars) that holds or is nearest to the point.
    virtual TRect GetWorkArea(TPoint Screen) = 0;

    /// Shows Menu at a screen point and waits; the command chosen, or 0. Window gets WM_INITMENUPOPUP.
    virtual unsigned PopupMenu(const TMenuSpec& Menu, TPoint Screen, IWindow* Window) = 0;

    virtual IClipboard& Clipboard() = 0;
    virtual IDialogs& Dialogs() = 0;
    virtual void Beep() {}

    /// Null takes the listener away.
    virtual void SetListener(ISystemListener* Listener) = 0;
};

} // namespace vcl
