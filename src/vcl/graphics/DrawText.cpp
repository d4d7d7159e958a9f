#include "vcl/graphics/DrawText.h"

#include <algorithm>

#include "vcl/graphics/Canvas.h"
#include "vcl/graphics/TextDisplay.h"
#include "vcl/platform/Platform.h"
#include "vcl/system/CodePage.h"

namespace vcl
{

namespace
{

// More text than any rectangle of a surface can show; the rest is not even looked at when drawing.
constexpr std::size_t LongestDrawn = std::size_t{1} << 20;

class TFontMeasure final : public ITextMeasure
{
public:
    explicit TFontMeasure(const TFontSpec& Font)
        : FFont(Font), FEngine(Platform().Text()), FMetrics(FEngine.Metrics(Font))
    {
    }

    int LineHeight() override { return FMetrics.Height; }
    int ExternalLeading() override { return FMetrics.ExternalLeading; }
    int AveCharWidth() override { return FMetrics.AveCharWidth; }
    int Width(std::string_view Text) override { return FEngine.TextWidth(FFont, Text); }
    void Extents(std::string_view Text, std::vector<int>& Extents) override
    {
        FEngine.Extents(FFont, Text, Extents);
    }

    int Ascent() const { return FMetrics.Ascent; }

private:
    TFontSpec FFont;
    ITextEngine& FEngine;
    TFontMetrics FMetrics;
};

AnsiString DisplayText(const AnsiString& Text, unsigned Flags)
{
    if (Text.size() <= LongestDrawn || (Flags & (DT_CALCRECT | DT_NOCLIP)))
        return AnsiToUtf8(Text);
    std::size_t End = LongestDrawn;
    while (End > LongestDrawn - 4 && (static_cast<unsigned char>(Text[End]) & 0xC0) == 0x80)
        --End;
    return AnsiToUtf8(std::string_view(Text).substr(0, End));
}

bool LiesInside(const TTextLine& Line, int LineHeight, const TRect& Rect)
{
    if (Line.Y < Rect.Top || std::int64_t{Line.Y} + LineHeight > Rect.Bottom)
        return false;
    return std::all_of(Line.Pieces.begin(), Line.Pieces.end(), [&](const TTextPiece& Piece) {
        return Piece.X >= Rect.Left && std::int64_t{Piece.X} + Piece.Width <= Rect.Right;
    });
}

void DrawUnderline(TCanvas& Canvas, TFontMeasure& Measure, const TTextPiece& Piece, int Y)
{
    const std::string_view Text = Piece.Text;
    const auto Begin = static_cast<std::size_t>(Piece.Underline);
    const std::size_t End = Begin + static_cast<std::size_t>(CodePointAt(Text, Begin).Length);
    const int Top = Y + Measure.Ascent() + 1;
    Canvas.FillTextColor({Piece.X + Measure.Width(Text.substr(0, Begin)), Top,
                          Piece.X + Measure.Width(Text.substr(0, End)), Top + 1});
}

void DrawLines(TCanvas& Canvas, TFontMeasure& Measure, const TTextLayout& Layout, unsigned Flags)
{
    for (const TTextLine& Line : Layout.Lines) {
        for (const TTextPiece& Piece : Line.Pieces) {
            if (!Piece.Text.empty() && !(Flags & DT_PREFIXONLY))
                Canvas.DrawTextRun({Piece.X, Line.Y}, Piece.Text, (Flags & DT_RTLREADING) != 0);
            if (Piece.Underline >= 0)
                DrawUnderline(Canvas, Measure, Piece, Line.Y);
        }
    }
}

void DrawLayout(TCanvas& Canvas, TFontMeasure& Measure, const TTextLayout& Layout, const TRect& Rect,
                unsigned Flags)
{
    const int LineHeight = Measure.LineHeight();
    const bool FitsWhole = std::all_of(Layout.Lines.begin(), Layout.Lines.end(), [&](const TTextLine& Line) {
        return LiesInside(Line, LineHeight, Rect);
    });
    if ((Flags & DT_NOCLIP) || FitsWhole) {
        DrawLines(Canvas, Measure, Layout, Flags);
        return;
    }
    if (Rect.IsEmpty() || Canvas.IsClippedOut(Rect))
        return;
    const std::optional<TRegion> Clip = Canvas.GetClipRegion();
    Canvas.IntersectClipRect(Rect);
    DrawLines(Canvas, Measure, Layout, Flags);
    Canvas.SelectClipRegion(Clip ? &*Clip : nullptr);
}

} // namespace

int DrawTextEx(TCanvas& Canvas, AnsiString& Text, TRect& Rect, unsigned Flags, TDrawTextParams* Params)
{
    TDrawTextParams Own;
    // Without parameters the tab length stands in bits 8 to 15, and their flags mean nothing.
    if (!Params && (Flags & DT_TABSTOP)) {
        Own.TabLength = static_cast<int>(Flags >> 8 & 0xFF);
        Flags &= ~0xFF00u;
    }
    TDrawTextParams& Used = Params ? *Params : Own;
    TFontMeasure Measure(Canvas.GetFont()->GetSpec());
    const TTextLayout Layout = LayoutText(Measure, DisplayText(Text, Flags), Rect, Flags, Used);
    if (Flags & DT_CALCRECT)
        Rect = Layout.Bounds;
    else
        DrawLayout(Canvas, Measure, Layout, Rect, Flags);
    Used.LengthDrawn = Layout.LengthDrawn;
    if (Layout.WasModified)
        Text = Utf8ToAnsi(Layout.Modified);
    return Layout.Height;
}

int DrawText(TCanvas& Canvas, const AnsiString& Text, TRect& Rect, unsigned Flags, TDrawTextParams* Params)
{
    // The text is only copied when it would be modified.
    return DrawTextEx(Canvas, const_cast<AnsiString&>(Text), Rect, Flags & ~DT_MODIFYSTRING, Params);
}

} // namespace vcl
