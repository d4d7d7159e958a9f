#pragma once

#include "vcl/platform/TextEngine.h"

namespace vcl
{

/// A text engine without fonts: every code point is one cell of the same width, painted as a solid block, so
/// that pictures show where text is. The same on every machine.
///
/// A font of height -15 has cells of 9 x 17 pixels with an ascent of 12; others are in proportion, rounded.
/// Bold text has the same extents. Rotation is to the nearest quarter turn.
class TFixedTextEngine : public ITextEngine
{
public:
    TFontMetrics Metrics(const TFontSpec& Font) override;
    int TextWidth(const TFontSpec& Font, std::string_view Text) override;
    void Extents(const TFontSpec& Font, std::string_view Text, std::vector<int>& Extents) override;
    void Draw(const TTextRun& Run, const TPixelBuffer& Target, std::span<const TRect> Clip) override;
};

} // namespace vcl
