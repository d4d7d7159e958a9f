#include "vcl/platform/qt/QtWindowSystem.h"

#include <QAbstractEventDispatcher>
#include <QApplication>
#include <QEventLoop>
#include <QScreen>
#include <QTimer>
#include <QWidget>

#include <algorithm>

#include "vcl/platform/qt/QtAccessible.h"
#include "vcl/platform/qt/QtClipboard.h"
#include "vcl/platform/qt/QtConvert.h"
#include "vcl/platform/qt/QtDialogs.h"
#include "vcl/platform/qt/QtInput.h"
#include "vcl/platform/qt/QtMenu.h"
#include "vcl/platform/qt/QtSystem.h"
#include "vcl/platform/qt/QtTextEngine.h"
#include "vcl/platform/qt/QtWindow.h"
#include "vcl/platform/qt/QtWindowKinds.h"
#include "vcl/system/Exception.h"

namespace vcl::qt
{

/// One RunUntil under way.
class TWindowSystem::TLoop
{
public:
    explicit TLoop(const std::function<bool()>& Done) : FDone(Done) {}

    void Run()
    {
        if (!FDone())
            FLoop.exec();
    }
    void Check()
    {
        if (FDone())
            FLoop.quit();
    }
    void Quit() { FLoop.quit(); }

private:
    const std::function<bool()>& FDone;
    QEventLoop FLoop;
};

/// Sees what happens to the application as a whole. Everything passes through it, so it looks at the receiver
/// first.
class TWindowSystem::TApplicationFilter : public QObject
{
public:
    TApplicationFilter(TWindowSystem& Owner, QObject* Parent) : QObject(Parent), FOwner(Owner)
    {
        QCoreApplication::instance()->installEventFilter(this);
    }

    bool eventFilter(QObject* Receiver, QEvent* Event) override
    {
        if (Receiver != QCoreApplication::instance())
            return false;
        if (Event->type() == QEvent::ApplicationPaletteChange)
            FOwner.PaletteChanged();
        else if (Event->type() == QEvent::ApplicationFontChange)
            FOwner.FontChanged();
        return false;
    }

private:
    TWindowSystem& FOwner;
};

TWindowSystem::TWindowSystem(TSystem& System)
    : FSystem(System), FClipboard(std::make_unique<TClipboard>()), FDialogs(std::make_unique<TDialogs>())
{
    FClock.start();
}

TWindowSystem::~TWindowSystem() = default;

void TWindowSystem::Attach()
{
    if (FContext || !HasWindows())
        return;
    auto Context = std::make_unique<QObject>();
    new TApplicationFilter(*this, Context.get());
    QObject::connect(qApp, &QApplication::focusChanged, Context.get(),
                     [this](QWidget* From, QWidget* To) { FocusMoved(From, To); });
    QObject::connect(qApp, &QGuiApplication::applicationStateChanged, Context.get(),
                     [this](Qt::ApplicationState State) {
                         if (FListener)
                             FListener->ProgramActivated(State == Qt::ApplicationActive);
                     });
    QObject::connect(QAbstractEventDispatcher::instance(), &QAbstractEventDispatcher::aboutToBlock,
                     Context.get(), [this] {
                         CheckLoops();
                         if (FListener && !FLoops.empty() && !FListener->Idle())
                             QAbstractEventDispatcher::instance()->wakeUp();
                         // What was done in the idle time may have been what the loop waits for.
                         CheckLoops();
                     });
    qAddPostRoutine([] { WindowSystem().Detach(); });
    InstallAccessibility();
    const std::lock_guard Lock(FContextMutex);
    FContext = std::move(Context);
}

void TWindowSystem::Detach()
{
    while (!FWindows.empty()) {
        TWindow* const Window = FWindows.back();
        if (QWidget* const Widget = Window->Widget())
            delete Widget;
        else
            Unregister(*Window);
    }
    FTimers.clear();
    for (TLoop* Loop : FLoops)
        Loop->Quit();
    // No event loop comes any more for what waits for its deletion.
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    {
        const std::lock_guard Lock(FContextMutex);
        FContext.reset();
    }
    if (FListener)
        FListener->PlatformEnding();
    TTextEngine::ApplicationEnding();
}

bool TWindowSystem::HasWindows() const
{
    return qobject_cast<QApplication*>(QCoreApplication::instance()) != nullptr;
}

TWindowPtr TWindowSystem::CreateWindow(IWindowOwner& Owner, const TWindowStyle& Style, IWindow* Parent,
                                       const TRect& Bounds, void* ForeignParent)
{
    if (!HasWindows())
        throw EInvalidOperation("Windows cannot be opened: there is no application object");
    Attach();
    QWidget* const Outside = static_cast<QWidget*>(ForeignParent);
    QWidget* const Inside = Parent ? TWindow::Of(Parent)->ClientWidget() : Outside;
    const std::shared_ptr<TWindow> Window = MakeWindow(Owner, Style, Inside);
    Window->SetEmbedded(Outside != nullptr && !Parent);
    TWindowPtr Result = TWindow::Adopt(Window);
    Window->SetBounds(Bounds);
    return Result;
}

void TWindowSystem::Register(TWindow& Window, QWidget* Widget)
{
    FWindows.push_back(&Window);
    FByWidget.insert(Widget, &Window);
}

void TWindowSystem::Unregister(TWindow& Window)
{
    if (FCaptured == &Window)
        FCaptured = nullptr;
    std::erase(FWindows, &Window);
    for (auto Entry = FByWidget.begin(); Entry != FByWidget.end(); ++Entry) {
        if (Entry.value() == &Window) {
            FByWidget.erase(Entry);
            return;
        }
    }
}

TWindow* TWindowSystem::WindowOf(const QWidget* Widget) const
{
    for (; Widget; Widget = Widget->parentWidget()) {
        if (TWindow* const Found = FByWidget.value(Widget))
            return Found;
    }
    return nullptr;
}

void TWindowSystem::SetCapture(TWindow& Window, bool Capture)
{
    if (Capture)
        FCaptured = &Window;
    else if (FCaptured == &Window)
        FCaptured = nullptr;
}

void TWindowSystem::LoseCapture()
{
    if (TWindow* const Window = std::exchange(FCaptured, nullptr))
        Window->Send(WM_CAPTURECHANGED);
}

void TWindowSystem::BeginInput(unsigned Flags)
{
    ++FInputDepth;
    FInputFlags = Flags;
}

void TWindowSystem::EndInput()
{
    --FInputDepth;
}

TTimerHandle TWindowSystem::StartTimer(unsigned Interval, std::function<void()> Tick)
{
    if (!FContext)
        return 0;
    // A tick may stop its own timer, which must then outlive the call.
    const std::shared_ptr<QTimer> Timer(new QTimer, [](QTimer* Ended) {
        Ended->stop();
        Ended->deleteLater();
    });
    Timer->setTimerType(Qt::PreciseTimer);
    QObject::connect(Timer.get(), &QTimer::timeout, [Call = std::move(Tick)] { Call(); });
    Timer->start(static_cast<int>(std::clamp(Interval, 1u, 0x7FFFFFFFu)));
    const TTimerHandle Handle = ++FLastTimer;
    FTimers.emplace(Handle, Timer);
    return Handle;
}

void TWindowSystem::StopTimer(TTimerHandle Timer)
{
    FTimers.erase(Timer);
}

std::uint64_t TWindowSystem::Now()
{
    return static_cast<std::uint64_t>(FClock.elapsed());
}

void TWindowSystem::Post(std::function<void()> Call)
{
    const std::lock_guard Lock(FContextMutex);
    if (FContext)
        QMetaObject::invokeMethod(FContext.get(), std::move(Call), Qt::QueuedConnection);
}

void TWindowSystem::ProcessMessages()
{
    if (!HasWindows())
        return;
    QCoreApplication::processEvents();
    // Outside of an event loop nobody else deletes what waits for it.
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
}

void TWindowSystem::RunUntil(const std::function<bool()>& Done)
{
    if (!FContext)
        return;
    TLoop Loop(Done);
    FLoops.push_back(&Loop);
    Loop.Run();
    std::erase(FLoops, &Loop);
    WakeUp();
}

void TWindowSystem::WakeUp()
{
    Post([this] { CheckLoops(); });
}

void TWindowSystem::CheckLoops()
{
    if (!FLoops.empty())
        FLoops.back()->Check();
}

TPoint TWindowSystem::GetCursorPos()
{
    return HasWindows() ? FromQt(QCursor::pos()) : TPoint{};
}

unsigned TWindowSystem::GetKeyFlags()
{
    if (FInputDepth > 0 || !HasWindows())
        return FInputFlags;
    return KeyFlags(QGuiApplication::keyboardModifiers(), QGuiApplication::mouseButtons());
}

IWindow* TWindowSystem::WindowAt(TPoint Screen)
{
    return HasWindows() ? WindowOf(QApplication::widgetAt(ToQt(Screen))) : nullptr;
}

TRect TWindowSystem::GetWorkArea(TPoint Point)
{
    if (!HasWindows())
        return {};
    const QScreen* Found = QGuiApplication::screenAt(ToQt(Point));
    if (!Found)
        Found = QGuiApplication::primaryScreen();
    return Found ? FromQt(Found->availableGeometry()) : TRect{};
}

unsigned TWindowSystem::PopupMenu(const TMenuSpec& Menu, TPoint Screen, IWindow* Window)
{
    if (!HasWindows())
        return 0;
    LoseCapture();
    return RunPopupMenu(Menu, ToQt(Screen), Window ? TWindow::Of(Window) : nullptr);
}

void TWindowSystem::Beep()
{
    if (HasWindows())
        QApplication::beep();
}

void TWindowSystem::PaletteChanged()
{
    FSystem.PaletteChanged();
    Notify(TSystemChange::Colors);
}

void TWindowSystem::FontChanged()
{
    Notify(TSystemChange::Fonts);
}

void TWindowSystem::MetricsChanged()
{
    FSystem.PaletteChanged();
    Notify(TSystemChange::Metrics);
}

void TWindowSystem::Notify(TSystemChange Change)
{
    if (FListener)
        FListener->SystemChanged(Change);
}

void TWindowSystem::FocusMoved(QWidget* From, QWidget* To)
{
    for (TWindow* const Window : std::vector<TWindow*>(FWindows)) {
        // Earlier messages may have ended later windows.
        if (std::find(FWindows.begin(), FWindows.end(), Window) == FWindows.end() || !Window->IsEmbedded())
            continue;
        const QWidget* const Widget = Window->Widget();
        const bool Was = From && Widget && (Widget == From || Widget->isAncestorOf(From));
        const bool Is = To && Widget && (Widget == To || Widget->isAncestorOf(To));
        if (Was != Is)
            Window->Send(WM_ACTIVATE, Is ? WA_ACTIVE : WA_INACTIVE);
    }
}

} // namespace vcl::qt
