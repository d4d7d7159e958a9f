#include "vcl/controls/ComboBox.h"

#include "vcl/platform/VirtualKeys.h"

namespace vcl
{

const TTypeInfo& TypeTraits<TComboBoxStyle>::Info()
{
    static const TTypeInfo Type =
        EnumerationType("TComboBoxStyle", {"csDropDown", "csSimple", "csDropDownList", "csOwnerDrawFixed",
                                           "csOwnerDrawVariable"});
    return Type;
}

const TClass& TComboBox::StaticClass()
{
    static const TClass Class = DefineClass<TComboBox, TPeerControl>(
        "TComboBox",
        {
            Published<&TComboBox::GetAutoComplete, &TComboBox::SetAutoComplete>("AutoComplete").Default(true),
            Published<&TComboBox::GetAutoDropDown, &TComboBox::SetAutoDropDown>("AutoDropDown")
                .Default(false),
            Published<&TComboBox::GetStyle, &TComboBox::SetStyle>("Style").Default(
                TComboBoxStyle::csDropDown),
            Publish("Anchors"),
            Publish("BiDiMode"),
            Published<&TComboBox::GetCharCase, &TComboBox::SetCharCase>("CharCase")
                .Default(TEditCharCase::ecNormal),
            Publish("Color"),
            Publish("Constraints"),
            Publish("Ctl3D"),
            Publish("DragCursor"),
            Publish("DragKind"),
            Publish("DragMode"),
            Published<&TComboBox::GetDropDownCount, &TComboBox::SetDropDownCount>("DropDownCount").Default(8),
            Publish("Enabled"),
            Publish("Font"),
            Publish("ImeMode"),
            Publish("ImeName"),
            // Written when it was given: 0 is as the font wants.
            Published<&TComboBox::GetItemHeight, &TComboBox::SetItemHeight>("ItemHeight").Default(0),
            Published<&TComboBox::GetItemIndex, &TComboBox::SetItemIndex>("ItemIndex").Default(-1),
            Published<&TComboBox::GetMaxLength, &TComboBox::SetMaxLength>("MaxLength").Default(0),
            Publish("ParentBiDiMode"),
            Publish("ParentColor").Default(false),
            Publish("ParentCtl3D"),
            Publish("ParentFont"),
            Publish("ParentShowHint"),
            Publish("PopupMenu"),
            Publish("ShowHint"),
            Published<&TComboBox::GetSorted, &TComboBox::SetSorted>("Sorted").Default(false),
            Publish("TabOrder"),
            Publish("TabStop").Default(true),
            Publish("Text"),
            Publish("Visible"),
            Published<&TComboBox::OnChange>("OnChange"),
            Publish("OnClick"),
            Published<&TComboBox::OnCloseUp>("OnCloseUp"),
            Publish("OnDblClick"),
            Publish("OnDragDrop"),
            Publish("OnDragOver"),
            Published<&TComboBox::OnDropDown>("OnDropDown"),
            Publish("OnEndDock"),
            Publish("OnEndDrag"),
            Publish("OnEnter"),
            Publish("OnExit"),
            Publish("OnKeyDown"),
            Publish("OnKeyPress"),
            Publish("OnKeyUp"),
            Published<&TComboBox::OnSelect>("OnSelect"),
            Publish("OnStartDock"),
            Publish("OnStartDrag"),
            Published<&TComboBox::GetItems, &TComboBox::SetItems>("Items"),
        });
    return Class;
}

TComboBox::TComboBox(TComponent* Owner)
    : TPeerControl(Owner, TWindowKind::ComboBox, {145, 25}),
      FItems(
          TPeerStrings::TChoice::OfControl, [this] { return List(); }, [this] { RowsChanged(); })
{
    FControlStyle.Exclude(TControlStyleFlag::csClickEvents);
    SetTabStop(true);
    SetParentColor(false);
}

void TComboBox::CreateParams(TCreateParams& Params)
{
    TPeerControl::CreateParams(Params);
    if (!IsEditable())
        Params.Style |= CBS_DROPDOWNLIST;
    else
        Params.Style |= FStyle == TComboBoxStyle::csSimple ? CBS_SIMPLE : CBS_DROPDOWN;
}

bool TComboBox::IsEditable() const
{
    return FStyle == TComboBoxStyle::csDropDown || FStyle == TComboBoxStyle::csSimple;
}

void TComboBox::ApplyState()
{
    List()->SetDropDownCount(FDropDownCount);
    if (IEditPeer* const Edit = Peer()->Edit())
        Edit->SetMaxLength(FMaxLength);
    FItems.Apply();
    ShowChoice();
}

/// The platform's list shows the chosen row, or the text that is in none.
void TComboBox::ShowChoice()
{
    if (!FItems.Live())
        return;
    const int Index = FItems.GetItemIndex();
    List()->SetItemIndex(Index);
    if (Index < 0 && IsEditable())
        Peer()->SetText(GetText());
}

void TComboBox::RowsChanged()
{
    if (Is(TComponentState::csLoading) || Is(TComponentState::csDestroying))
        return;
    const int Index = FItems.GetItemIndex();
    if (Index >= 0)
        TakeText(FItems.GetString(Index));
    else if (!IsEditable())
        TakeText({});
    ShowChoice();
}

void TComboBox::Loaded()
{
    TPeerControl::Loaded();
    if (FReadIndex >= 0)
        SetItemIndex(FReadIndex);
    else
        FItems.SetItemIndex(FItems.IndexOf(GetText()));
    FReadIndex = -1;
    ShowChoice();
}

void TComboBox::SetCharCase(TEditCharCase Value)
{
    if (FCharCase == Value)
        return;
    FCharCase = Value;
    SetText(GetText());
}

void TComboBox::SetDropDownCount(int Value)
{
    FDropDownCount = Value;
    if (List())
        List()->SetDropDownCount(Value);
}

int TComboBox::GetItemIndex() const
{
    return Is(TComponentState::csLoading) ? FReadIndex : FItems.GetItemIndex();
}

void TComboBox::SetItemIndex(int Value)
{
    if (Is(TComponentState::csLoading)) {
        FReadIndex = Value;
        return;
    }
    FItems.SetItemIndex(Value);
    const int Index = FItems.GetItemIndex();
    TakeText(Index >= 0 ? FItems.GetString(Index) : AnsiString());
    ShowChoice();
}

void TComboBox::SetText(const AnsiString& Value)
{
    const bool IsFree = IsEditable() || IsTakingText() || Is(TComponentState::csLoading);
    if (IsFree || Value.empty() || FItems.IndexOf(Value) >= 0)
        TPeerControl::SetText(InCharCase(Value, FCharCase));
}

void TComboBox::CMTextChanged(TMessage& Message)
{
    if (IsTakingText())
        return;
    TAliveGuard Guard(*this);
    TPeerControl::CMTextChanged(Message);
    if (!Guard.IsAlive() || Is(TComponentState::csLoading))
        return;
    FItems.SetItemIndex(FItems.IndexOf(GetText()));
    ShowChoice();
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

void TComboBox::RowChosen(int Index)
{
    TAliveGuard Guard(*this);
    FItems.SetItemIndex(Index);
    Index = FItems.GetItemIndex();
    if (Index >= 0)
        TakeText(FItems.GetString(Index));
    Click();
    if (!Guard.IsAlive())
        return;
    if (OnSelect)
        OnSelect(this);
    else
        OnChange(this);
}

void TComboBox::TextTyped()
{
    if (!Peer())
        return;
    const AnsiString Typed = Peer()->GetText();
    const AnsiString Wanted = InCharCase(Typed, FCharCase);
    IEditPeer* const Edit = Peer()->Edit();
    if (Wanted != Typed && Edit) {
        const int Start = Edit->GetSelStart();
        Peer()->SetText(Wanted);
        Edit->SetSelection(Start, 0);
    }
    FItems.SetItemIndex(FItems.IndexOf(Wanted));
    TakeText(Wanted);
    OnChange(this);
}

void TComboBox::PeerNotice(TPeerNotice Notice, std::int64_t Index)
{
    switch (Notice) {
    case TPeerNotice::ItemSelected:
        return RowChosen(static_cast<int>(Index));
    case TPeerNotice::TextChanged:
        return TextTyped();
    case TPeerNotice::DropDown:
        return OnDropDown(this);
    case TPeerNotice::CloseUp:
        return OnCloseUp(this);
    default:
        break;
    }
}

void TComboBox::WMGetDlgCode(TMessage& Message)
{
    Message.Result = DLGC_WANTARROWS | DLGC_WANTCHARS;
}

void TComboBox::CMWantSpecialKey(TMessage& Message)
{
    // They close the open list instead of the form.
    const bool Closes = Message.WParam == VK_RETURN || Message.WParam == VK_ESCAPE;
    Message.Result = Closes && GetDroppedDown() ? 1 : 0;
}

} // namespace vcl
