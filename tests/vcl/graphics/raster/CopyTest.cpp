#include <gtest/gtest.h>

#include <random>

#include "vcl/graphics/RasterPainter.h"
#include "vcl/graphics/raster/Picture.h"
#include "vcl/system/Exception.h"

using namespace vcl;

namespace
{

TSurface Numbered(int Width, int Height, double Scale = 1.0)
{
    TSurface Result(Width, Height, Scale);
    for (int Y = 0; Y < Result.GetDeviceHeight(); ++Y)
        for (int X = 0; X < Result.GetDeviceWidth(); ++X)
            Result.Row(Y)[X] = 0xFF000000u | static_cast<std::uint32_t>(Y * 256 + X);
    return Result;
}

} // namespace

TEST(StretchCopy, WithinASurfaceReadsWhatWasThereBefore)
{
    std::mt19937 Random(9);
    const auto Pick = [&](int Low, int High) { return std::uniform_int_distribution(Low, High)(Random); };
    for (int Round = 0; Round < 500; ++Round) {
        const TRect Target = Bounds(Pick(-5, 20), Pick(-5, 20), Pick(1, 24), Pick(1, 24));
        const TRect Source = Round % 2 == 0
                                 ? Bounds(Pick(-5, 20), Pick(-5, 20), Target.Width(), Target.Height())
                                 : Bounds(Pick(-5, 20), Pick(-5, 20), Pick(1, 24), Pick(1, 24));
        const TSurface Before = Numbered(24, 24);
        TSurface Apart = Numbered(24, 24);
        TRasterPainter(Apart).StretchCopy(Target, Before, Source);
        TSurface Same = Numbered(24, 24);
        TRasterPainter(Same).StretchCopy(Target, Same, Source);
        ASSERT_EQ(raster::PictureOf(Same), raster::PictureOf(Apart));
    }
}

TEST(StretchCopy, LeavesOutMaskedPixels)
{
    const TSurface Source = Numbered(4, 2);
    TSurface Target(4, 2, 1.0, 0xFF00FF);
    const std::vector<std::uint8_t> Mask{0, 1, 0, 255, 1, 0, 0, 0};
    TRasterPainter(Target).MaskedCopy(TRect{0, 0, 4, 2}, Source, TRect{0, 0, 4, 2}, Mask);
    for (int Y = 0; Y < 2; ++Y)
        for (int X = 0; X < 4; ++X)
            EXPECT_EQ(Target.GetPixel({X, Y}), Mask[static_cast<std::size_t>(Y * 4 + X)] != 0
                                                   ? 0xFF00FFu
                                                   : static_cast<std::uint32_t>(Y * 256 + X));
}

TEST(StretchCopy, RefusesAMaskOfAnotherSize)
{
    const TSurface Source = Numbered(4, 2);
    TSurface Target(4, 2);
    const std::vector<std::uint8_t> Mask(7);
    EXPECT_THROW(TRasterPainter(Target).MaskedCopy(TRect{0, 0, 4, 2}, Source, TRect{0, 0, 4, 2}, Mask),
                 EInvalidGraphicOperation);
}

TEST(StretchCopy, BetweenScalesCoversTheMappedRectangle)
{
    const TSurface Source = Numbered(10, 10);
    TSurface Target(10, 10, 2.0);
    TRasterPainter(Target).StretchCopy(TRect{1, 1, 9, 9}, Source, TRect{1, 1, 9, 9});
    for (int Y = 2; Y < 18; ++Y)
        for (int X = 2; X < 18; ++X)
            ASSERT_EQ(Target.Row(Y)[X] & 0xFFFFFF, Source.Row(Y / 2)[X / 2] & 0xFFFFFF);
    EXPECT_EQ(Target.Row(1)[1] & 0xFFFFFF, 0xFFFFFFu);
    EXPECT_EQ(Target.Row(18)[18] & 0xFFFFFF, 0xFFFFFFu);
}

TEST(StretchCopy, OfTheSameScaleKeepsDevicePixels)
{
    const TSurface Source = Numbered(12, 12, 1.25);
    TSurface Target(12, 12, 1.25);
    TRasterPainter(Target).StretchCopy(TRect{0, 0, 12, 12}, Source, TRect{0, 0, 12, 12});
    EXPECT_EQ(raster::PictureOf(Target), raster::PictureOf(Source));
}

TEST(StretchCopy, OfOrToNothingChangesNothing)
{
    const TSurface Source = Numbered(4, 4);
    TSurface Target(4, 4);
    TRasterPainter Painter(Target);
    Painter.StretchCopy(TRect{1, 1, 1, 3}, Source, TRect{0, 0, 4, 4});
    Painter.StretchCopy(TRect{0, 0, 4, 4}, Source, TRect{2, 2, 2, 2});
    Painter.StretchCopy(TRect{0, 0, 4, 4}, Source, TRect{4, 0, 8, 4});
    EXPECT_EQ(raster::Rows(Target), "....\n....\n....\n....\n");
}
