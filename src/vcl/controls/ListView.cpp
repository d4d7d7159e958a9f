#include "vcl/controls/ListView.h"

#include <algorithm>

#include "vcl/controls/Label.h"

namespace vcl
{

const TTypeInfo& TypeTraits<TViewStyle>::Info()
{
    static const TTypeInfo Type =
        EnumerationType("TViewStyle", {"vsIcon", "vsSmallIcon", "vsList", "vsReport"});
    return Type;
}

const TClass& TListColumn::StaticClass()
{
    static const TClass Class = DefineClass<TListColumn, TCollectionItem>(
        "TListColumn",
        {
            Published<&TListColumn::GetAlignment, &TListColumn::SetAlignment>("Alignment")
                .Default(TAlignment::taLeftJustify),
            Published<&TListColumn::GetAutoSize, &TListColumn::SetAutoSize>("AutoSize").Default(false),
            Published<&TListColumn::GetCaption, &TListColumn::SetCaption>("Caption"),
            Published<&TListColumn::GetImageIndex, &TListColumn::SetImageIndex>("ImageIndex").Default(-1),
            Published<&TListColumn::GetMaxWidth, &TListColumn::SetMaxWidth>("MaxWidth").Default(0),
            Published<&TListColumn::GetMinWidth, &TListColumn::SetMinWidth>("MinWidth").Default(0),
            Published<&TListColumn::GetTag, &TListColumn::SetTag>("Tag").Default(0),
            Published<&TListColumn::GetWidth, &TListColumn::SetWidth>("Width").Default(50),
        });
    return Class;
}

void TListColumn::Assign(const TPersistent* Source)
{
    const TListColumn* const Other = As<TListColumn>(Source);
    if (!Other) {
        TCollectionItem::Assign(Source);
        return;
    }
    FCaption = Other->FCaption;
    FWidth = Other->FWidth;
    FAlignment = Other->FAlignment;
    FAutoSize = Other->FAutoSize;
    FImageIndex = Other->FImageIndex;
    FMaxWidth = Other->FMaxWidth;
    FMinWidth = Other->FMinWidth;
    FTag = Other->FTag;
    Changed(false);
}

const TClass& TListColumns::StaticClass()
{
    static const TClass Class = DefineClass<TListColumns, TOwnedCollection>("TListColumns");
    return Class;
}

TListColumns::TListColumns(TListView* ListView)
    : TOwnedCollection(ListView, TListColumn::StaticClass()), FListView(ListView)
{
}

void TListColumns::Update(TCollectionItem*)
{
    // The columns go last.
    if (!FListView->Is(TComponentState::csDestroying))
        FListView->ColumnsChanged();
}

const TClass& TListView::StaticClass()
{
    static const TClass Class = DefineClass<TListView, TPeerControl>(
        "TListView",
        {
            Publish("Align"),
            Publish("Anchors"),
            Publish("BiDiMode"),
            Published<&TListView::GetBorderStyle, &TListView::SetBorderStyle>("BorderStyle")
                .Default(TBorderStyle::bsSingle),
            Published<&TListView::GetCheckboxes, &TListView::SetCheckboxes>("Checkboxes").Default(false),
            Publish("Color"),
            Published<&TListView::GetColumns, &TListView::SetColumns>("Columns"),
            Published<&TListView::GetColumnClick, &TListView::SetColumnClick>("ColumnClick").Default(true),
            Publish("Constraints"),
            Publish("Ctl3D"),
            Publish("DragCursor"),
            Publish("DragKind"),
            Publish("DragMode"),
            Publish("Enabled"),
            Publish("Font"),
            Published<&TListView::GetGridLines, &TListView::SetGridLines>("GridLines").Default(false),
            Published<&TListView::GetHideSelection, &TListView::SetHideSelection>("HideSelection")
                .Default(true),
            Published<&TListView::GetHotTrack, &TListView::SetHotTrack>("HotTrack").Default(false),
            Published<&TListView::GetMultiSelect, &TListView::SetMultiSelect>("MultiSelect").Default(false),
            Published<&TListView::GetReadOnly, &TListView::SetReadOnly>("ReadOnly").Default(false),
            Published<&TListView::GetRowSelect, &TListView::SetRowSelect>("RowSelect").Default(false),
            Publish("ParentBiDiMode"),
            Publish("ParentColor").Default(false),
            Publish("ParentFont"),
            Publish("ParentShowHint"),
            Publish("PopupMenu"),
            Published<&TListView::GetShowColumnHeaders, &TListView::SetShowColumnHeaders>("ShowColumnHeaders")
                .Default(true),
            Publish("ShowHint"),
            Publish("TabOrder"),
            Publish("TabStop").Default(true),
            Published<&TListView::GetViewStyle, &TListView::SetViewStyle>("ViewStyle")
                .Default(TViewStyle::vsIcon),
            Publish("Visible"),
            Publish("OnClick"),
            Published<&TListView::OnColumnClick>("OnColumnClick"),
            Publish("OnDblClick"),
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
            Publish("OnResize"),
            Published<&TListView::OnSelectItem>("OnSelectItem"),
            Publish("OnStartDock"),
            Publish("OnStartDrag"),
        });
    return Class;
}

TListView::TListView(TComponent* Owner)
    : TPeerControl(Owner, TWindowKind::ListView, {250, 150}), FColumns(std::make_unique<TListColumns>(this))
{
    FControlStyle.Exclude(TControlStyleFlag::csClickEvents).Exclude(TControlStyleFlag::csSetCaption);
    SetTabStop(true);
    SetParentColor(false);
}

TListView::~TListView() = default;

void TListView::CreateParams(TCreateParams& Params)
{
    TPeerControl::CreateParams(Params);
    if (FBorderStyle == TBorderStyle::bsNone)
        return;
    if (GetCtl3D())
        Params.ExStyle |= WS_EX_CLIENTEDGE;
    else
        Params.Style |= WS_BORDER;
}

void TListView::SetBorderStyle(TBorderStyle Value)
{
    if (FBorderStyle == Value)
        return;
    FBorderStyle = Value;
    RecreateWnd();
}

void TListView::SetCheckboxes(bool Value)
{
    FCheckboxes = Value;
    ApplyOptions();
}

void TListView::SetMultiSelect(bool Value)
{
    FMultiSelect = Value;
    ApplyOptions();
}

void TListView::SetRowSelect(bool Value)
{
    FRowSelect = Value;
    ApplyOptions();
}

void TListView::SetShowColumnHeaders(bool Value)
{
    FShowColumnHeaders = Value;
    ApplyOptions();
}

void TListView::SetViewStyle(TViewStyle Value)
{
    FViewStyle = Value;
    ApplyOptions();
}

TListItem* TListView::GetItem(int Index) const
{
    if (Index < 0 || Index >= GetCount())
        throw EListError("List index out of bounds (" + IntToStr(Index) + ")");
    return FItems[static_cast<std::size_t>(Index)].get();
}

int TListView::IndexOf(const TListItem* Item) const
{
    const auto StandsAt = [&](int Place) {
        return Place >= 0 && Place < FPlaced && FItems[static_cast<std::size_t>(Place)].get() == Item;
    };
    if (!Item || Item->FListView != this)
        return -1;
    if (StandsAt(Item->FPlace))
        return Item->FPlace;
    for (; FPlaced < GetCount(); ++FPlaced)
        FItems[static_cast<std::size_t>(FPlaced)]->FPlace = FPlaced;
    return StandsAt(Item->FPlace) ? Item->FPlace : -1;
}

TListItem* TListView::Insert(int Index)
{
    if (Index < 0 || Index > GetCount())
        throw EListError("List index out of bounds (" + IntToStr(Index) + ")");
    const auto Place = FItems.insert(FItems.begin() + Index, std::make_unique<TListItem>(this));
    FPlaced = std::min(FPlaced, Index);
    if (View())
        View()->InsertRow(Index, (*Place)->Cells());
    return Place->get();
}

void TListView::Delete(int Index)
{
    GetItem(Index);
    // Out of the list before it dies, so that nobody finds a row that is half gone.
    const std::unique_ptr<TListItem> Gone = std::move(FItems[static_cast<std::size_t>(Index)]);
    FItems.erase(FItems.begin() + Index);
    FPlaced = std::min(FPlaced, Index);
    if (View())
        View()->DeleteRow(Index);
}

void TListView::Clear()
{
    FItems.clear();
    FPlaced = 0;
    if (View())
        View()->Clear();
}

TListItem* TListView::GetSelected() const
{
    if (View()) {
        const int Focused = View()->GetFocusedRow();
        if (Focused >= 0 && Focused < GetCount() && View()->IsSelected(Focused))
            return GetItem(Focused);
    }
    const auto Found =
        std::find_if(FItems.begin(), FItems.end(), [](const auto& Item) { return Item->GetSelected(); });
    return Found == FItems.end() ? nullptr : Found->get();
}

void TListView::SetSelected(TListItem* Item)
{
    for (const auto& Each : FItems)
        if (Each.get() != Item && Each->GetSelected())
            Each->SetSelected(false);
    if (!Item)
        return;
    Item->SetSelected(true);
    if (View()) {
        View()->SetFocusedRow(Item->GetIndex());
        View()->ScrollIntoView(Item->GetIndex());
    }
}

TListItem* TListView::GetItemAt(int X, int Y) const
{
    const int Row = View() ? View()->RowAt({X, Y}) : -1;
    return Row >= 0 && Row < GetCount() ? GetItem(Row) : nullptr;
}

void TListView::ItemChanged(TListItem* Item)
{
    const int Index = View() ? IndexOf(Item) : -1;
    if (Index >= 0)
        View()->SetRow(Index, Item->Cells());
}

void TListView::ColumnsChanged()
{
    if (!View())
        return;
    std::vector<TListColumnSpec> Specs;
    for (int Index = 0; Index < FColumns->GetCount(); ++Index) {
        const TListColumn& Column = *FColumns->GetItem(Index);
        Specs.push_back({Column.GetCaption(), Column.GetWidth(), TextAlignOf(Column.GetAlignment())});
    }
    View()->SetColumns(Specs);
}

void TListView::ApplyOptions()
{
    if (!View())
        return;
    View()->SetViewStyle(static_cast<TListViewStyle>(FViewStyle));
    View()->SetShowHeader(FShowColumnHeaders);
    View()->SetCheckBoxes(FCheckboxes);
    View()->SetMultiSelect(FMultiSelect);
    View()->SetRowSelect(FRowSelect);
}

void TListView::ApplyState()
{
    ApplyOptions();
    ColumnsChanged();
    View()->Clear();
    for (int Index = 0; Index < GetCount(); ++Index) {
        const TListItem& Item = *FItems[static_cast<std::size_t>(Index)];
        View()->InsertRow(Index, Item.Cells());
        if (FCheckboxes)
            View()->SetChecked(Index, Item.FChecked);
        if (Item.FSelected)
            View()->SetSelected(Index, true);
    }
    if (FKeptFocus >= 0 && FKeptFocus < GetCount())
        View()->SetFocusedRow(FKeptFocus);
}

void TListView::DestroyWnd()
{
    for (const auto& Item : FItems) {
        Item->FChecked = Item->GetChecked();
        Item->FSelected = Item->GetSelected();
    }
    FKeptFocus = View()->GetFocusedRow();
    TPeerControl::DestroyWnd();
}

void TListView::SelectionChanged(int Index)
{
    TListItem* const Item = Index >= 0 && Index < GetCount() ? GetItem(Index) : nullptr;
    TAliveGuard Guard(*this);
    OnSelectItem(this, Item, Item != nullptr);
    if (Guard.IsAlive())
        Click();
}

void TListView::PeerNotice(TPeerNotice Notice, std::int64_t Index)
{
    switch (Notice) {
    case TPeerNotice::ItemSelected:
        SelectionChanged(static_cast<int>(Index));
        break;
    case TPeerNotice::ItemActivated:
        DblClick();
        break;
    case TPeerNotice::ColumnClicked:
        if (FColumnClick && Index >= 0 && Index < FColumns->GetCount())
            OnColumnClick(this, FColumns->GetItem(static_cast<int>(Index)));
        break;
    default:
        break;
    }
}

void TListView::WMGetDlgCode(TMessage& Message)
{
    Message.Result = DLGC_WANTARROWS | DLGC_WANTCHARS;
}

} // namespace vcl
