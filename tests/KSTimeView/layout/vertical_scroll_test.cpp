#include "KSTimeView/layout/VerticalScroll.h"

#include <gtest/gtest.h>

namespace
{

using namespace timeview;

constexpr TScrollMetrics Metrics{960, 500, 62, 40, 20, true};

TEST(ScrollRange, APageIsTheVisibleHeightAndOneMore)
{
    EXPECT_EQ(ScrollRange(Metrics, 100), (TScrollRange{439, 960, 100}));
    EXPECT_EQ(ScrollRange(Metrics, 2000), (TScrollRange{439, 960, 960}));
}

TEST(ScrollRange, AScaleThatIsVisibleAsAWholeDoesNotScroll)
{
    EXPECT_EQ(ScrollRange({960, 1022, 62, 40, 20, true}, 30), (TScrollRange{961, 0, 0}));
    EXPECT_EQ(ScrollRange({960, 1021, 62, 40, 20, true}, 30), (TScrollRange{960, 960, 30}));
}

TEST(ScrollRange, AWindowWithoutRoomForTheScaleHasAnEmptyPage)
{
    EXPECT_EQ(ScrollRange({960, 10, 62, 40, 20, true}, 0).Page, 0);
}

TEST(ScrollTarget, StopsWhereTheEndOfTheScaleMeetsTheEndOfTheWindow)
{
    EXPECT_EQ(ScrollTarget(Metrics, -5), (TScrollTarget{0, 0}));
    EXPECT_EQ(ScrollTarget(Metrics, 5000), (TScrollTarget{522, 522}));
}

TEST(ScrollTarget, HasNoUpperLimitWhileTheWholeScaleIsVisible)
{
    EXPECT_EQ(ScrollTarget({960, 1100, 62, 40, 20, true}, 5000), (TScrollTarget{5000, 5000}));
}

TEST(ScrollTarget, WithoutSmoothScrollTheOffsetIsWholeMarksAndTheBarKeepsItsPosition)
{
    TScrollMetrics Coarse = Metrics;
    Coarse.SmoothScroll = false;
    EXPECT_EQ(ScrollTarget(Coarse, 35), (TScrollTarget{35, 20}));
    Coarse.MarkHeight = 0;
    EXPECT_EQ(ScrollTarget(Coarse, 35), (TScrollTarget{35, 35}));
}

TEST(RequestedPosition, LinesAreMarksAndPagesThreeOfThem)
{
    EXPECT_EQ(RequestedPosition(Metrics, TScrollRequest::LineUp, 100, 0), 80);
    EXPECT_EQ(RequestedPosition(Metrics, TScrollRequest::LineDown, 100, 0), 120);
    EXPECT_EQ(RequestedPosition(Metrics, TScrollRequest::PageUp, 100, 0), 40);
    EXPECT_EQ(RequestedPosition(Metrics, TScrollRequest::PageDown, 100, 0), 160);
    EXPECT_EQ(RequestedPosition(Metrics, TScrollRequest::Thumb, 100, 333), 333);
    EXPECT_EQ(RequestedPosition(Metrics, TScrollRequest::Top, 100, 0), 0);
    EXPECT_EQ(RequestedPosition(Metrics, TScrollRequest::End, 100, 0), 522);
}

TEST(RequestedPosition, TheBarsBottomStandsTwiceTheAllDayAreaAboveTheEnd)
{
    EXPECT_EQ(RequestedPosition(Metrics, TScrollRequest::Bottom, 100, 0), 960 - 500 - 40 + 22);
    TScrollMetrics Hidden = Metrics;
    Hidden.Top = 22;
    Hidden.TopSpace = 0;
    EXPECT_EQ(RequestedPosition(Hidden, TScrollRequest::Bottom, 100, 0), 482);
}

TEST(AutoScrollZone, IsHalfAMarkInsideTheEdgesOfTheScale)
{
    EXPECT_EQ(AutoScrollZone(Metrics, 491), TAutoScrollZone::Down);
    EXPECT_EQ(AutoScrollZone(Metrics, 490), TAutoScrollZone::None);
    EXPECT_EQ(AutoScrollZone(Metrics, 72), TAutoScrollZone::None);
    EXPECT_EQ(AutoScrollZone(Metrics, 71), TAutoScrollZone::Up);
}

} // namespace
