#include "KSTreeView/view/TreeViewFixture.h"

using testing::ElementsAre;

namespace
{

class TreeArrows : public TTreeViewTest
{
protected:
    void ShowFocused(const std::string& Lines)
    {
        Show(Lines);
        Tree->SetFocus();
    }
};

TEST_F(TreeArrows, SelectWithoutMovingTheFocusedNode)
{
    Show("A\n A1\nB\n");
    Click("B");
    Key(vcl::VK_LEFT);
    EXPECT_EQ(Selected(), "A");
    EXPECT_EQ(Tree->GetFocusedNode(), Node("B"));
    Key(vcl::VK_RIGHT);
    EXPECT_EQ(Selected(), "B");
    Key(vcl::VK_LEFT);
    Key(vcl::VK_DOWN);
    Key(vcl::VK_DOWN);
    EXPECT_EQ(Selected(), "A1");
    EXPECT_EQ(Tree->GetFocusedNode(), Node("B"));
    Key(vcl::VK_UP);
    EXPECT_EQ(Selected(), "A");
    EXPECT_EQ(Tree->GetFocusedNode(), Node("B"));
}

TEST_F(TreeArrows, UpStaysWhereCollapsingIsVetoed)
{
    ShowFocused("A\n A1\n  A11\n");
    Tree->FullExpand();
    Tree->SelectNode(Node("A1"));
    LogEvents();
    Vetoes = true;
    Key(vcl::VK_UP);
    EXPECT_TRUE(Node("A1")->GetExpanded());
    EXPECT_EQ(Selected(), "A1");
    EXPECT_THAT(Log, ElementsAre("collapsing A1"));
}

TEST_F(TreeArrows, DownStaysWhereExpandingIsVetoed)
{
    ShowFocused("A\n A1\n");
    Tree->SelectNode(Node("A"));
    LogEvents();
    Vetoes = true;
    Key(vcl::VK_DOWN);
    EXPECT_FALSE(Node("A")->GetExpanded());
    EXPECT_EQ(Selected(), "A");
    EXPECT_THAT(Log, ElementsAre("expanding A"));
}

TEST_F(TreeArrows, SignsWithoutASelectionDoNothing)
{
    ShowFocused("A\n A1\n  A11\n");
    Node("A")->Expand(false);
    LogEvents();
    Windows().Type("+-*");
    EXPECT_THAT(Log, testing::IsEmpty());
    EXPECT_EQ(Selected(), "");
    EXPECT_TRUE(Node("A")->GetExpanded());
    EXPECT_FALSE(Node("A1")->GetExpanded());
}

TEST_F(TreeArrows, ALetterWithoutASelectionLooksFromTheFirstNodeOn)
{
    ShowFocused("Anna\nBeta\nAlpha\n");
    Windows().Type("a");
    EXPECT_EQ(Selected(), "Anna");
    Windows().Advance(1500);
    Tree->SelectNode(nullptr);
    Windows().Type("b");
    EXPECT_EQ(Selected(), "Beta");
}

TEST_F(TreeArrows, ACharacterThatTheHandlerLeavesActs)
{
    ShowFocused("A\n A1\nB\n");
    Tree->OnKeyPress = [this](vcl::TObject*, char32_t& Char) {
        Log.push_back(Selected() + "<" + static_cast<char>(Char));
        if (Char == U'x')
            Char = U'+';
    };
    Windows().Type("a");
    EXPECT_EQ(Selected(), "A");
    Windows().Type("x");
    EXPECT_TRUE(Node("A")->GetExpanded()) << "what the handler made of it counts";
    EXPECT_THAT(Log, ElementsAre("<a", "A<x"));
}

TEST_F(TreeArrows, F2AsksBeforeItEdits)
{
    ShowFocused("A\nB\n");
    Tree->SelectNode(Node("B"));
    LogEvents();
    Vetoes = true;
    Key(vcl::VK_F2);
    EXPECT_FALSE(Tree->IsEditing());
    EXPECT_THAT(Log, ElementsAre("editing B"));
}

TEST_F(TreeArrows, HomeAndEndOfAnEmptyTreeAreConsumed)
{
    ShowFocused("");
    for (const std::uint16_t Key : {vcl::VK_HOME, vcl::VK_END}) {
        std::uint16_t Code = Key;
        Tree->KeyDown(Code, {});
        EXPECT_EQ(Code, 0) << Key;
        EXPECT_EQ(Tree->GetSelected(), nullptr);
    }
}

class LowTree : public TTreeViewTest
{
protected:
    LowTree() : TTreeViewTest(200, 100) {}
};

TEST_F(LowTree, PageKeysScrollSidewaysWhereNothingElseScrolls)
{
    Show("A\nB\nC\nD\nE\nF\n");
    Tree->SetFocus();
    ASSERT_EQ(Tree->GetVertScrollBar()->GetMaxPosition(), 0);
    Key(vcl::VK_NEXT);
    EXPECT_EQ(Tree->GetHorzScrollBar()->GetPosition(), Tree->GetClientWidth());
    Key(vcl::VK_PRIOR);
    EXPECT_EQ(Tree->GetHorzScrollBar()->GetPosition(), 0);
}

} // namespace
