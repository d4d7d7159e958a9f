#pragma once

#include <vector>

#include "vcl/graphics/Painter.h"

namespace vcl
{

/// Writes down what is painted, one operation a line, with all values that decide what it looks like and none
/// that do not:
///
///     clip 0,0,200,100
///     fill 0,0,200,100 brush=C0C0C0
///     rect 10,20,30,40 pen=000000 brush=FFFFFF
///     line 0,5 20,5 pen=dash:808080 back=FFFFFF
///     text 12,22 "Meeting" font="Arial" -11 bold color=000080 back=none
///     copy 0,0,16,16 from 0,0,16,16 of 32x16 pixels=9F3A41C2
///
/// Colours are RRGGBB. Pens: colour, then ":width" when wider than 1; other styles come before the colour;
/// none is a clear one. Brushes likewise; bitmap patterns show their rows. `mode=`, `winding`, `back=` and
/// `rtl` stand there only when they matter. `pixels` is a check value of the copied pixels. Unchanged clips
/// are not repeated.
class TRecordingPainter : public IPainter
{
public:
    /// Bounds is what can be reached when no clip is set.
    explicit TRecordingPainter(const TRect& Bounds) : FBounds(Bounds), FReach(Bounds) {}

    const std::vector<AnsiString>& GetLines() const { return FLines; }
    /// All lines, each ended by a line feed.
    AnsiString GetText() const;
    void Clear() { FLines.clear(); }

    void SetClip(const TRegion* Clip) override;
    TRect ClipBounds() const override { return FReach; }
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
    void Add(AnsiString Line) { FLines.push_back(std::move(Line)); }

    TRect FBounds;
    TRect FReach;
    AnsiString FClip = "none";
    std::vector<AnsiString> FLines;
};

} // namespace vcl
