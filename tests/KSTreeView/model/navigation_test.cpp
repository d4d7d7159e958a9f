#include <gtest/gtest.h>

#include "KSTreeView/model/FakeTree.h"

namespace
{

class Navigation : public testing::Test
{
protected:
    Navigation() { Tree.Fill({"A", " A1", "  A11", " A2", "B", " B1"}); }
    TKSTreeNode* Node(const char* Text) { return Tree.Find(Text); }
    std::string Walk(TKSTreeNode* From, TKSTreeNode* (TKSTreeNode::*Step)() const)
    {
        std::string Result;
        for (TKSTreeNode* At = From; At; At = (At->*Step)())
            Result += At->GetText() + " ";
        return Result;
    }
    TFakeTree Tree;
};

TEST_F(Navigation, NextAndPrevGoThroughAllNodesParentsFirst)
{
    EXPECT_EQ(Walk(Node("A"), &TKSTreeNode::GetNext), "A A1 A11 A2 B B1 ");
    EXPECT_EQ(Walk(Node("B1"), &TKSTreeNode::GetPrev), "B1 B A2 A11 A1 A ");
}

TEST_F(Navigation, TheVisibleWalkLeavesOutCollapsedParts)
{
    EXPECT_EQ(Walk(Node("A"), &TKSTreeNode::GetNextVisible), "A B ");
    Node("A")->Expand(false);
    EXPECT_EQ(Walk(Node("A"), &TKSTreeNode::GetNextVisible), "A A1 A2 B ");
    EXPECT_EQ(Walk(Node("B"), &TKSTreeNode::GetPrevVisible), "B A2 A1 A ");
    Node("A1")->Expand(false);
    EXPECT_EQ(Walk(Node("B"), &TKSTreeNode::GetPrevVisible), "B A2 A11 A1 A ");
    EXPECT_EQ(Walk(Node("B1"), &TKSTreeNode::GetPrevVisible), "B1 B A2 A11 A1 A ") << "from a hidden node";
    Node("A")->Collapse(false);
    EXPECT_EQ(Walk(Node("A11"), &TKSTreeNode::GetNextVisible), "A11 B ") << "from a hidden node";
}

TEST_F(Navigation, ANodeIsVisibleWhenAllAboveAreExpanded)
{
    EXPECT_TRUE(Node("A")->IsVisible());
    Node("A1")->Expand(false);
    EXPECT_FALSE(Node("A11")->IsVisible());
    Node("A")->Expand(false);
    EXPECT_TRUE(Node("A11")->IsVisible());
}

TEST_F(Navigation, ItemBelowZeroIsTheFirstChild)
{
    EXPECT_EQ(Node("A")->GetItem(-1), Node("A1"));
    EXPECT_EQ(Node("A")->GetItem(0), Node("A1"));
    EXPECT_EQ(Node("A")->GetItem(1), Node("A2"));
    EXPECT_EQ((*Node("A"))[1], Node("A2"));
}

TEST_F(Navigation, ItemBeyondTheLastChildIsAnError)
{
    for (const int Index : {2, 3, 1000}) {
        try {
            Node("A")->GetItem(Index);
            ADD_FAILURE();
        } catch (const EKSTreeViewError& Error) {
            EXPECT_STREQ(Error.what(), "List index out of bounds");
        }
    }
    EXPECT_THROW(Node("B1")->GetItem(-1), EKSTreeViewError) << "no first child";
}

TEST_F(Navigation, WritingAnItemAssignsIntoTheChildThere)
{
    TKSTreeNode* const Old = Node("A2");
    Node("A")->SetItem(1, Node("B"));
    EXPECT_EQ(Node("A")->GetItem(1), Old);
    EXPECT_EQ(Old->GetText(), "B");
    EXPECT_TRUE(Old->GetFocused());
    Tree.Items().SetItem(0, Old);
    EXPECT_EQ(Tree.Items().GetFirstNode()->GetText(), "B");
}

TEST_F(Navigation, IndexesCountSiblingsAndAllNodes)
{
    EXPECT_EQ(Node("A1")->GetIndex(), 0);
    EXPECT_EQ(Node("A2")->GetIndex(), 1);
    EXPECT_EQ(Node("A")->IndexOf(Node("A2")), 1);
    EXPECT_EQ(Node("A")->IndexOf(Node("B1")), -1);
    EXPECT_EQ(Node("A")->IndexOf(nullptr), -1);
    EXPECT_EQ(Node("A")->GetAbsoluteIndex(), 0);
    EXPECT_EQ(Node("B1")->GetAbsoluteIndex(), 5);
    EXPECT_EQ(Node("A")->GetCount(), 2);
    EXPECT_EQ(Node("B1")->GetCount(), 0);
}

TEST_F(Navigation, NeighboursOfAChildAreItsSiblings)
{
    EXPECT_EQ(Node("A")->GetNextChild(Node("A1")), Node("A2"));
    EXPECT_EQ(Node("A")->GetPrevChild(Node("A2")), Node("A1"));
    EXPECT_EQ(Node("A")->GetNextChild(nullptr), nullptr);
    EXPECT_EQ(Node("A")->GetPrevChild(nullptr), nullptr);
}

TEST_F(Navigation, EveryAncestorAndNullIsAParent)
{
    EXPECT_TRUE(Node("A11")->HasAsParent(Node("A")));
    EXPECT_TRUE(Node("A11")->HasAsParent(Node("A1")));
    EXPECT_TRUE(Node("A11")->HasAsParent(nullptr));
    EXPECT_FALSE(Node("A11")->HasAsParent(Node("A11")));
    EXPECT_FALSE(Node("A11")->HasAsParent(Node("B")));
}

TEST_F(Navigation, MakeVisibleExpandsAncestorsWithoutEventsAndRefreshes)
{
    Tree.Log.clear();
    Node("A1")->SetHasChildren(false);
    Node("A11")->MakeVisible();
    EXPECT_TRUE(Node("A11")->IsVisible());
    EXPECT_TRUE(Node("A1")->GetHasChildren());
    EXPECT_EQ(Tree.Log, std::vector<std::string>{"refresh"});
}

TEST_F(Navigation, MakeVisibleMarksAndExpandsEveryAncestor)
{
    Tree.Fill({"C", " C1", "  C11", "   C111"});
    for (const char* Above : {"C", "C1", "C11"})
        Node(Above)->SetHasChildren(false);
    Node("C111")->MakeVisible();
    for (const char* Above : {"C", "C1", "C11"}) {
        EXPECT_TRUE(Node(Above)->GetHasChildren()) << Above;
        EXPECT_TRUE(Node(Above)->GetExpanded()) << Above;
    }
    EXPECT_FALSE(Node("C111")->GetExpanded());
    EXPECT_FALSE(Node("A")->GetExpanded());
}

TEST_F(Navigation, MakeVisibleRefreshesForAVisibleNodeTooButNotWhileUpdating)
{
    Node("A")->MakeVisible();
    EXPECT_EQ(Tree.Log, std::vector<std::string>{"refresh"});
    Tree.Log.clear();
    Tree.Items().BeginUpdate();
    Node("A")->MakeVisible();
    Node("A11")->MakeVisible();
    EXPECT_TRUE(Node("A11")->IsVisible());
    EXPECT_TRUE(Tree.Log.empty());
    Tree.Items().EndUpdate();
}

TEST_F(Navigation, ItemsOfSeveralParentsMayBeAskedForInTurn)
{
    EXPECT_EQ(Node("A")->GetItem(1), Node("A2"));
    EXPECT_EQ(Node("A")->GetItem(-1), Node("A1")) << "after a later one";
    EXPECT_EQ(Node("A")->GetItem(1), Node("A2"));
    EXPECT_EQ(Node("B")->GetItem(0), Node("B1"));
    EXPECT_EQ(Node("A")->GetItem(1), Node("A2"));
    // So many that a place asked for before is nearer than either end.
    for (int Index = 2; Index <= 9; ++Index) {
        Tree.Items().AddChild(Node("A"), "A" + std::to_string(Index + 1));
        Tree.Items().AddChild(Node("B"), "B" + std::to_string(Index));
    }
    for (const char* Parent : {"A", "B", "A"})
        for (const int Index : {4, 5, 3})
            EXPECT_EQ(Node(Parent)->GetItem(Index)->GetText(), Parent + std::to_string(Index + 1));
}

TEST_F(Navigation, NodesByIndexAreThoseInWalkingOrderWhateverTheOrderOfAsking)
{
    const std::vector<std::string> Texts = {"A", "A1", "A11", "A2", "B", "B1"};
    for (int From = 0; From < 6; ++From)
        for (int To = 0; To < 6; ++To) {
            EXPECT_EQ(Tree.Items()[From]->GetText(), Texts[static_cast<std::size_t>(From)]);
            EXPECT_EQ(Tree.Items()[To]->GetText(), Texts[static_cast<std::size_t>(To)]);
        }
}

TEST_F(Navigation, AnIndexOutsideIsAnError)
{
    for (const int Index : {-1, 6, 7, INT32_MIN, INT32_MAX}) {
        try {
            Tree.Items().GetNodeFromIndex(Index);
            ADD_FAILURE() << Index;
        } catch (const EKSTreeViewError& Error) {
            EXPECT_STREQ(Error.what(), "Invalid Index");
        }
    }
}

TEST_F(Navigation, IndexesHoldAfterNodesCameAndWent)
{
    EXPECT_EQ(Tree.Items()[3]->GetText(), "A2");
    Tree.Items().AddChildFirst(Node("A"), "A0");
    EXPECT_EQ(Tree.Items()[3]->GetText(), "A11");
    Node("A1")->Delete();
    EXPECT_EQ(Tree.Items()[2]->GetText(), "A2");
    EXPECT_EQ(Node("A")->GetItem(1)->GetText(), "A2");
    Tree.Items().Insert(Node("A2"), "A1");
    EXPECT_EQ(Node("A")->GetItem(1)->GetText(), "A1");
    EXPECT_EQ(Tree.Items()[2]->GetText(), "A1");
}

TEST_F(Navigation, TheTextRectangleIsFivePixelsInside)
{
    EXPECT_EQ(Node("A")->DisplayRect(false), vcl::TRect());
    EXPECT_EQ(Node("A")->DisplayRect(true), (vcl::TRect{5, 5, -5, -5}));
}

TEST_F(Navigation, ANodeMovesWithItsSubtree)
{
    Node("A")->Expand(false);
    Tree.Log.clear();
    Node("A1")->MoveTo(Node("B1"));
    EXPECT_EQ(Tree.Outline(), "0A 1A2 0B 1B1 2A1 3A11");
    EXPECT_TRUE(Node("B1")->GetHasChildren());
    EXPECT_EQ(Tree.Items().GetCount(), 6);
    Node("A2")->MoveTo(nullptr);
    EXPECT_EQ(Tree.Outline(), "0A 0B 1B1 2A1 3A11 0A2");
    EXPECT_FALSE(Node("A")->GetHasChildren());
    EXPECT_FALSE(Node("A")->GetExpanded());
    EXPECT_EQ(Tree.Items().GetTopCount(), 3);
    EXPECT_EQ(Tree.Log, (std::vector<std::string>{"refresh", "refresh"}));
}

TEST_F(Navigation, ANodeDoesNotMoveBelowItself)
{
    EXPECT_THROW(Node("A")->MoveTo(Node("A11")), EKSTreeViewError);
    EXPECT_THROW(Node("A")->MoveTo(Node("A")), EKSTreeViewError);
    TFakeTree Other;
    Other.Fill({"X"});
    EXPECT_THROW(Node("A")->MoveTo(Other.Find("X")), EKSTreeViewError);
    EXPECT_EQ(Tree.Outline(), "0A 1A1 2A11 1A2 0B 1B1");
}

} // namespace
