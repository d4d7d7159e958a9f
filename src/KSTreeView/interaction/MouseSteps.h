#pragma once

#include <cstdint>

namespace treeview
{

/// What a press of the left button found.
struct TPress {
    enum class TTarget { Nothing, Box, Button };
    TTarget Target = TTarget::Nothing;
    /// The box belongs to the node that is selected already.
    bool IsOnSelected = false;
    bool IsEditorOpen = false;
    /// The edit timer runs.
    bool IsEditPending = false;
    /// The press gave the view the focus.
    bool IsFocusClick = false;
    bool IsReadOnly = false;
    /// Nodes are dragged without the program's doing.
    bool IsDragAutomatic = false;
};

/// What the view does about a press, in this order.
struct TPressSteps {
    bool CloseEditor = false;
    bool Toggle = false;
    bool StopEditTimer = false;
    bool StartEditTimer = false;
    /// Focus and selection go to the node.
    bool Select = false;
    bool StartDrag = false;
    bool StartPanning = false;
    bool ForgetFocusClick = false;
    bool operator==(const TPressSteps&) const = default;
};

TPressSteps StepsOfPress(const TPress& Press);

/// A double click: stops a pending edit; selects and toggles.
struct TDoubleClickSteps {
    bool StopEditTimer = false;
    bool Select = false;
    bool Toggle = false;
    bool operator==(const TDoubleClickSteps&) const = default;
};

TDoubleClickSteps StepsOfDoubleClick(const TPress& Press, bool HasChildren);

/// Where to scroll while something is dragged at Position of an axis of Room pixels: -1 at its start, 1 at
/// its end, 0 between. Each zone takes a quarter at most.
int EdgeDirection(int Position, int Room);

/// How far both scroll bars move so that From..To of an axis of Room pixels is seen; what is longer than Room
/// shows its start.
int ScrollDelta(int From, int To, int Room);

} // namespace treeview
