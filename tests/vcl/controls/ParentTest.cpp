#include "ControlFixture.h"

namespace vcl::tests
{

TEST_F(TControlTest, AChildFollowsItsParentsColourFontHintAndDirection)
{
    TProbe& Probe = AddProbe();
    Form().SetColor(clRed);
    Form().GetFont()->SetHeight(-20);
    Form().SetShowHint(true);
    Form().SetBiDiMode(TBiDiMode::bdRightToLeft);
    Form().SetCtl3D(false);
    EXPECT_EQ(Probe.GetColor(), clRed);
    EXPECT_EQ(Probe.GetBrush()->GetColor(), clRed);
    EXPECT_EQ(Probe.GetFont()->GetHeight(), -20);
    EXPECT_TRUE(Probe.GetShowHint());
    EXPECT_EQ(Probe.GetBiDiMode(), TBiDiMode::bdRightToLeft);
    EXPECT_FALSE(Probe.GetCtl3D());
    EXPECT_TRUE(Probe.GetParentColor() && Probe.GetParentFont() && Probe.GetParentShowHint() &&
                Probe.GetParentBiDiMode() && Probe.GetParentCtl3D());
}

TEST_F(TControlTest, AValueOfItsOwnEndsFollowing)
{
    TProbe& Probe = AddProbe();
    Probe.SetColor(clBlue);
    Probe.GetFont()->SetHeight(-33);
    EXPECT_FALSE(Probe.GetParentColor());
    EXPECT_FALSE(Probe.GetParentFont());
    Form().SetColor(clRed);
    Form().GetFont()->SetHeight(-20);
    EXPECT_EQ(Probe.GetColor(), clBlue);
    EXPECT_EQ(Probe.GetFont()->GetHeight(), -33);
    Probe.SetParentColor(true);
    Probe.SetParentFont(true);
    EXPECT_EQ(Probe.GetColor(), clRed);
    EXPECT_EQ(Probe.GetFont()->GetHeight(), -20);
}

TEST_F(TControlTest, ANewParentGivesItsValuesAtOnce)
{
    Form().SetColor(clGreen);
    TProbe& Outer = AddProbe();
    TProbe* const Inner = New<TProbe>(&Form());
    EXPECT_EQ(Inner->GetColor(), clWindow);
    Inner->SetParent(&Outer);
    EXPECT_EQ(Inner->GetColor(), clGreen);
    Form().SetColor(clNavy);
    EXPECT_EQ(Inner->GetColor(), clNavy) << "through the one between";
}

TEST_F(TControlTest, ValuesAreStoredOnlyWhenTheyAreTheControlsOwn)
{
    TProbe& Probe = AddProbe();
    EXPECT_FALSE(Probe.IsColorStored() || Probe.IsFontStored() || Probe.IsShowHintStored() ||
                 Probe.IsBiDiModeStored() || Probe.IsCtl3DStored());
    Probe.SetColor(clBlue);
    Probe.GetFont()->SetColor(clRed);
    Probe.SetShowHint(true);
    Probe.SetBiDiMode(TBiDiMode::bdRightToLeft);
    Probe.SetCtl3D(false);
    EXPECT_TRUE(Probe.IsColorStored() && Probe.IsFontStored() && Probe.IsShowHintStored() &&
                Probe.IsBiDiModeStored() && Probe.IsCtl3DStored());
}

TEST_F(TControlTest, ReadingDirectionPutsTheBarOnTheLeftAndTurnsTextFlags)
{
    constexpr unsigned Right = 2;
    constexpr unsigned Center = 1;
    constexpr unsigned Reading = 0x20000;
    TProbe& Probe = AddProbe();
    Probe.SetBars(false, true);
    ShowForm();
    EXPECT_EQ(Probe.DrawTextBiDiModeFlags(0), 0u);
    Probe.SetBiDiMode(TBiDiMode::bdRightToLeft);
    EXPECT_NE(WindowOf(Probe).GetStyle().ExStyle & WS_EX_LEFTSCROLLBAR, 0u);
    EXPECT_EQ(Probe.DrawTextBiDiModeFlags(0), Right | Reading);
    EXPECT_EQ(Probe.DrawTextBiDiModeFlags(Right), Reading);
    EXPECT_EQ(Probe.DrawTextBiDiModeFlags(Center), Center | Reading);
    Probe.SetBiDiMode(TBiDiMode::bdRightToLeftReadingOnly);
    EXPECT_EQ(Probe.DrawTextBiDiModeFlags(0), Reading);
    EXPECT_FALSE(Probe.UseRightToLeftScrollBar());
}

TEST_F(TControlTest, TheNameIsTheCaptionUntilThereIsAnother)
{
    TProbe& Probe = AddProbe();
    Probe.SetName("Probe1");
    EXPECT_EQ(Probe.GetCaption(), "Probe1");
    Probe.SetName("Probe2");
    EXPECT_EQ(Probe.GetCaption(), "Probe2");
    Probe.SetCaption("Mine");
    Probe.SetName("Probe3");
    EXPECT_EQ(Probe.GetCaption(), "Mine");
}

TEST_F(TControlTest, APopupMenuThatGoesIsForgotten)
{
    TProbe& Probe = AddProbe();
    TPopupMenu* const Menu = New<TPopupMenu>(nullptr);
    Probe.SetPopupMenu(Menu);
    delete Menu;
    EXPECT_EQ(Probe.GetPopupMenu(), nullptr);
}

TEST_F(TControlTest, TheContextMenuOpensAtThePointerOrInTheControl)
{
    TProbe& Probe = AddProbe();
    TPopupMenu* const Menu = New<TPopupMenu>(&Form());
    Form().SetPopupMenu(Menu);
    ShowForm();
    Windows().MouseClick(WindowOf(Probe), {5, 5}, MK_RBUTTON);
    const TPoint At = Probe.ClientToScreen({5, 5});
    EXPECT_THAT(Windows().TakeLog(),
                ElementsAre("popup " + std::to_string(At.X) + "," + std::to_string(At.Y)))
        << "the nearest ancestor with a menu opens it";
    EXPECT_EQ(Menu->GetPopupComponent(), &Form());
}

} // namespace vcl::tests
