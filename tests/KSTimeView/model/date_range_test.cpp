#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "KSTimeView/model/FakeView.h"

using testing::ElementsAre;
using testing::IsEmpty;
using testing::Pair;

namespace
{

constexpr double Monday = TFakeView::Monday;

std::vector<std::pair<int, int>> Columns(TFakeView& View)
{
    std::vector<std::pair<int, int>> Result;
    for (const TKSTimeviewDay* Day : View.Days())
        Result.emplace_back(Day->GetLeft(), Day->GetWidth());
    return Result;
}

TEST(DateRange, ClosesTheEditorWhileTheOldDaysStillStand)
{
    TFakeView View(2);
    int Calls = 0;
    View.OnHideEditor = [&] {
        ++Calls;
        EXPECT_EQ(View.Days().GetDate(), Monday);
        EXPECT_EQ(View.Days().GetCount(), 2);
        EXPECT_EQ(View.Day(0)->GetDate(), Monday);
        EXPECT_FALSE(View.Items().IsUpdating());
    };
    View.Days().SetDateRange(Monday + 7, 2);
    EXPECT_EQ(Calls, 1);
    EXPECT_EQ(View.Log.front(), "hide editor");
    View.OnHideEditor = nullptr;
    View.Log.clear();
    View.Days().SetDateRange(Monday + 7, 2);
    EXPECT_THAT(View.Log, IsEmpty()) << "nothing changes, so the editor stays";
    View.Days().SetDateRange(Monday + 7, 3);
    EXPECT_EQ(View.Log.front(), "hide editor") << "another number alone is a change";
}

TEST(DateRange, IsComparedAfterItIsClamped)
{
    TFakeView View;
    int NewDays = 0;
    View.OnNewDay = [&](TKSTimeviewDay*) { ++NewDays; };
    View.Days().SetDateRange(Monday, 40);
    EXPECT_EQ(NewDays, 31);
    View.Log.clear();
    View.Days().SetDateRange(Monday, 50);
    EXPECT_EQ(NewDays, 31);
    EXPECT_THAT(View.Log, IsEmpty());
}

TEST(DateRange, RepaintsOnceWhenNobodyListensForNewDays)
{
    TFakeView View;
    View.Days().SetDateRange(Monday + 1, 3);
    EXPECT_THAT(View.Log, ElementsAre("hide editor", "repaint"));
    EXPECT_EQ(View.Day(2)->GetDate(), Monday + 3);
}

TEST(DateRange, LaysOutTheNewDays)
{
    TFakeView View;
    View.Days().SetDateRange(Monday, 2);
    EXPECT_THAT(Columns(View), ElementsAre(Pair(50, 354), Pair(404, 353)));
}

TEST(SingleDates, ShareTheWidthAnewWithEachDayAddedOrDeleted)
{
    TFakeView View(2);
    View.Days().AddDate(Monday + 2);
    EXPECT_THAT(Columns(View), ElementsAre(Pair(50, 236), Pair(286, 235), Pair(521, 236)));
    View.Days().DeleteDate(Monday + 1);
    EXPECT_THAT(Columns(View), ElementsAre(Pair(50, 354), Pair(404, 353)));
    View.Days().DeleteDate(Monday);
    EXPECT_THAT(Columns(View), ElementsAre(Pair(50, 707)));
}

TEST(SingleDates, AreDeletedWithoutAnEvent)
{
    TFakeView View(3);
    int NewDays = 0;
    View.OnNewDay = [&](TKSTimeviewDay*) { ++NewDays; };
    View.Log.clear();
    View.Days().DeleteDate(Monday + 1);
    View.Days().DeleteDatesRange(Monday, Monday + 1);
    EXPECT_EQ(NewDays, 0);
    EXPECT_THAT(View.Log, ElementsAre("scroll bar", "repaint", "scroll bar", "repaint"));
    EXPECT_EQ(View.Days().GetCount(), 1);
}

TEST(SingleDates, ThatAreRefusedChangeNothing)
{
    TFakeView View(1);
    View.Log.clear();
    EXPECT_EQ(View.Days().AddDate(Monday), nullptr);
    View.Days().DeleteDate(Monday);
    View.Days().DeleteDate(Monday + 5);
    EXPECT_THAT(View.Log, IsEmpty());
}

TEST(SingleDates, TakeTheirItemsWithThemAndGiveThemBack)
{
    TFakeView View(2);
    TKSTimeViewItem* const Item = View.Add(20, 28);
    View.Days().DeleteDate(Monday);
    ASSERT_EQ(View.Days().GetCount(), 1);
    EXPECT_EQ(Item->GetFirstAppearingDay(), View.Day(0));
    EXPECT_EQ(View.Items().GetCount(), 1);
    View.Days().AddDate(Monday);
    EXPECT_EQ(View.Day(0)->GetItem(0), Item);
    EXPECT_EQ(View.Day(1)->GetItem(0), Item);
}

TEST(DayOfADate, ZeroIsADateLikeAnyOther)
{
    TFakeView View;
    EXPECT_EQ(View.Days().GetDayFromDate(0), nullptr);
    View.Days().SetDateRange(0, 2);
    EXPECT_EQ(View.Days().GetDayFromDate(0), View.Day(0));
    EXPECT_EQ(View.Days().GetDayFromDate(0.75), View.Day(0));
    EXPECT_THROW(View.Days().GetDayFromDate(-0.25), vcl::Exception);
}

TEST(DayOfADate, BeginsWhereTheDaysTimeDoes)
{
    TFakeView View;
    View.Days().SetDateRange(Monday + 0.25, 2);
    EXPECT_EQ(View.Days().GetDayFromDate(Monday), nullptr);
    EXPECT_EQ(View.Days().GetDayFromDate(Monday + 1), View.Day(0));
    EXPECT_EQ(View.Days().GetDayFromDate(Monday + 1.25), View.Day(1));
}

} // namespace
