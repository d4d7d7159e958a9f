#include <set>

#include "KSTreeView/layout/ChartFixture.h"

using treeview::TChart;

namespace
{

class Chart : public TChartTest
{
};

TEST_F(Chart, AnEmptyTreeHasNoSizeAndItsOriginIsTheMiddle)
{
    LayOut({200, 100});
    EXPECT_EQ(View.GetTotal(), (vcl::TSize{0, 0}));
    EXPECT_EQ(View.GetOrigin(), (vcl::TPoint{100, 50}));
    EXPECT_TRUE(View.GetShown().empty());
}

TEST_F(Chart, OneNodeStandsInTheMiddle)
{
    Tree.Fill({"A"});
    LayOut({200, 100});
    EXPECT_EQ(View.GetTotal(), (vcl::TSize{60, 30}));
    EXPECT_EQ(Rect("A"), (vcl::TRect{70, 35, 130, 65}));
    EXPECT_EQ(Node("A")->GetLeftExtent(), -30);
    EXPECT_EQ(Node("A")->GetRightExtent(), 30);
    EXPECT_EQ(Node("A")->GetXOffset(), 30);
}

TEST_F(Chart, ASecondTopLevelNodeStandsTheSpacingToTheRight)
{
    Tree.Fill({"A", "B"});
    LayOut({400, 200});
    EXPECT_EQ(Rect("B").Left - Rect("A").Right, 20);
    EXPECT_EQ(View.GetTotal().Width, 140);
}

TEST_F(Chart, ChildrenStandCentredBelowTheirParent)
{
    Tree.Fill({"A", " A1", " A2", "B", " B1"});
    Node("A")->Expand(false);
    Node("B")->Expand(false);
    LayOut({400, 300});
    EXPECT_EQ(Rect("A1").Left + 30, Rect("A").Left + 30 - 40);
    EXPECT_EQ(Rect("A2").Left + 30, Rect("A").Left + 30 + 40);
    EXPECT_EQ(Rect("B1").Left, Rect("B").Left) << "an only child stands exactly below";
    EXPECT_EQ(Rect("A1").Top, Rect("A").Bottom + 20);
    EXPECT_EQ(View.GetTotal(), (vcl::TSize{220, 80}));
    EXPECT_EQ(View.GetMaxLevel(), 1);
}

TEST_F(Chart, ACollapsedNodeTakesThePlaceOfALeaf)
{
    Tree.Fill({"A", " A1", " A2", " A3", "B"});
    LayOut({400, 300});
    EXPECT_EQ(View.GetTotal(), (vcl::TSize{140, 30}));
    EXPECT_EQ(View.GetShown().size(), 2u);
}

TEST_F(Chart, AnOddWidthMakesThePlaceOnePixelNarrowerThanTheBox)
{
    Tree.Layout.NodeWidth = 61;
    Tree.Fill({"A", "B"});
    LayOut({400, 300});
    EXPECT_EQ(Node("A")->GetLeftExtent(), -30);
    EXPECT_EQ(Node("A")->GetRightExtent(), 30);
    EXPECT_EQ(Rect("A").Width(), 61);
    EXPECT_EQ(View.GetTotal().Width, 140);
    EXPECT_EQ(Rect("B").Left - Rect("A").Right, 19);
}

TEST_F(Chart, HalvesRoundTowardZero)
{
    Tree.Layout.NodeWidth = 10;
    Tree.Layout.HorzSpacing = 5;
    Tree.Fill({"A", " A1", " A2"});
    Node("A")->Expand(false);
    LayOut({101, 101});
    EXPECT_EQ(Node("A1")->GetXOffset(), -7) << "5 + -(25 / 2)";
    EXPECT_EQ(Node("A2")->GetXOffset(), 8);
    EXPECT_EQ(Node("A")->GetLeftExtent(), -12);
    EXPECT_EQ(Node("A")->GetRightExtent(), 13);
}

TEST_F(Chart, AWideChartStartsAtTheSpacingLessTheScrollPosition)
{
    Tree.Fill({"A", "B", "C"});
    LayOut({200, 300, 7, 99});
    EXPECT_EQ(View.GetOrigin(), (vcl::TPoint{13, 135}));
    EXPECT_EQ(Rect("A").Left, 13);
    LayOut({300, 300, 7, 99});
    EXPECT_EQ(View.GetOrigin().X, 40) << "the spacing around it fits too";
    LayOut({259, 300, 0, 0});
    EXPECT_EQ(View.GetOrigin().X, 20) << "one pixel short";
    LayOut({300, 69, 0, 3});
    EXPECT_EQ(View.GetOrigin().Y, 17);
}

TEST_F(Chart, OnPaperWhatDoesNotFitStartsAtTheCorner)
{
    Tree.Fill({"A", "B", "C"});
    LayOut({200, 300, 7, 99, true});
    EXPECT_EQ(View.GetOrigin(), (vcl::TPoint{0, 135}));
}

TEST_F(Chart, HiddenNodesKeepTheRectangleTheyHadAndAreFoundThere)
{
    Tree.Fill({"A", " A1"});
    Node("A")->Expand(false);
    LayOut({400, 40});
    const vcl::TRect Before = Rect("A1");
    Node("A")->Collapse(false);
    LayOut({400, 40});
    EXPECT_EQ(Rect("A1"), Before);
    EXPECT_EQ(treeview::NodeAt(Tree.Items(), {Before.Left, Before.Top}), Node("A1"));
    EXPECT_EQ(treeview::HitTest(Tree.Items(), true, {Before.Left, Before.Top}).Node, nullptr);
}

TEST_F(Chart, ChildrenOfAParentWithoutTheMarkAreVisibleButNotLaidOut)
{
    Tree.Fill({"A", " A1"});
    Node("A")->Expand(false);
    LayOut({400, 300});
    const vcl::TRect Before = Rect("A1");
    Node("A")->SetHasChildren(false);
    LayOut({400, 200});
    EXPECT_EQ(Rect("A1"), Before);
    EXPECT_EQ(View.GetTotal().Height, 30);
    EXPECT_THAT(View.GetShown(), testing::ElementsAre(Node("A"), Node("A1")));
    std::vector<TKSTreeNode*> Found;
    View.Find({0, 0, 1, 1}, 0, Found);
    EXPECT_EQ(Found.size(), 2u);
}

TEST_F(Chart, TheButtonStraddlesTheMiddleOfTheBottomEdge)
{
    Tree.Fill({"A"});
    LayOut({200, 100});
    EXPECT_EQ(Node("A")->ButtonRect(), (vcl::TRect{95, 60, 104, 69}));
    Tree.Layout.ButtonSize = 8;
    EXPECT_EQ(Node("A")->ButtonRect(), (vcl::TRect{92, 57, 107, 72}));
}

TEST_F(Chart, AHitOnTheButtonComesBeforeTheBox)
{
    Tree.Fill({"A", " A1", "B"});
    LayOut({400, 100});
    const vcl::TRect Button = Node("A")->ButtonRect();
    const auto At = [&](int X, int Y, bool Buttons = true) {
        return treeview::HitTest(Tree.Items(), Buttons, {X, Y});
    };
    EXPECT_EQ(At(Button.Left, Button.Top).Tests, (TKSTVHitTests{TKSTVHitTest::htOnButton}));
    EXPECT_EQ(At(Button.Left, Button.Bottom - 1).Node, Node("A"));
    EXPECT_EQ(At(Button.Right, Button.Top).Tests, (TKSTVHitTests{TKSTVHitTest::htOnItem}));
    EXPECT_EQ(At(Button.Left, Button.Top, false).Tests, (TKSTVHitTests{TKSTVHitTest::htOnItem}));
    EXPECT_EQ(At(Button.Left, Button.Bottom - 1, false).Node, nullptr);
    EXPECT_TRUE(At(Rect("A").Right, Rect("A").Top).Tests.IsEmpty()) << "the right edge is outside";
    EXPECT_EQ(At(Rect("A").Left, Rect("A").Top).Node, Node("A"));
    EXPECT_TRUE(At(Rect("A").Right + 10, Rect("A").Top).Tests.IsEmpty()) << "between the boxes";
    EXPECT_TRUE(At(Rect("A").Left, Rect("A").Bottom).Tests.IsEmpty());
    const vcl::TRect Other = Node("B")->ButtonRect();
    EXPECT_EQ(At(Other.Left, Other.Bottom - 1).Node, nullptr) << "no children, no button";
}

TEST_F(Chart, LayingOutOneSubtreeLeavesItsOwnOffsetAtZero)
{
    Tree.Fill({"A", " A1", " A2", "B"});
    Node("A")->Expand(false);
    LayOut({600, 300});
    EXPECT_NE(Node("A")->GetXOffset(), 0);
    View.ArrangeSubtree(*Node("A"), Tree.Layout);
    EXPECT_EQ(Node("A")->GetXOffset(), 0);
    EXPECT_EQ(Node("A")->GetRightExtent(), 70);
    LayOut({600, 300});
    EXPECT_EQ(Node("A")->GetXOffset(), 70) << "the next layout mends it";
}

TEST_F(Chart, PlacingASubtreeStartsAtTheCentreGiven)
{
    Tree.Fill({"A", " A1", "  A11", " A2", "B"});
    Node("A")->Expand(true);
    LayOut({600, 300});
    const vcl::TRect Deep = Rect("A11");
    const vcl::TRect Last = Rect("A2");
    TChart::PlaceSubtree(*Node("A"), Tree.Layout, View.GetOrigin(), View.GetOrigin().X + 100);
    EXPECT_EQ(Rect("A11").Left, Deep.Left + 100);
    EXPECT_EQ(Rect("A2").Left, Last.Left + 100);
    Node("A")->Collapse(false);
    TChart::PlaceSubtree(*Node("A1"), Tree.Layout, {}, 0);
    EXPECT_EQ(Rect("A11").Left, Deep.Left + 100) << "hidden nodes stay";
}

TEST_F(Chart, NothingIsLaidOutAnewUntilSomethingChanges)
{
    Tree.Fill({"A", "B"});
    LayOut({400, 300});
    View.ArrangeSubtree(*Node("B"), Tree.Layout);
    LayOut({400, 300});
    EXPECT_EQ(Node("B")->GetXOffset(), 110);
    Tree.Items().Add(nullptr, "C");
    LayOut({400, 300});
    EXPECT_EQ(View.GetTotal().Width, 220);
    Tree.Layout.HorzSpacing = 0;
    LayOut({400, 300});
    EXPECT_EQ(View.GetTotal().Width, 180);
    Node("A")->Delete();
    LayOut({400, 300});
    EXPECT_EQ(View.GetShown().size(), 2u);
}

TEST_F(Chart, AnAreaOfALargeChartFindsFewNodes)
{
    Tree.Items().BeginUpdate();
    std::vector<TKSTreeNode*> Nodes(1, nullptr);
    for (std::size_t Index = 0; Index < 10'000; ++Index)
        Nodes.push_back(Tree.Items().AddChild(Nodes[Index / 5], "x"));
    for (TKSTreeNode* Each : Nodes)
        if (Each)
            Each->Expand(false);
    Tree.Items().EndUpdate();
    LayOut({1400, 900, 100'000, 0});
    std::vector<TKSTreeNode*> Found;
    View.Find({0, 0, 1400, 900}, 0, Found);
    EXPECT_GT(Found.size(), 10u);
    EXPECT_LT(Found.size(), 400u);
}

TEST_F(Chart, AnAreaFindsAllItsNodesWhereOddHalvesHaveAddedUp)
{
    // Each rung of a ladder rounds once more: far down, the two ladders lean over each other.
    Tree.Layout.HorzSpacing = 5;
    Tree.Items().BeginUpdate();
    const auto AddPair = [this](TKSTreeNode* Parent) {
        TKSTreeNode* const Top = Tree.Items().AddChild(Parent, "pair");
        Tree.Items().AddChild(Top, "leaf");
        Tree.Items().AddChild(Top, "leaf");
    };
    TKSTreeNode* ToTheRight = Tree.Items().Add(nullptr, "R");
    TKSTreeNode* ToTheLeft = Tree.Items().Add(nullptr, "L");
    for (int Level = 0; Level < 400; ++Level) {
        AddPair(ToTheRight);
        ToTheRight = Tree.Items().AddChild(ToTheRight, "r");
        TKSTreeNode* const Next = Tree.Items().AddChild(ToTheLeft, "l");
        AddPair(ToTheLeft);
        ToTheLeft = Next;
    }
    for (TKSTreeNode* Each = Tree.Items().GetFirstNode(); Each; Each = Each->GetNext())
        Each->Expand(false);
    Tree.Items().EndUpdate();
    LayOut({400, 300});
    const int Bottom = View.GetTotal().Height + 100;
    const int End = View.GetTotal().Width + 100;
    std::vector<TKSTreeNode*> Found;
    for (int X = 0; X < End; X += 31) {
        const vcl::TRect Area{X, 0, X + 20, Bottom};
        View.Find(Area, 0, Found);
        const std::set<TKSTreeNode*> All(Found.begin(), Found.end());
        for (TKSTreeNode* Each : View.GetShown()) {
            const vcl::TRect& Box = Each->GetRect();
            const bool Touches = Box.Left < Area.Right && Box.Right > Area.Left;
            ASSERT_TRUE(!Touches || All.count(Each) > 0) << X;
        }
    }
}

TEST_F(Chart, AMillionLevelsAndAMillionSiblingsAreLaidOut)
{
    constexpr int Count = 1'000'000;
    Tree.Quiet = true;
    Tree.Items().BeginUpdate();
    TKSTreeNode* Last = nullptr;
    for (int Index = 0; Index < Count; ++Index) {
        Last = Tree.Items().AddChild(Last, "");
        Last->SetHasChildren(true);
    }
    for (TKSTreeNode* Each = Tree.Items().GetFirstNode(); Each; Each = Each->GetNext())
        Each->Expand(false);
    LayOut({400, 300});
    EXPECT_EQ(View.GetMaxLevel(), Count - 1);
    EXPECT_EQ(View.GetTotal(), (vcl::TSize{60, Count * 50 - 20}));
    EXPECT_EQ(Last->GetRect().Top, 20 + (Count - 1) * 50);
    Tree.Items().Clear();
    for (int Index = 0; Index < Count; ++Index)
        Last = Tree.Items().Add(nullptr, "");
    LayOut({400, 300});
    EXPECT_EQ(View.GetTotal(), (vcl::TSize{Count * 80 - 20, 30}));
    EXPECT_EQ(Last->GetRect().Right, 20 + Count * 80 - 20);
}

TEST_F(Chart, HugeMeasuresStayInRange)
{
    Tree.Fill({"A", " A1", " A2", "B"});
    Node("A")->Expand(true);
    for (const int Huge : {INT32_MAX, INT32_MIN, INT32_MIN + 1}) {
        Tree.Layout = {Huge, Huge, Huge, Huge, 20};
        LayOut({400, 300, INT32_MAX, INT32_MIN});
        std::vector<TKSTreeNode*> Found;
        View.Find({0, 0, 400, 300}, 16, Found);
        for (TKSTreeNode* Each : View.GetShown()) {
            Each->ButtonRect();
            Each->DisplayRect(true);
        }
        treeview::HitTest(Tree.Items(), true, {10, 10});
    }
    EXPECT_EQ(View.GetShown().size(), 4u);
}

} // namespace
