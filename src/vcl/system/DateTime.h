#pragma once

#include <cstdint>
#include <functional>
#include <optional>

#include "vcl/system/Types.h"

namespace vcl
{

// A TDateTime counts days since 30 December 1899; the absolute value of its fraction is the time of day, also
// before that date (-1.25 is 29 December 1899, 06:00). Every function here takes any double: NaN and values
// beyond the calendar (years 1 to 9999) give the results named below, never an undefined one.

constexpr int HoursPerDay = 24;
constexpr int MinsPerDay = 24 * 60;
constexpr int SecsPerDay = 24 * 60 * 60;
constexpr int MSecsPerDay = SecsPerDay * 1000;

/// Days from 31 December of the year 0 to day 0.0 of a TDateTime.
constexpr int DateDelta = 693594;

struct TDateParts {
    int Year = 0;
    int Month = 0;
    int Day = 0;
    bool operator==(const TDateParts&) const = default;
};

struct TTimeParts {
    int Hour = 0;
    int Minute = 0;
    int Second = 0;
    int Millisecond = 0;
    bool operator==(const TTimeParts&) const = default;
};

/// A date/time in whole numbers: milliseconds since midnight, and days with 1 January of the year 1 as day 1.
struct TTimeStamp {
    int Time = 0;
    int Date = 0;
    bool operator==(const TTimeStamp&) const = default;
};

bool IsLeapYear(int Year);
/// Days of a month; EConvertError unless Month is 1 to 12.
int DaysInAMonth(int Year, int Month);
/// Days of the month Value lies in; EConvertError before the year 1.
int DaysInMonth(TDateTime Value);

/// The day, or nothing when there is no such day in the years 1 to 9999.
std::optional<TDateTime> TryEncodeDate(int Year, int Month, int Day);
/// The same, raising EConvertError.
TDateTime EncodeDate(int Year, int Month, int Day);
/// The fraction of a day, or nothing beyond 23:59:59.999.
std::optional<TDateTime> TryEncodeTime(int Hour, int Minute, int Second, int Millisecond);
/// The same, raising EConvertError.
TDateTime EncodeTime(int Hour, int Minute, int Second, int Millisecond);
/// Date's day with Time's time of day.
TDateTime ReplaceTime(TDateTime Date, TDateTime Time);

/// Rounds to the nearest millisecond first, so the last half millisecond of a day belongs to the next one.
/// Values before the year 1 and NaN give 0, 0, 0; values after the year 9999 its last day.
TDateParts DecodeDate(TDateTime Value);
/// Rounded likewise; NaN and infinity give midnight.
TTimeParts DecodeTime(TDateTime Value);
/// 1 = Sunday to 7 = Saturday, of the day DecodeDate gives.
int DayOfWeek(TDateTime Value);

/// Rounded likewise. NaN gives day 0; values beyond a thousand million days stop there.
TTimeStamp DateTimeToTimeStamp(TDateTime Value);
TDateTime TimeStampToDateTime(const TTimeStamp& Stamp);

/// The same day and time Months later; a day the month does not have becomes its last day. EConvertError when
/// Value or the result lies outside the years 1 to 9999.
TDateTime IncMonth(TDateTime Value, int Months = 1);

/// True for finite values in the years 1 to 9999.
bool IsCalendarDate(TDateTime Value);

/// The day without its time, and the time without its day (with the sign of Value).
TDateTime DateOf(TDateTime Value);
TDateTime TimeOf(TDateTime Value);

/// Rounds toward zero; NaN gives 0, values beyond 64 bits saturate.
std::int64_t Trunc(double Value);
/// The fraction, with the sign of Value; NaN gives NaN, infinity 0.
double Frac(double Value);

/// The local date and time, to the millisecond.
TDateTime Now();
/// Today, at midnight; and the time of day alone.
TDateTime Date();
TDateTime Time();

/// Makes Clock answer Now, Date and Time from here on; an empty one restores the system's clock. Meant for
/// the start of a program or test, before other threads ask for the time.
void SetClock(std::function<TDateTime()> Clock);

} // namespace vcl
