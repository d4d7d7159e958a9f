#pragma once

#include <cstdint>

namespace vcl
{

/// Value, or the nearest int when it lies beyond. Coordinates reach this way for the end of the range instead
/// of overflowing.
constexpr int SaturateToInt(std::int64_t Value)
{
    return Value < INT32_MIN ? INT32_MIN : Value > INT32_MAX ? INT32_MAX : static_cast<int>(Value);
}

/// A point in pixels; x to the right, y down.
struct TPoint {
    int X = 0;
    int Y = 0;
    constexpr bool operator==(const TPoint&) const = default;
};

struct TSize {
    int Width = 0;
    int Height = 0;
    constexpr bool operator==(const TSize&) const = default;
};

/// A rectangle in pixels; right and bottom are exclusive. It may be inverted; Width and Height are then
/// negative.
struct TRect {
    int Left = 0;
    int Top = 0;
    int Right = 0;
    int Bottom = 0;

    constexpr int Width() const { return SaturateToInt(std::int64_t{Right} - Left); }
    constexpr int Height() const { return SaturateToInt(std::int64_t{Bottom} - Top); }
    constexpr bool IsEmpty() const { return Right <= Left || Bottom <= Top; }
    constexpr bool Contains(TPoint Point) const
    {
        return Point.X >= Left && Point.X < Right && Point.Y >= Top && Point.Y < Bottom;
    }
    constexpr bool operator==(const TRect&) const = default;
};

constexpr TRect Bounds(int Left, int Top, int Width, int Height)
{
    return {Left, Top, SaturateToInt(std::int64_t{Left} + Width), SaturateToInt(std::int64_t{Top} + Height)};
}

using TDateTime = double;
using TDate = TDateTime;
using TTime = TDateTime;

/// A colour: 0x00BBGGRR, or 0x80000000 plus the index of a system colour.
enum TColor : std::int32_t {
    clBlack = 0x000000,
    clMaroon = 0x000080,
    clGreen = 0x008000,
    clOlive = 0x008080,
    clNavy = 0x800000,
    clPurple = 0x800080,
    clTeal = 0x808000,
    clGray = 0x808080,
    clSilver = 0xC0C0C0,
    clRed = 0x0000FF,
    clLime = 0x00FF00,
    clYellow = 0x00FFFF,
    clBlue = 0xFF0000,
    clFuchsia = 0xFF00FF,
    clAqua = 0xFFFF00,
    clWhite = 0xFFFFFF,
    clNone = 0x1FFFFFFF,
    clDefault = 0x20000000,
    clScrollBar = INT32_MIN,
    clBackground,
    clActiveCaption,
    clInactiveCaption,
    clMenu,
    clWindow,
    clWindowFrame,
    clMenuText,
    clWindowText,
    clCaptionText,
    clActiveBorder,
    clInactiveBorder,
    clAppWorkSpace,
    clHighlight,
    clHighlightText,
    clBtnFace,
    clBtnShadow,
    clGrayText,
    clBtnText,
    clInactiveCaptionText,
    clBtnHighlight,
    cl3DDkShadow,
    cl3DLight,
    clInfoText,
    clInfoBk,
};

constexpr bool IsSystemColor(TColor Color)
{
    return Color < 0;
}

/// Index into the system colour table of a system colour (0 = clScrollBar).
constexpr int SystemColorIndex(TColor Color)
{
    return static_cast<int>(static_cast<std::uint32_t>(Color) & 0xFFu);
}

/// A mouse cursor's number; negative ones are the built-in shapes.
enum TCursor : std::int16_t {
    crDefault = 0,
    crNone = -1,
    crArrow = -2,
    crCross = -3,
    crIBeam = -4,
    crSize = -22,
    crSizeNESW = -6,
    crSizeNS = -7,
    crSizeNWSE = -8,
    crSizeWE = -9,
    crUpArrow = -10,
    crHourGlass = -11,
    crDrag = -12,
    crNoDrop = -13,
    crHSplit = -14,
    crVSplit = -15,
    crMultiDrag = -16,
    crSQLWait = -17,
    crNo = -18,
    crAppStart = -19,
    crHelp = -20,
    crHandPoint = -21,
    crSizeAll = -22,
};

/// Rounds to the nearest integer, exact halves to the even one; NaN gives 0, values beyond int saturate.
int RoundHalfEven(double Value);

} // namespace vcl
