// The parts of a node's drawing, one at a time.

#include "KSTreeView/view/TreePaintingFixture.h"

namespace
{

using testing::IsEmpty;
using testing::SizeIs;

class NodeDrawing : public TTreePaintingTest
{
protected:
    static std::string Corner(int X, int Y) { return std::to_string(X) + "," + std::to_string(Y); }
    /// How the frame of a node's button is written down.
    std::string ButtonFrame(const char* Text)
    {
        const vcl::TRect Button = Node(Text)->ButtonRect();
        return "rect " + Corner(Button.Left, Button.Top) + "," + Corner(Button.Right, Button.Bottom) + " ";
    }
};

TEST_F(NodeDrawing, TheRootLineJoinsTheMiddlesOfTheFirstAndTheLastTopLevelNode)
{
    Show("A\nB\n");
    EXPECT_THAT(LinesWith("line 110,75 190,75 pen=0000FF"), SizeIs(1));
    Show("A\nB\n B1\n B2\n");
    Tree->FullExpand();
    // 60 and 140 pixels, 20 between them; the root line reaches B's middle, not the chart's edge.
    EXPECT_THAT(LinesWith("line 70,50 190,50 pen=0000FF"), SizeIs(1));
}

TEST_F(NodeDrawing, WithoutRootLinesChildrenKeepTheirStubs)
{
    Show("A\n B\n");
    Tree->FullExpand();
    EXPECT_THAT(LinesWith("line 150,60 150,49 pen=0000FF"), SizeIs(1));
    Tree->SetShowRoot(false);
    EXPECT_THAT(LinesWith("line 150,60 150,49 "), IsEmpty());
    EXPECT_THAT(LinesWith("line 150,50 "), IsEmpty());
    EXPECT_THAT(LinesWith("line 150,110 150,99 pen=0000FF"), SizeIs(1));
}

TEST_F(NodeDrawing, OnlyTheLinesTakeTheLineStyle)
{
    Show("A\n B\n  C\n");
    Node("A")->Expand(false);
    Tree->SetLineStyle(vcl::TPenStyle::psDot);
    EXPECT_THAT(LinesWith("dot:0000FF"), SizeIs(5)) << "two stubs, two to the child, the root line";
    EXPECT_THAT(LinesWith("dot:808080"), IsEmpty()) << "boxes and buttons";
    EXPECT_THAT(LinesWith("dot:000000"), IsEmpty()) << "shadows";
    EXPECT_THAT(LinesWith("pen=808080"), SizeIs(7)) << "two boxes, two buttons, a minus and a plus";
}

TEST_F(NodeDrawing, WithoutADrawEventTheNodesAreDrawnWhateverDefaultDrawingSays)
{
    Show("A\n");
    const std::string Before = Painted();
    Tree->SetDefaultDrawing(false);
    EXPECT_EQ(Painted(), Before);
    EXPECT_THAT(LinesWith("rect "), SizeIs(1));
}

TEST_F(NodeDrawing, TheDrawEventIsSentByTheViewBeforeButtonAndLines)
{
    Show("A\n A1\n");
    Tree->SetDefaultDrawing(false);
    Tree->OnDrawNode = [this](vcl::TObject* Sender, TKSTreeNode* About, vcl::TRect Rect) {
        EXPECT_EQ(Sender, Tree);
        EXPECT_EQ(About, Node("A"));
        Tree->GetCanvas()->GetBrush()->SetColor(vcl::clAqua);
        Tree->GetCanvas()->FillRect(Rect);
    };
    const std::vector<std::string> Lines = LinesOf(Painted());
    ASSERT_THAT(Lines, SizeIs(testing::Ge(3)));
    EXPECT_EQ(Lines[1], "fill 120,85,180,115 brush=00FFFF");
    EXPECT_EQ(Lines[2], "rect 145,110,154,119 pen=808080 brush=FFFFFF");
    EXPECT_THAT(LinesWith("line 150,85 150,74 pen=0000FF"), SizeIs(1));
}

TEST_F(NodeDrawing, CaptionsHaveTheViewsFont)
{
    Show("A\n");
    Tree->GetFont()->SetHeight(-20);
    Tree->GetFont()->SetColor(vcl::clGreen);
    // 12 pixels wide in 50.
    EXPECT_THAT(LinesWith("text 144,90 \"A\" font=\"Arial\" -20 color=008000 back=FFFF00"), SizeIs(1));
}

TEST_F(NodeDrawing, ALongCaptionEndsInDots)
{
    Show("A caption much too long for its box\n");
    EXPECT_THAT(LinesWith("\"A ca...\""), SizeIs(1)) << "seven letters of 7 pixels fit in 50";
}

TEST_F(NodeDrawing, AnAmpersandUnderlinesWhatFollows)
{
    Show("A&B\n");
    EXPECT_THAT(LinesWith("\"AB\""), SizeIs(1));
    EXPECT_THAT(LinesWith("fill 150,"), SizeIs(1)) << "below B, the second of two times 7 pixels";
}

TEST_F(NodeDrawing, ACaptionMayHaveSeveralLines)
{
    Show("A\n");
    Tree->SetNodeHeight(60);
    Node("A")->SetText("one\ntwo");
    EXPECT_THAT(LinesWith("text 139,75 \"one\""), SizeIs(1));
    EXPECT_THAT(LinesWith("text 139,87 \"two\""), SizeIs(1));
}

TEST_F(NodeDrawing, AnImageStandsFivePixelsFromTheEdgesOfItsCorner)
{
    Show("A\n");
    Tree->SetImages(NewImages(24, 12));
    Node("A")->SetImageIndex(0);
    const vcl::TRect Box = Node("A")->GetRect();
    const auto CopyAt = [](const vcl::TRect& Place) {
        return "maskedcopy " + Corner(Place.Left, Place.Top) + "," + Corner(Place.Right, Place.Bottom) + " ";
    };
    EXPECT_THAT(LinesWith(CopyAt(vcl::Bounds(Box.Left + 5, Box.Bottom - 17, 24, 12))), SizeIs(1));
    Tree->SetNodeImageSide(TKSTVNodeImageSide::nisRight);
    EXPECT_THAT(LinesWith(CopyAt(vcl::Bounds(Box.Right - 29, Box.Bottom - 17, 24, 12))), SizeIs(1));
    EXPECT_THAT(LinesWith("copy "), SizeIs(1));
}

TEST_F(NodeDrawing, ADisabledViewDiffersInItsImagesOnly)
{
    Show("A\n");
    Tree->SetImages(NewImages(24, 12));
    Node("A")->SetImageIndex(0);
    const auto Parted = [&] {
        std::vector<std::string> Images = LinesWith("copy ");
        std::vector<std::string> Others = LinesOf(Painted());
        std::erase_if(Others,
                      [](const std::string& Line) { return Line.find("copy ") != std::string::npos; });
        return std::pair(Images, Others);
    };
    const auto Enabled = Parted();
    Tree->SetEnabled(false);
    const auto Disabled = Parted();
    EXPECT_THAT(Enabled.first, SizeIs(1));
    EXPECT_THAT(Disabled.first, SizeIs(2)) << "light and shadow";
    EXPECT_THAT(Disabled.first, testing::Not(testing::Contains(Enabled.first[0])));
    EXPECT_EQ(Disabled.second, Enabled.second);
}

TEST_F(NodeDrawing, ButtonsCanBeLeftOut)
{
    Show("A\n B\n");
    EXPECT_THAT(LinesWith(ButtonFrame("A")), SizeIs(1));
    Tree->SetShowButtons(false);
    EXPECT_THAT(LinesWith("rect "), SizeIs(1)) << "the box";
    EXPECT_THAT(LinesWith("pen=808080"), SizeIs(1)) << "no plus either";
}

TEST_F(NodeDrawing, AnExpandedNodeWithoutAChildHasAMinusAndNoLineBelow)
{
    Show("A\n");
    Node("A")->SetHasChildren(true);
    Node("A")->Expand(false);
    ASSERT_TRUE(Node("A")->GetExpanded());
    EXPECT_THAT(LinesWith(ButtonFrame("A")), SizeIs(1));
    EXPECT_THAT(LinesWith("line 147,114 152,114 pen=808080"), SizeIs(1));
    EXPECT_THAT(LinesWith("pen=808080"), SizeIs(3)) << "box, button and minus";
    EXPECT_THAT(LinesWith("pen=0000FF"), SizeIs(2)) << "stub and root line";
}

TEST_F(NodeDrawing, AHiddenSelectionLeavesANodeItsColour)
{
    Show("A\nB\n");
    Node("A")->SetColor(vcl::clAqua);
    Tree->SelectNode(Node("A"));
    EXPECT_THAT(LinesWith("brush=00FFFF"), SizeIs(1));
    Tree->SetHiddenSelectedNodeColor(vcl::clLime);
    EXPECT_THAT(LinesWith("brush=00FFFF"), SizeIs(1)) << "the selection is still hidden";
    Tree->SetHideSelection(false);
    EXPECT_THAT(LinesWith("brush=00FF00"), SizeIs(1));
    EXPECT_THAT(LinesWith("brush=00FFFF"), IsEmpty());
    Tree->SetFocus();
    EXPECT_THAT(LinesWith("brush=FF0000"), SizeIs(1));
    EXPECT_THAT(LinesWith("brush=00FF00"), IsEmpty());
}

} // namespace
