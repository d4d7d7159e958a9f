#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "KSTimeView/model/FakeView.h"

using testing::ElementsAre;
using testing::IsEmpty;

namespace
{

constexpr double Monday = TFakeView::Monday;

TKSTimeViewItem* Add(TFakeView& View, const char* Caption, double StartHour, double EndHour)
{
    return View.Items().Add(Caption, Monday + StartHour / 24, Monday + EndHour / 24, false);
}

std::vector<std::string> Captions(TFakeView& View, int DayIndex)
{
    std::vector<std::string> Result;
    for (const TKSTimeViewItem* Item : *View.Day(DayIndex))
        Result.push_back(Item->GetCaption());
    return Result;
}

TEST(ItemsOfADay, StandInTheOrderOfTheirAttachmentNotOfTheirTimes)
{
    TFakeView View(2);
    Add(View, "late", 20, 21);
    TKSTimeViewItem* const Early = Add(View, "early", 5, 6);
    Add(View, "noon", 12, 13);
    EXPECT_THAT(Captions(View, 0), ElementsAre("late", "early", "noon"));
    Early->MoveTo(Monday + 0.375);
    EXPECT_THAT(Captions(View, 0), ElementsAre("late", "early", "noon")) << "it stayed on its day";
    Early->MoveTo(Monday + 1.375);
    EXPECT_THAT(Captions(View, 0), ElementsAre("late", "noon"));
    Early->MoveTo(Monday + 0.25);
    EXPECT_THAT(Captions(View, 0), ElementsAre("late", "noon", "early"));
    EXPECT_THAT(Captions(View, 1), IsEmpty());
    View.Items().ReattachToDays();
    EXPECT_THAT(Captions(View, 0), ElementsAre("late", "noon", "early"));
}

TEST(ItemsOfADay, AreInTheCollectionsOrderOnANewDay)
{
    TFakeView View(1);
    Add(View, "late", 44, 45);
    Add(View, "both", 10, 40);
    TKSTimeViewItem* const Early = Add(View, "early", 25, 26);
    View.Days().AddDate(Monday + 1);
    EXPECT_THAT(Captions(View, 0), ElementsAre("both"));
    EXPECT_THAT(Captions(View, 1), ElementsAre("late", "both", "early"));
    Early->MoveTo(Monday + 0.5);
    Early->MoveTo(Monday + 1.5);
    View.Days().SetDateRange(Monday + 1, 2);
    EXPECT_THAT(Captions(View, 0), ElementsAre("late", "both", "early"));
    EXPECT_THAT(Captions(View, 1), IsEmpty());
}

TEST(ItemsOfADay, LeaveTheOthersInOrderWhenOneIsDeleted)
{
    TFakeView View;
    Add(View, "one", 1, 2);
    TKSTimeViewItem* const Two = Add(View, "two", 3, 4);
    Add(View, "three", 2, 3);
    Add(View, "four", 9, 10);
    Two->Delete();
    EXPECT_THAT(Captions(View, 0), ElementsAre("one", "three", "four"));
}

template <class TAction>
std::string ListErrorOf(TAction&& Action)
{
    try {
        Action();
    } catch (const vcl::EListError& Error) {
        return Error.what();
    }
    return "";
}

TEST(ItemsOfACollection, TellTheIndexThatIsOutOfBounds)
{
    TFakeView View;
    View.Add(1, 2);
    View.Add(1, 2);
    EXPECT_EQ(ListErrorOf([&] { View.Items().GetItem(2); }), "List index out of bounds (2)");
    EXPECT_EQ(ListErrorOf([&] { View.Items().GetItem(-1); }), "List index out of bounds (-1)");
    const TKSTimeViewItem Source(nullptr);
    EXPECT_EQ(ListErrorOf([&] { View.Items().SetItem(7, &Source); }), "List index out of bounds (7)");
    EXPECT_EQ(ListErrorOf([&] { View.Items().GetItem(1); }), "");
}

} // namespace
