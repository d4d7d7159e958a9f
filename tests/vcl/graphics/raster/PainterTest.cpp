#include <gtest/gtest.h>

#include <array>
#include <climits>
#include <functional>
#include <random>
#include <thread>

#include "vcl/graphics/RasterPainter.h"
#include "vcl/graphics/raster/Picture.h"
#include "vcl/system/Exception.h"

using namespace vcl;

namespace
{

constexpr std::uint32_t White = 0xFFFFFF;

TDrawState Inked(std::uint32_t Pen, std::uint32_t Brush)
{
    TDrawState State;
    State.Pen.Color = Pen;
    State.Brush.Color = Brush;
    return State;
}

/// Everything a painter draws with pen and brush, on random places that reach beyond a surface of 40 x 40.
class TRandomFigure
{
public:
    explicit TRandomFigure(unsigned Seed) : FRandom(Seed) { MakeState(); }

    void Paint(IPainter& Painter) const
    {
        const TRect Box{FPoints[0].X, FPoints[0].Y, FPoints[1].X, FPoints[1].Y};
        switch (FKind) {
        case 0:
            return Painter.Polyline(FState, FPoints);
        case 1:
            return Painter.Polygon(FState, FPoints);
        case 2:
            return Painter.Rectangle(FState, Box);
        case 3:
            return Painter.RoundRect(FState, Box, {9, 13});
        case 4:
            return Painter.Ellipse(FState, Box);
        case 5:
            return Painter.Arc(FState, Box, FPoints[2], FPoints[3]);
        case 6:
            return Painter.Pie(FState, Box, FPoints[2], FPoints[3]);
        case 7:
            return Painter.Chord(FState, Box, FPoints[2], FPoints[3]);
        case 8:
            return Painter.FillRect(FState, Box);
        case 9:
            return Painter.FrameRect(FState, Box);
        case 10:
            return Painter.InvertRect(Box);
        default:
            return Painter.FocusRect(Box);
        }
    }

private:
    int Pick(int Low, int High) { return std::uniform_int_distribution(Low, High)(FRandom); }

    void MakeState()
    {
        FKind = Pick(0, 11);
        FState.Pen = {static_cast<TPenStyle>(Pick(0, 6)), Pick(0, 2) == 0 ? Pick(2, 6) : 1, 0x102030};
        FState.Brush.Style = static_cast<TBrushStyle>(Pick(0, 9));
        FState.Brush.Color = 0x80C0FF;
        FState.Brush.Mono = {0x11, 0x22, 0x44, 0x88, 0xFF, 0x00, 0xA5, 0x5A};
        for (std::size_t Cell = 0; Cell < 64; ++Cell)
            FState.Brush.Pattern[Cell] = static_cast<std::uint32_t>(Cell * 0x030507);
        FState.BackColor = 0xFFEE00;
        FState.BackMode = Pick(0, 1) == 0 ? TBackgroundMode::bmOpaque : TBackgroundMode::bmTransparent;
        FState.Mode = Pick(0, 1) == 0 ? TPenMode::pmCopy : static_cast<TPenMode>(Pick(0, 15));
        FState.FillMode = Pick(0, 1) == 0 ? TFillMode::fmAlternate : TFillMode::fmWinding;
        for (int Index = Pick(4, 7); Index > 0; --Index)
            FPoints.push_back({Pick(-30, 70), Pick(-30, 70)});
    }

    std::mt19937 FRandom;
    int FKind = 0;
    TDrawState FState;
    std::vector<TPoint> FPoints;
};

TSurface Painted(double Scale, const std::function<void(TRasterPainter&)>& Paint)
{
    TSurface Surface(40, 40, Scale, 0xC0FFEE);
    TRasterPainter Painter(Surface);
    Paint(Painter);
    return Surface;
}

TRegion Holes()
{
    TRegion Region(TRect{3, 2, 37, 38});
    Region.Subtract(TRect{10, 8, 14, 12});
    Region.Subtract(TRect{20, 8, 33, 21});
    Region.Subtract(TRect{5, 25, 30, 26});
    return Region;
}

} // namespace

TEST(RasterPainter, ClippingLeavesEveryVisiblePixelAsItWouldBeWithout)
{
    const TRegion Region = Holes();
    for (unsigned Seed = 0; Seed < 1500; ++Seed) {
        const TRandomFigure Figure(Seed);
        const double Scale = std::array{1.0, 1.25, 2.0}[Seed % 3];
        const TSurface Whole = Painted(Scale, [&](TRasterPainter& Painter) { Figure.Paint(Painter); });
        const TSurface Clipped = Painted(Scale, [&](TRasterPainter& Painter) {
            Painter.SetClip(&Region);
            Figure.Paint(Painter);
        });
        std::vector<TRect> Visible;
        for (const TRect& Rect : Region.GetRects())
            Visible.push_back(Whole.ToDevice(Rect));
        const TRegion Device = TRegion::FromRects(Visible);
        for (int Y = 0; Y < Whole.GetDeviceHeight(); ++Y)
            for (int X = 0; X < Whole.GetDeviceWidth(); ++X)
                ASSERT_EQ(Clipped.Row(Y)[X], Device.Contains(TPoint{X, Y}) ? Whole.Row(Y)[X] : 0xFFC0FFEEu)
                    << "figure " << Seed << " at " << X << ", " << Y;
    }
}

TEST(RasterPainter, PaintsNothingThroughAnEmptyClip)
{
    const TRegion Nothing;
    for (unsigned Seed = 0; Seed < 200; ++Seed) {
        const TSurface Surface = Painted(1.0, [&](TRasterPainter& Painter) {
            Painter.SetClip(&Nothing);
            EXPECT_TRUE(Painter.ClipBounds().IsEmpty());
            TRandomFigure(Seed).Paint(Painter);
            Painter.SetPixel({5, 5}, 0);
        });
        EXPECT_EQ(raster::PictureOf(Surface), raster::PictureOf(Painted(1.0, [](TRasterPainter&) {})));
    }
}

TEST(RasterPainter, CoversEveryPixelOfSolidFiguresOnceSoThatInvertingThemIsSeen)
{
    for (const double Scale : {1.0, 1.25, 1.5, 2.0}) {
        for (int Width = 1; Width < 12; ++Width) {
            TDrawState State = Inked(White, White);
            State.Mode = TPenMode::pmXor;
            TSurface Surface(40, 40, Scale, 0);
            TRasterPainter Painter(Surface);
            const TRect Box = Bounds(5, 6, Width + 1, 9);
            Painter.Rectangle(State, Box);
            const TRect Device = Surface.ToDevice(Box);
            for (int Y = 0; Y < Surface.GetDeviceHeight(); ++Y)
                for (int X = 0; X < Surface.GetDeviceWidth(); ++X)
                    ASSERT_EQ((Surface.Row(Y)[X] & White) == White, Device.Contains(TPoint{X, Y}))
                        << Scale << " " << Width << " at " << X << ", " << Y;
        }
    }
}

TEST(RasterPainter, LinesFromAndToTheEndsOfIntHitTheExactPixels)
{
    const std::array<std::array<TPoint, 2>, 5> Lines{{
        {TPoint{INT_MIN, INT_MIN + 7}, TPoint{INT_MAX, INT_MAX}},
        {TPoint{INT_MAX, -1}, TPoint{INT_MIN, 61}},
        {TPoint{INT_MIN, 11}, TPoint{INT_MAX, 11}},
        {TPoint{-2000000000, -1000000007}, TPoint{2000000011, 1000000051}},
        {TPoint{17, INT_MIN}, TPoint{23, INT_MAX}},
    }};
    for (const auto& Line : Lines) {
        TSurface Surface(40, 40);
        TRasterPainter(Surface).Polyline(Inked(0, 0), Line);
        const long double DeltaX = static_cast<long double>(Line[1].X) - Line[0].X;
        const long double DeltaY = static_cast<long double>(Line[1].Y) - Line[0].Y;
        int Count = 0;
        for (int Y = 0; Y < 40; ++Y) {
            for (int X = 0; X < 40; ++X) {
                const long double OffX =
                    X - (Line[0].X + (Y - static_cast<long double>(Line[0].Y)) * DeltaX / DeltaY);
                const long double OffY =
                    Y - (Line[0].Y + (X - static_cast<long double>(Line[0].X)) * DeltaY / DeltaX);
                const bool AlongX = std::abs(DeltaX) >= std::abs(DeltaY);
                const long double Off = AlongX ? OffY : OffX;
                const bool IsBlack = (Surface.Row(Y)[X] & White) == 0;
                Count += IsBlack ? 1 : 0;
                EXPECT_EQ(IsBlack, Off >= -0.5L && Off < 0.5L) << X << ", " << Y;
            }
        }
        EXPECT_GT(Count, 30);
    }
}

TEST(RasterPainter, TheDashPhaseIsCountedFromAStartFarOutside)
{
    TDrawState State = Inked(0, 0);
    State.Pen.Style = TPenStyle::psDash;
    State.BackMode = TBackgroundMode::bmTransparent;
    TSurface Surface(60, 2);
    TRasterPainter Painter(Surface);
    Painter.Polyline(State, std::array{TPoint{-2000000011, 0}, TPoint{60, 0}});
    Painter.Polyline(State, std::array{TPoint{2000000011, 1}, TPoint{-1, 1}});
    for (int X = 0; X < 60; ++X) {
        EXPECT_EQ(Surface.GetPixel({X, 0}) == 0, (X + 2000000011ll) % 24 < 18) << X;
        EXPECT_EQ(Surface.GetPixel({X, 1}) == 0, (2000000011ll - X) % 24 < 18) << X;
    }
}

TEST(RasterPainter, TakesCoordinatesFromTheWholeRangeOfInt)
{
    constexpr std::array Values{INT_MIN, INT_MIN + 1, -1000000, -1,          0,      1,
                                39,      40,          1000000,  INT_MAX - 1, INT_MAX};
    std::mt19937 Random(5);
    const auto Pick = [&] { return Values[Random() % Values.size()]; };
    for (const double Scale : {1.0, 1.5, 0.5, 16.0}) {
        TSurface Surface(20, 20, Scale);
        TRasterPainter Painter(Surface);
        const TRegion Region = Holes();
        for (int Round = 0; Round < 150; ++Round) {
            TDrawState State = Inked(static_cast<std::uint32_t>(Random() & White), 0x123456);
            State.Pen.Style = static_cast<TPenStyle>(Random() % 7);
            State.Pen.Width = Round % 3 == 0 ? Values[Random() % Values.size()] : 1;
            State.Brush.Style = static_cast<TBrushStyle>(Random() % 10);
            Painter.SetClip(Round % 2 == 0 ? &Region : nullptr);
            const TRect Rect{Pick(), Pick(), Pick(), Pick()};
            const std::array Points{TPoint{Pick(), Pick()}, TPoint{Pick(), Pick()}, TPoint{Pick(), Pick()}};
            Painter.Polyline(State, Points);
            Painter.Polygon(State, Points);
            Painter.Rectangle(State, Rect);
            Painter.RoundRect(State, Rect, {Pick(), Pick()});
            Painter.Ellipse(State, Rect);
            Painter.Arc(State, Rect, Points[0], Points[1]);
            Painter.Pie(State, Rect, Points[0], Points[1]);
            Painter.Chord(State, Rect, Points[0], Points[1]);
            Painter.FillRect(State, Rect);
            Painter.FrameRect(State, Rect);
            Painter.InvertRect(Rect);
            Painter.FocusRect(Rect);
            Painter.SetPixel(Points[0], 0);
            Painter.StretchCopy(Rect, Surface, {Pick(), Pick(), Pick(), Pick()});
        }
        EXPECT_EQ(Surface.Row(0)[0] >> 24, 0xFFu) << "pixels stay opaque";
    }
}

TEST(RasterPainter, AnEnormousRectangleFillsTheSurface)
{
    TSurface Surface(8, 8);
    TRasterPainter Painter(Surface);
    Painter.Rectangle(Inked(0xFF0000, 0), TRect{INT_MIN, 2, INT_MAX, INT_MAX});
    EXPECT_EQ(raster::Rows(Surface),
              "........\n........\nrrrrrrrr\n########\n########\n########\n########\n########\n");
}

TEST(RasterPainter, ARectangleInsideItsFrameStaysInItsBox)
{
    for (const double Scale : {1.0, 1.25, 1.5, 2.0}) {
        for (int Width = 1; Width < 30; ++Width) {
            TDrawState State = Inked(0, 0xFF0000);
            State.Pen = {TPenStyle::psInsideFrame, Width, 0};
            TSurface Surface(30, 30, Scale);
            TRasterPainter Painter(Surface);
            const TRect Box{5, 6, 25, 24};
            Painter.Rectangle(State, Box);
            Painter.Ellipse(State, Box);
            const TRect Device = Surface.ToDevice(Box);
            for (int Y = 0; Y < Surface.GetDeviceHeight(); ++Y)
                for (int X = 0; X < Surface.GetDeviceWidth(); ++X)
                    if (!Device.Contains(TPoint{X, Y})) {
                        ASSERT_EQ(Surface.Row(Y)[X] & White, White) << Scale << " " << Width;
                    }
        }
    }
}

TEST(RasterPainter, EveryThreadMayPaintOnItsOwnSurface)
{
    const auto PaintAll = [] {
        return Painted(1.0, [](TRasterPainter& Painter) {
            for (unsigned Seed = 0; Seed < 300; ++Seed)
                TRandomFigure(Seed).Paint(Painter);
        });
    };
    const raster::TPicture Expected = raster::PictureOf(PaintAll());
    std::array<raster::TPicture, 4> Pictures;
    std::vector<std::thread> Threads;
    for (raster::TPicture& Picture : Pictures)
        Threads.emplace_back([&] { Picture = raster::PictureOf(PaintAll()); });
    for (std::thread& Thread : Threads)
        Thread.join();
    for (const raster::TPicture& Picture : Pictures)
        EXPECT_EQ(Picture, Expected);
}
