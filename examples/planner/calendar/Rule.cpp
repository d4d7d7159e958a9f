#include "planner/calendar/Rule.h"

#include <cstdlib>
#include <memory>

#include "planner/calendar/IcalTime.h"

namespace planner
{

namespace
{

struct TDeleteIterator {
    void operator()(icalrecur_iterator* Iterator) const { icalrecur_iterator_free(Iterator); }
};

/// The last wall second an UNTIL allows; a date allows its whole day.
TSeconds LastSecond(const icaltimetype& Until, const TZone& Zone)
{
    const TSeconds Seconds = ToSeconds(Until);
    if (Until.is_date)
        return Seconds + SecondsADay - 1;
    return icaltime_is_utc(Until) ? Zone.ToWall(Seconds) : Seconds;
}

/// A 23rd Monday of a month would be searched for in every month of all years.
bool HasPossibleWeekdays(const icalrecurrencetype& Rule)
{
    const bool IsOfMonth =
        Rule.freq == ICAL_MONTHLY_RECURRENCE || Rule.by_month[0] != ICAL_RECURRENCE_ARRAY_MAX;
    const int Most = IsOfMonth ? 5 : 53;
    for (const short Day : Rule.by_day) {
        if (Day == ICAL_RECURRENCE_ARRAY_MAX)
            break;
        if (std::abs(icalrecurrencetype_day_position(Day)) <= Most)
            return true;
    }
    return Rule.by_day[0] == ICAL_RECURRENCE_ARRAY_MAX;
}

} // namespace

std::optional<TRule> TRule::Parse(const std::string& Value, bool IsDate, const TZone& Zone)
{
    icalerror_set_errors_are_fatal(0);
    icalerror_clear_errno();
    icalrecurrencetype Rule = icalrecurrencetype_from_string(Value.c_str());
    if (Rule.freq == ICAL_NO_RECURRENCE || icalerrno != ICAL_NO_ERROR)
        return std::nullopt;
    if (Rule.interval < 1)
        Rule.interval = 1;
    if (!icaltime_is_null_time(Rule.until))
        Rule.until = ToIcalTime(LastSecond(Rule.until, Zone), IsDate);
    return TRule(Rule, IsDate);
}

TRule::TResult TRule::Expand(TSeconds Start, TSeconds From, TSeconds To) const
{
    switch (FRule.freq) {
    case ICAL_SECONDLY_RECURRENCE:
    case ICAL_MINUTELY_RECURRENCE:
    case ICAL_HOURLY_RECURRENCE:
        return ExpandWithinDays(Start, From, To);
    default:
        return ExpandByDays(Start, From, To);
    }
}

TRule::TResult TRule::ExpandByDays(TSeconds Start, TSeconds From, TSeconds To) const
{
    TResult Result;
    if (To < Start || FNeverRecurs || !HasPossibleWeekdays(FRule))
        return Result;
    icalrecurrencetype Rule = FRule;
    // Keeps the search for the next time from going on after the range.
    if (Rule.count == 0 && (icaltime_is_null_time(Rule.until) || ToSeconds(Rule.until) > To))
        Rule.until = ToIcalTime(To, FIsDate);
    const icaltimetype First = ToIcalTime(Start, FIsDate);
    const std::unique_ptr<icalrecur_iterator, TDeleteIterator> Iterator(icalrecur_iterator_new(Rule, First));
    FNeverRecurs = Iterator == nullptr;
    if (FNeverRecurs)
        return Result;
    // Only a rule without a count may be entered in the middle.
    if (FRule.count == 0 && From > Start)
        icalrecur_iterator_set_start(Iterator.get(), ToIcalTime(From, FIsDate));
    for (int Step = 0; Step < MaxSteps; ++Step) {
        const icaltimetype Next = icalrecur_iterator_next(Iterator.get());
        if (icaltime_is_null_time(Next))
            return Result;
        const TSeconds Wall = ToSeconds(Next);
        if (Wall > To)
            return Result;
        if (Wall < From)
            continue;
        if (Result.Starts.size() == MaxStarts)
            break;
        Result.Starts.push_back(Wall);
    }
    Result.Capped = true;
    return Result;
}

} // namespace planner
