#include "examples/calendar/Calendars.h"

#include <chrono>
#include <cmath>
#include <cstdio>
#include <filesystem>
#include <fstream>

#include <unistd.h>

#include "planner/calendar/CalendarError.h"

namespace planner::tests
{

namespace
{

constexpr int EpochDay = 25569;

std::string DateText(vcl::TDateTime Time)
{
    using namespace std::chrono;
    const year_month_day Date(sys_days(days(static_cast<int>(std::floor(Time + 1e-7)) - EpochDay)));
    char Text[32];
    std::snprintf(Text, sizeof Text, "%04d-%02u-%02u", static_cast<int>(Date.year()),
                  static_cast<unsigned>(Date.month()), static_cast<unsigned>(Date.day()));
    return Text;
}

std::string TimeText(vcl::TDateTime Time)
{
    const long Second = std::lround((Time - std::floor(Time + 1e-7)) * 86400);
    char Text[32];
    std::snprintf(Text, sizeof Text, "%02ld:%02ld", Second / 3600, Second / 60 % 60);
    return Second % 60 == 0 ? Text : Text + (":" + std::to_string(Second % 60));
}

std::string ToLine(const TCalendarEvent& Event)
{
    const std::string Start = DateText(Event.Start);
    if (Event.AllDay) {
        const std::string Last = DateText(Event.Finish - 1);
        return Start + (Last == Start ? "" : "-" + Last) + " " + Event.Summary;
    }
    const std::string Finish = DateText(Event.Finish);
    return Start + " " + TimeText(Event.Start) + "-" + (Finish == Start ? "" : Finish + " ") +
           TimeText(Event.Finish) + " " + Event.Summary;
}

} // namespace

vcl::TDate Day(const std::string& Text)
{
    using namespace std::chrono;
    const sys_days Date =
        year(std::stoi(Text.substr(0, 4))) / std::stoi(Text.substr(5, 2)) / std::stoi(Text.substr(8, 2));
    return static_cast<double>(Date.time_since_epoch().count()) + EpochDay;
}

std::string Calendar(const std::string& Events)
{
    return "BEGIN:VCALENDAR\r\nVERSION:2.0\r\n" + Events + "END:VCALENDAR\r\n";
}

std::string Event(const std::string& Summary, const std::string& Properties)
{
    return "BEGIN:VEVENT\nUID:" + Summary + "\nSUMMARY:" + Summary + "\n" + Properties + "END:VEVENT\n";
}

CalendarTest::CalendarTest()
    : FFolder(std::filesystem::temp_directory_path().string() + "/calendars-" + std::to_string(getpid()))
{
    std::filesystem::create_directories(FFolder);
}

CalendarTest::~CalendarTest()
{
    std::filesystem::remove_all(FFolder);
}

std::string CalendarTest::Write(const std::string& Name, const std::string& Text) const
{
    std::ofstream(FFolder + "/" + Name, std::ios::binary) << Text;
    return FFolder + "/" + Name;
}

TLines CalendarTest::Show(const std::string& Text, const std::string& From, const std::string& To,
                          const std::string& Zone) const
{
    TCalendarSet Calendars(Zone);
    Calendars.Load({Write("shown.ics", Text)});
    return ToLines(Calendars.Events(Day(From), Day(To)));
}

std::string CalendarTest::ErrorOf(const std::string& Text) const
{
    try {
        TCalendarSet("UTC").Add(Write("bad.ics", Text));
    } catch (const ECalendarError& Error) {
        EXPECT_EQ(Error.GetFileName(), FFolder + "/bad.ics");
        return std::string(Error.what()).substr(FFolder.size() + 1);
    }
    return "no error";
}

TLines ToLines(const TCalendarSet::TEvents& Events)
{
    TLines Lines;
    for (const TCalendarEvent& Each : Events.Events)
        Lines.push_back(ToLine(Each));
    return Lines;
}

} // namespace planner::tests
