#include "KSTreeView/view/TreeViewFixture.h"

namespace
{

class TreeScrollInView : public TTreeViewTest
{
protected:
    TreeScrollInView() : TTreeViewTest(200, 100) {}
    TKSTVScrollBar& Horz() { return *Tree->GetHorzScrollBar(); }
    TKSTVScrollBar& Vert() { return *Tree->GetVertScrollBar(); }
};

TEST_F(TreeScrollInView, BringsANodeAndTheSpacingBelowOrAboveItInView)
{
    Show("A\n B\n  C\n   D\n");
    Tree->FullExpand();
    Tree->SelectNode(Node("D"));
    EXPECT_EQ(Node("D")->GetRect().Bottom + 20, Tree->GetClientHeight());
    EXPECT_EQ(Vert().GetPosition(), Vert().GetMaxPosition());
    Tree->SelectNode(Node("B"));
    EXPECT_EQ(Node("B")->GetRect().Top, 20);
    Tree->SelectNode(Node("A"));
    EXPECT_EQ(Vert().GetPosition(), 0);
}

TEST_F(TreeScrollInView, OfAHiddenNodeDoesNothing)
{
    Show("A\nB\nC\nD\nE\n E1\n");
    Node("E")->Expand(false);
    Node("E")->Collapse(false);
    ASSERT_GT(Node("E1")->GetRect().Right, Tree->GetClientWidth()) << "where it was last seen";
    Tree->ScrollInView(Node("E1"));
    EXPECT_EQ(Horz().GetPosition(), 0);
    Tree->ScrollInView(Node("E"));
    EXPECT_EQ(Horz().GetPosition(), Horz().GetMaxPosition());
    Tree->ScrollInView(nullptr);
    EXPECT_EQ(Horz().GetPosition(), Horz().GetMaxPosition());
}

TEST_F(TreeScrollInView, WithoutAParentDoesNothing)
{
    auto* const Alone = vcl::New<TProbeTree>(Form);
    for (int Index = 0; Index < 5; ++Index)
        Alone->GetItems()->Add(nullptr, "A");
    Alone->CalcSubTreesPos();
    Alone->CalcDisplayRect();
    ASSERT_GT(Alone->GetHorzScrollBar()->GetMaxPosition(), 0);
    ASSERT_GT(Alone->GetItems()->GetLastTopNode()->GetRect().Right, Alone->GetClientWidth());
    Alone->SelectNode(Alone->GetItems()->GetLastTopNode());
    EXPECT_EQ(Alone->GetHorzScrollBar()->GetPosition(), 0);
}

TEST_F(TreeScrollInView, ShowsTheStartOfWhatIsWiderThanTheWindow)
{
    Tree->SetWidth(50);
    Show("A\nB\nC\n");
    Tree->SelectNode(Node("B"));
    EXPECT_EQ(Node("B")->GetRect().Left, 20);
    Tree->SelectNode(Node("C"));
    EXPECT_EQ(Node("C")->GetRect().Left, 20);
    Tree->SelectNode(Node("A"));
    EXPECT_EQ(Node("A")->GetRect().Left, 20);
    EXPECT_EQ(Horz().GetPosition(), 0);
}

} // namespace
