#pragma once

#include "vcl/platform/FixedTextEngine.h"

namespace vcl::qt
{

/// Text with the fonts of the system: any script, bidirectional, with fallback fonts.
///
/// Widths are whole pixels at scale 1 and do not depend on the screen. Glyphs are painted with grey
/// anti-aliasing from a cache of its own for each thread, so that a paint of thousands of short texts costs
/// little more than their pixels. Without an application object (before the first, after the last) texts are
/// fixed cells, as they are without a platform.
class TTextEngine final : public ITextEngine
{
public:
    TTextEngine();

    TFontMetrics Metrics(const TFontSpec& Font) override;
    int TextWidth(const TFontSpec& Font, std::string_view Text) override;
    void Extents(const TFontSpec& Font, std::string_view Text, std::vector<int>& Extents) override;
    void Draw(const TTextRun& Run, const TPixelBuffer& Target, std::span<const TRect> Clip) override;

    /// Forgets every font, in all threads: the system's fonts have changed.
    static void FontsChanged();
    /// The application object is about to go: fonts must not outlive it.
    static void ApplicationEnding();

private:
    TFixedTextEngine FFixed;
};

} // namespace vcl::qt
