#pragma once

#include <optional>
#include <string>
#include <vector>

#include "planner/calendar/Rule.h"
#include "planner/calendar/TimeZone.h"

namespace planner
{

struct TIcsBlock;

/// A point in time as a file gives it: wall time and the zone it is meant in.
struct TMoment {
    TSeconds Wall = 0;
    TZone Zone;
    bool IsDate = false;

    TSeconds ToUtc() const { return Zone.ToUtc(Wall); }
};

/// How long an event lasts: first whole days on the calendar, then seconds that really pass. The two differ
/// when the clocks change in between.
struct TSpan {
    TSeconds Days = 0;
    TSeconds Seconds = 0;

    /// Where an event that starts at Start ends, in UTC.
    TSeconds FinishOf(const TMoment& Start) const
    {
        return Start.Zone.ToUtc(Start.Wall + Days * SecondsADay) + Seconds;
    }
    TSeconds Longest() const { return Days * SecondsADay + Seconds; }
};

/// What is shown of an event, apart from its times.
struct TEventTexts {
    std::string Summary;
    std::string Location;
    std::string Description;
    /// The organizer's name, or the address when there is no name.
    std::string Organizer;
    std::string Url;
    bool Private = false;
    bool Reminder = false;
};

/// One VEVENT as it stands in the file, understood but not yet expanded.
struct TEventRecord {
    struct TExtraStart {
        TMoment Start;
        std::optional<TSpan> Span;
    };

    std::string Uid;
    int Line = 0;
    int Sequence = 0;
    bool Cancelled = false;
    TMoment Start;
    TSpan Span;
    TEventTexts Texts;
    std::vector<TRule> Rules;
    std::vector<TRule> ExceptionRules;
    std::vector<TExtraStart> ExtraStarts;
    std::vector<TMoment> ExceptionStarts;
    /// Of an event that replaces one instance of another: when that instance would have started.
    std::optional<TMoment> RecurrenceId;
    /// It replaces all later instances too.
    bool ThisAndFuture = false;

    bool IsRecurring() const { return !Rules.empty() || !ExtraStarts.empty(); }
};

/// What a file says beside its events that readers of them need.
struct TReadingContext {
    const std::string& FileName;
    const TFileZones& Zones;
    /// Of times that name no zone.
    TZone Local;
    /// One sentence for each thing that was not understood but does no harm.
    std::vector<std::string>& Notes;
};

/// Understands a VEVENT; throws ECalendarError that names the line when a time or a rule is wrong.
TEventRecord ReadEvent(const TIcsBlock& Block, const TReadingContext& Context);

} // namespace planner
