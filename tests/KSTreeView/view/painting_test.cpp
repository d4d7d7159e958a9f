#include "KSTreeView/view/TreePaintingFixture.h"
#include "support/Expected.h"

using testing::ElementsAre;
using vcl::tests::MatchesExpected;

namespace
{

class TreePainting : public TTreePaintingTest
{
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

TEST_F(TreePainting, FillingAShownTreeByStreamPaintsTheEmptyChartAndThenAllNodesOnce)
{
    Show("A\nB\nC\nD\n");
    vcl::TMemoryStream Stream;
    Tree->GetItems()->WriteData(Stream);
    Stream.SetPosition(0);
    const int Before = Tree->Paintings;
    Tree->OnChange = [](vcl::TObject*, TKSTreeNode*) {}; // reading raises no event of the selection
    Tree->GetItems()->ReadData(Stream);
    EXPECT_EQ(Tree->Paintings, Before + 2);
}

} // namespace
