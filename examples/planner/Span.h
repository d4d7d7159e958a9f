#pragma once

#include "vcl/system/Types.h"

namespace planner
{

/// Which days the planner shows: how many, from when, and where earlier and later go.
///
/// One day stands alone; a work week and a week begin on Monday, two weeks too; a month begins on its first
/// day and shows 31 days.
struct TDaySpan {
    vcl::TDate First = 0;
    int Days = 7;

    /// The span of Days days that Date falls in.
    static TDaySpan Around(vcl::TDate Date, int Days);
    /// The neighbouring span: Direction -1 earlier, 1 later.
    TDaySpan Moved(int Direction) const;
    bool Contains(vcl::TDate Date) const { return Date >= First && Date < First + Days; }
    bool operator==(const TDaySpan&) const = default;
};

} // namespace planner
