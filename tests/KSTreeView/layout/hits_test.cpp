// Which of several places under one point is hit.

#include "KSTreeView/layout/ChartFixture.h"

namespace
{

class ChartHits : public TChartTest
{
protected:
    treeview::TChartHit Hit(vcl::TPoint Point) { return treeview::HitTest(Tree.Items(), true, Point); }
};

TEST_F(ChartHits, AParentsButtonComesBeforeTheChildItHangsInto)
{
    Tree.Layout.VertSpacing = 0;
    Tree.Fill({"A", " A1"});
    Node("A")->Expand(false);
    LayOut({200, 100});
    const vcl::TPoint Point{Node("A")->GetCenter(), Rect("A").Bottom + 1};
    ASSERT_TRUE(Rect("A1").Contains(Point));
    EXPECT_EQ(Hit(Point).Tests, (TKSTVHitTests{TKSTVHitTest::htOnButton}));
    EXPECT_EQ(Hit(Point).Node, Node("A"));
    EXPECT_EQ(treeview::NodeAt(Tree.Items(), Point), Node("A1")) << "which knows no buttons";
}

TEST_F(ChartHits, ABoxComesBeforeTheButtonOfALaterNode)
{
    Tree.Layout.HorzSpacing = -30;
    Tree.Fill({"A", "B", " B1"});
    LayOut({200, 100});
    const vcl::TPoint Point{Node("B")->GetCenter() - 1, Rect("B").Bottom - 1};
    ASSERT_TRUE(Rect("A").Contains(Point));
    ASSERT_TRUE(Node("B")->ButtonRect().Contains(Point));
    EXPECT_EQ(Hit(Point).Tests, (TKSTVHitTests{TKSTVHitTest::htOnItem}));
    EXPECT_EQ(Hit(Point).Node, Node("A"));
}

TEST_F(ChartHits, OfOverlappingBoxesTheFirstIsHit)
{
    Tree.Layout.HorzSpacing = -30;
    Tree.Fill({"A", "B"});
    LayOut({200, 100});
    const vcl::TPoint Point{Rect("B").Left, Rect("B").Top};
    ASSERT_TRUE(Rect("A").Contains(Point));
    EXPECT_EQ(Hit(Point).Node, Node("A"));
    EXPECT_EQ(treeview::NodeAt(Tree.Items(), Point), Node("A"));
    EXPECT_EQ(Hit({Rect("A").Right, Rect("A").Top}).Node, Node("B"));
}

TEST_F(ChartHits, AnExpandedNodeWithoutAChildHasAButton)
{
    Tree.Fill({"A"});
    Node("A")->SetHasChildren(true);
    Node("A")->Expand(false);
    LayOut({200, 100});
    EXPECT_EQ(Hit({Node("A")->GetCenter(), Rect("A").Bottom + 1}).Tests,
              (TKSTVHitTests{TKSTVHitTest::htOnButton}));
}

} // namespace
