#pragma once

#include <string>
#include <vector>

#include "planner/calendar/CalendarFile.h"
#include "vcl/system/Types.h"

namespace planner
{

/// One appointment as it is shown, in the shown time zone.
struct TCalendarEvent {
    std::string Summary;
    std::string Location;
    std::string Description;
    std::string Organizer;
    std::string Url;
    vcl::TDateTime Start = 0;
    /// The first moment that is no longer part of it: midnight after the last day of an all-day event. Equal
    /// to Start for an event without length, never before it.
    vcl::TDateTime Finish = 0;
    /// The event has dates, no times of day; Start and Finish are midnights.
    bool AllDay = false;
    bool Private = false;
    /// An alarm is set.
    bool Reminder = false;
    /// One of several instances.
    bool Recurring = false;
    /// Of the calendar it is from.
    int Calendar = 0;
};

/// The calendars that are shown together, each in a colour of its own.
///
///     TCalendarSet Calendars;
///     Calendars.Load({"work.ics", "family.ics"});
///     for (const TCalendarEvent& Event : Calendars.Events(Monday, Monday + 7).Events)
///         ...
class TCalendarSet
{
public:
    struct TCalendar {
        TCalendarFile File;
        /// Of the items' backgrounds: light, so that black text reads well on it.
        vcl::TColor Color = vcl::clWhite;
    };

    struct TEvents {
        /// By start, longer ones first; the order of the files where both are equal.
        std::vector<TCalendarEvent> Events;
        /// What was left out and why, a sentence each with file and line.
        std::vector<std::string> Notes;
    };

    /// Times are shown in the zone of that name, and times in files that name no zone are meant in it. Throws
    /// ECalendarError when the system does not know the zone.
    explicit TCalendarSet(const std::string& ZoneName);
    /// The zone this computer is set to; UTC when the system does not know that one.
    TCalendarSet();

    /// Shows these files and no others. When one cannot be read, throws ECalendarError and leaves what was
    /// shown.
    void Load(const std::vector<std::string>& FileNames);
    /// Shows one file more; the same guarantee.
    void Add(const std::string& FileName);

    int GetCalendarCount() const { return static_cast<int>(FCalendars.size()); }
    const TCalendar& GetCalendar(int Index) const { return FCalendars.at(static_cast<std::size_t>(Index)); }

    /// What meets the time from From up to To, recurring events expanded. An event without length belongs to
    /// the range that it starts in. An empty or reversed range has no events.
    TEvents Events(vcl::TDateTime From, vcl::TDateTime To) const;

    /// The day to open the calendars at when somebody asks for Day: Day itself when there is an event within
    /// a week of it, otherwise the day of the event nearest to it.
    vcl::TDate NearestDay(vcl::TDate Day) const;

private:
    explicit TCalendarSet(const TZone& Zone) : FZone(Zone) {}

    TZone FZone;
    std::vector<TCalendar> FCalendars;
};

} // namespace planner
