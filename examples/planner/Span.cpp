#include "planner/Span.h"

#include "vcl/system/DateTime.h"

namespace planner
{

namespace
{

constexpr int WorkWeek = 5;
constexpr int Month = 31;

bool BeginsOnMonday(int Days)
{
    return Days == WorkWeek || Days == 7 || Days == 14;
}

vcl::TDate MondayOf(vcl::TDate Date)
{
    // DayOfWeek counts from Sunday = 1; Monday is to be 0 days back.
    return Date - (vcl::DayOfWeek(Date) + 5) % 7;
}

vcl::TDate FirstOfMonth(vcl::TDate Date)
{
    return Date - (vcl::DecodeDate(Date).Day - 1);
}

} // namespace

TDaySpan TDaySpan::Around(vcl::TDate Date, int Days)
{
    if (BeginsOnMonday(Days))
        return {MondayOf(Date), Days};
    if (Days == Month)
        return {FirstOfMonth(Date), Days};
    return {Date, Days};
}

TDaySpan TDaySpan::Moved(int Direction) const
{
    if (Days == Month)
        return {vcl::IncMonth(First, Direction), Days};
    const int Step = Days == WorkWeek ? 7 : Days;
    return {First + Direction * Step, Days};
}

} // namespace planner
