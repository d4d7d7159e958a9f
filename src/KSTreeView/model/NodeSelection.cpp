#include "KSTreeView/model/NodeSelection.h"

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

void TNodeSelection::Select(TKSTreeNode* Node)
{
    if (Node == FSelected)
        return;
    const vcl::TAliveGuard Witness(FLife);
    const TNodeRef Next(Node);
    if (FSelected && !LeaveSelected(Next, Node != nullptr))
        return;
    if (Next) {
        Node->ChangeState(nsSelected, true);
        const std::uint64_t Serial = ++FSerial;
        FEvents.Change(Node);
        if (!Witness.IsAlive())
            return;
        if (FSerial != Serial) {
            if (Next && FSelected != Node)
                Node->ChangeState(nsSelected, false);
            return;
        }
        if (Next)
            Node->Draw();
        if (!Witness.IsAlive())
            return;
    }
    FSelected = Next.Get();
    FEvents.ScrollInView(FSelected);
}

void TNodeSelection::Focus(TKSTreeNode* Node)
{
    if (Node == FFocused)
        return;
    const vcl::TAliveGuard Witness(FLife);
    const TNodeRef Next(Node);
    TKSTreeNode* const Old = FFocused;
    FFocused = Node;
    if (Old) {
        Old->ChangeState(nsFocused, false);
        Old->Draw();
    }
    if (!Witness.IsAlive() || !Next || FFocused != Node)
        return;
    Node->ChangeState(nsFocused, true);
    Node->Draw();
}

void TNodeSelection::SetEdited(TKSTreeNode* Node)
{
    if (FEdited)
        FEdited->ChangeState(nsEdited, false);
    FEdited = Node;
    if (Node)
        Node->ChangeState(nsEdited, true);
}

void TNodeSelection::Forget(const TKSTreeNode* Node)
{
    if (FSelected == Node)
        FSelected = nullptr;
    if (FFocused == Node)
        FFocused = nullptr;
    if (FEdited == Node)
        FEdited = nullptr;
}

} // namespace treeview
