#include "planner/Dialogs.h"

#include <cmath>
#include <memory>

#include "planner/EventText.h"
#include "planner/FormTexts.h"
#include "planner/Options.h"
#include "vcl/controls/ComboBox.h"
#include "vcl/controls/Edit.h"
#include "vcl/platform/Platform.h"
#include "vcl/platform/WindowSystem.h"
#include "vcl/system/FormatDateTime.h"

namespace planner
{

namespace
{

constexpr int HalfHours = 48;

std::unique_ptr<vcl::TForm> MakeDialog(vcl::TCustomForm& Over, const char* Name)
{
    std::unique_ptr<vcl::TForm> Form(vcl::New<vcl::TForm>(&Over));
    ReadForm(*Form, Name);
    return Form;
}

template <class T>
T& Part(vcl::TForm& Form, const char* Name)
{
    T* const Component = vcl::As<T>(Form.FindComponent(Name));
    if (!Component)
        throw vcl::EReadError("the form " + Form.GetName() + " has no " + Name);
    return *Component;
}

void Say(vcl::TCustomForm& Over, vcl::TMessageKind Kind, const std::string& Title, const std::string& Text)
{
    vcl::Platform().Windows().Dialogs().ShowMessage(Kind, Title, Text, {vcl::TMessageButton::Ok},
                                                    Over.GetWindow());
}

void FillWithHalfHours(vcl::TComboBox& Combo, vcl::TTime Chosen)
{
    for (int Index = 0; Index <= HalfHours; ++Index)
        Combo.GetItems()->Add(Index == HalfHours
                                  ? "24:00"
                                  : vcl::FormatDateTime("hh:nn", static_cast<double>(Index) / HalfHours));
    Combo.SetItemIndex(static_cast<int>(std::lround(Chosen * HalfHours)));
}

} // namespace

std::optional<vcl::TDate> AskForDate(vcl::TCustomForm& Over, vcl::TDate Date)
{
    const std::unique_ptr<vcl::TForm> Form = MakeDialog(Over, "gotodate");
    auto& Edit = Part<vcl::TEdit>(*Form, "DateEdit");
    Edit.SetText(vcl::FormatDateTime("yyyy\"-\"mm\"-\"dd", Date));
    while (Form->ShowModal() == vcl::mrOk) {
        if (const std::optional<vcl::TDate> Chosen = ParseDate(Edit.GetText()))
            return Chosen;
        Say(*Form, vcl::TMessageKind::Error, "Go to date",
            "\"" + Edit.GetText() + "\" is not a date. Write it as 2026-03-18.");
    }
    return {};
}

bool AskForWorkingHours(vcl::TCustomForm& Over, vcl::TTime& Begin, vcl::TTime& End)
{
    const std::unique_ptr<vcl::TForm> Form = MakeDialog(Over, "workinghours");
    auto& BeginCombo = Part<vcl::TComboBox>(*Form, "BeginCombo");
    auto& EndCombo = Part<vcl::TComboBox>(*Form, "EndCombo");
    FillWithHalfHours(BeginCombo, Begin);
    FillWithHalfHours(EndCombo, End);
    while (Form->ShowModal() == vcl::mrOk) {
        if (BeginCombo.GetItemIndex() < EndCombo.GetItemIndex()) {
            Begin = static_cast<double>(BeginCombo.GetItemIndex()) / HalfHours;
            End = static_cast<double>(EndCombo.GetItemIndex()) / HalfHours;
            return true;
        }
        Say(*Form, vcl::TMessageKind::Error, "Working hours", "Work must begin before it ends.");
    }
    return false;
}

void ShowEvent(vcl::TCustomForm& Over, const TCalendarEvent& Event)
{
    std::string Text = Event.Summary + "\n" + WhenText(Event);
    for (const std::string* Detail : {&Event.Location, &Event.Organizer, &Event.Url, &Event.Description})
        if (!Detail->empty())
            Text += "\n\n" + *Detail;
    Say(Over, vcl::TMessageKind::Information, "Event", Text);
}

} // namespace planner
