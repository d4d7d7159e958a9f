#include "vcl/controls/ListBox.h"

namespace vcl
{

const TClass& TCustomListBox::StaticClass()
{
    static const TClass Class = DefineClass<TCustomListBox, TPeerControl>(
        "TCustomListBox",
        {
            Declared(
                Published<&TCustomListBox::GetBorderStyle, &TCustomListBox::SetBorderStyle>("BorderStyle")
                    .Default(TBorderStyle::bsSingle)),
            Declared(Published<&TCustomListBox::GetItemHeight, &TCustomListBox::SetItemHeight>("ItemHeight")
                         .NoDefault()),
            Declared(Published<&TCustomListBox::GetItems, &TCustomListBox::SetItems>("Items")),
            Declared(
                Published<&TCustomListBox::GetMultiSelect, &TCustomListBox::SetMultiSelect>("MultiSelect")
                    .Default(false)),
            Declared(
                Published<&TCustomListBox::GetSorted, &TCustomListBox::SetSorted>("Sorted").Default(false)),
        });
    return Class;
}

const TClass& TListBox::StaticClass()
{
    static const TClass Class = DefineClass<TListBox, TCustomListBox>(
        "TListBox", {
                        Publish("Align"),          Publish("Anchors"),
                        Publish("BiDiMode"),       Publish("BorderStyle"),
                        Publish("Color"),          Publish("Constraints"),
                        Publish("Ctl3D"),          Publish("Enabled"),
                        Publish("Font"),           Publish("ItemHeight"),
                        Publish("Items"),          Publish("MultiSelect"),
                        Publish("ParentBiDiMode"), Publish("ParentColor").Default(false),
                        Publish("ParentCtl3D"),    Publish("ParentFont"),
                        Publish("ParentShowHint"), Publish("PopupMenu"),
                        Publish("ShowHint"),       Publish("Sorted"),
                        Publish("TabOrder"),       Publish("TabStop").Default(true),
                        Publish("Visible"),        Publish("OnClick"),
                        Publish("OnDblClick"),     Publish("OnDragDrop"),
                        Publish("OnDragOver"),     Publish("OnEnter"),
                        Publish("OnExit"),         Publish("OnKeyDown"),
                        Publish("OnKeyPress"),     Publish("OnKeyUp"),
                        Publish("OnMouseDown"),    Publish("OnMouseMove"),
                        Publish("OnMouseUp"),
                    });
    return Class;
}

TCustomListBox::TCustomListBox(TComponent* Owner)
    : TPeerControl(Owner, TWindowKind::ListBox, {121, 97}), FItems([this] { return List(); })
{
    FControlStyle.Exclude(TControlStyleFlag::csClickEvents);
    SetTabStop(true);
    SetParentColor(false);
}

void TCustomListBox::CreateParams(TCreateParams& Params)
{
    TPeerControl::CreateParams(Params);
    if (FMultiSelect)
        Params.Style |= LBS_MULTIPLESEL | LBS_EXTENDEDSEL;
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
    List()->SetItemIndex(FItemIndex);
}

void TCustomListBox::DestroyWnd()
{
    FItemIndex = GetItemIndex();
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
    if (List())
        List()->SetItemHeight(Value);
}

void TCustomListBox::SetMultiSelect(bool Value)
{
    if (FMultiSelect == Value)
        return;
    FMultiSelect = Value;
    RecreateWnd();
}

int TCustomListBox::GetItemIndex() const
{
    return List() ? List()->GetItemIndex() : FItemIndex;
}

void TCustomListBox::SetItemIndex(int Value)
{
    FItemIndex = Value >= 0 && Value < FItems.GetCount() ? Value : -1;
    if (List())
        List()->SetItemIndex(FItemIndex);
}

void TCustomListBox::CheckIndex(int Index) const
{
    if (Index < 0 || Index >= FItems.GetCount())
        throw EListError("List index out of bounds (" + IntToStr(Index) + ")");
}

bool TCustomListBox::GetSelected(int Index) const
{
    CheckIndex(Index);
    return List() ? List()->IsSelected(Index) : Index == FItemIndex;
}

void TCustomListBox::SetSelected(int Index, bool Value)
{
    CheckIndex(Index);
    if (!FMultiSelect)
        SetItemIndex(Value ? Index : -1);
    else if (List())
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

} // namespace vcl
