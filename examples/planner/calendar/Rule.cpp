#include "planner/calendar/Rule.h"

#include <memory>
#include <type_traits>

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
    if (To < Start)
        return Result;
    const icaltimetype First = ToIcalTime(Start, FIsDate);
    const std::unique_ptr<icalrecur_iterator, TDeleteIterator> Iterator(icalrecur_iterator_new(FRule, First));
    if (!Iterator)
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
