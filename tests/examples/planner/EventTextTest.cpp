#include "planner/EventText.h"

#include <gtest/gtest.h>

#include "vcl/system/DateTime.h"

namespace
{

using vcl::EncodeDate;
using vcl::EncodeTime;

planner::TCalendarEvent Event(vcl::TDateTime Start, vcl::TDateTime Finish, bool AllDay = false)
{
    planner::TCalendarEvent Result;
    Result.Summary = "Review";
    Result.Start = Start;
    Result.Finish = Finish;
    Result.AllDay = AllDay;
    return Result;
}

const vcl::TDateTime Wednesday = EncodeDate(2026, 3, 18);

TEST(EventText, NamesTheDayOnceWhenAnEventEndsOnIt)
{
    EXPECT_EQ(
        planner::WhenText(Event(Wednesday + EncodeTime(10, 0, 0, 0), Wednesday + EncodeTime(11, 30, 0, 0))),
        "Wed 18 March 2026, 10:00 \xE2\x80\x93 11:30");
    EXPECT_EQ(
        planner::WhenText(Event(Wednesday + EncodeTime(22, 0, 0, 0), Wednesday + 1 + EncodeTime(2, 0, 0, 0))),
        "Wed 18 March 2026, 22:00 \xE2\x80\x93 Thu 19 March 2026, 02:00");
}

TEST(EventText, GivesTheLastDayOfAnAllDayEventNotTheMidnightAfterIt)
{
    EXPECT_EQ(planner::WhenText(Event(Wednesday, Wednesday + 1, true)), "18 March 2026");
    EXPECT_EQ(planner::WhenText(Event(Wednesday, Wednesday + 3, true)), "18 \xE2\x80\x93 20 March 2026");
}

TEST(EventText, ShowsAnEventWithoutLengthAsAQuarterOfAnHour)
{
    EXPECT_EQ(planner::ShownEnd(Event(Wednesday, Wednesday)), Wednesday + 1.0 / 96);
    EXPECT_EQ(planner::ShownEnd(Event(Wednesday, Wednesday + 0.5)), Wednesday + 0.5);
}

TEST(EventText, WritesOnlyWhatDiffersOfARange)
{
    EXPECT_EQ(planner::RangeText(Wednesday, 1), "Wednesday 18 March 2026");
    EXPECT_EQ(planner::RangeText(Wednesday, 7), "18 \xE2\x80\x93 24 March 2026");
    EXPECT_EQ(planner::RangeText(EncodeDate(2026, 3, 30), 7), "30 March \xE2\x80\x93 5 April 2026");
    EXPECT_EQ(planner::RangeText(EncodeDate(2026, 12, 28), 7),
              "28 December 2026 \xE2\x80\x93 3 January 2027");
}

TEST(EventText, PutsThePlaceAfterTheTitle)
{
    planner::TCalendarEvent Talk = Event(Wednesday + 0.5, Wednesday + 0.5);
    Talk.Location = "Hall C\nSecond floor";
    EXPECT_EQ(planner::DetailsText(Talk), "Wed 18 March 2026, 12:00   Review   (Hall C)");
}

TEST(EventText, CountsOneEventInTheSingular)
{
    EXPECT_EQ(planner::CountText(1), "1 event");
    EXPECT_EQ(planner::CountText(12), "12 events");
}

} // namespace
