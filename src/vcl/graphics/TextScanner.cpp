#include "vcl/graphics/TextScanner.h"

#include <algorithm>

#include "vcl/graphics/TextDisplay.h"

namespace vcl
{

namespace
{

constexpr char32_t ZeroWidthSpace = 0x200B;
constexpr char32_t ZeroWidthJoiner = 0x200D;
constexpr std::u32string_view OpeningPunctuation = U"\u3008\u300A\u300C\u300E\u3010\u3014\uFF08\uFF3B\uFF5B";

} // namespace

TTextScanner::TTextScanner(ITextMeasure& Measure, std::string_view Source, unsigned Flags, int TabWidth)
    : FMeasure(Measure), FSource(Source), FFlags(Flags), FTabWidth(std::max(1, TabWidth))
{
}

void TTextScanner::Start(std::size_t Offset)
{
    FStart = FOffset = Offset;
    FAtEnd = false;
    FHasRightToLeft = false;
    FDisplay.clear();
    FCells.clear();
    FEnds.clear();
    FPieceCell = 0;
}

bool TTextScanner::IsLineBreak(std::size_t Offset) const
{
    return !(FFlags & DT_SINGLELINE) && (FSource[Offset] == '\r' || FSource[Offset] == '\n');
}

void TTextScanner::AddCell(std::size_t Begin, std::size_t Length, char32_t Value, bool IsPrefixed)
{
    TTextCell Cell;
    Cell.Begin = Begin;
    Cell.Display = FDisplay.size();
    Cell.IsPrefixed = IsPrefixed;
    Cell.Value = Value;
    if (Value == '\t' && (FFlags & DT_EXPANDTABS)) {
        Cell.IsTab = true;
    } else if (Value < ' ' || Value == 0x7F) {
        Cell.Value = ' ';
        FDisplay += ' ';
    } else {
        FDisplay.append(FSource.substr(FOffset, Length));
    }
    FOffset += Length;
    Cell.End = FOffset;
    FHasRightToLeft = FHasRightToLeft || IsRightToLeft(Value);
    FCells.push_back(Cell);
}

bool TTextScanner::ReadCell()
{
    const std::size_t Begin = FOffset;
    bool IsPrefixed = false;
    while (FOffset < FSource.size() && !IsLineBreak(FOffset)) {
        const TCodePoint Point = CodePointAt(FSource, FOffset);
        if (Point.Value == '&' && !(FFlags & DT_NOPREFIX)) {
            ++FOffset;
            if (FOffset < FSource.size() && FSource[FOffset] == '&') {
                AddCell(Begin, 1, '&', IsPrefixed);
                return true;
            }
            IsPrefixed = true;
            continue;
        }
        const bool IsPair = FSource.substr(FOffset, 2) == "\r\n";
        AddCell(Begin, IsPair ? 2 : static_cast<std::size_t>(Point.Length), Point.Value, IsPrefixed);
        return true;
    }
    FAtEnd = true;
    return false;
}

void TTextScanner::Read(std::size_t Count)
{
    while (Count-- > 0 && ReadCell()) {
    }
    // Looking one ahead tells a text that ends here from one that goes on.
    if (FOffset >= FSource.size() || IsLineBreak(FOffset))
        FAtEnd = true;
}

void TTextScanner::ReadBeyond(int Width, std::size_t AtLeast)
{
    const int HalfCharacter = std::max(1, FMeasure.AveCharWidth() / 2);
    std::size_t Chunk = 2 + static_cast<std::size_t>(std::clamp(Width, 0, 4096) / HalfCharacter);
    Chunk = std::max(Chunk, AtLeast);
    while (!FAtEnd) {
        Read(Chunk);
        if (FCells.size() > FitCount(Width) && FCells.size() >= AtLeast)
            return;
        Chunk = std::max<std::size_t>(Chunk, FCells.size());
    }
}

void TTextScanner::ReadAll(std::size_t Limit)
{
    if (Limit > FCells.size())
        Read(Limit - FCells.size());
}

std::size_t TTextScanner::ParagraphEnd() const
{
    if (FFlags & DT_SINGLELINE)
        return FSource.size();
    const std::size_t LineFeed = std::min(FSource.find('\n', FOffset), FSource.size());
    return std::min(FSource.substr(0, LineFeed).find('\r', FOffset), LineFeed);
}

std::size_t TTextScanner::NextParagraph() const
{
    const std::size_t End = ParagraphEnd();
    if (End == FSource.size())
        return End;
    return End + (FSource.substr(End, 2) == "\r\n" ? 2 : 1);
}

std::string_view TTextScanner::DisplayOf(std::size_t First, std::size_t Last) const
{
    const std::size_t Begin = First < FCells.size() ? FCells[First].Display : FDisplay.size();
    const std::size_t End = Last < FCells.size() ? FCells[Last].Display : FDisplay.size();
    return std::string_view(FDisplay).substr(Begin, End - Begin);
}

void TTextScanner::Measure()
{
    if (FEnds.size() == FCells.size())
        return;
    // The piece that was last is measured again with what was read since: shaping may have changed it.
    FEnds.resize(FPieceCell);
    while (FEnds.size() < FCells.size()) {
        const std::size_t First = FEnds.size();
        std::size_t Last = First;
        while (Last < FCells.size() && !FCells[Last].IsTab)
            ++Last;
        int X = First > 0 ? FEnds.back() : 0;
        if (Last > First) {
            FMeasure.Extents(DisplayOf(First, Last), FPieceEnds);
            FPieceEnds.resize(Last - First, FPieceEnds.empty() ? 0 : FPieceEnds.back());
            for (int End : FPieceEnds)
                FEnds.push_back(X + End);
            X = FEnds.back();
        }
        FPieceCell = First;
        if (Last < FCells.size()) {
            FEnds.push_back((X / FTabWidth + 1) * FTabWidth);
            FPieceCell = FEnds.size();
        }
    }
}

int TTextScanner::WidthOf(std::size_t Count)
{
    if (Count == 0)
        return 0;
    Measure();
    return FEnds[Count - 1];
}

std::size_t TTextScanner::FitCount(int Width)
{
    if (Width <= 0)
        return 0;
    Measure();
    return static_cast<std::size_t>(std::upper_bound(FEnds.begin(), FEnds.end(), Width) - FEnds.begin());
}

std::vector<TTextPiece> TTextScanner::Pieces(std::size_t Count, bool WithWidths)
{
    std::vector<TTextPiece> Result;
    for (std::size_t First = 0; First < Count;) {
        std::size_t Last = First;
        TTextPiece Piece;
        for (; Last < Count && !FCells[Last].IsTab; ++Last) {
            if (FCells[Last].IsPrefixed && !(FFlags & DT_HIDEPREFIX))
                Piece.Underline = static_cast<int>(FCells[Last].Display - FCells[First].Display);
        }
        Piece.Text = DisplayOf(First, Last);
        if (WithWidths || First > 0 || Last < Count) {
            Piece.X = WidthOf(First);
            Piece.Width = WidthOf(Last) - Piece.X;
        }
        Result.push_back(std::move(Piece));
        First = Last + 1;
    }
    return Result;
}

bool TTextScanner::CanBreakBefore(std::size_t Index) const
{
    if (Index == 0 || Index >= FCells.size())
        return false;
    const char32_t Before = FCells[Index - 1].Value;
    const char32_t Here = FCells[Index].Value;
    if (FCells[Index - 1].IsBlank() || Before == ZeroWidthSpace)
        return true;
    if ((FFlags & DT_NOFULLWIDTHCHARBREAK) || FCells[Index].IsBlank() || IsJoined(Index))
        return false;
    return (IsIdeographic(Before) || IsIdeographic(Here)) && !IsClosingPunctuation(Here) &&
           OpeningPunctuation.find(Before) == std::u32string_view::npos;
}

bool TTextScanner::IsJoined(std::size_t Index) const
{
    return Index > 0 && Index < FCells.size() &&
           (IsCombining(FCells[Index].Value) || FCells[Index - 1].Value == ZeroWidthJoiner);
}

} // namespace vcl
