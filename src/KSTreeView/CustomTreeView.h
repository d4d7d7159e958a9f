#pragma once

#include <memory>
#include <vector>

#include "KSTreeView/TreeScrollBar.h"
#include "KSTreeView/TreeViewEvents.h"
#include "KSTreeView/interaction/TypeAhead.h"
#include "KSTreeView/layout/Chart.h"
#include "KSTreeView/model/NodeSelection.h"
#include "KSTreeView/model/TreeNodes.h"
#include "KSTreeView/painting/NodePainter.h"
#include "vcl/controls/CustomControl.h"

class TKSTVEdit;

namespace vcl
{

class TChangeLink;
class TImageList;

} // namespace vcl

/// How a chart larger than the paper gets onto it.
enum class TKSTVPrintMode {
    pmScaled, // made smaller until it fits on one page
    pmPaged,  // cut into pages, row by row
};

/// A tree drawn as an organisation chart: each node a box, its children in a row below it.
///
///     auto* View = vcl::New<TKSTreeView>(Form);
///     View->SetParent(Form);
///     TKSTreeNode* Boss = View->GetItems()->Add(nullptr, "Director");
///     View->GetItems()->AddChild(Boss, "Assistant");
///     View->FullExpand();
///
/// It owns its nodes, its two scroll bars and, while a node is edited, the editor. Handlers of its events may
/// delete nodes, clear the tree or free the view. Each property repaints the view at once when it changes.
class TCustomKSTreeView : public vcl::TCustomControl
{
    VCL_CLASS
public:
    explicit TCustomKSTreeView(vcl::TComponent* Owner);
    ~TCustomKSTreeView() override;

    // Properties
    bool GetShowButtons() const { return FLook.ShowButtons; }
    void SetShowButtons(bool Value) { Change(FLook.ShowButtons, Value); }
    vcl::TBorderStyle GetBorderStyle() const { return FBorderStyle; }
    void SetBorderStyle(vcl::TBorderStyle Value);
    bool GetShowLines() const { return FLook.ShowLines; }
    void SetShowLines(bool Value) { Change(FLook.ShowLines, Value); }
    bool GetShowRoot() const { return FLook.ShowRoot; }
    void SetShowRoot(bool Value) { Change(FLook.ShowRoot, Value); }
    /// Pixels of every box. With an odd width a lone box is one pixel wider than its place.
    int GetNodeWidth() const { return FMetrics.NodeWidth; }
    void SetNodeWidth(int Value) { Change(FMetrics.NodeWidth, Value); }
    int GetNodeHeight() const { return FMetrics.NodeHeight; }
    void SetNodeHeight(int Value) { Change(FMetrics.NodeHeight, Value); }
    /// Fill of nodes that have no colour of their own.
    vcl::TColor GetNodeColor() const { return FLook.NodeColor; }
    void SetNodeColor(vcl::TColor Value) { Change(FLook.NodeColor, Value); }
    vcl::TColor GetNodePenColor() const { return FLook.NodePenColor; }
    void SetNodePenColor(vcl::TColor Value) { Change(FLook.NodePenColor, Value); }
    TKSTVNodeImageSide GetNodeImageSide() const { return FLook.NodeImageSide; }
    void SetNodeImageSide(TKSTVNodeImageSide Value) { Change(FLook.NodeImageSide, Value); }
    TKSTVNodeStyle GetNodeStyle() const { return FLook.NodeStyle; }
    void SetNodeStyle(TKSTVNodeStyle Value) { Change(FLook.NodeStyle, Value); }
    /// Half the side of the expand buttons, 2..20; clamped.
    int GetButtonSize() const { return FMetrics.ButtonSize; }
    void SetButtonSize(int Value);
    vcl::TColor GetButtonColor() const { return FLook.ButtonColor; }
    void SetButtonColor(vcl::TColor Value) { Change(FLook.ButtonColor, Value); }
    vcl::TColor GetSelectedNodeColor() const { return FLook.SelectedNodeColor; }
    void SetSelectedNodeColor(vcl::TColor Value) { Change(FLook.SelectedNodeColor, Value); }
    /// Fill of the selected node without the focus, unless HideSelection.
    vcl::TColor GetHiddenSelectedNodeColor() const { return FLook.HiddenSelectedNodeColor; }
    void SetHiddenSelectedNodeColor(vcl::TColor Value) { Change(FLook.HiddenSelectedNodeColor, Value); }
    vcl::TPenStyle GetLineStyle() const { return FLook.LineStyle; }
    void SetLineStyle(vcl::TPenStyle Value) { Change(FLook.LineStyle, Value); }
    vcl::TColor GetLineColor() const { return FLook.LineColor; }
    void SetLineColor(vcl::TColor Value) { Change(FLook.LineColor, Value); }
    int GetVertSpacing() const { return FMetrics.VertSpacing; }
    void SetVertSpacing(int Value) { Change(FMetrics.VertSpacing, Value); }
    int GetHorzSpacing() const { return FMetrics.HorzSpacing; }
    void SetHorzSpacing(int Value) { Change(FMetrics.HorzSpacing, Value); }
    bool GetRightToLeft() const { return FLook.RightToLeft; }
    void SetRightToLeft(bool Value) { Change(FLook.RightToLeft, Value); }
    /// False: OnDrawNode draws in the place of box, image and text.
    bool GetDefaultDrawing() const { return FDefaultDrawing; }
    void SetDefaultDrawing(bool Value) { Change(FDefaultDrawing, Value); }
    /// No clicking, no key starts editing.
    bool GetReadOnly() const { return FReadOnly; }
    void SetReadOnly(bool Value) { Change(FReadOnly, Value); }
    bool GetHideSelection() const { return FLook.HideSelection; }
    void SetHideSelection(bool Value) { Change(FLook.HideSelection, Value); }
    TKSTreeNodes* GetItems() const { return FItems; }
    void SetItems(const TKSTreeNodes* Value) { FItems->Assign(Value); }
    /// Not owned. Its changes repaint the view.
    vcl::TImageList* GetImages() const { return FImages; }
    void SetImages(vcl::TImageList* Value);
    TKSTVScrollBar* GetHorzScrollBar() const { return FHorzScrollBar.get(); }
    TKSTVScrollBar* GetVertScrollBar() const { return FVertScrollBar.get(); }

    // Selection and focus
    TKSTreeNode* GetSelected() const { return FSelection.GetSelected(); }
    void SetSelected(TKSTreeNode* Value) { SelectNode(Value); }
    TKSTreeNode* GetFocusedNode() const { return FSelection.GetFocused(); }
    /// Asks OnChanging with the node selected so far, tells OnChange with the new one, and scrolls to it.
    /// Null deselects, without OnChange. EKSTreeViewError for a node that stands in no chart or in another
    /// one; so with FocusNode and EditNode.
    void SelectNode(TKSTreeNode* Node);
    void FocusNode(TKSTreeNode* Node);
    void FullExpand();
    void FullCollapse();
    /// Scrolls so that the node's box and the spacing around it are seen.
    void ScrollInView(TKSTreeNode* Node);

    // Editing in place
    bool IsEditing() const { return FEditor != nullptr; }
    TKSTVEdit* GetEditor() const { return FEditor; }
    TKSTreeNode* GetEditingNode() const { return FSelection.GetEdited(); }
    /// A click has started the wait before editing.
    bool IsEditPending() const { return FEditPending; }
    /// A node is expanding or collapsing; true inside its events.
    bool IsExpanding() const { return FExpanding; }
    /// Opens the editor over the node unless OnEditing objects; accepts what another one holds.
    void EditNode(TKSTreeNode* Node);
    /// Closes the editor. Accept: OnEdited, then the text goes to the node.
    void HideNodeEditor(bool Accept);

    // Files: the text form, a line a node
    void LoadFromFile(const vcl::AnsiString& FileName);
    /// EKSTreeViewError when a line is two or more levels deeper than the one before; nodes read so far stay.
    void LoadFromStream(vcl::TStream& Stream);
    void SaveToFile(const vcl::AnsiString& FileName);
    void SaveToStream(vcl::TStream& Stream);

    // Layout, as of the last painting
    /// Where the drawing stands in the client area, and its size; pixels.
    int GetXOrigin() const { return FChart.GetOrigin().X; }
    int GetYOrigin() const { return FChart.GetOrigin().Y; }
    int GetTotalWidth() const { return FChart.GetTotal().Width; }
    int GetTotalHeight() const { return FChart.GetTotal().Height; }
    /// The deepest level that is shown.
    int GetMaxLevel() const { return FChart.GetMaxLevel(); }
    /// Lays out sideways, sets the scroll bars' ranges and finds the drawing's place. Painting does it too.
    void CalcSubTreesPos();
    /// Gives the visible nodes their rectangles.
    void CalcDisplayRect();
    void UpdateScrollBars();

    // What is where. Client coordinates.
    /// The first node whose rectangle holds the point, hidden nodes included: these keep the rectangle they
    /// had when they were last seen.
    TKSTreeNode* GetNodeAt(int X, int Y) const { return treeview::NodeAt(*FItems, {X, Y}); }
    /// htOnButton, htOnItem, or nothing.
    TKSTVHitTests GetHitTestInfoAt(int X, int Y) const { return HitTest({X, Y}).Tests; }
    /// The same with the visible node that is there; null for nothing.
    TKSTVHitTests InternalGetHitTestInfoAt(int X, int Y, TKSTreeNode*& Node) const;

    // Printing
    /// Draws the chart into Area of any canvas: in the middle when it and its spacing fit, else as Mode says.
    /// Page counts from 0, across and then down; one that is not there draws nothing. Returns the number of
    /// pages.
    int PrintTo(vcl::TCanvas* Canvas, const vcl::TRect& Area, TKSTVPrintMode Mode = TKSTVPrintMode::pmScaled,
                int Page = 0);
    int GetPrintPageCount(vcl::TSize Area);
    bool IsPrinting() const { return FPrinting; }
    /// The canvas nodes are drawn on now: the paper's while printing.
    vcl::TCanvas* GetCanvas() { return FPrintCanvas ? FPrintCanvas : TCustomControl::GetCanvas(); }

    // Events
    TKSTVDrawNodeEvent OnDrawNode;
    TKSTVNodeNotifyEvent OnGetImageIndex;
    TKSTVNodeNotifyEvent OnDeletion;
    TKSTVExpandingEvent OnExpanding;
    TKSTVNodeNotifyEvent OnExpanded;
    TKSTVCollapsingEvent OnCollapsing;
    TKSTVNodeNotifyEvent OnCollapsed;
    TKSTVChangingEvent OnChanging;
    TKSTVNodeNotifyEvent OnChange;
    TKSTVEditingEvent OnEditing;
    TKSTVEditedEvent OnEdited;

    /// The arrow keys walk the chart and never reach OnKeyDown; further keys act when OnKeyDown left them.
    void KeyDown(std::uint16_t& Key, vcl::TShiftState Shift) override;
    void DragDrop(vcl::TObject* Source, int X, int Y) override;
    void WndProc(vcl::TMessage& Message) override;
    void Dispatch(vcl::TMessage& Message) override;
    void BeforeDestruction() override;

protected:
    // What descendants may replace
    virtual TKSTreeNode* CreateNode();
    virtual bool CanChange(TKSTreeNode* Node);
    virtual void Change(TKSTreeNode* Node) { OnChange(this, Node); }
    virtual bool CanExpand(TKSTreeNode* Node);
    virtual void Expand(TKSTreeNode* Node) { OnExpanded(this, Node); }
    virtual bool CanCollapse(TKSTreeNode* Node);
    virtual void Collapse(TKSTreeNode* Node) { OnCollapsed(this, Node); }
    virtual bool CanEdit(TKSTreeNode* Node);
    void GetImageIndex(TKSTreeNode* Node) { OnGetImageIndex(this, Node); }

    void Paint() override;
    void InternalDrawRootLine();
    treeview::TChartHit HitTest(vcl::TPoint Point) const;

    void CreateParams(vcl::TCreateParams& Params) override;
    void LoseHandle() override;
    void Notification(vcl::TComponent* Component, vcl::TOperation Operation) override;

    void KeyPress(char32_t& Key) override;
    void BeginAutoDrag() override;
    void DoStartDrag(vcl::TDragObject*& DragObject) override;
    /// Near the edges of the view the chart scrolls meanwhile.
    void DragOver(vcl::TObject* Source, int X, int Y, vcl::TDragState State, bool& Accept) override;
    void MouseMove(vcl::TShiftState Shift, int X, int Y) override;
    void MouseUp(vcl::TMouseButton Button, vcl::TShiftState Shift, int X, int Y) override;
    bool DoMouseWheel(vcl::TShiftState Shift, int WheelDelta, vcl::TPoint MousePos) override;
    void WMSize(vcl::TMessage& Message) override;
    void WMTimer(vcl::TMessage& Message) override;
    void WMHScroll(vcl::TMessage& Message) override;
    void WMVScroll(vcl::TMessage& Message) override;
    void WMSetFocus(vcl::TMessage& Message) override;
    void WMKillFocus(vcl::TMessage& Message) override;
    void WMGetDlgCode(vcl::TMessage& Message) override;
    void WMCancelMode(vcl::TMessage& Message) override;
    virtual void WMLButtonDown(vcl::TMessage& Message);
    virtual void WMLButtonDblClk(vcl::TMessage& Message);

private:
    friend class TKSTVEdit;
    friend class TKSTVScrollBar;
    class THost;
    class THandling;
    class TPrinting;
    static constexpr std::uint64_t EditTimer = 1;
    static constexpr std::uint64_t DragScrollTimer = 2;
    /// The editor has lost the focus: see whether it stays so.
    static constexpr unsigned WM_EDITORLEFT = vcl::WM_USER + 1;

    template <class T>
    void Change(T& Field, T Value)
    {
        if (Field == Value)
            return;
        Field = Value;
        Refresh();
    }

    void RefreshNodes();
    treeview::TTreeState State() const;
    template <class TAction>
    void DrawPart(TAction&& Action);
    void DrawAllNodes();
    void DrawTouchedNodes();
    bool WantsEveryNode() const;
    int ImageMargin() const;
    void PrintOn(vcl::TCanvas& Canvas, vcl::TSize Paper, vcl::TPoint Corner);
    vcl::TSize PagesFor(vcl::TSize Page);
    int PrintScaled(vcl::TCanvas& Canvas, const vcl::TRect& Area);
    void PrintSmaller(vcl::TCanvas& Canvas, const vcl::TRect& Area, double Factor);
    int PrintPages(vcl::TCanvas& Canvas, const vcl::TRect& Area, int Page);

    void Walk(std::uint16_t Key);
    bool ExtraKey(std::uint16_t Key);
    bool ExtraChar(char32_t Key);
    void FindTyped(char32_t Key);
    void FocusAndSelect(TKSTreeNode* Node);
    void StartEditTimer();
    void StopEditTimer();
    void TakeFocusFromEditor();
    void EndEditing();
    void WMEditorLeft();
    void FlushRefresh();
    void CheckOwn(const TKSTreeNode* Node) const;
    void StartPanning(vcl::TPoint Point);
    void SetDragScroll(vcl::TPoint Directions);
    void DragScrollTick();
    void EditTimerTick();
    void TakeEditedText();
    /// The editor's window lost the focus: it closes unless it gets it back at once.
    void EditorLostFocus();
    bool ScrollByWheel(TKSTVScrollBar& Bar, int WheelDelta);
    void WMMouseHWheel(vcl::TMessage& Message);
    /// Pixels and nodes move.
    void ContentsMoved(int DeltaX, int DeltaY);
    void RedrawSelected();

    std::unique_ptr<THost> FHost;
    TKSTreeNodes* FItems;
    treeview::TNodeSelection FSelection;
    treeview::TChart FChart;
    treeview::TChartMetrics FMetrics;
    treeview::TTreeLook FLook;
    std::unique_ptr<TKSTVScrollBar> FHorzScrollBar;
    std::unique_ptr<TKSTVScrollBar> FVertScrollBar;
    std::unique_ptr<vcl::TChangeLink> FImagesLink;
    vcl::TImageList* FImages = nullptr;
    TKSTVEdit* FEditor = nullptr;
    vcl::TCanvas* FPrintCanvas = nullptr;
    vcl::TSize FPaper;
    std::vector<TKSTreeNode*> FTouched;
    treeview::TTypeAhead FTypeAhead;
    vcl::TPoint FPanStart;
    vcl::TPoint FPanPosition;
    vcl::TPoint FDragScroll; // directions, -1 to 1
    std::int64_t FWheelRest = 0;
    vcl::TScrollBarKind FWheelBar = vcl::TScrollBarKind::sbVertical;
    vcl::TMessage* FMessage = nullptr; // being handled
    int FCoalescing = 0;
    vcl::TBorderStyle FBorderStyle = vcl::TBorderStyle::bsSingle;
    bool FDefaultDrawing = true;
    bool FReadOnly = false;
    bool FRefreshDue = false;
    bool FEditPending = false;
    bool FEditTimerRuns = false;
    bool FFocusClick = false;
    bool FExpanding = false;
    bool FScrollUpdating = false;
    bool FClosingEditor = false;
    bool FPanning = false;
    bool FPrinting = false;
    bool FPaperIsNext = false;      // Paint is called for the paper
    bool FPaintsAfterPrint = false; // the window's painting was put off
};
