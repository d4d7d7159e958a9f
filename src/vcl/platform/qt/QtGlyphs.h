#pragma once

#include <QRawFont>

#include <cstdint>
#include <memory>
#include <span>
#include <unordered_map>
#include <vector>

#include "vcl/platform/TextEngine.h"

namespace vcl::qt
{

/// A glyph as pixels relative to its pen position: coverage, or premultiplied colours for an emoji.
struct TGlyphImage {
    int Left = 0;
    int Top = 0;
    int Width = 0;
    int Height = 0;
    std::vector<std::uint8_t> Coverage;
    std::vector<std::uint32_t> Colors;
};

/// A pen position as glyph pictures know it.
struct TPen {
    int X = 0;
    int Y = 0;
    /// Quarters of a device pixel to the right of X.
    int Quarter = 0;

    TPen(double Across, double Down, bool WholePixels);
};

/// The glyph pictures of one physical font at one size and rotation, made when first needed.
///
/// Pen positions are rounded to a quarter of a device pixel across and to whole ones down; a font that is
/// hinted to the pixel grid only has pictures at whole pixels.
class TGlyphFace
{
public:
    TGlyphFace(QRawFont Raw, double RotationDegrees, bool WholePixels);

    const QRawFont& Raw() const { return FRaw; }
    /// Quarter as in TPen. The picture stays until the face ends.
    const TGlyphImage& Image(std::uint32_t Glyph, int Quarter);
    std::size_t Count() const { return FImages.size(); }
    bool WholePixels() const { return FWholePixels; }

private:
    std::unique_ptr<TGlyphImage> Render(std::uint32_t Glyph, int Quarter) const;

    QRawFont FRaw;
    double FRotation;
    bool FWholePixels;
    std::unordered_map<std::uint64_t, std::unique_ptr<TGlyphImage>> FImages;
};

/// Where glyphs go: a pixel buffer, a clip and a colour.
class TGlyphTarget
{
public:
    /// Clip rectangles do not overlap each other.
    TGlyphTarget(const TPixelBuffer& Buffer, std::span<const TRect> Clip, std::uint32_t Color);

    bool IsEmpty() const { return FBounds.IsEmpty(); }
    const TRect& ClipBounds() const { return FBounds; }
    /// Blends Image with its pen position at X, Y (device pixels).
    void Blend(const TGlyphImage& Image, int X, int Y) const;
    void Fill(const TRect& Rect) const;

private:
    void BlendPart(const TGlyphImage& Image, int Left, int Top, const TRect& Part) const;

    TPixelBuffer FBuffer;
    std::span<const TRect> FClip;
    TRect FBounds;
    std::uint32_t FColor;
};

} // namespace vcl::qt
