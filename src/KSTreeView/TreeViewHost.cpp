#include "KSTreeView/TreeViewHost.h"

#include "KSTreeView/TreeEdit.h"
#include "vcl/controls/Program.h"
#include "vcl/system/FirstFailure.h"

using treeview::TNodePainter;
using treeview::TTreeEvent;

bool TCustomKSTreeView::THost::IsAnyAssigned(treeview::TTreeEvents Events) const
{
    treeview::TTreeEvents Assigned;
    const auto Note = [&](TTreeEvent Which, const vcl::TEventBase& Event) {
        if (Event.IsAssigned())
            Assigned.Include(Which);
    };
    Note(TTreeEvent::GetImageIndex, FView.OnGetImageIndex);
    Note(TTreeEvent::DrawNode, FView.OnDrawNode);
    Note(TTreeEvent::Deletion, FView.OnDeletion);
    Note(TTreeEvent::Expanding, FView.OnExpanding);
    Note(TTreeEvent::Expanded, FView.OnExpanded);
    Note(TTreeEvent::Collapsing, FView.OnCollapsing);
    Note(TTreeEvent::Collapsed, FView.OnCollapsed);
    Note(TTreeEvent::Changing, FView.OnChanging);
    Note(TTreeEvent::Change, FView.OnChange);
    return !(Events * Assigned).IsEmpty();
}

void TCustomKSTreeView::THost::ReportFailure(std::exception_ptr Failure)
{
    try {
        std::rethrow_exception(Failure);
    } catch (...) {
        vcl::Program().HandleException(&FView);
    }
}

void TCustomKSTreeView::THost::EndCoalescing()
{
    if (--FView.FCoalescing > 0 || !FView.FRefreshDue)
        return;
    FView.FRefreshDue = false;
    FView.RefreshNodes();
}

void TCustomKSTreeView::THost::ForgetNode(TKSTreeNode* Node)
{
    const vcl::TAliveGuard Guard(FView);
    vcl::TFirstFailure Failure;
    if (FView.GetEditingNode() == Node)
        Failure.Try([&] { FView.HideNodeEditor(false); });
    if (Guard.IsAlive())
        FView.FSelection.Forget(Node);
    Failure.Rethrow();
}

void TCustomKSTreeView::THost::CalcNodeRects(TKSTreeNode& Node, int X)
{
    treeview::TChart::PlaceSubtree(Node, FView.FMetrics, FView.FChart.GetOrigin(), X);
}

bool TCustomKSTreeView::THost::CanDraw() const
{
    if (FView.FPrinting)
        return true;
    if (FView.FCoalescing > 0) {
        FView.FRefreshDue = true;
        return false;
    }
    return FView.HandleAllocated() && !FView.Is(vcl::TComponentState::csDestroying);
}

template <class TAction>
void TCustomKSTreeView::DrawPart(TAction&& Action)
{
    const treeview::TTreeState Now = State();
    TNodePainter Painter(*GetCanvas(), FLook, FMetrics, Now);
    Action(Painter);
}

void TCustomKSTreeView::THost::DrawBox(const TKSTreeNode& Node)
{
    FView.DrawPart([&](TNodePainter& Painter) { Painter.DrawBox(Node); });
}

void TCustomKSTreeView::THost::DrawImage(const TKSTreeNode& Node)
{
    FView.DrawPart([&](TNodePainter& Painter) { Painter.DrawImage(Node); });
}

void TCustomKSTreeView::THost::DrawButton(const TKSTreeNode& Node)
{
    FView.DrawPart([&](TNodePainter& Painter) { Painter.DrawButton(Node); });
}

void TCustomKSTreeView::THost::DrawLines(const TKSTreeNode& Node)
{
    FView.DrawPart([&](TNodePainter& Painter) { Painter.DrawLines(Node); });
}

void TCustomKSTreeView::InternalDrawRootLine()
{
    DrawPart([&](TNodePainter& Painter) { Painter.DrawRootLine(*FItems, FChart.GetOrigin()); });
}
