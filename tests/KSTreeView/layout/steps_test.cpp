#include <gtest/gtest.h>

#include "KSTreeView/interaction/MouseSteps.h"
#include "KSTreeView/interaction/TypeAhead.h"

using treeview::ScrollDelta;
using treeview::StepsOfDoubleClick;
using treeview::StepsOfPress;
using treeview::TPress;
using treeview::TPressSteps;

namespace
{

TPress On(TPress::TTarget Target)
{
    TPress Press;
    Press.Target = Target;
    return Press;
}

TEST(Press, WithAnOpenEditorOnlyClosesIt)
{
    TPress Press = On(TPress::TTarget::Button);
    Press.IsEditorOpen = true;
    TPressSteps Expected;
    Expected.CloseEditor = true;
    EXPECT_EQ(StepsOfPress(Press), Expected);
}

TEST(Press, OnAButtonOnlyToggles)
{
    TPressSteps Expected;
    Expected.Toggle = true;
    EXPECT_EQ(StepsOfPress(On(TPress::TTarget::Button)), Expected);
    TPress Press = On(TPress::TTarget::Button);
    Press.IsDragAutomatic = true;
    EXPECT_EQ(StepsOfPress(Press), Expected);
}

TEST(Press, OnABoxSelects)
{
    const TPressSteps Steps = StepsOfPress(On(TPress::TTarget::Box));
    EXPECT_TRUE(Steps.Select);
    EXPECT_TRUE(Steps.ForgetFocusClick);
    EXPECT_FALSE(Steps.StartEditTimer);
    EXPECT_FALSE(Steps.StartPanning);
}

TEST(Press, OnTheSelectedBoxWaitsForEditingUnlessItGaveTheFocusOrTheViewIsReadOnly)
{
    TPress Press = On(TPress::TTarget::Box);
    Press.IsOnSelected = true;
    EXPECT_TRUE(StepsOfPress(Press).StartEditTimer);
    Press.IsFocusClick = true;
    EXPECT_FALSE(StepsOfPress(Press).StartEditTimer);
    Press.IsFocusClick = false;
    Press.IsReadOnly = true;
    EXPECT_FALSE(StepsOfPress(Press).StartEditTimer);
}

TEST(Press, OnAnotherBoxStopsTheWait)
{
    TPress Press = On(TPress::TTarget::Box);
    Press.IsEditPending = true;
    EXPECT_TRUE(StepsOfPress(Press).StopEditTimer);
    Press.IsOnSelected = true;
    EXPECT_FALSE(StepsOfPress(Press).StopEditTimer);
    Press.Target = TPress::TTarget::Nothing;
    Press.IsOnSelected = false;
    EXPECT_FALSE(StepsOfPress(Press).StopEditTimer) << "a miss sets nothing";
}

TEST(Press, OnTheBackgroundPans)
{
    TPressSteps Expected;
    Expected.StartPanning = true;
    Expected.ForgetFocusClick = true;
    EXPECT_EQ(StepsOfPress(On(TPress::TTarget::Nothing)), Expected);
}

TEST(Press, WithAutomaticDragSelectsAndDragsTheBox)
{
    TPress Press = On(TPress::TTarget::Box);
    Press.IsDragAutomatic = true;
    Press.IsOnSelected = true;
    TPressSteps Expected;
    Expected.Select = true;
    Expected.StartDrag = true;
    EXPECT_EQ(StepsOfPress(Press), Expected);
}

TEST(DoubleClick, StopsTheWaitSelectsAndToggles)
{
    TPress Press = On(TPress::TTarget::Box);
    Press.IsEditPending = true;
    EXPECT_EQ(StepsOfDoubleClick(Press, true), (treeview::TDoubleClickSteps{true, true, true}));
    EXPECT_EQ(StepsOfDoubleClick(Press, false), (treeview::TDoubleClickSteps{true, true, false}));
    EXPECT_EQ(StepsOfDoubleClick(On(TPress::TTarget::Button), true),
              (treeview::TDoubleClickSteps{false, false, true}));
    EXPECT_EQ(StepsOfDoubleClick(On(TPress::TTarget::Nothing), false), treeview::TDoubleClickSteps());
}

TEST(ScrollDelta, BringsTheAreaInView)
{
    EXPECT_EQ(ScrollDelta(10, 90, 100), 0);
    EXPECT_EQ(ScrollDelta(-5, 90, 100), -5);
    EXPECT_EQ(ScrollDelta(30, 110, 100), 10);
    EXPECT_EQ(ScrollDelta(30, 150, 100), 30) << "wider than the room: its start is shown";
    EXPECT_EQ(ScrollDelta(-5, 150, 100), -5);
}

TEST(TypeAhead, CollectsWhatIsTypedQuickly)
{
    treeview::TTypeAhead Typed;
    EXPECT_EQ(Typed.Type(U'a', 5000), "a");
    EXPECT_TRUE(Typed.IsRepeat());
    EXPECT_EQ(Typed.Type(U'b', 5900), "ab");
    EXPECT_FALSE(Typed.IsRepeat());
    EXPECT_EQ(Typed.GetPrefix(), "ab");
    EXPECT_EQ(Typed.Type(U'ä', 7000), "ä") << "after a pause";
    EXPECT_EQ(Typed.Type(U'ä', 7100), "ää");
    EXPECT_EQ(Typed.GetPrefix(), "ä") << "one character again and again";
}

TEST(TypeAhead, MatchesBeginningsInEitherCase)
{
    EXPECT_TRUE(treeview::BeginsWith("Alpha", "aL"));
    EXPECT_FALSE(treeview::BeginsWith("Al", "alp"));
    EXPECT_TRUE(treeview::BeginsWith("x", ""));
}

TEST(Steps, ADragScrollsNearTheEdges)
{
    using treeview::EdgeDirection;
    EXPECT_EQ(EdgeDirection(-5, 400), -1);
    EXPECT_EQ(EdgeDirection(23, 400), -1);
    EXPECT_EQ(EdgeDirection(24, 400), 0);
    EXPECT_EQ(EdgeDirection(375, 400), 0);
    EXPECT_EQ(EdgeDirection(376, 400), 1);
    EXPECT_EQ(EdgeDirection(500, 400), 1);
    EXPECT_EQ(EdgeDirection(10, 40), 0) << "a small view keeps half of it for dropping";
    EXPECT_EQ(EdgeDirection(9, 40), -1);
    EXPECT_EQ(EdgeDirection(30, 40), 1);
}

} // namespace
