#include "KSTimeView/view/PaintingFixture.h"
#include "support/Expected.h"
#include "vcl/graphics/ImageList.h"

using vcl::TColor;

namespace
{

/// A view none of whose colours, fonts and measures is like another, so that each line painted tells which of
/// them was used.
class TDistinctPainting : public TTimeViewPaintingTest
{
protected:
    TDistinctPainting()
    {
        SetMeasures();
        SetColors();
        View().GetFont()->SetName("Courier");
        View().GetFont()->SetHeight(-13);
        View().GetFont()->SetColor(TColor(0x000033));
        View().GetRulerFont()->SetHeight(-10);
        View().GetRulerFont()->SetColor(TColor(0x330000));
        View().SetLongCaptionFormat("dddd, d mmmm yyyy hh");
        View().SetMediumCaptionFormat("d-m-yyyy");
        View().SetShortCaptionFormat("d");
        FImages.SetSize(16, 10);
        vcl::TBitmap Pictures(32, 10);
        Pictures.GetCanvas()->GetBrush()->SetColor(TColor(0x123456));
        Pictures.GetCanvas()->FillRect({0, 0, 16, 10});
        FImages.Add(&Pictures, nullptr);
        View().SetImages(&FImages);
        View().SetPrivateImageIndex(0);
        View().SetReminderImageIndex(1);
    }
    ~TDistinctPainting() override { View().SetImages(nullptr); }

    void SetMeasures()
    {
        View().SetDaysGapWidth(9);
        View().SetCaptionHeight(30);
        View().SetRulerWidth(60);
        View().SetRulerMarkHeight(17);
        View().GetItemsAboveMark()->SetSize(5, 7);
        View().GetItemsBelowMark()->SetSize(8, 6);
    }
    void SetColors()
    {
        View().SetColor(TColor(0x0000F0));
        View().SetRulerColor(TColor(0x0000E1));
        View().SetRulerMarksColor(TColor(0x0000D2));
        View().SetDaysGapColor(TColor(0x0000C3));
        View().SetDaysGapCoverColor(TColor(0x0000B4));
        View().SetTimeLinesColor(TColor(0x0000A5));
        View().SetTopSpaceColor(TColor(0x000096));
        View().SetWorkingHoursColor(TColor(0x000087));
        View().SetTimeSelectionColor(TColor(0x000078));
        View().SetAllDaySelectionColor(TColor(0x000069));
        View().SetItemSelectionColor(TColor(0x00005A));
        View().SetAllDayItemSelectionColor(TColor(0x00004B));
    }
    TKSTimeViewItem* AddColored(double StartHour, double EndHour, const char* Caption, TColor Color)
    {
        TKSTimeViewItem* const Item = Add(StartHour, EndHour, false, Caption);
        Item->SetColor(Color);
        return Item;
    }
    TKSTimeViewItem* AddAllDay(double StartHour, double EndHour, const char* Caption, TColor Color)
    {
        TKSTimeViewItem* const Item = Add(StartHour, EndHour, true, Caption);
        Item->SetAllDayColor(Color);
        return Item;
    }
    /// Two days with everything there is to see. Scrolled, so that items are hidden above and below.
    void Fill()
    {
        AddColored(0, 1, "Hidden above", TColor(0x00F000));
        AddColored(3, 5, "Left", TColor(0x00E100));
        TKSTimeViewItem* const Right = AddColored(3.5, 6, "Right", TColor(0x00D200));
        Right->SetShowReminder(true);
        Right->SetPrivateItem(true);
        View().SetSelectedItem(AddColored(7, 8, "Selected", TColor(0x00C300)));
        AddColored(23, 24, "Hidden below", TColor(0x00B400));
        AddColored(28, 29, "Tuesday", TColor(0x00A500));
        AddAllDay(0, 48, "Both", TColor(0x009600))->SetPrivateItem(true);
        AddAllDay(24, 48, "Second", TColor(0x008700));
        Day(0).SetShowWorkingHours(true);
        Day(0).SetBeginWork(6.0 / 24);
        Day(0).SetEndWork(9.0 / 24);
        View().SetTimeSelection(Monday + 10.0 / 24, Monday + 29.0 / 24);
        View().SetAllDaySelection(Monday + 1, Monday + 1);
        View().SetVScrollPosition(60);
    }

    vcl::TImageList FImages;
};

TEST_F(TDistinctPainting, EveryColourFontAndMeasureIsUsedInItsPlace)
{
    View().SetDaysCount(2);
    Show(460, 400);
    Fill();
    EXPECT_TRUE(vcl::tests::MatchesExpected("KSTimeView/distinct.ops", AllText()));
}

TEST_F(TDistinctPainting, ASelectedAllDayItemAndHourMarksHaveTheirsToo)
{
    View().SetOptions({TKSTVOption::tvoItemsSelection});
    View().SetRulerMarkMinutes(TKSTVRulerMarkMinutes::rmm60Minutes);
    Show(260, 400);
    AddColored(2, 4, "Left", TColor(0x00E100));
    AddColored(3, 5, "Right", TColor(0x00D200));
    View().SetSelectedItem(AddAllDay(0, 24, "Both", TColor(0x009600)));
    View().SetAllDaySelection(Monday - 3, Monday);
    EXPECT_TRUE(vcl::tests::MatchesExpected("KSTimeView/distinct-hours.ops", AllText()));
}

} // namespace
