#include "KSTreeView/model/NodeRef.h"

#include "KSTreeView/model/TreeNodes.h"

namespace treeview
{

TNodeRef::TNodeRef(TKSTreeNode* Node)
{
    Register(Node);
}

TNodeRef::~TNodeRef()
{
    Unregister();
}

void TNodeRef::Reset(TKSTreeNode* Node)
{
    Unregister();
    Register(Node);
}

void TNodeRef::Register(TKSTreeNode* Node)
{
    FNode = Node;
    FNodes = Node ? Node->GetNodes() : nullptr;
    if (FNodes)
        FNodes->FRefs.push_back(this);
}

void TNodeRef::Unregister()
{
    if (!FNodes)
        return;
    std::vector<TNodeRef*>& Refs = FNodes->FRefs;
    // Blocks nest, so it is almost always the last.
    for (std::size_t Index = Refs.size(); Index-- > 0;) {
        if (Refs[Index] == this) {
            Refs.erase(Refs.begin() + static_cast<std::ptrdiff_t>(Index));
            break;
        }
    }
    FNodes = nullptr;
    FNode = nullptr;
}

} // namespace treeview
