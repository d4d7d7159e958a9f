#include "vcl/graphics/BmpHeader.h"

#include <algorithm>

#include "vcl/graphics/Surface.h"
#include "vcl/system/Exception.h"

namespace vcl
{

namespace
{

constexpr std::int64_t FileHeaderSize = 14;
constexpr std::uint32_t CoreHeaderSize = 12;
constexpr std::uint32_t InfoHeaderSize = 40;
constexpr std::uint32_t LongestHeaderSize = 124;
[[noreturn]] void Refuse(const AnsiString& Reason)
{
    throw EInvalidGraphic("Bitmap image is not valid: " + Reason);
}

std::int64_t Size(std::span<const std::uint8_t> Bytes)
{
    return static_cast<std::int64_t>(Bytes.size());
}

void ReadCoreHeader(std::span<const std::uint8_t> File, TBmpHeader& Header)
{
    Header.Width = static_cast<int>(BmpWord(File, 18));
    Header.Height = static_cast<int>(BmpWord(File, 20));
    Header.BitCount = static_cast<int>(BmpWord(File, 24));
    Header.PaletteEntrySize = 3;
    Header.PaletteOffset = FileHeaderSize + CoreHeaderSize;
    if (Header.BitCount <= 8)
        Header.PaletteCount = 1 << Header.BitCount;
}

void ReadInfoHeader(std::span<const std::uint8_t> File, std::uint32_t HeaderSize, TBmpHeader& Header)
{
    Header.Width = static_cast<std::int32_t>(BmpDWord(File, 18));
    const auto Height = static_cast<std::int32_t>(BmpDWord(File, 22));
    if (Height == INT32_MIN)
        Refuse("its height is out of range");
    Header.IsTopDown = Height < 0;
    Header.Height = Height < 0 ? -Height : Height;
    Header.BitCount = static_cast<int>(BmpWord(File, 28));
    Header.Compression = static_cast<TBmpCompression>(BmpDWord(File, 30));
    Header.PixelBytes = BmpDWord(File, 34);
    Header.PaletteOffset = FileHeaderSize + HeaderSize;
    if (HeaderSize == InfoHeaderSize && Header.Compression == TBmpCompression::BitFields)
        Header.PaletteOffset += 12;
    if (HeaderSize == InfoHeaderSize && Header.Compression == TBmpCompression::AlphaBitFields)
        Header.PaletteOffset += 16;
    const std::uint32_t Used = BmpDWord(File, 46);
    if (Header.BitCount <= 8) {
        const std::uint32_t Most = 1u << std::max(Header.BitCount, 0);
        Header.PaletteCount = static_cast<int>(Used == 0 ? Most : std::min(Used, Most));
    }
}

void CheckFormat(const TBmpHeader& Header)
{
    const int Bits = Header.BitCount;
    if (Bits != 1 && Bits != 4 && Bits != 8 && Bits != 16 && Bits != 24 && Bits != 32)
        Refuse(std::to_string(Bits) + " bits a pixel are not known");
    const bool IsKnown = Header.Compression == TBmpCompression::Rgb ||
                         (Header.Compression == TBmpCompression::Rle8 && Bits == 8) ||
                         (Header.Compression == TBmpCompression::Rle4 && Bits == 4) ||
                         ((Header.Compression == TBmpCompression::BitFields ||
                           Header.Compression == TBmpCompression::AlphaBitFields) &&
                          (Bits == 16 || Bits == 32));
    if (!IsKnown)
        Refuse("compression " + std::to_string(static_cast<std::uint32_t>(Header.Compression)) + " with " +
               std::to_string(Bits) + " bits a pixel is not known");
    if (Header.Width <= 0 || Header.Height <= 0 || Header.Width > TSurface::MaxSide ||
        Header.Height > TSurface::MaxSide || std::int64_t{Header.Width} * Header.Height > TSurface::MaxPixels)
        Refuse("its size of " + std::to_string(Header.Width) + " x " + std::to_string(Header.Height) +
               " is out of range");
    if (Header.IsTopDown && Header.IsRunLength())
        Refuse("run-length encoded rows cannot run from the top");
}

/// Where the pixels begin and how many bytes they must have.
void PlacePixels(std::uint32_t Offset, TBmpHeader& Header)
{
    // Some writers leave the offset 0; the pixels then follow the palette.
    const std::int64_t Earliest = Header.PaletteOffset;
    const std::int64_t Behind = Earliest + std::int64_t{Header.PaletteCount} * Header.PaletteEntrySize;
    Header.PixelOffset = Offset < Earliest ? Behind : Offset;
    if (!Header.IsRunLength())
        Header.PixelBytes = Header.Stride() * Header.Height;
}

} // namespace

std::uint32_t BmpWord(std::span<const std::uint8_t> Bytes, std::int64_t Offset)
{
    const auto At = static_cast<std::size_t>(Offset);
    return static_cast<std::uint32_t>(Bytes[At] | Bytes[At + 1] << 8);
}

std::uint32_t BmpDWord(std::span<const std::uint8_t> Bytes, std::int64_t Offset)
{
    return BmpWord(Bytes, Offset) | BmpWord(Bytes, Offset + 2) << 16;
}

TBmpHeader ReadBmpHeader(std::span<const std::uint8_t> File)
{
    if (Size(File) < FileHeaderSize + CoreHeaderSize)
        Refuse("it ends within its header");
    if (File[0] != 'B' || File[1] != 'M')
        Refuse("it does not begin with \"BM\"");
    TBmpHeader Header;
    Header.FileSize = BmpDWord(File, 2);
    const std::uint32_t HeaderSize = BmpDWord(File, 14);
    if (HeaderSize == CoreHeaderSize) {
        ReadCoreHeader(File, Header);
    } else {
        if (HeaderSize < InfoHeaderSize || HeaderSize > LongestHeaderSize)
            Refuse("its header of " + std::to_string(HeaderSize) + " bytes is not known");
        if (Size(File) < FileHeaderSize + InfoHeaderSize)
            Refuse("it ends within its header");
        ReadInfoHeader(File, HeaderSize, Header);
    }
    CheckFormat(Header);
    PlacePixels(BmpDWord(File, 10), Header);
    return Header;
}

void ReadBmpMasks(std::span<const std::uint8_t> File, TBmpHeader& Header)
{
    if (Header.Compression == TBmpCompression::Rgb) {
        Header.Masks = Header.BitCount == 16 ? std::array<std::uint32_t, 3>{0x7C00, 0x3E0, 0x1F}
                                             : std::array<std::uint32_t, 3>{0xFF0000, 0xFF00, 0xFF};
        return;
    }
    if (Header.IsRunLength())
        return;
    // They follow the first 40 bytes of the header, whether they belong to it or stand behind it.
    constexpr std::int64_t MaskOffset = FileHeaderSize + InfoHeaderSize;
    if (Size(File) < MaskOffset + 12)
        Refuse("it ends within its colour masks");
    for (std::size_t Channel = 0; Channel < 3; ++Channel)
        Header.Masks[Channel] = BmpDWord(File, MaskOffset + 4 * static_cast<std::int64_t>(Channel));
}

std::vector<std::uint32_t> ReadBmpPalette(std::span<const std::uint8_t> File, const TBmpHeader& Header)
{
    std::vector<std::uint32_t> Palette;
    const std::int64_t End = std::min(Size(File), Header.PixelOffset);
    std::int64_t Offset = Header.PaletteOffset;
    for (int Index = 0; Index < Header.PaletteCount && Offset + Header.PaletteEntrySize <= End; ++Index) {
        Palette.push_back(BmpWord(File, Offset) |
                          static_cast<std::uint32_t>(File[static_cast<std::size_t>(Offset + 2)]) << 16);
        Offset += Header.PaletteEntrySize;
    }
    // Pixels of colours the file does not define are black.
    Palette.resize(256);
    return Palette;
}

} // namespace vcl
