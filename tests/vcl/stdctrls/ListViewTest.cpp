#include "StandardFixture.h"

#include <chrono>

#include "vcl/controls/ListView.h"

namespace vcl::tests
{

class TListViewTest : public TStandardTest
{
protected:
    static TListItem& AddRow(TListView& View, const AnsiString& Caption, const AnsiString& Second = {})
    {
        TListItem* const Item = View.Add();
        Item->SetCaption(Caption);
        if (!Second.empty())
            Item->GetSubItems()->Add(Second);
        return *Item;
    }
    static record::TListView& Peer(TListView& View) { return *WindowOf(View).GetListView(); }
};

TEST_F(TListViewTest, RowsColumnsAndOptionsReachTheWindowAndSurviveANewOne)
{
    auto& View = Add<TRemade<TListView>>();
    View.SetViewStyle(TViewStyle::vsReport);
    View.SetCheckboxes(true);
    View.SetMultiSelect(true);
    View.SetRowSelect(true);
    View.SetShowColumnHeaders(false);
    TListColumn* const Column = View.GetColumns()->Add();
    Column->SetCaption("Name");
    Column->SetWidth(80);
    Column->SetAlignment(TAlignment::taRightJustify);
    AddRow(View, "one", "1");
    AddRow(View, "two").SetChecked(true);
    ShowForm();
    View.GetItem(0)->SetSelected(true);
    View.GetItem(1)->SetSelected(true);
    Peer(View).SetFocusedRow(1);
    View.RecreateWnd();
    EXPECT_EQ(Peer(View).GetViewStyle(), TListViewStyle::Report);
    EXPECT_TRUE(Peer(View).ShowsCheckBoxes() && Peer(View).IsMultiSelect() && Peer(View).IsRowSelect());
    EXPECT_FALSE(Peer(View).ShowsHeader());
    EXPECT_THAT(Peer(View).GetColumns(), ElementsAre(TListColumnSpec{"Name", 80, TTextAlign::Right}));
    ASSERT_EQ(Peer(View).GetRows().size(), 2u);
    EXPECT_THAT(Peer(View).GetRows()[0].Cells, ElementsAre("one", "1"));
    EXPECT_TRUE(Peer(View).GetRows()[1].Checked);
    EXPECT_TRUE(Peer(View).GetRows()[0].Selected && Peer(View).GetRows()[1].Selected);
    EXPECT_EQ(View.GetSelected(), View.GetItem(1));
}

TEST_F(TListViewTest, ChangesOfARowReachItsPlace)
{
    TListView& View = Add<TListView>();
    ShowForm();
    TListItem& Last = AddRow(View, "last");
    TListItem& First = *View.Insert(0);
    First.SetCaption("first");
    Last.GetSubItems()->Add("more");
    EXPECT_EQ(First.GetIndex(), 0);
    EXPECT_EQ(Last.GetIndex(), 1);
    EXPECT_THAT(Peer(View).GetRows()[0].Cells, ElementsAre("first"));
    EXPECT_THAT(Peer(View).GetRows()[1].Cells, ElementsAre("last", "more"));
    First.Delete();
    EXPECT_EQ(Last.GetIndex(), 0);
    EXPECT_THROW(View.GetItem(1), EListError);
    EXPECT_THROW(View.Insert(2), EListError);
    View.Clear();
    EXPECT_EQ(View.GetCount(), 0);
    EXPECT_THAT(Peer(View).GetRows(), IsEmpty());
}

TEST_F(TListViewTest, AChoiceTellsTheRowThenTheClick)
{
    TListView& View = Add<TListView>();
    View.SetViewStyle(TViewStyle::vsReport);
    AddRow(View, "one");
    AddRow(View, "two");
    View.OnSelectItem = [this](TObject*, TListItem* Item, bool Selected) {
        FNotes.push_back(Item ? Item->GetCaption() + (Selected ? " selected" : " left") : "nothing");
    };
    View.OnClick = Noting("click");
    View.OnDblClick = Noting("double");
    ShowForm();
    Peer(View).Choose(1);
    EXPECT_THAT(TakeNotes(), ElementsAre("two selected", "click"));
    EXPECT_EQ(View.GetSelected(), View.GetItem(1));
    Peer(View).Activate();
    EXPECT_THAT(TakeNotes(), ElementsAre("double"));
    View.SetSelected(View.GetItem(0));
    EXPECT_FALSE(View.GetItem(1)->GetSelected());
    EXPECT_EQ(Peer(View).GetShownRow(), 0);
    View.SetSelected(nullptr);
    EXPECT_EQ(View.GetSelected(), nullptr);
}

TEST_F(TListViewTest, AClickOnAHeaderTellsTheColumnUnlessColumnClickIsOff)
{
    TListView& View = Add<TListView>();
    View.GetColumns()->Add()->SetCaption("Name");
    View.OnColumnClick = [this](TObject*, TListColumn* Column) { FNotes.push_back(Column->GetCaption()); };
    ShowForm();
    WindowOf(View).Notice(TPeerNotice::ColumnClicked, 0);
    WindowOf(View).Notice(TPeerNotice::ColumnClicked, 7);
    EXPECT_THAT(TakeNotes(), ElementsAre("Name"));
    View.SetColumnClick(false);
    WindowOf(View).Notice(TPeerNotice::ColumnClicked, 0);
    EXPECT_THAT(TakeNotes(), IsEmpty());
}

TEST_F(TListViewTest, HandlersMayDeleteTheRowOrTheView)
{
    TListView& View = Add<TListView>();
    AddRow(View, "one");
    AddRow(View, "two");
    View.OnSelectItem = [](TObject*, TListItem* Item, bool) { Item->Delete(); };
    View.OnClick = [&](TObject*) { delete &View; };
    ShowForm();
    Peer(View).Choose(0);
    EXPECT_EQ(Form().GetControlCount(), 0);
}

TEST_F(TListViewTest, ARowFindsItsPlaceWithoutASearch)
{
    constexpr int Count = 100000;
    TListView& View = Add<TListView>();
    for (int Index = 0; Index < Count; ++Index)
        View.Add();
    const auto Start = std::chrono::steady_clock::now();
    for (int Index = 0; Index < Count; ++Index)
        ASSERT_EQ(View.GetItem(Index)->GetIndex(), Index);
    const auto Passed = std::chrono::steady_clock::now() - Start;
    // A search for each of them takes minutes.
    EXPECT_LT(std::chrono::duration_cast<std::chrono::seconds>(Passed).count(), 5);
}

} // namespace vcl::tests
