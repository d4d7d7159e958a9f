// The editor: the timer that opens it, and the focus that comes and goes with it.

#include <utility>

#include "KSTreeView/CustomTreeView.h"
#include "KSTreeView/TreeEdit.h"
#include "vcl/controls/FormSite.h"
#include "vcl/system/FirstFailure.h"

using vcl::TAliveGuard;

namespace
{

/// Milliseconds from the click on the selected node to the editor.
constexpr unsigned EditDelay = 500;

} // namespace

void TCustomKSTreeView::StartEditTimer()
{
    SetTimer(EditTimer, EditDelay);
    FEditTimerRuns = true;
    FEditPending = true;
}

void TCustomKSTreeView::StopEditTimer()
{
    KillTimer(EditTimer);
    FEditTimerRuns = false;
    FEditPending = false;
}

void TCustomKSTreeView::EditTimerTick()
{
    FEditPending = false;
    if (!Focused())
        return; // the timer goes on until the view has the focus again
    StopEditTimer();
    if (!FReadOnly)
        EditNode(GetSelected());
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
    if (Guard.IsAlive() && FEditor && !FEditor->Focused())
        HideNodeEditor(true);
    if (Guard.IsAlive())
        RedrawSelected();
}

void TCustomKSTreeView::WMEditorLeft()
{
    if (FEditor && !FEditor->Focused())
        HideNodeEditor(true);
}

void TCustomKSTreeView::EditorLostFocus()
{
    if (FEditor && !FClosingEditor && HandleAllocated())
        PostMessage(WM_EDITORLEFT);
}

void TCustomKSTreeView::EditNode(TKSTreeNode* Node)
{
    const TAliveGuard Guard(*this);
    CheckOwn(Node);
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
    const vcl::TWeak<TKSTVEdit> Editor(FEditor);
    try {
        FEditor->SetFocus();
    } catch (...) {
        // A view that cannot have the focus edits nothing.
        if (Guard.IsAlive())
            HideNodeEditor(false);
        throw;
    }
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

/// The keyboard stays in the chart, also when the form is not the active one.
void TCustomKSTreeView::TakeFocusFromEditor()
{
    const vcl::IFormSite* const Site = vcl::GetFormSiteOf(this);
    const bool HasFocus = FEditor->Focused() || (Site && Site->GetActiveControl() == FEditor);
    if (HasFocus && CanFocus() && !Is(vcl::TComponentState::csDestroying))
        SetFocus();
}

void TCustomKSTreeView::HideNodeEditor(bool Accept)
{
    if (!FEditor || FClosingEditor)
        return;
    const TAliveGuard Guard(*this);
    vcl::TFirstFailure Failure;
    {
        const vcl::TFlagScope Closing(*this, FClosingEditor);
        Failure.Try([&] {
            if (Accept)
                TakeEditedText();
            if (Guard.IsAlive() && FEditor)
                TakeFocusFromEditor();
        });
        if (Guard.IsAlive())
            delete std::exchange(FEditor, nullptr);
    }
    if (Guard.IsAlive())
        Failure.Try([&] { EndEditing(); });
    Failure.Rethrow();
}

/// The node shows its text again; while it is drawn it still is the one being edited.
void TCustomKSTreeView::EndEditing()
{
    if (FEditor)
        return; // a handler has begun to edit another node
    const TAliveGuard Guard(*this);
    const treeview::TNodeRef Node(GetEditingNode());
    vcl::TFirstFailure Failure;
    FSelection.EndEdited();
    Failure.Try([&] {
        if (Node)
            Node->Draw();
    });
    if (Guard.IsAlive() && !FEditor) {
        FSelection.SetEdited(nullptr);
        // As the edited node it was drawn with the colours of the focus.
        if (!Focused())
            Failure.Try([&] { RedrawSelected(); });
    }
    Failure.Rethrow();
}
