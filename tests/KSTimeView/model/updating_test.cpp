#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "KSTimeView/model/FakeView.h"

using testing::ElementsAre;
using testing::IsEmpty;

namespace
{

constexpr double Monday = TFakeView::Monday;

/// Once with a layout at every request, once with one when a result is read.
class Updating : public testing::TestWithParam<bool>
{
protected:
    Updating() : FView(2, GetParam()) {}

    TFakeView FView;
};

INSTANTIATE_TEST_SUITE_P(LazyAndEager, Updating, testing::Bool());

TEST_P(Updating, ItemsAreAttachedAtOnceAndLaidOutAtTheEnd)
{
    TKSTimeViewItem* const First = FView.Add(9, 10);
    FView.Items().BeginUpdate();
    TKSTimeViewItem* const Second = FView.Add(9, 10);
    TKSTimeViewItem* const Third = FView.Add(9, 10);
    EXPECT_EQ(FView.Day(0)->GetCount(), 3);
    EXPECT_EQ(Second->GetColumn(0), 0);
    EXPECT_EQ(Third->GetColumn(0), 0);
    EXPECT_EQ(FView.Day(0)->GetColumnCount(), 1);
    FView.Days().CalcDisplay();
    EXPECT_EQ(FView.Day(0)->GetColumnCount(), 1) << "not on demand either";
    FView.Items().EndUpdate();
    EXPECT_EQ(First->GetColumn(0), 0);
    EXPECT_EQ(Second->GetColumn(0), 1);
    EXPECT_EQ(Third->GetColumn(0), 2);
    EXPECT_EQ(FView.Day(0)->GetColumnCount(), 3);
}

TEST_P(Updating, ColumnsAndTopSpaceStayThoseFromBefore)
{
    FView.Add(9, 10);
    TKSTimeViewItem* const Second = FView.Add(9, 10);
    FView.Items().BeginUpdate();
    Second->MoveTo(Monday + 0.75);
    EXPECT_EQ(Second->GetColumn(0), 1);
    FView.Layout.ClientWidth = 457;
    FView.Days().CalcDisplay();
    EXPECT_EQ(FView.Day(0)->GetWidth(), 354);
    FView.Add(0, 24, true);
    FView.Add(0, 24, true);
    EXPECT_EQ(FView.Days().GetTopSpace(), 40);
    EXPECT_EQ(FView.Day(0)->GetAllDayCount(), 0);
    FView.Items().EndUpdate();
    EXPECT_EQ(Second->GetColumn(0), 0);
    EXPECT_EQ(FView.Day(0)->GetWidth(), 204) << "203.5 pixels beside the ruler's 50 end at an even one";
    EXPECT_EQ(FView.Days().GetTopSpace(), 60);
    EXPECT_EQ(FView.Day(0)->GetAllDayCount(), 2);
}

TEST_P(Updating, OnlyTheOutermostEndLaysOutAndRepaintsOnce)
{
    FView.Log.clear();
    FView.Items().BeginUpdate();
    FView.Items().BeginUpdate();
    FView.Add(9, 10);
    FView.Add(9, 10);
    FView.Items().EndUpdate();
    EXPECT_EQ(FView.Day(0)->GetColumnCount(), 1);
    EXPECT_THAT(FView.Log, IsEmpty());
    FView.OnRepaint = [&] { EXPECT_EQ(FView.Day(0)->GetColumnCount(), 2) << "laid out before"; };
    FView.Items().EndUpdate();
    FView.OnRepaint = nullptr;
    EXPECT_THAT(FView.Log, ElementsAre("repaint"));
}

TEST_P(Updating, ADayArrangedInBetweenKeepsTheRowsOfTheLastLayout)
{
    TKSTimeViewItem* const First = FView.Add(0, 24, true);
    TKSTimeViewItem* const Second = FView.Add(0, 24, true);
    TKSTimeViewItem* const Third = FView.Add(0, 24, true);
    ASSERT_EQ(Third->GetAllDayRow(), 2);
    FView.Items().BeginUpdate();
    First->Delete();
    FView.Day(0)->CalcItemsDisplay();
    EXPECT_EQ(FView.Day(0)->GetAllDayCount(), 2);
    EXPECT_EQ(Second->GetAllDayRow(), 1);
    EXPECT_EQ(Third->GetAllDayRow(), 2);
    FView.Items().EndUpdate();
    EXPECT_EQ(Second->GetAllDayRow(), 0);
    EXPECT_EQ(Third->GetAllDayRow(), 1);
}

} // namespace
