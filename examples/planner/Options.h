#pragma once

#include <optional>
#include <string>
#include <vector>

#include "vcl/system/Types.h"

namespace planner
{

/// What the command line asks for.
struct TOptions {
    std::vector<std::string> Files;
    std::optional<vcl::TDate> Date;
    std::optional<int> Days;        // 1..31
    std::optional<vcl::TSize> Size; // of the window, in units
    double Scale = 1.0;             // of the screenshot, 0.5..4
    std::optional<int> MarkMinutes; // 5, 6, 10, 15, 30 or 60
    std::string Screenshot;         // file name; empty: show the window
    bool Dark = false;
    bool RightToLeft = false;
    bool Help = false;
};

/// Throws std::invalid_argument with a line for the user.
TOptions ParseOptions(const std::vector<std::string>& Arguments);

/// A date written as 2026-03-18, or nothing.
std::optional<vcl::TDate> ParseDate(const std::string& Text);

extern const char* const UsageText;

} // namespace planner
