#include "KSTimeView/view/PaintingFixture.h"

using testing::ElementsAre;

namespace
{

// A cell of the text is 7 pixels wide and 12 high.
class TTimeViewHint : public TTimeViewPaintingTest
{
protected:
    TTimeViewHint()
    {
        Show();
        FHint = vcl::New<TKSTimeViewHintWindow>(FForm);
    }
    TLines HintPainting()
    {
        vcl::TRecordingPainter Recorder({0, 0, 1000, 1000});
        vcl::TCanvas Canvas(&Recorder);
        FHint->PaintTo(Canvas, 0, 0);
        return Recorder.GetLines();
    }
    /// Whether something was painted while Action ran.
    template <class TAction>
    bool Presents(TAction&& Action)
    {
        Windows().TakeLog();
        Action();
        for (const std::string& Line : Windows().TakeLog())
            if (Line.starts_with("present"))
                return true;
        return false;
    }

    TKSTimeViewHintWindow* FHint;
};

TEST_F(TTimeViewHint, IsSixPixelsWiderAndTwoHigherThanItsText)
{
    EXPECT_EQ(FHint->CalcHintRect(500, "09:00"), (vcl::TRect{0, 0, 35 + 6, 12 + 2}));
    EXPECT_EQ(FHint->CalcHintRect(500, "R&D"), (vcl::TRect{0, 0, 21 + 6, 12 + 2})) << "no prefixes";
    EXPECT_EQ(FHint->CalcHintRect(60, "09:00\n10:00 A"), (vcl::TRect{0, 0, 49 + 6, 2 * 12 + 2}));
    EXPECT_EQ(FHint->CalcHintRect(40, "09:00 - 10:00 Lunch").Height(), 4 * 12 + 2);
}

TEST_F(TTimeViewHint, ShowsItsTextTwoPixelsInsideInTheHintColour)
{
    FHint->ActivateHint({30, 40, 130, 60}, "R&D at 9");
    Settle();
    EXPECT_THAT(Matching(HintPainting(), "text"),
                ElementsAre("text 2,2 \"R&D at 9\" font=\"Arial\" -11 color=000000 back=none"));
}

TEST_F(TTimeViewHint, ReadsFromTheRightInARightToLeftProgram)
{
    FHint->SetBiDiMode(vcl::TBiDiMode::bdRightToLeft);
    FHint->ActivateHint({30, 40, 130, 60}, "09:00");
    Settle();
    EXPECT_THAT(Matching(HintPainting(), "text"),
                ElementsAre("text 65,2 \"09:00\" font=\"Arial\" -11 color=000000 back=none rtl"))
        << "moved two pixels out of the 98 between the borders";
}

TEST_F(TTimeViewHint, IsFourPixelsTallerThanItsPlaceEachTime)
{
    FHint->ActivateHint({30, 40, 130, 60}, "09:00");
    EXPECT_EQ(FHint->GetBoundsRect(), (vcl::TRect{30, 40, 130, 64}));
    FHint->ActivateHint({35, 45, 135, 65}, "09:00");
    EXPECT_EQ(FHint->GetBoundsRect(), (vcl::TRect{35, 45, 135, 69}));
}

TEST_F(TTimeViewHint, IsPaintedAtOnceForAnotherTextAndNotForTheSame)
{
    const vcl::TRect Place{30, 40, 130, 60};
    FHint->ActivateHint(Place, "09:00");
    Settle();
    EXPECT_FALSE(Presents([&] { FHint->ActivateHint(Place, "09:00"); }));
    EXPECT_FALSE(Presents([&] { Windows().ProcessMessages(); }));
    EXPECT_TRUE(Presents([&] { FHint->ActivateHint(Place, "09:30"); }));
    EXPECT_EQ(FHint->GetCaption(), "09:30");
}

TEST_F(TTimeViewHint, LeavesFocusAndActivityWhereTheyAre)
{
    View().SetFocus();
    const vcl::record::TWindow* const Active = Windows().GetActive();
    const vcl::record::TWindow* const Focused = Windows().GetFocused();
    FHint->ActivateHint({30, 40, 130, 60}, "09:00");
    Settle();
    EXPECT_TRUE(FHint->IsHintShowing());
    EXPECT_EQ(Windows().GetActive(), Active);
    EXPECT_EQ(Windows().GetFocused(), Focused);
    EXPECT_EQ(Focused, &Window());
}

} // namespace
