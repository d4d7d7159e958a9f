#include "vcl/graphics/ImageListBlock.h"

#include <algorithm>

#include "vcl/graphics/Bitmap.h"
#include "vcl/graphics/Bmp.h"
#include "vcl/system/Exception.h"

namespace vcl
{

namespace
{

constexpr std::uint16_t Magic = 0x4C49;
constexpr std::uint16_t Version = 0x101;
constexpr std::uint16_t MaskFlag = 0x1;
constexpr std::uint16_t TrueColorFlag = 0x18;
constexpr std::uint16_t NoOverlay = 0xFFFF;
constexpr int OverlayCount = 4;
constexpr int HeaderSize = 28;
constexpr int WrittenColumns = 4;

[[noreturn]] void Refuse(const char* Reason)
{
    throw EInvalidGraphic(AnsiString("Image list is not valid: ") + Reason);
}

/// The place of a picture in the bitmap that holds all of them.
TRect CellOf(int Index, int Columns, int Width, int Height)
{
    return Bounds(Index % Columns * Width, Index / Columns * Height, Width, Height);
}

int ColumnsOf(const TBitmap& Bitmap, int Count, int Width, int Height)
{
    const int Columns = Bitmap.GetWidth() / Width;
    if (Columns == 0 || std::int64_t{(Count - 1) / Columns + 1} * Height > Bitmap.GetHeight())
        Refuse("its bitmap is too small for its pictures");
    return Columns;
}

TListImage CutPicture(const TSurface& Source, const TRect& Cell)
{
    TListImage Image{TSurface(Cell.Width(), Cell.Height()), {}};
    for (int Y = 0; Y < Cell.Height(); ++Y) {
        const std::uint32_t* const Row = Source.Row(Cell.Top + Y) + Cell.Left;
        std::copy_n(Row, std::max(Cell.Width(), 0), Image.Pixels.Row(Y));
    }
    Image.Mask.resize(static_cast<std::size_t>(Cell.Width()) * static_cast<std::size_t>(Cell.Height()));
    return Image;
}

void CutMask(const TSurface& Source, const TRect& Cell, std::vector<std::uint8_t>& Mask)
{
    std::uint8_t* Target = Mask.data();
    for (int Y = Cell.Top; Y < Cell.Bottom; ++Y) {
        for (int X = Cell.Left; X < Cell.Right; ++X)
            *Target++ = (Source.Row(Y)[X] & 0xFFFFFF) != 0 ? 1 : 0;
    }
}

} // namespace

TImageListBlock ReadImageListBlock(TStream& Stream)
{
    if (Stream.Remaining() < HeaderSize)
        Refuse("it ends within its header");
    if (Stream.ReadWord() != Magic)
        Refuse("it does not begin with \"IL\"");
    if (Stream.ReadWord() != Version)
        Refuse("its version is not known");
    TImageListBlock Block;
    const int Count = Stream.ReadWord();
    Stream.ReadWord(); // places: as many as the bitmap has
    Block.Grow = Stream.ReadWord();
    Block.Width = Stream.ReadWord();
    Block.Height = Stream.ReadWord();
    Block.BkColor = Stream.ReadDWord();
    const unsigned Flags = Stream.ReadWord();
    for (int Index = 0; Index < OverlayCount; ++Index)
        Stream.ReadWord();
    if (Block.Width == 0 || Block.Height == 0)
        Refuse("its pictures have no size");
    if (Count == 0)
        return Block;

    TBitmap Pictures;
    Pictures.LoadFromStream(Stream);
    const int Columns = ColumnsOf(Pictures, Count, Block.Width, Block.Height);
    for (int Index = 0; Index < Count; ++Index)
        Block.Images.push_back(
            CutPicture(Pictures.GetSurface(), CellOf(Index, Columns, Block.Width, Block.Height)));
    if (!(Flags & MaskFlag))
        return Block;
    TBitmap Masks;
    Masks.LoadFromStream(Stream);
    const int MaskColumns = ColumnsOf(Masks, Count, Block.Width, Block.Height);
    for (int Index = 0; Index < Count; ++Index)
        CutMask(Masks.GetSurface(), CellOf(Index, MaskColumns, Block.Width, Block.Height),
                Block.Images[static_cast<std::size_t>(Index)].Mask);
    return Block;
}

void WriteImageListBlock(TStream& Stream, int Width, int Height, int Grow, std::uint32_t BkColor,
                         const std::vector<const TListImage*>& Images)
{
    const int Count = static_cast<int>(Images.size());
    const int Rows = std::max(1, (Count + WrittenColumns - 1) / WrittenColumns);
    const auto Word = [&](int Value) { Stream.WriteWord(static_cast<std::uint16_t>(Value)); };
    Word(Magic);
    Word(Version);
    Word(Count);
    Word(Rows * WrittenColumns);
    Word(Grow);
    Word(Width);
    Word(Height);
    Stream.WriteDWord(BkColor);
    Word(TrueColorFlag | MaskFlag);
    for (int Index = 0; Index < OverlayCount; ++Index)
        Word(NoOverlay);

    const int SheetWidth = Width * WrittenColumns;
    TSurface Sheet(SheetWidth, Height * Rows, 1.0, 0);
    std::vector<std::uint8_t> Mask(static_cast<std::size_t>(SheetWidth) *
                                   static_cast<std::size_t>(Height * Rows));
    for (int Index = 0; Index < Count; ++Index) {
        const TListImage& Image = *Images[static_cast<std::size_t>(Index)];
        const TRect Cell = CellOf(Index, WrittenColumns, Width, Height);
        for (int Y = 0; Y < Height; ++Y) {
            std::copy_n(Image.Pixels.Row(Y), Width, Sheet.Row(Cell.Top + Y) + Cell.Left);
            std::copy_n(Image.Mask.data() + std::ptrdiff_t{Y} * Width, Width,
                        Mask.data() + std::ptrdiff_t{Cell.Top + Y} * SheetWidth + Cell.Left);
        }
    }
    for (const std::vector<std::uint8_t>& File :
         {WriteBmp(Sheet, 24), WriteMonochromeBmp(Mask, SheetWidth, Height * Rows)})
        Stream.WriteBuffer(File.data(), static_cast<std::int64_t>(File.size()));
}

} // namespace vcl
