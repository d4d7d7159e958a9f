#include "StandardFixture.h"

#include "vcl/controls/Button.h"
#include "vcl/controls/CheckBox.h"
#include "vcl/controls/Edit.h"

namespace vcl::tests
{

class TButtonTest : public TStandardTest
{
};

TEST_F(TButtonTest, AClickOnTheWindowIsAClickOfTheButton)
{
    TButton& Button = Add<TButton>();
    Button.OnClick = Noting("click");
    ShowForm();
    Click(Button);
    EXPECT_THAT(TakeNotes(), ElementsAre("click"));
    EXPECT_TRUE(Button.Focused());
}

TEST_F(TButtonTest, ReturnPressesTheDefaultButtonAndEscapeTheCancelButton)
{
    Add<TEdit>();
    TButton& Ok = Add<TButton>();
    TButton& Cancel = Add<TButton>();
    Ok.SetDefault(true);
    Ok.OnClick = Noting("ok");
    Cancel.SetCancel(true);
    Cancel.OnClick = Noting("cancel");
    ShowForm();
    Windows().KeyPress(VK_RETURN);
    Windows().KeyPress(VK_ESCAPE);
    EXPECT_THAT(TakeNotes(), ElementsAre("ok", "cancel"));
    Windows().KeyPress(VK_RETURN, MK_CONTROL);
    EXPECT_THAT(TakeNotes(), IsEmpty());
}

TEST_F(TButtonTest, ReturnPressesTheFocusedButtonRatherThanTheDefaultOne)
{
    TButton& Ok = Add<TButton>();
    TButton& Other = Add<TButton>();
    Ok.SetDefault(true);
    Ok.OnClick = Noting("ok");
    Other.OnClick = Noting("other");
    ShowForm();
    Other.SetFocus();
    Windows().KeyPress(VK_RETURN);
    EXPECT_THAT(TakeNotes(), ElementsAre("other"));
    EXPECT_TRUE(WindowOf(Other).GetButton()->IsDefault());
    EXPECT_FALSE(WindowOf(Ok).GetButton()->IsDefault());
}

TEST_F(TButtonTest, ADisabledDefaultButtonLeavesReturnToOthers)
{
    Add<TEdit>();
    TButton& Ok = Add<TButton>();
    Ok.SetDefault(true);
    Ok.SetEnabled(false);
    Ok.OnClick = Noting("ok");
    ShowForm();
    Windows().KeyPress(VK_RETURN);
    EXPECT_THAT(TakeNotes(), IsEmpty());
}

TEST_F(TButtonTest, AModalResultClosesAModalForm)
{
    TButton& Button = Add<TButton>();
    Button.SetModalResult(mrYes);
    Windows().OnWait.push_back([&] { Click(Button); });
    EXPECT_EQ(Form().ShowModal(), mrYes);
    EXPECT_FALSE(Form().GetVisible());
}

TEST_F(TButtonTest, AltWithTheAccessKeyClicksFromAnyControl)
{
    TEdit& Edit = Add<TEdit>();
    TButton& Button = Add<TButton>();
    Button.SetCaption("&Open");
    Button.OnClick = Noting("open");
    ShowForm();
    Edit.SetFocus();
    Windows().KeyPress('O', MK_ALT);
    EXPECT_THAT(TakeNotes(), ElementsAre("open"));
    EXPECT_EQ(Edit.GetText(), "");
}

TEST_F(TButtonTest, AnAccessKeyTypedIntoAnEditIsText)
{
    TEdit& Edit = Add<TEdit>();
    TButton& Button = Add<TButton>();
    Button.SetCaption("&Open");
    Button.OnClick = Noting("open");
    ShowForm();
    Edit.SetFocus();
    Windows().Type("o");
    EXPECT_THAT(TakeNotes(), IsEmpty());
    EXPECT_EQ(Edit.GetText(), "o");
    Button.SetFocus();
    Windows().Type("o");
    EXPECT_THAT(TakeNotes(), ElementsAre("open"));
}

TEST_F(TButtonTest, AHandlerMayFreeTheButtonOrItsForm)
{
    TButton& Button = Add<TButton>();
    Button.OnClick = [&](TObject*) { delete &Button; };
    ShowForm();
    Click(Button);
    EXPECT_EQ(Form().GetControlCount(), 0);
    TButton& Second = Add<TButton>();
    Second.SetDefault(true);
    Second.OnClick = [this](TObject*) { delete std::exchange(FForm, nullptr); };
    Second.SetFocus();
    Windows().KeyPress(VK_RETURN);
    EXPECT_EQ(FForm, nullptr);
}

class TCheckBoxTest : public TStandardTest
{
};

TEST_F(TCheckBoxTest, AClickTicksAndUnticks)
{
    TCheckBox& Box = Add<TCheckBox>();
    Box.OnClick = Noting("click");
    ShowForm();
    Click(Box);
    EXPECT_TRUE(Box.GetChecked());
    Click(Box);
    EXPECT_FALSE(Box.GetChecked());
    EXPECT_THAT(TakeNotes(), ElementsAre("click", "click"));
}

TEST_F(TCheckBoxTest, WithAllowGrayedTheUndecidedStateComesBetween)
{
    TCheckBox& Box = Add<TCheckBox>();
    Box.SetAllowGrayed(true);
    Box.SetCaption("&Late");
    ShowForm();
    Click(Box);
    EXPECT_EQ(Box.GetState(), TCheckBoxState::cbGrayed);
    EXPECT_FALSE(Box.GetChecked());
    Windows().KeyPress('L', MK_ALT);
    EXPECT_EQ(Box.GetState(), TCheckBoxState::cbChecked);
    Windows().KeyPress('L', MK_ALT);
    EXPECT_EQ(Box.GetState(), TCheckBoxState::cbUnchecked);
}

TEST_F(TCheckBoxTest, AChangeByProgramIsAClickToo)
{
    TCheckBox& Box = Add<TCheckBox>();
    Box.OnClick = Noting("click");
    Box.SetChecked(true);
    Box.SetChecked(true);
    EXPECT_THAT(TakeNotes(), ElementsAre("click"));
}

TEST_F(TCheckBoxTest, TheStateReachesTheWindowAndSurvivesANewOne)
{
    auto& Box = Add<TRemade<TCheckBox>>();
    Box.SetState(TCheckBoxState::cbGrayed);
    Box.SetCaption("Late");
    ShowForm();
    EXPECT_EQ(WindowOf(Box).GetButton()->GetCheckState(), TCheckState::Grayed);
    Click(Box);
    Box.RecreateWnd();
    EXPECT_EQ(WindowOf(Box).GetButton()->GetCheckState(), TCheckState::Checked);
    EXPECT_EQ(WindowOf(Box).GetText(), "Late");
}

TEST_F(TCheckBoxTest, TheAccessKeyGivesTheFocusAndTicks)
{
    Add<TEdit>();
    TCheckBox& Box = Add<TCheckBox>();
    Box.SetCaption("Sp\xC3\xA4t &\xC3\x84ndern");
    ShowForm();
    FForm->Perform(CM_DIALOGCHAR, U'\u00E4');
    EXPECT_TRUE(Box.Focused());
    EXPECT_TRUE(Box.GetChecked());
}

TEST_F(TCheckBoxTest, AHandlerMayFreeTheBox)
{
    TCheckBox& Box = Add<TCheckBox>();
    Box.SetCaption("&Late");
    Box.OnClick = [&](TObject*) { delete &Box; };
    ShowForm();
    Windows().KeyPress('L', MK_ALT);
    EXPECT_EQ(Form().GetControlCount(), 0);
}

TEST_F(TCheckBoxTest, TheBoxStandsOnTheOtherSideWithAlignment)
{
    TCheckBox& Box = Add<TCheckBox>();
    ShowForm();
    EXPECT_EQ(WindowOf(Box).GetStyle().ExStyle & WS_EX_RIGHT, 0u);
    Box.SetAlignment(TLeftRight::taLeftJustify);
    EXPECT_NE(WindowOf(Box).GetStyle().ExStyle & WS_EX_RIGHT, 0u);
}

} // namespace vcl::tests
