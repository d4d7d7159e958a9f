// Painting: a layout phase that moves the scroll bars' ranges, then the drawing.

#include <algorithm>

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
    FHorzScrollBar->SetRange(vcl::SaturateToInt(2 * std::int64_t{FMetrics.HorzSpacing} + Total.Width));
    if (!Guard.IsAlive())
        return;
    FVertScrollBar->SetRange(vcl::SaturateToInt(2 * std::int64_t{FMetrics.VertSpacing} + Total.Height));
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
    // Paper shows no focus.
    Now.HasFocus = !FPrinting && Focused();
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
}

void TCustomKSTreeView::DrawAllNodes()
{
    // Handlers may change the tree under our feet: then the walk goes on from the node at hand.
    const TAliveGuard Guard(*this);
    const std::uint64_t Shape = FItems->GetShapeSerial();
    std::size_t Next = 0;
    treeview::TNodeRef Node(FItems->GetFirstNode());
    while (Node) {
        Node->Draw();
        if (!Guard.IsAlive() || !Node)
            return;
        const std::vector<TKSTreeNode*>& Shown = FChart.GetShown();
        if (FItems->GetShapeSerial() != Shape)
            Node.Reset(Node->GetNextVisible());
        else
            Node.Reset(++Next < Shown.size() ? Shown[Next] : nullptr);
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
        View.FPrintCanvas = Canvas;
        View.FPaper = Paper;
    }
    ~TPrinting()
    {
        if (!FGuard.IsAlive())
            return;
        FView.FPrinting = FWasPrinting;
        FView.FPrintCanvas = FCanvas;
        FView.FPaper = FPaper;
        FView.FChart.Arrange(*FView.FItems, FView.FMetrics);
        FView.FChart.Place(FOrigin);
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
    FChart.Arrange(*FItems, FMetrics);
    const auto Pages = [](int Total, int Spacing, int Room) {
        const bool Fits = 2 * std::int64_t{Spacing} + Total <= Room;
        return Fits ? 1 : std::max(1, (Total + Room - 1) / Room);
    };
    const vcl::TSize Total = FChart.GetTotal();
    return Pages(Total.Width, FMetrics.HorzSpacing, Area.Width) *
           Pages(Total.Height, FMetrics.VertSpacing, Area.Height);
}

int TCustomKSTreeView::PrintScaled(vcl::TCanvas& Canvas, const vcl::TRect& Area)
{
    FChart.Arrange(*FItems, FMetrics);
    const vcl::TSize Total = FChart.GetTotal();
    const double Factor = std::min({1.0, Area.Width() / (2.0 * FMetrics.HorzSpacing + Total.Width),
                                    Area.Height() / (2.0 * FMetrics.VertSpacing + Total.Height)});
    const vcl::TCanvasStateGuard Saved(Canvas);
    Canvas.IntersectClipRect(Area);
    if (Factor >= 1.0) {
        PrintOn(Canvas, {Area.Width(), Area.Height()}, {Area.Left, Area.Top});
        return 1;
    }
    Canvas.GetClipRect(); // attaches a canvas that has not drawn yet
    const vcl::TPoint Origin = Canvas.GetOrigin();
    treeview::TScaledPainter Painter(*Canvas.GetPainter(), Factor,
                                     {Origin.X + Area.Left, Origin.Y + Area.Top});
    vcl::TCanvas Scaled(&Painter);
    // Rounded up, so that what just fits is centred and not taken for too large.
    const vcl::TSize Paper{static_cast<int>(Area.Width() / Factor) + 1,
                           static_cast<int>(Area.Height() / Factor) + 1};
    Scaled.IntersectClipRect({0, 0, Paper.Width, Paper.Height});
    PrintOn(Scaled, Paper, {});
    return 1;
}

int TCustomKSTreeView::PrintPages(vcl::TCanvas& Canvas, const vcl::TRect& Area, int Page)
{
    const vcl::TSize Paper{Area.Width(), Area.Height()};
    const int Count = GetPrintPageCount(Paper);
    if (Page < 0 || Page >= Count)
        return Count;
    const vcl::TSize Total = FChart.GetTotal();
    const bool FitsAcross = 2 * std::int64_t{FMetrics.HorzSpacing} + Total.Width <= Paper.Width;
    const int Across = FitsAcross ? 1 : std::max(1, (Total.Width + Paper.Width - 1) / Paper.Width);
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
