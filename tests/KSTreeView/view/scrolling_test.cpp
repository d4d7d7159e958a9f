#include "KSTreeView/view/TreeViewFixture.h"
#include "vcl/classes/Properties.h"
#include "vcl/graphics/ScrollInfo.h"

using testing::ElementsAre;
using vcl::TScrollBarKind;

namespace
{

class TreeScrolling : public TTreeViewTest
{
protected:
    TreeScrolling() : TTreeViewTest(200, 100) {}
    TKSTVScrollBar& Horz() { return *Tree->GetHorzScrollBar(); }
    TKSTVScrollBar& Vert() { return *Tree->GetVertScrollBar(); }
    vcl::TScrollInfo Info(TScrollBarKind Kind)
    {
        vcl::TScrollInfo Result;
        Tree->GetScrollInfo(Kind, Result);
        return Result;
    }
};

TEST_F(TreeScrolling, ANewBarHasItsDeclaredValuesButTracks)
{
    EXPECT_EQ(Horz().GetIncrement(), 8);
    EXPECT_EQ(Horz().GetPosition(), 0);
    EXPECT_EQ(Horz().GetRange(), 0);
    EXPECT_EQ(Horz().GetMargin(), 0);
    EXPECT_TRUE(Horz().GetVisible());
    EXPECT_TRUE(Horz().GetTracking());
    EXPECT_EQ(Vert().GetKind(), TScrollBarKind::sbVertical);
    const vcl::TPropertyInfo* const Tracking = vcl::FindProperty(TKSTVScrollBar::StaticClass(), "Tracking");
    ASSERT_NE(Tracking, nullptr);
    EXPECT_EQ(Tracking->Default, 0);
    for (const char* Name : {"Margin", "Increment", "Range", "Position", "Visible"})
        EXPECT_NE(vcl::FindProperty(TKSTVScrollBar::StaticClass(), Name), nullptr) << Name;
}

TEST_F(TreeScrolling, LayoutSetsTheRangesAndTheWindowsBars)
{
    Show("A\nB\nC\n");
    EXPECT_EQ(Horz().GetRange(), 40 + 220);
    EXPECT_EQ(Vert().GetRange(), 40 + 30);
    EXPECT_EQ(Tree->GetClientHeight(), 84) << "the horizontal bar takes 16 pixels";
    EXPECT_EQ(Horz().GetMaxPosition(), 60);
    EXPECT_EQ(Vert().GetMaxPosition(), 0);
    EXPECT_EQ(Info(TScrollBarKind::sbHorizontal).Max, 260);
    EXPECT_EQ(Info(TScrollBarKind::sbHorizontal).Page, 201u);
    EXPECT_EQ(Tree->GetXOrigin(), 20);
    EXPECT_EQ(Tree->GetYOrigin(), (84 - 30) / 2);
}

TEST_F(TreeScrolling, OneBarMayMakeTheOtherNecessary)
{
    Show("A\n B\nC\nD\n");
    EXPECT_EQ(Vert().GetMaxPosition(), 0);
    EXPECT_EQ(Tree->GetClientHeight(), 84);
    Tree->SetVertSpacing(9);
    Tree->FullExpand();
    // 69 + 18 = 87 fits 100, but not what the horizontal bar leaves.
    EXPECT_EQ(Vert().GetRange(), 87);
    EXPECT_EQ(Vert().GetMaxPosition(), 3);
    EXPECT_EQ(Tree->GetClientWidth(), 184);
    EXPECT_EQ(Horz().GetMaxPosition(), 260 - 184);
    Tree->FullCollapse();
    EXPECT_EQ(Tree->GetClientWidth(), 200) << "and it goes again";
}

TEST_F(TreeScrolling, TheChartMovesWithThePosition)
{
    Show("A\nB\nC\n");
    const vcl::TRect Before = Node("B")->GetRect();
    Horz().SetPosition(25);
    EXPECT_EQ(Node("B")->GetRect().Left, Before.Left - 25);
    EXPECT_EQ(Tree->GetXOrigin(), -5);
    EXPECT_EQ(Info(TScrollBarKind::sbHorizontal).Pos, 25);
    Windows().ProcessMessages();
    EXPECT_EQ(Node("B")->GetRect().Left, Before.Left - 25) << "painting agrees";
    Horz().SetPosition(1000);
    EXPECT_EQ(Horz().GetPosition(), 60);
    Horz().SetPosition(-5);
    EXPECT_EQ(Horz().GetPosition(), 0);
}

TEST_F(TreeScrolling, MessagesOfTheBarMoveIt)
{
    Show("A\nB\nC\nD\nE\nF\n");
    const auto Send = [&](unsigned Request, int Position = 0) {
        Windows().Scroll(WindowOf(*Tree), TScrollBarKind::sbHorizontal, Request, Position);
        return Horz().GetPosition();
    };
    EXPECT_EQ(Send(vcl::SB_LINERIGHT), 8);
    EXPECT_EQ(Send(vcl::SB_LINELEFT), 0);
    EXPECT_EQ(Send(vcl::SB_PAGERIGHT), 200);
    EXPECT_EQ(Send(vcl::SB_PAGELEFT), 0);
    EXPECT_EQ(Send(vcl::SB_THUMBPOSITION, 77), 77);
    EXPECT_EQ(Send(vcl::SB_THUMBTRACK, 88), 88);
    Horz().SetTracking(false);
    EXPECT_EQ(Send(vcl::SB_THUMBTRACK, 99), 88);
    EXPECT_EQ(Send(vcl::SB_RIGHT), Horz().GetMaxPosition());
    EXPECT_EQ(Horz().GetMaxPosition(), 300);
    EXPECT_EQ(Send(vcl::SB_LEFT), 0);
    EXPECT_EQ(Send(vcl::SB_ENDSCROLL, 50), 0);
}

TEST_F(TreeScrolling, ABarThatIsNotVisibleDoesNotScroll)
{
    Show("A\nB\nC\n");
    Horz().SetPosition(10);
    Horz().SetVisible(false);
    EXPECT_EQ(Horz().GetMaxPosition(), 0);
    EXPECT_EQ(Horz().GetPosition(), 0);
    EXPECT_EQ(Horz().GetScrollPos(), 0);
    Tree->Refresh();
    EXPECT_EQ(Tree->GetClientHeight(), 100);
    Horz().SetVisible(true);
    EXPECT_EQ(Horz().GetMaxPosition(), 60);
}

TEST_F(TreeScrolling, ANegativeRangeIsNone)
{
    Vert().SetRange(-5);
    EXPECT_EQ(Vert().GetRange(), 0);
    EXPECT_EQ(Vert().GetMaxPosition(), 0);
    Vert().SetRange(150);
    EXPECT_EQ(Vert().GetMaxPosition(), 50);
    EXPECT_TRUE(Vert().NeedsScrollBarVisible());
}

TEST_F(TreeScrolling, AssigningABarTakesThreeValues)
{
    Show("A\nB\nC\n");
    TProbeTree* const Source = vcl::New<TProbeTree>(Form);
    Source->GetHorzScrollBar()->SetIncrement(3);
    Source->GetHorzScrollBar()->SetMargin(9);
    Horz().SetPosition(40);
    Horz().Assign(Source->GetHorzScrollBar());
    EXPECT_EQ(Horz().GetIncrement(), 3);
    EXPECT_EQ(Horz().GetPosition(), 0);
    EXPECT_EQ(Horz().GetMargin(), 0);
    EXPECT_THROW(Horz().Assign(Tree), vcl::EConvertError);
}

TEST_F(TreeScrolling, SelectingScrollsTheNodeAndTheSpacingAroundItInView)
{
    Show("A\nB\nC\nD\nE\n");
    Tree->SelectNode(Node("C"));
    EXPECT_EQ(Horz().GetPosition(), 60) << "right edge of C and 20";
    Tree->SelectNode(Node("A"));
    EXPECT_EQ(Horz().GetPosition(), 0);
    Tree->GetItems()->BeginUpdate();
    Tree->SelectNode(Node("E"));
    EXPECT_EQ(Horz().GetPosition(), 0) << "not while updating";
    Tree->GetItems()->EndUpdate();
}

TEST_F(TreeScrolling, SelectingQuicklyTwiceScrollsNoFurtherThanNeeded)
{
    Show("A\nB\nC\nD\nE\n");
    Tree->SelectNode(Node("C"));
    Tree->SelectNode(Node("D"));
    EXPECT_EQ(Horz().GetPosition(), 140);
}

TEST_F(TreeScrolling, ResizingCentresTheChartAnew)
{
    Show("A\nB\n");
    Tree->SetWidth(300);
    Windows().ProcessMessages();
    EXPECT_EQ(Tree->GetXOrigin(), 80);
    Tree->SetWidth(150);
    Windows().ProcessMessages();
    EXPECT_EQ(Horz().GetMaxPosition(), 30);
}

TEST_F(TreeScrolling, BigNumbersDoNotOverflow)
{
    Show("A\nB\nC\n");
    Horz().SetIncrement(INT32_MAX);
    Horz().ScrollBy(INT32_MAX);
    Horz().ScrollBy(INT32_MAX);
    EXPECT_EQ(Horz().GetPosition(), 60);
    Horz().ScrollBy(INT32_MIN);
    EXPECT_EQ(Horz().GetPosition(), 0);
}

} // namespace
