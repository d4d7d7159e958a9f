#pragma once

#include <cstdint>
#include <vector>

#include "KSTreeView/model/TreeNodes.h"

namespace treeview
{

/// The size of the area a chart is laid out in, how far it is scrolled, and whether it goes to paper.
struct TChartFrame {
    int Width = 0;
    int Height = 0;
    int ScrollX = 0;
    int ScrollY = 0;
    /// Paper: a chart that does not fit starts at the area's corner, without spacing.
    bool IsPaper = false;
};

/// The length a chart takes along an axis, with the spacing around it.
constexpr std::int64_t NeededRoom(int Total, int Spacing)
{
    return 2 * std::int64_t{Spacing} + Total;
}

/// What a point of the chart holds.
struct TChartHit {
    TKSTVHitTests Tests;
    TKSTreeNode* Node = nullptr;
};

/// The layout of a tree as a chart: a row a level, children centred below their parent. It writes the places
/// into the nodes and keeps the shown ones in rows, to find quickly what an area or a point touches.
///
///     Chart.Arrange(Nodes, Metrics);
///     Chart.Place(Chart.OriginFor(Frame));
///
/// Arrange does nothing when neither nodes nor metrics changed. All its work is proportional to the number of
/// visible nodes, whatever the depth; coordinates stop at 2^29.
class TChart
{
public:
    /// Lays out sideways and computes the size of the drawing.
    void Arrange(const TKSTreeNodes& Nodes, const TChartMetrics& Metrics);
    /// Gives the visible nodes their rectangles; hidden ones keep theirs. Only after Arrange.
    void Place(vcl::TPoint Origin);
    /// Moves the rectangles of the visible nodes along with the pixels, if no node has come or gone since.
    void Shift(const TKSTreeNodes& Nodes, int DeltaX, int DeltaY);
    /// The places must be computed anew, whatever the nodes say.
    void Invalidate() { FShapeSerial = 0; }

    int GetMaxLevel() const { return FMaxLevel; }
    /// Size of the drawing; 0 without nodes.
    vcl::TSize GetTotal() const { return FTotal; }
    vcl::TPoint GetOrigin() const { return FOrigin; }
    /// Where the drawing is to stand; rectangles follow with Place.
    void SetOrigin(vcl::TPoint Value) { FOrigin = Value; }
    /// Where the drawing stands: in the middle when it and the spacing around it fit, else scrolled.
    vcl::TPoint OriginFor(const TChartFrame& Frame) const;

    /// The visible nodes in the order of GetNextVisible.
    const std::vector<TKSTreeNode*>& GetShown() const { return FNodes; }
    /// Those whose box, button or lines may touch Area, in that order. Margin: how far images hang out of
    /// boxes.
    void Find(const vcl::TRect& Area, int Margin, std::vector<TKSTreeNode*>& Found) const;

    /// One node's subtree, sideways. MaxLevel grows to the deepest level met.
    void ArrangeSubtree(TKSTreeNode& Node, const TChartMetrics& Metrics);
    /// Rectangles of a visible node and of the shown ones below it; X is its parent's centre.
    static void PlaceSubtree(TKSTreeNode& Node, const TChartMetrics& Metrics, vcl::TPoint Origin, int X);

private:
    struct TRow {
        std::size_t First = 0;
        bool IsSorted = false; // from left to right, with all that hangs below
    };

    void Collect(const TKSTreeNodes& Nodes);
    void ArrangeTop();
    void BuildRows();
    void CheckRows();
    void FindInRow(std::size_t Level, const vcl::TRect& Area, std::vector<std::uint32_t>& Found) const;
    static void ArrangeOne(TKSTreeNode& Node, const TChartMetrics& Metrics);

    TChartMetrics FMetrics;
    std::uint64_t FShapeSerial = 0;
    std::vector<TKSTreeNode*> FNodes;
    std::vector<TKSTreeNode*> FPlaced;    // those the layout reaches, parents first
    std::vector<std::uint32_t> FRowItems; // indexes into FNodes, row by row
    std::vector<TRow> FRows;              // and one more for the end
    bool FHasStrays = false;              // visible nodes that the layout does not reach
    bool FAreRowsChecked = false;
    int FMaxLevel = 0;
    vcl::TSize FTotal;
    vcl::TPoint FOrigin;
};

/// What is at a point of the visible nodes, buttons of a node before its box, earlier nodes before later
/// ones.
TChartHit HitTest(const TKSTreeNodes& Nodes, bool ShowButtons, vcl::TPoint Point);
/// The first of all nodes, hidden ones included, whose rectangle holds the point; null when none does.
TKSTreeNode* NodeAt(const TKSTreeNodes& Nodes, vcl::TPoint Point);

} // namespace treeview
