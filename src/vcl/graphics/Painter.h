#pragma once

#include <array>
#include <cstdint>
#include <memory>
#include <span>
#include <string_view>

#include "vcl/graphics/Region.h"
#include "vcl/platform/TextEngine.h"
#include "vcl/system/Types.h"

namespace vcl
{

class TSurface;

enum class TPenStyle { psSolid, psDash, psDot, psDashDot, psDashDotDot, psClear, psInsideFrame };
enum class TBrushStyle {
    bsSolid,
    bsClear,
    bsHorizontal,
    bsVertical,
    bsFDiagonal,
    bsBDiagonal,
    bsCross,
    bsDiagCross,
    bsPattern, // 8x8 colours, see TBrushState::Pattern
    bsMono,    // 8x8 bits, see TBrushState::Mono
};
/// Binary raster operations of pen and brush (Win32's R2_ codes in order, 1-based there).
enum class TPenMode {
    pmBlack,
    pmNotMerge,
    pmMaskNotPen,
    pmNotCopy,
    pmMaskPenNot,
    pmNot,
    pmXor,
    pmNotMask,
    pmMask,
    pmNotXor,
    pmNop,
    pmMergeNotPen,
    pmCopy,
    pmMergePenNot,
    pmMerge,
    pmWhite,
};
enum class TFillMode { fmAlternate, fmWinding };
enum class TBackgroundMode { bmTransparent, bmOpaque };

/// Colours in painter states are real ones, 0x00RRGGBB: the canvas has resolved system colours.
struct TPenState {
    TPenStyle Style = TPenStyle::psSolid;
    int Width = 1; // 0 equals 1
    std::uint32_t Color = 0;
    bool operator==(const TPenState&) const = default;
};

struct TBrushState {
    TBrushStyle Style = TBrushStyle::bsSolid;
    std::uint32_t Color = 0xFFFFFF;
    /// bsPattern: row by row; anchored to the surface, as all patterns are.
    std::array<std::uint32_t, 64> Pattern{};
    /// bsMono: one byte a row, bit 7 leftmost; 0 paints the text colour, 1 the background colour.
    std::array<std::uint8_t, 8> Mono{};
};

struct TDrawState {
    TPenState Pen;
    TBrushState Brush;
    std::uint32_t TextColor = 0;
    std::uint32_t BackColor = 0xFFFFFF;
    TBackgroundMode BackMode = TBackgroundMode::bmOpaque;
    TPenMode Mode = TPenMode::pmCopy;
    TFillMode FillMode = TFillMode::fmAlternate;
};

/// Where a canvas's operations go: pixels, text (for tests and inspection) or a vector file. Coordinates are
/// device-independent units; Win32's semantics throughout (half-open rectangles, a line leaves out its last
/// point). Each call gets the whole state it depends on.
class IPainter
{
public:
    virtual ~IPainter() = default;

    /// Null: no clip region, everything is painted. The region is in units.
    virtual void SetClip(const TRegion* Clip) = 0;
    /// The bounds of what can be reached at all: for early rejection.
    virtual TRect ClipBounds() const = 0;

    /// Starts a new figure for dash phases; the last point is not painted.
    virtual void Polyline(const TDrawState& State, std::span<const TPoint> Points) = 0;
    virtual void Polygon(const TDrawState& State, std::span<const TPoint> Points) = 0;
    virtual void Rectangle(const TDrawState& State, const TRect& Rect) = 0;
    virtual void RoundRect(const TDrawState& State, const TRect& Rect, TSize Corner) = 0;
    virtual void Ellipse(const TDrawState& State, const TRect& Rect) = 0;
    virtual void Arc(const TDrawState& State, const TRect& Box, TPoint From, TPoint To) = 0;
    virtual void Pie(const TDrawState& State, const TRect& Box, TPoint From, TPoint To) = 0;
    virtual void Chord(const TDrawState& State, const TRect& Box, TPoint From, TPoint To) = 0;
    virtual void FillRect(const TDrawState& State, const TRect& Rect) = 0;
    virtual void FrameRect(const TDrawState& State, const TRect& Rect) = 0;
    virtual void InvertRect(const TRect& Rect) = 0;
    virtual void FocusRect(const TRect& Rect) = 0;
    virtual void SetPixel(TPoint Point, std::uint32_t Color) = 0;

    /// Copies Source's SourceRect to Target, scaling without interpolation; a negative size mirrors.
    virtual void StretchCopy(const TRect& Target, const TSurface& Source, const TRect& SourceRect) = 0;
    /// As StretchCopy, leaving out the pixels whose mask (same size as Source, non-zero = transparent) is
    /// set.
    virtual void MaskedCopy(const TRect& Target, const TSurface& Source, const TRect& SourceRect,
                            std::span<const std::uint8_t> Transparent) = 0;

    /// One line of UTF-8 text in State's text colour, its cell's top left corner at Origin. Paints the cell
    /// in the background colour first when the background mode is opaque.
    virtual void Text(const TDrawState& State, const TFontSpec& Font, TPoint Origin, std::string_view Text,
                      bool RightToLeft) = 0;
};

} // namespace vcl
