#pragma once

#include <cstdint>
#include <vector>

#include "KSTreeView/model/NodeRef.h"
#include "KSTreeView/model/TreeNode.h"
#include "vcl/system/Liveness.h"

namespace vcl
{

class TStringList;

} // namespace vcl

/// The nodes of a tree view, all levels. The view owns the collection, the collection its nodes.
///
///     TKSTreeNodes* Items = View->GetItems();
///     Items->BeginUpdate();
///     TKSTreeNode* Top = Items->Add(nullptr, "Company");
///     for (const auto& Name : Departments)
///         Items->AddChild(Top, Name);
///     Items->EndUpdate();
///
/// Nodes are numbered in the order of GetNext, collapsed ones included.
class TKSTreeNodes : public vcl::TPersistent
{
    VCL_CLASS
public:
    /// Host may be null: nodes without a view.
    explicit TKSTreeNodes(treeview::ITreeHost* Host = nullptr);
    ~TKSTreeNodes() override;

    TKSTreeNode* GetFirstNode() const { return FFirstNode; }
    TKSTreeNode* GetLastTopNode() const { return FLastNode; }
    /// Nodes of all levels.
    int GetCount() const { return FCount; }
    int GetTopCount() const { return FTopCount; }
    /// EKSTreeViewError "Invalid Index" outside 0..Count-1. Asking for all in turn, either way, takes time
    /// proportional to their number. Writing assigns the given node into the one at Index.
    TKSTreeNode* GetItem(int Index) const { return GetNodeFromIndex(Index); }
    void SetItem(int Index, const TKSTreeNode* Value) { GetItem(Index)->Assign(Value); }
    TKSTreeNode* operator[](int Index) const { return GetItem(Index); }
    TKSTreeNode* GetNodeFromIndex(int Index) const;

    // Adding. Each returns the new node, made by the view's CreateNode. Sibling and Parent may be null: the
    // node becomes a top-level one. Except for Insert the view is refreshed when the node is visible.
    /// The last child of Sibling's parent.
    TKSTreeNode* Add(TKSTreeNode* Sibling, const vcl::AnsiString& Text);
    TKSTreeNode* AddObject(TKSTreeNode* Sibling, const vcl::AnsiString& Text, void* Data);
    /// The first child of Sibling's parent.
    TKSTreeNode* AddFirst(TKSTreeNode* Sibling, const vcl::AnsiString& Text);
    TKSTreeNode* AddObjectFirst(TKSTreeNode* Sibling, const vcl::AnsiString& Text, void* Data);
    TKSTreeNode* AddChild(TKSTreeNode* Parent, const vcl::AnsiString& Text);
    TKSTreeNode* AddChildObject(TKSTreeNode* Parent, const vcl::AnsiString& Text, void* Data);
    TKSTreeNode* AddChildFirst(TKSTreeNode* Parent, const vcl::AnsiString& Text);
    TKSTreeNode* AddChildObjectFirst(TKSTreeNode* Parent, const vcl::AnsiString& Text, void* Data);
    /// Immediately before Sibling; never refreshes the view, on purpose.
    TKSTreeNode* Insert(TKSTreeNode* Sibling, const vcl::AnsiString& Text);
    TKSTreeNode* InsertObject(TKSTreeNode* Sibling, const vcl::AnsiString& Text, void* Data);

    /// Null does nothing.
    void Delete(TKSTreeNode* Node);
    /// Ends also when handlers of the deletions go on adding nodes; some of these stay then.
    void Clear();

    /// Nested; between them nothing is drawn and the view is not refreshed. The outermost EndUpdate refreshes
    /// it.
    void BeginUpdate();
    void EndUpdate();
    bool IsUpdating() const { return FUpdateCount > 0; }

    /// Copies the nodes of another collection through the binary stream. Nothing happens when it is the same
    /// one.
    void Assign(const vcl::TPersistent* Source) override;
    /// Replaces the nodes. EReadError when the stream is cut short or damaged; nodes read so far stay, the
    /// last one with as much of its record as there was.
    void ReadData(vcl::TStream& Stream);
    void WriteData(vcl::TStream& Stream) const;
    /// The binary property "Data".
    void DefineProperties(vcl::TFiler& Filer) override;

    /// The text form: a line a node, indented by a tab a level.
    /// EKSTreeViewError "Invalid level %d with string %s" at a line two or more levels below the one before;
    /// nodes read so far stay.
    void ReadText(vcl::TStream& Stream);
    void WriteText(vcl::TStream& Stream) const;

    TCustomKSTreeView* GetTreeView() const { return FHost ? FHost->View() : nullptr; }
    /// The view's window, made when there is none; null without a view.
    vcl::IWindow* GetHandle() const { return FHost ? FHost->NodesHandle() : nullptr; }
    treeview::ITreeHost* GetHost() const { return FHost; }
    /// Counts the nodes that have gone: the same number as before means that all pointers still hold.
    std::uint64_t GetGoneSerial() const { return FGoneSerial; }
    const vcl::TLiveness& GetLiveness() const { return FLife; }

    /// Changes with everything that moves boxes: links, expansion, HasChildren.
    std::uint64_t GetShapeSerial() const { return FShapeSerial; }
    void ShapeChanged() { ++FShapeSerial; }
    /// True once a node of a class of the program's own has been added.
    bool HasCustomNodes() const { return FHasCustomNodes; }
    /// Tells where Node is, so that looking for its neighbours by index is quick.
    void RememberIndex(TKSTreeNode* Node, int Index) const;

private:
    friend class TKSTreeNode;
    friend class treeview::TNodeRef;
    friend class treeview::TSubtreeRemoval;
    class TAdding;

    TKSTreeNode* NewNode();
    TKSTreeNode* InternalAddObject(TKSTreeNode* Parent, const vcl::AnsiString& Text, void* Data,
                                   TKSTNAddMode Mode);
    void LinkFirst(TKSTreeNode* Node, TKSTreeNode* Parent);
    void LinkLast(TKSTreeNode* Node, TKSTreeNode* Parent);
    void LinkBefore(TKSTreeNode* Node, TKSTreeNode* Sibling);
    /// Cuts the node out of its chain, fixing the ends; the node keeps its parent.
    void Unlink(TKSTreeNode* Node);
    void NodeLinked(TKSTreeNode* Node, TKSTreeNode* Parent);
    /// The node is one of Count from now on, or no longer.
    void Count(TKSTreeNode* Node);
    void Uncount(TKSTreeNode* Node);
    bool IsChained(const TKSTreeNode& Node) const;
    /// Nodes are about to be counted, or were until now: Count is not the number of those in the chains.
    bool IsCountMoving() const { return FAddsUnderWay > 0 || !FRemovals.empty(); }
    TKSTreeNode* StepTo(int Index) const;
    /// No reference may lead to the node any more.
    void NodeGone(TKSTreeNode* Node);
    void ForgetCursors() const;
    TKSTreeNode* LastNode() const;
    bool DiffersFrom(const TKSTreeNodes& Ancestor) const;
    void ReadTopNodes(vcl::TStream& Stream);
    void ReadLines(const vcl::TStringList& Lines);
    /// A node that nobody is deleting yet; those below others that are being deleted first.
    TKSTreeNode* FirstStaying() const;
    /// Deletes all nodes but those being deleted further up the stack, and lets go of these unless handlers
    /// have added others.
    void DeleteAll(bool OwnerGoes);
    /// As many nodes as there are now; less when one takes others along.
    void DeleteStaying(bool OwnerGoes);
    void* WholePointer(void* Low);
    void RefreshUnlessUpdating();

    treeview::ITreeHost* FHost;
    TKSTreeNode* FFirstNode = nullptr;
    TKSTreeNode* FLastNode = nullptr;
    int FCount = 0;
    int FTopCount = 0;
    int FUpdateCount = 0;
    int FAddsUnderWay = 0; // linked or drawn already, and not counted yet
    std::uint64_t FShapeSerial = 1;
    std::uint64_t FGoneSerial = 0; // counts the nodes that have gone
    bool FHasCustomNodes = false;
    // Where the last look-up by index ended, while no node has come or gone since.
    mutable TKSTreeNode* FCursorNode = nullptr;
    mutable int FCursorIndex = 0;
    // The same for GetItem of one parent.
    mutable TKSTreeNode* FChildCursorNode = nullptr;
    mutable int FChildCursorIndex = 0;
    std::vector<treeview::TNodeRef*> FRefs;
    std::vector<treeview::TSubtreeRemoval*> FRemovals; // under way, outermost first
    std::vector<TKSTreeNode*> FFloating;               // made by Insert and in no chain yet
    std::vector<void*> FPointers; // of the nodes that are being copied, the next one last
    vcl::TLiveness FLife;
};
