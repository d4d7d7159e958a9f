#include "KSTreeView/view/TreeViewFixture.h"
#include "vcl/graphics/Bitmap.h"
#include "vcl/graphics/RecordingPainter.h"

namespace
{

using testing::HasSubstr;
using testing::Not;

class TreePrinting : public TTreeViewTest
{
protected:
    std::string Printed(vcl::TSize Paper, TKSTVPrintMode Mode)
    {
        vcl::TRecordingPainter Painter({0, 0, Paper.Width, Paper.Height});
        vcl::TCanvas Canvas(&Painter);
        EXPECT_EQ(Tree->PrintTo(&Canvas, {0, 0, Paper.Width, Paper.Height}, Mode), 1);
        return Painter.GetText();
    }
};

TEST_F(TreePrinting, OnPaperAChartThatFitsIsCentred)
{
    Show("A\nB\n");
    vcl::TRecordingPainter Painter({0, 0, 400, 300});
    vcl::TCanvas Canvas(&Painter);
    const vcl::TRect Before = Node("A")->GetRect();
    EXPECT_EQ(Tree->PrintTo(&Canvas, {100, 0, 400, 300}), 1);
    EXPECT_THAT(Painter.GetText(), testing::HasSubstr("rect 180,135,240,165"));
    EXPECT_EQ(Node("A")->GetRect(), Before) << "the window's places are as they were";
    EXPECT_FALSE(Tree->IsPrinting());
    EXPECT_EQ(Canvas.GetOrigin(), (vcl::TPoint{0, 0}));
}

TEST_F(TreePrinting, OnPaperAChartThatDoesNotFitIsMadeSmaller)
{
    Show("A\nB\nC\nD\n");
    Tree->SelectNode(Node("A"));
    Tree->SetFocus();
    vcl::TRecordingPainter Painter({0, 0, 170, 300});
    vcl::TCanvas Canvas(&Painter);
    EXPECT_EQ(Tree->PrintTo(&Canvas, {0, 0, 170, 300}), 1);
    // 300 + 40 pixels in 170: half the size.
    EXPECT_THAT(Painter.GetText(), testing::HasSubstr("rect 10,142,40,158 pen=808080 brush=FFFF00"))
        << "paper shows no focus";
    EXPECT_THAT(Painter.GetText(), testing::HasSubstr("rect 130,"));
}

TEST_F(TreePrinting, OnPagesAChartIsCutRowByRow)
{
    Show("A\n B\n  C\nD\nE\nF\n");
    Tree->FullExpand();
    EXPECT_EQ(Tree->GetPrintPageCount({200, 100}), 4);
    std::string Pages[4];
    for (int Page = 0; Page < 4; ++Page) {
        vcl::TRecordingPainter Painter({0, 0, 200, 100});
        vcl::TCanvas Canvas(&Painter);
        EXPECT_EQ(Tree->PrintTo(&Canvas, {0, 0, 200, 100}, TKSTVPrintMode::pmPaged, Page), 4);
        Pages[Page] = Painter.GetText();
    }
    EXPECT_THAT(Pages[0], testing::HasSubstr("rect 0,0,60,30"));
    EXPECT_THAT(Pages[1], testing::HasSubstr("rect 40,0,100,30")) << "the fourth, 240 from the left";
    EXPECT_THAT(Pages[2], testing::HasSubstr("rect 0,0,60,30")) << "the third row";
    EXPECT_THAT(Pages[3], testing::HasSubstr("rect 40,-100,100,-70")) << "the same, a page higher";
    vcl::TRecordingPainter Painter({0, 0, 200, 100});
    vcl::TCanvas Canvas(&Painter);
    EXPECT_EQ(Tree->PrintTo(&Canvas, {0, 0, 200, 100}, TKSTVPrintMode::pmPaged, 4), 4);
    EXPECT_EQ(Tree->PrintTo(&Canvas, {0, 0, 0, 100}), 0);
    EXPECT_EQ(Tree->PrintTo(nullptr, {0, 0, 10, 100}), 0);
    EXPECT_EQ(Painter.GetText(), "");
}

TEST_F(TreePrinting, WhatFitsExactlyWithItsSpacingIsNotMadeSmaller)
{
    Show("A\n");
    Tree->SetHorzSpacing(8);
    Tree->SetVertSpacing(32);
    const auto Scaled = [&](vcl::TSize Paper) { return Printed(Paper, TKSTVPrintMode::pmScaled); };
    EXPECT_THAT(Scaled({76, 94}), HasSubstr("rect 8,32,68,62 "));
    EXPECT_THAT(Scaled({75, 94}), Not(HasSubstr("rect 8,32,68,62 ")));
    EXPECT_THAT(Scaled({76, 93}), Not(HasSubstr("rect 8,32,68,62 ")));
    EXPECT_THAT(Scaled({38, 93}), HasSubstr("rect 4,39,34,54 ")) << "half of 76";
    EXPECT_THAT(Scaled({80, 47}), HasSubstr("rect 25,16,55,31 ")) << "half of 94";
}

TEST_F(TreePrinting, APageCentresOnlyWhatFitsWithItsSpacing)
{
    Show("A\n");
    Tree->SetHorzSpacing(8);
    Tree->SetVertSpacing(32);
    const auto Paged = [&](vcl::TSize Paper) { return Printed(Paper, TKSTVPrintMode::pmPaged); };
    EXPECT_THAT(Paged({76, 94}), HasSubstr("rect 8,32,68,62 "));
    EXPECT_THAT(Paged({76, 93}), HasSubstr("rect 8,0,68,30 "));
    EXPECT_THAT(Paged({75, 94}), HasSubstr("rect 0,32,60,62 "));
    EXPECT_THAT(Paged({75, 93}), HasSubstr("rect 0,0,60,30 "));
}

TEST_F(TreePrinting, PagesAreCountedWithTheSpacingOfTheirDirection)
{
    Show("A\n A1\nB\n");
    Tree->SetHorzSpacing(-20);
    Tree->SetVertSpacing(8);
    // 60 and 60 pixels that overlap by 20; beside them there may be 20 less than nothing.
    EXPECT_EQ(Tree->GetPrintPageCount({60, 46}), 1);
    EXPECT_EQ(Tree->GetPrintPageCount({59, 46}), 2);
    Tree->SetHorzSpacing(8);
    Tree->SetVertSpacing(-5);
    Node("A")->Expand(false);
    EXPECT_EQ(Tree->GetPrintPageCount({144, 45}), 1);
    EXPECT_EQ(Tree->GetPrintPageCount({144, 44}), 2);
}

TEST_F(TreePrinting, ATreeThatWasNeverShownPrints)
{
    Tree->GetItems()->Add(nullptr, "A");
    vcl::TBitmap Bitmap;
    Bitmap.SetWidth(100);
    Bitmap.SetHeight(70);
    Tree->PrintTo(Bitmap.GetCanvas(), {0, 0, 100, 70});
    EXPECT_EQ(Bitmap.GetCanvas()->GetPixel(50, 23), vcl::clYellow);
    EXPECT_FALSE(Tree->HandleAllocated());
}

TEST_F(TreePrinting, ADrawEventOnPaperFindsThePapersCanvas)
{
    Show("A\n");
    Tree->SetDefaultDrawing(false);
    vcl::TRecordingPainter Painter({0, 0, 400, 300});
    vcl::TCanvas Canvas(&Painter);
    Tree->OnDrawNode = [&](vcl::TObject*, TKSTreeNode*, vcl::TRect) {
        EXPECT_EQ(Tree->GetCanvas(), &Canvas);
    };
    Tree->PrintTo(&Canvas, {0, 0, 400, 300});
    EXPECT_NE(Tree->GetCanvas(), &Canvas);
}

TEST_F(TreePrinting, AnEditedNodeShowsItsTextOnPaper)
{
    Show("A\n");
    Tree->EditNode(Node("A"));
    vcl::TRecordingPainter Painter({0, 0, 400, 300});
    vcl::TCanvas Canvas(&Painter);
    Tree->PrintTo(&Canvas, {0, 0, 400, 300});
    EXPECT_TRUE(Tree->IsEditing());
    EXPECT_THAT(Painter.GetText(), testing::HasSubstr("\"A\""));
}

TEST_F(TreePrinting, AWindowPaintedMeanwhileIsPaintedAfterwardsAndNotOnPaper)
{
    Show("A\nB\n");
    int Asked = 0;
    Tree->OnGetImageIndex = [&](vcl::TObject*, TKSTreeNode*) {
        if (++Asked == 1)
            Tree->Refresh();
    };
    const vcl::TRect Before = Node("B")->GetRect();
    vcl::TRecordingPainter Painter({0, 0, 400, 300});
    vcl::TCanvas Canvas(&Painter);
    Tree->PrintTo(&Canvas, {0, 0, 400, 300});
    EXPECT_EQ(Asked, 2) << "A and B, once each";
    EXPECT_THAT(Painter.GetText(), testing::HasSubstr("rect 130,135,190,165"));
    EXPECT_THAT(Painter.GetText(), testing::HasSubstr("rect 210,135,270,165"));
    const int Paintings = Tree->Paintings;
    Windows().ProcessMessages();
    EXPECT_EQ(Tree->Paintings, Paintings + 1);
    EXPECT_EQ(Node("B")->GetRect(), Before);
}

TEST_F(TreePrinting, WithSpacingBelowZeroWhatFitsIsNotScaled)
{
    Show("A\n");
    Tree->SetHorzSpacing(-50);
    vcl::TRecordingPainter Painter({0, 0, 100, 100});
    vcl::TCanvas Canvas(&Painter);
    EXPECT_EQ(Tree->PrintTo(&Canvas, {0, 0, 100, 100}), 1);
    EXPECT_THAT(Painter.GetText(), testing::HasSubstr("rect 20,35,80,65"));
}

TEST_F(TreePrinting, ASmallerChartStaysInsideTheCallersClipAndLeavesItInForce)
{
    Show("A\nB\nC\nD\n");
    vcl::TBitmap Bitmap;
    Bitmap.SetWidth(170);
    Bitmap.SetHeight(300);
    vcl::TCanvas& Canvas = *Bitmap.GetCanvas();
    Canvas.IntersectClipRect({0, 0, 30, 300});
    Tree->PrintTo(&Canvas, {0, 0, 170, 300});
    EXPECT_EQ(Canvas.GetPixel(20, 145), vcl::clYellow);
    Canvas.GetBrush()->SetColor(vcl::clRed);
    Canvas.FillRect({0, 0, 170, 300});
    Canvas.SelectClipRegion(nullptr);
    EXPECT_EQ(Canvas.GetPixel(20, 145), vcl::clRed);
    EXPECT_EQ(Canvas.GetPixel(60, 145), vcl::clWhite) << "outside the clip";
}

TEST_F(TreePrinting, ExtremeSpacingsPrintWithoutOverflow)
{
    Show("A\nB\n");
    Tree->SetHorzSpacing(INT32_MAX);
    Tree->SetVertSpacing(INT32_MAX);
    vcl::TRecordingPainter Painter({0, 0, 100, 100});
    vcl::TCanvas Canvas(&Painter);
    EXPECT_EQ(Tree->PrintTo(&Canvas, {0, 0, 100, 100}), 1);
    EXPECT_GT(Tree->GetPrintPageCount({1, 1}), 0);
    Tree->ScrollInView(Node("B"));
}

} // namespace
