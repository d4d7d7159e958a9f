#pragma once

#include <exception>

#include "KSTreeView/model/TreeTypes.h"

class TCustomKSTreeView;
class TKSTreeNode;

namespace vcl
{

class IWindow;

} // namespace vcl

namespace treeview
{

/// What nodes know of the view they stand in.
///
/// Calls that raise events may free nodes and the view; who makes them holds a TNodeRef or a life witness and
/// looks at it afterwards.
class ITreeHost
{
public:
    /// The control; null where nodes live without one.
    virtual TCustomKSTreeView* View() = 0;
    /// The view's window, made when there is none.
    virtual vcl::IWindow* NodesHandle() = 0;
    /// A node for the view's collection, of the class the view wants.
    virtual TKSTreeNode* CreateNode() = 0;
    virtual bool IsAnyAssigned(TTreeEvents Events) const = 0;
    virtual const TChartMetrics& Metrics() const = 0;
    /// A handler failed where the failure cannot go up to the caller.
    virtual void ReportFailure(std::exception_ptr Failure) = 0;

    /// Lays out and paints the whole view now.
    virtual void RefreshView() = 0;
    /// Between these two (they nest), refreshing and drawing become one refresh at the end.
    virtual void BeginCoalescing() = 0;
    virtual void EndCoalescing() = 0;

    /// OnDeletion.
    virtual void NodeDeleting(TKSTreeNode* Node) = 0;
    /// The node is about to leave: whatever still refers to it lets go, without events.
    virtual void ForgetNode(TKSTreeNode* Node) = 0;
    virtual TKSTreeNode* SelectedNode() const = 0;
    virtual TKSTreeNode* FocusedNode() const = 0;
    virtual void SelectNode(TKSTreeNode* Node) = 0;
    virtual void FocusNode(TKSTreeNode* Node) = 0;
    virtual void EditNode(TKSTreeNode* Node) = 0;
    virtual void HideNodeEditor(bool Accept) = 0;

    virtual bool CanExpand(TKSTreeNode* Node) = 0;
    virtual void Expand(TKSTreeNode* Node) = 0;
    virtual bool CanCollapse(TKSTreeNode* Node) = 0;
    virtual void Collapse(TKSTreeNode* Node) = 0;
    /// True while a node expands or collapses.
    virtual void SetExpanding(bool Value) = 0;

    virtual void CalcSubTree(TKSTreeNode& Node) = 0;
    virtual void CalcNodeRects(TKSTreeNode& Node, int X) = 0;

    /// False: there is nothing to draw on yet.
    virtual bool CanDraw() const = 0;
    /// OnGetImageIndex.
    virtual void GetImageIndex(TKSTreeNode* Node) = 0;
    /// True: OnDrawNode replaces box, image and text.
    virtual bool IsOwnerDrawn() const = 0;
    /// OnDrawNode.
    virtual void DrawNodeByHandler(TKSTreeNode* Node) = 0;
    virtual void DrawBox(const TKSTreeNode& Node) = 0;
    virtual void DrawImage(const TKSTreeNode& Node) = 0;
    virtual void DrawButton(const TKSTreeNode& Node) = 0;
    virtual void DrawLines(const TKSTreeNode& Node) = 0;

protected:
    ~ITreeHost() = default;
};

} // namespace treeview
