#pragma once

#include <deque>
#include <map>
#include <memory>
#include <mutex>
#include <string>
#include <vector>

#include "vcl/platform/WindowSystem.h"
#include "vcl/platform/record/RecordWindow.h"

namespace vcl::record
{

/// A window system without a screen: a clock to turn by hand, a queue to run by hand, input made by tests,
/// and a log of what happened as lines of text.
///
///     record::TPlatform Record;
///     SetPlatform(&Record);
///     ...
///     Record.Windows().MouseClick(*Window, {10, 10});
///     Record.Windows().Advance(500);
class TWindowSystem final : public IWindowSystem
{
public:
    TWindowSystem();
    ~TWindowSystem() override;

    TWindowPtr CreateWindow(IWindowOwner& Owner, const TWindowStyle& Style, IWindow* Parent,
                            const TRect& Bounds, void* ForeignParent) override;
    TTimerHandle StartTimer(unsigned Interval, std::function<void()> Tick) override;
    void StopTimer(TTimerHandle Timer) override;
    std::uint64_t Now() override { return FNow; }
    void Post(std::function<void()> Call) override;
    /// Posted calls, due timers and requested painting, until none is left.
    void ProcessMessages() override;
    /// When nothing is left to do and Done still says no, the next step of OnWait is taken, then the clock
    /// goes on to the next timer; without either the loop ends, as if the platform did.
    void RunUntil(const std::function<bool()>& Done) override;
    void WakeUp() override {}
    TPoint GetCursorPos() override { return FCursorPos; }
    unsigned GetKeyFlags() override { return FKeyFlags; }
    IWindow* WindowAt(TPoint Screen) override;
    TRect GetWorkArea(TPoint) override { return {0, 0, 1024, 740}; }
    /// Answers ChosenCommand.
    unsigned PopupMenu(const TMenuSpec& Menu, TPoint Screen, IWindow* Window) override;
    IClipboard& Clipboard() override { return *FClipboard; }
    IDialogs& Dialogs() override { return FOtherDialogs ? *FOtherDialogs : *FDialogs; }
    void Beep() override { Log("beep"); }
    void SetListener(ISystemListener* Listener) override { FListener = Listener; }

    // Time
    /// Lets Milliseconds pass with the event loop running: every tick in between comes in its turn.
    void Advance(unsigned Milliseconds);
    /// Lets them pass while the program is busy: afterwards each due timer has one tick pending.
    void Sleep(unsigned Milliseconds) { FNow += Milliseconds; }

    // Input. Points are in the window's client area; Keys are MK_... flags held besides.
    void MouseMove(TWindow& Window, TPoint Point, unsigned Keys = 0);
    void MouseDown(TWindow& Window, TPoint Point, unsigned Button = MK_LBUTTON, unsigned Keys = 0);
    void MouseUp(TWindow& Window, TPoint Point, unsigned Button = MK_LBUTTON, unsigned Keys = 0);
    void MouseClick(TWindow& Window, TPoint Point, unsigned Button = MK_LBUTTON, unsigned Keys = 0);
    void MouseDoubleClick(TWindow& Window, TPoint Point, unsigned Keys = 0);
    void MouseLeave();
    void Wheel(TWindow& Window, TPoint Point, int Distance, unsigned Keys = 0);
    /// One key pressed and released in the window with the focus. Modifiers (MK_SHIFT, MK_CONTROL, MK_ALT)
    /// are held.
    void KeyPress(std::uint16_t Key, unsigned Modifiers = 0);
    /// Text as a keyboard or an input method gives it: one code point after the other.
    void Type(const AnsiString& Text);
    /// The user works a scroll bar.
    void Scroll(TWindow& Window, TScrollBarKind Kind, unsigned Request, int Position = 0);

    // State
    const std::vector<TWindow*>& GetWindows() const { return FWindows; }
    TWindow* GetFocused() const { return FFocused; }
    TWindow* GetCaptured() const { return FCaptured; }
    TWindow* GetActive() const { return FActive; }
    std::size_t GetTimerCount() const { return FTimers.size(); }
    void ActivateWindow(TWindow* Window);
    void TellSystemChange(TSystemChange Change);
    /// The user switches to another program, or back.
    void ActivateProgram(bool Active);

    // The log
    void Log(const std::string& Line) { FLog.push_back(Line); }
    const std::vector<std::string>& GetLog() const { return FLog; }
    std::vector<std::string> TakeLog();

    // Answers prepared by tests
    /// Steps a user takes while the program waits in RunUntil.
    std::deque<std::function<void()>> OnWait;
    unsigned ChosenCommand = 0;
    TMenuSpec LastPopup;
    std::vector<AnsiString> ChosenFiles;
    TMessageButton ChosenButton = TMessageButton::Ok;

    /// Dialogs of the test's own, in place of those that give the prepared answers; null: those again.
    void UseDialogs(IDialogs* Dialogs) { FOtherDialogs = Dialogs; }

    // For windows
    void FocusWindow(TWindow* Window);
    void CaptureWindow(TWindow* Window);
    void Forget(TWindow& Window);
    /// Destroys the window when no call into it can be under way.
    void Bury(TWindow* Window);
    /// While one lives, released windows are only set aside.
    class TDispatch
    {
    public:
        explicit TDispatch(TWindowSystem& System) : FSystem(System) { ++FSystem.FDispatchDepth; }
        ~TDispatch()
        {
            if (--FSystem.FDispatchDepth == 0)
                FSystem.FBuried.clear();
        }
        TDispatch(const TDispatch&) = delete;
        TDispatch& operator=(const TDispatch&) = delete;

    private:
        TWindowSystem& FSystem;
    };

private:
    struct TTimer {
        unsigned Interval;
        std::uint64_t Due;
        std::function<void()> Tick;
    };

    bool RunPosted();
    bool RunTimer();
    bool RunUpdates();
    bool AcceptsInput(TWindow& Window) const;
    TWindow& Receiver(TWindow& Window, TPoint& Point);
    void MouseMessage(TWindow& Window, unsigned Msg, TPoint Point, unsigned Keys);
    void CharOf(TWindow* Window, std::uint16_t Key);
    bool HasWindow(const TWindow* Window) const;

    std::vector<TWindow*> FWindows;
    std::vector<std::unique_ptr<TWindow, void (*)(TWindow*)>> FBuried;
    std::map<TTimerHandle, TTimer> FTimers;
    std::mutex FPostLock;
    std::deque<std::function<void()>> FPosted;
    std::vector<std::string> FLog;
    std::unique_ptr<IClipboard> FClipboard;
    std::unique_ptr<IDialogs> FDialogs;
    IDialogs* FOtherDialogs = nullptr;
    ISystemListener* FListener = nullptr;
    TWindow* FFocused = nullptr;
    TWindow* FCaptured = nullptr;
    TWindow* FActive = nullptr;
    TWindow* FUnderMouse = nullptr;
    TPoint FCursorPos;
    unsigned FKeyFlags = 0;
    std::uint64_t FNow = 0;
    TTimerHandle FLastTimer = 0;
    int FLastId = 0;
    int FDispatchDepth = 0;
};

/// "12,3,40,20": left, top, width, height.
std::string RectText(const TRect& Rect);

} // namespace vcl::record
