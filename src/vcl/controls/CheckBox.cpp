#include "vcl/controls/CheckBox.h"

#include "vcl/controls/Label.h"

namespace vcl
{

namespace
{

TCheckState PeerState(TCheckBoxState State)
{
    switch (State) {
    case TCheckBoxState::cbChecked:
        return TCheckState::Checked;
    case TCheckBoxState::cbGrayed:
        return TCheckState::Grayed;
    case TCheckBoxState::cbUnchecked:
        break;
    }
    return TCheckState::Unchecked;
}

TCheckBoxState BoxState(TCheckState State)
{
    switch (State) {
    case TCheckState::Checked:
        return TCheckBoxState::cbChecked;
    case TCheckState::Grayed:
        return TCheckBoxState::cbGrayed;
    case TCheckState::Unchecked:
        break;
    }
    return TCheckBoxState::cbUnchecked;
}

} // namespace

const TTypeInfo& TypeTraits<TCheckBoxState>::Info()
{
    static const TTypeInfo Type = EnumerationType("TCheckBoxState", {"cbUnchecked", "cbChecked", "cbGrayed"});
    return Type;
}

const TClass& TCheckBox::StaticClass()
{
    static const TClass Class = DefineClass<TCheckBox, TPeerControl>(
        "TCheckBox",
        {
            Published<&TCheckBox::GetAllowGrayed, &TCheckBox::SetAllowGrayed>("AllowGrayed").Default(false),
            Publish("Anchors"),
            Publish("BiDiMode"),
            Publish("Caption"),
            Published<&TCheckBox::GetChecked, &TCheckBox::SetChecked>("Checked").Default(false).NeverStored(),
            Publish("Color"),
            Publish("Constraints"),
            Publish("Ctl3D"),
            Publish("Enabled"),
            Publish("Font"),
            Publish("ParentBiDiMode"),
            Publish("ParentColor"),
            Publish("ParentCtl3D"),
            Publish("ParentFont"),
            Publish("ParentShowHint"),
            Publish("PopupMenu"),
            Publish("ShowHint"),
            Published<&TCheckBox::GetState, &TCheckBox::SetState>("State").Default(
                TCheckBoxState::cbUnchecked),
            Publish("TabOrder"),
            Publish("TabStop").Default(true),
            Publish("Visible"),
            Publish("OnClick"),
            Publish("OnEnter"),
            Publish("OnExit"),
            Publish("OnKeyDown"),
            Publish("OnKeyPress"),
            Publish("OnKeyUp"),
        });
    return Class;
}

TCheckBox::TCheckBox(TComponent* Owner) : TPeerControl(Owner, TWindowKind::CheckBox, {97, 17})
{
    FControlStyle.Exclude(TControlStyleFlag::csClickEvents);
    SetTabStop(true);
}

void TCheckBox::SetAllowGrayed(bool Value)
{
    FAllowGrayed = Value;
    if (Peer())
        Peer()->Button()->SetTriState(Value);
}

void TCheckBox::SetState(TCheckBoxState Value)
{
    if (FState == Value)
        return;
    FState = Value;
    if (Peer())
        Peer()->Button()->SetCheckState(PeerState(Value));
    if (!Is(TComponentState::csLoading))
        Click();
}

void TCheckBox::ApplyState()
{
    Peer()->Button()->SetTriState(FAllowGrayed);
    Peer()->Button()->SetCheckState(PeerState(FState));
}

void TCheckBox::PeerNotice(TPeerNotice Notice, std::int64_t)
{
    if (Notice != TPeerNotice::Clicked)
        return;
    FState = BoxState(Peer()->Button()->GetCheckState());
    Click();
}

void TCheckBox::CMDialogChar(TMessage& Message)
{
    if (IsAccel(static_cast<char32_t>(Message.WParam), GetCaption()) && CanFocus()) {
        Message.Result = 1;
        SetFocus();
        SetChecked(!GetChecked());
        return;
    }
    TPeerControl::CMDialogChar(Message);
}

} // namespace vcl
