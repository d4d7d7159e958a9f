#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <limits>

#include "KSTimeView/model/FakeView.h"

using testing::ElementsAre;
using testing::IsEmpty;

namespace
{

constexpr double Monday = TFakeView::Monday;
constexpr double NaN = std::numeric_limits<double>::quiet_NaN();

TEST(TimeViewItem, ANewOneIsDetachedFromEightToTen)
{
    TKSTimeViewItem Item(nullptr);
    EXPECT_FALSE(Item.IsInCollection());
    EXPECT_EQ(Item.GetCaption(), "");
    EXPECT_EQ(Item.GetStartTime(), 8.0 / 24);
    EXPECT_EQ(Item.GetEndTime(), 10.0 / 24);
    EXPECT_EQ(static_cast<std::uint32_t>(Item.GetColor()), 0x80000005u);
    EXPECT_EQ(static_cast<std::uint32_t>(Item.GetAllDayColor()), 0x8000000Fu);
    EXPECT_EQ(Item.GetImageIndex(), -1);
    EXPECT_EQ(Item.GetData(), nullptr);
    EXPECT_FALSE(Item.GetDragOutside());
    EXPECT_EQ(Item.GetColumn(0), 0);
    EXPECT_EQ(Item.GetColumn(34), 0);
    EXPECT_EQ(Item.GetAllDayRow(), 0);
    EXPECT_FALSE(Item.GetAllDay());
    EXPECT_FALSE(Item.GetShowReminder());
    EXPECT_FALSE(Item.GetPrivateItem());
    EXPECT_EQ(Item.GetEditorGuard(), 0);
    EXPECT_EQ(Item.GetUserText(), "");
    EXPECT_EQ(Item.GetUserFlag(), 0);
    EXPECT_EQ(Item.GetTimeView(), nullptr);
}

TEST(TimeViewItem, ADetachedOneChangesWithoutTouchingItsView)
{
    TFakeView View;
    TKSTimeViewItem Item(&View.Items());
    Item.SetCaption("x");
    Item.SetStartEnd(Monday + 0.1, Monday + 0.2);
    Item.SetColor(vcl::clRed);
    Item.SetAllDay(true);
    Item.ReattachToDays();
    EXPECT_THAT(View.Log, IsEmpty());
    EXPECT_EQ(View.Day(0)->GetCount(), 0);
    EXPECT_FALSE(Item.Selected());
    EXPECT_FALSE(Item.Edited());
}

TEST(TimeViewItem, AStartNotBeforeTheEndAndAnEndNotAfterTheStartAreIgnored)
{
    TFakeView View;
    TKSTimeViewItem* const Item = View.Add(10, 12);
    View.Log.clear();
    Item->SetStartTime(Item->GetEndTime());
    Item->SetStartTime(Item->GetEndTime() + 1);
    Item->SetEndTime(Item->GetStartTime());
    Item->SetStartEnd(Monday + 1, Monday + 1);
    Item->SetStartEnd(Monday + 1, Monday);
    Item->SetDuration(0);
    Item->SetDuration(-1);
    Item->SetStartTime(NaN);
    Item->SetEndTime(NaN);
    EXPECT_EQ(Item->GetStartTime(), Monday + 10.0 / 24);
    EXPECT_EQ(Item->GetEndTime(), Monday + 12.0 / 24);
    EXPECT_THAT(View.Log, IsEmpty());
}

TEST(TimeViewItem, SettersStoreAndRepaintOnceWhenTheValueDiffers)
{
    TFakeView View;
    TKSTimeViewItem* const Item = View.Add(10, 12);
    const auto ExpectOneRepaint = [&](auto&& Change) {
        View.Log.clear();
        Change();
        EXPECT_THAT(View.Log, ElementsAre("repaint"));
        Change();
        EXPECT_THAT(View.Log, ElementsAre("repaint"));
    };
    ExpectOneRepaint([&] { Item->SetCaption("Lunch"); });
    ExpectOneRepaint([&] { Item->SetColor(vcl::clRed); });
    ExpectOneRepaint([&] { Item->SetAllDayColor(vcl::clRed); });
    ExpectOneRepaint([&] { Item->SetShowReminder(true); });
    ExpectOneRepaint([&] { Item->SetPrivateItem(true); });
    ExpectOneRepaint([&] { Item->SetStartTime(Monday + 0.25); });
    ExpectOneRepaint([&] { Item->SetEndTime(Monday + 0.625); });
    ExpectOneRepaint([&] { Item->SetStartEnd(Monday + 0.25, Monday + 0.75); });
    ExpectOneRepaint([&] { Item->SetDuration(0.125); });
    ExpectOneRepaint([&] { Item->MoveTo(Monday + 0.3125); });
    ExpectOneRepaint([&] { Item->SetAllDay(true); });
    View.Log.clear();
    Item->SetData(&View);
    Item->SetImageIndex(3);
    Item->SetUserText("u");
    Item->SetUserFlag(9);
    EXPECT_THAT(View.Log, IsEmpty());
    EXPECT_EQ(Item->GetStartTime(), Monday + 0.3125);
    EXPECT_EQ(Item->GetDuration(), 0.125);
}

TEST(TimeViewItem, TheEditorFollowsTheColourOfTheItemBeingEdited)
{
    TFakeView View;
    TKSTimeViewItem* const Item = View.Add(10, 12);
    TKSTimeViewItem* const Other = View.Add(10, 12);
    View.Editing = Item;
    View.Log.clear();
    Item->SetColor(vcl::clRed);
    Other->SetColor(vcl::clRed);
    EXPECT_THAT(View.Log, ElementsAre("editor colour 255", "repaint", "repaint"));
    EXPECT_TRUE(Item->Edited());
    EXPECT_FALSE(Other->Edited());
}

TEST(TimeViewItem, ImagesNeedAnAttachedItemItsFlagAndTheViewsImage)
{
    TFakeView View;
    TKSTimeViewItem* const Item = View.Add(10, 12);
    Item->SetPrivateItem(true);
    EXPECT_FALSE(Item->PrivateImageExists());
    View.PrivateImage = true;
    EXPECT_TRUE(Item->PrivateImageExists());
    EXPECT_FALSE(Item->ReminderImageExists());
    View.ReminderImage = true;
    EXPECT_FALSE(Item->ReminderImageExists());
    Item->SetShowReminder(true);
    EXPECT_TRUE(Item->ReminderImageExists());
    TKSTimeViewItem Detached(&View.Items());
    Detached.SetPrivateItem(true);
    EXPECT_FALSE(Detached.PrivateImageExists());
}

TEST(TimeViewItem, OneThatEndsAtMidnightAppearsOnItsFirstDayOnly)
{
    TFakeView View(3);
    TKSTimeViewItem* const Item = View.Add(10, 24);
    EXPECT_TRUE(Item->AppearsOnDay(Monday));
    EXPECT_FALSE(Item->AppearsOnDay(Monday + 1));
    EXPECT_EQ(Item->GetFirstAppearingDay(), View.Day(0));
    EXPECT_EQ(Item->GetLastAppearingDay(), View.Day(0));
    Item->SetStartEnd(Monday + 1, Monday + 2.5);
    EXPECT_FALSE(Item->AppearsOnDay(Monday));
    EXPECT_EQ(Item->GetFirstAppearingDay(), View.Day(1));
    EXPECT_EQ(Item->GetLastAppearingDay(), View.Day(2));
    Item->SetStartEnd(Monday + 7, Monday + 8);
    EXPECT_EQ(Item->GetFirstAppearingDay(), nullptr);
    EXPECT_EQ(Item->GetLastAppearingDay(), nullptr);
}

TEST(TimeViewItem, AttachingAppendsToTheDaysItAppearsOnAndTakesItFromTheOthers)
{
    TFakeView View(3);
    TKSTimeViewItem* const First = View.Add(10, 12);
    TKSTimeViewItem* const Second = View.Add(34, 36);
    First->MoveTo(Monday + 1.25);
    EXPECT_EQ(View.Day(0)->GetCount(), 0);
    ASSERT_EQ(View.Day(1)->GetCount(), 2);
    EXPECT_EQ(View.Day(1)->GetItem(0), Second);
    EXPECT_EQ(View.Day(1)->GetItem(1), First);
    First->DeleteFromDays();
    EXPECT_EQ(View.Day(1)->GetCount(), 1);
    First->ReattachToDays();
    EXPECT_EQ(View.Day(1)->GetItem(1), First);
}

TEST(TimeViewItem, IsEqualLooksAtSevenPropertiesAndNoOthers)
{
    const auto Differs = [](auto&& Change) {
        TKSTimeViewItem Left(nullptr);
        TKSTimeViewItem Right(nullptr);
        Change(Right);
        return !Left.IsEqual(Right);
    };
    int Value = 0;
    EXPECT_TRUE(Differs([](TKSTimeViewItem& Item) { Item.SetCaption("x"); }));
    EXPECT_TRUE(Differs([&](TKSTimeViewItem& Item) { Item.SetData(&Value); }));
    EXPECT_TRUE(Differs([](TKSTimeViewItem& Item) { Item.SetColor(vcl::clRed); }));
    EXPECT_TRUE(Differs([](TKSTimeViewItem& Item) { Item.SetStartTime(0.1); }));
    EXPECT_TRUE(Differs([](TKSTimeViewItem& Item) { Item.SetEndTime(0.9); }));
    EXPECT_TRUE(Differs([](TKSTimeViewItem& Item) { Item.SetAllDay(true); }));
    EXPECT_TRUE(Differs([](TKSTimeViewItem& Item) { Item.SetShowReminder(true); }));
    EXPECT_FALSE(Differs([](TKSTimeViewItem& Item) { Item.SetImageIndex(4); }));
    EXPECT_FALSE(Differs([](TKSTimeViewItem& Item) { Item.SetAllDayColor(vcl::clRed); }));
    EXPECT_FALSE(Differs([](TKSTimeViewItem& Item) { Item.SetPrivateItem(true); }));
    EXPECT_FALSE(Differs([](TKSTimeViewItem& Item) { Item.SetUserText("x"); }));
    EXPECT_FALSE(Differs([](TKSTimeViewItem& Item) { Item.SetUserFlag(1); }));
}

TEST(TimeViewItem, AssignCopiesValuesAndColumnsButNeitherRowNorPlace)
{
    TFakeView View(2);
    View.Add(9, 12);
    TKSTimeViewItem* const Source = View.Add(10, 12);
    Source->SetCaption("Source");
    Source->SetColor(vcl::clRed);
    Source->SetAllDayColor(vcl::clLime);
    Source->SetImageIndex(7);
    Source->SetData(&View);
    Source->SetShowReminder(true);
    Source->SetPrivateItem(true);
    Source->SetUserText("text");
    Source->SetUserFlag(200);
    ASSERT_EQ(Source->GetColumn(0), 1);
    View.Log.clear();

    TKSTimeViewItem Copy(nullptr);
    Copy.Assign(Source);
    EXPECT_TRUE(Copy.IsEqual(*Source));
    EXPECT_EQ(Copy.GetColumn(0), 1);
    EXPECT_EQ(Copy.GetAllDayColor(), vcl::clLime);
    EXPECT_EQ(Copy.GetImageIndex(), 7);
    EXPECT_TRUE(Copy.GetPrivateItem());
    EXPECT_EQ(Copy.GetUserText(), "text");
    EXPECT_EQ(Copy.GetUserFlag(), 200);
    EXPECT_EQ(Copy.GetAllDayRow(), 0);
    EXPECT_FALSE(Copy.IsInCollection());
    EXPECT_EQ(Copy.GetCollection(), nullptr);

    TKSTimeViewItem* const Target = View.Add(30, 31);
    View.Log.clear();
    Target->Assign(Source);
    EXPECT_THAT(View.Log, IsEmpty());
    EXPECT_EQ(View.Day(0)->GetCount(), 2) << "still on the day of its former times";
    EXPECT_EQ(View.Day(1)->GetItem(0), Target);
}

TEST(TimeViewItem, AssigningSomethingElseFailsAsForAnyPersistent)
{
    TFakeView View;
    TKSTimeViewItem Item(nullptr);
    EXPECT_THROW(Item.Assign(&View.Items()), vcl::EConvertError);
}

TEST(TimeViewItems, KeepTheOrderTheyWereAddedIn)
{
    TFakeView View;
    EXPECT_EQ(View.Items().FirstItem(), nullptr);
    EXPECT_EQ(View.Items().LastItem(), nullptr);
    TKSTimeViewItem* const Late = View.Add(20, 21);
    TKSTimeViewItem* const Early = View.Add(5, 6);
    EXPECT_EQ(View.Items().GetCount(), 2);
    EXPECT_EQ(View.Items().FirstItem(), Late);
    EXPECT_EQ(View.Items().LastItem(), Early);
    EXPECT_EQ(View.Items()[1], Early);
    EXPECT_THROW(View.Items().GetItem(2), vcl::EListError);
    EXPECT_THROW(View.Items().GetItem(-1), vcl::EListError);
}

TEST(TimeViewItems, AddObjectRefusesNegativeTimesAndNothingElse)
{
    TFakeView View;
    const auto MessageOf = [&](double Start, double End) -> std::string {
        try {
            View.Items().AddObject("", Start, End, false, nullptr);
        } catch (const vcl::Exception& Error) {
            return Error.what();
        }
        return "";
    };
    EXPECT_EQ(MessageOf(-0.5, 2), "Invalid time range");
    EXPECT_EQ(MessageOf(2, -0.5), "Invalid time range");
    EXPECT_EQ(View.Items().GetCount(), 0);
    EXPECT_EQ(MessageOf(5.5, 5.25), "");
    EXPECT_EQ(View.Items()[0]->GetStartTime(), 5.5);
    EXPECT_EQ(View.Items()[0]->GetEndTime(), 5.25);
    EXPECT_EQ(MessageOf(NaN, NaN), "");
}

TEST(TimeViewItems, AddFillsTheFieldsAttachesAndRepaints)
{
    TFakeView View;
    TKSTimeViewItem* const Item = View.Items().AddObject("Lunch", Monday + 0.5, Monday + 0.625, true, &View);
    EXPECT_THAT(View.Log, ElementsAre("repaint"));
    EXPECT_EQ(Item->GetCaption(), "Lunch");
    EXPECT_TRUE(Item->GetAllDay());
    EXPECT_EQ(Item->GetData(), &View);
    EXPECT_TRUE(Item->IsInCollection());
    EXPECT_EQ(View.Day(0)->GetItem(0), Item);
    EXPECT_EQ(View.Items().Add("", 1, 2, false)->GetData(), nullptr);
}

TEST(TimeViewItems, WritingAnEntryAssignsIt)
{
    TFakeView View;
    View.Add(10, 12);
    TKSTimeViewItem Source(nullptr);
    Source.SetCaption("Source");
    View.Items().SetItem(0, &Source);
    EXPECT_EQ(View.Items()[0]->GetCaption(), "Source");
    EXPECT_NE(View.Items()[0], &Source);
}

TEST(TimeViewItems, RepaintingWaitsForTheOutermostEndUpdate)
{
    TFakeView View;
    View.Items().BeginUpdate();
    View.Items().BeginUpdate();
    View.Add(10, 12);
    View.Items().EndUpdate();
    EXPECT_THAT(View.Log, IsEmpty());
    EXPECT_EQ(View.Day(0)->GetColumnCount(), 1);
    View.Items().EndUpdate();
    EXPECT_THAT(View.Log, ElementsAre("repaint"));
}

TEST(TimeViewItems, TenThousandAreClearedInLinearTimeFromTheFirstOn)
{
    TFakeView View;
    std::vector<TKSTimeViewItem*> Order;
    View.OnDeletion = [&](TKSTimeViewItem* Item) { Order.push_back(Item); };
    std::vector<TKSTimeViewItem*> Added;
    for (int Index = 0; Index < 10000; ++Index)
        Added.push_back(View.Add(Index % 20, Index % 20 + 1));
    View.Items().Clear();
    EXPECT_EQ(Order, Added);
    EXPECT_EQ(View.Items().GetCount(), 0);
    EXPECT_EQ(View.Day(0)->GetCount(), 0);
}

TEST(TimeViewItems, ItemsAreTakenOutWhereverTheyStand)
{
    TFakeView View(2);
    std::vector<TKSTimeViewItem*> Left;
    for (int Index = 0; Index < 50; ++Index)
        Left.push_back(View.Add(10, 12));
    Left[7]->MoveTo(Monday + 1.5);
    Left[7]->MoveTo(Monday + 0.5); // attached again, behind the others
    for (const int Place : {0, 6, 25, 40, 45, 0, 0}) {
        delete Left[static_cast<std::size_t>(Place)];
        Left.erase(Left.begin() + Place);
    }
    ASSERT_EQ(View.Items().GetCount(), 43);
    for (int Index = 0; Index < 43; ++Index)
        ASSERT_EQ(View.Items()[Index], Left[static_cast<std::size_t>(Index)]) << Index;
    EXPECT_EQ(View.Day(0)->GetCount(), 43);
    for (TKSTimeViewItem* Item : Left)
        EXPECT_TRUE(View.Day(0)->HasItem(Item));
}

} // namespace
