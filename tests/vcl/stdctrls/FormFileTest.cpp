#include "StandardFixture.h"

#include "support/Expected.h"
#include "support/PropertyLoop.h"
#include "vcl/controls/Button.h"
#include "vcl/controls/CheckBox.h"
#include "vcl/controls/ComboBox.h"
#include "vcl/controls/Label.h"
#include "vcl/controls/ListBox.h"
#include "vcl/controls/ListView.h"
#include "vcl/controls/Panel.h"
#include "vcl/controls/SpeedButton.h"
#include "vcl/controls/SpinEdit.h"
#include "vcl/controls/StatusBar.h"
#include "vcl/forms/FileDialog.h"

namespace vcl::tests
{

/// A form file as programs have them, with every standard control.
class TStandardFormFileTest : public TStandardTest
{
protected:
    TStandardFormFileTest() { detail::ReadText(ReadTestData("stdctrls/controls.dfm"), Form()); }

    template <class T>
    T& Part(const char* Name)
    {
        T* const Found = As<T>(Form().FindComponent(Name));
        if (!Found)
            throw std::runtime_error(std::string("The form has no ") + Name);
        return *Found;
    }
};

TEST_F(TStandardFormFileTest, ItIsWrittenAsItWasRead)
{
    std::string Text = detail::TextOf(Form());
    std::erase(Text, '\r');
    EXPECT_TRUE(MatchesExpected("stdctrls/controls.dfm", Text));
}

TEST_F(TStandardFormFileTest, ShowingItChangesOnlyWhatThePlatformDecides)
{
    ShowForm();
    EXPECT_EQ(Part<TEdit>("NameEdit").GetHeight(), 21);
    EXPECT_EQ(Part<TLabel>("NameLabel").GetWidth(), 28);
    EXPECT_EQ(Part<TComboBox>("Colours").GetText(), "green");
    EXPECT_EQ(Part<TComboBox>("Town").GetText(), "Anywhere");
    EXPECT_EQ(Part<TSpinEdit>("Count").GetValue(), 25);
}

TEST_F(TStandardFormFileTest, ReferencesAreResolved)
{
    EXPECT_EQ(Form().GetActiveControl(), &Part<TEdit>("NameEdit"));
    EXPECT_EQ(Form().GetMenu(), &Part<TMainMenu>("MainMenu"));
    EXPECT_EQ(Form().GetPopupMenu(), &Part<TPopupMenu>("Popup"));
    EXPECT_EQ(Part<TLabel>("NameLabel").GetFocusControl(), &Part<TEdit>("NameEdit"));
    EXPECT_EQ(Part<TMainMenu>("MainMenu").GetImages(), &Part<TImageList>("Pictures"));
}

TEST_F(TStandardFormFileTest, MenuItemsStandDirectlyBelowTheMenuAndBelowEachOther)
{
    const TMenuItem& Root = *Part<TMainMenu>("MainMenu").GetItems();
    ASSERT_EQ(Root.GetCount(), 2);
    EXPECT_EQ(Root.GetItem(0), &Part<TMenuItem>("FileItem"));
    ASSERT_EQ(Root.GetItem(0)->GetCount(), 3);
    EXPECT_EQ(Root.GetItem(0)->GetItem(2)->GetItem(0), &Part<TMenuItem>("FirstItem"));
    EXPECT_EQ(Part<TMenuItem>("FirstItem").GetMenu(), &Part<TMainMenu>("MainMenu"));
    ShowForm();
    const std::vector<TMenuSpec::TItem>& Shown = WindowOf(Form()).GetMenu().Items;
    ASSERT_EQ(Shown.size(), 2u);
    EXPECT_EQ(Shown[0].Items[0].ShortCut, scCtrl | 'O');
    EXPECT_EQ(Shown[0].Items[1].Caption, "-");
    EXPECT_TRUE(Shown[0].Items[2].Items[0].Radio);
    EXPECT_FALSE(Shown[1].Visible);
}

TEST_F(TStandardFormFileTest, EverythingReachesTheWindows)
{
    ShowForm();
    EXPECT_THAT(WindowOf(Part<TStatusBar>("Status")).GetStatusBar()->GetPanels(),
                ElementsAre(TStatusPanelSpec{"ready", 120, TTextAlign::Center, 1},
                            TStatusPanelSpec{"", 50, TTextAlign::Left, 0}));
    EXPECT_THAT(WindowOf(Part<TListView>("Lines")).GetListView()->GetColumns(),
                ElementsAre(TListColumnSpec{"Article", 120, TTextAlign::Left},
                            TListColumnSpec{"Price", 50, TTextAlign::Right}));
    EXPECT_THAT(WindowOf(Part<TComboBox>("Colours")).GetList()->GetItems(),
                ElementsAre("red", "green", "it's blue"));
    EXPECT_EQ(WindowOf(Part<TComboBox>("Colours")).GetList()->GetItemIndex(), 1);
    EXPECT_THAT(WindowOf(Part<TListBox>("Sizes")).GetList()->GetItems(), ElementsAre("small", "large"));
    EXPECT_EQ(WindowOf(Part<TCheckBox>("Gift")).GetButton()->GetCheckState(), TCheckState::Grayed);
    EXPECT_EQ(WindowOf(Part<TEdit>("Secret")).GetEdit()->GetPasswordChar(), U'*');
    EXPECT_EQ(WindowOf(Part<TSpeedButton>("LeftTool")).GetButton()->GetGlyphSize(), (TSize{2, 4}));
    EXPECT_EQ(WindowOf(Part<TSpeedButton>("LeftTool")).GetButton()->GetCheckState(), TCheckState::Checked);
    EXPECT_FALSE(WindowOf(Part<TButton>("CancelButton")).IsVisible());
}

TEST_F(TStandardFormFileTest, ADialogHasItsOptions)
{
    const TOpenDialog& Dialog = Part<TOpenDialog>("OpenDialog");
    EXPECT_EQ(Dialog.GetFilterIndex(), 2);
    EXPECT_TRUE(Dialog.GetOptions().Contains(TOpenOption::ofAllowMultiSelect));
    EXPECT_FALSE(Dialog.GetOptions().Contains(TOpenOption::ofEnableSizing));
    EXPECT_EQ(Part<TSaveDialog>("SaveDialog").GetOptions(),
              (TOpenOptions{TOpenOption::ofHideReadOnly, TOpenOption::ofEnableSizing}));
}

TEST_F(TStandardFormFileTest, HandlersStayByTheirNames)
{
    EXPECT_EQ(Part<TEdit>("NameEdit").OnChange.GetHandlerName(), "NameEditChange");
    EXPECT_EQ(Part<TMenuItem>("OpenItem").OnClick.GetHandlerName(), "OpenItemClick");
    EXPECT_EQ(Part<TListView>("Lines").OnSelectItem.GetHandlerName(), "LinesSelectItem");
}

TEST_F(TStandardFormFileTest, AFreedControlIsReferredToNoMore)
{
    delete &Part<TEdit>("NameEdit");
    delete &Part<TPopupMenu>("Popup");
    delete &Part<TImageList>("Pictures");
    EXPECT_EQ(Form().GetActiveControl(), nullptr);
    EXPECT_EQ(Form().GetPopupMenu(), nullptr);
    EXPECT_EQ(Part<TLabel>("NameLabel").GetFocusControl(), nullptr);
    EXPECT_EQ(Part<TMainMenu>("MainMenu").GetImages(), nullptr);
    ShowForm();
}

} // namespace vcl::tests
