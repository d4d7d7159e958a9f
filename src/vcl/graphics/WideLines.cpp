#include "vcl/graphics/WideLines.h"

#include <algorithm>
#include <cmath>
#include <limits>

#include "vcl/graphics/Lines.h"

namespace vcl
{

namespace
{

struct TInterval {
    double Low = -std::numeric_limits<double>::infinity();
    double High = std::numeric_limits<double>::infinity();

    /// Keeps the x for which Slope * x + Offset lies between From and To.
    void Restrict(double Slope, double Offset, double From, double To)
    {
        if (std::abs(Slope) < 1e-12) {
            if (Offset <= From || Offset >= To)
                High = Low;
            return;
        }
        const double A = (From - Offset) / Slope;
        const double B = (To - Offset) / Slope;
        Low = std::max(Low, std::min(A, B));
        High = std::min(High, std::max(A, B));
    }
};

} // namespace

TWideStroke::TWideStroke(const TRect& Bounds, int Width)
    : FBounds(Bounds), FWidth(Width), FAxis(Width % 2 == 0 ? -0.5 : 0.0)
{
}

int TWideStroke::RowAtLeast(double Y) const
{
    return static_cast<int>(std::clamp(std::floor(Y), double(FBounds.Top), double(FBounds.Bottom)));
}

int TWideStroke::RowAtMost(double Y) const
{
    return static_cast<int>(std::clamp(std::ceil(Y) + 1, double(FBounds.Top), double(FBounds.Bottom)));
}

void TWideStroke::AddSpan(int Y, int From, int To)
{
    if (Y >= FBounds.Top && Y < FBounds.Bottom)
        FSpans.Add(Y, std::max(From, FBounds.Left), std::min(To, FBounds.Right));
}

/// The pixels strictly between two x.
void TWideStroke::AddBetween(int Y, double Low, double High)
{
    const double From = std::max(std::floor(Low) + 1, double(FBounds.Left));
    const double To = std::min(std::ceil(High), double(FBounds.Right));
    if (From < To)
        FSpans.Add(Y, static_cast<int>(From), static_cast<int>(To));
}

void TWideStroke::AddDot(TPoint Point)
{
    const double X = Point.X + FAxis;
    const double Y = Point.Y + FAxis;
    // A little less than the circle: 2 is a 2x2 square, 3 a plus, from 5 on discs.
    const double Square = (FWidth * FWidth - 1) / 4;
    const int Bottom = RowAtMost(Y + FWidth / 2);
    for (int Row = RowAtLeast(Y - FWidth / 2); Row < Bottom; ++Row) {
        const double Left = Square - (Row - Y) * (Row - Y);
        if (Left > 0)
            AddBetween(Row, X - std::sqrt(Left), X + std::sqrt(Left));
    }
}

void TWideStroke::AddLine(TPoint From, TPoint To)
{
    const double X = From.X + FAxis;
    const double Y = From.Y + FAxis;
    const double DeltaX = double(To.X) - From.X;
    const double DeltaY = double(To.Y) - From.Y;
    const double Length = std::hypot(DeltaX, DeltaY);
    if (Length == 0)
        return;
    const double UnitX = DeltaX / Length;
    const double UnitY = DeltaY / Length;
    const int Bottom = RowAtMost(Y + std::max(DeltaY, 0.0) + FWidth / 2);
    for (int Row = RowAtLeast(Y + std::min(DeltaY, 0.0) - FWidth / 2); Row < Bottom; ++Row) {
        const double RowY = Row - Y;
        TInterval Inside;
        Inside.Restrict(-UnitY, UnitX * RowY, -FWidth / 2, FWidth / 2);
        Inside.Restrict(UnitX, UnitY * RowY, -1e-9, Length + 1e-9);
        if (Inside.Low < Inside.High)
            AddBetween(Row, X + Inside.Low, X + Inside.High);
    }
}

void TWideStroke::AddThinLine(TPoint From, TPoint To)
{
    const std::int64_t Width = std::abs(std::int64_t{To.X} - From.X);
    const std::int64_t Height = std::abs(std::int64_t{To.Y} - From.Y);
    const bool AlongX = Width >= Height;
    if (Width == 0 && Height == 0)
        return;
    TThinLine Line = AlongX ? TThinLine{From.X, From.Y, To.X, To.Y} : TThinLine{From.Y, From.X, To.Y, To.X};
    Line.From = std::min(Line.Major0, Line.Major1);
    Line.To = std::max(Line.Major0, Line.Major1) + 1;
    if (AlongX)
        Line.Clip(FBounds.Left, FBounds.Right, FBounds.Top, FBounds.Bottom, 1);
    else
        Line.Clip(FBounds.Top, FBounds.Bottom, FBounds.Left, FBounds.Right, 1);
    Line.Walk([&](std::int64_t Start, std::int64_t Stop, std::int64_t Minor) {
        if (AlongX)
            AddSpan(Saturate(Minor), Saturate(Start), Saturate(Stop));
        else
            for (std::int64_t Row = Start; Row < Stop; ++Row)
                AddSpan(Saturate(Row), Saturate(Minor), Saturate(Minor + 1));
    });
}

void TWideStroke::AddPath(std::initializer_list<TPoint> Points)
{
    const TPoint* Last = nullptr;
    for (const TPoint& Point : Points) {
        if (FWidth == 1 && Last != nullptr)
            AddThinLine(*Last, Point);
        else if (Last != nullptr)
            AddLine(*Last, Point);
        if (FWidth > 1)
            AddDot(Point);
        Last = &Point;
    }
}

} // namespace vcl
