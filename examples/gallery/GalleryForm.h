#pragma once

#include <memory>
#include <string_view>

#include "gallery/States.h"
#include "gallery/inspector/Inspector.h"
#include "vcl/controls/ComboBox.h"
#include "vcl/controls/Edit.h"
#include "vcl/controls/Label.h"
#include "vcl/controls/ListBox.h"
#include "vcl/controls/ListView.h"
#include "vcl/controls/Panel.h"
#include "vcl/controls/StatusBar.h"
#include "vcl/forms/Form.h"

/// The text of NAME.dfm of this folder; empty when there is none. Written by the build.
std::string_view FormText(std::string_view Name);

namespace gallery
{

/// The gallery's window: states at the left, the control in the middle, its properties at the right. Its
/// looks come from gallery.dfm.
class TGalleryForm : public vcl::TForm
{
    VCL_CLASS
public:
    explicit TGalleryForm(vcl::TComponent* Owner);
    ~TGalleryForm() override;

    void AfterConstruction() override;
    void BeforeDestruction() override;
    /// Shows a new control in that state, in place of the one shown. What the state does with a window on the
    /// screen follows when there is one.
    void ShowState(const TState& State);
    vcl::TWinControl* GetShownControl() const { return FControl; }

    // Handlers that the form file names
    void PageChange(vcl::TObject* Sender);
    void StateClick(vcl::TObject* Sender);
    void PropertySelect(vcl::TObject* Sender, vcl::TListItem* Item, bool Selected);
    void PropertyDblClick(vcl::TObject* Sender);
    void PropertyKeyDown(vcl::TObject* Sender, std::uint16_t& Key, vcl::TShiftState Shift);
    void ValueKeyDown(vcl::TObject* Sender, std::uint16_t& Key, vcl::TShiftState Shift);
    void ValueExit(vcl::TObject* Sender);
    void ValueChoose(vcl::TObject* Sender);

    void Dispatch(vcl::TMessage& Message) override;

protected:
    void DoShow() override;

private:
    template <class T>
    T* Find(const char* Name) const;
    void FindParts();
    void FillLists(const TState& State);
    void MakeControl(const TState& State);
    void FinishState();
    void RefreshRows();
    void ShowRow(int Index);
    void ShowEditor();
    void ToggleSelected();
    bool Apply(const vcl::AnsiString& Text);
    void Tell(const vcl::AnsiString& Text) { FStatusBar->SetSimpleText(Text); }
    const TInspectorRow* SelectedRow() const;

    TInspector FInspector;
    std::vector<TInspectorRow> FRows; // as the list shows them
    const TState* FState = nullptr;
    bool FFinishDue = false; // the state waits for the window
    bool FFilling = false;   // lists change by program, not by the user
    vcl::AnsiString FSelectedPath;

    vcl::TWinControl* FControl = nullptr;
    vcl::TImageList* FIcons = nullptr;
    vcl::TComboBox* FPageBox = nullptr;
    vcl::TListBox* FStateList = nullptr;
    vcl::TPanel* FStage = nullptr;
    vcl::TLabel* FNameLabel = nullptr;
    vcl::TEdit* FValueEdit = nullptr;
    vcl::TComboBox* FValueBox = nullptr;
    vcl::TListView* FPropertyList = nullptr;
    vcl::TStatusBar* FStatusBar = nullptr;
};

} // namespace gallery
