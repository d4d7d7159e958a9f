#include "KSTreeView/model/TreeNode.h"

#include <optional>

#include "KSTreeView/model/Coalesced.h"
#include "KSTreeView/model/SubtreeRemoval.h"
#include "KSTreeView/model/TreeNodes.h"

using treeview::ITreeHost;

namespace
{

/// Between the edge of a box and its text.
constexpr int TextMargin = 5;

} // namespace

const vcl::TClass& TKSTreeNode::StaticClass()
{
    static const vcl::TClass Class = vcl::DefineClass<TKSTreeNode, vcl::TPersistent>("TKSTreeNode");
    return Class;
}

TKSTreeNode::TKSTreeNode(TKSTreeNodes* Owner) : FOwner(Owner)
{
}

TKSTreeNode::~TKSTreeNode() = default;

void TKSTreeNode::operator delete(TKSTreeNode* Node, std::destroying_delete_t)
{
    if (Node->FDeleting)
        return;
    if (!Node->FLinked && !Node->FFirstChild) {
        vcl::TObject::operator delete (Node, std::destroying_delete_t{});
        return;
    }
    ITreeHost* const Host = Node->Host();
    std::optional<vcl::TAliveGuard> Witness;
    if (Node->FOwner)
        Witness.emplace(Node->FOwner->GetLiveness());
    treeview::TSubtreeRemoval Removal(*Node, true);
    Removal.Run();
    if (Removal.GetFailure() && Host && Witness->IsAlive())
        Host->ReportFailure(Removal.GetFailure());
}

ITreeHost* TKSTreeNode::Host() const
{
    return FOwner ? FOwner->GetHost() : nullptr;
}

bool TKSTreeNode::IsOwnerUpdating() const
{
    return FOwner && FOwner->IsUpdating();
}

void TKSTreeNode::ShapeChanged()
{
    if (FOwner)
        FOwner->ShapeChanged();
}

vcl::TPersistent* TKSTreeNode::GetOwner() const
{
    return FOwner;
}

TCustomKSTreeView* TKSTreeNode::GetTreeView() const
{
    return FOwner ? FOwner->GetTreeView() : nullptr;
}

vcl::IWindow* TKSTreeNode::GetHandle() const
{
    return FOwner ? FOwner->GetHandle() : nullptr;
}

void TKSTreeNode::SetText(const vcl::AnsiString& Value)
{
    if (FText == Value)
        return;
    FText = Value;
    Draw();
}

void TKSTreeNode::SetImageIndex(int Value)
{
    if (FImageIndex == Value)
        return;
    FImageIndex = Value;
    Draw();
}

void TKSTreeNode::SetColor(vcl::TColor Value)
{
    FUseTreeColor = false;
    FColor = Value;
    Draw();
}

void TKSTreeNode::SetUseTreeColor(bool Value)
{
    if (FUseTreeColor == Value)
        return;
    FUseTreeColor = Value;
    Draw();
}

void TKSTreeNode::SetHasChildren(bool Value)
{
    if (FHasChildren == Value)
        return;
    FHasChildren = Value;
    ShapeChanged();
    if (!IsOwnerUpdating())
        Draw();
}

void TKSTreeNode::ChangeState(TKSTNNodeState State, bool Value)
{
    if (Value)
        FStates.Include(State);
    else
        FStates.Exclude(State);
    if (State == TKSTNNodeState::nsExpanded)
        ShapeChanged();
}

void TKSTreeNode::SetSelected(bool Value)
{
    ITreeHost* const View = Host();
    if (!View || !FLinked)
        return;
    if (Value)
        View->SelectNode(this);
    else if (View->SelectedNode() == this)
        View->SelectNode(nullptr);
}

void TKSTreeNode::SetFocused(bool)
{
    if (ITreeHost* const View = FLinked ? Host() : nullptr)
        View->FocusNode(this);
}

void TKSTreeNode::EditText()
{
    if (ITreeHost* const View = FLinked ? Host() : nullptr)
        View->EditNode(this);
}

void TKSTreeNode::EndEdit(bool Cancel)
{
    ITreeHost* const View = Host();
    if (View && GetEdited())
        View->HideNodeEditor(!Cancel);
}

void TKSTreeNode::Assign(const vcl::TPersistent* Source)
{
    const auto* const Node = vcl::As<TKSTreeNode>(static_cast<const vcl::TObject*>(Source));
    if (!Node) {
        TPersistent::Assign(Source);
        return;
    }
    FText = Node->FText;
    FData = Node->FData;
    FStringData = Node->FStringData;
    FIntData = Node->FIntData;
    FImageIndex = Node->FImageIndex;
    FColor = Node->FColor;
    FUseTreeColor = Node->FUseTreeColor;
    FHasChildren = Node->FHasChildren;
    ShapeChanged();
    SetFocused(true);
}

bool TKSTreeNode::IsEqual(const TKSTreeNode& Node) const
{
    return FText == Node.FText && FData == Node.FData && FStringData == Node.FStringData &&
           FIntData == Node.FIntData;
}

void TKSTreeNode::Delete()
{
    if (FDeleting)
        return;
    treeview::TSubtreeRemoval Removal(*this);
    if (!FOwner) {
        Removal.Run();
        return;
    }
    treeview::Coalesced(Host(), FOwner->GetLiveness(), treeview::DeletionEvents, [&] { Removal.Run(); });
}

void TKSTreeNode::DeleteChildren()
{
    if (!FOwner)
        return;
    treeview::Coalesced(Host(), FOwner->GetLiveness(), treeview::DeletionEvents, [this] {
        const treeview::TNodeRef Self(this);
        Collapse(true);
        // Handlers that go on adding children do not keep this from ending.
        for (int Left = Self ? FChildCount : 0; Left > 0; --Left)
            if (TKSTreeNode* const Child = Self ? FirstStayingChild() : nullptr)
                Child->Delete();
        if (Self)
            SetHasChildren(FFirstChild != nullptr);
    });
}

vcl::TRect TKSTreeNode::DisplayRect(bool TextOnly) const
{
    if (!TextOnly)
        return FRect;
    return {FRect.Left + TextMargin, FRect.Top + TextMargin, FRect.Right - TextMargin,
            FRect.Bottom - TextMargin};
}

int TKSTreeNode::GetCenter() const
{
    return static_cast<int>((std::int64_t{FRect.Left} + FRect.Right) / 2);
}

vcl::TRect TKSTreeNode::ButtonRect() const
{
    const ITreeHost* const View = Host();
    const int Size = View ? View->Metrics().ButtonSize : treeview::TChartMetrics().ButtonSize;
    const int Center = GetCenter();
    return {Center - Size, FRect.Bottom - Size, Center + Size - 1, FRect.Bottom + Size - 1};
}

void TKSTreeNode::CalcSubTreePos()
{
    if (ITreeHost* const View = Host())
        View->CalcSubTree(*this);
}

void TKSTreeNode::CalcDisplayRect(int X)
{
    if (ITreeHost* const View = Host())
        View->CalcNodeRects(*this, X);
}

void TKSTreeNode::Draw()
{
    ITreeHost* const View = Host();
    if (!View || !FLinked || IsOwnerUpdating() || !View->CanDraw() || !IsVisible())
        return;
    const treeview::TNodeRef Self(this);
    View->GetImageIndex(this);
    if (!Self)
        return;
    if (View->IsOwnerDrawn()) {
        View->DrawNodeByHandler(this);
        if (!Self)
            return;
    } else {
        InternalDraw();
        InternalDrawImage();
    }
    InternalDrawButton();
    InternalDrawLines();
}

void TKSTreeNode::InternalDraw()
{
    if (ITreeHost* const View = Host())
        View->DrawBox(*this);
}

void TKSTreeNode::InternalDrawImage()
{
    if (ITreeHost* const View = Host())
        View->DrawImage(*this);
}

void TKSTreeNode::InternalDrawButton()
{
    if (ITreeHost* const View = Host())
        View->DrawButton(*this);
}

void TKSTreeNode::InternalDrawLines()
{
    if (ITreeHost* const View = Host())
        View->DrawLines(*this);
}
