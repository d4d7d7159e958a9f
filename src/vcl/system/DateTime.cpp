#include "vcl/system/DateTime.h"

#include <algorithm>
#include <chrono>
#include <cmath>
#include <ctime>
#include <limits>
#include <utility>

#include "vcl/system/Exception.h"

namespace vcl
{

namespace
{

namespace chrono = std::chrono;

constexpr chrono::sys_days DayZero = chrono::year{1899} / 12 / 30;
constexpr int FirstYear = 1;
constexpr int LastYear = 9999;
constexpr int FirstDate = 1;
constexpr int LastDate =
    static_cast<int>((chrono::sys_days(chrono::year{LastYear} / 12 / 31) - DayZero).count()) + DateDelta;
/// Far beyond the calendar, yet its milliseconds fit 64 bits and its days 32.
constexpr double FarthestDay = 1e9;

std::function<TDateTime()>& ClockInUse()
{
    static std::function<TDateTime()> Clock;
    return Clock;
}

TDateTime SystemNow()
{
    const auto Instant = chrono::time_point_cast<chrono::milliseconds>(chrono::system_clock::now());
    const auto Whole = chrono::floor<chrono::seconds>(Instant);
    const std::time_t Seconds = chrono::system_clock::to_time_t(Whole);
    std::tm Local{};
    localtime_r(&Seconds, &Local);
    // A leap second shows as 60; there is no such time of day here.
    return EncodeDate(Local.tm_year + 1900, Local.tm_mon + 1, Local.tm_mday) +
           EncodeTime(Local.tm_hour, Local.tm_min, std::min(Local.tm_sec, 59),
                      static_cast<int>((Instant - Whole).count()));
}

bool IsInCalendar(int StampDate)
{
    return StampDate >= FirstDate && StampDate <= LastDate;
}

TDateParts PartsOf(int StampDate)
{
    const chrono::year_month_day Day{DayZero + chrono::days{StampDate - DateDelta}};
    return {static_cast<int>(Day.year()), static_cast<int>(static_cast<unsigned>(Day.month())),
            static_cast<int>(static_cast<unsigned>(Day.day()))};
}

[[noreturn]] void RaiseOutOfRange()
{
    throw EConvertError("The date lies outside the years 1 to 9999");
}

} // namespace

bool IsLeapYear(int Year)
{
    return Year % 4 == 0 && (Year % 100 != 0 || Year % 400 == 0);
}

int DaysInAMonth(int Year, int Month)
{
    static constexpr int Days[] = {31, 28, 31, 30, 31, 30, 31, 31, 30, 31, 30, 31};
    if (Month < 1 || Month > 12)
        throw EConvertError(IntToStr(Month) + " is not a valid month");
    return Month == 2 && IsLeapYear(Year) ? 29 : Days[Month - 1];
}

int DaysInMonth(TDateTime Value)
{
    const TDateParts Parts = DecodeDate(Value);
    return DaysInAMonth(Parts.Year, Parts.Month);
}

std::optional<TDateTime> TryEncodeDate(int Year, int Month, int Day)
{
    if (Year < FirstYear || Year > LastYear || Month < 1 || Month > 12 || Day < 1 ||
        Day > DaysInAMonth(Year, Month))
        return std::nullopt;
    const chrono::sys_days Date = chrono::year{Year} / Month / Day;
    return static_cast<TDateTime>((Date - DayZero).count());
}

TDateTime EncodeDate(int Year, int Month, int Day)
{
    if (const std::optional<TDateTime> Date = TryEncodeDate(Year, Month, Day))
        return *Date;
    throw EConvertError(IntToStr(Year) + "-" + IntToStr(Month) + "-" + IntToStr(Day) +
                        " is not a valid date");
}

std::optional<TDateTime> TryEncodeTime(int Hour, int Minute, int Second, int Millisecond)
{
    const auto IsBelow = [](int Value, int Limit) { return Value >= 0 && Value < Limit; };
    if (!IsBelow(Hour, 24) || !IsBelow(Minute, 60) || !IsBelow(Second, 60) || !IsBelow(Millisecond, 1000))
        return std::nullopt;
    return static_cast<TDateTime>(((Hour * 60 + Minute) * 60 + Second) * 1000 + Millisecond) / MSecsPerDay;
}

TDateTime EncodeTime(int Hour, int Minute, int Second, int Millisecond)
{
    if (const std::optional<TDateTime> Time = TryEncodeTime(Hour, Minute, Second, Millisecond))
        return *Time;
    throw EConvertError(IntToStr(Hour) + ":" + IntToStr(Minute) + ":" + IntToStr(Second) + "." +
                        IntToStr(Millisecond) + " is not a valid time");
}

TDateTime ReplaceTime(TDateTime Date, TDateTime Time)
{
    const TDateTime Day = DateOf(Date);
    const TDateTime TimeOfDay = std::abs(TimeOf(Time));
    return Day >= 0 ? Day + TimeOfDay : Day - TimeOfDay;
}

TDateParts DecodeDate(TDateTime Value)
{
    const int Date = DateTimeToTimeStamp(Value).Date;
    return Date < FirstDate ? TDateParts{} : PartsOf(std::min(Date, LastDate));
}

TTimeParts DecodeTime(TDateTime Value)
{
    const int Time = DateTimeToTimeStamp(Value).Time;
    return {Time / 3600000, Time / 60000 % 60, Time / 1000 % 60, Time % 1000};
}

int DayOfWeek(TDateTime Value)
{
    const int Remainder = DateTimeToTimeStamp(Value).Date % 7;
    return (Remainder + 7) % 7 + 1;
}

TTimeStamp DateTimeToTimeStamp(TDateTime Value)
{
    if (std::isnan(Value))
        return {};
    const double Near = std::clamp(Value, -FarthestDay, FarthestDay);
    const std::int64_t Milliseconds = std::llround(Near * MSecsPerDay);
    return {static_cast<int>(std::abs(Milliseconds % MSecsPerDay)),
            static_cast<int>(Milliseconds / MSecsPerDay) + DateDelta};
}

TDateTime TimeStampToDateTime(const TTimeStamp& Stamp)
{
    const double Days = static_cast<double>(Stamp.Date) - DateDelta;
    const double Start = Days * MSecsPerDay;
    return (Days < 0 ? Start - Stamp.Time : Start + Stamp.Time) / MSecsPerDay;
}

TDateTime IncMonth(TDateTime Value, int Months)
{
    // The day is cut off, not rounded: the time of day is carried over unchanged.
    const TDateTime Day = DateOf(Value);
    if (!IsCalendarDate(Day))
        RaiseOutOfRange();
    const TDateParts Parts = DecodeDate(Day);
    const std::int64_t Month = std::int64_t{Parts.Year} * 12 + (Parts.Month - 1) + Months;
    if (Month < FirstYear * 12 || Month >= (LastYear + 1) * 12)
        RaiseOutOfRange();
    const int NewYear = static_cast<int>(Month / 12);
    const int NewMonth = static_cast<int>(Month % 12) + 1;
    return ReplaceTime(EncodeDate(NewYear, NewMonth, std::min(Parts.Day, DaysInAMonth(NewYear, NewMonth))),
                       Value);
}

bool IsCalendarDate(TDateTime Value)
{
    return std::isfinite(Value) && IsInCalendar(DateTimeToTimeStamp(Value).Date);
}

TDateTime DateOf(TDateTime Value)
{
    return std::trunc(Value);
}

TDateTime TimeOf(TDateTime Value)
{
    return Frac(Value);
}

std::int64_t Trunc(double Value)
{
    constexpr double TwoTo63 = 9223372036854775808.0;
    if (std::isnan(Value))
        return 0;
    if (Value >= TwoTo63)
        return std::numeric_limits<std::int64_t>::max();
    if (Value < -TwoTo63)
        return std::numeric_limits<std::int64_t>::min();
    return static_cast<std::int64_t>(Value);
}

double Frac(double Value)
{
    double Whole = 0;
    return std::modf(Value, &Whole);
}

TDateTime Now()
{
    const std::function<TDateTime()>& Clock = ClockInUse();
    return Clock ? Clock() : SystemNow();
}

TDateTime Date()
{
    return DateOf(Now());
}

TDateTime Time()
{
    return TimeOf(Now());
}

void SetClock(std::function<TDateTime()> Clock)
{
    ClockInUse() = std::move(Clock);
}

} // namespace vcl
