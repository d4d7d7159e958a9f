#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "KSTreeView/model/FakeTree.h"
#include "KSTreeView/model/StreamBytes.h"

using treeview::tests::Int;
using treeview::tests::Read;
using treeview::tests::Record;
using treeview::tests::TFullStream;

namespace
{

TEST(StreamLimits, LengthsOfEitherStringThatLieMeetTheEndOfTheStream)
{
    for (const int Lie : {-1, INT32_MIN, 1 << 20, INT32_MAX}) {
        TKSTreeNodes Nodes;
        vcl::TMemoryStream Text;
        Int(Text, {1, 16, 0, 0, 0, 0, Lie, 0});
        EXPECT_THROW(Read(Nodes, Text), vcl::EReadError) << Lie;
        EXPECT_EQ(Nodes.GetCount(), 1);
        vcl::TMemoryStream StringData;
        Int(StringData, {1, 16, 0, 0, 0, 0});
        StringData.WriteCountedString("A");
        Int(StringData, {Lie});
        EXPECT_THROW(Read(Nodes, StringData), vcl::EReadError) << Lie;
        ASSERT_EQ(Nodes.GetCount(), 1);
        EXPECT_EQ(Nodes[0]->GetText(), "A") << "as much of the record as there was";
    }
}

TEST(StreamLimits, AnInfoWithoutACountKeepsTheOneBeforeAndEndsWithTheStream)
{
    for (const int InfoSize : {0, 12}) {
        // A says it has one child, and so, by saying nothing, does every record below it.
        vcl::TMemoryStream Stream;
        Int(Stream, {1});
        Record(Stream, "A", 1);
        for (int Level = 0; Level < 3; ++Level) {
            Int(Stream, {InfoSize});
            for (int Bytes = 0; Bytes < InfoSize; Bytes += 4)
                Int(Stream, {Level});
            Int(Stream, {0, 0});
        }
        TFakeTree Tree;
        EXPECT_THROW(Read(Tree.Items(), Stream), vcl::EReadError);
        EXPECT_EQ(Tree.Outline(), "0A 1 2 3 4");
        EXPECT_EQ(Tree.Items()[3]->GetImageIndex(), InfoSize == 0 ? -1 : 2);
    }
}

TEST(StreamLimits, OneCollectionMayFollowTheOther)
{
    TFakeTree First;
    First.Fill({"A", " A1", "B"});
    TFakeTree Second;
    Second.Fill({"C", " C1"});
    vcl::TMemoryStream Stream;
    First.Items().WriteData(Stream);
    const std::int64_t Between = Stream.GetPosition();
    Second.Items().WriteData(Stream);
    Stream.SetPosition(0);
    TFakeTree Copy;
    Copy.Items().ReadData(Stream);
    EXPECT_EQ(Copy.Outline(), "0A 1A1 0B");
    EXPECT_EQ(Stream.GetPosition(), Between);
    Copy.Items().ReadData(Stream);
    EXPECT_EQ(Copy.Outline(), "0C 1C1");
    EXPECT_EQ(Stream.Remaining(), 0);
}

TEST(StreamLimits, ANodeReadsARecordBesideItsOwnChildren)
{
    TFakeTree Tree;
    Tree.Fill({"A", " A1", "B"});
    vcl::TMemoryStream Stream;
    Record(Stream, "new", 1);
    Record(Stream, "below", 0);
    Record(Stream, "not this", 0);
    const std::int64_t Left = Stream.GetSize() - (4 + 16 + 4 + 8 + 4);
    Stream.SetPosition(0);
    TKSNodeInfo Info;
    Tree.Find("A")->ReadData(Stream, Info);
    EXPECT_EQ(Tree.Outline(), "0new 1A1 1below 0B");
    EXPECT_EQ(Stream.GetPosition(), Left);
}

TEST(StreamLimits, ANodeWritesItselfAndWhatIsBelowIt)
{
    TFakeTree Tree;
    Tree.Fill({"A", " A1", "  A11", " A2", "B"});
    Tree.Find("A1")->SetImageIndex(6);
    vcl::TMemoryStream Stream;
    TKSNodeInfo Info;
    Tree.Find("A1")->WriteData(Stream, Info);
    vcl::TMemoryStream Expected;
    Int(Expected, {16, 6, 0, 0, 1});
    Expected.WriteCountedString("A1");
    Expected.WriteCountedString("");
    Record(Expected, "A11", 0);
    EXPECT_EQ(Stream.GetBytes(), Expected.GetBytes());
}

TEST(StreamLimits, AFullStreamIsAnErrorWhereverItEnds)
{
    TFakeTree Tree;
    Tree.Fill({"A", " A1", "B"});
    Tree.Find("A1")->SetStringData("string");
    vcl::TMemoryStream Whole;
    Tree.Items().WriteData(Whole);
    for (std::int64_t Room = 0; Room < Whole.GetSize(); ++Room) {
        TFullStream Full(Room);
        EXPECT_THROW(Tree.Items().WriteData(Full), vcl::EWriteError) << Room;
    }
    TFullStream Enough(Whole.GetSize());
    Tree.Items().WriteData(Enough);
    EXPECT_EQ(Enough.GetBytes(), Whole.GetBytes());
}

TEST(StreamLimits, AChainIsReadWithoutRefreshingInBetweenHoweverLongItIs)
{
    constexpr int Count = 200'000;
    vcl::TMemoryStream Stream;
    Int(Stream, {1});
    for (int Level = 0; Level < Count; ++Level)
        Record(Stream, "x", Level < Count - 1 ? 1 : 0);
    TFakeTree Tree;
    Tree.Quiet = true;
    Read(Tree.Items(), Stream);
    EXPECT_THAT(Tree.Log, testing::ElementsAre("refresh", "refresh")) << "emptied and filled";
    EXPECT_EQ(Tree.Items().GetCount(), Count);
    EXPECT_EQ(Tree.Items()[Count - 1]->GetLevel(), Count - 1);
    EXPECT_TRUE(Tree.Items()[Count - 2]->GetHasChildren());
}

} // namespace
