#include "KSTreeView/view/EditingFixture.h"

using testing::ElementsAre;

namespace
{

class TreeEditorClosing : public TTreeEditingTest
{
protected:
    /// Black pixels where the node's text stands: the text engine paints blocks.
    int TextPixels(const std::string& Text)
    {
        const vcl::TRect Rect = Node(Text)->DisplayRect(true);
        int Count = 0;
        for (int Y = Rect.Top; Y < Rect.Bottom; ++Y)
            for (int X = Rect.Left; X < Rect.Right; ++X)
                Count += Tree->GetCanvas()->GetPixel(X, Y) == vcl::clBlack;
        return Count;
    }
};

TEST_F(TreeEditorClosing, IsToldWhileTheNodeIsStillAsItWas)
{
    Edit("A\nB\n", "A");
    TKSTreeNode* const A = Node("A");
    Tree->OnEdited = [&](vcl::TObject* Sender, TKSTreeNode* About, vcl::AnsiString& Text) {
        EXPECT_EQ(Sender, Tree);
        EXPECT_EQ(About, A);
        EXPECT_EQ(A->GetText(), "A");
        EXPECT_TRUE(A->GetEdited());
        EXPECT_TRUE(Tree->IsEditing());
        EXPECT_EQ(Tree->GetEditingNode(), A);
        Log.push_back(Text);
    };
    Log.clear();
    Type("New");
    Tree->HideNodeEditor(true);
    EXPECT_THAT(Log, ElementsAre("New"));
    EXPECT_EQ(A->GetText(), "New");
    EXPECT_FALSE(A->GetEdited());
    EXPECT_EQ(Tree->GetEditingNode(), nullptr);
    EXPECT_EQ(Tree->GetEditor(), nullptr);
}

TEST_F(TreeEditorClosing, DrawsTheTextAgainWithoutAPainting)
{
    for (const bool Accept : {true, false}) {
        Edit("A\nB\n", "A");
        const int Before = Tree->Paintings;
        EXPECT_EQ(TextPixels("A"), 0) << "the editor stands there";
        Tree->HideNodeEditor(Accept);
        EXPECT_GT(TextPixels("A"), 0);
        EXPECT_EQ(Tree->Paintings, Before);
    }
}

TEST_F(TreeEditorClosing, EditingTheSameNodeAgainAcceptsFirst)
{
    Edit("A\nB\n", "A");
    TKSTreeNode* const A = Node("A");
    Tree->GetEditor()->SetText("X");
    Tree->EditNode(A);
    EXPECT_THAT(Log, ElementsAre("editing A", "edited A to X", "editing X"));
    ASSERT_TRUE(Tree->IsEditing());
    EXPECT_EQ(Tree->GetEditor()->GetText(), "X");
    EXPECT_EQ(Tree->GetControlCount(), 1) << "one editor";
    EXPECT_EQ(Tree->GetEditingNode(), A);
    EXPECT_TRUE(A->GetEdited());
}

TEST_F(TreeEditorClosing, AVetoLeavesNoTraceOfTheEditing)
{
    Show("A\nB\n");
    LogEvents();
    Vetoes = true;
    Tree->EditNode(Node("A"));
    EXPECT_THAT(Log, ElementsAre("editing A"));
    EXPECT_FALSE(Node("A")->GetEdited());
    EXPECT_EQ(Tree->GetEditingNode(), nullptr);
    EXPECT_EQ(Tree->GetControlCount(), 0);
}

TEST_F(TreeEditorClosing, EditingNothingAcceptsWhatIsOpen)
{
    Edit("A\nB\n", "A");
    Type("New");
    Tree->EditNode(nullptr);
    EXPECT_FALSE(Tree->IsEditing());
    EXPECT_THAT(Log, ElementsAre("editing A", "edited A to New"));
}

TEST_F(TreeEditorClosing, HappensAtOnceWhenTheViewItselfLosesTheFocus)
{
    Edit("A\nB\n", "A");
    Type("New");
    Tree->SetFocus();
    EXPECT_TRUE(Tree->IsEditing());
    Other->SetFocus();
    EXPECT_FALSE(Tree->IsEditing());
    EXPECT_NE(Node("New"), nullptr);
    EXPECT_TRUE(Other->Focused());
}

TEST_F(TreeEditorClosing, IsCompleteWhateverTheHandlerThrows)
{
    Edit("A\nB\n", "A");
    Tree->OnEdited = [](vcl::TObject*, TKSTreeNode*, vcl::AnsiString&) { throw vcl::Exception("no"); };
    Type("New");
    EXPECT_THROW(Tree->HideNodeEditor(true), vcl::Exception);
    EXPECT_FALSE(Tree->IsEditing());
    EXPECT_EQ(Tree->GetEditingNode(), nullptr);
    ASSERT_NE(Node("A"), nullptr) << "the old text stays";
    EXPECT_FALSE(Node("A")->GetEdited());
    Tree->OnEdited = nullptr;
    Tree->EditNode(Node("B"));
    ASSERT_TRUE(Tree->IsEditing());
    Tree->GetEditor()->SetText("Newer");
    Tree->HideNodeEditor(true);
    EXPECT_NE(Node("Newer"), nullptr);
}

class TreeEditorScrolling : public TTreeEditingTest
{
protected:
    TreeEditorScrolling() : TTreeEditingTest(200, 100) {}
    void EditInLargeTree()
    {
        Tree->SetNodeHeight(100);
        Edit("A\nB\nC\nD\nE\nF\n", "A");
        Tree->OnEdited = [this](vcl::TObject*, TKSTreeNode*, vcl::AnsiString&) {
            Log.push_back("edited at " + std::to_string(Tree->GetHorzScrollBar()->GetPosition()) + "," +
                          std::to_string(Tree->GetVertScrollBar()->GetPosition()));
        };
        Log.clear();
    }
};

TEST_F(TreeEditorScrolling, AcceptsBeforeItMovesAlongEitherAxis)
{
    EditInLargeTree();
    Tree->Perform(vcl::WM_VSCROLL, vcl::MakeScrollParam(vcl::SB_LINEDOWN, 0));
    EXPECT_FALSE(Tree->IsEditing());
    EXPECT_EQ(Tree->GetVertScrollBar()->GetPosition(), 8);
    Tree->EditNode(Node("A"));
    Tree->Perform(vcl::WM_HSCROLL, vcl::MakeScrollParam(vcl::SB_LINERIGHT, 0));
    EXPECT_FALSE(Tree->IsEditing());
    EXPECT_EQ(Tree->GetHorzScrollBar()->GetPosition(), 8);
    EXPECT_THAT(Log, ElementsAre("edited at 0,0", "editing A", "edited at 0,8"));
}

TEST_F(TreeEditorScrolling, TheWheelAcceptsWhereItScrolls)
{
    EditInLargeTree();
    Windows().Wheel(WindowOf(*Tree), {5, 5}, -120);
    EXPECT_FALSE(Tree->IsEditing());
    EXPECT_EQ(Tree->GetVertScrollBar()->GetPosition(), 40);
    Tree->EditNode(Node("A"));
    Tree->Perform(vcl::WM_MOUSEHWHEEL, vcl::MakeWheelParam(0, 120));
    EXPECT_FALSE(Tree->IsEditing());
    EXPECT_THAT(Log, ElementsAre("edited at 0,0", "editing A", "edited at 0,40"));
}

TEST_F(TreeEditorClosing, TheWheelGoesToTheParentWhereNothingScrolls)
{
    Edit("A\nB\n", "A");
    int Turns = 0;
    Form->OnMouseWheel = [&](vcl::TObject*, vcl::TShiftState, int, vcl::TPoint, bool&) { ++Turns; };
    Windows().Wheel(WindowOf(*Tree), {5, 5}, -120);
    EXPECT_EQ(Turns, 1);
    EXPECT_TRUE(Tree->IsEditing());
}

TEST_F(TreeEditorScrolling, AHandlerThatMeddlesIsToldOnlyOnce)
{
    const std::vector<std::function<void()>> Meddlings = {
        [this] { Tree->HideNodeEditor(true); },
        [this] { Tree->EditNode(Node("B")); },
        [this] { Tree->GetItems()->Clear(); },
    };
    for (const auto& Meddle : Meddlings)
        for (const bool AtTheChange : {false, true}) {
            Edit("A\nB\nC\nD\n", "A");
            int Told = 0;
            Tree->OnEdited = [&](vcl::TObject*, TKSTreeNode*, vcl::AnsiString&) {
                ++Told;
                if (AtTheChange)
                    Tree->SelectNode(Node("C"));
                else
                    Meddle();
            };
            Tree->OnChange = [&](vcl::TObject*, TKSTreeNode*) { Meddle(); };
            Tree->Perform(vcl::WM_HSCROLL, vcl::MakeScrollParam(vcl::SB_LINERIGHT, 0));
            EXPECT_EQ(Told, 1);
            EXPECT_FALSE(Tree->IsEditing());
            EXPECT_EQ(Tree->GetControlCount(), 0);
            Tree->OnChange = nullptr;
            Tree->OnEdited = nullptr;
        }
}

} // namespace
