#pragma once

#include <QElapsedTimer>
#include <QHash>
#include <QObject>

#include <atomic>
#include <map>
#include <memory>
#include <mutex>
#include <vector>

#include "vcl/platform/WindowSystem.h"

class QEventLoop;
class QTimer;
class QWidget;

namespace vcl::qt
{

class TSystem;
class TWindow;

/// Windows as widgets, and the application's event loop.
class TWindowSystem final : public IWindowSystem
{
public:
    explicit TWindowSystem(TSystem& System);
    ~TWindowSystem() override;

    bool HasWindows() const override;
    TWindowPtr CreateWindow(IWindowOwner& Owner, const TWindowStyle& Style, IWindow* Parent,
                            const TRect& Bounds, void* ForeignParent) override;
    TTimerHandle StartTimer(unsigned Interval, std::function<void()> Tick) override;
    void StopTimer(TTimerHandle Timer) override;
    std::uint64_t Now() override;
    void Post(std::function<void()> Call) override;
    void ProcessMessages() override;
    void RunUntil(const std::function<bool()>& Done) override;
    void WakeUp() override;
    TPoint GetCursorPos() override;
    unsigned GetKeyFlags() override;
    IWindow* WindowAt(TPoint Screen) override;
    TRect GetWorkArea(TPoint Screen) override;
    unsigned PopupMenu(const TMenuSpec& Menu, TPoint Screen, IWindow* Window) override;
    IClipboard& Clipboard() override { return *FClipboard; }
    IDialogs& Dialogs() override { return *FDialogs; }
    void Beep() override;
    void SetListener(ISystemListener* Listener) override { FListener = Listener; }

    // For windows and widgets
    void Register(TWindow& Window, QWidget* Widget);
    void Unregister(TWindow& Window);
    const std::vector<TWindow*>& Windows() const { return FWindows; }
    /// The window a widget belongs to: its own or the nearest ancestor's; null when there is none.
    TWindow* WindowOf(const QWidget* Widget) const;
    TWindow* Captured() const { return FCaptured; }
    void SetCapture(TWindow& Window, bool Capture);
    /// The capture ends without the owner having asked for it.
    void LoseCapture();
    /// Key flags while an event is handled. The last button up ends the capture.
    void BeginInput(unsigned Flags);
    void EndInput();
    void PaletteChanged();
    void FontChanged();
    void MetricsChanged();
    /// Makes the connections to a new application object.
    void Attach();

private:
    class TLoop;
    class TApplicationFilter;

    void Detach();
    void CheckLoops();
    void FocusMoved(QWidget* From, QWidget* To);
    void Notify(TSystemChange Change);

    TSystem& FSystem;
    std::unique_ptr<IClipboard> FClipboard;
    std::unique_ptr<IDialogs> FDialogs;
    ISystemListener* FListener = nullptr;
    std::vector<TWindow*> FWindows;
    QHash<const QWidget*, TWindow*> FByWidget;
    TWindow* FCaptured = nullptr;
    std::map<TTimerHandle, std::shared_ptr<QTimer>> FTimers;
    TTimerHandle FLastTimer = 0;
    QElapsedTimer FClock;
    std::mutex FContextMutex;
    /// Lives in the thread of the user interface; posted calls go through it.
    std::unique_ptr<QObject> FContext;
    std::vector<TLoop*> FLoops;
    unsigned FInputFlags = 0;
    int FInputDepth = 0;
};

/// The window system of this process; UseQt() has been called.
TWindowSystem& WindowSystem();

} // namespace vcl::qt
