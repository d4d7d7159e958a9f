#pragma once

#include "vcl/controls/PeerControl.h"
#include "vcl/controls/PeerStrings.h"

namespace vcl
{

enum class TComboBoxStyle { csDropDown, csSimple, csDropDownList };
template <>
struct TypeTraits<TComboBoxStyle> {
    static const TTypeInfo& Info();
};

/// A list that opens below a field; the field can be typed into unless the style is csDropDownList.
class TComboBox : public TPeerControl
{
    VCL_CLASS
public:
    explicit TComboBox(TComponent* Owner);

    /// Rows the open list shows at most.
    int GetDropDownCount() const { return FDropDownCount; }
    void SetDropDownCount(int Value);
    TStrings* GetItems() const { return &FItems; }
    void SetItems(const TStrings* Value);
    /// The chosen row, -1 none (or a typed text that is in no row).
    int GetItemIndex() const { return FItemIndex; }
    void SetItemIndex(int Value);
    int GetMaxLength() const { return FMaxLength; }
    void SetMaxLength(int Value);
    bool GetSorted() const { return FItems.GetSorted(); }
    void SetSorted(bool Value) { FItems.SetSorted(Value); }
    TComboBoxStyle GetStyle() const { return FStyle; }
    void SetStyle(TComboBoxStyle Value);

    bool GetDroppedDown() const { return List() && List()->IsDroppedDown(); }
    void SetDroppedDown(bool Value);
    bool IsItemIndexStored() const { return FStyle == TComboBoxStyle::csDropDownList; }

    TNotifyEvent OnChange;
    TNotifyEvent OnCloseUp;
    TNotifyEvent OnDropDown;

protected:
    void CreateParams(TCreateParams& Params) override;
    void ApplyState() override;
    void PeerNotice(TPeerNotice Notice, std::int64_t Index) override;

private:
    IListPeer* List() const { return Peer() ? Peer()->List() : nullptr; }
    void ItemChosen(int Index);

    mutable TPeerStrings FItems;
    int FDropDownCount = 8;
    int FItemIndex = -1;
    int FMaxLength = 0;
    TComboBoxStyle FStyle = TComboBoxStyle::csDropDown;
};

} // namespace vcl
