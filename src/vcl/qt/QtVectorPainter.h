#pragma once

#include <QPainter>
#include <QPainterPath>

#include <optional>

#include "vcl/graphics/Painter.h"

namespace vcl::qt
{

/// Draws a canvas's operations as lines, areas, texts and pictures of a toolkit painter: for vector files and
/// printers.
///
///     QPainter Device(&Writer);
///     TVectorPainter Painter(Device, {800, 600});
///     TCanvas Canvas(&Painter);
///
/// Coordinates are the device's, one unit each. Outlines run through the centres of the pixels that a screen
/// would paint. What raster operations do to the pixels below is computed as if below were white paper; only
/// InvertRect darkens instead, so that what it covers stays legible. Clipping happens here, on the figures
/// themselves: not every kind of vector file knows clip regions.
class TVectorPainter final : public IPainter
{
public:
    /// Device belongs to the caller and has to live as long.
    TVectorPainter(QPainter& Device, TSize Size);

    void SetClip(const TRegion* Clip) override;
    TRect ClipBounds() const override;

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
    bool IsInside(const QRectF& Rect) const;
    void FillPath(const QPainterPath& Path, const QColor& Color);
    void FillWithBrush(const TDrawState& State, const QPainterPath& Path);
    void FillWithTile(const QPainterPath& Path, const QImage& Tile);
    void StrokePath(const QPainterPath& Path, const QPen& Pen);
    void StrokeWithPen(const TDrawState& State, const QPainterPath& Path);
    void Figure(const TDrawState& State, const QPainterPath& Path);
    /// The path of a box's border, or nothing for an empty box. Make gets the box the pen's centre follows.
    template <class TMake>
    void BoxFigure(const TDrawState& State, const TRect& Rect, TMake&& Make);
    void DrawPicture(const TRect& Target, QImage Picture);
    void DrawWords(const QFont& Font, const QColor& Color, QPointF Baseline, double Angle,
                   const QString& Words, bool RightToLeft, const QRectF& Cell);

    QPainter& FDevice;
    TSize FSize;
    std::optional<TRegion> FClip;
    QPainterPath FClipPath;
};

} // namespace vcl::qt
