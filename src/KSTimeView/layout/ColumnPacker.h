#pragma once

#include <deque>
#include <map>
#include <memory>
#include <memory_resource>

#include "KSTimeView/layout/MinuteOccupancy.h"
#include "vcl/system/Types.h"

namespace timeview
{

/// First-fit packing of the items of one day into columns, in the order they come.
///
/// Two items need different columns when they share more than a minute: the later one's start plus a minute
/// is earlier than the other's end, and its end minus a minute later than the other's start. The rule is
/// applied as it stands to every pair of doubles, so items that end before they start, last less than two
/// minutes, or have no number for a time behave as it says: a comparison that is false means no overlap.
///
/// Exactly as if each item were compared with all earlier ones column by column, but an item costs a few
/// look-ups of logarithmic cost: a coarse map of whole minutes skips the columns that are certainly taken, an
/// ordered set of the column's times decides. Only items shorter than two minutes or ending before they start
/// may have to walk the columns one by one.
class TColumnPacker
{
public:
    /// Day is the date of the column (times outside it are packed as well), ItemCount how many are to come.
    TColumnPacker(vcl::TDateTime Day, int ItemCount);

    /// The column of the next item: the lowest whose earlier items it does not overlap.
    int Place(vcl::TDateTime Start, vcl::TDateTime End);

    /// Columns used so far.
    int ColumnCount() const { return static_cast<int>(FColumns.size()); }

private:
    /// Start to end of the items that decide: of two items, one that starts no earlier and ends no later than
    /// the other overlaps nothing the other does not. What is left rises in both.
    using TSteps = std::pmr::map<vcl::TDateTime, vcl::TDateTime>;

    /// Minutes of the day, First above Last when there are none.
    struct TMinutes {
        int First = 0;
        int Last = -1;
    };

    /// The minutes an item takes whole.
    TMinutes MinutesInside(vcl::TDateTime Start, vcl::TDateTime End) const;
    /// The minutes that start before To and end after From: an item that takes one of them whole overlaps.
    TMinutes MinutesTouched(vcl::TDateTime From, vcl::TDateTime To) const;
    /// Minutes 0..1440; -1 when even the first one starts later.
    vcl::TDateTime MinuteStart(int Minute) const;
    int FirstMinuteAtOrAfter(vcl::TDateTime Time) const;
    int LastMinuteAtOrBefore(vcl::TDateTime Time) const;
    bool IsFree(int Column, vcl::TDateTime From, vcl::TDateTime To) const;
    int FindColumn(vcl::TDateTime From, vcl::TDateTime To) const;
    void Add(int Column, vcl::TDateTime Start, vcl::TDateTime End);

    vcl::TDateTime FDay;
    std::pmr::monotonic_buffer_resource FMemory;
    std::deque<TSteps> FColumns;
    std::unique_ptr<TMinuteOccupancy> FOccupancy;
};

} // namespace timeview
