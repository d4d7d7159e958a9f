#include "KSTreeView/view/EditingFixture.h"

using testing::ElementsAre;

namespace
{

class TreeEditorKeys : public TTreeEditingTest
{
};

TEST_F(TreeEditorKeys, ReturnIsToldAndThenPressesAndReleasesTheViewsCorner)
{
    Edit("A\nB\n", "A");
    Log.clear();
    const auto Note = [this](const char* What) {
        return [this, What](vcl::TObject*, vcl::TMouseButton, vcl::TShiftState, int X, int Y) {
            Log.push_back(What + std::to_string(X) + "," + std::to_string(Y));
        };
    };
    Tree->OnMouseDown = Note("down ");
    Tree->OnMouseUp = Note("up ");
    Tree->OnClick = [this](vcl::TObject*) { Log.push_back("click"); };
    Tree->OnKeyPress = [this](vcl::TObject*, char32_t& Char) {
        Log.push_back("key " + std::to_string(static_cast<unsigned>(Char)));
    };
    Key(vcl::VK_RETURN);
    EXPECT_THAT(Log, ElementsAre("key 13"));
    Windows().ProcessMessages();
    EXPECT_THAT(Log, ElementsAre("key 13", "down 0,0", "edited A to A", "click", "up 0,0"));
}

TEST_F(TreeEditorKeys, TheViewsHandlerMayChangeOrEatACharacter)
{
    Edit("A\nB\n", "A");
    Tree->OnKeyPress = [](vcl::TObject*, char32_t& Char) {
        Char = Char == U'x' ? U'y' : Char == U'z' ? U'\0' : Char;
    };
    Type("xza");
    EXPECT_EQ(Tree->GetEditor()->GetText(), "ya");
}

TEST_F(TreeEditorKeys, TheViewsHandlerMayEatAKey)
{
    Edit("Alpha\nB\n", "Alpha");
    Tree->GetEditor()->SetSelStart(3);
    Tree->OnKeyDown = [](vcl::TObject*, std::uint16_t& Code, vcl::TShiftState) {
        if (Code == vcl::VK_HOME)
            Code = 0;
    };
    Key(vcl::VK_HOME);
    EXPECT_EQ(Tree->GetEditor()->GetSelStart(), 3);
    Key(vcl::VK_LEFT);
    EXPECT_EQ(Tree->GetEditor()->GetSelStart(), 2) << "other keys are the editor's";
}

TEST_F(TreeEditorKeys, EscapeReachesTheViewsHandlerOnce)
{
    Edit("A\nB\n", "A");
    Type("New");
    Tree->OnKeyDown = [this](vcl::TObject* Sender, std::uint16_t& Code, vcl::TShiftState) {
        EXPECT_EQ(Sender, Tree);
        EXPECT_FALSE(Tree->IsEditing()) << "it has closed the editor already";
        Log.push_back(std::to_string(Code));
    };
    Log.clear();
    Key(vcl::VK_ESCAPE);
    EXPECT_THAT(Log, ElementsAre("27"));
    EXPECT_NE(Node("A"), nullptr);
}

TEST_F(TreeEditorKeys, AnArrowMovesTheCaretAndNotTheSelection)
{
    Edit("Alpha\nB\n", "Alpha");
    Tree->GetEditor()->SetSelStart(0);
    Key(vcl::VK_RIGHT);
    EXPECT_EQ(Tree->GetEditor()->GetSelStart(), 1);
    EXPECT_EQ(Selected(), "Alpha");
    EXPECT_TRUE(Tree->IsEditing());
}

} // namespace
