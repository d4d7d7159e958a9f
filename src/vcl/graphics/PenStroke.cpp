#include "vcl/graphics/PenStroke.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <vector>

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
      FInsideFrame(State.Pen.Style == TPenStyle::psInsideFrame),
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
    return Saturate(std::int64_t{Device(std::int64_t{Unit} - FUnits / 2)} + FPixels / 2);
}

TRect TPenStroke::Visible(std::int64_t Left, std::int64_t Top, std::int64_t Right, std::int64_t Bottom) const
{
    TRect Result{Device(Left), Device(Top), Device(Right), Device(Bottom)};
    // A unit that falls between two edges takes the pixel under its middle.
    const double Scale = FTarget.GetSurface().GetScale();
    const auto PixelUnder = [Scale](std::int64_t Unit) {
        return static_cast<int>(std::floor((static_cast<double>(Unit) + 0.5) * Scale));
    };
    if (Result.Right == Result.Left && Left < Right && Scale < 1) {
        Result.Left = PixelUnder(Left);
        Result.Right = Result.Left + 1;
    }
    if (Result.Bottom == Result.Top && Top < Bottom && Scale < 1) {
        Result.Top = PixelUnder(Top);
        Result.Bottom = Result.Top + 1;
    }
    return Result;
}

void TPenStroke::Chain(std::span<const TPoint> Points, bool Closed)
{
    if (!FVisible || Points.size() < 2)
        return;
    if (IsWide()) {
        std::vector<TPoint> Device;
        Device.reserve(Points.size());
        for (const TPoint& Point : Points)
            Device.push_back(CentreOf(Point));
        WideChain(Device, Closed);
        return;
    }
    for (std::size_t Index = 1; Index < Points.size(); ++Index)
        ThinLine(Points[Index - 1], Points[Index], Closed || Index + 1 < Points.size());
    if (Closed)
        ThinLine(Points.back(), Points.front(), true);
}

void TPenStroke::WideChain(std::span<const TPoint> DevicePoints, bool Closed)
{
    TWideStroke Stroke(FTarget.GetBounds(), FPixels);
    TPoint Last = Closed ? DevicePoints.back() : DevicePoints.front();
    for (const TPoint& Point : DevicePoints) {
        Stroke.AddLine(Last, Point);
        Stroke.AddDot(Point);
        Last = Point;
    }
    Stroke.Emit([this](int Y, int From, int To) { FTarget.Span(Y, From, To, FInk); });
}

TRect TPenStroke::Around(const TRect& Box) const
{
    const bool Grows = IsWide() && !FInsideFrame;
    const std::int64_t Before = Grows ? FUnits / 2 : 0;
    const std::int64_t After = Grows ? FUnits - FUnits / 2 - 1 : 0;
    return {Device(Box.Left - Before), Device(Box.Top - Before), Device(Box.Right + After),
            Device(Box.Bottom + After)};
}

void TPenStroke::WideFrame(const TRect& Outer)
{
    // A pen wider than the rectangle stands still in one direction, or both.
    const std::int64_t Half = FPixels / 2;
    const int Left = Saturate(Outer.Left + Half);
    const int Top = Saturate(Outer.Top + Half);
    const int Right = std::max(Left, Saturate(Outer.Right - (FPixels - Half)));
    const int Bottom = std::max(Top, Saturate(Outer.Bottom - (FPixels - Half)));
    WideChain(std::array{TPoint{Right, Top}, TPoint{Left, Top}, TPoint{Left, Bottom}, TPoint{Right, Bottom}},
              true);
}

void TPenStroke::ThinLine(TPoint From, TPoint To, bool IsJoined)
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
        DeviceLine(From, To, AlongX, IsJoined);
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

void TPenStroke::DeviceLine(TPoint From, TPoint To, bool AlongX, bool IsJoined)
{
    const TRect& Bounds = FTarget.GetBounds();
    const TPoint Start = CentreOf(From);
    const TPoint Stop = CentreOf(To);
    TThinLine Line =
        AlongX ? TThinLine{Start.X, Start.Y, Stop.X, Stop.Y} : TThinLine{Start.Y, Start.X, Stop.Y, Stop.X};
    if (Line.Major0 == Line.Major1)
        return;
    // From the edge of the first unit to the edge of the last, which stays out; where another line follows,
    // to the last one's centre, so that no notch stays in the corner.
    const std::int64_t First = AlongX ? From.X : From.Y;
    const std::int64_t Last = AlongX ? To.X : To.Y;
    const bool Forward = Line.Major0 < Line.Major1;
    const std::int64_t Begin = Forward ? Device(First) : IsJoined ? Line.Major1 + 1 : Device(Last + 1);
    const std::int64_t End = !Forward ? Device(First + 1) : IsJoined ? Line.Major1 : Device(Last);
    const std::int64_t Above = FPixels / 2;
    const auto Emit = [&](std::int64_t A, std::int64_t B, std::int64_t Minor) {
        const int Low = Saturate(Minor - Above);
        const int High = Saturate(Minor - Above + FPixels);
        const TRect Piece =
            AlongX ? TRect{Saturate(A), Low, Saturate(B), High} : TRect{Low, Saturate(A), High, Saturate(B)};
        FTarget.FillRect(Piece, FInk);
    };
    // Beyond the two centres the line runs straight on.
    const std::int64_t Low = Forward ? Line.Major0 : Line.Major1;
    const std::int64_t High = Forward ? Line.Major1 : Line.Major0;
    Emit(Begin, std::min(End, Low), Forward ? Line.Minor0 : Line.Minor1);
    Emit(std::max(Begin, High + 1), End, Forward ? Line.Minor1 : Line.Minor0);
    Line.From = std::max(Begin, Low);
    Line.To = std::min(End, High + 1);
    if (AlongX)
        Line.Clip(Bounds.Left, Bounds.Right, Bounds.Top, Bounds.Bottom, FPixels);
    else
        Line.Clip(Bounds.Top, Bounds.Bottom, Bounds.Left, Bounds.Right, FPixels);
    Line.Walk(Emit);
}

} // namespace vcl
