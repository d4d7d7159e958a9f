// Odd sizes, unequal spacings and negative places: what a chart of even, equal measures cannot tell apart.

#include "KSTreeView/layout/ChartFixture.h"

namespace
{

class ChartHalves : public TChartTest
{
};

TEST_F(ChartHalves, EachDirectionHasItsOwnSpacingAndScrollPosition)
{
    Tree.Layout.HorzSpacing = 7;
    Tree.Layout.VertSpacing = 11;
    Tree.Fill({"A"});
    LayOut({50, 20, 3, 4});
    EXPECT_EQ(View.GetOrigin(), (vcl::TPoint{4, 7}));
    EXPECT_EQ(Rect("A"), (vcl::TRect{4, 7, 64, 37}));
    LayOut({74, 51, 3, 4});
    EXPECT_EQ(View.GetOrigin(), (vcl::TPoint{7, 7})) << "60 and 14 fit across, 30 and 22 not down";
    LayOut({73, 52, 3, 4});
    EXPECT_EQ(View.GetOrigin(), (vcl::TPoint{4, 11}));
}

TEST_F(ChartHalves, AChartIsCentredFromTheWidthThatHoldsItAndTheSpacing)
{
    Tree.Fill({"A", "B", "C"});
    LayOut({260, 70, 7, 3});
    EXPECT_EQ(View.GetOrigin(), (vcl::TPoint{20, 20}));
    LayOut({259, 69, 7, 3});
    EXPECT_EQ(View.GetOrigin(), (vcl::TPoint{13, 17}));
    LayOut({301, 101, 7, 3});
    EXPECT_EQ(View.GetOrigin(), (vcl::TPoint{40, 35}));
}

TEST_F(ChartHalves, PaperHasTheSameLimits)
{
    Tree.Fill({"A", "B", "C"});
    LayOut({260, 70, 7, 3, true});
    EXPECT_EQ(View.GetOrigin(), (vcl::TPoint{20, 20}));
    LayOut({259, 69, 7, 3, true});
    EXPECT_EQ(View.GetOrigin(), (vcl::TPoint{0, 0}));
}

TEST_F(ChartHalves, ARoomSmallerThanAChartThatCountsAsFittingGivesHalfOfWhatHangsOut)
{
    Tree.Layout.HorzSpacing = -10;
    Tree.Layout.VertSpacing = -5;
    Tree.Fill({"A"});
    LayOut({45, 25});
    EXPECT_EQ(View.GetOrigin(), (vcl::TPoint{-7, -2})) << "-15 and -5, halved toward zero";
}

TEST_F(ChartHalves, AnOddExtentCountsInTheTopRowToo)
{
    Tree.Layout.NodeWidth = 10;
    Tree.Layout.HorzSpacing = 5;
    Tree.Fill({"A", " A1", " A2", "B"});
    Node("A")->Expand(false);
    LayOut({101, 101});
    EXPECT_EQ(Node("A")->GetRightExtent() - Node("A")->GetLeftExtent(), 25);
    EXPECT_EQ(Node("A")->GetXOffset(), 12);
    EXPECT_EQ(Node("B")->GetXOffset(), 35) << "5 after 25 and 5";
    EXPECT_EQ(View.GetTotal(), (vcl::TSize{40, 80}));
    Node("B")->Delete();
    LayOut({101, 101});
    EXPECT_EQ(View.GetTotal().Width, 24) << "twice half of 25";
}

TEST_F(ChartHalves, NegativeSumsRoundTowardZero)
{
    Tree.Layout.NodeWidth = 10;
    Tree.Layout.HorzSpacing = -31;
    Tree.Fill({"A", " A1", " A2"});
    Node("A")->Expand(false);
    LayOut({200, 100});
    EXPECT_EQ(Node("A1")->GetXOffset(), 10) << "5 and half of 11";
    EXPECT_EQ(Node("A2")->GetXOffset(), -11);
    EXPECT_EQ(Node("A")->GetLeftExtent(), 5);
    EXPECT_EQ(Node("A")->GetRightExtent(), -6);
    EXPECT_EQ(Node("A")->GetXOffset(), -5) << "half of -11";
    EXPECT_EQ(View.GetTotal().Width, -10);
}

TEST_F(ChartHalves, AnOddBoxBeginsHalfItsWidthRoundedDownLeftOfItsCentre)
{
    Tree.Layout.NodeWidth = 61;
    Tree.Fill({"A", "B"});
    LayOut({400, 300});
    EXPECT_EQ(Rect("A"), (vcl::TRect{130, 135, 191, 165}));
    EXPECT_EQ(Node("A")->GetCenter(), 160);
    EXPECT_EQ(Node("A")->ButtonRect(), (vcl::TRect{155, 160, 164, 169}));
    EXPECT_EQ(Rect("B"), (vcl::TRect{210, 135, 271, 165}));
}

TEST_F(ChartHalves, ACentreLeftOfTheWindowRoundsTowardZero)
{
    Tree.Layout.NodeWidth = 61;
    Tree.Fill({"A"});
    LayOut({50, 300, 80, 0});
    EXPECT_EQ(Rect("A").Left, -60);
    EXPECT_EQ(Rect("A").Right, 1);
    EXPECT_EQ(Node("A")->GetCenter(), -29);
    EXPECT_EQ(Node("A")->ButtonRect().Left, -34);
    EXPECT_EQ(Node("A")->ButtonRect().Right, -25);
}

TEST_F(ChartHalves, AnExpandedNodeWithoutAChildIsLaidOutAsALeaf)
{
    Tree.Fill({"A"});
    Node("A")->SetHasChildren(true);
    Node("A")->Expand(false);
    ASSERT_TRUE(Node("A")->GetExpanded());
    LayOut({200, 100});
    EXPECT_EQ(Node("A")->GetLeftExtent(), -30);
    EXPECT_EQ(Node("A")->GetRightExtent(), 30);
    EXPECT_EQ(Rect("A"), (vcl::TRect{70, 35, 130, 65}));
    EXPECT_EQ(View.GetTotal(), (vcl::TSize{60, 30}));
}

} // namespace
