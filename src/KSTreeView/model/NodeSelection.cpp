#include "KSTreeView/model/NodeSelection.h"

#include <exception>

#include "KSTreeView/model/NodeRef.h"

namespace treeview
{

using enum TKSTNNodeState;

/// False: the selection stays, by veto or because a handler took away what was to be selected.
bool TNodeSelection::LeaveSelected(const TNodeRef& Next, bool WantsNode)
{
    const vcl::TAliveGuard Witness(FLife);
    if (!FEvents.CanChange(FSelected) || !Witness.IsAlive())
        return false;
    if ((WantsNode && !Next) || FSelected == Next.Get())
        return !WantsNode;
    if (TKSTreeNode* const Old = FSelected) {
        Old->ChangeState(nsSelected, false);
        Old->Draw();
    }
    return Witness.IsAlive() && (!WantsNode || Next);
}

/// The node that is being told to have become selected, until the end of the block.
class TNodeSelection::TTelling
{
public:
    TTelling(TNodeSelection& Selection, TKSTreeNode* Node)
        : FSelection(Selection), FBefore(Selection.FTold), FWitness(Selection.FLife)
    {
        FSelection.FTold = Node;
    }
    ~TTelling()
    {
        if (FWitness.IsAlive())
            FSelection.FTold = FBefore.Get();
    }
    TTelling(const TTelling&) = delete;
    TTelling& operator=(const TTelling&) = delete;

private:
    TNodeSelection& FSelection;
    TNodeRef FBefore;
    vcl::TAliveGuard FWitness;
};

void TNodeSelection::Select(TKSTreeNode* Node)
{
    // A handler may select what it is told to be selected.
    if (Node == FSelected || (Node && Node == FTold))
        return;
    const vcl::TAliveGuard Witness(FLife);
    const TNodeRef Next(Node);
    if (FSelected && !LeaveSelected(Next, Node != nullptr))
        return;
    const std::uint64_t Serial = Next ? ++FSerial : FSerial;
    std::exception_ptr Failure;
    try {
        if (Next)
            Enter(Next);
    } catch (...) {
        Failure = std::current_exception();
    }
    if (Witness.IsAlive() && FSerial == Serial) {
        FSelected = Next.Get();
        if (!Failure)
            FEvents.ScrollInView(FSelected);
    }
    if (Failure)
        std::rethrow_exception(Failure);
}

/// Marks the new node and tells; a handler may select another one meanwhile.
void TNodeSelection::Enter(const TNodeRef& Next)
{
    const vcl::TAliveGuard Witness(FLife);
    TKSTreeNode* const Node = Next.Get();
    const std::uint64_t Serial = FSerial;
    Node->ChangeState(nsSelected, true);
    {
        const TTelling Telling(*this, Node);
        FEvents.Change(Node);
    }
    if (!Witness.IsAlive() || !Next)
        return;
    if (FSerial != Serial && FSelected != Node)
        Node->ChangeState(nsSelected, false);
    Node->Draw();
}

void TNodeSelection::Focus(TKSTreeNode* Node)
{
    if (Node == FFocused)
        return;
    const vcl::TAliveGuard Witness(FLife);
    const TNodeRef Next(Node);
    TKSTreeNode* const Old = FFocused;
    FFocused = Node;
    std::exception_ptr Failure;
    try {
        if (Old) {
            Old->ChangeState(nsFocused, false);
            Old->Draw();
        }
    } catch (...) {
        Failure = std::current_exception();
    }
    if (Witness.IsAlive() && Next && FFocused == Node) {
        Node->ChangeState(nsFocused, true);
        if (!Failure)
            Node->Draw();
    }
    if (Failure)
        std::rethrow_exception(Failure);
}

void TNodeSelection::SetEdited(TKSTreeNode* Node)
{
    if (FEdited)
        FEdited->ChangeState(nsEdited, false);
    FEdited = Node;
    if (Node)
        Node->ChangeState(nsEdited, true);
}

void TNodeSelection::EndEdited()
{
    if (FEdited)
        FEdited->ChangeState(nsEdited, false);
}

void TNodeSelection::Forget(const TKSTreeNode* Node)
{
    if (FSelected == Node)
        FSelected = nullptr;
    if (FFocused == Node)
        FFocused = nullptr;
    if (FEdited == Node)
        FEdited = nullptr;
    if (FTold == Node)
        FTold = nullptr;
}

} // namespace treeview
