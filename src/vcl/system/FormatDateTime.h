#pragma once

#include <array>
#include <string_view>

#include "vcl/system/AnsiString.h"
#include "vcl/system/Types.h"

namespace vcl
{

/// How dates and times are written. A new one is English with the American order; the platform fills the
/// process-wide one from the user's locale.
struct TFormatSettings {
    /// What "/" and ":" in a format stand for.
    AnsiString DateSeparator = "/";
    AnsiString TimeSeparator = ":";
    AnsiString ShortDateFormat = "m/d/yyyy";
    AnsiString LongDateFormat = "dddd, mmmm d, yyyy";
    AnsiString ShortTimeFormat = "h:mm AMPM";
    AnsiString LongTimeFormat = "h:mm:ss AMPM";
    AnsiString TimeAMString = "AM";
    AnsiString TimePMString = "PM";
    /// January first.
    std::array<AnsiString, 12> ShortMonthNames{"Jan", "Feb", "Mar", "Apr", "May", "Jun",
                                               "Jul", "Aug", "Sep", "Oct", "Nov", "Dec"};
    std::array<AnsiString, 12> LongMonthNames{"January",   "February", "March",    "April",
                                              "May",       "June",     "July",     "August",
                                              "September", "October",  "November", "December"};
    /// Sunday first.
    std::array<AnsiString, 7> ShortDayNames{"Sun", "Mon", "Tue", "Wed", "Thu", "Fri", "Sat"};
    std::array<AnsiString, 7> LongDayNames{"Sunday",   "Monday", "Tuesday", "Wednesday",
                                           "Thursday", "Friday", "Saturday"};
};

/// The settings used where none are given. Change them at the start of a program, before other threads read
/// them.
TFormatSettings& DefaultFormatSettings();

/// Writes Value by a format of letters (upper or lower case; longer runs than listed count as the longest):
///
///     d dd           day of the month            y yy           two digits of the year
///     ddd dddd       name of the day             yyy yyyy       year
///     ddddd dddddd   short, long date format     h hh           hour, 1-12 when am/pm follows it
///     m mm           month; after an h, minute   n nn  s ss     minute, second
///     mmm mmmm       name of the month           z zz zzz       millisecond
///     t tt           short, long time format     c              short date, and long time unless midnight
///     am/pm a/p      as written in the format    ampm           the settings' texts
///     / :            the settings' separators    'x' "x"        x as it stands
///
/// Anything else stands for itself. An empty format counts as "c". A date before the year 1 and NaN show
/// zeros and no month name.
AnsiString FormatDateTime(std::string_view Format, TDateTime Value,
                          const TFormatSettings& Settings = DefaultFormatSettings());

/// Value by the settings' short date format, and by their long time format.
AnsiString DateToStr(TDateTime Value);
AnsiString TimeToStr(TDateTime Value);

} // namespace vcl
