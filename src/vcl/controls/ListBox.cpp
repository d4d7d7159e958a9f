#include "vcl/controls/ListBox.h"

namespace vcl
{

const TTypeInfo& TypeTraits<TListBoxStyle>::Info()
{
    static const TTypeInfo Type =
        EnumerationType("TListBoxStyle", {"lbStandard", "lbOwnerDrawFixed", "lbOwnerDrawVariable"});
    return Type;
}

const TClass& TCustomListBox::StaticClass()
{
    using T = TCustomListBox;
    static const TClass Class = DefineClass<TCustomListBox, TPeerControl>(
        "TCustomListBox",
        {
            Declared(Published<&T::GetAutoComplete, &T::SetAutoComplete>("AutoComplete").Default(true)),
            Declared(Published<&T::GetBorderStyle, &T::SetBorderStyle>("BorderStyle")
                         .Default(TBorderStyle::bsSingle)),
            Declared(Published<&T::GetColumns, &T::SetColumns>("Columns").Default(0)),
            Declared(Published<&T::GetExtendedSelect, &T::SetExtendedSelect>("ExtendedSelect").Default(true)),
            Declared(
                Published<&T::GetIntegralHeight, &T::SetIntegralHeight>("IntegralHeight").Default(false)),
            // Written when it was given: 0 is as the font wants.
            Declared(Published<&T::GetItemHeight, &T::SetItemHeight>("ItemHeight").Default(0)),
            Declared(Published<&T::GetItems, &T::SetItems>("Items")),
            Declared(Published<&T::GetMultiSelect, &T::SetMultiSelect>("MultiSelect").Default(false)),
            Declared(Published<&T::GetSorted, &T::SetSorted>("Sorted").Default(false)),
            Declared(Published<&T::GetStyle, &T::SetStyle>("Style").Default(TListBoxStyle::lbStandard)),
            Declared(Published<&T::GetTabWidth, &T::SetTabWidth>("TabWidth").Default(0)),
        });
    return Class;
}

const TClass& TListBox::StaticClass()
{
    static const TClass Class = DefineClass<TListBox, TCustomListBox>(
        "TListBox", {
                        Publish("Style"),          Publish("AutoComplete"),
                        Publish("Align"),          Publish("Anchors"),
                        Publish("BiDiMode"),       Publish("BorderStyle"),
                        Publish("Color"),          Publish("Columns"),
                        Publish("Constraints"),    Publish("Ctl3D"),
                        Publish("DragCursor"),     Publish("DragKind"),
                        Publish("DragMode"),       Publish("Enabled"),
                        Publish("ExtendedSelect"), Publish("Font"),
                        Publish("ImeMode"),        Publish("ImeName"),
                        Publish("IntegralHeight"), Publish("ItemHeight"),
                        Publish("Items"),          Publish("MultiSelect"),
                        Publish("ParentBiDiMode"), Publish("ParentColor").Default(false),
                        Publish("ParentCtl3D"),    Publish("ParentFont"),
                        Publish("ParentShowHint"), Publish("PopupMenu"),
                        Publish("ShowHint"),       Publish("Sorted"),
                        Publish("TabOrder"),       Publish("TabStop").Default(true),
                        Publish("TabWidth"),       Publish("Visible"),
                        Publish("OnClick"),        Publish("OnDblClick"),
                        Publish("OnDragDrop"),     Publish("OnDragOver"),
                        Publish("OnEndDock"),      Publish("OnEndDrag"),
                        Publish("OnEnter"),        Publish("OnExit"),
                        Publish("OnKeyDown"),      Publish("OnKeyPress"),
                        Publish("OnKeyUp"),        Publish("OnMouseDown"),
                        Publish("OnMouseMove"),    Publish("OnMouseUp"),
                        Publish("OnStartDock"),    Publish("OnStartDrag"),
                    });
    return Class;
}

TCustomListBox::TCustomListBox(TComponent* Owner)
    : TPeerControl(Owner, TWindowKind::ListBox, {121, 97}),
      FItems(
          TPeerStrings::TChoice::OfPeer, [this] { return List(); }, [] {})
{
    FControlStyle.Exclude(TControlStyleFlag::csClickEvents).Exclude(TControlStyleFlag::csSetCaption);
    SetTabStop(true);
    SetParentColor(false);
}

void TCustomListBox::CreateParams(TCreateParams& Params)
{
    TPeerControl::CreateParams(Params);
    if (FMultiSelect)
        Params.Style |= FExtendedSelect ? LBS_MULTIPLESEL | LBS_EXTENDEDSEL : LBS_MULTIPLESEL;
    if (FBorderStyle == TBorderStyle::bsSingle) {
        if (GetCtl3D())
            Params.ExStyle |= WS_EX_CLIENTEDGE;
        else
            Params.Style |= WS_BORDER;
    }
}

void TCustomListBox::ApplyState()
{
    FItems.Apply();
    if (FItemHeight > 0)
        List()->SetItemHeight(FItemHeight);
    List()->SetTopIndex(FKeptTop);
}

void TCustomListBox::DestroyWnd()
{
    if (FItems.Live())
        FItems.Keep();
    FKeptTop = GetTopIndex();
    TPeerControl::DestroyWnd();
}

void TCustomListBox::SetBorderStyle(TBorderStyle Value)
{
    if (FBorderStyle == Value)
        return;
    FBorderStyle = Value;
    RecreateWnd();
}

void TCustomListBox::SetItemHeight(int Value)
{
    FItemHeight = Value;
    if (List() && Value > 0)
        List()->SetItemHeight(Value);
}

void TCustomListBox::SetExtendedSelect(bool Value)
{
    if (FExtendedSelect == Value)
        return;
    FExtendedSelect = Value;
    RecreateWnd();
}

void TCustomListBox::SetMultiSelect(bool Value)
{
    if (FMultiSelect == Value)
        return;
    FMultiSelect = Value;
    RecreateWnd();
    if (FMultiSelect)
        return;
    for (int Index = 0; Index < FItems.GetCount(); ++Index)
        FItems.SetSelected(Index, false);
    SetItemIndex(GetItemIndex());
}

int TCustomListBox::GetItemIndex() const
{
    return FItems.Live() ? List()->GetItemIndex() : FItems.GetItemIndex();
}

void TCustomListBox::SetItemIndex(int Value)
{
    FItems.SetItemIndex(Value);
    if (FItems.Live())
        List()->SetItemIndex(FItems.GetItemIndex());
}

void TCustomListBox::CheckIndex(int Index) const
{
    if (Index < 0 || Index >= FItems.GetCount())
        throw EListError("List index out of bounds (" + IntToStr(Index) + ")");
}

bool TCustomListBox::GetSelected(int Index) const
{
    CheckIndex(Index);
    if (FItems.Live())
        return List()->IsSelected(Index);
    return FMultiSelect ? FItems.IsSelected(Index) : Index == FItems.GetItemIndex();
}

void TCustomListBox::SetSelected(int Index, bool Value)
{
    CheckIndex(Index);
    if (!FMultiSelect) {
        if (Value || Index == GetItemIndex())
            SetItemIndex(Value ? Index : -1);
        return;
    }
    FItems.SetSelected(Index, Value);
    if (FItems.Live())
        List()->SetSelected(Index, Value);
}

int TCustomListBox::GetTopIndex() const
{
    return List() ? List()->GetTopIndex() : 0;
}

void TCustomListBox::SetTopIndex(int Value)
{
    if (List())
        List()->SetTopIndex(Value);
}

int TCustomListBox::ItemAtPos(TPoint Point) const
{
    return List() ? List()->ItemAt(Point) : -1;
}

TRect TCustomListBox::ItemRect(int Index) const
{
    return List() ? List()->ItemRect(Index) : TRect{};
}

void TCustomListBox::PeerNotice(TPeerNotice Notice, std::int64_t)
{
    if (Notice == TPeerNotice::ItemSelected)
        Click();
    else if (Notice == TPeerNotice::ItemActivated)
        DblClick();
}

void TCustomListBox::WMGetDlgCode(TMessage& Message)
{
    Message.Result = DLGC_WANTARROWS | DLGC_WANTCHARS;
}

} // namespace vcl
