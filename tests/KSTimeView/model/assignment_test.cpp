#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "KSTimeView/model/FakeView.h"

using testing::IsEmpty;

namespace
{

constexpr double Monday = TFakeView::Monday;

TEST(ItemAssignment, TakesTheAllDayFlagButNotTheRow)
{
    TFakeView View(2);
    TKSTimeViewItem* const OnMonday = View.Add(0, 24, true);
    View.Add(24, 48, true);
    TKSTimeViewItem* const OnTuesday = View.Add(24, 48, true);
    TKSTimeViewItem* const Timed = View.Add(10, 12);
    ASSERT_EQ(OnTuesday->GetAllDayRow(), 1);
    OnMonday->Assign(OnTuesday);
    EXPECT_EQ(OnMonday->GetAllDayRow(), 0);
    Timed->Assign(OnTuesday);
    EXPECT_TRUE(Timed->GetAllDay());
    EXPECT_EQ(Timed->GetAllDayRow(), -1);
    TKSTimeViewItem Copy(nullptr);
    Copy.Assign(OnTuesday);
    EXPECT_TRUE(Copy.GetAllDay());
    EXPECT_EQ(Copy.GetAllDayRow(), 0);
    Copy.Assign(View.Add(1, 2));
    EXPECT_FALSE(Copy.GetAllDay());
}

TEST(ItemAssignment, TakesNeitherTheDragFlagNorTheEditorsGuard)
{
    TKSTimeViewItem Source(nullptr);
    Source.SetDragOutside(true);
    Source.SetEditorGuard(5);
    TKSTimeViewItem Copy(nullptr);
    Copy.Assign(&Source);
    EXPECT_FALSE(Copy.GetDragOutside());
    EXPECT_EQ(Copy.GetEditorGuard(), 0);
    const TKSTimeViewItem Plain(nullptr);
    Source.Assign(&Plain);
    EXPECT_TRUE(Source.GetDragOutside());
    EXPECT_EQ(Source.GetEditorGuard(), 5);
}

TEST(ItemAssignment, TakesTimesAsTheyAreEvenWhenTheEndComesFirst)
{
    TFakeView View;
    const TKSTimeViewItem* const Reversed = View.Items().Add("", 5.5, 5.25, false);
    TKSTimeViewItem* const Target = View.Add(10, 12);
    Target->Assign(Reversed);
    EXPECT_EQ(Target->GetStartTime(), 5.5);
    EXPECT_EQ(Target->GetEndTime(), 5.25);
}

TEST(ItemAssignment, TakesTheAbsenceOfAnImage)
{
    const TKSTimeViewItem Source(nullptr);
    TKSTimeViewItem Target(nullptr);
    Target.SetImageIndex(7);
    Target.Assign(&Source);
    EXPECT_EQ(Target.GetImageIndex(), -1);
}

TEST(ItemAssignment, TakesTheColumnsOfAll35Days)
{
    TFakeView View;
    View.Days().AddDatesRange(Monday, Monday + 34);
    ASSERT_EQ(View.Days().GetCount(), 35);
    View.Items().Add("", Monday, Monday + 35, false);
    TKSTimeViewItem* const Beside = View.Items().Add("", Monday, Monday + 35, false);
    TKSTimeViewItem Copy(nullptr);
    Copy.Assign(Beside);
    for (int Day = 0; Day < 35; ++Day)
        EXPECT_EQ(Copy.GetColumn(Day), 1) << Day;
}

TEST(ItemAssignment, IntoAnItemOfAnotherViewLeavesItThere)
{
    TFakeView Here;
    TFakeView There;
    TKSTimeViewItem* const Target = Here.Add(10, 12);
    Target->Assign(There.Add(1, 2));
    EXPECT_EQ(Target->GetCollection(), &Here.Items());
    EXPECT_TRUE(Target->IsInCollection());
}

/// An item whose end lies before its start, as AddObject accepts it.
class ReversedItem : public testing::Test
{
protected:
    ReversedItem() : FItem(FView.Items().Add("", 5.5, 5.25, false)) { FView.Log.clear(); }

    void ExpectTimes(double Start, double End) const
    {
        EXPECT_EQ(FItem->GetStartTime(), Start);
        EXPECT_EQ(FItem->GetEndTime(), End);
    }

    TFakeView FView;
    TKSTimeViewItem* FItem;
};

TEST_F(ReversedItem, IsNotMoved)
{
    FItem->MoveTo(7);
    ExpectTimes(5.5, 5.25);
    EXPECT_THAT(FView.Log, IsEmpty());
    EXPECT_EQ(FItem->GetDuration(), -0.25);
}

TEST_F(ReversedItem, TakesOnlyTimesThatPutItRight)
{
    FItem->SetStartTime(5.375);
    FItem->SetEndTime(5.375);
    FItem->SetEndTime(5.5);
    ExpectTimes(5.5, 5.25);
    FItem->SetStartTime(5.125);
    ExpectTimes(5.125, 5.25);
}

TEST_F(ReversedItem, TakesADurationFromItsStart)
{
    FItem->SetDuration(0.25);
    ExpectTimes(5.5, 5.75);
}

TEST(ItemImage, MayBeTakenAway)
{
    TKSTimeViewItem Item(nullptr);
    Item.SetImageIndex(4);
    Item.SetImageIndex(-1);
    EXPECT_EQ(Item.GetImageIndex(), -1);
}

} // namespace
