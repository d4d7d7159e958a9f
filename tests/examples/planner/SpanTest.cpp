#include "planner/Span.h"

#include <gtest/gtest.h>

#include "vcl/system/DateTime.h"

namespace
{

using planner::TDaySpan;
using vcl::EncodeDate;

TEST(PlannerSpan, WeeksBeginOnMonday)
{
    // 18 March 2026 is a Wednesday, the 22nd a Sunday.
    EXPECT_EQ(TDaySpan::Around(EncodeDate(2026, 3, 18), 7), (TDaySpan{EncodeDate(2026, 3, 16), 7}));
    EXPECT_EQ(TDaySpan::Around(EncodeDate(2026, 3, 22), 5), (TDaySpan{EncodeDate(2026, 3, 16), 5}));
    EXPECT_EQ(TDaySpan::Around(EncodeDate(2026, 3, 16), 14), (TDaySpan{EncodeDate(2026, 3, 16), 14}));
}

TEST(PlannerSpan, AMonthBeginsOnItsFirstDay)
{
    EXPECT_EQ(TDaySpan::Around(EncodeDate(2026, 2, 28), 31), (TDaySpan{EncodeDate(2026, 2, 1), 31}));
}

TEST(PlannerSpan, OtherLengthsBeginOnTheDayAskedFor)
{
    EXPECT_EQ(TDaySpan::Around(EncodeDate(2026, 3, 18), 1), (TDaySpan{EncodeDate(2026, 3, 18), 1}));
    EXPECT_EQ(TDaySpan::Around(EncodeDate(2026, 3, 18), 3), (TDaySpan{EncodeDate(2026, 3, 18), 3}));
}

TEST(PlannerSpan, MovesByItsLengthByWholeWeeksAndByMonths)
{
    EXPECT_EQ((TDaySpan{EncodeDate(2026, 3, 18), 1}.Moved(-1).First), EncodeDate(2026, 3, 17));
    EXPECT_EQ((TDaySpan{EncodeDate(2026, 3, 16), 5}.Moved(1).First), EncodeDate(2026, 3, 23));
    EXPECT_EQ((TDaySpan{EncodeDate(2026, 3, 16), 14}.Moved(1).First), EncodeDate(2026, 3, 30));
    EXPECT_EQ((TDaySpan{EncodeDate(2026, 1, 1), 31}.Moved(1).First), EncodeDate(2026, 2, 1));
    EXPECT_EQ((TDaySpan{EncodeDate(2026, 1, 1), 31}.Moved(-1).First), EncodeDate(2025, 12, 1));
}

} // namespace
