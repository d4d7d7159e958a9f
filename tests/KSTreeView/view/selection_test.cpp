#include "KSTreeView/view/TreeViewFixture.h"

using testing::ElementsAre;

namespace
{

class TreeSelection : public TTreeViewTest
{
};

TEST_F(TreeSelection, AVetoAlsoKeepsWhatWasToBeDeselected)
{
    Show("A\nB\n");
    Tree->SelectNode(Node("A"));
    LogEvents();
    Vetoes = true;
    Tree->SelectNode(nullptr);
    EXPECT_EQ(Selected(), "A");
    EXPECT_TRUE(Node("A")->GetSelected());
    EXPECT_THAT(Log, ElementsAre("changing A"));
}

TEST_F(TreeSelection, WhileAChangeIsToldTheViewStillNamesTheOldNode)
{
    Show("A\nB\n");
    Tree->SelectNode(Node("A"));
    Tree->OnChange = [this](vcl::TObject*, TKSTreeNode* New) {
        Log.push_back(New->GetText() + " after " + Selected());
    };
    Click("B");
    Key(vcl::VK_LEFT);
    EXPECT_THAT(Log, ElementsAre("B after A", "A after B"));
}

TEST_F(TreeSelection, AVetoIsAskedWithTheOldNodeAndKeepsItAgainstAKeyToo)
{
    Show("A\nB\n");
    Tree->SetFocus();
    Tree->SelectNode(Node("A"));
    LogEvents();
    Vetoes = true;
    Key(vcl::VK_RIGHT);
    EXPECT_EQ(Selected(), "A");
    EXPECT_TRUE(Node("A")->GetSelected());
    EXPECT_FALSE(Node("B")->GetSelected());
    EXPECT_THAT(Log, ElementsAre("changing A"));
}

TEST_F(TreeSelection, ChangesItsColourWithTheFocusAtOnceWithoutAPainting)
{
    Show("A\nB\n");
    Tree->SelectNode(Node("A"));
    Windows().ProcessMessages();
    const vcl::TRect Box = Node("A")->GetRect();
    const auto Fill = [&] { return Tree->GetCanvas()->GetPixel(Box.Left + 2, Box.Top + 2); };
    const int Before = Tree->Paintings;
    EXPECT_EQ(Fill(), vcl::clYellow);
    Tree->SetFocus();
    EXPECT_EQ(Fill(), vcl::clRed);
    Other->SetFocus();
    EXPECT_EQ(Fill(), vcl::clYellow);
    EXPECT_EQ(Tree->Paintings, Before);
}

TEST_F(TreeSelection, MovesToTheNodeWhoseButtonCollapsesWhatWasSelected)
{
    Show("A\n A1\n  A11\nB\n");
    Tree->FullExpand();
    Tree->SelectNode(Node("A11"));
    LogEvents();
    Click(Middle(Node("A")->ButtonRect()));
    EXPECT_EQ(Selected(), "A");
    EXPECT_EQ(Tree->GetFocusedNode(), Node("A"));
    EXPECT_THAT(Log, ElementsAre("collapsing A", "collapsed A", "changing A11", "change A"));
}

} // namespace
