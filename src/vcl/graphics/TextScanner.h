#pragma once

#include <string_view>
#include <vector>

#include "vcl/graphics/TextLayout.h"

namespace vcl
{

/// One code point to be shown, with the bytes of the source it came from (a prefix character belongs to what
/// it marks).
struct TTextCell {
    std::size_t Begin = 0;
    std::size_t End = 0;
    std::size_t Display = 0; // offset of its bytes in the display text
    char32_t Value = 0;
    bool IsTab = false;
    bool IsPrefixed = false;

    bool IsBlank() const { return Value == ' ' || IsTab; }
};

/// Reads a paragraph cell by cell, only as far as it is asked to, and measures what it has read.
class TTextScanner
{
public:
    TTextScanner(ITextMeasure& Measure, std::string_view Source, unsigned Flags, int TabWidth);

    /// Forgets what was read and begins at an offset of the source.
    void Start(std::size_t Offset);
    /// Reads at most Count cells more; stops at the end of the paragraph.
    void Read(std::size_t Count);
    /// Reads until the cells are wider than Width or the paragraph ends, AtLeast cells in any case.
    void ReadBeyond(int Width, std::size_t AtLeast = 0);
    /// Reads up to the end of the paragraph, or Limit cells.
    void ReadAll(std::size_t Limit);

    std::size_t GetCount() const { return FCells.size(); }
    const TTextCell& operator[](std::size_t Index) const { return FCells[Index]; }
    /// The paragraph has no cells beyond those read.
    bool AtEnd() const { return FAtEnd; }
    /// Where the paragraph's text ends (its line break begins), and where the next one begins; looks ahead.
    std::size_t ParagraphEnd() const;
    std::size_t NextParagraph() const;
    /// Offset in the source behind the first Count cells.
    std::size_t SourceEnd(std::size_t Count) const { return Count == 0 ? FStart : FCells[Count - 1].End; }

    /// Pixels that the first Count cells take.
    int WidthOf(std::size_t Count);
    /// How many of the cells read end within Width; 0, without measuring, when it is not positive.
    std::size_t FitCount(int Width);
    /// The first Count cells as pieces between tabs, each at its X; positions and widths are left 0 when
    /// WithWidths is false and there are no tabs.
    std::vector<TTextPiece> Pieces(std::size_t Count, bool WithWidths);

    /// A line may end before the cell of that index: it follows a blank, or stands beside an ideograph.
    bool CanBreakBefore(std::size_t Index) const;
    /// Nothing may be cut off before the cell: it belongs to the one in front of it.
    bool IsJoined(std::size_t Index) const;
    bool HasRightToLeft() const { return FHasRightToLeft; }

private:
    bool ReadCell();
    bool IsLineBreak(std::size_t Offset) const;
    void AddCell(std::size_t Begin, std::size_t Length, char32_t Value, bool IsPrefixed);
    void Measure();
    std::string_view DisplayOf(std::size_t First, std::size_t Last) const;

    ITextMeasure& FMeasure;
    std::string_view FSource;
    unsigned FFlags;
    int FTabWidth;
    std::size_t FStart = 0;
    std::size_t FOffset = 0;
    bool FAtEnd = false;
    bool FHasRightToLeft = false;
    AnsiString FDisplay;
    std::vector<TTextCell> FCells;
    std::vector<int> FEnds;      // x behind each measured cell
    std::size_t FPieceCell = 0;  // where the piece being measured begins
    std::vector<int> FPieceEnds; // scratch
};

} // namespace vcl
