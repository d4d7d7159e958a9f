#include "PlannerFixture.h"

#include <set>

#include "vcl/controls/ComboBox.h"
#include "vcl/controls/Edit.h"
#include "vcl/forms/Screen.h"

namespace planner::tests
{

TEST_F(TPlannerTest, ItOpensTheWeekOfTheDateWithItsEvents)
{
    ShowWeek();
    EXPECT_EQ(FForm->GetSpan(), (TDaySpan{Day(16), 7}));
    EXPECT_EQ(View().GetDaysCount(), 7);
    EXPECT_THAT(Captions(), ElementsAre("Review\nRoom 1", "Fair", "Talk"));
    EXPECT_EQ(FForm->GetCaption(), "work - Planner");
    EXPECT_EQ(RangeText(), "16 \xE2\x80\x93 22 March 2026");
    EXPECT_EQ(StatusText(0), "3 events");
}

TEST_F(TPlannerTest, WithoutACalendarItIsEmptyAndSaysSo)
{
    TOptions Options;
    Options.Date = Day(16);
    Start({}, Options);
    EXPECT_THAT(Captions(), IsEmpty());
    EXPECT_EQ(FForm->GetCaption(), "Planner");
    EXPECT_EQ(StatusText(0), "No events in these days");
}

TEST_F(TPlannerTest, EarlierAndLaterMoveByTheShownDays)
{
    ShowWeek();
    Click("NextButton");
    EXPECT_EQ(FForm->GetSpan(), (TDaySpan{Day(23), 7}));
    EXPECT_THAT(Captions(), ElementsAre("Later"));
    EXPECT_EQ(StatusText(0), "1 event");
    Press(vcl::VK_LEFT, vcl::MK_ALT);
    EXPECT_EQ(FForm->GetSpan().First, Day(16));
    Press(vcl::VK_RIGHT, vcl::MK_ALT);
    EXPECT_EQ(FForm->GetSpan().First, Day(23));
    Click("PreviousButton");
    Click("PreviousButton");
    EXPECT_EQ(FForm->GetSpan().First, Day(9));
    EXPECT_EQ(StatusText(0), "No events in these days");
}

TEST_F(TPlannerTest, TodayShowsTheSpanWithToday)
{
    ShowWeek();
    Press('T', vcl::MK_CONTROL);
    EXPECT_TRUE(FForm->GetSpan().Contains(vcl::Date()));
    Click("PreviousButton");
    Click("TodayButton");
    EXPECT_TRUE(FForm->GetSpan().Contains(vcl::Date()));
}

TEST_F(TPlannerTest, EachNumberOfDaysHasAButtonAndAShortcut)
{
    struct TChoice {
        const char* Button;
        const char* Item;
        char Key;
        TDaySpan Span;
    };
    ShowWeek();
    for (const TChoice& Choice : {TChoice{"Days1Button", "Days1Item", '1', {Day(16), 1}},
                                  TChoice{"Days5Button", "Days5Item", '2', {Day(16), 5}},
                                  TChoice{"Days14Button", "Days14Item", '4', {Day(16), 14}},
                                  TChoice{"Days7Button", "Days7Item", '3', {Day(16), 7}},
                                  TChoice{"Days31Button", "Days31Item", '5', {Day(1), 31}}}) {
        SCOPED_TRACE(Choice.Button);
        Click(Choice.Button);
        EXPECT_EQ(FForm->GetSpan(), Choice.Span);
        EXPECT_EQ(View().GetDaysCount(), Choice.Span.Days);
        int Down = 0;
        int Checked = 0;
        for (const char* const Days : {"1", "5", "7", "14", "31"}) {
            Down += Part<vcl::TSpeedButton>((std::string("Days") + Days + "Button").c_str()).GetDown();
            Checked += Part<vcl::TMenuItem>((std::string("Days") + Days + "Item").c_str()).GetChecked();
        }
        EXPECT_EQ(Down, 1);
        EXPECT_EQ(Checked, 1);
        EXPECT_TRUE(Part<vcl::TSpeedButton>(Choice.Button).GetDown());
        EXPECT_TRUE(Part<vcl::TMenuItem>(Choice.Item).GetChecked());
        const auto* const Peer = WindowOf(Part<vcl::TSpeedButton>(Choice.Button)).GetButton();
        EXPECT_EQ(Peer->GetCheckState(), vcl::TCheckState::Checked);
        FForm->Show(TDaySpan{Day(16), 3});
        EXPECT_FALSE(Part<vcl::TSpeedButton>(Choice.Button).GetDown())
            << "three days are none of the choices";
        FForm->Show(TDaySpan{Day(16), Choice.Span.Days == 7 ? 1 : 7});
        Press(static_cast<std::uint16_t>(Choice.Key), vcl::MK_CONTROL);
        EXPECT_EQ(FForm->GetSpan(), Choice.Span);
    }
}

TEST_F(TPlannerTest, AChosenButtonStaysDownWhenItIsPressedAgain)
{
    ShowWeek();
    Click("Days7Button");
    EXPECT_TRUE(Part<vcl::TSpeedButton>("Days7Button").GetDown());
    EXPECT_EQ(FForm->GetSpan().Days, 7);
}

TEST_F(TPlannerTest, TheTimeScaleGoesFromSixtyToFiveMinutes)
{
    ShowWeek();
    const auto ShownMarks = [this] { return View().GetMarksMinutes(); };
    EXPECT_EQ(ShownMarks(), 30);
    Click("ZoomOutButton");
    EXPECT_EQ(ShownMarks(), 60);
    EXPECT_FALSE(Part<vcl::TSpeedButton>("ZoomOutButton").GetEnabled());
    EXPECT_FALSE(Part<vcl::TMenuItem>("ZoomOutItem").GetEnabled());
    std::vector<int> Marks;
    for (int Step = 0; Step < 6; ++Step) {
        Press(vcl::VK_OEM_PLUS, vcl::MK_CONTROL);
        Marks.push_back(ShownMarks());
    }
    EXPECT_THAT(Marks, ElementsAre(30, 15, 10, 6, 5, 5));
    EXPECT_FALSE(Part<vcl::TSpeedButton>("ZoomInButton").GetEnabled());
    Press(vcl::VK_OEM_MINUS, vcl::MK_CONTROL);
    EXPECT_EQ(ShownMarks(), 6);
    Click("ZoomInButton");
    EXPECT_EQ(ShownMarks(), 5);
}

TEST_F(TPlannerTest, ZoomingKeepsTheTimeAtTheTop)
{
    ShowWeek();
    const auto TopHour = [this] { return 24.0 * View().GetVScrollPosition() / View().GetTotalScaleHeight(); };
    const double Before = TopHour();
    EXPECT_GT(Before, 1);
    Click("ZoomInButton");
    EXPECT_NEAR(TopHour(), Before, 0.1);
}

TEST_F(TPlannerTest, WorkingHoursAreShownOnWorkdaysAndCanBeHidden)
{
    ShowWeek();
    EXPECT_TRUE(View().GetDay(0)->GetShowWorkingHours());
    EXPECT_FALSE(View().GetDay(5)->GetShowWorkingHours()) << "Saturday";
    Press('W', vcl::MK_CONTROL);
    EXPECT_FALSE(View().GetDay(0)->GetShowWorkingHours());
    EXPECT_FALSE(Part<vcl::TSpeedButton>("WorkButton").GetDown());
    EXPECT_FALSE(Part<vcl::TMenuItem>("WorkItem").GetChecked());
    Click("WorkButton");
    EXPECT_TRUE(View().GetDay(0)->GetShowWorkingHours());
    EXPECT_TRUE(Part<vcl::TSpeedButton>("WorkButton").GetDown());
}

TEST_F(TPlannerTest, WorkingHoursAreSetInADialog)
{
    ShowWeek();
    Windows().OnWait.push_back([this] {
        vcl::TCustomForm& Dialog = *vcl::Screen().GetActiveForm();
        vcl::As<vcl::TComboBox>(Dialog.FindComponent("BeginCombo"))->SetItemIndex(20);
        vcl::As<vcl::TComboBox>(Dialog.FindComponent("EndCombo"))->SetItemIndex(19);
        Windows().KeyPress(vcl::VK_RETURN);
    });
    Windows().OnWait.push_back([this] {
        EXPECT_THAT(Windows().GetLog(), ::testing::Contains("message Work must begin before it ends."));
        vcl::TCustomForm& Dialog = *vcl::Screen().GetActiveForm();
        vcl::As<vcl::TComboBox>(Dialog.FindComponent("EndCombo"))->SetItemIndex(48);
        Windows().KeyPress(vcl::VK_RETURN);
    });
    Part<vcl::TMenuItem>("SetWorkItem").Click();
    EXPECT_DOUBLE_EQ(View().GetDay(0)->GetBeginWork(), 10.0 / 24);
    EXPECT_DOUBLE_EQ(View().GetDay(0)->GetEndWork(), 1.0);
    Windows().OnWait.push_back([this] { Windows().KeyPress(vcl::VK_ESCAPE); });
    Part<vcl::TMenuItem>("SetWorkItem").Click();
    EXPECT_DOUBLE_EQ(View().GetDay(0)->GetBeginWork(), 10.0 / 24) << "cancelled";
}

TEST_F(TPlannerTest, GoToDateShowsTheSpanOfTheDateThatIsTyped)
{
    ShowWeek();
    Windows().OnWait.push_back([this] {
        auto* const Edit = vcl::As<vcl::TEdit>(vcl::Screen().GetActiveForm()->FindComponent("DateEdit"));
        EXPECT_EQ(Edit->GetText(), "2026-03-16");
        EXPECT_TRUE(Edit->Focused());
        Windows().Type("soon");
        Windows().KeyPress(vcl::VK_RETURN);
    });
    Windows().OnWait.push_back([this] {
        EXPECT_THAT(Windows().GetLog(),
                    ::testing::Contains(HasSubstr("\"soon\" is not a date. Write it as 2026-03-18.")));
        vcl::As<vcl::TEdit>(vcl::Screen().GetActiveForm()->FindComponent("DateEdit"))->SetText("2026-04-02");
        Windows().KeyPress(vcl::VK_RETURN);
    });
    Press('G', vcl::MK_CONTROL);
    EXPECT_EQ(FForm->GetSpan(), (TDaySpan{vcl::EncodeDate(2026, 3, 30), 7}));
    Windows().OnWait.push_back([this] { Windows().KeyPress(vcl::VK_ESCAPE); });
    Click("GoToButton");
    EXPECT_EQ(FForm->GetSpan().First, vcl::EncodeDate(2026, 3, 30));
}

TEST_F(TPlannerTest, OpenReplacesTheCalendarsAndAddKeepsThem)
{
    ShowWeek();
    Windows().ChosenFiles = {FHome};
    Press('O', vcl::MK_CONTROL);
    EXPECT_THAT(Captions(), ElementsAre("Dinner"));
    EXPECT_EQ(FForm->GetCaption(), "home - Planner");
    Windows().ChosenFiles = {FWork};
    Press('O', vcl::MK_CONTROL | vcl::MK_SHIFT);
    EXPECT_THAT(Captions(), ElementsAre("Review\nRoom 1", "Dinner", "Fair", "Talk"));
    EXPECT_EQ(FForm->GetCaption(), "home, work - Planner");
    EXPECT_NE(View().GetItems()->GetItem(0)->GetColor(), View().GetItems()->GetItem(1)->GetColor());
    Windows().ChosenFiles = {};
    Click("OpenButton");
    EXPECT_EQ(FForm->GetCaption(), "home, work - Planner") << "cancelled";
}

TEST_F(TPlannerTest, OpeningACalendarOfAnotherTimeGoesThere)
{
    ShowWeek();
    Windows().ChosenFiles = {
        Write("old.ics", Event("Long ago", "DTSTART:20190506T090000\nDTEND:20190506T100000"))};
    Click("OpenButton");
    EXPECT_EQ(FForm->GetSpan(), (TDaySpan{vcl::EncodeDate(2019, 5, 6), 7}));
    EXPECT_THAT(Captions(), ElementsAre("Long ago"));
}

TEST_F(TPlannerTest, ReloadShowsWhatTheFileSaysNow)
{
    ShowWeek();
    Write("work.ics", Event("Changed", "DTSTART:20260317T100000\nDTEND:20260317T110000"));
    Press(vcl::VK_F5);
    EXPECT_THAT(Captions(), ElementsAre("Changed"));
    EXPECT_EQ(FForm->GetSpan().First, Day(16));
}

TEST_F(TPlannerTest, AFileThatCannotBeReadLeavesWhatWasShownAndSaysWhy)
{
    ShowWeek();
    const std::string Bad =
        Write("bad.ics", Event("Broken", "DTSTART:20260316T100000\nDTEND:20260332T110000"));
    const std::string Message = Bad + ":7: ";
    Windows().ChosenFiles = {FHome, Bad};
    Press('O', vcl::MK_CONTROL);
    Windows().ChosenFiles = {Bad};
    FForm->AddClick(nullptr);
    EXPECT_THAT(Windows().TakeLog(), ::testing::Contains(HasSubstr("message " + Message)));
    EXPECT_THAT(StatusText(0), HasSubstr(Message));
    EXPECT_THAT(Captions(), ElementsAre("Review\nRoom 1", "Fair", "Talk"));
    EXPECT_EQ(FForm->GetCaption(), "work - Planner");
    Click("NextButton");
    EXPECT_THAT(Captions(), ElementsAre("Later"));
    std::ofstream(FWork) << "no calendar";
    Press(vcl::VK_F5);
    EXPECT_THAT(Captions(), ElementsAre("Later"));
    EXPECT_THAT(StatusText(0), HasSubstr(FWork + ":1: "));
}

TEST_F(TPlannerTest, EveryMenuItemDoesSomethingAndHasAKeyOfItsOwn)
{
    std::set<vcl::TShortCut> Keys;
    int Leaves = 0;
    for (int Index = 0; Index < FForm->GetComponentCount(); ++Index) {
        const auto* const Item = vcl::As<vcl::TMenuItem>(FForm->GetComponent(Index));
        if (!Item || Item->GetCount() > 0 || Item->GetCaption() == "-")
            continue;
        ++Leaves;
        EXPECT_TRUE(Item->OnClick) << Item->GetName();
        if (Item->GetShortCut() != 0) {
            EXPECT_TRUE(Keys.insert(Item->GetShortCut()).second) << Item->GetName();
        }
    }
    EXPECT_GE(Leaves, 17);
    EXPECT_EQ(static_cast<int>(Keys.size()), Leaves - 1) << "all but the dialog of the working hours";
}

class TPlannerItemTest : public TPlannerTest
{
protected:
    /// Clicks here and there until the item is hit; null when it is not on the screen.
    TKSTimeViewItem* ClickOn(const std::string& Caption)
    {
        constexpr int Step = 12;
        vcl::record::TWindow& Window = WindowOf(View());
        for (int Y = Step; Y < View().GetClientHeight(); Y += Step)
            for (int X = Step; X < View().GetClientWidth(); X += 3 * Step) {
                FPoint = {X, Y};
                Windows().MouseClick(Window, FPoint);
                TKSTimeViewItem* const Item = View().GetSelectedItem();
                if (Item && Item->GetCaption() == Caption)
                    return Item;
            }
        return nullptr;
    }

    vcl::TPoint FPoint;
};

TEST_F(TPlannerItemTest, TheStatusBarDescribesTheSelectedItem)
{
    ShowWeek({FWork, FHome});
    ASSERT_NE(ClickOn("Dinner"), nullptr);
    EXPECT_EQ(StatusText(0), "Tue 17 March 2026, 19:00 \xE2\x80\x93 21:00   Dinner");
    EXPECT_EQ(StatusText(1), "home");
    ASSERT_NE(ClickOn("Review\nRoom 1"), nullptr);
    EXPECT_EQ(StatusText(0), "Mon 16 March 2026, 10:00 \xE2\x80\x93 11:30   Review   (Room 1)");
    EXPECT_EQ(StatusText(1), "work");
    Click("NextButton");
    EXPECT_EQ(StatusText(0), "1 event");
    EXPECT_EQ(StatusText(1), "");
}

TEST_F(TPlannerItemTest, AClickBesideTheItemsShowsTheCountAgain)
{
    ShowWeek();
    ASSERT_NE(ClickOn("Talk"), nullptr);
    Windows().MouseClick(WindowOf(View()), {View().GetClientWidth() - 20, View().GetClientHeight() - 20});
    EXPECT_EQ(View().GetSelectedItem(), nullptr);
    EXPECT_EQ(StatusText(0), "3 events");
}

TEST_F(TPlannerItemTest, ADoubleClickShowsEverythingAboutTheEvent)
{
    ShowWeek();
    ASSERT_NE(ClickOn("Review\nRoom 1"), nullptr);
    Windows().TakeLog();
    Windows().MouseDoubleClick(WindowOf(View()), FPoint);
    EXPECT_THAT(Windows().TakeLog(),
                ::testing::Contains("message Review\nMon 16 March 2026, 10:00 \xE2\x80\x93 11:30\n\nRoom 1"));
}

TEST_F(TPlannerTest, WhatWasRememberedIsShownAgain)
{
    ShowWeek({FWork, FHome});
    Click("Days14Button");
    Click("ZoomInButton");
    Click("WorkButton");
    FForm->SetBounds(120, 90, 900, 640);
    View().SetVScrollPosition(View().GetRulerMarkHeight() * 4 * 6);
    WindowOf(*FForm).UserClose();
    ASSERT_EQ(FRemembered.size(), 1u);
    const TState State = FRemembered[0];
    EXPECT_THAT(State.Files, ElementsAre(FWork, FHome));
    EXPECT_EQ(State.Days, 14);
    EXPECT_EQ(State.MarkMinutes, 15);
    EXPECT_FALSE(State.ShowWork);
    EXPECT_EQ(State.Bounds, vcl::Bounds(120, 90, 900, 640));
    EXPECT_EQ(State.ScrollMinutes, 6 * 60);

    delete FForm;
    FForm = vcl::New<TPlannerForm>(nullptr);
    ReadForm(*FForm, "planner");
    TOptions Options;
    Options.Date = Day(16);
    Start(State, Options);
    EXPECT_EQ(FForm->GetSpan(), (TDaySpan{Day(16), 14}));
    EXPECT_EQ(FForm->GetCaption(), "work, home - Planner");
    EXPECT_EQ(FForm->GetBoundsRect(), State.Bounds);
    const TState Again = FForm->CurrentState();
    EXPECT_EQ(Again.Files, State.Files);
    EXPECT_EQ(Again.MarkMinutes, State.MarkMinutes);
    EXPECT_EQ(Again.ShowWork, State.ShowWork);
    EXPECT_EQ(Again.ScrollMinutes, State.ScrollMinutes);
}

TEST_F(TPlannerTest, TheStateIsKeptBetweenTwoRuns)
{
    setenv("XDG_CONFIG_HOME", FFolder.GetPath().c_str(), 1);
    TState State;
    State.Files = {FWork, FFolder.File("with, comma.ics")};
    State.Days = 31;
    State.MarkMinutes = 10;
    State.ShowWork = false;
    State.BeginWork = 0.25;
    State.EndWork = 0.5;
    State.Bounds = vcl::Bounds(10, 20, 800, 600);
    State.ScrollMinutes = 480;
    SaveState(State);
    const TState Loaded = LoadState();
    EXPECT_EQ(Loaded.Files, State.Files);
    EXPECT_EQ(Loaded.Days, 31);
    EXPECT_EQ(Loaded.MarkMinutes, 10);
    EXPECT_FALSE(Loaded.ShowWork);
    EXPECT_EQ(Loaded.BeginWork, 0.25);
    EXPECT_EQ(Loaded.EndWork, 0.5);
    EXPECT_EQ(Loaded.Bounds, State.Bounds);
    EXPECT_EQ(Loaded.ScrollMinutes, 480);
    State.Days = 400;
    State.BeginWork = 0.9;
    State.Bounds = {};
    SaveState(State);
    EXPECT_EQ(LoadState().Days, 31);
    EXPECT_EQ(LoadState().BeginWork, TState().BeginWork);
    EXPECT_TRUE(LoadState().Bounds.IsEmpty());
}

} // namespace planner::tests
