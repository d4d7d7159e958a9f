#include "KSTimeView/layout/TimeScale.h"

#include <gtest/gtest.h>

#include <climits>
#include <limits>

namespace
{

using timeview::TTimeScale;

double Clock(int Hours, int Minutes)
{
    return (Hours * 60 + Minutes) / 1440.0;
}

TTimeScale DefaultScale()
{
    TTimeScale Scale;
    Scale.TopSpace = 40;
    return Scale;
}

TEST(TotalScaleHeight, IsTheMarksOfAnHourTwentyFourTimes)
{
    EXPECT_EQ(timeview::TotalScaleHeight(30, 20), 960);
    EXPECT_EQ(timeview::TotalScaleHeight(60, 20), 480);
    EXPECT_EQ(timeview::TotalScaleHeight(5, 20), 5760);
    EXPECT_EQ(timeview::TotalScaleHeight(6, 13), 10 * 13 * 24);
    EXPECT_EQ(timeview::TotalScaleHeight(30, INT_MAX), INT_MAX);
}

TEST(TimeToPos, NineOClockIsRow360OfTheDefaultScale)
{
    TTimeScale Scale = DefaultScale();
    EXPECT_EQ(Scale.TimeToPos(Clock(9, 0), 1), 360 + 22 + 40 - 1);
    Scale.ScrollOffset = 100;
    EXPECT_EQ(Scale.TimeToPos(Clock(9, 0), 1), 360 + 22 + 40 - 100 - 1);
}

TEST(TimeToPos, TheEndOfTheDayIsTheBottomOfTheScaleAlsoASecondBefore)
{
    const TTimeScale Scale = DefaultScale();
    const int Bottom = 960 + 22 + 40 - 1;
    EXPECT_EQ(Scale.TimeToPos(1.0, 1), Bottom);
    EXPECT_EQ(Scale.TimeToPos(0.99999, 1), Bottom);
    EXPECT_EQ(Scale.TimeToPos(1.0 - 2.0 / 86400, 1), 959 + 22 + 40 - 1);
}

TEST(TimeToPos, MoreThanASecondFromTheEndIsTheLastMinute)
{
    const TTimeScale Scale = DefaultScale();
    const int Bottom = 960 + 22 + 40 - 1;
    EXPECT_EQ(Scale.TimeToPos(1.0 - 1.1 / 86400, 1), Bottom - 1);
    EXPECT_EQ(Scale.TimeToPos(1.0 - 0.9 / 86400, 1), Bottom);
    EXPECT_EQ(Scale.TimeToPos(1.0 - 1.1 / 86400, 60), Bottom - 40);
    EXPECT_EQ(Scale.TimeToPos(1.0, 60), Bottom);
}

TEST(TimeToPos, ClampsTimesOutsideADayAndTakesNoNumberForMidnight)
{
    const TTimeScale Scale = DefaultScale();
    EXPECT_EQ(Scale.TimeToPos(-3.5, 1), Scale.TimeToPos(0, 1));
    EXPECT_EQ(Scale.TimeToPos(7, 1), Scale.TimeToPos(1, 1));
    EXPECT_EQ(Scale.TimeToPos(std::numeric_limits<double>::quiet_NaN(), 1), Scale.TimeToPos(0, 1));
}

TEST(TimeToPos, RoundsMinutesDownToTheResolutionAndDropsSeconds)
{
    const TTimeScale Scale = DefaultScale();
    EXPECT_EQ(Scale.TimeToPos(Clock(9, 29), 30), Scale.TimeToPos(Clock(9, 0), 1));
    EXPECT_EQ(Scale.TimeToPos(Clock(9, 30) + 59.0 / 86400, 1), Scale.TimeToPos(Clock(9, 30), 1));
}

TEST(TimeToPos, RoundsHalfRowsToTheEvenOne)
{
    TTimeScale Scale;
    Scale.TotalHeight = 720; // half a row a minute
    Scale.CaptionHeight = 1;
    EXPECT_EQ(Scale.TimeToPos(Clock(0, 1), 1), 0);
    EXPECT_EQ(Scale.TimeToPos(Clock(0, 3), 1), 2);
    EXPECT_EQ(Scale.TimeToPos(Clock(0, 5), 1), 2);
}

TEST(TimeToPos, TimesOfFarDatesStillHaveTheirMinute)
{
    TTimeScale Scale;
    Scale.TotalHeight = 1440;
    Scale.CaptionHeight = 1;
    for (int Minute = 0; Minute < 1440; ++Minute)
        ASSERT_EQ(Scale.TimeToPos(timeview::TimeOfDay(45000 + Minute / 1440.0), 1), Minute);
}

TEST(PosToTime, GivesMidnightAboveTheScaleAndTheEndOfTheDayBelowIt)
{
    const TTimeScale Scale = DefaultScale();
    EXPECT_EQ(Scale.PosToTime(-5000, 30, false), 0.0);
    EXPECT_EQ(Scale.PosToTime(5000, 30, false), 1.0);
    EXPECT_EQ(Scale.PosToTime(INT_MAX, 30, true), 1.0);
}

TEST(PosToTime, RoundsDownOrToTheNearest)
{
    const TTimeScale Scale = DefaultScale();
    const int NineTwenty = 22 + 40 + (9 * 60 + 20) * 960 / 1440;
    EXPECT_DOUBLE_EQ(Scale.PosToTime(NineTwenty, 30, false), Clock(9, 0));
    EXPECT_DOUBLE_EQ(Scale.PosToTime(NineTwenty, 30, true), Clock(9, 30));
    EXPECT_EQ(Scale.PosToTime(22 + 40 + 950, 60, true), 1.0);
}

TEST(PosToTime, TakesMultiplesOfResolutionsThatDoNotDivideTheDay)
{
    TTimeScale Scale = DefaultScale();
    Scale.TotalHeight = 1440;
    const auto Minutes = [&](int Row, bool Nearest) {
        return Scale.PosToTime(22 + 40 + Row, 50, Nearest) * 1440;
    };
    EXPECT_DOUBLE_EQ(Minutes(99, false), 50);
    EXPECT_DOUBLE_EQ(Minutes(74, true), 50);
    EXPECT_DOUBLE_EQ(Minutes(75, true), 100);
    EXPECT_DOUBLE_EQ(Minutes(1440, false), 1400) << "the last whole step, not the end of the day";
    EXPECT_DOUBLE_EQ(Minutes(1425, true), 1440) << "1450 is past the end, so it is the end";
    EXPECT_EQ(Scale.PosToTime(5000, 50, true), 1.0);
    EXPECT_DOUBLE_EQ(Scale.PosToTime(5000, 50, false) * 1440, 1400);
}

TEST(PosToTime, TheNearestStepOfAnOddResolutionTakesItsHalfRoundedDown)
{
    TTimeScale Scale = DefaultScale();
    Scale.TotalHeight = 1440;
    EXPECT_EQ(Scale.PosToTime(22 + 40 + 2, 5, true), 0.0);
    EXPECT_DOUBLE_EQ(Scale.PosToTime(22 + 40 + 3, 5, true), Clock(0, 5));
}

TEST(PosToTime, IsTheInverseOfTimeToPosOneRowBelow)
{
    for (const int MarkMinutes : {5, 6, 10, 15, 30, 60}) {
        TTimeScale Scale = DefaultScale();
        Scale.TotalHeight = timeview::TotalScaleHeight(MarkMinutes, 20);
        Scale.ScrollOffset = 77;
        for (int Minute = 0; Minute <= 1440; Minute += MarkMinutes) {
            const double Time = Minute / 1440.0;
            ASSERT_DOUBLE_EQ(Scale.PosToTime(Scale.TimeToPos(Time, 1) + 1, MarkMinutes, false), Time)
                << MarkMinutes << " minutes a mark, minute " << Minute;
        }
    }
}

TEST(TimeScale, SurvivesScalesWithoutHeightAndResolutionsWithoutMinutes)
{
    TTimeScale Scale = DefaultScale();
    Scale.TotalHeight = 0;
    EXPECT_EQ(Scale.TimeToPos(0.5, 0), 61);
    EXPECT_EQ(Scale.PosToTime(62, 0, true), 0.0);
    EXPECT_EQ(Scale.PosToTime(63, -7, true), 1.0);
    Scale.CaptionHeight = INT_MAX;
    EXPECT_EQ(Scale.TimeToPos(0.5, 1), INT_MAX);
}

TEST(TimeOfDay, IsTheFractionAndZeroForWhatHasNone)
{
    EXPECT_DOUBLE_EQ(timeview::TimeOfDay(36526.75), 0.75);
    EXPECT_EQ(timeview::TimeOfDay(std::numeric_limits<double>::infinity()), 0.0);
    EXPECT_EQ(timeview::TimeOfDay(std::numeric_limits<double>::quiet_NaN()), 0.0);
}

} // namespace
