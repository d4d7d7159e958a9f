#include <nlohmann/json.hpp>

#include "support/Hex.h"
#include "tools/KsformFixture.h"

namespace vcl::tests
{

using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;
using testing::StartsWith;

namespace
{

/// A head with ImageIndex 2, Data 7, IntData -1 and StringData "x", and one child below it.
std::string TreeStream()
{
    return FromHex("01000000"                                 // one node at the top
                   "100000000200000007000000FFFFFFFF01000000" // 16 bytes: image, data, integer, children
                   "0400000048656164"                         // text
                   "0100000078"                               // string data
                   "10000000FFFFFFFF000000000000000000000000" //
                   "0400000041C2B642"                         //
                   "00000000");
}

} // namespace

TEST_F(Ksform, DataShowsTheNodesOfAChartAsText)
{
    Put("nodes", TreeStream());
    const TOutcome Outcome = Run("data nodes --as TKSTreeNodes");
    EXPECT_EQ(Outcome.Status, 0);
    EXPECT_THAT(Outcome.Errors, IsEmpty());
    EXPECT_THAT(Lines(Outcome.Output),
                ElementsAre("0:", "  Text           Head", "  Level          0", "  Count          1",
                            "  ImageIndex     2", "  Data           7", "  IntData        -1",
                            "  StringData     x", "1:",
                            "  Text           A\xC2\xB6"
                            "B",
                            "  Level          1", "  Count          0", "  ImageIndex     -1",
                            "  Data           0", "  IntData        0", "  StringData     "));
}

TEST_F(Ksform, DataShowsTheNodesOfAChartAsJson)
{
    Put("nodes", TreeStream());
    const auto Nodes = nlohmann::json::parse(Run("data nodes --as tkstreenodes --json").Output);
    ASSERT_EQ(Nodes.size(), 2u);
    EXPECT_EQ(Nodes[0], nlohmann::json::parse(R"({"Text": "Head", "Level": 0, "Count": 1, "ImageIndex": 2,
                                                  "Data": 7, "IntData": -1, "StringData": "x"})"));
    EXPECT_EQ(Nodes[1]["Text"], "A\xC2\xB6"
                                "B");
    EXPECT_EQ(Nodes[1]["Level"], 1);
}

TEST_F(Ksform, DataShowsWhatCouldBeReadOfACutStreamAndWhereItEnds)
{
    const std::string Whole = TreeStream();
    Put("nodes", Whole.substr(0, Whole.size() - 6));
    const TOutcome Outcome = Run("data nodes --as TKSTreeNodes --json");
    EXPECT_EQ(Outcome.Status, 1);
    EXPECT_EQ(nlohmann::json::parse(Outcome.Output)[0]["Text"], "Head");
    EXPECT_THAT(Outcome.Errors, StartsWith("ksform: nodes:"));
}

TEST_F(Ksform, DataTellsOfBytesBehindTheLastRecord)
{
    Put("nodes", TreeStream() + "abc");
    const TOutcome Outcome = Run("data nodes --as TKSTreeNodes");
    EXPECT_EQ(Outcome.Status, 1);
    EXPECT_THAT(Outcome.Errors, HasSubstr("3 bytes behind the last record"));
}

TEST_F(Ksform, DataShowsTheItemsOfATimeView)
{
    Put("items", ReadTestData("../fuzz/corpus/time_view_items/three"));
    const TOutcome Outcome = Run("data items --as TKSTimeViewItems --json");
    EXPECT_EQ(Outcome.Status, 0) << Outcome.Errors;
    const auto Items = nlohmann::json::parse(Outcome.Output);
    ASSERT_EQ(Items.size(), 3u);
    for (const char* const Field : {"Caption", "StartTime", "EndTime", "Color", "AllDay", "UserText"})
        EXPECT_TRUE(Items[2].contains(Field)) << Field;
}

TEST_F(Ksform, DataNamesTheCollectionsItKnows)
{
    Put("nodes", TreeStream());
    const TOutcome Outcome = Run("data nodes --as TStrings");
    EXPECT_EQ(Outcome.Status, 2);
    EXPECT_THAT(Outcome.Errors, HasSubstr("known: TKSTimeViewItems, TKSTreeNodes"));
    EXPECT_EQ(Run("data nodes").Status, 2);
}

} // namespace vcl::tests
