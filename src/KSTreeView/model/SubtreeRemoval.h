#pragma once

#include "KSTreeView/model/TreeNodes.h"
#include "vcl/system/FirstFailure.h"

namespace treeview
{

/// Takes a node and all below it out of their collection and frees them, without recursion.
///
/// On the way it raises the events of each node's deletion, whose handlers may delete any node, clear the
/// collection or free the view: nodes on the way are marked and belong to this removal alone. A removal
/// inside another one passes over marked nodes. When handlers go on adding nodes to those that are going, the
/// added ones go unheard after a while.
class TSubtreeRemoval
{
public:
    /// Force: goes on when a handler raises, and raises nothing itself.
    explicit TSubtreeRemoval(TKSTreeNode& Root, bool Force = false);
    ~TSubtreeRemoval();
    TSubtreeRemoval(const TSubtreeRemoval&) = delete;
    TSubtreeRemoval& operator=(const TSubtreeRemoval&) = delete;

    void Run();
    /// The first that a handler raised, with Force.
    std::exception_ptr GetFailure() const { return FFailure.Get(); }

    /// The first node below the root that nobody is deleting yet.
    TKSTreeNode* FirstStaying() const;
    /// The collection lets go of the nodes on the way; OwnerGoes: it is being freed.
    void Abandon(bool OwnerGoes);

private:
    /// Marks the node and tells. False: its handler raised, and the node stays.
    bool Enter(TKSTreeNode* Node);
    void CollapseBelow(TKSTreeNode* Node);
    /// All children are gone: the view lets go of the node.
    void Settle(TKSTreeNode* Node);
    void Leave(TKSTreeNode* Node);
    /// The root is on its own, or stays: the collection has no more to do with this removal.
    void Finish();
    void OrphanChildren(TKSTreeNode* Node);
    void TellOfGap(TKSTreeNodes& Nodes, TKSTreeNode* Parent, bool WasVisible);
    void Unmark(TKSTreeNode* Node);
    TKSTreeNode& FRoot;
    TKSTreeNodes* FNodes;
    vcl::TFirstFailure FFailure;
    std::uint64_t FGoneBefore = 0;
    int FTold = 0;
    int FMostTold = 0;
    bool FForce;
    bool FCollapsed = false; // everything below the root, with nobody who could object
    bool FAbandoned = false;
};

} // namespace treeview
