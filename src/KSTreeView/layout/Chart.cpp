#include "KSTreeView/layout/Chart.h"

#include <algorithm>
#include <utility>

namespace treeview
{

namespace
{

/// Coordinates stop here, so that sums of a few of them stay in range.
constexpr std::int64_t Limit = std::int64_t{1} << 29;

int Limited(std::int64_t Value)
{
    return static_cast<int>(std::clamp(Value, -Limit, Limit));
}

/// True when the layout goes on to the children.
bool IsOpen(const TKSTreeNode& Node)
{
    return Node.GetHasChildren() && Node.GetExpanded() && Node.GetFirstChild();
}

std::int64_t WidthOf(const TKSTreeNode& Node)
{
    return std::int64_t{Node.GetRightExtent()} - Node.GetLeftExtent();
}

/// Walks a subtree in the order of GetNext, passing over what Into says no to.
template <class TInto>
TKSTreeNode* NextBelow(TKSTreeNode* Node, const TKSTreeNode* Root, TInto&& Into)
{
    if (Node->GetFirstChild() && Into(*Node))
        return Node->GetFirstChild();
    while (Node != Root && !Node->GetNextSibling())
        Node = Node->GetParent();
    return Node == Root ? nullptr : Node->GetNextSibling();
}

int RowPitch(const TChartMetrics& Metrics)
{
    return Limited(std::int64_t{Metrics.NodeHeight} + Metrics.VertSpacing);
}

} // namespace

void TChart::ArrangeOne(TKSTreeNode& Node, const TChartMetrics& Metrics)
{
    Node.FXOffset = 0;
    if (!IsOpen(Node)) {
        Node.FLeftExtent = Limited(-std::int64_t{Metrics.NodeWidth} / 2);
        Node.FRightExtent = -Node.FLeftExtent;
        return;
    }
    std::int64_t Total = std::int64_t{Metrics.HorzSpacing} * (Node.GetCount() - 1);
    for (const TKSTreeNode* Child = Node.GetFirstChild(); Child; Child = Child->GetNextSibling())
        Total += WidthOf(*Child);
    std::int64_t X = -(Total / 2);
    for (TKSTreeNode* Child = Node.GetFirstChild(); Child; Child = Child->GetNextSibling()) {
        const std::int64_t Width = WidthOf(*Child);
        Child->FXOffset = Limited(Width / 2 + X);
        X += Width + Metrics.HorzSpacing;
    }
    const TKSTreeNode& First = *Node.GetFirstChild();
    const TKSTreeNode& Last = *Node.GetLastChild();
    Node.FLeftExtent = Limited(First.FXOffset - WidthOf(First) / 2);
    Node.FRightExtent = Limited(Last.FXOffset + WidthOf(Last) / 2);
}

void TChart::ArrangeSubtree(TKSTreeNode& Node, const TChartMetrics& Metrics)
{
    std::vector<TKSTreeNode*> Reached;
    for (TKSTreeNode* Next = &Node; Next; Next = NextBelow(Next, &Node, IsOpen)) {
        FMaxLevel = std::max(FMaxLevel, Next->GetLevel());
        Reached.push_back(Next);
    }
    // Children stand behind their parents, so backwards they come before them.
    std::for_each(Reached.rbegin(), Reached.rend(), [&](TKSTreeNode* Next) { ArrangeOne(*Next, Metrics); });
    Invalidate();
}

void TChart::Collect(const TKSTreeNodes& Nodes)
{
    FNodes.clear();
    FPlaced.clear();
    FHasStrays = false;
    const auto IsExpanded = [](const TKSTreeNode& Node) { return Node.GetExpanded(); };
    for (TKSTreeNode* Top = Nodes.GetFirstNode(); Top; Top = Top->GetNextSibling()) {
        // Levels above which no parent lacks the mark that lets the layout reach its children.
        int StrayLevel = INT32_MAX;
        for (TKSTreeNode* Node = Top; Node; Node = NextBelow(Node, Top, IsExpanded)) {
            if (Node->GetLevel() <= StrayLevel)
                StrayLevel = INT32_MAX;
            FNodes.push_back(Node);
            Node->FShownSerial = Nodes.GetShapeSerial();
            if (StrayLevel == INT32_MAX)
                FPlaced.push_back(Node);
            else
                FHasStrays = true;
            if (StrayLevel == INT32_MAX && Node->GetExpanded() && !Node->GetHasChildren())
                StrayLevel = Node->GetLevel();
        }
    }
}

void TChart::ArrangeTop()
{
    FMaxLevel = 0;
    for (auto Node = FPlaced.rbegin(); Node != FPlaced.rend(); ++Node) {
        FMaxLevel = std::max(FMaxLevel, (*Node)->GetLevel());
        ArrangeOne(**Node, FMetrics);
    }
}

void TChart::Arrange(const TKSTreeNodes& Nodes, const TChartMetrics& Metrics)
{
    if (FShapeSerial == Nodes.GetShapeSerial() && FMetrics == Metrics)
        return;
    FShapeSerial = Nodes.GetShapeSerial();
    FMetrics = Metrics;
    Collect(Nodes);
    ArrangeTop();
    FTotal = {};
    TKSTreeNode* const First = Nodes.GetFirstNode();
    if (First) {
        std::int64_t X = 0;
        TKSTreeNode* Last = First;
        for (TKSTreeNode* Node = First; Node; Node = Node->GetNextSibling()) {
            const std::int64_t Width = WidthOf(*Node);
            Node->FXOffset = Limited(Width / 2 + X);
            X += Width + Metrics.HorzSpacing;
            Last = Node;
        }
        const std::int64_t Left = First->FXOffset - WidthOf(*First) / 2;
        FTotal.Width = Limited(WidthOf(*Last) / 2 + Last->FXOffset - Left);
        FTotal.Height =
            Limited((std::int64_t{FMaxLevel} + 1) * RowPitch(Metrics) - std::int64_t{Metrics.VertSpacing});
    }
    BuildRows();
}

vcl::TPoint TChart::OriginFor(const TChartFrame& Frame) const
{
    const auto Along = [&](int Room, int Total, int Spacing, int Scroll) {
        if (NeededRoom(Total, Spacing) <= Room)
            return Limited((std::int64_t{Room} - Total) / 2);
        return Frame.IsPaper ? 0 : Limited(std::int64_t{Spacing} - Scroll);
    };
    return {Along(Frame.Width, FTotal.Width, FMetrics.HorzSpacing, Frame.ScrollX),
            Along(Frame.Height, FTotal.Height, FMetrics.VertSpacing, Frame.ScrollY)};
}

namespace
{

vcl::TRect BoxAt(std::int64_t Center, int Level, const TChartMetrics& Metrics, vcl::TPoint Origin)
{
    vcl::TRect Box;
    Box.Left = Limited(Center - Metrics.NodeWidth / 2);
    Box.Right = Limited(std::int64_t{Box.Left} + Metrics.NodeWidth);
    Box.Top = Limited(std::int64_t{RowPitch(Metrics)} * Level + Origin.Y);
    Box.Bottom = Limited(std::int64_t{Box.Top} + Metrics.NodeHeight);
    return Box;
}

} // namespace

void TChart::PlaceSubtree(TKSTreeNode& Node, const TChartMetrics& Metrics, vcl::TPoint Origin, int X)
{
    if (!Node.IsVisible())
        return;
    // The centre of the node that stands above the one at hand, followed down and up again.
    std::int64_t Above = X;
    TKSTreeNode* At = &Node;
    for (;;) {
        At->FRect = BoxAt(Above + At->FXOffset, At->GetLevel(), Metrics, Origin);
        if (IsOpen(*At)) {
            Above += At->FXOffset;
            At = At->GetFirstChild();
            continue;
        }
        while (At != &Node && !At->GetNextSibling()) {
            At = At->GetParent();
            Above -= At->FXOffset;
        }
        if (At == &Node)
            return;
        At = At->GetNextSibling();
    }
}

void TChart::Place(vcl::TPoint Origin)
{
    FOrigin = Origin;
    // Parents come before their children, so a parent's place is known when its children need it.
    std::vector<std::int64_t> Centers; // of the nodes above, by level
    for (TKSTreeNode* Node : FPlaced) {
        const auto Level = static_cast<std::size_t>(Node->GetLevel());
        if (Centers.size() <= Level)
            Centers.resize(Level + 1);
        Centers[Level] = (Level == 0 ? Origin.X : Centers[Level - 1]) + Node->FXOffset;
        Node->FRect = BoxAt(Centers[Level], Node->GetLevel(), FMetrics, Origin);
    }
    if (!FAreRowsChecked)
        CheckRows();
}

void TChart::Shift(const TKSTreeNodes& Nodes, int DeltaX, int DeltaY)
{
    if (FShapeSerial != Nodes.GetShapeSerial())
        return;
    FOrigin = {Limited(std::int64_t{FOrigin.X} + DeltaX), Limited(std::int64_t{FOrigin.Y} + DeltaY)};
    Place(FOrigin);
}

void TChart::BuildRows()
{
    FRows.assign(static_cast<std::size_t>(FMaxLevel) + 2, {});
    FRowItems.resize(FPlaced.size());
    if (FHasStrays)
        return; // everything is painted then
    for (const TKSTreeNode* Node : FNodes)
        ++FRows[static_cast<std::size_t>(Node->GetLevel()) + 1].First;
    for (std::size_t Level = 1; Level < FRows.size(); ++Level)
        FRows[Level].First += FRows[Level - 1].First;
    std::vector<std::size_t> Next(FRows.size());
    for (std::size_t Level = 0; Level < FRows.size(); ++Level)
        Next[Level] = FRows[Level].First;
    for (std::size_t Index = 0; Index < FNodes.size(); ++Index)
        FRowItems[Next[static_cast<std::size_t>(FNodes[Index]->GetLevel())]++] =
            static_cast<std::uint32_t>(Index);
    FAreRowsChecked = false;
}

namespace
{

/// The edges of a box and of all that hangs below it.
std::pair<int, int> SpanOf(const TKSTreeNode& Node)
{
    const int Center = Node.GetCenter();
    return {std::min(Node.GetRect().Left, Center + Node.GetLeftExtent()),
            std::max(Node.GetRect().Right, Center + Node.GetRightExtent())};
}

} // namespace

/// Odd halves that add up level by level, and spacings or widths below zero, may put neighbours into any
/// order.
void TChart::CheckRows()
{
    FAreRowsChecked = true;
    for (std::size_t Level = 0; Level + 1 < FRows.size(); ++Level) {
        bool IsSorted = true;
        for (std::size_t Item = FRows[Level].First + 1; IsSorted && Item < FRows[Level + 1].First; ++Item) {
            const auto [Left, Right] = SpanOf(*FNodes[FRowItems[Item - 1]]);
            const auto [NextLeft, NextRight] = SpanOf(*FNodes[FRowItems[Item]]);
            IsSorted = Left <= NextLeft && Right <= NextRight;
        }
        FRows[Level].IsSorted = IsSorted;
    }
}

void TChart::FindInRow(std::size_t Level, const vcl::TRect& Area, std::vector<std::uint32_t>& Found) const
{
    auto Item = FRowItems.begin() + static_cast<std::ptrdiff_t>(FRows[Level].First);
    const auto End = FRowItems.begin() + static_cast<std::ptrdiff_t>(FRows[Level + 1].First);
    const bool IsSorted = FRows[Level].IsSorted;
    if (IsSorted)
        Item = std::partition_point(
            Item, End, [&](std::uint32_t Index) { return SpanOf(*FNodes[Index]).second <= Area.Left; });
    for (; Item != End; ++Item) {
        const auto [Left, Right] = SpanOf(*FNodes[*Item]);
        if (Left < Area.Right && Right > Area.Left)
            Found.push_back(*Item);
        else if (IsSorted)
            break;
    }
}

void TChart::Find(const vcl::TRect& Area, int Margin, std::vector<TKSTreeNode*>& Found) const
{
    Found.clear();
    const int Pitch = RowPitch(FMetrics);
    if (FHasStrays || Pitch <= 0) {
        Found = FNodes;
        return;
    }
    if (FNodes.empty())
        return;
    const std::int64_t Around =
        std::int64_t{Margin} + FMetrics.ButtonSize + std::abs(FMetrics.VertSpacing) + 3;
    const vcl::TRect Wide{Limited(Area.Left - Around), Limited(Area.Top - Around),
                          Limited(Area.Right + Around), Limited(Area.Bottom + Around)};
    const std::int64_t FirstRow = (std::int64_t{Wide.Top} - FOrigin.Y) / Pitch - 1;
    const std::int64_t LastRow = (std::int64_t{Wide.Bottom} - FOrigin.Y) / Pitch + 1;
    std::vector<std::uint32_t> Indexes;
    // MaxLevel may be larger: a node's own layout raises it without making rows.
    const std::int64_t End = std::min(LastRow, static_cast<std::int64_t>(FRows.size()) - 2);
    for (std::int64_t Level = std::max<std::int64_t>(FirstRow, 0); Level <= End; ++Level)
        FindInRow(static_cast<std::size_t>(Level), Wide, Indexes);
    std::sort(Indexes.begin(), Indexes.end());
    for (const std::uint32_t Index : Indexes)
        Found.push_back(FNodes[Index]);
}

TChartHit HitTest(const TKSTreeNodes& Nodes, bool ShowButtons, vcl::TPoint Point)
{
    for (TKSTreeNode* Top = Nodes.GetFirstNode(); Top; Top = Top->GetNextSibling()) {
        const auto IsExpanded = [](const TKSTreeNode& Node) { return Node.GetExpanded(); };
        for (TKSTreeNode* Node = Top; Node; Node = NextBelow(Node, Top, IsExpanded)) {
            if (Node->GetHasChildren() && ShowButtons && Node->ButtonRect().Contains(Point))
                return {{TKSTVHitTest::htOnButton}, Node};
            if (Node->GetRect().Contains(Point))
                return {{TKSTVHitTest::htOnItem}, Node};
        }
    }
    return {};
}

TKSTreeNode* NodeAt(const TKSTreeNodes& Nodes, vcl::TPoint Point)
{
    for (TKSTreeNode* Node = Nodes.GetFirstNode(); Node; Node = Node->GetNext())
        if (Node->GetRect().Contains(Point))
            return Node;
    return nullptr;
}

} // namespace treeview
