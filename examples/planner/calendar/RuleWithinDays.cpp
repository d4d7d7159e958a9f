// Rules that recur within a day (every hour, minute or second). The library steps through every candidate,
// which takes for ever when a rule excludes nearly all of them ("every second of 30 February"); here whole
// days are rejected first, and the steps are counted.

#include <algorithm>
#include <chrono>

#include "planner/calendar/IcalTime.h"
#include "planner/calendar/Rule.h"

namespace planner
{

namespace
{

/// The members of one BY... part of a rule; an empty part allows everything.
template <std::size_t Size>
class TByPart
{
public:
    explicit TByPart(const short (&Values)[Size]) : FValues(Values)
    {
        while (FCount < Size && FValues[FCount] != ICAL_RECURRENCE_ARRAY_MAX)
            ++FCount;
    }

    bool IsEmpty() const { return FCount == 0; }
    bool Has(int Value) const { return std::find(FValues, FValues + FCount, Value) != FValues + FCount; }
    bool Allows(int Value) const { return IsEmpty() || Has(Value); }
    /// Also counted from the end, which is Length: -1 is the last.
    bool Allows(int Value, int Length) const { return Allows(Value) || Has(Value - Length - 1); }

    auto begin() const { return FValues; }
    auto end() const { return FValues + FCount; }

private:
    const short* FValues;
    std::size_t FCount = 0;
};

TSeconds UnitOf(icalrecurrencetype_frequency Frequency)
{
    switch (Frequency) {
    case ICAL_HOURLY_RECURRENCE:
        return 3600;
    case ICAL_MINUTELY_RECURRENCE:
        return 60;
    default:
        return 1;
    }
}

/// Does the rule's choice of months and days allow the day that begins at Midnight?
bool AllowsDay(const icalrecurrencetype& Rule, TSeconds Midnight)
{
    using namespace std::chrono;
    const sys_days Day = floor<days>(sys_seconds(seconds(Midnight)));
    const year_month_day Date(Day);
    const sys_days NewYear = Date.year() / January / 1;
    const int DayOfYear = static_cast<int>((Day - NewYear).count()) + 1;
    const int DaysOfYear = Date.year().is_leap() ? 366 : 365;
    const int DaysOfMonth = static_cast<int>(
        static_cast<unsigned>(year_month_day_last(Date.year(), month_day_last(Date.month())).day()));
    const TByPart Weekdays(Rule.by_day);
    const int Weekday = static_cast<int>(weekday(Day).c_encoding()) + ICAL_SUNDAY_WEEKDAY;
    const bool AllowsWeekday =
        Weekdays.IsEmpty() || std::any_of(Weekdays.begin(), Weekdays.end(), [&](short Value) {
            return static_cast<int>(icalrecurrencetype_day_day_of_week(Value)) == Weekday;
        });
    return AllowsWeekday &&
           TByPart(Rule.by_month).Allows(static_cast<int>(static_cast<unsigned>(Date.month()))) &&
           TByPart(Rule.by_month_day)
               .Allows(static_cast<int>(static_cast<unsigned>(Date.day())), DaysOfMonth) &&
           TByPart(Rule.by_year_day).Allows(DayOfYear, DaysOfYear);
}

/// The seconds or minutes a larger unit is expanded to: those of the BY part, or the start's own.
template <std::size_t Size>
std::vector<int> Expanded(const TByPart<Size>& Part, int Own)
{
    std::vector<int> Result(Part.begin(), Part.end());
    if (Result.empty())
        Result.push_back(Own);
    std::sort(Result.begin(), Result.end());
    return Result;
}

/// What one unit (an hour, a minute, a second) that begins at Unit contributes.
std::vector<TSeconds> TimesOfUnit(const icalrecurrencetype& Rule, TSeconds Unit, TSeconds Start)
{
    const int Hour = static_cast<int>((Unit % SecondsADay + SecondsADay) % SecondsADay / 3600);
    const TSeconds HourStart = Unit - (Unit % 3600 + 3600) % 3600;
    const int Minute = static_cast<int>((Unit - HourStart) / 60);
    const int Second = static_cast<int>(Unit - HourStart) % 60;
    const TByPart Minutes(Rule.by_minute);
    const TByPart Seconds(Rule.by_second);
    const bool IsHourly = Rule.freq == ICAL_HOURLY_RECURRENCE;
    const bool IsSecondly = Rule.freq == ICAL_SECONDLY_RECURRENCE;
    if (!TByPart(Rule.by_hour).Allows(Hour) || (!IsHourly && !Minutes.Allows(Minute)) ||
        (IsSecondly && !Seconds.Allows(Second)))
        return {};
    if (IsSecondly)
        return {Unit};
    const TSeconds IntoHour = (Start % 3600 + 3600) % 3600;
    std::vector<TSeconds> Result;
    const std::vector<int> MinuteList =
        IsHourly ? Expanded(Minutes, static_cast<int>(IntoHour / 60)) : std::vector<int>{Minute};
    for (const int EachMinute : MinuteList) {
        for (const int EachSecond : Expanded(Seconds, static_cast<int>(IntoHour % 60)))
            Result.push_back(HourStart + EachMinute * 60 + EachSecond);
    }
    return Result;
}

/// Walks from unit to unit and from day to day, and decides when to stop.
class TWalk
{
public:
    TWalk(const icalrecurrencetype& Rule, TSeconds Start, TSeconds From, TSeconds To)
        : FRule(Rule), FStart(Start), FFrom(From), FTo(To), FUnit(UnitOf(Rule.freq)),
          FStep(FUnit * Rule.interval), FOrigin(Start - (Start % FUnit + FUnit) % FUnit)
    {
        if (!icaltime_is_null_time(Rule.until))
            FTo = std::min(FTo, ToSeconds(Rule.until));
    }

    TRule::TResult Run()
    {
        // Without a count nothing before the range matters.
        TSeconds Unit = FRule.count > 0 ? FOrigin : AtOrAfter(FFrom - FUnit);
        while (Unit <= FTo && !FDone) {
            if (++FSteps > TRule::MaxSteps) {
                FResult.Capped = true;
                break;
            }
            const TSeconds Midnight = Unit - (Unit % SecondsADay + SecondsADay) % SecondsADay;
            if (!AllowsDay(FRule, Midnight)) {
                Unit = AtOrAfter(Midnight + SecondsADay);
                continue;
            }
            for (const TSeconds Time : TimesOfUnit(FRule, Unit, FStart))
                Take(Time);
            Unit += FStep;
        }
        return std::move(FResult);
    }

private:
    TSeconds AtOrAfter(TSeconds Time) const
    {
        return Time <= FOrigin ? FOrigin : FOrigin + (Time - FOrigin + FStep - 1) / FStep * FStep;
    }

    void Take(TSeconds Time)
    {
        if (FDone || Time < FStart)
            return;
        if (Time > FTo || (FRule.count > 0 && FTaken++ >= FRule.count)) {
            FDone = true;
            return;
        }
        if (Time < FFrom)
            return;
        if (FResult.Starts.size() == TRule::MaxStarts) {
            FResult.Capped = true;
            FDone = true;
            return;
        }
        FResult.Starts.push_back(Time);
    }

    const icalrecurrencetype& FRule;
    TSeconds FStart;
    TSeconds FFrom;
    TSeconds FTo;
    TSeconds FUnit;
    TSeconds FStep;
    /// The start without what is smaller than a unit.
    TSeconds FOrigin;
    int FSteps = 0;
    int FTaken = 0;
    bool FDone = false;
    TRule::TResult FResult;
};

} // namespace

TRule::TResult TRule::ExpandWithinDays(TSeconds Start, TSeconds From, TSeconds To) const
{
    return TWalk(FRule, Start, From, To).Run();
}

} // namespace planner
