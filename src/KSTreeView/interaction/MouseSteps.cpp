#include "KSTreeView/interaction/MouseSteps.h"

#include <algorithm>

namespace treeview
{

TPressSteps StepsOfPress(const TPress& Press)
{
    TPressSteps Steps;
    if (Press.IsEditorOpen) {
        Steps.CloseEditor = true;
        return Steps;
    }
    if (Press.Target == TPress::TTarget::Button) {
        Steps.Toggle = true;
        return Steps;
    }
    const bool IsOnBox = Press.Target == TPress::TTarget::Box;
    Steps.Select = IsOnBox;
    if (Press.IsDragAutomatic) {
        Steps.StartDrag = IsOnBox;
        Steps.StartPanning = !IsOnBox;
        return Steps;
    }
    Steps.ForgetFocusClick = true;
    Steps.StartPanning = !IsOnBox;
    if (!IsOnBox)
        return Steps;
    Steps.StartEditTimer = Press.IsOnSelected && !Press.IsFocusClick && !Press.IsReadOnly;
    Steps.StopEditTimer = !Press.IsOnSelected && Press.IsEditPending;
    return Steps;
}

TDoubleClickSteps StepsOfDoubleClick(const TPress& Press, bool HasChildren)
{
    TDoubleClickSteps Steps;
    Steps.StopEditTimer = Press.IsEditPending;
    Steps.Select = Press.Target == TPress::TTarget::Box;
    Steps.Toggle = Press.Target == TPress::TTarget::Button || (Steps.Select && HasChildren);
    return Steps;
}

int EdgeDirection(int Position, int Room)
{
    constexpr int WidestZone = 24;
    const int Zone = std::min(WidestZone, Room / 4);
    return Position < Zone ? -1 : Position >= Room - Zone ? 1 : 0;
}

int ScrollDelta(int From, int To, int Room)
{
    if (From < 0)
        return From;
    return To > Room ? std::min(To - Room, From) : 0;
}

} // namespace treeview
