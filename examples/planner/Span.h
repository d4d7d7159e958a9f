#pragma once

#include "vcl/system/Types.h"

namespace planner
{

/// Which days the planner shows: how many, from when, and where earlier and later go.
///
/// One day stands alone; a work week and a week begin on Monday, two weeks too; a month begins on its first
/// day and shows 31 days.
struct TSpan {
    vcl::TDate First = 0;
    int Days = 7;

    /// The span of Days days that Date falls in.
    static TSpan Around(vcl::TDate Date, int Days);
    /// The neighbouring span: Direction -1 earlier, 1 later.
    TSpan Moved(int Direction) const;
    bool Contains(vcl::TDate Date) const { return Date >= First && Date < First + Days; }
    bool operator==(const TSpan&) const = default;
};

} // namespace planner
