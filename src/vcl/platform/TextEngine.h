#pragma once

#include <cstdint>
#include <span>
#include <string_view>
#include <vector>

#include "vcl/system/AnsiString.h"
#include "vcl/system/Types.h"

namespace vcl
{

/// A font as a program asks for it.
struct TFontSpec {
    AnsiString Name;
    /// Pixels at 96 dots an inch: negative the character height, positive the cell height, 0 the default.
    int Height = -11;
    bool Bold = false;
    bool Italic = false;
    bool Underline = false;
    bool StrikeOut = false;
    /// Counter-clockwise rotation in tenths of a degree.
    int Orientation = 0;

    bool operator==(const TFontSpec&) const = default;
};

/// Pixels at scale 1; Height = Ascent + Descent is one line.
struct TFontMetrics {
    int Height = 0;
    int Ascent = 0;
    int Descent = 0;
    int InternalLeading = 0;
    int ExternalLeading = 0;
    int AveCharWidth = 0;
    int MaxCharWidth = 0;
};

/// Device pixels, 0xFFRRGGBB each, row after row; Stride counts pixels.
struct TPixelBuffer {
    std::uint32_t* Pixels = nullptr;
    int Width = 0;
    int Height = 0;
    int Stride = 0;
};

/// One line of text to be drawn into a pixel buffer.
struct TTextRun {
    const TFontSpec* Font = nullptr;
    /// UTF-8, valid, without line breaks or tabs.
    std::string_view Text;
    /// Top left corner of the text cell, in device pixels of the buffer.
    TPoint Origin;
    /// 0xFFRRGGBB.
    std::uint32_t Color = 0xFF000000;
    /// Device pixels for one unit; glyphs are drawn at Font's size times Scale.
    double Scale = 1.0;
    /// Base direction of the paragraph.
    bool RightToLeft = false;
    /// What TextWidth gives for Text: at other scales the run is fitted to Width * Scale device pixels.
    int Width = 0;
};

/// Fonts and glyphs: what the toolkit-free drawing code asks of the platform. Every call may come from any
/// thread.
class ITextEngine
{
public:
    virtual ~ITextEngine() = default;

    virtual TFontMetrics Metrics(const TFontSpec& Font) = 0;
    /// Advance width in pixels at scale 1.
    virtual int TextWidth(const TFontSpec& Font, std::string_view Text) = 0;
    /// Fills Extents with the width of the text up to and including each code point, in logical order; one
    /// entry for each code point, never decreasing, the last equal to TextWidth.
    virtual void Extents(const TFontSpec& Font, std::string_view Text, std::vector<int>& Extents) = 0;
    /// Draws inside each of the Clip rectangles (device pixels) and nowhere else.
    virtual void Draw(const TTextRun& Run, const TPixelBuffer& Target, std::span<const TRect> Clip) = 0;
};

} // namespace vcl
