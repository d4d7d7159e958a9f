#include "vcl/graphics/ScrollInfo.h"

#include <climits>

#include <gtest/gtest.h>

#include "vcl/graphics/canvas/Csv.h"

namespace vcl::tests
{

namespace
{

const std::map<std::string, unsigned> MaskNames = {
    {"ALL", SIF_RANGE | SIF_PAGE | SIF_POS},
    {"RANGE", SIF_RANGE},
    {"PAGE", SIF_PAGE},
    {"POS", SIF_POS},
    {"DISABLENOSCROLL", SIF_DISABLENOSCROLL},
    {"TRACKPOS", SIF_TRACKPOS},
    {"NONE", 0},
};

int Apply(TScrollBarModel& Bar, const TCsvRow& Row)
{
    if (Row.Text("call") == "setscrollpos")
        return Bar.SetPos(Row.Number("pos"));
    if (Row.Text("call") == "setscrollrange") {
        Bar.SetRange(Row.Number("min"), Row.Number("max"));
        return 1;
    }
    TScrollInfo Info{
        0, Row.Number("min"), Row.Number("max"), static_cast<unsigned>(Row.Number("page")), Row.Number("pos"),
        0};
    for (const std::string& Name : Words(Row.Text("mask")))
        Info.Mask |= MaskNames.at(Name);
    return Bar.SetInfo(Info);
}

} // namespace

TEST(ScrollInfo, EveryCallOfTheTableGivesTheStateThere)
{
    const std::vector<TCsvRow> Rows = ReadCsv("gdi/tables/scrollinfo.csv");
    EXPECT_EQ(Rows.size(), 193u);
    std::map<std::string, TScrollBarModel> Bars;
    for (const TCsvRow& Row : Rows) {
        SCOPED_TRACE("scrollinfo.csv:" + std::to_string(Row.GetLine()));
        const bool HadBars = Row.Text("window_bars") != "none";
        TScrollBarModel& Bar =
            Bars.try_emplace(Row.Text("sequence") + Row.Text("bar"), HadBars).first->second;
        EXPECT_EQ(Apply(Bar, Row), Row.Number("ret"));
        TScrollInfo Stored;
        Bar.GetInfo(Stored);
        EXPECT_EQ(Stored.Min, Row.Number("stored_min"));
        EXPECT_EQ(Stored.Max, Row.Number("stored_max"));
        EXPECT_EQ(static_cast<int>(Stored.Page), Row.Number("stored_page"));
        EXPECT_EQ(Stored.Pos, Row.Number("stored_pos"));
        EXPECT_EQ(Bar.IsVisible(), Row.Number("visible") == 1);
        if (Row.Has("enabled")) {
            EXPECT_EQ(Bar.IsEnabled(), Row.Number("enabled") == 1);
        }
    }
}

TEST(ScrollInfo, ARangeThatEndsBeforeItsBeginningIsEmpty)
{
    TScrollBarModel Bar(true);
    Bar.SetRange(10, 5);
    EXPECT_EQ(Bar.GetMin(), 0);
    EXPECT_EQ(Bar.GetMax(), 0);
    EXPECT_FALSE(Bar.IsVisible());
    Bar.SetRange(INT_MIN, INT_MAX);
    EXPECT_EQ(Bar.GetMax(), 0);
}

TEST(ScrollInfo, OnlyWhatIsAskedForIsAnswered)
{
    TScrollBarModel Bar(true);
    Bar.SetPos(7);
    TScrollInfo Info{SIF_POS, -1, -2, 3, -4, -5};
    Bar.GetInfo(Info);
    EXPECT_EQ(Info.Pos, 7);
    EXPECT_EQ(Info.Min, -1);
    EXPECT_EQ(Info.Max, -2);
    EXPECT_EQ(Info.Page, 3u);
    EXPECT_EQ(Info.TrackPos, -5);
}

TEST(ScrollInfo, TheTrackedPositionIsTheThumbsWhileItIsDragged)
{
    TScrollBarModel Bar(true);
    Bar.SetInfo({SIF_ALL, 0, 100, 10, 20, 0});
    EXPECT_EQ(Bar.GetTrackPos(), 20);
    Bar.BeginTracking(500);
    EXPECT_EQ(Bar.GetTrackPos(), 91);
    EXPECT_EQ(Bar.GetPos(), 20);
    Bar.EndTracking();
    EXPECT_EQ(Bar.GetTrackPos(), 20);
}

TEST(ScrollInfo, APageLargerThanEveryRangeIsCutToTheRange)
{
    TScrollBarModel Bar(true);
    Bar.SetInfo({SIF_ALL, 0, 9, UINT_MAX, 5, 0});
    EXPECT_EQ(Bar.GetPage(), 10u);
    EXPECT_EQ(Bar.GetPos(), 0);
    EXPECT_FALSE(Bar.CanScroll());
}

} // namespace vcl::tests
