// Painting: a layout phase that moves the scroll bars' ranges, then the drawing.

#include <algorithm>
#include <utility>

#include "KSTreeView/CustomTreeView.h"
#include "KSTreeView/TreeEdit.h"
#include "KSTreeView/TreeViewHost.h"
#include "KSTreeView/painting/ScaledPainter.h"
#include "vcl/graphics/ImageList.h"

using vcl::TAliveGuard;

void TCustomKSTreeView::CalcSubTreesPos()
{
    FChart.Arrange(*FItems, FMetrics);
    if (FPrinting) {
        FChart.SetOrigin(FChart.OriginFor({FPaper.Width, FPaper.Height, 0, 0, true}));
        return;
    }
    const TAliveGuard Guard(*this);
    const vcl::TSize Total = FChart.GetTotal();
    FHorzScrollBar->SetRange(vcl::SaturateToInt(treeview::NeededRoom(Total.Width, FMetrics.HorzSpacing)));
    if (!Guard.IsAlive())
        return;
    FVertScrollBar->SetRange(vcl::SaturateToInt(treeview::NeededRoom(Total.Height, FMetrics.VertSpacing)));
    if (!Guard.IsAlive())
        return;
    FChart.SetOrigin(FChart.OriginFor({GetClientWidth(), GetClientHeight(), FHorzScrollBar->GetPosition(),
                                       FVertScrollBar->GetPosition(), false}));
}

void TCustomKSTreeView::CalcDisplayRect()
{
    FChart.Arrange(*FItems, FMetrics);
    FChart.Place(FChart.GetOrigin());
}

treeview::TTreeState TCustomKSTreeView::State() const
{
    treeview::TTreeState Now;
    // Paper shows no focus and no editor.
    Now.HasFocus = !FPrinting && Focused();
    Now.IsPaper = FPrinting;
    Now.IsEnabled = GetEnabled();
    Now.Edited = FPrinting ? nullptr : GetEditingNode();
    Now.Font = GetFont();
    Now.Images = FImages;
    return Now;
}

bool TCustomKSTreeView::WantsEveryNode() const
{
    return OnGetImageIndex || (OnDrawNode && !FDefaultDrawing) || FItems->HasCustomNodes();
}

int TCustomKSTreeView::ImageMargin() const
{
    return FImages ? std::max(FImages->GetWidth(), FImages->GetHeight()) : 0;
}

void TCustomKSTreeView::Paint()
{
    if (FPrinting && !std::exchange(FPaperIsNext, false)) {
        // The places are the paper's now.
        FPaintsAfterPrint = true;
        return;
    }
    const TAliveGuard Guard(*this);
    CalcSubTreesPos();
    if (!Guard.IsAlive())
        return;
    CalcDisplayRect();
    if (WantsEveryNode())
        DrawAllNodes();
    else
        DrawTouchedNodes();
    if (Guard.IsAlive())
        InternalDrawRootLine();
    if (Guard.IsAlive() && FEditor && !FPrinting)
        FEditor->Changed(); // stays over its node
}

void TCustomKSTreeView::DrawAllNodes()
{
    // Handlers may change the tree under our feet: then the walk goes on from the node at hand.
    const TAliveGuard Guard(*this);
    const std::uint64_t Shape = FItems->GetShapeSerial();
    std::size_t Next = 0;
    const auto Following = [&](const TKSTreeNode& Node) {
        const std::vector<TKSTreeNode*>& Shown = FChart.GetShown();
        if (FItems->GetShapeSerial() != Shape)
            return Node.GetNextVisible();
        return Next < Shown.size() ? Shown[Next] : nullptr;
    };
    treeview::TNodeRef Node(FItems->GetFirstNode());
    treeview::TNodeRef After(nullptr);
    while (Node) {
        ++Next;
        After.Reset(Following(*Node.Get()));
        Node->Draw();
        if (!Guard.IsAlive())
            return;
        // What a handler has put behind the node is drawn too; when it took the node away, what followed is.
        Node.Reset(Node ? Following(*Node.Get()) : After.Get());
    }
}

void TCustomKSTreeView::DrawTouchedNodes()
{
    // No handler hears of this: nothing can change meanwhile.
    FChart.Find(GetCanvas()->GetClipRect(), ImageMargin(), FTouched);
    for (TKSTreeNode* Node : FTouched)
        Node->Draw();
}

/// The view draws on paper: places are the paper's until the end of the block.
class TCustomKSTreeView::TPrinting
{
public:
    TPrinting(TCustomKSTreeView& View, vcl::TCanvas* Canvas, vcl::TSize Paper) : FView(View), FGuard(View)
    {
        FOrigin = View.FChart.GetOrigin();
        FWasPrinting = View.FPrinting;
        FCanvas = View.FPrintCanvas;
        FPaper = View.FPaper;
        View.FPrinting = true;
        View.FPaperIsNext = true;
        View.FPrintCanvas = Canvas;
        View.FPaper = Paper;
    }
    ~TPrinting()
    {
        if (!FGuard.IsAlive())
            return;
        FView.FPrinting = FWasPrinting;
        FView.FPaperIsNext = false;
        FView.FPrintCanvas = FCanvas;
        FView.FPaper = FPaper;
        FView.FChart.Arrange(*FView.FItems, FView.FMetrics);
        FView.FChart.Place(FOrigin);
        if (!FWasPrinting && std::exchange(FView.FPaintsAfterPrint, false))
            FView.Invalidate();
    }
    TPrinting(const TPrinting&) = delete;
    TPrinting& operator=(const TPrinting&) = delete;

private:
    TCustomKSTreeView& FView;
    TAliveGuard FGuard;
    vcl::TPoint FOrigin;
    vcl::TSize FPaper;
    vcl::TCanvas* FCanvas;
    bool FWasPrinting;
};

void TCustomKSTreeView::PrintOn(vcl::TCanvas& Canvas, vcl::TSize Paper, vcl::TPoint Corner)
{
    const vcl::TCanvasStateGuard Saved(Canvas);
    const TPrinting Printing(*this, &Canvas, Paper);
    const vcl::TPoint Origin = Canvas.GetOrigin();
    Canvas.SetOrigin({Origin.X + Corner.X, Origin.Y + Corner.Y});
    Paint();
}

int TCustomKSTreeView::GetPrintPageCount(vcl::TSize Area)
{
    if (Area.Width <= 0 || Area.Height <= 0)
        return 0;
    const vcl::TSize Pages = PagesFor(Area);
    return vcl::SaturateToInt(std::int64_t{Pages.Width} * Pages.Height);
}

/// How many pages of a size stand side by side and below each other.
vcl::TSize TCustomKSTreeView::PagesFor(vcl::TSize Page)
{
    FChart.Arrange(*FItems, FMetrics);
    const auto Along = [](int Total, int Spacing, int Room) {
        if (treeview::NeededRoom(Total, Spacing) <= Room)
            return 1;
        return static_cast<int>(std::max<std::int64_t>(1, (std::int64_t{Total} + Room - 1) / Room));
    };
    const vcl::TSize Total = FChart.GetTotal();
    return {Along(Total.Width, FMetrics.HorzSpacing, Page.Width),
            Along(Total.Height, FMetrics.VertSpacing, Page.Height)};
}

int TCustomKSTreeView::PrintScaled(vcl::TCanvas& Canvas, const vcl::TRect& Area)
{
    FChart.Arrange(*FItems, FMetrics);
    const vcl::TSize Total = FChart.GetTotal();
    const auto FactorAlong = [](int Room, std::int64_t Needed) {
        return Needed <= Room ? 1.0 : static_cast<double>(Room) / static_cast<double>(Needed);
    };
    const double Factor =
        std::min(FactorAlong(Area.Width(), treeview::NeededRoom(Total.Width, FMetrics.HorzSpacing)),
                 FactorAlong(Area.Height(), treeview::NeededRoom(Total.Height, FMetrics.VertSpacing)));
    const vcl::TCanvasStateGuard Saved(Canvas);
    Canvas.IntersectClipRect(Area);
    if (Factor >= 1.0) {
        PrintOn(Canvas, {Area.Width(), Area.Height()}, {Area.Left, Area.Top});
        return 1;
    }
    PrintSmaller(Canvas, Area, Factor);
    return 1;
}

namespace
{

/// Gives the painter of a canvas, which somebody else draws with, the canvas's clip back.
class TClipRestorer
{
public:
    explicit TClipRestorer(vcl::TCanvas& Canvas) : FCanvas(Canvas) {}
    ~TClipRestorer() { FCanvas.SetPainter(FCanvas.GetPainter()); }
    TClipRestorer(const TClipRestorer&) = delete;
    TClipRestorer& operator=(const TClipRestorer&) = delete;

private:
    vcl::TCanvas& FCanvas;
};

} // namespace

void TCustomKSTreeView::PrintSmaller(vcl::TCanvas& Canvas, const vcl::TRect& Area, double Factor)
{
    const vcl::TRect Clip = Canvas.GetClipRect(); // attaches a canvas that has not drawn yet
    const vcl::TPoint Origin = Canvas.GetOrigin();
    const vcl::TRect Allowed =
        vcl::Bounds(Clip.Left + Origin.X, Clip.Top + Origin.Y, Clip.Width(), Clip.Height());
    const TClipRestorer Restorer(Canvas);
    treeview::TScaledPainter Painter(*Canvas.GetPainter(), Factor,
                                     {Origin.X + Area.Left, Origin.Y + Area.Top}, Allowed);
    vcl::TCanvas Scaled(&Painter);
    // Rounded up, so that what just fits is centred and not taken for too large.
    const auto Unscaled = [Factor](int Length) {
        return static_cast<int>(std::min(Length / Factor, double{INT32_MAX / 2})) + 1;
    };
    const vcl::TSize Size{Unscaled(Area.Width()), Unscaled(Area.Height())};
    Scaled.IntersectClipRect({0, 0, Size.Width, Size.Height});
    PrintOn(Scaled, Size, {});
}

int TCustomKSTreeView::PrintPages(vcl::TCanvas& Canvas, const vcl::TRect& Area, int Page)
{
    const vcl::TSize Paper{Area.Width(), Area.Height()};
    const int Count = GetPrintPageCount(Paper);
    if (Page < 0 || Page >= Count)
        return Count;
    const int Across = PagesFor(Paper).Width;
    const vcl::TCanvasStateGuard Saved(Canvas);
    Canvas.IntersectClipRect(Area);
    PrintOn(Canvas, Paper,
            {Area.Left - Page % Across * Paper.Width, Area.Top - Page / Across * Paper.Height});
    return Count;
}

int TCustomKSTreeView::PrintTo(vcl::TCanvas* Canvas, const vcl::TRect& Area, TKSTVPrintMode Mode, int Page)
{
    if (!Canvas || Area.IsEmpty())
        return 0;
    if (Mode == TKSTVPrintMode::pmPaged)
        return PrintPages(*Canvas, Area, Page);
    return Page == 0 ? PrintScaled(*Canvas, Area) : 1;
}
