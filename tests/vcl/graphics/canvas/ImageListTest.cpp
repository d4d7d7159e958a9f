#include "vcl/graphics/ImageList.h"

#include <gtest/gtest.h>

#include "vcl/classes/Stream.h"
#include "vcl/graphics/Bitmap.h"
#include "vcl/graphics/Canvas.h"
#include "vcl/graphics/Surface.h"
#include "vcl/graphics/canvas/Bytes.h"
#include "vcl/system/Exception.h"

namespace vcl::tests
{

namespace
{

/// A list of 2x2 pictures in the colours given, each with its bottom left pixel transparent (fuchsia).
class ImageList : public testing::Test
{
protected:
    ImageList() { List.SetSize(2, 2); }

    static void Paint(TBitmap& Bitmap, std::initializer_list<TColor> Colors)
    {
        Bitmap.SetSize(2 * static_cast<int>(Colors.size()), 2);
        int Left = 0;
        for (TColor Color : Colors) {
            Bitmap.GetCanvas()->GetBrush()->SetColor(Color);
            Bitmap.GetCanvas()->FillRect(Bounds(Left, 0, 2, 2));
            Bitmap.GetCanvas()->SetPixel(Left, 1, clFuchsia);
            Left += 2;
        }
    }
    int AddColors(std::initializer_list<TColor> Colors)
    {
        TBitmap Bitmap;
        Paint(Bitmap, Colors);
        return List.AddMasked(&Bitmap, clFuchsia);
    }
    /// The colour of the opaque top left pixel of a picture, drawn on white.
    TColor ColorOf(int Index) { return DrawnAt(Index, 0, 0); }
    TColor DrawnAt(int Index, int X, int Y, bool Enabled = true)
    {
        TBitmap Target(4, 4);
        List.Draw(Target.GetCanvas(), 0, 0, Index, Enabled);
        return Target.GetCanvas()->GetPixel(X, Y);
    }
    std::vector<std::uint8_t> Written() const
    {
        TMemoryStream Stream;
        List.WriteData(Stream);
        return Stream.GetBytes();
    }
    void Read(const std::vector<std::uint8_t>& Bytes)
    {
        TMemoryStream Stream;
        Stream.WriteBuffer(Bytes.data(), static_cast<std::int64_t>(Bytes.size()));
        Stream.SetPosition(0);
        List.ReadData(Stream);
    }
    int ChangesDuring(const std::function<void()>& Action)
    {
        int Count = 0;
        List.OnChange = [&](TObject*) { ++Count; };
        Action();
        List.OnChange = nullptr;
        return Count;
    }

    TImageList List;
};

} // namespace

TEST_F(ImageList, ABitmapIsCutIntoPicturesSideBySide)
{
    EXPECT_EQ(AddColors({clRed, clLime}), 0);
    EXPECT_EQ(AddColors({clBlue}), 2);
    EXPECT_EQ(List.GetCount(), 3);
    EXPECT_EQ(ColorOf(0), clRed);
    EXPECT_EQ(ColorOf(1), clLime);
    EXPECT_EQ(ColorOf(2), clBlue);
}

TEST_F(ImageList, MaskedPixelsLetTheBackgroundThrough)
{
    AddColors({clRed});
    EXPECT_EQ(DrawnAt(0, 0, 1), clWhite);
    EXPECT_EQ(DrawnAt(0, 1, 1), clRed);
    List.SetBkColor(clYellow);
    EXPECT_EQ(DrawnAt(0, 0, 1), clYellow);
    List.SetDrawingStyle(TDrawingStyle::dsTransparent);
    EXPECT_EQ(DrawnAt(0, 0, 1), clWhite);
    List.SetImageType(TImageType::itMask);
    EXPECT_EQ(DrawnAt(0, 1, 1), clBlack);
}

TEST_F(ImageList, AMaskBitmapIsWhereWhiteTransparent)
{
    TBitmap Image, Mask(2, 2);
    Paint(Image, {clRed});
    Mask.GetCanvas()->SetPixel(0, 0, clBlack);
    List.Add(&Image, &Mask);
    EXPECT_EQ(DrawnAt(0, 0, 0), clRed);
    EXPECT_EQ(DrawnAt(0, 1, 0), clWhite);
    List.SetMasked(false);
    List.Add(&Image, &Mask);
    EXPECT_EQ(DrawnAt(1, 1, 0), clRed);
    List.Add(&Image, nullptr);
    EXPECT_EQ(DrawnAt(2, 0, 1), clFuchsia);
    List.AddMasked(&Image, clDefault);
    EXPECT_EQ(DrawnAt(3, 0, 1), clWhite);
}

TEST_F(ImageList, PicturesAreReplacedInsertedMovedAndDeleted)
{
    AddColors({clRed, clLime, clBlue});
    TBitmap Bitmap;
    Paint(Bitmap, {clBlack});
    List.Replace(1, &Bitmap, nullptr);
    EXPECT_EQ(ColorOf(1), clBlack);
    List.Insert(0, &Bitmap, nullptr);
    EXPECT_EQ(ColorOf(1), clRed);
    List.Move(1, 3);
    EXPECT_EQ(ColorOf(3), clRed);
    List.Move(3, 0);
    EXPECT_EQ(ColorOf(0), clRed);
    List.Delete(0);
    EXPECT_EQ(List.GetCount(), 3);
    List.Delete(-1);
    EXPECT_EQ(List.GetCount(), 0);
}

TEST_F(ImageList, BadIndicesAndSizesAreRefused)
{
    AddColors({clRed});
    TBitmap Bitmap, Small(1, 2);
    Paint(Bitmap, {clBlack});
    EXPECT_THROW(List.Replace(1, &Bitmap, nullptr), EInvalidOperation);
    EXPECT_THROW(List.Delete(1), EInvalidOperation);
    EXPECT_THROW(List.Delete(-2), EInvalidOperation);
    EXPECT_THROW(List.Move(0, 1), EInvalidOperation);
    EXPECT_THROW(List.Insert(2, &Bitmap, nullptr), EInvalidOperation);
    EXPECT_THROW(List.Add(&Small, nullptr), EInvalidOperation);
    EXPECT_THROW(List.Add(nullptr, nullptr), EInvalidOperation);
    EXPECT_THROW(List.GetBitmap(1, &Bitmap), EInvalidOperation);
    EXPECT_EQ(List.GetCount(), 1);
}

TEST_F(ImageList, DrawingAnIndexOutsideDrawsNothing)
{
    AddColors({clRed});
    EXPECT_EQ(DrawnAt(-1, 0, 0), clWhite);
    EXPECT_EQ(DrawnAt(1, 0, 0), clWhite);
}

TEST_F(ImageList, ADisabledPictureIsAnEmbossedShape)
{
    AddColors({clRed, clYellow});
    EXPECT_EQ(DrawnAt(0, 0, 0, false), TColor(0x808080));
    EXPECT_EQ(DrawnAt(0, 2, 2, false), clWhite);
    EXPECT_EQ(DrawnAt(0, 0, 1, false), clWhite) << "transparent";
    EXPECT_EQ(DrawnAt(1, 0, 0, false), clWhite) << "bright";
}

TEST_F(ImageList, FocusedAndSelectedStylesBlendWithTheBlendColour)
{
    AddColors({clBlack});
    List.SetBlendColor(clRed);
    List.SetDrawingStyle(TDrawingStyle::dsFocus);
    EXPECT_EQ(ColorOf(0), TColor(63));
    List.SetDrawingStyle(TDrawingStyle::dsSelected);
    EXPECT_EQ(ColorOf(0), TColor(127));
}

TEST_F(ImageList, APictureIsCopiedOnTheBackgroundColour)
{
    AddColors({clRed});
    TBitmap Bitmap;
    List.GetBitmap(0, &Bitmap);
    EXPECT_EQ(Bitmap.GetCanvas()->GetPixel(1, 1), clRed);
    EXPECT_EQ(Bitmap.GetCanvas()->GetPixel(0, 1), clBlack);
}

TEST_F(ImageList, AnotherSizeEmptiesTheListAndNonsenseIsIgnored)
{
    AddColors({clRed});
    List.SetWidth(2);
    List.SetHeight(0);
    List.SetWidth(-3);
    EXPECT_EQ(List.GetCount(), 1);
    List.SetWidth(3);
    EXPECT_EQ(List.GetCount(), 0);
}

TEST_F(ImageList, EveryChangeIsToldOnceAndUpdatesCollectThem)
{
    EXPECT_EQ(ChangesDuring([&] { AddColors({clRed, clLime}); }), 1);
    EXPECT_EQ(ChangesDuring([&] { List.Move(0, 1); }), 1);
    EXPECT_EQ(ChangesDuring([&] { List.SetBkColor(clNone); }), 0);
    EXPECT_EQ(ChangesDuring([&] {
                  List.BeginUpdate();
                  List.BeginUpdate();
                  AddColors({clBlue});
                  List.Delete(0);
                  List.EndUpdate();
                  List.EndUpdate();
              }),
              1);
    EXPECT_EQ(ChangesDuring([&] {
                  List.BeginUpdate();
                  List.EndUpdate();
              }),
              0);
    EXPECT_EQ(ChangesDuring([&] { List.Clear(); }), 1);
    EXPECT_EQ(ChangesDuring([&] { List.Clear(); }), 0);
}

TEST_F(ImageList, LinksHearOfChangesUntilEitherSideDies)
{
    int Calls = 0;
    TChangeLink Link;
    Link.OnChange = [&](TObject* Sender) {
        EXPECT_EQ(Sender, Link.GetSender());
        ++Calls;
    };
    List.RegisterChanges(&Link);
    List.RegisterChanges(&Link);
    AddColors({clRed});
    EXPECT_EQ(Calls, 1);
    {
        TChangeLink Short;
        List.RegisterChanges(&Short);
    }
    {
        TImageList Other;
        Other.RegisterChanges(&Link);
        AddColors({clRed});
        EXPECT_EQ(Calls, 1);
        EXPECT_EQ(Link.GetSender(), &Other);
    }
    EXPECT_EQ(Link.GetSender(), nullptr);
    List.UnregisterChanges(&Link);
}

TEST_F(ImageList, AHandlerMayUnregisterTheOtherLink)
{
    int Calls = 0;
    TChangeLink First, Second;
    First.OnChange = [&](TObject*) { List.UnregisterChanges(&Second); };
    Second.OnChange = [&](TObject*) { ++Calls; };
    List.RegisterChanges(&First);
    List.RegisterChanges(&Second);
    AddColors({clRed});
    EXPECT_EQ(Calls, 0);
}

TEST_F(ImageList, WhatIsWrittenHasTheClassicHeaderAndIsReadBack)
{
    AddColors({clRed, clLime, clBlue, clBlack, clNavy});
    List.SetBkColor(clYellow);
    const std::vector<std::uint8_t> Bytes = Written();
    const std::vector<std::uint8_t> Header = TBytes()
                                                 .All({'I', 'L', 1, 1, 5, 0, 8, 0, 4, 0, 2, 0, 2, 0})
                                                 .DWord(0x00FFFF)
                                                 .Word(0x19)
                                                 .DWord(0xFFFFFFFF)
                                                 .DWord(0xFFFFFFFF)
                                                 .Byte('B')
                                                 .Byte('M')
                                                 .Content;
    ASSERT_GT(Bytes.size(), Header.size());
    EXPECT_EQ(std::vector<std::uint8_t>(Bytes.begin(), Bytes.begin() + static_cast<int>(Header.size())),
              Header);
    List.Clear();
    List.SetSize(7, 7);
    List.SetBkColor(clNone);
    Read(Bytes);
    EXPECT_EQ(List.GetWidth(), 2);
    EXPECT_EQ(List.GetBkColor(), clYellow);
    ASSERT_EQ(List.GetCount(), 5);
    EXPECT_EQ(ColorOf(1), clLime);
    EXPECT_EQ(ColorOf(4), clNavy);
    List.SetBkColor(clNone);
    EXPECT_EQ(DrawnAt(4, 0, 1), clWhite);
}

TEST_F(ImageList, ABlockThatWasReadIsWrittenByteForByteUntilSomethingChanges)
{
    // As older programs write it: one strip, a length in the bitmap's header that counts the headers only.
    TBytes Palette, Rows, MaskRows, Block;
    Palette.DWord(0x0000FF).DWord(0xFF0000);
    Rows.All({0x30, 0, 0, 0, 0x30, 0, 0, 0});
    MaskRows.All({0x00, 0, 0, 0, 0x80, 0, 0, 0});
    TBytes Pictures, Mask;
    Pictures.Add(BmpFile(4, 2, 1, 0, Palette, Rows)).PutDWord(2, 54);
    Mask.Add(BmpFile(4, 2, 1, 0, TBytes().DWord(0).DWord(0xFFFFFF), MaskRows)).PutDWord(2, 62);
    Block.All({'I', 'L', 1, 1, 2, 0, 4, 0, 7, 0, 2, 0, 2, 0}).DWord(0xFFFFFFFF).Word(0x10FF);
    Block.DWord(0xFFFFFFFF).DWord(0xFFFFFFFF).Add(Pictures.Content).Add(Mask.Content);
    Read(Block.Content);
    EXPECT_EQ(List.GetCount(), 2);
    EXPECT_EQ(List.GetAllocBy(), 7);
    EXPECT_EQ(List.GetBkColor(), clNone);
    EXPECT_EQ(ColorOf(0), clWhite) << "transparent";
    EXPECT_EQ(DrawnAt(0, 1, 0), clBlue);
    EXPECT_EQ(ColorOf(1), clRed);
    EXPECT_EQ(Written(), Block.Content);
    TImageList Copy;
    Copy.Assign(&List);
    TMemoryStream Stream;
    Copy.WriteData(Stream);
    EXPECT_EQ(Stream.GetBytes(), Block.Content);
    List.Move(0, 1);
    EXPECT_NE(Written(), Block.Content);
    EXPECT_EQ(ColorOf(0), clRed);
}

TEST_F(ImageList, DamagedBlocksAreRefusedAndThePicturesStay)
{
    AddColors({clRed, clLime});
    const std::vector<std::uint8_t> Good = Written();
    for (std::size_t Length = 0; Length < Good.size(); Length += 7) {
        EXPECT_THROW(Read({Good.begin(), Good.begin() + static_cast<int>(Length)}), EInvalidGraphic)
            << Length;
    }
    const std::pair<std::size_t, std::uint8_t> Damages[] = {{0, 'X'}, {2, 9},    {5, 255},  {10, 0},
                                                            {12, 0},  {11, 255}, {13, 255}, {28, 'X'}};
    for (const auto& [Offset, Value] : Damages) {
        std::vector<std::uint8_t> Bad = Good;
        Bad[Offset] = Value;
        EXPECT_THROW(Read(Bad), EInvalidGraphic) << Offset;
    }
    EXPECT_EQ(List.GetCount(), 2);
    EXPECT_EQ(ColorOf(1), clLime);
}

TEST_F(ImageList, FormFilesKnowItsPropertiesWithTheirDefaults)
{
    const TImageList Fresh;
    std::vector<std::string> Names;
    for (const TPropertyInfo* Row : PublishedProperties(TImageList::StaticClass())) {
        Names.push_back(Row->Name);
        if (Row->Default && Names.back() != "Tag") {
            EXPECT_EQ(std::get<std::int64_t>(Row->Get(Fresh)), Row->Default) << Row->Name;
        }
    }
    for (const char* Name : {"Width", "Height", "BkColor", "BlendColor", "AllocBy", "Masked", "ShareImages",
                             "DrawingStyle", "ImageType", "OnChange", "Name", "Tag"})
        EXPECT_NE(std::find(Names.begin(), Names.end(), Name), Names.end()) << Name;
}

} // namespace vcl::tests
