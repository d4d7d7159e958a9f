#include "vcl/forms/Application.h"

#include <cstdio>

#include "vcl/forms/HintController.h"
#include "vcl/forms/Screen.h"
#include "vcl/platform/Platform.h"

namespace vcl
{

const TClass& TApplication::StaticClass()
{
    static const TClass Class = [] {
        TClass Single = DefineClass<TApplication, TComponent>("TApplication");
        Single.Create = nullptr;
        return Single;
    }();
    return Class;
}

TApplication::TApplication() : TComponent(nullptr), FHints(std::make_unique<THintController>(*this))
{
    SetProgram(this);
}

TApplication::~TApplication()
{
    SetProgram(nullptr);
    if (FAttached)
        FAttached->SetListener(nullptr);
}

TApplication& Application()
{
    // Lives until the process ends: what is destroyed last may still hand it an exception.
    static TApplication* const Instance = new TApplication;
    return *Instance;
}

void TApplication::Attach()
{
    IWindowSystem* Current = nullptr;
    try {
        Current = &Platform().Windows();
    } catch (const EInvalidOperation&) {
        // A program that only reads forms runs without windows.
    }
    if (Current == FAttached)
        return;
    FAttached = Current;
    if (FAttached)
        FAttached->SetListener(this);
}

void TApplication::Detach()
{
    CancelHint();
    FHints = std::make_unique<THintController>(*this);
    if (FAttached)
        FAttached->SetListener(nullptr);
    FAttached = nullptr;
    FTerminated = false;
}

void TApplication::ProcessMessages()
{
    Attach();
    Platform().Windows().ProcessMessages();
}

void TApplication::HandleMessage()
{
    Attach();
    bool HasWaited = false;
    Platform().Windows().RunUntil([&] { return FTerminated || std::exchange(HasWaited, true); });
}

void TApplication::Run()
{
    Attach();
    if (FMainForm)
        FMainForm->Show();
    Platform().Windows().RunUntil([this] { return FTerminated; });
}

void TApplication::Terminate()
{
    FTerminated = true;
    if (FAttached)
        FAttached->WakeUp();
}

void TApplication::CancelHint()
{
    FHints->Cancel();
}

void TApplication::SetHint(const AnsiString& Value)
{
    if (Value == FHint)
        return;
    FHint = Value;
    OnHint(this);
}

void TApplication::HandleException(TObject* Sender)
{
    try {
        try {
            throw;
        } catch (const EAbort&) {
            // Silent by its meaning.
        } catch (const std::exception& Error) {
            if (OnException)
                OnException(Sender, Error);
            else
                ShowException(Error);
        }
    } catch (const std::exception& Error) {
        std::fprintf(stderr, "%s\n", Error.what());
    } catch (...) {
        std::fputs("unknown exception\n", stderr);
    }
}

void TApplication::ShowException(const std::exception& Error)
{
    if (!FAttached || !FAttached->HasWindows()) {
        std::fprintf(stderr, "%s\n", Error.what());
        return;
    }
    FAttached->Dialogs().ShowMessage(TMessageKind::Error, FTitle, Error.what(), {TMessageButton::Ok},
                                     nullptr);
}

void TApplication::HintMouseMessage(TControl* Control, const TMessage& Message)
{
    FHints->MouseMessage(Control, Message);
}

void TApplication::ControlDestroyed(TControl* Control)
{
    FHints->ControlDestroyed(Control);
}

void TApplication::FormDestroyed(TCustomForm* Form)
{
    if (FMainForm == Form)
        FMainForm = nullptr;
}

TCursor TApplication::GetScreenCursor() const
{
    return Screen().GetCursor();
}

void TApplication::SystemChanged(TSystemChange Change) noexcept
{
    RunGuarded(this, [&] {
        const unsigned Msg = Change == TSystemChange::Colors  ? CM_SYSCOLORCHANGE
                             : Change == TSystemChange::Fonts ? CM_SYSFONTCHANGED
                                                              : WM_SETTINGCHANGE;
        std::vector<TWeak<TCustomForm>> Forms;
        for (int Index = 0; Index < Screen().GetFormCount(); ++Index)
            Forms.emplace_back(Screen().GetForm(Index));
        for (const TWeak<TCustomForm>& Form : Forms)
            if (Form.Get())
                Form.Get()->Perform(Msg);
        OnSettingChange(this);
    });
}

void TApplication::ProgramActivated(bool Active) noexcept
{
    RunGuarded(this, [&] {
        FActive = Active;
        if (Active)
            OnActivate(this);
        else {
            CancelHint();
            OnDeactivate(this);
        }
    });
}

bool TApplication::Idle() noexcept
{
    bool Done = true;
    RunGuarded(this, [&] { OnIdle(this, Done); });
    return Done;
}

void TApplication::PlatformEnding() noexcept
{
    FTerminated = true;
    FAttached = nullptr;
}

} // namespace vcl
