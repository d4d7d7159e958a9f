#include "KSTreeView/view/EditingFixture.h"

using testing::ElementsAre;
using testing::IsEmpty;

namespace
{

class TreeEditing : public TTreeEditingTest
{
};

TEST_F(TreeEditing, OpensTheEditorOverTheTextOfTheNode)
{
    Edit("Alpha\nB\n", "Alpha");
    ASSERT_TRUE(Tree->IsEditing());
    EXPECT_THAT(Log, ElementsAre("editing Alpha"));
    EXPECT_EQ(Tree->GetEditingNode(), Node("Alpha"));
    EXPECT_TRUE(Node("Alpha")->GetEdited());
    TKSTVEdit* const Editor = Tree->GetEditor();
    EXPECT_TRUE(Editor->Focused());
    EXPECT_EQ(Editor->GetText(), "Alpha");
    EXPECT_FALSE(Editor->GetTabStop());
    EXPECT_FALSE(Editor->GetAutoSize());
    EXPECT_FALSE(Editor->GetCtl3D());
    EXPECT_EQ(Editor->GetBorderStyle(), vcl::TBorderStyle::bsSingle);
    EXPECT_TRUE(Editor->GetFont()->IsEqual(*Tree->GetFont()));
}

TEST_F(TreeEditing, TheEditorStaysCentredAndThreeLettersWiderThanItsText)
{
    Edit("Alpha\nB\n", "Alpha");
    const vcl::TRect Text = Node("Alpha")->DisplayRect(true);
    const auto Check = [&] {
        const vcl::TRect Bounds = Tree->GetEditor()->GetBoundsRect();
        const int Width = Tree->GetCanvas()->TextWidth(Tree->GetEditor()->GetText() + "WWW");
        EXPECT_EQ(Bounds.Width(), Width);
        EXPECT_EQ(Bounds.Left, Text.Left + (Text.Width() - Width) / 2);
        EXPECT_EQ(Bounds.Top, Text.Top);
    };
    Check();
    Type("A much longer text");
    EXPECT_EQ(Tree->GetEditor()->GetText(), "A much longer text");
    Check();
}

TEST_F(TreeEditing, ReturnAcceptsThroughAPostedClick)
{
    Edit("A\nB\n", "A");
    Type("New");
    Key(vcl::VK_RETURN);
    Windows().Type("\r");
    EXPECT_TRUE(Tree->IsEditing());
    Windows().ProcessMessages();
    EXPECT_FALSE(Tree->IsEditing());
    EXPECT_NE(Node("New"), nullptr);
    EXPECT_THAT(Log, ElementsAre("editing A", "edited A to New"));
    EXPECT_TRUE(Tree->Focused());
    EXPECT_EQ(Selected(), "New");
}

TEST_F(TreeEditing, EveryKeyPressGoesToTheView)
{
    Edit("A\nB\n", "A");
    Tree->OnKeyPress = [this](vcl::TObject* Sender, char32_t& Char) {
        EXPECT_EQ(Sender, Tree);
        Log.push_back("key " + std::to_string(static_cast<unsigned>(Char)));
    };
    Log.clear();
    Type("x");
    EXPECT_THAT(Log, ElementsAre("key 120"));
}

TEST_F(TreeEditing, EscapeDiscardsWhatWasTyped)
{
    Edit("A\nB\n", "A");
    Type("New");
    Key(vcl::VK_ESCAPE);
    EXPECT_FALSE(Tree->IsEditing());
    EXPECT_NE(Node("A"), nullptr);
    EXPECT_THAT(Log, ElementsAre("editing A"));
    EXPECT_FALSE(Node("A")->GetEdited());
    EXPECT_TRUE(Tree->Focused());
}

TEST_F(TreeEditing, OtherKeysFireTheViewsEventFirst)
{
    Edit("A\nB\n", "A");
    Tree->OnKeyDown = [this](vcl::TObject* Sender, std::uint16_t& Code, vcl::TShiftState) {
        EXPECT_EQ(Sender, Tree);
        Log.push_back(std::to_string(Code));
    };
    Log.clear();
    Key(vcl::VK_HOME);
    Key(vcl::VK_LEFT);
    EXPECT_THAT(Log, ElementsAre("36", "37"));
    EXPECT_TRUE(Tree->IsEditing());
}

TEST_F(TreeEditing, AClickInTheViewAcceptsAndDoesNothingElse)
{
    Edit("A\nB\n", "A");
    Type("New");
    Click("B");
    EXPECT_FALSE(Tree->IsEditing());
    EXPECT_EQ(Selected(), "New");
}

TEST_F(TreeEditing, LosingTheFocusAccepts)
{
    Edit("A\nB\n", "A");
    Type("New");
    Other->SetFocus();
    Windows().ProcessMessages();
    EXPECT_FALSE(Tree->IsEditing());
    EXPECT_NE(Node("New"), nullptr);
    EXPECT_TRUE(Other->Focused());
}

TEST_F(TreeEditing, TabInTheViewAcceptsAndEscapeDiscardsWhatWasTyped)
{
    Edit("A\nB\n", "A");
    Tree->GetEditor()->SetText("New");
    std::uint16_t Code = vcl::VK_TAB;
    Tree->KeyDown(Code, {});
    EXPECT_EQ(Code, vcl::VK_TAB) << "left to others";
    EXPECT_NE(Node("New"), nullptr);
    Tree->EditNode(Node("New"));
    Tree->GetEditor()->SetText("Newer");
    Code = vcl::VK_ESCAPE;
    Tree->KeyDown(Code, {});
    EXPECT_NE(Node("New"), nullptr);
}

TEST_F(TreeEditing, TabInTheEditorAcceptsAndMovesOn)
{
    Edit("A\nB\n", "A");
    Type("New");
    Key(vcl::VK_TAB);
    Windows().ProcessMessages();
    EXPECT_FALSE(Tree->IsEditing());
    EXPECT_NE(Node("New"), nullptr);
}

TEST_F(TreeEditing, ScrollingAcceptsWhatWasTyped)
{
    Edit("A\nB\n", "A");
    Type("New");
    Tree->Perform(vcl::WM_HSCROLL, vcl::MakeScrollParam(vcl::SB_ENDSCROLL, 0));
    EXPECT_FALSE(Tree->IsEditing());
    EXPECT_NE(Node("New"), nullptr);
}

TEST_F(TreeEditing, AHandlerMayVetoOrChangeTheText)
{
    Edit("A\nB\n", "A");
    Tree->OnEdited = [](vcl::TObject*, TKSTreeNode*, vcl::AnsiString& S) { S = "[" + S + "]"; };
    Type("x");
    Tree->HideNodeEditor(true);
    EXPECT_NE(Node("[x]"), nullptr);
    Vetoes = true;
    Tree->EditNode(Node("B"));
    EXPECT_FALSE(Tree->IsEditing());
}

TEST_F(TreeEditing, AnotherNodeAcceptsTheFirst)
{
    Edit("A\nB\n", "A");
    Type("New");
    Tree->EditNode(Node("B"));
    EXPECT_NE(Node("New"), nullptr);
    EXPECT_EQ(Tree->GetEditingNode(), Node("B"));
    Node("B")->EndEdit(true);
    EXPECT_FALSE(Tree->IsEditing());
}

TEST_F(TreeEditing, F2OpensTheEditorOfTheSelectedNode)
{
    Show("A\nB\n");
    Tree->SetFocus();
    Key(vcl::VK_F2);
    EXPECT_FALSE(Tree->IsEditing()) << "nothing is selected";
    Tree->SelectNode(Node("B"));
    Key(vcl::VK_F2);
    EXPECT_EQ(Tree->GetEditingNode(), Node("B"));
}

TEST_F(TreeEditing, DeletingTheNodeOrTheTreeClosesTheEditor)
{
    Edit("A\nB\n", "A");
    Node("A")->Delete();
    EXPECT_FALSE(Tree->IsEditing());
    Tree->EditNode(Node("B"));
    EXPECT_TRUE(Tree->IsEditing());
    Tree->GetItems()->Clear();
    EXPECT_FALSE(Tree->IsEditing());
    EXPECT_THAT(Log, testing::Not(testing::Contains(testing::StartsWith("edited"))));
}

TEST_F(TreeEditing, HandlersMayDeleteTheNodeClearOrFree)
{
    for (const int What : {0, 1, 2})
        for (const bool WhenAsked : {false, true}) {
            if (!Tree) {
                Tree = vcl::New<TProbeTree>(Form);
                Tree->SetBounds(10, 10, 300, 200);
                Tree->SetParent(Form);
            }
            Show("A\nB\n");
            Tree->SetFocus();
            const auto Kill = [this, What](TKSTreeNode* About) {
                if (What == 0)
                    About->Delete();
                else if (What == 1)
                    Tree->GetItems()->Clear();
                else
                    delete std::exchange(Tree, nullptr);
            };
            if (WhenAsked)
                Tree->OnEditing = [&](vcl::TObject*, TKSTreeNode* About, bool&) { Kill(About); };
            else
                Tree->OnEdited = [&](vcl::TObject*, TKSTreeNode* About, vcl::AnsiString&) { Kill(About); };
            Tree->EditNode(Node("A"));
            if (!WhenAsked) {
                Windows().Type("x");
                Other->SetFocus();
                Windows().ProcessMessages();
            }
            if (Tree) {
                EXPECT_FALSE(Tree->IsEditing()) << What << WhenAsked;
                EXPECT_EQ(Tree->GetItems()->GetCount(), What == 0 ? 1 : 0);
                Tree->OnEditing = nullptr;
                Tree->OnEdited = nullptr;
            }
        }
}

} // namespace
