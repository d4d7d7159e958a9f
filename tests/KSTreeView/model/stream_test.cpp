#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "KSTreeView/model/FakeTree.h"
#include "KSTreeView/model/StreamBytes.h"
#include "support/Hex.h"
#include "vcl/streaming/Filer.h"

using treeview::tests::Int;
using treeview::tests::Read;
using treeview::tests::Record;

namespace
{

std::vector<std::uint8_t> Written(const TKSTreeNodes& Nodes)
{
    vcl::TMemoryStream Stream;
    Nodes.WriteData(Stream);
    return Stream.GetBytes();
}

TEST(Stream, AnEmptyCollectionIsOneZero)
{
    TKSTreeNodes Nodes;
    EXPECT_EQ(Written(Nodes), (std::vector<std::uint8_t>{0, 0, 0, 0}));
    vcl::TMemoryStream Stream;
    Int(Stream, {0});
    Nodes.Add(nullptr, "old");
    Read(Nodes, Stream);
    EXPECT_EQ(Nodes.GetCount(), 0);
}

TEST(Stream, ARecordIsInfoTextStringDataAndTheChildren)
{
    TKSTreeNodes Nodes;
    TKSTreeNode* const A = Nodes.AddObject(nullptr, "A", reinterpret_cast<void*>(std::uintptr_t{0x80000001}));
    A->SetImageIndex(2);
    A->SetIntData(-3);
    A->SetStringData("xy");
    Nodes.AddChild(A, "B");
    EXPECT_EQ(Written(Nodes), (std::vector<std::uint8_t>{
                                  1,    0,    0,    0,    16,   0,    0,    0,    // one, 16
                                  2,    0,    0,    0,    1,    0,    0,    0x80, // image, data
                                  0xFD, 0xFF, 0xFF, 0xFF, 1,    0,    0,    0,    // int data, count
                                  1,    0,    0,    0,    'A',                    //
                                  2,    0,    0,    0,    'x',  'y',              //
                                  16,   0,    0,    0,    0xFF, 0xFF, 0xFF, 0xFF, 0, 0, 0, 0, //
                                  0,    0,    0,    0,    0,    0,    0,    0,                //
                                  1,    0,    0,    0,    'B',  0,    0,    0,    0,
                              }));
}

TEST(Stream, ReadingRestoresShapeTextsAndValues)
{
    TFakeTree Source;
    Source.Fill({"A", " A1", "  A11", " A2", "B"});
    Source.Find("A11")->SetStringData(std::string("a\0b", 3));
    Source.Find("B")->SetData(reinterpret_cast<void*>(std::uintptr_t{0xFFFFFFFF}));
    Source.Find("B")->SetColor(vcl::clRed);
    Source.Find("A")->Expand(true);
    vcl::TMemoryStream Stream;
    Source.Items().WriteData(Stream);
    TFakeTree Target;
    Read(Target.Items(), Stream);
    EXPECT_EQ(Target.Outline(), Source.Outline());
    EXPECT_EQ(Target.Items().GetCount(), 5);
    EXPECT_EQ(Target.Find("A11")->GetStringData(), std::string("a\0b", 3));
    EXPECT_EQ(Target.Find("B")->GetData(), reinterpret_cast<void*>(std::uintptr_t{0xFFFFFFFF}));
    EXPECT_TRUE(Target.Find("A")->GetHasChildren());
    EXPECT_FALSE(Target.Find("A")->GetExpanded()) << "expansion is not streamed";
    EXPECT_TRUE(Target.Find("B")->GetUseTreeColor()) << "colours are not streamed";
    EXPECT_EQ(Stream.Remaining(), 0);
    EXPECT_EQ(Written(Target.Items()), Stream.GetBytes());
}

TEST(Stream, DataKeepsItsLow32BitsAndACopyAllOfThem)
{
    void* const Long = reinterpret_cast<void*>(std::uintptr_t{0x1122334455667788});
    TKSTreeNodes Nodes;
    Nodes.AddChildObject(Nodes.Add(nullptr, "A"), "B", Long);
    TKSTreeNodes Copy;
    Copy.Assign(&Nodes);
    EXPECT_EQ(Copy.GetItem(0)->GetData(), nullptr);
    EXPECT_EQ(Copy.GetItem(1)->GetData(), Long);
    vcl::TMemoryStream Stream;
    Nodes.WriteData(Stream);
    Stream.SetPosition(0);
    Copy.ReadData(Stream);
    EXPECT_EQ(Copy.GetItem(1)->GetData(), reinterpret_cast<void*>(std::uintptr_t{0x55667788}));
}

TEST(Stream, ACopyHasItsWholePointersWhileItIsDrawn)
{
    void* const Long = reinterpret_cast<void*>(std::uintptr_t{0x1122334455667788});
    TKSTreeNodes Nodes;
    Nodes.AddObject(nullptr, "A", Long);
    Nodes.AddObject(nullptr, "B", Long);
    TFakeTree Tree;
    Tree.Assigned = {treeview::TTreeEvent::GetImageIndex};
    int Whole = 0;
    Tree.OnRefresh = [&] {
        for (TKSTreeNode* Node = Tree.Items().GetFirstNode(); Node; Node = Node->GetNext())
            if (Node->GetText() == "A")
                Whole += Node->GetData() == Long;
    };
    Tree.Items().Assign(&Nodes);
    EXPECT_EQ(Whole, 1) << "when B has been added";
    EXPECT_EQ(Tree.Items().GetItem(1)->GetData(), Long);
}

TEST(Stream, AnInfoSizeAbove16OrBelow0IsAReadErrorAndNodesReadSoFarStay)
{
    for (const int Size : {17, 1000, INT32_MAX, -1, INT32_MIN}) {
        vcl::TMemoryStream Stream;
        Int(Stream, {2});
        Record(Stream, "A", 0);
        Record(Stream, "B", 0, Size);
        TKSTreeNodes Nodes;
        EXPECT_THROW(Read(Nodes, Stream), vcl::EReadError) << Size;
        ASSERT_EQ(Nodes.GetCount(), 2);
        EXPECT_EQ(Nodes[0]->GetText(), "A");
        EXPECT_EQ(Nodes[1]->GetText(), "");
    }
}

TEST(Stream, AShortInfoKeepsWhatTheRecordBeforeHad)
{
    vcl::TMemoryStream Stream;
    Int(Stream, {2, 16, 7, 8, 9, 0, 0, 0});
    Int(Stream, {4, 5, 0, 0});
    TKSTreeNodes Nodes;
    Read(Nodes, Stream);
    EXPECT_EQ(Nodes[1]->GetImageIndex(), 5);
    EXPECT_EQ(Nodes[1]->GetIntData(), 9) << "one buffer is shared by all records";
}

TEST(Stream, CutShortAnywhereItRaisesAndKeepsWhatWasRead)
{
    TFakeTree Source;
    Source.Fill({"A", " A1", "  A11", " A2", "B"});
    const std::vector<std::uint8_t> Bytes = Written(Source.Items());
    int Before = 0;
    for (std::size_t Size = 0; Size < Bytes.size(); ++Size) {
        vcl::TMemoryStream Stream;
        Stream.WriteBuffer(Bytes.data(), static_cast<std::int64_t>(Size));
        TKSTreeNodes Nodes;
        EXPECT_THROW(Read(Nodes, Stream), vcl::EReadError) << Size;
        EXPECT_GE(Nodes.GetCount(), Before);
        Before = Nodes.GetCount();
        EXPECT_FALSE(Nodes.IsUpdating());
    }
    EXPECT_EQ(Before, 5);
}

TEST(Stream, CountsAndLengthsThatLieMeetTheEndOfTheStream)
{
    for (const int Lie : {INT32_MAX, 1 << 20}) {
        TKSTreeNodes Nodes;
        vcl::TMemoryStream Count;
        Int(Count, {Lie});
        Record(Count, "A", 0);
        EXPECT_THROW(Read(Nodes, Count), vcl::EReadError);
        EXPECT_EQ(Nodes.GetCount(), 2);
        vcl::TMemoryStream Children;
        Int(Children, {1});
        Record(Children, "A", Lie);
        EXPECT_THROW(Read(Nodes, Children), vcl::EReadError);
        EXPECT_EQ(Nodes.GetCount(), 2);
        vcl::TMemoryStream Length;
        Int(Length, {1, 16, 0, 0, 0, 0, Lie, 0});
        EXPECT_THROW(Read(Nodes, Length), vcl::EReadError);
        EXPECT_EQ(Nodes.GetCount(), 1);
    }
}

TEST(Stream, NegativeCountsAreNone)
{
    TKSTreeNodes Nodes;
    vcl::TMemoryStream Stream;
    Int(Stream, {-5});
    Read(Nodes, Stream);
    EXPECT_EQ(Nodes.GetCount(), 0);
    vcl::TMemoryStream Children;
    Int(Children, {1});
    Record(Children, "A", -5);
    Read(Nodes, Children);
    EXPECT_EQ(Nodes.GetCount(), 1);
}

TEST(Stream, ReadingRefreshesTheEmptiedTreeAndThenOnceForAll)
{
    TFakeTree Tree;
    Tree.Fill({"A", " A1", "B"});
    vcl::TMemoryStream Stream;
    Tree.Items().WriteData(Stream);
    Tree.Log.clear();
    Read(Tree.Items(), Stream);
    EXPECT_EQ(std::count(Tree.Log.begin(), Tree.Log.end(), "refresh"), 2);
    Tree.Log.clear();
    Tree.Assigned = {treeview::TTreeEvent::Change, treeview::TTreeEvent::Deletion};
    Read(Tree.Items(), Stream);
    EXPECT_EQ(std::count(Tree.Log.begin(), Tree.Log.end(), "refresh"), 2) << "reading raises neither";
    Tree.Log.clear();
    Tree.Assigned = {treeview::TTreeEvent::GetImageIndex};
    Read(Tree.Items(), Stream);
    EXPECT_EQ(std::count(Tree.Log.begin(), Tree.Log.end(), "refresh"), 3) << "each one, and Clear";
}

TEST(Stream, AHandlerMayClearWhatIsBeingRead)
{
    TFakeTree Tree;
    Tree.Fill({"A", " A1", "B"});
    vcl::TMemoryStream Stream;
    Tree.Items().WriteData(Stream);
    Tree.Items().Clear();
    Tree.Assigned = {treeview::TTreeEvent::GetImageIndex};
    Tree.OnGetImageIndex = [&](TKSTreeNode*) { Tree.Items().Clear(); };
    Read(Tree.Items(), Stream);
    EXPECT_EQ(Tree.Items().GetCount(), 0);
}

TKSTreeNodes* Chain(int Count)
{
    auto* const Nodes = vcl::New<TKSTreeNodes>();
    TKSTreeNode* Last = nullptr;
    for (int Index = 0; Index < Count; ++Index)
        Last = Nodes->AddChild(Last, "x");
    return Nodes;
}

TEST(Stream, AMillionLevelsAreWrittenReadCopiedAndFreedWithoutRecursion)
{
    constexpr int Count = 1'000'000;
    TKSTreeNodes* const Nodes = Chain(Count);
    TKSTreeNodes Copy;
    Copy.Assign(Nodes);
    EXPECT_EQ(Copy.GetCount(), Count);
    EXPECT_EQ(Copy[Count - 1]->GetLevel(), Count - 1);
    Copy.GetFirstNode()->Expand(true);
    EXPECT_TRUE(Copy[Count - 1]->IsVisible());
    Copy.GetFirstNode()->Collapse(true);
    Copy.Clear();
    delete Nodes;
}

TEST(Stream, AMillionSiblingsAreWrittenReadCopiedAndFreed)
{
    constexpr int Count = 1'000'000;
    TFakeTree Tree;
    Tree.Quiet = true;
    Tree.Items().BeginUpdate();
    for (int Index = 0; Index < Count; ++Index)
        Tree.Items().Add(nullptr, "x");
    Tree.Items().EndUpdate();
    TKSTreeNodes Copy;
    Copy.Assign(&Tree.Items());
    EXPECT_EQ(Copy.GetTopCount(), Count);
    TFakeTree Below;
    vcl::TMemoryStream Stream;
    Int(Stream, {1});
    Record(Stream, "A", Count);
    for (int Index = 0; Index < Count; ++Index)
        Record(Stream, "x", 0);
    Read(Below.Items(), Stream);
    EXPECT_EQ(Below.Find("A")->GetCount(), Count);
    for (int Index = 0; Index < Count; ++Index)
        ASSERT_NE(Below.Find("A")->GetItem(Index), nullptr);
    Below.Quiet = true;
    Below.Find("A")->DeleteChildren();
    EXPECT_EQ(Below.Items().GetCount(), 1);
}

/// Notes what DefineProperties says about "Data".
class TNotingFiler final : public vcl::TFiler
{
public:
    void SetAncestor(vcl::TPersistent* Ancestor) { FAncestor = Ancestor; }
    void DefineProperty(const char*, const TReaderProc&, const TWriterProc&, bool) override { ADD_FAILURE(); }
    void DefineBinaryProperty(const char* Name, const TStreamProc& Reader, const TStreamProc& Writer,
                              bool HasData) override
    {
        EXPECT_STREQ(Name, "Data");
        Written = HasData;
        Read = Reader;
        Write = Writer;
    }
    bool Written = false;
    TStreamProc Read;
    TStreamProc Write;
};

TEST(Data, IsWrittenWhenThereAreNodes)
{
    TNotingFiler Filer;
    TKSTreeNodes Nodes;
    Nodes.DefineProperties(Filer);
    EXPECT_FALSE(Filer.Written);
    Nodes.Add(nullptr, "A");
    Nodes.DefineProperties(Filer);
    EXPECT_TRUE(Filer.Written);
    vcl::TMemoryStream Stream;
    Filer.Write(Stream);
    EXPECT_EQ(Stream.GetBytes(), Written(Nodes));
    TKSTreeNodes Other;
    Other.DefineProperties(Filer);
    Stream.SetPosition(0);
    Filer.Read(Stream);
    EXPECT_EQ(Other.GetCount(), 1);
}

TEST(Data, IsComparedNodeByNodeWithAnAncestorOfTheSameCount)
{
    TNotingFiler Filer;
    TKSTreeNodes Ancestor;
    TKSTreeNodes Nodes;
    Filer.SetAncestor(&Ancestor);
    const auto IsWritten = [&] {
        Nodes.DefineProperties(Filer);
        return Filer.Written;
    };
    EXPECT_FALSE(IsWritten());
    Ancestor.Add(nullptr, "A");
    EXPECT_FALSE(IsWritten()) << "another count, and nothing to write";
    Nodes.Add(nullptr, "A");
    EXPECT_FALSE(IsWritten());
    Nodes[0]->SetImageIndex(5);
    EXPECT_FALSE(IsWritten()) << "images are not compared";
    Nodes[0]->SetStringData("s");
    EXPECT_TRUE(IsWritten());
    Nodes[0]->SetStringData("");
    Nodes[0]->SetIntData(1);
    EXPECT_TRUE(IsWritten());
    Nodes[0]->SetIntData(0);
    Nodes[0]->SetData(&Nodes);
    EXPECT_TRUE(IsWritten());
    Nodes[0]->SetData(nullptr);
    Nodes[0]->SetText("B");
    EXPECT_TRUE(IsWritten());
    Nodes[0]->SetText("A");
    Nodes.Add(nullptr, "B");
    EXPECT_TRUE(IsWritten());
    Ancestor.AddChild(Ancestor[0], "B");
    EXPECT_FALSE(IsWritten()) << "only the order counts, not the shape";
}

TEST(Copying, ANodeTakesEverythingButPlaceAndStatesAndGetsTheFocus)
{
    TFakeTree Tree;
    Tree.Fill({"A", " A1", "B"});
    TKSTreeNode* const A = Tree.Find("A");
    TKSTreeNode* const B = Tree.Find("B");
    A->SetImageIndex(4);
    A->SetColor(vcl::clRed);
    A->SetStringData("s");
    A->SetIntData(5);
    A->SetData(&Tree);
    A->Expand(false);
    Tree.Log.clear();
    B->Assign(A);
    EXPECT_EQ(B->GetText(), "A");
    EXPECT_EQ(B->GetImageIndex(), 4);
    EXPECT_EQ(B->GetColor(), vcl::clRed);
    EXPECT_FALSE(B->GetUseTreeColor());
    EXPECT_TRUE(B->GetHasChildren());
    EXPECT_FALSE(B->GetExpanded());
    EXPECT_EQ(B->GetCount(), 0);
    EXPECT_TRUE(B->IsEqual(*A));
    EXPECT_EQ(Tree.FocusedNode(), B);
}

TEST(Copying, OtherSourcesAreRefused)
{
    TKSTreeNodes Nodes;
    TKSTreeNode* const Node = Nodes.Add(nullptr, "A");
    EXPECT_THROW(Node->Assign(&Nodes), vcl::EConvertError);
    EXPECT_THROW(Nodes.Assign(Node), vcl::EConvertError);
    EXPECT_THROW(Nodes.Assign(nullptr), vcl::EConvertError);
    Nodes.Assign(&Nodes);
    EXPECT_EQ(Nodes.GetCount(), 1);
}

} // namespace
