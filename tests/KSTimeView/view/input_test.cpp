#include "KSTimeView/view/ViewFixture.h"
#include "support/TemporaryFolder.h"

using testing::ElementsAre;
using testing::IsEmpty;

namespace
{

class TTimeViewInput : public TTimeViewTest
{
protected:
    TTimeViewInput()
    {
        View().OnItemClick = [this](vcl::TObject* Sender, TKSTimeViewItem* Item) {
            EXPECT_EQ(Sender, FView);
            FLog.push_back("click " + Item->GetCaption());
        };
        View().OnItemDblClick = [this](vcl::TObject*, TKSTimeViewItem* Item) {
            FLog.push_back("double click " + Item->GetCaption());
        };
        View().OnDeletion = [this](vcl::TObject*, TKSTimeViewItem* Item) {
            FLog.push_back("deletion " + Item->GetCaption());
        };
    }
    ~TTimeViewInput() override
    {
        if (FView)
            FView->OnDeletion = nullptr;
    }
    /// A point on a timed item.
    static constexpr vcl::TPoint OnItem{300, 440};
    static constexpr vcl::TPoint Beside{300, 300};

    std::vector<std::string> FLog;
};

TEST_F(TTimeViewInput, AClickSelectsAnItemAndTellsOfIt)
{
    Show();
    TKSTimeViewItem* const Item = Add(9, 10, false, "Lunch");
    Windows().MouseDown(Window(), OnItem);
    EXPECT_EQ(View().GetSelectedItem(), Item);
    EXPECT_TRUE(View().Focused());
    EXPECT_THAT(FLog, IsEmpty());
    Windows().MouseUp(Window(), OnItem);
    EXPECT_THAT(FLog, ElementsAre("click Lunch"));
    EXPECT_TRUE(Repaints());
    Windows().MouseClick(Window(), Beside);
    EXPECT_EQ(View().GetSelectedItem(), nullptr);
    EXPECT_EQ(FLog.size(), 1u);
}

TEST_F(TTimeViewInput, AReleaseSomewhereElseIsNoClick)
{
    Show();
    Add(9, 10, false, "Lunch");
    Windows().MouseDown(Window(), OnItem);
    Windows().MouseUp(Window(), Beside);
    EXPECT_THAT(FLog, IsEmpty());
}

TEST_F(TTimeViewInput, ADoubleClickIsOneClickAndOneDoubleClick)
{
    Show();
    Add(9, 10, false, "Lunch");
    Windows().MouseDoubleClick(Window(), OnItem);
    EXPECT_THAT(FLog, ElementsAre("click Lunch", "double click Lunch"));
    Windows().MouseDoubleClick(Window(), Beside);
    EXPECT_EQ(FLog.size(), 2u);
}

TEST_F(TTimeViewInput, AllDayItemsAreClickedToo)
{
    Show();
    TKSTimeViewItem* const Item = Add(0, 24, true, "Holiday");
    Windows().MouseClick(Window(), {300, 30});
    EXPECT_EQ(View().GetSelectedItem(), Item);
    EXPECT_THAT(FLog, ElementsAre("click Holiday"));
}

TEST_F(TTimeViewInput, OtherButtonsDoNotSelect)
{
    Show();
    Add(9, 10, false, "Lunch");
    Windows().MouseClick(Window(), OnItem, vcl::MK_RBUTTON);
    EXPECT_EQ(View().GetSelectedItem(), nullptr);
    EXPECT_THAT(FLog, IsEmpty());
}

TEST_F(TTimeViewInput, WithoutTheOptionItemsAreClickedButNotSelected)
{
    Show();
    Add(9, 10, false, "Lunch");
    View().SetOptions({});
    Windows().MouseClick(Window(), OnItem);
    EXPECT_EQ(View().GetSelectedItem(), nullptr);
    EXPECT_THAT(FLog, ElementsAre("click Lunch"));
}

TEST_F(TTimeViewInput, OnlyAttachedItemsOfThisViewAreSelected)
{
    Show();
    TKSTimeViewItem* const Item = Add(9, 10);
    TKSTimeViewItem Detached(View().GetItems());
    View().SetSelectedItem(&Detached);
    EXPECT_EQ(View().GetSelectedItem(), nullptr);
    const auto Other = std::make_unique<TKSTimeView>(nullptr);
    View().SetSelectedItem(Other->GetItems()->Add("", 1, 2, false));
    EXPECT_EQ(View().GetSelectedItem(), nullptr);
    View().SetSelectedItem(Item);
    EXPECT_TRUE(Item->Selected());
}

TEST_F(TTimeViewInput, DestroyingTheSelectedItemClearsTheSelectionAndTellsOnce)
{
    Show();
    TKSTimeViewItem* const Item = Add(9, 10, false, "Lunch");
    View().SetSelectedItem(Item);
    Settle();
    Item->Delete();
    EXPECT_EQ(View().GetSelectedItem(), nullptr);
    EXPECT_THAT(FLog, ElementsAre("deletion Lunch"));
    EXPECT_TRUE(Repaints());
}

TEST_F(TTimeViewInput, AnItemThatIsFreedBetweenPressAndReleaseIsNotClicked)
{
    Show();
    TKSTimeViewItem* const Item = Add(9, 10, false, "Lunch");
    Windows().MouseDown(Window(), OnItem);
    delete Item;
    Add(9, 10, false, "Other");
    Windows().MouseUp(Window(), OnItem);
    EXPECT_THAT(FLog, ElementsAre("deletion Lunch"));
}

TEST_F(TTimeViewInput, HandlersMayFreeTheItemClearTheItemsOrFreeTheView)
{
    Show();
    Add(9, 10);
    View().OnItemClick = [](vcl::TObject*, TKSTimeViewItem* Item) { delete Item; };
    Windows().MouseClick(Window(), OnItem);
    EXPECT_EQ(View().GetItems()->GetCount(), 0);
    Add(9, 10);
    Add(11, 12);
    View().OnItemClick = nullptr;
    View().OnItemDblClick = [this](vcl::TObject*, TKSTimeViewItem*) { View().GetItems()->Clear(); };
    Windows().MouseDoubleClick(Window(), OnItem);
    EXPECT_EQ(View().GetItems()->GetCount(), 0);
    Add(9, 10);
    View().OnItemClick = [this](vcl::TObject*, TKSTimeViewItem*) { delete std::exchange(FView, nullptr); };
    Windows().MouseClick(Window(), OnItem);
    EXPECT_EQ(FView, nullptr);
    EXPECT_THAT(FErrors, IsEmpty());
}

TEST_F(TTimeViewInput, AMouseDownHandlerMayFreeTheView)
{
    Show();
    Add(9, 10);
    View().OnMouseDown = [this](vcl::TObject*, vcl::TMouseButton, vcl::TShiftState, int, int) {
        delete std::exchange(FView, nullptr);
    };
    Windows().MouseClick(Window(), OnItem);
    EXPECT_EQ(FView, nullptr);
}

TEST_F(TTimeViewInput, ADeletionHandlerMayFreeTheView)
{
    Show();
    TKSTimeViewItem* const Item = Add(9, 10);
    Add(10, 11);
    View().OnDeletion = [this](vcl::TObject*, TKSTimeViewItem*) { delete std::exchange(FView, nullptr); };
    Item->Delete();
    EXPECT_EQ(FView, nullptr);
}

class TCounting : public TKSTimeView
{
public:
    explicit TCounting(int& Count) : TKSTimeView(nullptr), FCount(Count) {}
    void Delete(TKSTimeViewItem* Item) override
    {
        ++FCount;
        TKSTimeView::Delete(Item);
    }

private:
    int& FCount;
};

TEST_F(TTimeViewInput, DescendantsHearOfItemsThatGoWithTheView)
{
    int Count = 0;
    auto* const Counting = vcl::New<TCounting>(Count);
    Counting->GetItems()->Add("", 1, 2, false);
    Counting->GetItems()->Add("", 1, 2, false);
    delete Counting;
    EXPECT_EQ(Count, 2);
}

TEST_F(TTimeViewInput, WhatADeletionHandlerThrowsUnderDeleteGoesToTheApplication)
{
    TKSTimeViewItem* const Item = Add(9, 10);
    View().OnDeletion = [](vcl::TObject*, TKSTimeViewItem*) { throw vcl::Exception("not now"); };
    delete Item;
    EXPECT_THAT(FErrors, ElementsAre("not now"));
    Add(9, 10);
    delete std::exchange(FView, nullptr);
    EXPECT_EQ(FErrors.size(), 2u);
}

TEST_F(TTimeViewInput, DaysTellOfTheirWorkingHoursAndTheViewOfNewDays)
{
    Show();
    View().OnChangeBeginWork = [this](vcl::TObject* Sender, TKSTimeviewDay* Changed) {
        EXPECT_EQ(Sender, FView);
        EXPECT_EQ(Changed, &Day(0));
        FLog.push_back("begin");
    };
    View().OnChangeEndWork = [this](vcl::TObject*, TKSTimeviewDay*) { FLog.push_back("end"); };
    View().OnNewDay = [this](vcl::TObject*, TKSTimeviewDay* New) {
        FLog.push_back("new " + vcl::IntToStr(static_cast<int>(New->GetDate() - Monday)));
    };
    Day(0).SetBeginWork(0.25);
    Day(0).SetEndWork(0.75);
    View().SetDaysCount(2);
    View().AddDate(Monday + 5);
    EXPECT_THAT(FLog, ElementsAre("begin", "end", "new 0", "new 1", "new 5"));
    EXPECT_TRUE(View().DayExists(Monday + 5));
    EXPECT_FALSE(View().ItemExistOnDay(Monday));
    Add(9, 10);
    EXPECT_TRUE(View().ItemExistOnDay(Monday));
    EXPECT_FALSE(View().AllDayItemExistOnDay(Monday));
}

TEST_F(TTimeViewInput, ItemsExistOnDaysWhetherTheseAreShownOrNot)
{
    Add(25, 48);
    Add(72, 96, true);
    EXPECT_FALSE(View().ItemExistOnDay(Monday));
    EXPECT_TRUE(View().ItemExistOnDay(Monday + 1));
    EXPECT_FALSE(View().ItemExistOnDay(Monday + 2)) << "it ends at midnight";
    EXPECT_FALSE(View().ItemExistOnDay(Monday + 3)) << "an all-day item is no timed one";
    EXPECT_TRUE(View().AllDayItemExistOnDay(Monday + 3));
    EXPECT_FALSE(View().AllDayItemExistOnDay(Monday + 1));
    EXPECT_FALSE(View().AllDayItemExistOnDay(Monday + 4));
}

TEST_F(TTimeViewInput, ChangesInsideAnUpdateDoNotRepaint)
{
    Show();
    Settle();
    View().GetItems()->BeginUpdate();
    Add(9, 10);
    View().SetDaysGapColor(vcl::clRed);
    View().Invalidate();
    EXPECT_FALSE(Repaints());
    View().GetItems()->EndUpdate();
    EXPECT_TRUE(Repaints());
}

TEST_F(TTimeViewInput, AWindowMadeAnewKeepsLayoutAndPosition)
{
    Show();
    TKSTimeViewItem* const Item = Add(9, 10);
    View().SetVScrollPosition(100);
    const vcl::TRect Before = Day(0).GetItemRect(Item);
    View().SetBorderStyle(vcl::TBorderStyle::bsSingle);
    View().SetBorderStyle(vcl::TBorderStyle::bsNone);
    Settle();
    EXPECT_EQ(Day(0).GetItemRect(Item), Before);
    EXPECT_EQ(View().GetVScrollPosition(), 100);
}

TEST_F(TTimeViewInput, ItemsAreSavedAndLoadedThroughStreamsAndFiles)
{
    Show();
    Add(9, 10, false, "Lunch");
    vcl::tests::TTemporaryFolder Folder;
    const std::string File = Folder.File("items");
    View().SaveToFile(File);
    View().GetItems()->Clear();
    View().LoadFromFile(File);
    ASSERT_EQ(View().GetItems()->GetCount(), 1);
    EXPECT_EQ(Day(0).GetCount(), 1) << "loaded items are attached";
    EXPECT_EQ(Day(0).GetItem(0)->GetCaption(), "Lunch");
    EXPECT_THROW(View().LoadFromFile(File + "-missing"), vcl::EFOpenError);
    vcl::TMemoryStream Stream;
    View().SaveToStream(Stream);
    Stream.SetSize(Stream.GetSize() - 1);
    Stream.SetPosition(0);
    EXPECT_THROW(View().LoadFromStream(Stream), vcl::EReadError);
    EXPECT_EQ(View().GetItems()->GetCount(), 1);
    EXPECT_EQ(Day(0).GetCount(), 1);
}

TEST_F(TTimeViewInput, AHandlerCannotSelectTheItemThatIsBeingDeleted)
{
    Show();
    TKSTimeViewItem* const Item = Add(9, 10, false, "Lunch");
    View().SetSelectedItem(Item);
    View().OnDeletion = [this](vcl::TObject*, TKSTimeViewItem* Leaving) {
        View().SetSelectedItem(Leaving);
        View().SetSelectedItem(View().GetItems()->FirstItem());
    };
    Item->Delete();
    EXPECT_EQ(View().GetSelectedItem(), nullptr);
}

TEST_F(TTimeViewInput, TheSameDateAgainChangesNothingEvenWithMoreDaysThanADateRangeHas)
{
    Show();
    View().AddDatesRange(Monday, Monday + 39);
    int NewDays = 0;
    View().OnNewDay = [&](vcl::TObject*, TKSTimeviewDay*) { ++NewDays; };
    View().SetDate(View().GetDate());
    EXPECT_EQ(View().GetDaysCount(), 40);
    EXPECT_EQ(NewDays, 0);
    View().SetDate(Monday + 1);
    EXPECT_EQ(View().GetDaysCount(), 31);
    EXPECT_EQ(NewDays, 31);
}

TEST_F(TTimeViewInput, AnImageListMayDieBeforeTheViewThatShowsIt)
{
    Show();
    auto* const Images = vcl::New<vcl::TImageList>(nullptr);
    View().SetImages(Images);
    delete Images;
    EXPECT_EQ(View().GetImages(), nullptr);
}

} // namespace
