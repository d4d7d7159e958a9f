#include "KSTimeView/layout/TimeScale.h"

#include <algorithm>
#include <climits>
#include <cmath>

namespace timeview
{

namespace
{

constexpr double MillisecondsPerDay = 86400000.0;
constexpr int MillisecondsPerMinute = 60000;

/// Minutes of a time in 0..1: to the millisecond first, so that a time that was encoded as 09:10 and is a
/// hair less than that as a double counts as 09:10.
int WholeMinutes(vcl::TTime Time)
{
    if (!(std::abs(Time - 1.0) > OneSecond))
        return MinutesPerDay;
    return vcl::RoundHalfEven(Time * MillisecondsPerDay) / MillisecondsPerMinute;
}

} // namespace

int SaturatedInt(std::int64_t Value)
{
    return static_cast<int>(std::clamp<std::int64_t>(Value, INT_MIN, INT_MAX));
}

vcl::TTime TimeOfDay(vcl::TDateTime Value)
{
    return std::isfinite(Value) ? Value - std::trunc(Value) : 0.0;
}

int TotalScaleHeight(int MarkMinutes, int MarkHeight)
{
    const std::int64_t MarksPerHour = 60 / std::max(MarkMinutes, 1);
    return SaturatedInt(MarksPerHour * MarkHeight * 24);
}

int TTimeScale::Top() const
{
    return SaturatedInt(std::int64_t{CaptionHeight} + TopSpace);
}

int TTimeScale::ScaleTop() const
{
    return SaturatedInt(std::int64_t{CaptionHeight} + TopSpace - ScrollOffset);
}

int TTimeScale::ScaleBottom() const
{
    return SaturatedInt(std::int64_t{CaptionHeight} + TopSpace - ScrollOffset + TotalHeight);
}

int TTimeScale::TimeToPos(vcl::TTime Time, int Resolution) const
{
    const vcl::TTime Clamped = Time > 0.0 ? std::min(Time, 1.0) : 0.0;
    const int Step = std::max(Resolution, 1);
    const int Minutes = WholeMinutes(Clamped) / Step * Step;
    const int Row = vcl::RoundHalfEven(static_cast<double>(Minutes) * TotalHeight / MinutesPerDay);
    return SaturatedInt(std::int64_t{Row} + CaptionHeight + TopSpace - ScrollOffset - 1);
}

vcl::TTime TTimeScale::PosToTime(int Y, int Resolution, bool Nearest) const
{
    const std::int64_t Row = std::int64_t{Y} - CaptionHeight - TopSpace + ScrollOffset;
    const double Exact = static_cast<double>(Row) * MinutesPerDay / TotalHeight;
    const std::int64_t Step = std::max(Resolution, 1);
    std::int64_t Minutes = std::clamp(vcl::RoundHalfEven(Exact), 0, MinutesPerDay);
    if (Nearest)
        Minutes += Step / 2;
    Minutes = Minutes / Step * Step;
    if (Minutes / 60 >= 24)
        return 1.0;
    return static_cast<double>(Minutes * MillisecondsPerMinute) / MillisecondsPerDay;
}

} // namespace timeview
