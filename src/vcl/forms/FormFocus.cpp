// Which control of a form is active, and how keys move it.

#include <algorithm>

#include "vcl/forms/CustomForm.h"
#include "vcl/forms/Screen.h"
#include "vcl/platform/Platform.h"
#include "vcl/platform/VirtualKeys.h"

namespace vcl
{

void TCustomForm::SetActiveControl(TWinControl* Value)
{
    if (Value == FActiveControl)
        return;
    const bool IsLoading = Is(TComponentState::csLoading) || Is(TComponentState::csReading);
    if (Value && (Value == this || (!IsLoading && (!ContainsControl(Value) || !Value->CanFocus() ||
                                                   GetParentForm(Value) != this))))
        throw EInvalidOperation("Cannot focus a disabled or invisible window");
    FActiveControl = Value;
    if (!IsLoading && FActive)
        SetWindowFocus();
}

void TCustomForm::FocusControl(TWinControl* Control)
{
    // A form in the background, or a control whose window lost the focus to nobody, is asked again.
    const bool WasActive = FActive && Control != FActiveControl;
    TAliveGuard Guard(*this);
    SetActiveControl(Control);
    if (Guard.IsAlive() && !WasActive)
        SetFocus();
}

void TCustomForm::DefocusControl(TWinControl* Control, bool Removing)
{
    if (Removing && FFocusedControl && Control->ContainsControl(FFocusedControl))
        FFocusedControl = Control->GetParent();
    if (FActiveControl && Control->ContainsControl(FActiveControl)) {
        FActiveControl = nullptr;
        if (FActive && !Is(TComponentState::csDestroying))
            SetWindowFocus();
    }
}

void TCustomForm::SetFocus()
{
    if (FActive && Focused() && !FActiveControl)
        return;
    if (!CanFocus())
        throw EInvalidOperation("Cannot focus a disabled or invisible window");
    SetWindowFocus();
}

void TCustomForm::SetWindowFocus()
{
    TWinControl* const Target = FActiveControl && FActiveControl->CanFocus() ? FActiveControl : this;
    if (!Target->Focused())
        Target->GetHandle()->SetFocus();
}

bool TCustomForm::SetFocusedControl(TWinControl* Control)
{
    TAliveGuard Guard(*this);
    const int Count = ++FFocusCount;
    FActiveControl = Control == this ? nullptr : Control;
    if (!FFocusedControl)
        FFocusedControl = this;
    TWeak<TWinControl> Target = Control;
    const auto IsCurrent = [&] { return Guard.IsAlive() && Count == FFocusCount && Target.Get(); };
    while (IsCurrent() && FFocusedControl != this && !FFocusedControl->ContainsControl(Control)) {
        TWinControl* const Left = FFocusedControl;
        FFocusedControl = Left->GetParent() ? Left->GetParent() : this;
        Left->Perform(CM_EXIT);
    }
    while (IsCurrent() && FFocusedControl != Control) {
        TWinControl* Next = Control;
        while (Next->GetParent() && Next->GetParent() != FFocusedControl)
            Next = Next->GetParent();
        FFocusedControl = Next;
        Next->Perform(CM_ENTER);
    }
    if (IsCurrent())
        Perform(CM_FOCUSCHANGED);
    if (IsCurrent())
        Screen().OnActiveControlChange(&Screen());
    return IsCurrent();
}

void TCustomForm::WMActivate(TMessage& Message)
{
    TAliveGuard Guard(*this);
    DefaultHandler(Message);
    if (Guard.IsAlive())
        SetActive(Message.WParam != WA_INACTIVE);
}

void TCustomForm::SetActive(bool Value)
{
    if (Value == FActive)
        return;
    FActive = Value;
    TAliveGuard Guard(*this);
    if (!FActive) {
        Screen().SetActiveForm(nullptr);
        Deactivate();
        return;
    }
    Screen().SetActiveForm(this);
    if (!FActiveControl && !Is(TComponentState::csDesigning))
        FActiveControl = FindNextControl(nullptr, true, true, false);
    SetWindowFocus();
    if (Guard.IsAlive())
        Activate();
}

void TCustomForm::CMDialogKey(TMessage& Message)
{
    const TShiftState Shift = KeyShiftStateOf(Platform().Windows().GetKeyFlags());
    if (!Shift.Contains(TShiftKey::ssAlt)) {
        const bool Forward = Message.WParam == VK_RIGHT || Message.WParam == VK_DOWN;
        switch (Message.WParam) {
        case VK_TAB:
            if (!Shift.Contains(TShiftKey::ssCtrl) && SelectNextByTab(!Shift.Contains(TShiftKey::ssShift))) {
                Message.Result = 1;
                return;
            }
            break;
        case VK_LEFT:
        case VK_RIGHT:
        case VK_UP:
        case VK_DOWN:
            if (FActiveControl && FActiveControl->GetParent()) {
                FActiveControl->GetParent()->SelectNext(FActiveControl, Forward, false);
                Message.Result = 1;
                return;
            }
            break;
        default:
            break;
        }
    }
    TCustomControl::CMDialogKey(Message);
}

bool TCustomForm::SelectNextByTab(bool Forward)
{
    std::vector<TWinControl*> List;
    GetTabOrderList(List);
    std::erase_if(List, [](TWinControl* Control) { return !Control->CanFocus() || !Control->GetTabStop(); });
    const bool AtEnd =
        List.empty() || !FActiveControl || FActiveControl == (Forward ? List.back() : List.front());
    // Embedded in another program's window the order goes on behind the last control.
    if (AtEnd && HandleAllocated() && GetWindow()->PassFocus(Forward))
        return true;
    SelectNext(FActiveControl, Forward, true);
    return true;
}

} // namespace vcl
