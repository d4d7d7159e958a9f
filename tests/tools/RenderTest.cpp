#include "support/Picture.h"
#include "tools/KsformFixture.h"

namespace vcl::tests
{

using testing::HasSubstr;
using testing::IsEmpty;

namespace
{

/// A form with a chart: a head and one child, collapsed.
const std::string ChartForm = R"(object Form1: TForm1
  Left = 0
  Top = 0
  Caption = 'Chart'
  ClientHeight = 120
  ClientWidth = 200
  Color = clBtnFace
  PixelsPerInch = 96
  TextHeight = 13
  object Tree: TKSTreeView
    Left = 0
    Top = 0
    Width = 200
    Height = 120
    BorderStyle = bsNone
    NodeColor = clAqua
    Items.Data = {
      0100000010000000020000000700000000000000010000000400000048656164
      000000001000000000000000000000000000000000000000040000004C656166
      00000000}
  end
end
)";

std::uint32_t At(const TPicture& Picture, int X, int Y)
{
    return Picture.Pixels.at(static_cast<std::size_t>(Y * Picture.Width + X));
}

} // namespace

TEST_F(Ksform, RenderSavesAPictureOfAFormWithAChart)
{
    Put("chart.dfm", ChartForm);
    EXPECT_EQ(Run("check chart.dfm").Status, 0);
    const TOutcome Outcome = Run("render chart.dfm -o chart.png");
    ASSERT_EQ(Outcome.Status, 0) << Outcome.Errors;
    const TPicture Picture = ReadPng(Path("chart.png"));
    EXPECT_EQ(Picture.Width, 200);
    EXPECT_EQ(Picture.Height, 120);
    EXPECT_EQ(At(Picture, 75, 50), 0xFF00FFFFu) << "the box in the middle, left of its text";
    EXPECT_EQ(At(Picture, 10, 10), 0xFFFFFFFFu) << "the window's colour around it";
    EXPECT_EQ(At(Picture, 100, 40), 0xFF0000FFu) << "the line above it";
}

TEST_F(Ksform, RenderAtAnotherScaleMakesALargerPicture)
{
    Put("chart.dfm", ChartForm);
    ASSERT_EQ(Run("render chart.dfm -o chart.png --scale 2").Status, 0);
    const TPicture Picture = ReadPng(Path("chart.png"));
    EXPECT_EQ(Picture.Width, 400);
    EXPECT_EQ(At(Picture, 150, 100), 0xFF00FFFFu);
}

TEST_F(Ksform, RenderShowsAPlaceholderForWhatItDoesNotKnow)
{
    std::string Form = ChartForm;
    Form.replace(Form.find("TKSTreeView"), 11, "TSomethingX");
    Put("chart.dfm", Form);
    const TOutcome Outcome = Run("render chart.dfm -o chart.png");
    EXPECT_EQ(Outcome.Status, 0) << Outcome.Errors;
    EXPECT_EQ(ReadPng(Path("chart.png")).Width, 200);
}

TEST_F(Ksform, RenderLeavesNoPictureOfAFormThatCannotBeRead)
{
    Put("chart.dfm", ChartForm.substr(0, 300));
    const TOutcome Outcome = Run("render chart.dfm -o chart.png");
    EXPECT_NE(Outcome.Status, 0);
    EXPECT_THAT(Outcome.Errors, HasSubstr("chart.dfm"));
    EXPECT_FALSE(Exists("chart.png"));
}

TEST_F(Ksform, AFormWithAChartConvertsToItsImageAndBack)
{
    std::string Form;
    for (const char Character : ChartForm)
        Form += Character == '\n' ? "\r\n" : std::string(1, Character);
    Put("chart.dfm", Form);
    EXPECT_EQ(Run("convert chart.dfm chart.bin").Status, 0);
    EXPECT_EQ(Run("convert chart.bin back.dfm").Status, 0);
    EXPECT_EQ(Get("back.dfm"), Form);
}

TEST_F(Ksform, ListShowsTheRowsOfTheChart)
{
    const TOutcome Outcome = Run("list TKSTreeView");
    EXPECT_EQ(Outcome.Status, 0);
    EXPECT_THAT(Outcome.Errors, IsEmpty());
    for (const char* const Row :
         {"  Items                    TKSTreeNodes",
          "  NodeColor                TColor                   always     clYellow", "OnGetImageIndex"})
        EXPECT_THAT(Outcome.Output, HasSubstr(Row));
}

} // namespace vcl::tests
