// Handlers of the selection that fail, and that select, deselect or delete meanwhile.

#include <algorithm>
#include <utility>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "KSTreeView/model/FakeTree.h"
#include "KSTreeView/model/Handlers.h"

namespace
{

/// The texts of the nodes that are marked as selected.
std::string Marked(TFakeTree& Tree)
{
    std::string Texts;
    for (TKSTreeNode* Node = Tree.Items().GetFirstNode(); Node; Node = Node->GetNext())
        if (Node->GetSelected())
            Texts += Node->GetText();
    return Texts;
}

TEST(Selecting, AHandlerThatFailsLeavesTheNewNodeSelected)
{
    TFakeTree Tree;
    Tree.Fill({"A", "B", "C"});
    Tree.SelectNode(Tree.Find("A"));
    Tree.OnChange = [](TKSTreeNode*) { Fail(); };
    EXPECT_THROW(Tree.SelectNode(Tree.Find("B")), vcl::Exception);
    EXPECT_EQ(Tree.Selected(), Tree.Find("B"));
    Tree.OnChange = nullptr;
    Tree.SelectNode(Tree.Find("C"));
    EXPECT_FALSE(Tree.Find("A")->GetSelected());
    EXPECT_FALSE(Tree.Find("B")->GetSelected());
    EXPECT_TRUE(Tree.Find("C")->GetSelected());
}

TEST(Selecting, AHandlerMaySelectTheNodeItIsToldAbout)
{
    TFakeTree Tree;
    Tree.Fill({"A", "B"});
    Tree.SelectNode(Tree.Find("A"));
    Tree.Log.clear();
    Tree.OnChange = [&](TKSTreeNode* Node) { Tree.SelectNode(Node); };
    Tree.SelectNode(Tree.Find("B"));
    EXPECT_EQ(Tree.Selected(), Tree.Find("B"));
    EXPECT_EQ(std::count(Tree.Log.begin(), Tree.Log.end(), "change B"), 1);
}

TEST(Selecting, WhatAHandlerSelectsInsteadIsDrawnAndTheOtherNoLongerLooksSelected)
{
    TFakeTree Tree;
    Tree.Fill({"A", "B", "C"});
    Tree.SelectNode(Tree.Find("A"));
    Tree.OnChange = [&](TKSTreeNode* Node) {
        if (Node->GetText() == "B")
            Tree.SelectNode(Tree.Find("C"));
    };
    Tree.Log.clear();
    Tree.SelectNode(Tree.Find("B"));
    EXPECT_EQ(Tree.Selected(), Tree.Find("C"));
    EXPECT_EQ(Marked(Tree), "C");
    EXPECT_EQ(Tree.Log.back(), "image B");
}

TEST(Selecting, AHandlerMayDeleteTheNodeThatWasSelected)
{
    TFakeTree Tree;
    Tree.Fill({"A", "B"});
    Tree.SelectNode(Tree.Find("A"));
    Tree.OnChange = Once([&] { Tree.Find("A")->Delete(); });
    Tree.SelectNode(Tree.Find("B"));
    EXPECT_EQ(Tree.Selected(), Tree.Find("B"));
    EXPECT_TRUE(Tree.Find("B")->GetSelected());
}

TEST(Focusing, AHandlerThatFailsLeavesTheNewNodeFocused)
{
    TFakeTree Tree;
    Tree.Fill({"A", "B"});
    Tree.FocusNode(Tree.Find("A"));
    Tree.OnGetImageIndex = Once(&Fail);
    EXPECT_THROW(Tree.FocusNode(Tree.Find("B")), vcl::Exception);
    EXPECT_FALSE(Tree.Find("A")->GetFocused());
    EXPECT_TRUE(Tree.Find("B")->GetFocused());
}

TEST(Selecting, AFailureWhenTheOldNodeIsDrawnLeavesTheNewNodeSelected)
{
    TFakeTree Tree;
    Tree.Fill({"A", "B"});
    Tree.SelectNode(Tree.Find("A"));
    Tree.OnGetImageIndex = Once(&Fail);
    EXPECT_THROW(Tree.SelectNode(Tree.Find("B")), vcl::Exception);
    EXPECT_EQ(Tree.Selected(), Tree.Find("B"));
    EXPECT_EQ(Marked(Tree), "B");
    Tree.SelectNode(Tree.Find("A"));
    EXPECT_EQ(Marked(Tree), "A");
}

TEST(Selecting, AHandlerMaySelectAnotherNodeAndFail)
{
    TFakeTree Tree;
    Tree.Fill({"A", "B", "C"});
    Tree.SelectNode(Tree.Find("A"));
    Tree.OnChange = [&](TKSTreeNode* Node) {
        if (Node->GetText() == "B") {
            Tree.SelectNode(Tree.Find("C"));
            Fail();
        }
    };
    EXPECT_THROW(Tree.SelectNode(Tree.Find("B")), vcl::Exception);
    EXPECT_EQ(Tree.Selected(), Tree.Find("C"));
    EXPECT_EQ(Marked(Tree), "C");
}

TEST(Selecting, ADrawingHandlerMaySelectAnotherNode)
{
    TFakeTree Tree;
    Tree.Fill({"A", "B", "C"});
    Tree.SelectNode(Tree.Find("A"));
    Tree.OnGetImageIndex = Once([&] { Tree.SelectNode(Tree.Find("C")); });
    Tree.SelectNode(Tree.Find("B"));
    EXPECT_EQ(Tree.Selected(), Tree.Find("C"));
    EXPECT_EQ(Marked(Tree), "C");
}

TEST(Selecting, AHandlersLastWishCounts)
{
    TFakeTree Tree;
    Tree.Fill({"A", "B", "C"});
    Tree.SelectNode(Tree.Find("A"));
    Tree.OnChange = Once([&] {
        Tree.SelectNode(Tree.Find("C"));
        Tree.SelectNode(Tree.Find("B"));
    });
    Tree.SelectNode(Tree.Find("B"));
    EXPECT_EQ(Tree.Selected(), Tree.Find("B"));
    EXPECT_EQ(Marked(Tree), "B");
}

} // namespace
