#include "vcl/controls/ClientSurface.h"

#include "vcl/controls/WinControl.h"
#include "vcl/graphics/Colors.h"
#include "vcl/platform/Platform.h"

namespace vcl
{

/// Attaches itself when first drawn on.
class TClientSurface::TControlCanvas final : public TCanvas
{
public:
    explicit TControlCanvas(TClientSurface& Client) : FClient(Client) {}
    TSurface* GetSurface() override
    {
        return GetPainter() == FClient.FTouch.get() ? &FClient.FSurface : nullptr;
    }

protected:
    void CreateHandle() override { FClient.Attach(); }

private:
    TClientSurface& FClient;
};

TClientSurface::TClientSurface(TWinControl& Control)
    : FControl(Control), FRaster(std::make_unique<TRasterPainter>(FSurface, &Platform().Text())),
      FTouch(std::make_unique<TTouchPainter>(*FRaster, *this)),
      FCanvas(std::make_unique<TControlCanvas>(*this))
{
}

TClientSurface::~TClientSurface() = default;

TRect TClientSurface::ClientRect() const
{
    return FControl.GetClientRect();
}

void TClientSurface::Attach()
{
    FitSurface();
    FCanvas->SetPainter(FTouch.get());
}

void TClientSurface::FitSurface()
{
    FControl.HandleNeeded();
    if (FSurface.GetWidth() != ClientRect().Width() || FSurface.GetHeight() != ClientRect().Height())
        Resize();
}

void TClientSurface::Resize()
{
    IWindow* const Window = FControl.GetWindow();
    if (!Window || !FControl.HandleAllocated())
        return;
    const TRect Client = ClientRect();
    FSurface.Resize(Client.Width(), Client.Height(), Window->GetScale(),
                    ColorToPixel(FControl.GetBrush()->GetColor()));
    FRaster->SetClip(nullptr);
    if (FCanvas->GetPainter() == FTouch.get())
        FCanvas->SetPainter(FTouch.get()); // its clip counts in the new size
}

void TClientSurface::Drop()
{
    FDamage.Clear();
    if (FPainting == 0)
        FCanvas->SetPainter(nullptr);
    FSurface = TSurface();
    FRaster->SetClip(nullptr);
}

void TClientSurface::Invalidate(const TRect& Rect)
{
    const TRect Inside = IntersectionOf(Rect, ClientRect());
    if (Inside.IsEmpty())
        return;
    if (FDamage.IsEmpty())
        FControl.GetWindow()->RequestUpdate();
    FDamage.Union(Inside);
}

void TClientSurface::Touched(const TRect& Rect)
{
    if (FPainting == 0 && FControl.GetWindow())
        FControl.GetWindow()->Present(Rect);
}

/// One painting: the canvas drawn with, restored however it ends. A painting within a painting keeps the
/// outer one's pens and clips; the outermost leaves pens, brush and font as the control set them.
class TClientSurface::TPainting
{
public:
    TPainting(TClientSurface& Client, IPainter* Painter, TPoint Origin, const TRegion* Clip)
        : FClient(Client), FGuard(Client.FControl), FPainter(Client.FCanvas->GetPainter()),
          FOuterClip(Client.FPaintClip)
    {
        TCanvas& Canvas = *FClient.FCanvas;
        if (FClient.FPainting++ > 0)
            FDepth = Canvas.SaveState();
        FClient.FPaintClip = Clip;
        Canvas.SelectClipRegion(nullptr);
        Canvas.SetOrigin(Origin);
        Canvas.SetPainter(Painter);
        Canvas.SetSystemClip(Clip);
    }

    ~TPainting()
    {
        if (!FGuard.IsAlive())
            return;
        TCanvas& Canvas = *FClient.FCanvas;
        --FClient.FPainting;
        FClient.FPaintClip = FOuterClip;
        Canvas.SetPainter(FPainter);
        Canvas.SetSystemClip(FOuterClip);
        Canvas.SelectClipRegion(nullptr);
        Canvas.SetOrigin({});
        if (FDepth > 0)
            Canvas.RestoreState(FDepth);
    }

    TPainting(const TPainting&) = delete;
    TPainting& operator=(const TPainting&) = delete;

private:
    TClientSurface& FClient;
    TAliveGuard FGuard;
    IPainter* FPainter;
    const TRegion* FOuterClip;
    int FDepth = 0;
};

void TClientSurface::Paint()
{
    TAliveGuard Guard(FControl);
    // A painting on something else that this one interrupts gets its painter back.
    if (FPainting == 0)
        Attach();
    else
        FitSurface();
    const TRegion Damage = std::move(FDamage);
    FDamage.Clear();
    {
        TPainting Painting(*this, FTouch.get(), {}, &Damage);
        FControl.PaintContents(*FCanvas);
    }
    if (!Guard.IsAlive() || !FControl.HandleAllocated())
        return;
    for (const TRect& Rect : Damage.GetRects())
        FControl.GetWindow()->Present(Rect);
}

void TClientSurface::PaintOn(TCanvas& Target)
{
    const TPoint Origin = Target.GetOrigin();
    TRegion Visible(ClientRect());
    Visible.Offset(Origin.X, Origin.Y);
    const bool Everything = Visible.Contains(Target.GetPainter()->ClipBounds());
    TPainting Painting(*this, Target.GetPainter(), Origin, Everything ? nullptr : &Visible);
    FControl.PaintContents(*FCanvas);
}

void TClientSurface::Scroll(int DeltaX, int DeltaY)
{
    const TRect Client = ClientRect();
    if (FSurface.GetWidth() != Client.Width() || FSurface.GetHeight() != Client.Height() ||
        !FSurface.Scroll(Client, DeltaX, DeltaY)) {
        Invalidate(Client);
        return;
    }
    TRegion Kept(Client);
    Kept.Offset(DeltaX, DeltaY);
    FDamage.Offset(DeltaX, DeltaY);
    TRegion Exposed(Client);
    Exposed.Subtract(Kept);
    FDamage.Union(Exposed);
    FDamage.Intersect(Client);
    if (!FDamage.IsEmpty())
        FControl.GetWindow()->RequestUpdate();
    FControl.GetWindow()->Present(Client);
}

} // namespace vcl
