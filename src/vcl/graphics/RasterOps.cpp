#include "vcl/graphics/RasterOps.h"

#include <algorithm>

namespace vcl
{

namespace
{

constexpr std::uint32_t ColorBits = 0xFFFFFF;
constexpr std::uint32_t Opaque = 0xFF000000;

/// The operation that gives WhenBlack for a pixel of zeros and WhenWhite for a pixel of ones.
TPixelOp OpFrom(std::uint32_t WhenBlack, std::uint32_t WhenWhite)
{
    return {(WhenBlack ^ WhenWhite) & ColorBits, (WhenBlack & ColorBits) | Opaque};
}

bool IsHatch(TBrushStyle Style)
{
    return Style >= TBrushStyle::bsHorizontal && Style <= TBrushStyle::bsDiagCross;
}

bool IsOnHatch(TBrushStyle Style, int X, int Y)
{
    const bool Horizontal = Y == 3;
    const bool Vertical = X == 4;
    const bool Falling = X == Y;
    const bool Rising = X + Y == 7;
    switch (Style) {
    case TBrushStyle::bsHorizontal:
        return Horizontal;
    case TBrushStyle::bsVertical:
        return Vertical;
    case TBrushStyle::bsFDiagonal:
        return Falling;
    case TBrushStyle::bsBDiagonal:
        return Rising;
    case TBrushStyle::bsCross:
        return Horizontal || Vertical;
    case TBrushStyle::bsDiagCross:
        return Falling || Rising;
    default:
        return false;
    }
}

TPixelOp CellOp(const TDrawState& State, TPenMode Mode, int X, int Y)
{
    const TBrushState& Brush = State.Brush;
    const auto Row = static_cast<std::size_t>(Y);
    if (IsHatch(Brush.Style)) {
        if (IsOnHatch(Brush.Style, X, Y))
            return PixelOpFor(Mode, Brush.Color);
        return State.BackMode == TBackgroundMode::bmOpaque ? PixelOpFor(Mode, State.BackColor) : TPixelOp();
    }
    if (Brush.Style == TBrushStyle::bsMono)
        return PixelOpFor(Mode, (Brush.Mono[Row] >> (7 - X) & 1) != 0 ? State.BackColor : State.TextColor);
    return PixelOpFor(Mode, Brush.Pattern[Row * 8 + static_cast<std::size_t>(X)]);
}

} // namespace

TPixelOp PixelOpFor(TPenMode Mode, std::uint32_t Color)
{
    constexpr std::uint32_t None = 0;
    constexpr std::uint32_t All = ~None;
    const std::uint32_t P = Color;
    switch (Mode) {
    case TPenMode::pmBlack:
        return OpFrom(None, None);
    case TPenMode::pmNotMerge:
        return OpFrom(~P, None);
    case TPenMode::pmMaskNotPen:
        return OpFrom(None, ~P);
    case TPenMode::pmNotCopy:
        return OpFrom(~P, ~P);
    case TPenMode::pmMaskPenNot:
        return OpFrom(P, None);
    case TPenMode::pmNot:
        return OpFrom(All, None);
    case TPenMode::pmXor:
        return OpFrom(P, ~P);
    case TPenMode::pmNotMask:
        return OpFrom(All, ~P);
    case TPenMode::pmMask:
        return OpFrom(None, P);
    case TPenMode::pmNotXor:
        return OpFrom(~P, P);
    case TPenMode::pmNop:
        return OpFrom(None, All);
    case TPenMode::pmMergeNotPen:
        return OpFrom(~P, All);
    case TPenMode::pmCopy:
        return OpFrom(P, P);
    case TPenMode::pmMergePenNot:
        return OpFrom(All, P);
    case TPenMode::pmMerge:
        return OpFrom(P, All);
    case TPenMode::pmWhite:
        return OpFrom(All, All);
    }
    return {};
}

TInk TInk::Solid(TPenMode Mode, std::uint32_t Color)
{
    TInk Result;
    Result.FNothing = Mode == TPenMode::pmNop;
    Result.FSolid = PixelOpFor(Mode, Color);
    return Result;
}

TInk TInk::Pattern(const TCells& Cells, int CellSize)
{
    TInk Result;
    Result.FNothing = false;
    Result.FCellSize = CellSize;
    Result.FCells = std::make_shared<const TCells>(Cells);
    return Result;
}

TInk TInk::Brush(const TDrawState& State, TPenMode Mode, int CellSize)
{
    if (State.Brush.Style == TBrushStyle::bsClear)
        return {};
    if (State.Brush.Style == TBrushStyle::bsSolid)
        return Solid(Mode, State.Brush.Color);
    TCells Cells;
    for (int Y = 0; Y < 8; ++Y)
        for (int X = 0; X < 8; ++X)
            Cells[static_cast<std::size_t>(Y * 8 + X)] = CellOp(State, Mode, X, Y);
    return Pattern(Cells, CellSize);
}

TInk TInk::FocusDots(int CellSize)
{
    TCells Cells;
    for (int Y = 0; Y < 8; ++Y)
        for (int X = 0; X < 8; ++X)
            if ((X + Y) % 2 != 0)
                Cells[static_cast<std::size_t>(Y * 8 + X)] = PixelOpFor(TPenMode::pmNot, 0);
    return Pattern(Cells, CellSize);
}

void TInk::Paint(std::uint32_t* Row, int Y, int From, int To) const
{
    if (FCells) {
        PaintPattern(Row, Y, From, To);
    } else if (FSolid.IsCopy()) {
        std::fill(Row + From, Row + To, FSolid.Xor);
    } else {
        for (int X = From; X < To; ++X)
            Row[X] = FSolid.Apply(Row[X]);
    }
}

void TInk::PaintPattern(std::uint32_t* Row, int Y, int From, int To) const
{
    const TPixelOp* Cells = FCells->data() + (Y / FCellSize) % 8 * 8;
    if (FCellSize == 1) {
        for (int X = From; X < To; ++X)
            Row[X] = Cells[X % 8].Apply(Row[X]);
        return;
    }
    for (int X = From; X < To; ++X)
        Row[X] = Cells[X / FCellSize % 8].Apply(Row[X]);
}

} // namespace vcl
