#pragma once

#include "KSTreeView/model/TreeNodes.h"
#include "vcl/graphics/Canvas.h"

namespace vcl
{

class TCustomImageList;

} // namespace vcl

namespace treeview
{

/// How a view's nodes look; everything painting depends on besides the nodes and their places.
struct TTreeLook {
    vcl::TColor NodeColor = vcl::clYellow;
    vcl::TColor NodePenColor = vcl::clGray;
    vcl::TColor ButtonColor = vcl::clWhite;
    vcl::TColor SelectedNodeColor = vcl::clRed;
    vcl::TColor HiddenSelectedNodeColor = vcl::clBtnFace;
    vcl::TColor LineColor = vcl::clBlue;
    vcl::TPenStyle LineStyle = vcl::TPenStyle::psSolid;
    TKSTVNodeStyle NodeStyle = TKSTVNodeStyle::nsShadowed;
    TKSTVNodeImageSide NodeImageSide = TKSTVNodeImageSide::nisLeft;
    bool ShowButtons = true;
    bool ShowLines = true;
    /// Lines above the top-level nodes.
    bool ShowRoot = true;
    /// Captions read from right to left.
    bool RightToLeft = false;
    bool HideSelection = true;
};

/// What of the view's state shows on its nodes.
struct TTreeState {
    bool HasFocus = false;
    bool IsEnabled = true;
    /// Printing: a node that is being edited shows its text there.
    bool IsPaper = false;
    /// The node whose text the editor covers; null: none.
    const TKSTreeNode* Edited = nullptr;
    const vcl::TFont* Font = nullptr;
    /// Null: none.
    const vcl::TCustomImageList* Images = nullptr;
};

/// Draws the parts of nodes where the layout has put them. It changes nothing but the canvas's pen, brush and
/// font.
class TNodePainter
{
public:
    TNodePainter(vcl::TCanvas& Canvas, const TTreeLook& Look, const TChartMetrics& Metrics,
                 const TTreeState& State)
        : FCanvas(Canvas), FLook(Look), FMetrics(Metrics), FState(State)
    {
    }

    /// Box, shadow and text.
    void DrawBox(const TKSTreeNode& Node);
    void DrawImage(const TKSTreeNode& Node);
    void DrawButton(const TKSTreeNode& Node);
    /// The stub above the node, and what leads to its children.
    void DrawLines(const TKSTreeNode& Node);
    /// The line that joins the top-level nodes; Origin is the drawing's top left corner.
    void DrawRootLine(const TKSTreeNodes& Nodes, vcl::TPoint Origin);

private:
    void Line(int FromX, int FromY, int ToX, int ToY);
    void DrawShadow(const vcl::TRect& Box);
    void DrawCaption(const TKSTreeNode& Node);
    vcl::TColor FillOf(const TKSTreeNode& Node) const;
    void TakePen(vcl::TColor Color, vcl::TPenStyle Style);

    vcl::TCanvas& FCanvas;
    const TTreeLook& FLook;
    const TChartMetrics& FMetrics;
    const TTreeState& FState;
};

} // namespace treeview
