#include <memory>

#include "KSTimeView/view/DrivenView.h"
#include "vcl/graphics/Resources.h"
#include "vcl/platform/WindowStyles.h"

using testing::ElementsAre;
using testing::IsEmpty;

namespace
{

class TSetters : public TDrivenViewTest
{
protected:
    template <class TAction>
    void ExpectInvalidations(int Count, const std::string& What, TAction&& Action)
    {
        FDriven->Invalidations = 0;
        Action();
        EXPECT_EQ(FDriven->Invalidations, Count) << What;
    }
};

TEST_F(TSetters, AColourIsStoredAndRepaintsOnceWhenItIsAnotherOne)
{
    using T = TKSTimeView;
    struct TRow {
        const char* Name;
        vcl::TColor (T::*Get)() const;
        void (T::*Set)(vcl::TColor);
    };
    const TRow Rows[] = {
        {"DaysGapColor", &T::GetDaysGapColor, &T::SetDaysGapColor},
        {"DaysGapCoverColor", &T::GetDaysGapCoverColor, &T::SetDaysGapCoverColor},
        {"TimeLinesColor", &T::GetTimeLinesColor, &T::SetTimeLinesColor},
        {"RulerColor", &T::GetRulerColor, &T::SetRulerColor},
        {"RulerMarksColor", &T::GetRulerMarksColor, &T::SetRulerMarksColor},
        {"ItemSelectionColor", &T::GetItemSelectionColor, &T::SetItemSelectionColor},
        {"TimeSelectionColor", &T::GetTimeSelectionColor, &T::SetTimeSelectionColor},
        {"AllDaySelectionColor", &T::GetAllDaySelectionColor, &T::SetAllDaySelectionColor},
        {"WorkingHoursColor", &T::GetWorkingHoursColor, &T::SetWorkingHoursColor},
        {"TopSpaceColor", &T::GetTopSpaceColor, &T::SetTopSpaceColor},
        {"AllDayItemSelectionColor", &T::GetAllDayItemSelectionColor, &T::SetAllDayItemSelectionColor},
        {"BottomSpaceColor", &T::GetBottomSpaceColor, &T::SetBottomSpaceColor},
    };
    Show();
    int Value = 0x101010;
    for (const TRow& Row : Rows) {
        const auto Color = vcl::TColor(++Value);
        ExpectInvalidations(1, Row.Name, [&] { (View().*Row.Set)(Color); });
        ExpectInvalidations(0, Row.Name, [&] { (View().*Row.Set)(Color); });
    }
    Value = 0x101010;
    for (const TRow& Row : Rows)
        EXPECT_EQ((View().*Row.Get)(), vcl::TColor(++Value)) << Row.Name;
}

TEST_F(TSetters, WhatOnlyInputReadsIsStoredWithoutRepainting)
{
    Show();
    ExpectInvalidations(0, "what is only stored", [&] {
        View().SetReadOnly(true);
        View().SetCreateOnType(false);
        View().SetCustomEditing(true);
        View().SetSmoothScroll(false);
        View().SetHintsOptions({TKSTVHintsOption::hoSelection, TKSTVHintsOption::hoItemEndDrag});
        View().SetDragOptions({TKSTVDragOption::doItem});
        View().SetSelectResolution(7);
        View().SetItemDragResolution(8);
        View().SetItemsSnap(9);
        View().SetMinItemLength(10);
        View().SetMinWorkingHours(11);
    });
    EXPECT_TRUE(View().GetReadOnly());
    EXPECT_FALSE(View().GetCreateOnType());
    EXPECT_TRUE(View().GetCustomEditing());
    EXPECT_FALSE(View().GetSmoothScroll());
    EXPECT_EQ(View().GetHintsOptions(),
              (TKSTVHintsOptions{TKSTVHintsOption::hoSelection, TKSTVHintsOption::hoItemEndDrag}));
    EXPECT_EQ(View().GetDragOptions(), TKSTVDragOptions{TKSTVDragOption::doItem});
    EXPECT_EQ(View().GetSelectResolution(), 7);
    EXPECT_EQ(View().GetItemDragResolution(), 8);
    EXPECT_EQ(View().GetItemsSnap(), 9);
    EXPECT_EQ(View().GetMinItemLength(), 10);
    EXPECT_EQ(View().GetMinWorkingHours(), 11);
    EXPECT_FALSE(Repaints());
}

TEST_F(TSetters, LimitsOfMinutesAreInclusive)
{
    View().SetSelectResolution(1);
    EXPECT_EQ(View().GetSelectResolution(), 1);
    View().SetSelectResolution(5000);
    EXPECT_EQ(View().GetSelectResolution(), 5000) << "no upper limit";
    View().SetItemDragResolution(60);
    EXPECT_EQ(View().GetItemDragResolution(), 60);
    View().SetItemDragResolution(61);
    EXPECT_EQ(View().GetItemDragResolution(), 60);
    View().SetItemsSnap(0);
    EXPECT_EQ(View().GetItemsSnap(), 1);
    View().SetMinItemLength(5);
    EXPECT_EQ(View().GetMinItemLength(), 5);
    View().SetMinItemLength(4);
    EXPECT_EQ(View().GetMinItemLength(), 5);
    View().SetMinWorkingHours(6);
    EXPECT_EQ(View().GetMinWorkingHours(), 6);
}

TEST_F(TSetters, AtFirstNothingIsSelected)
{
    const auto New = std::make_unique<TKSTimeView>(nullptr);
    EXPECT_EQ(New->GetAllDaySelectionStart(), -1.0);
    EXPECT_EQ(New->GetAllDaySelectionEnd(), -1.0);
    EXPECT_EQ(New->GetSelectedStart(), -1.0);
    EXPECT_EQ(New->GetSelectedEnd(), -1.0);
    EXPECT_EQ(New->GetSelectedItem(), nullptr);
    EXPECT_EQ(New->GetEditedItem(), nullptr);
}

TEST_F(TSetters, TheTwoMarksComeFromTheirOwnResources)
{
    vcl::TBitmap Above;
    vcl::TBitmap Below;
    Above.LoadFromResourceName("ITEMS_ABOVE_BITMAP");
    Below.LoadFromResourceName("ITEMS_BELOW_BITMAP");
    const auto AreAlike = [](vcl::TBitmap& Left, vcl::TBitmap& Right) {
        if (Left.GetWidth() != Right.GetWidth() || Left.GetHeight() != Right.GetHeight())
            return false;
        for (int Y = 0; Y < Left.GetHeight(); ++Y)
            for (int X = 0; X < Left.GetWidth(); ++X)
                if (Left.GetCanvas()->GetPixel(X, Y) != Right.GetCanvas()->GetPixel(X, Y))
                    return false;
        return true;
    };
    ASSERT_FALSE(Above.GetEmpty());
    EXPECT_FALSE(AreAlike(Above, Below));
    EXPECT_TRUE(AreAlike(*View().GetItemsAboveMark(), Above));
    EXPECT_TRUE(AreAlike(*View().GetItemsBelowMark(), Below));
}

TEST_F(TSetters, WorkingHoursRepaintOnlyTheirDay)
{
    View().SetDaysCount(3);
    View().SetShowTimeLines(false);
    Show(350, 400);
    const auto Painted = [&](auto&& Change) {
        Settle();
        View().GetCanvas()->GetBrush()->SetColor(vcl::clRed);
        View().GetCanvas()->FillRect({0, 0, 350, 400}); // stays where nothing is painted over it
        FDriven->Invalidations = 0;
        Change();
        Settle();
        EXPECT_EQ(FDriven->Invalidations, 0);
        std::vector<bool> Result;
        for (const int X : {20, 100, 200, 300})
            Result.push_back(View().GetCanvas()->GetPixel(X, 50) != vcl::clRed);
        return Result;
    };
    EXPECT_THAT(Painted([&] { Day(1).SetShowWorkingHours(true); }), ElementsAre(false, false, true, false));
    EXPECT_THAT(Painted([&] { Day(2).SetBeginWork(0.25); }), ElementsAre(false, false, false, true));
    EXPECT_THAT(Painted([&] { Day(0).SetEndWork(0.75); }), ElementsAre(false, true, false, false));
    EXPECT_THAT(Painted([&] { Day(0).SetEndWork(0.125); }), ElementsAre(false, false, false, false));
}

/// The platform as it was before windows had client edges.
class TPlainPlatform final : public vcl::IPlatform
{
public:
    explicit TPlainPlatform(vcl::IPlatform& Platform) : FPlatform(Platform) {}
    vcl::ITextEngine& Text() override { return FPlatform.Text(); }
    vcl::ISystem& System() override { return FSystem; }
    vcl::IImageCodec& Images() override { return FPlatform.Images(); }
    vcl::IWindowSystem& Windows() override { return FPlatform.Windows(); }

private:
    class TSystem final : public vcl::TClassicSystem
    {
    public:
        bool NewStyleControls() override { return false; }
    };
    vcl::IPlatform& FPlatform;
    TSystem FSystem;
};

TEST_F(TSetters, WithoutNewStyleControlsTheBorderIsPlain)
{
    Show();
    TPlainPlatform Plain(FPlatform);
    vcl::SetPlatform(&Plain);
    View().SetBorderStyle(vcl::TBorderStyle::bsSingle);
    Settle();
    EXPECT_TRUE(View().GetCtl3D());
    EXPECT_NE(Window().GetStyle().Style & vcl::WS_BORDER, 0u);
    EXPECT_EQ(Window().GetStyle().ExStyle & vcl::WS_EX_CLIENTEDGE, 0u);
    EXPECT_NE(Window().GetStyle().Style & vcl::WS_VSCROLL, 0u);
    vcl::SetPlatform(&FPlatform);
}

} // namespace
