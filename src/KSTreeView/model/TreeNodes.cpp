#include "KSTreeView/model/TreeNodes.h"

#include <algorithm>
#include <typeinfo>

#include "KSTreeView/model/Coalesced.h"
#include "KSTreeView/model/SubtreeRemoval.h"
#include "vcl/classes/Updating.h"
#include "vcl/streaming/Filer.h"

using treeview::TSubtreeRemoval;
using vcl::TAliveGuard;

const vcl::TClass& TKSTreeNodes::StaticClass()
{
    static const vcl::TClass Class = vcl::DefineClass<TKSTreeNodes, vcl::TPersistent>("TKSTreeNodes");
    return Class;
}

TKSTreeNodes::TKSTreeNodes(treeview::ITreeHost* Host) : FHost(Host)
{
}

TKSTreeNodes::~TKSTreeNodes()
{
    FUpdateCount = 1;
    DeleteAll(true);
    while (!FFloating.empty()) {
        TKSTreeNode* const Node = FFloating.back();
        FFloating.pop_back();
        Node->FLinked = false; // as a node of nobody's: nobody is told
        delete Node;
    }
    for (treeview::TNodeRef* Ref : FRefs) {
        Ref->FNode = nullptr;
        Ref->FNodes = nullptr;
    }
}

TKSTreeNode* TKSTreeNodes::LastNode() const
{
    TKSTreeNode* Node = FLastNode;
    while (Node && Node->FLastChild)
        Node = Node->FLastChild;
    return Node;
}

TKSTreeNode* TKSTreeNodes::GetNodeFromIndex(int Index) const
{
    TKSTreeNode* const Node = Index < 0 ? nullptr : StepTo(Index);
    if (!Node)
        throw EKSTreeViewError("Invalid Index");
    RememberIndex(Node, Index);
    return Node;
}

/// From the nearest of the first node, the last one and where the look-up before ended; from the first one
/// while Count is not to be relied on. Null behind the end.
TKSTreeNode* TKSTreeNodes::StepTo(int Index) const
{
    TKSTreeNode* Node = FFirstNode;
    if (IsCountMoving()) {
        for (; Index > 0 && Node; --Index)
            Node = Node->GetNext();
        return Node;
    }
    if (Index >= FCount)
        return nullptr;
    int At = 0;
    if (FCursorNode && std::abs(Index - FCursorIndex) < Index) {
        Node = FCursorNode;
        At = FCursorIndex;
    }
    if (FCount - 1 - Index < std::abs(Index - At)) {
        Node = LastNode();
        At = FCount - 1;
    }
    for (; At < Index && Node; ++At)
        Node = Node->GetNext();
    for (; At > Index && Node; --At)
        Node = Node->GetPrev();
    return Node;
}

void TKSTreeNodes::RememberIndex(TKSTreeNode* Node, int Index) const
{
    if (IsCountMoving())
        return;
    FCursorNode = Node;
    FCursorIndex = Index;
}

void TKSTreeNodes::ForgetCursors() const
{
    FCursorNode = nullptr;
    FChildCursorNode = nullptr;
}

void TKSTreeNodes::NodeLinked(TKSTreeNode* Node, TKSTreeNode* Parent)
{
    Node->FParent = Parent;
    Node->FLinked = true;
    ++(Parent ? Parent->FChildCount : FTopCount);
    ForgetCursors();
    ShapeChanged();
}

void TKSTreeNodes::LinkFirst(TKSTreeNode* Node, TKSTreeNode* Parent)
{
    TKSTreeNode*& First = Parent ? Parent->FFirstChild : FFirstNode;
    TKSTreeNode*& Last = Parent ? Parent->FLastChild : FLastNode;
    Node->FNextSibling = First;
    (First ? First->FPrevSibling : Last) = Node;
    First = Node;
    NodeLinked(Node, Parent);
}

void TKSTreeNodes::LinkLast(TKSTreeNode* Node, TKSTreeNode* Parent)
{
    TKSTreeNode*& First = Parent ? Parent->FFirstChild : FFirstNode;
    TKSTreeNode*& Last = Parent ? Parent->FLastChild : FLastNode;
    Node->FPrevSibling = Last;
    (Last ? Last->FNextSibling : First) = Node;
    Last = Node;
    NodeLinked(Node, Parent);
}

void TKSTreeNodes::LinkBefore(TKSTreeNode* Node, TKSTreeNode* Sibling)
{
    TKSTreeNode* const Parent = Sibling->FParent;
    TKSTreeNode* const Previous = Sibling->FPrevSibling;
    Node->FPrevSibling = Previous;
    Node->FNextSibling = Sibling;
    Sibling->FPrevSibling = Node;
    (Previous ? Previous->FNextSibling : Parent ? Parent->FFirstChild : FFirstNode) = Node;
    NodeLinked(Node, Parent);
}

bool TKSTreeNodes::IsChained(const TKSTreeNode& Node) const
{
    const TKSTreeNode* const First = Node.FParent ? Node.FParent->FFirstChild : FFirstNode;
    return Node.FPrevSibling || First == &Node;
}

void TKSTreeNodes::Unlink(TKSTreeNode* Node)
{
    if (!IsChained(*Node))
        return;
    TKSTreeNode* const Parent = Node->FParent;
    TKSTreeNode*& First = Parent ? Parent->FFirstChild : FFirstNode;
    TKSTreeNode*& Last = Parent ? Parent->FLastChild : FLastNode;
    if (First == Node)
        First = Node->FNextSibling;
    if (Last == Node)
        Last = Node->FPrevSibling;
    if (Node->FPrevSibling)
        Node->FPrevSibling->FNextSibling = Node->FNextSibling;
    if (Node->FNextSibling)
        Node->FNextSibling->FPrevSibling = Node->FPrevSibling;
    Node->FPrevSibling = Node->FNextSibling = nullptr;
    --(Parent ? Parent->FChildCount : FTopCount);
    ForgetCursors();
    ShapeChanged();
}

void TKSTreeNodes::Count(TKSTreeNode* Node)
{
    Node->FCounted = true;
    ++FCount;
}

void TKSTreeNodes::Uncount(TKSTreeNode* Node)
{
    if (Node->FCounted)
        --FCount;
    Node->FCounted = false;
}

void TKSTreeNodes::NodeGone(TKSTreeNode* Node)
{
    ++FGoneSerial;
    ForgetCursors();
    std::erase(FFloating, Node);
    for (treeview::TNodeRef* Ref : FRefs)
        if (Ref->FNode == Node)
            Ref->FNode = nullptr;
}

void TKSTreeNodes::RefreshUnlessUpdating()
{
    if (FHost && !IsUpdating())
        FHost->RefreshView();
}

TKSTreeNode* TKSTreeNodes::NewNode()
{
    TKSTreeNode* const Node = FHost ? FHost->CreateNode() : vcl::New<TKSTreeNode>(this);
    const TKSTreeNode& Made = *Node;
    FHasCustomNodes = FHasCustomNodes || typeid(Made) != typeid(TKSTreeNode);
    return Node;
}

/// A new node on its way into the collection. It is counted at the end, also when a handler raised meanwhile,
/// unless a handler took it away.
class TKSTreeNodes::TAdding
{
public:
    TAdding(TKSTreeNodes& Nodes, TKSTreeNode* Node) : FNodes(Nodes), FNode(Node), FWitness(Nodes.FLife)
    {
        ++FNodes.FAddsUnderWay;
    }
    ~TAdding()
    {
        if (!FWitness.IsAlive())
            return;
        --FNodes.FAddsUnderWay;
        if (FNode && FNodes.IsChained(*FNode.Get()))
            FNodes.Count(FNode.Get());
    }
    TAdding(const TAdding&) = delete;
    TAdding& operator=(const TAdding&) = delete;

    /// False: a handler took the node away.
    bool Stays() const { return static_cast<bool>(FNode); }
    TKSTreeNode* Get() const { return FNode.Get(); }

private:
    TKSTreeNodes& FNodes;
    treeview::TNodeRef FNode;
    TAliveGuard FWitness;
};

TKSTreeNode* TKSTreeNodes::InternalAddObject(TKSTreeNode* Parent, const vcl::AnsiString& Text, void* Data,
                                             TKSTNAddMode Mode)
{
    TKSTreeNode* const Node = NewNode();
    Node->FData = Data;
    Node->FText = Text;
    Node->FLevel = Parent ? Parent->FLevel + 1 : 0;
    if (Mode == TKSTNAddMode::taAddFirst)
        LinkFirst(Node, Parent);
    else
        LinkLast(Node, Parent);
    const TAdding Added(*this, Node);
    if (Parent)
        Parent->SetHasChildren(true);
    if (Added.Stays() && FHost && !IsUpdating() && Node->IsVisible())
        RefreshUnlessUpdating();
    return Added.Get();
}

TKSTreeNode* TKSTreeNodes::Add(TKSTreeNode* Sibling, const vcl::AnsiString& Text)
{
    return AddObject(Sibling, Text, nullptr);
}

TKSTreeNode* TKSTreeNodes::AddObject(TKSTreeNode* Sibling, const vcl::AnsiString& Text, void* Data)
{
    return InternalAddObject(Sibling ? Sibling->FParent : nullptr, Text, Data, TKSTNAddMode::taAdd);
}

TKSTreeNode* TKSTreeNodes::AddFirst(TKSTreeNode* Sibling, const vcl::AnsiString& Text)
{
    return AddObjectFirst(Sibling, Text, nullptr);
}

TKSTreeNode* TKSTreeNodes::AddObjectFirst(TKSTreeNode* Sibling, const vcl::AnsiString& Text, void* Data)
{
    return InternalAddObject(Sibling ? Sibling->FParent : nullptr, Text, Data, TKSTNAddMode::taAddFirst);
}

TKSTreeNode* TKSTreeNodes::AddChild(TKSTreeNode* Parent, const vcl::AnsiString& Text)
{
    return AddChildObject(Parent, Text, nullptr);
}

TKSTreeNode* TKSTreeNodes::AddChildObject(TKSTreeNode* Parent, const vcl::AnsiString& Text, void* Data)
{
    return InternalAddObject(Parent, Text, Data, TKSTNAddMode::taAdd);
}

TKSTreeNode* TKSTreeNodes::AddChildFirst(TKSTreeNode* Parent, const vcl::AnsiString& Text)
{
    return AddChildObjectFirst(Parent, Text, nullptr);
}

TKSTreeNode* TKSTreeNodes::AddChildObjectFirst(TKSTreeNode* Parent, const vcl::AnsiString& Text, void* Data)
{
    return InternalAddObject(Parent, Text, Data, TKSTNAddMode::taAddFirst);
}

TKSTreeNode* TKSTreeNodes::Insert(TKSTreeNode* Sibling, const vcl::AnsiString& Text)
{
    return InsertObject(Sibling, Text, nullptr);
}

TKSTreeNode* TKSTreeNodes::InsertObject(TKSTreeNode* Sibling, const vcl::AnsiString& Text, void* Data)
{
    const treeview::TNodeRef Next(Sibling);
    const TAdding Added(*this, NewNode());
    TKSTreeNode* const Node = Added.Get();
    Node->FLinked = true;
    Node->SetData(Data);
    FFloating.push_back(Node);
    try {
        Node->SetText(Text); // drawn although it stands nowhere yet: only here does adding a node draw it
    } catch (...) {
        if (Added.Stays())
            delete Node;
        throw;
    }
    if (!Added.Stays())
        return nullptr;
    std::erase(FFloating, Node);
    if (IsChained(*Node))
        return Node; // a handler has put it somewhere
    if (Next && IsChained(*Next.Get()))
        LinkBefore(Node, Next.Get());
    else
        LinkLast(Node, nullptr);
    Node->UpdateLevels();
    if (TKSTreeNode* const Parent = Node->FParent)
        Parent->SetHasChildren(true);
    return Added.Get();
}

void TKSTreeNodes::Delete(TKSTreeNode* Node)
{
    if (Node)
        Node->Delete();
}

void TKSTreeNodes::Clear()
{
    vcl::WhileUpdating(*this, [this] { DeleteAll(false); });
}

TKSTreeNode* TKSTreeNodes::FirstStaying() const
{
    for (const TSubtreeRemoval* Removal : FRemovals)
        if (TKSTreeNode* const Node = Removal->FirstStaying())
            return Node;
    TKSTreeNode* Node = FFirstNode;
    while (Node && Node->FDeleting)
        Node = Node->NextOutside();
    return Node;
}

void TKSTreeNodes::DeleteStaying(bool OwnerGoes)
{
    const TAliveGuard Witness(FLife);
    // Handlers that go on adding nodes do not keep this from ending.
    for (int Left = FCount + FAddsUnderWay; Left > 0; --Left) {
        TKSTreeNode* const Node = FirstStaying();
        if (!Node)
            return;
        if (OwnerGoes)
            delete Node;
        else
            Node->Delete();
        if (!Witness.IsAlive())
            return;
    }
}

void TKSTreeNodes::DeleteAll(bool OwnerGoes)
{
    const TAliveGuard Witness(FLife);
    DeleteStaying(OwnerGoes);
    if (!Witness.IsAlive())
        return;
    if (OwnerGoes && FirstStaying()) {
        FHost = nullptr; // nobody is told of what handlers have added meanwhile
        while (TKSTreeNode* const Node = FirstStaying())
            delete Node;
    }
    if (FirstStaying())
        return;
    for (TSubtreeRemoval* Removal : FRemovals)
        Removal->Abandon(OwnerGoes);
    FFirstNode = FLastNode = nullptr;
    FCount = FTopCount = 0;
    ForgetCursors();
    ShapeChanged();
}

void TKSTreeNodes::BeginUpdate()
{
    ++FUpdateCount;
}

void TKSTreeNodes::EndUpdate()
{
    if (--FUpdateCount == 0 && FHost)
        FHost->RefreshView();
}

bool TKSTreeNodes::DiffersFrom(const TKSTreeNodes& Ancestor) const
{
    const TKSTreeNode* Theirs = Ancestor.FFirstNode;
    for (const TKSTreeNode* Node = FFirstNode; Node; Node = Node->GetNext()) {
        if (!Theirs || !Node->IsEqual(*Theirs))
            return true;
        Theirs = Theirs->GetNext();
    }
    return false;
}

void TKSTreeNodes::DefineProperties(vcl::TFiler& Filer)
{
    TPersistent::DefineProperties(Filer);
    const auto* const Ancestor = vcl::As<TKSTreeNodes>(static_cast<vcl::TObject*>(Filer.GetAncestor()));
    const bool IsComparable = Ancestor && Ancestor->GetCount() == GetCount();
    Filer.DefineBinaryProperty(
        "Data", [this](vcl::TStream& Stream) { ReadData(Stream); },
        [this](vcl::TStream& Stream) { WriteData(Stream); },
        IsComparable ? DiffersFrom(*Ancestor) : GetCount() > 0);
}
