#pragma once

#include <cstdint>
#include <memory>
#include <span>
#include <vector>

#include "vcl/graphics/Surface.h"

namespace vcl
{

/// A decoded BMP file.
struct TBmpImage {
    std::unique_ptr<TSurface> Surface;
    int BitCount = 24;
};

/// Whether Bytes begin like a BMP file.
bool IsBmp(std::span<const std::uint8_t> Bytes);

/// How many bytes at the start of a file's headers suffice for BmpFileSize.
constexpr int BmpHeadSize = 14 + 40;

/// The length of the BMP file whose beginning is Head: what its header says, or, where that is too little,
/// what its pixels need. Available is how many bytes there are. Raises EInvalidGraphic when they are too few.
std::int64_t BmpFileSize(std::span<const std::uint8_t> Head, std::int64_t Available);

/// Decodes a whole file: 1, 4, 8, 16, 24 or 32 bits a pixel, palettes, bit fields, both run-length encodings,
/// rows from the bottom or the top, headers of any age. Alpha is ignored. Raises EInvalidGraphic with the
/// reason; takes memory for pixels only when the file can fill them.
TBmpImage ReadBmp(std::span<const std::uint8_t> File);

/// Encodes with 24 or 32 bits a pixel. Only a surface of scale 1 can be written.
std::vector<std::uint8_t> WriteBmp(const TSurface& Surface, int BitCount);
/// One bit a pixel in black and white: a row of Width bytes each, not 0 is white.
std::vector<std::uint8_t> WriteMonochromeBmp(std::span<const std::uint8_t> Pixels, int Width, int Height);

} // namespace vcl
