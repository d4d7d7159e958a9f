#pragma once

#include "vcl/graphics/GraphicsObject.h"
#include "vcl/platform/TextEngine.h"
#include "vcl/system/Set.h"

namespace vcl
{

enum class TFontStyle { fsBold, fsItalic, fsUnderline, fsStrikeOut };
using TFontStyles = TSet<TFontStyle>;

enum class TFontPitch { fpDefault, fpVariable, fpFixed };

/// Character set numbers as form files know them. Text is drawn whole in any script whatever the value is.
enum TFontCharset : std::uint8_t {
    ANSI_CHARSET = 0,
    DEFAULT_CHARSET = 1,
    SYMBOL_CHARSET = 2,
    MAC_CHARSET = 77,
    SHIFTJIS_CHARSET = 128,
    HANGEUL_CHARSET = 129,
    JOHAB_CHARSET = 130,
    GB2312_CHARSET = 134,
    CHINESEBIG5_CHARSET = 136,
    GREEK_CHARSET = 161,
    TURKISH_CHARSET = 162,
    VIETNAMESE_CHARSET = 163,
    HEBREW_CHARSET = 177,
    ARABIC_CHARSET = 178,
    BALTIC_CHARSET = 186,
    RUSSIAN_CHARSET = 204,
    THAI_CHARSET = 222,
    EASTEUROPE_CHARSET = 238,
    OEM_CHARSET = 255,
};

template <>
struct TypeTraits<TFontStyle> {
    static const TTypeInfo& Info();
    static constexpr const char* SetName = "TFontStyles";
};
template <>
struct TypeTraits<TFontPitch> {
    static const TTypeInfo& Info();
};
template <>
struct TypeTraits<TFontCharset> {
    static const TTypeInfo& Info();
};

/// A font as a program asks for it: face, height, styles and colour.
///
///     Canvas->GetFont()->SetName("Arial");
///     Canvas->GetFont()->SetSize(10);
///     Canvas->GetFont()->SetStyle({TFontStyle::fsBold});
///
/// A new font is the platform's default one in clWindowText.
class TFont : public TGraphicsObject
{
    VCL_CLASS
public:
    TFont();

    TFontCharset GetCharset() const { return FCharset; }
    void SetCharset(TFontCharset Value) { SetField(FCharset, Value); }
    TColor GetColor() const { return FColor; }
    void SetColor(TColor Value) { SetField(FColor, Value); }
    /// Pixels at PixelsPerInch: negative the height of the characters, positive that of their cell.
    int GetHeight() const { return FSpec.Height; }
    void SetHeight(int Value) { SetField(FSpec.Height, Value); }
    const AnsiString& GetName() const { return FSpec.Name; }
    /// An empty name is ignored.
    void SetName(const AnsiString& Value);
    TFontPitch GetPitch() const { return FPitch; }
    void SetPitch(TFontPitch Value) { SetField(FPitch, Value); }
    /// Points: Height seen the other way round, with its sign reversed.
    int GetSize() const;
    void SetSize(int Value);
    TFontStyles GetStyle() const;
    void SetStyle(TFontStyles Value);
    /// Counter-clockwise rotation of the text in tenths of a degree.
    int GetOrientation() const { return FSpec.Orientation; }
    void SetOrientation(int Value) { SetField(FSpec.Orientation, Value); }
    /// Dots an inch that Size is computed with, 96 at first. Changing it leaves Height as it is; values below
    /// 1 are ignored.
    int GetPixelsPerInch() const { return FPixelsPerInch; }
    void SetPixelsPerInch(int Value);

    /// Copies everything of another font, Size rather than Height when PixelsPerInch differs.
    void Assign(const TPersistent* Source) override;

    /// The font as painters and the text engine take it.
    const TFontSpec& GetSpec() const { return FSpec; }
    /// The metrics the platform gives for the font.
    TFontMetrics GetMetrics() const;
    /// True when both look alike: OnChange and PixelsPerInch are not compared.
    bool IsEqual(const TFont& Other) const;

private:
    TFontSpec FSpec;
    TColor FColor = clWindowText;
    TFontCharset FCharset = DEFAULT_CHARSET;
    TFontPitch FPitch = TFontPitch::fpDefault;
    int FPixelsPerInch = 96;
};

} // namespace vcl
