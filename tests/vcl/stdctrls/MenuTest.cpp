#include "StandardFixture.h"

#include "vcl/controls/Edit.h"
#include "vcl/controls/Menu.h"

namespace vcl::tests
{

class TMenuTest : public TStandardTest
{
protected:
    template <class TParent>
    TMenuItem& AddItem(TParent& Parent, const AnsiString& Caption)
    {
        TMenuItem* const Item = New<TMenuItem>(&Form());
        Item->SetCaption(Caption);
        Item->OnClick = Noting(Caption);
        Parent.Add(Item);
        return *Item;
    }
    TMainMenu& AddMenu()
    {
        TMainMenu* const Menu = New<TMainMenu>(&Form());
        Form().SetMenu(Menu);
        return *Menu;
    }
    const std::vector<TMenuSpec::TItem>& Shown() { return WindowOf(Form()).GetMenu().Items; }
};

TEST_F(TMenuTest, AChosenItemIsClicked)
{
    TMainMenu& Menu = AddMenu();
    TMenuItem& File = AddItem(*Menu.GetItems(), "&File");
    AddItem(File, "&Open");
    AddItem(File, "&Close");
    ShowForm();
    ASSERT_EQ(Shown().size(), 1u);
    ASSERT_EQ(Shown()[0].Items.size(), 2u);
    WindowOf(Form()).Send(WM_COMMAND, Shown()[0].Items[1].Command);
    EXPECT_THAT(TakeNotes(), ElementsAre("&Close"));
}

TEST_F(TMenuTest, EveryChangeIsShownByTheForm)
{
    TMainMenu& Menu = AddMenu();
    TMenuItem& File = AddItem(*Menu.GetItems(), "File");
    TMenuItem& Open = AddItem(File, "Open");
    ShowForm();
    Open.SetCaption("Open...");
    Open.SetEnabled(false);
    Open.SetChecked(true);
    Open.SetShortCut(scCtrl | 'O');
    Open.SetDefault(true);
    const TMenuSpec::TItem& Item = Shown()[0].Items[0];
    EXPECT_EQ(Item.Caption, "Open...");
    EXPECT_FALSE(Item.Enabled);
    EXPECT_TRUE(Item.Checked && Item.Default);
    EXPECT_EQ(Item.ShortCut, scCtrl | 'O');
    Open.SetVisible(false);
    EXPECT_FALSE(Shown()[0].Items[0].Visible);
    AddItem(File, "Close");
    EXPECT_EQ(Shown()[0].Items.size(), 2u);
    delete &Open;
    EXPECT_EQ(Shown()[0].Items.size(), 1u);
    Form().SetMenu(nullptr);
    EXPECT_FALSE(WindowOf(Form()).HasMenu());
}

TEST_F(TMenuTest, ShortcutsWorkWhereverTheFocusIs)
{
    TMainMenu& Menu = AddMenu();
    TMenuItem& File = AddItem(*Menu.GetItems(), "File");
    TMenuItem& Open = AddItem(File, "Open");
    Open.SetShortCut(scCtrl | 'O');
    AddItem(File, "Next").SetShortCut(scAlt | VK_RIGHT);
    TEdit& Edit = Add<TEdit>();
    ShowForm();
    Edit.SetFocus();
    Windows().KeyPress('O', MK_CONTROL);
    Windows().KeyPress(VK_RIGHT, MK_ALT);
    EXPECT_THAT(TakeNotes(), ElementsAre("Open", "Next"));
    EXPECT_EQ(Edit.GetText(), "");
    Windows().KeyPress('O', MK_CONTROL | MK_SHIFT);
    Windows().KeyPress('O');
    EXPECT_THAT(TakeNotes(), IsEmpty());
}

TEST_F(TMenuTest, AShortcutGoesToTheFirstItemThatIsReachable)
{
    TMainMenu& Menu = AddMenu();
    TMenuItem& File = AddItem(*Menu.GetItems(), "File");
    TMenuItem& Edit = AddItem(*Menu.GetItems(), "Edit");
    AddItem(File, "in File").SetShortCut(VK_F5);
    AddItem(Edit, "in Edit").SetShortCut(VK_F5);
    ShowForm();
    Windows().KeyPress(VK_F5);
    File.SetEnabled(false);
    Windows().KeyPress(VK_F5);
    Edit.SetEnabled(false);
    Windows().KeyPress(VK_F5);
    EXPECT_THAT(TakeNotes(), ElementsAre("in File", "in Edit"));
}

TEST_F(TMenuTest, OneRadioItemOfAGroupIsChecked)
{
    TMainMenu& Menu = AddMenu();
    TMenuItem& Day = AddItem(*Menu.GetItems(), "Day");
    TMenuItem& Week = AddItem(*Menu.GetItems(), "Week");
    TMenuItem& Ruler = AddItem(*Menu.GetItems(), "Ruler");
    for (TMenuItem* const Item : {&Day, &Week, &Ruler}) {
        Item->SetChecked(true);
        Item->SetAutoCheck(true);
    }
    Ruler.SetGroupIndex(1);
    Ruler.SetRadioItem(true);
    Day.SetRadioItem(true);
    EXPECT_TRUE(Week.GetChecked()) << "not a radio item yet";
    Week.SetRadioItem(true);
    EXPECT_FALSE(Day.GetChecked());
    EXPECT_TRUE(Ruler.GetChecked());
    Day.Click();
    EXPECT_TRUE(Day.GetChecked());
    EXPECT_FALSE(Week.GetChecked());
    Day.Click();
    EXPECT_TRUE(Day.GetChecked()) << "a radio item is not unchecked by a click";
    Ruler.SetGroupIndex(0);
    EXPECT_FALSE(Day.GetChecked());
}

TEST_F(TMenuTest, AutoCheckTogglesAndDisabledItemsDoNothing)
{
    TMainMenu& Menu = AddMenu();
    TMenuItem& Item = AddItem(*Menu.GetItems(), "Item");
    Item.SetAutoCheck(true);
    Item.Click();
    EXPECT_TRUE(Item.GetChecked());
    Item.SetEnabled(false);
    Item.Click();
    EXPECT_TRUE(Item.GetChecked());
    EXPECT_THAT(TakeNotes(), ElementsAre("Item"));
}

TEST_F(TMenuTest, OneNeighbourIsTheDefault)
{
    TMainMenu& Menu = AddMenu();
    TMenuItem& First = AddItem(*Menu.GetItems(), "First");
    TMenuItem& Second = AddItem(*Menu.GetItems(), "Second");
    First.SetDefault(true);
    Second.SetDefault(true);
    EXPECT_FALSE(First.GetDefault());
    EXPECT_TRUE(Second.GetDefault());
}

TEST_F(TMenuTest, ItemsStandInOnePlaceOnly)
{
    TMainMenu& Menu = AddMenu();
    TMenuItem& First = AddItem(*Menu.GetItems(), "First");
    TMenuItem& Inner = AddItem(First, "Inner");
    EXPECT_THROW(Menu.GetItems()->Add(&Inner), Exception);
    Menu.GetItems()->Remove(&First);
    EXPECT_THROW(Inner.Add(&First), Exception) << "below itself";
    EXPECT_THROW(Menu.GetItems()->GetItem(0), Exception);
    Menu.GetItems()->Add(&First);
    EXPECT_EQ(Inner.GetMenu(), &Menu);
    EXPECT_EQ(Menu.GetItems()->IndexOf(&First), 0);
    EXPECT_EQ(First.IndexOf(&First), -1);
}

TEST_F(TMenuTest, AHandlerMayFreeItsItemOrTheForm)
{
    TMainMenu& Menu = AddMenu();
    TMenuItem& Item = AddItem(*Menu.GetItems(), "Item");
    Item.OnClick = [&](TObject*) { delete &Item; };
    TMenuItem& Last = AddItem(*Menu.GetItems(), "Last");
    Last.SetShortCut(VK_F9);
    Last.OnClick = [this](TObject*) { delete std::exchange(FForm, nullptr); };
    ShowForm();
    WindowOf(Form()).Send(WM_COMMAND, Shown()[0].Command);
    EXPECT_EQ(Shown().size(), 1u);
    Windows().KeyPress(VK_F9);
    EXPECT_EQ(FForm, nullptr);
}

TEST_F(TMenuTest, AMenuAndItsFormMayDieInEitherOrder)
{
    const std::unique_ptr<TMainMenu> Menu(New<TMainMenu>(nullptr));
    Form().SetMenu(Menu.get());
    ShowForm();
    delete std::exchange(FForm, nullptr);
    Menu->GetItems()->Add(New<TMenuItem>(Menu.get()));
    FForm = New<TForm>(nullptr);
    TMainMenu* const Other = New<TMainMenu>(nullptr);
    Form().SetMenu(Other);
    delete Other;
    EXPECT_EQ(Form().GetMenu(), nullptr);
}

TEST_F(TMenuTest, PicturesComeFromTheListAndFollowItsChanges)
{
    TMainMenu& Menu = AddMenu();
    TMenuItem& Item = AddItem(*Menu.GetItems(), "Item");
    TMenuItem& Inner = AddItem(Item, "Inner");
    TImageList* const List = New<TImageList>(nullptr);
    Item.SetImageIndex(0);
    Inner.SetImageIndex(0);
    Menu.SetImages(List);
    ShowForm();
    EXPECT_EQ(Shown()[0].Glyph.Width, 0);
    TBitmap Bitmap(16, 16);
    List->Add(&Bitmap, nullptr);
    EXPECT_EQ(Shown()[0].Glyph.Width, 16);
    TImageList* const Large = New<TImageList>(nullptr);
    Large->SetWidth(32);
    TBitmap Wide(32, 16);
    Large->Add(&Wide, nullptr);
    Item.SetSubMenuImages(Large);
    EXPECT_EQ(Shown()[0].Items[0].Glyph.Width, 32);
    delete Large;
    EXPECT_EQ(Shown()[0].Items[0].Glyph.Width, 16);
    delete List;
    EXPECT_EQ(Menu.GetImages(), nullptr);
    EXPECT_EQ(Shown()[0].Glyph.Width, 0);
    Item.SetBitmap(&Wide);
    EXPECT_EQ(Shown()[0].Glyph.Width, 32);
}

TEST_F(TMenuTest, AListOfTheSameFormMayDieFirst)
{
    TMainMenu& Menu = AddMenu();
    TMenuItem& Item = AddItem(*Menu.GetItems(), "Item");
    AddItem(Item, "Inner").SetImageIndex(0);
    TImageList* const List = New<TImageList>(&Form());
    TBitmap Bitmap(16, 16);
    List->Add(&Bitmap, nullptr);
    Menu.SetImages(List);
    Item.SetSubMenuImages(List);
    ShowForm();
    EXPECT_EQ(Shown()[0].Items[0].Glyph.Width, 16);
    delete List;
    EXPECT_EQ(Menu.GetImages(), nullptr);
    EXPECT_EQ(Item.GetSubMenuImages(), nullptr);
    EXPECT_EQ(Shown()[0].Items[0].Glyph.Width, 0);
}

TEST_F(TMenuTest, TheMenuRunsInTheDirectionOfItsForm)
{
    TMainMenu& Menu = AddMenu();
    AddItem(*Menu.GetItems(), "Item");
    ShowForm();
    EXPECT_FALSE(WindowOf(Form()).GetMenu().RightToLeft);
    Menu.SetBiDiMode(TBiDiMode::bdRightToLeft);
    EXPECT_TRUE(WindowOf(Form()).GetMenu().RightToLeft);
    Menu.SetParentBiDiMode(true);
    EXPECT_FALSE(WindowOf(Form()).GetMenu().RightToLeft);
}

class TPopupMenuTest : public TMenuTest
{
protected:
    TPopupMenuTest()
    {
        FPopup = New<TPopupMenu>(&Form());
        FItem = &AddItem(*FPopup->GetItems(), "Item");
        FEdit = &Add<TEdit>();
        FEdit->SetPopupMenu(FPopup);
    }
    void OpenByMouse() { Windows().MouseClick(WindowOf(*FEdit), {5, 5}, MK_RBUTTON); }

    TPopupMenu* FPopup = nullptr;
    TMenuItem* FItem = nullptr;
    TEdit* FEdit = nullptr;
};

TEST_F(TPopupMenuTest, TheContextMenuOpensForTheControlAndClicksWhatIsChosen)
{
    FPopup->OnPopup = [this](TObject*) {
        FNotes.push_back("popup");
        FItem->SetChecked(FPopup->GetPopupComponent() == FEdit);
    };
    Windows().ChosenCommand = FItem->GetCommand();
    ShowForm();
    OpenByMouse();
    EXPECT_THAT(TakeNotes(), ElementsAre("popup", "Item"));
    ASSERT_EQ(Windows().LastPopup.Items.size(), 1u);
    EXPECT_TRUE(Windows().LastPopup.Items[0].Checked);
    FPopup->SetAutoPopup(false);
    OpenByMouse();
    EXPECT_THAT(TakeNotes(), IsEmpty());
}

TEST_F(TPopupMenuTest, ItForgetsTheControlItWasOpenedFor)
{
    ShowForm();
    OpenByMouse();
    EXPECT_EQ(FPopup->GetPopupComponent(), FEdit);
    delete FEdit;
    EXPECT_EQ(FPopup->GetPopupComponent(), nullptr);
    FPopup->Popup(1, 2);
    EXPECT_EQ(Windows().TakeLog().back(), "popup 1,2");
}

TEST_F(TPopupMenuTest, AHandlerMayFreeTheMenuOrTheControl)
{
    Windows().ChosenCommand = FItem->GetCommand();
    FItem->OnClick = [this](TObject*) { delete FEdit; };
    ShowForm();
    OpenByMouse();
    EXPECT_EQ(Form().GetControlCount(), 0);
    FPopup->OnPopup = [this](TObject*) { delete std::exchange(FPopup, nullptr); };
    FPopup->Popup(0, 0);
    EXPECT_EQ(FPopup, nullptr);
}

} // namespace vcl::tests
