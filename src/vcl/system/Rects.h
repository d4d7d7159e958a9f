#pragma once

#include "vcl/system/Types.h"

namespace vcl
{

// Rectangle arithmetic. A rectangle with no width or height, or an inverted one, is empty. Where a coordinate
// would leave the range of int it stops at its end. Result may be one of the arguments.

/// True when Rect has no inside.
bool IsRectEmpty(const TRect& Rect);
/// Compares coordinates; two empty rectangles in different places are different.
bool EqualRect(const TRect& Left, const TRect& Right);
/// True on the left and top edges, false on the right and bottom ones.
bool PtInRect(const TRect& Rect, TPoint Point);

/// Moves each vertical edge outwards by DX and each horizontal one by DY, inwards when negative.
void InflateRect(TRect& Rect, int DX, int DY);
void OffsetRect(TRect& Rect, int DX, int DY);

/// The common part; all zeros and false when there is none.
bool IntersectRect(TRect& Result, const TRect& Left, const TRect& Right);
/// The smallest rectangle around both. An empty one does not count; all zeros and false when both are.
bool UnionRect(TRect& Result, const TRect& Left, const TRect& Right);
/// Rect without Removed where that is a rectangle again (Removed spans it and covers one end), else Rect as
/// it is. All zeros and false when nothing is left or Rect is empty.
bool SubtractRect(TRect& Result, const TRect& Rect, const TRect& Removed);

/// Number * Numerator / Denominator, rounded to nearest with halves away from zero; -1 when Denominator is 0
/// or the result does not fit.
int MulDiv(int Number, int Numerator, int Denominator);

} // namespace vcl
