#pragma once

#include <cstddef>
#include <span>
#include <vector>

#include "vcl/system/Types.h"

namespace vcl
{

/// A set of pixels, kept as disjoint rectangles in bands: rectangles of one band share top and bottom, are
/// sorted by left and do not touch; bands are sorted by top. Equal sets have equal rectangles. Coordinates
/// may lie anywhere in the range of int.
///
///     TRegion Damage(TRect{0, 0, 100, 100});
///     Damage.Subtract(TRect{10, 10, 20, 20});
///     for (const TRect& Rect : Damage.GetRects()) ...
///
/// Combining regions of n and m rectangles costs n + m plus what comes out; to unite many rectangles at once
/// use FromRects, which sorts first.
class TRegion
{
public:
    TRegion() = default;
    /// One rectangle; nothing when it is empty or inverted.
    explicit TRegion(const TRect& Rect);
    /// The union of any number of rectangles, in n log n for such as do not all overlap.
    static TRegion FromRects(std::span<const TRect> Rects);

    bool IsEmpty() const { return FRects.empty(); }
    bool IsRect() const { return FRects.size() == 1; }
    /// The smallest rectangle around everything; all zero when empty.
    const TRect& GetBounds() const { return FBounds; }
    const std::vector<TRect>& GetRects() const { return FRects; }

    bool Contains(TPoint Point) const;
    /// Whether every pixel of a rectangle is inside; an empty rectangle always is.
    bool Contains(const TRect& Rect) const;
    bool Intersects(const TRect& Rect) const;
    /// The index of the first rectangle whose bottom lies below Y: where a walk over a range of rows starts.
    std::size_t FirstBelow(int Y) const;

    void Clear();
    void Union(const TRect& Rect);
    void Union(const TRegion& Other);
    void Intersect(const TRect& Rect);
    void Intersect(const TRegion& Other);
    void Subtract(const TRect& Rect);
    void Subtract(const TRegion& Other);
    /// Moves the region; what would leave the range of int is pressed against its end.
    void Offset(int DeltaX, int DeltaY);

    bool operator==(const TRegion& Other) const { return FRects == Other.FRects; }

private:
    enum class TOperation { Union, Intersect, Subtract };
    class TCombiner;

    void Combine(const TRegion& Other, TOperation Operation);
    void UpdateBounds();

    std::vector<TRect> FRects;
    TRect FBounds;
};

/// The pixels of both; all zero when there are none.
TRect IntersectionOf(const TRect& Left, const TRect& Right);

} // namespace vcl
