#include "KSTreeView/TreeEdit.h"

#include "KSTreeView/CustomTreeView.h"
#include "vcl/platform/VirtualKeys.h"

namespace
{

/// The editor has room for this beside its text.
constexpr const char* Room = "WWW";

} // namespace

const vcl::TClass& TKSTVEdit::StaticClass()
{
    static const vcl::TClass Class = vcl::DefineClass<TKSTVEdit, vcl::TCustomEdit>("TKSTVEdit");
    return Class;
}

TKSTVEdit::TKSTVEdit(vcl::TComponent* Owner) : TCustomEdit(Owner)
{
    SetTabStop(false);
    SetAutoSize(false);
    SetCtl3D(false);
    SetBorderStyle(vcl::TBorderStyle::bsSingle);
}

TCustomKSTreeView* TKSTVEdit::View() const
{
    return vcl::As<TCustomKSTreeView>(static_cast<vcl::TObject*>(GetParent()));
}

void TKSTVEdit::Change()
{
    const vcl::TAliveGuard Guard(*this);
    TCustomEdit::Change();
    if (Guard.IsAlive())
        Changed();
}

void TKSTVEdit::Changed()
{
    TCustomKSTreeView* const Tree = View();
    const TKSTreeNode* const Node = Tree ? Tree->GetEditingNode() : nullptr;
    if (!Node)
        return;
    const vcl::TRect Text = Node->DisplayRect(true);
    vcl::TCanvas* const Canvas = Tree->GetCanvas();
    Canvas->SetFont(GetFont());
    const int Width = Canvas->TextWidth(GetText() + Room);
    SetBounds(Text.Left + (Text.Width() - Width) / 2, Text.Top, Width, Text.Height());
}

void TKSTVEdit::KeyDown(std::uint16_t& Key, vcl::TShiftState Shift)
{
    TCustomKSTreeView* const Tree = View();
    const vcl::TAliveGuard Guard(*this);
    if (Tree && Key == vcl::VK_ESCAPE) {
        std::uint16_t Escape = Key;
        Key = 0;
        Tree->KeyDown(Escape, Shift);
        return;
    }
    if (Tree)
        Tree->OnKeyDown(Tree, Key, Shift);
    if (Guard.IsAlive())
        TCustomEdit::KeyDown(Key, Shift);
}

void TKSTVEdit::KeyPress(char32_t& Key)
{
    TCustomKSTreeView* const Tree = View();
    const vcl::TAliveGuard Guard(*this);
    const bool IsReturn = Key == vcl::VK_RETURN;
    if (Tree) {
        if (IsReturn) {
            Tree->PostMessage(vcl::WM_LBUTTONDOWN, 0, 0);
            Tree->PostMessage(vcl::WM_LBUTTONUP, 0, 0);
        }
        Tree->OnKeyPress(Tree, Key);
    }
    if (!Guard.IsAlive())
        return;
    TCustomEdit::KeyPress(Key);
    if (IsReturn)
        Key = 0; // a single line has no use for it, and would complain
}

void TKSTVEdit::WMKillFocus(vcl::TMessage& Message)
{
    const vcl::TAliveGuard Guard(*this);
    TCustomEdit::WMKillFocus(Message);
    if (TCustomKSTreeView* const Tree = Guard.IsAlive() ? View() : nullptr)
        Tree->EditorLostFocus();
}

void TKSTVEdit::WMGetDlgCode(vcl::TMessage& Message)
{
    Message.Result = vcl::DLGC_WANTARROWS | vcl::DLGC_WANTCHARS;
}

void TKSTVEdit::CMWantSpecialKey(vcl::TMessage& Message)
{
    Message.Result = Message.WParam == vcl::VK_RETURN || Message.WParam == vcl::VK_ESCAPE ? 1 : 0;
}
