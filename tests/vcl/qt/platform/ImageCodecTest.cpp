#include <gtest/gtest.h>

#include <QBuffer>
#include <QImage>

#include "vcl/platform/qt/QtImageCodec.h"
#include "vcl/system/Exception.h"

namespace vcl
{

namespace
{

const TDecodedImage Sample = {3, 2, {0xFFFF0000, 0xFF00FF00, 0xFF0000FF, 0x80102030, 0x00000000, 0xFFFFFFFF}};

} // namespace

TEST(QtImageCodec, APngComesBackWithItsColorsAndItsTransparency)
{
    qt::TImageCodec Codec;
    const TDecodedImage Back = Codec.Decode(Codec.Encode(Sample, "png"));
    EXPECT_EQ(Back.Width, 3);
    EXPECT_EQ(Back.Height, 2);
    EXPECT_EQ(Back.Pixels, Sample.Pixels);
}

TEST(QtImageCodec, AJpegIsRead)
{
    qt::TImageCodec Codec;
    TDecodedImage Red{16, 16, std::vector<std::uint32_t>(256, 0xFFFF0000)};
    const TDecodedImage Back = Codec.Decode(Codec.Encode(Red, "jpg"));
    ASSERT_EQ(Back.Pixels.size(), 256u);
    EXPECT_GT((Back.Pixels[100] >> 16) & 0xFF, 0xF0u);
    EXPECT_LT(Back.Pixels[100] & 0xFF, 0x10u);
}

TEST(QtImageCodec, WhatIsNoPictureRaises)
{
    qt::TImageCodec Codec;
    const std::vector<std::uint8_t> Text = {'h', 'e', 'l', 'l', 'o'};
    EXPECT_THROW(Codec.Decode(Text), EInvalidGraphic);
    EXPECT_THROW(Codec.Decode({}), EInvalidGraphic);
}

TEST(QtImageCodec, ADamagedPngRaises)
{
    qt::TImageCodec Codec;
    std::vector<std::uint8_t> Bytes = Codec.Encode(Sample, "png");
    Bytes.resize(40);
    EXPECT_THROW(Codec.Decode(Bytes), EInvalidGraphic);
}

TEST(QtImageCodec, ALyingPngSizeTakesNoMemory)
{
    qt::TImageCodec Codec;
    std::vector<std::uint8_t> Bytes = Codec.Encode(Sample, "png");
    // Width and height stand behind the signature and the header chunk's name.
    for (const std::size_t Place : {16u, 20u})
        Bytes[Place] = 0x7F;
    EXPECT_THROW(Codec.Decode(Bytes), EInvalidGraphic);
}

TEST(QtImageCodec, AnUnknownFormatCannotBeWritten)
{
    qt::TImageCodec Codec;
    EXPECT_THROW(Codec.Encode(Sample, "nothing"), EInvalidGraphicOperation);
    EXPECT_THROW(Codec.Encode({}, "png"), EInvalidGraphicOperation);
}

} // namespace vcl
