#pragma once

#include <array>
#include <cstdint>
#include <memory>

#include "vcl/graphics/Painter.h"

namespace vcl
{

/// What happens to a pixel: it becomes (pixel & And) ^ Xor. Every bitwise function of a pixel and a fixed
/// colour has this form, so all raster operations share one loop.
struct TPixelOp {
    std::uint32_t And = 0xFFFFFF;
    std::uint32_t Xor = 0xFF000000;

    std::uint32_t Apply(std::uint32_t Pixel) const { return (Pixel & And) ^ Xor; }
    /// The pixel becomes Xor, whatever it was.
    bool IsCopy() const { return And == 0; }
};

/// Color is 0x00RRGGBB.
TPixelOp PixelOpFor(TPenMode Mode, std::uint32_t Color);

/// What a span is painted with: one operation for all pixels, or 8x8 of them anchored to the surface.
class TInk
{
public:
    using TCells = std::array<TPixelOp, 64>;

    /// Paints nothing.
    TInk() = default;
    static TInk Solid(TPenMode Mode, std::uint32_t Color);
    /// CellSize is the side of one pattern cell in device pixels, at least 1.
    static TInk Pattern(const TCells& Cells, int CellSize);
    /// The brush of a state, with its raster operation or, for Mode pmCopy, without one.
    static TInk Brush(const TDrawState& State, TPenMode Mode, int CellSize);
    /// Inverts the cells of a checkerboard where x + y is odd.
    static TInk FocusDots(int CellSize);

    bool PaintsNothing() const { return FNothing; }
    /// Paints the pixels From .. To - 1 of a row of pixels that starts at x = 0.
    void Paint(std::uint32_t* Row, int Y, int From, int To) const;

private:
    void PaintPattern(std::uint32_t* Row, int Y, int From, int To) const;

    bool FNothing = true;
    TPixelOp FSolid;
    int FCellSize = 1;
    std::shared_ptr<const TCells> FCells; // null: FSolid
};

} // namespace vcl
