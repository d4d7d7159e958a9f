// A painting in which no measure, colour, font or style is the initial one, and no two are alike.

#include "KSTreeView/view/TreePaintingFixture.h"
#include "support/Expected.h"

namespace
{

class OddPainting : public TTreePaintingTest
{
protected:
    void SetOddMeasures()
    {
        Tree->SetNodeWidth(61);
        Tree->SetNodeHeight(33);
        Tree->SetButtonSize(8);
        Tree->SetHorzSpacing(15);
        Tree->SetVertSpacing(31);
    }
    void SetOddColours()
    {
        Tree->SetColor(vcl::TColor{0x101112});
        Tree->SetNodeColor(vcl::TColor{0x202122});
        Tree->SetNodePenColor(vcl::TColor{0x303132});
        Tree->SetButtonColor(vcl::TColor{0x404142});
        Tree->SetSelectedNodeColor(vcl::TColor{0x505152});
        Tree->SetHiddenSelectedNodeColor(vcl::TColor{0x606162});
        Tree->SetLineColor(vcl::TColor{0x707172});
        Tree->GetFont()->SetColor(vcl::TColor{0x808182});
    }
    void SetOddLook()
    {
        Tree->GetFont()->SetName("Courier New");
        Tree->GetFont()->SetHeight(-15);
        Tree->SetLineStyle(vcl::TPenStyle::psDash);
        Tree->SetNodeImageSide(TKSTVNodeImageSide::nisRight);
        Tree->SetRightToLeft(true);
        Tree->SetHideSelection(false);
        Tree->SetImages(NewImages(24, 12));
    }
};

TEST_F(OddPainting, HasEveryValueInItsPlace)
{
    Show("A\n A1\n A2\n  A21\nB\n B1\n");
    SetOddMeasures();
    SetOddColours();
    SetOddLook();
    Node("A")->Expand(false);
    Node("A1")->SetColor(vcl::TColor{0x909192});
    Node("A1")->SetImageIndex(0);
    Tree->SelectNode(Node("B"));
    ASSERT_FALSE(Tree->Focused());
    EXPECT_TRUE(vcl::tests::MatchesExpected("KSTreeView/odd.ops", Painted()));
    Tree->SetFocus();
    EXPECT_THAT(LinesWith("brush=525150"), testing::SizeIs(1)) << "the selected node";
    EXPECT_THAT(LinesWith("brush=626160"), testing::IsEmpty());
}

} // namespace
