#pragma once

#include <functional>
#include <memory>

#include "vcl/controls/Program.h"
#include "vcl/forms/CustomForm.h"
#include "vcl/platform/WindowSystem.h"
#include "vcl/system/Exception.h"

namespace vcl
{

class THintController;

using TExceptionEvent = TEvent<void(TObject* Sender, const std::exception& Error)>;
using TIdleEvent = TEvent<void(TObject* Sender, bool& Done)>;

/// The program: its event loop, its hints, and where exceptions end that no handler caught.
class TApplication : public TComponent, public IProgram, private ISystemListener
{
    VCL_CLASS
public:
    /// The one instance is Application().
    TApplication();
    ~TApplication() override;

    const AnsiString& GetTitle() const { return FTitle; }
    void SetTitle(const AnsiString& Value) { FTitle = Value; }
    /// Milliseconds the pointer rests before a hint shows (500), before it hides again (2500), and before the
    /// next one right after another (50).
    int GetHintPause() const { return FHintPause; }
    void SetHintPause(int Value) { FHintPause = Value; }
    int GetHintHidePause() const { return FHintHidePause; }
    void SetHintHidePause(int Value) { FHintHidePause = Value; }
    int GetHintShortPause() const { return FHintShortPause; }
    void SetHintShortPause(int Value) { FHintShortPause = Value; }
    TColor GetHintColor() const { return FHintColor; }
    void SetHintColor(TColor Value) { FHintColor = Value; }
    /// The long hint (after "|") of what the pointer is over.
    const AnsiString& GetHint() const { return FHint; }
    void SetHint(const AnsiString& Value);
    bool GetShowHint() const { return FShowHint; }
    void SetShowHint(bool Value) { FShowHint = Value; }
    bool GetActive() const { return FActive; }
    bool GetTerminated() const { return FTerminated; }
    TCustomForm* GetMainForm() const { return FMainForm; }
    /// The first form made with CreateForm is the main form; Run ends when it closes.
    void SetMainForm(TCustomForm* Value) { FMainForm = Value; }

    /// Handles what has arrived and returns.
    void ProcessMessages();
    /// Waits for the next thing to happen and handles it.
    void HandleMessage();
    /// Shows the main form and handles messages until it closes or Terminate is called.
    void Run();
    void Terminate();
    /// Takes the hint away that shows, and forgets the one that was to come.
    void CancelHint();
    /// Call from within a catch block: OnException, or a message for the user. EAbort is silent.
    void HandleException(TObject* Sender) override;
    void ShowException(const std::exception& Error);

    /// Listens to the current platform's windows; forms see to it.
    void Attach();
    /// Leaves the platform's windows before another platform is installed.
    void Detach();
    /// Called by the form.
    void FormDestroyed(TCustomForm* Form);

    // IProgram
    void HintMouseMessage(TControl* Control, const TMessage& Message) override;
    void ControlDestroyed(TControl* Control) override;
    TCursor GetScreenCursor() const override;

    TNotifyEvent OnActivate;
    TNotifyEvent OnDeactivate;
    TExceptionEvent OnException;
    TNotifyEvent OnHint;
    TIdleEvent OnIdle;
    TNotifyEvent OnSettingChange;

private:
    void SystemChanged(TSystemChange Change) noexcept override;
    void ProgramActivated(bool Active) noexcept override;
    bool Idle() noexcept override;
    void PlatformEnding() noexcept override;

    std::unique_ptr<THintController> FHints;
    IWindowSystem* FAttached = nullptr;
    TCustomForm* FMainForm = nullptr;
    AnsiString FTitle;
    AnsiString FHint;
    int FHintPause = 500;
    int FHintHidePause = 2500;
    int FHintShortPause = 50;
    TColor FHintColor = clInfoBk;
    bool FShowHint = true;
    bool FActive = true;
    bool FTerminated = false;
};

TApplication& Application();

} // namespace vcl
