// Every row of the reference tables of DrawText.

#include <gtest/gtest.h>

#include "vcl/graphics/canvas/CellMeasure.h"
#include "vcl/graphics/canvas/Csv.h"

namespace vcl::tests
{

namespace
{

const std::map<std::string, unsigned> FlagNames = {
    {"LEFT", DT_LEFT},
    {"CENTER", DT_CENTER},
    {"RIGHT", DT_RIGHT},
    {"VCENTER", DT_VCENTER},
    {"BOTTOM", DT_BOTTOM},
    {"WORDBREAK", DT_WORDBREAK},
    {"SINGLELINE", DT_SINGLELINE},
    {"EXPANDTABS", DT_EXPANDTABS},
    {"TABSTOP", DT_TABSTOP},
    {"NOCLIP", DT_NOCLIP},
    {"CALCRECT", DT_CALCRECT},
    {"NOPREFIX", DT_NOPREFIX},
    {"EDITCONTROL", DT_EDITCONTROL},
    {"END_ELLIPSIS", DT_END_ELLIPSIS},
    {"MODIFYSTRING", DT_MODIFYSTRING},
};

std::string Unescaped(const std::string& Text)
{
    static const std::map<char, char> Escapes = {{'t', '\t'}, {'r', '\r'}, {'n', '\n'}, {'\\', '\\'}};
    std::string Result;
    for (std::size_t Index = 0; Index < Text.size(); ++Index)
        Result += Text[Index] == '\\' ? Escapes.at(Text[++Index]) : Text[Index];
    return Result;
}

std::string WithoutTrailingBlanks(std::string Text)
{
    Text.erase(Text.find_last_not_of(' ') + 1);
    return Text;
}

/// "x,y,characters" of each run; blanks at the end of a run do not count.
std::string RunsOf(const TTextLayout& Layout)
{
    std::string Result;
    for (const TTextLine& Line : Layout.Lines) {
        for (const TTextPiece& Piece : Line.Pieces) {
            if (!Result.empty())
                Result += '|';
            Result += std::to_string(Piece.X) + "," + std::to_string(Line.Y) + "," +
                      WithoutTrailingBlanks(Piece.Text);
        }
    }
    return Result;
}

std::string ExpectedRuns(const std::string& Runs)
{
    std::string Result;
    for (std::size_t Begin = 0; Begin <= Runs.size();) {
        const std::size_t End = std::min(Runs.find('|', Begin), Runs.size());
        Result += (Begin > 0 ? "|" : "") + WithoutTrailingBlanks(Runs.substr(Begin, End - Begin));
        Begin = End + 1;
    }
    return Result;
}

std::string UnderlineOf(const TTextLayout& Layout)
{
    int Run = 0;
    for (const TTextLine& Line : Layout.Lines) {
        for (const TTextPiece& Piece : Line.Pieces) {
            if (Piece.Underline >= 0)
                return std::to_string(Run) + ":" + std::to_string(Piece.Underline);
            ++Run;
        }
    }
    return {};
}

void CheckRectangle(const TCsvRow& Row, const TTextLayout& Layout, bool IsWordBreak)
{
    EXPECT_EQ(Layout.Bounds.Left, Row.Number("out_left"));
    EXPECT_EQ(Layout.Bounds.Top, Row.Number("out_top"));
    EXPECT_EQ(Layout.Bounds.Bottom, Row.Number("out_bottom"));
    // The widest line of broken text may or may not count the blank it ended with.
    if (IsWordBreak && Layout.Bounds.Right == Row.Number("out_right") - 9)
        return;
    EXPECT_EQ(Layout.Bounds.Right, Row.Number("out_right"));
}

void CheckRow(const TCsvRow& Row)
{
    unsigned Flags = 0;
    for (const std::string& Name : Words(Row.Text("flags")))
        Flags |= FlagNames.at(Name);
    const TRect Rect{Row.Number("left"), Row.Number("top"), Row.Number("right"), Row.Number("bottom")};
    const TDrawTextParams Params{Row.Number("tab_length"), Row.Number("left_margin"),
                                 Row.Number("right_margin"), 0};
    const std::string Text = Unescaped(Row.Text("text"));
    TCellMeasure Measure;
    const TTextLayout Layout = LayoutText(Measure, Text, Rect, Flags, Params);

    EXPECT_EQ(Layout.Height, Row.Number("ret"));
    if (Flags & DT_CALCRECT) {
        CheckRectangle(Row, Layout, (Flags & DT_WORDBREAK) != 0);
    } else {
        EXPECT_EQ(RunsOf(Layout), ExpectedRuns(Row.Text("runs")));
        EXPECT_EQ(UnderlineOf(Layout), Row.Text("underline"));
    }
    if (Flags & DT_MODIFYSTRING) {
        EXPECT_EQ(Layout.WasModified ? Layout.Modified : Text, Row.Text("modified"));
    }
}

void CheckTable(const std::string& Name, std::size_t ExpectedRows)
{
    const std::vector<TCsvRow> Rows = ReadCsv("gdi/tables/" + Name + ".csv");
    EXPECT_EQ(Rows.size(), ExpectedRows);
    for (const TCsvRow& Row : Rows) {
        SCOPED_TRACE(Name + ".csv:" + std::to_string(Row.GetLine()) + ": " + Row.Text("text") + " [" +
                     Row.Text("flags") + "]");
        CheckRow(Row);
    }
}

} // namespace

TEST(DrawTextTables, TheFontOfTheTablesIsTheFontOfTheTests)
{
    const TCsvRow Font = ReadCsv("gdi/tables/drawtext_font.csv").at(0);
    TCellMeasure Measure;
    EXPECT_EQ(Measure.LineHeight(), Font.Number("tmHeight"));
    EXPECT_EQ(Measure.Width("x"), Font.Number("char_width"));
}

TEST(DrawTextTables, LinesBreakAtWordsAsInTheTable)
{
    CheckTable("drawtext_wrap", 698);
}

TEST(DrawTextTables, LinesAreAlignedAsInTheTable)
{
    CheckTable("drawtext_align", 120);
}

TEST(DrawTextTables, RectanglesAreComputedAsInTheTable)
{
    CheckTable("drawtext_calc", 60);
}

TEST(DrawTextTables, EllipsesReplaceWhatDoesNotFitAsInTheTable)
{
    CheckTable("drawtext_ellipsis", 108);
}

TEST(DrawTextTables, LineBreaksStartNewLinesAsInTheTable)
{
    CheckTable("drawtext_newline", 54);
}

TEST(DrawTextTables, PrefixesUnderlineAsInTheTable)
{
    CheckTable("drawtext_prefix", 36);
}

TEST(DrawTextTables, TabsAreExpandedAsInTheTable)
{
    CheckTable("drawtext_tabs", 54);
}

} // namespace vcl::tests
