#include "KSTimeView/layout/DayColumns.h"

#include <gtest/gtest.h>

#include <climits>

namespace
{

using timeview::DivideWidth;
using timeview::TDayColumn;
using timeview::TimedItemExtent;
using timeview::TItemExtent;
using timeview::TItemPlace;

TEST(DivideWidth, SevenDaysShareAWidthThatDividesEvenly)
{
    const std::vector<TDayColumn> Columns = DivideWidth(757, true, 50, 7);
    ASSERT_EQ(Columns.size(), 7u);
    for (int Day = 0; Day < 7; ++Day)
        EXPECT_EQ(Columns[static_cast<std::size_t>(Day)], (TDayColumn{50 + 101 * Day, 101}));
}

TEST(DivideWidth, TheColumnsTouchAndAddUpToTheSharedWidth)
{
    for (int Width = 51; Width < 1500; Width += 13)
        for (int Count = 1; Count <= 40; ++Count) {
            int X = 50;
            for (const TDayColumn& Column : DivideWidth(Width, true, 50, Count)) {
                ASSERT_EQ(Column.Left, X);
                X += Column.Width;
            }
            ASSERT_EQ(X, Width) << Count << " days";
        }
}

TEST(DivideWidth, WithoutRulerTheDaysStartAtTheEdgeAndHalvesGoToTheEvenPixel)
{
    EXPECT_EQ(DivideWidth(5, false, 50, 2), (std::vector<TDayColumn>{{0, 2}, {2, 3}}));
    EXPECT_EQ(DivideWidth(7, false, 50, 2), (std::vector<TDayColumn>{{0, 4}, {4, 3}}));
}

TEST(DivideWidth, TheShareOfADayIsSummedInSinglePrecision)
{
    // Three times the share is a little below 3.5; in double precision it would be 3.5 and go to 4.
    EXPECT_EQ(DivideWidth(7, false, 50, 6),
              (std::vector<TDayColumn>{{0, 1}, {1, 1}, {2, 1}, {3, 2}, {5, 1}, {6, 1}}));
}

TEST(DivideWidth, AWindowNarrowerThanItsRulerGivesNegativeWidths)
{
    EXPECT_EQ(DivideWidth(10, true, 50, 1), (std::vector<TDayColumn>{{50, -40}}));
    EXPECT_TRUE(DivideWidth(10, true, INT_MIN, 0).empty());
}

TItemPlace PlaceInDay(int Column, int Count, bool GapCover)
{
    return {{100, 200}, Column, Count, 6, GapCover, false};
}

TEST(TimedItemExtent, TheRightEdgeAlwaysLeavesTheGapAndTheLeftOnlyWithTheCover)
{
    EXPECT_EQ(TimedItemExtent(PlaceInDay(0, 2, false)), (TItemExtent{100, 194}));
    EXPECT_EQ(TimedItemExtent(PlaceInDay(1, 2, false)), (TItemExtent{200, 294}));
    EXPECT_EQ(TimedItemExtent(PlaceInDay(1, 2, true)), (TItemExtent{205, 294}));
}

TEST(TimedItemExtent, ColumnEdgesAreRoundedSumsOfTheShare)
{
    EXPECT_EQ(TimedItemExtent(PlaceInDay(1, 3, false)), (TItemExtent{167, 227}));
    EXPECT_EQ(TimedItemExtent(PlaceInDay(2, 3, false)), (TItemExtent{233, 294}));
}

TEST(TimedItemExtent, TheShareOfAColumnIsOfSinglePrecision)
{
    EXPECT_EQ(TimedItemExtent({{0, 7}, 3, 6, 0, false, false}), (TItemExtent{3, 5}));
    EXPECT_EQ(TimedItemExtent({{0, 7}, 2, 6, 0, false, false}), (TItemExtent{2, 3}));
}

TEST(TimedItemExtent, HalvesGoToTheEvenPixelOfTheDayNotOfTheWindow)
{
    EXPECT_EQ(TimedItemExtent({{0, 101}, 0, 2, 0, false, false}), (TItemExtent{0, 50}));
    EXPECT_EQ(TimedItemExtent({{51, 101}, 1, 2, 0, false, false}), (TItemExtent{101, 152}));
    EXPECT_EQ(TimedItemExtent({{0, 103}, 1, 2, 0, false, false}), (TItemExtent{52, 103}));
}

TEST(TimedItemExtent, AnItemDraggedInFromOutsideLiesOverTheWholeDay)
{
    TItemPlace Place = PlaceInDay(1, 3, true);
    Place.OverWholeDay = true;
    EXPECT_EQ(TimedItemExtent(Place), (TItemExtent{105, 294}));
    Place.GapCover = false;
    EXPECT_EQ(TimedItemExtent(Place), (TItemExtent{100, 294}));
}

TEST(AllDayItemRect, SpansItsDaysInItsRow)
{
    EXPECT_EQ(timeview::AllDayItemRect({50, 101}, {252, 101}, 22, 20, 1), (vcl::TRect{53, 44, 351, 62}));
}

} // namespace
