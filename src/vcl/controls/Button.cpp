#include "vcl/controls/Button.h"

#include "vcl/controls/Label.h"
#include "vcl/platform/VirtualKeys.h"

namespace vcl
{

const TClass& TButton::StaticClass()
{
    static const TClass Class = DefineClass<TButton, TPeerControl>(
        "TButton",
        {
            Publish("Anchors"),
            Publish("BiDiMode"),
            Published<&TButton::GetCancel, &TButton::SetCancel>("Cancel").Default(false),
            Publish("Caption"),
            Publish("Constraints"),
            Published<&TButton::GetDefault, &TButton::SetDefault>("Default").Default(false),
            Publish("Enabled"),
            Publish("Font"),
            Published<&TButton::GetModalResult, &TButton::SetModalResult>("ModalResult").Default(0),
            Publish("ParentBiDiMode"),
            Publish("ParentFont"),
            Publish("ParentShowHint"),
            Publish("PopupMenu"),
            Publish("ShowHint"),
            Publish("TabOrder"),
            Publish("TabStop").Default(true),
            Publish("Visible"),
            Publish("OnClick"),
            Publish("OnEnter"),
            Publish("OnExit"),
            Publish("OnKeyDown"),
            Publish("OnKeyPress"),
            Publish("OnKeyUp"),
            Publish("OnMouseDown"),
            Publish("OnMouseMove"),
            Publish("OnMouseUp"),
        });
    return Class;
}

TButton::TButton(TComponent* Owner) : TPeerControl(Owner, TWindowKind::Button, {75, 25})
{
    // The platform's button tells of clicks itself.
    FControlStyle.Exclude(TControlStyleFlag::csClickEvents);
    SetTabStop(true);
}

void TButton::SetDefault(bool Value)
{
    FDefault = Value;
    if (Peer())
        Peer()->Button()->SetDefault(Value);
}

void TButton::Click()
{
    TAliveGuard Guard(*this);
    if (IFormSite* const Site = GetFormSiteOf(this))
        Site->SetModalResult(FModalResult);
    if (Guard.IsAlive())
        TPeerControl::Click();
}

void TButton::ApplyState()
{
    Peer()->Button()->SetDefault(FDefault);
}

void TButton::PeerNotice(TPeerNotice Notice, std::int64_t)
{
    if (Notice == TPeerNotice::Clicked)
        Click();
}

void TButton::CMDialogKey(TMessage& Message)
{
    const bool Wanted =
        (Message.WParam == VK_RETURN && (FDefault || Focused())) || (Message.WParam == VK_ESCAPE && FCancel);
    if (Wanted && CanFocus()) {
        Message.Result = 1;
        Click();
        return;
    }
    TPeerControl::CMDialogKey(Message);
}

void TButton::CMDialogChar(TMessage& Message)
{
    if (IsAccel(static_cast<char32_t>(Message.WParam), GetCaption()) && CanFocus()) {
        Message.Result = 1;
        Click();
        return;
    }
    TPeerControl::CMDialogChar(Message);
}

} // namespace vcl
