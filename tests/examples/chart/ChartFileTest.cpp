#include "planner/ChartFile.h"

#include <gtest/gtest.h>

namespace
{

using planner::PrintPageFor;
using vcl::TSize;

TEST(ChartFile, IndentedTextIsAChartAndACalendarIsNot)
{
    for (const char* const Name : {"a.txt", "folder.ics/a.TXT", "a.b.tree", "./Company.Tree"})
        EXPECT_TRUE(planner::IsChartFile(Name)) << Name;
    for (const char* const Name : {"a.ics", "txt", ".txt", "a.txt.ics", "folder.txt/a", ""})
        EXPECT_FALSE(planner::IsChartFile(Name)) << Name;
}

TEST(ChartFile, TheTitleHasAStarWhileChangesAreUnsaved)
{
    EXPECT_EQ(planner::ChartTitle("/home/a/theatre.txt", false), "theatre.txt - Chart");
    EXPECT_EQ(planner::ChartTitle("/home/a/theatre.txt", true), "*theatre.txt - Chart");
    EXPECT_EQ(planner::ChartTitle("", true), "*New chart - Chart");
}

TEST(ChartFile, AnExportStandsBesideItsChart)
{
    EXPECT_EQ(planner::WithExtension("/home/a.b/theatre.txt", "pdf"), "/home/a.b/theatre.pdf");
    EXPECT_EQ(planner::WithExtension("/home/a.b/theatre", "svg"), "/home/a.b/theatre.svg");
    EXPECT_EQ(planner::WithExtension("", "png"), "chart.png");
}

TEST(ChartFile, AChartIsMadeSmallerToFitAPageButNeverBelowHalf)
{
    constexpr TSize Paper{1000, 700};
    struct TCase {
        TSize Chart;
        TSize Page;
    };
    for (const TCase& Case : {TCase{{10, 10}, {1000, 700}}, TCase{{1000, 700}, {1000, 700}},
                              TCase{{1500, 10}, {1500, 1050}}, TCase{{10, 1050}, {1500, 1050}},
                              TCase{{2000, 700}, {2000, 1400}}, TCase{{90000, 700}, {2000, 1400}}})
        EXPECT_EQ(PrintPageFor(Case.Chart, Paper), Case.Page) << Case.Chart.Width << "x" << Case.Chart.Height;
}

TEST(ChartFile, LinesKeepTheEndsTheyHad)
{
    EXPECT_EQ(planner::LineEndOf("a\nb\r\n"), "\n");
    EXPECT_EQ(planner::LineEndOf("\n"), "\n");
    EXPECT_EQ(planner::LineEndOf("a\r\nb\n"), "\r\n");
    EXPECT_EQ(planner::LineEndOf("a"), "\r\n");
    EXPECT_EQ(planner::WithLineEnds("a\r\n\tb\r\n", "\n"), "a\n\tb\n");
    EXPECT_EQ(planner::WithLineEnds("a\r\n\r\nb", "\n"), "a\n\nb");
    EXPECT_EQ(planner::WithLineEnds("a\r\n", "\r\n"), "a\r\n");
}

TEST(ChartFile, CountsOneBoxInTheSingular)
{
    EXPECT_EQ(planner::BoxCountText(0), "0 boxes");
    EXPECT_EQ(planner::BoxCountText(1), "1 box");
    EXPECT_EQ(planner::BoxCountText(41), "41 boxes");
}

} // namespace
