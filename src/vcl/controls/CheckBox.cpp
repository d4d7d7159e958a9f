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

const TTypeInfo& TypeTraits<TLeftRight>::Info()
{
    static const TTypeInfo Type = EnumerationType("TLeftRight", {"taLeftJustify", "taRightJustify"});
    return Type;
}

const TClass& TCheckBox::StaticClass()
{
    static const TClass Class = DefineClass<TCheckBox, TPeerControl>(
        "TCheckBox",
        {
            Published<&TCheckBox::GetAlignment, &TCheckBox::SetAlignment>("Alignment")
                .Default(TLeftRight::taRightJustify),
            Published<&TCheckBox::GetAllowGrayed, &TCheckBox::SetAllowGrayed>("AllowGrayed").Default(false),
            Publish("Anchors"),
            Publish("BiDiMode"),
            Publish("Caption"),
            Published<&TCheckBox::GetChecked, &TCheckBox::SetChecked>("Checked").Default(false),
            // What the parent gives it may be anything, so an own colour is always written.
            Publish("Color").NoDefault(),
            Publish("Constraints"),
            Publish("Ctl3D"),
            Publish("DragCursor"),
            Publish("DragKind"),
            Publish("DragMode"),
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

TCheckBox::TCheckBox(TComponent* Owner) : TPeerControl(Owner, TWindowKind::CheckBox, {97, 17})
{
    FControlStyle.Exclude(TControlStyleFlag::csClickEvents);
    SetTabStop(true);
}

void TCheckBox::CreateParams(TCreateParams& Params)
{
    TPeerControl::CreateParams(Params);
    if (FAlignment == TLeftRight::taLeftJustify)
        Params.ExStyle ^= WS_EX_RIGHT;
}

void TCheckBox::SetAlignment(TLeftRight Value)
{
    if (FAlignment == Value)
        return;
    FAlignment = Value;
    RecreateWnd();
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
    if (Notice != TPeerNotice::Clicked || !Peer())
        return;
    FState = BoxState(Peer()->Button()->GetCheckState());
    Click();
}

void TCheckBox::Toggle()
{
    switch (FState) {
    case TCheckBoxState::cbUnchecked:
        return SetState(FAllowGrayed ? TCheckBoxState::cbGrayed : TCheckBoxState::cbChecked);
    case TCheckBoxState::cbChecked:
        return SetState(TCheckBoxState::cbUnchecked);
    case TCheckBoxState::cbGrayed:
        return SetState(TCheckBoxState::cbChecked);
    }
}

void TCheckBox::CMDialogChar(TMessage& Message)
{
    if (IsAccel(static_cast<char32_t>(Message.WParam), GetCaption()) && CanFocus()) {
        Message.Result = 1;
        TAliveGuard Guard(*this);
        SetFocus();
        if (Guard.IsAlive() && Focused())
            Toggle();
        return;
    }
    TPeerControl::CMDialogChar(Message);
}

} // namespace vcl
