#include "KSTreeView/view/TreeViewFixture.h"

#include "support/TemporaryFolder.h"
#include "vcl/classes/Properties.h"
#include "vcl/streaming/FormFile.h"

namespace
{

using testing::ElementsAre;

class TreeProperties : public TTreeViewTest
{
};

TEST_F(TreeProperties, APlainViewHasTheSizeAndTheDeclaredValues)
{
    auto* const View = vcl::New<TKSTreeView>(Form);
    EXPECT_EQ(View->GetWidth(), 121);
    EXPECT_EQ(View->GetHeight(), 97);
    EXPECT_TRUE(View->GetTabStop());
    EXPECT_EQ(View->GetColor(), vcl::clWindow);
    EXPECT_FALSE(View->GetParentColor());
    const vcl::TClass& Class = TKSTreeView::StaticClass();
    int Compared = 0;
    for (const vcl::TPropertyInfo* Row : vcl::PublishedProperties(Class)) {
        const vcl::TPropertyValue Value = Row->Get(*View);
        if (!Row->Default || std::string(Row->Name) == "TabOrder" ||
            !std::holds_alternative<std::int64_t>(Value))
            continue;
        EXPECT_EQ(std::get<std::int64_t>(Value), *Row->Default) << Row->Name;
        ++Compared;
    }
    EXPECT_GT(Compared, 30);
}

TEST_F(TreeProperties, TheTableNamesAllThatIsPublishedInOrderAndNoMore)
{
    std::vector<std::string> Names;
    for (const vcl::TPropertyInfo* Row : vcl::PublishedProperties(TKSTreeView::StaticClass()))
        Names.push_back(Row->Name);
    const std::vector<std::string> Expected = {
        "Name",
        "Tag",
        "Left",
        "Top",
        "Width",
        "Height",
        "Cursor",
        "Hint",
        "HelpContext",
        "ShowButtons",
        "BorderStyle",
        "ShowLines",
        "ShowRoot",
        "NodeWidth",
        "NodeHeight",
        "NodeColor",
        "NodePenColor",
        "NodeImageSide",
        "NodeStyle",
        "ButtonSize",
        "ButtonColor",
        "SelectedNodeColor",
        "HiddenSelectedNodeColor",
        "LineStyle",
        "LineColor",
        "VertSpacing",
        "HorzSpacing",
        "RightToLeft",
        "DefaultDrawing",
        "ReadOnly",
        "HideSelection",
        "Items",
        "Images",
        "Align",
        "Enabled",
        "Font",
        "Color",
        "ParentColor",
        "ParentCtl3D",
        "Ctl3D",
        "TabOrder",
        "TabStop",
        "Visible",
        "PopupMenu",
        "ParentFont",
        "ParentShowHint",
        "ShowHint",
        "Anchors",
        "Constraints",
        "OnClick",
        "OnEnter",
        "OnExit",
        "OnDragDrop",
        "OnDragOver",
        "OnStartDrag",
        "OnEndDrag",
        "OnMouseDown",
        "OnMouseMove",
        "OnMouseUp",
        "OnDblClick",
        "OnKeyDown",
        "OnKeyPress",
        "OnKeyUp",
        "OnCanResize",
        "OnConstrainedResize",
        "OnDockDrop",
        "OnDockOver",
        "OnEndDock",
        "OnGetSiteInfo",
        "OnResize",
        "OnStartDock",
        "OnUnDock",
        "OnDrawNode",
        "OnGetImageIndex",
        "OnDeletion",
        "OnExpanding",
        "OnExpanded",
        "OnCollapsing",
        "OnCollapsed",
        "OnChanging",
        "OnChange",
        "OnEditing",
        "OnEdited",
    };
    EXPECT_THAT(Names, testing::ElementsAreArray(Expected));
}

TEST_F(TreeProperties, NodesAreMadeByTheViewsVirtualMethod)
{
    Tree->GetItems()->AddChild(Tree->GetItems()->Add(nullptr, "A"), "B");
    Tree->GetItems()->Insert(nullptr, "C");
    EXPECT_EQ(Tree->Created, 3);
    EXPECT_EQ(Tree->GetItems()->GetFirstNode()->GetTreeView(), Tree);
    EXPECT_EQ(Tree->GetItems()->GetHandle(), Tree->GetHandle());
    EXPECT_EQ(Tree->GetItems()->GetFirstNode()->GetHandle(), Tree->GetHandle());
}

TEST_F(TreeProperties, BeforeThereIsAWindowNothingIsDrawn)
{
    Tree->OnGetImageIndex = [this](vcl::TObject*, TKSTreeNode*) { Log.push_back("image"); };
    Tree->GetItems()->Add(nullptr, "A")->SetText("B");
    Tree->SetNodeWidth(90);
    EXPECT_FALSE(Tree->HandleAllocated());
    EXPECT_THAT(Log, testing::IsEmpty());
}

TEST_F(TreeProperties, FilesKeepTheTextForm)
{
    const vcl::tests::TTemporaryFolder Folder;
    const std::string File = Folder.File("tree.txt");
    Show("A\n B\nC\n");
    Tree->SaveToFile(File);
    Tree->GetItems()->Clear();
    Tree->LoadFromFile(File);
    EXPECT_EQ(Tree->GetItems()->GetCount(), 3);
    EXPECT_EQ(Node("B")->GetParent(), Node("A"));
    EXPECT_THROW(Tree->LoadFromFile(File + ".missing"), vcl::EFOpenError);
}

TEST_F(TreeProperties, DeletingMovesTheSelectionAway)
{
    Show("A\n A1\nB\n");
    Tree->FullExpand();
    Click("A1");
    EXPECT_EQ(Tree->GetFocusedNode(), Node("A1"));
    Node("A1")->Delete();
    EXPECT_EQ(Tree->GetSelected(), nullptr);
    EXPECT_EQ(Tree->GetFocusedNode(), nullptr);
}

TEST_F(TreeProperties, FullExpandAndFullCollapseGoThroughEverything)
{
    Show("A\n A1\n  A11\nB\n B1\n");
    Tree->FullExpand();
    EXPECT_TRUE(Node("A11")->IsVisible());
    EXPECT_TRUE(Node("B1")->IsVisible());
    Tree->SelectNode(Node("A11"));
    Tree->FullCollapse();
    EXPECT_FALSE(Node("A1")->GetExpanded());
    EXPECT_EQ(Selected(), "A");
}

TEST_F(TreeProperties, AHandlerMayFreeTheViewWhileItsTreeIsCleared)
{
    Show("A\n A1\nB\n");
    int Told = 0;
    Tree->OnDeletion = [&](vcl::TObject*, TKSTreeNode*) {
        if (++Told == 2)
            delete std::exchange(Tree, nullptr);
    };
    Tree->GetItems()->Clear();
    EXPECT_EQ(Tree, nullptr);
    EXPECT_EQ(Told, 3);
}

TEST_F(TreeProperties, EveryDeletionIsToldWhenTheViewGoes)
{
    Show("A\n A1\nB\n");
    int Told = 0;
    Tree->OnDeletion = [&](vcl::TObject* Sender, TKSTreeNode*) {
        EXPECT_EQ(Sender, Tree);
        ++Told;
    };
    delete Tree;
    EXPECT_EQ(Told, 3);
}

TEST_F(TreeProperties, AWindowMadeAnewKeepsTreeScrollPositionAndSelection)
{
    Tree->SetBounds(10, 10, 150, 100);
    Show("A\nB\nC\n");
    Tree->SelectNode(Node("C"));
    const int Position = Tree->GetHorzScrollBar()->GetPosition();
    EXPECT_GT(Position, 0);
    Tree->SetBorderStyle(vcl::TBorderStyle::bsSingle);
    Windows().ProcessMessages();
    EXPECT_GE(Tree->GetHorzScrollBar()->GetPosition(), Position);
    EXPECT_EQ(Selected(), "C");
    EXPECT_LT(Tree->GetClientWidth(), 150) << "the border takes room";
}

TEST_F(TreeProperties, AFormKeepsTheViewWithItsNodes)
{
    vcl::RegisterClasses({&TKSTreeView::StaticClass()});
    auto* const Source = vcl::New<TKSTreeView>(Form);
    Source->SetName("Chart");
    Source->SetNodeStyle(TKSTVNodeStyle::nsSimple);
    Source->SetButtonSize(9);
    Source->GetItems()->AddChild(Source->GetItems()->Add(nullptr, "A"), "B");
    vcl::TMemoryStream Stream;
    vcl::WriteComponent(Stream, Source);
    Stream.SetPosition(0);
    auto* const Copy = vcl::New<TKSTreeView>(nullptr);
    vcl::ReadComponent(Stream, Copy);
    EXPECT_EQ(Copy->GetNodeStyle(), TKSTVNodeStyle::nsSimple);
    EXPECT_EQ(Copy->GetButtonSize(), 9);
    ASSERT_EQ(Copy->GetItems()->GetCount(), 2);
    EXPECT_EQ(Copy->GetItems()->GetItem(1)->GetLevel(), 1);
    const vcl::AnsiString Bytes(reinterpret_cast<const char*>(Stream.GetMemory()),
                                static_cast<std::size_t>(Stream.GetSize()));
    EXPECT_NE(Bytes.find("Items.Data"), vcl::AnsiString::npos);
    vcl::TMemoryStream Same;
    vcl::WriteComponent(Same, Source, Copy);
    EXPECT_LT(Same.GetSize(), 60) << "nothing differs from the ancestor";
    delete Copy;
}

} // namespace
