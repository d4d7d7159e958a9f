#pragma once

#include "KSTreeView/CustomTreeView.h"

/// The view as its nodes and its selection see it.
class TCustomKSTreeView::THost final : public treeview::ITreeHost, public treeview::ISelectionEvents
{
public:
    explicit THost(TCustomKSTreeView& View) : FView(View) {}

    TCustomKSTreeView* View() override { return &FView; }
    vcl::IWindow* NodesHandle() override { return FView.GetHandle(); }
    TKSTreeNode* CreateNode() override { return FView.CreateNode(); }
    bool IsAnyAssigned(treeview::TTreeEvents Events) const override;
    const treeview::TChartMetrics& Metrics() const override { return FView.FMetrics; }
    void ReportFailure(std::exception_ptr Failure) override;

    void RefreshView() override { FView.RefreshNodes(); }
    void BeginCoalescing() override { ++FView.FCoalescing; }
    void EndCoalescing() override;

    void NodeDeleting(TKSTreeNode* Node) override { FView.OnDeletion(&FView, Node); }
    void ForgetNode(TKSTreeNode* Node) override;
    TKSTreeNode* SelectedNode() const override { return FView.GetSelected(); }
    TKSTreeNode* FocusedNode() const override { return FView.GetFocusedNode(); }
    void SelectNode(TKSTreeNode* Node) override { FView.SelectNode(Node); }
    void FocusNode(TKSTreeNode* Node) override { FView.FocusNode(Node); }
    void EditNode(TKSTreeNode* Node) override { FView.EditNode(Node); }
    void HideNodeEditor(bool Accept) override { FView.HideNodeEditor(Accept); }

    bool CanChange(TKSTreeNode* Node) override { return FView.CanChange(Node); }
    void Change(TKSTreeNode* Node) override { FView.Change(Node); }
    void ScrollInView(TKSTreeNode* Node) override { FView.ScrollInView(Node); }
    bool CanExpand(TKSTreeNode* Node) override { return FView.CanExpand(Node); }
    void Expand(TKSTreeNode* Node) override { FView.Expand(Node); }
    bool CanCollapse(TKSTreeNode* Node) override { return FView.CanCollapse(Node); }
    void Collapse(TKSTreeNode* Node) override { FView.Collapse(Node); }
    void SetExpanding(bool Value) override { FView.FExpanding = Value; }

    void CalcSubTree(TKSTreeNode& Node) override { FView.FChart.ArrangeSubtree(Node, FView.FMetrics); }
    void CalcNodeRects(TKSTreeNode& Node, int X) override;

    bool CanDraw() const override;
    void GetImageIndex(TKSTreeNode* Node) override { FView.GetImageIndex(Node); }
    bool IsOwnerDrawn() const override { return FView.OnDrawNode && !FView.FDefaultDrawing; }
    void DrawNodeByHandler(TKSTreeNode* Node) override
    {
        FView.OnDrawNode(&FView, Node, Node->DisplayRect(false));
    }
    void DrawBox(const TKSTreeNode& Node) override;
    void DrawImage(const TKSTreeNode& Node) override;
    void DrawButton(const TKSTreeNode& Node) override;
    void DrawLines(const TKSTreeNode& Node) override;

private:
    TCustomKSTreeView& FView;
};
