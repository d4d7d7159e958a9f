// Text layout beyond the tables: combinations of flags, scripts, hostile sizes, and what it costs.

#include <climits>

#include <gtest/gtest.h>

#include "vcl/graphics/canvas/CellMeasure.h"

namespace vcl::tests
{

namespace
{

constexpr unsigned ItemFlags = DT_WORDBREAK | DT_EDITCONTROL | DT_END_ELLIPSIS;

TTextLayout LayOut(std::string_view Text, const TRect& Rect, unsigned Flags)
{
    TCellMeasure Measure;
    return LayoutText(Measure, Text, Rect, Flags);
}

/// The lines' texts joined by "|", tabs between pieces as "\t".
std::string Lines(const TTextLayout& Layout)
{
    std::string Result;
    for (const TTextLine& Line : Layout.Lines) {
        Result += &Line == &Layout.Lines.front() ? "" : "|";
        for (const TTextPiece& Piece : Line.Pieces)
            Result += (&Piece == &Line.Pieces.front() ? "" : "\t") + Piece.Text;
    }
    return Result;
}

/// Columns and rows are cells of 9 x 17.
std::string LinesIn(std::string_view Text, int Columns, int Rows, unsigned Flags)
{
    return Lines(LayOut(Text, {0, 0, Columns * 9, Rows * 17}, Flags));
}

} // namespace

TEST(TextLayout, AWordThatJustFitsStaysOnItsLine)
{
    EXPECT_EQ(LinesIn("one two", 7, 3, ItemFlags), "one two");
    EXPECT_EQ(LinesIn("one two", 6, 3, ItemFlags), "one |two");
    EXPECT_EQ(LinesIn("one two three", 7, 1, ItemFlags), "one ...");
}

TEST(TextLayout, TheLastVisibleLineGetsTheEllipsisWhenTextContinues)
{
    EXPECT_EQ(LinesIn("one two three four five", 10, 2, ItemFlags), "one two |three f...");
    EXPECT_EQ(LinesIn("one two three four five", 10, 3, ItemFlags), "one two |three four|five");
    EXPECT_EQ(LinesIn("one two\nthree", 10, 1, ItemFlags), "one two...");
    EXPECT_EQ(LinesIn("one two\n", 10, 1, ItemFlags), "one two");
    EXPECT_EQ(LinesIn("one    ", 3, 1, ItemFlags), "one");
}

TEST(TextLayout, AnEditControlShowsNoPartOfALastLineButAlwaysTheFirst)
{
    const std::string_view Text = "one two three";
    EXPECT_EQ(Lines(LayOut(Text, {0, 0, 45, 33}, DT_WORDBREAK | DT_EDITCONTROL)), "one ");
    EXPECT_EQ(Lines(LayOut(Text, {0, 0, 45, 34}, DT_WORDBREAK | DT_EDITCONTROL)), "one |two ");
    EXPECT_EQ(Lines(LayOut(Text, {0, 0, 45, 5}, DT_WORDBREAK | DT_EDITCONTROL)), "one ");
    EXPECT_EQ(Lines(LayOut(Text, {0, 0, 45, 33}, DT_WORDBREAK)), "one |two ");
}

TEST(TextLayout, AnEditControlBreaksWordsWiderThanTheRectangle)
{
    EXPECT_EQ(LinesIn("Supercali fragi", 4, 9, DT_WORDBREAK | DT_EDITCONTROL), "Supe|rcal|i |frag|i");
    EXPECT_EQ(LinesIn("abc", 0, 9, DT_WORDBREAK | DT_EDITCONTROL), "a|b|c");
    EXPECT_EQ(LinesIn("Supercali fragi", 4, 9, DT_WORDBREAK), "Supercali|fragi");
}

TEST(TextLayout, WordsThatStickOutGetDotsWithWordEllipsisOnly)
{
    EXPECT_EQ(LinesIn("abcdefgh ij klmnopq", 6, 9, DT_WORDBREAK | DT_WORD_ELLIPSIS), "abc...|ij |klm...");
    EXPECT_EQ(LinesIn("abcdefgh ij klmnopq", 6, 9, DT_WORDBREAK | DT_END_ELLIPSIS), "abcdefgh|ij |klm...");
}

TEST(TextLayout, EachUnbrokenLineThatIsTooLongEndsInDots)
{
    EXPECT_EQ(LinesIn("abcdefgh\nij\nklmnopq", 6, 9, DT_END_ELLIPSIS), "abc...|ij|klm...");
    EXPECT_EQ(LinesIn("abcdefgh\nij\nklmnopq", 6, 2, DT_END_ELLIPSIS), "abc...|ij...");
}

TEST(TextLayout, WhereNotEvenTheDotsFitTheyAreStillDrawn)
{
    EXPECT_EQ(LinesIn("abcdef", 2, 1, DT_SINGLELINE | DT_END_ELLIPSIS), "...");
    EXPECT_EQ(LinesIn("abcdef", 0, 1, DT_SINGLELINE | DT_END_ELLIPSIS), "...");
}

TEST(TextLayout, APathKeepsWhatStandsBehindItsLastSeparator)
{
    constexpr unsigned Flags = DT_SINGLELINE | DT_PATH_ELLIPSIS | DT_MODIFYSTRING;
    const TTextLayout Layout = LayOut("C:\\projects\\plans\\week.txt", {0, 0, 18 * 9, 17}, Flags);
    EXPECT_EQ(Lines(Layout), "C:\\pro...\\week.txt");
    EXPECT_EQ(Layout.Modified, "C:\\pro...\\week.txt");
    EXPECT_EQ(LinesIn("/home/user/a-very-long-name", 12, 1, Flags), ".../a-very-l");
    EXPECT_EQ(LinesIn("without-any-separator", 12, 1, Flags), "without-a...");
    EXPECT_EQ(LinesIn("/home/me", 12, 1, Flags), "/home/me");
}

TEST(TextLayout, BlanksAtABreakBelongToNeitherLine)
{
    EXPECT_EQ(LinesIn("one    two", 3, 9, DT_WORDBREAK), "one|two");
    EXPECT_EQ(LinesIn("one   \ntwo", 3, 9, DT_WORDBREAK), "one|two");
    EXPECT_EQ(LinesIn("one \ntwo", 9, 9, DT_WORDBREAK), "one |two");
}

TEST(TextLayout, ModifiedTextHasTheDotsWhereTheyAreShown)
{
    const TRect OneLine{0, 0, 90, 17};
    EXPECT_EQ(LayOut("one two three", OneLine, ItemFlags | DT_MODIFYSTRING).Modified, "one two...");
    const TRect TwoLines{0, 0, 54, 34};
    EXPECT_EQ(LayOut("abcdefgh\nijklmnop", TwoLines, DT_END_ELLIPSIS | DT_MODIFYSTRING).Modified,
              "abc...\nijk...");
    EXPECT_FALSE(LayOut("short", OneLine, ItemFlags | DT_MODIFYSTRING).WasModified);
    EXPECT_EQ(LayOut("a&bcdefghijkl", OneLine, DT_SINGLELINE | DT_END_ELLIPSIS | DT_MODIFYSTRING).Modified,
              "a&bcdefg...");
}

TEST(TextLayout, PrefixesAreHiddenDroppedAndEscaped)
{
    const TRect Rect{0, 0, 900, 17};
    EXPECT_EQ(LayOut("&Open", Rect, DT_HIDEPREFIX).Lines[0].Pieces[0].Underline, -1);
    EXPECT_EQ(Lines(LayOut("&Open", Rect, DT_HIDEPREFIX)), "Open");
    EXPECT_EQ(Lines(LayOut("Open&", Rect, DT_LEFT)), "Open");
    EXPECT_EQ(Lines(LayOut("&", Rect, DT_LEFT)), "");
    EXPECT_EQ(Lines(LayOut("&&&a", Rect, DT_LEFT)), "&a");
    EXPECT_EQ(LayOut("Gr\u00FC&\u00DFe", Rect, DT_LEFT).Lines[0].Pieces[0].Underline, 4);
}

TEST(TextLayout, ASingleLineShowsLineBreaksAsBlanks)
{
    EXPECT_EQ(LinesIn("a\r\nb\nc", 20, 5, DT_SINGLELINE), "a b c");
}

TEST(TextLayout, ControlCharactersAndTabsThatAreNotExpandedAreBlanks)
{
    EXPECT_EQ(LinesIn("a\tb\x01"
                      "c",
                      20, 5, DT_LEFT),
              "a b c");
}

TEST(TextLayout, ALineCanBreakAtATab)
{
    EXPECT_EQ(LinesIn("ab\tcd ef", 11, 9, DT_WORDBREAK | DT_EXPANDTABS), "ab\tcd |ef");
    EXPECT_EQ(LinesIn("ab\tcd ef", 8, 9, DT_WORDBREAK | DT_EXPANDTABS), "ab|cd ef");
    EXPECT_EQ(LinesIn("\t\tx", 0, 9, DT_WORDBREAK | DT_EXPANDTABS), "|x");
}

TEST(TextLayout, CodePointsAndWhatBelongsToThemAreNeverSplit)
{
    EXPECT_EQ(LinesIn("\u00E4\u00F6\u00FC\u00DF\u20AC", 4, 1, DT_SINGLELINE | DT_END_ELLIPSIS), "\u00E4...");
    EXPECT_EQ(LinesIn("ae\u0301io", 5, 1, DT_SINGLELINE | DT_END_ELLIPSIS), "ae\u0301io");
    EXPECT_EQ(LinesIn("ae\u0301iou", 5, 1, DT_SINGLELINE | DT_END_ELLIPSIS), "a...");
    EXPECT_EQ(LinesIn("abe\u0301", 3, 9, DT_WORDBREAK | DT_EDITCONTROL), "ab|e\u0301");
    EXPECT_EQ(LinesIn("e\u0301\u0302x", 1, 9, DT_WORDBREAK | DT_EDITCONTROL), "e\u0301\u0302|x");
}

TEST(TextLayout, IdeographsBreakWithoutBlanksButNotBeforeClosingMarks)
{
    EXPECT_EQ(LinesIn("\u65E5\u672C\u8A9E\u6587", 2, 9, DT_WORDBREAK), "\u65E5\u672C|\u8A9E\u6587");
    EXPECT_EQ(LinesIn("\u65E5\u672C\u3002\u6587", 2, 9, DT_WORDBREAK), "\u65E5|\u672C\u3002|\u6587");
    EXPECT_EQ(LinesIn("\u65E5\u672C\u8A9E", 2, 9, DT_WORDBREAK | DT_NOFULLWIDTHCHARBREAK),
              "\u65E5\u672C\u8A9E");
}

TEST(TextLayout, RightToLeftTextWiderThanItsRectangleIsHandedOnWhole)
{
    std::string Hebrew;
    for (int Index = 0; Index < 1000; ++Index)
        Hebrew += "\u05D0";
    EXPECT_EQ(LinesIn(Hebrew, 5, 1, DT_SINGLELINE), Hebrew);
}

TEST(TextLayout, ExternalLeadingAddsToEachLine)
{
    EXPECT_EQ(LayOut("a\nb", {0, 0, 90, 90}, DT_EXTERNALLEADING).Height, 40);
    EXPECT_EQ(LayOut("a\nb", {0, 0, 90, 90}, DT_CALCRECT | DT_EXTERNALLEADING).Bounds.Bottom, 40);
}

TEST(TextLayout, RectanglesWithoutAreaAndAtTheEndsOfTheRangeAreSafe)
{
    const TRect Rects[] = {{0, 0, 0, 0},
                           {10, 10, -10, -10},
                           {INT_MAX, INT_MAX, INT_MIN, INT_MIN},
                           {INT_MIN, INT_MIN, INT_MAX, INT_MAX},
                           {INT_MIN, INT_MIN, INT_MIN, INT_MIN}};
    for (const TRect& Rect : Rects) {
        for (unsigned Flags : {0u, DT_SINGLELINE | DT_VCENTER, DT_SINGLELINE | DT_BOTTOM | DT_RIGHT,
                               ItemFlags, ItemFlags | DT_CENTER, DT_CALCRECT | DT_WORDBREAK,
                               DT_PATH_ELLIPSIS | DT_RIGHT, DT_EXPANDTABS | DT_WORDBREAK}) {
            const TTextLayout Layout = LayOut("some \t\\ text\nin lines", Rect, Flags);
            EXPECT_GE(Layout.Lines.size(), 1u);
            EXPECT_LE(Layout.Lines.size(), 12u);
        }
    }
}

TEST(TextLayout, NothingIsMeasuredForARectangleWithoutWidth)
{
    TCellMeasure Measure;
    LayoutText(Measure, std::string(100000, 'x'), {50, 0, 50, 400}, ItemFlags);
    LayoutText(Measure, "a few words of a caption", {50, 0, 40, 400}, ItemFlags);
    EXPECT_EQ(Measure.Measured, 0);
}

TEST(TextLayout, ANarrowRectangleMeasuresOnlyAFewCharacters)
{
    TCellMeasure Measure;
    LayoutText(Measure, "a long caption of an appointment that nobody can read", {0, 0, 12, 17}, ItemFlags);
    EXPECT_LE(Measure.Measured, 30);
}

TEST(TextLayout, AHugeCaptionCostsNoMoreThanWhatIsVisible)
{
    std::string Words;
    while (Words.size() < 10'000'000)
        Words += "word ";
    const TRect Rect{0, 0, 300, 100};
    for (unsigned Flags : {ItemFlags, ItemFlags | DT_CENTER, DT_SINGLELINE | DT_END_ELLIPSIS,
                           DT_SINGLELINE | DT_END_ELLIPSIS | DT_RIGHT, 0u, +DT_WORDBREAK}) {
        TCellMeasure Measure;
        const TTextLayout Layout = LayoutText(Measure, Words, Rect, Flags);
        EXPECT_LE(Layout.Lines.size(), 6u) << Flags;
        EXPECT_LE(Measure.Measured, 5000) << Flags;
    }
    TCellMeasure Measure;
    const std::string OneWord(10'000'000, 'x');
    LayoutText(Measure, OneWord, Rect, ItemFlags);
    EXPECT_LE(Measure.Measured, 5000);
}

TEST(TextLayout, LengthDrawnIsWhatWasLaidOut)
{
    TCellMeasure Measure;
    EXPECT_EQ(LayoutText(Measure, "one two three", {0, 0, 45, 17}, DT_WORDBREAK | DT_EDITCONTROL).LengthDrawn,
              4);
    EXPECT_EQ(LayoutText(Measure, "one\r\ntwo", {0, 0, 45, 90}, DT_LEFT).LengthDrawn, 8);
}

} // namespace vcl::tests
