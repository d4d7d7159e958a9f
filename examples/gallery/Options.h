#pragma once

#include <optional>
#include <string>
#include <vector>

#include "vcl/system/Types.h"

namespace gallery
{

/// What the command line asks for.
struct TOptions {
    std::string Page;               // a control's class; empty: the first
    std::string State;              // empty: the first of the page
    std::optional<vcl::TSize> Size; // of the window, in units
    double Scale = 1.0;             // of the screenshot, 0.5..4
    std::string Screenshot;         // file name; empty: show the window
    bool Dark = false;
    bool List = false;
    bool Help = false;
};

/// Throws std::invalid_argument with a line for the user.
TOptions ParseOptions(const std::vector<std::string>& Arguments);

extern const char* const UsageText;

} // namespace gallery
