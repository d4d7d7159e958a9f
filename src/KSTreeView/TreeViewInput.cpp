// Mouse, keyboard, timers, scrolling and the editor.

#include "KSTreeView/CustomTreeView.h"
#include "KSTreeView/TreeEdit.h"
#include "KSTreeView/TreeViewHost.h"
#include "KSTreeView/interaction/MouseSteps.h"
#include "vcl/platform/Platform.h"
#include "vcl/platform/VirtualKeys.h"

using treeview::TPress;
using vcl::TAliveGuard;

namespace
{

constexpr std::uint64_t EditTimer = 1;
/// Milliseconds from the click on the selected node to the editor.
constexpr unsigned EditDelay = 500;
/// The editor has lost the focus: see whether it stays so.
constexpr unsigned WM_EDITORLEFT = vcl::WM_USER + 1;
/// A notch of the wheel moves so many times a bar's Increment.
constexpr int WheelIncrements = 5;

} // namespace

void TCustomKSTreeView::WndProc(vcl::TMessage& Message)
{
    // With automatic drag a press still is a press: the drag begins behind it.
    const bool IsPress = Message.Msg == vcl::WM_LBUTTONDOWN || Message.Msg == vcl::WM_LBUTTONDBLCLK;
    if (IsPress && GetDragMode() == vcl::TDragMode::dmAutomatic && !Is(vcl::TComponentState::csDesigning))
        Dispatch(Message);
    else
        TCustomControl::WndProc(Message);
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
        if (FEditor && !FEditor->Focused())
            HideNodeEditor(true);
        return;
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

void TCustomKSTreeView::StopEditTimer()
{
    KillTimer(EditTimer);
    FEditPending = false;
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
        {TargetOf(Hit), Hit.Node && Hit.Node == GetSelected(), FEditor != nullptr, FEditPending, FFocusClick,
         FReadOnly, GetDragMode() == vcl::TDragMode::dmAutomatic});
    if (Steps.ForgetFocusClick)
        FFocusClick = false;
    if (Steps.CloseEditor)
        return HideNodeEditor(true);
    if (Steps.Toggle)
        return Hit.Node->SetExpanded(!Hit.Node->GetExpanded());
    if (Steps.StopEditTimer)
        StopEditTimer();
    if (Steps.StartEditTimer) {
        SetTimer(EditTimer, EditDelay);
        FEditPending = true;
    }
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
    Press.IsEditPending = FEditPending;
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
    if (!Shift.Contains(vcl::TShiftKey::ssLeft)) {
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
    HideNodeEditor(true);
    FWheelRest += WheelDelta * Bar.GetIncrement() * WheelIncrements;
    const int Distance = FWheelRest / vcl::WHEEL_DELTA;
    FWheelRest -= Distance * vcl::WHEEL_DELTA;
    Bar.ScrollBy(-Distance);
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
    if (Message.WParam != EditTimer) {
        TCustomControl::WMTimer(Message);
        return;
    }
    FEditPending = false;
    if (!Focused())
        return; // the timer goes on until the view has the focus again
    KillTimer(EditTimer);
    EditNode(GetSelected());
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

void TCustomKSTreeView::RedrawSelected()
{
    if (TKSTreeNode* const Node = GetSelected())
        Node->Draw();
}

void TCustomKSTreeView::WMSetFocus(vcl::TMessage& Message)
{
    const TAliveGuard Guard(*this);
    TCustomControl::WMSetFocus(Message);
    if (!Guard.IsAlive())
        return;
    FFocusClick = FEditor == nullptr;
    RedrawSelected();
}

void TCustomKSTreeView::WMKillFocus(vcl::TMessage& Message)
{
    const TAliveGuard Guard(*this);
    TCustomControl::WMKillFocus(Message);
    if (Guard.IsAlive() && FEditor && !FFocusingEditor)
        HideNodeEditor(true);
    if (Guard.IsAlive())
        RedrawSelected();
}

void TCustomKSTreeView::EditorLostFocus()
{
    if (FEditor && !FClosingEditor && HandleAllocated())
        PostMessage(WM_EDITORLEFT);
}

void TCustomKSTreeView::WMGetDlgCode(vcl::TMessage& Message)
{
    Message.Result = vcl::DLGC_WANTARROWS | vcl::DLGC_WANTCHARS;
}

void TCustomKSTreeView::EditNode(TKSTreeNode* Node)
{
    const TAliveGuard Guard(*this);
    const treeview::TNodeRef Edited(Node);
    HideNodeEditor(true);
    if (!Guard.IsAlive() || !Edited || FEditor || !HandleAllocated())
        return;
    if (!CanEdit(Node) || !Guard.IsAlive() || !Edited || FEditor)
        return;
    FSelection.SetEdited(Node);
    FEditor = vcl::New<TKSTVEdit>(this);
    FEditor->SetFont(GetFont());
    FEditor->SetBoundsRect(Node->DisplayRect(true));
    FEditor->SetParent(this);
    FEditor->Changed();
    FEditor->SetText(Node->GetText());
    FEditor->Show();
    FFocusingEditor = true;
    const vcl::TWeak<TKSTVEdit> Editor(FEditor);
    FEditor->SetFocus();
    if (!Guard.IsAlive())
        return;
    FFocusingEditor = false;
    if (Editor.Get())
        FEditor->SelectAll();
}

void TCustomKSTreeView::TakeEditedText()
{
    const TAliveGuard Guard(*this);
    const treeview::TNodeRef Node(GetEditingNode());
    vcl::AnsiString Text = FEditor->GetText();
    OnEdited(this, Node.Get(), Text);
    if (Guard.IsAlive() && Node)
        Node->SetText(Text);
}

void TCustomKSTreeView::HideNodeEditor(bool Accept)
{
    if (!FEditor || FClosingEditor)
        return;
    FClosingEditor = true;
    const TAliveGuard Guard(*this);
    const treeview::TNodeRef Node(GetEditingNode());
    std::exception_ptr Failure;
    try {
        if (Accept)
            TakeEditedText();
        // The keyboard stays in the chart.
        if (Guard.IsAlive() && FEditor->Focused() && CanFocus() && !Is(vcl::TComponentState::csDestroying))
            SetFocus();
    } catch (...) {
        Failure = std::current_exception();
    }
    if (Guard.IsAlive()) {
        TKSTVEdit* const Editor = FEditor;
        FEditor = nullptr;
        delete Editor;
    }
    if (Guard.IsAlive()) {
        FClosingEditor = false;
        FSelection.SetEdited(nullptr);
        if (Node)
            Node->Draw();
    }
    if (Failure)
        std::rethrow_exception(Failure);
}
