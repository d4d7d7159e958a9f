#include <chrono>

#include "examples/calendar/Calendars.h"

namespace planner::tests
{
namespace
{

using Recurrences = CalendarTest;

std::string Weekly(const std::string& More)
{
    return Event("W", "DTSTART:20240506T090000\nDTEND:20240506T100000\nRRULE:FREQ=WEEKLY\n" + More);
}

/// Replaces one instance of the event that Weekly makes.
std::string Replacement(const std::string& Id, const std::string& Properties)
{
    return "BEGIN:VEVENT\nUID:W\nRECURRENCE-ID" + Id + "\n" + Properties + "END:VEVENT\n";
}

TEST_F(Recurrences, ARuleIsExpandedForTheShownRangeOnly)
{
    const std::string Text = Calendar(Weekly(""));
    EXPECT_THAT(Show(Text, "2024-05-06", "2024-05-20"),
                ElementsAre("2024-05-06 09:00-10:00 W", "2024-05-13 09:00-10:00 W"));
    EXPECT_THAT(Show(Text, "2044-05-01", "2044-05-08"), ElementsAre("2044-05-02 09:00-10:00 W"));
    EXPECT_THAT(Show(Text, "2024-04-01", "2024-05-06"), IsEmpty());
}

TEST_F(Recurrences, CountAndUntilEndARule)
{
    EXPECT_THAT(Show(Calendar(Event("C", "DTSTART:20240506T090000\nRRULE:FREQ=DAILY;COUNT=2\n")),
                     "2024-05-01", "2024-06-01"),
                ElementsAre("2024-05-06 09:00-09:00 C", "2024-05-07 09:00-09:00 C"));
    EXPECT_THAT(Show(Calendar(Event("C", "DTSTART:20240506T090000\nRRULE:FREQ=DAILY;COUNT=2\n")),
                     "2024-05-07", "2024-06-01"),
                ElementsAre("2024-05-07 09:00-09:00 C"));
    EXPECT_THAT(Show(Calendar(Event("D", "DTSTART:20240506T090000\nRRULE:FREQ=DAILY;UNTIL=20240507\n")),
                     "2024-05-01", "2024-06-01"),
                ElementsAre("2024-05-06 09:00-09:00 D", "2024-05-07 09:00-09:00 D"));
    EXPECT_THAT(
        Show(Calendar(Event("E", "DTSTART;VALUE=DATE:20240506\nRRULE:FREQ=DAILY;UNTIL=20240507T000000Z\n")),
             "2024-05-01", "2024-06-01"),
        ElementsAre("2024-05-06 E", "2024-05-07 E"));
}

TEST_F(Recurrences, AnUntilInUtcIsComparedInTheZoneOfTheEvent)
{
    // 15:00Z is 09:00 in Denver then: the instance at nine on the last day still belongs to the rule.
    const std::string Text = Calendar(Event("D", "DTSTART;TZID=America/Denver:20240506T090000\n"
                                                 "RRULE:FREQ=DAILY;UNTIL=20240507T150000Z\n"));
    EXPECT_THAT(Show(Text, "2024-05-01", "2024-06-01", "America/Denver"),
                ElementsAre("2024-05-06 09:00-09:00 D", "2024-05-07 09:00-09:00 D"));
}

TEST_F(Recurrences, EnteringARuleInTheMiddleKeepsItsIntervals)
{
    struct TRow {
        const char* Rule;
        int Days;
    };
    for (const TRow& Row :
         {TRow{"FREQ=DAILY;INTERVAL=3", 900}, TRow{"FREQ=WEEKLY;INTERVAL=2;BYDAY=MO,TH", 900},
          TRow{"FREQ=MONTHLY;INTERVAL=5;BYDAY=2TU", 4000}, TRow{"FREQ=MONTHLY;BYMONTHDAY=-1", 4000},
          TRow{"FREQ=YEARLY;INTERVAL=3", 9000}, TRow{"FREQ=HOURLY;INTERVAL=7", 60},
          TRow{"FREQ=MINUTELY;INTERVAL=1000", 60}}) {
        SCOPED_TRACE(Row.Rule);
        TCalendarSet Calendars("UTC");
        Calendars.Load(
            {Write("a.ics",
                   Calendar(Event("R", "DTSTART:20000103T090000\nRRULE:" + std::string(Row.Rule) + "\n")))});
        const vcl::TDate First = Day("2000-01-01");
        const TLines Whole = ToLines(Calendars.Events(First, First + Row.Days));
        TLines Pieces;
        for (int From = 0; From < Row.Days; From += 10) {
            for (const std::string& Line : ToLines(Calendars.Events(First + From, First + From + 10)))
                Pieces.push_back(Line);
        }
        EXPECT_GT(Whole.size(), 4u);
        EXPECT_EQ(Pieces, Whole);
    }
}

TEST_F(Recurrences, ExtraDatesAreAddedWithTheirOwnLengthWhenTheyArePeriods)
{
    const std::string Text =
        Calendar(Event("R", "DTSTART:20240506T090000\nDURATION:PT1H\nRDATE:20240507T110000,20240506T090000\n"
                            "RDATE;VALUE=PERIOD:20240508T120000/PT3H,20240509T120000/20240509T123000\n"));
    EXPECT_THAT(Show(Text, "2024-05-06", "2024-05-13"),
                ElementsAre("2024-05-06 09:00-10:00 R", "2024-05-07 11:00-12:00 R",
                            "2024-05-08 12:00-15:00 R", "2024-05-09 12:00-12:30 R"));
}

TEST_F(Recurrences, ExceptionDatesAreLeftOutWhateverZoneTheyAreGivenIn)
{
    const std::string Start = "DTSTART;TZID=Europe/Berlin:20240506T090000\nRRULE:FREQ=DAILY;COUNT=5\n";
    EXPECT_THAT(Show(Calendar(Event("E", Start + "EXDATE;TZID=Europe/Berlin:20240507T090000\n"
                                                 "EXDATE:20240508T070000Z,20240509T080000Z\n"
                                                 "EXDATE;VALUE=DATE:20240510\n")),
                     "2024-05-06", "2024-05-13"),
                ElementsAre("2024-05-06 09:00-09:00 E", "2024-05-09 09:00-09:00 E"));
}

TEST_F(Recurrences, TheFirstInstanceCanBeAnException)
{
    EXPECT_THAT(Show(Calendar(Weekly("EXDATE:20240506T090000\n")), "2024-05-06", "2024-05-20"),
                ElementsAre("2024-05-13 09:00-10:00 W"));
}

TEST_F(Recurrences, ExceptionsOfAllDayEventsAreDatesAlsoWhenWrittenAsTimes)
{
    EXPECT_THAT(Show(Calendar(Event("E", "DTSTART;VALUE=DATE:20240506\nRRULE:FREQ=DAILY;COUNT=3\n"
                                         "EXDATE:20240507T000000\n")),
                     "2024-05-06", "2024-05-13"),
                ElementsAre("2024-05-06 E", "2024-05-08 E"));
}

TEST_F(Recurrences, AnExceptionRuleTakesAwayWhatItMeets)
{
    EXPECT_THAT(Show(Calendar(Event("E", "DTSTART:20240506T090000\nRRULE:FREQ=DAILY;COUNT=4\n"
                                         "EXRULE:FREQ=DAILY;INTERVAL=2\n")),
                     "2024-05-06", "2024-05-13"),
                ElementsAre("2024-05-07 09:00-09:00 E", "2024-05-09 09:00-09:00 E"));
}

TEST_F(Recurrences, AReplacedInstanceIsShownWhereItWasMovedAndNotWhereItWas)
{
    const std::string Text =
        Calendar(Replacement(":20240513T090000", "DTSTART:20240515T140000\nDURATION:PT30M\nSUMMARY:Moved\n") +
                 Weekly(""));
    EXPECT_THAT(Show(Text, "2024-05-13", "2024-05-21"),
                ElementsAre("2024-05-15 14:00-14:30 Moved", "2024-05-20 09:00-10:00 W"));
}

TEST_F(Recurrences, AnInstanceThatWasMovedIntoTheRangeFromFarAwayIsShown)
{
    const std::string Text =
        Calendar(Weekly("") + Replacement(":20240513T090000", "DTSTART:20250101T140000\nSUMMARY:Moved\n"));
    EXPECT_THAT(Show(Text, "2025-01-01", "2025-01-02"), ElementsAre("2025-01-01 14:00-14:00 Moved"));
}

TEST_F(Recurrences, AReplacementIsFoundByTheSameMomentInAnotherZone)
{
    const std::string Text =
        Calendar(Event("W", "DTSTART;TZID=Europe/Berlin:20240506T090000\nRRULE:FREQ=WEEKLY;COUNT=2\n") +
                 Replacement(":20240513T070000Z", "DTSTART:20240513T080000Z\nSUMMARY:Later\n"));
    EXPECT_THAT(Show(Text, "2024-05-06", "2024-05-20"),
                ElementsAre("2024-05-06 09:00-09:00 W", "2024-05-13 10:00-10:00 Later"));
}

TEST_F(Recurrences, ACancelledInstanceIsNotShown)
{
    const std::string Text = Calendar(
        Weekly("") + Replacement(";VALUE=DATE:20240513", "DTSTART:20240513T090000\nSTATUS:CANCELLED\n"));
    EXPECT_THAT(Show(Text, "2024-05-06", "2024-05-27"),
                ElementsAre("2024-05-06 09:00-10:00 W", "2024-05-20 09:00-10:00 W"));
}

TEST_F(Recurrences, ACancelledSeriesTakesItsReplacementsWithIt)
{
    const std::string Text =
        Calendar(Weekly("STATUS:CANCELLED\n") + Replacement(":20240513T090000", "DTSTART:20240514T090000\n"));
    EXPECT_THAT(Show(Text, "2024-05-06", "2024-05-27"), IsEmpty());
}

TEST_F(Recurrences, AReplacementWithoutItsSeriesIsShownAlone)
{
    const std::string Text =
        Calendar(Replacement(":20240513T090000", "DTSTART:20240514T090000\nSUMMARY:Alone\n"));
    EXPECT_THAT(Show(Text, "2024-05-06", "2024-05-27"), ElementsAre("2024-05-14 09:00-09:00 Alone"));
}

TEST_F(Recurrences, AReplacementOfThisAndAllFollowingMovesThemAll)
{
    const std::string Text =
        Calendar(Weekly("") + Replacement(";RANGE=THISANDFUTURE:20240513T090000",
                                          "DTSTART:20240514T110000\nDURATION:PT2H\nSUMMARY:New\n"));
    EXPECT_THAT(Show(Text, "2024-05-06", "2024-05-29"),
                ElementsAre("2024-05-06 09:00-10:00 W", "2024-05-14 11:00-13:00 New",
                            "2024-05-21 11:00-13:00 New", "2024-05-28 11:00-13:00 New"));
    EXPECT_THAT(Show(Text, "2024-05-21", "2024-05-22"), ElementsAre("2024-05-21 11:00-13:00 New"));
}

TEST_F(Recurrences, ASingleReplacementCountsMoreThanOneOfAllFollowing)
{
    const std::string Text = Calendar(
        Weekly("") + Replacement(":20240520T090000", "DTSTART:20240520T170000\nSUMMARY:Once\n") +
        Replacement(";RANGE=THISANDFUTURE:20240513T090000", "DTSTART:20240513T110000\nSUMMARY:New\n"));
    EXPECT_THAT(Show(Text, "2024-05-13", "2024-05-28"),
                ElementsAre("2024-05-13 11:00-11:00 New", "2024-05-20 17:00-17:00 Once",
                            "2024-05-27 11:00-11:00 New"));
}

TEST_F(Recurrences, ACancelledReplacementOfAllFollowingEndsTheSeries)
{
    const std::string Text =
        Calendar(Weekly("") + Replacement(";RANGE=THISANDFUTURE:20240520T090000",
                                          "DTSTART:20240520T090000\nSTATUS:CANCELLED\n"));
    EXPECT_THAT(Show(Text, "2024-05-06", "2024-06-27"),
                ElementsAre("2024-05-06 09:00-10:00 W", "2024-05-13 09:00-10:00 W"));
}

TEST_F(Recurrences, InstancesKnowThatTheyRecur)
{
    TCalendarSet Calendars("UTC");
    Calendars.Load({Write("a.ics", Calendar(Weekly("")))});
    EXPECT_TRUE(Calendars.Events(Day("2024-05-06"), Day("2024-05-07")).Events.at(0).Recurring);
}

TEST_F(Recurrences, ARuleWithinTheDayCanBeLimitedToHoursAndDays)
{
    const std::string Text = Calendar(
        Event("H", "DTSTART:20240506T083000\nRRULE:FREQ=HOURLY;INTERVAL=2;BYHOUR=8,10,12;BYDAY=MO,WE\n"));
    EXPECT_THAT(Show(Text, "2024-05-06", "2024-05-09"),
                ElementsAre("2024-05-06 08:30-08:30 H", "2024-05-06 10:30-10:30 H",
                            "2024-05-06 12:30-12:30 H", "2024-05-08 08:30-08:30 H",
                            "2024-05-08 10:30-10:30 H", "2024-05-08 12:30-12:30 H"));
    EXPECT_THAT(
        Show(Calendar(Event("M", "DTSTART:20240506T090000\nRRULE:FREQ=HOURLY;BYMINUTE=0,20;COUNT=3\n")),
             "2024-05-06", "2024-05-09"),
        ElementsAre("2024-05-06 09:00-09:00 M", "2024-05-06 09:20-09:20 M", "2024-05-06 10:00-10:00 M"));
    EXPECT_THAT(
        Show(Calendar(Event("U", "DTSTART:20240506T235900\nRRULE:FREQ=MINUTELY;UNTIL=20240507T000100\n")),
             "2024-05-06", "2024-05-09"),
        ElementsAre("2024-05-06 23:59-23:59 U", "2024-05-07 00:00-00:00 U", "2024-05-07 00:01-00:01 U"));
}

TEST_F(Recurrences, ARuleForEverySecondIsCutShortWithANote)
{
    TCalendarSet Calendars("UTC");
    Calendars.Load({Write("a.ics", Calendar(Event("S", "DTSTART:20000101T000000\nRRULE:FREQ=SECONDLY\n")))});
    const auto Shown = Calendars.Events(Day("2024-05-06"), Day("2024-06-06"));
    EXPECT_LE(Shown.Events.size(), TRule::MaxStarts);
    EXPECT_THAT(Shown.Notes, ElementsAre(HasSubstr("a.ics:3: \"S\" recurs too often")));
}

TEST_F(Recurrences, RulesThatNeverMatchEnd)
{
    for (const char* Rule :
         {"FREQ=SECONDLY;BYMONTH=2;BYMONTHDAY=30", "FREQ=MINUTELY;BYMONTH=2;BYMONTHDAY=30",
          "FREQ=DAILY;BYMONTH=2;BYMONTHDAY=30", "FREQ=YEARLY;BYMONTH=2;BYMONTHDAY=30",
          "FREQ=MONTHLY;BYMONTH=2;BYMONTHDAY=30;COUNT=2", "FREQ=SECONDLY;BYMONTH=2;BYMONTHDAY=30;COUNT=5",
          "FREQ=MONTHLY;BYDAY=23MO", "FREQ=MONTHLY;BYDAY=MO;BYSETPOS=9",
          "FREQ=MONTHLY;BYMONTHDAY=30,31;BYDAY=3MO", "FREQ=YEARLY;BYMONTH=1;BYDAY=-9FR"}) {
        SCOPED_TRACE(Rule);
        EXPECT_LE(Show(Calendar(Event("N", "DTSTART:20240506T090000\nRRULE:" + std::string(Rule) + "\n")),
                       "2024-05-07", "2024-06-06")
                      .size(),
                  0u);
    }
}

} // namespace
} // namespace planner::tests
