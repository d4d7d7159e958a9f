#include "ControlFixture.h"

#include "vcl/controls/Drag.h"
#include "vcl/platform/VirtualKeys.h"

namespace vcl::tests
{

namespace
{

class TOwnDragObject : public TDragObject
{
};

class TDragTest : public TControlTest
{
protected:
    TDragTest() : FSource(AddProbe()), FTarget(Add<TProbe>(200, 20, 100, 80))
    {
        FSource.OnEndDrag = [this](TObject*, TObject* Target, int X, int Y) {
            FEvents.push_back("end " + Name(Target) + " " + std::to_string(X) + "," + std::to_string(Y));
        };
        FTarget.OnDragOver = [this](TObject*, TObject* Source, int X, int Y, TDragState State, bool& Accept) {
            static const char* const Names[] = {"enter ", "leave ", "move "};
            FEvents.push_back(Names[static_cast<int>(State)] + Name(Source) + " " + std::to_string(X) + "," +
                              std::to_string(Y));
            Accept = FAccept;
        };
        FTarget.OnDragDrop = [this](TObject*, TObject* Source, int X, int Y) {
            FEvents.push_back("drop " + Name(Source) + " " + std::to_string(X) + "," + std::to_string(Y));
        };
        ShowForm();
    }

    std::string Name(TObject* Object) const
    {
        if (!Object)
            return "none";
        return Object == &FSource ? "source" : Object == &FTarget ? "target" : "object";
    }

    TProbe& FSource;
    TProbe& FTarget;
    bool FAccept = true;
    std::vector<std::string> FEvents;
};

} // namespace

TEST_F(TDragTest, ADragEntersMovesDropsAndEnds)
{
    Windows().MouseDown(WindowOf(FSource), {5, 5});
    FSource.BeginDrag(true);
    EXPECT_TRUE(FSource.Dragging());
    Windows().MouseMove(WindowOf(FTarget), {10, 10});
    Windows().MouseMove(WindowOf(FTarget), {11, 12});
    Windows().MouseUp(WindowOf(FTarget), {11, 12});
    EXPECT_THAT(FEvents, ElementsAre("enter source 10,10", "move source 10,10", "move source 11,12",
                                     "move source 11,12", "drop source 11,12", "end target 11,12"));
    EXPECT_FALSE(FSource.Dragging());
    EXPECT_FALSE(FSource.GetMouseCapture());
}

TEST_F(TDragTest, WhatIsNotAcceptedIsNotDropped)
{
    FAccept = false;
    FSource.BeginDrag(true);
    Windows().MouseMove(WindowOf(FTarget), {10, 10});
    EXPECT_EQ(WindowOf(FSource).GetCursor(), crNoDrop);
    FEvents.clear();
    Windows().MouseUp(WindowOf(FTarget), {10, 10});
    EXPECT_THAT(FEvents, ElementsAre("move source 10,10", "leave source 10,10", "end none 10,10"));
}

TEST_F(TDragTest, TheCursorIsTheSourcesOverWhatAccepts)
{
    FSource.SetDragCursor(crMultiDrag);
    FSource.BeginDrag(true);
    Windows().MouseMove(WindowOf(FTarget), {10, 10});
    EXPECT_EQ(WindowOf(FSource).GetCursor(), crMultiDrag);
    FSource.EndDrag(false);
    EXPECT_EQ(WindowOf(FSource).GetCursor(), crDefault);
}

TEST_F(TDragTest, EscapeCancelsTheDragUnderWay)
{
    FSource.SetFocus();
    FSource.BeginDrag(true);
    Windows().MouseMove(WindowOf(FTarget), {10, 10});
    FEvents.clear();
    FSource.TakeNotes();
    Windows().KeyPress(VK_ESCAPE);
    EXPECT_THAT(FEvents, ElementsAre("leave source 10,10", "end none 10,10"));
    EXPECT_FALSE(FSource.Dragging());
    EXPECT_THAT(FSource.TakeNotes(), ElementsAre("KeyUp 27")) << "the key is the drag's alone";
}

TEST_F(TDragTest, AThresholdKeepsASmallMoveAClick)
{
    FSource.OnMouseDown = [this](TObject*, TMouseButton, TShiftState, int, int) {
        FSource.BeginDrag(false, 4);
    };
    Windows().MouseMove(WindowOf(FSource), {50, 50});
    FSource.TakeNotes();
    Windows().MouseDown(WindowOf(FSource), {50, 50});
    Windows().MouseMove(WindowOf(FSource), {52, 52});
    EXPECT_FALSE(FSource.Dragging());
    Windows().MouseUp(WindowOf(FSource), {52, 52});
    EXPECT_THAT(FSource.TakeNotes(),
                ElementsAre("MouseDown 50,50", "MouseMove 52,52", "Click", "MouseUp 52,52"));
    EXPECT_THAT(FEvents, IsEmpty());
    Windows().MouseDown(WindowOf(FSource), {50, 50});
    Windows().MouseMove(WindowOf(FSource), {50, 54});
    EXPECT_TRUE(FSource.Dragging());
    FSource.EndDrag(false);
}

TEST_F(TDragTest, AutomaticDragModeStartsWithThePress)
{
    FSource.SetDragMode(TDragMode::dmAutomatic);
    bool Started = false;
    FSource.OnStartDrag = [&](TObject*, TDragObject*&) { Started = true; };
    FSource.TakeNotes();
    Windows().MouseDown(WindowOf(FSource), {5, 5});
    EXPECT_TRUE(Started);
    EXPECT_THAT(FSource.TakeNotes(), ElementsAre("MouseEnter"));
    FSource.EndDrag(false);
}

TEST_F(TDragTest, AnObjectOfTheHandlersOwnIsTheSourceOfTheEvents)
{
    TOwnDragObject Object;
    FSource.OnStartDrag = [&](TObject*, TDragObject*& Made) { Made = &Object; };
    FSource.BeginDrag(true);
    Windows().MouseMove(WindowOf(FTarget), {10, 10});
    Windows().MouseUp(WindowOf(FTarget), {10, 10});
    EXPECT_EQ(FEvents.front(), "enter object 10,10");
    EXPECT_EQ(FEvents.back(), "drop object 10,10") << "what a drag of its own does at the end is up to it";
}

TEST_F(TDragTest, ASourceThatIsFreedWhileDraggedEndsTheDrag)
{
    TProbe* const Mortal = &Add<TProbe>(0, 200, 20, 20);
    Mortal->BeginDrag(true);
    FTarget.OnDragOver = [&](TObject*, TObject*, int, int, TDragState, bool&) { delete Mortal; };
    Windows().MouseMove(WindowOf(FTarget), {10, 10});
    Windows().MouseMove(WindowOf(FTarget), {11, 11});
    Windows().MouseUp(WindowOf(FTarget), {11, 11});
    EXPECT_THAT(FErrors, IsEmpty());
}

TEST_F(TDragTest, TwoDragsAtOnceAreRefused)
{
    FSource.BeginDrag(true);
    EXPECT_THROW(FTarget.BeginDrag(true), EInvalidOperation);
    FSource.EndDrag(false);
}

} // namespace vcl::tests
