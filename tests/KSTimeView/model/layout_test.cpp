#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <climits>
#include <limits>

#include "KSTimeView/model/FakeView.h"

using testing::ElementsAre;

namespace
{

constexpr double Monday = TFakeView::Monday;

std::vector<int> Columns(TFakeView& View, int DayIndex)
{
    std::vector<int> Result;
    for (const TKSTimeViewItem* Item : *View.Day(DayIndex))
        Result.push_back(View.Day(DayIndex)->GetColumn(Item));
    return Result;
}

TEST(DayLayout, TheDaysOfAWeekShareTheWidthRightOfTheRuler)
{
    TFakeView View(7);
    for (int Index = 0; Index < 7; ++Index) {
        EXPECT_EQ(View.Day(Index)->GetLeft(), 50 + 101 * Index);
        EXPECT_EQ(View.Day(Index)->GetWidth(), 101);
        EXPECT_EQ(View.Day(Index)->GetClientRect(),
                  (vcl::TRect{50 + 101 * Index, 0, 151 + 101 * Index, 500}));
    }
}

TEST(DayLayout, OverlappingItemsStandSideBySideInTheOrderTheyCame)
{
    TFakeView View;
    TKSTimeViewItem* const First = View.Add(9, 10);
    View.Add(9.5, 11);
    View.Add(10, 10.5);
    EXPECT_THAT(Columns(View, 0), ElementsAre(0, 1, 0));
    EXPECT_EQ(View.Day(0)->GetColumnCount(), 2);
    EXPECT_EQ(First->GetColumn(0), 0);
}

TEST(DayLayout, AttachedInTheOtherOrderTwoItemsSwapColumns)
{
    TFakeView View(2);
    TKSTimeViewItem* const Early = View.Add(9, 10);
    TKSTimeViewItem* const Late = View.Add(9.5, 11);
    EXPECT_EQ(Early->GetColumn(0), 0);
    EXPECT_EQ(Late->GetColumn(0), 1);
    Early->MoveTo(Monday + 1.375);
    Early->MoveTo(Monday + 0.375);
    EXPECT_EQ(Early->GetColumn(0), 1);
    EXPECT_EQ(Late->GetColumn(0), 0);
}

TEST(DayLayout, ItemsThatShareAMinuteShareAColumn)
{
    TFakeView View;
    View.Add(9, 10);
    View.Add(9.0 + 59.0 / 60, 11);
    EXPECT_THAT(Columns(View, 0), ElementsAre(0, 0));
}

TEST(DayLayout, AllDayAndDraggedItemsTakeNoColumn)
{
    TFakeView View;
    View.Add(9, 10, true);
    View.Add(9, 10);
    TKSTimeViewItem* const Dragged = View.Add(9, 10);
    View.Add(9, 10);
    Dragged->SetDragOutside(true);
    EXPECT_THAT(Columns(View, 0), ElementsAre(0, 0, 1, 2)) << "the flag alone lays nothing out";
    View.Days().CalcDisplay();
    EXPECT_THAT(Columns(View, 0), ElementsAre(0, 0, 0, 1));
    EXPECT_EQ(View.Day(0)->GetColumnCount(), 2);
}

TEST(DayLayout, AllDayItemsHaveRowsAndTheTopSpaceOneMore)
{
    TFakeView View(3);
    EXPECT_EQ(View.Days().GetTopSpace(), 40);
    TKSTimeViewItem* const Monday1 = View.Add(0, 24, true);
    TKSTimeViewItem* const All = View.Add(0, 72, true);
    TKSTimeViewItem* const Tuesday = View.Add(24, 48, true);
    TKSTimeViewItem* const Wednesday = View.Add(48, 72, true);
    EXPECT_EQ(Monday1->GetAllDayRow(), 0);
    EXPECT_EQ(All->GetAllDayRow(), 1) << "the row of its first day, kept in later ones";
    EXPECT_EQ(Tuesday->GetAllDayRow(), 0);
    EXPECT_EQ(Wednesday->GetAllDayRow(), 0);
    EXPECT_EQ(View.Day(0)->GetAllDayCount(), 2);
    EXPECT_EQ(View.Days().GetTopSpace(), 60);
    EXPECT_EQ(View.Day(0)->FindFreeIndexForItem(Monday1), 0);
    EXPECT_EQ(View.Day(0)->FindFreeIndexForItem(All), 1);
    EXPECT_EQ(View.Day(0)->FindFreeIndexForItem(Tuesday), 2);
    Monday1->Delete();
    EXPECT_EQ(All->GetAllDayRow(), 0);
    EXPECT_EQ(View.Add(10, 12)->GetAllDayRow(), -1);
}

TEST(DayLayout, AnAllDayItemsRectangleSpansItsDaysInItsRow)
{
    TFakeView View(7);
    View.Add(0, 24, true);
    TKSTimeViewItem* const Item = View.Add(0, 72, true);
    const vcl::TRect Expected{53, 22 + 20 + 2, 50 + 303 - 2, 22 + 20 + 20};
    EXPECT_EQ(View.Day(0)->GetItemRect(Item), Expected);
    EXPECT_EQ(View.Day(2)->GetItemRect(Item), Expected);
}

TEST(DayLayout, ATimedItemsRectangleComesFromScaleAndColumn)
{
    TFakeView View;
    TKSTimeViewItem* const Left = View.Add(9, 10);
    TKSTimeViewItem* const Right = View.Add(9, 10);
    const int Top = 22 + 40 + 360 - 1;
    EXPECT_EQ(View.Day(0)->GetItemRect(Left), (vcl::TRect{55, Top, 404 - 6, Top + 40}));
    EXPECT_EQ(View.Day(0)->GetItemRect(Right), (vcl::TRect{404 + 5, Top, 757 - 6, Top + 40}));
    View.Layout.ShowDaysGapCover = false;
    View.Layout.ScrollOffset = 100;
    EXPECT_EQ(View.Day(0)->GetItemRect(Right), (vcl::TRect{404, Top - 100, 751, Top - 60}));
    Right->SetDragOutside(true);
    EXPECT_EQ(View.Day(0)->GetItemRect(Right), (vcl::TRect{50, Top - 100, 751, Top - 60}));
}

TEST(DayLayout, AnItemOverMidnightIsCutAtTheEndsOfItsDays)
{
    TFakeView View(2);
    TKSTimeViewItem* const Item = View.Add(22, 26);
    const int ScaleTop = 22 + 40 - 1;
    EXPECT_EQ(View.Day(0)->GetItemRect(Item).Top, ScaleTop + 880);
    EXPECT_EQ(View.Day(0)->GetItemRect(Item).Bottom, ScaleTop + 960);
    EXPECT_EQ(View.Day(1)->GetItemRect(Item).Top, ScaleTop);
    EXPECT_EQ(View.Day(1)->GetItemRect(Item).Bottom, ScaleTop + 80);
}

TEST(DayLayout, WithoutAWindowRectanglesAreEmptyAndLayoutsAreLost)
{
    TFakeView View;
    View.LoseWindow();
    TKSTimeViewItem* const Item = View.Add(9, 10);
    TKSTimeViewItem* const Second = View.Add(9, 10);
    EXPECT_EQ(View.Day(0)->GetItemRect(Item), vcl::TRect());
    EXPECT_EQ(View.Day(0)->GetItemsRect(), vcl::TRect());
    EXPECT_EQ(View.Day(0)->GetItemAt(60, 430), nullptr);
    View.Window = true;
    EXPECT_EQ(Second->GetColumn(0), 0) << "the layout was not put off but lost";
    View.Days().CalcDisplay();
    EXPECT_EQ(Second->GetColumn(0), 1);
}

TEST(DayLayout, ItemsRectIsTheUnionOfAllItems)
{
    TFakeView View;
    EXPECT_EQ(View.Day(0)->GetItemsRect(), vcl::TRect());
    View.Add(9, 10);
    View.Add(12, 13);
    EXPECT_EQ(View.Day(0)->GetItemsRect(), (vcl::TRect{55, 421, 751, 581}));
}

TEST(HitTest, AnItemIsHitFourPixelsAboveAndBelow)
{
    TFakeView View;
    TKSTimeViewItem* const Item = View.Add(9, 10); // 55, 421 .. 751, 461
    EXPECT_EQ(View.Day(0)->GetItemAt(55, 417), Item);
    EXPECT_EQ(View.Day(0)->GetItemAt(55, 416), nullptr);
    EXPECT_EQ(View.Day(0)->GetItemAt(750, 464), Item);
    EXPECT_EQ(View.Day(0)->GetItemAt(750, 465), nullptr);
    EXPECT_EQ(View.Day(0)->GetItemAt(751, 430), nullptr);
    EXPECT_EQ(View.Day(0)->GetItemAt(54, 430), nullptr);
}

TEST(HitTest, TheFirstItemOfTheListWins)
{
    TFakeView View;
    TKSTimeViewItem* const First = View.Add(9, 10);
    TKSTimeViewItem* const Second = View.Add(10, 11);
    EXPECT_EQ(View.Day(0)->GetItemAt(60, 464), First);
    EXPECT_EQ(View.Day(0)->GetItemAt(60, 465), Second);
}

TEST(HitTest, AllDayItemsAreHitInTheTopSpaceAndTimedOnesBelow)
{
    TFakeView View;
    TKSTimeViewItem* const AllDay = View.Add(0, 24, true); // rows 24..42
    TKSTimeViewItem* const Timed = View.Add(0, 1);         // rows 61..101
    EXPECT_EQ(View.Day(0)->GetItemAt(60, 30), AllDay);
    EXPECT_EQ(View.Day(0)->GetItemAt(60, 45), AllDay);
    EXPECT_EQ(View.Day(0)->GetItemAt(60, 46), nullptr);
    EXPECT_EQ(View.Day(0)->GetItemAt(60, 62), nullptr) << "the last row of the all-day area";
    EXPECT_EQ(View.Day(0)->GetItemAt(60, 63), Timed);
    View.Layout.ScrollOffset = 20;
    EXPECT_EQ(View.Day(0)->GetItemAt(60, 60), nullptr) << "a timed item that scrolled under the area";
}

TEST(ManyDays, DaysBeyondThoseTheItemsKnowLayOutLikeTheOthers)
{
    TFakeView View;
    View.Days().AddDatesRange(Monday, Monday + 99);
    ASSERT_EQ(View.Days().GetCount(), 100);
    for (const int DayIndex : {0, 34, 35, 36, 63, 64, 99}) {
        for (int Item = 0; Item < 3; ++Item)
            View.Add(DayIndex * 24 + 9, DayIndex * 24 + 10);
        EXPECT_THAT(Columns(View, DayIndex), ElementsAre(0, 1, 2)) << DayIndex;
        EXPECT_EQ(View.Day(DayIndex)->GetColumnCount(), 3);
    }
    TKSTimeViewItem* const Last = View.Day(99)->GetItem(2);
    EXPECT_GT(View.Day(99)->GetItemRect(Last).Left, View.Day(99)->GetItemRect(View.Day(99)->GetItem(1)).Left);
    EXPECT_EQ(Last->GetColumn(99), 0);
    EXPECT_EQ(Last->GetColumn(-1), 0);
    Last->MoveTo(Monday + 36 + 0.375);
    EXPECT_THAT(Columns(View, 36), ElementsAre(0, 1, 2, 3));
    EXPECT_EQ(View.Day(99)->GetCount(), 2);
    View.Days().DeleteDatesRange(Monday, Monday + 10);
    EXPECT_THAT(Columns(View, 36 - 11), ElementsAre(0, 1, 2, 3)) << "now one of those the items know";
    View.Items().Clear();
    for (const TKSTimeviewDay* Day : View.Days())
        EXPECT_EQ(Day->GetCount(), 0);
}

TEST(StrangeValues, NoTimeOrSizeBreaksTheLayout)
{
    const double Infinity = std::numeric_limits<double>::infinity();
    const double NaN = std::numeric_limits<double>::quiet_NaN();
    TFakeView View(3);
    const std::vector<double> Times = {
        0,      NaN,        Infinity,     -Infinity,         1e300, -1e300, -5.5,
        Monday, Monday + 1, Monday + 0.5, Monday + 2.999999, 5e-324};
    for (const double Start : Times)
        for (const double End : Times)
            for (const bool AllDay : {false, true}) {
                TKSTimeViewItem Source(nullptr);
                vcl::TMemoryStream Stream;
                TKSTimeViewItem(nullptr).WriteData(Stream);
                Stream.SetPosition(8);
                Stream.WriteDouble(Start);
                Stream.WriteDouble(End);
                Stream.SetPosition(32);
                Stream.WriteBoolean(AllDay);
                Stream.SetPosition(0);
                View.Items().Add("", 0, 0, false)->ReadData(Stream);
            }
    View.Items().ReattachToDays();
    for (const int Extreme : {0, 1, -1, INT_MAX, INT_MIN}) {
        View.Layout.ClientWidth = View.Layout.RulerWidth = View.Layout.CaptionHeight = Extreme;
        View.Layout.RulerMarkHeight = View.Layout.DaysGapWidth = View.Layout.ScrollOffset = Extreme;
        View.Layout.TotalScaleHeight = timeview::TotalScaleHeight(30, Extreme);
        View.Days().CalcDisplay();
        for (TKSTimeviewDay* Day : View.Days()) {
            EXPECT_GT(Day->GetCount(), 0);
            EXPECT_GE(Day->GetColumnCount(), 1);
            Day->GetItemsRect();
            Day->GetItemAt(Extreme, Extreme);
        }
    }
    for (const double Date : Times) {
        View.Days().SetDateRange(Date, 31);
        View.Day(30)->GetItemsRect();
    }
}

} // namespace
