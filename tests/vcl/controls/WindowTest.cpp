#include "ControlFixture.h"

namespace vcl::tests
{

TEST_F(TControlTest, AControlHasNoHandleBeforeItsFormShows)
{
    TProbe& Probe = AddProbe();
    EXPECT_FALSE(Probe.HandleAllocated());
    EXPECT_THAT(Probe.TakeNotes(), IsEmpty());
    ShowForm();
    EXPECT_TRUE(Probe.HandleAllocated());
    EXPECT_TRUE(Probe.GetShowing());
}

TEST_F(TControlTest, AskingForTheHandleMakesThoseOfTheParentsToo)
{
    TProbe& Probe = AddProbe();
    Probe.GetHandle();
    EXPECT_TRUE(Probe.HandleAllocated());
    EXPECT_TRUE(Form().HandleAllocated());
    EXPECT_FALSE(Probe.GetShowing());
}

TEST_F(TControlTest, AHandleWithoutAParentIsRefusedByName)
{
    TProbe Probe(nullptr);
    Probe.SetName("Lonely");
    EXPECT_THROW(
        {
            try {
                Probe.GetHandle();
            } catch (const EInvalidOperation& Error) {
                EXPECT_STREQ(Error.what(), "Control 'Lonely' has no parent window");
                throw;
            }
        },
        EInvalidOperation);
    EXPECT_FALSE(Probe.HandleAllocated());
}

TEST_F(TControlTest, MakingTheHandleTellsTheSizeOfTheClientArea)
{
    TProbe& Probe = AddProbe();
    Probe.SetTabStop(false);
    ShowForm();
    EXPECT_THAT(Probe.TakeNotes(), ElementsAre("Size 100,80", "Resize", "Paint 0,0,100,80"));
}

TEST_F(TControlTest, BordersAndBarsLeaveASmallerClientArea)
{
    TProbe& Probe = AddProbe();
    ShowForm();
    Probe.SetBorderStyle(TBorderStyle::bsSingle);
    EXPECT_EQ(Probe.GetClientRect(), (TRect{0, 0, 96, 76})) << "a client edge of two pixels";
    Probe.SetCtl3D(false);
    Probe.RecreateWnd();
    EXPECT_EQ(Probe.GetClientRect(), (TRect{0, 0, 98, 78})) << "a line of one pixel";
    Probe.SetBars(true, true);
    EXPECT_EQ(Probe.GetClientRect(), (TRect{0, 0, 82, 62})) << "bars of sixteen pixels";
    Probe.SetBars(false, false);
    Probe.SetBorderStyle(TBorderStyle::bsNone);
    EXPECT_EQ(Probe.GetClientRect(), (TRect{0, 0, 100, 80}));
}

TEST_F(TControlTest, RecreatingKeepsTheWindowObjectItsBarsItsTextAndTheFocus)
{
    TProbe& Probe = AddProbe();
    Probe.SetBars(false, true);
    ShowForm();
    Probe.SetFocus();
    Probe.SetText("Probe");
    Probe.SetScrollInfo(TScrollBarKind::sbVertical, {SIF_ALL, 0, 500, 50, 70, 0});
    IWindow* const Before = Probe.GetWindow();
    Probe.TakeNotes();

    Probe.RecreateWnd();

    EXPECT_EQ(Probe.GetWindow(), Before);
    EXPECT_TRUE(Probe.Focused());
    EXPECT_EQ(WindowOf(Probe).GetText(), "Probe");
    EXPECT_EQ(WindowOf(Probe).GetScrollBar(TScrollBarKind::sbVertical).Pos, 70);
    EXPECT_EQ(Probe.GetScrollPos(TScrollBarKind::sbVertical), 70);
    EXPECT_THAT(Probe.TakeNotes(), ElementsAre("Size 84,80", "Resize"));
}

TEST_F(TControlTest, RecreatingTheParentRecreatesTheChildren)
{
    TProbe& Probe = AddProbe();
    TEdit& Edit = Probe.AddEdit();
    ShowForm();
    Edit.SetText("kept");
    IWindow* const Before = Edit.GetWindow();
    Probe.RecreateWnd();
    EXPECT_TRUE(Edit.HandleAllocated());
    EXPECT_EQ(Edit.GetWindow(), Before);
    EXPECT_EQ(WindowOf(Edit).GetText(), "kept");
    EXPECT_TRUE(WindowOf(Edit).IsOnScreen());
}

TEST_F(TControlTest, ResizingTellsTheNewSizeOnceAndMovingNone)
{
    TProbe& Probe = AddProbe();
    ShowForm();
    Probe.TakeNotes();
    Probe.SetBounds(0, 0, 100, 80);
    EXPECT_THAT(Probe.TakeNotes(), IsEmpty());
    Probe.SetBounds(0, 0, 50, 60);
    EXPECT_THAT(Probe.TakeNotes(), ElementsAre("Size 50,60", "Resize"));
    EXPECT_EQ(WindowOf(Probe).GetBounds(), (TRect{0, 0, 50, 60}));
}

TEST_F(TControlTest, TheUserResizingTheFormResizesItsClientArea)
{
    ShowForm();
    WindowOf(Form()).UserBounds({100, 100, 508, 427});
    EXPECT_EQ(Form().GetBoundsRect(), (TRect{100, 100, 508, 427}));
    EXPECT_EQ(Form().GetClientRect(), (TRect{0, 0, 400, 300}));
}

TEST_F(TControlTest, AWindowThatThePlatformDestroysCostsTheControlItsHandleOnly)
{
    TProbe& Probe = AddProbe();
    TEdit& Edit = Probe.AddEdit();
    ShowForm();
    Probe.SetTimer(1, 10);
    WindowOf(Probe).DestroyByPlatform();
    EXPECT_FALSE(Probe.HandleAllocated());
    EXPECT_EQ(Probe.GetWindow(), nullptr);
    EXPECT_FALSE(Edit.HandleAllocated());
    EXPECT_EQ(Windows().GetTimerCount(), 0u);
    Probe.Invalidate();
    Probe.Update();
    Probe.GetHandle();
    EXPECT_TRUE(Probe.HandleAllocated());
}

TEST_F(TControlTest, AHiddenControlKeepsItsHandleAndItsWindowHides)
{
    TProbe& Probe = AddProbe();
    ShowForm();
    Probe.SetVisible(false);
    EXPECT_TRUE(Probe.HandleAllocated());
    EXPECT_FALSE(Probe.GetShowing());
    EXPECT_FALSE(WindowOf(Probe).IsVisible());
    Probe.SetVisible(true);
    EXPECT_TRUE(WindowOf(Probe).IsVisible());
}

TEST_F(TControlTest, ScreenPointsGoThroughFrameParentsAndBorders)
{
    TProbe& Probe = AddProbe();
    Probe.SetBorderStyle(TBorderStyle::bsSingle);
    Form().SetBounds(100, 200, 420, 330);
    ShowForm();
    // The form's frame has 4 pixels at the left and 23 at the top, the probe's border 2.
    EXPECT_EQ(Probe.ClientToScreen({1, 1}), (TPoint{100 + 4 + 10 + 2 + 1, 200 + 23 + 20 + 2 + 1}));
    EXPECT_EQ(Probe.ScreenToClient(Probe.ClientToScreen({7, 9})), (TPoint{7, 9}));
}

TEST_F(TControlTest, AControlCannotBecomeItsOwnAncestor)
{
    TProbe& Probe = AddProbe();
    TProbe* const Child = New<TProbe>(&Probe);
    Child->SetParent(&Probe);
    EXPECT_THROW(Probe.SetParent(&Probe), EInvalidOperation);
    EXPECT_THROW(Probe.SetParent(Child), EInvalidOperation);
}

} // namespace vcl::tests
