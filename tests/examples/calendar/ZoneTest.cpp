#include <cstdlib>

#include "examples/calendar/Calendars.h"
#include "planner/calendar/CalendarError.h"

namespace planner::tests
{
namespace
{

using Zones = CalendarTest;

// A made-up zone: three hours before UTC, two and a half in summer.
const std::string Island = R"(BEGIN:VTIMEZONE
TZID:Island
BEGIN:STANDARD
DTSTART:20001029T030000
RRULE:FREQ=YEARLY;BYDAY=-1SU;BYMONTH=10
TZOFFSETFROM:+0330
TZOFFSETTO:+0300
END:STANDARD
BEGIN:DAYLIGHT
DTSTART:20000326T020000
RRULE:FREQ=YEARLY;BYDAY=-1SU;BYMONTH=3
TZOFFSETFROM:+0300
TZOFFSETTO:+0330
END:DAYLIGHT
END:VTIMEZONE
)";

TEST_F(Zones, ATimeInUtcIsShownInTheChosenZone)
{
    const std::string Text = Calendar(Event("Call", "DTSTART:20240115T130000Z\nDTEND:20240115T140000Z\n"));
    EXPECT_THAT(Show(Text, "2024-01-15", "2024-01-16"), ElementsAre("2024-01-15 14:00-15:00 Call"));
    EXPECT_THAT(Show(Text, "2024-01-15", "2024-01-16", "America/New_York"),
                ElementsAre("2024-01-15 08:00-09:00 Call"));
}

TEST_F(Zones, ATimeWithoutAZoneIsTheSameOnEveryWall)
{
    const std::string Text = Calendar(Event("Lunch", "DTSTART:20240715T120000\nDTEND:20240715T130000\n"));
    for (const char* Zone : {"Europe/Berlin", "Asia/Tokyo", "UTC"})
        EXPECT_THAT(Show(Text, "2024-07-15", "2024-07-16", Zone),
                    ElementsAre("2024-07-15 12:00-13:00 Lunch"));
}

TEST_F(Zones, AZoneKnownByNameIsConverted)
{
    const std::string Text = Calendar(Event(
        "Demo", "DTSTART;TZID=America/New_York:20240715T090000\nDTEND;TZID=Europe/London:20240715T150000\n"));
    EXPECT_THAT(Show(Text, "2024-07-15", "2024-07-16"), ElementsAre("2024-07-15 15:00-16:00 Demo"));
}

TEST_F(Zones, AZoneThatTheFileDefinesIsUsedAlsoWhenItStandsAfterTheEvents)
{
    const std::string Winter = Event("Winter", "DTSTART;TZID=Island:20240115T120000\n");
    const std::string Summer = Event("Summer", "DTSTART;TZID=\"Island\":20240715T120000\n");
    for (const std::string& Text : {Calendar(Island + Winter + Summer), Calendar(Winter + Summer + Island)}) {
        EXPECT_THAT(Show(Text, "2024-01-01", "2025-01-01", "UTC"),
                    ElementsAre("2024-01-15 09:00-09:00 Winter", "2024-07-15 08:30-08:30 Summer"));
    }
}

TEST_F(Zones, ANameWithAMakersPrefixIsKnownByItsEnd)
{
    const std::string Text =
        Calendar(Event("Talk", "DTSTART;TZID=/example.org/20240101/Asia/Tokyo:20240115T090000\n"));
    EXPECT_THAT(Show(Text, "2024-01-15", "2024-01-16", "UTC"), ElementsAre("2024-01-15 00:00-00:00 Talk"));
}

TEST_F(Zones, AnUnknownZoneIsTakenAsLocalAndNotedOnce)
{
    const std::string Both = Event("One", "DTSTART;TZID=Atlantis:20240115T090000\n") +
                             Event("Two", "DTSTART;TZID=Atlantis:20240115T100000\n");
    TCalendarSet Calendars("Europe/Berlin");
    Calendars.Load({Write("a.ics", Calendar(Both))});
    EXPECT_THAT(ToLines(Calendars.Events(Day("2024-01-15"), Day("2024-01-16"))),
                ElementsAre("2024-01-15 09:00-09:00 One", "2024-01-15 10:00-10:00 Two"));
    EXPECT_THAT(Calendars.GetCalendar(0).File.GetNotes(),
                ElementsAre(HasSubstr("a.ics:6: the time zone \"Atlantis\" is unknown")));
}

TEST_F(Zones, AZoneWithRulesForEverySecondDoesNotHang)
{
    std::string Mad = Island;
    Mad.replace(Mad.find("FREQ=YEARLY"), 11, "FREQ=SECONDLY");
    const std::string Text = Calendar(Mad + Event("Talk", "DTSTART;TZID=Island:20240115T120000\n"));
    EXPECT_EQ(Show(Text, "2024-01-15", "2024-01-16", "UTC").size(), 1u);
}

TEST_F(Zones, AWeeklyMeetingStaysAtItsHourWhenTheClocksChange)
{
    const std::string Text = Calendar(
        Event("Team", "DTSTART;TZID=Europe/Berlin:20240321T100000\nDTEND;TZID=Europe/Berlin:20240321T110000\n"
                      "RRULE:FREQ=WEEKLY\n"));
    EXPECT_THAT(Show(Text, "2024-03-21", "2024-04-05"),
                ElementsAre("2024-03-21 10:00-11:00 Team", "2024-03-28 10:00-11:00 Team",
                            "2024-04-04 10:00-11:00 Team"));
    EXPECT_THAT(Show(Text, "2024-03-21", "2024-04-05", "UTC"),
                ElementsAre("2024-03-21 09:00-10:00 Team", "2024-03-28 09:00-10:00 Team",
                            "2024-04-04 08:00-09:00 Team"));
}

TEST_F(Zones, ATimeThatTheClocksSkipIsReadWithTheOffsetBefore)
{
    const std::string Text = Calendar(Event("Night", "DTSTART;TZID=Europe/Berlin:20240331T023000\n"));
    EXPECT_THAT(Show(Text, "2024-03-31", "2024-04-01"), ElementsAre("2024-03-31 03:30-03:30 Night"));
}

TEST_F(Zones, ATimeThatComesTwiceIsTheFirstOfTheTwo)
{
    const std::string Text = Calendar(Event("Night", "DTSTART;TZID=Europe/Berlin:20241027T023000\n"));
    EXPECT_THAT(Show(Text, "2024-10-27", "2024-10-28", "UTC"), ElementsAre("2024-10-27 00:30-00:30 Night"));
}

TEST_F(Zones, AnEndLastsItsHoursThroughTheNightButADurationOfADayEndsAtTheSameTime)
{
    const std::string Start = "DTSTART;TZID=Europe/Berlin:20240330T220000\n";
    EXPECT_THAT(Show(Calendar(Event("Hours", Start + "DURATION:PT24H\n")), "2024-03-30", "2024-04-01"),
                ElementsAre("2024-03-30 22:00-2024-03-31 23:00 Hours"));
    EXPECT_THAT(Show(Calendar(Event("Day", Start + "DURATION:P1D\n")), "2024-03-30", "2024-04-01"),
                ElementsAre("2024-03-30 22:00-2024-03-31 22:00 Day"));
}

TEST_F(Zones, YearsBeyondTheSystemsTablesKeepTheirSummerTime)
{
    const std::string Text = Calendar(Event("Far", "DTSTART:20600715T100000Z\n"));
    EXPECT_THAT(Show(Text, "2060-07-15", "2060-07-16"), ElementsAre("2060-07-15 12:00-12:00 Far"));
}

TEST_F(Zones, AZoneThatTheSystemDoesNotKnowIsAnError)
{
    EXPECT_THROW(TCalendarSet("Mars/Olympus"), ECalendarError);
}

TEST_F(Zones, TheZoneOfTheEnvironmentIsTheLocalOne)
{
    const char* Old = std::getenv("TZ");
    const std::string Saved = Old ? Old : "";
    setenv("TZ", ":Asia/Tokyo", 1);
    TCalendarSet Calendars;
    EXPECT_EQ(LocalZoneName(), "Asia/Tokyo");
    if (Old)
        setenv("TZ", Saved.c_str(), 1);
    else
        unsetenv("TZ");
    Calendars.Load({Write("a.ics", Calendar(Event("Call", "DTSTART:20240115T000000Z\n")))});
    EXPECT_THAT(ToLines(Calendars.Events(Day("2024-01-15"), Day("2024-01-16"))),
                ElementsAre("2024-01-15 09:00-09:00 Call"));
}

} // namespace
} // namespace planner::tests
