#include "ControlFixture.h"

#include "vcl/classes/Stream.h"
#include "vcl/forms/LoadForm.h"
#include "vcl/forms/Screen.h"
#include "vcl/streaming/FormFile.h"

namespace vcl::tests
{

namespace
{

void LoadText(TCustomForm& Form, const std::string& Text)
{
    TMemoryStream Stream;
    Stream.WriteBuffer(Text.data(), static_cast<std::int64_t>(Text.size()));
    Stream.SetPosition(0);
    RegisterClass(TProbe::StaticClass());
    LoadForm(Form, Stream);
}

} // namespace

TEST_F(TControlTest, TheClientSizeIsKeptWhateverTheFrame)
{
    EXPECT_EQ(Form().GetClientRect(), (TRect{0, 0, 400, 300})) << "before there is a window";
    ShowForm();
    EXPECT_EQ(Form().GetClientRect(), (TRect{0, 0, 400, 300}));
    EXPECT_EQ(Form().GetWidth(), 408);
    EXPECT_EQ(Form().GetHeight(), 327);
    Form().SetBorderStyle(TFormBorderStyle::bsNone);
    EXPECT_EQ(Form().GetClientRect(), (TRect{0, 0, 408, 327})) << "the bounds stay, the frame goes";
}

TEST_F(TControlTest, ShowTellsOnShowThenOnActivate)
{
    std::vector<std::string> Order;
    Form().OnShow = [&](TObject*) { Order.push_back("show"); };
    Form().OnActivate = [&](TObject*) { Order.push_back("activate"); };
    Form().OnHide = [&](TObject*) { Order.push_back("hide"); };
    Form().OnDeactivate = [&](TObject*) { Order.push_back("deactivate"); };
    Form().Show();
    EXPECT_EQ(Screen().GetActiveForm(), &Form());
    Form().Hide();
    EXPECT_THAT(Order, ElementsAre("show", "activate", "hide", "deactivate"));
    EXPECT_EQ(Screen().GetActiveForm(), nullptr);
}

TEST_F(TControlTest, ClosingAsksFirstAndHides)
{
    ShowForm();
    bool CanClose = false;
    Form().OnCloseQuery = [&](TObject*, bool& Allowed) { Allowed = CanClose; };
    WindowOf(Form()).UserClose();
    EXPECT_TRUE(Form().GetVisible());
    CanClose = true;
    WindowOf(Form()).UserClose();
    EXPECT_FALSE(Form().GetVisible());
}

TEST_F(TControlTest, AFormMayFreeItselfOnClose)
{
    TForm* const Other = New<TForm>(nullptr);
    const TWeak<TForm> Reference = Other;
    Other->OnClose = [](TObject*, TCloseAction& Action) { Action = TCloseAction::caFree; };
    Other->Show();
    Other->Close();
    EXPECT_NE(Reference.Get(), nullptr) << "not while it is under way";
    Windows().ProcessMessages();
    EXPECT_EQ(Reference.Get(), nullptr);
}

TEST_F(TControlTest, AModalFormBlocksOthersAndReturnsWhatClosedIt)
{
    TProbe& Probe = AddProbe();
    ShowForm();
    Probe.TakeNotes();
    TForm Dialog(nullptr);
    Windows().OnWait = {[&] {
                            Windows().MouseClick(WindowOf(Probe), {5, 5});
                        },
                        [&] { Dialog.SetModalResult(mrYes); }};
    EXPECT_EQ(Dialog.ShowModal(), mrYes);
    EXPECT_THAT(Probe.TakeNotes(), IsEmpty());
    EXPECT_FALSE(Dialog.GetVisible());
    EXPECT_EQ(Screen().GetActiveForm(), &Form());
    Windows().MouseClick(WindowOf(Probe), {5, 5});
    EXPECT_THAT(Probe.TakeNotes(), testing::Contains("Click"));
}

TEST_F(TControlTest, ClosingAModalFormIsCancelAndMayBeRefused)
{
    TForm Dialog(nullptr);
    int Asked = 0;
    Dialog.OnCloseQuery = [&](TObject*, bool& Allowed) { Allowed = ++Asked > 1; };
    Windows().OnWait = {[&] { WindowOf(Dialog).UserClose(); }, [&] { WindowOf(Dialog).UserClose(); }};
    EXPECT_EQ(Dialog.ShowModal(), mrCancel);
    EXPECT_EQ(Asked, 2);
}

TEST_F(TControlTest, ClosingTheMainFormEndsTheProgram)
{
    Application().SetMainForm(&Form());
    Windows().OnWait = {[&] { WindowOf(Form()).UserClose(); }};
    Application().Run();
    EXPECT_TRUE(Application().GetTerminated());
    EXPECT_THAT(Windows().TakeLog(), testing::Not(testing::Contains("loop ended: nothing to wait for")));
}

TEST_F(TControlTest, AFormFileGivesSizeChildrenTabOrderAndActiveControl)
{
    LoadText(Form(), "object MyForm: TForm\n"
                     "  Left = 20\n"
                     "  Top = 30\n"
                     "  ActiveControl = Second\n"
                     "  Caption = 'From a file'\n"
                     "  ClientHeight = 200\n"
                     "  ClientWidth = 500\n"
                     "  Color = clNavy\n"
                     "  OldCreateOrder = False\n"
                     "  PixelsPerInch = 96\n"
                     "  TextHeight = 13\n"
                     "  object First: TProbe\n"
                     "    Left = 400\n"
                     "    Top = 8\n"
                     "    Width = 90\n"
                     "    Height = 20\n"
                     "    Anchors = [akTop, akRight]\n"
                     "    TabOrder = 1\n"
                     "  end\n"
                     "  object Second: TProbe\n"
                     "    Left = 0\n"
                     "    Top = 180\n"
                     "    Width = 500\n"
                     "    Height = 20\n"
                     "    Align = alBottom\n"
                     "    TabOrder = 0\n"
                     "  end\n"
                     "end\n");
    TControl* const First = Form().FindChildControl("First");
    TWinControl* const Second = As<TWinControl>(Form().FindChildControl("Second"));
    ASSERT_NE(First, nullptr);
    ASSERT_NE(Second, nullptr);
    EXPECT_EQ(Second->GetTabOrder(), 0);
    EXPECT_EQ(First->GetColor(), clNavy) << "the parent's, since it has none of its own";
    ShowForm();
    EXPECT_EQ(Form().GetClientRect(), (TRect{0, 0, 500, 200}));
    EXPECT_EQ(WindowOf(Form()).GetText(), "From a file");
    EXPECT_TRUE(Second->Focused());
    EXPECT_EQ(First->GetBoundsRect(), Bounds(400, 8, 90, 20));
    EXPECT_EQ(Second->GetBoundsRect(), Bounds(0, 180, 500, 20));
    Form().SetClientSize({600, 240});
    EXPECT_EQ(First->GetLeft(), 500);
    EXPECT_EQ(Second->GetBoundsRect(), Bounds(0, 220, 600, 20));
}

TEST_F(TControlTest, AFormDesignedAtAnotherResolutionIsScaled)
{
    LoadText(Form(), "object MyForm: TForm\n"
                     "  Left = 0\n"
                     "  Top = 0\n"
                     "  ClientHeight = 200\n"
                     "  ClientWidth = 400\n"
                     "  OldCreateOrder = False\n"
                     "  PixelsPerInch = 120\n"
                     "  object First: TProbe\n"
                     "    Left = 100\n"
                     "    Top = 10\n"
                     "    Width = 50\n"
                     "    Height = 25\n"
                     "  end\n"
                     "end\n");
    EXPECT_EQ(Form().GetClientRect(), (TRect{0, 0, 320, 160}));
    EXPECT_EQ(Form().GetControl(0)->GetBoundsRect(), Bounds(80, 8, 40, 20));
    EXPECT_EQ(Form().GetPixelsPerInch(), 96);
}

TEST_F(TControlTest, AVisibleFormShowsWhenItIsLoaded)
{
    LoadText(Form(),
             "object MyForm: TForm\n  Left = 0\n  Top = 0\n  ClientHeight = 100\n  ClientWidth = 100\n"
             "  OldCreateOrder = False\n  Visible = True\n  object First: TProbe\n    Left = 0\n    Top = 0\n"
             "    Width = 10\n    Height = 10\n  end\nend\n");
    EXPECT_TRUE(Form().GetShowing());
    EXPECT_TRUE(As<TWinControl>(Form().GetControl(0))->GetShowing());
}

TEST_F(TControlTest, CentredFormsStandInTheMiddleOfTheScreen)
{
    Form().SetPosition(TPosition::poScreenCenter);
    Form().SetBounds(0, 0, 424, 340);
    ShowForm();
    EXPECT_EQ(Form().GetLeft(), 300);
    EXPECT_EQ(Form().GetTop(), 200);
}

TEST_F(TControlTest, TheScreensCursorOverridesTheControls)
{
    TProbe& Probe = AddProbe();
    Probe.SetCursor(crHandPoint);
    ShowForm();
    Windows().MouseMove(WindowOf(Probe), {5, 5});
    Screen().SetCursor(crHourGlass);
    EXPECT_EQ(WindowOf(Probe).GetCursor(), crHourGlass);
    Screen().SetCursor(crDefault);
    EXPECT_EQ(WindowOf(Probe).GetCursor(), crHandPoint);
}

TEST_F(TControlTest, AMenuBarTakesRoomAboveTheClientArea)
{
    ShowForm();
    TMainMenu* const Menu = New<TMainMenu>(&Form());
    Form().SetMenu(Menu);
    EXPECT_TRUE(WindowOf(Form()).HasMenu());
    EXPECT_EQ(Form().GetClientHeight(), 300 - 19);
    delete Menu;
    EXPECT_EQ(Form().GetMenu(), nullptr);
    EXPECT_FALSE(WindowOf(Form()).HasMenu());
}

TEST_F(TControlTest, IdleComesWhenNothingIsLeftToDo)
{
    int Times = 0;
    Application().OnIdle = [&](TObject*, bool& Done) {
        Done = ++Times >= 3;
        if (Done)
            Application().Terminate();
    };
    Application().Run();
    Application().OnIdle = nullptr;
    EXPECT_EQ(Times, 3);
}

} // namespace vcl::tests
