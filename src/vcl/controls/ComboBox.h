#pragma once

#include "vcl/controls/Edit.h"
#include "vcl/controls/PeerStrings.h"

namespace vcl
{

enum class TComboBoxStyle { csDropDown, csSimple, csDropDownList, csOwnerDrawFixed, csOwnerDrawVariable };
template <>
struct TypeTraits<TComboBoxStyle> {
    static const TTypeInfo& Info();
};

/// A list that opens below a field; the field can be typed into in the styles csDropDown and csSimple. The
/// owner-draw styles are lists to choose from whose rows the platform draws.
class TComboBox : public TPeerControl
{
    VCL_CLASS
public:
    explicit TComboBox(TComponent* Owner);

    /// Typing completes to the first row that begins so. Kept for form files, as are AutoDropDown and
    /// ItemHeight: the platform's field decides.
    bool GetAutoComplete() const { return FAutoComplete; }
    void SetAutoComplete(bool Value) { FAutoComplete = Value; }
    bool GetAutoDropDown() const { return FAutoDropDown; }
    void SetAutoDropDown(bool Value) { FAutoDropDown = Value; }
    /// Capitals or small letters only, of what is typed and what the program sets.
    TEditCharCase GetCharCase() const { return FCharCase; }
    void SetCharCase(TEditCharCase Value);
    /// Rows the open list shows at most.
    int GetDropDownCount() const { return FDropDownCount; }
    void SetDropDownCount(int Value);
    TStrings* GetItems() const { return &FItems; }
    void SetItems(const TStrings* Value) { FItems.Assign(Value); }
    int GetItemHeight() const { return FItemHeight; }
    void SetItemHeight(int Value) { FItemHeight = Value; }
    /// The chosen row, -1 none (or a typed text that is in no row). While the form is read the rows may
    /// follow later.
    int GetItemIndex() const;
    void SetItemIndex(int Value);
    int GetMaxLength() const { return FMaxLength; }
    void SetMaxLength(int Value);
    bool GetSorted() const { return FItems.GetSorted(); }
    void SetSorted(bool Value) { FItems.SetSorted(Value); }
    TComboBoxStyle GetStyle() const { return FStyle; }
    void SetStyle(TComboBoxStyle Value);

    /// In a list to choose from only a row's text is accepted.
    void SetText(const AnsiString& Value) override;
    bool GetDroppedDown() const { return List() && List()->IsDroppedDown(); }
    void SetDroppedDown(bool Value);

    TNotifyEvent OnChange;
    TNotifyEvent OnCloseUp;
    TNotifyEvent OnDropDown;
    /// A row was chosen by the user; without a handler OnChange tells it.
    TNotifyEvent OnSelect;

protected:
    void CreateParams(TCreateParams& Params) override;
    void ApplyState() override;
    void PeerNotice(TPeerNotice Notice, std::int64_t Index) override;
    void Loaded() override;
    void CMTextChanged(TMessage& Message) override;
    void WMGetDlgCode(TMessage& Message) override;
    void CMWantSpecialKey(TMessage& Message) override;

private:
    IListPeer* List() const { return Peer() ? Peer()->List() : nullptr; }
    bool IsEditable() const;
    void ShowChoice();
    void RowsChanged();
    void RowChosen(int Index);
    void TextTyped();

    mutable TPeerStrings FItems;
    int FDropDownCount = 8;
    int FItemHeight = 0;
    int FReadIndex = -1; // ItemIndex of a form file that is being read
    int FMaxLength = 0;
    TComboBoxStyle FStyle = TComboBoxStyle::csDropDown;
    TEditCharCase FCharCase = TEditCharCase::ecNormal;
    bool FAutoComplete = true;
    bool FAutoDropDown = false;
};

} // namespace vcl
