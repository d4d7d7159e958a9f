#include <algorithm>

#include "examples/calendar/Calendars.h"
#include "planner/calendar/CalendarError.h"

namespace planner::tests
{
namespace
{

using Files = CalendarTest;

TEST_F(Files, ACalendarIsCalledAsItSaysOrElseAsItsFile)
{
    TCalendarSet Calendars("UTC");
    Calendars.Load({Write("work.ics", Calendar("")),
                    Write("b.ics", Calendar("X-WR-CALNAME:Family\\, friends\nBEGIN:VTODO\nEND:VTODO\n"))});
    EXPECT_EQ(Calendars.GetCalendar(0).File.GetName(), "work");
    EXPECT_EQ(Calendars.GetCalendar(1).File.GetName(), "Family, friends");
}

TEST_F(Files, SeveralFilesAreShownTogetherInColoursOfTheirOwn)
{
    TCalendarSet Calendars("UTC");
    Calendars.Load({Write("a.ics", Calendar(Event("A", "DTSTART:20240506T090000\n"))),
                    Write("b.ics", Calendar(Event("B", "DTSTART:20240506T080000\n")))});
    const auto Shown = Calendars.Events(Day("2024-05-06"), Day("2024-05-07")).Events;
    ASSERT_EQ(Shown.size(), 2u);
    EXPECT_EQ(Shown[0].Calendar, 1);
    EXPECT_EQ(Shown[1].Calendar, 0);
    EXPECT_NE(Calendars.GetCalendar(0).Color, Calendars.GetCalendar(1).Color);
}

TEST_F(Files, AFileThatCannotBeReadLeavesWhatWasShown)
{
    TCalendarSet Calendars("UTC");
    const std::string Good = Write("good.ics", Calendar(Event("Good", "DTSTART:20240506T090000\n")));
    Calendars.Load({Good});
    const std::string Bad = Write("bad.ics", Calendar(Event("Bad", "DTSTART:tomorrow\n")));
    EXPECT_THROW(Calendars.Load({Good, Bad}), ECalendarError);
    EXPECT_THROW(Calendars.Add(Bad), ECalendarError);
    EXPECT_EQ(Calendars.GetCalendarCount(), 1);
    EXPECT_THAT(ToLines(Calendars.Events(Day("2024-05-06"), Day("2024-05-07"))),
                ElementsAre("2024-05-06 09:00-09:00 Good"));
}

TEST_F(Files, AMissingFileOrAFolderIsAnErrorThatNamesIt)
{
    TCalendarSet Calendars("UTC");
    try {
        Calendars.Load({FFolder + "/none.ics"});
        FAIL();
    } catch (const ECalendarError& Error) {
        EXPECT_EQ(Error.what(), FFolder + "/none.ics: No such file or directory");
    }
    try {
        Calendars.Load({FFolder});
        FAIL();
    } catch (const ECalendarError& Error) {
        EXPECT_EQ(Error.what(), FFolder + ": this is a folder");
    }
}

TEST_F(Files, WhatIsNoCalendarSaysSo)
{
    EXPECT_EQ(ErrorOf(""), "bad.ics: not a calendar: there is no BEGIN:VCALENDAR");
    EXPECT_EQ(ErrorOf("\n\nHello\n"), "bad.ics:3: \"Hello\" is not a property (NAME:VALUE)");
    EXPECT_EQ(ErrorOf("Dear: Sir\n"),
              "bad.ics:1: not a calendar: \"Dear: Sir\" stands before BEGIN:VCALENDAR");
    EXPECT_EQ(ErrorOf("BEGIN:VCARD\nEND:VCARD\n"), "bad.ics:1: not a calendar: it begins with \"VCARD\"");
    EXPECT_EQ(ErrorOf(std::string("\x89PNG\0\0", 6)), "bad.ics:1: not a text file");
}

TEST_F(Files, BlocksThatDoNotMatchAreReportedWithBothLines)
{
    EXPECT_EQ(ErrorOf("BEGIN:VCALENDAR\nBEGIN:VEVENT\nDTSTART:20240506T090000\n"),
              "bad.ics:2: BEGIN:VEVENT has no END; the file is cut off");
    EXPECT_EQ(ErrorOf("BEGIN:VCALENDAR\nBEGIN:VEVENT\nEND:VCALENDAR\n"),
              "bad.ics:3: END:VCALENDAR where END:VEVENT belongs (BEGIN in line 2)");
    EXPECT_EQ(ErrorOf("BEGIN:VCALENDAR\nEND:VCALENDAR\nEND:VCALENDAR\n"),
              "bad.ics:3: END:VCALENDAR without its BEGIN");
}

TEST_F(Files, BlocksNestedWithoutEndAreRefused)
{
    std::string Text = "BEGIN:VCALENDAR\n";
    for (int Count = 0; Count < 100000; ++Count)
        Text += "BEGIN:A\n";
    EXPECT_EQ(ErrorOf(Text), "bad.ics:17: BEGIN:A is nested too deep");
}

TEST_F(Files, ALineNumberCountsFoldedLines)
{
    EXPECT_EQ(ErrorOf(Calendar("X-LONG:one\r\n  two\r\n  three\r\nno property\r\n")),
              "bad.ics:6: \"no property\" is not a property (NAME:VALUE)");
}

TEST_F(Files, AWrongTimeRuleOrDurationIsReportedWithItsLine)
{
    const auto ErrorIn = [&](const std::string& Property) {
        return ErrorOf(Calendar("BEGIN:VEVENT\nDTSTART:20240506T090000\n" + Property + "\nEND:VEVENT\n"));
    };
    EXPECT_EQ(ErrorIn("DTEND:20240532T090000"),
              "bad.ics:5: DTEND: \"20240532T090000\" is not a date or time");
    EXPECT_EQ(ErrorIn("EXDATE:20240507T090000,soon"), "bad.ics:5: EXDATE: \"soon\" is not a date or time");
    EXPECT_EQ(ErrorIn("RDATE:00000000"), "bad.ics:5: RDATE: \"00000000\" is not a date or time");
    EXPECT_EQ(ErrorIn("RECURRENCE-ID:x"), "bad.ics:5: RECURRENCE-ID: \"x\" is not a date or time");
    EXPECT_EQ(ErrorIn("DURATION:long"), "bad.ics:5: DURATION: \"long\" is not a duration");
    EXPECT_EQ(ErrorIn("DURATION:-PT1H"), "bad.ics:5: DURATION: \"-PT1H\" is not a duration");
    EXPECT_EQ(ErrorIn("RRULE:FREQ=OFTEN"), "bad.ics:5: RRULE: \"FREQ=OFTEN\" is not a recurrence rule");
    EXPECT_EQ(ErrorIn("EXRULE:COUNT=3"), "bad.ics:5: EXRULE: \"COUNT=3\" is not a recurrence rule");
}

TEST_F(Files, AnEventWithoutStartIsReportedWhereItBegins)
{
    EXPECT_EQ(ErrorOf(Calendar("BEGIN:VEVENT\nSUMMARY:When?\nEND:VEVENT\n")),
              "bad.ics:3: this event has no DTSTART");
}

TEST_F(Files, ALongLineIsQuotedShortAndNotInTheMiddleOfACharacter)
{
    const std::string Line = std::string(39, 'x') + "\xC3\xA9 and more";
    EXPECT_EQ(ErrorOf(Line), "bad.ics:1: \"" + std::string(39, 'x') + "...\" is not a property (NAME:VALUE)");
}

TEST_F(Files, TheDayToOpenAtIsTheOneAskedForWhenSomethingIsNearOrElseTheNearest)
{
    TCalendarSet Calendars("UTC");
    EXPECT_EQ(Calendars.NearestDay(Day("2024-05-06")), Day("2024-05-06"));
    Calendars.Load({Write("a.ics", Calendar(Event("Old", "DTSTART:20100101T090000\n") +
                                            Event("New", "DTSTART:20200101T180000\n")))});
    EXPECT_EQ(Calendars.NearestDay(Day("2024-05-06")), Day("2020-01-01"));
    EXPECT_EQ(Calendars.NearestDay(Day("2019-12-28")), Day("2019-12-28"));
    EXPECT_EQ(Calendars.NearestDay(Day("2001-01-01")), Day("2010-01-01"));
}

TEST_F(Files, TheSampleCalendarsFillTheirWeekWithEveryKindOfEvent)
{
    const std::string Folder = KS_TEST_DATA "/../../examples/planner/data/";
    TCalendarSet Calendars("UTC");
    Calendars.Load({Folder + "sample.ics", Folder + "family.ics"});
    const auto Week = Calendars.Events(Day("2026-03-16"), Day("2026-03-23"));
    const auto Has = [&](bool TCalendarEvent::*Flag) {
        return std::any_of(Week.Events.begin(), Week.Events.end(),
                           [&](const TCalendarEvent& Each) { return Each.*Flag; });
    };
    EXPECT_GT(Week.Events.size(), 30u);
    EXPECT_TRUE(Has(&TCalendarEvent::AllDay));
    EXPECT_TRUE(Has(&TCalendarEvent::Private));
    EXPECT_TRUE(Has(&TCalendarEvent::Reminder));
    EXPECT_TRUE(Has(&TCalendarEvent::Recurring));
    EXPECT_THAT(Week.Notes, IsEmpty());
    EXPECT_THAT(Calendars.GetCalendar(0).File.GetNotes(), IsEmpty());
}

} // namespace
} // namespace planner::tests
