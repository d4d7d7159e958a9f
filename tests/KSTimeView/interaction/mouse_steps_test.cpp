#include "KSTimeView/interaction/MouseSteps.h"

#include <gtest/gtest.h>

using namespace timeview;

namespace
{

/// Items are only compared here, never looked into.
TKSTimeViewItem* Item(int Number)
{
    static char Places[4];
    return reinterpret_cast<TKSTimeViewItem*>(&Places[Number]);
}

TEST(MouseSteps, APressOnAnItemSelectsItAndWaitsForTheRelease)
{
    EXPECT_EQ(PressStep(Item(1), true), (TPressStep{TItemPressed{Item(1)}, true, Item(1), nullptr}));
    EXPECT_EQ(PressStep(Item(1), false), (TPressStep{TItemPressed{Item(1)}, false, Item(1), nullptr}));
}

TEST(MouseSteps, APressBesideAllItemsClearsTheSelectionWithOrWithoutTheOption)
{
    EXPECT_EQ(PressStep(nullptr, true), (TPressStep{TIdle{}, true, nullptr, nullptr}));
    EXPECT_EQ(PressStep(nullptr, false), (TPressStep{TIdle{}, true, nullptr, nullptr}));
}

TEST(MouseSteps, OnlyAReleaseOnTheSameItemIsAClick)
{
    EXPECT_EQ(ReleaseStep(TItemPressed{Item(1)}, Item(1)).Clicked, Item(1));
    EXPECT_EQ(ReleaseStep(TItemPressed{Item(1)}, Item(2)).Clicked, nullptr);
    EXPECT_EQ(ReleaseStep(TItemPressed{Item(1)}, nullptr).Clicked, nullptr);
    EXPECT_EQ(ReleaseStep(TIdle{}, Item(1)).Clicked, nullptr);
    EXPECT_EQ(ReleaseStep(TItemPressed{Item(1)}, Item(1)).Next, TPressState(TIdle{}));
}

TEST(MouseSteps, AnItemThatIsFreedIsForgotten)
{
    EXPECT_EQ(ForgetItem(TItemPressed{Item(1)}, Item(1)), TPressState(TIdle{}));
    EXPECT_EQ(ForgetItem(TItemPressed{Item(1)}, Item(2)), TPressState(TItemPressed{Item(1)}));
    EXPECT_EQ(ForgetItem(TIdle{}, Item(2)), TPressState(TIdle{}));
}

TEST(ActiveOperation, IsTheFirstUnderWayInTheOrderOfTheOperations)
{
    TOperationFlags Flags;
    EXPECT_EQ(ActiveOperation(Flags), TMouseOperation::None);
    Flags.DragItem = true;
    EXPECT_EQ(ActiveOperation(Flags), TMouseOperation::DragItem);
    Flags.SelectTime = true;
    EXPECT_EQ(ActiveOperation(Flags), TMouseOperation::SelectTime);
    Flags.DragEndWork = true;
    EXPECT_EQ(ActiveOperation(Flags), TMouseOperation::DragEndWork);
    Flags.DragBeginWork = true;
    EXPECT_EQ(ActiveOperation(Flags), TMouseOperation::DragBeginWork);
    Flags.DragItemEnd = true;
    EXPECT_EQ(ActiveOperation(Flags), TMouseOperation::DragItemEnd);
    Flags.DragItemStart = true;
    EXPECT_EQ(ActiveOperation(Flags), TMouseOperation::DragItemStart);
}

TEST(EditDelay, EditsOnlyWhileNoItemTravels)
{
    EXPECT_TRUE(MayEditAfterDelay({}));
    TOperationFlags Dragging;
    Dragging.DragItem = true;
    EXPECT_FALSE(MayEditAfterDelay(Dragging));
    TOperationFlags Travelling;
    Travelling.DragAndDrop = true;
    EXPECT_FALSE(MayEditAfterDelay(Travelling));
}

} // namespace
