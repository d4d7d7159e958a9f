#include <climits>
#include <functional>

#include <gtest/gtest.h>

#include "support/Csv.h"
#include "vcl/system/Rects.h"

namespace vcl::tests
{

namespace
{

TRect RectOf(const TCsvRow& Row, const std::string& Prefix)
{
    return {Row.Int(Prefix + "left"), Row.Int(Prefix + "top"), Row.Int(Prefix + "right"),
            Row.Int(Prefix + "bottom")};
}

void ExpectRect(const TCsvRow& Row, const TRect& Actual)
{
    const TRect Expected = RectOf(Row, "out_");
    EXPECT_EQ(Expected, Actual) << "line " << Row.GetLine() << ": " << Actual.Left << " " << Actual.Top << " "
                                << Actual.Right << " " << Actual.Bottom;
}

void ExpectCombination(const std::string& Table,
                       const std::function<bool(TRect&, const TRect&, const TRect&)>& Combine)
{
    for (const TCsvRow& Row : ReadCsv("gdi/tables/" + Table)) {
        TRect Result{9, 9, 9, 9};
        EXPECT_EQ(Row.Int("ret") != 0, Combine(Result, RectOf(Row, "a_"), RectOf(Row, "b_")))
            << "line " << Row.GetLine();
        ExpectRect(Row, Result);
        TRect Aliased = RectOf(Row, "b_");
        Combine(Aliased, RectOf(Row, "a_"), Aliased);
        ExpectRect(Row, Aliased);
    }
}

} // namespace

TEST(Rects, InflateMovesTheEdgesAsTheTableSays)
{
    for (const TCsvRow& Row : ReadCsv("gdi/tables/inflaterect.csv")) {
        TRect Rect = RectOf(Row, "");
        InflateRect(Rect, Row.Int("dx"), Row.Int("dy"));
        ExpectRect(Row, Rect);
    }
}

TEST(Rects, OffsetMovesTheRectangleAsTheTableSays)
{
    for (const TCsvRow& Row : ReadCsv("gdi/tables/offsetrect.csv")) {
        TRect Rect = RectOf(Row, "");
        OffsetRect(Rect, Row.Int("dx"), Row.Int("dy"));
        ExpectRect(Row, Rect);
    }
}

TEST(Rects, IntersectGivesTheCommonPart)
{
    ExpectCombination("intersectrect.csv", IntersectRect);
}

TEST(Rects, UnionGivesTheRectangleAroundBoth)
{
    ExpectCombination("unionrect.csv", UnionRect);
}

TEST(Rects, SubtractCutsOnlyWhatLeavesARectangle)
{
    ExpectCombination("subtractrect.csv", SubtractRect);
}

TEST(Rects, EqualComparesCoordinates)
{
    for (const TCsvRow& Row : ReadCsv("gdi/tables/equalrect.csv"))
        EXPECT_EQ(Row.Int("ret") != 0, EqualRect(RectOf(Row, "a_"), RectOf(Row, "b_")))
            << "line " << Row.GetLine();
}

TEST(Rects, APointOnTheRightOrBottomEdgeLiesOutside)
{
    for (const TCsvRow& Row : ReadCsv("gdi/tables/ptinrect.csv"))
        EXPECT_EQ(Row.Int("ret") != 0, PtInRect(RectOf(Row, ""), {Row.Int("x"), Row.Int("y")}))
            << "line " << Row.GetLine();
}

TEST(Rects, ARectangleWithoutInsideIsEmpty)
{
    for (const TCsvRow& Row : ReadCsv("gdi/tables/isrectempty.csv"))
        EXPECT_EQ(Row.Int("ret") != 0, IsRectEmpty(RectOf(Row, ""))) << "line " << Row.GetLine();
}

TEST(Rects, MulDivRoundsHalvesAwayFromZeroAndTellsOverflow)
{
    for (const TCsvRow& Row : ReadCsv("gdi/tables/muldiv.csv"))
        EXPECT_EQ(Row.Int("ret"), MulDiv(Row.Int("number"), Row.Int("numerator"), Row.Int("denominator")))
            << "line " << Row.GetLine();
    EXPECT_EQ(-1, MulDiv(5, 5, 0));
    EXPECT_EQ(-1, MulDiv(INT_MIN, INT_MIN, 1));
    EXPECT_EQ(-1, MulDiv(INT_MIN, 1, 1));
    EXPECT_EQ(INT_MAX, MulDiv(INT_MAX, INT_MIN, INT_MIN));
}

TEST(Rects, CoordinatesStopAtTheEndOfTheRange)
{
    TRect Rect{INT_MIN, 0, INT_MAX, 10};
    InflateRect(Rect, 5, 5);
    EXPECT_EQ((TRect{INT_MIN, -5, INT_MAX, 15}), Rect);
    OffsetRect(Rect, 7, INT_MAX);
    EXPECT_EQ((TRect{INT_MIN + 7, INT_MAX - 5, INT_MAX, INT_MAX}), Rect);
    EXPECT_EQ(INT_MAX, (TRect{INT_MIN, 0, INT_MAX, 0}).Width());
    EXPECT_EQ(INT_MIN, (TRect{0, INT_MAX, 0, INT_MIN}).Height());
    EXPECT_EQ((TRect{INT_MAX - 1, 2, INT_MAX, 5}), Bounds(INT_MAX - 1, 2, 100, 3));
}

} // namespace vcl::tests
