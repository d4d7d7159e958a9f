#include "KSTimeView/view/PaintingFixture.h"

using testing::Contains;
using testing::ElementsAre;
using testing::IsEmpty;

namespace
{

// A cell of the small font is 7 pixels wide and 12 high, one of the large numbers 13 and 25.
class TRulerPainting : public TTimeViewPaintingTest
{
protected:
    static std::string Number(int Value) { return std::to_string(Value); }
    static std::string Text(int X, int Y, const std::string& Shown, int Height)
    {
        return "text " + Number(X) + "," + Number(Y) + " \"" + Shown + "\" font=\"Arial\" -" +
               Number(Height) + " color=000000 back=C0C0C0";
    }
    static std::string Line(int Left, int Y)
    {
        return "line " + Number(Left) + "," + Number(Y) + " 46," + Number(Y) + " pen=808080";
    }
};

TEST_F(TRulerPainting, HourMarksHaveTheirLabelsAtTheRight)
{
    View().SetRulerMarkMinutes(TKSTVRulerMarkMinutes::rmm60Minutes);
    Show(300, 700);
    TLines Expected;
    for (int Hour = 0; Hour <= 24; ++Hour) {
        const int Y = 61 + 20 * Hour;
        Expected.push_back(Line(4, Y));
        Expected.push_back(Text(Hour < 10 ? 18 : 11, Y + 4, Number(Hour) + ":00", 11));
    }
    EXPECT_TRUE(HasRun(Painting(), Expected));
}

TEST_F(TRulerPainting, FinerMarksHaveLargeHoursThenSmallMinutesThenShortLines)
{
    View().SetRulerMarkMinutes(TKSTVRulerMarkMinutes::rmm15Minutes);
    Show(300, 2100);
    TLines Expected;
    for (int Hour = 0; Hour < 24; ++Hour) {
        const int Y = 61 + 80 * Hour;
        Expected.push_back(Line(4, Y));
        Expected.push_back(Text(Hour < 10 ? 15 : 2, Y + 8, Number(Hour), 22));
    }
    for (int Hour = 0; Hour < 24; ++Hour)
        Expected.push_back(Text(32, 61 + 80 * Hour + 5, "00", 11));
    for (int Mark = 0; Mark < 96; ++Mark)
        Expected.push_back(Line(32, 61 + 20 * Mark));
    EXPECT_TRUE(HasRun(Painting(), Expected));
}

TEST_F(TRulerPainting, NeedsItsOption)
{
    View().SetRulerColor(vcl::clRed);
    View().SetRulerMarksColor(vcl::clLime);
    View().SetShowRuler(false);
    Show(200, 400);
    Add(23, 24);
    const TLines All = Painting();
    EXPECT_THAT(Matching(All, "fill", "FF0000"), IsEmpty());
    EXPECT_THAT(Matching(All, "maskedcopy"), IsEmpty()) << "the marks stand in the ruler";
    EXPECT_THAT(Matching(All, "line", "00FF00"), ElementsAre("line 1,61 200,61 pen=00FF00"))
        << "below the all-day area";
    EXPECT_THAT(All, Contains("fill 0,62,6,1022 brush=FFFFFF"));
    View().SetShowRuler(true);
    EXPECT_THAT(Painting(), Contains("fill 0,62,50,400 brush=FF0000"));
}

TEST_F(TRulerPainting, TimeLinesNeedTheirOption)
{
    View().SetTimeLinesColor(vcl::clRed);
    Show(300, 400);
    const TLines Lines = Matching(Painting(), "line", "FF0000");
    ASSERT_EQ(Lines.size(), 48u);
    EXPECT_EQ(Lines.front(), "line 56,81 300,81 pen=FF0000");
    EXPECT_EQ(Lines.back(), "line 56,1021 300,1021 pen=FF0000");
    View().SetShowTimeLines(false);
    EXPECT_THAT(Matching(Painting(), "line", "FF0000"), IsEmpty());
}

TEST_F(TRulerPainting, TheProgramsDrawingReplacesMarksAndCornerToo)
{
    Show(300, 400);
    Add(23, 24);
    const TLines Plain = Painting();
    ASSERT_EQ(Matching(Plain, "maskedcopy").size(), 1u);
    ASSERT_THAT(Plain, Contains("fill 0,0,50,62 brush=C0C0C0"));
    View().OnDrawRuler = [](vcl::TObject*, vcl::TCanvas*, const vcl::TRect&, int) {};
    View().SetCustomDrawOptions({TKSTVCustomDrawOption::cdoRuler});
    const TLines All = Painting();
    EXPECT_THAT(Matching(All, "maskedcopy"), IsEmpty());
    EXPECT_THAT(Matching(All, "fill 0,0,50"), IsEmpty());
    EXPECT_THAT(Matching(All, "line 4,"), IsEmpty());
    EXPECT_THAT(Matching(All, "text", "\"00\""), IsEmpty());
    EXPECT_THAT(All, Contains("fill 50,62,56,1022 brush=FFFFFF")) << "the day is painted as always";
}

TEST_F(TRulerPainting, TheCornerCoversNothingBelowTheCaptionsWhenTheAllDayAreaIsHidden)
{
    View().SetShowTopSpace(false);
    Show(300, 400);
    const TLines All = Painting();
    EXPECT_THAT(All, Contains("fill 0,22,50,400 brush=C0C0C0"));
    EXPECT_TRUE(HasRun(All, {"fill 0,0,50,22 brush=C0C0C0", "line 4,21 46,21 pen=808080",
                             "fill 50,22,56,982 brush=FFFFFF", "line 50,22 50,982 pen=000000"}));
    EXPECT_THAT(All, Contains(Text(15, 29, "0", 22)));
    EXPECT_THAT(All, Contains("line 56,41 300,41 pen=808080"));
}

class THiddenItemMarks : public TTimeViewPaintingTest
{
protected:
    THiddenItemMarks() { View().GetItemsBelowMark()->SetSize(12, 8); }

    bool HasAbove() { return Matching(Painting(), "maskedcopy 39,62,50,71 ").size() == 1; }
    bool HasBelow() { return Matching(Painting(), "maskedcopy 38,392,50,400 ").size() == 1; }
};

TEST_F(THiddenItemMarks, AnItemIsAboveWhenItsLastRowIsJustCovered)
{
    Show(300, 400);
    Add(0, 1); // rows 61 to 101, the scale begins at 62
    View().SetVScrollPosition(38);
    EXPECT_FALSE(HasAbove());
    View().SetVScrollPosition(39);
    EXPECT_TRUE(HasAbove());
    EXPECT_FALSE(HasBelow());
}

TEST_F(THiddenItemMarks, AnItemIsBelowWhenItStartsAfterTheEdgeNotOnIt)
{
    Show(300, 400);
    Add(8.5, 9.5); // from row 401 on
    EXPECT_TRUE(HasBelow());
    EXPECT_FALSE(HasAbove());
    View().SetVScrollPosition(1);
    EXPECT_FALSE(HasBelow());
}

TEST_F(THiddenItemMarks, AnEmptyMarkIsLeftOutWithoutTheOther)
{
    Show(300, 400);
    Add(0, 1);
    Add(22, 23);
    View().SetVScrollPosition(100);
    EXPECT_EQ(Matching(Painting(), "maskedcopy").size(), 2u);
    View().GetItemsAboveMark()->Assign(nullptr);
    EXPECT_EQ(Matching(Painting(), "maskedcopy").size(), 1u);
    EXPECT_TRUE(HasBelow());
    View().GetItemsAboveMark()->SetSize(11, 9);
    View().GetItemsBelowMark()->Assign(nullptr);
    EXPECT_EQ(Matching(Painting(), "maskedcopy").size(), 1u);
    EXPECT_TRUE(HasAbove());
}

TEST_F(THiddenItemMarks, AllDayItemsDoNotCountAndThoseOfEveryDayDo)
{
    View().SetDaysCount(2);
    Show(300, 400);
    View().SetVScrollPosition(100);
    Add(0, 1, true);
    EXPECT_FALSE(HasAbove());
    Add(24, 25);
    EXPECT_TRUE(HasAbove());
}

} // namespace
