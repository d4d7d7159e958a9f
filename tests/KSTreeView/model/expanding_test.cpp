#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <memory>

#include "KSTreeView/model/FakeTree.h"

using testing::ElementsAre;
using testing::IsEmpty;

namespace
{

TEST(Expanding, AsksTellsAndRefreshes)
{
    TFakeTree Tree;
    Tree.Fill({"A", " A1"});
    bool WasExpanded = true;
    bool WasBusy = false;
    Tree.OnTell = [&](const std::string&, TKSTreeNode* Node) {
        WasExpanded = Node->GetExpanded();
        WasBusy = Tree.Expanding;
    };
    Tree.Find("A")->Expand(false);
    EXPECT_THAT(Tree.Log, ElementsAre("expanding A", "expanded A", "refresh"));
    EXPECT_FALSE(WasExpanded) << "the event still sees the old state";
    EXPECT_TRUE(WasBusy);
    EXPECT_FALSE(Tree.Expanding);
    EXPECT_TRUE(Tree.Find("A")->GetExpanded());
    Tree.Find("A")->SetExpanded(false);
    EXPECT_TRUE(WasExpanded);
    EXPECT_FALSE(Tree.Find("A")->GetExpanded());
}

TEST(Expanding, AVetoEndsIt)
{
    TFakeTree Tree;
    Tree.Fill({"A", " A1"});
    Tree.OnAsk = [](const std::string&, TKSTreeNode*) { return false; };
    Tree.Find("A")->Expand(false);
    EXPECT_THAT(Tree.Log, ElementsAre("expanding A"));
    EXPECT_FALSE(Tree.Find("A")->GetExpanded());
    EXPECT_FALSE(Tree.Expanding);
}

TEST(Expanding, ANodeWithoutTheHasChildrenMarkNeverExpands)
{
    TFakeTree Tree;
    Tree.Fill({"A", " A1", "B"});
    Tree.Find("A")->SetHasChildren(false);
    Tree.Log.clear();
    Tree.Find("A")->Expand(false);
    Tree.Find("B")->Expand(false);
    EXPECT_THAT(Tree.Log, IsEmpty());
    Tree.Find("B")->SetHasChildren(true);
    Tree.Find("B")->Expand(false);
    EXPECT_TRUE(Tree.Find("B")->GetExpanded()) << "the mark is enough";
}

TEST(Expanding, AnExpandedNodeRaisesTheEventsAgainButRefreshesNothing)
{
    TFakeTree Tree;
    Tree.Fill({"A", " A1"});
    Tree.Find("A")->Expand(false);
    Tree.Log.clear();
    Tree.Find("A")->Expand(false);
    EXPECT_THAT(Tree.Log, ElementsAre("expanding A", "expanded A"));
    Tree.Log.clear();
    Tree.Find("A")->SetExpanded(true);
    EXPECT_THAT(Tree.Log, IsEmpty()) << "an unchanged property does nothing";
}

TEST(Expanding, RecurseGoesThroughTheWholeSubtree)
{
    TFakeTree Tree;
    Tree.Fill({"A", " A1", "  A11", "   A111", " A2", "B", " B1"});
    Tree.Find("A")->Expand(true);
    EXPECT_TRUE(Tree.Find("A111")->IsVisible());
    EXPECT_FALSE(Tree.Find("B")->GetExpanded());
    EXPECT_EQ(std::count(Tree.Log.begin(), Tree.Log.end(), "refresh"), 1) << "nobody could tell them apart";
    Tree.Find("A1")->Collapse(true);
    EXPECT_TRUE(Tree.Find("A")->GetExpanded());
    EXPECT_FALSE(Tree.Find("A11")->GetExpanded());
}

TEST(Expanding, RecurseRefreshesForEachNodeWhenSomebodyListens)
{
    TFakeTree Tree;
    Tree.Fill({"A", " A1", "  A11"});
    Tree.Assigned = {treeview::TTreeEvent::Expanded};
    Tree.Find("A")->Expand(true);
    EXPECT_EQ(std::count(Tree.Log.begin(), Tree.Log.end(), "refresh"), 2);
}

TEST(Expanding, InsideAnUpdateNothingIsRefreshed)
{
    TFakeTree Tree;
    Tree.Fill({"A", " A1"});
    Tree.Items().BeginUpdate();
    Tree.Find("A")->Expand(false);
    EXPECT_THAT(Tree.Log, ElementsAre("expanding A", "expanded A"));
    Tree.Items().EndUpdate();
}

TEST(Collapsing, AnAncestorOfTheSelectedNodeTakesFocusAndSelection)
{
    TFakeTree Tree;
    Tree.Fill({"A", " A1", "  A11"});
    Tree.Find("A")->Expand(true);
    Tree.SelectNode(Tree.Find("A11"));
    Tree.Find("A")->Collapse(false);
    EXPECT_EQ(Tree.Selected(), Tree.Find("A"));
    EXPECT_EQ(Tree.FocusedNode(), Tree.Find("A"));
}

TEST(Collapsing, LeavesASelectionElsewhereAlone)
{
    TFakeTree Tree;
    Tree.Fill({"A", " A1", "B"});
    Tree.Find("A")->Expand(true);
    for (const char* Selected : {"A", "B"}) {
        Tree.SelectNode(Tree.Find(Selected));
        Tree.Find("A")->Collapse(false);
        EXPECT_EQ(Tree.Selected(), Tree.Find(Selected));
    }
}

TEST(Collapsing, MovesTheSelectionEvenWhenTheCollapseIsVetoed)
{
    TFakeTree Tree;
    Tree.Fill({"A", " A1"});
    Tree.Find("A")->Expand(true);
    Tree.SelectNode(Tree.Find("A1"));
    Tree.OnAsk = [](const std::string&, TKSTreeNode*) { return false; };
    Tree.Find("A")->Collapse(false);
    EXPECT_TRUE(Tree.Find("A")->GetExpanded());
    EXPECT_EQ(Tree.Selected(), Tree.Find("A"));
}

TEST(Expanding, HandlersMayDeleteTheNodeOrClearOrFree)
{
    for (const char* When : {"expanding ", "expanded ", "collapsing ", "collapsed "})
        for (const int What : {0, 1, 2}) {
            auto Tree = std::make_unique<TFakeTree>();
            Tree->Fill({"A", " A1", "  A11", "B"});
            if (*When == 'c')
                Tree->Find("A")->Expand(true);
            bool Done = false;
            const auto Kill = [&](const std::string& Event, TKSTreeNode* Node) {
                if (Done || Event != When || Node->GetText() != "A1")
                    return;
                Done = true;
                if (What == 0)
                    Node->Delete();
                else if (What == 1)
                    Tree->Items().Clear();
                else
                    delete Tree.release();
            };
            Tree->OnAsk = [&](const std::string& Event, TKSTreeNode* Node) {
                Kill(Event, Node);
                return true;
            };
            Tree->OnTell = Kill;
            if (*When == 'e')
                Tree->Find("A")->Expand(true);
            else
                Tree->Find("A")->Collapse(true);
            EXPECT_TRUE(Done) << When << What;
            if (Tree) {
                EXPECT_EQ(Tree->Outline(), What == 0 ? "0A 0B" : "");
            }
        }
}

} // namespace
