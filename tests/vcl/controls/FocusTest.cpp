#include "ControlFixture.h"

namespace vcl::tests
{

TEST_F(TControlTest, FocusTellsExitBeforeEnterAndTheFormItsActiveControl)
{
    std::vector<std::string> Order;
    TProbe& First = AddProbe();
    TProbe& Second = Add<TProbe>(0, 100, 10, 10);
    First.OnExit = [&](TObject*) { Order.push_back("exit"); };
    Second.OnEnter = [&](TObject*) { Order.push_back("enter"); };
    ShowForm();
    EXPECT_EQ(Form().GetActiveControl(), &First);
    Second.SetFocus();
    EXPECT_THAT(Order, ElementsAre("exit", "enter"));
    EXPECT_EQ(Form().GetActiveControl(), &Second);
}

TEST_F(TControlTest, AParentIsEnteredBeforeItsChildAndStaysEntered)
{
    TProbe& Probe = AddProbe();
    TEdit& Edit = Probe.AddEdit();
    TProbe& Other = Add<TProbe>(0, 100, 10, 10);
    Other.SetTabOrder(0);
    ShowForm();
    Probe.TakeNotes();
    Edit.SetFocus();
    EXPECT_THAT(Probe.TakeNotes(), ElementsAre("Enter"));
    Probe.SetFocus();
    EXPECT_THAT(Probe.TakeNotes(), IsEmpty()) << "from the child to itself";
    Other.SetFocus();
    EXPECT_THAT(Probe.TakeNotes(), ElementsAre("Exit"));
}

TEST_F(TControlTest, WhatCannotHaveTheFocusRefusesIt)
{
    TProbe& Probe = AddProbe();
    ShowForm();
    Probe.SetEnabled(false);
    EXPECT_THROW(Probe.SetFocus(), EInvalidOperation);
    Probe.SetEnabled(true);
    Probe.SetVisible(false);
    EXPECT_THROW(Probe.SetFocus(), EInvalidOperation);
}

TEST_F(TControlTest, HidingOrDisablingTheActiveControlTakesTheFocusAway)
{
    TProbe& Probe = AddProbe();
    ShowForm();
    Probe.SetFocus();
    Probe.SetVisible(false);
    EXPECT_EQ(Form().GetActiveControl(), nullptr);
    EXPECT_FALSE(Probe.Focused());
    Probe.SetVisible(true);
    Probe.SetFocus();
    Probe.SetEnabled(false);
    EXPECT_EQ(Form().GetActiveControl(), nullptr);
}

TEST_F(TControlTest, AnotherProgramInFrontExitsNothing)
{
    TProbe& Probe = AddProbe();
    ShowForm();
    Probe.SetFocus();
    Probe.TakeNotes();
    Windows().ActivateProgram(false);
    EXPECT_FALSE(Form().GetActive());
    EXPECT_FALSE(Probe.Focused());
    Windows().ActivateProgram(true);
    Windows().ActivateWindow(&WindowOf(Form()));
    EXPECT_TRUE(Probe.Focused());
    EXPECT_THAT(Probe.TakeNotes(), IsEmpty());
}

TEST_F(TControlTest, TabOrderMovesTheOthersAndEndsWithTheParent)
{
    TProbe& A = AddProbe();
    TProbe& B = Add<TProbe>(0, 0, 1, 1);
    TProbe& C = Add<TProbe>(0, 0, 1, 1);
    EXPECT_EQ(C.GetTabOrder(), 2);
    C.SetTabOrder(0);
    EXPECT_EQ(A.GetTabOrder(), 1);
    EXPECT_EQ(B.GetTabOrder(), 2);
    C.SetTabOrder(99);
    EXPECT_EQ(C.GetTabOrder(), 2);
    C.SetParent(nullptr);
    EXPECT_EQ(C.GetTabOrder(), -1);
}

TEST_F(TControlTest, AHandlerThatMovesTheFocusOnHasItsWay)
{
    TProbe& First = AddProbe();
    TProbe& Second = Add<TProbe>(0, 100, 10, 10);
    TProbe& Third = Add<TProbe>(0, 200, 10, 10);
    ShowForm();
    Second.OnEnter = [&](TObject*) { Third.SetFocus(); };
    First.SetFocus();
    Second.SetFocus();
    EXPECT_TRUE(Third.Focused());
    EXPECT_EQ(Form().GetActiveControl(), &Third);
}

} // namespace vcl::tests
