#pragma once

#include <cstdint>

#include "vcl/system/Types.h"

namespace timeview
{

constexpr int MinutesPerDay = 1440;
constexpr vcl::TDateTime OneMinute = 1.0 / MinutesPerDay;
constexpr vcl::TDateTime OneSecond = 1.0 / 86400;

/// Pixel sums of properties that may hold any integer: kept inside int instead of overflowing.
int SaturatedInt(std::int64_t Value);

/// The fraction of a date-time; 0 for NaN and infinities.
vcl::TTime TimeOfDay(vcl::TDateTime Value);

/// Height in pixels of the scale of one whole day: as many marks as fit into an hour, 24 hours.
int TotalScaleHeight(int MarkMinutes, int MarkHeight);

/// The vertical scale: which pixel row of the client area a time of day has, and back.
///
/// Everything a conversion depends on is in here, so two equal scales give equal rows.
struct TTimeScale {
    int TotalHeight = 960;
    int CaptionHeight = 22;
    /// Height of the all-day area as shown: 0 when it is hidden.
    int TopSpace = 0;
    int ScrollOffset = 0;

    /// First row below captions and all-day area.
    int Top() const;
    /// Row of the top of the unclipped scale, and the row after its end.
    int ScaleTop() const;
    int ScaleBottom() const;

    /// Row of a time of day, its minutes rounded down to a multiple of Resolution (minutes, below 1 counts
    /// as 1). Times outside a day are clamped; a time within a second of midnight is the end of the day.
    int TimeToPos(vcl::TTime Time, int Resolution) const;

    /// The time of day of a row, rounded to a multiple of Resolution minutes: down, or to the nearest. Rows
    /// above the scale give 0, rows below it 1.0.
    vcl::TTime PosToTime(int Y, int Resolution, bool Nearest) const;
};

} // namespace timeview
