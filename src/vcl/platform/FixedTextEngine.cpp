#include "vcl/platform/FixedTextEngine.h"

#include <algorithm>
#include <cmath>
#include <cstdlib>

namespace vcl
{

namespace
{

// The reference cell all other sizes are in proportion to.
constexpr int ReferenceHeight = 15;
constexpr int ReferenceWidth = 9;
constexpr int ReferenceLine = 17;
constexpr int ReferenceAscent = 12;
constexpr int DefaultHeight = 11;
constexpr int LargestHeight = 10000;

bool IsContinuation(char Byte)
{
    return (static_cast<unsigned char>(Byte) & 0xC0) == 0x80;
}

int CountCodePoints(std::string_view Text)
{
    return static_cast<int>(
        std::count_if(Text.begin(), Text.end(), [](char Byte) { return !IsContinuation(Byte); }));
}

/// Share of the reference for a character height, rounded to nearest, at least one pixel.
int InProportion(int Reference, int CharacterHeight)
{
    return std::max(1, (Reference * CharacterHeight * 2 + ReferenceHeight) / (ReferenceHeight * 2));
}

int CharacterHeight(int FontHeight)
{
    if (FontHeight == 0)
        return DefaultHeight;
    if (FontHeight < 0)
        return FontHeight < -LargestHeight ? LargestHeight : -FontHeight;
    const int Cell = std::min(FontHeight, LargestHeight);
    return std::max(1, (Cell * ReferenceHeight * 2 + ReferenceLine) / (ReferenceLine * 2));
}

/// Maps a rectangle of the unrotated text line onto the buffer, turned about the text's origin.
class TQuarterTurns
{
public:
    TQuarterTurns(TPoint Origin, int Orientation)
        : FOrigin(Origin), FTurns((((Orientation % 3600) + 3600) % 3600 + 450) / 900 % 4)
    {
    }

    TRect Apply(const TRect& Rect) const
    {
        switch (FTurns) {
        case 1:
            return Shifted({Rect.Top, -Rect.Right, Rect.Bottom, -Rect.Left});
        case 2:
            return Shifted({-Rect.Right, -Rect.Bottom, -Rect.Left, -Rect.Top});
        case 3:
            return Shifted({-Rect.Bottom, Rect.Left, -Rect.Top, Rect.Right});
        default:
            return Shifted(Rect);
        }
    }

private:
    TRect Shifted(const TRect& Rect) const
    {
        return {Rect.Left + FOrigin.X, Rect.Top + FOrigin.Y, Rect.Right + FOrigin.X, Rect.Bottom + FOrigin.Y};
    }

    TPoint FOrigin;
    int FTurns;
};

void Fill(const TPixelBuffer& Target, std::span<const TRect> Clip, const TRect& Rect, std::uint32_t Color)
{
    for (const TRect& Part : Clip) {
        const int Left = std::max({Rect.Left, Part.Left, 0});
        const int Right = std::min({Rect.Right, Part.Right, Target.Width});
        const int Bottom = std::min({Rect.Bottom, Part.Bottom, Target.Height});
        if (Left >= Right)
            continue;
        for (int Y = std::max({Rect.Top, Part.Top, 0}); Y < Bottom; ++Y) {
            std::uint32_t* const Row = Target.Pixels + std::ptrdiff_t{Y} * Target.Stride;
            std::fill(Row + Left, Row + Right, Color);
        }
    }
}

} // namespace

TFontMetrics TFixedTextEngine::Metrics(const TFontSpec& Font)
{
    const int Character = CharacterHeight(Font.Height);
    TFontMetrics Metrics;
    Metrics.Height = InProportion(ReferenceLine, Character);
    Metrics.Ascent = std::min(InProportion(ReferenceAscent, Character), Metrics.Height);
    Metrics.Descent = Metrics.Height - Metrics.Ascent;
    Metrics.InternalLeading = Metrics.Height - Character;
    Metrics.AveCharWidth = InProportion(ReferenceWidth, Character);
    Metrics.MaxCharWidth = Metrics.AveCharWidth;
    return Metrics;
}

int TFixedTextEngine::TextWidth(const TFontSpec& Font, std::string_view Text)
{
    return CountCodePoints(Text) * Metrics(Font).AveCharWidth;
}

void TFixedTextEngine::Extents(const TFontSpec& Font, std::string_view Text, std::vector<int>& Extents)
{
    const int Width = Metrics(Font).AveCharWidth;
    Extents.resize(static_cast<std::size_t>(CountCodePoints(Text)));
    int Sum = 0;
    for (int& Extent : Extents)
        Extent = Sum += Width;
}

void TFixedTextEngine::Draw(const TTextRun& Run, const TPixelBuffer& Target, std::span<const TRect> Clip)
{
    const TFontMetrics Font = Metrics(*Run.Font);
    const int Count = CountCodePoints(Run.Text);
    const int Width = Count * Font.AveCharWidth;
    const TQuarterTurns Turn(Run.Origin, Run.Font->Orientation);
    const auto Device = [&](double Units) { return static_cast<int>(std::lround(Units * Run.Scale)); };
    const auto FillUnits = [&](int Left, int Top, int Right, int Bottom) {
        Fill(Target, Clip, Turn.Apply({Device(Left), Device(Top), Device(Right), Device(Bottom)}), Run.Color);
    };

    // Blocks as high as a lower case letter; one free pixel column between two of them.
    const int Top = Font.Ascent - std::max(1, Font.Ascent * 2 / 3);
    int Index = 0;
    for (char Byte : Run.Text) {
        if (IsContinuation(Byte))
            continue;
        const int Left = (Run.RightToLeft ? Count - 1 - Index : Index) * Font.AveCharWidth;
        ++Index;
        if (Byte != ' ')
            FillUnits(Left, Run.Font->Bold ? Top - 1 : Top, Left + std::max(1, Font.AveCharWidth - 1),
                      Font.Ascent);
    }
    if (Run.Font->Underline)
        FillUnits(0, Font.Ascent + 1, Width, Font.Ascent + 2);
    if (Run.Font->StrikeOut)
        FillUnits(0, Top - 2, Width, Top - 1);
}

} // namespace vcl
