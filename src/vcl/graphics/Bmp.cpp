#include "vcl/graphics/Bmp.h"

#include <algorithm>
#include <bit>

#include "vcl/graphics/BmpHeader.h"
#include "vcl/system/Exception.h"

namespace vcl
{

namespace
{

using TBytes = std::span<const std::uint8_t>;

constexpr std::uint32_t Opaque = 0xFF000000;
constexpr int WrittenHeaderSize = 14 + 40;
// A run of two bytes makes at most 255 pixels. More than this share means that a few bytes claim a huge
// picture.
constexpr std::int64_t MostPixelsPerByte = 256;
constexpr std::int64_t AlwaysAllowedPixels = std::int64_t{1} << 20;

[[noreturn]] void Refuse(const char* Reason)
{
    throw EInvalidGraphic(AnsiString("Bitmap image is not valid: ") + Reason);
}

/// One colour channel of a pixel that packs them into bits.
class TChannel
{
public:
    explicit TChannel(std::uint32_t Mask)
        : FMask(Mask), FShift(Mask ? std::countr_zero(Mask) : 0), FMost(Mask >> FShift)
    {
    }

    std::uint32_t Of(std::uint32_t Pixel) const
    {
        if (FMost == 0)
            return 0;
        const std::uint64_t Value = (Pixel & FMask) >> FShift;
        return static_cast<std::uint32_t>((Value * 255 + FMost / 2) / FMost);
    }

private:
    std::uint32_t FMask;
    int FShift;
    std::uint32_t FMost;
};

class TBmpReader
{
public:
    TBmpReader(TBytes File, const TBmpHeader& Header)
        : FFile(File), FHeader(Header), FPalette(ReadBmpPalette(File, Header))
    {
    }

    std::unique_ptr<TSurface> Read()
    {
        CheckLength();
        auto Surface = std::make_unique<TSurface>(FHeader.Width, FHeader.Height, 1.0, FPalette[0]);
        if (FHeader.IsRunLength())
            ReadRuns(*Surface);
        else if (FHeader.BitCount <= 8)
            ReadIndexed(*Surface);
        else if (FHeader.BitCount == 24)
            ReadTrueColor(*Surface);
        else
            ReadPacked(*Surface);
        return Surface;
    }

private:
    void CheckLength() const
    {
        const auto Size = static_cast<std::int64_t>(FFile.size());
        if (FHeader.PixelOffset > Size)
            Refuse("its pixels lie behind its end");
        const std::int64_t Left = Size - FHeader.PixelOffset;
        if (!FHeader.IsRunLength()) {
            if (FHeader.PixelBytes > Left)
                Refuse("it ends within its pixels");
            return;
        }
        const std::int64_t Pixels = std::int64_t{FHeader.Width} * FHeader.Height;
        if (Pixels > AlwaysAllowedPixels && Pixels / MostPixelsPerByte > Left)
            Refuse("it has too little data for its size");
    }

    int TargetRow(int Row) const { return FHeader.IsTopDown ? Row : FHeader.Height - 1 - Row; }

    TBytes SourceRow(int Row) const
    {
        const std::int64_t Offset = FHeader.PixelOffset + Row * FHeader.Stride();
        return FFile.subspan(static_cast<std::size_t>(Offset), static_cast<std::size_t>(FHeader.Stride()));
    }

    std::uint32_t Color(unsigned Index) const { return Opaque | FPalette[Index & 0xFF]; }

    void ReadIndexed(TSurface& Surface) const
    {
        const int PerByte = 8 / FHeader.BitCount;
        const unsigned Mask = (1u << FHeader.BitCount) - 1;
        for (int Y = 0; Y < FHeader.Height; ++Y) {
            const TBytes Source = SourceRow(Y);
            std::uint32_t* const Target = Surface.Row(TargetRow(Y));
            for (int X = 0; X < FHeader.Width; ++X) {
                const int Shift = 8 - FHeader.BitCount * (X % PerByte + 1);
                Target[X] = Color(Source[static_cast<std::size_t>(X / PerByte)] >> Shift & Mask);
            }
        }
    }

    void ReadTrueColor(TSurface& Surface) const
    {
        for (int Y = 0; Y < FHeader.Height; ++Y) {
            const std::uint8_t* Source = SourceRow(Y).data();
            std::uint32_t* const Target = Surface.Row(TargetRow(Y));
            for (int X = 0; X < FHeader.Width; ++X, Source += 3)
                Target[X] = Opaque | static_cast<std::uint32_t>(Source[0] | Source[1] << 8 | Source[2] << 16);
        }
    }

    void ReadPacked(TSurface& Surface) const
    {
        const TChannel Red(FHeader.Masks[0]), Green(FHeader.Masks[1]), Blue(FHeader.Masks[2]);
        const int Step = FHeader.BitCount / 8;
        for (int Y = 0; Y < FHeader.Height; ++Y) {
            const TBytes Source = SourceRow(Y);
            std::uint32_t* const Target = Surface.Row(TargetRow(Y));
            for (int X = 0; X < FHeader.Width; ++X) {
                const std::int64_t Offset = std::int64_t{X} * Step;
                const std::uint32_t Pixel = Step == 2 ? BmpWord(Source, Offset) : BmpDWord(Source, Offset);
                Target[X] = Opaque | Red.Of(Pixel) << 16 | Green.Of(Pixel) << 8 | Blue.Of(Pixel);
            }
        }
    }

    void ReadRuns(TSurface& Surface)
    {
        FOffset = static_cast<std::size_t>(FHeader.PixelOffset);
        while (FY < FHeader.Height) {
            const unsigned Count = NextByte();
            const unsigned Value = NextByte();
            if (Count > 0)
                PutRun(Surface, Count, Value);
            else if (Value == 0)
                NewRow(); // end of line
            else if (Value == 1)
                return; // end of picture
            else if (Value == 2)
                Skip();
            else
                PutLiteral(Surface, Value);
        }
    }

    unsigned NextByte()
    {
        if (FOffset >= FFile.size())
            Refuse("it ends within its pixels");
        return FFile[FOffset++];
    }

    void NewRow()
    {
        FX = 0;
        ++FY;
    }

    void Skip()
    {
        FX += static_cast<int>(NextByte());
        FY += static_cast<int>(NextByte());
    }

    void Put(TSurface& Surface, unsigned Index)
    {
        // Runs that go on behind the end of their row are cut off there.
        if (FX < FHeader.Width && FY < FHeader.Height)
            Surface.Row(TargetRow(FY))[FX] = Color(Index);
        if (FX < FHeader.Width)
            ++FX;
    }

    void PutRun(TSurface& Surface, unsigned Count, unsigned Value)
    {
        const bool IsHalf = FHeader.BitCount == 4;
        for (unsigned Index = 0; Index < Count; ++Index)
            Put(Surface, !IsHalf ? Value : Index % 2 == 0 ? Value >> 4 : Value & 0xF);
    }

    void PutLiteral(TSurface& Surface, unsigned Count)
    {
        const bool IsHalf = FHeader.BitCount == 4;
        const std::size_t Start = FOffset;
        unsigned Byte = 0;
        for (unsigned Index = 0; Index < Count; ++Index) {
            if (!IsHalf || Index % 2 == 0)
                Byte = NextByte();
            Put(Surface, !IsHalf ? Byte : Index % 2 == 0 ? Byte >> 4 : Byte & 0xF);
        }
        if ((FOffset - Start) % 2 != 0)
            NextByte(); // literals fill whole words
    }

    TBytes FFile;
    const TBmpHeader& FHeader;
    std::vector<std::uint32_t> FPalette;
    std::size_t FOffset = 0;
    int FX = 0;
    int FY = 0;
};

class TBytesWriter
{
public:
    explicit TBytesWriter(std::int64_t Size) { FBytes.reserve(static_cast<std::size_t>(Size)); }

    void Byte(std::uint32_t Value) { FBytes.push_back(static_cast<std::uint8_t>(Value)); }
    void Word(std::uint32_t Value)
    {
        Byte(Value);
        Byte(Value >> 8);
    }
    void DWord(std::uint32_t Value)
    {
        Word(Value);
        Word(Value >> 16);
    }
    std::size_t GetSize() const { return FBytes.size(); }
    std::vector<std::uint8_t> Take() { return std::move(FBytes); }

private:
    std::vector<std::uint8_t> FBytes;
};

/// Both headers of a bottom-up picture without compression; Colors follow as the palette.
TBytesWriter BeginFile(int Width, int Height, int BitCount, std::initializer_list<std::uint32_t> Colors)
{
    const std::int64_t Stride = (std::int64_t{Width} * BitCount + 31) / 32 * 4;
    const auto PixelBytes = static_cast<std::uint32_t>(Stride * Height);
    const std::uint32_t PixelOffset = WrittenHeaderSize + 4 * static_cast<std::uint32_t>(Colors.size());
    TBytesWriter Writer(std::int64_t{PixelOffset} + PixelBytes);
    Writer.Byte('B');
    Writer.Byte('M');
    Writer.DWord(PixelOffset + PixelBytes);
    Writer.DWord(0);
    Writer.DWord(PixelOffset);
    Writer.DWord(40);
    Writer.DWord(static_cast<std::uint32_t>(Width));
    Writer.DWord(static_cast<std::uint32_t>(Height));
    Writer.Word(1); // planes
    Writer.Word(static_cast<std::uint32_t>(BitCount));
    Writer.DWord(static_cast<std::uint32_t>(TBmpCompression::Rgb));
    Writer.DWord(PixelBytes);
    Writer.DWord(0); // resolution, in both directions
    Writer.DWord(0);
    Writer.DWord(0); // colours used, and the important ones: all
    Writer.DWord(0);
    for (std::uint32_t Color : Colors)
        Writer.DWord(Color);
    return Writer;
}

/// Rows are padded to whole double words, counted from where the pixels begin.
void EndRow(TBytesWriter& Writer, std::size_t PixelOffset)
{
    while ((Writer.GetSize() - PixelOffset) % 4 != 0)
        Writer.Byte(0);
}

} // namespace

bool IsBmp(std::span<const std::uint8_t> Bytes)
{
    return Bytes.size() >= 2 && Bytes[0] == 'B' && Bytes[1] == 'M';
}

std::int64_t BmpFileSize(std::span<const std::uint8_t> Head, std::int64_t Available)
{
    const TBmpHeader Header = ReadBmpHeader(Head);
    const std::int64_t Needed = Header.PixelOffset + Header.PixelBytes;
    if (Needed > Available)
        Refuse("it ends within its pixels");
    if (Header.FileSize >= Needed && Header.FileSize <= Available)
        return Header.FileSize;
    // Run-length data without a length: only the whole of what is there is sure to hold it.
    return Header.IsRunLength() && Header.PixelBytes == 0 ? Available : Needed;
}

TBmpImage ReadBmp(std::span<const std::uint8_t> File)
{
    TBmpHeader Header = ReadBmpHeader(File);
    if (Header.BitCount == 16 || Header.BitCount == 32)
        ReadBmpMasks(File, Header);
    return {TBmpReader(File, Header).Read(), Header.BitCount};
}

std::vector<std::uint8_t> WriteBmp(const TSurface& Surface, int BitCount)
{
    const int Width = Surface.GetDeviceWidth();
    const int Height = Surface.GetDeviceHeight();
    TBytesWriter Writer = BeginFile(Width, Height, BitCount, {});
    const std::size_t PixelOffset = Writer.GetSize();
    for (int Y = Height - 1; Y >= 0; --Y) {
        const std::uint32_t* const Row = Surface.Row(Y);
        for (int X = 0; X < Width; ++X) {
            Writer.Word(Row[X]);
            Writer.Byte(Row[X] >> 16);
            if (BitCount == 32)
                Writer.Byte(0);
        }
        EndRow(Writer, PixelOffset);
    }
    return Writer.Take();
}

std::vector<std::uint8_t> WriteMonochromeBmp(std::span<const std::uint8_t> Pixels, int Width, int Height)
{
    TBytesWriter Writer = BeginFile(Width, Height, 1, {0x000000, 0xFFFFFF});
    const std::size_t PixelOffset = Writer.GetSize();
    for (int Y = Height - 1; Y >= 0; --Y) {
        const std::uint8_t* const Row = Pixels.data() + std::ptrdiff_t{Y} * Width;
        for (int X = 0; X < Width; X += 8) {
            std::uint32_t Bits = 0;
            for (int Bit = 0; Bit < 8 && X + Bit < Width; ++Bit)
                Bits |= Row[X + Bit] ? 0x80u >> Bit : 0;
            Writer.Byte(Bits);
        }
        EndRow(Writer, PixelOffset);
    }
    return Writer.Take();
}

} // namespace vcl
