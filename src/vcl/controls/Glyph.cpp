#include "vcl/controls/Glyph.h"

#include "vcl/graphics/Canvas.h"
#include "vcl/graphics/Surface.h"

namespace vcl
{

namespace
{

constexpr std::uint32_t Opaque = 0xFF000000;

std::uint32_t PixelAt(TBitmap& Bitmap, int X, int Y)
{
    const TPixelBuffer Pixels = Bitmap.GetSurface().Buffer();
    return Pixels.Pixels[static_cast<std::size_t>(Y) * static_cast<std::size_t>(Pixels.Stride) +
                         static_cast<std::size_t>(X)];
}

void FillWith(TBitmap& Bitmap, TColor Color)
{
    Bitmap.GetCanvas()->GetBrush()->SetColor(Color);
    Bitmap.GetCanvas()->FillRect({0, 0, Bitmap.GetWidth(), Bitmap.GetHeight()});
}

} // namespace

TGlyph::TGlyph(const TCustomImageList* Images, int Index)
{
    if (!Images || Index < 0 || Index >= Images->GetCount())
        return;
    FWidth = Images->GetWidth();
    FHeight = Images->GetHeight();
    // A list keeps its masks to itself: what differs between a black and a white ground is transparent.
    TBitmap OnBlack(FWidth, FHeight);
    TBitmap OnWhite(FWidth, FHeight);
    FillWith(OnBlack, clBlack);
    FillWith(OnWhite, clWhite);
    Images->Draw(OnBlack.GetCanvas(), 0, 0, Index);
    Images->Draw(OnWhite.GetCanvas(), 0, 0, Index);
    FPixels.reserve(static_cast<std::size_t>(FWidth) * static_cast<std::size_t>(FHeight));
    for (int Y = 0; Y < FHeight; ++Y)
        for (int X = 0; X < FWidth; ++X) {
            const std::uint32_t Pixel = PixelAt(OnBlack, X, Y);
            FPixels.push_back(((Pixel ^ PixelAt(OnWhite, X, Y)) & ~Opaque) == 0 ? Pixel | Opaque : 0);
        }
}

TGlyph::TGlyph(const TBitmap& Bitmap, int Count, int Index)
{
    if (Bitmap.GetEmpty() || Index < 0 || Index >= Count)
        return;
    TBitmap Copy;
    Copy.Assign(&Bitmap);
    FWidth = Copy.GetWidth() / Count;
    FHeight = Copy.GetHeight();
    if (FWidth < 1)
        return;
    const std::uint32_t Transparent = PixelAt(Copy, 0, FHeight - 1) | Opaque;
    FPixels.reserve(static_cast<std::size_t>(FWidth) * static_cast<std::size_t>(FHeight));
    for (int Y = 0; Y < FHeight; ++Y)
        for (int X = 0; X < FWidth; ++X) {
            const std::uint32_t Pixel = PixelAt(Copy, Index * FWidth + X, Y) | Opaque;
            FPixels.push_back(Pixel == Transparent ? 0 : Pixel);
        }
}

TPixelBuffer TGlyph::Buffer() const
{
    if (FPixels.empty())
        return {};
    return {const_cast<std::uint32_t*>(FPixels.data()), FWidth, FHeight, FWidth};
}

} // namespace vcl
