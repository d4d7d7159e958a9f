#include "vcl/forms/HintController.h"

#include "vcl/controls/Program.h"
#include "vcl/forms/Application.h"
#include "vcl/forms/Screen.h"
#include "vcl/platform/Platform.h"

namespace vcl
{

namespace
{

constexpr int PointerHeight = 20; // a hint opens below the pointer's shape

} // namespace

AnsiString GetShortHint(const AnsiString& Hint)
{
    return Hint.substr(0, Hint.find('|'));
}

AnsiString GetLongHint(const AnsiString& Hint)
{
    const std::size_t Bar = Hint.find('|');
    return Bar == AnsiString::npos ? Hint : Hint.substr(Bar + 1);
}

THintController::THintController(TApplication& Application) : FApplication(Application)
{
}

THintController::~THintController() = default;

TControl* THintController::HintControlOf(TControl* Control)
{
    while (Control && !Control->GetShowHint())
        Control = Control->GetParent();
    return Control && Control->Is(TComponentState::csDesigning) ? nullptr : Control;
}

AnsiString THintController::HintOf(TControl* Control)
{
    for (; Control; Control = Control->GetParent())
        if (!Control->GetHint().empty())
            return Control->GetHint();
    return {};
}

void THintController::MouseMessage(TControl* Control, const TMessage& Message)
{
    if (Message.Msg != WM_MOUSEMOVE) {
        Cancel();
        return;
    }
    FApplication.SetHint(GetLongHint(HintOf(Control)));
    TControl* const Hinted = FApplication.GetShowHint() ? HintControlOf(Control) : nullptr;
    if (Hinted != FControl.Get())
        return Hovered(Hinted);
    if (!Hinted || !FShowing)
        return;
    // Inside one control, a hint may belong to a part of it.
    const TPoint Point = Hinted->ScreenToClient(Platform().Windows().GetCursorPos());
    if (!FCursorRect.Contains(Point))
        Hovered(Hinted);
}

void THintController::Hovered(TControl* Control)
{
    const bool WasShowing = FShowing;
    Cancel();
    FControl = Control;
    if (Control)
        StartTimer(WasShowing ? FApplication.GetHintShortPause() : FApplication.GetHintPause(),
                   &THintController::ShowHint);
}

void THintController::StartTimer(int Interval, void (THintController::*Action)())
{
    StopTimer();
    FTimer = Platform().Windows().StartTimer(static_cast<unsigned>(std::max(Interval, 1)), [this, Action] {
        StopTimer();
        RunGuarded(&FApplication, [this, Action] { (this->*Action)(); });
    });
}

void THintController::StopTimer()
{
    if (FTimer != 0)
        Platform().Windows().StopTimer(FTimer);
    FTimer = 0;
}

void THintController::ShowHint()
{
    TControl* const Control = FControl.Get();
    if (!Control || !FApplication.GetActive())
        return;
    const TPoint Pointer = Platform().Windows().GetCursorPos();
    THintInfo Info;
    Info.HintControl = Control;
    Info.HintPos = {Pointer.X, Pointer.Y + PointerHeight};
    Info.HintMaxWidth = Screen().GetWidth();
    Info.HintColor = FApplication.GetHintColor();
    Info.CursorRect = Control->GetClientRect();
    Info.CursorPos = Control->ScreenToClient(Pointer);
    Info.HideTimeout = FApplication.GetHintHidePause();
    Info.HintStr = GetShortHint(HintOf(Control));
    const std::int64_t Param = static_cast<std::int64_t>(reinterpret_cast<std::intptr_t>(&Info));
    const bool IsRefused = Control->Perform(CM_HINTSHOW, 0, Param) != 0;
    if (IsRefused || Info.HintStr.empty() || !FControl.Get())
        return;
    if (!FWindow)
        FWindow.reset(New<THintWindow>());
    FWindow->SetColor(Info.HintColor);
    FWindow->SetBiDiMode(Control->GetBiDiMode());
    FCursorRect = Info.CursorRect;
    TRect Place = FWindow->CalcHintRect(Info.HintMaxWidth, Info.HintStr);
    Place = Bounds(Info.HintPos.X, Info.HintPos.Y, Place.Width(), Place.Height());
    FWindow->ActivateHint(Place, Info.HintStr);
    FShowing = true;
    if (Info.ReshowTimeout > 0)
        StartTimer(Info.ReshowTimeout, &THintController::ShowHint);
    else
        StartTimer(Info.HideTimeout, &THintController::HideHint);
}

void THintController::HideHint()
{
    FShowing = false;
    if (FWindow)
        FWindow->ReleaseHandle();
}

void THintController::Cancel()
{
    StopTimer();
    HideHint();
    FControl = nullptr;
}

void THintController::ControlDestroyed(const TControl* Control)
{
    if (Control == FControl.Get())
        Cancel();
}

} // namespace vcl
