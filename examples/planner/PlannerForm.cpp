#include "planner/PlannerForm.h"

#include <algorithm>
#include <array>
#include <cmath>

#include "planner/Dialogs.h"
#include "planner/EventText.h"
#include "planner/ItemColors.h"
#include "planner/ItemIcons.h"
#include "planner/calendar/CalendarError.h"
#include "vcl/forms/Application.h"
#include "vcl/system/DateTime.h"

namespace planner
{

namespace
{

struct TMarks {
    int Minutes;
    TKSTVRulerMarkMinutes Value;
};
// From coarse to fine.
constexpr std::array Marks = {
    TMarks{60, TKSTVRulerMarkMinutes::rmm60Minutes}, TMarks{30, TKSTVRulerMarkMinutes::rmm30Minutes},
    TMarks{15, TKSTVRulerMarkMinutes::rmm15Minutes}, TMarks{10, TKSTVRulerMarkMinutes::rmm10Minutes},
    TMarks{6, TKSTVRulerMarkMinutes::rmm6Minutes},   TMarks{5, TKSTVRulerMarkMinutes::rmm5Minutes},
};

int MarksIndex(int Minutes)
{
    const auto Found = std::find_if(Marks.begin(), Marks.end(),
                                    [Minutes](const TMarks& Mark) { return Mark.Minutes == Minutes; });
    return Found == Marks.end() ? 1 : static_cast<int>(Found - Marks.begin());
}

bool IsWorkday(vcl::TDate Date)
{
    const int Day = vcl::DayOfWeek(Date);
    return Day != 1 && Day != 7;
}

} // namespace

const vcl::TClass& TPlannerForm::StaticClass()
{
    using namespace vcl;
    static const TClass Class = DefineClass<TPlannerForm, TForm>(
        "TPlannerForm", {},
        {
            PublishedMethod<&TPlannerForm::OpenClick>("OpenClick"),
            PublishedMethod<&TPlannerForm::AddClick>("AddClick"),
            PublishedMethod<&TPlannerForm::ReloadClick>("ReloadClick"),
            PublishedMethod<&TPlannerForm::ExitClick>("ExitClick"),
            PublishedMethod<&TPlannerForm::TodayClick>("TodayClick"),
            PublishedMethod<&TPlannerForm::PreviousClick>("PreviousClick"),
            PublishedMethod<&TPlannerForm::NextClick>("NextClick"),
            PublishedMethod<&TPlannerForm::GoToDateClick>("GoToDateClick"),
            PublishedMethod<&TPlannerForm::DaysClick>("DaysClick"),
            PublishedMethod<&TPlannerForm::ZoomInClick>("ZoomInClick"),
            PublishedMethod<&TPlannerForm::ZoomOutClick>("ZoomOutClick"),
            PublishedMethod<&TPlannerForm::WorkingHoursClick>("WorkingHoursClick"),
            PublishedMethod<&TPlannerForm::SetWorkingHoursClick>("SetWorkingHoursClick"),
            PublishedMethod<&TPlannerForm::ItemClick>("ItemClick"),
            PublishedMethod<&TPlannerForm::ItemDblClick>("ItemDblClick"),
            PublishedMethod<&TPlannerForm::ViewClick>("ViewClick"),
            PublishedMethod<&TPlannerForm::FormCloseQuery>("FormCloseQuery"),
        });
    return Class;
}

TPlannerForm::TPlannerForm(vcl::TComponent* Owner)
    : TForm(Owner), FCalendars(std::make_unique<TCalendarSet>()), FImages(MakeItemIcons())
{
}

TPlannerForm::~TPlannerForm() = default;

template <class T>
T* TPlannerForm::Find(const char* Name) const
{
    T* const Component = vcl::As<T>(FindComponent(Name));
    if (!Component)
        throw vcl::EReadError(std::string("the planner's form has no ") + T::StaticClass().Name + " " + Name);
    return Component;
}

void TPlannerForm::FindParts()
{
    FTimeView = Find<TKSTimeView>("TimeView");
    FRangeLabel = Find<vcl::TLabel>("RangeLabel");
    FStatusBar = Find<vcl::TStatusBar>("StatusBar");
    FOpenDialog = Find<vcl::TOpenDialog>("OpenDialog");
    FTimeView->SetImages(FImages.get());
    FTimeView->SetReminderImageIndex(ReminderIcon);
    FTimeView->SetPrivateImageIndex(PrivateIcon);
}

void TPlannerForm::Start(const TState& State, const TOptions& Options)
{
    FindParts();
    FShowWork = State.ShowWork;
    FBeginWork = State.BeginWork;
    FEndWork = State.EndWork;
    FMarks = MarksIndex(Options.MarkMinutes.value_or(State.MarkMinutes));
    if (!State.Bounds.IsEmpty() && !Options.Size)
        SetBoundsRect(State.Bounds);
    if (Options.Size)
        SetClientSize(*Options.Size);
    if (Options.RightToLeft)
        SetBiDiMode(vcl::TBiDiMode::bdRightToLeft);
    const std::vector<std::string>& Files = Options.Files.empty() ? State.Files : Options.Files;
    if (!Files.empty())
        OpenFiles(Files);
    const vcl::TDate Day = Options.Date ? *Options.Date : FCalendars->NearestDay(vcl::Date());
    const int Days = Options.Days.value_or(State.Days);
    ApplyMarks();
    Show(Options.Date && Options.Days ? TDaySpan{Day, Days} : TDaySpan::Around(Day, Days));
    FTimeView->HandleNeeded();
    ScrollToMinute(State.ScrollMinutes >= 0 ? State.ScrollMinutes : FirstMinuteOfInterest());
}

int TPlannerForm::FirstMinuteOfInterest() const
{
    vcl::TTime Earliest = FBeginWork;
    for (const TCalendarEvent& Event : FEvents)
        if (!Event.AllDay && Event.Start >= FSpan.First)
            Earliest = std::min(Earliest, Event.Start - std::floor(Event.Start));
    // A little below the top, so that what comes before it is noticed.
    constexpr int Above = 30;
    return std::max(0, static_cast<int>(std::lround(Earliest * 24 * 60)) - Above);
}

void TPlannerForm::ScrollToMinute(int Minute)
{
    FTimeView->SetVScrollPosition(Minute * FTimeView->GetRulerMarkHeight() /
                                  Marks[static_cast<std::size_t>(FMarks)].Minutes);
}

TState TPlannerForm::CurrentState() const
{
    TState State;
    State.Files = FileNames();
    State.Days = FSpan.Days;
    State.MarkMinutes = Marks[static_cast<std::size_t>(FMarks)].Minutes;
    State.ShowWork = FShowWork;
    State.BeginWork = FBeginWork;
    State.EndWork = FEndWork;
    State.Bounds = GetBoundsRect();
    State.ScrollMinutes =
        FTimeView->GetVScrollPosition() * State.MarkMinutes / std::max(1, FTimeView->GetRulerMarkHeight());
    return State;
}

std::vector<std::string> TPlannerForm::FileNames() const
{
    std::vector<std::string> Names;
    for (int Index = 0; Index < FCalendars->GetCalendarCount(); ++Index)
        Names.push_back(FCalendars->GetCalendar(Index).File.GetFileName());
    return Names;
}

bool TPlannerForm::OpenFiles(const std::vector<std::string>& Files)
{
    try {
        FCalendars->Load(Files);
    } catch (const ECalendarError& Error) {
        ReportError(Error);
        return false;
    }
    return true;
}

void TPlannerForm::ReportError(const std::exception& Error)
{
    FStatusBar->GetPanels()->GetItem(0)->SetText(Error.what());
    vcl::Application().ShowException(Error);
}

void TPlannerForm::Show(const TDaySpan& Span)
{
    FSpan = Span;
    FTimeView->SetDateRange(Span.First, Span.Days);
    ApplyWorkingHours();
    FillView();
    ShowRange();
    ShowDaysChoice();
}

void TPlannerForm::FillView()
{
    TCalendarSet::TEvents Found = FCalendars->Events(FSpan.First, FSpan.First + FSpan.Days);
    FEvents = std::move(Found.Events);
    TKSTimeViewItems& Items = *FTimeView->GetItems();
    Items.BeginUpdate();
    Items.Clear();
    for (std::size_t Index = 0; Index < FEvents.size(); ++Index) {
        const TCalendarEvent& Event = FEvents[Index];
        TKSTimeViewItem* const Item = Items.Add(Event.Summary, Event.Start, ShownEnd(Event), Event.AllDay);
        FillItem(*Item, static_cast<int>(Index));
    }
    Items.EndUpdate();
    ShowDetails(nullptr);
    if (!Found.Notes.empty())
        FStatusBar->GetPanels()->GetItem(0)->SetText(Found.Notes.front());
}

void TPlannerForm::FillItem(TKSTimeViewItem& Item, int EventIndex) const
{
    const TCalendarEvent& Event = FEvents[static_cast<std::size_t>(EventIndex)];
    const vcl::TColor Color = ItemColor(FCalendars->GetCalendar(Event.Calendar).Color, HasDarkWindows());
    Item.SetColor(Color);
    Item.SetAllDayColor(Color);
    Item.SetShowReminder(Event.Reminder);
    Item.SetPrivateItem(Event.Private);
    if (!Event.Location.empty() && !Event.AllDay)
        Item.SetCaption(Event.Summary + "\n" + Event.Location);
    Item.SetData(reinterpret_cast<void*>(static_cast<std::intptr_t>(EventIndex)));
}

void TPlannerForm::ApplyWorkingHours()
{
    for (int Index = 0; Index < FTimeView->GetDaysCount(); ++Index) {
        TKSTimeviewDay& Day = *FTimeView->GetDay(Index);
        // The end first when work moves later: begin must stay before end at each step.
        Day.SetEndWork(1.0);
        Day.SetBeginWork(FBeginWork);
        Day.SetEndWork(FEndWork);
        Day.SetShowWorkingHours(FShowWork && IsWorkday(Day.GetDate()));
    }
    Find<vcl::TSpeedButton>("WorkButton")->SetDown(FShowWork);
    Find<vcl::TMenuItem>("WorkItem")->SetChecked(FShowWork);
}

void TPlannerForm::ApplyMarks()
{
    // Keep the time at the top where it is.
    const vcl::TTime Top =
        static_cast<double>(FTimeView->GetVScrollPosition()) / std::max(1, FTimeView->GetTotalScaleHeight());
    FTimeView->SetRulerMarkMinutes(Marks[static_cast<std::size_t>(FMarks)].Value);
    FTimeView->SetVScrollPosition(static_cast<int>(std::lround(Top * FTimeView->GetTotalScaleHeight())));
    const bool IsFinest = FMarks + 1 == static_cast<int>(Marks.size());
    Find<vcl::TSpeedButton>("ZoomInButton")->SetEnabled(!IsFinest);
    Find<vcl::TMenuItem>("ZoomInItem")->SetEnabled(!IsFinest);
    Find<vcl::TSpeedButton>("ZoomOutButton")->SetEnabled(FMarks > 0);
    Find<vcl::TMenuItem>("ZoomOutItem")->SetEnabled(FMarks > 0);
}

void TPlannerForm::ShowRange()
{
    FRangeLabel->SetCaption(RangeText(FSpan.First, FSpan.Days));
    std::string Title;
    for (int Index = 0; Index < FCalendars->GetCalendarCount(); ++Index)
        Title += (Index > 0 ? ", " : "") + FCalendars->GetCalendar(Index).File.GetName();
    SetCaption(Title.empty() ? "Planner" : Title + " - Planner");
}

void TPlannerForm::ShowDaysChoice()
{
    for (const int Days : {1, 5, 7, 14, 31}) {
        const std::string Number = std::to_string(Days);
        auto* const Button = Find<vcl::TSpeedButton>(("Days" + Number + "Button").c_str());
        // A group lets its last button be raised only on request: no span of another length is one of these.
        Button->SetAllowAllUp(true);
        Button->SetDown(FSpan.Days == Days);
        Find<vcl::TMenuItem>(("Days" + Number + "Item").c_str())->SetChecked(FSpan.Days == Days);
    }
}

void TPlannerForm::ShowDetails(const TKSTimeViewItem* Item)
{
    vcl::TStatusPanels& Panels = *FStatusBar->GetPanels();
    if (Item) {
        const auto Index = static_cast<std::size_t>(reinterpret_cast<std::intptr_t>(Item->GetData()));
        const TCalendarEvent& Event = FEvents.at(Index);
        Panels[0]->SetText(DetailsText(Event));
        Panels[1]->SetText(FCalendars->GetCalendar(Event.Calendar).File.GetName());
        return;
    }
    Panels[0]->SetText(FEvents.empty() ? "No events in these days" : CountText(FEvents.size()));
    Panels[1]->SetText({});
}

void TPlannerForm::OpenClick(vcl::TObject*)
{
    ChooseFiles(false);
}

void TPlannerForm::AddClick(vcl::TObject*)
{
    ChooseFiles(true);
}

void TPlannerForm::ChooseFiles(bool Keep)
{
    if (!FOpenDialog->Execute(this))
        return;
    std::vector<std::string> Files = Keep ? FileNames() : std::vector<std::string>();
    for (int Index = 0; Index < FOpenDialog->GetFiles().GetCount(); ++Index)
        Files.push_back(FOpenDialog->GetFiles().GetString(Index));
    if (OpenFiles(Files))
        Show(TDaySpan::Around(FCalendars->NearestDay(FSpan.First), FSpan.Days));
}

void TPlannerForm::ReloadClick(vcl::TObject*)
{
    if (OpenFiles(FileNames()))
        Show(FSpan);
}

void TPlannerForm::ExitClick(vcl::TObject*)
{
    Close();
}

void TPlannerForm::TodayClick(vcl::TObject*)
{
    Show(TDaySpan::Around(vcl::Date(), FSpan.Days));
}

void TPlannerForm::PreviousClick(vcl::TObject*)
{
    Show(FSpan.Moved(-1));
}

void TPlannerForm::NextClick(vcl::TObject*)
{
    Show(FSpan.Moved(1));
}

void TPlannerForm::GoToDateClick(vcl::TObject*)
{
    if (const std::optional<vcl::TDate> Date = AskForDate(*this, FSpan.First))
        Show(TDaySpan::Around(*Date, FSpan.Days));
}

void TPlannerForm::DaysClick(vcl::TObject* Sender)
{
    const int Days = static_cast<int>(vcl::As<vcl::TComponent>(Sender)->GetTag());
    // A shorter span keeps to today when that is shown.
    const vcl::TDate Day = FSpan.Contains(vcl::Date()) ? vcl::Date() : FSpan.First;
    Show(TDaySpan::Around(Day, Days));
}

void TPlannerForm::ZoomInClick(vcl::TObject*)
{
    if (FMarks + 1 < static_cast<int>(Marks.size()))
        ++FMarks;
    ApplyMarks();
}

void TPlannerForm::ZoomOutClick(vcl::TObject*)
{
    FMarks = std::max(0, FMarks - 1);
    ApplyMarks();
}

void TPlannerForm::WorkingHoursClick(vcl::TObject*)
{
    FShowWork = !FShowWork;
    ApplyWorkingHours();
}

void TPlannerForm::SetWorkingHoursClick(vcl::TObject*)
{
    if (!AskForWorkingHours(*this, FBeginWork, FEndWork))
        return;
    FShowWork = true;
    ApplyWorkingHours();
}

void TPlannerForm::ItemClick(vcl::TObject*, TKSTimeViewItem* Item)
{
    ShowDetails(Item);
}

void TPlannerForm::ItemDblClick(vcl::TObject*, TKSTimeViewItem* Item)
{
    const auto Index = static_cast<std::size_t>(reinterpret_cast<std::intptr_t>(Item->GetData()));
    ShowEvent(*this, FEvents.at(Index));
}

void TPlannerForm::ViewClick(vcl::TObject*)
{
    ShowDetails(FTimeView->GetSelectedItem());
}

void TPlannerForm::FormCloseQuery(vcl::TObject*, bool& CanClose)
{
    CanClose = true;
    if (OnRemember)
        OnRemember(CurrentState());
}

void TPlannerForm::CMSysColorChange(vcl::TMessage& Message)
{
    TForm::CMSysColorChange(Message);
    // The items' colours follow the system's: light tints or dark shades.
    if (FTimeView)
        FillView();
}

} // namespace planner
