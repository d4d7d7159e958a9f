#include "KSTimeView/painting/Clock.h"

#include <cmath>
#include <numbers>

#include "KSTimeView/painting/CanvasTools.h"
#include "vcl/system/DateTime.h"

namespace timeview
{

namespace
{

constexpr double Pi = std::numbers::pi;
constexpr int TickCount = 12;

void DrawTicks(vcl::TCanvas& Canvas, vcl::TPoint Center, double Outer)
{
    const double Inner = Outer - 1;
    for (int Tick = 0; Tick < TickCount; ++Tick) {
        const double Angle = Tick * Pi / 6;
        const auto At = [&](double Radius) {
            return vcl::TPoint{vcl::RoundHalfEven(Radius * std::cos(Angle) + Center.X),
                               vcl::RoundHalfEven(Center.Y - Radius * std::sin(Angle))};
        };
        Line(Canvas, At(Outer).X, At(Outer).Y, At(Inner).X, At(Inner).Y);
    }
}

/// Angles grow clockwise from the top.
void DrawHand(vcl::TCanvas& Canvas, vcl::TPoint Center, int Length, double Angle)
{
    const double Turned = Angle + Pi / 2;
    Line(Canvas, Center.X, Center.Y, vcl::RoundHalfEven(Center.X - Length * std::cos(Turned)),
         vcl::RoundHalfEven(Center.Y - Length * std::sin(Turned)));
}

} // namespace

void DrawClock(vcl::TCanvas& Canvas, const vcl::TRect& Rect, vcl::TTime Time)
{
    const vcl::TPoint Center{(Rect.Left + Rect.Right) / 2, (Rect.Top + Rect.Bottom) / 2};
    const int HalfWidth = (Rect.Right - Rect.Left) / 2;
    UseBrush(Canvas, vcl::clBlack);
    Canvas.GetPen()->SetColor(vcl::clBlack);
    Canvas.Ellipse(Rect);
    Canvas.GetPen()->SetColor(vcl::clWhite);
    Canvas.GetPen()->SetStyle(vcl::TPenStyle::psSolid);
    DrawTicks(Canvas, Center, HalfWidth - 1);
    const vcl::TTimeParts Parts = vcl::DecodeTime(Time);
    const int Hour = Parts.Hour > 11 ? Parts.Hour - 12 : Parts.Hour;
    DrawHand(Canvas, Center, HalfWidth - 1, Parts.Minute * Pi / 30);
    DrawHand(Canvas, Center, HalfWidth - 3, Hour * Pi / 6 + Parts.Minute * Pi / 360);
}

} // namespace timeview
