// How a form comes and goes: shown, placed, modal, closed.

#include <algorithm>

#include "vcl/forms/Application.h"
#include "vcl/forms/CustomForm.h"
#include "vcl/forms/Screen.h"
#include "vcl/platform/Platform.h"

namespace vcl
{

void TCustomForm::Show()
{
    SetVisible(true);
    BringToFront();
    if (HandleAllocated())
        GetWindow()->Activate();
}

void TCustomForm::CMShowingChanged(TMessage& Message)
{
    TAliveGuard Guard(*this);
    if (GetShowing()) {
        PlaceOnScreen();
        if (Guard.IsAlive())
            RunGuarded(this, [this] { DoShow(); });
        if (!Guard.IsAlive() || !HandleAllocated())
            return;
        if (FWindowState != TWindowState::wsNormal)
            GetWindow()->SetWindowState(static_cast<unsigned>(FWindowState));
        TCustomControl::CMShowingChanged(Message);
        return;
    }
    RunGuarded(this, [this] { DoHide(); });
    if (Guard.IsAlive() && HandleAllocated())
        TCustomControl::CMShowingChanged(Message);
}

void TCustomForm::PlaceOnScreen()
{
    if (FPlaced || GetParent())
        return;
    FPlaced = true;
    TCustomForm* Around = nullptr;
    if (FPosition == TPosition::poMainFormCenter)
        Around = Application().GetMainForm();
    else if (FPosition == TPosition::poOwnerFormCenter)
        Around = As<TCustomForm>(GetOwnerComponent());
    const bool IsCentred =
        FPosition == TPosition::poScreenCenter || FPosition == TPosition::poDesktopCenter ||
        FPosition == TPosition::poMainFormCenter || FPosition == TPosition::poOwnerFormCenter;
    if (!IsCentred)
        return;
    const TRect Area = Around && Around != this ? Around->GetBoundsRect() : Screen().GetWorkArea();
    SetBounds(std::max(Area.Left + (Area.Width() - GetWidth()) / 2, 0),
              std::max(Area.Top + (Area.Height() - GetHeight()) / 2, 0), GetWidth(), GetHeight());
}

void TCustomForm::CMTextChanged(TMessage& Message)
{
    TCustomControl::CMTextChanged(Message);
}

void TCustomForm::SetModalResult(TModalResult Value)
{
    FModalResult = Value;
    if (FModal && Value != mrNone)
        Platform().Windows().WakeUp();
}

TModalResult TCustomForm::ShowModal()
{
    if (GetVisible() || !GetEnabled() || FModal)
        throw EInvalidOperation("Cannot make a visible window modal");
    TAliveGuard Guard(*this);
    const TWeak<TCustomForm> Before = Screen().GetActiveForm();
    FModal = true;
    FModalResult = mrNone;
    GetHandle()->SetModal(true);
    Show();
    TModalResult Result = mrNone;
    Platform().Windows().RunUntil([&] {
        if (!Guard.IsAlive() || Result != mrNone)
            return true;
        if (Application().GetTerminated())
            FModalResult = mrCancel;
        else if (FModalResult != mrNone)
            RunGuarded(this, [this] { CloseModal(); });
        if (Guard.IsAlive())
            Result = FModalResult;
        return !Guard.IsAlive() || Result != mrNone;
    });
    if (Result == mrNone)
        Result = mrCancel; // the form was freed, or the platform ended
    if (!Guard.IsAlive())
        return Result;
    FModal = false;
    Hide();
    if (Guard.IsAlive() && HandleAllocated())
        GetWindow()->SetModal(false);
    if (Before.Get() && Before.Get()->HandleAllocated() && Before.Get()->GetShowing())
        Before.Get()->GetWindow()->Activate();
    return Result;
}

void TCustomForm::CloseModal()
{
    TAliveGuard Guard(*this);
    if (!CloseQuery()) {
        if (Guard.IsAlive())
            FModalResult = mrNone;
        return;
    }
    TCloseAction Action = TCloseAction::caHide;
    DoClose(Action);
    if (!Guard.IsAlive())
        return;
    if (Action == TCloseAction::caNone)
        FModalResult = mrNone;
    else if (Action == TCloseAction::caFree)
        Release();
}

bool TCustomForm::CloseQuery()
{
    bool CanClose = true;
    OnCloseQuery(this, CanClose);
    return CanClose;
}

void TCustomForm::Close()
{
    if (FModal) {
        SetModalResult(mrCancel);
        return;
    }
    TAliveGuard Guard(*this);
    if (!CloseQuery() || !Guard.IsAlive())
        return;
    TCloseAction Action = TCloseAction::caHide;
    DoClose(Action);
    if (!Guard.IsAlive() || Action == TCloseAction::caNone)
        return;
    if (Application().GetMainForm() == this) {
        SetVisible(false);
        Application().Terminate();
    } else if (Action == TCloseAction::caHide)
        SetVisible(false);
    else if (Action == TCloseAction::caMinimize)
        SetWindowState(TWindowState::wsMinimized);
    else
        Release();
}

void TCustomForm::Release()
{
    Platform().Windows().Post([Form = TWeak<TCustomForm>(this)] {
        if (Form.Get())
            RunGuarded(nullptr, [&] { delete Form.Get(); });
    });
}

void TCustomForm::WMCommand(TMessage& Message)
{
    if (!FMenu || !FMenu->DispatchCommand(static_cast<unsigned>(Message.WParam)))
        DefaultHandler(Message);
}

void TCustomForm::Dispatch(TMessage& Message)
{
    switch (Message.Msg) {
    case WM_ACTIVATE:
        return WMActivate(Message);
    case WM_CLOSE:
        return Close();
    case WM_COMMAND:
        return WMCommand(Message);
    default:
        TCustomControl::Dispatch(Message);
    }
}

} // namespace vcl
