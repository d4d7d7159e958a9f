#pragma once

#include "vcl/graphics/Painter.h"

namespace vcl
{

/// Hears of every rectangle that is drawn on.
class ITouchSink
{
public:
    /// Rect is in units and inside the clip; never empty.
    virtual void Touched(const TRect& Rect) = 0;

protected:
    ~ITouchSink() = default;
};

/// Passes drawing on to another painter and tells, after each operation, a rectangle around what it can have
/// changed.
class TTouchPainter final : public IPainter
{
public:
    TTouchPainter(IPainter& Target, ITouchSink& Sink) : FTarget(Target), FSink(Sink) {}

    void SetClip(const TRegion* Clip) override { FTarget.SetClip(Clip); }
    TRect ClipBounds() const override { return FTarget.ClipBounds(); }
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
    void Touch(TRect Rect, int Margin = 0);
    void Touch(std::span<const TPoint> Points, int Margin);

    IPainter& FTarget;
    ITouchSink& FSink;
};

} // namespace vcl
