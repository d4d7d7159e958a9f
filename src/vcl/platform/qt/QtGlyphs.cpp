#include "vcl/platform/qt/QtGlyphs.h"

#include <QGlyphRun>
#include <QImage>
#include <QPainter>

#include <algorithm>
#include <cmath>

namespace vcl::qt
{

namespace
{

TRect Intersection(const TRect& Left, const TRect& Right)
{
    return {std::max(Left.Left, Right.Left), std::max(Left.Top, Right.Top), std::min(Left.Right, Right.Right),
            std::min(Left.Bottom, Right.Bottom)};
}

/// Weight runs from 0 (all Under) to 256 (all Over); the result is opaque.
std::uint32_t Mix(std::uint32_t Under, std::uint32_t Over, std::uint32_t Weight)
{
    const std::uint32_t Rest = 256 - Weight;
    const std::uint32_t RedBlue = ((Over & 0xFF00FF) * Weight + (Under & 0xFF00FF) * Rest) >> 8;
    const std::uint32_t Green = ((Over & 0x00FF00) * Weight + (Under & 0x00FF00) * Rest) >> 8;
    return 0xFF000000 | (RedBlue & 0xFF00FF) | (Green & 0x00FF00);
}

/// Over is premultiplied.
std::uint32_t Compose(std::uint32_t Under, std::uint32_t Over)
{
    return Mix(Under, 0, (Over >> 24) + (Over >> 31)) + (Over & 0xFFFFFF);
}

bool IsCoverage(QRgb Pixel)
{
    const int Alpha = qAlpha(Pixel);
    return qRed(Pixel) == Alpha && qGreen(Pixel) == Alpha && qBlue(Pixel) == Alpha;
}

/// The part of Image that is not transparent; empty when there is none.
QRect InkBounds(const QImage& Image)
{
    QRect Result;
    for (int Y = 0; Y < Image.height(); ++Y) {
        const auto* Line = reinterpret_cast<const QRgb*>(Image.constScanLine(Y));
        int First = 0;
        while (First < Image.width() && qAlpha(Line[First]) == 0)
            ++First;
        if (First == Image.width())
            continue;
        int Last = Image.width() - 1;
        while (qAlpha(Line[Last]) == 0)
            --Last;
        Result |= QRect(First, Y, Last - First + 1, 1);
    }
    return Result;
}

} // namespace

TPen::TPen(double Across, double Down, bool WholePixels)
{
    const int Quarters = static_cast<int>(std::floor(Across * 4 + (WholePixels ? 2.0 : 0.5)));
    X = Quarters >> 2;
    Y = static_cast<int>(std::floor(Down + 0.5));
    Quarter = WholePixels ? 0 : Quarters & 3;
}

TGlyphFace::TGlyphFace(QRawFont Raw, double RotationDegrees, bool WholePixels)
    : FRaw(std::move(Raw)), FRotation(RotationDegrees), FWholePixels(WholePixels)
{
}

const TGlyphImage& TGlyphFace::Image(std::uint32_t Glyph, int Quarter)
{
    std::unique_ptr<TGlyphImage>& Place = FImages[std::uint64_t{Glyph} << 2 | static_cast<unsigned>(Quarter)];
    if (!Place)
        Place = Render(Glyph, Quarter);
    return *Place;
}

std::unique_ptr<TGlyphImage> TGlyphFace::Render(std::uint32_t Glyph, int Quarter) const
{
    auto Result = std::make_unique<TGlyphImage>();
    QTransform Turn;
    Turn.rotate(FRotation);
    // Hinting and emboldening may paint a little outside of the outline's bounds.
    const int Margin = 4;
    const QRect Box =
        Turn.mapRect(FRaw.boundingRect(Glyph)).toAlignedRect().adjusted(-Margin, -Margin, Margin, Margin);
    constexpr int LargestGlyph = 4096;
    if (Box.width() > LargestGlyph || Box.height() > LargestGlyph)
        return Result;

    // White on nothing tells coverage and colour apart: only coverage has equal channels everywhere.
    QImage Picture(Box.size(), QImage::Format_ARGB32_Premultiplied);
    Picture.fill(Qt::transparent);
    QGlyphRun Run;
    Run.setRawFont(FRaw);
    Run.setGlyphIndexes({Glyph});
    Run.setPositions({QPointF(0, 0)});
    {
        QPainter Painter(&Picture);
        Painter.setRenderHint(QPainter::TextAntialiasing);
        Painter.setPen(Qt::white);
        Painter.translate(-Box.left() + Quarter / 4.0, -Box.top());
        Painter.rotate(FRotation);
        Painter.drawGlyphRun(QPointF(0, 0), Run);
    }

    const QRect Ink = InkBounds(Picture);
    if (Ink.isEmpty())
        return Result;
    Result->Left = Box.left() + Ink.left();
    Result->Top = Box.top() + Ink.top();
    Result->Width = Ink.width();
    Result->Height = Ink.height();
    bool Coverage = true;
    Result->Colors.reserve(static_cast<std::size_t>(Ink.width()) * static_cast<std::size_t>(Ink.height()));
    for (int Y = Ink.top(); Y <= Ink.bottom(); ++Y) {
        const auto* Line = reinterpret_cast<const QRgb*>(Picture.constScanLine(Y));
        for (int X = Ink.left(); X <= Ink.right(); ++X) {
            Coverage = Coverage && IsCoverage(Line[X]);
            Result->Colors.push_back(Line[X]);
        }
    }
    if (Coverage) {
        Result->Coverage.reserve(Result->Colors.size());
        for (const std::uint32_t Pixel : Result->Colors)
            Result->Coverage.push_back(static_cast<std::uint8_t>(Pixel >> 24));
        Result->Colors = {};
    }
    return Result;
}

TGlyphTarget::TGlyphTarget(const TPixelBuffer& Buffer, std::span<const TRect> Clip, std::uint32_t Color)
    : FBuffer(Buffer), FClip(Clip), FColor(Color)
{
    const TRect Whole{0, 0, Buffer.Width, Buffer.Height};
    for (const TRect& Rect : Clip) {
        const TRect Part = Intersection(Rect, Whole);
        if (Part.IsEmpty())
            continue;
        if (FBounds.IsEmpty())
            FBounds = Part;
        else
            FBounds = {std::min(FBounds.Left, Part.Left), std::min(FBounds.Top, Part.Top),
                       std::max(FBounds.Right, Part.Right), std::max(FBounds.Bottom, Part.Bottom)};
    }
}

void TGlyphTarget::Blend(const TGlyphImage& Image, int X, int Y) const
{
    const int Left = X + Image.Left;
    const int Top = Y + Image.Top;
    const TRect Reach = Intersection(Bounds(Left, Top, Image.Width, Image.Height), FBounds);
    if (Reach.IsEmpty())
        return;
    for (const TRect& Rect : FClip) {
        const TRect Part = Intersection(Reach, Rect);
        if (!Part.IsEmpty())
            BlendPart(Image, Left, Top, Part);
    }
}

void TGlyphTarget::BlendPart(const TGlyphImage& Image, int Left, int Top, const TRect& Part) const
{
    const int Count = Part.Width();
    for (int Y = Part.Top; Y < Part.Bottom; ++Y) {
        std::uint32_t* Line = FBuffer.Pixels + static_cast<std::ptrdiff_t>(Y) * FBuffer.Stride + Part.Left;
        const std::size_t Start = static_cast<std::size_t>(Y - Top) * static_cast<std::size_t>(Image.Width) +
                                  static_cast<std::size_t>(Part.Left - Left);
        if (Image.Coverage.empty()) {
            for (int Index = 0; Index < Count; ++Index)
                Line[Index] = Compose(Line[Index], Image.Colors[Start + static_cast<std::size_t>(Index)]);
            continue;
        }
        const std::uint8_t* Coverage = Image.Coverage.data() + Start;
        for (int Index = 0; Index < Count; ++Index) {
            const std::uint32_t Weight = Coverage[Index];
            if (Weight != 0)
                Line[Index] = Mix(Line[Index], FColor, Weight + (Weight >> 7));
        }
    }
}

void TGlyphTarget::Fill(const TRect& Rect) const
{
    const TRect Reach = Intersection(Rect, FBounds);
    for (const TRect& Clip : FClip) {
        const TRect Part = Intersection(Reach, Clip);
        for (int Y = Part.Top; Y < Part.Bottom; ++Y) {
            std::uint32_t* Line = FBuffer.Pixels + static_cast<std::ptrdiff_t>(Y) * FBuffer.Stride;
            if (Part.Left < Part.Right)
                std::fill(Line + Part.Left, Line + Part.Right, FColor | 0xFF000000);
        }
    }
}

} // namespace vcl::qt
