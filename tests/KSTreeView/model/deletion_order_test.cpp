#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "KSTreeView/model/FakeTree.h"

using testing::ElementsAre;
using treeview::TTreeEvent;

namespace
{

/// A handler of painting: everything that is drawn and refreshed can be told apart.
constexpr treeview::TTreeEvents Watched{TTreeEvent::DrawNode};

TEST(DeletingTheLastChild, OfACollapsedNodeDrawsTheParentOnce)
{
    TFakeTree Tree;
    Tree.Fill({"A", " A1"});
    Tree.Assigned = Watched;
    Tree.Find("A1")->Delete();
    EXPECT_THAT(Tree.Log, ElementsAre("deleting A1", "image A"));
    EXPECT_FALSE(Tree.Find("A")->GetHasChildren());
}

TEST(DeletingTheLastChild, TakesTheParentsMarksAlsoWhileUpdating)
{
    TFakeTree Tree;
    Tree.Fill({"A", " A1"});
    Tree.Find("A")->Expand(false);
    Tree.Assigned = Watched;
    Tree.Log.clear();
    Tree.Items().BeginUpdate();
    Tree.Find("A1")->Delete();
    EXPECT_FALSE(Tree.Find("A")->GetHasChildren());
    EXPECT_FALSE(Tree.Find("A")->GetExpanded());
    EXPECT_THAT(Tree.Log, ElementsAre("deleting A1"));
    Tree.Items().EndUpdate();
}

TEST(Deleting, ATopLevelNodeRefreshes)
{
    TFakeTree Tree;
    Tree.Fill({"A", "B"});
    Tree.Assigned = Watched;
    Tree.Find("A")->Delete();
    EXPECT_THAT(Tree.Log, ElementsAre("deleting A", "refresh"));
}

TEST(Deleting, TheFocusedNodeTakesTheFocusFromItWhileItIsStillThere)
{
    TFakeTree Tree;
    Tree.Fill({"A", "B"});
    Tree.FocusNode(Tree.Find("A"));
    Tree.Assigned = Watched;
    Tree.Log.clear();
    Tree.Find("A")->Delete();
    EXPECT_THAT(Tree.Log, ElementsAre("deleting A", "image A", "refresh"));
}

TEST(Deleting, TakesTheSelectionThenTheFocusAndThenTheNode)
{
    TFakeTree Tree;
    Tree.Fill({"A", "B"});
    Tree.SelectNode(Tree.Find("A"));
    Tree.FocusNode(Tree.Find("A"));
    Tree.Assigned = Watched;
    Tree.OnGetImageIndex = [&](TKSTreeNode* Node) {
        Tree.Log.push_back((Node->GetSelected() ? "selected " : "") +
                           std::string(Node->GetFocused() ? "focused" : "neither"));
    };
    Tree.Log.clear();
    Tree.Find("A")->Delete();
    EXPECT_THAT(Tree.Log, ElementsAre("deleting A", "changing A", "image A", "focused", "image A", "neither",
                                      "refresh"));
}

TEST(DeletingChildren, CollapsesTheNodeFirst)
{
    TFakeTree Tree;
    Tree.Fill({"A", " A1"});
    Tree.Find("A")->Expand(false);
    Tree.Assigned = Watched + treeview::TTreeEvents{TTreeEvent::Deletion, TTreeEvent::Collapsing};
    Tree.Log.clear();
    Tree.Find("A")->DeleteChildren();
    EXPECT_THAT(Tree.Log, ElementsAre("collapsing A", "collapsed A", "refresh", "deleting A1", "image A"));
}

TEST(Clearing, AnEmptyTreeRefreshesToo)
{
    TFakeTree Tree;
    Tree.Items().Clear();
    EXPECT_THAT(Tree.Log, ElementsAre("refresh"));
}

} // namespace
