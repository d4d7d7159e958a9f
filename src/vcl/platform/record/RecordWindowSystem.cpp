#include "vcl/platform/record/RecordWindowSystem.h"

#include <algorithm>
#include <utility>

namespace vcl::record
{

namespace
{

class TClipboard final : public IClipboard
{
public:
    bool HasText() override { return !FText.empty(); }
    AnsiString GetText() override { return FText; }
    void SetText(const AnsiString& Text) override { FText = Text; }

private:
    AnsiString FText;
};

class TDialogs final : public IDialogs
{
public:
    explicit TDialogs(TWindowSystem& System) : FSystem(System) {}

    bool ChooseFile(TFileDialogSpec& Spec, std::vector<AnsiString>& Files, IWindow*) override
    {
        FSystem.Log((Spec.Save ? "save dialog " : "open dialog ") + Spec.Title);
        Files = FSystem.ChosenFiles;
        return !Files.empty();
    }
    TMessageButton ShowMessage(TMessageKind, const AnsiString&, const AnsiString& Text,
                               const std::vector<TMessageButton>&, IWindow*) override
    {
        FSystem.Log("message " + Text);
        return FSystem.ChosenButton;
    }
    bool ChooseColor(TColor&, IWindow*) override { return false; }
    bool ChooseFont(TFontSpec&, TColor&, IWindow*) override { return false; }

private:
    TWindowSystem& FSystem;
};

} // namespace

std::string RectText(const TRect& Rect)
{
    return std::to_string(Rect.Left) + "," + std::to_string(Rect.Top) + "," + std::to_string(Rect.Width()) +
           "," + std::to_string(Rect.Height());
}

TWindowSystem::TWindowSystem()
    : FClipboard(std::make_unique<TClipboard>()), FDialogs(std::make_unique<TDialogs>(*this))
{
}

TWindowSystem::~TWindowSystem()
{
    // The program is still there: its windows go as if the toolkit had ended.
    while (!FWindows.empty())
        FWindows.front()->DestroyByPlatform();
    if (FListener)
        FListener->PlatformEnding();
    FBuried.clear();
}

TWindowPtr TWindowSystem::CreateWindow(IWindowOwner& Owner, const TWindowStyle& Style, IWindow* Parent,
                                       const TRect& Bounds, void*)
{
    TWindow* const Window =
        new TWindow(*this, ++FLastId, Owner, Style, static_cast<TWindow*>(Parent), Bounds);
    FWindows.push_back(Window);
    return TWindowPtr(Window);
}

void TWindowSystem::Forget(TWindow& Window)
{
    std::erase(FWindows, &Window);
    for (TWindow** Reference : {&FFocused, &FCaptured, &FActive, &FUnderMouse})
        if (*Reference == &Window)
            *Reference = nullptr;
}

void TWindowSystem::Bury(TWindow* Window)
{
    FBuried.emplace_back(Window, [](TWindow* Dead) { delete Dead; });
    if (FDispatchDepth == 0)
        FBuried.clear();
}

TTimerHandle TWindowSystem::StartTimer(unsigned Interval, std::function<void()> Tick)
{
    const unsigned Milliseconds = std::max(Interval, 1u);
    FTimers[++FLastTimer] = {Milliseconds, FNow + Milliseconds, std::move(Tick)};
    return FLastTimer;
}

void TWindowSystem::StopTimer(TTimerHandle Timer)
{
    FTimers.erase(Timer);
}

void TWindowSystem::Post(std::function<void()> Call)
{
    const std::lock_guard Lock(FPostLock);
    FPosted.push_back(std::move(Call));
}

bool TWindowSystem::RunPosted()
{
    std::function<void()> Call;
    {
        const std::lock_guard Lock(FPostLock);
        if (FPosted.empty())
            return false;
        Call = std::move(FPosted.front());
        FPosted.pop_front();
    }
    const TDispatch Dispatch(*this);
    Call();
    return true;
}

bool TWindowSystem::RunTimer()
{
    auto Next = FTimers.end();
    for (auto Timer = FTimers.begin(); Timer != FTimers.end(); ++Timer)
        if (Timer->second.Due <= FNow && (Next == FTimers.end() || Timer->second.Due < Next->second.Due))
            Next = Timer;
    if (Next == FTimers.end())
        return false;
    // What was missed is lost: one tick, and the next a whole interval later.
    Next->second.Due = FNow + Next->second.Interval;
    const std::function<void()> Tick = Next->second.Tick;
    const TDispatch Dispatch(*this);
    Tick();
    return true;
}

bool TWindowSystem::RunUpdates()
{
    const std::vector<TWindow*> Windows = FWindows;
    const TDispatch Dispatch(*this);
    bool HasPainted = false;
    for (TWindow* Window : Windows)
        if (std::find(FWindows.begin(), FWindows.end(), Window) != FWindows.end())
            HasPainted |= Window->UpdateNow();
    return HasPainted;
}

void TWindowSystem::ProcessMessages()
{
    // Input and posted messages first, then timers, painting last.
    while (RunPosted() || RunTimer() || RunUpdates()) {
    }
}

void TWindowSystem::RunUntil(const std::function<bool()>& Done)
{
    for (;;) {
        while (!Done() && (RunPosted() || RunTimer() || RunUpdates())) {
        }
        if (Done())
            return;
        if (!OnWait.empty()) {
            const std::function<void()> Step = std::move(OnWait.front());
            OnWait.pop_front();
            Step();
            continue;
        }
        if (FListener && !FListener->Idle())
            continue;
        if (FTimers.empty()) {
            Log("loop ended: nothing to wait for");
            return;
        }
        std::uint64_t Due = UINT64_MAX;
        for (const auto& [Handle, Timer] : FTimers)
            Due = std::min(Due, Timer.Due);
        FNow = std::max(FNow, Due);
    }
}

void TWindowSystem::Advance(unsigned Milliseconds)
{
    const std::uint64_t End = FNow + Milliseconds;
    ProcessMessages();
    for (;;) {
        std::uint64_t Due = UINT64_MAX;
        for (const auto& [Handle, Timer] : FTimers)
            Due = std::min(Due, Timer.Due);
        if (Due > End)
            break;
        FNow = std::max(FNow, Due);
        ProcessMessages();
    }
    FNow = End;
}

IWindow* TWindowSystem::WindowAt(TPoint Screen)
{
    TWindow* Found = nullptr;
    for (TWindow* Window : FWindows)
        if (Window->IsTopLevel() && Window->IsVisible() && Window->GetBounds().Contains(Screen))
            Found = Window;
    while (Found) {
        const TPoint Point = Found->ScreenToClient(Screen);
        TWindow* Deeper = nullptr;
        for (TWindow* Child : Found->GetChildWindows())
            if (!Child->IsTopLevel() && Child->IsVisible() && Child->GetBounds().Contains(Point))
                Deeper = Child;
        if (!Deeper)
            break;
        Found = Deeper;
    }
    return Found;
}

unsigned TWindowSystem::PopupMenu(const TMenuSpec& Menu, TPoint Screen, IWindow*)
{
    Log("popup " + std::to_string(Screen.X) + "," + std::to_string(Screen.Y));
    LastPopup = Menu;
    return ChosenCommand;
}

void TWindowSystem::FocusWindow(TWindow* Window)
{
    if (Window == FFocused)
        return;
    const TDispatch Dispatch(*this);
    TWindow* const Old = FFocused;
    FFocused = Window;
    if (Old)
        Old->Send(WM_KILLFOCUS);
    if (!Window || FFocused != Window)
        return;
    TWindow* Top = Window;
    while (!Top->IsTopLevel())
        Top = Top->GetParentWindow();
    Window->Send(WM_SETFOCUS);
    if (Top->GetStyle().Kind == TWindowKind::Form)
        ActivateWindow(Top);
}

void TWindowSystem::ActivateWindow(TWindow* Window)
{
    if (Window == FActive)
        return;
    const TDispatch Dispatch(*this);
    TWindow* const Old = FActive;
    FActive = Window;
    if (Old)
        Old->Send(WM_ACTIVATE, WA_INACTIVE);
    if (Window && FActive == Window)
        Window->Send(WM_ACTIVATE, WA_ACTIVE);
}

void TWindowSystem::CaptureWindow(TWindow* Window)
{
    TWindow* const Old = FCaptured;
    FCaptured = Window;
    if (Old && Window && Old != Window)
        Old->Send(WM_CAPTURECHANGED);
}

void TWindowSystem::TellSystemChange(TSystemChange Change)
{
    if (FListener)
        FListener->SystemChanged(Change);
}

void TWindowSystem::ActivateProgram(bool Active)
{
    if (!Active) {
        FocusWindow(nullptr);
        ActivateWindow(nullptr);
    }
    if (FListener)
        FListener->ProgramActivated(Active);
}

std::vector<std::string> TWindowSystem::TakeLog()
{
    return std::exchange(FLog, {});
}

} // namespace vcl::record
