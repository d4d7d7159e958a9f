#pragma once

#include <cstdint>
#include <new>

#include "KSTreeView/model/TreeHost.h"
#include "vcl/classes/Persistent.h"
#include "vcl/classes/Stream.h"

class TKSTreeNodes;

namespace treeview
{

class TChart;
class TNodeSelection;
class TSubtreeRemoval;

} // namespace treeview

/// One box of a chart tree.
///
///     TKSTreeNode* Boss = View->GetItems()->Add(nullptr, "Director");
///     TKSTreeNode* Aide = View->GetItems()->AddChild(Boss, "Assistant");
///     Boss->Expand(false);
///
/// The collection that made it owns it, and it never leaves that collection alive. A node constructed on its
/// own belongs to no chain: it can be filled and assigned, but is neither drawn nor selected, focused or
/// edited. Handlers of events may delete the node they are told about.
class TKSTreeNode : public vcl::TPersistent
{
    VCL_CLASS
public:
    /// A node outside all chains. Owner may be null.
    explicit TKSTreeNode(TKSTreeNodes* Owner);
    ~TKSTreeNode() override;

    /// As Delete; a failing handler is reported, not raised. A node being deleted already stays.
    static void operator delete(TKSTreeNode* Node, std::destroying_delete_t);
    static void operator delete(void* Memory) { ::operator delete(Memory); }
    static void* operator new(std::size_t Size) { return ::operator new(Size); }

    // What the box shows. Writing redraws the node.
    const vcl::AnsiString& GetText() const { return FText; }
    void SetText(const vcl::AnsiString& Value);
    /// Own fill colour, used while UseTreeColor is false. Writing makes it so, and always redraws.
    vcl::TColor GetColor() const { return FColor; }
    void SetColor(vcl::TColor Value);
    /// True: filled with the view's NodeColor.
    bool GetUseTreeColor() const { return FUseTreeColor; }
    void SetUseTreeColor(bool Value);
    /// Into the view's Images; -1: none.
    int GetImageIndex() const { return FImageIndex; }
    void SetImageIndex(int Value);
    /// Whether the box has an expand button.
    bool GetHasChildren() const { return FHasChildren; }
    void SetHasChildren(bool Value);

    // Values for the program; the view does not use them and writing redraws nothing.
    /// Streams keep its low 32 bits.
    void* GetData() const { return FData; }
    void SetData(void* Value) { FData = Value; }
    const vcl::AnsiString& GetStringData() const { return FStringData; }
    void SetStringData(const vcl::AnsiString& Value) { FStringData = Value; }
    int GetIntData() const { return FIntData; }
    void SetIntData(int Value) { FIntData = Value; }

    // States
    bool GetExpanded() const { return FStates.Contains(TKSTNNodeState::nsExpanded); }
    void SetExpanded(bool Value);
    bool GetSelected() const { return FStates.Contains(TKSTNNodeState::nsSelected); }
    /// True selects the node, false deselects it if it is the selected one.
    void SetSelected(bool Value);
    bool GetFocused() const { return FStates.Contains(TKSTNNodeState::nsFocused); }
    /// Focuses the node, whatever Value says.
    void SetFocused(bool Value);
    bool GetEdited() const { return FStates.Contains(TKSTNNodeState::nsEdited); }
    TKSTNNodeStates GetStates() const { return FStates; }
    bool GetDeleting() const { return FDeleting; }
    /// False for a node constructed on its own.
    bool GetLinked() const { return FLinked; }

    // Place
    TKSTreeNodes* GetNodes() const { return FOwner; }
    vcl::TPersistent* GetOwner() const override;
    /// Null for a node without an owner.
    TCustomKSTreeView* GetTreeView() const;
    /// The view's window; null without a view.
    vcl::IWindow* GetHandle() const;
    /// 0 for a top-level node.
    int GetLevel() const { return FLevel; }
    TKSTreeNode* GetParent() const { return FParent; }
    /// Number of children.
    int GetCount() const { return FChildCount; }
    /// The child at an index; one below 0 yields the first. EKSTreeViewError "List index out of bounds" when
    /// there is none. Writing assigns the given node into that child.
    TKSTreeNode* GetItem(int Index) const;
    void SetItem(int Index, const TKSTreeNode* Value) { GetItem(Index)->Assign(Value); }
    TKSTreeNode* operator[](int Index) const { return GetItem(Index); }
    /// Number of previous siblings. Proportional to it.
    int GetIndex() const;
    /// Position in the order of GetNext over the whole collection. Proportional to it.
    int GetAbsoluteIndex() const;
    /// Position among the children, -1 when Node is no child.
    int IndexOf(const TKSTreeNode* Node) const;
    /// True for null and for an ancestor.
    bool HasAsParent(const TKSTreeNode* Node) const;
    /// All ancestors are expanded.
    bool IsVisible() const;
    /// Expands all ancestors of a node that is not visible, without events.
    void MakeVisible();

    // Walking; null at the ends. GetNext and GetPrev go through all nodes, parents before their children.
    TKSTreeNode* GetNext() const;
    TKSTreeNode* GetPrev() const;
    TKSTreeNode* GetNextVisible() const;
    TKSTreeNode* GetPrevVisible() const;
    TKSTreeNode* GetNextSibling() const { return FNextSibling; }
    TKSTreeNode* GetPrevSibling() const { return FPrevSibling; }
    /// The child after Node or before it; null for null.
    TKSTreeNode* GetNextChild(const TKSTreeNode* Node) const { return Node ? Node->FNextSibling : nullptr; }
    TKSTreeNode* GetPrevChild(const TKSTreeNode* Node) const { return Node ? Node->FPrevSibling : nullptr; }
    TKSTreeNode* GetFirstChild() const { return FFirstChild; }
    TKSTreeNode* GetLastChild() const { return FLastChild; }

    // Expanding. Recurse: the whole subtree, collapsed parts included.
    void Expand(bool Recurse);
    /// A selected node below this one gives focus and selection to this one.
    void Collapse(bool Recurse);

    // Removing
    /// Frees the node and what is below it; OnDeletion comes for each, parents first. What a handler throws
    /// comes out here: before the node has begun to go it stays, with those children it still has.
    void Delete();
    void DeleteChildren();
    /// Makes this the last child of Parent (null: the last top-level node), with all below it.
    /// EKSTreeViewError when Parent is the node, below it or in another collection. Refreshes unless
    /// updating.
    void MoveTo(TKSTreeNode* Parent);

    // Copying
    /// Copies text, data, image, colours and HasChildren, and focuses this node if it stands in a view.
    void Assign(const vcl::TPersistent* Source) override;
    /// Compares text and the program's three values; image, colours and children do not count.
    bool IsEqual(const TKSTreeNode& Node) const;
    /// The record of the node and of all below it. What was read before an EReadError stays.
    void ReadData(vcl::TStream& Stream, TKSNodeInfo& Info);
    void WriteData(vcl::TStream& Stream, TKSNodeInfo& Info) const;

    // Editing in place
    void EditText();
    void EndEdit(bool Cancel);

    // Geometry, in client coordinates and as of the last layout in which the node was visible.
    const vcl::TRect& GetRect() const { return FRect; }
    /// The box; TextOnly: what of it holds the text.
    vcl::TRect DisplayRect(bool TextOnly) const;
    vcl::TRect ButtonRect() const;
    /// The middle of the box's edges, where lines and button are.
    int GetCenter() const;
    /// Centre relative to the parent's, or to the chart's left edge.
    int GetXOffset() const { return FXOffset; }
    /// Edges of the visible subtree relative to the centre.
    int GetLeftExtent() const { return FLeftExtent; }
    int GetRightExtent() const { return FRightExtent; }
    /// Lays out this node's subtree sideways.
    void CalcSubTreePos();
    /// Gives this node and the shown ones below it their rectangles; X is the parent's centre.
    void CalcDisplayRect(int X);

    /// Draws a visible node of a collection that is not updating: OnGetImageIndex, then box, image, button
    /// and lines, or OnDrawNode in the place of box and image.
    virtual void Draw();

protected:
    // What Draw is made of, on the view's canvas.
    void InternalDraw();
    void InternalDrawImage();
    void InternalDrawButton();
    void InternalDrawLines();

    void ExpandNode(bool Expand, bool Recurse);
    /// Asks OnExpanding or OnCollapsing; false for a node without HasChildren.
    bool DoCanExpand(bool Expand);
    /// Tells OnExpanded or OnCollapsed; the node still has its old state.
    void DoExpand(bool Expand);

private:
    friend class TKSTreeNodes;
    friend class treeview::TChart;
    friend class treeview::TSubtreeRemoval;
    friend class treeview::TNodeSelection;

    treeview::ITreeHost* Host() const;
    bool IsOwnerUpdating() const;
    void ShapeChanged();
    void ExpandThis(bool Expand);
    /// If a node below is selected, focus and selection come to this one.
    void TakeSelectionFromBelow();
    void ChangeState(TKSTNNodeState State, bool Value);
    /// The node after this one and all below it.
    TKSTreeNode* NextOutside() const;
    TKSTreeNode* FirstStayingChild() const;
    void ReadRecord(vcl::TStream& Stream, TKSNodeInfo& Info);
    void WriteRecord(vcl::TStream& Stream, TKSNodeInfo& Info) const;
    /// Levels of everything below, from this node's.
    void UpdateLevels();

    TKSTreeNodes* FOwner;
    TKSTreeNode* FParent = nullptr;
    TKSTreeNode* FPrevSibling = nullptr;
    TKSTreeNode* FNextSibling = nullptr;
    TKSTreeNode* FFirstChild = nullptr;
    TKSTreeNode* FLastChild = nullptr;
    int FChildCount = 0;
    int FLevel = 0;
    vcl::TRect FRect;
    vcl::AnsiString FText;
    vcl::AnsiString FStringData;
    void* FData = nullptr;
    int FIntData = 0;
    int FImageIndex = -1;
    vcl::TColor FColor = vcl::clYellow;
    TKSTNNodeStates FStates;
    bool FUseTreeColor = true;
    bool FHasChildren = false;
    bool FDeleting = false; // from the start of its deletion on
    bool FLinked = false;   // stands in the collection
    bool FCounted = false;  // is one of the collection's Count
    bool FIsExpanding = false;
    bool FIsCollapsing = false;
    std::uint64_t FShownSerial = 0; // of the collection's shape when the node was last found visible
    // Written by the layout.
    int FXOffset = 0;
    int FLeftExtent = 0;
    int FRightExtent = 0;
};
