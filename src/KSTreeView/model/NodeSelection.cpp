#include "KSTreeView/model/NodeSelection.h"

#include "KSTreeView/model/NodeRef.h"
#include "vcl/system/FirstFailure.h"

namespace treeview
{

using enum TKSTNNodeState;

/// The node that is being told to have become selected, until the end of the block.
class TNodeSelection::TTelling
{
public:
    TTelling(TNodeSelection& Selection, TKSTreeNode* Node) : FSelection(Selection), FWitness(Selection.FLife)
    {
        FSelection.FTold = Node;
    }
    ~TTelling()
    {
        if (FWitness.IsAlive())
            FSelection.FTold = nullptr;
    }
    TTelling(const TTelling&) = delete;
    TTelling& operator=(const TTelling&) = delete;

private:
    TNodeSelection& FSelection;
    vcl::TAliveGuard FWitness;
};

void TNodeSelection::Select(TKSTreeNode* Node)
{
    // A handler may select what it is told to be selected.
    if (Node == FSelected || (Node && Node == FTold))
        return;
    const vcl::TAliveGuard Witness(FLife);
    const TNodeRef Next(Node);
    if (FSelected && !FEvents.CanChange(FSelected))
        return;
    if (!Witness.IsAlive() || Next.Get() != Node || Node == FSelected)
        return;
    const std::uint64_t Serial = Node ? ++FSerial : FSerial;
    vcl::TFirstFailure Failure;
    Failure.Try([&] { LeaveSelected(); });
    if (Witness.IsAlive() && FSerial == Serial && Next)
        Failure.Try([&] { Enter(Next); });
    // A handler that has selected another node has its way.
    if (Witness.IsAlive() && FSerial == Serial) {
        FSelected = Next.Get();
        if (!Failure.Get())
            FEvents.ScrollInView(FSelected);
    }
    Failure.Rethrow();
}

void TNodeSelection::LeaveSelected()
{
    TKSTreeNode* const Old = FSelected;
    if (!Old)
        return;
    Old->ChangeState(nsSelected, false);
    Old->Draw();
}

/// Marks the new node, tells of it and draws it, selected still or not.
void TNodeSelection::Enter(const TNodeRef& Next)
{
    const vcl::TAliveGuard Witness(FLife);
    const std::uint64_t Serial = FSerial;
    vcl::TFirstFailure Failure;
    Next->ChangeState(nsSelected, true);
    Failure.Try([&] {
        const TTelling Telling(*this, Next.Get());
        FEvents.Change(Next.Get());
    });
    if (Witness.IsAlive() && Next) {
        if (FSerial != Serial && FSelected != Next.Get())
            Next->ChangeState(nsSelected, false);
        Failure.Try([&] { Next->Draw(); });
    }
    Failure.Rethrow();
}

void TNodeSelection::Focus(TKSTreeNode* Node)
{
    if (Node == FFocused)
        return;
    const vcl::TAliveGuard Witness(FLife);
    const TNodeRef Next(Node);
    TKSTreeNode* const Old = FFocused;
    FFocused = Node;
    vcl::TFirstFailure Failure;
    if (Old) {
        Old->ChangeState(nsFocused, false);
        Failure.Try([&] { Old->Draw(); });
    }
    if (Witness.IsAlive() && Next && FFocused == Node) {
        Node->ChangeState(nsFocused, true);
        Failure.Try([&] { Node->Draw(); });
    }
    Failure.Rethrow();
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
