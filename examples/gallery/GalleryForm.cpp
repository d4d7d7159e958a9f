#include "gallery/GalleryForm.h"

#include <algorithm>

#include "gallery/Icons.h"
#include "vcl/classes/Stream.h"
#include "vcl/forms/LoadForm.h"
#include "vcl/platform/VirtualKeys.h"

namespace gallery
{

namespace
{

/// Posted to the form when it shows: by then its controls have their windows.
constexpr unsigned WM_FINISHSTATE = vcl::WM_USER + 1;

vcl::AnsiString RowCaption(const TInspectorRow& Row)
{
    const char* const Mark = !Row.IsExpandable ? "    " : Row.IsExpanded ? "\xE2\x96\xBE " : "\xE2\x96\xB8 ";
    return vcl::AnsiString(static_cast<std::size_t>(Row.Depth) * 4, ' ') + Mark + Row.Path;
}

/// Lists change by program until the end of the block.
class TFilling
{
public:
    explicit TFilling(bool& Flag) : FFlag(Flag), FBefore(Flag) { FFlag = true; }
    ~TFilling() { FFlag = FBefore; }
    TFilling(const TFilling&) = delete;
    TFilling& operator=(const TFilling&) = delete;

private:
    bool& FFlag;
    bool FBefore;
};

} // namespace

const vcl::TClass& TGalleryForm::StaticClass()
{
    using namespace vcl;
    static const TClass Class = DefineClass<TGalleryForm, TForm>(
        "TGalleryForm", {},
        {
            PublishedMethod<&TGalleryForm::PageChange>("PageChange"),
            PublishedMethod<&TGalleryForm::StateClick>("StateClick"),
            PublishedMethod<&TGalleryForm::PropertySelect>("PropertySelect"),
            PublishedMethod<&TGalleryForm::PropertyDblClick>("PropertyDblClick"),
            PublishedMethod<&TGalleryForm::PropertyKeyDown>("PropertyKeyDown"),
            PublishedMethod<&TGalleryForm::ValueKeyDown>("ValueKeyDown"),
            PublishedMethod<&TGalleryForm::ValueExit>("ValueExit"),
            PublishedMethod<&TGalleryForm::ValueChoose>("ValueChoose"),
        });
    return Class;
}

TGalleryForm::TGalleryForm(vcl::TComponent* Owner) : TForm(Owner)
{
}

TGalleryForm::~TGalleryForm() = default;

void TGalleryForm::AfterConstruction()
{
    TForm::AfterConstruction();
    const std::string_view Text = FormText("gallery");
    vcl::TMemoryStream Stream;
    Stream.WriteBuffer(Text.data(), static_cast<std::int64_t>(Text.size()));
    Stream.SetPosition(0);
    vcl::LoadForm(*this, Stream);
    FindParts();
}

/// What still has the focus loses it on the way out; nothing is taken over any more then.
void TGalleryForm::BeforeDestruction()
{
    FFilling = true;
    FInspector.SetObject(nullptr);
    TForm::BeforeDestruction();
}

template <class T>
T* TGalleryForm::Find(const char* Name) const
{
    T* const Component = vcl::As<T>(FindComponent(Name));
    if (!Component)
        throw vcl::EReadError(std::string("the gallery's form has no ") + T::StaticClass().Name + " " + Name);
    return Component;
}

void TGalleryForm::FindParts()
{
    FPageBox = Find<vcl::TComboBox>("PageBox");
    FStateList = Find<vcl::TListBox>("StateList");
    FStage = Find<vcl::TPanel>("Stage");
    FNameLabel = Find<vcl::TLabel>("NameLabel");
    FValueEdit = Find<vcl::TEdit>("ValueEdit");
    FValueBox = Find<vcl::TComboBox>("ValueBox");
    FPropertyList = Find<vcl::TListView>("PropertyList");
    FStatusBar = Find<vcl::TStatusBar>("StatusBar");
    FIcons = Find<vcl::TImageList>("Icons");
    MakeIcons(*FIcons);
}

// States

void TGalleryForm::ShowState(const TState& State)
{
    FInspector.SetObject(nullptr);
    delete FControl;
    FControl = nullptr;
    FState = &State;
    FillLists(State);
    MakeControl(State);
    FInspector.SetObject(FControl);
    FFinishDue = true;
    if (GetShowing())
        FinishState();
    Tell(vcl::AnsiString(State.Page) + ", " + State.Name);
}

void TGalleryForm::FillLists(const TState& State)
{
    const TFilling Filling(FFilling);
    FPageBox->GetItems()->Clear();
    for (const vcl::AnsiString& Page : Pages())
        FPageBox->GetItems()->Add(Page);
    FPageBox->SetItemIndex(FPageBox->GetItems()->IndexOf(State.Page));
    vcl::TStrings* const Names = FStateList->GetItems();
    const std::vector<const TState*> OnPage = StatesOf(State.Page);
    const bool IsSamePage = Names->GetCount() == static_cast<int>(OnPage.size()) &&
                            Names->GetString(0) == OnPage.front()->Name && Names->IndexOf(State.Name) >= 0;
    if (!IsSamePage) {
        Names->Clear();
        for (const TState* const Other : OnPage)
            Names->Add(Other->Name);
    }
    FStateList->SetItemIndex(Names->IndexOf(State.Name));
}

void TGalleryForm::MakeControl(const TState& State)
{
    FControl = vcl::As<vcl::TWinControl>(vcl::FindClass(State.Page).Create(this));
    if (!FControl)
        throw vcl::EClassNotFound(vcl::AnsiString(State.Page) + " is no control");
    FControl->SetName("Example");
    if (State.Width > 0) {
        FControl->SetWidth(State.Width);
        FControl->SetAlign(vcl::TAlign::alLeft);
    } else {
        FControl->SetAlign(vcl::TAlign::alClient);
    }
    FControl->SetTabStop(true);
    FControl->SetParent(FStage);
    TScene Scene{*FControl, *FIcons};
    State.Setup(Scene);
}

void TGalleryForm::FinishState()
{
    FFinishDue = false;
    if (FControl && FState->Shown) {
        FControl->HandleNeeded();
        TScene Scene{*FControl, *FIcons};
        FState->Shown(Scene);
    }
    RefreshRows();
}

void TGalleryForm::DoShow()
{
    TForm::DoShow();
    PostMessage(WM_FINISHSTATE);
}

void TGalleryForm::Dispatch(vcl::TMessage& Message)
{
    if (Message.Msg != WM_FINISHSTATE) {
        TForm::Dispatch(Message);
        return;
    }
    if (FFinishDue)
        FinishState();
}

void TGalleryForm::PageChange(vcl::TObject*)
{
    const int Index = FPageBox->GetItemIndex();
    if (!FFilling && Index >= 0)
        ShowState(*StatesOf(FPageBox->GetItems()->GetString(Index)).front());
}

void TGalleryForm::StateClick(vcl::TObject*)
{
    const int Index = FStateList->GetItemIndex();
    if (FFilling || Index < 0)
        return;
    const TState* const State = FindState(FState->Page, FStateList->GetItems()->GetString(Index));
    if (State && State != FState)
        ShowState(*State);
}

// Properties

/// Changes only the cells that differ while the rows stay, so that the list keeps its place.
void TGalleryForm::RefreshRows()
{
    const TFilling Filling(FFilling);
    const std::vector<TInspectorRow> Rows = FInspector.Rows();
    const bool SameRows =
        std::equal(Rows.begin(), Rows.end(), FRows.begin(), FRows.end(),
                   [](const TInspectorRow& Left, const TInspectorRow& Right) {
                       return Left.Path == Right.Path && Left.IsExpanded == Right.IsExpanded;
                   });
    if (!SameRows)
        FPropertyList->Clear();
    FRows = Rows;
    for (int Index = 0; Index < static_cast<int>(FRows.size()); ++Index)
        ShowRow(Index);
    ShowEditor();
}

void TGalleryForm::ShowRow(int Index)
{
    const TInspectorRow& Row = FRows[static_cast<std::size_t>(Index)];
    if (Index < FPropertyList->GetCount()) {
        vcl::TStrings* const Cells = FPropertyList->GetItem(Index)->GetSubItems();
        if (Cells->GetString(0) != Row.Text)
            Cells->SetString(0, Row.Text);
        return;
    }
    vcl::TListItem* const Item = FPropertyList->Add();
    Item->SetCaption(RowCaption(Row));
    Item->GetSubItems()->Add(Row.Text);
    if (Row.Path == FSelectedPath)
        FPropertyList->SetSelected(Item);
}

const TInspectorRow* TGalleryForm::SelectedRow() const
{
    const auto Found = std::find_if(FRows.begin(), FRows.end(),
                                    [this](const TInspectorRow& Row) { return Row.Path == FSelectedPath; });
    return Found == FRows.end() ? nullptr : &*Found;
}

void TGalleryForm::ShowEditor()
{
    const TFilling Filling(FFilling);
    const TInspectorRow* const Row = SelectedRow();
    const bool IsChoice = Row && Row->Editor == TRowEditor::Choice;
    FNameLabel->SetCaption(Row ? Row->Path : "Choose a property");
    FValueEdit->SetVisible(!IsChoice);
    FValueBox->SetVisible(IsChoice);
    FValueEdit->SetEnabled(Row && Row->Editor == TRowEditor::Text);
    FValueEdit->SetText(Row ? Row->Text : "");
    FValueEdit->SetModified(false);
    if (!IsChoice)
        return;
    FValueBox->GetItems()->Clear();
    for (const vcl::AnsiString& Choice : FInspector.Choices(Row->Path))
        FValueBox->GetItems()->Add(Choice);
    FValueBox->SetItemIndex(FValueBox->GetItems()->IndexOf(Row->Text));
}

void TGalleryForm::PropertySelect(vcl::TObject*, vcl::TListItem* Item, bool Selected)
{
    if (FFilling || !Selected)
        return;
    FSelectedPath = FRows[static_cast<std::size_t>(Item->GetIndex())].Path;
    ShowEditor();
}

void TGalleryForm::ToggleSelected()
{
    const TInspectorRow* const Row = SelectedRow();
    if (!Row || !Row->IsExpandable)
        return;
    FInspector.Toggle(Row->Path);
    RefreshRows();
}

void TGalleryForm::PropertyDblClick(vcl::TObject*)
{
    ToggleSelected();
}

void TGalleryForm::PropertyKeyDown(vcl::TObject*, std::uint16_t& Key, vcl::TShiftState)
{
    if (Key != vcl::VK_RETURN)
        return;
    Key = 0;
    ToggleSelected();
}

/// True when the property took the text; otherwise the reason stands in the status bar.
bool TGalleryForm::Apply(const vcl::AnsiString& Text)
{
    const vcl::AnsiString Path = FSelectedPath;
    bool IsTaken = true;
    try {
        FInspector.SetText(Path, Text);
        Tell(Path + " is now " + FInspector.GetText(Path));
    } catch (const std::exception& Error) {
        Tell(Path + ": " + Error.what());
        IsTaken = false;
    }
    return IsTaken;
}

void TGalleryForm::ValueKeyDown(vcl::TObject*, std::uint16_t& Key, vcl::TShiftState)
{
    if (Key == vcl::VK_ESCAPE)
        ShowEditor();
    else if (Key == vcl::VK_RETURN && Apply(FValueEdit->GetText()))
        RefreshRows();
    else if (Key != vcl::VK_RETURN)
        return;
    Key = 0;
}

void TGalleryForm::ValueExit(vcl::TObject*)
{
    if (FFilling || !FValueEdit->GetModified())
        return;
    Apply(FValueEdit->GetText());
    RefreshRows();
}

void TGalleryForm::ValueChoose(vcl::TObject*)
{
    const int Index = FValueBox->GetItemIndex();
    if (FFilling || Index < 0)
        return;
    Apply(FValueBox->GetItems()->GetString(Index));
    RefreshRows();
}

} // namespace gallery
