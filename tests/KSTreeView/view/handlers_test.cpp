// Handlers that free the view, fail, or change the chart at an awkward moment.

#include <functional>
#include <utility>

#include "KSTreeView/view/TreeViewFixture.h"

namespace
{

using testing::ElementsAre;

class TreeHandlers : public TTreeViewTest
{
protected:
    TreeHandlers() : TTreeViewTest(200, 100) {}

    void FreeTree() { delete std::exchange(Tree, nullptr); }
    /// Twenty top-level nodes; the tenth with thirty children, expanded, the last of them selected.
    void ShowWide()
    {
        std::string Lines;
        for (int Index = 1; Index <= 20; ++Index) {
            Lines += "T" + std::to_string(Index) + "\n";
            for (int Child = 1; Index == 10 && Child <= 30; ++Child)
                Lines += " C" + std::to_string(Child) + "\n";
        }
        Show(Lines);
        Node("T10")->Expand(false);
        Tree->SelectNode(Node("C30"));
    }
    bool IsInView(const std::string& Text)
    {
        const vcl::TRect Box = Node(Text)->GetRect();
        return Box.Left >= 0 && Box.Right <= Tree->GetClientWidth();
    }
};

TEST_F(TreeHandlers, CollapsingAllScrollsToTheSelectedNodeWithAndWithoutHandlers)
{
    ShowWide();
    Tree->FullCollapse();
    EXPECT_EQ(Selected(), "T10");
    EXPECT_TRUE(IsInView("T10"));
    const int Position = Tree->GetHorzScrollBar()->GetPosition();
    Node("T10")->Expand(false);
    Tree->SelectNode(Node("C30"));
    Tree->OnCollapsed = [](vcl::TObject*, TKSTreeNode*) {};
    Tree->FullCollapse();
    EXPECT_EQ(Tree->GetHorzScrollBar()->GetPosition(), Position);
}

TEST_F(TreeHandlers, DeletingTheChildrenScrollsToTheNodeThatIsSelectedThen)
{
    ShowWide();
    Node("T10")->DeleteChildren();
    EXPECT_EQ(Selected(), "T10");
    EXPECT_TRUE(IsInView("T10"));
}

TEST_F(TreeHandlers, DeletingTheSelectedNodePaintsOnce)
{
    Show("A\nB\n");
    Tree->SelectNode(Node("A"));
    const int Before = Tree->Paintings;
    Node("A")->Delete();
    Windows().ProcessMessages();
    EXPECT_EQ(Tree->Paintings, Before + 1);
}

TEST_F(TreeHandlers, AnExpandingNodeSaysSoInItsEvents)
{
    Show("A\n A1\n");
    bool WasExpanding = false;
    Tree->OnExpanded = [&](vcl::TObject*, TKSTreeNode*) { WasExpanding = Tree->IsExpanding(); };
    Node("A")->Expand(false);
    EXPECT_TRUE(WasExpanding);
    EXPECT_FALSE(Tree->IsExpanding());
}

TEST_F(TreeHandlers, AChartThatIsReplacedIsShownFromItsStart)
{
    ShowWide();
    EXPECT_GT(Tree->GetHorzScrollBar()->GetPosition(), 0);
    TKSTreeNodes Others;
    for (int Index = 0; Index < 60; ++Index)
        Others.Add(nullptr, "x");
    Tree->GetItems()->Assign(&Others);
    EXPECT_EQ(Tree->GetItems()->GetCount(), 60);
    EXPECT_EQ(Tree->GetHorzScrollBar()->GetPosition(), 0);
}

TEST_F(TreeHandlers, ABarThatComesMayFreeTheView)
{
    Show("A\n");
    Tree->OnResize = [this](vcl::TObject*) { FreeTree(); };
    for (int Index = 0; Index < 10 && Tree; ++Index)
        Tree->GetItems()->Add(nullptr, "x");
    EXPECT_EQ(Tree, nullptr);
}

TEST_F(TreeHandlers, AFailureWhenABarComesDoesNotKeepTheBarsFromChangingLater)
{
    Show("A\n");
    Tree->OnResize = [this](vcl::TObject*) {
        Tree->OnResize = nullptr;
        throw vcl::Exception("no");
    };
    for (int Index = 0; Index < 10; ++Index) {
        try {
            Tree->GetItems()->Add(nullptr, "x");
        } catch (const vcl::Exception&) {
        }
    }
    Windows().ProcessMessages();
    Errors.clear();
    EXPECT_EQ(Tree->GetItems()->GetCount(), 11);
    Tree->Refresh();
    EXPECT_EQ(Tree->GetHorzScrollBar()->GetMaxPosition(), 11 * 80 - 20 + 40 - 200);
}

TEST_F(TreeHandlers, ATextTakenByTheWheelMayFreeTheView)
{
    ShowWide();
    Tree->EditNode(Node("C30"));
    Tree->OnEdited = [this](vcl::TObject*, TKSTreeNode*, vcl::AnsiString&) { FreeTree(); };
    Windows().Wheel(WindowOf(*Tree), {5, 5}, -120);
    EXPECT_EQ(Tree, nullptr);
}

TEST_F(TreeHandlers, AViewThatCannotHaveTheFocusDoesNotStayHalfEdited)
{
    Show("A\n");
    Tree->SetEnabled(false);
    EXPECT_ANY_THROW(Tree->EditNode(Node("A")));
    EXPECT_FALSE(Tree->IsEditing());
    EXPECT_FALSE(Node("A")->GetEdited());
    Tree->SetEnabled(true);
    Tree->EditNode(Node("A"));
    EXPECT_TRUE(Tree->IsEditing());
}

TEST_F(TreeHandlers, AnEditorThatIsFreedByTheProgramIsNotUsedAnyMore)
{
    Show("A\n");
    Tree->EditNode(Node("A"));
    delete Tree->GetEditor();
    EXPECT_FALSE(Tree->IsEditing());
    EXPECT_FALSE(Node("A")->GetEdited());
    Tree->EditNode(Node("A"));
    EXPECT_TRUE(Tree->IsEditing());
}

TEST_F(TreeHandlers, NodesOfAnotherChartAreRefused)
{
    Show("A\n");
    auto* const Second = vcl::New<TKSTreeView>(Form);
    Second->SetParent(Form);
    TKSTreeNode* const Stranger = Second->GetItems()->Add(nullptr, "S");
    EXPECT_THROW(Tree->SelectNode(Stranger), EKSTreeViewError);
    EXPECT_THROW(Tree->FocusNode(Stranger), EKSTreeViewError);
    EXPECT_THROW(Tree->EditNode(Stranger), EKSTreeViewError);
    EXPECT_FALSE(Stranger->GetSelected());
}

TEST_F(TreeHandlers, TheNodeAtAPointIsAVisibleOneForHitTests)
{
    Show("A\n A1\n");
    Node("A")->Expand(false);
    const vcl::TPoint Point = At("A1");
    TKSTreeNode* Found = nullptr;
    EXPECT_EQ(Tree->InternalGetHitTestInfoAt(Point.X, Point.Y, Found), TKSTVHitTests{TKSTVHitTest::htOnItem});
    EXPECT_EQ(Found, Node("A1"));
    Node("A")->Collapse(false);
    EXPECT_EQ(Tree->InternalGetHitTestInfoAt(Point.X, Point.Y, Found), TKSTVHitTests{});
    EXPECT_EQ(Found, nullptr);
    EXPECT_EQ(Tree->GetNodeAt(Point.X, Point.Y), Node("A1")) << "which finds hidden nodes";
}

TEST_F(TreeHandlers, ADetachedNodeIsNeverTheFocusedOne)
{
    Show("A\n");
    {
        TKSTreeNode Buffer(Tree->GetItems());
        Buffer.Assign(Node("A"));
        EXPECT_EQ(Tree->GetFocusedNode(), nullptr);
        EXPECT_THROW(Tree->FocusNode(&Buffer), EKSTreeViewError);
    }
    Tree->FocusNode(Node("A"));
    EXPECT_TRUE(Node("A")->GetFocused());
}

TEST_F(TreeHandlers, WhatFollowsANodeThatIsDeletedWhileItIsDrawnIsDrawnToo)
{
    Show("A\nB\nC\n");
    std::vector<std::string> Drawn;
    vcl::TBitmap Bitmap;
    Bitmap.SetWidth(300);
    Bitmap.SetHeight(100);
    Tree->OnGetImageIndex = [&](vcl::TObject*, TKSTreeNode* About) {
        if (!Tree->IsPrinting())
            return;
        Drawn.push_back(About->GetText());
        if (About->GetText() == "B")
            About->Delete();
    };
    Tree->PrintTo(Bitmap.GetCanvas(), {0, 0, 300, 100});
    EXPECT_THAT(Drawn, ElementsAre("A", "B", "C"));
}

TEST_F(TreeHandlers, PaintingADeepChainWithHandlersIsQuick)
{
    // At quadratic time it would not come to an end.
    constexpr int Levels = 1'000'000;
    Tree->GetItems()->BeginUpdate();
    TKSTreeNode* Last = nullptr;
    for (int Level = 0; Level < Levels; ++Level)
        Last = Tree->GetItems()->AddChild(Last, "x");
    Last->MakeVisible();
    // Only the visit of every node is of interest.
    Tree->SetDefaultDrawing(false);
    Tree->OnDrawNode = [](vcl::TObject*, TKSTreeNode*, vcl::TRect) {};
    Tree->SetShowButtons(false);
    Tree->SetShowLines(false);
    int Asked = 0;
    Tree->OnGetImageIndex = [&](vcl::TObject*, TKSTreeNode*) { ++Asked; };
    Tree->GetItems()->EndUpdate();
    Form->Show();
    Windows().ProcessMessages();
    EXPECT_GE(Asked, Levels);
    EXPECT_EQ(Asked % Levels, 0);
    Tree->OnGetImageIndex = nullptr;
}

} // namespace
