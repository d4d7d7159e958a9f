#include "KSTimeView/layout/ColumnPacker.h"

#include <algorithm>
#include <cmath>

#include "KSTimeView/layout/TimeScale.h"

namespace timeview
{

namespace
{

/// Below this the map of minutes costs more than it saves.
constexpr int ItemsWorthAMap = 48;

} // namespace

TColumnPacker::TColumnPacker(vcl::TDateTime Day, int ItemCount) : FDay(Day)
{
    if (ItemCount >= ItemsWorthAMap && std::isfinite(Day))
        FOccupancy = std::make_unique<TMinuteOccupancy>();
}

int TColumnPacker::Place(vcl::TDateTime Start, vcl::TDateTime End)
{
    const vcl::TDateTime From = Start + OneMinute;
    const vcl::TDateTime To = End - OneMinute;
    const int Column = FindColumn(From, To);
    if (Column == ColumnCount())
        FColumns.emplace_back(&FMemory);
    Add(Column, Start, End);
    return Column;
}

int TColumnPacker::FindColumn(vcl::TDateTime From, vcl::TDateTime To) const
{
    const TMinutes Minutes = FOccupancy ? MinutesTouched(From, To) : TMinutes{};
    if (Minutes.First > Minutes.Last) {
        int Column = 0;
        while (Column < ColumnCount() && !IsFree(Column, From, To))
            ++Column;
        return Column;
    }
    const TMinuteOccupancy::TTaken Taken = FOccupancy->TakenIn(Minutes.First, Minutes.Last);
    int Column = Taken.FirstFreeFrom(0);
    while (Column < ColumnCount() && !IsFree(Column, From, To))
        Column = Taken.FirstFreeFrom(Column + 1);
    return std::min(Column, ColumnCount());
}

bool TColumnPacker::IsFree(int Column, vcl::TDateTime From, vcl::TDateTime To) const
{
    if (std::isnan(From) || std::isnan(To))
        return true;
    // Of the items that start before To, the last ends last.
    const TSteps& Steps = FColumns[static_cast<std::size_t>(Column)];
    auto Step = Steps.lower_bound(To);
    return Step == Steps.begin() || !(From < std::prev(Step)->second);
}

void TColumnPacker::Add(int Column, vcl::TDateTime Start, vcl::TDateTime End)
{
    if (std::isnan(Start) || std::isnan(End))
        return;
    TSteps& Steps = FColumns[static_cast<std::size_t>(Column)];
    auto Next = Steps.upper_bound(Start);
    if (Next != Steps.begin() && std::prev(Next)->second >= End)
        return;
    Next = Steps.lower_bound(Start);
    while (Next != Steps.end() && Next->second <= End)
        Next = Steps.erase(Next);
    Steps.emplace_hint(Next, Start, End);
    if (!FOccupancy)
        return;
    const TMinutes Minutes = MinutesInside(Start, End);
    if (Minutes.First <= Minutes.Last)
        FOccupancy->Take(Minutes.First, Minutes.Last, Column);
}

vcl::TDateTime TColumnPacker::MinuteStart(int Minute) const
{
    return FDay + Minute * OneMinute;
}

int TColumnPacker::FirstMinuteAtOrAfter(vcl::TDateTime Time) const
{
    // The estimate may be off by a rounding error; MinuteStart alone decides, here and below.
    int Minute = static_cast<int>(std::clamp((Time - FDay) * MinutesPerDay, 0.0, double{MinutesPerDay}));
    while (Minute > 0 && MinuteStart(Minute - 1) >= Time)
        --Minute;
    while (Minute < MinutesPerDay && MinuteStart(Minute) < Time)
        ++Minute;
    return Minute;
}

int TColumnPacker::LastMinuteAtOrBefore(vcl::TDateTime Time) const
{
    int Minute = static_cast<int>(std::clamp((Time - FDay) * MinutesPerDay, 0.0, double{MinutesPerDay}));
    while (Minute < MinutesPerDay && MinuteStart(Minute + 1) <= Time)
        ++Minute;
    while (Minute >= 0 && MinuteStart(Minute) > Time)
        --Minute;
    return Minute;
}

TColumnPacker::TMinutes TColumnPacker::MinutesInside(vcl::TDateTime Start, vcl::TDateTime End) const
{
    return {FirstMinuteAtOrAfter(Start), LastMinuteAtOrBefore(End) - 1};
}

TColumnPacker::TMinutes TColumnPacker::MinutesTouched(vcl::TDateTime From, vcl::TDateTime To) const
{
    if (std::isnan(From) || std::isnan(To))
        return {};
    return {std::max(LastMinuteAtOrBefore(From), 0), FirstMinuteAtOrAfter(To) - 1};
}

} // namespace timeview
