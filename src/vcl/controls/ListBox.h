#pragma once

#include "vcl/controls/PeerControl.h"
#include "vcl/controls/PeerStrings.h"

namespace vcl
{

enum class TListBoxStyle { lbStandard, lbOwnerDrawFixed, lbOwnerDrawVariable };
template <>
struct TypeTraits<TListBoxStyle> {
    static const TTypeInfo& Info();
};

/// A list to choose from.
class TCustomListBox : public TPeerControl
{
    VCL_CLASS
public:
    explicit TCustomListBox(TComponent* Owner);

    /// Typing chooses the first row that begins so. Kept for form files, as are Columns, IntegralHeight,
    /// Style and TabWidth: the platform's list decides.
    bool GetAutoComplete() const { return FAutoComplete; }
    void SetAutoComplete(bool Value) { FAutoComplete = Value; }
    int GetColumns() const { return FColumns; }
    void SetColumns(int Value) { FColumns = Value; }
    bool GetIntegralHeight() const { return FIntegralHeight; }
    void SetIntegralHeight(bool Value) { FIntegralHeight = Value; }
    TListBoxStyle GetStyle() const { return FStyle; }
    void SetStyle(TListBoxStyle Value) { FStyle = Value; }
    int GetTabWidth() const { return FTabWidth; }
    void SetTabWidth(int Value) { FTabWidth = Value; }
    /// With MultiSelect: Shift and Ctrl extend the selection; otherwise each click changes one row.
    bool GetExtendedSelect() const { return FExtendedSelect; }
    void SetExtendedSelect(bool Value);
    TBorderStyle GetBorderStyle() const { return FBorderStyle; }
    void SetBorderStyle(TBorderStyle Value);
    /// Pixels of a row; 0 as the font wants.
    int GetItemHeight() const { return FItemHeight; }
    void SetItemHeight(int Value);
    TStrings* GetItems() const { return &FItems; }
    void SetItems(const TStrings* Value) { FItems.Assign(Value); }
    bool GetMultiSelect() const { return FMultiSelect; }
    void SetMultiSelect(bool Value);
    bool GetSorted() const { return FItems.GetSorted(); }
    void SetSorted(bool Value) { FItems.SetSorted(Value); }

    /// The chosen row, -1 none; with MultiSelect the row with the focus mark.
    int GetItemIndex() const;
    void SetItemIndex(int Value);
    /// Raises EListError "List index out of bounds (%d)".
    bool GetSelected(int Index) const;
    void SetSelected(int Index, bool Value);
    int GetTopIndex() const;
    void SetTopIndex(int Value);
    /// The row at a client point, or -1.
    int ItemAtPos(TPoint Point) const;
    TRect ItemRect(int Index) const;
    void Clear() { FItems.Clear(); }

protected:
    void CreateParams(TCreateParams& Params) override;
    void ApplyState() override;
    void DestroyWnd() override;
    void PeerNotice(TPeerNotice Notice, std::int64_t Index) override;
    void WMGetDlgCode(TMessage& Message) override;

private:
    IListPeer* List() const { return Peer() ? Peer()->List() : nullptr; }
    void CheckIndex(int Index) const;

    mutable TPeerStrings FItems;
    int FColumns = 0;
    int FItemHeight = 0;
    int FKeptTop = 0; // the first visible row while the window is made anew
    int FTabWidth = 0;
    TListBoxStyle FStyle = TListBoxStyle::lbStandard;
    TBorderStyle FBorderStyle = TBorderStyle::bsSingle;
    bool FAutoComplete = true;
    bool FExtendedSelect = true;
    bool FIntegralHeight = false;
    bool FMultiSelect = false;
};

/// The list box that forms hold.
class TListBox : public TCustomListBox
{
    VCL_CLASS
public:
    using TCustomListBox::TCustomListBox;
};

} // namespace vcl
