#pragma once

#include <variant>

class TKSTimeViewItem;
class TKSTimeviewDay;

namespace timeview
{

/// The mouse operations of the view, in the order in which auto-scrolling looks for the one that is active.
enum class TMouseOperation {
    None,
    DragItemStart,
    DragItemEnd,
    DragBeginWork,
    DragEndWork,
    SelectTime,
    DragItem,
};

/// Which operations are under way.
struct TOperationFlags {
    bool DragItemStart = false;
    bool DragItemEnd = false;
    bool DragBeginWork = false;
    bool DragEndWork = false;
    bool SelectTime = false;
    bool DragItem = false;
    /// An item travels as a drag object.
    bool DragAndDrop = false;
};

/// The operation that a tick of auto-scrolling runs again.
TMouseOperation ActiveOperation(const TOperationFlags& Flags);
/// Whether the item may be edited in place when the edit delay is over.
bool MayEditAfterDelay(const TOperationFlags& Flags);

/// The left mouse button on the view.
struct TIdle {
    bool operator==(const TIdle&) const = default;
};
struct TItemPressed {
    TKSTimeViewItem* Item = nullptr;
    bool operator==(const TItemPressed&) const = default;
};
using TPressState = std::variant<TIdle, TItemPressed>;

/// A step of the mouse: the next state and what the view does.
struct TPressStep {
    TPressState Next;
    /// Select Selection, which may be null: none.
    bool Select = false;
    TKSTimeViewItem* Selection = nullptr;
    /// Tell of a click on this item; null: none.
    TKSTimeViewItem* Clicked = nullptr;
    bool operator==(const TPressStep&) const = default;
};

/// The button goes down on an item, or beside all of them (null). CanSelect: items may be selected at all.
TPressStep PressStep(TKSTimeViewItem* Under, bool CanSelect);
/// The button goes up: a click when it is still on the item it went down on.
TPressStep ReleaseStep(const TPressState& State, TKSTimeViewItem* Under);
/// Item is being freed.
TPressState ForgetItem(const TPressState& State, const TKSTimeViewItem* Item);

} // namespace timeview
