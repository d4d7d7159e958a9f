#include "planner/Options.h"

#include <stdexcept>

#include <gtest/gtest.h>

#include "vcl/system/DateTime.h"

namespace
{

using planner::ParseOptions;

TEST(PlannerOptions, TakeFilesAndValuesInAnyOrder)
{
    const planner::TOptions Options =
        ParseOptions({"a.ics", "--days", "14", "b.ics", "--date", "2026-03-18", "--size", "800x600",
                      "--scale", "1.5", "--minutes", "5", "--dark", "--screenshot", "out.png"});
    EXPECT_EQ(Options.Files, (std::vector<std::string>{"a.ics", "b.ics"}));
    EXPECT_EQ(Options.Days, 14);
    EXPECT_EQ(Options.Date, vcl::EncodeDate(2026, 3, 18));
    EXPECT_EQ(Options.Size, (vcl::TSize{800, 600}));
    EXPECT_EQ(Options.Scale, 1.5);
    EXPECT_EQ(Options.MarkMinutes, 5);
    EXPECT_TRUE(Options.Dark);
    EXPECT_EQ(Options.Screenshot, "out.png");
}

TEST(PlannerOptions, LeaveUnsaidWhatIsNotGiven)
{
    const planner::TOptions Options = ParseOptions({});
    EXPECT_FALSE(Options.Date || Options.Days || Options.Size || Options.MarkMinutes);
    EXPECT_EQ(Options.Scale, 1.0);
    EXPECT_FALSE(Options.Dark);
}

TEST(PlannerOptions, RefuseValuesOutOfRangeAndUnknownOptions)
{
    const std::vector<std::vector<std::string>> Bad = {
        {"--days", "0"},          {"--days", "32"},
        {"--days", "7x"},         {"--days"},
        {"--date", "2026-02-30"}, {"--date", "18.3.26"},
        {"--size", "800"},        {"--size", "800x"},
        {"--size", "9x9"},        {"--scale", "0"},
        {"--scale", "nan"},       {"--scale", "9"},
        {"--minutes", "7"},       {"--what"},
    };
    for (const std::vector<std::string>& Arguments : Bad)
        EXPECT_THROW(ParseOptions(Arguments), std::invalid_argument) << testing::PrintToString(Arguments);
}

TEST(PlannerOptions, NameTheOptionAndTheValueTheyRefuse)
{
    try {
        ParseOptions({"--days", "many"});
        FAIL() << "nothing was refused";
    } catch (const std::invalid_argument& Error) {
        EXPECT_STREQ(Error.what(), "bad value for --days: many");
    }
}

} // namespace
