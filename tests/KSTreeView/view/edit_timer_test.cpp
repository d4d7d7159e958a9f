#include "KSTreeView/view/TreeViewFixture.h"

using testing::ElementsAre;
using testing::IsEmpty;

namespace
{

class TreeEditTimer : public TTreeViewTest
{
protected:
    /// The second click on the node starts the wait.
    void WaitOn(const std::string& Text)
    {
        Click(Text);
        Click(Text);
        ASSERT_TRUE(Tree->IsEditPending());
    }
    void DoubleClick(vcl::TPoint Point) { Windows().MouseDoubleClick(WindowOf(*Tree), Point); }
};

TEST_F(TreeEditTimer, AFocusGivenByTheProgramAlsoTakesTheFirstClick)
{
    Show("A\nB\n");
    Tree->SetFocus();
    Tree->SelectNode(Node("A"));
    Click("A");
    EXPECT_FALSE(Tree->IsEditPending());
    Click("A");
    EXPECT_TRUE(Tree->IsEditPending());
}

TEST_F(TreeEditTimer, AFocusThatComesBackFromTheEditorTakesNoClick)
{
    Show("A\nB\n");
    Tree->SetFocus();
    Tree->SelectNode(Node("A"));
    Node("A")->EditText();
    Key(vcl::VK_ESCAPE);
    ASSERT_TRUE(Tree->Focused());
    Click("A");
    EXPECT_TRUE(Tree->IsEditPending());
}

TEST_F(TreeEditTimer, APressOnAButtonLeavesTheFirstClickToTheNode)
{
    Show("A\n A1\n");
    Tree->SelectNode(Node("A"));
    Click(Middle(Node("A")->ButtonRect()));
    ASSERT_TRUE(Node("A")->GetExpanded());
    Click("A");
    EXPECT_FALSE(Tree->IsEditPending());
    Click("A");
    EXPECT_TRUE(Tree->IsEditPending());
}

TEST_F(TreeEditTimer, AMissLeavesTheWaitRunning)
{
    Show("A\nB\n");
    WaitOn("A");
    Click(vcl::TPoint{1, 1});
    EXPECT_TRUE(Tree->IsEditPending());
    Windows().Advance(500);
    EXPECT_EQ(Tree->GetEditingNode(), Node("A"));
}

TEST_F(TreeEditTimer, ADoubleClickStopsTheWaitWhereverItIs)
{
    // C makes the chart as high as it will be, so A keeps its place.
    Show("A\n A1\nB\nC\n C1\n");
    Node("C")->Expand(false);
    const vcl::TPoint Background{1, 1};
    for (const vcl::TPoint Point : {At("B"), Background, Middle(Node("A")->ButtonRect())}) {
        Click("A");
        WaitOn("B");
        DoubleClick(Point);
        EXPECT_FALSE(Tree->IsEditPending()) << Point.X;
        Windows().Advance(2000);
        EXPECT_FALSE(Tree->IsEditing()) << Point.X;
    }
}

TEST_F(TreeEditTimer, TicksOnceForAnEditing)
{
    Show("A\nB\n");
    WaitOn("A");
    Windows().Advance(500);
    ASSERT_TRUE(Tree->IsEditing());
    EXPECT_FALSE(Tree->IsEditPending());
    Key(vcl::VK_ESCAPE);
    Windows().Advance(2000);
    EXPECT_FALSE(Tree->IsEditing());
}

TEST_F(TreeEditTimer, EditsWhatIsSelectedWhenItTicks)
{
    Show("A\nB\n");
    WaitOn("A");
    Tree->SelectNode(Node("B"));
    LogEvents();
    Windows().Advance(500);
    EXPECT_EQ(Tree->GetEditingNode(), Node("B"));
    EXPECT_THAT(Log, ElementsAre("editing B"));
}

TEST_F(TreeEditTimer, EditsNothingWhenNothingIsSelectedAnyMore)
{
    Show("A\nB\n");
    WaitOn("A");
    Tree->SelectNode(nullptr);
    LogEvents();
    Windows().Advance(500);
    EXPECT_FALSE(Tree->IsEditing());
    EXPECT_FALSE(Tree->IsEditPending());
    EXPECT_THAT(Log, IsEmpty());
}

TEST_F(TreeEditTimer, ADoubleClickOnAButtonTogglesTwiceAndSelectsNothing)
{
    // B makes the chart as high as it will be, so A keeps its place.
    Show("A\n A1\nB\n B1\n");
    Node("B")->Expand(false);
    LogEvents();
    DoubleClick(Middle(Node("A")->ButtonRect()));
    EXPECT_THAT(Log, ElementsAre("expanding A", "expanded A", "collapsing A", "collapsed A"));
    EXPECT_EQ(Selected(), "");
    EXPECT_EQ(Tree->GetFocusedNode(), nullptr);
}

} // namespace
