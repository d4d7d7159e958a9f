#include "vcl/graphics/RoundShapes.h"

#include <algorithm>
#include <cmath>

#include "vcl/graphics/WideMath.h"

namespace vcl
{

namespace
{

/// Half the distance between the centres of the first and the last of Size pixels.
double RadiusOf(std::int64_t Size)
{
    return static_cast<double>(Size - 1) / 2;
}

} // namespace

TRoundShape::TRoundShape(const TRect& Box, TSize Corner) : FBox(Box)
{
    const std::int64_t Width = std::int64_t{Box.Right} - Box.Left;
    const std::int64_t Height = std::int64_t{Box.Bottom} - Box.Top;
    FRadiusX = RadiusOf(std::min<std::int64_t>(Corner.Width, Width));
    FRadiusY = RadiusOf(std::min<std::int64_t>(Corner.Height, Height));
    if (FRadiusX <= 0 || FRadiusY <= 0)
        FRadiusX = FRadiusY = 0;
}

TRoundShape::TRoundShape(const TRect& Box)
    : TRoundShape(Box, {std::numeric_limits<int>::max(), std::numeric_limits<int>::max()})
{
}

/// Whether the corner's curve crosses the diamond around X, Y, which are relative to the curve's centre and
/// not negative.
bool TRoundShape::IsCrossed(double X, double Y) const
{
    const double SquareX = FRadiusX * FRadiusX;
    const double SquareY = FRadiusY * FRadiusY;
    const auto Value = [&](double PointX, double PointY) {
        return PointX * PointX / SquareX + PointY * PointY / SquareY - 1;
    };
    // A curve that touches an outer corner counts as crossing, one that touches an inner corner does not: so
    // one of two neighbours whose common corner it meets is taken.
    constexpr double Touch = -1e-12;
    if (std::max(Value(X + 0.5, Y), Value(X, Y + 0.5)) < Touch)
        return false;
    // The diamond's innermost point lies on the side between (X - 1/2, Y) and (X, Y - 1/2).
    const double Along = std::clamp(2 * (Y * SquareX - (X - 0.5) * SquareY) / (SquareX + SquareY), 0.0, 1.0);
    return Value(X - 0.5 + Along / 2, Y - Along / 2) < Touch;
}

/// How far the curve lies from its vertical axis at a height; 0 above its apex.
double TRoundShape::HalfWidthAt(double Y) const
{
    const double Ratio = std::max(Y, 0.0) / FRadiusY;
    return Ratio >= 1 ? 0 : FRadiusX * std::sqrt((1 - Ratio) * (1 + Ratio));
}

TRoundRow TRoundShape::Row(int Y) const
{
    const std::int64_t FromEdge = std::min(std::int64_t{Y} - FBox.Top, std::int64_t{FBox.Bottom} - 1 - Y);
    const double Height = std::max(FRadiusY - static_cast<double>(FromEdge), 0.0);
    const bool IsApex = FromEdge == 0;
    std::int64_t First = 0; // pixels from the box's left edge to the outline's first one
    std::int64_t Inner = 1; // .. and to the first one after it
    if (FRadiusX > 0) {
        const auto PixelsTo = [this](double HalfWidth) {
            return static_cast<std::int64_t>(std::floor(FRadiusX - HalfWidth));
        };
        const auto IsOutline = [&](std::int64_t Pixel) {
            return IsCrossed(FRadiusX - static_cast<double>(Pixel), Height);
        };
        const auto Last = static_cast<std::int64_t>(FRadiusX);
        First = std::clamp<std::int64_t>(PixelsTo(HalfWidthAt(Height - 0.5)) - 1, 0, Last);
        while (First < Last && !IsOutline(First))
            ++First;
        Inner = std::clamp(PixelsTo(HalfWidthAt(Height + 0.5)) - 2, First + 1, Last + 1);
        while (Inner <= Last && IsOutline(Inner))
            ++Inner;
    }
    const auto Left = FBox.Left + First;
    const auto Right = FBox.Right - First;
    const auto InnerLeft = std::min(FBox.Left + Inner, Right);
    const auto InnerRight = FBox.Right - Inner;
    if (IsApex || InnerLeft >= InnerRight)
        return {Saturate(Left), Saturate(Right), Saturate(Right), Saturate(Right)};
    return {Saturate(Left), Saturate(InnerLeft), Saturate(InnerRight), Saturate(Right)};
}

TSector::TSector(const TRect& Box, TPoint From, TPoint To, const TArcShift& Shift)
    : FCentreX((double(Box.Left) + Box.Right) / 2), FCentreY((double(Box.Top) + Box.Bottom) / 2)
{
    const TVector Start = Relative(From);
    const TVector End = Relative(To);
    const double Radius = std::max(RadiusOf(std::int64_t{Box.Right} - Box.Left), 1.0);
    // An arc too short for that keeps its radii: turned past each other they would sweep the wrong part.
    const double Swept = std::atan2(Cross(Start, End), Start.X * End.X + Start.Y * End.Y);
    const bool IsShort = Swept >= 0 && Swept * Radius < 2 * Shift.Start;
    FFrom = IsShort ? Start : Turned(Start, Shift.Start / Radius);
    FTo = IsShort ? End : Turned(End, Shift.End / Radius);
    FEverything = Cross(Start, End) == 0 && Start.X * End.X + Start.Y * End.Y >= 0;
    FStart = OnEllipse(FFrom, Box);
    FEnd = OnEllipse(FTo, Box);
    FCentre = {Saturate(std::llround(std::floor(FCentreX))), Saturate(std::llround(std::floor(FCentreY)))};
}

TSector::TVector TSector::Turned(TVector Vector, double Angle)
{
    const double Cosine = std::cos(Angle);
    const double Sine = std::sin(Angle);
    return {Vector.X * Cosine - Vector.Y * Sine, Vector.X * Sine + Vector.Y * Cosine};
}

/// Counted upwards, so that counter-clockwise is the usual sense.
TSector::TVector TSector::Relative(TPoint Point) const
{
    return {Point.X - FCentreX, FCentreY - Point.Y};
}

/// Where the ray from the middle meets the ellipse, whose own middle lies half a pixel to the left and above.
TPoint TSector::OnEllipse(TVector Direction, const TRect& Box) const
{
    const double RadiusX = std::max(RadiusOf(std::int64_t{Box.Right} - Box.Left), 0.5);
    const double RadiusY = std::max(RadiusOf(std::int64_t{Box.Bottom} - Box.Top), 0.5);
    // The ellipse as a unit circle, the ray from P in direction D: |P + t D| = 1.
    const TVector D{Direction.X / RadiusX, Direction.Y / RadiusY};
    const TVector P{0.5 / RadiusX, -0.5 / RadiusY};
    const double A = D.X * D.X + D.Y * D.Y;
    const double B = D.X * P.X + D.Y * P.Y;
    const double C = P.X * P.X + P.Y * P.Y - 1;
    const double Stretch = A > 0 ? (std::sqrt(std::max(B * B - A * C, 0.0)) - B) / A : 0;
    return {Saturate(std::llround(FCentreX + Direction.X * Stretch)),
            Saturate(std::llround(FCentreY - Direction.Y * Stretch))};
}

bool TSector::Contains(int X, int Y) const
{
    if (FEverything)
        return true;
    const TVector Point = Relative({X, Y});
    if (Cross(FFrom, FTo) >= 0)
        return Cross(FFrom, Point) >= 0 && Cross(Point, FTo) >= 0;
    return !(Cross(FTo, Point) > 0 && Cross(Point, FFrom) > 0);
}

bool TSector::IsCutOff(int X, int Y, TPoint ArcStart, TPoint ArcEnd) const
{
    if (FEverything)
        return true;
    const TVector Start = Relative(ArcStart);
    const TVector End = Relative(ArcEnd);
    const TVector Point = Relative({X, Y});
    return Cross({End.X - Start.X, End.Y - Start.Y}, {Point.X - Start.X, Point.Y - Start.Y}) <= 0;
}

} // namespace vcl
