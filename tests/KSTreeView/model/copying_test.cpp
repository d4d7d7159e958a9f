#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "KSTreeView/model/FakeTree.h"

namespace
{

TEST(CopyingACollection, ReplacesTheNodesThatWereThere)
{
    TFakeTree Source;
    Source.Fill({"A", " A1"});
    TFakeTree Target;
    Target.Fill({"old", " older", "oldest"});
    Target.Items().Assign(&Source.Items());
    EXPECT_EQ(Target.Outline(), "0A 1A1");
    EXPECT_EQ(Target.Items().GetCount(), 2);
    EXPECT_EQ(Target.Items().GetTopCount(), 1);
    EXPECT_THAT(Target.Log, testing::Contains("deleting older"));
}

TEST(CopyingACollection, BringsTheValuesOfNestedNodes)
{
    TFakeTree Source;
    Source.Fill({"A", " A1", "  A11"});
    TKSTreeNode* const Deep = Source.Find("A11");
    Deep->SetImageIndex(7);
    Deep->SetIntData(-8);
    Deep->SetStringData("nine");
    Deep->SetData(&Source);
    TFakeTree Target;
    Target.Items().Assign(&Source.Items());
    const TKSTreeNode* const Copy = Target.Find("A11");
    ASSERT_NE(Copy, nullptr);
    EXPECT_EQ(Copy->GetImageIndex(), 7);
    EXPECT_EQ(Copy->GetIntData(), -8);
    EXPECT_EQ(Copy->GetStringData(), "nine");
    EXPECT_EQ(Copy->GetData(), &Source);
    EXPECT_EQ(Target.Find("A1")->GetImageIndex(), -1);
    EXPECT_EQ(Target.Find("A1")->GetIntData(), 0);
    EXPECT_EQ(Target.Find("A1")->GetStringData(), "");
}

TEST(CopyingANode, DrawsNothingOfItsOwn)
{
    TFakeTree Tree;
    Tree.Fill({"A", "B"});
    Tree.Find("A")->SetImageIndex(3);
    Tree.Find("A")->SetColor(vcl::clRed);
    Tree.Find("A")->SetHasChildren(true);
    TKSTreeNode* const B = Tree.Find("B");
    Tree.FocusNode(B);
    Tree.Log.clear();
    B->Assign(Tree.Find("A"));
    EXPECT_EQ(B->GetText(), "A");
    EXPECT_THAT(Tree.Log, testing::IsEmpty());
}

TEST(CopyingANode, TakesTheColourAndWhetherItCounts)
{
    TFakeTree Tree;
    Tree.Fill({"A", "B"});
    TKSTreeNode* const A = Tree.Find("A");
    TKSTreeNode* const B = Tree.Find("B");
    A->SetColor(vcl::clRed);
    A->SetUseTreeColor(true);
    B->SetColor(vcl::clBlue);
    B->Assign(A);
    EXPECT_EQ(B->GetColor(), vcl::clRed);
    EXPECT_TRUE(B->GetUseTreeColor());
    A->SetUseTreeColor(false);
    B->Assign(A);
    EXPECT_FALSE(B->GetUseTreeColor());
}

TEST(CopyingANode, LeavesPlaceAndStatesOfTheTarget)
{
    TFakeTree Tree;
    Tree.Fill({"A", "B", " B1", "  B11"});
    TKSTreeNode* const B = Tree.Find("B");
    TKSTreeNode* const B1 = Tree.Find("B1");
    B->Expand(true);
    Tree.SelectNode(B1);
    B1->Assign(Tree.Find("A"));
    EXPECT_EQ(Tree.Outline(), "0A 0B 1A 2B11");
    EXPECT_EQ(B1->GetParent(), B);
    EXPECT_EQ(B1->GetLevel(), 1);
    EXPECT_TRUE(B1->GetSelected());
    EXPECT_TRUE(B1->GetExpanded());
    EXPECT_FALSE(B1->GetHasChildren()) << "this is copied";
    EXPECT_FALSE(Tree.Find("A")->GetSelected());
}

TEST(EqualNodes, HaveTheSameTextDataStringAndInteger)
{
    using TChange = std::function<void(TKSTreeNode&)>;
    const std::vector<TChange> Counting = {
        [](TKSTreeNode& Node) { Node.SetText("x"); },
        [](TKSTreeNode& Node) { Node.SetData(&Node); },
        [](TKSTreeNode& Node) { Node.SetStringData("x"); },
        [](TKSTreeNode& Node) { Node.SetIntData(1); },
    };
    for (const TChange& Change : Counting) {
        TKSTreeNode Left(nullptr);
        TKSTreeNode Right(nullptr);
        EXPECT_TRUE(Left.IsEqual(Right));
        Change(Right);
        EXPECT_FALSE(Left.IsEqual(Right)) << &Change - Counting.data();
        EXPECT_FALSE(Right.IsEqual(Left)) << &Change - Counting.data();
    }
}

TEST(EqualNodes, MayDifferInImageColourMarksAndChildren)
{
    TFakeTree Tree;
    Tree.Fill({"A", "A", " A1"});
    TKSTreeNode* const Plain = Tree.Items()[0];
    TKSTreeNode* const Other = Tree.Items()[1];
    Other->SetImageIndex(3);
    Other->SetColor(vcl::clRed);
    Tree.SelectNode(Other);
    Tree.FocusNode(Other);
    Other->Expand(false);
    EXPECT_TRUE(Plain->IsEqual(*Other));
    EXPECT_TRUE(Other->IsEqual(*Plain));
}

} // namespace
