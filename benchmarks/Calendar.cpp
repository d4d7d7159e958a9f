#include <benchmark/benchmark.h>

#include "benchmarks/Table.h"
#include "planner/calendar/CalendarFile.h"
#include "planner/calendar/Series.h"

namespace ks::bench
{

namespace
{

constexpr planner::TSeconds NewYear = 1767225600;

std::string Number(int Value, std::size_t Digits)
{
    const std::string Text = std::to_string(Value);
    return std::string(Digits - std::min(Digits, Text.size()), '0') + Text;
}

/// A year of a busy calendar: every tenth event recurs each week.
std::string BusyCalendar(int Events)
{
    std::string Text = "BEGIN:VCALENDAR\r\nVERSION:2.0\r\n";
    for (int Index = 0; Index < Events; ++Index) {
        const std::string Date = "2026" + Number(Index % 12 + 1, 2) + Number(Index % 28 + 1, 2);
        Text += "BEGIN:VEVENT\r\nUID:" + std::to_string(Index) + "\r\nSUMMARY:Appointment " +
                std::to_string(Index) + "\r\nDTSTART;TZID=Europe/Berlin:" + Date + "T" +
                Number(Index % 12 + 7, 2) + "0000\r\nDURATION:PT45M\r\n";
        if (Index % 10 == 0)
            Text += "RRULE:FREQ=WEEKLY;BYDAY=MO,WE\r\n";
        Text += "END:VEVENT\r\n";
    }
    return Text + "END:VCALENDAR\r\n";
}

void LoadCalendar(benchmark::State& State)
{
    const std::string Text = BusyCalendar(5000);
    for (auto _ : State)
        benchmark::DoNotOptimize(planner::TCalendarFile::Parse("busy.ics", Text, planner::TZone()));
}

void ExpandWeek(benchmark::State& State)
{
    const auto File = planner::TCalendarFile::Parse("busy.ics", BusyCalendar(5000), planner::TZone());
    for (auto _ : State) {
        std::vector<planner::TSeries::TInstance> Instances;
        for (const planner::TSeries& Series : File.GetSeries())
            Series.Collect(NewYear, NewYear + 7 * planner::SecondsADay, Instances);
        benchmark::DoNotOptimize(Instances.data());
    }
}

} // namespace

void AddCalendarCases(TCases& Cases)
{
    Cases.Rows.push_back({.Name = "load a calendar file of 5,000 events", .Run = LoadCalendar});
    Cases.Rows.push_back(
        {.Name = "find the events of a week in it, 500 of them recurring", .Run = ExpandWeek});
}

} // namespace ks::bench
