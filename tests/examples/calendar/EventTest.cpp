#include "examples/calendar/Calendars.h"

namespace planner::tests
{
namespace
{

using Events = CalendarTest;

TEST_F(Events, AnAllDayEventEndsBeforeItsEndDate)
{
    const std::string Text =
        Calendar(Event("Fair", "DTSTART;VALUE=DATE:20240506\nDTEND;VALUE=DATE:20240509\n") +
                 Event("Holiday", "DTSTART;VALUE=DATE:20240509\n") +
                 Event("Odd", "DTSTART;VALUE=DATE:20240510\nDTEND;VALUE=DATE:20240510\n"));
    EXPECT_THAT(Show(Text, "2024-05-06", "2024-05-13"),
                ElementsAre("2024-05-06-2024-05-08 Fair", "2024-05-09 Holiday", "2024-05-10 Odd"));
}

TEST_F(Events, AnAllDayEventBelongsToItsDaysInEveryZone)
{
    const std::string Text = Calendar(Event("Holiday", "DTSTART;VALUE=DATE:20240509\n"));
    for (const char* Zone : {"Pacific/Auckland", "America/Los_Angeles"}) {
        EXPECT_THAT(Show(Text, "2024-05-09", "2024-05-10", Zone), ElementsAre("2024-05-09 Holiday"));
        EXPECT_THAT(Show(Text, "2024-05-08", "2024-05-09", Zone), IsEmpty());
        EXPECT_THAT(Show(Text, "2024-05-10", "2024-05-11", Zone), IsEmpty());
    }
}

TEST_F(Events, AnEventThatBeganBeforeTheRangeIsInItAsLongAsItLasts)
{
    const std::string Text = Calendar(Event("Night", "DTSTART:20240506T220000\nDTEND:20240507T060000\n"));
    EXPECT_THAT(Show(Text, "2024-05-07", "2024-05-08"),
                ElementsAre("2024-05-06 22:00-2024-05-07 06:00 Night"));
    const std::string Full = Calendar(Event("Evening", "DTSTART:20240506T220000\nDTEND:20240507T000000\n"));
    EXPECT_THAT(Show(Full, "2024-05-07", "2024-05-08"), IsEmpty());
}

TEST_F(Events, AnEventWithoutEndOrWithAnEndBeforeItsStartHasNoLength)
{
    const std::string Text = Calendar(Event("Ring", "DTSTART:20240506T090000\n") +
                                      Event("Slip", "DTSTART:20240506T100000\nDTEND:20240506T090000\n"));
    EXPECT_THAT(Show(Text, "2024-05-06", "2024-05-07"),
                ElementsAre("2024-05-06 09:00-09:00 Ring", "2024-05-06 10:00-10:00 Slip"));
}

TEST_F(Events, AnEventWithoutLengthAtMidnightBelongsToTheDayThatBegins)
{
    const std::string Text = Calendar(Event("Midnight", "DTSTART:20240507T000000\n"));
    EXPECT_THAT(Show(Text, "2024-05-06", "2024-05-07"), IsEmpty());
    EXPECT_THAT(Show(Text, "2024-05-07", "2024-05-08"), ElementsAre("2024-05-07 00:00-00:00 Midnight"));
}

TEST_F(Events, ADurationGivesTheEnd)
{
    const std::string Text = Calendar(Event("Short", "DTSTART:20240506T090000\nDURATION:PT1H30M\n") +
                                      Event("Trip", "DTSTART;VALUE=DATE:20240506\nDURATION:P2D\n") +
                                      Event("Rest", "DURATION:P1W\nDTSTART:20240506T100000\n"));
    EXPECT_THAT(Show(Text, "2024-05-06", "2024-05-07"),
                ElementsAre("2024-05-06-2024-05-07 Trip", "2024-05-06 09:00-10:30 Short",
                            "2024-05-06 10:00-2024-05-13 10:00 Rest"));
}

TEST_F(Events, ACancelledEventIsNotShown)
{
    const std::string Text = Calendar(Event("Off", "DTSTART:20240506T090000\nSTATUS:CANCELLED\n") +
                                      Event("On", "DTSTART:20240506T100000\nSTATUS:CONFIRMED\n"));
    EXPECT_THAT(Show(Text, "2024-05-06", "2024-05-07"), ElementsAre("2024-05-06 10:00-10:00 On"));
}

TEST_F(Events, OfSeveralStatesOfAnEventTheLastOneCounts)
{
    const std::string Text =
        Calendar("BEGIN:VEVENT\nUID:1\nSEQUENCE:2\nDTSTART:20240506T110000\nSUMMARY:New\nEND:VEVENT\n"
                 "BEGIN:VEVENT\nUID:1\nSEQUENCE:0\nDTSTART:20240506T090000\nSUMMARY:Old\nEND:VEVENT\n");
    EXPECT_THAT(Show(Text, "2024-05-06", "2024-05-07"), ElementsAre("2024-05-06 11:00-11:00 New"));
}

TEST_F(Events, AllTextsAndFlagsAreRead)
{
    TCalendarSet Calendars("UTC");
    Calendars.Load({Write("a.ics", Calendar(R"(BEGIN:VEVENT
UID:1
DTSTART:20240506T090000Z
SUMMARY:Caf\, \; and \\ more\nsecond
LOCATION:Room 5
DESCRIPTION:Long\Ntext
ORGANIZER;CN="Reed, Ann":mailto:ann@example.org
URL:https://example.org/a,b
CLASS:PRIVATE
BEGIN:VALARM
ACTION:DISPLAY
TRIGGER:-PT15M
DESCRIPTION:Not this one
END:VALARM
END:VEVENT
BEGIN:VEVENT
UID:2
DTSTART:20240506T100000Z
ORGANIZER:MAILTO:bob@example.org
CLASS:PUBLIC
END:VEVENT
)"))});
    const auto Shown = Calendars.Events(Day("2024-05-06"), Day("2024-05-07")).Events;
    ASSERT_EQ(Shown.size(), 2u);
    EXPECT_EQ(Shown[0].Summary, "Caf, ; and \\ more\nsecond");
    EXPECT_EQ(Shown[0].Location, "Room 5");
    EXPECT_EQ(Shown[0].Description, "Long\ntext");
    EXPECT_EQ(Shown[0].Organizer, "Reed, Ann");
    EXPECT_EQ(Shown[0].Url, "https://example.org/a,b");
    EXPECT_TRUE(Shown[0].Private);
    EXPECT_TRUE(Shown[0].Reminder);
    EXPECT_FALSE(Shown[0].Recurring);
    EXPECT_EQ(Shown[1].Organizer, "bob@example.org");
    EXPECT_FALSE(Shown[1].Private);
    EXPECT_FALSE(Shown[1].Reminder);
}

TEST_F(Events, FoldedLinesAreJoinedAlsoInTheMiddleOfACharacter)
{
    const std::string Text =
        Calendar("BEGIN:VEVENT\r\nUID:1\r\nDTSTART:2024050\r\n 6T090000\r\nSUMMARY:Gr\xC3\r\n"
                 " \xBC\xC3\x9F\r\n\te aus K\xC3\xB6ln\r\nEND:VEVENT\r\n");
    EXPECT_THAT(Show(Text, "2024-05-06", "2024-05-07"), ElementsAre("2024-05-06 09:00-09:00 Grüße aus Köln"));
}

TEST_F(Events, EveryKindOfLineEndAndAByteOrderMarkAreFine)
{
    for (const std::string End : {"\r\n", "\n", "\r"}) {
        std::string Text = "\xEF\xBB\xBF";
        for (const char* Line : {"begin:vcalendar", "BEGIN:VEVENT", "dtstart:20240506T090000", "Summary:Any",
                                 "", "END:VEVENT", "End:VCalendar"})
            Text += Line + End;
        EXPECT_THAT(Show(Text, "2024-05-06", "2024-05-07"), ElementsAre("2024-05-06 09:00-09:00 Any"));
    }
}

TEST_F(Events, ToDosAndOtherBlocksAreNoEvents)
{
    const std::string Text = Calendar("BEGIN:VTODO\nUID:t\nDTSTART:20240506T090000\nEND:VTODO\n"
                                      "BEGIN:X-OWN\nANY:thing\nEND:X-OWN\n");
    EXPECT_THAT(Show(Text, "2024-05-06", "2024-05-07"), IsEmpty());
}

TEST_F(Events, EventsComeInTheOrderOfTheirStartsAndTheLongerOneFirst)
{
    const std::string Text = Calendar(Event("Late", "DTSTART:20240506T110000\n") +
                                      Event("Short", "DTSTART:20240506T090000\nDURATION:PT1H\n") +
                                      Event("Long", "DTSTART:20240506T090000\nDURATION:PT3H\n"));
    EXPECT_THAT(Show(Text, "2024-05-06", "2024-05-07"),
                ElementsAre("2024-05-06 09:00-12:00 Long", "2024-05-06 09:00-10:00 Short",
                            "2024-05-06 11:00-11:00 Late"));
}

TEST_F(Events, AnEmptyReversedOrImpossibleRangeHasNoEvents)
{
    TCalendarSet Calendars("UTC");
    Calendars.Load({Write("a.ics", Calendar(Event("A", "DTSTART:20240506T090000\nRRULE:FREQ=DAILY\n")))});
    const double Nan = std::numeric_limits<double>::quiet_NaN();
    EXPECT_TRUE(Calendars.Events(Day("2024-05-06"), Day("2024-05-06")).Events.empty());
    EXPECT_TRUE(Calendars.Events(Day("2024-05-07"), Day("2024-05-06")).Events.empty());
    EXPECT_TRUE(Calendars.Events(Nan, Nan).Events.empty());
    EXPECT_TRUE(Calendars.Events(1e300, 1e308).Events.empty());
}

} // namespace
} // namespace planner::tests
