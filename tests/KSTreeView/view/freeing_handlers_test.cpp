#include "KSTreeView/view/EditingFixture.h"

// Handlers that free the view in the middle of what it does. Under the address sanitizer each would tell of
// anything that is touched afterwards.

namespace
{

class TreeFreedByItsHandlers : public TTreeEditingTest
{
protected:
    using TStep = std::function<void()>;

    void Free() { delete std::exchange(Tree, nullptr); }
    template <class TEvent, class TOwner>
    void FreeAt(TEvent TOwner::*Event)
    {
        Tree->*Event = [this](auto&&...) { Free(); };
    }
    void NewTree()
    {
        Tree = vcl::New<TProbeTree>(Form);
        Tree->SetBorderStyle(vcl::TBorderStyle::bsNone);
        Tree->SetBounds(10, 10, 300, 200);
        Tree->SetParent(Form);
    }
    /// Arranges the handler in a tree with A selected and the focus, takes the step, and expects the tree
    /// gone.
    void Expect(const char* What, const TStep& Arrange, const TStep& Step)
    {
        if (!Tree)
            NewTree();
        Show("A\n A1\nB\n B1\n");
        Node("B")->Expand(false);
        Tree->SetFocus();
        Tree->SelectNode(Node("A"));
        Arrange();
        Step();
        Windows().ProcessMessages();
        EXPECT_EQ(Tree, nullptr) << What;
    }
    void EditA()
    {
        Node("A")->EditText();
        Windows().ProcessMessages();
        ASSERT_TRUE(Tree->IsEditing());
    }
};

TEST_F(TreeFreedByItsHandlers, WhileANodeExpands)
{
    const std::vector<std::pair<const char*, TStep>> Steps = {
        {"button", [this] { Click(Middle(Node("A")->ButtonRect())); }},
        {"arrow", [this] { Key(vcl::VK_DOWN); }},
        {"sign", [this] { Windows().Type("+"); }},
        {"star", [this] { Windows().Type("*"); }},
        {"double click", [this] { Windows().MouseDoubleClick(WindowOf(*Tree), At("A")); }},
        {"double click on the button",
         [this] { Windows().MouseDoubleClick(WindowOf(*Tree), Middle(Node("A")->ButtonRect())); }},
    };
    for (const auto& [Name, Step] : Steps) {
        Expect(
            Name, [this] { FreeAt(&TProbeTree::OnExpanding); }, Step);
        Expect(
            Name, [this] { FreeAt(&TProbeTree::OnExpanded); }, Step);
    }
}

TEST_F(TreeFreedByItsHandlers, WhileANodeCollapses)
{
    const auto Arrange = [this](auto Event) {
        return [this, Event] {
            Node("A")->Expand(false);
            FreeAt(Event);
        };
    };
    const std::vector<std::pair<const char*, TStep>> Steps = {
        {"button", [this] { Click(Middle(Node("A")->ButtonRect())); }},
        {"arrow", [this] { Key(vcl::VK_UP); }},
        {"sign", [this] { Windows().Type("-"); }},
        {"double click", [this] { Windows().MouseDoubleClick(WindowOf(*Tree), At("A")); }},
    };
    for (const auto& [Name, Step] : Steps) {
        Expect(Name, Arrange(&TProbeTree::OnCollapsing), Step);
        Expect(Name, Arrange(&TProbeTree::OnCollapsed), Step);
    }
}

TEST_F(TreeFreedByItsHandlers, WhenAKeyIsTold)
{
    for (const std::uint16_t Code : {vcl::VK_HOME, vcl::VK_END, vcl::VK_NEXT, vcl::VK_F2, vcl::VK_ESCAPE})
        Expect(
            "key", [this] { FreeAt(&TProbeTree::OnKeyDown); }, [this, Code] { Key(Code); });
    for (const char* Text : {"+", "*", "b"})
        Expect(
            Text, [this] { FreeAt(&TProbeTree::OnKeyPress); }, [this, Text] { Windows().Type(Text); });
}

TEST_F(TreeFreedByItsHandlers, WhenAKeyOfTheEditorIsTold)
{
    const auto Arrange = [this](auto Event) {
        return [this, Event] {
            EditA();
            FreeAt(Event);
        };
    };
    for (const std::uint16_t Code : {vcl::VK_HOME, vcl::VK_ESCAPE})
        Expect("key", Arrange(&TProbeTree::OnKeyDown), [this, Code] { Key(Code); });
    Expect("character", Arrange(&TProbeTree::OnKeyPress), [this] { Type("x"); });
    Expect("return", Arrange(&TProbeTree::OnKeyPress), [this] { Key(vcl::VK_RETURN); });
}

TEST_F(TreeFreedByItsHandlers, WhenAnEditingIsAskedFor)
{
    const auto Arrange = [this] { FreeAt(&TProbeTree::OnEditing); };
    Expect("F2", Arrange, [this] { Key(vcl::VK_F2); });
    Expect("timer", Arrange, [this] {
        Click("A");
        Click("A");
        Windows().Advance(500);
    });
}

TEST_F(TreeFreedByItsHandlers, WhenTheEditorCloses)
{
    const auto Arrange = [this] {
        EditA();
        FreeAt(&TProbeTree::OnEdited);
    };
    Expect("return", Arrange, [this] { Key(vcl::VK_RETURN); });
    Expect("tab", Arrange, [this] { Key(vcl::VK_TAB); });
    Expect("tab in the view", Arrange, [this] {
        std::uint16_t Code = vcl::VK_TAB;
        Tree->KeyDown(Code, {});
    });
    Expect("focus", Arrange, [this] {
        Tree->SetFocus();
        Other->SetFocus();
    });
    Expect("click", Arrange, [this] { Click("B"); });
    Expect("another node", Arrange, [this] { Tree->EditNode(Node("B")); });
    for (const unsigned Msg : {vcl::WM_HSCROLL, vcl::WM_VSCROLL})
        Expect("scroll bar", Arrange,
               [this, Msg] { Tree->Perform(Msg, vcl::MakeScrollParam(vcl::SB_LINEDOWN, 0)); });
}

TEST_F(TreeFreedByItsHandlers, WhenTheMouseIsTold)
{
    Expect(
        "wheel", [this] { FreeAt(&TProbeTree::OnMouseWheel); },
        [this] {
            Windows().Wheel(WindowOf(*Tree), {5, 5}, -120);
        });
    Expect(
        "panning", [this] { FreeAt(&TProbeTree::OnMouseMove); },
        [this] {
            Windows().MouseDown(WindowOf(*Tree), {1, 1});
            Windows().MouseMove(WindowOf(*Tree), {9, 9}, vcl::MK_LBUTTON);
        });
    Expect(
        "release", [this] { FreeAt(&TProbeTree::OnMouseUp); }, [this] { Click("A"); });
    Expect(
        "double click", [this] { FreeAt(&TProbeTree::OnDblClick); },
        [this] { Windows().MouseDoubleClick(WindowOf(*Tree), At("A")); });
}

TEST_F(TreeFreedByItsHandlers, WhileANodeIsDragged)
{
    const auto Arrange = [this](auto Event) {
        return [this, Event] {
            Tree->SetDragMode(vcl::TDragMode::dmAutomatic);
            Tree->OnDragOver = [](vcl::TObject*, vcl::TObject*, int, int, vcl::TDragState, bool& Accept) {
                Accept = true;
            };
            FreeAt(Event);
        };
    };
    const TStep Drag = [this] {
        vcl::record::TWindow& Window = WindowOf(*Tree);
        const vcl::TPoint From = At("A");
        const vcl::TPoint To = At("B");
        Windows().MouseDown(Window, From);
        Windows().MouseMove(Window, {From.X + 10, From.Y}, vcl::MK_LBUTTON);
        if (Tree)
            Windows().MouseUp(Window, To);
    };
    Expect("start", Arrange(&TProbeTree::OnStartDrag), Drag);
    Expect("over", Arrange(&TProbeTree::OnDragOver), Drag);
    Expect("drop", Arrange(&TProbeTree::OnDragDrop), Drag);
    Expect("end", Arrange(&TProbeTree::OnEndDrag), Drag);
}

} // namespace
