#include "vcl/graphics/TextLayout.h"

#include <algorithm>
#include <climits>
#include <cstdint>

#include "vcl/graphics/TextScanner.h"

namespace vcl
{

namespace
{

constexpr std::string_view Dots = "...";
constexpr int DefaultTabLength = 8;
// No surface shows more of one line; longer ones are cut off when drawing.
constexpr std::size_t LongestLine = 65535;
// Text that is cut off by the rectangle is still handed on whole up to this length.
constexpr std::size_t UncutLength = 256;

int Clamped(std::int64_t Value)
{
    return static_cast<int>(std::clamp<std::int64_t>(Value, INT_MIN, INT_MAX));
}

/// How one line comes out of the cells that were read for it.
struct TLineCut {
    std::size_t Count = 0; // cells shown, before the dots
    std::size_t Next = 0;  // offset in the source where the next line begins
    bool HasDots = false;
    std::size_t Tail = SIZE_MAX; // with a path ellipsis: first and last cell shown behind the dots
    std::size_t TailEnd = 0;
};

class TLayouter
{
public:
    TLayouter(ITextMeasure& Measure, std::string_view Text, const TRect& Rect, unsigned Flags,
              const TDrawTextParams& Params);

    TTextLayout Run();

private:
    bool Has(unsigned Flag) const { return (FFlags & Flag) != 0; }
    bool IsAligned() const { return Has(DT_CENTER | DT_RIGHT); }
    bool SeesEverything() const { return Has(DT_CALCRECT | DT_NOCLIP); }
    TTextLayout EmptyLayout() const;
    int FirstLineTop() const;
    bool IsLastVisible(std::int64_t Y) const;

    TLineCut CutLine(std::size_t Start, bool IsLast);
    TLineCut CutUnbroken(bool IsLast);
    TLineCut CutAtWord(std::size_t Start);
    std::size_t OverlongWordEnd(std::size_t Fit);
    std::size_t SkipBlanks(std::size_t Count, std::size_t Start);
    void PutDotsAtEnd(TLineCut& Cut);
    bool PutDotsIntoPath(TLineCut& Cut);

    TTextLine MakeLine(const TLineCut& Cut, int Y);
    void Align(TTextLine& Line) const;
    void RecordDots(const TLineCut& Cut, bool IsLast);

    ITextMeasure& FMeasure;
    std::string_view FText;
    TRect FRect;
    unsigned FFlags;
    TDrawTextParams FParams;
    TTextScanner FScanner;
    int FWidth = 0;
    int FLineHeight = 0;
    TTextLayout FLayout;
    std::size_t FCopied = 0; // source bytes already taken over into the modified text
};

TLayouter::TLayouter(ITextMeasure& Measure, std::string_view Text, const TRect& Rect, unsigned Flags,
                     const TDrawTextParams& Params)
    : FMeasure(Measure), FText(Text), FRect(Rect), FFlags(Flags), FParams(Params),
      FScanner(Measure, Text, Flags,
               Measure.AveCharWidth() *
                   (Has(DT_TABSTOP) && Params.TabLength > 0 ? Params.TabLength : DefaultTabLength)),
      FWidth(Clamped(std::int64_t{Rect.Right} - Rect.Left - Params.LeftMargin - Params.RightMargin)),
      FLineHeight(Measure.LineHeight() + (Has(DT_EXTERNALLEADING) ? Measure.ExternalLeading() : 0))
{
}

TTextLayout TLayouter::Run()
{
    if (FText.empty())
        return EmptyLayout();
    const int Top = FirstLineTop();
    std::int64_t Y = Top;
    std::size_t Offset = 0;
    int Widest = 0;
    for (bool IsLast = false; Offset < FText.size() && !IsLast;) {
        IsLast = IsLastVisible(Y);
        const TLineCut Cut = CutLine(Offset, IsLast);
        if (Cut.HasDots)
            RecordDots(Cut, IsLast);
        FLayout.Lines.push_back(MakeLine(Cut, Clamped(Y)));
        Widest = std::max(Widest, FLayout.Lines.back().Width);
        Y += FLineHeight;
        Offset = Cut.Next;
    }
    FLayout.Height = Clamped(Y - FRect.Top);
    FLayout.LengthDrawn = Clamped(static_cast<std::int64_t>(std::min(Offset, FText.size())));
    FLayout.Bounds = {FRect.Left, FRect.Top,
                      Clamped(std::int64_t{FRect.Left} + FParams.LeftMargin + FParams.RightMargin + Widest),
                      Clamped(Y)};
    if (FLayout.WasModified)
        FLayout.Modified.append(FText.substr(std::min(FCopied, FText.size())));
    return std::move(FLayout);
}

TTextLayout TLayouter::EmptyLayout() const
{
    TTextLayout Layout;
    Layout.Height = FLineHeight;
    const int Bottom = Has(DT_SINGLELINE) ? Clamped(std::int64_t{FRect.Top} + FLineHeight) : FRect.Top;
    Layout.Bounds = {FRect.Left, FRect.Top, FRect.Left, Bottom};
    return Layout;
}

int TLayouter::FirstLineTop() const
{
    if (!Has(DT_SINGLELINE) || Has(DT_CALCRECT))
        return FRect.Top;
    if (Has(DT_VCENTER))
        return Clamped(FRect.Top + (std::int64_t{FRect.Bottom} - FRect.Top) / 2 - FLineHeight / 2);
    if (Has(DT_BOTTOM))
        return Clamped(std::int64_t{FRect.Bottom} - FLineHeight);
    return FRect.Top;
}

/// An edit control shows whole lines only; otherwise a line may be cut through by the rectangle's bottom. The
/// first line is shown in any case.
bool TLayouter::IsLastVisible(std::int64_t Y) const
{
    if (SeesEverything() || Has(DT_SINGLELINE))
        return false;
    return Has(DT_EDITCONTROL) ? Y + 2 * std::int64_t{FLineHeight} > FRect.Bottom
                               : Y + FLineHeight >= FRect.Bottom;
}

TLineCut TLayouter::CutLine(std::size_t Start, bool IsLast)
{
    FScanner.Start(Start);
    const bool Breaks = Has(DT_WORDBREAK) && !Has(DT_SINGLELINE);
    TLineCut Cut = Breaks ? CutAtWord(Start) : CutUnbroken(IsLast);
    const bool EndsHere = Cut.Count == FScanner.GetCount() && FScanner.AtEnd();
    const auto IsTooWide = [&] { return Cut.Count > FScanner.FitCount(FWidth); };
    if (Has(DT_PATH_ELLIPSIS) && EndsHere && IsTooWide() && PutDotsIntoPath(Cut))
        return Cut;
    const bool GoesOnUnseen = IsLast && Cut.Next < FText.size();
    const bool WantsDots = (Has(DT_END_ELLIPSIS | DT_PATH_ELLIPSIS) &&
                            (GoesOnUnseen || ((EndsHere || !Breaks) && IsTooWide()))) ||
                           (Has(DT_WORD_ELLIPSIS) && IsTooWide());
    if (WantsDots)
        PutDotsAtEnd(Cut);
    return Cut;
}

TLineCut TLayouter::CutUnbroken(bool IsLast)
{
    const bool OnlyStartIsSeen = Has(DT_END_ELLIPSIS | DT_WORD_ELLIPSIS) && !Has(DT_PATH_ELLIPSIS);
    if (OnlyStartIsSeen) {
        FScanner.ReadBeyond(FWidth);
    } else if (Has(DT_CALCRECT)) {
        FScanner.ReadAll(SIZE_MAX);
    } else if (SeesEverything() || IsAligned() || Has(DT_PATH_ELLIPSIS | DT_RTLREADING)) {
        FScanner.ReadAll(LongestLine);
    } else {
        // The end of right-to-left text stands on the left, so all of it decides what is seen.
        FScanner.ReadBeyond(FWidth, UncutLength);
        if (FScanner.HasRightToLeft())
            FScanner.ReadAll(LongestLine);
    }
    TLineCut Cut;
    Cut.Count = FScanner.GetCount();
    // Where the next paragraph begins is looked for only when it will be shown.
    Cut.Next = IsLast && !FScanner.AtEnd() ? FScanner.SourceEnd(Cut.Count) : FScanner.NextParagraph();
    return Cut;
}

TLineCut TLayouter::CutAtWord(std::size_t Start)
{
    FScanner.ReadBeyond(FWidth);
    TLineCut Cut;
    const std::size_t Fit = FScanner.FitCount(FWidth);
    if (Fit == FScanner.GetCount()) {
        Cut.Count = Fit;
        Cut.Next = FScanner.NextParagraph();
        return Cut;
    }
    std::size_t Break = Fit;
    if (!FScanner[Fit].IsBlank()) {
        while (Break > 0 && !FScanner.CanBreakBefore(Break))
            --Break;
        if (Break == 0)
            Break = OverlongWordEnd(Fit);
    }
    Cut.Next = SkipBlanks(Break, Start);
    // Blanks at the end of a broken line do not take part in its alignment.
    while (IsAligned() && Break > 0 && FScanner[Break - 1].IsBlank())
        --Break;
    Cut.Count = Break;
    return Cut;
}

/// Where a line ends that begins with a word wider than it: an edit control breaks the word, at least one
/// character goes on each line; otherwise the word sticks out.
std::size_t TLayouter::OverlongWordEnd(std::size_t Fit)
{
    std::size_t End = std::max<std::size_t>(Fit, 1);
    if (Has(DT_EDITCONTROL)) {
        while (End > 1 && FScanner.IsJoined(End))
            --End;
        if (End > 1)
            return End;
    }
    constexpr std::size_t Chunk = 32;
    for (; End < LongestLine; ++End) {
        if (End == FScanner.GetCount() && !FScanner.AtEnd())
            FScanner.Read(Chunk);
        if (End == FScanner.GetCount())
            break;
        const bool EndsHere = Has(DT_EDITCONTROL) ? !FScanner.IsJoined(End)
                                                  : FScanner[End].IsBlank() || FScanner.CanBreakBefore(End);
        if (EndsHere)
            break;
    }
    return End;
}

/// The blanks at a break belong to neither line, and when the paragraph ends with them so does this line.
std::size_t TLayouter::SkipBlanks(std::size_t Count, std::size_t Start)
{
    std::size_t Next = FScanner.SourceEnd(Count);
    while (Next < FText.size() && (FText[Next] == ' ' || FText[Next] == '\t'))
        ++Next;
    if (Next < FText.size() && (FText[Next] == '\r' || FText[Next] == '\n'))
        Next += FText.substr(Next, 2) == "\r\n" ? 2 : 1;
    return std::max(Next, Start + 1);
}

void TLayouter::PutDotsAtEnd(TLineCut& Cut)
{
    Cut.HasDots = true;
    Cut.Tail = SIZE_MAX;
    std::size_t Keep = 0;
    if (FWidth > 0) {
        Keep = FScanner.FitCount(FWidth - FMeasure.Width(Dots));
        const auto IsTooWide = [&] {
            const std::vector<TTextPiece> Pieces = FScanner.Pieces(Keep, true);
            const TTextPiece& Last = Pieces.back();
            return Last.X + FMeasure.Width(Last.Text + AnsiString(Dots)) > FWidth;
        };
        while (Keep > 0 && (FScanner.IsJoined(Keep) || IsTooWide()))
            --Keep;
    }
    Cut.Count = Keep;
}

/// Leaves out the middle of a path, keeping what stands behind its last separator. False without one.
bool TLayouter::PutDotsIntoPath(TLineCut& Cut)
{
    std::size_t Tail = Cut.Count;
    while (Tail > 0 && FScanner[Tail - 1].Value != '\\' && FScanner[Tail - 1].Value != '/')
        --Tail;
    if (Tail == 0)
        return false;
    --Tail; // the separator itself stays
    const int Whole = FScanner.WidthOf(Cut.Count);
    const int Around = FMeasure.Width(Dots) + Whole - FScanner.WidthOf(Tail);
    std::size_t Keep = std::min(FScanner.FitCount(Clamped(std::int64_t{FWidth} - Around)), Tail);
    while (Keep > 0 && FScanner.IsJoined(Keep))
        --Keep;
    std::size_t TailEnd = Cut.Count;
    while (TailEnd > Tail + 1 && Keep == 0 && Around - (Whole - FScanner.WidthOf(TailEnd)) > FWidth)
        --TailEnd;
    Cut.Count = Keep;
    Cut.HasDots = true;
    Cut.Tail = Tail;
    Cut.TailEnd = TailEnd;
    return true;
}

TTextLine TLayouter::MakeLine(const TLineCut& Cut, int Y)
{
    TTextLine Line;
    Line.Y = Y;
    const bool NeedsWidth = IsAligned() || Has(DT_CALCRECT) || FWidth > 0;
    Line.Pieces = FScanner.Pieces(Cut.Count, NeedsWidth);
    if (Cut.HasDots) {
        if (Line.Pieces.empty())
            Line.Pieces.emplace_back();
        TTextPiece& Last = Line.Pieces.back();
        Last.Text += Dots;
        for (std::size_t Index = Cut.Tail; Index < Cut.TailEnd; ++Index) {
            const TTextCell& Cell = FScanner[Index];
            Last.Text.append(FText.substr(Cell.Begin, Cell.End - Cell.Begin));
        }
        if (NeedsWidth)
            Last.Width = FMeasure.Width(Last.Text);
    }
    if (!Line.Pieces.empty() && NeedsWidth) {
        const TTextPiece& Last = Line.Pieces.back();
        Line.Width = Cut.HasDots ? Last.X + Last.Width : FScanner.WidthOf(Cut.Count);
    }
    Align(Line);
    return Line;
}

void TLayouter::Align(TTextLine& Line) const
{
    const std::int64_t Left = std::int64_t{FRect.Left} + FParams.LeftMargin;
    const std::int64_t Right = std::int64_t{FRect.Right} - FParams.RightMargin;
    std::int64_t X = Left;
    if (Has(DT_CENTER))
        X = (Left + Right - Line.Width) / 2;
    else if (Has(DT_RIGHT))
        X = Right - Line.Width;
    for (TTextPiece& Piece : Line.Pieces)
        Piece.X = Clamped(X + Piece.X);
}

/// Takes the source over into the modified text up to where the dots stand in for it.
void TLayouter::RecordDots(const TLineCut& Cut, bool IsLast)
{
    if (!Has(DT_MODIFYSTRING))
        return;
    const std::size_t From = FScanner.SourceEnd(Cut.Count);
    FLayout.Modified.append(FText.substr(FCopied, From - FCopied));
    FLayout.Modified.append(Dots);
    if (Cut.Tail != SIZE_MAX) {
        const std::size_t Tail = FScanner[Cut.Tail].Begin;
        FLayout.Modified.append(FText.substr(Tail, FScanner.SourceEnd(Cut.TailEnd) - Tail));
    }
    FCopied = IsLast ? FText.size() : FScanner.ParagraphEnd();
    FLayout.WasModified = true;
}

} // namespace

TTextLayout LayoutText(ITextMeasure& Measure, std::string_view Text, const TRect& Rect, unsigned Flags,
                       const TDrawTextParams& Params)
{
    return TLayouter(Measure, Text, Rect, Flags, Params).Run();
}

} // namespace vcl
