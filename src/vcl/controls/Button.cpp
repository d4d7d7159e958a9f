#include "vcl/controls/Button.h"

#include "vcl/controls/Label.h"
#include "vcl/platform/Platform.h"
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
            Publish("DragCursor"),
            Publish("DragKind"),
            Publish("DragMode"),
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
            Publish("OnDragDrop"),
            Publish("OnDragOver"),
            Publish("OnEndDock"),
            Publish("OnEndDrag"),
            Publish("OnEnter"),
            Publish("OnExit"),
            Publish("OnKeyDown"),
            Publish("OnKeyPress"),
            Publish("OnKeyUp"),
            Publish("OnMouseDown"),
            Publish("OnMouseMove"),
            Publish("OnMouseUp"),
            Publish("OnStartDock"),
            Publish("OnStartDrag"),
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
    ShowActive();
}

bool TButton::IsActive() const
{
    IFormSite* const Site = GetFormSiteOf(const_cast<TButton*>(this));
    const TWinControl* const Active = Site ? Site->GetActiveControl() : nullptr;
    return As<TButton>(Active) ? Active == this : FDefault;
}

void TButton::ShowActive()
{
    if (Peer())
        Peer()->Button()->SetDefault(IsActive());
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
    ShowActive();
}

void TButton::PeerNotice(TPeerNotice Notice, std::int64_t)
{
    if (Notice == TPeerNotice::Clicked)
        Click();
}

void TButton::CMDialogKey(TMessage& Message)
{
    constexpr unsigned Modifiers = MK_SHIFT | MK_CONTROL | MK_ALT;
    const bool IsPlain = (Platform().Windows().GetKeyFlags() & Modifiers) == 0;
    const bool Wanted =
        (Message.WParam == VK_RETURN && IsActive()) || (Message.WParam == VK_ESCAPE && FCancel);
    if (Wanted && IsPlain && CanFocus()) {
        Message.Result = 1;
        Click();
        return;
    }
    TPeerControl::CMDialogKey(Message);
}

void TButton::CMFocusChanged(TMessage& Message)
{
    TPeerControl::CMFocusChanged(Message);
    ShowActive();
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
