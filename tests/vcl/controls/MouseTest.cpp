#include "ControlFixture.h"

namespace vcl::tests
{

TEST_F(TControlTest, AClickComesBetweenDownAndUp)
{
    TProbe& Probe = AddProbe();
    ShowForm();
    Probe.TakeNotes();
    Windows().MouseDown(WindowOf(Probe), {5, 6});
    Windows().MouseUp(WindowOf(Probe), {7, 8});
    EXPECT_THAT(Probe.TakeNotes(), ElementsAre("MouseEnter", "MouseDown 5,6", "Click", "MouseUp 7,8"));
}

TEST_F(TControlTest, ADoubleClickIsToldBeforeItsPress)
{
    TProbe& Probe = AddProbe();
    ShowForm();
    Windows().MouseMove(WindowOf(Probe), {5, 6});
    Probe.TakeNotes();
    Windows().MouseDoubleClick(WindowOf(Probe), {5, 6});
    EXPECT_THAT(Probe.TakeNotes(), ElementsAre("MouseMove 5,6", "MouseDown 5,6", "Click", "MouseUp 5,6",
                                               "DblClick", "MouseDown 5,6 double", "MouseUp 5,6"));
}

TEST_F(TControlTest, WithoutDoubleClicksTheSecondPressIsLikeTheFirst)
{
    TProbe& Probe = AddProbe();
    Probe.SetControlStyle(Probe.GetControlStyle() - TControlStyle{TControlStyleFlag::csDoubleClicks});
    ShowForm();
    Windows().MouseMove(WindowOf(Probe), {5, 6});
    Probe.TakeNotes();
    Windows().MouseDoubleClick(WindowOf(Probe), {5, 6});
    EXPECT_THAT(Probe.TakeNotes(), ElementsAre("MouseMove 5,6", "MouseDown 5,6", "Click", "MouseUp 5,6",
                                               "MouseDown 5,6", "Click", "MouseUp 5,6"));
}

TEST_F(TControlTest, ReleasedOutsideIsNoClickButStillAnUp)
{
    TProbe& Probe = AddProbe();
    ShowForm();
    Windows().MouseDown(WindowOf(Probe), {5, 6});
    EXPECT_TRUE(Probe.GetMouseCapture());
    Probe.TakeNotes();
    Windows().MouseMove(WindowOf(Form()), {300, 200});
    Windows().MouseUp(WindowOf(Form()), {300, 200});
    EXPECT_THAT(Probe.TakeNotes(), ElementsAre("MouseMove 290,180", "MouseUp 290,180"));
    EXPECT_FALSE(Probe.GetMouseCapture());
}

TEST_F(TControlTest, NegativePointsArriveSigned)
{
    TProbe& Probe = AddProbe();
    ShowForm();
    Windows().MouseDown(WindowOf(Probe), {5, 6});
    Probe.TakeNotes();
    Windows().MouseMove(WindowOf(Form()), {0, 0});
    EXPECT_THAT(Probe.TakeNotes(), ElementsAre("MouseMove -10,-20"));
}

TEST_F(TControlTest, OtherButtonsNeitherClickNorCapture)
{
    TProbe& Probe = AddProbe();
    ShowForm();
    Windows().MouseMove(WindowOf(Probe), {1, 1});
    Probe.TakeNotes();
    Windows().MouseDown(WindowOf(Probe), {1, 1}, MK_RBUTTON);
    EXPECT_FALSE(Probe.GetMouseCapture());
    Windows().MouseUp(WindowOf(Probe), {1, 1}, MK_RBUTTON);
    EXPECT_THAT(Probe.TakeNotes(), ElementsAre("MouseDown 1,1", "MouseUp 1,1"));
}

TEST_F(TControlTest, CaptureTakenAwayClearsTheClick)
{
    TProbe& Probe = AddProbe();
    ShowForm();
    Windows().MouseDown(WindowOf(Probe), {5, 6});
    Probe.Perform(WM_CANCELMODE);
    EXPECT_FALSE(Probe.GetMouseCapture());
    Probe.TakeNotes();
    Windows().MouseUp(WindowOf(Probe), {5, 6});
    EXPECT_THAT(Probe.TakeNotes(), ElementsAre("MouseUp 5,6"));
}

TEST_F(TControlTest, EnterAndLeaveComeWhenThePointerChangesControls)
{
    TProbe& Left = AddProbe();
    TProbe& Right = Add<TProbe>(200, 20, 100, 80);
    ShowForm();
    Left.TakeNotes();
    Right.TakeNotes();
    Windows().MouseMove(WindowOf(Left), {1, 1});
    Windows().MouseMove(WindowOf(Left), {2, 2});
    Windows().MouseMove(WindowOf(Right), {3, 3});
    Windows().MouseLeave();
    EXPECT_THAT(Left.TakeNotes(), ElementsAre("MouseEnter", "MouseMove 1,1", "MouseMove 2,2", "MouseLeave"));
    EXPECT_THAT(Right.TakeNotes(), ElementsAre("MouseEnter", "MouseMove 3,3", "MouseLeave"));
}

TEST_F(TControlTest, TheWheelGivesOneStepANotchAndAddsUpSmallTurns)
{
    TProbe& Probe = AddProbe();
    ShowForm();
    int Up = 0;
    int Down = 0;
    Probe.OnMouseWheelUp = [&](TObject*, TShiftState, TPoint, bool&) { ++Up; };
    Probe.OnMouseWheelDown = [&](TObject*, TShiftState, TPoint, bool&) { ++Down; };
    Windows().Wheel(WindowOf(Probe), {1, 1}, 240);
    EXPECT_EQ(Up, 2);
    Windows().Wheel(WindowOf(Probe), {1, 1}, -60);
    EXPECT_EQ(Down, 0);
    Windows().Wheel(WindowOf(Probe), {1, 1}, -60);
    EXPECT_EQ(Down, 1);
}

TEST_F(TControlTest, AWheelNobodyUsesGoesToTheParent)
{
    TProbe& Probe = AddProbe();
    ShowForm();
    TPoint At;
    Form().OnMouseWheel = [&](TObject*, TShiftState, int, TPoint Point, bool& Handled) {
        At = Point;
        Handled = true;
    };
    Windows().Wheel(WindowOf(Probe), {3, 4}, 120);
    EXPECT_EQ(At, Probe.ClientToScreen({3, 4}));
}

TEST_F(TControlTest, ADisabledControlGetsNoMouse)
{
    TProbe& Probe = AddProbe();
    ShowForm();
    Probe.SetEnabled(false);
    Probe.TakeNotes();
    Windows().MouseClick(WindowOf(Probe), {1, 1});
    EXPECT_THAT(Probe.TakeNotes(), IsEmpty());
}

TEST_F(TControlTest, TheCursorIsTheControlsOrItsParentsOrTheScreens)
{
    TProbe& Probe = AddProbe();
    ShowForm();
    Form().SetCursor(crCross);
    Windows().MouseMove(WindowOf(Probe), {1, 1});
    EXPECT_EQ(WindowOf(Probe).GetCursor(), crCross);
    Probe.SetCursor(crSizeNS);
    EXPECT_EQ(WindowOf(Probe).GetCursor(), crSizeNS);
}

TEST_F(TControlTest, APostedMouseMessagePlacesTheCaretOfAnEdit)
{
    TProbe& Probe = AddProbe();
    TEdit& Edit = Probe.AddEdit();
    Edit.SetText("abcdef");
    ShowForm();
    std::vector<int> Extents;
    Platform().Text().Extents(Edit.GetFont()->GetSpec(), "abcdef", Extents);
    const int BehindTheThird = Extents[2];
    Edit.PostMessage(WM_LBUTTONDOWN, 0, MakePointParam(BehindTheThird, 3));
    Edit.PostMessage(WM_LBUTTONUP, 0, MakePointParam(BehindTheThird, 3));
    EXPECT_EQ(WindowOf(Edit).GetEdit()->GetSelStart(), 0) << "not before the messages are handled";
    Windows().ProcessMessages();
    EXPECT_EQ(WindowOf(Edit).GetEdit()->GetSelStart(), 3);
    EXPECT_TRUE(Edit.Focused());
}

} // namespace vcl::tests
