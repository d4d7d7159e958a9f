#include "vcl/graphics/PenStroke.h"

#include <algorithm>
#include <cmath>

namespace vcl
{

namespace
{

int PixelsOf(int Units, double Scale)
{
    constexpr double Widest = 4.0 * TSurface::MaxSide;
    return std::max(1, static_cast<int>(std::floor(std::min(Units * Scale, Widest) + 0.5)));
}

/// Dashes belong to thin pens only.
TPenStyle DashStyleOf(const TPenState& Pen)
{
    return Pen.Width > 1 ? TPenStyle::psSolid : Pen.Style;
}

} // namespace

TPenStroke::TPenStroke(TRasterTarget& Target, const TDrawState& State)
    : FTarget(Target), FVisible(State.Pen.Style != TPenStyle::psClear),
      FUnits(FVisible ? std::clamp(State.Pen.Width, 1, 4 * TSurface::MaxSide) : 1),
      FPixels(PixelsOf(FUnits, Target.GetSurface().GetScale())), FDashes(DashStyleOf(State.Pen))
{
    if (FVisible)
        FInk = TInk::Solid(State.Mode, State.Pen.Color);
    if (IsDashed() && State.BackMode == TBackgroundMode::bmOpaque)
        FGapInk = TInk::Solid(State.Mode, State.BackColor);
}

int TPenStroke::CentreOf(int Unit) const
{
    return Saturate(std::int64_t{Device(std::int64_t{Unit} - GetUnitsBefore())} + FPixels / 2);
}

TRect TPenStroke::Visible(std::int64_t Left, std::int64_t Top, std::int64_t Right, std::int64_t Bottom) const
{
    TRect Result{Device(Left), Device(Top), Device(Right), Device(Bottom)};
    if (Result.Right == Result.Left)
        Result.Right = Saturate(std::int64_t{Result.Left} + 1);
    if (Result.Bottom == Result.Top)
        Result.Bottom = Saturate(std::int64_t{Result.Top} + 1);
    return Result;
}

void TPenStroke::Chain(std::span<const TPoint> Points, bool Closed)
{
    if (!FVisible || Points.size() < 2)
        return;
    if (IsWide()) {
        WideChain(Points, Closed);
        return;
    }
    for (std::size_t Index = 1; Index < Points.size(); ++Index)
        ThinLine(Points[Index - 1], Points[Index]);
    if (Closed)
        ThinLine(Points.back(), Points.front());
}

void TPenStroke::WideChain(std::span<const TPoint> Points, bool Closed)
{
    TWideStroke Stroke(FTarget.GetBounds(), FPixels);
    TPoint Last = CentreOf(Closed ? Points.back() : Points.front());
    for (const TPoint& Point : Points) {
        const TPoint Next = CentreOf(Point);
        Stroke.AddLine(Last, Next);
        Stroke.AddDot(Next);
        Last = Next;
    }
    Stroke.Emit([this](int Y, int From, int To) { FTarget.Span(Y, From, To, FInk); });
}

void TPenStroke::ThinLine(TPoint From, TPoint To)
{
    const std::int64_t Width = std::abs(std::int64_t{To.X} - From.X);
    const std::int64_t Height = std::abs(std::int64_t{To.Y} - From.Y);
    if (Width == 0 && Height == 0)
        return;
    const bool AlongX = Width >= Height;
    const bool Sloped = Width != 0 && Height != 0;
    // Dashes are counted in units, and straight lines cover the edges of their units' pixels; a sloped line
    // looks best when the device's own pixels make its steps.
    if (Sloped && !IsDashed() && FTarget.GetSurface().GetScale() != 1.0)
        DeviceLine(From, To, AlongX);
    else
        UnitLine(From, To, AlongX);
    FDashes.Advance(std::max(Width, Height));
}

void TPenStroke::UnitLine(TPoint From, TPoint To, bool AlongX)
{
    const TRect Bounds = FTarget.GetSurface().ToUnits(FTarget.GetBounds());
    TThinLine Line = AlongX ? TThinLine{From.X, From.Y, To.X, To.Y} : TThinLine{From.Y, From.X, To.Y, To.X};
    const bool Forward = Line.Major0 < Line.Major1;
    Line.From = Forward ? Line.Major0 : Line.Major1 + 1;
    Line.To = Forward ? Line.Major1 : Line.Major0 + 1;
    if (AlongX)
        Line.Clip(Bounds.Left, Bounds.Right, Bounds.Top, Bounds.Bottom, 1);
    else
        Line.Clip(Bounds.Top, Bounds.Bottom, Bounds.Left, Bounds.Right, 1);
    Line.Walk([&](std::int64_t Start, std::int64_t Stop, std::int64_t Minor) {
        FDashes.Split(Line.Major0, Forward, Start, Stop, [&](std::int64_t A, std::int64_t B, bool IsDash) {
            const TRect Piece = AlongX ? Visible(A, Minor, B, Minor + 1) : Visible(Minor, A, Minor + 1, B);
            FTarget.FillRect(Piece, IsDash ? FInk : FGapInk);
        });
    });
}

void TPenStroke::DeviceLine(TPoint From, TPoint To, bool AlongX)
{
    const TRect& Bounds = FTarget.GetBounds();
    const TPoint Start = CentreOf(From);
    const TPoint Stop = CentreOf(To);
    TThinLine Line =
        AlongX ? TThinLine{Start.X, Start.Y, Stop.X, Stop.Y} : TThinLine{Start.Y, Start.X, Stop.Y, Stop.X};
    if (Line.Major0 == Line.Major1)
        return;
    const std::int64_t First = AlongX ? From.X : From.Y;
    const std::int64_t Last = AlongX ? To.X : To.Y;
    Line.From = Device(First < Last ? First : Last + 1);
    Line.To = Device(First < Last ? Last : First + 1);
    const std::int64_t Above = FPixels / 2;
    if (AlongX)
        Line.Clip(Bounds.Left, Bounds.Right, Bounds.Top, Bounds.Bottom, FPixels);
    else
        Line.Clip(Bounds.Top, Bounds.Bottom, Bounds.Left, Bounds.Right, FPixels);
    Line.Walk([&](std::int64_t A, std::int64_t B, std::int64_t Minor) {
        const int Low = Saturate(Minor - Above);
        const int High = Saturate(Minor - Above + FPixels);
        const TRect Piece =
            AlongX ? TRect{Saturate(A), Low, Saturate(B), High} : TRect{Low, Saturate(A), High, Saturate(B)};
        FTarget.FillRect(Piece, FInk);
    });
}

} // namespace vcl
