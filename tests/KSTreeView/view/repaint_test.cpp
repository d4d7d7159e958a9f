// When the view paints, how much of it, and that the window then shows what a fresh painting would.

#include "KSTreeView/view/TreePaintingFixture.h"
#include "vcl/classes/Properties.h"

namespace
{

class TreeRepaint : public TTreePaintingTest
{
protected:
    /// The view's own rows whose setters store a value and repaint.
    static std::vector<const vcl::TPropertyInfo*> LookRows()
    {
        std::vector<const vcl::TPropertyInfo*> Rows;
        for (const char* Name : {"ShowButtons",
                                 "ShowLines",
                                 "ShowRoot",
                                 "NodeWidth",
                                 "NodeHeight",
                                 "NodeColor",
                                 "NodePenColor",
                                 "NodeImageSide",
                                 "NodeStyle",
                                 "ButtonSize",
                                 "ButtonColor",
                                 "SelectedNodeColor",
                                 "HiddenSelectedNodeColor",
                                 "LineStyle",
                                 "LineColor",
                                 "VertSpacing",
                                 "HorzSpacing",
                                 "RightToLeft",
                                 "DefaultDrawing",
                                 "ReadOnly",
                                 "HideSelection"})
            Rows.push_back(vcl::FindProperty(TKSTreeView::StaticClass(), Name));
        return Rows;
    }
    static std::int64_t AnotherValue(const vcl::TPropertyInfo& Row, std::int64_t Value)
    {
        return Row.Type->Kind == vcl::TTypeKind::Enumeration ? (Value + 1) % (Row.Type->Max + 1) : Value + 1;
    }
};

TEST_F(TreeRepaint, EveryLookPaintsOnceWhenItChangesAndNeverWhenItDoesNot)
{
    Show("A\n A1\nB\n");
    for (const vcl::TPropertyInfo* Row : LookRows()) {
        ASSERT_NE(Row, nullptr);
        SCOPED_TRACE(Row->Name);
        const auto Value = std::get<std::int64_t>(Row->Get(*Tree));
        EXPECT_EQ(PaintingsOf([&] { Row->Set(*Tree, Value); }), 0);
        EXPECT_EQ(PaintingsOf([&] { Row->Set(*Tree, AnotherValue(*Row, Value)); }), 1);
        EXPECT_EQ(PaintingsOf([&] { Row->Set(*Tree, AnotherValue(*Row, Value)); }), 0);
        EXPECT_EQ(PaintingsOf([&] { Windows().ProcessMessages(); }), 0) << "at once, not again";
    }
}

TEST_F(TreeRepaint, AnotherBorderPaintsAtOnceAndTheSameDoesNot)
{
    Show("A\n");
    const auto SetBorder = [&](vcl::TBorderStyle Style) { Tree->SetBorderStyle(Style); };
    EXPECT_EQ(PaintingsOf([&] { SetBorder(vcl::TBorderStyle::bsNone); }), 0);
    EXPECT_GE(PaintingsOf([&] { SetBorder(vcl::TBorderStyle::bsSingle); }), 1);
    EXPECT_EQ(PaintingsOf([&] { SetBorder(vcl::TBorderStyle::bsSingle); }), 0);
}

TEST_F(TreeRepaint, AnotherImageListPaintsAndTheSameDoesNot)
{
    Show("A\n");
    vcl::TImageList* const Images = NewImages(16, 16);
    EXPECT_EQ(PaintingsOf([&] { Tree->SetImages(nullptr); }), 0);
    EXPECT_EQ(PaintingsOf([&] { Tree->SetImages(Images); }), 1);
    EXPECT_EQ(PaintingsOf([&] { Tree->SetImages(Images); }), 0);
    EXPECT_EQ(PaintingsOf([&] { Tree->SetImages(nullptr); }), 1);
}

TEST_F(TreeRepaint, ButtonSizesAreClampedBeforeTheyAreCompared)
{
    Show("A\n");
    EXPECT_EQ(PaintingsOf([&] { Tree->SetButtonSize(1); }), 1);
    EXPECT_EQ(Tree->GetButtonSize(), 2);
    EXPECT_EQ(PaintingsOf([&] { Tree->SetButtonSize(-7); }), 0);
    EXPECT_EQ(PaintingsOf([&] { Tree->SetButtonSize(50); }), 1);
    EXPECT_EQ(Tree->GetButtonSize(), 20);
    EXPECT_EQ(PaintingsOf([&] { Tree->SetButtonSize(99); }), 0);
}

TEST_F(TreeRepaint, ANodesOwnChangeDrawsThatNodeAlone)
{
    Show("A\nB\n");
    const int Before = Tree->Paintings;
    EXPECT_EQ(DrawnBy([&] { Node("A")->SetText("New"); }),
              "rect 80,85,140,115 pen=808080 brush=FFFF00\n"
              "line 141,86 141,116 pen=000000\n"
              "line 141,116 81,116 pen=000000\n"
              "line 140,85 140,115 pen=000000\n"
              "line 140,115 80,115 pen=000000\n"
              "text 99,90 \"New\" font=\"Arial\" -11 color=000000 back=FFFF00\n"
              "line 110,85 110,74 pen=0000FF\n");
    EXPECT_EQ(DrawnBy([&] { Node("New")->SetText("New"); }), "");
    Windows().ProcessMessages();
    EXPECT_EQ(Tree->Paintings, Before) << "without a layout, and without a painting later";
}

TEST_F(TreeRepaint, ANodesOwnChangeIsSeenInTheWindowAtOnce)
{
    Show("A\nB\n");
    const auto Corner = [&](const char* Text) {
        const vcl::TRect& Box = Node(Text)->GetRect();
        return Tree->GetCanvas()->GetPixel(Box.Left + 2, Box.Top + 2);
    };
    const int Before = Tree->Paintings;
    Node("A")->SetColor(vcl::clAqua);
    EXPECT_EQ(Corner("A"), vcl::clAqua);
    EXPECT_EQ(Corner("B"), vcl::clYellow);
    Node("A")->SetUseTreeColor(true);
    EXPECT_EQ(Corner("A"), vcl::clYellow);
    EXPECT_EQ(Tree->Paintings, Before);
}

TEST_F(TreeRepaint, WhileTheNodesAreUpdatedOnlyBackgroundAndRootLineArePainted)
{
    Show("A\nB\n");
    Tree->GetItems()->BeginUpdate();
    EXPECT_EQ(Painted(), "fill 0,0,300,200 brush=FFFFFF\n"
                         "line 110,75 190,75 pen=0000FF\n");
    EXPECT_EQ(DrawnBy([&] { Node("A")->SetColor(vcl::clAqua); }), "");
    Tree->GetItems()->EndUpdate();
    EXPECT_THAT(LinesWith("text "), testing::SizeIs(2));
}

TEST_F(TreeRepaint, AfterAHandlerChangedTheTreeTheWindowShowsTheTreeAsItIs)
{
    struct TChange {
        const char* What;
        std::function<void(TKSTreeNode*)> Do;
        int Left;
    };
    const std::vector<TChange> Changes = {
        {"delete the node that is drawn", [](TKSTreeNode* Drawn) { Drawn->Delete(); }, 2},
        {"clear", [this](TKSTreeNode*) { Tree->GetItems()->Clear(); }, 0},
        {"delete a later node", [this](TKSTreeNode*) { Node("C")->Delete(); }, 2},
        {"add", [this](TKSTreeNode*) { Tree->GetItems()->Add(nullptr, "D"); }, 4},
    };
    for (const TChange& Change : Changes) {
        SCOPED_TRACE(Change.What);
        Show("A\nB\nC\n");
        bool Done = false;
        Tree->OnGetImageIndex = [&](vcl::TObject*, TKSTreeNode* About) {
            if (!std::exchange(Done, true))
                Change.Do(About);
        };
        Tree->Refresh();
        EXPECT_TRUE(Done);
        EXPECT_EQ(Tree->GetItems()->GetCount(), Change.Left);
        const std::vector<vcl::TColor> Shown = Pixels();
        Tree->OnGetImageIndex = nullptr;
        Tree->Refresh();
        EXPECT_TRUE(Shown == Pixels());
    }
}

TEST_F(TreeRepaint, ANodeInsertedByAHandlerIsDrawnWhenTheWalkComesToIt)
{
    Show("A\nB\nC\n");
    bool Done = false;
    Tree->OnGetImageIndex = [&](vcl::TObject*, TKSTreeNode* About) {
        Log.push_back(About->GetText());
        if (!std::exchange(Done, true))
            Tree->GetItems()->Insert(Node("B"), "new");
    };
    const int Before = Tree->Paintings;
    Tree->Refresh();
    // Its text draws it once before it has a place; inserting does not repaint the view.
    EXPECT_THAT(Log, testing::ElementsAre("A", "new", "new", "B", "C"));
    EXPECT_EQ(Tree->Paintings, Before + 1);
    Tree->OnGetImageIndex = nullptr;
}

} // namespace
