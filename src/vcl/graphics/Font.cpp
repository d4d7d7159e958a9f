#include "vcl/graphics/Font.h"

#include "vcl/platform/Platform.h"
#include "vcl/platform/System.h"
#include "vcl/system/Rects.h"

namespace vcl
{

namespace
{

constexpr int PointsPerInch = 72;

} // namespace

const TTypeInfo& TypeTraits<TFontStyle>::Info()
{
    static const TTypeInfo Type =
        EnumerationType("TFontStyle", {"fsBold", "fsItalic", "fsUnderline", "fsStrikeOut"});
    return Type;
}

const TTypeInfo& TypeTraits<TFontPitch>::Info()
{
    static const TTypeInfo Type = EnumerationType("TFontPitch", {"fpDefault", "fpVariable", "fpFixed"});
    return Type;
}

const TTypeInfo& TypeTraits<TFontCharset>::Info()
{
    static const TTypeInfo Type = IntegerType("TFontCharset", 0, 255,
                                              {{"ANSI_CHARSET", ANSI_CHARSET},
                                               {"DEFAULT_CHARSET", DEFAULT_CHARSET},
                                               {"SYMBOL_CHARSET", SYMBOL_CHARSET},
                                               {"MAC_CHARSET", MAC_CHARSET},
                                               {"SHIFTJIS_CHARSET", SHIFTJIS_CHARSET},
                                               {"HANGEUL_CHARSET", HANGEUL_CHARSET},
                                               {"JOHAB_CHARSET", JOHAB_CHARSET},
                                               {"GB2312_CHARSET", GB2312_CHARSET},
                                               {"CHINESEBIG5_CHARSET", CHINESEBIG5_CHARSET},
                                               {"GREEK_CHARSET", GREEK_CHARSET},
                                               {"TURKISH_CHARSET", TURKISH_CHARSET},
                                               {"VIETNAMESE_CHARSET", VIETNAMESE_CHARSET},
                                               {"HEBREW_CHARSET", HEBREW_CHARSET},
                                               {"ARABIC_CHARSET", ARABIC_CHARSET},
                                               {"BALTIC_CHARSET", BALTIC_CHARSET},
                                               {"RUSSIAN_CHARSET", RUSSIAN_CHARSET},
                                               {"THAI_CHARSET", THAI_CHARSET},
                                               {"EASTEUROPE_CHARSET", EASTEUROPE_CHARSET},
                                               {"OEM_CHARSET", OEM_CHARSET}});
    return Type;
}

const TClass& TFont::StaticClass()
{
    static const TClass Class = DefineClass<TFont, TGraphicsObject>(
        "TFont", {
                     Published<&TFont::GetCharset, &TFont::SetCharset>("Charset"),
                     Published<&TFont::GetColor, &TFont::SetColor>("Color"),
                     Published<&TFont::GetHeight, &TFont::SetHeight>("Height"),
                     Published<&TFont::GetName, &TFont::SetName>("Name"),
                     Published<&TFont::GetPitch, &TFont::SetPitch>("Pitch").Default(TFontPitch::fpDefault),
                     Published<&TFont::GetSize, &TFont::SetSize>("Size").NeverStored(),
                     Published<&TFont::GetStyle, &TFont::SetStyle>("Style"),
                 });
    return Class;
}

TFont::TFont()
{
    ISystem& System = Platform().System();
    FSpec.Name = System.DefaultFontName();
    FSpec.Height = System.DefaultFontHeight();
}

void TFont::SetName(const AnsiString& Value)
{
    if (!Value.empty())
        SetField(FSpec.Name, Value);
}

int TFont::GetSize() const
{
    return -MulDiv(FSpec.Height, PointsPerInch, FPixelsPerInch);
}

void TFont::SetSize(int Value)
{
    SetHeight(-MulDiv(Value, FPixelsPerInch, PointsPerInch));
}

TFontStyles TFont::GetStyle() const
{
    TFontStyles Style;
    if (FSpec.Bold)
        Style.Include(TFontStyle::fsBold);
    if (FSpec.Italic)
        Style.Include(TFontStyle::fsItalic);
    if (FSpec.Underline)
        Style.Include(TFontStyle::fsUnderline);
    if (FSpec.StrikeOut)
        Style.Include(TFontStyle::fsStrikeOut);
    return Style;
}

void TFont::SetStyle(TFontStyles Value)
{
    if (Value == GetStyle())
        return;
    FSpec.Bold = Value.Contains(TFontStyle::fsBold);
    FSpec.Italic = Value.Contains(TFontStyle::fsItalic);
    FSpec.Underline = Value.Contains(TFontStyle::fsUnderline);
    FSpec.StrikeOut = Value.Contains(TFontStyle::fsStrikeOut);
    Changed();
}

void TFont::SetPixelsPerInch(int Value)
{
    if (Value > 0)
        FPixelsPerInch = Value;
}

void TFont::Assign(const TPersistent* Source)
{
    const TFont* const Other = As<TFont>(Source);
    if (!Other) {
        TPersistent::Assign(Source);
        return;
    }
    if (Other == this)
        return;
    TFontSpec Spec = Other->FSpec;
    if (Other->FPixelsPerInch != FPixelsPerInch)
        Spec.Height = -MulDiv(Other->GetSize(), FPixelsPerInch, PointsPerInch);
    const bool Differs =
        Spec != FSpec || Other->FColor != FColor || Other->FCharset != FCharset || Other->FPitch != FPitch;
    FSpec = Spec;
    FColor = Other->FColor;
    FCharset = Other->FCharset;
    FPitch = Other->FPitch;
    if (Differs)
        Changed();
}

TFontMetrics TFont::GetMetrics() const
{
    return Platform().Text().Metrics(FSpec);
}

bool TFont::IsEqual(const TFont& Other) const
{
    return FSpec == Other.FSpec && FColor == Other.FColor && FCharset == Other.FCharset &&
           FPitch == Other.FPitch;
}

} // namespace vcl
