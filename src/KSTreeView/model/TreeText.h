#pragma once

#include <string_view>

#include "vcl/system/AnsiString.h"

namespace treeview
{

/// A line of the text form: how deep it is indented, and the rest.
struct TTreeLine {
    int Level = 0;
    std::string_view Text;
};

/// Tabs and blanks at the start count one level each.
TTreeLine ParseTreeLine(std::string_view Line);
/// Level tabs and the text, without a line break.
vcl::AnsiString FormatTreeLine(int Level, std::string_view Text);

} // namespace treeview
