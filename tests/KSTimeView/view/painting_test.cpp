#include <algorithm>
#include <climits>
#include <limits>

#include "KSTimeView/view/PaintingFixture.h"
#include "support/Expected.h"
#include "vcl/graphics/ImageList.h"

using testing::Contains;
using testing::ElementsAre;
using testing::ElementsAreArray;
using testing::IsEmpty;
using testing::IsSupersetOf;
using testing::Not;

namespace
{

using TTimeViewPainting = TTimeViewPaintingTest;

TEST_F(TTimeViewPainting, AnEmptyDayIsPaintedStepByStep)
{
    Show(300, 400);
    EXPECT_TRUE(vcl::tests::MatchesExpected("KSTimeView/empty-day.ops", AllText()));
}

TEST_F(TTimeViewPainting, AWeekWithItemsIsPaintedStepByStep)
{
    View().SetDaysCount(3);
    Show(500, 400);
    View().SetSelectedItem(Add(2, 4, false, "Selected"));
    Add(3, 5, false, "Beside");
    Add(26, 27, false, "Tuesday");
    Add(0, 48, true, "Two days");
    Day(1).SetShowWorkingHours(true);
    View().SetTimeSelection(Monday + 1.5, Monday + 2.25);
    View().SetAllDaySelection(Monday + 1, Monday + 2);
    EXPECT_TRUE(vcl::tests::MatchesExpected("KSTimeView/three-days.ops", AllText()));
}

TEST_F(TTimeViewPainting, WithHourMarksTheRulerHas25Labels)
{
    View().SetRulerMarkMinutes(TKSTVRulerMarkMinutes::rmm60Minutes);
    Show(300, 700);
    const TLines All = Painting();
    const TLines Labels = Matching(All, "text", ":00\"");
    ASSERT_EQ(Labels.size(), 25u);
    EXPECT_EQ(Labels.front().find("\"0:00\"") != std::string::npos, true);
    EXPECT_EQ(Labels.back().find("\"24:00\"") != std::string::npos, true);
    EXPECT_TRUE(HasRun(All, {"line 4,61 46,61 pen=808080", Labels[0], "line 4,81 46,81 pen=808080"}));
    EXPECT_THAT(All, Contains("line 4,541 46,541 pen=808080"));
}

TEST_F(TTimeViewPainting, WithFinerMarksTheRulerHas24LargeHoursEachWithASmallOne)
{
    Show(300, 1100);
    const TLines All = Painting();
    EXPECT_EQ(Matching(All, "text", "-22").size(), 24u);
    EXPECT_EQ(Matching(All, "text", "\"00\" font=\"Arial\" -11").size(), 24u);
    EXPECT_EQ(Matching(All, "line 32,", "pen=808080").size(), 48u);
}

TEST_F(TTimeViewPainting, ThePaintedLabelsScrollAndAreCoveredAbove)
{
    Show(300, 400);
    View().SetVScrollPosition(30);
    const TLines All = Painting();
    EXPECT_THAT(All, Contains("line 4,31 46,31 pen=808080"));
    EXPECT_THAT(All, Contains("fill 50,32,56,992 brush=FFFFFF"));
    const auto Corner = std::find(All.begin(), All.end(), "fill 0,0,50,62 brush=C0C0C0");
    EXPECT_NE(std::find(All.begin(), Corner, "line 4,31 46,31 pen=808080"), Corner);
}

TEST_F(TTimeViewPainting, AHiddenRulerIsNotPainted)
{
    ShowDaysOnly();
    EXPECT_THAT(Matching(Painting(), "text", "\"00\""), IsEmpty());
    EXPECT_EQ(Day(0).GetLeft(), 0);
}

TEST_F(TTimeViewPainting, EitherOptionEnablesBothMarksOfHiddenItems)
{
    Show(300, 400);
    Add(23, 24);
    View().SetOptions({TKSTVOption::tvoItemsAboveMark});
    EXPECT_EQ(Matching(Painting(), "maskedcopy 39,391,50,400", "").size(), 1u) << "the mark below";
    View().SetVScrollPosition(600);
    EXPECT_THAT(Matching(Painting(), "maskedcopy 39,391,50,400", ""), IsEmpty());
    Add(0, 1);
    EXPECT_EQ(Matching(Painting(), "maskedcopy 39,62,50,71", "").size(), 1u) << "the mark above";
    View().SetOptions({TKSTVOption::tvoItemsBelowMark});
    EXPECT_EQ(Matching(Painting(), "maskedcopy 39,62,50,71", "").size(), 1u);
    View().SetOptions({});
    EXPECT_THAT(Matching(Painting(), "maskedcopy", ""), IsEmpty());
    View().SetOptions({TKSTVOption::tvoItemsAboveMark});
    View().GetItemsAboveMark()->Assign(nullptr);
    EXPECT_THAT(Matching(Painting(), "maskedcopy", ""), IsEmpty());
}

TEST_F(TTimeViewPainting, WorkingHoursAndTheTimeSelectionLieBesideTheGap)
{
    View().SetDaysCount(2);
    ShowDaysOnly();
    Day(0).SetShowWorkingHours(true);
    EXPECT_THAT(Painting(), Contains("fill 6,381,100,761 brush=FFFFFF"));
    View().SetTimeSelection(Monday + 0.5, Monday + 1.25);
    TLines All = Painting();
    EXPECT_THAT(All, IsSupersetOf({"fill 6,541,100,1021 brush=000080", "fill 106,61,200,301 brush=000080"}));
    View().SetTimeSelection(Monday + 2, Monday + 3);
    EXPECT_THAT(Matching(Painting(), "fill", "brush=000080"), IsEmpty());
    View().SetTimeSelection(-1, Monday + 3);
    EXPECT_THAT(Matching(Painting(), "fill", "brush=000080"), IsEmpty());
    View().SetTimeSelection(Monday - 1, Monday);
    EXPECT_THAT(Matching(Painting(), "fill", "brush=000080"), ElementsAre("fill 6,61,100,61 brush=000080"));
}

TEST_F(TTimeViewPainting, AnItemHasItsBodyItsCoverInTheGapAndItsText)
{
    ShowDaysOnly();
    Add(1, 2, false, "Lunch");
    EXPECT_TRUE(HasRun(Painting(), {"rect 5,101,194,141 pen=000000 brush=FFFFFF",
                                    "rect 0,101,6,141 pen=000000 brush=0000FF",
                                    "text 13,103 \"Lunch\" font=\"Arial\" -11 color=000000 back=FFFFFF"}));
}

TEST_F(TTimeViewPainting, TheGapCoverBesideAnItemNeedsItsOptionAndTheStripInTheGapDoesNot)
{
    ShowDaysOnly();
    Add(1, 2, false, "");
    Add(1, 2, false, "");
    EXPECT_TRUE(HasRun(Painting(), {"rect 105,101,194,141 pen=000000 brush=FFFFFF",
                                    "rect 100,101,106,141 pen=000000 brush=0000FF",
                                    "rect 0,101,6,141 pen=000000 brush=0000FF"}));
    View().SetOptions(View().GetOptions() - TKSTVOptions{TKSTVOption::tvoShowDaysGapCover});
    EXPECT_TRUE(HasRun(Painting(), {"rect 100,101,194,141 pen=000000 brush=FFFFFF",
                                    "rect 0,101,6,141 pen=000000 brush=0000FF"}));
}

TEST_F(TTimeViewPainting, TheSelectedItemComesLastWithBarsAboveAndBelow)
{
    ShowDaysOnly();
    View().SetSelectedItem(Add(1, 2));
    Add(3, 4);
    EXPECT_TRUE(
        HasRun(Painting(),
               {"rect 5,181,194,221 pen=000000 brush=FFFFFF", "rect 0,181,6,221 pen=000000 brush=0000FF",
                "rect 0,95,194,102 pen=000000 brush=0000FF", "rect 0,140,194,147 pen=000000 brush=0000FF",
                "rect 5,101,194,141 pen=000000 brush=FFFFFF", "rect 0,101,6,141 pen=000000 brush=0000FF"}));
}

TEST_F(TTimeViewPainting, AllDayItemsAreCenteredOverTheTopSpaceAndChangeColourWhenSelected)
{
    ShowDaysOnly();
    TKSTimeViewItem* const Item = Add(0, 24, true, "Holiday");
    Item->SetAllDayColor(vcl::clYellow);
    EXPECT_TRUE(HasRun(Painting(), {"fill 0,22,200,62 brush=808080", "line 0,22 0,62 pen=000000",
                                    "line 1,61 200,61 pen=808080", "rect 3,24,198,42 pen=000000 brush=FFFF00",
                                    "text 78,26 \"Holiday\" font=\"Arial\" -11 color=000000 back=FFFF00"}));
    View().SetSelectedItem(Item);
    EXPECT_THAT(Painting(), Contains("rect 3,24,198,42 pen=000000 brush=FFFFFF"));
    View().SetAllDaySelection(Monday, Monday);
    EXPECT_THAT(Painting(), Contains("fill 0,22,200,62 brush=FFFFFF"));
    View().SetAllDaySelection(Monday + 1, Monday + 2);
    EXPECT_THAT(Painting(), Contains("fill 0,22,200,62 brush=808080"));
}

TEST_F(TTimeViewPainting, ADraggedItemIsNotPaintedAmongTheOthers)
{
    ShowDaysOnly();
    Add(1, 2)->SetDragOutside(true);
    EXPECT_THAT(Matching(Painting(), "rect", ""), IsEmpty());
}

TEST_F(TTimeViewPainting, ReminderAndPrivateImagesStandOneBelowTheOther)
{
    ShowDaysOnly();
    vcl::TImageList Images;
    vcl::TBitmap Pictures(32, 16);
    Images.Add(&Pictures, nullptr);
    View().SetImages(&Images);
    View().SetPrivateImageIndex(0);
    View().SetReminderImageIndex(1);
    TKSTimeViewItem* const Item = Add(1, 3, false, "Lunch");
    Item->SetShowReminder(true);
    Item->SetPrivateItem(true);
    TLines All = Painting();
    EXPECT_EQ(Matching(All, "clip 5,101,28,180", "").size(), 1u);
    EXPECT_EQ(Matching(All, "maskedcopy 12,103,28,119", "").size(), 1u);
    EXPECT_EQ(Matching(All, "maskedcopy 12,120,28,136", "").size(), 1u);
    EXPECT_EQ(Matching(All, "text 31,103 \"Lunch\"", "").size(), 1u);
    Item->SetShowReminder(false);
    EXPECT_EQ(Matching(Painting(), "maskedcopy 12,103,28,119", "").size(), 1u);
    View().SetBiDiMode(vcl::TBiDiMode::bdRightToLeftReadingOnly);
    All = Painting();
    EXPECT_EQ(Matching(All, "clip 176,101,194,180", "").size(), 1u);
    EXPECT_EQ(Matching(All, "maskedcopy 176,103,192,119", "").size(), 1u);
    View().SetImages(nullptr);
    EXPECT_THAT(Matching(Painting(), "maskedcopy", ""), IsEmpty());
}

TEST_F(TTimeViewPainting, TheCaptionTakesTheLongestFormatThatFitsAndAnEllipsisAtTheEnd)
{
    View().SetDaysCount(1);
    ShowDaysOnly();
    const auto CaptionAt = [&](int Width) {
        View().SetRulerWidth(200 - Width);
        View().SetShowRuler(Width != 200);
        const TLines Captions = Matching(Painting(), "text", "back=C0C0C0");
        const std::string Last = Captions.back();
        const std::size_t Begin = Last.find('"') + 1;
        return Last.substr(Begin, Last.find('"', Begin) - Begin);
    };
    EXPECT_EQ(CaptionAt(200), "Monday 3 January 2000");
    EXPECT_EQ(CaptionAt(120), "Mon 3 Jan 00");
    EXPECT_EQ(CaptionAt(70), "03/01/00");
    EXPECT_NE(CaptionAt(40).find("..."), std::string::npos);
}

TEST_F(TTimeViewPainting, TheProgramDrawsThePartsItAskedFor)
{
    Show(300, 400);
    Add(1, 2, false, "Lunch");
    TLines Log;
    const auto Note = [&](const char* What, const vcl::TRect& Rect, int Offset) {
        Log.push_back(std::string(What) + " " + vcl::record::RectText(Rect) + " " + std::to_string(Offset));
    };
    View().OnDrawRuler = [&](vcl::TObject* Sender, vcl::TCanvas* Canvas, const vcl::TRect& Rect, int Offset) {
        EXPECT_EQ(Sender, FView);
        EXPECT_EQ(Canvas, View().GetCanvas());
        Note("ruler", Rect, Offset);
    };
    View().OnDrawDay = [&](vcl::TObject*, vcl::TCanvas*, TKSTimeviewDay* Drawn, const vcl::TRect& Rect,
                           int Offset) {
        EXPECT_EQ(Drawn, &Day(0));
        Note("day", Rect, Offset);
    };
    View().OnDrawTopSpace = [&](vcl::TObject*, vcl::TCanvas*, TKSTimeviewDay*, const vcl::TRect& Rect) {
        Note("top", Rect, 0);
    };
    View().OnDrawCaption = [&](vcl::TObject*, vcl::TCanvas*, const vcl::TRect& Rect, TKSTimeviewDay*) {
        Note("caption", Rect, 0);
    };
    View().OnDrawItem = [&](vcl::TObject*, vcl::TCanvas* Canvas, TKSTimeViewItem*, const vcl::TRect& Rect) {
        EXPECT_EQ(Canvas->GetBrush()->GetColor(), vcl::clWindow);
        Note("item", Rect, 0);
    };
    Painting();
    EXPECT_THAT(Log, IsEmpty()) << "no option is set";
    using enum TKSTVCustomDrawOption;
    View().SetVScrollPosition(20);
    View().SetCustomDrawOptions({cdoTopSpace});
    Settle();
    Painting();
    EXPECT_THAT(Log, IsEmpty()) << "this option is never asked for";
    View().SetCustomDrawOptions({cdoRuler, cdoDays, cdoItems, cdoCaptions});
    Settle();
    Log.clear();
    const TLines All = Painting();
    EXPECT_THAT(Log, ElementsAre("ruler 0,62,50,338 20", "day 50,62,250,338 20", "item 55,81,239,40 0",
                                 "top 50,22,250,40 0", "caption 50,0,250,21 0"));
    EXPECT_THAT(Matching(All, "text", ""), IsEmpty());
    EXPECT_THAT(Matching(All, "rect", ""), IsEmpty());
    EXPECT_THAT(Matching(All, "fill 0,62,50", ""), IsEmpty());
}

TEST_F(TTimeViewPainting, TheDaysOptionWithATopSpaceHandlerAloneDrawsOnlyTheAllDayCells)
{
    ShowDaysOnly();
    int Calls = 0;
    View().OnDrawTopSpace = [&](vcl::TObject*, vcl::TCanvas*, TKSTimeviewDay*, const vcl::TRect&) {
        ++Calls;
    };
    View().SetCustomDrawOptions({TKSTVCustomDrawOption::cdoDays});
    Settle();
    Calls = 0;
    const TLines All = Painting();
    EXPECT_EQ(Calls, 1);
    EXPECT_THAT(Matching(All, "fill 0,22", ""), IsEmpty());
    EXPECT_THAT(All, Contains("fill 0,62,6,1022 brush=FFFFFF")) << "the rest of the day is painted as always";
}

TEST_F(TTimeViewPainting, DrawHandlersMayChangeOrFreeEverything)
{
    View().SetDaysCount(3);
    Show();
    View().SetCustomDrawOptions({TKSTVCustomDrawOption::cdoItems, TKSTVCustomDrawOption::cdoDays});
    const auto Fill = [&] {
        View().GetItems()->Clear();
        for (int Hour = 1; Hour < 9; ++Hour)
            Add(Hour, Hour + 1);
    };
    Fill();
    View().OnDrawItem = [](vcl::TObject*, vcl::TCanvas*, TKSTimeViewItem* Item, const vcl::TRect&) {
        Item->Delete();
    };
    View().Refresh();
    Fill();
    View().OnDrawItem = [&](vcl::TObject*, vcl::TCanvas*, TKSTimeViewItem*, const vcl::TRect&) {
        View().GetItems()->Clear();
    };
    View().Refresh();
    EXPECT_EQ(View().GetItems()->GetCount(), 0);
    Fill();
    View().OnDrawItem = [&](vcl::TObject*, vcl::TCanvas*, TKSTimeViewItem*, const vcl::TRect&) {
        View().SetDaysCount(View().GetDaysCount() == 3 ? 2 : 3);
    };
    View().Refresh();
    View().OnDrawItem = nullptr;
    View().OnDrawDay = [&](vcl::TObject*, vcl::TCanvas*, TKSTimeviewDay*, const vcl::TRect&, int) {
        delete std::exchange(FView, nullptr);
    };
    FView->Refresh();
    EXPECT_EQ(FView, nullptr);
    EXPECT_THAT(FErrors, IsEmpty());
}

TEST_F(TTimeViewPainting, ADayPaintsAloneAndSoDoesAnItem)
{
    Show(300, 400);
    TKSTimeViewItem* const Item = Add(1, 2);
    Day(0).Paint();
    Day(0).DrawItem(Item);
    Day(0).DrawItem(nullptr);
    EXPECT_EQ(View().GetCanvas()->GetPixel(100, 120), vcl::clWhite);
}

TEST_F(TTimeViewPainting, StrangeSizesArePainted)
{
    View().SetDaysCount(31);
    Show(300, 400);
    for (int Index = 0; Index < 60; ++Index)
        Add(Index % 20, Index % 20 + 4, Index % 7 == 0, "Text");
    View().SetSelectedItem(View().GetItems()->FirstItem());
    for (const int Value : {0, 1, -1, 1000000, INT_MAX, INT_MIN}) {
        View().SetRulerMarkHeight(Value);
        View().SetRulerWidth(Value);
        View().SetCaptionHeight(Value);
        View().SetDaysGapWidth(Value);
        View().CalcDisplay();
        View().SetVScrollPosition(Value);
        Painting();
        View().Refresh();
    }
    View().SetDateRange(std::numeric_limits<double>::quiet_NaN(), 3);
    Painting();
    View().SetDateRange(1e300, 3);
    Painting();
    EXPECT_THAT(FErrors, IsEmpty());
}

} // namespace
