#include "KSTreeView/CustomTreeView.h"

#include <algorithm>
#include <utility>

#include "KSTreeView/TreeEdit.h"
#include "KSTreeView/TreeViewHost.h"
#include "KSTreeView/interaction/MouseSteps.h"
#include "KSTreeView/model/Coalesced.h"
#include "vcl/controls/Program.h"
#include "vcl/graphics/ImageList.h"
#include "vcl/platform/Platform.h"
#include "vcl/platform/System.h"
#include "vcl/system/FirstFailure.h"

using vcl::TAliveGuard;

namespace
{

constexpr int StartWidth = 121;
constexpr int StartHeight = 97;
constexpr int MinButtonSize = 2;
constexpr int MaxButtonSize = 20;

} // namespace

TCustomKSTreeView::TCustomKSTreeView(vcl::TComponent* Owner)
    : TCustomControl(Owner), FHost(std::make_unique<THost>(*this)),
      FItems(vcl::New<TKSTreeNodes>(FHost.get())), FSelection(*FHost),
      FHorzScrollBar(std::make_unique<TKSTVScrollBar>(this, vcl::TScrollBarKind::sbHorizontal)),
      FVertScrollBar(std::make_unique<TKSTVScrollBar>(this, vcl::TScrollBarKind::sbVertical)),
      FImagesLink(std::make_unique<vcl::TChangeLink>())
{
    FWidth = StartWidth;
    FHeight = StartHeight;
    SetColor(vcl::clWindow);
    SetParentColor(false);
    SetTabStop(true);
    FHorzScrollBar->SetTracking(true);
    FVertScrollBar->SetTracking(true);
    FImagesLink->OnChange = [this](vcl::TObject*) { Invalidate(); };
}

TCustomKSTreeView::~TCustomKSTreeView()
{
    // Nodes reach the view while they go, so they go first; the virtual calls were made in BeforeDestruction.
    FCoalescing = 1;
    delete FItems;
}

void TCustomKSTreeView::BeforeDestruction()
{
    // Here what descendants override is still reached.
    vcl::RunGuarded(this, [this] { HideNodeEditor(false); });
    vcl::RunGuarded(this, [this] {
        FItems->BeginUpdate();
        FItems->Clear();
    });
    TCustomControl::BeforeDestruction();
}

TKSTreeNode* TCustomKSTreeView::CreateNode()
{
    return vcl::New<TKSTreeNode>(FItems);
}

void TCustomKSTreeView::SetBorderStyle(vcl::TBorderStyle Value)
{
    if (FBorderStyle == Value)
        return;
    FBorderStyle = Value;
    const TAliveGuard Guard(*this);
    RecreateWnd();
    if (Guard.IsAlive())
        Refresh();
}

void TCustomKSTreeView::SetButtonSize(int Value)
{
    Change(FMetrics.ButtonSize, std::clamp(Value, MinButtonSize, MaxButtonSize));
}

void TCustomKSTreeView::SetImages(vcl::TImageList* Value)
{
    if (FImages == Value)
        return;
    FImages = Value;
    FImagesLink->Follow(Value, *this);
    Refresh();
}

void TCustomKSTreeView::Notification(vcl::TComponent* Component, vcl::TOperation Operation)
{
    TCustomControl::Notification(Component, Operation);
    if (Operation != vcl::TOperation::opRemove)
        return;
    if (Component == FEditor) {
        FEditor = nullptr;
        FSelection.SetEdited(nullptr);
        Invalidate();
    } else if (Component == FImages) {
        FImages = nullptr;
        Invalidate();
    }
}

void TCustomKSTreeView::CreateParams(vcl::TCreateParams& Params)
{
    TCustomControl::CreateParams(Params);
    if (FBorderStyle != vcl::TBorderStyle::bsSingle)
        return;
    if (vcl::Platform().System().NewStyleControls() && GetCtl3D())
        Params.ExStyle |= vcl::WS_EX_CLIENTEDGE;
    else
        Params.Style |= vcl::WS_BORDER;
}

void TCustomKSTreeView::LoseHandle()
{
    FEditTimerRuns = false;
    FEditPending = false;
    FPanning = false;
    FDragScroll = {};
    TCustomControl::LoseHandle();
}

void TCustomKSTreeView::RefreshNodes()
{
    if (FCoalescing > 0)
        FRefreshDue = true;
    else if (!Is(vcl::TComponentState::csDestroying))
        Refresh();
}

bool TCustomKSTreeView::CanChange(TKSTreeNode* Node)
{
    bool Allow = true;
    OnChanging(this, Node, Allow);
    return Allow;
}

bool TCustomKSTreeView::CanExpand(TKSTreeNode* Node)
{
    bool Allow = true;
    OnExpanding(this, Node, Allow);
    return Allow;
}

bool TCustomKSTreeView::CanCollapse(TKSTreeNode* Node)
{
    bool Allow = true;
    OnCollapsing(this, Node, Allow);
    return Allow;
}

bool TCustomKSTreeView::CanEdit(TKSTreeNode* Node)
{
    bool Allow = true;
    OnEditing(this, Node, Allow);
    return Allow;
}

void TCustomKSTreeView::FullExpand()
{
    treeview::Coalesced(FHost.get(), FItems->GetLiveness(), treeview::ExpansionEvents, [this] {
        treeview::TNodeRef Node(FItems->GetFirstNode());
        while (Node) {
            Node->Expand(true);
            if (Node)
                Node.Reset(Node->GetNextSibling());
        }
    });
}

void TCustomKSTreeView::FullCollapse()
{
    treeview::Coalesced(FHost.get(), FItems->GetLiveness(), treeview::ExpansionEvents, [this] {
        treeview::TNodeRef Node(FItems->GetFirstNode());
        while (Node) {
            Node->Collapse(true);
            if (Node)
                Node.Reset(Node->GetNextSibling());
        }
    });
}

void TCustomKSTreeView::CheckOwn(const TKSTreeNode* Node) const
{
    if (Node && (Node->GetNodes() != FItems || !Node->GetLinked()))
        throw EKSTreeViewError("The node does not stand in this chart");
}

void TCustomKSTreeView::SelectNode(TKSTreeNode* Node)
{
    CheckOwn(Node);
    FSelection.Select(Node);
}

void TCustomKSTreeView::FocusNode(TKSTreeNode* Node)
{
    CheckOwn(Node);
    FSelection.Focus(Node);
}

TKSTVHitTests TCustomKSTreeView::InternalGetHitTestInfoAt(int X, int Y, TKSTreeNode*& Node) const
{
    const treeview::TChartHit Hit = HitTest({X, Y});
    Node = Hit.Node;
    return Hit.Tests;
}

/// Shows now what was put off until the end of many changes: the places of the boxes are needed.
void TCustomKSTreeView::FlushRefresh()
{
    if (!FRefreshDue || FCoalescing == 0 || Is(vcl::TComponentState::csDestroying))
        return;
    const TAliveGuard Guard(*this);
    const int Depth = std::exchange(FCoalescing, 0);
    FRefreshDue = false;
    vcl::TFirstFailure Failure;
    Failure.Try([&] { Refresh(); });
    if (Guard.IsAlive())
        FCoalescing += Depth;
    Failure.Rethrow();
}

void TCustomKSTreeView::ScrollInView(TKSTreeNode* Node)
{
    if (!Node || !GetParent() || FItems->IsUpdating() || !Node->IsVisible())
        return;
    const TAliveGuard Guard(*this);
    const treeview::TNodeRef Wanted(Node);
    FlushRefresh();
    if (!Guard.IsAlive() || !Wanted || !Node->IsVisible())
        return;
    const vcl::TRect& Box = Node->GetRect();
    const auto Delta = [](int From, int To, int Spacing, int Room) {
        return treeview::ScrollDelta(vcl::SaturateToInt(std::int64_t{From} - Spacing),
                                     vcl::SaturateToInt(std::int64_t{To} + Spacing), Room);
    };
    const int DeltaX = Delta(Box.Left, Box.Right, FMetrics.HorzSpacing, GetClientWidth());
    const int DeltaY = Delta(Box.Top, Box.Bottom, FMetrics.VertSpacing, GetClientHeight());
    FHorzScrollBar->ScrollBy(DeltaX);
    FVertScrollBar->ScrollBy(DeltaY);
}

void TCustomKSTreeView::LoadFromStream(vcl::TStream& Stream)
{
    FItems->ReadText(Stream);
}

void TCustomKSTreeView::SaveToStream(vcl::TStream& Stream)
{
    FItems->WriteText(Stream);
}

void TCustomKSTreeView::LoadFromFile(const vcl::AnsiString& FileName)
{
    vcl::TFileStream Stream(FileName, vcl::fmOpenRead);
    LoadFromStream(Stream);
}

void TCustomKSTreeView::SaveToFile(const vcl::AnsiString& FileName)
{
    vcl::TFileStream Stream(FileName, vcl::fmCreate);
    SaveToStream(Stream);
}

void TCustomKSTreeView::UpdateScrollBars()
{
    if (FScrollUpdating)
        return;
    const vcl::TFlagScope Updating(*this, FScrollUpdating);
    const TAliveGuard Guard(*this);
    // A bar that comes or goes resizes the view, and who hears of that may free it.
    if (FVertScrollBar->NeedsScrollBarVisible()) {
        FHorzScrollBar->Update(false, true);
        if (Guard.IsAlive())
            FVertScrollBar->Update(true, false);
    } else {
        FVertScrollBar->Update(false, FHorzScrollBar->NeedsScrollBarVisible());
        if (Guard.IsAlive())
            FHorzScrollBar->Update(true, false);
    }
}

void TCustomKSTreeView::ContentsMoved(int DeltaX, int DeltaY)
{
    ScrollBy(DeltaX, DeltaY);
    // Hit tests agree with what the pixels show.
    FChart.Shift(*FItems, DeltaX, DeltaY);
}
