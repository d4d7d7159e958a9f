#pragma once

#include <cstdint>
#include <vector>

#include "vcl/graphics/Bitmap.h"
#include "vcl/graphics/ImageList.h"
#include "vcl/platform/TextEngine.h"

namespace vcl
{

/// A small picture as native peers and menus take it: 0xAARRGGBB pixels that stay while the glyph lives.
class TGlyph
{
public:
    TGlyph() = default;
    /// A picture of an image list; empty for no list or a bad index.
    TGlyph(const TCustomImageList* Images, int Index);
    /// A bitmap whose bottom left pixel's colour is transparent, as button glyphs are drawn. Of Count
    /// pictures side by side the one with that Index is taken, from 0.
    explicit TGlyph(const TBitmap& Bitmap, int Count = 1, int Index = 0);

    bool IsEmpty() const { return FPixels.empty(); }
    TPixelBuffer Buffer() const;

private:
    std::vector<std::uint32_t> FPixels;
    int FWidth = 0;
    int FHeight = 0;
};

} // namespace vcl
