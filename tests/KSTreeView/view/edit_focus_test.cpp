// The edit timer and the editor while the focus moves.

#include "KSTreeView/view/TreeViewFixture.h"

namespace
{

using testing::ElementsAre;
using testing::IsEmpty;

class TreeEditFocus : public TTreeViewTest
{
protected:
    /// The edit timer has been started, has run out without the focus, and still goes on.
    void LeaveTimerRunning()
    {
        Show("A\nB\n");
        Click("A");
        Click("A");
        EXPECT_TRUE(Tree->IsEditPending());
        Other->SetFocus();
        Windows().Advance(600);
        EXPECT_FALSE(Tree->IsEditPending());
    }
    bool IsHintShowing()
    {
        for (vcl::record::TWindow* const Window : Windows().GetWindows())
            if (Window->GetStyle().Kind == vcl::TWindowKind::Hint && Window->IsVisible())
                return true;
        return false;
    }
};

TEST_F(TreeEditFocus, AClickOnAnotherNodeStopsATimerThatOutlastedTheFocus)
{
    LeaveTimerRunning();
    Click("B");
    Windows().Advance(2000);
    EXPECT_FALSE(Tree->IsEditing());
}

TEST_F(TreeEditFocus, ADoubleClickStopsATimerThatOutlastedTheFocus)
{
    LeaveTimerRunning();
    Windows().MouseDoubleClick(WindowOf(*Tree), At("A"));
    Windows().Advance(2000);
    EXPECT_FALSE(Tree->IsEditing());
}

TEST_F(TreeEditFocus, ATimerThatOutlastedTheFocusEditsWhenItComesBack)
{
    LeaveTimerRunning();
    Tree->SetFocus();
    Windows().Advance(600);
    EXPECT_TRUE(Tree->IsEditing());
}

TEST_F(TreeEditFocus, AViewThatBecomesReadOnlyMeanwhileIsNotEdited)
{
    Show("A\n");
    Click("A");
    Click("A");
    Tree->SetReadOnly(true);
    Windows().Advance(2000);
    EXPECT_FALSE(Tree->IsEditing());
}

TEST_F(TreeEditFocus, NothingIsEditedWhileTheNodeIsDraggedOrAfterAQuickDrag)
{
    for (const unsigned Held : {2000u, 0u}) {
        Show("A\nB\n");
        Tree->OnMouseDown = [this](vcl::TObject*, vcl::TMouseButton, vcl::TShiftState, int, int) {
            Tree->BeginDrag(false);
        };
        Click("A");
        vcl::record::TWindow& Window = WindowOf(*Tree);
        Windows().MouseDown(Window, At("A"));
        EXPECT_TRUE(Tree->IsEditPending());
        Windows().MouseMove(Window, At("B"), vcl::MK_LBUTTON);
        Windows().Advance(Held);
        EXPECT_FALSE(Tree->IsEditing());
        Windows().MouseUp(Window, At("B"));
        Windows().Advance(2000);
        EXPECT_FALSE(Tree->IsEditing());
    }
}

TEST_F(TreeEditFocus, AFailureWhenTheNodeIsDrawnAgainLeavesNothingEdited)
{
    Show("A\n");
    Tree->EditNode(Node("A"));
    Tree->OnGetImageIndex = [](vcl::TObject*, TKSTreeNode*) { throw vcl::Exception("no"); };
    EXPECT_THROW(Tree->HideNodeEditor(false), vcl::Exception);
    Tree->OnGetImageIndex = nullptr;
    EXPECT_FALSE(Tree->IsEditing());
    EXPECT_EQ(Tree->GetEditingNode(), nullptr);
}

TEST_F(TreeEditFocus, TheEditorStaysOpenWhenTheFocusComesToItFromTheView)
{
    Show("A\n");
    LogEvents();
    Tree->EditNode(Node("A"));
    Log.clear();
    Tree->SetFocus();
    Tree->GetEditor()->SetFocus();
    EXPECT_TRUE(Tree->IsEditing());
    EXPECT_THAT(Log, IsEmpty());
}

TEST_F(TreeEditFocus, TheKeyboardStaysInTheChartWhenTheFormIsLeftWhileEditing)
{
    Show("A\n");
    auto* const Second = vcl::New<vcl::TForm>(nullptr);
    Tree->SetFocus();
    Tree->EditNode(Node("A"));
    Second->Show();
    Windows().ProcessMessages();
    EXPECT_FALSE(Tree->IsEditing());
    EXPECT_EQ(Form->GetActiveControl(), Tree);
    delete Second;
}

TEST_F(TreeEditFocus, TheEditorStaysOverItsNodeWhenTheChartMoves)
{
    Show("A\n");
    Tree->EditNode(Node("A"));
    const int Before = Tree->GetEditor()->GetLeft();
    Tree->SetWidth(Tree->GetWidth() + 100);
    Windows().ProcessMessages();
    EXPECT_TRUE(Tree->IsEditing());
    EXPECT_EQ(Tree->GetEditor()->GetLeft(), Before + 50);
}

TEST_F(TreeEditFocus, WhileItIsDrawnAgainTheNodeIsStillTheOneBeingEdited)
{
    Show("A\n");
    Tree->SetFocus();
    Tree->EditNode(Node("A"));
    std::vector<bool> Seen;
    Tree->OnGetImageIndex = [&](vcl::TObject*, TKSTreeNode* About) {
        Seen.push_back(Tree->GetEditingNode() == About && !About->GetEdited());
    };
    Tree->HideNodeEditor(false);
    ASSERT_FALSE(Seen.empty());
    EXPECT_TRUE(Seen.back());
    EXPECT_EQ(Tree->GetEditingNode(), nullptr);
}

TEST_F(TreeEditFocus, WithAutomaticDragAPressCancelsTheHintAsElsewhere)
{
    Show("A\n");
    Tree->SetHint("A chart");
    Tree->SetShowHint(true);
    Tree->SetDragMode(vcl::TDragMode::dmAutomatic);
    Windows().MouseMove(WindowOf(*Tree), At("A"));
    Windows().Advance(600);
    ASSERT_TRUE(IsHintShowing());
    Click("A");
    EXPECT_FALSE(IsHintShowing());
    EXPECT_EQ(Selected(), "A");
}

} // namespace
