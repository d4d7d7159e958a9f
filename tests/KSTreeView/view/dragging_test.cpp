#include "KSTreeView/view/TreeViewFixture.h"

using testing::ElementsAre;
using testing::IsEmpty;

namespace
{

class TreeDragging : public TTreeViewTest
{
protected:
    /// Nodes can be dragged; the log tells what becomes of it.
    void ShowDraggable(const std::string& Lines)
    {
        Show(Lines);
        Tree->SetDragMode(vcl::TDragMode::dmAutomatic);
        Tree->OnStartDrag = [this](vcl::TObject*, vcl::TDragObject*&) { Log.push_back("start"); };
        Tree->OnDragOver = [](vcl::TObject*, vcl::TObject*, int, int, vcl::TDragState, bool& Accept) {
            Accept = true;
        };
        Tree->OnDragDrop = [this](vcl::TObject*, vcl::TObject* Source, int X, int Y) {
            EXPECT_EQ(Source, Tree);
            const TKSTreeNode* const Target = Tree->GetNodeAt(X, Y);
            Log.push_back("drop " + (Target ? Target->GetText() : "nowhere"));
        };
        Tree->OnEndDrag = [this](vcl::TObject*, vcl::TObject* Target, int, int) {
            Log.push_back(Target ? "end" : "cancelled");
        };
    }
    void Press(vcl::TPoint Point) { Windows().MouseDown(WindowOf(*Tree), Point); }
    void Move(vcl::TPoint Point) { Windows().MouseMove(WindowOf(*Tree), Point, vcl::MK_LBUTTON); }
    void Release(vcl::TPoint Point) { Windows().MouseUp(WindowOf(*Tree), Point); }
};

TEST_F(TreeDragging, APressThatMayDragLeavesTheFirstClickUnused)
{
    Show("A\nB\n");
    Tree->SelectNode(Node("A"));
    Tree->SetDragMode(vcl::TDragMode::dmAutomatic);
    Click("A");
    ASSERT_TRUE(Tree->Focused());
    Tree->SetDragMode(vcl::TDragMode::dmManual);
    Click("A");
    EXPECT_FALSE(Tree->IsEditPending());
    Click("A");
    EXPECT_TRUE(Tree->IsEditPending());
}

TEST_F(TreeDragging, NeverBeginsOnAButton)
{
    ShowDraggable("A\n A1\nB\n");
    const vcl::TPoint Button = Middle(Node("A")->ButtonRect());
    Press(Button);
    EXPECT_TRUE(Node("A")->GetExpanded());
    Move({Button.X + 50, Button.Y});
    EXPECT_FALSE(Tree->Dragging());
    Release({Button.X + 50, Button.Y});
    EXPECT_THAT(Log, IsEmpty());
}

TEST_F(TreeDragging, MayEndOnTheNodeItBeganOn)
{
    ShowDraggable("A\nB\n");
    const vcl::TPoint Point = At("A");
    Press(Point);
    Move({Point.X + 10, Point.Y});
    EXPECT_TRUE(Tree->Dragging());
    Move(Point);
    Release(Point);
    EXPECT_THAT(Log, ElementsAre("start", "drop A", "end"));
}

TEST_F(TreeDragging, EscapeCancelsItAndIsNoKeyOfTheView)
{
    ShowDraggable("A\nB\n");
    Tree->OnKeyDown = [this](vcl::TObject*, std::uint16_t&, vcl::TShiftState) { Log.push_back("key"); };
    const vcl::TPoint Target = At("B");
    Press(At("A"));
    Move(Target);
    Key(vcl::VK_ESCAPE);
    EXPECT_FALSE(Tree->Dragging());
    EXPECT_THAT(Log, ElementsAre("start", "cancelled"));
    Release(Target);
    EXPECT_THAT(Log, ElementsAre("start", "cancelled"));
    EXPECT_EQ(Selected(), "A");
}

TEST_F(TreeDragging, ScrollingEndsWhenWhatIsDraggedGoesWithoutAWord)
{
    Show("A\nB\nC\nD\nE\nF\nG\n");
    Tree->OnDragOver = [](vcl::TObject*, vcl::TObject*, int, int, vcl::TDragState, bool& Accept) {
        Accept = true;
    };
    auto* const Source = vcl::New<vcl::TButton>(Form);
    Source->SetBounds(60, 350, 50, 20);
    Source->SetParent(Form);
    Source->BeginDrag(true);
    const vcl::TPoint Edge{Tree->GetClientWidth() - 5, 50};
    Windows().MouseMove(WindowOf(*Tree), Edge, vcl::MK_LBUTTON);
    Windows().Advance(100);
    EXPECT_GT(Tree->GetHorzScrollBar()->GetPosition(), 0);
    delete Source;
    const int Before = Tree->GetHorzScrollBar()->GetPosition();
    Windows().Advance(500);
    EXPECT_EQ(Tree->GetHorzScrollBar()->GetPosition(), Before);
}

class TreePanning : public TreeDragging
{
protected:
    /// A chart that scrolls both ways, moved to 50,20, and pressed on its background.
    void PressBackground(bool IsDraggable = false)
    {
        const std::string Lines = "A\n B\n  C\n   D\nE\nF\nG\nH\n";
        if (IsDraggable)
            ShowDraggable(Lines);
        else
            Show(Lines);
        Tree->SetBounds(10, 10, 200, 100);
        Tree->FullExpand();
        Tree->GetHorzScrollBar()->SetPosition(50);
        Tree->GetVertScrollBar()->SetPosition(20);
        Tree->Refresh();
        while (Tree->GetNodeAt(Free.X, Free.Y) || !Tree->GetHitTestInfoAt(Free.X, Free.Y).IsEmpty())
            ++Free.Y;
        Press(Free);
    }
    /// Moves the pointer so far from where it went down.
    void Pan(int X, int Y) { Move({Free.X + X, Free.Y + Y}); }
    vcl::TPoint Position()
    {
        return {Tree->GetHorzScrollBar()->GetPosition(), Tree->GetVertScrollBar()->GetPosition()};
    }
    vcl::TPoint Free{0, 0};
};

TEST_F(TreePanning, GoesOnWhereNodesCanBeDragged)
{
    PressBackground(true);
    Pan(-30, 10);
    EXPECT_EQ(Position(), (vcl::TPoint{80, 10}));
    Release(Free);
    EXPECT_THAT(Log, IsEmpty());
}

TEST_F(TreePanning, PastTheEndStopsThereAndComesBackWithThePointer)
{
    PressBackground();
    Pan(-5000, -5000);
    EXPECT_EQ(Position(), (vcl::TPoint{Tree->GetHorzScrollBar()->GetMaxPosition(),
                                       Tree->GetVertScrollBar()->GetMaxPosition()}));
    Pan(5000, 5000);
    EXPECT_EQ(Position(), (vcl::TPoint{0, 0}));
    Pan(-30, 10);
    EXPECT_EQ(Position(), (vcl::TPoint{80, 10}));
}

TEST_F(TreePanning, EndsWhenTheModeIsCancelled)
{
    PressBackground();
    Pan(-30, 10);
    Tree->Perform(vcl::WM_CANCELMODE);
    Pan(0, 0);
    EXPECT_EQ(Position(), (vcl::TPoint{80, 10}));
}

TEST_F(TreePanning, EndsWhenTheButtonWasReleasedElsewhere)
{
    PressBackground();
    Pan(-30, 10);
    Windows().MouseMove(WindowOf(*Tree), Free);
    Pan(0, 0);
    EXPECT_EQ(Position(), (vcl::TPoint{80, 10}));
}

TEST_F(TreePanning, EndsWhenSomebodyElseTakesTheMouse)
{
    PressBackground();
    Pan(-30, 10);
    WindowOf(*Other).SetCapture(true);
    WindowOf(*Other).SetCapture(false);
    Pan(0, 0);
    EXPECT_EQ(Position(), (vcl::TPoint{80, 10}));
}

} // namespace
