#pragma once

#include <array>
#include <cstdint>
#include <span>
#include <vector>

namespace vcl
{

enum class TBmpCompression : std::uint32_t { Rgb = 0, Rle8 = 1, Rle4 = 2, BitFields = 3, AlphaBitFields = 6 };

/// What the headers of a BMP file say, checked as far as they can be without its pixels.
struct TBmpHeader {
    int Width = 0;
    int Height = 0;
    bool IsTopDown = false;
    int BitCount = 0;
    TBmpCompression Compression = TBmpCompression::Rgb;
    std::int64_t PixelOffset = 0;
    std::int64_t PixelBytes = 0;          // of run-length data: as the header says, perhaps 0
    std::array<std::uint32_t, 3> Masks{}; // red, green, blue; of 16 and 32 bits a pixel
    std::int64_t PaletteOffset = 0;
    int PaletteCount = 0;
    int PaletteEntrySize = 4;
    std::uint32_t FileSize = 0;

    bool IsRunLength() const
    {
        return Compression == TBmpCompression::Rle8 || Compression == TBmpCompression::Rle4;
    }
    std::int64_t Stride() const { return (std::int64_t{Width} * BitCount + 31) / 32 * 4; }
};

/// Reads the headers, except for the masks. Raises EInvalidGraphic.
TBmpHeader ReadBmpHeader(std::span<const std::uint8_t> File);
/// The masks of 16 and 32 bits a pixel. Raises EInvalidGraphic.
void ReadBmpMasks(std::span<const std::uint8_t> File, TBmpHeader& Header);

/// 0x00RRGGBB each.
std::vector<std::uint32_t> ReadBmpPalette(std::span<const std::uint8_t> File, const TBmpHeader& Header);

/// Little-endian values; the offset must lie inside.
std::uint32_t BmpWord(std::span<const std::uint8_t> Bytes, std::int64_t Offset);
std::uint32_t BmpDWord(std::span<const std::uint8_t> Bytes, std::int64_t Offset);

} // namespace vcl
