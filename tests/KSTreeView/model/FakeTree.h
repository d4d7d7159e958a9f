#pragma once

#include <functional>
#include <string>
#include <utility>
#include <vector>

#include "KSTreeView/model/NodeSelection.h"
#include "KSTreeView/model/TreeNodes.h"

/// A view without a window system: nodes, a selection, and a log of what they asked of the view.
class TFakeTree final : public treeview::ITreeHost, public treeview::ISelectionEvents
{
public:
    TFakeTree() : FSelection(*this), FItems(vcl::New<TKSTreeNodes>(this)) {}
    ~TFakeTree() { delete FItems; }

    TKSTreeNodes& Items() { return *FItems; }
    TKSTreeNode* Selected() const { return FSelection.GetSelected(); }

    TCustomKSTreeView* View() override { return nullptr; }
    vcl::IWindow* NodesHandle() override { return nullptr; }
    TKSTreeNode* CreateNode() override { return vcl::New<TKSTreeNode>(FItems); }
    bool IsAnyAssigned(treeview::TTreeEvents Events) const override { return !(Events * Assigned).IsEmpty(); }
    const treeview::TChartMetrics& Metrics() const override { return Layout; }
    void ReportFailure(std::exception_ptr) override { Log.push_back("failure"); }

    void RefreshView() override
    {
        ++Refreshes;
        if (Coalescing > 0)
            ++Saved;
        else
            ShowRefresh();
    }
    void BeginCoalescing() override { ++Coalescing; }
    void EndCoalescing() override
    {
        if (--Coalescing == 0 && std::exchange(Saved, 0) > 0)
            ShowRefresh();
    }

    void NodeDeleting(TKSTreeNode* Node) override
    {
        if (!Quiet)
            Log.push_back("deleting " + Node->GetText());
        if (OnDeletion)
            OnDeletion(Node);
    }
    void ForgetNode(TKSTreeNode* Node) override
    {
        FSelection.Forget(Node);
        if (OnForget)
            OnForget(Node);
    }
    TKSTreeNode* SelectedNode() const override { return FSelection.GetSelected(); }
    TKSTreeNode* FocusedNode() const override { return FSelection.GetFocused(); }
    void SelectNode(TKSTreeNode* Node) override { FSelection.Select(Node); }
    void FocusNode(TKSTreeNode* Node) override { FSelection.Focus(Node); }
    void EditNode(TKSTreeNode* Node) override { Log.push_back("edit " + Node->GetText()); }
    void HideNodeEditor(bool Accept) override { Log.push_back(Accept ? "accept" : "discard"); }

    bool CanChange(TKSTreeNode* Node) override
    {
        Log.push_back("changing " + Node->GetText());
        return OnChanging ? OnChanging(Node) : true;
    }
    void Change(TKSTreeNode* Node) override
    {
        Log.push_back("change " + Node->GetText());
        if (OnChange)
            OnChange(Node);
    }
    void ScrollInView(TKSTreeNode* Node) override
    {
        if (Node)
            Log.push_back("scroll to " + Node->GetText());
    }

    bool CanExpand(TKSTreeNode* Node) override { return Ask("expanding ", Node); }
    void Expand(TKSTreeNode* Node) override { Tell("expanded ", Node); }
    bool CanCollapse(TKSTreeNode* Node) override { return Ask("collapsing ", Node); }
    void Collapse(TKSTreeNode* Node) override { Tell("collapsed ", Node); }
    void SetExpanding(bool Value) override { Expanding = Value; }

    void CalcSubTree(TKSTreeNode&) override {}
    void CalcNodeRects(TKSTreeNode&, int) override {}
    bool CanDraw() const override { return Drawable && Coalescing == 0; }
    void GetImageIndex(TKSTreeNode* Node) override
    {
        Log.push_back("image " + Node->GetText());
        if (OnGetImageIndex)
            OnGetImageIndex(Node);
    }
    bool IsOwnerDrawn() const override { return OwnerDrawn; }
    void DrawNodeByHandler(TKSTreeNode* Node) override { Log.push_back("owner " + Node->GetText()); }
    void DrawBox(const TKSTreeNode&) override { Parts += "box "; }
    void DrawImage(const TKSTreeNode&) override { Parts += "image "; }
    void DrawButton(const TKSTreeNode&) override { Parts += "button "; }
    void DrawLines(const TKSTreeNode&) override { Parts += "lines "; }

    /// Adds nodes from lines indented by blanks; all without drawing.
    void Fill(std::initializer_list<const char*> Lines)
    {
        FItems->BeginUpdate();
        std::vector<TKSTreeNode*> Last(1, nullptr);
        for (const std::string Line : Lines) {
            const std::size_t Level = Line.find_first_not_of(' ');
            Last.resize(Level + 1);
            Last.push_back(FItems->AddChild(Last[Level], Line.substr(Level)));
        }
        FItems->EndUpdate();
        Log.clear();
    }
    TKSTreeNode* Find(const std::string& Text) const
    {
        for (TKSTreeNode* Node = FItems->GetFirstNode(); Node; Node = Node->GetNext())
            if (Node->GetText() == Text)
                return Node;
        return nullptr;
    }
    /// All texts in order, each with its level in front.
    std::string Outline() const
    {
        std::string Result;
        for (TKSTreeNode* Node = FItems->GetFirstNode(); Node; Node = Node->GetNext())
            Result += (Result.empty() ? "" : " ") + std::to_string(Node->GetLevel()) + Node->GetText();
        return Result;
    }

    treeview::TChartMetrics Layout;
    treeview::TTreeEvents Assigned;
    bool Drawable = true;
    bool OwnerDrawn = false;
    bool Quiet = false;
    bool Expanding = false;
    int Coalescing = 0;
    int Saved = 0;
    int Refreshes = 0;
    std::string Parts;
    std::function<void()> OnRefresh;
    std::function<void(TKSTreeNode*)> OnForget;
    std::function<void(TKSTreeNode*)> OnDeletion;
    std::function<bool(TKSTreeNode*)> OnChanging;
    std::function<void(TKSTreeNode*)> OnChange;
    std::function<void(TKSTreeNode*)> OnGetImageIndex;
    std::function<bool(const std::string&, TKSTreeNode*)> OnAsk;
    std::function<void(const std::string&, TKSTreeNode*)> OnTell;
    std::vector<std::string> Log;

private:
    void ShowRefresh()
    {
        Log.push_back("refresh");
        if (OnRefresh)
            OnRefresh();
    }
    bool Ask(const std::string& What, TKSTreeNode* Node)
    {
        Log.push_back(What + Node->GetText());
        return OnAsk ? OnAsk(What, Node) : true;
    }
    void Tell(const std::string& What, TKSTreeNode* Node)
    {
        Log.push_back(What + Node->GetText());
        if (OnTell)
            OnTell(What, Node);
    }

    treeview::TNodeSelection FSelection;
    TKSTreeNodes* FItems; // reached while it empties itself
};
