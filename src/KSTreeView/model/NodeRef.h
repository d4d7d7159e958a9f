#pragma once

class TKSTreeNode;
class TKSTreeNodes;

namespace treeview
{

/// A reference to a node that turns into null when the node goes. For the length of a block: a collection
/// keeps count of its references, and each node that goes looks at them all.
class TNodeRef
{
public:
    explicit TNodeRef(TKSTreeNode* Node);
    ~TNodeRef();
    TNodeRef(const TNodeRef&) = delete;
    TNodeRef& operator=(const TNodeRef&) = delete;

    TKSTreeNode* Get() const { return FNode; }
    explicit operator bool() const { return FNode != nullptr; }
    TKSTreeNode* operator->() const { return FNode; }
    void Reset(TKSTreeNode* Node);

private:
    friend class ::TKSTreeNodes;
    void Register(TKSTreeNode* Node);
    void Unregister();

    TKSTreeNode* FNode = nullptr;
    TKSTreeNodes* FNodes = nullptr;
};

} // namespace treeview
