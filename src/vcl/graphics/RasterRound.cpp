// Ellipses, rounded rectangles and their parts.

#include <algorithm>
#include <cmath>

#include "vcl/graphics/RasterPainter.h"

namespace vcl
{

namespace
{

/// Where a round figure's pen and inside lie, in device pixels. A pen of one pixel follows the outline of
/// Outer; a wider one covers what lies between Outer and Inner.
struct TRoundFrame {
    TRoundShape Outer;
    TRoundShape Inner;
    bool IsThin;

    TRoundRow Row(int Y) const
    {
        TRoundRow Result = Outer.Row(Y);
        if (IsThin)
            return Result;
        Result.InnerLeft = Result.InnerRight = Result.Right;
        const TRect& Box = Inner.GetBox();
        if (Y >= Box.Top && Y < Box.Bottom && Box.Left < Box.Right) {
            const TRoundRow Inside = Inner.Row(Y);
            Result.InnerLeft = Inside.Left;
            Result.InnerRight = Inside.Right;
        }
        return Result;
    }
};

TRoundFrame FrameOf(const TSurface& Surface, const TPenStroke& Pen, const TDrawState& State, const TRect& Box,
                    TSize Corner)
{
    const TRect Outer = Pen.Around(Box);
    const auto Device = [&Surface](std::int64_t Unit) { return Surface.ToDevice(Saturate(Unit)); };
    const int Width = Pen.GetPixels();
    const auto Shrunk = [](int Value, int By) { return Saturate(std::int64_t{Value} + By); };
    const TRect Inner{Shrunk(Outer.Left, Width), Shrunk(Outer.Top, Width), Shrunk(Outer.Right, -Width),
                      Shrunk(Outer.Bottom, -Width)};
    const bool Grows = Pen.IsWide() && State.Pen.Style != TPenStyle::psInsideFrame;
    const std::int64_t Grown = Grows ? Pen.GetUnits() - 1 : 0;
    const TSize OuterCorner{Device(Corner.Width + Grown), Device(Corner.Height + Grown)};
    const bool IsFull = Corner.Width == std::numeric_limits<int>::max();
    const TSize InnerCorner =
        IsFull ? Corner
               : TSize{Shrunk(OuterCorner.Width, -2 * Width), Shrunk(OuterCorner.Height, -2 * Width)};
    return {IsFull ? TRoundShape(Outer) : TRoundShape(Outer, OuterCorner), TRoundShape(Inner, InnerCorner),
            Width == 1};
}

/// Fitted to Win32's pictures, which start and end arcs a little late.
constexpr TArcShift ArcShift{0.5, 0.0};
constexpr TArcShift ChordShift{1.0, 0.7};

constexpr TSize WholeBox{std::numeric_limits<int>::max(), std::numeric_limits<int>::max()};

TRect OrderedBox(const TRect& Rect)
{
    return {std::min(Rect.Left, Rect.Right), std::min(Rect.Top, Rect.Bottom), std::max(Rect.Left, Rect.Right),
            std::max(Rect.Top, Rect.Bottom)};
}

bool HasArea(const TRect& Box)
{
    return Box.Left < Box.Right && Box.Top < Box.Bottom;
}

/// The outline's pixel inside the sector that lies nearest to where a radius meets the curve.
TPoint NearestOnArc(const TRoundFrame& Figure, const TSector& Sector, TPoint Exact)
{
    constexpr int Reach = 2;
    const TRect Around{Saturate(std::int64_t{Exact.X} - Reach), Saturate(std::int64_t{Exact.Y} - Reach),
                       Saturate(std::int64_t{Exact.X} + Reach + 1),
                       Saturate(std::int64_t{Exact.Y} + Reach + 1)};
    const TRect Tried = IntersectionOf(Around, Figure.Outer.GetBox());
    TPoint Best = Exact;
    int BestDistance = 3 * Reach * Reach;
    for (int Y = Tried.Top; Y < Tried.Bottom; ++Y) {
        const TRoundRow Row = Figure.Row(Y);
        for (int X = std::max(Row.Left, Tried.Left); X < std::min(Row.Right, Tried.Right); ++X) {
            const int Distance = (X - Exact.X) * (X - Exact.X) + (Y - Exact.Y) * (Y - Exact.Y);
            const bool IsOutline = X < Row.InnerLeft || X >= Row.InnerRight;
            if (IsOutline && Distance < BestDistance && Sector.Contains(X, Y)) {
                Best = {X, Y};
                BestDistance = Distance;
            }
        }
    }
    return Best;
}

/// Calls Visit(From, To) for each run of pixels From .. To - 1 that Accept takes.
template <class TAccept, class TVisit>
void ForEachRun(int From, int To, TAccept Accept, TVisit Visit)
{
    for (int X = From; X < To;) {
        if (!Accept(X)) {
            ++X;
            continue;
        }
        const int Start = X;
        while (X < To && Accept(X))
            ++X;
        Visit(Start, X);
    }
}

} // namespace

void TRasterPainter::RoundRect(const TDrawState& State, const TRect& Rect, TSize Corner)
{
    RoundFigure(State, Rect, {std::max(0, Corner.Width), std::max(0, Corner.Height)});
}

void TRasterPainter::Ellipse(const TDrawState& State, const TRect& Rect)
{
    RoundFigure(State, Rect, WholeBox);
}

void TRasterPainter::RoundFigure(const TDrawState& State, const TRect& Rect, TSize Corner)
{
    TRect Box = OrderedBox(Rect);
    if (!HasArea(Box) || IsOutside(Box, State.Pen.Width))
        return;
    const TPenStroke Pen(FTarget, State);
    if (!Pen.IsVisible()) {
        --Box.Right;
        --Box.Bottom;
        if (!HasArea(Box))
            return;
    }
    const TRoundFrame Figure = FrameOf(GetSurface(), Pen, State, Box, Corner);
    const TInk Ink = BrushInk(State, State.Mode);
    const TRect Rows = IntersectionOf(Figure.Outer.GetBox(), FTarget.GetBounds());
    for (int Y = Rows.Top; Y < Rows.Bottom; ++Y) {
        const TRoundRow Row = Figure.Row(Y);
        if (!Pen.IsVisible()) {
            FTarget.Span(Y, Row.Left, Row.Right, Ink);
            continue;
        }
        FTarget.Span(Y, Row.Left, Row.InnerLeft, Pen.GetInk());
        FTarget.Span(Y, Row.InnerLeft, Row.InnerRight, Ink);
        FTarget.Span(Y, Row.InnerRight, Row.Right, Pen.GetInk());
    }
}

void TRasterPainter::Arc(const TDrawState& State, const TRect& Box, TPoint From, TPoint To)
{
    ArcFigure(TArcKind::Arc, State, Box, From, To);
}

void TRasterPainter::Pie(const TDrawState& State, const TRect& Box, TPoint From, TPoint To)
{
    ArcFigure(TArcKind::Pie, State, Box, From, To);
}

void TRasterPainter::Chord(const TDrawState& State, const TRect& Box, TPoint From, TPoint To)
{
    ArcFigure(TArcKind::Chord, State, Box, From, To);
}

/// The inside first, then outline and closing lines over it, each pixel of those once.
void TRasterPainter::ArcFigure(TArcKind Kind, const TDrawState& State, const TRect& Rect, TPoint From,
                               TPoint To)
{
    const TRect Box = OrderedBox(Rect);
    if (!HasArea(Box) || IsOutside(Box, State.Pen.Width))
        return;
    const TPenStroke Pen(FTarget, State);
    const TRoundFrame Figure = FrameOf(GetSurface(), Pen, State, Box, WholeBox);
    const TRect& Outer = Figure.Outer.GetBox();
    const TSector Sector(Outer, Pen.CentreOf(From), Pen.CentreOf(To),
                         Kind == TArcKind::Chord ? ChordShift : ArcShift);
    const TPoint Start = NearestOnArc(Figure, Sector, Sector.GetStart());
    const TPoint End = NearestOnArc(Figure, Sector, Sector.GetEnd());
    const auto IsSwept = [&](int X, int Y) {
        return Kind == TArcKind::Chord ? Sector.IsCutOff(X, Y, Start, End) : Sector.Contains(X, Y);
    };
    const TInk Ink = Kind == TArcKind::Arc ? TInk() : BrushInk(State, State.Mode);
    const TRect Rows = IntersectionOf(Outer, FTarget.GetBounds());
    TWideStroke Stroke(FTarget.GetBounds(), Pen.GetPixels());
    for (int Y = Rows.Top; Y < Rows.Bottom; ++Y) {
        const TRoundRow Row = Figure.Row(Y);
        const int Left = std::max(Row.Left, Rows.Left);
        const int Right = std::min(Row.Right, Rows.Right);
        if (!Ink.PaintsNothing())
            ForEachRun(
                Left, Right, [&](int X) { return IsSwept(X, Y); },
                [&](int First, int Last) { FTarget.Span(Y, First, Last, Ink); });
        const auto AddRun = [&](int First, int Last) { Stroke.AddSpan(Y, First, Last); };
        const auto IsOnArc = [&](int X) { return Sector.Contains(X, Y); };
        ForEachRun(Left, std::min(Row.InnerLeft, Right), IsOnArc, AddRun);
        ForEachRun(std::max(Row.InnerRight, Left), Right, IsOnArc, AddRun);
    }
    if (!Pen.IsVisible())
        return;
    if (Kind == TArcKind::Pie) {
        Stroke.AddPath({Start, Sector.GetCentre(), End});
    } else if (Kind == TArcKind::Chord) {
        Stroke.AddPath({Start, End});
    }
    Stroke.Emit([&](int Y, int First, int Last) { FTarget.Span(Y, First, Last, Pen.GetInk()); });
}

} // namespace vcl
