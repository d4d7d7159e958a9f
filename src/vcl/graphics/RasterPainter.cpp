#include "vcl/graphics/RasterPainter.h"

#include <algorithm>
#include <array>
#include <cmath>

#include "vcl/graphics/StretchCopy.h"

namespace vcl
{

namespace
{

TRect Ordered(const TRect& Rect)
{
    return {std::min(Rect.Left, Rect.Right), std::min(Rect.Top, Rect.Bottom), std::max(Rect.Left, Rect.Right),
            std::max(Rect.Top, Rect.Bottom)};
}

TRect BoundsOf(std::span<const TPoint> Points)
{
    TRect Result{Points[0].X, Points[0].Y, Points[0].X, Points[0].Y};
    for (const TPoint& Point : Points)
        Result = {std::min(Result.Left, Point.X), std::min(Result.Top, Point.Y),
                  std::max(Result.Right, Point.X), std::max(Result.Bottom, Point.Y)};
    return Result;
}

std::array<TPoint, 4> CornersOf(const TRect& Path)
{
    return {TPoint{Path.Right, Path.Top}, TPoint{Path.Left, Path.Top}, TPoint{Path.Left, Path.Bottom},
            TPoint{Path.Right, Path.Bottom}};
}

} // namespace

TRasterPainter::TRasterPainter(TSurface& Surface, ITextEngine* TextEngine)
    : FTarget(Surface), FTextEngine(TextEngine)
{
    FBounds = Surface.ToUnits(FTarget.GetBounds());
}

void TRasterPainter::SetClip(const TRegion* Clip)
{
    FTarget.SetClip(Clip);
    FBounds = FTarget.GetBounds().IsEmpty() ? TRect{} : GetSurface().ToUnits(FTarget.GetBounds());
}

/// Whether a rectangle (right and bottom count as inside), widened by Margin, misses the clip.
bool TRasterPainter::IsOutside(const TRect& Rect, int Margin) const
{
    const std::int64_t Wide = std::clamp(Margin, 0, 4 * TSurface::MaxSide) + 1;
    return FBounds.IsEmpty() || Rect.Left - Wide >= FBounds.Right || Rect.Right + Wide < FBounds.Left ||
           Rect.Top - Wide >= FBounds.Bottom || Rect.Bottom + Wide < FBounds.Top;
}

/// The side of a pattern cell: whole device pixels, so that all cells are alike.
int TRasterPainter::CellSize() const
{
    return std::max(1, static_cast<int>(std::floor(FTarget.GetSurface().GetScale() + 0.5)));
}

TInk TRasterPainter::BrushInk(const TDrawState& State, TPenMode Mode) const
{
    return TInk::Brush(State, Mode, CellSize());
}

void TRasterPainter::Polyline(const TDrawState& State, std::span<const TPoint> Points)
{
    if (Points.size() > 1 && !IsOutside(BoundsOf(Points), State.Pen.Width))
        TPenStroke(FTarget, State).Chain(Points, false);
}

void TRasterPainter::Polygon(const TDrawState& State, std::span<const TPoint> Points)
{
    if (Points.size() < 2 || IsOutside(BoundsOf(Points), State.Pen.Width))
        return;
    TPenStroke Pen(FTarget, State);
    const TInk Ink = BrushInk(State, State.Mode);
    if (!Ink.PaintsNothing()) {
        // Below a pen the inside reaches to the middle of the outline, so that no gap can open between them.
        std::vector<TPoint> Device;
        Device.reserve(Points.size());
        for (const TPoint& Point : Points)
            Device.push_back(Pen.IsVisible()
                                 ? Pen.CentreOf(Point)
                                 : TPoint{GetSurface().ToDevice(Point.X), GetSurface().ToDevice(Point.Y)});
        ScanPolygon(Device, State.FillMode, FTarget.GetBounds(),
                    [&](int Y, int From, int To) { FTarget.Span(Y, From, To, Ink); });
    }
    Pen.Chain(Points, true);
}

void TRasterPainter::Rectangle(const TDrawState& State, const TRect& Rect)
{
    const TRect Box = Ordered(Rect);
    if (Box.IsEmpty() && (Box.Left == Box.Right || Box.Top == Box.Bottom))
        return;
    if (IsOutside(Box, State.Pen.Width))
        return;
    TPenStroke Pen(FTarget, State);
    const TRect Path{Box.Left, Box.Top, Box.Right - 1, Box.Bottom - 1};
    if (!Pen.IsVisible()) {
        FTarget.FillRect(GetSurface().ToDevice(Path), BrushInk(State, State.Mode));
        return;
    }
    if (Pen.IsWide()) {
        WideRectangle(Pen, State, Box);
        return;
    }
    FTarget.FillRect(
        GetSurface().ToDevice(TRect{Saturate(std::int64_t{Path.Left} + 1),
                                    Saturate(std::int64_t{Path.Top} + 1), Path.Right, Path.Bottom}),
        BrushInk(State, State.Mode));
    if (!Pen.IsDashed() && Path.Left < Path.Right && Path.Top < Path.Bottom)
        Frame(Box, Pen.GetInk());
    else
        Pen.Chain(CornersOf(Path), true);
}

/// The border of a rectangle in units, one unit wide; no pixel is painted twice.
void TRasterPainter::Frame(const TRect& Rect, const TInk& Ink)
{
    const TSurface& Surface = GetSurface();
    const TRect Outer = Surface.ToDevice(Rect);
    const auto Edge = [&Surface](std::int64_t Unit) { return Surface.ToDevice(Saturate(Unit)); };
    const int Left = std::max(Outer.Left + 1, Edge(std::int64_t{Rect.Left} + 1));
    const int Top = std::max(Outer.Top + 1, Edge(std::int64_t{Rect.Top} + 1));
    const int Right = std::max(Left, std::min(Outer.Right - 1, Edge(std::int64_t{Rect.Right} - 1)));
    const int Bottom = std::max(Top, std::min(Outer.Bottom - 1, Edge(std::int64_t{Rect.Bottom} - 1)));
    FTarget.FillRect({Outer.Left, Outer.Top, Outer.Right, Top}, Ink);
    FTarget.FillRect({Outer.Left, Top, Left, Bottom}, Ink);
    FTarget.FillRect({Right, Top, Outer.Right, Bottom}, Ink);
    FTarget.FillRect({Outer.Left, Bottom, Outer.Right, Outer.Bottom}, Ink);
}

void TRasterPainter::WideRectangle(TPenStroke& Pen, const TDrawState& State, const TRect& Box)
{
    const TRect Outer = Pen.Around(Box);
    const std::int64_t Width = Pen.GetPixels();
    const bool IsFilledByPen = Width * 2 >= std::int64_t{Outer.Right} - Outer.Left ||
                               Width * 2 >= std::int64_t{Outer.Bottom} - Outer.Top;
    if (State.Pen.Style == TPenStyle::psInsideFrame && IsFilledByPen) {
        FTarget.FillRect(Outer, Pen.GetInk());
        return;
    }
    FTarget.FillRect({Saturate(Outer.Left + Width), Saturate(Outer.Top + Width),
                      Saturate(Outer.Right - Width), Saturate(Outer.Bottom - Width)},
                     BrushInk(State, State.Mode));
    Pen.WideFrame(Outer);
}

void TRasterPainter::FillRect(const TDrawState& State, const TRect& Rect)
{
    if (!IsOutside(Rect, 0))
        FTarget.FillRect(GetSurface().ToDevice(Rect), BrushInk(State, TPenMode::pmCopy));
}

void TRasterPainter::FrameRect(const TDrawState& State, const TRect& Rect)
{
    if (!Rect.IsEmpty() && !IsOutside(Rect, 0))
        Frame(Rect, BrushInk(State, TPenMode::pmCopy));
}

void TRasterPainter::InvertRect(const TRect& Rect)
{
    FTarget.FillRect(GetSurface().ToDevice(Rect), TInk::Solid(TPenMode::pmNot, 0));
}

void TRasterPainter::FocusRect(const TRect& Rect)
{
    const TRect Box = Ordered(Rect);
    if (!Box.IsEmpty() && !IsOutside(Box, 0))
        Frame(Box, TInk::FocusDots(CellSize()));
}

void TRasterPainter::SetPixel(TPoint Point, std::uint32_t Color)
{
    TDrawState State;
    State.Pen.Color = Color;
    const TPenStroke Pen(FTarget, State);
    FTarget.FillRect(Pen.Visible(Point.X, Point.Y, std::int64_t{Point.X} + 1, std::int64_t{Point.Y} + 1),
                     Pen.GetInk());
}

void TRasterPainter::StretchCopy(const TRect& Target, const TSurface& Source, const TRect& SourceRect)
{
    StretchCopyPixels(FTarget, Target, Source, SourceRect, {});
}

void TRasterPainter::MaskedCopy(const TRect& Target, const TSurface& Source, const TRect& SourceRect,
                                std::span<const std::uint8_t> Transparent)
{
    StretchCopyPixels(FTarget, Target, Source, SourceRect, Transparent);
}

void TRasterPainter::Text(const TDrawState& State, const TFontSpec& Font, TPoint Origin,
                          std::string_view Text, bool RightToLeft)
{
    if (FTextEngine == nullptr || Text.empty() || FBounds.IsEmpty())
        return;
    TSurface& Surface = GetSurface();
    const int Width = FTextEngine->TextWidth(Font, Text);
    const int Height = FTextEngine->Metrics(Font).Height;
    const TRect Cell{Origin.X, Origin.Y, Saturate(std::int64_t{Origin.X} + Width),
                     Saturate(std::int64_t{Origin.Y} + Height)};
    // A rotated line may go anywhere around its origin; slanted glyphs reach beyond the cell's ends.
    if (IsOutside(Cell, Font.Orientation != 0 ? Width + Height : Height))
        return;
    if (State.BackMode == TBackgroundMode::bmOpaque && Font.Orientation == 0)
        FTarget.FillRect(Surface.ToDevice(Cell), TInk::Solid(TPenMode::pmCopy, State.BackColor));
    TTextRun Run;
    Run.Font = &Font;
    Run.Text = Text;
    Run.Origin = {Surface.ToDevice(Origin.X), Surface.ToDevice(Origin.Y)};
    Run.Color = State.TextColor | 0xFF000000u;
    Run.Scale = Surface.GetScale();
    Run.RightToLeft = RightToLeft;
    Run.Width = Width;
    FTextEngine->Draw(Run, Surface.Buffer(), FTarget.GetClipRects());
}

} // namespace vcl
