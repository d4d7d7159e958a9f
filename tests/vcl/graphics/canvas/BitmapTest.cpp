#include "vcl/graphics/Bitmap.h"

#include <cstdio>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "vcl/classes/Stream.h"
#include "vcl/graphics/Canvas.h"
#include "vcl/graphics/Surface.h"
#include "vcl/graphics/canvas/Bytes.h"
#include "vcl/streaming/Filer.h"
#include "vcl/system/Exception.h"

namespace vcl::tests
{

namespace
{

/// Two pixels, red and lime, with one bit each: a form this system does not write itself.
std::vector<std::uint8_t> TwoColorFile()
{
    TBytes Palette, Row;
    Palette.DWord(0xFF0000).DWord(0x00FF00);
    Row.All({0x40, 0, 0, 0});
    return BmpFile(2, 1, 1, 0, Palette, Row);
}

void Fill(TMemoryStream& Stream, const std::vector<std::uint8_t>& Bytes)
{
    Stream.WriteBuffer(Bytes.data(), static_cast<std::int64_t>(Bytes.size()));
    Stream.SetPosition(0);
}

void Load(TBitmap& Bitmap, const std::vector<std::uint8_t>& Bytes)
{
    TMemoryStream Stream;
    Fill(Stream, Bytes);
    Bitmap.LoadFromStream(Stream);
}

std::vector<std::uint8_t> Saved(TBitmap& Bitmap)
{
    TMemoryStream Stream;
    Bitmap.SaveToStream(Stream);
    return Stream.GetBytes();
}

/// Takes the one binary property an object declares.
class TPropertyCatcher : public TFiler
{
public:
    void DefineProperty(const char*, const TReaderProc&, const TWriterProc&, bool) override {}
    void DefineBinaryProperty(const char* PropertyName, const TStreamProc& ReadData,
                              const TStreamProc& WriteData, bool HasData) override
    {
        Name = PropertyName;
        Read = ReadData;
        Write = WriteData;
        IsStored = HasData;
    }
    void SetAncestor(TPersistent* Ancestor) { FAncestor = Ancestor; }

    std::string Name;
    TStreamProc Read;
    TStreamProc Write;
    bool IsStored = false;
};

struct TCaught {
    TPropertyCatcher Catcher;
    explicit TCaught(TBitmap& Bitmap, TBitmap* Ancestor = nullptr)
    {
        Catcher.SetAncestor(Ancestor);
        Bitmap.DefineProperties(Catcher);
    }
};

template <class TError>
std::string MessageOf(const std::function<void()>& Action)
{
    try {
        Action();
    } catch (const TError& Error) {
        return Error.GetMessage();
    }
    return "nothing was raised";
}

} // namespace

TEST(Bitmap, ANewOneIsEmptyAndASizedOneWhite)
{
    EXPECT_TRUE(TBitmap().GetEmpty());
    TBitmap Bitmap(3, 2);
    EXPECT_FALSE(Bitmap.GetEmpty());
    EXPECT_EQ(Bitmap.GetCanvas()->GetPixel(2, 1), clWhite);
    EXPECT_EQ(Bitmap.GetCanvas()->GetPixel(3, 1), clNone);
    EXPECT_EQ(Bitmap.GetCanvas()->GetPixel(-1, 0), clNone);
}

TEST(Bitmap, ItsCanvasDrawsOnItsPixels)
{
    TBitmap Bitmap(4, 4);
    TCanvas* const Canvas = Bitmap.GetCanvas();
    Canvas->GetBrush()->SetColor(clBtnFace);
    Canvas->FillRect({1, 1, 3, 3});
    EXPECT_EQ(Canvas->GetPixel(1, 1), TColor(0xC0C0C0));
    EXPECT_EQ(Canvas->GetPixel(2, 2), TColor(0xC0C0C0));
    EXPECT_EQ(Canvas->GetPixel(3, 3), clWhite);
}

TEST(Bitmap, TextOnABitmapShowsAsCells)
{
    TBitmap Bitmap(30, 20);
    TCanvas* const Canvas = Bitmap.GetCanvas();
    Canvas->GetFont()->SetHeight(-15);
    Canvas->TextOut(0, 0, "a");
    EXPECT_EQ(Canvas->GetPixel(2, 8), clBlack);
    EXPECT_EQ(Canvas->GetPixel(2, 15), clWhite);
}

TEST(Bitmap, AnotherSizeKeepsWhatBothShareAndTheCanvasGoesOn)
{
    TBitmap Bitmap(2, 2);
    Bitmap.GetCanvas()->SetPixel(1, 1, clRed);
    Bitmap.SetSize(40, 30);
    EXPECT_EQ(Bitmap.GetCanvas()->GetPixel(1, 1), clRed);
    Bitmap.GetCanvas()->SetPixel(39, 29, clBlue);
    EXPECT_EQ(Bitmap.GetCanvas()->GetPixel(39, 29), clBlue);
    EXPECT_THROW(Bitmap.SetWidth(-1), EInvalidGraphicOperation);
    EXPECT_THROW(Bitmap.SetSize(1000000, 1000000), EInvalidGraphicOperation);
    EXPECT_EQ(Bitmap.GetWidth(), 40);
}

TEST(Bitmap, DrawingOnAnEmptyOnePaintsNothing)
{
    TBitmap Bitmap;
    Bitmap.GetCanvas()->FillRect({0, 0, 10, 10});
    EXPECT_TRUE(Bitmap.GetEmpty());
}

TEST(Bitmap, AFileThatWasNotTouchedIsSavedByteForByte)
{
    TBitmap Bitmap;
    Load(Bitmap, TwoColorFile());
    EXPECT_EQ(Bitmap.GetPixelFormat(), TPixelFormat::pf1bit);
    EXPECT_EQ(Bitmap.GetCanvas()->GetPixel(1, 0), clLime);
    EXPECT_FALSE(Bitmap.GetModified());
    EXPECT_EQ(Saved(Bitmap), TwoColorFile());
    TBitmap Copy;
    Copy.Assign(&Bitmap);
    EXPECT_EQ(Saved(Copy), TwoColorFile());
}

TEST(Bitmap, AfterAChangeItIsSavedWithTwentyFourOrThirtyTwoBits)
{
    TBitmap Bitmap;
    Load(Bitmap, TwoColorFile());
    Bitmap.GetCanvas()->SetPixel(0, 0, clBlue);
    EXPECT_TRUE(Bitmap.GetModified());
    EXPECT_EQ(Saved(Bitmap).at(28), 24);
    Bitmap.SetPixelFormat(TPixelFormat::pf32bit);
    EXPECT_EQ(Saved(Bitmap).at(28), 32);
    TBitmap Again;
    Load(Again, Saved(Bitmap));
    EXPECT_EQ(Again.GetPixelFormat(), TPixelFormat::pf32bit);
    EXPECT_EQ(Again.GetCanvas()->GetPixel(0, 0), clBlue);
    EXPECT_EQ(Again.GetCanvas()->GetPixel(1, 0), clLime);
}

TEST(Bitmap, InAStreamItEndsWhereItsFileEnds)
{
    TMemoryStream Stream;
    const std::vector<std::uint8_t> File = TwoColorFile();
    Stream.WriteDWord(7);
    Stream.WriteBuffer(File.data(), static_cast<std::int64_t>(File.size()));
    Stream.WriteDWord(42);
    Stream.SetPosition(4);
    TBitmap Bitmap;
    Bitmap.LoadFromStream(Stream);
    EXPECT_EQ(Stream.ReadDWord(), 42u);
    EXPECT_EQ(Bitmap.GetWidth(), 2);
}

TEST(Bitmap, DamagedDataKeepsThePreviousPicture)
{
    TBitmap Bitmap;
    Load(Bitmap, TwoColorFile());
    std::vector<std::uint8_t> Short = TwoColorFile();
    Short.pop_back();
    EXPECT_THROW(Load(Bitmap, Short), EInvalidGraphic);
    EXPECT_THROW(Load(Bitmap, {'G', 'I', 'F'}), EInvalidGraphic);
    EXPECT_EQ(Bitmap.GetWidth(), 2);
    EXPECT_EQ(Saved(Bitmap), TwoColorFile());
}

TEST(Bitmap, FilesAreLoadedAndSavedAndErrorsNameThem)
{
    const std::string Name = testing::TempDir() + "bitmap-test.bmp";
    TBitmap Bitmap(2, 2);
    Bitmap.SaveToFile(Name);
    TBitmap Again;
    Again.LoadFromFile(Name);
    EXPECT_EQ(Again.GetHeight(), 2);
    TMemoryStream Junk;
    Junk.WriteDWord(0x12344D42);
    Junk.SaveToFile(Name);
    EXPECT_EQ(MessageOf<EInvalidGraphic>([&] { Again.LoadFromFile(Name); }),
              Name + ": Bitmap image is not valid: it ends within its header");
    std::remove(Name.c_str());
    EXPECT_THROW(Again.LoadFromFile(Name), EFOpenError);
}

TEST(Bitmap, ResourcesAreFoundByNameWithoutRegardToCase)
{
    static const std::vector<std::uint8_t> File = TwoColorFile();
    RegisterResource("Bitmap_Test", File);
    TBitmap Bitmap;
    Bitmap.LoadFromResourceName("BITMAP_TEST");
    EXPECT_EQ(Bitmap.GetWidth(), 2);
    EXPECT_EQ(MessageOf<EResNotFound>([&] { Bitmap.LoadFromResourceName("NO_SUCH_BITMAP"); }),
              "Resource NO_SUCH_BITMAP not found");
}

TEST(Bitmap, TheTransparentColourIsThatOfTheBottomLeftPixelUnlessItIsSet)
{
    TBitmap Bitmap(2, 2);
    Bitmap.GetCanvas()->SetPixel(0, 1, clFuchsia);
    EXPECT_EQ(Bitmap.GetTransparentColor(), clFuchsia);
    EXPECT_EQ(Bitmap.MakeMask(), (std::vector<std::uint8_t>{0, 0, 1, 0}));
    Bitmap.SetTransparentColor(clWhite);
    EXPECT_EQ(Bitmap.GetTransparentMode(), TTransparentMode::tmFixed);
    EXPECT_EQ(Bitmap.MakeMask(), (std::vector<std::uint8_t>{1, 1, 0, 1}));
    Bitmap.SetTransparentColor(clDefault);
    EXPECT_EQ(Bitmap.GetTransparentMode(), TTransparentMode::tmAuto);
}

TEST(Bitmap, ATransparentOneLeavesThePixelsBehindIt)
{
    TBitmap Mark(2, 1);
    Mark.GetCanvas()->SetPixel(1, 0, clRed);
    Mark.SetTransparent(true);
    TBitmap Target(2, 1);
    Target.GetCanvas()->SetPixel(0, 0, clBlue);
    Target.GetCanvas()->Draw(0, 0, &Mark);
    EXPECT_EQ(Target.GetCanvas()->GetPixel(0, 0), clBlue);
    EXPECT_EQ(Target.GetCanvas()->GetPixel(1, 0), clRed);
}

TEST(Bitmap, AssigningNothingEmptiesItAndSomethingElseIsRefused)
{
    TBitmap Bitmap(2, 2);
    int Changes = 0;
    Bitmap.OnChange = [&](TObject*) { ++Changes; };
    Bitmap.Assign(nullptr);
    EXPECT_TRUE(Bitmap.GetEmpty());
    EXPECT_EQ(Changes, 1);
    const TPen Pen;
    EXPECT_THROW(Bitmap.Assign(&Pen), EConvertError);
}

TEST(Bitmap, InAFormFileItIsALengthAndItsFile)
{
    TBitmap Bitmap;
    EXPECT_FALSE(TCaught(Bitmap).Catcher.IsStored);
    Load(Bitmap, TwoColorFile());
    const TCaught Property(Bitmap);
    EXPECT_EQ(Property.Catcher.Name, "Data");
    EXPECT_TRUE(Property.Catcher.IsStored);
    TMemoryStream Stream;
    Property.Catcher.Write(Stream);
    EXPECT_EQ(Stream.GetBytes(),
              TBytes().DWord(static_cast<std::uint32_t>(TwoColorFile().size())).Add(TwoColorFile()).Content);
    TBitmap Again;
    Stream.SetPosition(0);
    TCaught(Again).Catcher.Read(Stream);
    EXPECT_EQ(Saved(Again), TwoColorFile());
}

TEST(Bitmap, WithAnAncestorOnlyADifferentPictureIsStored)
{
    TBitmap Ancestor, Same, Other(3, 3), Empty;
    Load(Ancestor, TwoColorFile());
    Load(Same, TwoColorFile());
    EXPECT_FALSE(TCaught(Same, &Ancestor).Catcher.IsStored);
    EXPECT_TRUE(TCaught(Other, &Ancestor).Catcher.IsStored);
    EXPECT_TRUE(TCaught(Empty, &Ancestor).Catcher.IsStored);
    TMemoryStream Stream;
    TCaught(Empty, &Ancestor).Catcher.Write(Stream);
    EXPECT_EQ(Stream.GetBytes(), TBytes().DWord(0).Content);
    Stream.SetPosition(0);
    TCaught(Same).Catcher.Read(Stream);
    EXPECT_TRUE(Same.GetEmpty());
}

TEST(Bitmap, ALengthInAFormFileThatLiesIsRefused)
{
    for (std::uint32_t Length : {0x7FFFFFFFu, 0xFFFFFFFFu, 100u}) {
        TMemoryStream Stream;
        Fill(Stream, TBytes().DWord(Length).Add(TwoColorFile()).Content);
        TBitmap Bitmap;
        EXPECT_THROW(TCaught(Bitmap).Catcher.Read(Stream), EInvalidGraphic) << Length;
    }
}

} // namespace vcl::tests
