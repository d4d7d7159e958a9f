#include <gtest/gtest.h>

#include <climits>
#include <map>
#include <sstream>

#include "vcl/graphics/FrameControl.h"
#include "vcl/graphics/RasterPainter.h"
#include "vcl/graphics/raster/Picture.h"

using namespace vcl;

namespace
{

const TColorResolver AllGray = [](TColor) { return 0x808080u; };

const std::map<std::string, unsigned> EdgeNames{
    {"raisedouter", BDR_RAISEDOUTER}, {"sunkenouter", BDR_SUNKENOUTER},
    {"raisedinner", BDR_RAISEDINNER}, {"sunkeninner", BDR_SUNKENINNER},
    {"raised", EDGE_RAISED},          {"sunken", EDGE_SUNKEN},
    {"etched", EDGE_ETCHED},          {"bump", EDGE_BUMP},
};
const std::map<std::string, unsigned> FlagNames{
    {"left", BF_LEFT}, {"top", BF_TOP},   {"right", BF_RIGHT}, {"bottom", BF_BOTTOM}, {"middle", BF_MIDDLE},
    {"flat", BF_FLAT}, {"mono", BF_MONO}, {"soft", BF_SOFT},   {"adjust", BF_ADJUST},
};

} // namespace

TEST(DrawEdge, GivesBackTheInsideThatTheReferenceTableHas)
{
    const auto Table =
        raster::ReadTable(std::filesystem::path(KS_TEST_DATA) / "gdi/tables/drawedgeadjust.csv");
    ASSERT_GT(Table.size(), 100u);
    TSurface Surface(50, 50);
    TRasterPainter Painter(Surface);
    for (const auto& Row : Table) {
        const auto Int = [&Row](std::size_t Column) { return std::stoi(Row.at(Column)); };
        TRect Rect{Int(0), Int(1), Int(2), Int(3)};
        unsigned Flags = 0;
        std::istringstream Words(Row.at(5));
        for (std::string Word; Words >> Word;)
            Flags |= FlagNames.at(Word);
        EXPECT_EQ(DrawEdge(Painter, AllGray, Rect, EdgeNames.at(Row.at(4)), Flags), Int(6) != 0);
        EXPECT_EQ(Rect, (TRect{Int(7), Int(8), Int(9), Int(10)})) << Row.at(4) << " " << Row.at(5);
    }
}

TEST(DrawEdge, LeavesTheRectangleAloneWithoutAdjust)
{
    TSurface Surface(20, 20);
    TRasterPainter Painter(Surface);
    TRect Rect{2, 2, 10, 10};
    EXPECT_TRUE(DrawEdge(Painter, AllGray, Rect, EDGE_RAISED, BF_RECT));
    EXPECT_EQ(Rect, (TRect{2, 2, 10, 10}));
}

TEST(DrawEdge, RefusesARingBothRaisedAndSunken)
{
    TSurface Surface(4, 4);
    TRasterPainter Painter(Surface);
    TRect Rect{0, 0, 4, 4};
    EXPECT_FALSE(DrawEdge(Painter, AllGray, Rect, BDR_OUTER, BF_RECT | BF_MIDDLE | BF_ADJUST));
    EXPECT_EQ(Rect, (TRect{0, 0, 4, 4}));
    EXPECT_EQ(raster::Rows(Surface), "....\n....\n....\n....\n");
}

TEST(DrawEdge, OfARectangleWithoutAreaPaintsNothing)
{
    TSurface Surface(4, 4);
    TRasterPainter Painter(Surface);
    for (TRect Rect : {TRect{2, 2, 2, 4}, TRect{3, 3, 1, 1}, TRect{INT_MAX, INT_MAX, INT_MIN, INT_MIN}})
        EXPECT_TRUE(DrawEdge(Painter, AllGray, Rect, EDGE_SUNKEN, BF_RECT | BF_MIDDLE | BF_ADJUST));
    EXPECT_EQ(raster::Rows(Surface), "....\n....\n....\n....\n");
}

TEST(DrawFrameControl, DrawsArrowsThatPointTheirWay)
{
    const TColorResolver OnlyArrow = [](TColor Color) { return Color == clBtnText ? 0u : 0xFFFFFFu; };
    const auto Drawn = [&](unsigned Direction) {
        TSurface Surface(9, 9);
        TRasterPainter Painter(Surface);
        EXPECT_TRUE(DrawFrameControl(Painter, OnlyArrow, TRect{0, 0, 9, 9}, DFC_SCROLL, Direction));
        return raster::Rows(Surface);
    };
    EXPECT_EQ(Drawn(DFCS_SCROLLUP), ".........\n.........\n.........\n....#....\n...###...\n"
                                    ".........\n.........\n.........\n.........\n");
    EXPECT_EQ(Drawn(DFCS_SCROLLDOWN), ".........\n.........\n.........\n...###...\n....#....\n"
                                      ".........\n.........\n.........\n.........\n");
    EXPECT_EQ(Drawn(DFCS_SCROLLLEFT), ".........\n.........\n.........\n....#....\n...##....\n"
                                      "....#....\n.........\n.........\n.........\n");
    EXPECT_EQ(Drawn(DFCS_SCROLLRIGHT), ".........\n.........\n.........\n...#.....\n...##....\n"
                                       "...#.....\n.........\n.........\n.........\n");
}

TEST(DrawFrameControl, RefusesWhatItDoesNotKnow)
{
    TSurface Surface(4, 4);
    TRasterPainter Painter(Surface);
    EXPECT_FALSE(DrawFrameControl(Painter, AllGray, TRect{0, 0, 4, 4}, 1, 0));
    EXPECT_FALSE(DrawFrameControl(Painter, AllGray, TRect{0, 0, 4, 4}, DFC_BUTTON, 4));
    EXPECT_EQ(raster::Rows(Surface), "....\n....\n....\n....\n");
    EXPECT_TRUE(DrawFrameControl(Painter, AllGray, TRect{INT_MIN, 0, INT_MAX, 4}, DFC_SCROLL, 0));
}
