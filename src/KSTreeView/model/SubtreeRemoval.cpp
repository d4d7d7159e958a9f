#include "KSTreeView/model/SubtreeRemoval.h"

#include <algorithm>
#include <utility>

namespace treeview
{

namespace
{

/// So many nodes that handlers add to those that are going are told of.
constexpr int MostAdded = 1000;

} // namespace

TSubtreeRemoval::TSubtreeRemoval(TKSTreeNode& Root, bool Force)
    : FRoot(Root), FNodes(Root.FOwner), FForce(Force)
{
    if (!FNodes)
        return;
    FNodes->FRemovals.push_back(this);
    FGoneBefore = FNodes->FGoneSerial;
    FMostTold = FNodes->FCount + MostAdded;
}

TSubtreeRemoval::~TSubtreeRemoval()
{
    Finish();
}

void TSubtreeRemoval::Finish()
{
    if (FNodes)
        std::erase(FNodes->FRemovals, this);
    FNodes = nullptr;
}

void TSubtreeRemoval::Run()
{
    TKSTreeNode* Node = &FRoot;
    bool Entering = true;
    for (;;) {
        if (Entering && !Enter(Node)) {
            Unmark(Node);
            break;
        }
        Entering = false;
        TKSTreeNode* Child = Node->FirstStayingChild();
        if (!Child) {
            Settle(Node);
            Child = Node->FirstStayingChild(); // a handler may have added one
        }
        if (Child) {
            Node = Child;
            Entering = true;
            continue;
        }
        TKSTreeNode* const Parent = Node->FParent;
        const bool Done = Node == &FRoot;
        Leave(Node);
        if (Done)
            break;
        Node = Parent;
    }
    if (!FForce)
        FFailure.Rethrow();
}

bool TSubtreeRemoval::Enter(TKSTreeNode* Node)
{
    // The mark comes first: a handler that deletes the node it is told about does not start again.
    Node->FDeleting = true;
    if (++FTold > FMostTold)
        return true;
    const bool Told = FFailure.Try([&] {
        if (ITreeHost* const Host = Node->Host())
            Host->NodeDeleting(Node);
        if (Node->FOwner)
            CollapseBelow(Node);
    });
    // A node the collection has let go of cannot stay.
    return Told || FForce || FAbandoned || !FRoot.FLinked;
}

void TSubtreeRemoval::CollapseBelow(TKSTreeNode* Node)
{
    ITreeHost* const Host = Node->Host();
    const bool IsHeard = Host && Host->IsAnyAssigned({TTreeEvent::Collapsing, TTreeEvent::Collapsed});
    if (FCollapsed && !IsHeard) {
        Node->TakeSelectionFromBelow();
        return;
    }
    Node->Collapse(true);
    FCollapsed = FCollapsed || (Node == &FRoot && !IsHeard);
}

/// From the node that failed up to the root, all are nodes like any other again.
void TSubtreeRemoval::Unmark(TKSTreeNode* Node)
{
    for (TKSTreeNode* Stays = Node;; Stays = Stays->FParent) {
        Stays->FDeleting = false;
        if (FNodes && !Stays->FCounted)
            FNodes->Count(Stays);
        if (Stays == &FRoot)
            break;
    }
    TKSTreeNodes* const Nodes = FNodes;
    const bool HasRemoved = Nodes && Nodes->FGoneSerial != FGoneBefore;
    Finish();
    if (HasRemoved)
        FFailure.Try([&] { Nodes->RefreshUnlessUpdating(); });
}

void TSubtreeRemoval::Settle(TKSTreeNode* Node)
{
    FFailure.Try([&] { Node->SetHasChildren(false); });
    if (Node->FOwner)
        Node->FOwner->Uncount(Node);
    FFailure.Try([&] {
        ITreeHost* const Host = Node->Host();
        if (Host && Host->SelectedNode() == Node)
            Host->SelectNode(nullptr);
    });
    FFailure.Try([&] {
        ITreeHost* const Host = Node->Host();
        if (Host && Host->FocusedNode() == Node)
            Host->FocusNode(nullptr);
    });
    FFailure.Try([&] {
        if (ITreeHost* const Host = Node->Host())
            Host->ForgetNode(Node);
    });
}

void TSubtreeRemoval::OrphanChildren(TKSTreeNode* Node)
{
    // Left are children whose removal goes on further up the stack.
    while (TKSTreeNode* const Child = Node->FFirstChild) {
        Node->FFirstChild = Child->FNextSibling;
        Child->FParent = nullptr;
        Child->FPrevSibling = nullptr;
        Child->FNextSibling = nullptr;
        Child->FLinked = false;
        if (Child->FOwner)
            Child->FOwner->Uncount(Child);
    }
    Node->FLastChild = nullptr;
    Node->FChildCount = 0;
}

void TSubtreeRemoval::Leave(TKSTreeNode* Node)
{
    OrphanChildren(Node);
    TKSTreeNodes* const Nodes = Node->FOwner;
    TKSTreeNode* const Parent = Node->FParent;
    const bool LeavesGap = Node->FLinked && Nodes && !(Parent && Parent->FDeleting);
    const bool WasVisible = LeavesGap && Node->IsVisible();
    if (Nodes) {
        Nodes->Uncount(Node);
        Nodes->Unlink(Node);
        Nodes->NodeGone(Node);
    } else if (Parent) {
        // The collection is gone; what is left of the tree is its marked nodes.
        Parent->FFirstChild = Parent->FLastChild = nullptr;
    }
    Node->FParent = nullptr; // which may go before this node does
    if (Node == &FRoot)
        Finish();
    vcl::TObject::operator delete (Node, std::destroying_delete_t{});
    if (LeavesGap)
        FFailure.Try([&] { TellOfGap(*Nodes, Parent, WasVisible); });
}

/// The last thing to happen to a node that leaves others behind: painting, whose handlers may do anything.
void TSubtreeRemoval::TellOfGap(TKSTreeNodes& Nodes, TKSTreeNode* Parent, bool WasVisible)
{
    if (Parent && !Parent->FFirstChild) {
        Parent->FHasChildren = false;
        Parent->FStates.Exclude(TKSTNNodeState::nsExpanded);
    }
    if (Parent && !WasVisible && !Nodes.IsUpdating())
        Parent->Draw();
    else
        Nodes.RefreshUnlessUpdating();
}

TKSTreeNode* TSubtreeRemoval::FirstStaying() const
{
    const TKSTreeNode* const End = FRoot.NextOutside();
    for (TKSTreeNode* Node = FRoot.FFirstChild; Node && Node != End; Node = Node->GetNext())
        if (!Node->FDeleting)
            return Node;
    return nullptr;
}

void TSubtreeRemoval::Abandon(bool OwnerGoes)
{
    TKSTreeNode* const End = FRoot.NextOutside();
    for (TKSTreeNode* Node = &FRoot; Node && Node != End; Node = Node->GetNext()) {
        Node->FLinked = false;
        Node->FCounted = false;
        if (OwnerGoes)
            Node->FOwner = nullptr;
    }
    if (!FRoot.FParent)
        FRoot.FPrevSibling = FRoot.FNextSibling = nullptr;
    FAbandoned = true;
    if (OwnerGoes)
        FNodes = nullptr;
}

} // namespace treeview
