#include "KSTimeView/layout/DayColumns.h"

#include <algorithm>

#include "KSTimeView/layout/TimeScale.h"

namespace timeview
{

namespace
{

constexpr int AllDayLeftMargin = 3;
constexpr int AllDayRightMargin = 2;
constexpr int AllDayTopMargin = 2;

} // namespace

std::vector<TDayColumn> DivideWidth(int ClientWidth, bool ShowRuler, int RulerWidth, int Count)
{
    const std::int64_t Start = ShowRuler ? RulerWidth : 0;
    const double Shared = static_cast<double>(ClientWidth - Start);
    const float Width = static_cast<float>(Shared / std::max(Count, 1));
    std::vector<TDayColumn> Columns(static_cast<std::size_t>(std::max(Count, 0)));
    double X = static_cast<double>(Start);
    for (TDayColumn& Column : Columns) {
        Column.Left = vcl::RoundHalfEven(X);
        X += Width;
        Column.Width = SaturatedInt(std::int64_t{vcl::RoundHalfEven(X)} - Column.Left);
    }
    return Columns;
}

TItemExtent TimedItemExtent(const TItemPlace& Place)
{
    const std::int64_t Left = Place.Day.Left;
    const std::int64_t Indent = Place.GapCover ? std::int64_t{Place.GapWidth} - 1 : 0;
    if (Place.OverWholeDay)
        return {SaturatedInt(Left + Indent), SaturatedInt(Left + Place.Day.Width - Place.GapWidth)};
    const float ColumnWidth = static_cast<float>(static_cast<double>(Place.Day.Width) / Place.ColumnCount);
    const int Begin = vcl::RoundHalfEven(static_cast<double>(Place.Column) * ColumnWidth);
    const int End = vcl::RoundHalfEven((static_cast<double>(Place.Column) + 1) * ColumnWidth);
    return {SaturatedInt(Begin + Left + Indent), SaturatedInt(End + Left - Place.GapWidth)};
}

vcl::TRect AllDayItemRect(const TDayColumn& First, const TDayColumn& Last, int CaptionHeight, int RowHeight,
                          int Row)
{
    vcl::TRect Rect;
    Rect.Left = SaturatedInt(std::int64_t{First.Left} + AllDayLeftMargin);
    Rect.Right = SaturatedInt(std::int64_t{Last.Left} + Last.Width - AllDayRightMargin);
    Rect.Top = SaturatedInt(CaptionHeight + std::int64_t{RowHeight} * Row + AllDayTopMargin);
    Rect.Bottom = SaturatedInt(std::int64_t{Rect.Top} + RowHeight - AllDayTopMargin);
    return Rect;
}

} // namespace timeview
