#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "KSTreeView/model/FakeTree.h"

using testing::ElementsAre;
using testing::IsEmpty;

namespace
{

TEST(Adding, ANewNodeHasItsDeclaredValues)
{
    TKSTreeNode Node(nullptr);
    EXPECT_EQ(Node.GetText(), "");
    EXPECT_EQ(Node.GetStringData(), "");
    EXPECT_EQ(Node.GetData(), nullptr);
    EXPECT_EQ(Node.GetIntData(), 0);
    EXPECT_EQ(Node.GetImageIndex(), -1);
    EXPECT_EQ(Node.GetColor(), 65535);
    EXPECT_TRUE(Node.GetUseTreeColor());
    EXPECT_FALSE(Node.GetHasChildren());
    EXPECT_TRUE(Node.GetStates().IsEmpty());
    EXPECT_EQ(Node.GetLevel(), 0);
    EXPECT_EQ(Node.GetParent(), nullptr);
    EXPECT_EQ(Node.GetRect(), vcl::TRect());
    EXPECT_EQ(Node.GetTreeView(), nullptr);
    EXPECT_EQ(Node.GetHandle(), nullptr);
}

TEST(Adding, AnEmptyCollectionHasNoNodes)
{
    TKSTreeNodes Nodes;
    EXPECT_EQ(Nodes.GetCount(), 0);
    EXPECT_EQ(Nodes.GetFirstNode(), nullptr);
    EXPECT_EQ(Nodes.GetHandle(), nullptr);
}

TEST(Adding, AddAppendsAmongTheSiblings)
{
    TFakeTree Tree;
    TKSTreeNode* const A = Tree.Items().Add(nullptr, "A");
    TKSTreeNode* const A1 = Tree.Items().AddChild(A, "A1");
    Tree.Items().Add(A1, "A2");
    Tree.Items().Add(A, "B");
    EXPECT_EQ(Tree.Outline(), "0A 1A1 1A2 0B");
    EXPECT_EQ(Tree.Items().GetCount(), 4);
    EXPECT_TRUE(A->GetHasChildren());
}

TEST(Adding, AddFirstPutsTheNodeBeforeItsSiblings)
{
    TFakeTree Tree;
    TKSTreeNode* const A = Tree.Items().AddFirst(nullptr, "A");
    TKSTreeNode* const A1 = Tree.Items().AddChildFirst(A, "A1");
    Tree.Items().AddFirst(A1, "A0");
    Tree.Items().AddChildFirst(A, "A-");
    Tree.Items().AddFirst(A, "Z");
    EXPECT_EQ(Tree.Outline(), "0Z 0A 1A- 1A0 1A1");
    EXPECT_EQ(A->GetLastChild(), A1);
    EXPECT_EQ(A1->GetPrevSibling()->GetText(), "A0");
}

TEST(Adding, InsertPutsTheNodeImmediatelyBeforeItsSibling)
{
    TFakeTree Tree;
    Tree.Fill({"A", " A1", " A2", "B"});
    Tree.Items().Insert(Tree.Find("A2"), "A1b");
    Tree.Items().Insert(Tree.Find("A1"), "A0");
    Tree.Items().Insert(Tree.Find("A"), "First");
    Tree.Items().Insert(nullptr, "Last");
    EXPECT_EQ(Tree.Outline(), "0First 0A 1A0 1A1 1A1b 1A2 0B 0Last");
    EXPECT_EQ(Tree.Items().GetFirstNode()->GetText(), "First");
    EXPECT_EQ(Tree.Find("A")->GetFirstChild()->GetText(), "A0");
    EXPECT_EQ(Tree.Items().GetCount(), 8);
}

TEST(Adding, ObjectsKeepTheirData)
{
    TFakeTree Tree;
    int Value = 0;
    TKSTreeNode* const A = Tree.Items().AddObject(nullptr, "A", &Value);
    EXPECT_EQ(A->GetData(), &Value);
    EXPECT_EQ(Tree.Items().AddObjectFirst(A, "B", &Value)->GetData(), &Value);
    EXPECT_EQ(Tree.Items().AddChildObject(A, "C", &Value)->GetData(), &Value);
    EXPECT_EQ(Tree.Items().AddChildObjectFirst(A, "D", &Value)->GetData(), &Value);
    EXPECT_EQ(Tree.Items().InsertObject(A, "E", &Value)->GetData(), &Value);
}

TEST(Adding, AVisibleNodeRefreshesTheViewAndAHiddenOneDoesNot)
{
    TFakeTree Tree;
    TKSTreeNode* const A = Tree.Items().Add(nullptr, "A");
    EXPECT_THAT(Tree.Log, ElementsAre("refresh"));
    Tree.Log.clear();
    TKSTreeNode* const A1 = Tree.Items().AddChild(A, "A1");
    EXPECT_THAT(Tree.Log, ElementsAre("image A")) << "the parent's button is drawn";
    A->Expand(false);
    Tree.Log.clear();
    Tree.Items().AddChild(A, "A2");
    EXPECT_THAT(Tree.Log, ElementsAre("refresh"));
    Tree.Log.clear();
    Tree.Items().AddChild(A1, "A11");
    EXPECT_THAT(Tree.Log, ElementsAre("image A1"));
}

TEST(Adding, TheCountGrowsAfterTheRefresh)
{
    TFakeTree Tree;
    int Seen = -1;
    Tree.Items().Add(nullptr, "A");
    Tree.OnGetImageIndex = [&](TKSTreeNode*) { Seen = Tree.Items().GetCount(); };
    Tree.Items().AddChild(Tree.Find("A"), "A1");
    EXPECT_EQ(Seen, 1);
}

TEST(Adding, InsertNeverRefreshesButDrawsTheNodeBeforeItStandsAnywhere)
{
    TFakeTree Tree;
    Tree.Fill({"A"});
    Tree.Items().Insert(Tree.Find("A"), "B");
    EXPECT_THAT(Tree.Log, ElementsAre("image B"));
    Tree.Log.clear();
    Tree.Items().Insert(Tree.Find("A"), "");
    EXPECT_THAT(Tree.Log, IsEmpty()) << "an unchanged text is not drawn";
}

TEST(Adding, InsideAnUpdateNothingIsDrawnAndTheOutermostEndRefreshes)
{
    TFakeTree Tree;
    Tree.Items().BeginUpdate();
    Tree.Items().BeginUpdate();
    TKSTreeNode* const A = Tree.Items().Add(nullptr, "A");
    Tree.Items().AddChild(A, "A1");
    Tree.Items().Insert(A, "B");
    A->SetText("C");
    A->SetHasChildren(false);
    Tree.Items().EndUpdate();
    EXPECT_THAT(Tree.Log, IsEmpty());
    Tree.Items().EndUpdate();
    EXPECT_THAT(Tree.Log, ElementsAre("refresh"));
}

TEST(Adding, PropertiesRedrawTheNodeByTheirRules)
{
    TFakeTree Tree;
    Tree.Fill({"A"});
    TKSTreeNode* const A = Tree.Find("A");
    A->SetText("A");
    A->SetImageIndex(-1);
    A->SetUseTreeColor(true);
    A->SetHasChildren(false);
    A->SetData(&Tree);
    EXPECT_THAT(Tree.Log, IsEmpty()) << "nothing changed, or Data";
    A->SetText("B");
    A->SetImageIndex(3);
    A->SetUseTreeColor(false);
    A->SetHasChildren(true);
    EXPECT_EQ(Tree.Log.size(), 4u);
    A->SetColor(vcl::clRed);
    A->SetColor(vcl::clRed);
    EXPECT_EQ(Tree.Log.size(), 6u) << "a colour is drawn always";
    A->SetUseTreeColor(true);
    A->SetColor(vcl::clRed);
    EXPECT_FALSE(A->GetUseTreeColor());
}

TEST(Adding, DrawingRaisesTheImageEventAndThenDrawsBoxImageButtonAndLines)
{
    TFakeTree Tree;
    Tree.Fill({"A"});
    Tree.Find("A")->Draw();
    EXPECT_THAT(Tree.Log, ElementsAre("image A"));
    EXPECT_EQ(Tree.Parts, "box image button lines ");
    Tree.OwnerDrawn = true;
    Tree.Parts.clear();
    Tree.Find("A")->Draw();
    EXPECT_THAT(Tree.Log, ElementsAre("image A", "image A", "owner A"));
    EXPECT_EQ(Tree.Parts, "button lines ");
}

TEST(Adding, HiddenAndUnlinkedNodesAreNotDrawn)
{
    TFakeTree Tree;
    Tree.Fill({"A", " A1"});
    Tree.Find("A1")->Draw();
    TKSTreeNode Alone(&Tree.Items());
    Alone.Draw();
    Alone.SetText("x");
    EXPECT_EQ(Tree.Parts, "");
    EXPECT_THAT(Tree.Log, IsEmpty());
}

TEST(Adding, AHandlerThatSetsTheImageDrawsTheNodeAgain)
{
    TFakeTree Tree;
    Tree.Fill({"A"});
    Tree.OnGetImageIndex = [](TKSTreeNode* Node) { Node->SetImageIndex(2); };
    Tree.Find("A")->Draw();
    EXPECT_EQ(Tree.Find("A")->GetImageIndex(), 2);
    EXPECT_EQ(Tree.Parts, "box image button lines box image button lines ");
}

TEST(Adding, AHandlerMayDeleteTheNodeThatIsDrawn)
{
    TFakeTree Tree;
    Tree.Fill({"A", "B"});
    Tree.OnGetImageIndex = [](TKSTreeNode* Node) { Node->Delete(); };
    Tree.Find("A")->Draw();
    EXPECT_EQ(Tree.Outline(), "0B");
    EXPECT_EQ(Tree.Parts, "");
    EXPECT_EQ(Tree.Items().AddChild(Tree.Find("B"), "B1"), nullptr) << "drawing B took it away";
    EXPECT_EQ(Tree.Items().GetCount(), 0);
}

} // namespace
