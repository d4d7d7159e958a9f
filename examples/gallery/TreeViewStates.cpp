#include "KSTreeView/KSTreeView.h"
#include "gallery/States.h"

namespace gallery
{

namespace
{

TKSTreeView& ViewOf(TScene& Scene)
{
    return static_cast<TKSTreeView&>(Scene.Control);
}

void FillCompany(TKSTreeView& View)
{
    TKSTreeNodes* const Nodes = View.GetItems();
    Nodes->BeginUpdate();
    TKSTreeNode* const Head = Nodes->Add(nullptr, "Director");
    TKSTreeNode* const Books = Nodes->AddChild(Head, "Books");
    Nodes->AddChild(Books, "Editing");
    Nodes->AddChild(Books, "Layout");
    TKSTreeNode* const Maps = Nodes->AddChild(Head, "Maps");
    Nodes->AddChild(Maps, "Survey");
    TKSTreeNode* const Sales = Nodes->AddChild(Head, "Sales");
    Nodes->AddChild(Sales, "Shops");
    Nodes->AddChild(Sales, "Fairs");
    for (int Index = 0; Index < Nodes->GetCount(); ++Index)
        Nodes->GetItem(Index)->SetImageIndex(Index % 2);
    Maps->SetUseTreeColor(false);
    Maps->SetColor(vcl::TColor(0xD0F0D0));
    View.SetNodeWidth(80);
    Nodes->EndUpdate();
    View.FullExpand();
}

void Empty(TScene&)
{
    // A new view has no nodes.
}

void OneNode(TScene& Scene)
{
    ViewOf(Scene).GetItems()->Add(nullptr, "Alone");
}

void Deep(TScene& Scene)
{
    TKSTreeView& View = ViewOf(Scene);
    TKSTreeNode* Node = nullptr;
    for (int Level = 1; Level <= 14; ++Level)
        Node = View.GetItems()->AddChild(Node, "Level " + std::to_string(Level));
    View.FullExpand();
}

void Wide(TScene& Scene)
{
    TKSTreeView& View = ViewOf(Scene);
    TKSTreeNode* const Head = View.GetItems()->Add(nullptr, "Head");
    for (int Index = 1; Index <= 24; ++Index)
        View.GetItems()->AddChild(Head, "Branch " + std::to_string(Index));
    View.FullExpand();
}

void BringHeadIntoView(TScene& Scene)
{
    ViewOf(Scene).ScrollInView(ViewOf(Scene).GetItems()->GetItem(0));
}

void Simple(TScene& Scene)
{
    FillCompany(ViewOf(Scene));
    ViewOf(Scene).SetNodeStyle(TKSTVNodeStyle::nsSimple);
}

void Shadowed(TScene& Scene)
{
    FillCompany(ViewOf(Scene));
    ViewOf(Scene).SetNodeStyle(TKSTVNodeStyle::nsShadowed);
}

void Collapsed(TScene& Scene)
{
    FillCompany(ViewOf(Scene));
    ViewOf(Scene).GetItems()->GetItem(1)->Collapse(false);
}

void ImagesLeft(TScene& Scene)
{
    FillCompany(ViewOf(Scene));
    ViewOf(Scene).SetImages(&Scene.Images);
    ViewOf(Scene).SetNodeImageSide(TKSTVNodeImageSide::nisLeft);
}

void ImagesRight(TScene& Scene)
{
    ImagesLeft(Scene);
    ViewOf(Scene).SetNodeImageSide(TKSTVNodeImageSide::nisRight);
}

void ButtonsOff(TScene& Scene)
{
    FillCompany(ViewOf(Scene));
    ViewOf(Scene).SetShowButtons(false);
}

void LinesOff(TScene& Scene)
{
    FillCompany(ViewOf(Scene));
    ViewOf(Scene).SetShowLines(false);
}

void RightToLeft(TScene& Scene)
{
    FillCompany(ViewOf(Scene));
    ViewOf(Scene).SetRightToLeft(true);
}

void Selected(TScene& Scene)
{
    FillCompany(ViewOf(Scene));
    ViewOf(Scene).SetHideSelection(false);
    ViewOf(Scene).SelectNode(ViewOf(Scene).GetItems()->GetItem(2));
}

void TakeFocus(TScene& Scene)
{
    if (Scene.Control.CanFocus())
        Scene.Control.SetFocus();
    ViewOf(Scene).FocusNode(ViewOf(Scene).GetSelected());
}

/// Colours that are right on a dark desktop too; the default yellow needs dark text.
void SystemColours(TScene& Scene)
{
    Selected(Scene);
    TKSTreeView& View = ViewOf(Scene);
    View.SetNodeColor(vcl::clBtnFace);
    View.SetNodePenColor(vcl::clBtnShadow);
    View.SetButtonColor(vcl::clWindow);
    View.SetLineColor(vcl::clBtnShadow);
    View.SetSelectedNodeColor(vcl::clHighlight);
    View.SetNodeStyle(TKSTVNodeStyle::nsSimple);
    for (TKSTreeNode* Node = View.GetItems()->GetFirstNode(); Node; Node = Node->GetNext())
        Node->SetUseTreeColor(true);
}

void Edit(TScene& Scene)
{
    TakeFocus(Scene);
    ViewOf(Scene).EditNode(ViewOf(Scene).GetSelected());
}

} // namespace

std::vector<TState> TreeViewStates()
{
    constexpr const char* Page = "TKSTreeView";
    return {
        {Page, "empty", &Empty},
        {Page, "one-node", &OneNode},
        {Page, "deep", &Deep},
        {Page, "wide", &Wide, &BringHeadIntoView},
        {Page, "simple", &Simple},
        {Page, "shadowed", &Shadowed},
        {Page, "collapsed", &Collapsed},
        {Page, "images-left", &ImagesLeft},
        {Page, "images-right", &ImagesRight},
        {Page, "buttons-off", &ButtonsOff},
        {Page, "lines-off", &LinesOff},
        {Page, "right-to-left", &RightToLeft},
        {Page, "selected", &Selected},
        {Page, "selected-with-focus", &Selected, &TakeFocus},
        {Page, "system-colours", &SystemColours, &TakeFocus},
        {Page, "editing", &Selected, &Edit},
    };
}

} // namespace gallery
