#include "KSTreeView/painting/ScaledPainter.h"

#include <algorithm>
#include <cmath>
#include <vector>

namespace treeview
{

int TScaledPainter::Scaled(int Value) const
{
    return vcl::RoundHalfEven(Value * FFactor);
}

vcl::TPoint TScaledPainter::Map(vcl::TPoint Point) const
{
    return {FOffset.X + Scaled(Point.X), FOffset.Y + Scaled(Point.Y)};
}

vcl::TRect TScaledPainter::Map(const vcl::TRect& Rect) const
{
    const vcl::TPoint First = Map(vcl::TPoint{Rect.Left, Rect.Top});
    const vcl::TPoint Last = Map(vcl::TPoint{Rect.Right, Rect.Bottom});
    return {First.X, First.Y, Last.X, Last.Y};
}

std::vector<vcl::TPoint> TScaledPainter::Map(std::span<const vcl::TPoint> Points) const
{
    std::vector<vcl::TPoint> Mapped;
    Mapped.reserve(Points.size());
    for (const vcl::TPoint& Point : Points)
        Mapped.push_back(Map(Point));
    return Mapped;
}

vcl::TDrawState TScaledPainter::Map(const vcl::TDrawState& State) const
{
    vcl::TDrawState Mapped = State;
    Mapped.Pen.Width = std::max(1, Scaled(std::max(1, State.Pen.Width)));
    return Mapped;
}

void TScaledPainter::SetClip(const vcl::TRegion* Clip)
{
    vcl::TRegion Mapped(FClip);
    if (Clip) {
        Mapped.Clear();
        for (const vcl::TRect& Rect : Clip->GetRects())
            Mapped.Union(Map(Rect));
        Mapped.Intersect(FClip);
    }
    FTarget.SetClip(&Mapped);
}

vcl::TRect TScaledPainter::ClipBounds() const
{
    const vcl::TRect Bounds = FTarget.ClipBounds();
    const auto Back = [this](int Value, int Offset, bool Up) {
        const double Unscaled = (Value - Offset) / FFactor;
        return vcl::RoundHalfEven(Up ? std::ceil(Unscaled) + 1 : std::floor(Unscaled) - 1);
    };
    return {Back(Bounds.Left, FOffset.X, false), Back(Bounds.Top, FOffset.Y, false),
            Back(Bounds.Right, FOffset.X, true), Back(Bounds.Bottom, FOffset.Y, true)};
}

void TScaledPainter::Polyline(const vcl::TDrawState& State, std::span<const vcl::TPoint> Points)
{
    FTarget.Polyline(Map(State), Map(Points));
}

void TScaledPainter::Polygon(const vcl::TDrawState& State, std::span<const vcl::TPoint> Points)
{
    FTarget.Polygon(Map(State), Map(Points));
}

void TScaledPainter::Rectangle(const vcl::TDrawState& State, const vcl::TRect& Rect)
{
    FTarget.Rectangle(Map(State), Map(Rect));
}

void TScaledPainter::RoundRect(const vcl::TDrawState& State, const vcl::TRect& Rect, vcl::TSize Corner)
{
    FTarget.RoundRect(Map(State), Map(Rect), {Scaled(Corner.Width), Scaled(Corner.Height)});
}

void TScaledPainter::Ellipse(const vcl::TDrawState& State, const vcl::TRect& Rect)
{
    FTarget.Ellipse(Map(State), Map(Rect));
}

void TScaledPainter::Arc(const vcl::TDrawState& State, const vcl::TRect& Box, vcl::TPoint From,
                         vcl::TPoint To)
{
    FTarget.Arc(Map(State), Map(Box), Map(From), Map(To));
}

void TScaledPainter::Pie(const vcl::TDrawState& State, const vcl::TRect& Box, vcl::TPoint From,
                         vcl::TPoint To)
{
    FTarget.Pie(Map(State), Map(Box), Map(From), Map(To));
}

void TScaledPainter::Chord(const vcl::TDrawState& State, const vcl::TRect& Box, vcl::TPoint From,
                           vcl::TPoint To)
{
    FTarget.Chord(Map(State), Map(Box), Map(From), Map(To));
}

void TScaledPainter::FillRect(const vcl::TDrawState& State, const vcl::TRect& Rect)
{
    FTarget.FillRect(Map(State), Map(Rect));
}

void TScaledPainter::FrameRect(const vcl::TDrawState& State, const vcl::TRect& Rect)
{
    FTarget.FrameRect(Map(State), Map(Rect));
}

void TScaledPainter::InvertRect(const vcl::TRect& Rect)
{
    FTarget.InvertRect(Map(Rect));
}

void TScaledPainter::FocusRect(const vcl::TRect& Rect)
{
    FTarget.FocusRect(Map(Rect));
}

void TScaledPainter::SetPixel(vcl::TPoint Point, std::uint32_t Color)
{
    FTarget.SetPixel(Map(Point), Color);
}

void TScaledPainter::StretchCopy(const vcl::TRect& Target, const vcl::TSurface& Source,
                                 const vcl::TRect& SourceRect)
{
    FTarget.StretchCopy(Map(Target), Source, SourceRect);
}

void TScaledPainter::MaskedCopy(const vcl::TRect& Target, const vcl::TSurface& Source,
                                const vcl::TRect& SourceRect, std::span<const std::uint8_t> Transparent)
{
    FTarget.MaskedCopy(Map(Target), Source, SourceRect, Transparent);
}

void TScaledPainter::Text(const vcl::TDrawState& State, const vcl::TFontSpec& Font, vcl::TPoint Origin,
                          std::string_view Text, bool RightToLeft)
{
    vcl::TFontSpec Mapped = Font;
    const int Height = Scaled(Font.Height);
    Mapped.Height = Height != 0 ? Height : Font.Height < 0 ? -1 : 1;
    FTarget.Text(Map(State), Mapped, Map(Origin), Text, RightToLeft);
}

} // namespace treeview
