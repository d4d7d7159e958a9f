#include "vcl/platform/qt/QtFont.h"

#include <QFontMetricsF>
#include <QGuiApplication>

#include <cmath>

#include "vcl/platform/qt/QtConvert.h"
#include "vcl/platform/qt/Utf8.h"

namespace vcl::qt
{

namespace
{

constexpr std::uint32_t FirstComplexCodePoint = 0x2100;
/// Bounds of one font and of the thread.
constexpr std::size_t MaxGlyphs = 16384;
constexpr std::size_t MaxFonts = 96;

/// Letters that neither join, combine nor run right to left, and the punctuation between them.
bool StandsAlone(std::uint32_t CodePoint)
{
    const auto In = [CodePoint](std::uint32_t First, std::uint32_t Last) {
        return CodePoint >= First && CodePoint <= Last;
    };
    return In(0x20, 0x7E) || In(0xA0, 0xAC) || In(0xAE, 0x2FF) || In(0x370, 0x482) || In(0x48A, 0x52F) ||
           In(0x2010, 0x2027) || In(0x2030, 0x205E) || In(0x20A0, 0x20BF);
}

/// Families that forms of older systems name and few systems have, with ones of like proportions.
QStringList Families(const AnsiString& Name)
{
    static const char* const SansNames[] = {
        "MS Sans Serif", "Microsoft Sans Serif", "MS Shell Dlg", "MS Shell Dlg 2", "Tahoma", "System",
        "Helv"};
    QStringList Result;
    if (!Name.empty())
        Result << ToQt(Name);
    for (const char* Known : SansNames) {
        if (SameText(Name, Known))
            Result << QStringLiteral("Liberation Sans") << QStringLiteral("Arial");
    }
    if (SameText(Name, "MS Serif"))
        Result << QStringLiteral("Liberation Serif") << QStringLiteral("Times New Roman");
    if (Result.isEmpty())
        Result = QGuiApplication::font().families();
    return Result;
}

/// Without size.
QFont BaseFont(const TFontSpec& Spec)
{
    QFont Font(Families(Spec.Name));
    Font.setBold(Spec.Bold);
    Font.setItalic(Spec.Italic);
    Font.setKerning(false);
    return Font;
}

/// The character height whose line is CellHeight pixels, or the largest that is not higher.
int CharacterHeightFor(QFont Font, int CellHeight)
{
    constexpr int Sample = 1000;
    Font.setPixelSize(Sample);
    const double LineOfSample = QFontMetricsF(Font).height();
    int Size = std::max(1, static_cast<int>(std::lround(Sample * CellHeight / LineOfSample)));
    for (; Size > 1; --Size) {
        Font.setPixelSize(Size);
        if (QFontMetrics(Font).height() <= CellHeight)
            break;
    }
    return Size;
}

int CharacterHeight(const TFontSpec& Spec, const QFont& Font)
{
    constexpr int DefaultHeight = 12;
    constexpr int LargestHeight = 8192;
    if (Spec.Height == 0)
        return DefaultHeight;
    if (Spec.Height > 0)
        return CharacterHeightFor(Font, std::min(Spec.Height, LargestHeight));
    return std::min(-std::max(Spec.Height, -LargestHeight), LargestHeight);
}

TFontMetrics MeasureFont(const QFont& Font, int Height)
{
    const QFontMetrics Metrics(Font);
    TFontMetrics Result;
    Result.Ascent = Metrics.ascent();
    Result.Descent = Metrics.descent();
    Result.Height = Result.Ascent + Result.Descent;
    Result.InternalLeading = std::max(0, Result.Height - Height);
    Result.ExternalLeading = std::max(0, Metrics.leading());
    Result.AveCharWidth = std::max(1, Metrics.averageCharWidth());
    Result.MaxCharWidth = std::max(Result.AveCharWidth, Metrics.maxWidth());
    return Result;
}

} // namespace

QFont ToQtFont(const TFontSpec& Spec)
{
    QFont Font = BaseFont(Spec);
    Font.setPixelSize(CharacterHeight(Spec, Font));
    Font.setUnderline(Spec.Underline);
    Font.setStrikeOut(Spec.StrikeOut);
    return Font;
}

TScaledFont::TScaledFont(const TFontSpec& Spec, double Scale)
    : FFont(BaseFont(Spec)), FWhole(Scale == 1.0), FRotation(-Spec.Orientation / 10.0)
{
    const double Radians = FRotation * std::acos(-1.0) / 180;
    FCosine = std::cos(Radians);
    FSine = std::sin(Radians);
    FFont.setStyleStrategy(static_cast<QFont::StyleStrategy>(QFont::PreferAntialias | QFont::PreferOutline |
                                                             QFont::NoSubpixelAntialias));
    // At scale 1 letters stand on whole pixels; otherwise their places, and so their shapes, are in between.
    FFont.setHintingPreference(FWhole ? QFont::PreferFullHinting : QFont::PreferVerticalHinting);
    const int Height = CharacterHeight(Spec, FFont);
    FFont.setPixelSize(Height);
    FMetrics = MeasureFont(FFont, Height);
    FAscent = FMetrics.Ascent * Scale;
    FFont.setPixelSize(std::max(1, static_cast<int>(std::lround(Height * Scale))));
    const QFontMetricsF Scaled(FFont);
    FUnderlineOffset = Scaled.underlinePos();
    FStrikeOutOffset = -Scaled.strikeOutPos();
    FLineThickness = std::max(1.0, std::round(Scaled.lineWidth()));
    FRaw = QRawFont::fromFont(FFont);
}

TScaledFont::~TScaledFont() = default;

TScaledFont::TCharacter* TScaledFont::Lookup(std::uint32_t CodePoint)
{
    if (CodePoint >= FirstComplexCodePoint)
        return nullptr;
    const std::size_t Index = CodePoint >> 8;
    if (FBlocks.size() <= Index)
        FBlocks.resize(Index + 1);
    if (!FBlocks[Index])
        FBlocks[Index] = std::make_unique<TBlock>();
    TCharacter& Character = (*FBlocks[Index])[CodePoint & 0xFF];
    if (Character.Kind == TCharacter::TKind::Unknown)
        Load(Character, CodePoint);
    return Character.Kind == TCharacter::TKind::Simple ? &Character : nullptr;
}

void TScaledFont::Load(TCharacter& Character, std::uint32_t CodePoint) const
{
    Character.Kind = TCharacter::TKind::Complex;
    if (!StandsAlone(CodePoint) || !FRaw.isValid())
        return;
    const QList<quint32> Glyphs =
        FRaw.glyphIndexesForString(QString(QChar(static_cast<char16_t>(CodePoint))));
    if (Glyphs.size() != 1 || Glyphs.first() == 0)
        return;
    const QList<QPointF> Advances = FRaw.advancesForGlyphIndexes(Glyphs);
    Character.Kind = TCharacter::TKind::Simple;
    Character.Glyph = Glyphs.first();
    const double Advance = Advances.first().x();
    Character.Advance = static_cast<float>(FWhole ? std::round(Advance) : Advance);
}

double TScaledFont::SimpleWidth(std::string_view Text)
{
    double Width = 0;
    for (std::size_t Position = 0; Position < Text.size();) {
        const TCharacter* Character = Lookup(NextCodePoint(Text, Position));
        if (!Character)
            return -1;
        Width += Character->Advance;
    }
    return Width;
}

int TScaledFont::TextWidth(std::string_view Text)
{
    const double Width = SimpleWidth(Text);
    return static_cast<int>(std::lround(Width >= 0 ? Width : Shape(Text, false).Width));
}

void TScaledFont::Extents(std::string_view Text, std::vector<int>& Extents)
{
    Extents.clear();
    double Width = 0;
    for (std::size_t Position = 0; Position < Text.size();) {
        const TCharacter* Character = Lookup(NextCodePoint(Text, Position));
        if (!Character) {
            Extents.clear();
            for (const double Extent : Shape(Text, false).Extents)
                Extents.push_back(static_cast<int>(std::lround(Extent)));
            return;
        }
        Width += Character->Advance;
        Extents.push_back(static_cast<int>(Width));
    }
}

void TScaledFont::Draw(const TGlyphTarget& Target, std::string_view Text, double X, double Y, double Width,
                       bool RightToLeft)
{
    TrimGlyphs();
    // In a right-to-left paragraph even Latin text has its punctuation moved.
    const double Simple = RightToLeft ? -1 : SimpleWidth(Text);
    if (Simple == 0 || Width <= 0)
        return;
    if (Simple > 0) {
        DrawSimple(Target, Text, X, Y, Width / Simple);
        return;
    }
    const TShapedText& Shaped = Shape(Text, RightToLeft);
    const double Stretch = Shaped.Width > 0 ? Width / Shaped.Width : 1.0;
    for (const TPlacedGlyph& Glyph : Shaped.Glyphs) {
        const double Along = Glyph.X * Stretch;
        const TPen Pen(X + Along * FCosine - Glyph.Y * FSine, Y + Along * FSine + Glyph.Y * FCosine,
                       Glyph.Face->WholePixels());
        Target.Blend(Glyph.Face->Image(Glyph.Glyph, Pen.Quarter), Pen.X, Pen.Y);
    }
}

void TScaledFont::DrawCharacter(const TGlyphTarget& Target, TGlyphFace& Face, TCharacter& Character, double X,
                                double Y) const
{
    const TPen Pen(X, Y, Face.WholePixels());
    const TGlyphImage*& Image = Character.Images[static_cast<std::size_t>(Pen.Quarter)];
    if (!Image)
        Image = &Face.Image(Character.Glyph, Pen.Quarter);
    Target.Blend(*Image, Pen.X, Pen.Y);
}

void TScaledFont::DrawSimple(const TGlyphTarget& Target, std::string_view Text, double X, double Y,
                             double Stretch)
{
    TGlyphFace& Face = FaceOf(FRaw);
    const bool Straight = FSine == 0 && FCosine > 0;
    // Glyphs lean over their cells by less than their height, so whole letters can be left out.
    const double Slack = 2 * FAscent;
    double Along = 0;
    for (std::size_t Position = 0; Position < Text.size();) {
        TCharacter* Character = Lookup(NextCodePoint(Text, Position));
        const double Advance = Character->Advance * Stretch;
        if (Straight) {
            if (X + Along - Slack > Target.ClipBounds().Right)
                return;
            if (X + Along + Advance + Slack >= Target.ClipBounds().Left)
                DrawCharacter(Target, Face, *Character, X + Along, Y);
        } else {
            DrawCharacter(Target, Face, *Character, X + Along * FCosine, Y + Along * FSine);
        }
        Along += Advance;
    }
}

TGlyphFace& TScaledFont::FaceOf(const QRawFont& Raw)
{
    for (const std::unique_ptr<TGlyphFace>& Face : FFaces) {
        if (Face->Raw() == Raw)
            return *Face;
    }
    FFaces.push_back(std::make_unique<TGlyphFace>(Raw, FRotation, FWhole && FSine == 0));
    return *FFaces.back();
}

void TScaledFont::TrimGlyphs()
{
    std::size_t Count = 0;
    for (const std::unique_ptr<TGlyphFace>& Face : FFaces)
        Count += Face->Count();
    if (Count <= MaxGlyphs)
        return;
    FBlocks.clear();
    FRecent.clear();
    FOlder.clear();
    FFaces.clear();
}

std::size_t TFontCache::THash::operator()(const TKey& Key) const
{
    std::size_t Result = std::hash<std::string>()(Key.Spec.Name);
    const auto Add = [&Result](std::size_t Value) { Result = Result * 31 + Value; };
    Add(static_cast<std::size_t>(Key.Spec.Height));
    Add(static_cast<std::size_t>(Key.Spec.Orientation));
    Add(static_cast<std::size_t>(Key.Spec.Bold | Key.Spec.Italic << 1 | Key.Spec.Underline << 2 |
                                 Key.Spec.StrikeOut << 3));
    Add(std::hash<double>()(Key.Scale));
    return Result;
}

TScaledFont& TFontCache::Get(const TFontSpec& Spec, double Scale)
{
    if (FLast && FLastKey.Scale == Scale && FLastKey.Spec == Spec)
        return *FLast;
    TKey Key{Spec, Scale};
    if (FFonts.size() >= MaxFonts && !FFonts.contains(Key))
        FFonts.clear();
    std::unique_ptr<TScaledFont>& Place = FFonts[Key];
    if (!Place)
        Place = std::make_unique<TScaledFont>(Spec, Scale);
    FLast = Place.get();
    FLastKey = std::move(Key);
    return *FLast;
}

} // namespace vcl::qt
