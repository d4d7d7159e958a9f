#include "KSTimeView/view/ViewFixture.h"
#include "support/PropertyLoop.h"
#include "vcl/streaming/FormFile.h"
#include "vcl/system/DateTime.h"

namespace
{

using vcl::AnsiString;
using vcl::TPropertyInfo;

std::unique_ptr<vcl::TComponent> MakeView()
{
    return std::unique_ptr<vcl::TComponent>(vcl::New<TKSTimeView>(nullptr));
}

TEST_F(TTimeViewTest, EveryPublishedPropertyIsSetReadStoredAndRefused)
{
    vcl::tests::CheckProperties(
        MakeView,
        {.NotFree = {"TabOrder", "Width", "Height", "DaysCount", "SelectResolution", "ItemDragResolution",
                     "ItemsSnap", "MinItemLength", "MinWorkingHours", "VScrollPosition"},
         // An empty text, and no date, are never written: the form then has the initial one.
         .NotStreamed = {"Date", "LongCaptionFormat", "MediumCaptionFormat", "ShortCaptionFormat"}});
}

TEST_F(TTimeViewTest, DateAndCaptionFormatsAreStreamed)
{
    const auto Written = MakeView();
    auto& Source = static_cast<TKSTimeView&>(*Written);
    Source.SetDate(Monday);
    Source.SetLongCaptionFormat("d");
    Source.SetMediumCaptionFormat("m");
    Source.SetShortCaptionFormat("yy");
    vcl::TMemoryStream Stream;
    vcl::WriteComponent(Stream, &Source);
    Stream.SetPosition(0);
    const auto Read = MakeView();
    vcl::ReadForm(Stream, Read.get());
    const auto& Target = static_cast<TKSTimeView&>(*Read);
    EXPECT_EQ(Target.GetDate(), Monday);
    EXPECT_EQ(Target.GetLongCaptionFormat(), "d");
    EXPECT_EQ(Target.GetMediumCaptionFormat(), "m");
    EXPECT_EQ(Target.GetShortCaptionFormat(), "yy");
}

struct TExpectedRow {
    const char* Name;
    std::optional<std::int64_t> Default;
    vcl::TPropertyValue Initial;
};

constexpr std::int64_t Signed(std::uint32_t Color)
{
    return static_cast<std::int32_t>(Color);
}

constexpr std::int64_t BtnFace = Signed(0x8000000F);
constexpr std::int64_t BtnShadow = Signed(0x80000010);
constexpr std::int64_t WindowColor = Signed(0x80000005);
constexpr std::int64_t Highlight = Signed(0x8000000D);

vcl::TPropertyValue Number(std::int64_t Value)
{
    return Value;
}

TEST_F(TTimeViewTest, EveryOwnPropertyHasItsDeclaredDefaultAndItsInitialValue)
{
    const std::vector<TExpectedRow> Expected = {
        {"VScrollPosition", {}, Number(0)},
        {"Options", {}, Number(0b110011111)},
        {"HintsOptions", {}, Number(0)},
        {"CustomDrawOptions", {}, Number(0)},
        {"CustomEditing", 0, Number(0)},
        {"DragOptions", {}, Number(0xFF)},
        {"RulerMarkHeight", 20, Number(20)},
        {"DaysGapColor", 16777215, Number(16777215)},
        {"DaysGapCoverColor", 16711680, Number(16711680)},
        {"DaysGapWidth", 6, Number(6)},
        {"TimeLinesColor", BtnShadow, Number(BtnShadow)},
        {"CaptionHeight", 22, Number(22)},
        {"DaysCount", 1, Number(1)},
        {"ShowRuler", 1, Number(1)},
        {"ShowTopSpace", 1, Number(1)},
        {"ShowTimeLines", 1, Number(1)},
        {"RulerWidth", 50, Number(50)},
        {"RulerColor", BtnFace, Number(BtnFace)},
        {"RulerMarksColor", BtnShadow, Number(BtnShadow)},
        {"RulerMarkMinutes", 4, Number(4)},
        {"Date", {}, vcl::TExtended(vcl::Date())},
        {"SelectResolution", 30, Number(30)},
        {"ItemDragResolution", 30, Number(30)},
        {"ItemSelectionColor", 16711680, Number(16711680)},
        {"TimeSelectionColor", Highlight, Number(Highlight)},
        {"AllDaySelectionColor", WindowColor, Number(WindowColor)},
        {"WorkingHoursColor", WindowColor, Number(WindowColor)},
        {"ItemsSnap", 15, Number(15)},
        {"MinItemLength", 30, Number(30)},
        {"MinWorkingHours", 30, Number(30)},
        {"TopSpaceColor", BtnShadow, Number(BtnShadow)},
        {"PrivateImageIndex", -1, Number(-1)},
        {"ReminderImageIndex", -1, Number(-1)},
        {"BorderStyle", 1, Number(1)},
        {"ReadOnly", {}, Number(0)},
        {"SmoothScroll", 1, Number(1)},
        {"CreateOnType", 1, Number(1)},
        {"AllDayItemSelectionColor", WindowColor, Number(WindowColor)},
        {"LongCaptionFormat", {}, AnsiString("dddd d mmmm yyyy")},
        {"MediumCaptionFormat", {}, AnsiString("ddd d mmm yy")},
        {"ShortCaptionFormat", {}, AnsiString("dd/mm/yy")},
        {"Color", WindowColor, Number(WindowColor)},
    };
    const auto Made = MakeView();
    for (const TExpectedRow& Row : Expected) {
        SCOPED_TRACE(Row.Name);
        const TPropertyInfo* const Property = vcl::FindProperty(TKSTimeView::StaticClass(), Row.Name);
        ASSERT_NE(Property, nullptr);
        EXPECT_EQ(Property->Default, Row.Default);
        EXPECT_EQ(Property->Get(*Made), Row.Initial);
    }
    const auto& Typed = static_cast<TKSTimeView&>(*Made);
    EXPECT_EQ(Typed.GetRulerFont()->GetName(), "Arial");
    EXPECT_EQ(Typed.GetImages(), nullptr);
    EXPECT_EQ(Typed.GetItemsAboveMark()->GetWidth(), 11);
    EXPECT_EQ(Typed.GetItemsBelowMark()->GetHeight(), 9);
    EXPECT_EQ(Typed.GetBottomSpace(), 0);
    EXPECT_EQ(Typed.GetBottomSpaceColor(), vcl::clBtnShadow);
    EXPECT_EQ(Typed.GetSelectedItem(), nullptr);
    EXPECT_EQ(Typed.GetSelectedStart(), -1.0);
    EXPECT_EQ(Typed.GetSelectedEnd(), -1.0);
    EXPECT_EQ(Typed.GetScrollOffset(), 0);
    EXPECT_EQ(Typed.GetTotalScaleHeight(), 960);
    EXPECT_EQ(Typed.GetTopSpace(), 0);
    EXPECT_EQ(Typed.GetItems()->GetCount(), 0);
    EXPECT_EQ(Typed.GetDay(0)->GetDate(), vcl::Date());
}

TEST_F(TTimeViewTest, SettersClampMinutes)
{
    View().SetSelectResolution(0);
    EXPECT_EQ(View().GetSelectResolution(), 1);
    View().SetItemDragResolution(90);
    EXPECT_EQ(View().GetItemDragResolution(), 60);
    View().SetItemDragResolution(0);
    EXPECT_EQ(View().GetItemDragResolution(), 1);
    View().SetMinItemLength(2);
    EXPECT_EQ(View().GetMinItemLength(), 5);
    View().SetMinWorkingHours(4);
    EXPECT_EQ(View().GetMinWorkingHours(), 5);
    View().SetItemsSnap(-3);
    EXPECT_EQ(View().GetItemsSnap(), 1);
    View().SetDaysCount(40);
    EXPECT_EQ(View().GetDaysCount(), 31);
}

TEST_F(TTimeViewTest, ATimeScaleOfHoursTakesTheResolutionsAlong)
{
    int Calls = 0;
    View().OnTimeScaleChanged = [&](vcl::TObject* Sender) {
        EXPECT_EQ(Sender, &View());
        ++Calls;
    };
    View().SetRulerMarkMinutes(TKSTVRulerMarkMinutes::rmm60Minutes);
    EXPECT_EQ(View().GetSelectResolution(), 60);
    EXPECT_EQ(View().GetItemDragResolution(), 60);
    EXPECT_EQ(View().GetMinItemLength(), 60);
    EXPECT_EQ(View().GetMinWorkingHours(), 60);
    EXPECT_EQ(View().GetTotalScaleHeight(), 480);
    View().SetRulerMarkMinutes(TKSTVRulerMarkMinutes::rmm60Minutes);
    EXPECT_EQ(Calls, 1);
    View().SetOptions(View().GetOptions() - TKSTVOptions{TKSTVOption::tvoAutoTimeScaleAdjust});
    View().SetRulerMarkMinutes(TKSTVRulerMarkMinutes::rmm5Minutes);
    EXPECT_EQ(View().GetMinItemLength(), 60);
    EXPECT_EQ(View().GetMarksMinutes(), 5);
    EXPECT_EQ(Calls, 2);
}

TEST_F(TTimeViewTest, ChangesOfLooksRepaintAndOthersDoNot)
{
    Show();
    const auto ExpectRepaint = [&](const char* What, auto&& Change) {
        Settle();
        Change();
        EXPECT_TRUE(Repaints()) << What;
        Change();
        EXPECT_FALSE(Repaints()) << What << " again";
    };
    ExpectRepaint("options", [&] { View().SetOptions({}); });
    ExpectRepaint("ruler font", [&] { View().GetRulerFont()->SetHeight(-20); });
    ExpectRepaint("font", [&] { View().GetFont()->SetHeight(-20); });
    ExpectRepaint("colour", [&] { View().SetDaysGapColor(vcl::clRed); });
    ExpectRepaint("image index", [&] { View().SetPrivateImageIndex(3); });
    ExpectRepaint("format", [&] { View().SetLongCaptionFormat("d"); });
    ExpectRepaint("ruler", [&] { View().SetShowRuler(false); });
    ExpectRepaint("ruler width", [&] { View().SetRulerWidth(60); });
    ExpectRepaint("gap", [&] { View().SetDaysGapWidth(9); });
    ExpectRepaint("top space", [&] { View().SetShowTopSpace(false); });
    ExpectRepaint("caption", [&] { View().SetCaptionHeight(30); });
    ExpectRepaint("bottom space", [&] { View().SetBottomSpace(3); });
    ExpectRepaint("mark height", [&] { View().SetRulerMarkHeight(25); });
    ExpectRepaint("scale", [&] { View().SetRulerMarkMinutes(TKSTVRulerMarkMinutes::rmm15Minutes); });
    ExpectRepaint("selection", [&] { View().SetTimeSelection(Monday, Monday + 1); });
    ExpectRepaint("all-day selection", [&] { View().SetAllDaySelection(Monday, Monday); });
    View().SetReadOnly(true);
    View().SetCreateOnType(false);
    View().SetItemsSnap(3);
    View().SetHintsOptions({TKSTVHintsOption::hoSelection});
    EXPECT_FALSE(Repaints());
    View().GetItemsAboveMark()->SetSize(3, 3);
    EXPECT_TRUE(Repaints());
}

TEST_F(TTimeViewTest, FollowsItsImageListAndForgetsItWhenThatDies)
{
    Show();
    auto* const Images = vcl::New<vcl::TImageList>(nullptr);
    View().SetImages(Images);
    Settle();
    vcl::TBitmap Picture(16, 16);
    Images->Add(&Picture, nullptr);
    EXPECT_TRUE(Repaints());
    delete Images;
    EXPECT_EQ(View().GetImages(), nullptr);
    EXPECT_TRUE(Repaints());
    auto* const Outliving = vcl::New<vcl::TImageList>(nullptr);
    View().SetImages(Outliving);
    delete FView;
    Outliving->Add(&Picture, nullptr);
    delete Outliving;
}

TEST_F(TTimeViewTest, WindowStylesFollowBorderStyleAndCtl3D)
{
    Show();
    EXPECT_NE(Window().GetStyle().Style & vcl::WS_VSCROLL, 0u);
    EXPECT_EQ(Window().GetStyle().Style & vcl::WS_BORDER, 0u);
    EXPECT_EQ(Window().GetStyle().ExStyle & vcl::WS_EX_CLIENTEDGE, 0u);
    View().SetBorderStyle(vcl::TBorderStyle::bsSingle);
    EXPECT_EQ(Window().GetStyle().Style & vcl::WS_BORDER, 0u);
    EXPECT_NE(Window().GetStyle().ExStyle & vcl::WS_EX_CLIENTEDGE, 0u);
    View().SetCtl3D(false);
    EXPECT_NE(Window().GetStyle().Style & vcl::WS_BORDER, 0u);
    EXPECT_EQ(Window().GetStyle().ExStyle & vcl::WS_EX_CLIENTEDGE, 0u);
}

} // namespace
