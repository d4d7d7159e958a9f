#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "KSTimeView/model/FakeView.h"

using testing::ElementsAre;
using testing::IsEmpty;
using testing::Pair;

namespace
{

// Seven days of 101 pixels behind a ruler of 50.
class Repaint : public testing::Test
{
protected:
    Repaint() : FView(7)
    {
        FOnMonday = FView.Add(10, 12);
        FOnTuesday = FView.Add(34, 36);
        Arranged();
    }

    /// Everything laid out and painted so far.
    void Arranged()
    {
        FView.Days().EnsureLayout();
        FView.Log.clear();
        FView.Ranges.clear();
    }

    TFakeView FView;
    TKSTimeViewItem* FOnMonday;
    TKSTimeViewItem* FOnTuesday;
};

TEST_F(Repaint, ReachesOnlyTheDaysATimedItemWasAndIsOn)
{
    FOnTuesday->SetStartTime(TFakeView::Monday + 35.0 / 24);
    EXPECT_THAT(FView.Ranges, ElementsAre(Pair(151, 252)));
    Arranged();
    FOnTuesday->MoveTo(TFakeView::Monday + 3.5);
    EXPECT_THAT(FView.Ranges, ElementsAre(Pair(151, 454)));
}

TEST_F(Repaint, ReachesNothingForAnItemOnNoShownDay)
{
    FView.Items().Add("", TFakeView::Monday + 100, TFakeView::Monday + 100.5, false);
    EXPECT_THAT(FView.Log, IsEmpty());
}

TEST_F(Repaint, ReachesEverythingWhenTheLayoutPicksUpARawWriteOnAnotherDay)
{
    FOnMonday->Assign(FOnTuesday);
    FOnTuesday->SetStartTime(TFakeView::Monday + 35.0 / 24);
    EXPECT_THAT(FView.Ranges, IsEmpty());
    EXPECT_THAT(FView.Log, ElementsAre("repaint"));
}

TEST_F(Repaint, ReachesEverythingWhenTheLayoutPicksUpAnotherMarkHeight)
{
    FView.Layout.RulerMarkHeight = 25;
    FView.Items().Add("", TFakeView::Monday + 100, TFakeView::Monday + 100.5, false);
    EXPECT_THAT(FView.Ranges, IsEmpty());
    EXPECT_THAT(FView.Log, ElementsAre("repaint"));
}

TEST_F(Repaint, ReachesEverythingForAnAllDayItem)
{
    FOnMonday->SetAllDay(true);
    EXPECT_THAT(FView.Ranges, IsEmpty());
    EXPECT_THAT(FView.Log, ElementsAre("repaint"));
}

} // namespace
