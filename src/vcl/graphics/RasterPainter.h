#pragma once

#include "vcl/graphics/Painter.h"
#include "vcl/graphics/PenStroke.h"
#include "vcl/graphics/RasterTarget.h"
#include "vcl/graphics/RoundShapes.h"

namespace vcl
{

/// Paints on a surface, without anti-aliasing: at scale 1 every pixel is defined. At other scales rectangles
/// and straight lines cover the device pixels between the mapped edges of their units, pen widths are rounded
/// (at least one pixel), and slopes and curves are computed in device pixels.
///
///     TSurface Surface(200, 100);
///     TRasterPainter Painter(Surface, &Platform().Text());
///     Painter.Rectangle(State, TRect{0, 0, 200, 100});
///
/// Coordinates may lie anywhere in the range of int; the cost depends on what is visible. The surface and the
/// text engine belong to others and have to live as long as the painter. Any thread may use a painter, one at
/// a time. After a change of the surface's size or scale, SetClip has to be called before painting goes on.
class TRasterPainter : public IPainter
{
public:
    /// Without a text engine Text paints nothing.
    explicit TRasterPainter(TSurface& Surface, ITextEngine* TextEngine = nullptr);

    TSurface& GetSurface() { return FTarget.GetSurface(); }

    void SetClip(const TRegion* Clip) override;
    TRect ClipBounds() const override { return FBounds; }

    void Polyline(const TDrawState& State, std::span<const TPoint> Points) override;
    void Polygon(const TDrawState& State, std::span<const TPoint> Points) override;
    void Rectangle(const TDrawState& State, const TRect& Rect) override;
    void RoundRect(const TDrawState& State, const TRect& Rect, TSize Corner) override;
    void Ellipse(const TDrawState& State, const TRect& Rect) override;
    void Arc(const TDrawState& State, const TRect& Box, TPoint From, TPoint To) override;
    void Pie(const TDrawState& State, const TRect& Box, TPoint From, TPoint To) override;
    void Chord(const TDrawState& State, const TRect& Box, TPoint From, TPoint To) override;
    void FillRect(const TDrawState& State, const TRect& Rect) override;
    void FrameRect(const TDrawState& State, const TRect& Rect) override;
    void InvertRect(const TRect& Rect) override;
    void FocusRect(const TRect& Rect) override;
    void SetPixel(TPoint Point, std::uint32_t Color) override;
    void StretchCopy(const TRect& Target, const TSurface& Source, const TRect& SourceRect) override;
    void MaskedCopy(const TRect& Target, const TSurface& Source, const TRect& SourceRect,
                    std::span<const std::uint8_t> Transparent) override;
    void Text(const TDrawState& State, const TFontSpec& Font, TPoint Origin, std::string_view Text,
              bool RightToLeft) override;

private:
    enum class TArcKind { Arc, Pie, Chord };

    bool IsOutside(const TRect& Rect, int Margin) const;
    int CellSize() const;
    TInk BrushInk(const TDrawState& State, TPenMode Mode) const;
    void Frame(const TRect& Rect, const TInk& Ink);
    void WideRectangle(TPenStroke& Pen, const TDrawState& State, const TRect& Box);
    void RoundFigure(const TDrawState& State, const TRect& Rect, TSize Corner);
    void ArcFigure(TArcKind Kind, const TDrawState& State, const TRect& Box, TPoint From, TPoint To);

    TRasterTarget FTarget;
    ITextEngine* FTextEngine;
    TRect FBounds; // of the clip, in units
};

} // namespace vcl
