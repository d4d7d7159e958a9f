#include "KSTimeView/view/DrivenView.h"
#include "vcl/graphics/ScrollInfo.h"

using testing::ElementsAre;
using testing::IsEmpty;
using vcl::MakeScrollParam;

namespace
{

class TScrollRules : public TDrivenViewTest
{
protected:
    const vcl::TScrollBarState& Bar() { return Window().GetScrollBar(vcl::TScrollBarKind::sbVertical); }
    unsigned Page() { return Bar().Page; }
};

TEST_F(TScrollRules, EveryScrollRequestClosesTheEditorBeforeItScrolls)
{
    Show();
    for (const unsigned Request : {vcl::SB_LINEDOWN, vcl::SB_LINEUP, vcl::SB_PAGEDOWN, vcl::SB_PAGEUP,
                                   vcl::SB_THUMBTRACK, vcl::SB_THUMBPOSITION, vcl::SB_TOP, vcl::SB_BOTTOM}) {
        View().SetVScrollPosition(100);
        TakeLog();
        View().Perform(vcl::WM_VSCROLL, MakeScrollParam(Request, 30));
        EXPECT_THAT(TakeLog(), ElementsAre("hide editor at 100")) << Request;
        EXPECT_NE(View().GetScrollOffset(), 100) << Request;
    }
    View().SetVScrollPosition(200);
    EXPECT_THAT(TakeLog(), IsEmpty()) << "set by the program the position leaves the editor open";
}

TEST_F(TScrollRules, AnotherDateRangeClosesTheEditor)
{
    View().SetDateRange(Monday, 1);
    EXPECT_THAT(TakeLog(), IsEmpty());
    View().SetDate(Monday + 1);
    EXPECT_THAT(TakeLog(), ElementsAre("hide editor at 0"));
}

TEST_F(TScrollRules, RequestsGoFromTheOffsetNotFromTheBar)
{
    Show();
    View().SetSmoothScroll(false);
    View().SetVScrollPosition(35);
    ASSERT_EQ(View().GetScrollOffset(), 20);
    View().Perform(vcl::WM_VSCROLL, MakeScrollParam(vcl::SB_LINEDOWN, 0));
    EXPECT_EQ(View().GetScrollOffset(), 40);
    EXPECT_EQ(View().GetVScrollPosition(), 40);
}

TEST_F(TScrollRules, ScrollInViewGoesFromTheBarNotFromTheOffset)
{
    Show();
    View().SetSmoothScroll(false);
    View().SetVScrollPosition(99);
    ASSERT_EQ(View().GetScrollOffset(), 80);
    TKSTimeViewItem* const Item = Add(1, 2); // its top is 41 rows above the scale
    View().ScrollInView(Item, &Day(0));
    EXPECT_EQ(View().GetVScrollPosition(), 58);
    EXPECT_EQ(View().GetScrollOffset(), 40);
}

TEST_F(TScrollRules, ScrollInViewLooksAtTheItemInThatDay)
{
    View().SetDaysCount(2);
    Show();
    TKSTimeViewItem* const Item = Add(20, 30);
    View().SetVScrollPosition(300);
    View().ScrollInView(Item, &Day(0));
    EXPECT_EQ(View().GetScrollOffset(), 300) << "it starts below";
    View().ScrollInView(Item, &Day(1));
    EXPECT_EQ(View().GetScrollOffset(), 0) << "it goes on from midnight";
}

TEST_F(TScrollRules, AMarkHeightWaitsForTheNextLayout)
{
    Show();
    TKSTimeViewItem* const AllDay = Add(0, 24, true);
    ASSERT_EQ(View().GetTopSpace(), 40);
    View().SetRulerMarkHeight(30);
    EXPECT_EQ(View().GetTotalScaleHeight(), 1440);
    EXPECT_EQ(Bar().Max, 1440);
    EXPECT_EQ(View().GetTopSpace(), 40);
    EXPECT_EQ(Day(0).GetItemRect(AllDay), (vcl::TRect{53, 24, 755, 52})) << "rows follow at once";
    Settle();
    EXPECT_EQ(View().GetTopSpace(), 40) << "painting lays nothing out";
    View().CalcDisplay();
    EXPECT_EQ(View().GetTopSpace(), 60);
}

TEST_F(TScrollRules, AnotherTimeScaleIsCompleteWhenTheProgramHearsOfIt)
{
    Show();
    View().SetVScrollPosition(522);
    int Calls = 0;
    int Invalidations = 0;
    View().OnTimeScaleChanged = [&](vcl::TObject* Sender) {
        ++Calls;
        Invalidations = FDriven->Invalidations;
        EXPECT_EQ(Sender, FView);
        EXPECT_EQ(View().GetRulerMarkMinutes(), TKSTVRulerMarkMinutes::rmm60Minutes);
        EXPECT_EQ(View().GetTotalScaleHeight(), 480);
        EXPECT_EQ(View().GetSelectResolution(), 60);
        EXPECT_EQ(View().GetItemDragResolution(), 60);
        EXPECT_EQ(View().GetMinItemLength(), 60);
        EXPECT_EQ(View().GetMinWorkingHours(), 60);
        EXPECT_EQ(Bar().Max, 480);
        EXPECT_EQ(View().GetScrollOffset(), 42) << "as far as the shorter scale goes";
    };
    FDriven->Invalidations = 0;
    View().SetRulerMarkMinutes(TKSTVRulerMarkMinutes::rmm60Minutes);
    EXPECT_EQ(Calls, 1);
    EXPECT_GE(Invalidations, 1);
    EXPECT_EQ(FDriven->Invalidations, Invalidations) << "the event comes last";
    EXPECT_EQ(View().GetItemsSnap(), 15);
}

TEST_F(TScrollRules, TheResolutionsOfATimeScalePassTheirLimits)
{
    View().SetRulerMarkMinutes(TKSTVRulerMarkMinutes::rmm5Minutes);
    EXPECT_EQ(View().GetMinItemLength(), 5);
    View().SetRulerMarkMinutes(TKSTVRulerMarkMinutes::rmm6Minutes);
    EXPECT_EQ(View().GetTotalScaleHeight(), 4800);
    EXPECT_EQ(View().GetItemDragResolution(), 6);
}

TEST_F(TScrollRules, CaptionsAndTheAllDayAreaTakeFromThePage)
{
    Show();
    EXPECT_EQ(Page(), 439u);
    View().SetCaptionHeight(40);
    EXPECT_EQ(Page(), 421u);
    View().SetShowTopSpace(false);
    EXPECT_EQ(Page(), 461u);
    View().SetShowTopSpace(true);
    EXPECT_EQ(Page(), 421u);
    View().SetCaptionHeight(600);
    EXPECT_EQ(Page(), 0u);
}

TEST_F(TScrollRules, ABottomSpaceLaysOutAndUpdatesThePageButTakesNothingFromIt)
{
    Show();
    View().SetBottomSpace(100);
    EXPECT_EQ(Page(), 439u);
    View().SetRulerMarkHeight(30); // the all-day area keeps its 40 pixels
    ASSERT_EQ(Page(), 439u);
    View().SetBottomSpace(101);
    EXPECT_EQ(View().GetTopSpace(), 60);
    EXPECT_EQ(Page(), 419u);
}

TEST_F(TScrollRules, WidthsLayOutAndLeaveTheBarAlone)
{
    Show();
    View().SetRulerMarkHeight(30);
    View().SetRulerWidth(57);
    EXPECT_EQ(Day(0).GetLeft(), 57);
    EXPECT_EQ(Day(0).GetWidth(), 700);
    EXPECT_EQ(View().GetTopSpace(), 60);
    EXPECT_EQ(Page(), 439u);
}

} // namespace
