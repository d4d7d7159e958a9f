#include "KSTreeView/view/TreeViewFixture.h"

#include "support/Expected.h"
#include "vcl/graphics/Bitmap.h"
#include "vcl/graphics/ImageList.h"
#include "vcl/graphics/RecordingPainter.h"

using testing::ElementsAre;
using vcl::tests::MatchesExpected;

namespace
{

class TreePainting : public TTreeViewTest
{
protected:
    /// What a whole painting does, one operation a line.
    std::string Painted()
    {
        vcl::TRecordingPainter Painter({0, 0, 300, 200});
        vcl::TCanvas Canvas(&Painter);
        Tree->PaintTo(Canvas, 0, 0);
        return Painter.GetText();
    }
    /// What one node's drawing does.
    std::string Drawn(TKSTreeNode* Drawn)
    {
        vcl::TRecordingPainter Painter({0, 0, 300, 200});
        vcl::TCanvas Canvas(&Painter);
        Tree->GetCanvas()->SetPainter(&Painter);
        Drawn->Draw();
        return Painter.GetText();
    }
    std::vector<std::string> LinesWith(const std::string& Word)
    {
        std::vector<std::string> Result;
        std::istringstream Text(Painted());
        for (std::string Line; std::getline(Text, Line);)
            if (Line.find(Word) != std::string::npos)
                Result.push_back(Line);
        return Result;
    }
};

TEST_F(TreePainting, AnEmptyTreePaintsItsBackgroundAlone)
{
    Show("");
    EXPECT_EQ(Painted(), "fill 0,0,300,200 brush=FFFFFF\n");
}

TEST_F(TreePainting, OneNodeIsBoxShadowTextStubAndRootLine)
{
    Show("A\n");
    EXPECT_TRUE(MatchesExpected("KSTreeView/one-node.ops", Painted()));
}

TEST_F(TreePainting, AnExpandedNodeIsJoinedToItsChildren)
{
    Show("Company\n Sales\n  North\n Works\n");
    Node("Company")->Expand(false);
    EXPECT_TRUE(MatchesExpected("KSTreeView/expanded.ops", Painted()));
}

TEST_F(TreePainting, ASimpleStyleHasNoShadows)
{
    Show("A\n B\n");
    Tree->SetNodeStyle(TKSTVNodeStyle::nsSimple);
    EXPECT_THAT(LinesWith("pen=000000"), testing::IsEmpty());
    Tree->SetNodeStyle(TKSTVNodeStyle::nsShadowed);
    EXPECT_THAT(LinesWith("pen=000000"), testing::SizeIs(testing::Ge(3)));
}

TEST_F(TreePainting, WithoutButtonsLinesBeginAtTheBox)
{
    Show("A\n B\n C\n");
    Node("A")->Expand(false);
    Tree->SetShowButtons(false);
    const vcl::TRect Box = Node("A")->GetRect();
    const int Center = Node("A")->GetCenter();
    EXPECT_THAT(LinesWith("line " + std::to_string(Center) + "," + std::to_string(Box.Bottom) + " "),
                testing::SizeIs(1));
    Tree->SetShowButtons(true);
    EXPECT_THAT(LinesWith("line " + std::to_string(Center) + "," + std::to_string(Box.Bottom + 5) + " "),
                testing::SizeIs(1));
}

TEST_F(TreePainting, LinesAndRootLinesCanBeLeftOut)
{
    Show("A\nB\n");
    Tree->SetLineStyle(vcl::TPenStyle::psDot);
    EXPECT_THAT(LinesWith("pen=dot:0000FF"), testing::SizeIs(3)) << "two stubs and the root line";
    Tree->SetShowRoot(false);
    EXPECT_THAT(LinesWith("pen=dot:0000FF"), testing::IsEmpty());
    Tree->SetShowRoot(true);
    Tree->SetShowLines(false);
    EXPECT_THAT(LinesWith("0000FF"), testing::IsEmpty());
}

TEST_F(TreePainting, TheSelectedNodeIsColouredByFocus)
{
    Show("A\nB\n");
    Tree->SelectNode(Node("A"));
    Tree->SetFocus();
    EXPECT_THAT(LinesWith("brush=FF0000"), testing::SizeIs(1)) << "focused";
    Other->SetFocus();
    EXPECT_THAT(LinesWith("brush=FFFF00"), testing::SizeIs(2)) << "hidden";
    Tree->SetHideSelection(false);
    EXPECT_THAT(LinesWith("brush=C0C0C0"), testing::SizeIs(1));
    Tree->SetSelectedNodeColor(vcl::clGreen);
    Tree->SetFocus();
    EXPECT_THAT(LinesWith("brush=008000"), testing::SizeIs(1));
    Node("A")->EditText();
    EXPECT_FALSE(Tree->Focused());
    EXPECT_THAT(LinesWith("brush=008000"), testing::SizeIs(1)) << "the edited node stays so";
    EXPECT_THAT(LinesWith("\"A\""), testing::IsEmpty()) << "and shows no text of its own";
}

TEST_F(TreePainting, ANodesOwnColourCountsOnceItIsSet)
{
    Show("A\nB\n");
    Node("A")->SetColor(vcl::clAqua);
    EXPECT_THAT(LinesWith("brush=00FFFF"), testing::SizeIs(1));
    Node("A")->SetUseTreeColor(true);
    EXPECT_THAT(LinesWith("brush=00FFFF"), testing::IsEmpty());
}

TEST_F(TreePainting, CaptionsReadFromRightToLeftWhenAsked)
{
    Show("A\n");
    EXPECT_THAT(LinesWith(" rtl"), testing::IsEmpty());
    Tree->SetRightToLeft(true);
    EXPECT_THAT(LinesWith(" rtl"), testing::SizeIs(1));
}

TEST_F(TreePainting, ImagesStandInTheLowerCorner)
{
    Show("A\n");
    auto* const Images = vcl::New<vcl::TImageList>(Form);
    vcl::TBitmap Bitmap;
    Bitmap.SetWidth(16);
    Bitmap.SetHeight(16);
    Images->Add(&Bitmap, nullptr);
    Tree->SetImages(Images);
    EXPECT_THAT(LinesWith("copy "), testing::IsEmpty()) << "the node has none";
    Node("A")->SetImageIndex(0);
    const vcl::TRect Box = Node("A")->GetRect();
    const auto Place = [](int X, int Y) { return std::to_string(X) + "," + std::to_string(Y) + ","; };
    EXPECT_THAT(LinesWith(Place(Box.Left + 5, Box.Bottom - 21)), testing::SizeIs(1));
    Tree->SetNodeImageSide(TKSTVNodeImageSide::nisRight);
    EXPECT_THAT(LinesWith(Place(Box.Right - 21, Box.Bottom - 21)), testing::SizeIs(1));
    const int Before = Tree->Paintings;
    Images->Clear();
    Windows().ProcessMessages();
    EXPECT_GT(Tree->Paintings, Before) << "a change of the list repaints";
    delete Images;
    EXPECT_EQ(Tree->GetImages(), nullptr);
}

TEST_F(TreePainting, TheImageEventComesForEveryVisibleNodeAtEachPainting)
{
    Show("A\n A1\nB\nC\nD\nE\nF\nG\n");
    Tree->OnGetImageIndex = [this](vcl::TObject* Sender, TKSTreeNode* About) {
        EXPECT_EQ(Sender, Tree);
        Log.push_back(About->GetText());
    };
    Tree->Refresh();
    EXPECT_THAT(Log, ElementsAre("A", "B", "C", "D", "E", "F", "G")) << "also those outside the window";
}

TEST_F(TreePainting, TheDrawEventReplacesBoxImageAndText)
{
    Show("A\n A1\n");
    Tree->OnDrawNode = [this](vcl::TObject*, TKSTreeNode* About, vcl::TRect Rect) {
        EXPECT_EQ(Rect, About->GetRect());
        Log.push_back(About->GetText());
    };
    Tree->Refresh();
    EXPECT_THAT(Log, testing::IsEmpty()) << "default drawing is on";
    Tree->SetDefaultDrawing(false);
    EXPECT_THAT(Log, ElementsAre("A"));
    EXPECT_THAT(LinesWith("\"A\""), testing::IsEmpty());
    EXPECT_THAT(LinesWith("rect "), testing::SizeIs(1)) << "the button is still drawn";
}

TEST_F(TreePainting, HandlersMayChangeTheTreeWhileItIsPainted)
{
    for (const int What : {0, 1, 2, 3}) {
        Show("A\nB\nC\n");
        bool Done = false;
        Tree->OnGetImageIndex = [&](vcl::TObject*, TKSTreeNode* About) {
            if (std::exchange(Done, true))
                return;
            if (What == 0)
                About->Delete();
            else if (What == 1)
                Tree->GetItems()->Clear();
            else if (What == 2)
                Node("C")->Delete();
            else
                Tree->GetItems()->Insert(Node("C"), "new");
        };
        Tree->Refresh();
        EXPECT_TRUE(Done);
        Tree->OnGetImageIndex = nullptr;
    }
}

TEST_F(TreePainting, APaintingWithAClipDrawsTheSamePixels)
{
    Show("A\n B\n  C\n  D\n E\nF\nG\nH\nI\n");
    Tree->FullExpand();
    vcl::TBitmap Whole;
    vcl::TBitmap Parts;
    for (vcl::TBitmap* Bitmap : {&Whole, &Parts}) {
        Bitmap->SetWidth(300);
        Bitmap->SetHeight(200);
    }
    Tree->PaintTo(*Whole.GetCanvas(), 0, 0);
    for (int Y = 0; Y < 200; Y += 7)
        for (int X = 0; X < 300; X += 11) {
            Parts.GetCanvas()->SelectClipRegion(nullptr);
            Parts.GetCanvas()->IntersectClipRect(vcl::Bounds(X, Y, 11, 7));
            Tree->PaintTo(*Parts.GetCanvas(), 0, 0);
        }
    for (int Y = 0; Y < 200; ++Y)
        for (int X = 0; X < 300; ++X)
            ASSERT_EQ(Parts.GetCanvas()->GetPixel(X, Y), Whole.GetCanvas()->GetPixel(X, Y)) << X << "," << Y;
}

TEST_F(TreePainting, ASetterRepaintsAtOnceAndAnUnchangedValueDoesNothing)
{
    Show("A\n");
    const auto Paintings = [this](auto&& Action) {
        const int Before = Tree->Paintings;
        Action();
        return Tree->Paintings - Before;
    };
    EXPECT_EQ(Paintings([this] { Tree->SetNodeWidth(60); }), 0);
    EXPECT_GE(Paintings([this] { Tree->SetNodeWidth(61); }), 1);
    EXPECT_GE(Paintings([this] { Tree->SetLineColor(vcl::clGreen); }), 1);
    EXPECT_GE(Paintings([this] { Tree->SetButtonSize(7); }), 1);
    EXPECT_EQ(Paintings([this] { Tree->SetButtonSize(7); }), 0);
    Tree->SetButtonSize(1);
    EXPECT_EQ(Tree->GetButtonSize(), 2);
    Tree->SetButtonSize(50);
    EXPECT_EQ(Tree->GetButtonSize(), 20);
    EXPECT_EQ(Paintings([this] { Tree->SetButtonSize(99); }), 0) << "clamped to what it is";
}

TEST_F(TreePainting, ANodesOwnChangeDrawsItAloneWithoutALayout)
{
    Show("A\nB\n");
    const int Before = Tree->Paintings;
    Node("A")->SetText("Changed");
    EXPECT_EQ(Tree->Paintings, Before);
    Windows().ProcessMessages();
    EXPECT_EQ(Tree->Paintings, Before);
}

TEST_F(TreePainting, FillingAShownTreeByStreamPaintsOnce)
{
    Show("A\nB\nC\nD\n");
    vcl::TMemoryStream Stream;
    Tree->GetItems()->WriteData(Stream);
    Stream.SetPosition(0);
    const int Before = Tree->Paintings;
    Tree->GetItems()->ReadData(Stream);
    EXPECT_EQ(Tree->Paintings, Before + 1);
}

TEST_F(TreePainting, OnPaperAChartThatFitsIsCentred)
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

TEST_F(TreePainting, OnPaperAChartThatDoesNotFitIsMadeSmaller)
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

TEST_F(TreePainting, OnPagesAChartIsCutRowByRow)
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

TEST_F(TreePainting, ATreeThatWasNeverShownPrints)
{
    Tree->GetItems()->Add(nullptr, "A");
    vcl::TBitmap Bitmap;
    Bitmap.SetWidth(100);
    Bitmap.SetHeight(70);
    Tree->PrintTo(Bitmap.GetCanvas(), {0, 0, 100, 70});
    EXPECT_EQ(Bitmap.GetCanvas()->GetPixel(50, 23), vcl::clYellow);
    EXPECT_FALSE(Tree->HandleAllocated());
}

TEST_F(TreePainting, ADrawEventOnPaperFindsThePapersCanvas)
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

} // namespace
