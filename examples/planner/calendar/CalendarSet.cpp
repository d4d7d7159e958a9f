#include "planner/calendar/CalendarSet.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <utility>

#include "planner/calendar/CalendarError.h"

namespace planner
{

namespace
{

/// Days from 1899-12-30, where vcl's dates begin, to 1970-01-01.
constexpr TSeconds DaysBeforeEpoch = 25569;
/// The years 1 to 9999 on vcl's scale; what is asked for outside has no events.
constexpr double FirstDay = -693593;
constexpr double LastDay = 2958465;

constexpr vcl::TColor FromRgb(int Red, int Green, int Blue)
{
    return static_cast<vcl::TColor>(Red | Green << 8 | Blue << 16);
}

/// The first calendar is the person's own and stays white; the others are told apart by their tint.
constexpr std::array CalendarColors{
    FromRgb(255, 255, 255), FromRgb(207, 226, 255), FromRgb(213, 240, 208), FromRgb(255, 229, 196),
    FromRgb(233, 214, 247), FromRgb(255, 214, 217), FromRgb(203, 239, 239), FromRgb(250, 243, 190),
};

TSeconds ToSeconds(vcl::TDateTime Time)
{
    // Comparisons are made so that a time that is no number becomes the first day.
    const double Limited = Time > FirstDay ? std::min(Time, LastDay) : FirstDay;
    return std::llround((Limited - static_cast<double>(DaysBeforeEpoch)) * static_cast<double>(SecondsADay));
}

vcl::TDateTime ToDateTime(TSeconds Wall)
{
    return static_cast<double>(Wall) / static_cast<double>(SecondsADay) +
           static_cast<double>(DaysBeforeEpoch);
}

TZone LocalZone()
{
    return FindZone(LocalZoneName()).value_or(TZone());
}

TZone ZoneCalled(const std::string& Name)
{
    if (const std::optional<TZone> Zone = FindZone(Name))
        return *Zone;
    throw ECalendarError(Name, 0, "the system knows no time zone of this name");
}

TCalendarEvent ToEvent(const TEventTexts& Texts)
{
    TCalendarEvent Event;
    Event.Summary = Texts.Summary;
    Event.Location = Texts.Location;
    Event.Description = Texts.Description;
    Event.Organizer = Texts.Organizer;
    Event.Url = Texts.Url;
    Event.Private = Texts.Private;
    Event.Reminder = Texts.Reminder;
    return Event;
}

std::string CappedNote(const TCalendarFile& File, const TEventRecord& Record)
{
    return File.GetFileName() + ":" + std::to_string(Record.Line) + ": \"" + Record.Texts.Summary +
           "\" recurs too often; not all of its times are shown";
}

bool ComesBefore(const TCalendarEvent& Left, const TCalendarEvent& Right)
{
    return Left.Start != Right.Start ? Left.Start < Right.Start : Left.Finish > Right.Finish;
}

} // namespace

TCalendarSet::TCalendarSet(const std::string& ZoneName) : FZone(ZoneCalled(ZoneName))
{
}

TCalendarSet::TCalendarSet() : FZone(LocalZone())
{
}

void TCalendarSet::Load(const std::vector<std::string>& FileNames)
{
    TCalendarSet Next(FZone);
    for (const std::string& FileName : FileNames)
        Next.Add(FileName);
    FCalendars = std::move(Next.FCalendars);
}

void TCalendarSet::Add(const std::string& FileName)
{
    TCalendarFile File = TCalendarFile::Load(FileName, FZone);
    const vcl::TColor Color = CalendarColors[FCalendars.size() % CalendarColors.size()];
    FCalendars.push_back({std::move(File), Color});
}

TCalendarSet::TEvents TCalendarSet::Events(vcl::TDateTime From, vcl::TDateTime To) const
{
    TEvents Result;
    const TSeconds FromUtc = FZone.ToUtc(ToSeconds(From));
    const TSeconds ToUtc = FZone.ToUtc(ToSeconds(To));
    if (ToUtc <= FromUtc)
        return Result;
    std::vector<TSeries::TInstance> Instances;
    for (std::size_t Index = 0; Index < FCalendars.size(); ++Index) {
        const TCalendarFile& File = FCalendars[Index].File;
        for (const TSeries& Series : File.GetSeries()) {
            Instances.clear();
            if (Series.Collect(FromUtc, ToUtc, Instances))
                Result.Notes.push_back(CappedNote(File, Series.GetMain()));
            for (const TSeries::TInstance& Instance : Instances) {
                TCalendarEvent& Event = Result.Events.emplace_back(ToEvent(Instance.Record->Texts));
                Event.Start = ToDateTime(FZone.ToWall(Instance.Start));
                Event.Finish = std::max(Event.Start, ToDateTime(FZone.ToWall(Instance.Finish)));
                Event.AllDay = Instance.Record->Start.IsDate;
                Event.Recurring = Instance.Recurring;
                Event.Calendar = static_cast<int>(Index);
            }
        }
    }
    std::stable_sort(Result.Events.begin(), Result.Events.end(), ComesBefore);
    return Result;
}

vcl::TDate TCalendarSet::NearestDay(vcl::TDate Day) const
{
    constexpr double Near = 7;
    if (!Events(Day - Near, Day + Near).Events.empty())
        return Day;
    vcl::TDate Best = Day;
    double BestDistance = LastDay - FirstDay;
    for (const TCalendar& Calendar : FCalendars) {
        for (const TSeries& Series : Calendar.File.GetSeries()) {
            const vcl::TDate Start = std::floor(ToDateTime(FZone.ToWall(Series.GetMain().Start.ToUtc())));
            if (std::abs(Start - Day) < BestDistance) {
                BestDistance = std::abs(Start - Day);
                Best = Start;
            }
        }
    }
    return Best;
}

} // namespace planner
