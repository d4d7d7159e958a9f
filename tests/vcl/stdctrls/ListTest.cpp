#include "StandardFixture.h"

#include "vcl/controls/Button.h"
#include "vcl/controls/ComboBox.h"
#include "vcl/controls/ListBox.h"

namespace vcl::tests
{

class TListTest : public TStandardTest
{
protected:
    template <class T>
    T& AddWith(std::initializer_list<const char*> Rows)
    {
        T& List = Add<T>();
        for (const char* const Row : Rows)
            List.GetItems()->Add(Row);
        return List;
    }
    static const std::vector<AnsiString>& Shown(TWinControl& Control)
    {
        return WindowOf(Control).GetList()->GetItems();
    }
};

TEST_F(TListTest, RowsReachTheWindowWhenItIsMadeAndWhenTheyChange)
{
    TListBox& List = AddWith<TListBox>({"one", "two"});
    ShowForm();
    EXPECT_THAT(Shown(List), ElementsAre("one", "two"));
    List.GetItems()->Insert(1, "middle");
    List.GetItems()->SetString(0, "first");
    List.GetItems()->Delete(2);
    EXPECT_THAT(Shown(List), ElementsAre("first", "middle"));
    List.GetItems()->BeginUpdate();
    List.GetItems()->Add("last");
    EXPECT_THAT(Shown(List), ElementsAre("first", "middle"));
    List.GetItems()->EndUpdate();
    EXPECT_THAT(Shown(List), ElementsAre("first", "middle", "last"));
    List.Clear();
    EXPECT_THAT(Shown(List), IsEmpty());
}

TEST_F(TListTest, SortedListsTakeEachRowToItsPlace)
{
    TListBox& List = AddWith<TListBox>({"pear", "Apple", "fig"});
    TObject Mark;
    List.GetItems()->SetObject(0, &Mark);
    List.SetItemIndex(0);
    List.SetSorted(true);
    EXPECT_EQ(List.GetItems()->GetCommaText(), "Apple,fig,pear");
    EXPECT_EQ(List.GetItemIndex(), 2) << "the chosen row stays chosen";
    EXPECT_EQ(List.GetItems()->GetObject(2), &Mark);
    ShowForm();
    EXPECT_EQ(List.GetItems()->Add("banana"), 1);
    EXPECT_THAT(Shown(List), ElementsAre("Apple", "banana", "fig", "pear"));
    EXPECT_EQ(List.GetItemIndex(), 3);
}

TEST_F(TListTest, AChoiceOfTheUserIsAClick)
{
    TListBox& List = AddWith<TListBox>({"one", "two", "three"});
    List.SetBounds(10, 10, 100, 80);
    List.OnClick = Noting("click");
    List.OnDblClick = Noting("double");
    ShowForm();
    Windows().MouseClick(WindowOf(List), {5, 20});
    EXPECT_EQ(List.GetItemIndex(), 1);
    Windows().KeyPress(VK_DOWN);
    EXPECT_EQ(List.GetItemIndex(), 2);
    EXPECT_TRUE(List.GetSelected(2));
    EXPECT_THAT(TakeNotes(), ElementsAre("click", "click"));
    Windows().MouseDoubleClick(WindowOf(List), {5, 20});
    EXPECT_EQ(TakeNotes().back(), "double");
}

TEST_F(TListTest, WhatIsChosenSurvivesANewWindowAndUpdates)
{
    auto& List = Add<TRemade<TListBox>>();
    List.SetMultiSelect(true);
    for (const char* const Row : {"a", "b", "c", "d"})
        List.GetItems()->Add(Row);
    List.SetSelected(1, true);
    EXPECT_TRUE(List.GetSelected(1)) << "without a window too";
    List.SetItemHeight(20);
    ShowForm();
    List.SetSelected(3, true);
    List.SetTopIndex(1);
    List.RecreateWnd();
    EXPECT_TRUE(WindowOf(List).GetList()->IsSelected(1));
    EXPECT_TRUE(WindowOf(List).GetList()->IsSelected(3));
    EXPECT_FALSE(WindowOf(List).GetList()->IsSelected(2));
    EXPECT_EQ(WindowOf(List).GetList()->GetItemHeight(), 20);
    EXPECT_EQ(List.GetTopIndex(), 1);
    List.GetItems()->BeginUpdate();
    List.GetItems()->Delete(0);
    EXPECT_TRUE(List.GetSelected(0));
    List.GetItems()->EndUpdate();
    EXPECT_TRUE(List.GetSelected(0));
    EXPECT_TRUE(List.GetSelected(2));
    List.SetMultiSelect(false);
    List.SetItemIndex(1);
    EXPECT_FALSE(List.GetSelected(0));
    EXPECT_TRUE(List.GetSelected(1));
}

TEST_F(TListTest, WithoutAWindowTheChosenRowFollowsItsRow)
{
    TListBox& List = AddWith<TListBox>({"a", "b", "c"});
    List.SetItemIndex(1);
    List.GetItems()->Insert(0, "before");
    EXPECT_EQ(List.GetItemIndex(), 2);
    List.GetItems()->Delete(0);
    List.GetItems()->Delete(1);
    EXPECT_EQ(List.GetItemIndex(), -1);
    EXPECT_THROW(List.GetSelected(2), EListError);
    List.SetItemIndex(5);
    EXPECT_EQ(List.GetItemIndex(), -1);
}

TEST_F(TListTest, AHandlerMayFreeTheList)
{
    TListBox& List = AddWith<TListBox>({"a", "b"});
    List.OnClick = [&](TObject*) { delete &List; };
    ShowForm();
    Click(List);
    EXPECT_EQ(Form().GetControlCount(), 0);
}

TEST_F(TListTest, AComboBoxTakesTheChosenRowsText)
{
    TComboBox& Combo = AddWith<TComboBox>({"one", "two"});
    Combo.OnClick = Noting("click");
    Combo.OnChange = Noting("change");
    ShowForm();
    Combo.SetFocus();
    WindowOf(Combo).GetList()->Choose(1);
    EXPECT_EQ(Combo.GetText(), "two");
    EXPECT_EQ(Combo.GetItemIndex(), 1);
    EXPECT_THAT(TakeNotes(), ElementsAre("click", "change"));
    Combo.OnSelect = Noting("select");
    WindowOf(Combo).GetList()->Choose(0);
    EXPECT_THAT(TakeNotes(), ElementsAre("click", "select"));
}

TEST_F(TListTest, TypedTextOfNoRowChoosesNone)
{
    TComboBox& Combo = AddWith<TComboBox>({"a", "ab"});
    Combo.SetItemIndex(1);
    EXPECT_EQ(Combo.GetText(), "ab");
    Combo.OnChange = Noting("change");
    ShowForm();
    Combo.SetFocus();
    WindowOf(Combo).GetEdit()->SetSelection(2, 0);
    Windows().Type("c");
    EXPECT_EQ(Combo.GetText(), "abc");
    EXPECT_EQ(Combo.GetItemIndex(), -1);
    Windows().KeyPress(VK_BACK);
    EXPECT_EQ(Combo.GetItemIndex(), 1);
    EXPECT_THAT(TakeNotes(), ElementsAre("change", "change"));
    Combo.GetItems()->Add("more");
    EXPECT_EQ(Combo.GetText(), "ab");
}

TEST_F(TListTest, TypedTextSurvivesANewWindowAndChangesOfTheRows)
{
    auto& Combo = Add<TRemade<TComboBox>>();
    Combo.GetItems()->Add("row");
    Combo.SetMaxLength(6);
    Combo.SetDropDownCount(3);
    ShowForm();
    Combo.SetFocus();
    Windows().Type("typed");
    Combo.RecreateWnd();
    EXPECT_EQ(WindowOf(Combo).GetText(), "typed");
    EXPECT_THAT(Shown(Combo), ElementsAre("row"));
    EXPECT_EQ(WindowOf(Combo).GetEdit()->GetMaxLength(), 6);
    EXPECT_EQ(WindowOf(Combo).GetList()->GetDropDownCount(), 3);
    Combo.GetItems()->Clear();
    EXPECT_EQ(Combo.GetText(), "typed");
    EXPECT_EQ(WindowOf(Combo).GetText(), "typed");
}

TEST_F(TListTest, AListToChooseFromTakesOnlyTextsOfRows)
{
    TComboBox& Combo = AddWith<TComboBox>({"one", "two"});
    Combo.SetStyle(TComboBoxStyle::csDropDownList);
    Combo.SetText("three");
    EXPECT_EQ(Combo.GetText(), "");
    Combo.SetText("two");
    EXPECT_EQ(Combo.GetItemIndex(), 1);
    ShowForm();
    EXPECT_EQ(WindowOf(Combo).GetStyle().Style & CBS_DROPDOWNLIST, CBS_DROPDOWNLIST);
    Combo.GetItems()->Insert(0, "zero");
    EXPECT_EQ(Combo.GetItemIndex(), 2);
    EXPECT_EQ(WindowOf(Combo).GetList()->GetItemIndex(), 2);
    Combo.GetItems()->Delete(2);
    EXPECT_EQ(Combo.GetItemIndex(), -1);
    EXPECT_EQ(Combo.GetText(), "");
}

TEST_F(TListTest, TheOpenListKeepsReturnAndEscape)
{
    TComboBox& Combo = AddWith<TComboBox>({"one"});
    TButton& Button = Add<TButton>();
    Button.SetDefault(true);
    Button.OnClick = Noting("default");
    Combo.OnDropDown = Noting("open");
    Combo.OnCloseUp = Noting("closed");
    ShowForm();
    Combo.SetFocus();
    Combo.SetDroppedDown(true);
    EXPECT_TRUE(Combo.GetDroppedDown());
    Windows().KeyPress(VK_RETURN);
    Combo.SetDroppedDown(false);
    EXPECT_THAT(TakeNotes(), ElementsAre("open", "closed"));
    Windows().KeyPress(VK_RETURN);
    EXPECT_THAT(TakeNotes(), ElementsAre("default"));
}

TEST_F(TListTest, AHandlerMayFreeTheComboBox)
{
    TComboBox& Combo = AddWith<TComboBox>({"one"});
    Combo.OnClick = [&](TObject*) { delete &Combo; };
    ShowForm();
    WindowOf(Combo).GetList()->Choose(0);
    TComboBox& Typed = AddWith<TComboBox>({"one"});
    Typed.OnChange = [&](TObject*) { delete &Typed; };
    Typed.SetFocus();
    Windows().Type("x");
    EXPECT_EQ(Form().GetControlCount(), 0);
}

} // namespace vcl::tests
