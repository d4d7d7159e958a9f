// The view's layout, asked for without a painting, and what it finds at a point.

#include "KSTreeView/view/TreeViewFixture.h"

namespace
{

using TTests = TKSTVHitTests;

class TreePlaces : public TTreeViewTest
{
};

TEST_F(TreePlaces, ANewViewStartsAtTheCornerWithNothing)
{
    const auto* const View = vcl::New<TKSTreeView>(Form);
    EXPECT_EQ(View->GetXOrigin(), 0);
    EXPECT_EQ(View->GetYOrigin(), 0);
    EXPECT_EQ(View->GetMaxLevel(), 0);
    EXPECT_EQ(View->GetTotalWidth(), 0);
    EXPECT_EQ(View->GetTotalHeight(), 0);
    EXPECT_FALSE(View->IsPrinting());
}

TEST_F(TreePlaces, AnEmptyViewHasItsOriginInTheMiddle)
{
    Show("");
    EXPECT_EQ(Tree->GetXOrigin(), 150);
    EXPECT_EQ(Tree->GetYOrigin(), 100);
    EXPECT_EQ(Tree->GetTotalWidth(), 0);
    EXPECT_EQ(Tree->GetTotalHeight(), 0);
}

TEST_F(TreePlaces, TheLayoutComesBeforeTheRectangles)
{
    Show("A\n");
    Tree->SetVertSpacing(9);
    const int Before = Tree->Paintings;
    Tree->GetItems()->BeginUpdate();
    Tree->GetItems()->AddChild(Node("A"), "A1");
    Node("A")->Expand(false);
    Tree->GetItems()->Add(nullptr, "B");
    Tree->CalcSubTreesPos();
    EXPECT_EQ(Tree->GetTotalWidth(), 140);
    EXPECT_EQ(Tree->GetTotalHeight(), 69);
    EXPECT_EQ(Tree->GetMaxLevel(), 1);
    EXPECT_EQ(Tree->GetHorzScrollBar()->GetRange(), 180);
    EXPECT_EQ(Tree->GetVertScrollBar()->GetRange(), 87);
    EXPECT_EQ(Tree->GetXOrigin(), 80);
    EXPECT_EQ(Tree->GetYOrigin(), 65);
    EXPECT_EQ(Node("B")->GetXOffset(), 110);
    EXPECT_EQ(Node("A")->GetRect(), (vcl::TRect{120, 85, 180, 115})) << "as before";
    EXPECT_EQ(Node("B")->GetRect(), vcl::TRect());
    Tree->CalcDisplayRect();
    EXPECT_EQ(Node("A")->GetRect(), (vcl::TRect{80, 65, 140, 95}));
    EXPECT_EQ(Node("A1")->GetRect(), (vcl::TRect{80, 104, 140, 134}));
    EXPECT_EQ(Node("B")->GetRect(), (vcl::TRect{160, 65, 220, 95}));
    EXPECT_EQ(Tree->Paintings, Before);
    Tree->GetItems()->EndUpdate();
}

TEST_F(TreePlaces, ANodeLaysOutItsSubtreeAsIfItStoodAlone)
{
    Show("A\n A1\n  A11\n  A12\n A2\n");
    Node("A")->Expand(false);
    EXPECT_EQ(Tree->GetMaxLevel(), 1);
    EXPECT_EQ(Node("A1")->GetXOffset(), -40);
    Tree->GetItems()->BeginUpdate();
    Node("A1")->Expand(false);
    Node("A1")->CalcSubTreePos();
    EXPECT_EQ(Node("A1")->GetXOffset(), 0);
    EXPECT_EQ(Node("A1")->GetLeftExtent(), -70);
    EXPECT_EQ(Node("A1")->GetRightExtent(), 70);
    EXPECT_EQ(Node("A11")->GetXOffset(), -40);
    EXPECT_EQ(Node("A12")->GetXOffset(), 40);
    EXPECT_EQ(Tree->GetMaxLevel(), 2);
    EXPECT_EQ(Node("A2")->GetXOffset(), 40) << "its sibling is untouched";
    Tree->GetItems()->EndUpdate();
    EXPECT_EQ(Node("A1")->GetXOffset(), -40) << "(140 + 20 + 60) div 2 = 110, and 70 of them";
    EXPECT_EQ(Node("A2")->GetXOffset(), 80);
}

TEST_F(TreePlaces, ANodeTakesItsRectangleFromTheCentreGiven)
{
    Show("A\n A1\nB\n");
    Node("A")->Expand(false);
    const vcl::TRect Neighbour = Node("B")->GetRect();
    EXPECT_EQ(Node("A")->GetXOffset(), 30);
    Node("A")->CalcDisplayRect(100);
    EXPECT_EQ(Node("A")->GetRect(), (vcl::TRect{100, 60, 160, 90}));
    EXPECT_EQ(Node("A1")->GetRect(), (vcl::TRect{100, 110, 160, 140}));
    Node("A1")->CalcDisplayRect(7);
    EXPECT_EQ(Node("A1")->GetRect(), (vcl::TRect{-23, 110, 37, 140}));
    EXPECT_EQ(Node("B")->GetRect(), Neighbour);
    Node("A")->Collapse(false);
    const vcl::TRect Hidden = Node("A1")->GetRect();
    Node("A1")->CalcDisplayRect(50);
    EXPECT_EQ(Node("A1")->GetRect(), Hidden) << "nobody sees it";
}

TEST_F(TreePlaces, APointHitsButtonsOnlyWhereTheyAreShown)
{
    Show("A\n A1\nB\n");
    const vcl::TRect Button = Node("A")->ButtonRect();
    const vcl::TPoint Upper{Button.Left, Button.Top};
    const vcl::TPoint Lower{Button.Right - 1, Button.Bottom - 1};
    const auto Hit = [this](vcl::TPoint Point) { return Tree->GetHitTestInfoAt(Point.X, Point.Y); };
    EXPECT_EQ(Hit(Upper), (TTests{TKSTVHitTest::htOnButton}));
    EXPECT_EQ(Hit(Lower), (TTests{TKSTVHitTest::htOnButton}));
    EXPECT_EQ(Tree->GetNodeAt(Upper.X, Upper.Y), Node("A"));
    EXPECT_EQ(Tree->GetNodeAt(Lower.X, Lower.Y), nullptr) << "below the box";
    Tree->SetShowButtons(false);
    EXPECT_EQ(Hit(Upper), (TTests{TKSTVHitTest::htOnItem}));
    EXPECT_TRUE(Hit(Lower).IsEmpty());
}

TEST_F(TreePlaces, APointInTheGapOrOnTheRightOrBottomEdgeHitsNothing)
{
    Show("A\nB\n");
    const vcl::TRect Box = Node("A")->GetRect();
    const auto Hit = [this](int X, int Y) { return Tree->GetHitTestInfoAt(X, Y); };
    EXPECT_EQ(Hit(Box.Left, Box.Top), (TTests{TKSTVHitTest::htOnItem}));
    EXPECT_EQ(Hit(Box.Right - 1, Box.Bottom - 1), (TTests{TKSTVHitTest::htOnItem}));
    EXPECT_TRUE(Hit(Box.Left - 1, Box.Top).IsEmpty());
    EXPECT_TRUE(Hit(Box.Left, Box.Top - 1).IsEmpty());
    EXPECT_TRUE(Hit(Box.Right, Box.Top).IsEmpty());
    EXPECT_TRUE(Hit(Box.Left, Box.Bottom).IsEmpty());
    EXPECT_EQ(Tree->GetNodeAt(Box.Right, Box.Top), nullptr);
    EXPECT_EQ(Tree->GetNodeAt(Node("B")->GetRect().Left, Box.Top), Node("B"));
}

} // namespace
