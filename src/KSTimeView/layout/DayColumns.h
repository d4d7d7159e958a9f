#pragma once

#include <vector>

#include "vcl/system/Types.h"

namespace timeview
{

/// The horizontal extent of a day, in pixels of the client area.
struct TDayColumn {
    int Left = 0;
    int Width = 0;
    bool operator==(const TDayColumn&) const = default;
};

/// Shares the client width right of the ruler among Count days. Edges are rounded sums of the exact share, so
/// neighbours touch and the widths add up to the shared width.
std::vector<TDayColumn> DivideWidth(int ClientWidth, bool ShowRuler, int RulerWidth, int Count);

/// What places an item inside its day; all in pixels except the column numbers.
struct TItemPlace {
    TDayColumn Day;
    int Column = 0;
    int ColumnCount = 1;
    int GapWidth = 0;
    /// The gap between days is covered beside items, and items begin below that cover.
    bool GapCover = false;
    /// The item is being dragged in from outside: it lies over the whole day.
    bool OverWholeDay = false;
};

/// Left and right edge of a timed item. The right edge always leaves the gap free, the left one only with a
/// gap cover: the cover is drawn over the gap of the column to the left.
struct TItemExtent {
    int Left = 0;
    int Right = 0;
    bool operator==(const TItemExtent&) const = default;
};
TItemExtent TimedItemExtent(const TItemPlace& Place);

/// Rectangle of an all-day item over the days First..Last.
vcl::TRect AllDayItemRect(const TDayColumn& First, const TDayColumn& Last, int CaptionHeight, int RowHeight,
                          int Row);

} // namespace timeview
