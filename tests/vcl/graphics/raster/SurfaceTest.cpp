#include <gtest/gtest.h>

#include <climits>
#include <cmath>
#include <limits>

#include "vcl/graphics/Region.h"
#include "vcl/graphics/Surface.h"
#include "vcl/system/Exception.h"

using namespace vcl;

namespace
{

/// Each device pixel holds its own number.
void Number(TSurface& Surface)
{
    for (int Y = 0; Y < Surface.GetDeviceHeight(); ++Y)
        for (int X = 0; X < Surface.GetDeviceWidth(); ++X)
            Surface.Row(Y)[X] = 0xFF000000u | static_cast<std::uint32_t>(Y * 1000 + X);
}

int NumberAt(const TSurface& Surface, int X, int Y)
{
    return static_cast<int>(Surface.Row(Y)[X] & 0xFFFFFF);
}

} // namespace

TEST(Surface, IsFilledAndOpaque)
{
    const TSurface Surface(3, 2, 1.0, 0x123456);
    EXPECT_EQ(Surface.Row(1)[2], 0xFF123456u);
    EXPECT_EQ(Surface.GetPixel({2, 1}), 0x123456u);
    EXPECT_EQ(Surface.GetPixel({3, 1}), 0u);
    EXPECT_EQ(Surface.GetPixel({INT_MIN, INT_MAX}), 0u);
}

TEST(Surface, RefusesSizesAndScalesThatMakeNoSense)
{
    EXPECT_THROW(TSurface(-1, 5), EInvalidGraphicOperation);
    EXPECT_THROW(TSurface(INT_MAX, INT_MAX), EInvalidGraphicOperation);
    EXPECT_THROW(TSurface(60000, 60000), EInvalidGraphicOperation);
    EXPECT_THROW(TSurface(60000, 10, 2.0), EInvalidGraphicOperation);
    EXPECT_THROW(TSurface(10, 10, 0.0), EInvalidGraphicOperation);
    EXPECT_THROW(TSurface(10, 10, std::numeric_limits<double>::quiet_NaN()), EInvalidGraphicOperation);
    EXPECT_THROW(TSurface(10, 10, std::numeric_limits<double>::infinity()), EInvalidGraphicOperation);
}

TEST(Surface, ThatRefusesASizeStaysAsItWas)
{
    TSurface Surface(4, 4, 1.0, 0xABCDEF);
    EXPECT_THROW(Surface.Resize(INT_MAX, 1), EInvalidGraphicOperation);
    EXPECT_EQ(Surface.GetWidth(), 4);
    EXPECT_EQ(Surface.GetPixel({3, 3}), 0xABCDEFu);
}

TEST(Surface, MayBeEmpty)
{
    TSurface Surface(0, 7);
    EXPECT_EQ(Surface.GetDeviceWidth(), 0);
    Surface.Fill(1);
    EXPECT_TRUE(Surface.Scroll(TRect{0, 0, 10, 10}, 1, 1));
    EXPECT_EQ(Surface.GetPixel({0, 0}), 0u);
}

TEST(Surface, KeepsItsContentWhenResized)
{
    TSurface Surface(4, 3);
    Number(Surface);
    Surface.Resize(6, 2, 1.0, 0x00FF00);
    EXPECT_EQ(NumberAt(Surface, 3, 1), 1003);
    EXPECT_EQ(Surface.GetPixel({4, 1}), 0x00FF00u);
    Surface.Resize(6, 2, 2.0, 0x0000FF);
    EXPECT_EQ(Surface.GetDeviceWidth(), 12);
    EXPECT_EQ(Surface.GetPixel({0, 0}), 0x0000FFu);
}

TEST(Surface, RoundsEdgesSoThatUnitsAndDevicePixelsCoverEachOther)
{
    for (const double Scale : {0.5, 1.0, 1.25, 1.5, 1.75, 2.0, 3.0}) {
        const TSurface Surface(100, 100, Scale);
        for (int Unit = -50; Unit < 150; ++Unit) {
            EXPECT_NEAR(Surface.ToDevice(Unit), Unit * Scale, 0.5);
            EXPECT_LE(Surface.ToDevice(Unit), Surface.ToDevice(Unit + 1));
        }
        for (int Pixel = -20; Pixel < 60; ++Pixel) {
            const TRect Device{Pixel, Pixel, Pixel + 7, Pixel + 1};
            const TRect Units = Surface.ToUnits(Device);
            const TRect Covered = Surface.ToDevice(Units);
            EXPECT_LE(Covered.Left, Device.Left);
            EXPECT_GE(Covered.Right, Device.Right);
            EXPECT_GT(Surface.ToDevice(Units.Left + 1), Device.Left) << "no smaller rectangle covers it";
            EXPECT_LT(Surface.ToDevice(Units.Right - 1), Device.Right);
        }
        EXPECT_EQ(Surface.ToDevice(INT_MAX) > 0, true);
        EXPECT_LT(Surface.ToDevice(INT_MIN), 0);
    }
}

TEST(Surface, ScrollsOnlyInsideTheArea)
{
    for (const TPoint Move : {TPoint{2, 1}, TPoint{-2, -1}, TPoint{0, 3}, TPoint{3, 0}, TPoint{-1, 2}}) {
        TSurface Surface(12, 10);
        Number(Surface);
        const TRect Area{2, 1, 10, 9};
        ASSERT_TRUE(Surface.Scroll(Area, Move.X, Move.Y));
        for (int Y = 0; Y < 10; ++Y) {
            for (int X = 0; X < 12; ++X) {
                const TPoint Source{X - Move.X, Y - Move.Y};
                const bool Moved = Area.Contains(TPoint{X, Y}) && Area.Contains(Source);
                EXPECT_EQ(NumberAt(Surface, X, Y), Moved ? Source.Y * 1000 + Source.X : Y * 1000 + X);
            }
        }
    }
}

TEST(Surface, ScrollsByMoreThanTheAreaWithoutMovingAnything)
{
    TSurface Surface(5, 5);
    Number(Surface);
    EXPECT_TRUE(Surface.Scroll(TRect{0, 0, 5, 5}, INT_MAX, INT_MIN));
    EXPECT_EQ(NumberAt(Surface, 4, 4), 4004);
}

TEST(Surface, ScrollsByWholeDevicePixelsOnly)
{
    TSurface Surface(16, 16, 1.25);
    Number(Surface);
    EXPECT_FALSE(Surface.CanScroll(0, 3));
    EXPECT_FALSE(Surface.Scroll(TRect{0, 0, 16, 16}, 0, 3));
    EXPECT_EQ(NumberAt(Surface, 0, 10), 10000);
    EXPECT_TRUE(Surface.Scroll(TRect{0, 0, 16, 16}, 0, 4));
    EXPECT_EQ(NumberAt(Surface, 0, 10), 5000);
}
