#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <limits>
#include <memory>

#include "KSTimeView/model/FakeView.h"

using testing::ElementsAre;
using testing::IsEmpty;

namespace
{

constexpr double Monday = TFakeView::Monday;

template <class TAction>
std::string MessageOf(TAction&& Action)
{
    try {
        Action();
    } catch (const vcl::Exception& Error) {
        return Error.what();
    }
    return "";
}

std::vector<double> Dates(TFakeView& View)
{
    std::vector<double> Result;
    for (const TKSTimeviewDay* Day : View.Days())
        Result.push_back(Day->GetDate() - Monday);
    return Result;
}

TEST(TimeviewDay, ANewOneHasItsDateAndUsualWorkingHours)
{
    const TKSTimeviewDay Day(nullptr, Monday);
    EXPECT_EQ(Day.GetDate(), Monday);
    EXPECT_EQ(Day.GetLeft(), 0);
    EXPECT_EQ(Day.GetWidth(), 0);
    EXPECT_FALSE(Day.GetShowWorkingHours());
    EXPECT_EQ(Day.GetBeginWork(), 8.0 / 24);
    EXPECT_EQ(Day.GetEndWork(), 17.5 / 24);
    EXPECT_EQ(Day.GetColumnCount(), 0);
    EXPECT_EQ(Day.GetAllDayCount(), 0);
    EXPECT_EQ(Day.GetIndex(), -1);
    EXPECT_EQ(Day.GetTimeView(), nullptr);
}

TEST(TimeviewDay, WorkingHoursRepaintTheDayThenTell)
{
    TFakeView View(7);
    TKSTimeviewDay* const Day = View.Day(1);
    Day->SetShowWorkingHours(true);
    Day->SetShowWorkingHours(true);
    EXPECT_THAT(View.Log, ElementsAre("repaint 151..252"));
    View.Log.clear();
    Day->SetBeginWork(0.25);
    Day->SetEndWork(0.75);
    EXPECT_THAT(View.Log, ElementsAre("repaint 151..252", "begin work", "repaint 151..252", "end work"));
    View.Log.clear();
    Day->SetBeginWork(0.25);
    Day->SetBeginWork(0.75);
    Day->SetBeginWork(0.8);
    Day->SetEndWork(0.75);
    Day->SetEndWork(0.25);
    Day->SetEndWork(0.1);
    EXPECT_THAT(View.Log, IsEmpty());
    EXPECT_EQ(Day->GetBeginWork(), 0.25);
    EXPECT_EQ(Day->GetEndWork(), 0.75);
    View.Items().BeginUpdate();
    Day->SetBeginWork(0.3);
    EXPECT_THAT(View.Log, ElementsAre("begin work"));
}

TEST(TimeviewDay, AnIndexOutsideItsItemsRaises)
{
    TFakeView View;
    TKSTimeViewItem* const Item = View.Add(10, 12);
    EXPECT_EQ(View.Day(0)->GetItem(0), Item);
    EXPECT_EQ(MessageOf([&] { View.Day(0)->GetItem(1); }), "Index out of range");
    EXPECT_EQ(MessageOf([&] { View.Day(0)->GetItem(-1); }), "Index out of range");
    TKSTimeViewItem Source(nullptr);
    Source.SetCaption("Source");
    View.Day(0)->SetItem(0, &Source);
    EXPECT_EQ(Item->GetCaption(), "Source");
    EXPECT_EQ(MessageOf([&] { View.Day(0)->SetItem(1, &Source); }), "Index out of range");
}

TEST(TimeviewDay, ItemsStartIsAtMostOneAndItemsEndTheLargestEnd)
{
    TFakeView View;
    EXPECT_EQ(View.Day(0)->GetItemsStart(), 1.0);
    EXPECT_EQ(View.Day(0)->GetItemsEnd(), 0.0);
    View.Add(10, 12);
    View.Add(9, 20);
    EXPECT_EQ(View.Day(0)->GetItemsStart(), 1.0);
    EXPECT_EQ(View.Day(0)->GetItemsEnd(), Monday + 20.0 / 24);
    View.Items().Add("", 0.5, Monday + 1, false);
    EXPECT_EQ(View.Day(0)->GetItemsStart(), 0.5);
}

TEST(TimeViewDays, AnIndexOutsideTheDaysRaises)
{
    TFakeView View(2);
    EXPECT_EQ(View.Day(1)->GetIndex(), 1);
    EXPECT_EQ(MessageOf([&] { View.Day(2); }), "Index out of range");
    EXPECT_EQ(MessageOf([&] { View.Day(-1); }), "Index out of range");
    EXPECT_EQ(MessageOf([&] { View.Days().SetDay(2, View.Day(0)); }), "Index out of range");
    EXPECT_THROW(View.Days().SetDay(1, nullptr), vcl::EInvalidOperation);
    EXPECT_EQ(View.Days().GetCount(), 2);
}

TEST(TimeViewDays, WritingAnEntryReplacesIt)
{
    TFakeView View(2);
    TKSTimeviewDay* const First = View.Day(0);
    TKSTimeviewDay* const Second = View.Day(1);
    View.Days().SetDay(0, Second);
    EXPECT_EQ(First->GetIndex(), -1);
    EXPECT_EQ(Second->GetIndex(), 0);
    View.Days().SetDay(1, First);
    EXPECT_THAT(Dates(View), ElementsAre(1, 0));
    EXPECT_EQ(First->GetIndex(), 1);
}

TEST(TimeViewDays, AReplacedDayForgetsItemsThatAreFreedLater)
{
    TFakeView View(1);
    TKSTimeViewItem* const Item = View.Add(10, 12);
    const std::unique_ptr<TKSTimeviewDay> Replaced(View.Day(0));
    View.Days().SetDay(0, vcl::New<TKSTimeviewDay>(&View.Days(), Monday + 1));
    EXPECT_EQ(Replaced->GetCount(), 1);
    Item->Delete();
    EXPECT_EQ(Replaced->GetCount(), 0);
}

TEST(TimeViewDays, ADateRangeIsClampedToOneMonth)
{
    TFakeView View;
    View.Days().SetDateRange(Monday, 40);
    EXPECT_EQ(View.Days().GetCount(), 31);
    View.Days().SetDateRange(Monday, 0);
    EXPECT_EQ(View.Days().GetCount(), 1);
    View.Days().SetDateRange(Monday, -7);
    EXPECT_EQ(View.Days().GetCount(), 1);
}

TEST(TimeViewDays, ANewDateRangeClosesTheEditorAttachesTellsOfEachDayAndRepaintsOnce)
{
    TFakeView View;
    View.Items().Add("", Monday + 10.5, Monday + 10.75, false);
    View.Log.clear();
    View.OnNewDay = [&](TKSTimeviewDay* Day) {
        View.Log.push_back("day " + std::to_string(static_cast<int>(Day->GetDate() - Monday)) + ", items " +
                           std::to_string(Day->GetCount()));
        EXPECT_TRUE(View.Items().IsUpdating());
    };
    View.Days().SetDateRange(Monday + 9, 3);
    EXPECT_THAT(View.Log, ElementsAre("hide editor", "day 9, items 0", "day 10, items 1", "day 11, items 0",
                                      "repaint"));
    EXPECT_EQ(View.Days().GetDate(), Monday + 9);
    View.Log.clear();
    View.Days().SetDateRange(Monday + 9, 3);
    EXPECT_THAT(View.Log, IsEmpty());
}

TEST(TimeViewDays, DatesAreNotTruncated)
{
    TFakeView View;
    View.Days().SetDateRange(Monday + 0.25, 2);
    EXPECT_THAT(Dates(View), ElementsAre(0.25, 1.25));
}

TEST(TimeViewDays, AddDateInsertsInOrderOfDatesAndTellsAtTheEnd)
{
    TFakeView View(2);
    View.Items().Add("", Monday - 1, Monday - 0.5, false);
    View.Log.clear();
    View.OnNewDay = [&](TKSTimeviewDay*) { View.Log.push_back("new day"); };
    const TKSTimeviewDay* const Sunday = View.Days().AddDate(Monday - 1);
    EXPECT_EQ(Sunday, View.Day(0));
    EXPECT_THAT(View.Log, ElementsAre("scroll bar", "repaint", "new day"));
    EXPECT_EQ(View.Day(0)->GetCount(), 1);
    EXPECT_EQ(View.Days().AddDate(Monday + 9)->GetIndex(), 3);
    EXPECT_EQ(View.Days().AddDate(Monday + 5)->GetIndex(), 3);
    EXPECT_EQ(View.Days().AddDate(Monday + 5), nullptr);
    EXPECT_THAT(Dates(View), ElementsAre(-1, 0, 1, 5, 9));
    EXPECT_EQ(View.Days().GetDate(), Monday) << "the view's date is not changed";
    EXPECT_TRUE(View.Days().DayExists(Monday + 5));
    EXPECT_FALSE(View.Days().DayExists(Monday + 4));
}

TEST(TimeViewDays, DeleteDateTakesADayButNeverTheLastOne)
{
    TFakeView View(3);
    View.Log.clear();
    View.Days().DeleteDate(Monday + 1);
    EXPECT_THAT(View.Log, ElementsAre("scroll bar", "repaint"));
    EXPECT_THAT(Dates(View), ElementsAre(0, 2));
    View.Days().DeleteDate(Monday + 1);
    View.Days().DeleteDate(Monday);
    View.Days().DeleteDate(Monday + 2);
    EXPECT_THAT(Dates(View), ElementsAre(2));
}

TEST(TimeViewDays, RangesOfDatesAreAddedAndDeletedDayByDay)
{
    TFakeView View;
    View.Days().AddDatesRange(Monday + 3, Monday + 5);
    View.Days().AddDatesRange(Monday + 9, Monday + 8);
    EXPECT_THAT(Dates(View), ElementsAre(0, 3, 4, 5));
    View.Days().DeleteDatesRange(Monday + 4, Monday + 20);
    View.Days().DeleteDatesRange(Monday + 3, Monday + 1);
    EXPECT_THAT(Dates(View), ElementsAre(0, 3));
    View.Days().AddDatesRange(1e300, 1e300);
    EXPECT_EQ(View.Days().GetCount(), 3);
    View.Days().DeleteDatesRange(1e300, std::numeric_limits<double>::infinity());
    EXPECT_EQ(View.Days().GetCount(), 2);
}

TEST(TimeViewDays, GetDayFromDateTakesTheDateWithItsTime)
{
    TFakeView View(2);
    EXPECT_EQ(View.Days().GetDayFromDate(Monday), View.Day(0));
    EXPECT_EQ(View.Days().GetDayFromDate(Monday + 0.99), View.Day(0));
    EXPECT_EQ(View.Days().GetDayFromDate(Monday + 1), View.Day(1));
    EXPECT_EQ(View.Days().GetDayFromDate(Monday + 2), nullptr);
    EXPECT_EQ(MessageOf([&] { View.Days().GetDayFromDate(-1); }), "Invalid date");
}

TEST(TimeViewDays, GetOverDayCountsTheRulersWidthEvenWhenItIsHidden)
{
    TFakeView View(7);
    EXPECT_EQ(View.Days().GetOverDay(-10), View.Day(0));
    EXPECT_EQ(View.Days().GetOverDay(151), View.Day(0)) << "both ends inclusive, the first match wins";
    EXPECT_EQ(View.Days().GetOverDay(152), View.Day(1));
    EXPECT_EQ(View.Days().GetOverDay(756), View.Day(6));
    EXPECT_EQ(View.Days().GetOverDay(757), View.Day(6));
    View.Days().SetDateRange(Monday, 31);
    View.Layout.ShowRuler = false;
    View.Days().CalcDisplay();
    EXPECT_EQ(View.Days().GetOverDay(49), View.Day(0));
    EXPECT_EQ(View.Days().GetOverDay(50), View.Day(2));
}

TEST(TimeViewDays, AHandlerOfNewDayMayChangeTheRangeDeleteDaysOrFreeTheView)
{
    TFakeView View;
    View.OnNewDay = [&](TKSTimeviewDay*) {
        View.OnNewDay = nullptr;
        View.Days().SetDateRange(Monday, 5);
    };
    View.Days().SetDateRange(Monday, 3);
    EXPECT_EQ(View.Days().GetCount(), 5);
    EXPECT_FALSE(View.Items().IsUpdating());

    View.OnNewDay = [&](TKSTimeviewDay* Day) { View.Days().DeleteDate(Day->GetDate() + 1); };
    View.Days().SetDateRange(Monday + 1, 4);
    EXPECT_THAT(Dates(View), ElementsAre(1, 3));
    View.OnNewDay = [&](TKSTimeviewDay* Day) { View.Days().DeleteDate(Day->GetDate()); };
    EXPECT_EQ(View.Days().AddDate(Monday + 30), nullptr);

    auto Freed = std::make_unique<TFakeView>();
    Freed->OnNewDay = [&](TKSTimeviewDay*) { Freed.reset(); };
    Freed->Days().SetDateRange(Monday, 3);
    EXPECT_EQ(Freed, nullptr);
    Freed = std::make_unique<TFakeView>();
    Freed->OnNewDay = [&](TKSTimeviewDay*) { Freed.reset(); };
    Freed->Days().AddDatesRange(Monday + 2, Monday + 5);
    EXPECT_EQ(Freed, nullptr);
}

TEST(TimeViewDays, FailuresOfANewDayHandlerLeaveTheViewOutOfUpdate)
{
    TFakeView View;
    View.OnNewDay = [](TKSTimeviewDay*) { throw vcl::Exception("no"); };
    EXPECT_THROW(View.Days().SetDateRange(Monday, 3), vcl::Exception);
    EXPECT_FALSE(View.Items().IsUpdating());
    EXPECT_EQ(View.Days().GetCount(), 3);
}

} // namespace
