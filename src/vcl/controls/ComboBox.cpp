#include "vcl/controls/ComboBox.h"

namespace vcl
{

const TTypeInfo& TypeTraits<TComboBoxStyle>::Info()
{
    static const TTypeInfo Type =
        EnumerationType("TComboBoxStyle", {"csDropDown", "csSimple", "csDropDownList"});
    return Type;
}

const TClass& TComboBox::StaticClass()
{
    static const TClass Class = DefineClass<TComboBox, TPeerControl>(
        "TComboBox",
        {
            Publish("Anchors"),
            Publish("BiDiMode"),
            Publish("Color"),
            Publish("Constraints"),
            Publish("Ctl3D"),
            Published<&TComboBox::GetDropDownCount, &TComboBox::SetDropDownCount>("DropDownCount").Default(8),
            Publish("Enabled"),
            Publish("Font"),
            Published<&TComboBox::GetMaxLength, &TComboBox::SetMaxLength>("MaxLength").Default(0),
            Publish("ParentBiDiMode"),
            Publish("ParentColor").Default(false),
            Publish("ParentCtl3D"),
            Publish("ParentFont"),
            Publish("ParentShowHint"),
            Publish("PopupMenu"),
            Publish("ShowHint"),
            Published<&TComboBox::GetSorted, &TComboBox::SetSorted>("Sorted").Default(false),
            Published<&TComboBox::GetStyle, &TComboBox::SetStyle>("Style").Default(
                TComboBoxStyle::csDropDown),
            Publish("TabOrder"),
            Publish("TabStop").Default(true),
            Published<&TComboBox::GetText, &TComboBox::SetText>("Text"),
            Publish("Visible"),
            // The rows before the index into them.
            Published<&TComboBox::GetItems, &TComboBox::SetItems>("Items"),
            Published<&TComboBox::GetItemIndex, &TComboBox::SetItemIndex>("ItemIndex")
                .Default(-1)
                .Stored<&TComboBox::IsItemIndexStored>(),
            Published<&TComboBox::OnChange>("OnChange"),
            Publish("OnClick"),
            Published<&TComboBox::OnCloseUp>("OnCloseUp"),
            Publish("OnDblClick"),
            Published<&TComboBox::OnDropDown>("OnDropDown"),
            Publish("OnEnter"),
            Publish("OnExit"),
            Publish("OnKeyDown"),
            Publish("OnKeyPress"),
            Publish("OnKeyUp"),
        });
    return Class;
}

TComboBox::TComboBox(TComponent* Owner)
    : TPeerControl(Owner, TWindowKind::ComboBox, {145, 25}), FItems([this] { return List(); })
{
    FControlStyle.Exclude(TControlStyleFlag::csClickEvents);
    SetTabStop(true);
    SetParentColor(false);
}

void TComboBox::CreateParams(TCreateParams& Params)
{
    TPeerControl::CreateParams(Params);
    switch (FStyle) {
    case TComboBoxStyle::csDropDown:
        Params.Style |= CBS_DROPDOWN;
        break;
    case TComboBoxStyle::csSimple:
        Params.Style |= CBS_SIMPLE;
        break;
    case TComboBoxStyle::csDropDownList:
        Params.Style |= CBS_DROPDOWNLIST;
        break;
    }
}

void TComboBox::ApplyState()
{
    FItems.Apply();
    List()->SetDropDownCount(FDropDownCount);
    List()->SetItemIndex(FItemIndex);
    if (IEditPeer* const Edit = Peer()->Edit())
        Edit->SetMaxLength(FMaxLength);
    if (FItemIndex < 0 && FStyle != TComboBoxStyle::csDropDownList)
        Peer()->SetText(GetText());
}

void TComboBox::SetDropDownCount(int Value)
{
    FDropDownCount = Value;
    if (List())
        List()->SetDropDownCount(Value);
}

void TComboBox::SetItems(const TStrings* Value)
{
    FItems.Assign(Value);
    SetItemIndex(FItemIndex);
}

void TComboBox::SetItemIndex(int Value)
{
    FItemIndex = Value >= 0 && Value < FItems.GetCount() ? Value : -1;
    if (List())
        List()->SetItemIndex(FItemIndex);
    if (FItemIndex >= 0)
        TakeText(FItems.GetString(FItemIndex));
    else if (FStyle == TComboBoxStyle::csDropDownList)
        TakeText({});
}

void TComboBox::SetMaxLength(int Value)
{
    FMaxLength = Value < 0 ? 0 : Value;
    if (Peer() && Peer()->Edit())
        Peer()->Edit()->SetMaxLength(FMaxLength);
}

void TComboBox::SetStyle(TComboBoxStyle Value)
{
    if (FStyle == Value)
        return;
    FStyle = Value;
    RecreateWnd();
}

void TComboBox::SetDroppedDown(bool Value)
{
    if (List())
        List()->SetDroppedDown(Value);
}

void TComboBox::ItemChosen(int Index)
{
    TAliveGuard Guard(*this);
    FItemIndex = Index;
    if (Index >= 0 && Index < FItems.GetCount())
        TakeText(FItems.GetString(Index));
    Click();
    if (Guard.IsAlive())
        OnChange(this);
}

void TComboBox::PeerNotice(TPeerNotice Notice, std::int64_t Index)
{
    switch (Notice) {
    case TPeerNotice::ItemSelected:
        ItemChosen(static_cast<int>(Index));
        break;
    case TPeerNotice::TextChanged:
        FItemIndex = FItems.IndexOf(Peer()->GetText());
        TakeText(Peer()->GetText());
        OnChange(this);
        break;
    case TPeerNotice::DropDown:
        OnDropDown(this);
        break;
    case TPeerNotice::CloseUp:
        OnCloseUp(this);
        break;
    default:
        break;
    }
}

} // namespace vcl
