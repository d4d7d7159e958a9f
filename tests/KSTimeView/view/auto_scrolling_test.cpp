#include "KSTimeView/view/DrivenView.h"

using testing::ElementsAre;
using testing::IsEmpty;

namespace
{

// A client area 500 pixels high: the zones are rows below 72 and above 490.
class TAutoScrolling : public TDrivenViewTest
{
protected:
    /// Client row -> scroll offset afterwards.
    int After(int Y)
    {
        FDriven->HandleAutoScrolling(100, Y);
        return View().GetScrollOffset();
    }
    int AfterTicks(unsigned Count)
    {
        Windows().Advance(50 * Count);
        return View().GetScrollOffset();
    }
};

TEST_F(TAutoScrolling, StartsWithOneMarkAndGoesOnEvery50Milliseconds)
{
    Show();
    EXPECT_EQ(After(491), 20);
    EXPECT_EQ(After(495), 20) << "the timer runs already";
    Windows().Advance(49);
    EXPECT_EQ(View().GetScrollOffset(), 20);
    Windows().Advance(1);
    EXPECT_EQ(View().GetScrollOffset(), 40);
    EXPECT_EQ(AfterTicks(3), 100);
    EXPECT_EQ(Windows().GetTimerCount(), 1u);
    FDriven->KillAutoScrolling();
    EXPECT_EQ(Windows().GetTimerCount(), 0u);
    EXPECT_EQ(AfterTicks(3), 100);
}

TEST_F(TAutoScrolling, StopsOutsideBothZones)
{
    Show();
    EXPECT_EQ(After(490), 0) << "half a mark above the edge";
    EXPECT_EQ(Windows().GetTimerCount(), 0u);
    EXPECT_EQ(After(491), 20);
    EXPECT_EQ(After(300), 20);
    EXPECT_EQ(Windows().GetTimerCount(), 0u);
    EXPECT_EQ(AfterTicks(2), 20);
    EXPECT_EQ(After(72), 20);
    EXPECT_EQ(After(71), 0);
    EXPECT_EQ(Windows().GetTimerCount(), 1u);
}

TEST_F(TAutoScrolling, TurnsDownwardsWhileItRunsButNotUpwards)
{
    Show();
    View().SetVScrollPosition(200);
    EXPECT_EQ(After(10), 180);
    EXPECT_EQ(After(499), 180) << "only the direction is set";
    EXPECT_EQ(AfterTicks(2), 220);
    EXPECT_EQ(After(10), 220);
    EXPECT_EQ(AfterTicks(2), 260) << "the top zone does not turn a running timer";
    After(300);
    EXPECT_EQ(After(10), 240);
    EXPECT_EQ(AfterTicks(1), 220);
}

TEST_F(TAutoScrolling, StopsAtTheEndsOfTheScaleWithTheTimerRunning)
{
    Show();
    View().SetVScrollPosition(510);
    EXPECT_EQ(After(499), 522);
    EXPECT_EQ(AfterTicks(3), 522);
    After(300);
    View().SetVScrollPosition(30);
    EXPECT_EQ(After(0), 10);
    EXPECT_EQ(AfterTicks(3), 0);
    EXPECT_EQ(Windows().GetTimerCount(), 1u);
}

TEST_F(TAutoScrolling, ScrollsByMarksWhateverTheirHeight)
{
    View().SetRulerMarkHeight(31);
    Show();
    EXPECT_EQ(View().GetTopSpace(), 62);
    EXPECT_EQ(After(485), 0);
    EXPECT_EQ(After(486), 31);
    After(300);
    EXPECT_EQ(After(99), 31);
    EXPECT_EQ(After(98), 0);
}

TEST_F(TAutoScrolling, CountsFromTheCaptionsWhenTheAllDayAreaIsHidden)
{
    View().SetShowTopSpace(false);
    Show();
    View().SetVScrollPosition(100);
    EXPECT_EQ(After(32), 100);
    EXPECT_EQ(After(31), 80);
}

TEST_F(TAutoScrolling, GoesOnWithTheOperationUnderThePointerAfterEachTick)
{
    Show();
    Windows().MouseMove(Window(), {120, 496});
    FDriven->FOperations.DragItem = true;
    FDriven->HandleAutoScrolling(120, 496);
    EXPECT_THAT(TakeLog(), IsEmpty()) << "the first step is the operation's own";
    Windows().Advance(50);
    EXPECT_THAT(TakeLog(), ElementsAre("operation 6 at 120,496 scrolled to 40"));
    Windows().MouseMove(Window(), {130, -20});
    FDriven->FOperations.SelectTime = true;
    Windows().Advance(50);
    EXPECT_THAT(TakeLog(), ElementsAre("operation 5 at 130,-20 scrolled to 60"));
}

TEST_F(TAutoScrolling, IsTheWindowsTimerOne)
{
    Show();
    EXPECT_EQ(After(491), 20);
    View().Perform(vcl::WM_TIMER, 1);
    EXPECT_EQ(View().GetScrollOffset(), 40);
    View().Perform(vcl::WM_TIMER, 3);
    EXPECT_EQ(View().GetScrollOffset(), 40);
}

class TEditDelay : public TDrivenViewTest
{
protected:
    TEditDelay() { View().SetDaysCount(3); }

    /// What is edited when the delay is over.
    std::vector<std::string> AfterDelay()
    {
        TakeLog();
        FDriven->StartEditDelay();
        Windows().Advance(2000);
        return TakeLog();
    }
};

TEST_F(TEditDelay, EditsTheSelectedItemOnceAfterHalfASecond)
{
    Show();
    View().SetSelectedItem(Add(25, 48, false, "Tuesday"));
    TakeLog();
    FDriven->StartEditDelay();
    Windows().Advance(499);
    EXPECT_THAT(TakeLog(), IsEmpty());
    Windows().Advance(1);
    EXPECT_THAT(TakeLog(), ElementsAre("edit Tuesday on day 1"));
    EXPECT_EQ(Windows().GetTimerCount(), 0u);
    Windows().Advance(2000);
    EXPECT_THAT(TakeLog(), IsEmpty());
}

TEST_F(TEditDelay, IsTheWindowsTimerTwo)
{
    Show();
    View().SetSelectedItem(Add(1, 2, false, "Lunch"));
    FDriven->StartEditDelay();
    TakeLog();
    View().Perform(vcl::WM_TIMER, 2);
    EXPECT_THAT(TakeLog(), ElementsAre("edit Lunch on day 0"));
    EXPECT_EQ(Windows().GetTimerCount(), 0u);
}

TEST_F(TEditDelay, EditsOnTheDayTheItemWasPressedOn)
{
    Show();
    Add(1, 72, false, "Long");
    Windows().MouseClick(Window(), {600, 300});
    EXPECT_THAT(AfterDelay(), ElementsAre("edit Long on day 2"));
    Windows().MouseClick(Window(), {100, 300});
    EXPECT_THAT(AfterDelay(), ElementsAre("edit Long on day 0"));
}

TEST_F(TEditDelay, EditsNothingWhileAnItemTravelsOrNoneIsSelected)
{
    Show();
    TKSTimeViewItem* const Item = Add(1, 2, false, "Lunch");
    EXPECT_THAT(AfterDelay(), IsEmpty());
    View().SetSelectedItem(Item);
    FDriven->FOperations.DragItem = true;
    EXPECT_THAT(AfterDelay(), IsEmpty());
    FDriven->FOperations = {};
    FDriven->FOperations.DragAndDrop = true;
    EXPECT_THAT(AfterDelay(), IsEmpty());
    EXPECT_EQ(Windows().GetTimerCount(), 0u) << "the timer is gone in any case";
    FDriven->FOperations = {};
    FDriven->FOperations.SelectTime = true;
    EXPECT_THAT(AfterDelay(), ElementsAre("edit Lunch on day 0")) << "any other operation does not matter";
}

TEST_F(TEditDelay, IsForgottenWithTheSelectionOrTheNextPress)
{
    Show();
    TKSTimeViewItem* const Item = Add(1, 2, false, "Lunch");
    View().SetSelectedItem(Item);
    FDriven->StartEditDelay();
    Item->Delete();
    TakeLog();
    Windows().Advance(1000);
    EXPECT_THAT(TakeLog(), IsEmpty());
    View().SetSelectedItem(Add(1, 2, false, "Other"));
    FDriven->StartEditDelay();
    Windows().MouseDown(Window(), {300, 300}, vcl::MK_RBUTTON);
    TakeLog();
    Windows().Advance(1000);
    EXPECT_THAT(TakeLog(), IsEmpty());
}

} // namespace
