#include "ControlFixture.h"

#include "vcl/platform/VirtualKeys.h"

namespace vcl::tests
{

TEST_F(TControlTest, AKeyGoesDownIsPressedAndComesUp)
{
    TProbe& Probe = AddProbe();
    ShowForm();
    Probe.SetFocus();
    Probe.TakeNotes();
    Windows().KeyPress('A');
    EXPECT_THAT(Probe.TakeNotes(), ElementsAre("KeyDown 65", "KeyPress 97", "KeyUp 65"));
}

TEST_F(TControlTest, TypedTextComesAsOneCodePointAtATime)
{
    TProbe& Probe = AddProbe();
    ShowForm();
    Probe.SetFocus();
    std::u32string Typed;
    Probe.OnKeyPress = [&](TObject*, char32_t& Key) { Typed += Key; };
    Windows().Type("a\xC3\xA9\xE6\x97\xA5\xF0\x9F\x99\x82");
    EXPECT_EQ(Typed, U"a\u00E9\u65E5\U0001F642");
}

TEST_F(TControlTest, AKeyThatTheHandlerConsumesDoesNotReachTheEdit)
{
    TProbe& Probe = AddProbe();
    TEdit& Edit = Probe.AddEdit();
    ShowForm();
    Edit.SetFocus();
    Edit.OnKeyPress = [](TObject*, char32_t& Key) {
        if (Key == U'x')
            Key = 0;
    };
    Windows().Type("axb");
    EXPECT_EQ(Edit.GetText(), "ab");
}

TEST_F(TControlTest, TheFormWithKeyPreviewSeesKeysFirstAndMayConsumeThem)
{
    TProbe& Probe = AddProbe();
    ShowForm();
    Probe.SetFocus();
    Probe.TakeNotes();
    Form().SetKeyPreview(true);
    std::vector<std::uint16_t> Seen;
    Form().OnKeyDown = [&](TObject*, std::uint16_t& Key, TShiftState) {
        Seen.push_back(Key);
        if (Key == 'B')
            Key = 0;
    };
    Windows().KeyPress('A');
    Windows().KeyPress('B');
    EXPECT_THAT(Seen, ElementsAre('A', 'B'));
    EXPECT_THAT(Probe.TakeNotes(),
                ElementsAre("KeyDown 65", "KeyPress 97", "KeyUp 65", "KeyPress 98", "KeyUp 66"));
}

TEST_F(TControlTest, TabWalksInTabOrderAndBackAndIsNoKeyOfTheControl)
{
    TProbe& First = AddProbe();
    TProbe& Second = Add<TProbe>(0, 100, 10, 10);
    TProbe& Third = Add<TProbe>(0, 200, 10, 10);
    Third.SetTabOrder(0);
    ShowForm();
    EXPECT_TRUE(Third.Focused()) << "the first in tab order is active when the form opens";
    Third.TakeNotes();
    Windows().KeyPress(VK_TAB);
    EXPECT_TRUE(First.Focused());
    EXPECT_THAT(Third.TakeNotes(), ElementsAre("Exit"));
    Windows().KeyPress(VK_TAB);
    EXPECT_TRUE(Second.Focused());
    Windows().KeyPress(VK_TAB);
    EXPECT_TRUE(Third.Focused()) << "round at the end";
    Windows().KeyPress(VK_TAB, MK_SHIFT);
    EXPECT_TRUE(Second.Focused());
}

TEST_F(TControlTest, TabLeavesOutWhatCannotBeFocusedOrDoesNotStop)
{
    TProbe& First = AddProbe();
    TProbe& NoStop = Add<TProbe>(0, 100, 10, 10);
    TProbe& Disabled = Add<TProbe>(0, 120, 10, 10);
    TProbe& Hidden = Add<TProbe>(0, 140, 10, 10);
    TProbe& Last = Add<TProbe>(0, 160, 10, 10);
    NoStop.SetTabStop(false);
    Disabled.SetEnabled(false);
    Hidden.SetVisible(false);
    ShowForm();
    EXPECT_TRUE(First.Focused());
    Windows().KeyPress(VK_TAB);
    EXPECT_TRUE(Last.Focused());
}

TEST_F(TControlTest, ArrowsMoveTheFocusUnlessTheControlWantsThem)
{
    TProbe& First = AddProbe();
    TProbe& Second = Add<TProbe>(0, 100, 10, 10);
    ShowForm();
    Windows().KeyPress(VK_RIGHT);
    EXPECT_TRUE(Second.Focused());
    Windows().KeyPress(VK_UP);
    EXPECT_TRUE(First.Focused());
    First.WantedDialogCode = DLGC_WANTARROWS;
    First.TakeNotes();
    Windows().KeyPress(VK_DOWN);
    EXPECT_TRUE(First.Focused());
    EXPECT_THAT(First.TakeNotes(), ElementsAre("KeyDown 40", "KeyUp 40"));
}

TEST_F(TControlTest, SpecialKeysStayWithTheControlThatWantsThem)
{
    TProbe& Probe = AddProbe();
    Add<TProbe>(0, 100, 10, 10);
    ShowForm();
    Probe.WantsSpecialKeys = true;
    Probe.TakeNotes();
    Windows().KeyPress(VK_TAB);
    Windows().KeyPress(VK_ESCAPE);
    EXPECT_TRUE(Probe.Focused());
    EXPECT_THAT(Probe.TakeNotes(),
                ElementsAre("KeyDown 9", "KeyPress 9", "KeyUp 9", "KeyDown 27", "KeyPress 27", "KeyUp 27"));
}

TEST_F(TControlTest, ShiftStateTellsTheModifiersHeld)
{
    TProbe& Probe = AddProbe();
    ShowForm();
    Probe.SetFocus();
    TShiftState Seen;
    Probe.OnKeyDown = [&](TObject*, std::uint16_t&, TShiftState Shift) { Seen = Shift; };
    Windows().KeyPress(VK_F5, MK_SHIFT | MK_CONTROL);
    EXPECT_EQ(Seen, (TShiftState{TShiftKey::ssShift, TShiftKey::ssCtrl}));
}

} // namespace vcl::tests
