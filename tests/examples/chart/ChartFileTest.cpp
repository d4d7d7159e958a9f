#include "planner/ChartFile.h"

#include <filesystem>
#include <fstream>

#include <gtest/gtest.h>

#include "support/TemporaryFolder.h"

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

TEST(ChartFile, IsReplacedWholeOrNotAtAll)
{
    const vcl::tests::TTemporaryFolder Folder;
    const std::string Name = Folder.File("chart.txt");
    planner::ReplaceFile(Name, "a longer text\n");
    planner::ReplaceFile(Name, "short\n");
    std::ifstream File(Name);
    EXPECT_EQ(std::string(std::istreambuf_iterator<char>(File), {}), "short\n");
    EXPECT_EQ(Folder.Count(), 1) << "no other file is left";
    EXPECT_THROW(planner::ReplaceFile(Folder.File("none/chart.txt"), "x"), std::runtime_error);
    std::filesystem::create_directory(Folder.File("folder"));
    EXPECT_THROW(planner::ReplaceFile(Folder.File("folder"), "x"), std::runtime_error);
    EXPECT_TRUE(std::filesystem::is_directory(Folder.File("folder")));
    EXPECT_EQ(Folder.Count(), 2);
    std::filesystem::create_symlink(Folder.File("nowhere/chart.txt"), Folder.File("link.txt"));
    EXPECT_THROW(planner::ReplaceFile(Folder.File("link.txt"), "x"), std::runtime_error);
    planner::ReplaceFile("/dev/null", "x");
    EXPECT_FALSE(std::filesystem::is_regular_file("/dev/null"));
}

TEST(ChartFile, KeepsThePermissionsItHad)
{
    namespace fs = std::filesystem;
    const vcl::tests::TTemporaryFolder Folder;
    const std::string Name = Folder.File("chart.txt");
    planner::ReplaceFile(Name, "old");
    fs::permissions(Name, fs::perms::owner_read | fs::perms::owner_write | fs::perms::group_read);
    planner::ReplaceFile(Name, "new");
    EXPECT_EQ(fs::status(Name).permissions(),
              fs::perms::owner_read | fs::perms::owner_write | fs::perms::group_read);
}

TEST(ChartFile, ALinkGoesOnLeadingToItsFile)
{
    const vcl::tests::TTemporaryFolder Folder;
    planner::ReplaceFile(Folder.File("chart.txt"), "old");
    std::filesystem::create_symlink(Folder.File("chart.txt"), Folder.File("link.txt"));
    planner::ReplaceFile(Folder.File("link.txt"), "new");
    EXPECT_TRUE(std::filesystem::is_symlink(Folder.File("link.txt")));
    std::ifstream File(Folder.File("chart.txt"));
    EXPECT_EQ(std::string(std::istreambuf_iterator<char>(File), {}), "new");
}

TEST(ChartFile, CountsOneBoxInTheSingular)
{
    EXPECT_EQ(planner::BoxCountText(0), "0 boxes");
    EXPECT_EQ(planner::BoxCountText(1), "1 box");
    EXPECT_EQ(planner::BoxCountText(41), "41 boxes");
}

} // namespace
