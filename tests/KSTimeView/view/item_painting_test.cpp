#include "KSTimeView/view/PaintingFixture.h"
#include "vcl/graphics/ImageList.h"

using testing::Contains;
using testing::ElementsAre;
using testing::IsEmpty;

namespace
{

class TItemPainting : public TTimeViewPaintingTest
{
protected:
    /// Gives the view images of this size; Item shows the private one.
    void ShowImage(TKSTimeViewItem* Item, int Width, int Height)
    {
        FImages.SetSize(Width, Height);
        vcl::TBitmap Picture(Width, Height);
        FImages.Add(&Picture, nullptr);
        View().SetImages(&FImages);
        View().SetPrivateImageIndex(0);
        Item->SetPrivateItem(true);
    }
    ~TItemPainting() override { View().SetImages(nullptr); }

    vcl::TImageList FImages;
};

TEST_F(TItemPainting, AllDayItemsAreShownOverHoursWhenTheirAreaIsHidden)
{
    View().SetShowTopSpace(false);
    ShowDaysOnly();
    Add(0, 24, true, "Holiday");
    Add(1, 2, false, "Lunch");
    const TLines All = Painting();
    EXPECT_TRUE(
        HasRun(All, {"rect 5,61,194,101 pen=000000 brush=FFFFFF", "rect 0,61,6,101 pen=000000 brush=0000FF",
                     "text 13,63 \"Lunch\" font=\"Arial\" -11 color=000000 back=FFFFFF",
                     "fill 0,22,200,22 brush=808080", "line 0,22 0,22 pen=000000",
                     "line 1,21 200,21 pen=808080", "rect 3,24,198,42 pen=000000 brush=C0C0C0"}));
}

TEST_F(TItemPainting, TheSelectedItemIsPaintedEvenWhileItTravels)
{
    ShowDaysOnly();
    TKSTimeViewItem* const Item = Add(1, 2);
    Add(1, 2, false, "Other");
    Item->SetDragOutside(true);
    View().CalcDisplay();
    View().SetSelectedItem(Item);
    EXPECT_TRUE(
        HasRun(Painting(),
               {"text 13,103 \"Other\" font=\"Arial\" -11 color=000000 back=FFFFFF",
                "rect 0,95,194,102 pen=000000 brush=0000FF", "rect 0,140,194,147 pen=000000 brush=0000FF",
                "rect 5,101,194,141 pen=000000 brush=FFFFFF", "rect 0,101,6,141 pen=000000 brush=0000FF"}));
}

// Right to left the scroll bar stands at the left, so everything is painted 16 pixels farther right.

TEST_F(TItemPainting, RightToLeftTextStandsAtTheRightAndCentredTextStays)
{
    ShowDaysOnly();
    View().SetBiDiMode(vcl::TBiDiMode::bdRightToLeft);
    Add(1, 2, false, "Lunch");
    Add(0, 24, true, "Holiday");
    const TLines Texts = Matching(Painting(), "text");
    EXPECT_THAT(Texts, ElementsAre("text 172,103 \"Lunch\" font=\"Arial\" -11 color=000000 back=FFFFFF rtl",
                                   "text 94,26 \"Holiday\" font=\"Arial\" -11 color=000000 back=C0C0C0 rtl",
                                   "text 42,4 \"Monday 3 January 2000\" font=\"Arial\" -11 color=000000 "
                                   "back=C0C0C0 rtl"));
}

TEST_F(TItemPainting, RightToLeftImagesStandAtTheRightOfTheText)
{
    ShowDaysOnly();
    View().SetBiDiMode(vcl::TBiDiMode::bdRightToLeft);
    ShowImage(Add(1, 2, false, "Lunch"), 16, 10);
    const TLines All = Painting();
    EXPECT_THAT(Matching(All, "text", "Lunch"),
                ElementsAre("text 154,103 \"Lunch\" font=\"Arial\" -11 color=000000 back=FFFFFF rtl"));
    EXPECT_THAT(All, Contains("clip 192,101,210,140"));
    EXPECT_EQ(Matching(All, "maskedcopy 192,103,208,113 ").size(), 1u);
}

TEST_F(TItemPainting, AnAmpersandMarksALetterInAnItemAndIsItselfInACaption)
{
    View().SetLongCaptionFormat("\"R&D\"");
    ShowDaysOnly();
    Add(1, 2, false, "&Tea && cake");
    EXPECT_THAT(Matching(Painting(), "text"),
                ElementsAre("text 13,103 \"Tea & cake\" font=\"Arial\" -11 color=000000 back=FFFFFF",
                            "text 89,4 \"R&D\" font=\"Arial\" -11 color=000000 back=C0C0C0"));
}

TEST_F(TItemPainting, TextThatDoesNotFitEndsInDotsOnTheLastWholeLine)
{
    ShowDaysOnly(100, 400);
    Add(1, 2, false, "One two three four five six seven eight");
    const TLines Texts = Matching(Painting(), "text 13,");
    ASSERT_EQ(Texts.size(), 3u) << "36 rows for lines of 12";
    EXPECT_THAT(Texts[0], testing::HasSubstr("text 13,103 \"One two "));
    EXPECT_THAT(Texts[1], testing::HasSubstr("text 13,115 \"three four"));
    EXPECT_THAT(Texts[2], testing::HasSubstr("text 13,127 \"five six...\""));
}

TEST_F(TItemPainting, AWordThatIsTooLongIsBrokenAsInAnEditor)
{
    ShowDaysOnly(60, 400);
    Add(1, 3, false, "Appointment");
    const TLines Texts = Matching(Painting(), "text 13,");
    ASSERT_EQ(Texts.size(), 3u);
    EXPECT_THAT(Texts[0], testing::HasSubstr("\"Appoi\""));
    EXPECT_THAT(Texts[1], testing::HasSubstr("\"ntmen\""));
    EXPECT_THAT(Texts[2], testing::HasSubstr("\"t\""));
}

TEST_F(TItemPainting, AnImageWiderThanItsItemLeavesNoRoomForTextAndIsCutAtTheItem)
{
    ShowDaysOnly(50, 400);
    ShowImage(Add(1, 2, false, "Lunch"), 60, 10);
    TLines All = Painting();
    EXPECT_THAT(Matching(All, "text", "Lunch"), IsEmpty());
    EXPECT_THAT(All, Contains("clip 5,101,44,140"));
    EXPECT_EQ(Matching(All, "maskedcopy 12,103,72,113 ").size(), 1u);
    View().SetBiDiMode(vcl::TBiDiMode::bdRightToLeft);
    All = Painting();
    EXPECT_THAT(All, Contains("clip 26,101,60,140")) << "the text's left edge is as far as it goes";
    EXPECT_EQ(Matching(All, "maskedcopy -2,103,58,113 ").size(), 1u);
}

TEST_F(TItemPainting, ImagesNeedTheirIndexToo)
{
    ShowDaysOnly();
    TKSTimeViewItem* const Item = Add(1, 2, false, "Lunch");
    ShowImage(Item, 16, 10);
    Item->SetShowReminder(true);
    EXPECT_EQ(Matching(Painting(), "maskedcopy").size(), 1u);
    EXPECT_EQ(Matching(Painting(), "maskedcopy 12,103,28,113 ").size(), 1u)
        << "a reminder without an image takes no room";
    View().SetReminderImageIndex(0);
    EXPECT_EQ(Matching(Painting(), "maskedcopy").size(), 2u);
    EXPECT_EQ(Matching(Painting(), "maskedcopy 12,114,28,124 ").size(), 1u);
    View().SetPrivateImageIndex(-1);
    EXPECT_EQ(Matching(Painting(), "maskedcopy").size(), 1u);
    Item->SetShowReminder(false);
    EXPECT_THAT(Matching(Painting(), "text", "Lunch"),
                ElementsAre("text 13,103 \"Lunch\" font=\"Arial\" -11 color=000000 back=FFFFFF"))
        << "without an image the text has its room back";
}

TEST_F(TItemPainting, WithoutAWindowNoItemIsDrawn)
{
    int Calls = 0;
    View().OnDrawItem = [&](vcl::TObject*, vcl::TCanvas*, TKSTimeViewItem*, const vcl::TRect&) { ++Calls; };
    View().SetCustomDrawOptions({TKSTVCustomDrawOption::cdoItems});
    TKSTimeViewItem* const Item = Add(1, 2);
    Day(0).DrawItem(Item);
    EXPECT_EQ(Calls, 0);
    Show();
    Calls = 0;
    Day(0).DrawItem(Item);
    EXPECT_EQ(Calls, 1);
    Day(0).DrawItem(nullptr);
    EXPECT_EQ(Calls, 1);
}

} // namespace
