#pragma once

#include <string>

#include "vcl/system/Types.h"

namespace planner
{

/// True for files that are shown as a chart: indented text, .txt or .tree in any case.
bool IsChartFile(const std::string& FileName);

/// The title of the chart's window: the file's name without folders, with a star while changes are unsaved.
std::string ChartTitle(const std::string& FileName, bool Modified);

/// The file's name with Extension (without the dot) in the place of its own; "chart" for no name at all.
std::string WithExtension(const std::string& FileName, const std::string& Extension);

/// What the first line of a text ends with: "\n", or "\r\n", also when there is none.
std::string LineEndOf(const std::string& Text);

/// Lines that end with CR LF, with LineEnd instead.
std::string WithLineEnds(const std::string& Text, const std::string& LineEnd);

/// The page to draw so that a chart fits on paper of that size at half its size at least. A chart that is
/// larger still takes several such pages. Never smaller than the paper, and of its proportions.
vcl::TSize PrintPageFor(vcl::TSize Chart, vcl::TSize Paper);

/// "1 box", "12 boxes".
std::string BoxCountText(int Count);

} // namespace planner
