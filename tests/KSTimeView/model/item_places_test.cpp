#include <gtest/gtest.h>

#include "KSTimeView/model/FakeView.h"

namespace
{

constexpr double Monday = TFakeView::Monday;
constexpr int ScaleTop = 22 + 40 - 1;

TEST(ItemPlaces, AnItemUntilMidnightEndsAtTheBottomOfTheScale)
{
    TFakeView View(2);
    const TKSTimeViewItem* const Item = View.Add(22, 24);
    EXPECT_EQ(View.Day(1)->GetCount(), 0);
    EXPECT_EQ(View.Day(0)->GetItemRect(Item), (vcl::TRect{55, ScaleTop + 880, 398, ScaleTop + 960}));
}

TEST(ItemPlaces, AnItemFromMidnightBeginsAtTheTopOfTheScale)
{
    TFakeView View;
    EXPECT_EQ(View.Day(0)->GetItemRect(View.Add(0, 1)), (vcl::TRect{55, ScaleTop, 751, ScaleTop + 40}));
}

TEST(ItemPlaces, AnItemOverADayThatIsNotItsFirstFillsIt)
{
    TFakeView View(3);
    const TKSTimeViewItem* const Item = View.Add(22, 50);
    const vcl::TRect Rect = View.Day(1)->GetItemRect(Item);
    EXPECT_EQ(Rect.Top, ScaleTop);
    EXPECT_EQ(Rect.Bottom, ScaleTop + 960);
}

TEST(ItemPlaces, ATravellingItemLiesOverTheWholeDayAndLeavesTheOthersTheirColumns)
{
    TFakeView View;
    View.Add(9, 10);
    TKSTimeViewItem* const Travelling = View.Add(9, 10);
    const TKSTimeViewItem* const Other = View.Add(9, 10);
    Travelling->SetDragOutside(true);
    View.Days().CalcDisplay();
    EXPECT_EQ(View.Day(0)->GetItemRect(Travelling), (vcl::TRect{55, ScaleTop + 360, 751, ScaleTop + 400}));
    EXPECT_EQ(View.Day(0)->GetItemRect(Other), (vcl::TRect{409, ScaleTop + 360, 751, ScaleTop + 400}))
        << "the second of two columns";
}

TEST(ItemPlaces, TheRectangleOfAllItemsTakesInAllDayOnes)
{
    TFakeView View(2);
    View.Add(0, 48, true);
    View.Add(9, 10);
    View.Add(9, 11);
    View.Add(30, 31);
    EXPECT_EQ(View.Day(0)->GetItemsRect(), (vcl::TRect{53, 24, 755, ScaleTop + 440}));
    EXPECT_EQ(View.Day(1)->GetItemsRect(), (vcl::TRect{53, 24, 755, ScaleTop + 280}));
}

TEST(ItemPlaces, HiddenTheAllDayAreaTakesNoRoom)
{
    TFakeView View;
    View.Layout.ShowTopSpace = false;
    const TKSTimeViewItem* const AllDay = View.Add(0, 24, true);
    TKSTimeViewItem* const Timed = View.Add(0, 1);
    EXPECT_EQ(View.Day(0)->GetItemRect(Timed), (vcl::TRect{55, 21, 751, 61}));
    EXPECT_EQ(View.Day(0)->GetItemRect(AllDay), (vcl::TRect{53, 24, 755, 42}));
    EXPECT_EQ(View.Days().GetTopSpace(), 40) << "what it takes when it is shown";
}

TEST(ItemPlaces, HiddenTheAllDayAreaEndsWithTheCaptions)
{
    TFakeView View;
    View.Layout.ShowTopSpace = false;
    TKSTimeViewItem* const AllDay = View.Add(0, 24, true);
    TKSTimeViewItem* const Timed = View.Add(0, 1);
    EXPECT_EQ(View.Day(0)->GetItemAt(60, 19), nullptr);
    EXPECT_EQ(View.Day(0)->GetItemAt(60, 20), AllDay) << "four pixels above its row";
    EXPECT_EQ(View.Day(0)->GetItemAt(60, 22), AllDay);
    EXPECT_EQ(View.Day(0)->GetItemAt(60, 23), Timed);
    EXPECT_EQ(View.Day(0)->GetItemAt(60, 64), Timed);
    EXPECT_EQ(View.Day(0)->GetItemAt(60, 65), nullptr);
}

TEST(ItemPlaces, ArrangingADayAgainKeepsTheRowsOfItsItems)
{
    TFakeView View(2);
    View.Add(0, 24, true);
    TKSTimeViewItem* const Both = View.Add(0, 48, true);
    TKSTimeViewItem* const Tuesday = View.Add(24, 48, true);
    ASSERT_EQ(Both->GetAllDayRow(), 1);
    View.Day(1)->CalcItemsDisplay();
    EXPECT_EQ(Both->GetAllDayRow(), 1);
    EXPECT_EQ(Tuesday->GetAllDayRow(), 0);
    EXPECT_EQ(View.Day(1)->GetAllDayCount(), 2);
}

TEST(ItemPlaces, ColumnsAreWithoutGapsWhereTheWidthDoesNotDivide)
{
    TFakeView View;
    View.Layout.ShowDaysGapCover = false;
    View.Layout.DaysGapWidth = 0;
    View.Layout.ClientWidth = 50 + 101;
    View.Days().CalcDisplay();
    const TKSTimeViewItem* const Left = View.Add(9, 10);
    const TKSTimeViewItem* const Right = View.Add(9, 10);
    EXPECT_EQ(View.Day(0)->GetItemRect(Left).Right, 100) << "50.5 goes to the even pixel";
    EXPECT_EQ(View.Day(0)->GetItemRect(Right).Left, 100);
    EXPECT_EQ(View.Day(0)->GetItemRect(Right).Right, 151);
}

} // namespace
