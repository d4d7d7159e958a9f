#pragma once

#include "vcl/controls/PeerControl.h"
#include "vcl/controls/PeerStrings.h"

namespace vcl
{

/// A list to choose from.
class TCustomListBox : public TPeerControl
{
    VCL_CLASS
public:
    explicit TCustomListBox(TComponent* Owner);

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

private:
    IListPeer* List() const { return Peer() ? Peer()->List() : nullptr; }
    void CheckIndex(int Index) const;

    mutable TPeerStrings FItems;
    int FItemHeight = 0;
    int FItemIndex = -1;
    TBorderStyle FBorderStyle = TBorderStyle::bsSingle;
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
