#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <memory>

#include "KSTreeView/model/FakeTree.h"

using testing::ElementsAre;
using testing::IsEmpty;

namespace
{

TEST(Selecting, AsksWithTheOldNodeAndTellsWithTheNew)
{
    TFakeTree Tree;
    Tree.Fill({"A", "B"});
    Tree.SelectNode(Tree.Find("A"));
    EXPECT_THAT(Tree.Log, ElementsAre("change A", "image A", "scroll to A"));
    Tree.Log.clear();
    Tree.SelectNode(Tree.Find("B"));
    EXPECT_THAT(Tree.Log, ElementsAre("changing A", "image A", "change B", "image B", "scroll to B"));
    EXPECT_FALSE(Tree.Find("A")->GetSelected());
    EXPECT_TRUE(Tree.Find("B")->GetSelected());
    Tree.Log.clear();
    Tree.SelectNode(Tree.Find("B"));
    EXPECT_THAT(Tree.Log, IsEmpty());
}

TEST(Selecting, AVetoKeepsTheOldNode)
{
    TFakeTree Tree;
    Tree.Fill({"A", "B"});
    Tree.SelectNode(Tree.Find("A"));
    Tree.OnChanging = [](TKSTreeNode*) { return false; };
    Tree.SelectNode(Tree.Find("B"));
    EXPECT_EQ(Tree.Selected(), Tree.Find("A"));
    EXPECT_TRUE(Tree.Find("A")->GetSelected());
    EXPECT_FALSE(Tree.Find("B")->GetSelected());
}

TEST(Selecting, NullAsksButTellsNobody)
{
    TFakeTree Tree;
    Tree.Fill({"A"});
    Tree.SelectNode(Tree.Find("A"));
    Tree.Log.clear();
    Tree.SelectNode(nullptr);
    EXPECT_THAT(Tree.Log, ElementsAre("changing A", "image A"));
    EXPECT_EQ(Tree.Selected(), nullptr);
}

TEST(Selecting, WhileTellingTheOldNodeIsStillTheViewsSelectedOne)
{
    TFakeTree Tree;
    Tree.Fill({"A", "B"});
    Tree.SelectNode(Tree.Find("A"));
    TKSTreeNode* Seen = nullptr;
    Tree.OnChange = [&](TKSTreeNode*) { Seen = Tree.Selected(); };
    Tree.SelectNode(Tree.Find("B"));
    EXPECT_EQ(Seen, Tree.Find("A"));
}

TEST(Selecting, AHandlerMayDeleteEitherNodeOrAll)
{
    for (const char* Victim : {"A", "B", "*"})
        for (const bool WhenAsked : {true, false}) {
            TFakeTree Tree;
            Tree.Fill({"A", "B"});
            Tree.SelectNode(Tree.Find("A"));
            const auto Kill = [&] {
                if (*Victim == '*')
                    Tree.Items().Clear();
                else if (TKSTreeNode* const Node = Tree.Find(Victim))
                    Node->Delete();
            };
            if (WhenAsked)
                Tree.OnChanging = [&](TKSTreeNode*) {
                    Kill();
                    return true;
                };
            else
                Tree.OnChange = [&](TKSTreeNode*) { Kill(); };
            Tree.SelectNode(Tree.Find("B"));
            const TKSTreeNode* const Expected = *Victim == 'A' ? Tree.Find("B") : nullptr;
            if (*Victim == 'B' && WhenAsked) {
                EXPECT_EQ(Tree.Selected(), Tree.Find("A"));
            } else {
                EXPECT_EQ(Tree.Selected(), Expected) << Victim << WhenAsked;
            }
        }
}

TEST(Selecting, AHandlerMayFreeTheTree)
{
    for (const bool WhenAsked : {true, false}) {
        auto Tree = std::make_unique<TFakeTree>();
        Tree->Fill({"A", "B"});
        Tree->SelectNode(Tree->Find("A"));
        Tree->OnChanging = [&](TKSTreeNode*) {
            if (WhenAsked)
                delete Tree.release();
            return true;
        };
        Tree->OnChange = [&](TKSTreeNode*) { delete Tree.release(); };
        Tree->SelectNode(Tree->Find("B"));
        EXPECT_EQ(Tree, nullptr);
    }
}

TEST(Selecting, FocusMovesWithOneRedrawEach)
{
    TFakeTree Tree;
    Tree.Fill({"A", "B"});
    Tree.FocusNode(Tree.Find("A"));
    Tree.FocusNode(Tree.Find("B"));
    EXPECT_THAT(Tree.Log, ElementsAre("image A", "image A", "image B"));
    EXPECT_FALSE(Tree.Find("A")->GetFocused());
    EXPECT_TRUE(Tree.Find("B")->GetFocused());
}

TEST(Selecting, SettingFocusedFocusesWhateverTheValueIs)
{
    TFakeTree Tree;
    Tree.Fill({"A", "B"});
    Tree.Find("A")->SetFocused(false);
    EXPECT_TRUE(Tree.Find("A")->GetFocused());
}

TEST(Selecting, SettingSelectedSelectsAndDeselects)
{
    TFakeTree Tree;
    Tree.Fill({"A", "B"});
    Tree.Find("A")->SetSelected(true);
    Tree.Find("B")->SetSelected(false);
    EXPECT_EQ(Tree.Selected(), Tree.Find("A"));
    Tree.Find("A")->SetSelected(false);
    EXPECT_EQ(Tree.Selected(), nullptr);
}

} // namespace
