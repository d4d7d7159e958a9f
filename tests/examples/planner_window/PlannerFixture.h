#pragma once

// The planner's window with two calendars, on the platform without a screen.

#include <cstdlib>
#include <fstream>
#include <memory>
#include <string>
#include <vector>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "planner/FormTexts.h"
#include "planner/Options.h"
#include "planner/PlannerForm.h"
#include "support/TemporaryFolder.h"
#include "vcl/forms/Application.h"
#include "vcl/forms/StandardClasses.h"
#include "vcl/platform/VirtualKeys.h"
#include "vcl/platform/record/RecordPlatform.h"
#include "vcl/system/DateTime.h"

namespace planner::tests
{

using ::testing::ElementsAre;
using ::testing::HasSubstr;
using ::testing::IsEmpty;

class TPlannerTest : public ::testing::Test
{
protected:
    TPlannerTest()
    {
        vcl::SetPlatform(&FPlatform);
        vcl::RegisterStandardClasses();
        vcl::RegisterClass(TKSTimeView::StaticClass());
        FWork = Write("work.ics",
                      Event("Review", "DTSTART:20260316T100000\nDTEND:20260316T113000\nLOCATION:Room 1") +
                          Event("Fair", "DTSTART;VALUE=DATE:20260318\nDTEND;VALUE=DATE:20260319") +
                          Event("Talk", "DTSTART:20260318T140000\nDTEND:20260318T150000") +
                          Event("Later", "DTSTART:20260324T090000\nDTEND:20260324T100000"));
        FHome = Write("home.ics", Event("Dinner", "DTSTART:20260317T190000\nDTEND:20260317T210000"));
        FForm = vcl::New<TPlannerForm>(nullptr);
        ReadForm(*FForm, "planner");
        FForm->OnRemember = [this](const TState& State) { FRemembered.push_back(State); };
    }

    ~TPlannerTest() override
    {
        delete FForm;
        vcl::Application().Detach();
        vcl::SetPlatform(nullptr);
    }

    static std::string Event(const std::string& Summary, const std::string& Properties)
    {
        return "BEGIN:VEVENT\nUID:" + Summary + "\nSUMMARY:" + Summary + "\n" + Properties + "\nEND:VEVENT\n";
    }

    /// Writes a calendar of these events and returns its whole name.
    std::string Write(const std::string& Name, const std::string& Events) const
    {
        const std::string File = FFolder.File(Name);
        std::ofstream(File) << "BEGIN:VCALENDAR\nVERSION:2.0\n" << Events << "END:VCALENDAR\n";
        return File;
    }

    /// Shows the week of 16 March 2026 with the calendar of work.
    void ShowWeek(std::vector<std::string> Files = {})
    {
        TOptions Options;
        Options.Files = Files.empty() ? std::vector{FWork} : Files;
        Options.Date = Day(16);
        Start({}, Options);
    }
    void Start(const TState& State, const TOptions& Options)
    {
        FForm->Start(State, Options);
        vcl::Application().SetMainForm(FForm);
        FForm->TForm::Show();
        Settle();
    }
    void Settle()
    {
        Windows().ProcessMessages();
        Windows().TakeLog();
    }

    vcl::record::TWindowSystem& Windows() { return FPlatform.Windows(); }
    TKSTimeView& View() { return *FForm->GetTimeView(); }
    static vcl::record::TWindow& WindowOf(vcl::TWinControl& Control)
    {
        return *static_cast<vcl::record::TWindow*>(Control.GetHandle());
    }
    /// A day of March 2026.
    static vcl::TDate Day(int Number) { return vcl::EncodeDate(2026, 3, Number); }

    template <class T>
    T& Part(const char* Name) const
    {
        T* const Found = vcl::As<T>(FForm->FindComponent(Name));
        if (!Found)
            throw std::runtime_error(std::string("The planner has no ") + Name);
        return *Found;
    }
    void Click(const char* Button)
    {
        Windows().MouseClick(WindowOf(Part<vcl::TSpeedButton>(Button)), {5, 5});
        Settle();
    }
    void Press(std::uint16_t Key, unsigned Modifiers = 0)
    {
        Windows().KeyPress(Key, Modifiers);
        Settle();
    }

    std::vector<std::string> Captions()
    {
        std::vector<std::string> Result;
        for (int Index = 0; Index < View().GetItems()->GetCount(); ++Index)
            Result.push_back(View().GetItems()->GetItem(Index)->GetCaption());
        return Result;
    }
    std::string StatusText(int Panel)
    {
        return WindowOf(Part<vcl::TStatusBar>("StatusBar"))
            .GetStatusBar()
            ->GetPanels()
            .at(static_cast<std::size_t>(Panel))
            .Text;
    }
    std::string RangeText() { return Part<vcl::TLabel>("RangeLabel").GetCaption(); }

    vcl::record::TPlatform FPlatform;
    vcl::tests::TTemporaryFolder FFolder;
    std::string FWork;
    std::string FHome;
    TPlannerForm* FForm = nullptr;
    std::vector<TState> FRemembered;
};

} // namespace planner::tests
