// The keyboard.

#include "KSTreeView/CustomTreeView.h"
#include "KSTreeView/TreeEdit.h"
#include "KSTreeView/TreeViewHost.h"
#include "vcl/platform/Platform.h"
#include "vcl/platform/VirtualKeys.h"

using vcl::TAliveGuard;

void TCustomKSTreeView::KeyDown(std::uint16_t& Key, vcl::TShiftState Shift)
{
    const TAliveGuard Guard(*this);
    switch (Key) {
    case vcl::VK_LEFT:
    case vcl::VK_RIGHT:
    case vcl::VK_UP:
    case vcl::VK_DOWN: {
        const std::uint16_t Arrow = Key;
        Key = 0;
        Walk(Arrow);
        return;
    }
    case vcl::VK_TAB:
        HideNodeEditor(true);
        break;
    case vcl::VK_ESCAPE:
        HideNodeEditor(false);
        break;
    default:
        break;
    }
    if (!Guard.IsAlive())
        return;
    TCustomControl::KeyDown(Key, Shift);
    if (Guard.IsAlive() && Key != 0 && ExtraKey(Key))
        Key = 0;
}

void TCustomKSTreeView::Walk(std::uint16_t Key)
{
    TKSTreeNode* const Node = GetSelected();
    if (!Node)
        return;
    const bool IsOpen = Node->GetExpanded();
    TKSTreeNode* Next = nullptr;
    switch (Key) {
    case vcl::VK_LEFT:
        Next = Node->GetPrevSibling();
        break;
    case vcl::VK_RIGHT:
        Next = Node->GetNextSibling();
        break;
    case vcl::VK_UP:
        if (IsOpen && Node->GetHasChildren())
            return Node->Collapse(false);
        Next = Node->GetParent();
        break;
    default:
        if (!IsOpen && Node->GetHasChildren())
            return Node->Expand(false);
        Next = IsOpen ? Node->GetFirstChild() : nullptr;
    }
    if (Next)
        SelectNode(Next);
}

bool TCustomKSTreeView::ExtraKey(std::uint16_t Key)
{
    switch (Key) {
    case vcl::VK_HOME:
        if (FItems->GetFirstNode())
            FocusAndSelect(FItems->GetFirstNode());
        return true;
    case vcl::VK_END: {
        TKSTreeNode* Last = FItems->GetLastTopNode();
        while (Last && Last->GetExpanded() && Last->GetLastChild())
            Last = Last->GetLastChild();
        if (Last)
            FocusAndSelect(Last);
        return true;
    }
    case vcl::VK_PRIOR:
    case vcl::VK_NEXT: {
        TKSTVScrollBar& Bar = FVertScrollBar->GetMaxPosition() > 0 ? *FVertScrollBar : *FHorzScrollBar;
        Bar.ScrollMessage({0, Key == vcl::VK_PRIOR ? vcl::SB_PAGEUP : vcl::SB_PAGEDOWN, 0, 0});
        return true;
    }
    case vcl::VK_F2:
        if (!FReadOnly)
            EditNode(GetSelected());
        return true;
    default:
        return false;
    }
}

void TCustomKSTreeView::KeyPress(char32_t& Key)
{
    const TAliveGuard Guard(*this);
    TCustomControl::KeyPress(Key);
    if (Guard.IsAlive() && Key != 0 && ExtraChar(Key))
        Key = 0;
}

bool TCustomKSTreeView::ExtraChar(char32_t Key)
{
    TKSTreeNode* const Node = GetSelected();
    switch (Key) {
    case U'+':
        if (Node)
            Node->SetExpanded(true);
        return true;
    case U'-':
        if (Node)
            Node->SetExpanded(false);
        return true;
    case U'*':
        if (Node)
            Node->Expand(true);
        return true;
    default:
        if (Key <= U' ' || Key == 0x7F)
            return false;
        FindTyped(Key);
        return true;
    }
}

void TCustomKSTreeView::FindTyped(char32_t Key)
{
    FTypeAhead.Type(Key, vcl::Platform().Windows().Now());
    TKSTreeNode* const First = FItems->GetFirstNode();
    TKSTreeNode* const Start = GetSelected() ? GetSelected() : First;
    if (!Start)
        return;
    // A first character looks behind the selected node, a longer word may stay on it.
    TKSTreeNode* Node = Start;
    if (FTypeAhead.IsRepeat() && GetSelected())
        Node = Start->GetNextVisible();
    for (int Left = FItems->GetCount(); Left >= 0; --Left) {
        if (!Node)
            Node = First;
        if (treeview::BeginsWith(Node->GetText(), FTypeAhead.GetPrefix())) {
            if (Node != GetSelected())
                FocusAndSelect(Node);
            return;
        }
        Node = Node->GetNextVisible();
        if (Node == Start)
            return;
    }
}
