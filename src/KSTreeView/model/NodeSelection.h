#pragma once

#include <cstdint>

#include "KSTreeView/model/TreeNode.h"
#include "vcl/system/Liveness.h"

namespace treeview
{

class TNodeRef;

/// What moving the selection raises.
class ISelectionEvents
{
public:
    /// OnChanging. Node is the one that is selected so far.
    virtual bool CanChange(TKSTreeNode* Node) = 0;
    /// OnChange. Node is the new one, and has its state already.
    virtual void Change(TKSTreeNode* Node) = 0;
    virtual void ScrollInView(TKSTreeNode* Node) = 0;

protected:
    ~ISelectionEvents() = default;
};

/// The selected, the focused and the edited node of a view.
class TNodeSelection
{
public:
    explicit TNodeSelection(ISelectionEvents& Events) : FEvents(Events) {}

    TKSTreeNode* GetSelected() const { return FSelected; }
    TKSTreeNode* GetFocused() const { return FFocused; }
    TKSTreeNode* GetEdited() const { return FEdited; }

    /// Asks with the old node, then tells with the new one; null deselects and tells nobody. A handler that
    /// selects another node has its way; what it raises comes out here, with the new node selected.
    void Select(TKSTreeNode* Node);
    void Focus(TKSTreeNode* Node);
    /// Null: none. Draws nothing.
    void SetEdited(TKSTreeNode* Node);
    /// Takes the mark from the edited node, which stays the edited one until SetEdited.
    void EndEdited();
    /// The node goes: it is none of the three any more, without events.
    void Forget(const TKSTreeNode* Node);

private:
    class TTelling;

    void LeaveSelected();
    void Enter(const TNodeRef& Next);

    ISelectionEvents& FEvents;
    TKSTreeNode* FSelected = nullptr;
    TKSTreeNode* FFocused = nullptr;
    TKSTreeNode* FEdited = nullptr;
    TKSTreeNode* FTold = nullptr;
    std::uint64_t FSerial = 0; // counts the nodes that were selected
    vcl::TLiveness FLife;
};

} // namespace treeview
