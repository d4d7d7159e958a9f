#include "KSTreeView/view/TreeViewFixture.h"

using testing::ElementsAre;
using testing::IsEmpty;

namespace
{

class TreeKeys : public TTreeViewTest
{
protected:
    void ShowFocused(const std::string& Lines)
    {
        Show(Lines);
        Tree->SetFocus();
    }
};

TEST_F(TreeKeys, LeftAndRightWalkAmongTheSiblings)
{
    ShowFocused("A\n A1\nB\nC\n");
    Tree->SelectNode(Node("B"));
    Key(vcl::VK_LEFT);
    EXPECT_EQ(Selected(), "A");
    Key(vcl::VK_LEFT);
    EXPECT_EQ(Selected(), "A");
    Key(vcl::VK_RIGHT);
    Key(vcl::VK_RIGHT);
    Key(vcl::VK_RIGHT);
    EXPECT_EQ(Selected(), "C");
}

TEST_F(TreeKeys, UpCollapsesFirstAndThenGoesToTheParent)
{
    ShowFocused("A\n A1\n  A11\n");
    Tree->FullExpand();
    Tree->SelectNode(Node("A1"));
    Key(vcl::VK_UP);
    EXPECT_EQ(Selected(), "A1");
    EXPECT_FALSE(Node("A1")->GetExpanded());
    Key(vcl::VK_UP);
    EXPECT_EQ(Selected(), "A");
    Key(vcl::VK_UP);
    EXPECT_FALSE(Node("A")->GetExpanded());
    Key(vcl::VK_UP);
    EXPECT_EQ(Selected(), "A") << "no parent";
}

TEST_F(TreeKeys, DownExpandsFirstAndThenGoesToTheFirstChild)
{
    ShowFocused("A\n A1\n A2\n");
    Tree->SelectNode(Node("A"));
    Key(vcl::VK_DOWN);
    EXPECT_TRUE(Node("A")->GetExpanded());
    EXPECT_EQ(Selected(), "A");
    Key(vcl::VK_DOWN);
    EXPECT_EQ(Selected(), "A1");
    Key(vcl::VK_DOWN);
    EXPECT_EQ(Selected(), "A1") << "no children";
}

TEST_F(TreeKeys, ArrowsAreConsumedEvenWithoutASelection)
{
    ShowFocused("A\nB\n");
    Tree->OnKeyDown = [this](vcl::TObject*, std::uint16_t& Code, vcl::TShiftState) {
        Log.push_back(std::to_string(Code));
    };
    for (const std::uint16_t Arrow : {vcl::VK_LEFT, vcl::VK_UP, vcl::VK_RIGHT, vcl::VK_DOWN})
        Key(Arrow);
    EXPECT_EQ(Selected(), "");
    EXPECT_THAT(Log, IsEmpty()) << "the handler does not see them";
    EXPECT_TRUE(Tree->Focused());
    Key('X');
    EXPECT_THAT(Log, ElementsAre("88"));
}

TEST_F(TreeKeys, HomeAndEndGoToTheFirstAndTheLastVisibleNode)
{
    ShowFocused("A\n A1\nB\n B1\n B2\n");
    Key(vcl::VK_END);
    EXPECT_EQ(Selected(), "B");
    Node("B")->Expand(false);
    Key(vcl::VK_END);
    EXPECT_EQ(Selected(), "B2");
    Key(vcl::VK_HOME);
    EXPECT_EQ(Selected(), "A");
}

TEST_F(TreeKeys, FurtherKeysActOnlyWhenTheHandlerLeftThem)
{
    ShowFocused("A\nB\n");
    Tree->OnKeyDown = [](vcl::TObject*, std::uint16_t& Code, vcl::TShiftState) { Code = 0; };
    Key(vcl::VK_END);
    Key(vcl::VK_F2);
    EXPECT_EQ(Selected(), "");
    EXPECT_FALSE(Tree->IsEditing());
    Tree->OnKeyPress = [](vcl::TObject*, char32_t& Char) { Char = 0; };
    Windows().Type("b");
    EXPECT_EQ(Selected(), "");
}

TEST_F(TreeKeys, PlusMinusAndStarExpandAndCollapse)
{
    ShowFocused("A\n A1\n  A11\n");
    Tree->SelectNode(Node("A"));
    Windows().Type("+");
    EXPECT_TRUE(Node("A")->GetExpanded());
    EXPECT_FALSE(Node("A1")->GetExpanded());
    Windows().Type("*");
    EXPECT_TRUE(Node("A1")->GetExpanded());
    Windows().Type("-");
    EXPECT_FALSE(Node("A")->GetExpanded());
}

TEST_F(TreeKeys, TypingFindsTheNextVisibleNodeThatBeginsSo)
{
    ShowFocused("Alpha\n Hidden\nBeta\nBrown\nAnna\n");
    Windows().Type("b");
    EXPECT_EQ(Selected(), "Beta");
    Windows().Type("r");
    EXPECT_EQ(Selected(), "Brown");
    Windows().Advance(1500);
    Windows().Type("b");
    EXPECT_EQ(Selected(), "Beta") << "round to the start";
    Windows().Type("b");
    EXPECT_EQ(Selected(), "Brown") << "the same letter goes on";
    Windows().Advance(1500);
    Windows().Type("h");
    EXPECT_EQ(Selected(), "Brown") << "hidden nodes are not found";
    EXPECT_EQ(Tree->GetFocusedNode(), Node("Brown"));
}

class TallTree : public TTreeViewTest
{
protected:
    TallTree() : TTreeViewTest(200, 100) {}
};

TEST_F(TallTree, PageKeysScrollByWhatIsSeen)
{
    Show("A\n B\n  C\n   D\n    E\n     F\n");
    Tree->FullExpand();
    Tree->SetFocus();
    const int Page = Tree->GetClientHeight();
    Key(vcl::VK_NEXT);
    EXPECT_EQ(Tree->GetVertScrollBar()->GetPosition(), Page);
    Key(vcl::VK_PRIOR);
    EXPECT_EQ(Tree->GetVertScrollBar()->GetPosition(), 0);
}

} // namespace
