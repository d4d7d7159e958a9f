#include "vcl/graphics/Bmp.h"

#include <gtest/gtest.h>

#include "vcl/graphics/canvas/Bytes.h"
#include "vcl/system/Exception.h"

namespace vcl::tests
{

namespace
{

/// Rows of RRGGBB, separated by "/".
std::string Pixels(const TSurface& Surface)
{
    std::string Result;
    for (int Y = 0; Y < Surface.GetHeight(); ++Y) {
        Result += Y > 0 ? " / " : "";
        for (int X = 0; X < Surface.GetWidth(); ++X) {
            char Text[16];
            std::snprintf(Text, sizeof Text, "%06X", Surface.Row(Y)[X] & 0xFFFFFF);
            Result += (X > 0 ? " " : "") + std::string(Text);
        }
    }
    return Result;
}

std::string PixelsOf(const std::vector<std::uint8_t>& File)
{
    return Pixels(*ReadBmp(File).Surface);
}

std::string RefusalOf(const std::vector<std::uint8_t>& File)
{
    try {
        ReadBmp(File);
    } catch (const EInvalidGraphic& Error) {
        const std::string Start = "Bitmap image is not valid: ";
        EXPECT_EQ(Error.GetMessage().substr(0, Start.size()), Start);
        return Error.GetMessage().substr(Start.size());
    }
    return "it was read";
}

TBytes Palette(std::initializer_list<std::uint32_t> Colors)
{
    TBytes Bytes;
    for (std::uint32_t Color : Colors)
        Bytes.DWord(Color);
    return Bytes;
}

} // namespace

TEST(Bmp, OneBitPixelsStartAtTheHighestBitAndRowsAtTheBottom)
{
    TBytes Rows;
    Rows.All({0x80, 0, 0, 0, 0x40, 0, 0, 0});
    EXPECT_EQ(PixelsOf(BmpFile(2, 2, 1, 0, Palette({0x000000, 0xFF8040}), Rows)),
              "000000 FF8040 / FF8040 000000");
}

TEST(Bmp, FourBitPixelsStartAtTheHighHalf)
{
    TBytes Rows;
    Rows.All({0x12, 0x00, 0, 0});
    EXPECT_EQ(PixelsOf(BmpFile(3, 1, 4, 0, Palette({1, 2, 3}), Rows, 3)), "000002 000003 000001");
}

TEST(Bmp, EightBitPixelsOutsideThePaletteAreBlack)
{
    TBytes Rows;
    Rows.All({0, 1, 200, 0});
    EXPECT_EQ(PixelsOf(BmpFile(3, 1, 8, 0, Palette({0x112233, 0x445566}), Rows, 2)), "112233 445566 000000");
}

TEST(Bmp, SixteenBitPixelsHaveFiveBitsAColour)
{
    TBytes Rows;
    Rows.Word(0x7C00).Word(0x03E0).Word(0x001F).Word(0x4210);
    EXPECT_EQ(PixelsOf(BmpFile(4, 1, 16, 0, {}, Rows)), "FF0000 00FF00 0000FF 848484");
}

TEST(Bmp, BitFieldsSayWhereTheColoursAre)
{
    TBytes Rows;
    Rows.Word(0xF800).Word(0x07E0).Word(0x001F).Word(0xFFFF);
    EXPECT_EQ(PixelsOf(BmpFile(4, 1, 16, 3, Palette({0xF800, 0x07E0, 0x001F}), Rows)),
              "FF0000 00FF00 0000FF FFFFFF");
    TBytes Wide;
    Wide.DWord(0x3FF00000).DWord(0x000FFC00).DWord(0x000003FF);
    EXPECT_EQ(PixelsOf(BmpFile(3, 1, 32, 3, Palette({0x3FF00000, 0xFFC00, 0x3FF}), Wide)),
              "FF0000 00FF00 0000FF");
    TBytes NoBlue;
    NoBlue.DWord(0xFFFFFFFF);
    EXPECT_EQ(PixelsOf(BmpFile(1, 1, 32, 3, Palette({0xFF0000, 0xFF00, 0}), NoBlue)), "FFFF00");
}

TEST(Bmp, TrueColourPixelsAreBlueGreenRedAndAlphaIsIgnored)
{
    TBytes Rows;
    Rows.All({1, 2, 3, 4, 5, 6, 0, 0});
    EXPECT_EQ(PixelsOf(BmpFile(2, 1, 24, 0, {}, Rows)), "030201 060504");
    TBytes Wide;
    Wide.All({1, 2, 3, 0, 4, 5, 6, 255});
    EXPECT_EQ(PixelsOf(BmpFile(2, 1, 32, 0, {}, Wide)), "030201 060504");
}

TEST(Bmp, ANegativeHeightMeansRowsFromTheTop)
{
    TBytes Rows;
    Rows.All({1, 0, 0, 0, 2, 0, 0, 0});
    EXPECT_EQ(PixelsOf(BmpFile(1, -2, 24, 0, {}, Rows)), "000001 / 000002");
}

TEST(Bmp, TheOldestHeaderHasShortFieldsAndPaletteEntriesOfThreeBytes)
{
    TBytes File;
    File.Byte('B').Byte('M').DWord(36).DWord(0).DWord(32).DWord(12).Word(2).Word(1).Word(1).Word(1);
    File.All({10, 20, 30, 40, 50, 60, 0x40, 0, 0, 0});
    EXPECT_EQ(PixelsOf(File.Content), "1E140A 3C3228");
}

TEST(Bmp, RunsOfEightBitsRepeatSkipAndEndRows)
{
    TBytes Runs;
    Runs.All({2, 1, 0, 0});       // two pixels, end of row
    Runs.All({0, 2, 1, 1});       // one right, one up
    Runs.All({0, 3, 1, 2, 1, 0}); // three literal pixels and a filling byte
    Runs.All({9, 2, 0, 1});       // a run beyond the row's end, end of picture
    EXPECT_EQ(PixelsOf(BmpFile(4, 3, 8, 1, Palette({0, 1, 2}), Runs, 3)),
              "000000 000001 000002 000001 / 000000 000000 000000 000000 / 000001 000001 000000 000000");
}

TEST(Bmp, RunsOfFourBitsAlternateTwoPixels)
{
    TBytes Runs;
    Runs.All({5, 0x12, 0, 0, 0, 5, 0x21, 0x21, 0x20, 0, 0, 1});
    EXPECT_EQ(PixelsOf(BmpFile(5, 2, 4, 2, Palette({0, 1, 2}), Runs, 3)),
              "000002 000001 000002 000001 000002 / 000001 000002 000001 000002 000001");
}

TEST(Bmp, DamagedFilesAreRefusedWithTheReason)
{
    TBytes Row;
    Row.All({0, 0, 0, 0});
    const std::vector<std::uint8_t> Good = BmpFile(1, 1, 24, 0, {}, Row);
    EXPECT_EQ(RefusalOf(Good), "it was read");
    EXPECT_EQ(RefusalOf({}), "it ends within its header");
    EXPECT_EQ(RefusalOf({Good.begin(), Good.begin() + 30}), "it ends within its header");
    EXPECT_EQ(RefusalOf({Good.begin(), Good.end() - 1}), "it ends within its pixels");
    std::vector<std::uint8_t> NoMagic = Good;
    NoMagic[0] = 'X';
    EXPECT_EQ(RefusalOf(NoMagic), "it does not begin with \"BM\"");
    EXPECT_EQ(RefusalOf(BmpFile(1, 1, 7, 0, {}, Row)), "7 bits a pixel are not known");
    EXPECT_EQ(RefusalOf(BmpFile(1, 1, 24, 1, {}, Row)), "compression 1 with 24 bits a pixel is not known");
    EXPECT_EQ(RefusalOf(BmpFile(1, 1, 32, 4, {}, Row)), "compression 4 with 32 bits a pixel is not known");
    EXPECT_EQ(RefusalOf(BmpFile(0, 1, 24, 0, {}, Row)), "its size of 0 x 1 is out of range");
    EXPECT_EQ(RefusalOf(BmpFile(-5, 1, 24, 0, {}, Row)), "its size of -5 x 1 is out of range");
    EXPECT_EQ(RefusalOf(BmpFile(1, INT32_MIN, 24, 0, {}, Row)), "its height is out of range");
    EXPECT_EQ(RefusalOf(BmpFile(1, -1, 8, 1, Palette({0}), Row, 1)),
              "run-length encoded rows cannot run from the top");
    EXPECT_EQ(RefusalOf(BmpFile(4, 1, 8, 1, Palette({0}), TBytes().All({2, 0}), 1)),
              "it ends within its pixels");
}

TEST(Bmp, ClaimsOfHugePicturesTakeNoMemory)
{
    TBytes Row;
    Row.All({0, 0, 0, 0});
    EXPECT_EQ(RefusalOf(BmpFile(60000, 2000, 24, 0, {}, Row)), "it ends within its pixels");
    EXPECT_EQ(RefusalOf(BmpFile(60000, 2000, 8, 1, Palette({0}), Row, 1)),
              "it has too little data for its size");
    EXPECT_EQ(RefusalOf(BmpFile(60000, 60000, 1, 0, {}, Row)), "its size of 60000 x 60000 is out of range");
    EXPECT_EQ(RefusalOf(BmpFile(INT32_MAX, INT32_MAX, 1, 0, {}, Row)),
              "its size of 2147483647 x 2147483647 is out of range");
}

TEST(Bmp, TheLengthIsTheHeadersUnlessThatIsTooShort)
{
    TBytes Row;
    Row.All({0, 0, 0, 0});
    TBytes File;
    File.Add(BmpFile(1, 1, 24, 0, {}, Row));
    EXPECT_EQ(BmpFileSize(File.Content, 100), 58);
    File.PutDWord(2, 60);
    EXPECT_EQ(BmpFileSize(File.Content, 100), 60);
    File.PutDWord(2, 54); // some writers count the headers alone
    EXPECT_EQ(BmpFileSize(File.Content, 100), 58);
    File.PutDWord(2, 5000);
    EXPECT_EQ(BmpFileSize(File.Content, 100), 58);
    EXPECT_THROW(BmpFileSize(File.Content, 57), EInvalidGraphic);
}

TEST(Bmp, WhatIsWrittenIsReadBack)
{
    TSurface Surface(3, 2);
    Surface.Row(0)[0] = 0xFF123456;
    Surface.Row(1)[2] = 0xFFABCDEF;
    for (int BitCount : {24, 32}) {
        const std::vector<std::uint8_t> File = WriteBmp(Surface, BitCount);
        EXPECT_EQ(File.size(), 54u + 2 * 12) << BitCount;
        EXPECT_EQ(PixelsOf(File), Pixels(Surface)) << BitCount;
        EXPECT_EQ(ReadBmp(File).BitCount, BitCount);
        EXPECT_EQ(BmpFileSize(File, static_cast<std::int64_t>(File.size())),
                  static_cast<std::int64_t>(File.size()));
    }
    const std::uint8_t Mask[] = {1, 0, 0, 0, 0, 0, 0, 0, 0, 1};
    EXPECT_EQ(PixelsOf(WriteMonochromeBmp(Mask, 10, 1)),
              "FFFFFF 000000 000000 000000 000000 000000 000000 000000 000000 FFFFFF");
}

} // namespace vcl::tests
