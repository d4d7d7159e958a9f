#include <gtest/gtest.h>

#include <array>
#include <cmath>

#include "vcl/graphics/RasterPainter.h"
#include "vcl/graphics/raster/Picture.h"

using namespace vcl;

namespace
{

constexpr std::uint32_t White = 0xFFFFFF;
constexpr std::array Scales{0.5, 1.0, 1.25, 1.5, 1.75, 2.0, 3.0};

TDrawState Black()
{
    TDrawState State;
    State.Brush.Color = 0;
    return State;
}

int CountBlack(const TSurface& Surface)
{
    int Result = 0;
    for (int Y = 0; Y < Surface.GetDeviceHeight(); ++Y)
        for (int X = 0; X < Surface.GetDeviceWidth(); ++X)
            Result += (Surface.Row(Y)[X] & White) == 0 ? 1 : 0;
    return Result;
}

} // namespace

TEST(RasterScale, NeighbouringRectanglesTouchWithoutOverlapping)
{
    for (const double Scale : Scales) {
        TSurface Surface(31, 29, Scale, 0);
        TRasterPainter Painter(Surface);
        for (int Y = 0; Y < 29; Y += 3)
            for (int X = 0; X < 31; X += 5)
                Painter.InvertRect(Bounds(X, Y, 5, 3));
        EXPECT_EQ(CountBlack(Surface), 0) << Scale;
    }
}

TEST(RasterScale, OneUnitLinesAreVisibleAndAsWideAsTheirUnit)
{
    for (const double Scale : Scales) {
        for (int Place = 0; Place < 20; ++Place) {
            TSurface Surface(20, 20, Scale);
            TRasterPainter Painter(Surface);
            Painter.Polyline(Black(), std::array{TPoint{2, Place}, TPoint{18, Place}});
            const int Thickness = std::max(1, Surface.ToDevice(Place + 1) - Surface.ToDevice(Place));
            const int Length = Surface.ToDevice(18) - Surface.ToDevice(2);
            EXPECT_EQ(CountBlack(Surface), Thickness * Length) << Scale << " row " << Place;
            Surface.Fill(White);
            Painter.Polyline(Black(), std::array{TPoint{Place, 18}, TPoint{Place, 2}});
            EXPECT_EQ(CountBlack(Surface), Thickness * (Surface.ToDevice(19) - Surface.ToDevice(3)))
                << Scale << " column " << Place;
        }
    }
}

TEST(RasterScale, ALineDrawnBesideARectangleTouchesIt)
{
    for (const double Scale : Scales) {
        if (Scale < 1)
            continue;
        TSurface Surface(20, 20, Scale, 0);
        TRasterPainter Painter(Surface);
        TDrawState Xor = Black();
        Xor.Pen.Color = White;
        Xor.Mode = TPenMode::pmXor;
        Painter.InvertRect(TRect{0, 0, 20, 7});
        Painter.Polyline(Xor, std::array{TPoint{0, 7}, TPoint{20, 7}});
        Painter.InvertRect(TRect{0, 8, 20, 20});
        EXPECT_EQ(CountBlack(Surface), 0) << Scale;
    }
}

TEST(RasterScale, SlopedLinesHaveTheRoundedWidthAndNoHoles)
{
    for (const double Scale : {1.25, 1.5, 2.0, 3.0}) {
        TSurface Surface(40, 30, Scale);
        TRasterPainter Painter(Surface);
        Painter.Polyline(Black(), std::array{TPoint{3, 4}, TPoint{35, 20}});
        const int Width = static_cast<int>(std::floor(Scale + 0.5));
        for (int X = Surface.ToDevice(3); X < Surface.ToDevice(35); ++X) {
            int Count = 0;
            for (int Y = 0; Y < Surface.GetDeviceHeight(); ++Y)
                Count += (Surface.Row(Y)[X] & White) == 0 ? 1 : 0;
            EXPECT_EQ(Count, Width) << Scale << " column " << X;
        }
        EXPECT_EQ(CountBlack(Surface), Width * (Surface.ToDevice(35) - Surface.ToDevice(3)));
    }
}

TEST(RasterScale, NoGapOpensBetweenAPolygonAndItsOutline)
{
    constexpr std::array<TPoint, 4> Diamond{{{20, 4}, {36, 20}, {20, 36}, {4, 20}}};
    for (const double Scale : {1.0, 1.25, 1.5, 2.0, 3.0}) {
        TSurface Surface(41, 41, Scale);
        TRasterPainter Painter(Surface);
        Painter.Polygon(Black(), Diamond);
        for (int Y = 0; Y < Surface.GetDeviceHeight(); ++Y) {
            int Runs = 0;
            for (int X = 1; X < Surface.GetDeviceWidth(); ++X)
                Runs += (Surface.Row(Y)[X] & White) == 0 && (Surface.Row(Y)[X - 1] & White) != 0 ? 1 : 0;
            EXPECT_LE(Runs, 1) << Scale << " row " << Y;
        }
    }
}

TEST(RasterScale, DashesKeepTheirLengthInUnits)
{
    TDrawState State = Black();
    State.Pen.Style = TPenStyle::psDot;
    State.BackMode = TBackgroundMode::bmTransparent;
    for (const double Scale : {1.25, 1.5, 2.0}) {
        TSurface Surface(40, 4, Scale);
        TRasterPainter Painter(Surface);
        Painter.Polyline(State, std::array{TPoint{1, 1}, TPoint{40, 1}});
        for (int Unit = 1; Unit < 40; ++Unit)
            for (int X = Surface.ToDevice(Unit); X < Surface.ToDevice(Unit + 1); ++X)
                EXPECT_EQ((Surface.Row(Surface.ToDevice(1))[X] & White) == 0, (Unit - 1) % 6 < 3)
                    << Scale << " unit " << Unit;
    }
}

TEST(RasterScale, AFocusFrameDrawnTwiceIsGone)
{
    for (const double Scale : Scales) {
        TSurface Surface(30, 30, Scale);
        TRasterPainter Painter(Surface);
        Painter.FocusRect(TRect{2, 3, 27, 26});
        EXPECT_GT(CountBlack(Surface), 10) << Scale;
        Painter.FocusRect(TRect{2, 3, 27, 26});
        EXPECT_EQ(CountBlack(Surface), 0) << Scale;
    }
}

TEST(RasterScale, EllipsesFillTheirBoxAndAreSymmetric)
{
    for (const double Scale : {1.0, 1.25, 1.5, 2.0}) {
        for (const int PenWidth : {1, 2, 3, 5}) {
            TSurface Surface(40, 40, Scale);
            TRasterPainter Painter(Surface);
            TDrawState State = Black();
            State.Pen.Width = PenWidth;
            State.Pen.Style = TPenStyle::psInsideFrame;
            State.Brush.Style = TBrushStyle::bsClear;
            const TRect Box{4, 6, 36, 30};
            Painter.Ellipse(State, Box);
            const TRect Device = Surface.ToDevice(Box);
            TRect Reached{1000, 1000, 0, 0};
            for (int Y = 0; Y < Surface.GetDeviceHeight(); ++Y) {
                for (int X = 0; X < Surface.GetDeviceWidth(); ++X) {
                    if ((Surface.Row(Y)[X] & White) != 0)
                        continue;
                    Reached = {std::min(Reached.Left, X), std::min(Reached.Top, Y),
                               std::max(Reached.Right, X + 1), std::max(Reached.Bottom, Y + 1)};
                    const int MirrorX = Device.Left + Device.Right - 1 - X;
                    const int MirrorY = Device.Top + Device.Bottom - 1 - Y;
                    EXPECT_EQ(Surface.Row(MirrorY)[X] & White, 0u);
                    EXPECT_EQ(Surface.Row(Y)[MirrorX] & White, 0u);
                }
            }
            EXPECT_EQ(Reached, Device) << Scale << " pen " << PenWidth;
        }
    }
}

TEST(RasterScale, TextGetsDevicePixelsAndTheWidthOfScaleOne)
{
    struct TEngine : ITextEngine {
        TFontMetrics Metrics(const TFontSpec&) override { return {.Height = 10, .Ascent = 8}; }
        int TextWidth(const TFontSpec&, std::string_view Text) override
        {
            return 6 * static_cast<int>(Text.size());
        }
        void Extents(const TFontSpec&, std::string_view, std::vector<int>&) override {}
        void Draw(const TTextRun& Run, const TPixelBuffer& Target, std::span<const TRect> Clip) override
        {
            Runs.push_back(Run);
            Clips.emplace_back(Clip.begin(), Clip.end());
            Width = Target.Width;
        }
        std::vector<TTextRun> Runs;
        std::vector<std::vector<TRect>> Clips;
        int Width = 0;
    } Engine;
    TSurface Surface(40, 40, 1.5);
    TRasterPainter Painter(Surface, &Engine);
    TRegion Clip(TRect{0, 0, 20, 20});
    Clip.Union(TRect{30, 10, 40, 20});
    Painter.SetClip(&Clip);
    TDrawState State;
    State.BackColor = 0x0000FF;
    State.TextColor = 0x112233;
    Painter.Text(State, TFontSpec{}, {3, 5}, "ab", true);
    Painter.Text(State, TFontSpec{}, {3, 100}, "below", false);
    ASSERT_EQ(Engine.Runs.size(), 1u);
    const TTextRun& Run = Engine.Runs[0];
    EXPECT_EQ(Run.Origin, (TPoint{5, 8}));
    EXPECT_EQ(Run.Color, 0xFF112233u);
    EXPECT_EQ(Run.Scale, 1.5);
    EXPECT_EQ(Run.Width, 12);
    EXPECT_TRUE(Run.RightToLeft);
    EXPECT_EQ(Engine.Width, 60);
    EXPECT_EQ(TRegion::FromRects(Engine.Clips[0]),
              TRegion::FromRects(std::array{TRect{0, 0, 30, 30}, TRect{45, 15, 60, 30}}));
    EXPECT_EQ(Surface.Row(8)[5] & White, 0x0000FFu) << "the cell is filled first";
    EXPECT_EQ(Surface.Row(22)[22] & White, 0x0000FFu);
    EXPECT_EQ(Surface.Row(22)[23] & White, White);
    EXPECT_EQ(Surface.Row(23)[22] & White, White);
}
