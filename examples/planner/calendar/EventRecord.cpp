#include "planner/calendar/EventRecord.h"

#include <algorithm>
#include <chrono>
#include <cstdlib>

#include "planner/calendar/CalendarError.h"
#include "planner/calendar/IcalTime.h"
#include "planner/calendar/IcsText.h"

namespace planner
{

namespace
{

/// Years beyond these are slips of the pen, and would make arithmetic on seconds delicate.
constexpr int FirstYear = 1;
constexpr int LastYear = 9999;
/// No event lasts longer than a hundred years.
constexpr TSeconds LongestSpan = 36525 * SecondsADay;

bool IsRealTime(const icaltimetype& Time)
{
    using namespace std::chrono;
    const year_month_day Date(year(Time.year), month(static_cast<unsigned>(Time.month)),
                              day(static_cast<unsigned>(Time.day)));
    return !icaltime_is_null_time(Time) && Date.ok() && Time.year >= FirstYear && Time.year <= LastYear &&
           Time.hour >= 0 && Time.hour < 24 && Time.minute >= 0 && Time.minute < 60 && Time.second >= 0 &&
           Time.second <= 60;
}

class TEventReader
{
public:
    TEventReader(const TIcsBlock& Block, const TReadingContext& Context) : FBlock(Block), FContext(Context) {}

    TEventRecord Read()
    {
        FRecord.Line = FBlock.Line;
        const TIcsProperty* Start = FBlock.Find("DTSTART");
        if (!Start)
            Fail(FBlock.Line, "this event has no DTSTART");
        FRecord.Start = ReadMoment(*Start, Start->Value);
        FRecord.Span.Days = FRecord.Start.IsDate ? 1 : 0;
        for (const TIcsProperty& Property : FBlock.Properties) {
            if (!ReadTiming(Property))
                ReadText(Property);
        }
        FRecord.Texts.Reminder = FBlock.HasBlock("VALARM");
        return std::move(FRecord);
    }

private:
    [[noreturn]] void Fail(int Line, const std::string& Reason) const
    {
        throw ECalendarError(FContext.FileName, Line, Reason);
    }

    bool ReadTiming(const TIcsProperty& Property)
    {
        if (Property.Name == "DTEND") {
            FRecord.Span = SpanUntil(FRecord.Start, ReadMoment(Property, Property.Value));
        } else if (Property.Name == "DURATION") {
            FRecord.Span = ReadDuration(Property, Property.Value);
        } else if (Property.Name == "RRULE") {
            FRecord.Rules.push_back(ReadRule(Property));
        } else if (Property.Name == "EXRULE") {
            FRecord.ExceptionRules.push_back(ReadRule(Property));
        } else if (Property.Name == "RDATE") {
            ReadExtraStarts(Property);
        } else if (Property.Name == "EXDATE") {
            for (const std::string& Value : SplitList(Property.Value))
                FRecord.ExceptionStarts.push_back(ReadMoment(Property, Value));
        } else if (Property.Name == "RECURRENCE-ID") {
            FRecord.RecurrenceId = ReadMoment(Property, Property.Value);
            FRecord.ThisAndFuture = Property.Parameter("RANGE") == "THISANDFUTURE";
        } else {
            return false;
        }
        return true;
    }

    void ReadText(const TIcsProperty& Property)
    {
        TEventTexts& Texts = FRecord.Texts;
        if (Property.Name == "UID")
            FRecord.Uid = Property.Value;
        else if (Property.Name == "SEQUENCE")
            FRecord.Sequence = std::atoi(Property.Value.c_str());
        else if (Property.Name == "STATUS")
            FRecord.Cancelled = Property.Value == "CANCELLED";
        else if (Property.Name == "SUMMARY")
            Texts.Summary = UnescapeText(Property.Value);
        else if (Property.Name == "LOCATION")
            Texts.Location = UnescapeText(Property.Value);
        else if (Property.Name == "DESCRIPTION")
            Texts.Description = UnescapeText(Property.Value);
        else if (Property.Name == "URL")
            Texts.Url = Property.Value;
        else if (Property.Name == "ORGANIZER")
            Texts.Organizer = OrganizerName(Property);
        else if (Property.Name == "CLASS")
            Texts.Private = Property.Value == "PRIVATE" || Property.Value == "CONFIDENTIAL";
    }

    static std::string OrganizerName(const TIcsProperty& Property)
    {
        const std::string_view Name = Property.Parameter("CN");
        if (!Name.empty())
            return std::string(Name);
        constexpr std::string_view Scheme = "mailto:";
        std::string_view Address = Property.Value;
        const bool HasScheme =
            std::equal(Scheme.begin(), Scheme.end(), Address.begin(),
                       Address.begin() + static_cast<std::ptrdiff_t>(std::min(Scheme.size(), Address.size())),
                       [](char Left, char Right) { return Left == (Right | 0x20) || Left == Right; });
        return std::string(HasScheme ? Address.substr(Scheme.size()) : Address);
    }

    TMoment ReadMoment(const TIcsProperty& Property, const std::string& Value)
    {
        icalerror_set_errors_are_fatal(0);
        const icaltimetype Time = icaltime_from_string(Value.c_str());
        if (!IsRealTime(Time))
            Fail(Property.Line, Property.Name + ": \"" + Value + "\" is not a date or time");
        TMoment Moment{ToSeconds(Time), FContext.Local, Time.is_date != 0};
        if (Moment.IsDate)
            return Moment;
        if (icaltime_is_utc(Time))
            Moment.Zone = TZone();
        else if (const std::string Name(Property.Parameter("TZID")); !Name.empty())
            Moment.Zone = ZoneCalled(Name, Property.Line);
        return Moment;
    }

    TZone ZoneCalled(const std::string& Name, int Line)
    {
        if (const std::optional<TZone> Zone = FContext.Zones.Find(Name))
            return *Zone;
        const std::string Note = "the time zone \"" + Name + "\" is unknown; its times are taken as local";
        const std::string Whole = FContext.FileName + ":" + std::to_string(Line) + ": " + Note;
        // Once a zone, not once an event.
        const bool IsNew = std::none_of(FContext.Notes.begin(), FContext.Notes.end(),
                                        [&](const std::string& Old) { return Old.ends_with(Note); });
        if (IsNew)
            FContext.Notes.push_back(Whole);
        return FContext.Local;
    }

    /// An end before its start counts as none.
    static TSpan SpanUntil(const TMoment& Start, const TMoment& Finish)
    {
        if (Start.IsDate)
            return {
                std::clamp<TSeconds>((Finish.Wall - Start.Wall) / SecondsADay, 1, LongestSpan / SecondsADay),
                0};
        return {0, std::clamp<TSeconds>(Finish.ToUtc() - Start.ToUtc(), 0, LongestSpan)};
    }

    TSpan ReadDuration(const TIcsProperty& Property, const std::string& Value) const
    {
        const icaldurationtype Duration = icaldurationtype_from_string(Value.c_str());
        if (icaldurationtype_is_bad_duration(Duration) || Duration.is_neg)
            Fail(Property.Line, Property.Name + ": \"" + Value + "\" is not a duration");
        const TSeconds Seconds =
            TSeconds(Duration.hours) * 3600 + TSeconds(Duration.minutes) * 60 + Duration.seconds;
        const TSeconds Days = TSeconds(Duration.weeks) * 7 + Duration.days;
        if (FRecord.Start.IsDate) {
            const TSeconds Whole = Days + (Seconds + SecondsADay - 1) / SecondsADay;
            return {std::clamp<TSeconds>(Whole, 1, LongestSpan / SecondsADay), 0};
        }
        return {std::min(Days, LongestSpan / SecondsADay), std::min(Seconds, LongestSpan)};
    }

    TRule ReadRule(const TIcsProperty& Property) const
    {
        const std::optional<TRule> Rule =
            TRule::Parse(Property.Value, FRecord.Start.IsDate, FRecord.Start.Zone);
        if (!Rule)
            Fail(Property.Line, Property.Name + ": \"" + Property.Value + "\" is not a recurrence rule");
        return *Rule;
    }

    /// Times, or periods: a start and, after a slash, an end or a duration.
    void ReadExtraStarts(const TIcsProperty& Property)
    {
        for (const std::string& Value : SplitList(Property.Value)) {
            const std::size_t Slash = Value.find('/');
            TEventRecord::TExtraStart Extra{ReadMoment(Property, Value.substr(0, Slash)), std::nullopt};
            if (Slash != std::string::npos) {
                const std::string Finish = Value.substr(Slash + 1);
                Extra.Span = Finish.starts_with('P') || Finish.starts_with('+')
                                 ? ReadDuration(Property, Finish)
                                 : SpanUntil(Extra.Start, ReadMoment(Property, Finish));
            }
            FRecord.ExtraStarts.push_back(Extra);
        }
    }

    const TIcsBlock& FBlock;
    const TReadingContext& FContext;
    TEventRecord FRecord;
};

} // namespace

TEventRecord ReadEvent(const TIcsBlock& Block, const TReadingContext& Context)
{
    return TEventReader(Block, Context).Read();
}

} // namespace planner
