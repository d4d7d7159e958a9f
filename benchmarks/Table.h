#pragma once

#include <functional>
#include <string>
#include <vector>

namespace benchmark
{
class State;
}

namespace ks::bench
{

/// What the same picture costs when painted with nothing but the toolkit's painter.
struct TFloor {
    int Rectangles = 0;
    int Texts = 0;
};

/// One case of the speed table.
struct TRow {
    std::string Name;
    /// The measured loop: `for (auto _ : State) ...`. Preparations stand before it.
    std::function<void(benchmark::State&)> Run;
    /// Milliseconds the median should stay below; 0 when there is no such number.
    double Reach = 0;
    /// The row whose median times Factor is the reach instead, as in "at most twice the first row".
    std::string ReachRow = {};
    double ReachFactor = 1;
    /// What to compare with; nothing when the case paints nothing.
    TFloor Floor = {};
};

/// A number that is not a time, such as bytes for one item.
struct TFigure {
    std::string Name;
    std::function<double()> Measure;
    double Reach = 0;
    std::string Unit;
};

/// All cases, in the order of the table.
struct TCases {
    std::vector<TRow> Rows;
    std::vector<TFigure> Figures;
};

/// Measures all cases that the command line leaves in and prints the table. Each row's time is the median of
/// nine runs, its floor's likewise, taken right after it. Returns the program's exit status: slowness is no
/// error, a case that could not run is.
int RunTable(int Count, char** Arguments, const TCases& Cases);

/// Each in the file of that name.
void AddCalendarCases(TCases& Cases);
void AddTimeViewCases(TCases& Cases);
void AddTreeViewCases(TCases& Cases);

} // namespace ks::bench
