#include "KSTimeView/view/ViewFixture.h"
#include "vcl/forms/LoadForm.h"
#include "vcl/graphics/ScrollInfo.h"
#include "vcl/platform/VirtualKeys.h"
#include "vcl/streaming/FormFile.h"

using testing::ElementsAre;
using testing::IsEmpty;
using vcl::MakeScrollParam;

namespace
{

constexpr auto VerticalBar = vcl::TScrollBarKind::sbVertical;

TEST_F(TTimeViewTest, BeforeTheWindowThereIsNoLayout)
{
    Add(9, 10);
    EXPECT_EQ(Day(0).GetWidth(), 0);
    EXPECT_EQ(View().GetTopSpace(), 0);
    Show();
    EXPECT_EQ(Day(0).GetLeft(), 50);
    EXPECT_EQ(Day(0).GetWidth(), 707);
    EXPECT_EQ(View().GetTopSpace(), 40);
}

TEST_F(TTimeViewTest, TimesAndRowsGoThroughTheShownScale)
{
    Show();
    EXPECT_EQ(View().TimeToPos(0.375, 1), 360 + 22 + 40 - 1);
    EXPECT_EQ(View().PosToTime(360 + 22 + 40, 30, false), 0.375);
    View().SetShowTopSpace(false);
    EXPECT_EQ(View().TimeToPos(0.375, 1), 360 + 22 - 1);
    EXPECT_EQ(View().GetEffectiveTopSpace(), 0);
    EXPECT_EQ(View().GetTopSpace(), 40);
}

TEST_F(TTimeViewTest, TheBarCoversTheWholeScale)
{
    Show();
    const vcl::TScrollBarState& Bar = Window().GetScrollBar(VerticalBar);
    EXPECT_TRUE(Bar.Visible);
    EXPECT_EQ(Bar.Max, 960);
    EXPECT_EQ(Bar.Page, 500u - 62u + 1u);
    Add(1, 24, true);
    Add(1, 24, true);
    Settle();
    EXPECT_EQ(Bar.Page, 500u - 82u + 1u) << "an all-day row more";
    View().SetHeight(1500);
    EXPECT_TRUE(Bar.Visible) << "the view always has a bar";
    EXPECT_FALSE(Bar.Enabled);
    EXPECT_EQ(View().GetClientWidth(), 757);
}

TEST_F(TTimeViewTest, ScrollingStopsAtTheEndsOfTheScale)
{
    Show();
    View().SetVScrollPosition(5000);
    EXPECT_EQ(View().GetScrollOffset(), 522);
    EXPECT_EQ(View().GetVScrollPosition(), 522);
    View().SetVScrollPosition(-5);
    EXPECT_EQ(View().GetScrollOffset(), 0);
    EXPECT_TRUE(Repaints());
    View().SetVScrollPosition(0);
    EXPECT_FALSE(Repaints());
}

TEST_F(TTimeViewTest, WithoutSmoothScrollTheOffsetSnapsAndTheBarDoesNot)
{
    Show();
    View().SetSmoothScroll(false);
    View().SetVScrollPosition(35);
    EXPECT_EQ(View().GetScrollOffset(), 20);
    EXPECT_EQ(View().GetVScrollPosition(), 35);
}

TEST_F(TTimeViewTest, AWholeVisibleScaleHasNoUpperLimit)
{
    Show(757, 1200);
    View().SetVScrollPosition(5000);
    EXPECT_EQ(View().GetScrollOffset(), 5000);
}

TEST_F(TTimeViewTest, GrowingUntilTheWholeScaleShowsScrollsBack)
{
    Show();
    View().SetVScrollPosition(500);
    View().SetHeight(600);
    EXPECT_EQ(View().GetScrollOffset(), 422);
    View().SetHeight(1100);
    EXPECT_EQ(View().GetScrollOffset(), 0);
}

TEST_F(TTimeViewTest, ScrollRequestsTakeTheFocusAndMoveByMarks)
{
    Show();
    auto* const Other = vcl::New<TKSTimeView>(FForm);
    Other->SetParent(FForm);
    Other->SetFocus();
    const auto After = [&](unsigned Request, int Position = 0) {
        View().Perform(vcl::WM_VSCROLL, MakeScrollParam(Request, Position));
        return View().GetScrollOffset();
    };
    EXPECT_EQ(After(vcl::SB_LINEDOWN), 20);
    EXPECT_TRUE(View().Focused());
    EXPECT_EQ(After(vcl::SB_PAGEDOWN), 80);
    EXPECT_EQ(After(vcl::SB_LINEUP), 60);
    EXPECT_EQ(After(vcl::SB_PAGEUP), 0);
    EXPECT_EQ(After(vcl::SB_THUMBTRACK, 333), 333);
    EXPECT_EQ(After(vcl::SB_THUMBPOSITION, 300), 300);
    EXPECT_EQ(After(vcl::SB_BOTTOM), 442) << "twice the all-day area above the end";
    EXPECT_EQ(After(vcl::SB_TOP), 0);
    EXPECT_EQ(After(vcl::SB_ENDSCROLL), 0);
}

TEST_F(TTimeViewTest, TheWheelScrollsAsManyMarksAsTheSystemHasLines)
{
    Show();
    const int Lines = FPlatform.System().Metric(vcl::TSystemMetric::WheelScrollLines);
    Windows().Wheel(Window(), {300, 200}, -120);
    EXPECT_EQ(View().GetScrollOffset(), Lines * 20);
    Windows().Wheel(Window(), {300, 200}, 120);
    EXPECT_EQ(View().GetScrollOffset(), 0);
    View().OnMouseWheelDown = [](vcl::TObject*, vcl::TShiftState, vcl::TPoint, bool& Handled) {
        Handled = true;
    };
    Windows().Wheel(Window(), {300, 200}, -120);
    EXPECT_EQ(View().GetScrollOffset(), 0) << "the program has used it";
}

TEST_F(TTimeViewTest, KeysScrollUnlessTheProgramUsesThem)
{
    Show();
    View().SetFocus();
    const auto After = [&](std::uint16_t Key) {
        Windows().KeyPress(Key);
        return View().GetScrollOffset();
    };
    EXPECT_EQ(After(vcl::VK_DOWN), 20);
    EXPECT_EQ(After(vcl::VK_NEXT), 80);
    EXPECT_EQ(After(vcl::VK_UP), 60);
    EXPECT_EQ(After(vcl::VK_PRIOR), 0);
    EXPECT_EQ(After(vcl::VK_END), 522);
    EXPECT_EQ(After(vcl::VK_HOME), 0);
    View().OnKeyDown = [](vcl::TObject*, std::uint16_t& Key, vcl::TShiftState) { Key = 0; };
    EXPECT_EQ(After(vcl::VK_DOWN), 0);
}

TEST_F(TTimeViewTest, ScrollInViewScrollsUpToATimedItemButNeverDown)
{
    Show();
    TKSTimeViewItem* const Early = Add(2, 3);
    TKSTimeViewItem* const Late = Add(23, 24);
    TKSTimeViewItem* const AllDay = Add(0, 24, true);
    View().ScrollInView(Late, &Day(0));
    EXPECT_EQ(View().GetScrollOffset(), 0);
    View().SetVScrollPosition(400);
    View().ScrollInView(AllDay, &Day(0));
    View().ScrollInView(nullptr, &Day(0));
    EXPECT_EQ(View().GetScrollOffset(), 400);
    View().ScrollInView(Early, &Day(0));
    EXPECT_EQ(Day(0).GetItemRect(Early).Top, 62);
    EXPECT_EQ(View().GetScrollOffset(), 79);
}

TEST_F(TTimeViewTest, APositionFromAFormFileWaitsForTheWindow)
{
    vcl::TMemoryStream Stream;
    FView->SetName("View");
    Show();
    View().SetVScrollPosition(500);
    vcl::WriteComponent(Stream, FForm);
    delete FView;
    FView = nullptr;
    delete FForm;
    FForm = vcl::New<vcl::TForm>(nullptr);
    vcl::RegisterClass(TKSTimeView::StaticClass());
    Stream.SetPosition(0);
    vcl::LoadForm(*FForm, Stream);
    FView = vcl::As<TKSTimeView>(FForm->FindComponent("View"));
    ASSERT_NE(FView, nullptr);
    FForm->Show();
    Settle();
    EXPECT_EQ(View().GetScrollOffset(), 500);
    EXPECT_EQ(View().GetVScrollPosition(), 500);
}

TEST_F(TTimeViewTest, WithoutAnEditorEditingAndHidingItDoNothing)
{
    Show();
    TKSTimeViewItem* const Item = Add(9, 10);
    Settle();
    View().EditItem(Item, &Day(0));
    EXPECT_EQ(View().GetEditedItem(), nullptr);
    View().HideItemEditor(true);
    View().HideItemEditor(false);
    EXPECT_FALSE(Repaints());
}

} // namespace
