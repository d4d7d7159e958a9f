#include "planner/EventText.h"

#include <cmath>

#include "vcl/system/DateTime.h"
#include "vcl/system/FormatDateTime.h"

namespace planner
{

namespace
{

constexpr double QuarterHour = 1.0 / 96;
const char* const Dash = " \xE2\x80\x93 ";

std::string SpanOfDates(vcl::TDate First, vcl::TDate Last)
{
    const vcl::TDateParts From = vcl::DecodeDate(First);
    const vcl::TDateParts To = vcl::DecodeDate(Last);
    const std::string End = vcl::FormatDateTime("d mmmm yyyy", Last);
    if (First == Last)
        return End;
    if (From.Year != To.Year)
        return vcl::FormatDateTime("d mmmm yyyy", First) + Dash + End;
    if (From.Month != To.Month)
        return vcl::FormatDateTime("d mmmm", First) + Dash + End;
    return vcl::FormatDateTime("d", First) + Dash + End;
}

std::string FirstLine(const std::string& Text)
{
    return Text.substr(0, Text.find('\n'));
}

} // namespace

vcl::TDateTime ShownEnd(const TCalendarEvent& Event)
{
    return Event.Finish > Event.Start ? Event.Finish : Event.Start + QuarterHour;
}

std::string WhenText(const TCalendarEvent& Event)
{
    if (Event.AllDay)
        return SpanOfDates(Event.Start, std::max(Event.Start, Event.Finish - 1));
    const std::string Start = vcl::FormatDateTime("ddd d mmmm yyyy, hh:nn", Event.Start);
    if (Event.Finish <= Event.Start)
        return Start;
    const bool IsSameDay = std::floor(Event.Start) == std::floor(Event.Finish);
    return Start + Dash + vcl::FormatDateTime(IsSameDay ? "hh:nn" : "ddd d mmmm yyyy, hh:nn", Event.Finish);
}

std::string DetailsText(const TCalendarEvent& Event)
{
    std::string Text = WhenText(Event) + "   " + Event.Summary;
    if (!Event.Location.empty())
        Text += "   (" + FirstLine(Event.Location) + ")";
    return Text;
}

std::string RangeText(vcl::TDate First, int Days)
{
    if (Days == 1)
        return vcl::FormatDateTime("dddd d mmmm yyyy", First);
    return SpanOfDates(First, First + Days - 1);
}

std::string CountText(std::size_t Count)
{
    return std::to_string(Count) + (Count == 1 ? " event" : " events");
}

} // namespace planner
