#include "StandardFixture.h"

#include "vcl/controls/Button.h"
#include "vcl/controls/Edit.h"
#include "vcl/controls/SpinEdit.h"

namespace vcl::tests
{

class TEditTest : public TStandardTest
{
};

TEST_F(TEditTest, TypedTextIsTheTextAndTellsOfEachChange)
{
    TEdit& Edit = Add<TEdit>();
    Edit.OnChange = Noting("change");
    ShowForm();
    Edit.SetFocus();
    Windows().Type("ab");
    EXPECT_EQ(Edit.GetText(), "ab");
    EXPECT_TRUE(Edit.GetModified());
    EXPECT_THAT(TakeNotes(), ElementsAre("change", "change"));
    Edit.SetText("set");
    EXPECT_FALSE(Edit.GetModified());
    EXPECT_EQ(WindowOf(Edit).GetText(), "set");
    EXPECT_THAT(TakeNotes(), ElementsAre("change"));
}

TEST_F(TEditTest, AHandlerMayReplaceTheTextThatWasTyped)
{
    TEdit& Edit = Add<TEdit>();
    Edit.OnChange = [&](TObject*) { Edit.SetText("fixed"); };
    ShowForm();
    Edit.SetFocus();
    Windows().Type("x");
    EXPECT_EQ(Edit.GetText(), "fixed");
    EXPECT_EQ(WindowOf(Edit).GetText(), "fixed");
}

TEST_F(TEditTest, AHandlerMayFreeTheEditWhileTextIsTyped)
{
    TEdit& Edit = Add<TEdit>();
    Edit.OnChange = [&](TObject*) { delete &Edit; };
    ShowForm();
    Edit.SetFocus();
    Windows().Type("xy");
    EXPECT_EQ(Form().GetControlCount(), 0);
    TEdit& Second = Add<TEdit>();
    Second.OnChange = [&](TObject*) { delete &Second; };
    Second.SetText("by program");
    EXPECT_EQ(Form().GetControlCount(), 0);
}

TEST_F(TEditTest, TheStateReachesTheWindowAndSurvivesANewOne)
{
    auto& Edit = Add<TRemade<TEdit>>();
    Edit.SetText("some text");
    Edit.SetMaxLength(12);
    Edit.SetPasswordChar('*');
    Edit.SetReadOnly(true);
    ShowForm();
    Edit.SetFocus();
    Edit.SetSelStart(5);
    Edit.SetSelLength(3);
    Edit.SetModified(true);
    Edit.RecreateWnd();
    record::TEdit& Peer = *WindowOf(Edit).GetEdit();
    EXPECT_EQ(WindowOf(Edit).GetText(), "some text");
    EXPECT_EQ(Peer.GetMaxLength(), 12);
    EXPECT_EQ(Peer.GetPasswordChar(), U'*');
    EXPECT_TRUE(Peer.IsReadOnly());
    EXPECT_TRUE(Peer.IsModified());
    EXPECT_EQ(Edit.GetSelStart(), 5);
    EXPECT_EQ(Edit.GetSelText(), "tex");
    EXPECT_TRUE(Edit.Focused());
}

TEST_F(TEditTest, SelectionsCountCodePoints)
{
    TEdit& Edit = Add<TEdit>();
    Edit.SetText("\xC3\xA4\xC3\xB6\xC3\xBC!");
    ShowForm();
    Edit.SetSelStart(1);
    Edit.SetSelLength(2);
    EXPECT_EQ(Edit.GetSelText(), "\xC3\xB6\xC3\xBC");
    Edit.SetSelText("o");
    EXPECT_EQ(Edit.GetText(), "\xC3\xA4o!");
    EXPECT_TRUE(Edit.GetModified());
    Edit.SelectAll();
    EXPECT_EQ(Edit.GetSelLength(), 3);
    Edit.ClearSelection();
    EXPECT_EQ(Edit.GetText(), "");
}

TEST_F(TEditTest, GainingTheFocusByKeyboardSelectsAllAndAPressPlacesTheCaret)
{
    TButton& Button = Add<TButton>();
    TEdit& Edit = Add<TEdit>();
    Edit.SetText("text");
    ShowForm();
    Button.SetFocus();
    Windows().KeyPress(VK_TAB);
    EXPECT_EQ(Edit.GetSelLength(), 4);
    Button.SetFocus();
    Windows().MouseClick(WindowOf(Edit), {1, 5});
    EXPECT_EQ(Edit.GetSelLength(), 0);
    EXPECT_EQ(Edit.GetSelStart(), 0);
}

TEST_F(TEditTest, ArrowsMoveTheCaretAndNotTheFocus)
{
    TEdit& Edit = Add<TEdit>();
    Add<TEdit>();
    Edit.SetText("text");
    ShowForm();
    Edit.SetFocus();
    Edit.SetSelStart(2);
    Windows().KeyPress(VK_RIGHT);
    EXPECT_TRUE(Edit.Focused());
    EXPECT_EQ(Edit.GetSelStart(), 3);
}

TEST_F(TEditTest, CharCaseChangesWhatIsTypedAndWhatIsSet)
{
    TEdit& Edit = Add<TEdit>();
    Edit.SetCharCase(TEditCharCase::ecUpperCase);
    Edit.SetText("gr\xC3\xB6\xC3\x9F"
                 "er");
    EXPECT_EQ(Edit.GetText(), "GR\xC3\x96\xC3\x9F"
                              "ER");
    ShowForm();
    Edit.SetFocus();
    Edit.SetSelStart(1);
    Windows().Type("\xD0\xB6");
    EXPECT_EQ(Edit.GetText(), "G\xD0\x96R\xC3\x96\xC3\x9F"
                              "ER");
    EXPECT_EQ(WindowOf(Edit).GetText(), Edit.GetText());
    EXPECT_EQ(Edit.GetSelStart(), 2);
    Edit.SetCharCase(TEditCharCase::ecLowerCase);
    EXPECT_EQ(Edit.GetText(), "g\xD0\xB6r\xC3\xB6\xC3\x9F"
                              "er");
}

TEST_F(TEditTest, TheBorderIsPartOfTheWindowsStyle)
{
    TEdit& Edit = Add<TEdit>();
    ShowForm();
    EXPECT_NE(WindowOf(Edit).GetStyle().ExStyle & WS_EX_CLIENTEDGE, 0u);
    Edit.SetCtl3D(false);
    EXPECT_EQ(WindowOf(Edit).GetStyle().ExStyle & WS_EX_CLIENTEDGE, 0u);
    EXPECT_NE(WindowOf(Edit).GetStyle().Style & WS_BORDER, 0u);
    Edit.SetBorderStyle(TBorderStyle::bsNone);
    EXPECT_EQ(WindowOf(Edit).GetStyle().Style & WS_BORDER, 0u);
    Edit.SetHideSelection(false);
    EXPECT_NE(WindowOf(Edit).GetStyle().Style & ES_NOHIDESEL, 0u);
}

class TSpinEditTest : public TStandardTest
{
};

TEST_F(TSpinEditTest, TheButtonsStepWithinTheRange)
{
    TSpinEdit& Spin = Add<TSpinEdit>();
    Spin.SetMaxValue(10);
    Spin.SetMinValue(1);
    Spin.SetIncrement(4);
    Spin.SetValue(3);
    Spin.OnChange = Noting("change");
    ShowForm();
    Spin.SetFocus();
    Windows().KeyPress(VK_UP);
    EXPECT_EQ(Spin.GetValue(), 7);
    EXPECT_EQ(Spin.GetText(), "7");
    EXPECT_TRUE(Spin.GetModified());
    Windows().KeyPress(VK_UP);
    Windows().KeyPress(VK_UP);
    EXPECT_EQ(Spin.GetValue(), 10);
    EXPECT_THAT(TakeNotes(), ElementsAre("change", "change"));
}

TEST_F(TSpinEditTest, ValuesOutsideTheRangeAreClamped)
{
    TSpinEdit& Spin = Add<TSpinEdit>();
    Spin.SetValue(50);
    Spin.SetMaxValue(20);
    EXPECT_EQ(Spin.GetValue(), 20);
    Spin.SetValue(-3);
    EXPECT_EQ(Spin.GetValue(), 0);
    Spin.SetMaxValue(0);
    Spin.SetValue(-3);
    EXPECT_EQ(Spin.GetValue(), -3) << "equal limits allow any number";
    Spin.SetMinValue(5);
    Spin.SetMaxValue(5);
    ShowForm();
    Spin.SetValue(1000);
    EXPECT_EQ(Spin.GetValue(), 1000);
    EXPECT_EQ(WindowOf(Spin).GetSpin()->GetValue(), 1000);
}

TEST_F(TSpinEditTest, ATextSetByProgramIsTheValue)
{
    TSpinEdit& Spin = Add<TSpinEdit>();
    ShowForm();
    Spin.SetText("42");
    EXPECT_EQ(Spin.GetValue(), 42);
    EXPECT_EQ(WindowOf(Spin).GetSpin()->GetValue(), 42);
    Spin.SetText("none");
    EXPECT_EQ(Spin.GetValue(), 0);
    EXPECT_EQ(Spin.GetText(), "0");
}

TEST_F(TSpinEditTest, TheStateSurvivesANewWindow)
{
    auto& Spin = Add<TRemade<TSpinEdit>>();
    Spin.SetMaxValue(100);
    Spin.SetValue(30);
    Spin.SetIncrement(7);
    Spin.SetEditorEnabled(false);
    ShowForm();
    Spin.RecreateWnd();
    EXPECT_EQ(WindowOf(Spin).GetText(), "30");
    EXPECT_TRUE(WindowOf(Spin).GetEdit()->IsReadOnly());
    Spin.SetFocus();
    Windows().KeyPress(VK_DOWN);
    EXPECT_EQ(Spin.GetValue(), 23);
}

TEST_F(TSpinEditTest, AHandlerMayFreeTheEdit)
{
    TSpinEdit& Spin = Add<TSpinEdit>();
    Spin.OnChange = [&](TObject*) { delete &Spin; };
    ShowForm();
    Spin.SetFocus();
    Windows().KeyPress(VK_UP);
    EXPECT_EQ(Form().GetControlCount(), 0);
}

} // namespace vcl::tests
