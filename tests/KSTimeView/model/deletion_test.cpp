#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <memory>

#include "KSTimeView/model/FakeView.h"

using testing::ElementsAre;
using testing::IsEmpty;

namespace
{

TEST(Deletion, ClosesTheEditorClearsTheSelectionTellsAndLeavesInThisOrder)
{
    TFakeView View;
    TKSTimeViewItem* const Item = View.Add(10, 12);
    Item->SetCaption("Lunch");
    View.Editing = Item;
    View.Selection = Item;
    View.Log.clear();
    View.OnDeletion = [&](TKSTimeViewItem* Leaving) {
        EXPECT_EQ(Leaving, Item);
        EXPECT_EQ(View.Selection, nullptr);
        EXPECT_EQ(View.Items().GetCount(), 1);
        EXPECT_EQ(View.Day(0)->GetCount(), 1);
    };
    Item->Delete();
    EXPECT_THAT(View.Log, ElementsAre("hide editor", "clear selection", "deleting Lunch", "repaint"));
    EXPECT_EQ(View.Items().GetCount(), 0);
    EXPECT_EQ(View.Day(0)->GetCount(), 0);
}

TEST(Deletion, RepaintsWhenTheItemIsGoneFromDaysAndCollectionAndTheOthersAreLaidOut)
{
    TFakeView View;
    TKSTimeViewItem* const Item = View.Add(10, 12);
    TKSTimeViewItem* const Other = View.Add(10, 12);
    ASSERT_EQ(Other->GetColumn(0), 1);
    int Repaints = 0;
    View.OnRepaint = [&] {
        ++Repaints;
        EXPECT_EQ(View.Day(0)->GetCount(), 1);
        EXPECT_EQ(View.Items().GetCount(), 1);
        EXPECT_EQ(View.Items().FirstItem(), Other);
        EXPECT_EQ(Other->GetColumn(0), 0);
    };
    Item->Delete();
    EXPECT_EQ(Repaints, 1);
    View.OnRepaint = nullptr;
}

TEST(Deletion, OfAnotherItemLeavesTheSelection)
{
    TFakeView View;
    TKSTimeViewItem* const Selected = View.Add(10, 12);
    View.Selection = Selected;
    View.Add(13, 14)->Delete();
    EXPECT_EQ(View.Selection, Selected);
}

TEST(Deletion, AnItemOnItsWayOutIsNotStaying)
{
    TFakeView View;
    TKSTimeViewItem* const Item = View.Add(10, 12);
    EXPECT_TRUE(Item->IsStaying());
    View.OnDeletion = [](TKSTimeViewItem* Leaving) {
        EXPECT_TRUE(Leaving->IsInCollection());
        EXPECT_FALSE(Leaving->IsStaying());
    };
    Item->Delete();
}

TEST(Deletion, LeavesTheEditorOpenUnderItsGuard)
{
    TFakeView View;
    TKSTimeViewItem* const Item = View.Add(10, 12);
    View.Editing = Item;
    Item->SetEditorGuard(1);
    View.Log.clear();
    delete Item;
    EXPECT_THAT(View.Log, ElementsAre("deleting ", "repaint"));
}

TEST(Deletion, OfADetachedItemTellsNobody)
{
    TFakeView View;
    delete vcl::New<TKSTimeViewItem>(&View.Items());
    EXPECT_THAT(View.Log, IsEmpty());
}

TEST(Deletion, AHandlerMayDeleteTheItemItIsToldAbout)
{
    TFakeView View;
    int Calls = 0;
    View.OnDeletion = [&](TKSTimeViewItem* Item) {
        ++Calls;
        delete Item;
        Item->Delete();
        View.Items().Delete(Item);
    };
    View.Add(10, 12)->Delete();
    delete View.Add(10, 12);
    View.Items().Delete(View.Add(10, 12));
    EXPECT_EQ(Calls, 3);
    EXPECT_EQ(View.Items().GetCount(), 0);
}

TEST(Deletion, AHandlerMayDeleteOtherItemsOrAllOfThem)
{
    TFakeView View;
    for (int Index = 0; Index < 10; ++Index)
        View.Add(10, 12);
    View.OnDeletion = [&](TKSTimeViewItem* Item) {
        if (View.Items().LastItem() != Item)
            View.Items().LastItem()->Delete();
    };
    View.Items().Clear();
    EXPECT_EQ(View.Items().GetCount(), 0);

    for (int Index = 0; Index < 10; ++Index)
        View.Add(10, 12);
    View.OnDeletion = [&](TKSTimeViewItem*) { View.Items().Clear(); };
    View.Items()[4]->Delete();
    EXPECT_EQ(View.Items().GetCount(), 0);
    EXPECT_FALSE(View.Items().IsUpdating());
}

TEST(Deletion, AHandlerMayFreeTheView)
{
    auto View = std::make_unique<TFakeView>();
    TKSTimeViewItem* const Item = View->Add(10, 12);
    View->Add(10, 12);
    View->OnDeletion = [&](TKSTimeViewItem*) {
        if (TFakeView* const Once = View.release()) {
            Once->OnDeletion = nullptr;
            delete Once;
        }
    };
    Item->Delete();
    EXPECT_EQ(View, nullptr);
}

TEST(Deletion, AHandlerMayFreeTheViewWhileItClears)
{
    auto View = std::make_unique<TFakeView>();
    for (int Index = 0; Index < 10; ++Index)
        View->Add(10, 12);
    int Calls = 0;
    View->OnDeletion = [&](TKSTimeViewItem*) {
        if (++Calls == 3)
            delete View.release();
    };
    View->Items().Clear();
    EXPECT_EQ(View, nullptr);
    EXPECT_EQ(Calls, 10);
}

TEST(Deletion, WhatAHandlerThrowsComesOutAfterTheItemIsGone)
{
    TFakeView View;
    TKSTimeViewItem* const Item = View.Add(10, 12);
    View.Add(10, 12);
    View.OnDeletion = [](TKSTimeViewItem*) { throw vcl::Exception("no"); };
    EXPECT_THROW(Item->Delete(), vcl::Exception);
    EXPECT_EQ(View.Items().GetCount(), 1);
    EXPECT_THROW(View.Items().Clear(), vcl::Exception);
    EXPECT_EQ(View.Items().GetCount(), 0);
    EXPECT_FALSE(View.Items().IsUpdating());
}

TEST(Deletion, WhatAHandlerThrowsUnderDeleteIsReported)
{
    TFakeView View;
    TKSTimeViewItem* const Item = View.Add(10, 12);
    View.OnDeletion = [](TKSTimeViewItem*) { throw vcl::Exception("no"); };
    View.Log.clear();
    delete Item;
    EXPECT_THAT(View.Log, ElementsAre("deleting ", "repaint", "failure"));
    EXPECT_EQ(View.Items().GetCount(), 0);
}

TEST(Deletion, TellsOfEveryItemWhenTheViewGoes)
{
    int Calls = 0;
    {
        TFakeView View;
        View.Add(10, 12);
        View.Add(10, 12);
        View.OnDeletion = [&](TKSTimeViewItem*) { ++Calls; };
    }
    EXPECT_EQ(Calls, 2);
}

} // namespace
