// Expanding and collapsing.

#include <optional>

#include "KSTreeView/model/Coalesced.h"
#include "KSTreeView/model/TreeNodes.h"
#include "vcl/system/FirstFailure.h"

using treeview::ITreeHost;
using treeview::TNodeRef;

namespace
{

/// The view knows that a node is expanding or collapsing, for the length of a block.
class TExpandingMark
{
public:
    explicit TExpandingMark(const TKSTreeNodes* Nodes) : FHost(Nodes ? Nodes->GetHost() : nullptr)
    {
        if (!FHost)
            return;
        FWitness.emplace(Nodes->GetLiveness());
        FHost->SetExpanding(true);
    }
    ~TExpandingMark()
    {
        if (FHost && FWitness->IsAlive())
            FHost->SetExpanding(false);
    }
    TExpandingMark(const TExpandingMark&) = delete;
    TExpandingMark& operator=(const TExpandingMark&) = delete;

private:
    ITreeHost* FHost;
    std::optional<vcl::TAliveGuard> FWitness;
};

} // namespace

void TKSTreeNode::SetExpanded(bool Value)
{
    if (Value == GetExpanded())
        return;
    if (Value)
        Expand(false);
    else
        Collapse(false);
}

void TKSTreeNode::Expand(bool Recurse)
{
    ExpandNode(true, Recurse);
}

void TKSTreeNode::Collapse(bool Recurse)
{
    const TNodeRef Self(this);
    ExpandNode(false, Recurse);
    if (Self)
        TakeSelectionFromBelow();
}

void TKSTreeNode::TakeSelectionFromBelow()
{
    ITreeHost* const View = FLinked ? Host() : nullptr;
    const TKSTreeNode* const Selected = View ? View->SelectedNode() : nullptr;
    if (!Selected || Selected->FLevel <= FLevel || !Selected->HasAsParent(this))
        return;
    const TNodeRef Self(this);
    View->FocusNode(this);
    if (Self)
        View->SelectNode(this);
}

void TKSTreeNode::ExpandNode(bool Expand, bool Recurse)
{
    if (!Recurse) {
        ExpandThis(Expand);
        return;
    }
    const auto ExpandAll = [this, Expand] {
        const int Top = FLevel;
        const TNodeRef Start(this);
        TNodeRef Node(this);
        ExpandThis(Expand);
        while (Start && Node) {
            Node.Reset(Node->GetNext());
            if (!Node || Node->FLevel <= Top)
                return;
            Node->ExpandThis(Expand);
        }
    };
    if (FOwner)
        treeview::Coalesced(Host(), FOwner->GetLiveness(), treeview::ExpansionEvents, ExpandAll);
    else
        ExpandAll();
}

void TKSTreeNode::ExpandThis(bool Expand)
{
    bool& IsUnderWay = Expand ? FIsExpanding : FIsCollapsing;
    // A handler may do again what it is told of, as one that deletes the children of the node does.
    if (IsUnderWay)
        return;
    const TExpandingMark Mark(FOwner);
    const TNodeRef Self(this);
    IsUnderWay = true;
    bool CanExpand = false;
    vcl::TFirstFailure Failure;
    Failure.Try([&] {
        CanExpand = DoCanExpand(Expand);
        if (CanExpand && Self)
            DoExpand(Expand);
    });
    if (Self)
        IsUnderWay = false;
    Failure.Rethrow();
    if (!Self || !CanExpand || GetExpanded() == Expand)
        return;
    ChangeState(TKSTNNodeState::nsExpanded, Expand);
    if (FOwner)
        FOwner->RefreshUnlessUpdating();
}

bool TKSTreeNode::DoCanExpand(bool Expand)
{
    if (!FHasChildren)
        return false;
    ITreeHost* const View = Host();
    if (!View)
        return true;
    return Expand ? View->CanExpand(this) : View->CanCollapse(this);
}

void TKSTreeNode::DoExpand(bool Expand)
{
    ITreeHost* const View = Host();
    if (!View)
        return;
    if (Expand)
        View->Expand(this);
    else
        View->Collapse(this);
}
