#pragma once

#include <optional>
#include <string>
#include <vector>

#include <libical/ical.h>

#include "planner/calendar/TimeZone.h"

namespace planner
{

/// A recurrence rule of an event. Everything in it is wall time of the event's own zone.
class TRule
{
public:
    /// Understands the value of an RRULE; nothing when it cannot be understood. IsDate tells whether the
    /// event has dates only; Zone is the event's, which an UNTIL in UTC is converted to.
    static std::optional<TRule> Parse(const std::string& Value, bool IsDate, const TZone& Zone);

    struct TResult {
        /// Wall times in rising order.
        std::vector<TSeconds> Starts;
        /// Some were left out, because there are more than MaxStarts or finding them takes too many steps.
        bool Capped = false;
    };

    /// The times from From to To (both included) at which the rule of an event that starts at Start recurs.
    /// The event's own start is among them only when the rule says so.
    TResult Expand(TSeconds Start, TSeconds From, TSeconds To) const;

    static constexpr std::size_t MaxStarts = 5000;
    /// Candidates looked at before giving up, wanted or not.
    static constexpr int MaxSteps = 400000;

private:
    TRule(const icalrecurrencetype& Rule, bool IsDate) : FRule(Rule), FIsDate(IsDate) {}

    TResult ExpandByDays(TSeconds Start, TSeconds From, TSeconds To) const;
    TResult ExpandWithinDays(TSeconds Start, TSeconds From, TSeconds To) const;

    icalrecurrencetype FRule;
    bool FIsDate;
    /// Found out by a search through all years, which is not repeated.
    mutable bool FNeverRecurs = false;
};

} // namespace planner
