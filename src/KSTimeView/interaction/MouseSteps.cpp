#include "KSTimeView/interaction/MouseSteps.h"

namespace timeview
{

TMouseOperation ActiveOperation(const TOperationFlags& Flags)
{
    if (Flags.DragItemStart)
        return TMouseOperation::DragItemStart;
    if (Flags.DragItemEnd)
        return TMouseOperation::DragItemEnd;
    if (Flags.DragBeginWork)
        return TMouseOperation::DragBeginWork;
    if (Flags.DragEndWork)
        return TMouseOperation::DragEndWork;
    if (Flags.SelectTime)
        return TMouseOperation::SelectTime;
    if (Flags.DragItem)
        return TMouseOperation::DragItem;
    return TMouseOperation::None;
}

bool MayEditAfterDelay(const TOperationFlags& Flags)
{
    return !Flags.DragItem && !Flags.DragAndDrop;
}

TPressStep PressStep(TKSTimeViewItem* Under, bool CanSelect)
{
    TPressStep Step;
    if (Under)
        Step.Next = TItemPressed{Under};
    Step.Select = CanSelect || !Under;
    Step.Selection = Under;
    return Step;
}

TPressStep ReleaseStep(const TPressState& State, TKSTimeViewItem* Under)
{
    TPressStep Step;
    const TItemPressed* const Pressed = std::get_if<TItemPressed>(&State);
    if (Pressed && Pressed->Item == Under)
        Step.Clicked = Under;
    return Step;
}

TPressState ForgetItem(const TPressState& State, const TKSTimeViewItem* Item)
{
    const TItemPressed* const Pressed = std::get_if<TItemPressed>(&State);
    if (Pressed && Pressed->Item == Item)
        return TIdle{};
    return State;
}

} // namespace timeview
