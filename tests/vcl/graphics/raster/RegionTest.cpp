#include <gtest/gtest.h>

#include <climits>
#include <random>
#include <set>

#include "vcl/graphics/Region.h"

using namespace vcl;

namespace
{

constexpr int Side = 24;
using TCells = std::set<std::pair<int, int>>;

TCells CellsOf(const TRegion& Region)
{
    TCells Result;
    for (const TRect& Rect : Region.GetRects())
        for (int Y = Rect.Top; Y < Rect.Bottom; ++Y)
            for (int X = Rect.Left; X < Rect.Right; ++X)
                EXPECT_TRUE(Result.emplace(X, Y).second) << "rectangles overlap at " << X << ", " << Y;
    return Result;
}

TCells CellsOf(const TRect& Rect)
{
    return CellsOf(TRegion(Rect));
}

void ExpectBanded(const TRegion& Region)
{
    const auto& Rects = Region.GetRects();
    for (std::size_t Index = 1; Index < Rects.size(); ++Index) {
        const TRect& Last = Rects[Index - 1];
        const TRect& Next = Rects[Index];
        if (Next.Top == Last.Top) {
            EXPECT_EQ(Next.Bottom, Last.Bottom);
            EXPECT_GT(Next.Left, Last.Right);
        } else {
            EXPECT_GE(Next.Top, Last.Bottom);
        }
    }
}

TRect RandomRect(std::mt19937& Random)
{
    const auto Pick = [&](int Low, int High) { return std::uniform_int_distribution(Low, High)(Random); };
    const int Left = Pick(0, Side - 1);
    const int Top = Pick(0, Side - 1);
    return {Left, Top, Pick(Left, Side), Pick(Top, Side)};
}

} // namespace

TEST(Region, OfAnEmptyOrInvertedRectangleIsEmpty)
{
    EXPECT_TRUE(TRegion(TRect{3, 3, 3, 9}).IsEmpty());
    EXPECT_TRUE(TRegion(TRect{9, 3, 3, 9}).IsEmpty());
    EXPECT_EQ(TRegion(TRect{9, 3, 3, 9}).GetBounds(), TRect());
}

TEST(Region, AgreesWithASetOfCellsUnderRandomOperations)
{
    std::mt19937 Random(7);
    for (int Round = 0; Round < 60; ++Round) {
        TRegion Region;
        TCells Cells;
        for (int Step = 0; Step < 25; ++Step) {
            const TRect Rect = RandomRect(Random);
            const TCells Other = CellsOf(Rect);
            switch (Random() % 4) {
            case 0:
                Region.Subtract(Rect);
                std::erase_if(Cells, [&](const auto& Cell) { return Other.contains(Cell); });
                break;
            case 1:
                if (Random() % 3 == 0) {
                    Region.Intersect(Rect);
                    std::erase_if(Cells, [&](const auto& Cell) { return !Other.contains(Cell); });
                }
                break;
            default:
                Region.Union(Rect);
                Cells.insert(Other.begin(), Other.end());
            }
            ASSERT_EQ(CellsOf(Region), Cells);
            ExpectBanded(Region);
            const TRect Probe = RandomRect(Random);
            const TCells Probed = CellsOf(Probe);
            std::size_t Hits = 0;
            for (const auto& Cell : Probed)
                Hits += Cells.contains(Cell) ? 1 : 0;
            EXPECT_EQ(Region.Intersects(Probe), Hits > 0);
            EXPECT_EQ(Region.Contains(Probe), Hits == Probed.size());
            EXPECT_EQ(Region.Contains(TPoint{Probe.Left, Probe.Top}),
                      Cells.contains({Probe.Left, Probe.Top}));
        }
    }
}

TEST(Region, CombinesWithRegionsAsWithTheirRectangles)
{
    std::mt19937 Random(11);
    for (int Round = 0; Round < 200; ++Round) {
        TRegion Left;
        TRegion Right;
        for (int Step = 0; Step < 6; ++Step) {
            Left.Union(RandomRect(Random));
            Right.Union(RandomRect(Random));
        }
        TRegion Both = Left;
        Both.Intersect(Right);
        TRegion Rest = Left;
        Rest.Subtract(Right);
        TRegion All = Left;
        All.Union(Right);
        TRegion Sum = Both;
        Sum.Union(Rest);
        EXPECT_EQ(Sum, Left);
        TRegion OnlyRight = All;
        OnlyRight.Subtract(Left);
        Sum.Union(OnlyRight);
        EXPECT_EQ(Sum, All) << "equal sets have equal rectangles";
    }
}

TEST(Region, FromManyRectanglesEqualsTheirUnionOneByOne)
{
    std::mt19937 Random(3);
    std::vector<TRect> Rects;
    TRegion Expected;
    for (int Index = 0; Index < 40; ++Index) {
        Rects.push_back(RandomRect(Random));
        Expected.Union(Rects.back());
    }
    EXPECT_EQ(TRegion::FromRects(Rects), Expected);
    EXPECT_TRUE(TRegion::FromRects({}).IsEmpty());
}

TEST(Region, TakesTensOfThousandsOfRectangles)
{
    std::vector<TRect> Rects;
    for (int Y = 0; Y < 150; ++Y)
        for (int X = 0; X < 200; ++X)
            Rects.push_back(Bounds(X * 3, Y * 3, 2, 2));
    const TRegion Region = TRegion::FromRects(Rects);
    EXPECT_EQ(Region.GetRects().size(), Rects.size());
    EXPECT_TRUE(Region.Contains(TPoint{301, 301}));
    EXPECT_FALSE(Region.Contains(TPoint{302, 301}));
}

TEST(Region, JoinsBandsThatBecomeAlike)
{
    TRegion Region(TRect{0, 0, 10, 10});
    Region.Subtract(TRect{4, 4, 6, 6});
    EXPECT_EQ(Region.GetRects().size(), 4u);
    Region.Union(TRect{4, 4, 6, 6});
    EXPECT_TRUE(Region.IsRect());
    EXPECT_EQ(Region.GetBounds(), (TRect{0, 0, 10, 10}));
}

TEST(Region, ReachesTheEndsOfInt)
{
    TRegion Region(TRect{INT_MIN, INT_MIN, INT_MAX, INT_MAX});
    Region.Subtract(TRect{-5, -5, 5, 5});
    EXPECT_FALSE(Region.Contains(TPoint{0, 0}));
    EXPECT_TRUE(Region.Contains(TPoint{INT_MIN, INT_MAX - 1}));
    Region.Intersect(TRect{0, 0, INT_MAX, 10});
    EXPECT_EQ(Region.GetBounds(), (TRect{0, 0, INT_MAX, 10}));
    Region.Offset(INT_MAX, 0);
    EXPECT_TRUE(Region.IsEmpty()) << "pressed flat against the end";
}

TEST(Region, MovesByAnOffset)
{
    TRegion Region(TRect{0, 0, 4, 4});
    Region.Union(TRect{6, 0, 8, 4});
    Region.Offset(10, -2);
    EXPECT_EQ(Region.GetRects(), (std::vector<TRect>{{10, -2, 14, 2}, {16, -2, 18, 2}}));
    EXPECT_EQ(Region.GetBounds(), (TRect{10, -2, 18, 2}));
}
