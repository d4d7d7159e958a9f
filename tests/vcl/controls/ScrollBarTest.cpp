#include "ControlFixture.h"

namespace vcl::tests
{

using enum TScrollBarKind;

TEST_F(TControlTest, ScrollMessagesCarryWholePositions)
{
    TProbe& Probe = AddProbe();
    Probe.SetBars(true, true);
    ShowForm();
    Probe.TakeNotes();
    Windows().Scroll(WindowOf(Probe), sbVertical, SB_THUMBTRACK, 1000000000);
    Windows().Scroll(WindowOf(Probe), sbHorizontal, SB_THUMBPOSITION, -70000);
    Windows().Scroll(WindowOf(Probe), sbVertical, SB_LINEDOWN);
    EXPECT_THAT(Probe.TakeNotes(), ElementsAre("VScroll 5 1000000000", "HScroll 4 -70000", "VScroll 1 0"));
}

TEST_F(TControlTest, AUsedBarDoesNotMoveByItself)
{
    TProbe& Probe = AddProbe();
    Probe.SetBars(false, true);
    ShowForm();
    Windows().Scroll(WindowOf(Probe), sbVertical, SB_LINEDOWN);
    EXPECT_EQ(Probe.GetScrollPos(sbVertical), 0);
    EXPECT_EQ(Probe.SetScrollPos(sbVertical, 30), 0);
    EXPECT_EQ(Probe.SetScrollPos(sbVertical, 40), 30);
    EXPECT_EQ(WindowOf(Probe).GetScrollBar(sbVertical).Pos, 40);
}

TEST_F(TControlTest, ThePositionTheThumbIsDraggedToIsKnownWhileItIs)
{
    TProbe& Probe = AddProbe();
    Probe.SetBars(false, true);
    ShowForm();
    Windows().Scroll(WindowOf(Probe), sbVertical, SB_THUMBTRACK, 55);
    TScrollInfo Info;
    ASSERT_TRUE(Probe.GetScrollInfo(sbVertical, Info));
    EXPECT_EQ(Info.TrackPos, 55);
    EXPECT_EQ(Info.Pos, 0);
    Windows().Scroll(WindowOf(Probe), sbVertical, SB_ENDSCROLL);
    Probe.GetScrollInfo(sbVertical, Info);
    EXPECT_EQ(Info.TrackPos, 0);
}

TEST_F(TControlTest, ARangeThatFitsHidesTheBarAndTellsTheNewSize)
{
    TProbe& Probe = AddProbe();
    Probe.SetBars(false, true);
    ShowForm();
    Probe.TakeNotes();
    Probe.SetScrollInfo(sbVertical, {SIF_RANGE | SIF_PAGE, 0, 10, 50, 0, 0});
    EXPECT_THAT(Probe.TakeNotes(), ElementsAre("Size 100,80", "Resize"));
    Probe.SetScrollInfo(sbVertical, {SIF_RANGE | SIF_PAGE, 0, 100, 50, 0, 0});
    EXPECT_THAT(Probe.TakeNotes(), ElementsAre("Size 84,80", "Resize"));
    Probe.SetScrollInfo(sbVertical, {SIF_RANGE | SIF_PAGE | SIF_DISABLENOSCROLL, 0, 10, 50, 0, 0});
    EXPECT_THAT(Probe.TakeNotes(), IsEmpty());
    EXPECT_FALSE(WindowOf(Probe).GetScrollBar(sbVertical).Enabled);
}

TEST_F(TControlTest, WithoutAHandleBarsAnswerNothing)
{
    TProbe& Probe = AddProbe();
    EXPECT_EQ(Probe.SetScrollInfo(sbVertical, {SIF_ALL, 0, 100, 10, 50, 0}), 0);
    EXPECT_EQ(Probe.GetScrollPos(sbVertical), 0);
    TScrollInfo Info;
    EXPECT_FALSE(Probe.GetScrollInfo(sbVertical, Info));
    ShowForm();
    EXPECT_EQ(Probe.GetScrollPos(sbVertical), 0);
}

} // namespace vcl::tests
