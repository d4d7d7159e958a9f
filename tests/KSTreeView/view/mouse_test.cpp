#include "KSTreeView/view/TreeViewFixture.h"

using testing::ElementsAre;
using testing::IsEmpty;

namespace
{

class TreeMouse : public TTreeViewTest
{
};

TEST_F(TreeMouse, AClickSelectsAndFocusesTheNodeAndTheView)
{
    Show("A\n A1\nB\n");
    LogEvents();
    Click("B");
    EXPECT_TRUE(Tree->Focused());
    EXPECT_EQ(Selected(), "B");
    EXPECT_EQ(Tree->GetFocusedNode(), Node("B"));
    EXPECT_THAT(Log, ElementsAre("change B"));
    Click("A");
    EXPECT_THAT(Log, ElementsAre("change B", "changing B", "change A"));
}

TEST_F(TreeMouse, AVetoKeepsTheSelectionButNotTheFocusedNode)
{
    Show("A\nB\n");
    Click("A");
    LogEvents();
    Vetoes = true;
    Click("B");
    EXPECT_EQ(Selected(), "A");
    EXPECT_EQ(Tree->GetFocusedNode(), Node("B"));
    EXPECT_THAT(Log, ElementsAre("changing A"));
}

TEST_F(TreeMouse, AClickOnTheButtonTogglesWithoutSelecting)
{
    Show("A\n A1\nB\n");
    LogEvents();
    Click(Middle(Node("A")->ButtonRect()));
    EXPECT_THAT(Log, ElementsAre("expanding A", "expanded A"));
    EXPECT_TRUE(Node("A")->GetExpanded());
    EXPECT_EQ(Selected(), "");
    Click(Middle(Node("A")->ButtonRect()));
    EXPECT_FALSE(Node("A")->GetExpanded());
}

TEST_F(TreeMouse, AClickOnTheBackgroundChangesNothing)
{
    Show("A\nB\n");
    Click("A");
    LogEvents();
    Click(vcl::TPoint{1, 1});
    EXPECT_THAT(Log, IsEmpty());
    EXPECT_EQ(Selected(), "A");
}

TEST_F(TreeMouse, ADoubleClickSelectsAndTogglesANodeWithChildren)
{
    Show("A\n A1\nB\n");
    Windows().MouseDoubleClick(WindowOf(*Tree), At("A"));
    EXPECT_EQ(Selected(), "A");
    EXPECT_TRUE(Node("A")->GetExpanded());
    Windows().MouseDoubleClick(WindowOf(*Tree), At("B"));
    EXPECT_EQ(Selected(), "B");
    EXPECT_FALSE(Node("B")->GetExpanded());
    Windows().Advance(2000);
    EXPECT_FALSE(Tree->IsEditing()) << "a double click never edits";
}

TEST_F(TreeMouse, TheFirstClickIntoAnUnfocusedViewNeverStartsEditing)
{
    Show("A\nB\n");
    Tree->SelectNode(Node("A"));
    Click("A");
    EXPECT_FALSE(Tree->IsEditPending());
    Windows().Advance(2000);
    EXPECT_FALSE(Tree->IsEditing());
    Click("A");
    EXPECT_TRUE(Tree->IsEditPending());
    Windows().Advance(499);
    EXPECT_FALSE(Tree->IsEditing());
    Windows().Advance(1);
    EXPECT_TRUE(Tree->IsEditing());
}

TEST_F(TreeMouse, AClickOnAnotherNodeStopsTheWaitForEditing)
{
    Show("A\nB\n");
    Click("A");
    Click("A");
    EXPECT_TRUE(Tree->IsEditPending());
    Click("B");
    EXPECT_FALSE(Tree->IsEditPending());
    Windows().Advance(2000);
    EXPECT_FALSE(Tree->IsEditing());
}

TEST_F(TreeMouse, AReadOnlyViewIsNotEditedByClicks)
{
    Show("A\nB\n");
    Tree->SetReadOnly(true);
    Click("A");
    Click("A");
    Windows().Advance(2000);
    EXPECT_FALSE(Tree->IsEditing());
    Key(vcl::VK_F2);
    EXPECT_FALSE(Tree->IsEditing());
}

TEST_F(TreeMouse, TheTimerWaitsForTheFocus)
{
    Show("A\nB\n");
    Click("A");
    Click("A");
    Other->SetFocus();
    Windows().Advance(1200);
    EXPECT_FALSE(Tree->IsEditing());
    EXPECT_FALSE(Tree->IsEditPending());
    Tree->SetFocus();
    Windows().Advance(500);
    EXPECT_TRUE(Tree->IsEditing()) << "it went on running";
}

TEST_F(TreeMouse, TheEventsOfEveryControlComeToo)
{
    Show("A\n");
    Tree->OnMouseDown = [this](vcl::TObject*, vcl::TMouseButton, vcl::TShiftState, int, int) {
        Log.push_back("down " + Selected());
    };
    Tree->OnMouseUp = [this](vcl::TObject*, vcl::TMouseButton, vcl::TShiftState, int, int) {
        Log.push_back("up " + Selected());
    };
    Tree->OnClick = [this](vcl::TObject*) { Log.push_back("click"); };
    Click("A");
    EXPECT_THAT(Log, ElementsAre("down ", "click", "up A")) << "the press is told before it acts";
}

class LargeTree : public TTreeViewTest
{
protected:
    LargeTree() : TTreeViewTest(200, 100) {}
    void ShowLarge()
    {
        Show("A\n B\n  C\n   D\nE\nF\nG\nH\n");
        Tree->FullExpand();
    }
};

TEST_F(LargeTree, DraggingTheBackgroundPansTheChart)
{
    ShowLarge();
    ASSERT_GT(Tree->GetHorzScrollBar()->GetMaxPosition(), 100);
    Tree->GetHorzScrollBar()->SetPosition(50);
    Tree->GetVertScrollBar()->SetPosition(20);
    Tree->Refresh();
    const vcl::TRect Before = Node("E")->GetRect();
    vcl::record::TWindow& Window = WindowOf(*Tree);
    vcl::TPoint Free{0, 0};
    while (Tree->GetNodeAt(Free.X, Free.Y) || !Tree->GetHitTestInfoAt(Free.X, Free.Y).IsEmpty())
        ++Free.Y;
    Windows().MouseDown(Window, Free);
    Windows().MouseMove(Window, {Free.X - 30, Free.Y + 10}, vcl::MK_LBUTTON);
    EXPECT_EQ(Tree->GetHorzScrollBar()->GetPosition(), 80);
    EXPECT_EQ(Tree->GetVertScrollBar()->GetPosition(), 10);
    EXPECT_EQ(Node("E")->GetRect().Left, Before.Left - 30) << "boxes move with the pixels";
    EXPECT_EQ(Node("E")->GetRect().Top, Before.Top + 10);
    Windows().MouseUp(Window, {Free.X - 30, Free.Y + 10});
    Windows().MouseMove(Window, {0, 0});
    EXPECT_EQ(Tree->GetHorzScrollBar()->GetPosition(), 80);
}

TEST_F(LargeTree, TheWheelScrollsBothWays)
{
    ShowLarge();
    vcl::record::TWindow& Window = WindowOf(*Tree);
    Windows().Wheel(Window, {5, 5}, -120);
    EXPECT_EQ(Tree->GetVertScrollBar()->GetPosition(), 40);
    Windows().Wheel(Window, {5, 5}, 120);
    EXPECT_EQ(Tree->GetVertScrollBar()->GetPosition(), 0);
    Windows().Wheel(Window, {5, 5}, -120, vcl::MK_SHIFT);
    EXPECT_EQ(Tree->GetHorzScrollBar()->GetPosition(), 40);
    Tree->Perform(vcl::WM_MOUSEHWHEEL, vcl::MakeWheelParam(0, 120), 0);
    EXPECT_EQ(Tree->GetHorzScrollBar()->GetPosition(), 80);
    Windows().Wheel(Window, {5, 5}, -60);
    EXPECT_EQ(Tree->GetVertScrollBar()->GetPosition(), 20) << "half a notch";
    Tree->OnMouseWheel = [](vcl::TObject*, vcl::TShiftState, int, vcl::TPoint, bool& Handled) {
        Handled = true;
    };
    Windows().Wheel(Window, {5, 5}, -120);
    EXPECT_EQ(Tree->GetVertScrollBar()->GetPosition(), 20) << "a handler had it";
}

TEST_F(TreeMouse, WithAutomaticDragANodeIsDraggedOntoAnother)
{
    Show("A\nB\nC\n");
    Tree->SetDragMode(vcl::TDragMode::dmAutomatic);
    Tree->OnStartDrag = [this](vcl::TObject*, vcl::TDragObject*&) { Log.push_back("start " + Selected()); };
    Tree->OnDragOver = [this](vcl::TObject*, vcl::TObject* Source, int X, int Y, vcl::TDragState,
                              bool& Accept) { Accept = Source == Tree && Tree->GetNodeAt(X, Y); };
    Tree->OnDragDrop = [this](vcl::TObject*, vcl::TObject*, int X, int Y) {
        Tree->GetSelected()->MoveTo(Tree->GetNodeAt(X, Y));
    };
    Tree->OnEndDrag = [this](vcl::TObject*, vcl::TObject* Target, int, int) {
        Log.push_back(Target ? "end" : "cancelled");
    };
    vcl::record::TWindow& Window = WindowOf(*Tree);
    Windows().MouseDown(Window, At("A"));
    EXPECT_EQ(Selected(), "A");
    EXPECT_THAT(Log, IsEmpty());
    const vcl::TPoint Target = At("C");
    Windows().MouseMove(Window, {Target.X - 20, Target.Y}, vcl::MK_LBUTTON);
    Windows().MouseMove(Window, Target, vcl::MK_LBUTTON);
    Windows().MouseUp(Window, Target);
    EXPECT_THAT(Log, ElementsAre("start A", "end"));
    EXPECT_EQ(Node("A")->GetParent(), Node("C"));
}

TEST_F(TreeMouse, WithAutomaticDragAPressWithoutMovingIsAClickAndTheButtonStillToggles)
{
    Show("A\n A1\nB\n");
    Tree->SetDragMode(vcl::TDragMode::dmAutomatic);
    Tree->OnStartDrag = [this](vcl::TObject*, vcl::TDragObject*&) { Log.push_back("start"); };
    Click("B");
    Click("B");
    EXPECT_EQ(Selected(), "B");
    EXPECT_FALSE(Tree->IsEditPending());
    Click(Middle(Node("A")->ButtonRect()));
    EXPECT_TRUE(Node("A")->GetExpanded());
    EXPECT_THAT(Log, IsEmpty());
}

TEST_F(LargeTree, ADragNearAnEdgeScrollsUntilItLeavesOrDrops)
{
    ShowLarge();
    Tree->SetDragMode(vcl::TDragMode::dmAutomatic);
    Tree->OnDragOver = [](vcl::TObject*, vcl::TObject*, int, int, vcl::TDragState, bool& Accept) {
        Accept = true;
    };
    vcl::record::TWindow& Window = WindowOf(*Tree);
    const vcl::TPoint From = Middle(Tree->GetItems()->GetFirstNode()->GetRect());
    const vcl::TPoint Edge{Tree->GetClientWidth() - 5, From.Y};
    const vcl::TPoint Inside{Tree->GetClientWidth() / 2, From.Y};
    Windows().MouseDown(Window, From);
    Windows().MouseMove(Window, Inside, vcl::MK_LBUTTON);
    Windows().Advance(500);
    EXPECT_EQ(Tree->GetHorzScrollBar()->GetPosition(), 0);
    Windows().MouseMove(Window, Edge, vcl::MK_LBUTTON);
    Windows().Advance(100);
    EXPECT_EQ(Tree->GetHorzScrollBar()->GetPosition(), 2 * 2 * 8);
    Windows().MouseMove(Window, Inside, vcl::MK_LBUTTON);
    Windows().Advance(500);
    EXPECT_EQ(Tree->GetHorzScrollBar()->GetPosition(), 2 * 2 * 8);
    Windows().MouseMove(Window, Edge, vcl::MK_LBUTTON);
    Windows().MouseUp(Window, Edge);
    Windows().Advance(500);
    EXPECT_EQ(Tree->GetHorzScrollBar()->GetPosition(), 2 * 2 * 8);
}

TEST_F(TreeMouse, HandlersMayFreeTheView)
{
    const std::vector<std::function<void()>> Arrange = {
        [this] {
            Tree->OnChange = [this](vcl::TObject*, TKSTreeNode*) { delete std::exchange(Tree, nullptr); };
        },
        [this] {
            Tree->OnMouseDown = [this](vcl::TObject*, vcl::TMouseButton, vcl::TShiftState, int, int) {
                delete std::exchange(Tree, nullptr);
            };
        },
        [this] { Tree->OnEnter = [this](vcl::TObject*) { delete std::exchange(Tree, nullptr); }; },
        [this] {
            Tree->OnGetImageIndex = [this](vcl::TObject*, TKSTreeNode*) {
                delete std::exchange(Tree, nullptr);
            };
        },
    };
    for (const auto& Each : Arrange) {
        if (!Tree) {
            Tree = vcl::New<TProbeTree>(Form);
            Tree->SetBounds(10, 10, 300, 200);
            Tree->SetParent(Form);
        }
        Show("A\n A1\nB\n");
        Each();
        const vcl::TPoint Point = At("B");
        Click(Point);
        Windows().ProcessMessages();
        EXPECT_EQ(Tree, nullptr);
    }
}

TEST_F(TreeMouse, HandlersMayDeleteTheNodeUnderThePointerOrAll)
{
    for (const bool All : {false, true})
        for (const bool Twice : {false, true}) {
            Show("A\n A1\nB\n");
            Tree->OnChange = [this, All](vcl::TObject*, TKSTreeNode* Changed) {
                if (All)
                    Tree->GetItems()->Clear();
                else
                    Changed->Delete();
            };
            if (Twice)
                Windows().MouseDoubleClick(WindowOf(*Tree), At("A"));
            else
                Click("A");
            Tree->OnChange = nullptr;
            EXPECT_EQ(Node("A"), nullptr);
            EXPECT_EQ(Tree->GetItems()->GetCount(), All ? 0 : 1);
            EXPECT_EQ(Tree->GetSelected(), nullptr);
        }
}

} // namespace
