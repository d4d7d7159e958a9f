#pragma once

#include <memory>
#include <vector>

#include "vcl/classes/Collection.h"
#include "vcl/controls/ListItem.h"
#include "vcl/controls/PeerControl.h"

namespace vcl
{

class TListView;

enum class TViewStyle { vsIcon, vsSmallIcon, vsList, vsReport };
template <>
struct TypeTraits<TViewStyle> {
    static const TTypeInfo& Info();
};

/// A column of a list view in report style.
class TListColumn : public TCollectionItem
{
    VCL_CLASS
public:
    using TCollectionItem::TCollectionItem;

    TAlignment GetAlignment() const { return FAlignment; }
    void SetAlignment(TAlignment Value) { Change(FAlignment, Value); }
    const AnsiString& GetCaption() const { return FCaption; }
    void SetCaption(const AnsiString& Value) { Change(FCaption, Value); }
    /// Picture in the header. Kept for form files, as are AutoSize and the limits of the width.
    int GetImageIndex() const { return FImageIndex; }
    void SetImageIndex(int Value) { FImageIndex = Value; }
    bool GetAutoSize() const { return FAutoSize; }
    void SetAutoSize(bool Value) { FAutoSize = Value; }
    int GetMaxWidth() const { return FMaxWidth; }
    void SetMaxWidth(int Value) { FMaxWidth = Value; }
    int GetMinWidth() const { return FMinWidth; }
    void SetMinWidth(int Value) { FMinWidth = Value; }
    std::intptr_t GetTag() const { return FTag; }
    void SetTag(std::intptr_t Value) { FTag = Value; }
    /// Pixels.
    int GetWidth() const { return FWidth; }
    void SetWidth(int Value) { Change(FWidth, Value); }
    void Assign(const TPersistent* Source) override;

private:
    template <class T>
    void Change(T& Field, const T& Value)
    {
        if (Field == Value)
            return;
        Field = Value;
        Changed(false);
    }

    AnsiString FCaption;
    std::intptr_t FTag = 0;
    int FImageIndex = -1;
    int FMaxWidth = 0;
    int FMinWidth = 0;
    int FWidth = 50;
    bool FAutoSize = false;
    TAlignment FAlignment = TAlignment::taLeftJustify;
};

class TListColumns : public TOwnedCollection
{
    VCL_CLASS
public:
    explicit TListColumns(TListView* ListView);
    TListColumn* Add() { return static_cast<TListColumn*>(TCollection::Add()); }
    TListColumn* GetItem(int Index) const { return static_cast<TListColumn*>(TCollection::GetItem(Index)); }

protected:
    void Update(TCollectionItem* Item) override;

private:
    TListView* FListView;
};

using TLVSelectItemEvent = TEvent<void(TObject* Sender, TListItem* Item, bool Selected)>;
using TLVColumnClickEvent = TEvent<void(TObject* Sender, TListColumn* Column)>;

/// Rows with columns, or icons. The rows belong to the list view.
class TListView : public TPeerControl
{
    VCL_CLASS
public:
    explicit TListView(TComponent* Owner);
    ~TListView() override;

    TBorderStyle GetBorderStyle() const { return FBorderStyle; }
    void SetBorderStyle(TBorderStyle Value);
    bool GetCheckboxes() const { return FCheckboxes; }
    void SetCheckboxes(bool Value);
    TListColumns* GetColumns() const { return FColumns.get(); }
    void SetColumns(const TListColumns* Value) { FColumns->Assign(Value); }
    /// False: a click on a column's header tells nothing.
    bool GetColumnClick() const { return FColumnClick; }
    void SetColumnClick(bool Value) { FColumnClick = Value; }
    /// Kept for form files, as are HideSelection, HotTrack and ReadOnly: the platform's list decides.
    bool GetGridLines() const { return FGridLines; }
    void SetGridLines(bool Value) { FGridLines = Value; }
    bool GetHideSelection() const { return FHideSelection; }
    void SetHideSelection(bool Value) { FHideSelection = Value; }
    bool GetHotTrack() const { return FHotTrack; }
    void SetHotTrack(bool Value) { FHotTrack = Value; }
    bool GetReadOnly() const { return FReadOnly; }
    void SetReadOnly(bool Value) { FReadOnly = Value; }
    bool GetMultiSelect() const { return FMultiSelect; }
    void SetMultiSelect(bool Value);
    bool GetRowSelect() const { return FRowSelect; }
    void SetRowSelect(bool Value);
    bool GetShowColumnHeaders() const { return FShowColumnHeaders; }
    void SetShowColumnHeaders(bool Value);
    TViewStyle GetViewStyle() const { return FViewStyle; }
    void SetViewStyle(TViewStyle Value);

    int GetCount() const { return static_cast<int>(FItems.size()); }
    /// Raises EListError "List index out of bounds (%d)".
    TListItem* GetItem(int Index) const;
    int IndexOf(const TListItem* Item) const;
    TListItem* Add() { return Insert(GetCount()); }
    TListItem* Insert(int Index);
    void Delete(int Index);
    void Clear();
    /// The selected row with the focus mark, else the first selected one; null when none.
    TListItem* GetSelected() const;
    void SetSelected(TListItem* Item);
    TListItem* GetItemAt(int X, int Y) const;
    /// Called by the rows.
    void ItemChanged(TListItem* Item);
    void ColumnsChanged();

    TLVColumnClickEvent OnColumnClick;
    TLVSelectItemEvent OnSelectItem;

protected:
    void CreateParams(TCreateParams& Params) override;
    void ApplyState() override;
    void DestroyWnd() override;
    void PeerNotice(TPeerNotice Notice, std::int64_t Index) override;
    void WMGetDlgCode(TMessage& Message) override;

private:
    friend class TListItem;
    IListViewPeer* View() const { return Peer() ? Peer()->ListView() : nullptr; }
    void ApplyOptions();
    void SelectionChanged(int Index);

    std::unique_ptr<TListColumns> FColumns;
    std::vector<std::unique_ptr<TListItem>> FItems;
    /// Rows below this one stand where their FPlace says; the others were moved since.
    mutable int FPlaced = 0;
    int FKeptFocus = -1; // the row with the focus mark while the window is made anew
    TBorderStyle FBorderStyle = TBorderStyle::bsSingle;
    TViewStyle FViewStyle = TViewStyle::vsIcon;
    bool FCheckboxes = false;
    bool FColumnClick = true;
    bool FGridLines = false;
    bool FHideSelection = true;
    bool FHotTrack = false;
    bool FMultiSelect = false;
    bool FReadOnly = false;
    bool FRowSelect = false;
    bool FShowColumnHeaders = true;
};

} // namespace vcl
