// Mouse and scrolling.

#include <utility>

#include "KSTreeView/CustomTreeView.h"
#include "KSTreeView/interaction/MouseSteps.h"
#include "vcl/controls/Drag.h"

using treeview::TPress;
using vcl::TAliveGuard;

namespace
{

/// A notch of the wheel moves so many times a bar's Increment.
constexpr int WheelIncrements = 5;
/// Milliseconds between two steps of scrolling while something is dragged, and their length in Increments.
constexpr unsigned DragScrollInterval = 50;
constexpr int DragScrollIncrements = 2;

} // namespace

/// The message that is being handled, until the end of the block.
class TCustomKSTreeView::THandling
{
public:
    THandling(TCustomKSTreeView& View, vcl::TMessage& Message)
        : FView(View), FGuard(View), FBefore(std::exchange(View.FMessage, &Message))
    {
    }
    ~THandling()
    {
        if (FGuard.IsAlive())
            FView.FMessage = FBefore;
    }
    THandling(const THandling&) = delete;
    THandling& operator=(const THandling&) = delete;

private:
    TCustomKSTreeView& FView;
    TAliveGuard FGuard;
    vcl::TMessage* FBefore;
};

void TCustomKSTreeView::WndProc(vcl::TMessage& Message)
{
    const THandling Handling(*this, Message);
    TCustomControl::WndProc(Message);
}

/// With automatic drag a press still is a press: the drag begins behind it.
void TCustomKSTreeView::BeginAutoDrag()
{
    if (FMessage)
        Dispatch(*FMessage);
}

void TCustomKSTreeView::Dispatch(vcl::TMessage& Message)
{
    switch (Message.Msg) {
    case vcl::WM_LBUTTONDOWN:
        return WMLButtonDown(Message);
    case vcl::WM_LBUTTONDBLCLK:
        return WMLButtonDblClk(Message);
    case vcl::WM_MOUSEHWHEEL:
        return WMMouseHWheel(Message);
    case WM_EDITORLEFT:
        return WMEditorLeft();
    default:
        TCustomControl::Dispatch(Message);
    }
}

treeview::TChartHit TCustomKSTreeView::HitTest(vcl::TPoint Point) const
{
    return treeview::HitTest(*FItems, FLook.ShowButtons, Point);
}

void TCustomKSTreeView::FocusAndSelect(TKSTreeNode* Node)
{
    const TAliveGuard Guard(*this);
    const treeview::TNodeRef Hit(Node);
    FocusNode(Node);
    if (Guard.IsAlive() && Hit)
        SelectNode(Node);
}

namespace
{

TPress::TTarget TargetOf(const treeview::TChartHit& Hit)
{
    if (Hit.Tests.Contains(TKSTVHitTest::htOnButton))
        return TPress::TTarget::Button;
    return Hit.Node ? TPress::TTarget::Box : TPress::TTarget::Nothing;
}

} // namespace

void TCustomKSTreeView::WMLButtonDown(vcl::TMessage& Message)
{
    const TAliveGuard Guard(*this);
    TCustomControl::Dispatch(Message);
    if (Guard.IsAlive() && !Focused() && CanFocus())
        SetFocus();
    if (!Guard.IsAlive())
        return;
    const vcl::TPoint Point = vcl::PointOfParam(Message.LParam);
    const treeview::TChartHit Hit = FEditor ? treeview::TChartHit() : HitTest(Point);
    const treeview::TNodeRef Node(Hit.Node);
    const treeview::TPressSteps Steps = treeview::StepsOfPress(
        {TargetOf(Hit), Hit.Node && Hit.Node == GetSelected(), FEditor != nullptr, FEditTimerRuns,
         FFocusClick, FReadOnly, GetDragMode() == vcl::TDragMode::dmAutomatic});
    if (Steps.ForgetFocusClick)
        FFocusClick = false;
    if (Steps.CloseEditor)
        return HideNodeEditor(true);
    if (Steps.Toggle)
        return Hit.Node->SetExpanded(!Hit.Node->GetExpanded());
    if (Steps.StopEditTimer)
        StopEditTimer();
    if (Steps.StartEditTimer)
        StartEditTimer();
    if (Steps.StartPanning)
        StartPanning(Point);
    if (Steps.Select)
        FocusAndSelect(Hit.Node);
    if (Steps.StartDrag && Guard.IsAlive() && Node)
        BeginDrag(false);
}

void TCustomKSTreeView::WMLButtonDblClk(vcl::TMessage& Message)
{
    const TAliveGuard Guard(*this);
    TCustomControl::Dispatch(Message);
    if (!Guard.IsAlive())
        return;
    const treeview::TChartHit Hit = HitTest(vcl::PointOfParam(Message.LParam));
    const treeview::TNodeRef Node(Hit.Node);
    TPress Press;
    Press.Target = TargetOf(Hit);
    Press.IsEditPending = FEditTimerRuns;
    const treeview::TDoubleClickSteps Steps =
        treeview::StepsOfDoubleClick(Press, Hit.Node && Hit.Node->GetHasChildren());
    if (Steps.StopEditTimer)
        StopEditTimer();
    if (Steps.Select)
        FocusAndSelect(Hit.Node);
    if (Steps.Toggle && Guard.IsAlive() && Node)
        Node->SetExpanded(!Node->GetExpanded());
}

void TCustomKSTreeView::StartPanning(vcl::TPoint Point)
{
    FPanning = true;
    FPanStart = Point;
    FPanPosition = {FHorzScrollBar->GetPosition(), FVertScrollBar->GetPosition()};
}

void TCustomKSTreeView::MouseMove(vcl::TShiftState Shift, int X, int Y)
{
    const TAliveGuard Guard(*this);
    TCustomControl::MouseMove(Shift, X, Y);
    if (!Guard.IsAlive() || !FPanning)
        return;
    if (!Shift.Contains(vcl::TShiftKey::ssLeft) || !GetMouseCapture()) {
        FPanning = false;
        return;
    }
    FHorzScrollBar->SetPosition(FPanPosition.X - (X - FPanStart.X));
    FVertScrollBar->SetPosition(FPanPosition.Y - (Y - FPanStart.Y));
}

void TCustomKSTreeView::MouseUp(vcl::TMouseButton Button, vcl::TShiftState Shift, int X, int Y)
{
    FPanning = false;
    TCustomControl::MouseUp(Button, Shift, X, Y);
}

void TCustomKSTreeView::WMCancelMode(vcl::TMessage& Message)
{
    FPanning = false;
    TCustomControl::WMCancelMode(Message);
}

bool TCustomKSTreeView::ScrollByWheel(TKSTVScrollBar& Bar, int WheelDelta)
{
    if (Bar.GetMaxPosition() == 0)
        return false;
    const TAliveGuard Guard(*this);
    HideNodeEditor(true);
    if (!Guard.IsAlive())
        return true;
    // What is left of a turn counts for the bar and the direction it was meant for.
    if (FWheelBar != Bar.GetKind() || (FWheelRest > 0) != (WheelDelta > 0))
        FWheelRest = 0;
    FWheelBar = Bar.GetKind();
    FWheelRest += std::int64_t{WheelDelta} * Bar.GetIncrement() * WheelIncrements;
    const std::int64_t Distance = FWheelRest / vcl::WHEEL_DELTA;
    FWheelRest -= Distance * vcl::WHEEL_DELTA;
    Bar.ScrollBy(vcl::SaturateToInt(-Distance));
    return true;
}

bool TCustomKSTreeView::DoMouseWheel(vcl::TShiftState Shift, int WheelDelta, vcl::TPoint MousePos)
{
    const TAliveGuard Guard(*this);
    if (TCustomControl::DoMouseWheel(Shift, WheelDelta, MousePos) || !Guard.IsAlive())
        return true;
    if (Shift.Contains(vcl::TShiftKey::ssShift) || FVertScrollBar->GetMaxPosition() == 0)
        return ScrollByWheel(*FHorzScrollBar, WheelDelta);
    return ScrollByWheel(*FVertScrollBar, WheelDelta);
}

void TCustomKSTreeView::WMMouseHWheel(vcl::TMessage& Message)
{
    // To the right is positive here, and away from the user there.
    if (ScrollByWheel(*FHorzScrollBar, -vcl::WheelDistance(Message.WParam)))
        Message.Result = 1;
    else
        TCustomControl::Dispatch(Message);
}

void TCustomKSTreeView::WMTimer(vcl::TMessage& Message)
{
    if (Message.WParam == EditTimer)
        EditTimerTick();
    else if (Message.WParam == DragScrollTimer)
        DragScrollTick();
    else
        TCustomControl::WMTimer(Message);
}

void TCustomKSTreeView::DoStartDrag(vcl::TDragObject*& DragObject)
{
    StopEditTimer(); // the press was none to edit by
    TCustomControl::DoStartDrag(DragObject);
}

void TCustomKSTreeView::DragOver(vcl::TObject* Source, int X, int Y, vcl::TDragState State, bool& Accept)
{
    if (State == vcl::TDragState::dsDragLeave)
        SetDragScroll({});
    else
        SetDragScroll(
            {treeview::EdgeDirection(X, GetClientWidth()), treeview::EdgeDirection(Y, GetClientHeight())});
    TCustomControl::DragOver(Source, X, Y, State, Accept);
}

void TCustomKSTreeView::DragDrop(vcl::TObject* Source, int X, int Y)
{
    SetDragScroll({});
    TCustomControl::DragDrop(Source, X, Y);
}

void TCustomKSTreeView::SetDragScroll(vcl::TPoint Directions)
{
    const bool Ran = FDragScroll != vcl::TPoint{};
    const bool Runs = Directions != vcl::TPoint{};
    FDragScroll = Directions;
    if (Runs && !Ran)
        SetTimer(DragScrollTimer, DragScrollInterval);
    else if (Ran && !Runs)
        KillTimer(DragScrollTimer);
}

void TCustomKSTreeView::DragScrollTick()
{
    // What was dragged may have gone without a word.
    if (!vcl::DragSession().IsDragging())
        return SetDragScroll({});
    const auto Distance = [](const TKSTVScrollBar& Bar, int Direction) {
        return vcl::SaturateToInt(std::int64_t{Bar.GetIncrement()} * DragScrollIncrements * Direction);
    };
    FHorzScrollBar->ScrollBy(Distance(*FHorzScrollBar, FDragScroll.X));
    FVertScrollBar->ScrollBy(Distance(*FVertScrollBar, FDragScroll.Y));
}

void TCustomKSTreeView::WMSize(vcl::TMessage& Message)
{
    const TAliveGuard Guard(*this);
    TCustomControl::WMSize(Message);
    if (Guard.IsAlive() && (FHorzScrollBar->GetVisible() || FVertScrollBar->GetVisible()))
        UpdateScrollBars();
}

void TCustomKSTreeView::WMHScroll(vcl::TMessage& Message)
{
    const TAliveGuard Guard(*this);
    HideNodeEditor(true);
    if (Guard.IsAlive())
        FHorzScrollBar->ScrollMessage(Message);
}

void TCustomKSTreeView::WMVScroll(vcl::TMessage& Message)
{
    const TAliveGuard Guard(*this);
    HideNodeEditor(true);
    if (Guard.IsAlive())
        FVertScrollBar->ScrollMessage(Message);
}

void TCustomKSTreeView::WMGetDlgCode(vcl::TMessage& Message)
{
    Message.Result = vcl::DLGC_WANTARROWS | vcl::DLGC_WANTCHARS;
}
