#include "vcl/graphics/RecordingPainter.h"

#include <algorithm>
#include <cstdio>

#include "vcl/graphics/Surface.h"

namespace vcl
{

namespace
{

AnsiString Hex(std::uint32_t Value, int Digits)
{
    char Text[16];
    std::snprintf(Text, sizeof Text, "%0*X", Digits, static_cast<unsigned>(Value));
    return Text;
}

AnsiString Color(std::uint32_t Value)
{
    return Hex(Value & 0xFFFFFF, 6);
}

AnsiString Show(TPoint Point)
{
    return IntToStr(Point.X) + "," + IntToStr(Point.Y);
}

AnsiString Show(const TRect& Rect)
{
    return IntToStr(Rect.Left) + "," + IntToStr(Rect.Top) + "," + IntToStr(Rect.Right) + "," +
           IntToStr(Rect.Bottom);
}

AnsiString Show(std::span<const TPoint> Points)
{
    AnsiString Result;
    for (TPoint Point : Points)
        Result += " " + Show(Point);
    return Result;
}

bool IsDashed(TPenStyle Style)
{
    return Style >= TPenStyle::psDash && Style <= TPenStyle::psDashDotDot;
}

bool IsHatched(TBrushStyle Style)
{
    return Style >= TBrushStyle::bsHorizontal && Style <= TBrushStyle::bsDiagCross;
}

AnsiString Mode(const TDrawState& State)
{
    static constexpr const char* Names[] = {
        "black", "notmerge", "masknotpen", "notcopy",     "maskpennot", "not",         "xor",   "notmask",
        "mask",  "notxor",   "nop",        "mergenotpen", "copy",       "mergepennot", "merge", "white"};
    if (State.Mode == TPenMode::pmCopy)
        return {};
    return AnsiString(" mode=") + Names[static_cast<int>(State.Mode)];
}

AnsiString Back(const TDrawState& State)
{
    return " back=" + (State.BackMode == TBackgroundMode::bmOpaque ? Color(State.BackColor) : "none");
}

AnsiString Pen(const TPenState& Pen)
{
    static constexpr const char* Styles[] = {"", "dash:", "dot:", "dashdot:", "dashdotdot:", "", "inside:"};
    if (Pen.Style == TPenStyle::psClear)
        return " pen=none";
    AnsiString Result = AnsiString(" pen=") + Styles[static_cast<int>(Pen.Style)] + Color(Pen.Color);
    if (Pen.Width > 1)
        Result += ":" + IntToStr(Pen.Width);
    return Result;
}

AnsiString PatternRows(const TBrushState& Brush)
{
    AnsiString Rows;
    for (std::size_t Index = 0; Index < Brush.Pattern.size(); ++Index) {
        if (Index > 0)
            Rows += Index % 8 == 0 ? '/' : ',';
        Rows += Color(Brush.Pattern[Index]);
    }
    return Rows;
}

AnsiString Brush(const TDrawState& State)
{
    static constexpr const char* Hatches[] = {
        "horizontal:", "vertical:", "fdiagonal:", "bdiagonal:", "cross:", "diagcross:"};
    const TBrushState& Brush = State.Brush;
    switch (Brush.Style) {
    case TBrushStyle::bsSolid:
        return " brush=" + Color(Brush.Color);
    case TBrushStyle::bsClear:
        return " brush=none";
    case TBrushStyle::bsPattern:
        return " brush=pattern:" + PatternRows(Brush);
    case TBrushStyle::bsMono: {
        AnsiString Rows;
        for (std::uint8_t Row : Brush.Mono)
            Rows += Hex(Row, 2);
        return " brush=mono:" + Rows + ":" + Color(State.TextColor) + ":" + Color(State.BackColor);
    }
    default: {
        const int Hatch = static_cast<int>(Brush.Style) - static_cast<int>(TBrushStyle::bsHorizontal);
        return AnsiString(" brush=") + Hatches[Hatch] + Color(Brush.Color);
    }
    }
}

/// What an outline alone depends on.
AnsiString Outline(const TDrawState& State)
{
    return Pen(State.Pen) + (IsDashed(State.Pen.Style) ? Back(State) : "") + Mode(State);
}

/// What an outlined and filled figure depends on.
AnsiString Figure(const TDrawState& State)
{
    const bool HasGaps = IsDashed(State.Pen.Style) || IsHatched(State.Brush.Style);
    return Pen(State.Pen) + Brush(State) + (HasGaps ? Back(State) : "") + Mode(State);
}

AnsiString Filling(const TDrawState& State)
{
    return Brush(State) + (IsHatched(State.Brush.Style) ? Back(State) : "");
}

AnsiString ShowArc(const TRect& Box, TPoint From, TPoint To)
{
    return Show(Box) + " from=" + Show(From) + " to=" + Show(To);
}

/// FNV-1a over the pixels inside both the surface and Rect.
std::uint32_t CheckValue(const TSurface& Surface, const TRect& Rect,
                         std::span<const std::uint8_t> Transparent)
{
    const TRect Part = IntersectionOf(Surface.DeviceBounds(), Surface.ToDevice(Rect));
    std::uint32_t Value = 2166136261u;
    const auto Mix = [&](std::uint32_t Byte) { Value = (Value ^ Byte) * 16777619u; };
    for (int Y = Part.Top; Y < Part.Bottom; ++Y) {
        for (int X = Part.Left; X < Part.Right; ++X) {
            const std::size_t Index = static_cast<std::size_t>(Y) * Surface.GetDeviceWidth() + X;
            const bool IsLeftOut = Index < Transparent.size() && Transparent[Index] != 0;
            const std::uint32_t Pixel = IsLeftOut ? 0x1000000 : Surface.Row(Y)[X] & 0xFFFFFF;
            for (int Shift = 0; Shift < 32; Shift += 8)
                Mix(Pixel >> Shift & 0xFF);
        }
    }
    return Value;
}

AnsiString Quoted(std::string_view Text)
{
    AnsiString Result = "\"";
    for (char Byte : Text) {
        if (Byte == '"' || Byte == '\\')
            Result += '\\';
        Result += Byte;
    }
    return Result + "\"";
}

AnsiString Show(const TFontSpec& Font)
{
    AnsiString Result = " font=" + Quoted(Font.Name) + " " + IntToStr(Font.Height);
    if (Font.Bold)
        Result += " bold";
    if (Font.Italic)
        Result += " italic";
    if (Font.Underline)
        Result += " underline";
    if (Font.StrikeOut)
        Result += " strikeout";
    if (Font.Orientation != 0)
        Result += " turned=" + IntToStr(Font.Orientation);
    return Result;
}

AnsiString ShowCopy(const TRect& Target, const TSurface& Source, const TRect& SourceRect,
                    std::span<const std::uint8_t> Transparent)
{
    return Show(Target) + " from " + Show(SourceRect) + " of " + IntToStr(Source.GetWidth()) + "x" +
           IntToStr(Source.GetHeight()) + " pixels=" + Hex(CheckValue(Source, SourceRect, Transparent), 8);
}

} // namespace

AnsiString TRecordingPainter::GetText() const
{
    AnsiString Text;
    for (const AnsiString& Line : FLines)
        Text += Line + "\n";
    return Text;
}

void TRecordingPainter::SetClip(const TRegion* Clip)
{
    AnsiString Shown;
    if (Clip) {
        for (const TRect& Rect : Clip->GetRects())
            Shown += (Shown.empty() ? "" : " ") + Show(Rect);
    }
    if (Shown.empty())
        Shown = Clip ? "empty" : "none";
    FReach = Clip ? IntersectionOf(FBounds, Clip->GetBounds()) : FBounds;
    if (Shown == FClip)
        return;
    FClip = Shown;
    Add("clip " + Shown);
}

void TRecordingPainter::Polyline(const TDrawState& State, std::span<const TPoint> Points)
{
    Add((Points.size() == 2 ? "line" : "polyline") + Show(Points) + Outline(State));
}

void TRecordingPainter::Polygon(const TDrawState& State, std::span<const TPoint> Points)
{
    Add("polygon" + Show(Points) + Figure(State) +
        (State.FillMode == TFillMode::fmWinding ? " winding" : ""));
}

void TRecordingPainter::Rectangle(const TDrawState& State, const TRect& Rect)
{
    Add("rect " + Show(Rect) + Figure(State));
}

void TRecordingPainter::RoundRect(const TDrawState& State, const TRect& Rect, TSize Corner)
{
    Add("roundrect " + Show(Rect) + " corner=" + Show(TPoint{Corner.Width, Corner.Height}) + Figure(State));
}

void TRecordingPainter::Ellipse(const TDrawState& State, const TRect& Rect)
{
    Add("ellipse " + Show(Rect) + Figure(State));
}

void TRecordingPainter::Arc(const TDrawState& State, const TRect& Box, TPoint From, TPoint To)
{
    Add("arc " + ShowArc(Box, From, To) + Outline(State));
}

void TRecordingPainter::Pie(const TDrawState& State, const TRect& Box, TPoint From, TPoint To)
{
    Add("pie " + ShowArc(Box, From, To) + Figure(State));
}

void TRecordingPainter::Chord(const TDrawState& State, const TRect& Box, TPoint From, TPoint To)
{
    Add("chord " + ShowArc(Box, From, To) + Figure(State));
}

void TRecordingPainter::FillRect(const TDrawState& State, const TRect& Rect)
{
    Add("fill " + Show(Rect) + Filling(State));
}

void TRecordingPainter::FrameRect(const TDrawState& State, const TRect& Rect)
{
    Add("frame " + Show(Rect) + Filling(State));
}

void TRecordingPainter::InvertRect(const TRect& Rect)
{
    Add("invert " + Show(Rect));
}

void TRecordingPainter::FocusRect(const TRect& Rect)
{
    Add("focus " + Show(Rect));
}

void TRecordingPainter::SetPixel(TPoint Point, std::uint32_t Value)
{
    Add("pixel " + Show(Point) + " color=" + Color(Value));
}

void TRecordingPainter::StretchCopy(const TRect& Target, const TSurface& Source, const TRect& SourceRect)
{
    Add("copy " + ShowCopy(Target, Source, SourceRect, {}));
}

void TRecordingPainter::MaskedCopy(const TRect& Target, const TSurface& Source, const TRect& SourceRect,
                                   std::span<const std::uint8_t> Transparent)
{
    Add("maskedcopy " + ShowCopy(Target, Source, SourceRect, Transparent));
}

void TRecordingPainter::Text(const TDrawState& State, const TFontSpec& Font, TPoint Origin,
                             std::string_view Text, bool RightToLeft)
{
    Add("text " + Show(Origin) + " " + Quoted(Text) + Show(Font) + " color=" + Color(State.TextColor) +
        Back(State) + (RightToLeft ? " rtl" : ""));
}

} // namespace vcl
