#include "vcl/controls/TouchPainter.h"

#include <algorithm>
#include <climits>

#include "vcl/platform/Platform.h"

namespace vcl
{

namespace
{

int Saturated(std::int64_t Value)
{
    return static_cast<int>(std::clamp<std::int64_t>(Value, INT_MIN, INT_MAX));
}

/// How far beyond its path a pen paints.
int PenMargin(const TDrawState& State)
{
    return std::max(State.Pen.Width, 1) + 1;
}

} // namespace

void TTouchPainter::Touch(TRect Rect, int Margin)
{
    if (Rect.Right < Rect.Left)
        std::swap(Rect.Left, Rect.Right);
    if (Rect.Bottom < Rect.Top)
        std::swap(Rect.Top, Rect.Bottom);
    const TRect Wide{Saturated(std::int64_t{Rect.Left} - Margin), Saturated(std::int64_t{Rect.Top} - Margin),
                     Saturated(std::int64_t{Rect.Right} + Margin),
                     Saturated(std::int64_t{Rect.Bottom} + Margin)};
    const TRect Inside = IntersectionOf(Wide, FTarget.ClipBounds());
    if (!Inside.IsEmpty())
        FSink.Touched(Inside);
}

void TTouchPainter::Touch(std::span<const TPoint> Points, int Margin)
{
    if (Points.empty())
        return;
    TRect Around{INT_MAX, INT_MAX, INT_MIN, INT_MIN};
    for (const TPoint& Point : Points) {
        Around.Left = std::min(Around.Left, Point.X);
        Around.Top = std::min(Around.Top, Point.Y);
        Around.Right = std::max(Around.Right, Point.X);
        Around.Bottom = std::max(Around.Bottom, Point.Y);
    }
    Touch(Around, Margin);
}

void TTouchPainter::Polyline(const TDrawState& State, std::span<const TPoint> Points)
{
    FTarget.Polyline(State, Points);
    Touch(Points, PenMargin(State));
}

void TTouchPainter::Polygon(const TDrawState& State, std::span<const TPoint> Points)
{
    FTarget.Polygon(State, Points);
    Touch(Points, PenMargin(State));
}

void TTouchPainter::Rectangle(const TDrawState& State, const TRect& Rect)
{
    FTarget.Rectangle(State, Rect);
    Touch(Rect, PenMargin(State));
}

void TTouchPainter::RoundRect(const TDrawState& State, const TRect& Rect, TSize Corner)
{
    FTarget.RoundRect(State, Rect, Corner);
    Touch(Rect, PenMargin(State));
}

void TTouchPainter::Ellipse(const TDrawState& State, const TRect& Rect)
{
    FTarget.Ellipse(State, Rect);
    Touch(Rect, PenMargin(State));
}

void TTouchPainter::Arc(const TDrawState& State, const TRect& Box, TPoint From, TPoint To)
{
    FTarget.Arc(State, Box, From, To);
    Touch(Box, PenMargin(State));
}

void TTouchPainter::Pie(const TDrawState& State, const TRect& Box, TPoint From, TPoint To)
{
    FTarget.Pie(State, Box, From, To);
    Touch(Box, PenMargin(State));
}

void TTouchPainter::Chord(const TDrawState& State, const TRect& Box, TPoint From, TPoint To)
{
    FTarget.Chord(State, Box, From, To);
    Touch(Box, PenMargin(State));
}

void TTouchPainter::FillRect(const TDrawState& State, const TRect& Rect)
{
    FTarget.FillRect(State, Rect);
    Touch(Rect);
}

void TTouchPainter::FrameRect(const TDrawState& State, const TRect& Rect)
{
    FTarget.FrameRect(State, Rect);
    Touch(Rect, 1);
}

void TTouchPainter::InvertRect(const TRect& Rect)
{
    FTarget.InvertRect(Rect);
    Touch(Rect);
}

void TTouchPainter::FocusRect(const TRect& Rect)
{
    FTarget.FocusRect(Rect);
    Touch(Rect, 1);
}

void TTouchPainter::SetPixel(TPoint Point, std::uint32_t Color)
{
    FTarget.SetPixel(Point, Color);
    Touch({Point.X, Point.Y, Point.X, Point.Y}, 1);
}

void TTouchPainter::StretchCopy(const TRect& Target, const TSurface& Source, const TRect& SourceRect)
{
    FTarget.StretchCopy(Target, Source, SourceRect);
    Touch(Target, 1);
}

void TTouchPainter::MaskedCopy(const TRect& Target, const TSurface& Source, const TRect& SourceRect,
                               std::span<const std::uint8_t> Transparent)
{
    FTarget.MaskedCopy(Target, Source, SourceRect, Transparent);
    Touch(Target, 1);
}

void TTouchPainter::Text(const TDrawState& State, const TFontSpec& Font, TPoint Origin, std::string_view Text,
                         bool RightToLeft)
{
    FTarget.Text(State, Font, Origin, Text, RightToLeft);
    ITextEngine& Engine = Platform().Text();
    const int Width = Engine.TextWidth(Font, Text);
    const int Height = Engine.Metrics(Font).Height;
    const TRect Cell = Bounds(Origin.X, Origin.Y, Width, Height);
    // Turned text stays within its own length around the origin; slanted letters lean out of their cell.
    Touch(Cell, Font.Orientation == 0 ? Height / 2 + 1 : Width + Height);
}

} // namespace vcl
