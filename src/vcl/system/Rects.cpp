#include "vcl/system/Rects.h"

#include <algorithm>
#include <cstdint>
#include <cstdlib>

namespace vcl
{

namespace
{

int Sum(int Left, int Right)
{
    return SaturateToInt(std::int64_t{Left} + Right);
}

int Difference(int Left, int Right)
{
    return SaturateToInt(std::int64_t{Left} - Right);
}

/// Cuts one axis of a rectangle: what is left of First..Last without From..To, if one piece holds it.
void CutRange(int& First, int& Last, int From, int To)
{
    if (From <= First)
        First = To;
    else if (To >= Last)
        Last = From;
}

} // namespace

bool IsRectEmpty(const TRect& Rect)
{
    return Rect.IsEmpty();
}

bool EqualRect(const TRect& Left, const TRect& Right)
{
    return Left == Right;
}

bool PtInRect(const TRect& Rect, TPoint Point)
{
    return Rect.Contains(Point);
}

void InflateRect(TRect& Rect, int DX, int DY)
{
    Rect = {Difference(Rect.Left, DX), Difference(Rect.Top, DY), Sum(Rect.Right, DX), Sum(Rect.Bottom, DY)};
}

void OffsetRect(TRect& Rect, int DX, int DY)
{
    Rect = {Sum(Rect.Left, DX), Sum(Rect.Top, DY), Sum(Rect.Right, DX), Sum(Rect.Bottom, DY)};
}

bool IntersectRect(TRect& Result, const TRect& Left, const TRect& Right)
{
    const TRect Common{std::max(Left.Left, Right.Left), std::max(Left.Top, Right.Top),
                       std::min(Left.Right, Right.Right), std::min(Left.Bottom, Right.Bottom)};
    const bool IsCommon = !Left.IsEmpty() && !Right.IsEmpty() && !Common.IsEmpty();
    Result = IsCommon ? Common : TRect{};
    return IsCommon;
}

bool UnionRect(TRect& Result, const TRect& Left, const TRect& Right)
{
    if (Left.IsEmpty() && Right.IsEmpty())
        Result = {};
    else if (Left.IsEmpty())
        Result = Right;
    else if (Right.IsEmpty())
        Result = Left;
    else
        Result = {std::min(Left.Left, Right.Left), std::min(Left.Top, Right.Top),
                  std::max(Left.Right, Right.Right), std::max(Left.Bottom, Right.Bottom)};
    return !Result.IsEmpty();
}

bool SubtractRect(TRect& Result, const TRect& Rect, const TRect& Removed)
{
    TRect Rest = Rect;
    TRect Common;
    if (IntersectRect(Common, Rect, Removed)) {
        const bool SpansWidth = Common.Left == Rect.Left && Common.Right == Rect.Right;
        const bool SpansHeight = Common.Top == Rect.Top && Common.Bottom == Rect.Bottom;
        if (SpansWidth)
            CutRange(Rest.Top, Rest.Bottom, Common.Top, Common.Bottom);
        else if (SpansHeight)
            CutRange(Rest.Left, Rest.Right, Common.Left, Common.Right);
    }
    Result = Rest.IsEmpty() ? TRect{} : Rest;
    return !Result.IsEmpty();
}

int MulDiv(int Number, int Numerator, int Denominator)
{
    if (Denominator == 0)
        return -1;
    const std::int64_t Product = std::int64_t{Number} * Numerator;
    const std::int64_t Divisor = std::abs(std::int64_t{Denominator});
    const std::int64_t Magnitude = (std::abs(Product) + Divisor / 2) / Divisor;
    if (Magnitude > INT32_MAX)
        return -1;
    const bool IsNegative = (Product < 0) != (Denominator < 0);
    return static_cast<int>(IsNegative ? -Magnitude : Magnitude);
}

} // namespace vcl
