// Handlers that change the tree while it changes, and handlers that fail.

#include <memory>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "KSTreeView/model/FakeTree.h"
#include "KSTreeView/model/Handlers.h"
#include "vcl/classes/Stream.h"

using testing::ElementsAre;

namespace
{

/// The number of top-level nodes as the stream states it.
int StreamedTopCount(TFakeTree& Tree)
{
    vcl::TMemoryStream Stream;
    Tree.Items().WriteData(Stream);
    Stream.SetPosition(0);
    return Stream.ReadInt32();
}

TEST(Inserting, SurvivesAHandlerThatDeletesTheSibling)
{
    TFakeTree Tree;
    Tree.Fill({"A", "B"});
    Tree.OnGetImageIndex = Once([&] { Tree.Find("B")->Delete(); });
    Tree.Items().Insert(Tree.Find("B"), "x");
    EXPECT_EQ(Tree.Outline(), "0A 0x");
    EXPECT_EQ(Tree.Items().GetCount(), 2);
    EXPECT_EQ(StreamedTopCount(Tree), 2);
}

TEST(Inserting, SurvivesAHandlerThatClears)
{
    TFakeTree Tree;
    Tree.Fill({"A", "B"});
    Tree.OnGetImageIndex = Once([&] { Tree.Items().Clear(); });
    Tree.Items().Insert(Tree.Find("B"), "x");
    EXPECT_EQ(Tree.Outline(), "0x");
    EXPECT_EQ(Tree.Items().GetCount(), 1);
    EXPECT_EQ(StreamedTopCount(Tree), 1);
}

TEST(Inserting, LeavesNothingBehindWhenDrawingFails)
{
    TFakeTree Tree;
    Tree.Fill({"A", "B"});
    Tree.OnGetImageIndex = Once(&Fail);
    EXPECT_THROW(Tree.Items().Insert(Tree.Find("B"), "x"), vcl::Exception);
    EXPECT_EQ(Tree.Outline(), "0A 0B");
    EXPECT_EQ(Tree.Items().GetCount(), 2);
    EXPECT_EQ(StreamedTopCount(Tree), 2);
}

TEST(Inserting, SurvivesAHandlerThatDeletesTheNewNode)
{
    TFakeTree Tree;
    Tree.Fill({"A"});
    Tree.OnGetImageIndex = [](TKSTreeNode* Node) {
        if (Node->GetText() == "x")
            Node->Delete();
    };
    EXPECT_EQ(Tree.Items().Insert(Tree.Find("A"), "x"), nullptr);
    EXPECT_EQ(Tree.Outline(), "0A");
    EXPECT_EQ(Tree.Items().GetCount(), 1);
}

TEST(Inserting, SurvivesAHandlerThatFreesTheTree)
{
    auto Tree = std::make_unique<TFakeTree>();
    Tree->Fill({"A"});
    Tree->OnGetImageIndex = [&](TKSTreeNode*) { Tree.reset(); };
    TKSTreeNodes& Items = Tree->Items();
    EXPECT_EQ(Items.Insert(Tree->Find("A"), "x"), nullptr);
    EXPECT_EQ(Tree, nullptr);
}

TEST(Inserting, LeavesTheNodeWhereAHandlerHasPutIt)
{
    TFakeTree Tree;
    Tree.Fill({"A", "B"});
    Tree.OnGetImageIndex = [&](TKSTreeNode* Node) {
        if (Node->GetText() == "x" && !Node->GetParent())
            Node->MoveTo(Tree.Find("A"));
    };
    TKSTreeNode* const Added = Tree.Items().Insert(Tree.Find("B"), "x");
    EXPECT_EQ(Tree.Outline(), "0A 1x 0B");
    EXPECT_EQ(Added, Tree.Find("x"));
    EXPECT_EQ(Tree.Items().GetCount(), 3);
}

TEST(Inserting, TakesAlongTheChildrenAHandlerHasGivenTheNode)
{
    TFakeTree Tree;
    Tree.Fill({"A", " A1"});
    Tree.OnGetImageIndex = [&](TKSTreeNode* Node) {
        if (Node->GetText() == "x" && Node->GetCount() == 0)
            Tree.Items().AddChild(Node, "y");
    };
    Tree.Items().Insert(Tree.Find("A1"), "x");
    EXPECT_EQ(Tree.Outline(), "0A 1x 2y 1A1");
    EXPECT_EQ(Tree.Items().GetCount(), 4);
}

TEST(Inserting, BeforeANodeThatIsStillBeingInsertedAppends)
{
    TFakeTree Tree;
    Tree.Fill({"A", "B"});
    Tree.OnGetImageIndex = [&](TKSTreeNode* Node) {
        if (Node->GetText() == "x")
            Tree.Items().Insert(Node, "y");
    };
    Tree.Items().Insert(Tree.Find("B"), "x");
    EXPECT_EQ(Tree.Outline(), "0A 0x 0B 0y");
}

TEST(Adding, IsSeenByIndexWhileItIsDrawnAndLookUpsAreRightAfterwards)
{
    TFakeTree Tree;
    Tree.Fill({"A", "B", "C"});
    std::vector<std::string> Seen;
    Tree.OnRefresh = [&] {
        for (int Index = 0; Index < 4; ++Index)
            Seen.push_back(Tree.Items().GetItem(Index)->GetText());
    };
    TKSTreeNode* const Added = Tree.Items().Add(nullptr, "D");
    EXPECT_THAT(Seen, ElementsAre("A", "B", "C", "D"));
    EXPECT_EQ(Tree.Items().GetItem(3), Added);
    EXPECT_EQ(Tree.Items().GetItem(1), Tree.Find("B"));
}

TEST(Adding, CountsTheNodeAlsoWhenAHandlerFails)
{
    TFakeTree Tree;
    Tree.Fill({"A"});
    Tree.OnGetImageIndex = Once(&Fail);
    EXPECT_THROW(Tree.Items().AddChild(Tree.Find("A"), "A1"), vcl::Exception);
    EXPECT_EQ(Tree.Items().GetCount(), 2);
    EXPECT_EQ(Tree.Items().GetItem(1)->GetText(), "A1");
    Tree.OnRefresh = Once(&Fail);
    EXPECT_THROW(Tree.Items().Add(nullptr, "B"), vcl::Exception);
    EXPECT_EQ(Tree.Items().GetCount(), 3);
    EXPECT_EQ(Tree.Items().GetItem(2)->GetText(), "B");
}

TEST(Deletion, LookUpsAreRightWhileTheSelectionMoves)
{
    TFakeTree Tree;
    Tree.Fill({"A", "B", "C"});
    Tree.SelectNode(Tree.Find("A"));
    TKSTreeNode* Seen = nullptr;
    Tree.OnChanging = [&](TKSTreeNode*) {
        Seen = Tree.Items().GetItem(1);
        return true;
    };
    TKSTreeNode* const B = Tree.Find("B");
    Tree.Find("A")->Delete();
    EXPECT_EQ(Seen, B);
    EXPECT_EQ(Tree.Items().GetItem(0), B);
}

TEST(Deletion, SurvivesAHandlerThatClearsWhileTheParentIsDrawn)
{
    TFakeTree Tree;
    Tree.Fill({"A", " A1", " A2"});
    Tree.Assigned = {treeview::TTreeEvent::GetImageIndex};
    Tree.OnGetImageIndex = Once([&] { Tree.Items().Clear(); });
    Tree.Find("A1")->Delete();
    EXPECT_EQ(Tree.Items().GetCount(), 0);
}

TEST(Deletion, SurvivesARefreshThatClears)
{
    TFakeTree Tree;
    Tree.Fill({"A", "B"});
    Tree.OnRefresh = Once([&] { Tree.Items().Clear(); });
    Tree.Find("A")->Delete();
    EXPECT_EQ(Tree.Items().GetCount(), 0);
    EXPECT_EQ(Tree.Items().GetFirstNode(), nullptr);
}

TEST(Deletion, SurvivesARefreshThatFreesTheTree)
{
    auto Tree = std::make_unique<TFakeTree>();
    Tree->Fill({"A", " A1", "B"});
    Tree->OnRefresh = [&] { Tree.reset(); };
    Tree->Find("A")->Delete();
    EXPECT_EQ(Tree, nullptr);
}

TEST(Deletion, GoesOnWhenTheViewFailsToLetGo)
{
    TFakeTree Tree;
    Tree.Fill({"A", " A1", "B"});
    Tree.OnForget = Once(&Fail);
    EXPECT_THROW(Tree.Find("A")->Delete(), vcl::Exception);
    EXPECT_EQ(Tree.Outline(), "0B");
    EXPECT_EQ(Tree.Items().GetCount(), 1);
    Tree.OnForget = Once(&Fail);
    delete Tree.Find("B");
    EXPECT_THAT(Tree.Log, testing::Contains("failure"));
    EXPECT_EQ(Tree.Items().GetCount(), 0);
}

TEST(Deletion, ShowsWhatIsLeftWhenAHandlerStopsItHalfWay)
{
    TFakeTree Tree;
    Tree.Fill({"A", " A1", " A2"});
    Tree.OnDeletion = [](TKSTreeNode* Node) {
        if (Node->GetText() == "A2")
            Fail();
    };
    EXPECT_THROW(Tree.Find("A")->Delete(), vcl::Exception);
    EXPECT_EQ(Tree.Log.back(), "refresh");
    Tree.Log.clear();
    EXPECT_THROW(Tree.Find("A2")->Delete(), vcl::Exception);
    EXPECT_THAT(Tree.Log, ElementsAre("deleting A2")) << "nothing has gone";
}

TEST(Deletion, CountsANodeAgainThatStaysAfterAll)
{
    TFakeTree Tree;
    Tree.Fill({"A", "B"});
    Tree.SelectNode(Tree.Find("A"));
    // The node has been taken from the count already when its selection goes.
    Tree.OnChanging = [&](TKSTreeNode* Node) {
        Tree.Items().AddChild(Node, "new");
        return true;
    };
    Tree.OnDeletion = [](TKSTreeNode* Node) {
        if (Node->GetText() == "new")
            Fail();
    };
    EXPECT_THROW(Tree.Find("A")->Delete(), vcl::Exception);
    EXPECT_EQ(Tree.Outline(), "0A 1new 0B");
    EXPECT_EQ(Tree.Items().GetCount(), 3);
    EXPECT_EQ(Tree.Items().GetItem(2), Tree.Find("B"));
}

TEST(Deletion, OfADeepChainIsQuickWhenTheSelectionIsListenedTo)
{
    // At quadratic time it would not come to an end.
    constexpr int Levels = 1'000'000;
    TFakeTree Tree;
    Tree.Quiet = true;
    Tree.Assigned = {treeview::TTreeEvent::Change, treeview::TTreeEvent::Changing};
    Tree.Items().BeginUpdate();
    TKSTreeNode* Last = nullptr;
    for (int Level = 0; Level < Levels; ++Level)
        Last = Tree.Items().AddChild(Last, "x");
    Tree.SelectNode(Tree.Items().GetFirstNode());
    Tree.Items().Clear();
    Tree.Items().EndUpdate();
    EXPECT_EQ(Tree.Items().GetCount(), 0);
}

TEST(Clearing, EndsAlthoughAHandlerGoesOnAddingNodes)
{
    TFakeTree Tree;
    Tree.Fill({"A", " A1", "B"});
    Tree.OnDeletion = [&](TKSTreeNode*) { Tree.Items().Add(nullptr, "new"); };
    Tree.Items().Clear();
    EXPECT_GT(Tree.Items().GetCount(), 0);
    EXPECT_EQ(Tree.Items().GetItem(Tree.Items().GetCount() - 1)->GetText(), "new");
    EXPECT_EQ(Tree.Find("A"), nullptr);
}

TEST(Clearing, EndsAlthoughAHandlerGoesOnAddingChildrenToWhatIsGoing)
{
    TFakeTree Tree;
    Tree.Fill({"A", " A1", "B"});
    int Told = 0;
    Tree.OnDeletion = [&](TKSTreeNode* Node) {
        ++Told;
        Tree.Items().AddChild(Node, "new");
    };
    Tree.Find("A")->DeleteChildren();
    Tree.Items().Clear();
    EXPECT_GT(Told, 3);
    EXPECT_EQ(Tree.Find("A"), nullptr);
    EXPECT_EQ(Tree.Items().GetCount(), 0);
}

TEST(ANodeOnItsOwn, TouchesNoView)
{
    TFakeTree Tree;
    Tree.Fill({"A"});
    {
        TKSTreeNode Buffer(&Tree.Items());
        Buffer.Assign(Tree.Find("A"));
        Buffer.SetSelected(true);
        Buffer.SetFocused(true);
        Buffer.EditText();
        EXPECT_EQ(Tree.FocusedNode(), nullptr);
        EXPECT_EQ(Tree.Selected(), nullptr);
    }
    EXPECT_THAT(Tree.Log, testing::IsEmpty());
}

TEST(Expanding, AHandlerMayDeleteTheChildrenOfWhatHasCollapsed)
{
    TFakeTree Tree;
    Tree.Fill({"A", " A1", " A2", "B"});
    Tree.Find("A")->Expand(false);
    Tree.OnTell = [](const std::string& What, TKSTreeNode* Node) {
        if (What == "collapsed ")
            Node->DeleteChildren();
    };
    Tree.Find("A")->Collapse(false);
    EXPECT_EQ(Tree.Outline(), "0A 0B");
    EXPECT_FALSE(Tree.Find("A")->GetExpanded());
}

TEST(Expanding, AFailedHandlerDoesNotKeepTheNodeFromCollapsingLater)
{
    TFakeTree Tree;
    Tree.Fill({"A", " A1"});
    Tree.Find("A")->Expand(false);
    Tree.OnTell = [](const std::string&, TKSTreeNode*) { Fail(); };
    EXPECT_THROW(Tree.Find("A")->Collapse(false), vcl::Exception);
    EXPECT_FALSE(Tree.Expanding);
    Tree.OnTell = nullptr;
    Tree.Find("A")->Collapse(false);
    EXPECT_FALSE(Tree.Find("A")->GetExpanded());
}

TEST(Moving, TheOnlyChildToItsOwnParentKeepsItExpanded)
{
    TFakeTree Tree;
    Tree.Fill({"A", " A1"});
    Tree.Find("A")->Expand(false);
    Tree.Find("A1")->MoveTo(Tree.Find("A"));
    EXPECT_EQ(Tree.Outline(), "0A 1A1");
    EXPECT_TRUE(Tree.Find("A")->GetExpanded());
    EXPECT_TRUE(Tree.Find("A")->GetHasChildren());
}

TEST(Children, AreReachedByIndexInTurnEitherWayInLinearTime)
{
    // At quadratic time it would not come to an end.
    constexpr int Count = 1'000'000;
    TKSTreeNodes Nodes;
    TKSTreeNode* const Top = Nodes.Add(nullptr, "A");
    for (int Index = 0; Index < Count; ++Index)
        Nodes.AddChild(Top, "x")->SetIntData(Index);
    for (int Index = Count - 1; Index >= 0; --Index)
        ASSERT_EQ(Top->GetItem(Index)->GetIntData(), Index);
    for (int Index = 0; Index < Count; ++Index)
        ASSERT_EQ(Top->GetItem(Index)->GetIntData(), Index);
    EXPECT_THROW(Top->GetItem(Count), EKSTreeViewError);
    EXPECT_EQ(Top->GetItem(-7)->GetIntData(), 0);
    EXPECT_EQ(Top->GetItem(INT32_MIN)->GetIntData(), 0);
}

} // namespace
