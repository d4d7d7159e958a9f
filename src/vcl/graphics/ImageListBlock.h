#pragma once

#include <cstdint>
#include <vector>

#include "vcl/classes/Stream.h"
#include "vcl/graphics/Surface.h"

namespace vcl
{

/// One picture of an image list: its pixels and one byte for each, 1 where it is transparent.
struct TListImage {
    TSurface Pixels;
    std::vector<std::uint8_t> Mask;
};

/// What the image-list block of a form file holds.
struct TImageListBlock {
    int Width = 0;
    int Height = 0;
    int Grow = 4;
    std::uint32_t BkColor = 0xFFFFFFFF; // 0x00BBGGRR, or all ones for none
    std::vector<TListImage> Images;
};

/// Little-endian words: 0x4C49 ("IL"), version 0x101, count, places, growth, width, height; the background
/// colour (4 bytes), flags (bit 0: there are masks), four overlay indices; then a BMP with the pictures side
/// by side and below each other, and, if there are masks, a BMP with one bit a pixel laid out likewise, white
/// where transparent.
///
/// Raises EInvalidGraphic with the reason when the block is damaged.
TImageListBlock ReadImageListBlock(TStream& Stream);
/// Writes four pictures abreast, with masks.
void WriteImageListBlock(TStream& Stream, int Width, int Height, int Grow, std::uint32_t BkColor,
                         const std::vector<const TListImage*>& Images);

} // namespace vcl
