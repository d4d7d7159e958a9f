// Walking through the tree, and places in it.

#include <algorithm>
#include <cstdlib>

#include "KSTreeView/model/TreeNodes.h"

namespace
{

TKSTreeNode* DeepestLast(TKSTreeNode* Node)
{
    while (Node->GetLastChild())
        Node = Node->GetLastChild();
    return Node;
}

} // namespace

TKSTreeNode* TKSTreeNode::NextOutside() const
{
    const TKSTreeNode* Node = this;
    while (Node && !Node->FNextSibling)
        Node = Node->FParent;
    return Node ? Node->FNextSibling : nullptr;
}

TKSTreeNode* TKSTreeNode::FirstStayingChild() const
{
    TKSTreeNode* Child = FFirstChild;
    while (Child && Child->FDeleting)
        Child = Child->FNextSibling;
    return Child;
}

TKSTreeNode* TKSTreeNode::GetNext() const
{
    return FFirstChild ? FFirstChild : NextOutside();
}

TKSTreeNode* TKSTreeNode::GetPrev() const
{
    return FPrevSibling ? DeepestLast(FPrevSibling) : FParent;
}

bool TKSTreeNode::IsVisible() const
{
    // The layout has found out for the nodes it shows: in a deep chain, climbing for each one takes long.
    if (FOwner && FShownSerial == FOwner->GetShapeSerial())
        return true;
    // The nearest first: most hidden nodes stand in a collapsed parent.
    for (const TKSTreeNode* Node = FParent; Node; Node = Node->FParent)
        if (!Node->GetExpanded())
            return false;
    return true;
}

TKSTreeNode* TKSTreeNode::GetNextVisible() const
{
    // What follows a node that is not visible is looked at one by one; below a visible one only expanded
    // nodes have visible children, so whole subtrees are passed over.
    TKSTreeNode* Next = GetNext();
    if (IsVisible())
        return !FFirstChild || GetExpanded() ? Next : NextOutside();
    while (Next && !Next->IsVisible())
        Next = Next->GetNext();
    return Next;
}

TKSTreeNode* TKSTreeNode::GetPrevVisible() const
{
    TKSTreeNode* Previous = FPrevSibling;
    if (!IsVisible()) {
        Previous = GetPrev();
        while (Previous && !Previous->IsVisible())
            Previous = Previous->GetPrev();
        return Previous;
    }
    if (!Previous)
        return FParent;
    while (Previous->FLastChild && Previous->GetExpanded())
        Previous = Previous->FLastChild;
    return Previous;
}

TKSTreeNode* TKSTreeNode::GetItem(int Index) const
{
    if (!FFirstChild || Index >= FChildCount)
        throw EKSTreeViewError("List index out of bounds");
    TKSTreeNode* Child = FFirstChild;
    const int Wanted = std::max(0, Index);
    int Steps = Wanted;
    const auto Nearer = [&](TKSTreeNode* Node, int At) {
        if (std::abs(Wanted - At) >= std::abs(Steps))
            return;
        Child = Node;
        Steps = Wanted - At;
    };
    Nearer(FLastChild, FChildCount - 1);
    if (FOwner && FOwner->FChildCursorNode && FOwner->FChildCursorNode->FParent == this)
        Nearer(FOwner->FChildCursorNode, FOwner->FChildCursorIndex);
    for (; Steps > 0; --Steps)
        Child = Child->FNextSibling;
    for (; Steps < 0; ++Steps)
        Child = Child->FPrevSibling;
    if (FOwner && Index > 0) {
        FOwner->FChildCursorNode = Child;
        FOwner->FChildCursorIndex = Index;
    }
    return Child;
}

int TKSTreeNode::GetIndex() const
{
    int Index = 0;
    for (const TKSTreeNode* Node = FPrevSibling; Node; Node = Node->FPrevSibling)
        ++Index;
    return Index;
}

int TKSTreeNode::GetAbsoluteIndex() const
{
    int Index = -1;
    for (const TKSTreeNode* Node = this; Node; Node = Node->GetPrev())
        ++Index;
    return Index;
}

int TKSTreeNode::IndexOf(const TKSTreeNode* Node) const
{
    return Node && Node->FParent == this ? Node->GetIndex() : -1;
}

bool TKSTreeNode::HasAsParent(const TKSTreeNode* Node) const
{
    if (!Node)
        return true;
    const TKSTreeNode* Ancestor = FParent;
    while (Ancestor && Ancestor != Node)
        Ancestor = Ancestor->FParent;
    return Ancestor != nullptr;
}

void TKSTreeNode::MakeVisible()
{
    if (!IsVisible()) {
        for (TKSTreeNode* Node = FParent; Node; Node = Node->FParent) {
            Node->FHasChildren = true;
            Node->ChangeState(TKSTNNodeState::nsExpanded, true);
        }
    }
    if (FOwner)
        FOwner->RefreshUnlessUpdating();
}

void TKSTreeNode::UpdateLevels()
{
    FLevel = FParent ? FParent->FLevel + 1 : 0;
    const TKSTreeNode* const End = NextOutside();
    for (TKSTreeNode* Node = GetNext(); Node != End; Node = Node->GetNext())
        Node->FLevel = Node->FParent->FLevel + 1;
}

void TKSTreeNode::MoveTo(TKSTreeNode* Parent)
{
    if (!FOwner || !FLinked || FDeleting)
        throw EKSTreeViewError("This node cannot be moved");
    if (Parent && (Parent->FOwner != FOwner || Parent == this || Parent->HasAsParent(this)))
        throw EKSTreeViewError("A node cannot be moved below itself or into another tree");
    TKSTreeNode* const Left = FParent;
    FOwner->Unlink(this);
    if (Left && Left != Parent && !Left->FFirstChild) {
        Left->FHasChildren = false;
        Left->ChangeState(TKSTNNodeState::nsExpanded, false);
    }
    FOwner->LinkLast(this, Parent);
    UpdateLevels();
    if (Parent)
        Parent->FHasChildren = true;
    FOwner->ShapeChanged();
    FOwner->RefreshUnlessUpdating();
}
