#pragma once

#include <vector>

#include "vcl/graphics/Painter.h"

namespace treeview
{

/// Passes drawing on to another painter, larger or smaller: for charts that are scaled to a page. Edges map
/// by rounding, so what touches still does; lines are at least one unit wide.
class TScaledPainter final : public vcl::IPainter
{
public:
    /// A point P of the drawing goes to Offset + P * Factor, as far as it lies in Clip, the bounds of what
    /// may be drawn on; both are the target's units.
    TScaledPainter(vcl::IPainter& Target, double Factor, vcl::TPoint Offset, const vcl::TRect& Clip)
        : FTarget(Target), FFactor(Factor), FOffset(Offset), FClip(Clip)
    {
    }

    void SetClip(const vcl::TRegion* Clip) override;
    vcl::TRect ClipBounds() const override;
    void Polyline(const vcl::TDrawState& State, std::span<const vcl::TPoint> Points) override;
    void Polygon(const vcl::TDrawState& State, std::span<const vcl::TPoint> Points) override;
    void Rectangle(const vcl::TDrawState& State, const vcl::TRect& Rect) override;
    void RoundRect(const vcl::TDrawState& State, const vcl::TRect& Rect, vcl::TSize Corner) override;
    void Ellipse(const vcl::TDrawState& State, const vcl::TRect& Rect) override;
    void Arc(const vcl::TDrawState& State, const vcl::TRect& Box, vcl::TPoint From, vcl::TPoint To) override;
    void Pie(const vcl::TDrawState& State, const vcl::TRect& Box, vcl::TPoint From, vcl::TPoint To) override;
    void Chord(const vcl::TDrawState& State, const vcl::TRect& Box, vcl::TPoint From,
               vcl::TPoint To) override;
    void FillRect(const vcl::TDrawState& State, const vcl::TRect& Rect) override;
    void FrameRect(const vcl::TDrawState& State, const vcl::TRect& Rect) override;
    void InvertRect(const vcl::TRect& Rect) override;
    void FocusRect(const vcl::TRect& Rect) override;
    void SetPixel(vcl::TPoint Point, std::uint32_t Color) override;
    void StretchCopy(const vcl::TRect& Target, const vcl::TSurface& Source,
                     const vcl::TRect& SourceRect) override;
    void MaskedCopy(const vcl::TRect& Target, const vcl::TSurface& Source, const vcl::TRect& SourceRect,
                    std::span<const std::uint8_t> Transparent) override;
    void Text(const vcl::TDrawState& State, const vcl::TFontSpec& Font, vcl::TPoint Origin,
              std::string_view Text, bool RightToLeft) override;

private:
    int Scaled(int Value) const;
    vcl::TPoint Map(vcl::TPoint Point) const;
    vcl::TRect Map(const vcl::TRect& Rect) const;
    std::vector<vcl::TPoint> Map(std::span<const vcl::TPoint> Points) const;
    vcl::TDrawState Map(const vcl::TDrawState& State) const;

    vcl::IPainter& FTarget;
    double FFactor;
    vcl::TPoint FOffset;
    vcl::TRect FClip;
};

} // namespace treeview
