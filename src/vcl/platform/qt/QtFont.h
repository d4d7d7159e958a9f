#pragma once

#include <QFont>
#include <QString>

#include <array>
#include <memory>
#include <string>
#include <unordered_map>
#include <vector>

#include "vcl/platform/TextEngine.h"
#include "vcl/platform/qt/QtGlyphs.h"

class QTextLayout;

namespace vcl::qt
{

/// A glyph of a laid out text; the pen position is relative to the start of the baseline.
struct TPlacedGlyph {
    TGlyphFace* Face = nullptr;
    std::uint32_t Glyph = 0;
    float X = 0;
    float Y = 0;
};

/// A text laid out in visual order.
struct TShapedText {
    double Width = 0;
    std::vector<TPlacedGlyph> Glyphs;
    /// Width up to and including each code point, in logical order.
    std::vector<double> Extents;
};

/// The QFont a program should see for Spec: for controls of the toolkit itself.
QFont ToQtFont(const TFontSpec& Spec);

/// A font at one scale, with everything measured and drawn so far: for one thread.
///
/// Text of letters that stand alone (Latin, Greek, Cyrillic and common punctuation) is the sum of its
/// characters and takes a short way; all other text is shaped with bidirectional order and fallback fonts.
class TScaledFont
{
public:
    TScaledFont(const TFontSpec& Spec, double Scale);
    ~TScaledFont();

    const TFontMetrics& Metrics() const { return FMetrics; }
    int TextWidth(std::string_view Text);
    void Extents(std::string_view Text, std::vector<int>& Extents);
    /// Origin is the start of the baseline; the text fills Width device pixels.
    void Draw(const TGlyphTarget& Target, std::string_view Text, double X, double Y, double Width,
              bool RightToLeft);

    /// Device pixels from the top of the cell to the baseline.
    double Ascent() const { return FAscent; }
    double UnderlineOffset() const { return FUnderlineOffset; }
    double StrikeOutOffset() const { return FStrikeOutOffset; }
    double LineThickness() const { return FLineThickness; }

private:
    struct TCharacter {
        enum class TKind : std::uint8_t { Unknown, Simple, Complex };
        TKind Kind = TKind::Unknown;
        std::uint32_t Glyph = 0;
        float Advance = 0;
        /// Pictures already asked for, one for each quarter of a pixel.
        std::array<const TGlyphImage*, 4> Images{};
    };
    using TBlock = std::array<TCharacter, 256>;
    using TShapedTexts = std::unordered_map<std::string, std::unique_ptr<TShapedText>>;

    TCharacter* Lookup(std::uint32_t CodePoint);
    void Load(TCharacter& Character, std::uint32_t CodePoint) const;
    /// The sum of the advances, or -1 when the text needs shaping.
    double SimpleWidth(std::string_view Text);
    const TShapedText& Shape(std::string_view Text, bool RightToLeft);
    std::unique_ptr<TShapedText> ShapeNow(std::string_view Text, bool RightToLeft);
    TGlyphFace& FaceOf(const QRawFont& Raw);
    void DrawCharacter(const TGlyphTarget& Target, TGlyphFace& Face, TCharacter& Character, double X,
                       double Y) const;
    void DrawSimple(const TGlyphTarget& Target, std::string_view Text, double X, double Y, double Stretch);
    void TrimGlyphs();

    QFont FFont;
    bool FWhole;
    double FRotation;
    double FCosine;
    double FSine;
    TFontMetrics FMetrics;
    double FAscent = 0;
    double FUnderlineOffset = 0;
    double FStrikeOutOffset = 0;
    double FLineThickness = 1;
    QRawFont FRaw;
    std::vector<std::unique_ptr<TBlock>> FBlocks;
    std::vector<std::unique_ptr<TGlyphFace>> FFaces;
    TShapedTexts FRecent;
    TShapedTexts FOlder;
};

/// The fonts of the calling thread, bounded in number.
class TFontCache
{
public:
    TScaledFont& Get(const TFontSpec& Spec, double Scale);

private:
    struct TKey {
        TFontSpec Spec;
        double Scale = 1.0;
        bool operator==(const TKey&) const = default;
    };
    struct THash {
        std::size_t operator()(const TKey& Key) const;
    };

    std::unordered_map<TKey, std::unique_ptr<TScaledFont>, THash> FFonts;
    TKey FLastKey;
    TScaledFont* FLast = nullptr;
};

} // namespace vcl::qt
