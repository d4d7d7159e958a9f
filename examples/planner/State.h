#pragma once

#include <string>
#include <vector>

#include "vcl/system/Types.h"

namespace planner
{

/// What the planner remembers from one start to the next.
struct TState {
    std::vector<std::string> Files;
    int Days = 7;
    int MarkMinutes = 30;
    bool ShowWork = true;
    vcl::TTime BeginWork = 8.0 / 24;
    vcl::TTime EndWork = 17.5 / 24;
    /// Of the window; empty: as the form file says.
    vcl::TRect Bounds;
    /// How far the time scale is scrolled, in minutes; -1: to the beginning of work.
    int ScrollMinutes = -1;
};

/// From the user's configuration; what is missing or makes no sense there gets its default.
TState LoadState();
void SaveState(const TState& State);

} // namespace planner
