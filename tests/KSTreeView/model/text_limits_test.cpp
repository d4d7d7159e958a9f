#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "KSTreeView/model/FakeTree.h"
#include "KSTreeView/model/StreamBytes.h"
#include "KSTreeView/model/TreeStrings.h"

using treeview::tests::TFullStream;

namespace
{

const std::string Climbing = "A\n\tB\n\t\tC\n\t\t\tD\n\tE\n\t\tF\n\t\t\tG\n\t\tH\n";
const std::string Climbed = "0A 1B 2C 3D 1E 2F 3G 2H";

TEST(TextLimits, ALineMayClimbSeveralLevelsWithoutReachingTheTop)
{
    vcl::TMemoryStream Stream;
    Stream.WriteBuffer(Climbing.data(), static_cast<std::int64_t>(Climbing.size()));
    Stream.SetPosition(0);
    TFakeTree Tree;
    TKSTreeStrings(&Tree.Items()).LoadTreeFromStream(Stream);
    EXPECT_EQ(Tree.Outline(), Climbed);
}

TEST(TextLimits, AnAddedLineMayClimbSeveralLevelsWithoutReachingTheTop)
{
    TFakeTree Tree;
    TKSTreeStrings Strings(&Tree.Items());
    Strings.SetText(Climbing);
    EXPECT_EQ(Tree.Outline(), Climbed);
}

TEST(TextLimits, LoadingBeginsWhereTheStreamStands)
{
    const std::string Text = "before\nA\n\tB\n";
    vcl::TMemoryStream Stream;
    Stream.WriteBuffer(Text.data(), static_cast<std::int64_t>(Text.size()));
    Stream.SetPosition(7);
    TFakeTree Tree;
    TKSTreeStrings(&Tree.Items()).LoadTreeFromStream(Stream);
    EXPECT_EQ(Tree.Outline(), "0A 1B");
}

TEST(TextLimits, SavingIntoAFullStreamIsAnError)
{
    TFakeTree Tree;
    Tree.Fill({"A", " B"});
    constexpr std::int64_t Size = 7; // A and a tab, B, each with its line end
    for (std::int64_t Room = 0; Room < Size; ++Room) {
        TFullStream Full(Room);
        EXPECT_THROW(TKSTreeStrings(&Tree.Items()).SaveTreeToStream(Full), vcl::EWriteError) << Room;
    }
    TFullStream Enough(Size);
    TKSTreeStrings(&Tree.Items()).SaveTreeToStream(Enough);
    EXPECT_EQ(Enough.GetSize(), Size);
}

TEST(TextLimits, TheEndOfAnUpdateOfTheStringsRefreshesAlsoWhileTheNodesAreUpdating)
{
    TFakeTree Tree;
    TKSTreeStrings Strings(&Tree.Items());
    Tree.Items().BeginUpdate();
    Strings.BeginUpdate();
    EXPECT_EQ(Tree.Refreshes, 0);
    Strings.EndUpdate();
    EXPECT_EQ(Tree.Refreshes, 1);
    Tree.Items().EndUpdate();
    EXPECT_EQ(Tree.Refreshes, 2);
}

} // namespace
