#include "KSTreeView/view/TreeViewFixture.h"

#include "support/TemporaryFolder.h"

using testing::ElementsAre;

namespace
{

class TreeNodesInView : public TTreeViewTest
{
protected:
    static std::string BytesOf(const std::string& File)
    {
        vcl::TMemoryStream Stream;
        Stream.LoadFromFile(File);
        return {reinterpret_cast<const char*>(Stream.GetMemory()),
                static_cast<std::size_t>(Stream.GetSize())};
    }
    std::string Outline()
    {
        std::string Result;
        for (const TKSTreeNode* Node = Tree->GetItems()->GetFirstNode(); Node; Node = Node->GetNext())
            Result += std::to_string(Node->GetLevel()) + Node->GetText() + " ";
        return Result;
    }
};

TEST_F(TreeNodesInView, AreCountedAfterTheRefreshThatShowsThem)
{
    Show("A\n");
    Tree->OnGetImageIndex = [this](vcl::TObject*, TKSTreeNode* About) {
        Log.push_back(About->GetText() + " of " + std::to_string(Tree->GetItems()->GetCount()));
    };
    Tree->GetItems()->Add(nullptr, "B");
    EXPECT_THAT(Log, ElementsAre("A of 1", "B of 1"));
    EXPECT_EQ(Tree->GetItems()->GetCount(), 2);
}

TEST_F(TreeNodesInView, HaveTheirTextFivePixelsInsideTheBox)
{
    Show("A\nB\n");
    EXPECT_EQ(Node("A")->DisplayRect(false), (vcl::TRect{80, 85, 140, 115}));
    EXPECT_EQ(Node("A")->DisplayRect(true), (vcl::TRect{85, 90, 135, 110}));
}

TEST_F(TreeNodesInView, AChainIsReadIntoAShownViewHoweverLongItIs)
{
    constexpr int Count = 200'000;
    TKSTreeNodes Chain;
    TKSTreeNode* Last = nullptr;
    for (int Index = 0; Index < Count; ++Index)
        Last = Chain.AddChild(Last, "x");
    vcl::TMemoryStream Stream;
    Chain.WriteData(Stream);
    Stream.SetPosition(0);
    Show("A\n");
    const int Before = Tree->Paintings;
    Tree->GetItems()->ReadData(Stream);
    EXPECT_EQ(Tree->Paintings, Before + 2) << "emptied and filled";
    EXPECT_EQ(Tree->GetItems()->GetCount(), Count);
    EXPECT_EQ(Tree->GetItems()->GetItem(Count - 1)->GetLevel(), Count - 1);
    EXPECT_EQ(Tree->GetMaxLevel(), 0) << "all collapsed";
}

TEST_F(TreeNodesInView, AreSavedOverALongerFile)
{
    const vcl::tests::TTemporaryFolder Folder;
    const std::string File = Folder.File("tree.txt");
    Show("A long first line\n And a second\n  And a third\n");
    Tree->SaveToFile(File);
    Show("A\n B\n  C\nD\n");
    Tree->SaveToFile(File);
    EXPECT_EQ(BytesOf(File), "A\r\n\tB\r\n\t\tC\r\nD\r\n");
}

TEST_F(TreeNodesInView, StayWhenTheFileToLoadIsMissing)
{
    const vcl::tests::TTemporaryFolder Folder;
    Show("A\n B\n");
    LogEvents();
    EXPECT_THROW(Tree->LoadFromFile(Folder.File("missing.txt")), vcl::EFOpenError);
    EXPECT_EQ(Outline(), "0A 1B ");
    EXPECT_THAT(Log, testing::IsEmpty());
}

} // namespace
