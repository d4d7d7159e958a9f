#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <memory>

#include "KSTreeView/model/FakeTree.h"

using testing::ElementsAre;
using testing::IsEmpty;

namespace
{

constexpr treeview::TTreeEvents All{treeview::TTreeEvent::Deletion, treeview::TTreeEvent::Collapsing};

TEST(Deletion, TellsOfParentsBeforeTheirChildren)
{
    TFakeTree Tree;
    Tree.Fill({"A", " A1", "  A11", " A2", "B"});
    Tree.Find("A")->Delete();
    std::vector<std::string> Told;
    for (const std::string& Line : Tree.Log)
        if (Line.starts_with("deleting"))
            Told.push_back(Line);
    EXPECT_THAT(Told, ElementsAre("deleting A", "deleting A1", "deleting A11", "deleting A2"));
    EXPECT_EQ(Tree.Outline(), "0B");
    EXPECT_EQ(Tree.Items().GetCount(), 1);
}

TEST(Deletion, CollapsesTheWholeSubtreeOfEachNodeWhenSomebodyListens)
{
    TFakeTree Tree;
    Tree.Fill({"A", " A1", "  A11"});
    Tree.Assigned = All;
    Tree.Items().Delete(Tree.Find("A"));
    EXPECT_THAT(Tree.Log, ElementsAre("deleting A", "collapsing A", "collapsed A", "collapsing A1",
                                      "collapsed A1", "deleting A1", "collapsing A1", "collapsed A1",
                                      "deleting A11", "image A", "refresh"));
}

TEST(Deletion, OfNullDoesNothing)
{
    TFakeTree Tree;
    Tree.Items().Delete(nullptr);
    EXPECT_THAT(Tree.Log, IsEmpty());
}

TEST(Deletion, OfTheLastChildTakesHasChildrenAndExpandedFromTheParent)
{
    TFakeTree Tree;
    Tree.Fill({"A", " A1", " A2"});
    Tree.Find("A")->Expand(false);
    Tree.Find("A1")->Delete();
    EXPECT_TRUE(Tree.Find("A")->GetHasChildren());
    EXPECT_TRUE(Tree.Find("A")->GetExpanded());
    Tree.Find("A2")->Delete();
    EXPECT_FALSE(Tree.Find("A")->GetHasChildren());
    EXPECT_FALSE(Tree.Find("A")->GetExpanded());
    EXPECT_EQ(Tree.Find("A")->GetLastChild(), nullptr);
}

TEST(Deletion, RefreshesForAVisibleNodeAndDrawsTheParentOfAHiddenOne)
{
    TFakeTree Tree;
    Tree.Fill({"A", " A1", " A2", " A3"});
    Tree.Assigned = {treeview::TTreeEvent::DrawNode};
    Tree.Find("A1")->Delete();
    EXPECT_THAT(Tree.Log, ElementsAre("deleting A1", "image A"));
    Tree.Find("A")->Expand(false);
    Tree.Log.clear();
    Tree.Find("A2")->Delete();
    EXPECT_THAT(Tree.Log, ElementsAre("deleting A2", "refresh"));
    Tree.Log.clear();
    Tree.Items().BeginUpdate();
    Tree.Find("A3")->Delete();
    EXPECT_THAT(Tree.Log, ElementsAre("deleting A3"));
    Tree.Items().EndUpdate();
}

TEST(Deletion, OfTheSelectedAndFocusedNodeLeavesNone)
{
    TFakeTree Tree;
    Tree.Fill({"A", "B"});
    Tree.SelectNode(Tree.Find("A"));
    Tree.FocusNode(Tree.Find("A"));
    Tree.Find("A")->Delete();
    EXPECT_EQ(Tree.Selected(), nullptr);
    EXPECT_EQ(Tree.FocusedNode(), nullptr);
}

TEST(Deletion, LeavesNoSelectionEvenWhenTheChangeIsVetoed)
{
    TFakeTree Tree;
    Tree.Fill({"A", "B"});
    Tree.SelectNode(Tree.Find("A"));
    Tree.OnChanging = [](TKSTreeNode*) { return false; };
    Tree.Find("A")->Delete();
    EXPECT_EQ(Tree.Selected(), nullptr);
}

TEST(Deletion, OfAnAncestorMovesTheSelectionUpBeforeItGoes)
{
    TFakeTree Tree;
    Tree.Fill({"A", " A1", "  A11"});
    Tree.SelectNode(Tree.Find("A11"));
    Tree.Log.clear();
    Tree.Find("A")->Delete();
    EXPECT_THAT(Tree.Log, testing::Contains("change A"));
    EXPECT_EQ(Tree.Selected(), nullptr);
}

TEST(Deletion, OfChildrenLeavesTheNode)
{
    TFakeTree Tree;
    Tree.Fill({"A", " A1", "  A11", " A2", "B"});
    Tree.Find("A")->Expand(true);
    Tree.Find("A")->DeleteChildren();
    EXPECT_EQ(Tree.Outline(), "0A 0B");
    EXPECT_FALSE(Tree.Find("A")->GetHasChildren());
    EXPECT_FALSE(Tree.Find("A")->GetExpanded());
    EXPECT_EQ(Tree.Items().GetCount(), 2);
}

TEST(Deletion, ClearTellsOfAllAndRefreshesOnce)
{
    TFakeTree Tree;
    Tree.Fill({"A", " A1", "B"});
    Tree.Items().Clear();
    EXPECT_THAT(Tree.Log, testing::Contains("deleting B"));
    EXPECT_EQ(std::count(Tree.Log.begin(), Tree.Log.end(), "refresh"), 1);
    EXPECT_EQ(Tree.Items().GetCount(), 0);
    EXPECT_EQ(Tree.Items().GetFirstNode(), nullptr);
}

TEST(Deletion, AHandlerMayDeleteTheNodeItIsToldAbout)
{
    int Calls = 0;
    TFakeTree Tree;
    Tree.OnDeletion = [&](TKSTreeNode* Node) {
        ++Calls;
        Node->Delete();
        delete Node;
        Tree.Items().Delete(Node);
    };
    Tree.Fill({"A", " A1", "B", "C"});
    Tree.Find("A")->Delete();
    delete Tree.Find("B");
    Tree.Items().Delete(Tree.Find("C"));
    EXPECT_EQ(Calls, 4);
    EXPECT_EQ(Tree.Items().GetCount(), 0);
}

TEST(Deletion, AHandlerMayDeleteAnyOtherNode)
{
    // Every pair: while X is told about, Y goes.
    const std::initializer_list<const char*> Shape = {"A",   " A1",   "  A11", "  A12",
                                                      " A2", "  A21", "B",     " B1"};
    const std::vector<std::string> Names = {"A", "A1", "A11", "A12", "A2", "A21", "B", "B1"};
    for (const char* Deleted : {"A", "A1", "A11", "B"})
        for (const std::string& Told : Names)
            for (const std::string& Victim : Names) {
                std::vector<std::string> Seen;
                TFakeTree Tree;
                Tree.Fill(Shape);
                Tree.OnDeletion = [&](TKSTreeNode* Node) {
                    Seen.push_back(Node->GetText());
                    if (Node->GetText() == Told)
                        if (TKSTreeNode* const Other = Tree.Find(Victim))
                            Other->Delete();
                };
                Tree.Find(Deleted)->Delete();
                Tree.OnDeletion = nullptr;
                std::sort(Seen.begin(), Seen.end());
                EXPECT_EQ(std::adjacent_find(Seen.begin(), Seen.end()), Seen.end())
                    << "told twice: " << Deleted << Told << Victim;
                int Left = 0;
                for (const TKSTreeNode* Node = Tree.Items().GetFirstNode(); Node; Node = Node->GetNext())
                    ++Left;
                EXPECT_EQ(Tree.Items().GetCount(), Left) << Deleted << Told << Victim;
                EXPECT_EQ(Left + static_cast<int>(Seen.size()), 8) << Deleted << Told << Victim;
            }
}

TEST(Deletion, AHandlerMayClearTheTree)
{
    for (const char* Deleted : {"A", "A1", "A11", "B"}) {
        int Calls = 0;
        TFakeTree Tree;
        Tree.Fill({"A", " A1", "  A11", " A2", "B", " B1"});
        Tree.OnDeletion = [&](TKSTreeNode*) {
            ++Calls;
            Tree.Items().Clear();
            EXPECT_EQ(Tree.Items().GetCount(), 0);
            EXPECT_EQ(Tree.Items().GetFirstNode(), nullptr);
        };
        Tree.Find(Deleted)->Delete();
        EXPECT_EQ(Calls, 6);
        EXPECT_EQ(Tree.Items().GetCount(), 0);
        EXPECT_FALSE(Tree.Items().IsUpdating());
        Tree.OnDeletion = nullptr;
        Tree.Items().Add(nullptr, "New");
        EXPECT_EQ(Tree.Outline(), "0New");
    }
}

TEST(Deletion, AHandlerMayFreeTheTree)
{
    for (const char* Deleted : {"A", "A1", "A11", "B"})
        for (const char* Told : {"A", "A1", "A11", "A2", "B", "B1"}) {
            std::vector<std::string> Seen;
            auto Tree = std::make_unique<TFakeTree>();
            Tree->Fill({"A", " A1", "  A11", " A2", "B", " B1"});
            Tree->OnDeletion = [&](TKSTreeNode* Node) {
                Seen.push_back(Node->GetText());
                if (Node->GetText() == Told)
                    delete Tree.release();
            };
            Tree->Find(Deleted)->Delete();
            if (Tree)
                Tree->Items().Clear();
            EXPECT_EQ(Seen.size(), 6u) << Deleted << Told;
        }
}

TEST(Deletion, AHandlerMayAddNodesToWhatIsGoing)
{
    int Added = 0;
    TFakeTree Tree;
    Tree.Fill({"A", " A1"});
    Tree.OnDeletion = [&](TKSTreeNode* Node) {
        if (++Added < 5)
            Tree.Items().AddChild(Node, "new");
    };
    Tree.Find("A")->Delete();
    EXPECT_EQ(Tree.Items().GetCount(), 0);
    EXPECT_EQ(Added, 6);
}

TEST(Deletion, WhatAHandlerThrowsComesOutAndTheNodeStays)
{
    TFakeTree Tree;
    Tree.Fill({"A", " A1", " A2", "B"});
    Tree.OnDeletion = [](TKSTreeNode* Node) {
        if (Node->GetText() == "A2")
            throw vcl::Exception("no");
    };
    EXPECT_THROW(Tree.Find("A")->Delete(), vcl::Exception);
    EXPECT_EQ(Tree.Outline(), "0A 1A2 0B");
    EXPECT_FALSE(Tree.Find("A")->GetDeleting());
    EXPECT_THROW(Tree.Items().Clear(), vcl::Exception);
    EXPECT_FALSE(Tree.Items().IsUpdating());
    Tree.OnDeletion = nullptr;
    Tree.Find("A")->Delete();
    EXPECT_EQ(Tree.Outline(), "0B");
}

TEST(Deletion, WhatAHandlerThrowsUnderDeleteIsReported)
{
    TFakeTree Tree;
    Tree.Fill({"A", " A1"});
    Tree.OnDeletion = [](TKSTreeNode*) { throw vcl::Exception("no"); };
    delete Tree.Find("A");
    EXPECT_THAT(Tree.Log, testing::Contains("failure"));
    EXPECT_EQ(Tree.Items().GetCount(), 0);
}

TEST(Deletion, OfADetachedNodeTellsNobody)
{
    TFakeTree Tree;
    delete vcl::New<TKSTreeNode>(&Tree.Items());
    delete vcl::New<TKSTreeNode>(nullptr);
    EXPECT_THAT(Tree.Log, IsEmpty());
}

TEST(Deletion, TellsOfEveryNodeWhenTheTreeGoes)
{
    int Calls = 0;
    {
        TFakeTree Tree;
        Tree.Fill({"A", " A1", "B"});
        Tree.OnDeletion = [&](TKSTreeNode*) { ++Calls; };
    }
    EXPECT_EQ(Calls, 3);
}

TEST(Deletion, SeesTheCountWithoutTheNodeOnlyWhenItsSelectionGoes)
{
    int Told = 0;
    int Asked = 0;
    TFakeTree Tree;
    Tree.Fill({"A", "B"});
    Tree.SelectNode(Tree.Find("A"));
    Tree.OnDeletion = [&](TKSTreeNode*) { Told = Tree.Items().GetCount(); };
    Tree.OnChanging = [&](TKSTreeNode*) {
        Asked = Tree.Items().GetCount();
        return true;
    };
    Tree.Find("A")->Delete();
    EXPECT_EQ(Told, 2);
    EXPECT_EQ(Asked, 1);
}

} // namespace
