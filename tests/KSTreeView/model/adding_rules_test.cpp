#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <type_traits>

#include "KSTreeView/model/FakeTree.h"

using testing::ElementsAre;

namespace
{

static_assert(std::is_base_of_v<vcl::Exception, EKSTreeViewError>, "programs catch it as such");

TEST(AddingAChild, FirstWithoutAParentStandsFirstAtTheTop)
{
    TFakeTree Tree;
    Tree.Fill({"A", " A1"});
    Tree.Items().AddChildFirst(nullptr, "Z");
    EXPECT_EQ(Tree.Outline(), "0Z 0A 1A1");
    EXPECT_EQ(Tree.Items().GetFirstNode()->GetText(), "Z");
    EXPECT_EQ(Tree.Items().GetLastTopNode()->GetText(), "A");
}

TEST(AddingAChild, MarksItsParentAsHavingChildrenHoweverItIsAdded)
{
    TFakeTree Tree;
    Tree.Fill({"A", " A1"});
    TKSTreeNode* const A = Tree.Find("A");
    TKSTreeNode* const A1 = Tree.Find("A1");
    const std::vector<std::function<void()>> Additions = {
        [&] { Tree.Items().Add(A1, "x"); },     [&] { Tree.Items().AddFirst(A1, "x"); },
        [&] { Tree.Items().AddChild(A, "x"); }, [&] { Tree.Items().AddChildFirst(A, "x"); },
        [&] { Tree.Items().Insert(A1, "x"); },
    };
    for (const bool IsUpdating : {false, true}) {
        if (IsUpdating)
            Tree.Items().BeginUpdate();
        for (const auto& AddOne : Additions) {
            A->SetHasChildren(false);
            AddOne();
            EXPECT_TRUE(A->GetHasChildren()) << &AddOne - Additions.data() << IsUpdating;
        }
    }
    Tree.Items().EndUpdate();
}

TEST(AddingAChild, ByInsertDrawsItAndThenItsNewlyMarkedParent)
{
    TFakeTree Tree;
    Tree.Fill({"A", " A1"});
    Tree.Find("A")->SetHasChildren(false);
    Tree.Log.clear();
    Tree.Items().Insert(Tree.Find("A1"), "x");
    EXPECT_THAT(Tree.Log, ElementsAre("image x", "image A"));
    EXPECT_EQ(Tree.Outline(), "0A 1x 1A1");
}

TEST(AnEmptyCollection, HasNoFirstItem)
{
    TKSTreeNodes Nodes;
    try {
        Nodes[0];
        ADD_FAILURE();
    } catch (const vcl::Exception& Error) {
        EXPECT_STREQ(Error.what(), "Invalid Index");
    }
}

} // namespace
