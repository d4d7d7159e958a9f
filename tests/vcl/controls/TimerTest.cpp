#include "ControlFixture.h"

namespace vcl::tests
{

TEST_F(TControlTest, TimersTickAsMessagesWithTheirNumber)
{
    TProbe& Probe = AddProbe();
    ShowForm();
    Probe.TakeNotes();
    EXPECT_EQ(Probe.SetTimer(7, 100), 7u);
    Probe.SetTimer(8, 250);
    Windows().Advance(99);
    EXPECT_THAT(Probe.TakeNotes(), IsEmpty());
    Windows().Advance(201);
    EXPECT_THAT(Probe.TakeNotes(), ElementsAre("Timer 7", "Timer 7", "Timer 8", "Timer 7"));
    EXPECT_TRUE(Probe.KillTimer(7));
    EXPECT_FALSE(Probe.KillTimer(7));
    Windows().Advance(200);
    EXPECT_THAT(Probe.TakeNotes(), ElementsAre("Timer 8"));
}

TEST_F(TControlTest, ABusyProgramFindsOneTickPending)
{
    TProbe& Probe = AddProbe();
    ShowForm();
    Probe.TakeNotes();
    Probe.SetTimer(1, 10);
    Windows().Sleep(1000);
    Windows().ProcessMessages();
    EXPECT_THAT(Probe.TakeNotes(), ElementsAre("Timer 1"));
}

TEST_F(TControlTest, StartingARunningTimerStartsItAnew)
{
    TProbe& Probe = AddProbe();
    ShowForm();
    Probe.TakeNotes();
    Probe.SetTimer(1, 100);
    Windows().Advance(90);
    Probe.SetTimer(1, 100);
    Windows().Advance(90);
    EXPECT_THAT(Probe.TakeNotes(), IsEmpty());
    Windows().Advance(10);
    EXPECT_THAT(Probe.TakeNotes(), ElementsAre("Timer 1"));
}

TEST_F(TControlTest, TimersEndWithTheHandle)
{
    TProbe& Probe = AddProbe();
    ShowForm();
    Probe.SetTimer(1, 10);
    Probe.RecreateWnd();
    Windows().ProcessMessages();
    Probe.TakeNotes();
    Windows().Advance(100);
    EXPECT_THAT(Probe.TakeNotes(), IsEmpty());
    EXPECT_EQ(Windows().GetTimerCount(), 0u);
}

TEST_F(TControlTest, PostedMessagesComeLaterAndInOrder)
{
    TProbe& Probe = AddProbe();
    ShowForm();
    Probe.NotedMessages = {WM_USER + 100, WM_USER + 101};
    Probe.TakeNotes();
    Probe.PostMessage(WM_USER + 100, 1);
    Probe.PostMessage(WM_USER + 101);
    Probe.PostMessage(WM_USER + 100, 0);
    EXPECT_THAT(Probe.TakeNotes(), IsEmpty());
    Windows().ProcessMessages();
    EXPECT_THAT(Probe.TakeNotes(), ElementsAre("message 1124 1", "message 1125 0", "message 1124 0"));
}

TEST_F(TControlTest, AMessageForAControlThatIsGoneIsLost)
{
    TProbe& Probe = AddProbe();
    ShowForm();
    Probe.PostMessage(WM_USER);
    delete &Probe;
    Windows().ProcessMessages();
    EXPECT_THAT(FErrors, IsEmpty());
}

TEST_F(TControlTest, TheResultOfAHandlerComesBackFromPerform)
{
    TProbe& Probe = AddProbe();
    Probe.WantsSpecialKeys = true;
    EXPECT_EQ(Probe.Perform(CM_WANTSPECIALKEY, 27), 1);
}

} // namespace vcl::tests
