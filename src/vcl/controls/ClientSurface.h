#pragma once

#include <memory>

#include "vcl/controls/TouchPainter.h"
#include "vcl/graphics/Canvas.h"
#include "vcl/graphics/RasterPainter.h"
#include "vcl/graphics/Region.h"
#include "vcl/graphics/Surface.h"

namespace vcl
{

class TWinControl;

/// The pixels of a control's client area, what of them needs painting, and the canvas that draws on them.
class TClientSurface final : public ITouchSink
{
public:
    explicit TClientSurface(TWinControl& Control);
    ~TClientSurface();

    /// Draws on the pixels at any time: inside a painting only on what is damaged, outside on everything,
    /// which then goes to the screen.
    TCanvas& Canvas() { return *FCanvas; }

    /// Rect needs painting. Parts outside the client area are ignored.
    void Invalidate(const TRect& Rect);
    bool IsDamaged() const { return !FDamage.IsEmpty(); }
    const TRegion& GetDamage() const { return FDamage; }
    /// Takes the damage and has the control paint it. What is invalidated meanwhile waits for the next time.
    void Paint();
    /// What a painting under way is limited to; null: nothing.
    const TRegion* GetPaintClip() const { return FPaintClip; }
    /// Erases and paints everything onto another canvas, whose origin is the client area's corner.
    void PaintOn(TCanvas& Target);
    /// Follows the client area's size and scale.
    void Resize();
    /// Moves the pixels; what came into view, and damage that moved along, needs painting.
    void Scroll(int DeltaX, int DeltaY);
    TPixelBuffer Pixels() { return FSurface.Buffer(); }
    TSurface& GetSurface() { return FSurface; }
    /// Attaches the canvas, making handle and pixels when there are none.
    void Attach();
    /// The handle is gone: no pixels, no damage.
    void Drop();
    /// Something was drawn: outside a painting it goes to the screen.
    void Touched(const TRect& Rect) override;

private:
    class TControlCanvas;
    class TPainting;

    TRect ClientRect() const;
    void FitSurface();

    TWinControl& FControl;
    TSurface FSurface;
    std::unique_ptr<TRasterPainter> FRaster;
    std::unique_ptr<TTouchPainter> FTouch;
    std::unique_ptr<TCanvas> FCanvas;
    TRegion FDamage;
    const TRegion* FPaintClip = nullptr;
    int FPainting = 0;
};

} // namespace vcl
