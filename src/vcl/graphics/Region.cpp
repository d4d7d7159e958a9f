#include "vcl/graphics/Region.h"

#include <algorithm>
#include <limits>

namespace vcl
{

namespace
{

int Saturated(std::int64_t Value)
{
    return static_cast<int>(
        std::clamp<std::int64_t>(Value, std::numeric_limits<int>::min(), std::numeric_limits<int>::max()));
}

} // namespace

TRect IntersectionOf(const TRect& Left, const TRect& Right)
{
    const TRect Result{std::max(Left.Left, Right.Left), std::max(Left.Top, Right.Top),
                       std::min(Left.Right, Right.Right), std::min(Left.Bottom, Right.Bottom)};
    return Result.IsEmpty() ? TRect{} : Result;
}

/// Sweeps two regions from top to bottom, one band of constant content at a time.
class TRegion::TCombiner
{
public:
    TCombiner(const std::vector<TRect>& Left, const std::vector<TRect>& Right, TOperation Operation)
        : FLeft(Left), FRight(Right), FOperation(Operation)
    {
    }

    std::vector<TRect> Run()
    {
        TBand Left = BandAt(FLeft, 0);
        TBand Right = BandAt(FRight, 0);
        int Y = std::numeric_limits<int>::min();
        while (!Left.IsDone() || !Right.IsDone()) {
            const int Top = std::max(Y, std::min(Left.TopOr(Y), Right.TopOr(Y)));
            const int Bottom = std::min(Left.NextEdge(Top), Right.NextEdge(Top));
            WriteBand(Top, Bottom, Left.SpansAt(Top), Right.SpansAt(Top));
            Y = Bottom;
            Advance(FLeft, Left, Y);
            Advance(FRight, Right, Y);
        }
        return std::move(FResult);
    }

private:
    struct TBand {
        std::span<const TRect> Spans;
        std::size_t End = 0;

        bool IsDone() const { return Spans.empty(); }
        int TopOr(int Y) const
        {
            return IsDone() ? std::numeric_limits<int>::max() : std::max(Spans[0].Top, Y);
        }
        int NextEdge(int Y) const
        {
            if (IsDone())
                return std::numeric_limits<int>::max();
            return Y < Spans[0].Top ? Spans[0].Top : Spans[0].Bottom;
        }
        std::span<const TRect> SpansAt(int Y) const
        {
            return IsDone() || Y < Spans[0].Top ? std::span<const TRect>() : Spans;
        }
    };

    static TBand BandAt(const std::vector<TRect>& Rects, std::size_t Start)
    {
        std::size_t End = Start;
        while (End < Rects.size() && Rects[End].Top == Rects[Start].Top)
            ++End;
        return {std::span(Rects).subspan(Start, End - Start), End};
    }

    static void Advance(const std::vector<TRect>& Rects, TBand& Band, int Y)
    {
        if (!Band.IsDone() && Band.Spans[0].Bottom <= Y)
            Band = BandAt(Rects, Band.End);
    }

    bool IsInside(bool InLeft, bool InRight) const
    {
        switch (FOperation) {
        case TOperation::Union:
            return InLeft || InRight;
        case TOperation::Intersect:
            return InLeft && InRight;
        case TOperation::Subtract:
            return InLeft && !InRight;
        }
        return false;
    }

    void WriteBand(int Top, int Bottom, std::span<const TRect> Left, std::span<const TRect> Right)
    {
        const std::size_t Start = FResult.size();
        std::size_t L = 0; // counts edges: even ones open a span, odd ones close it
        std::size_t R = 0;
        const auto EdgeOf = [](std::span<const TRect> Spans, std::size_t Edge) {
            return Edge % 2 == 0 ? Spans[Edge / 2].Left : Spans[Edge / 2].Right;
        };
        bool Inside = false;
        int From = 0;
        while (L < 2 * Left.size() || R < 2 * Right.size()) {
            const bool HasLeft = L < 2 * Left.size();
            const bool HasRight = R < 2 * Right.size();
            const int X = !HasRight  ? EdgeOf(Left, L)
                          : !HasLeft ? EdgeOf(Right, R)
                                     : std::min(EdgeOf(Left, L), EdgeOf(Right, R));
            if (HasLeft && EdgeOf(Left, L) == X)
                ++L;
            if (HasRight && EdgeOf(Right, R) == X)
                ++R;
            const bool Now = IsInside(L % 2 == 1, R % 2 == 1);
            if (Now && !Inside)
                From = X;
            else if (!Now && Inside)
                FResult.push_back({From, Top, X, Bottom});
            Inside = Now;
        }
        JoinWithBandAbove(Start);
    }

    /// Two bands that touch and have the same spans are one.
    void JoinWithBandAbove(std::size_t Start)
    {
        const std::size_t Count = FResult.size() - Start;
        if (Count == 0)
            return;
        const bool Joins =
            FLastBand < Start && Start - FLastBand == Count &&
            FResult[FLastBand].Bottom == FResult[Start].Top &&
            std::equal(FResult.begin() + static_cast<std::ptrdiff_t>(Start), FResult.end(),
                       FResult.begin() + static_cast<std::ptrdiff_t>(FLastBand),
                       [](const TRect& A, const TRect& B) { return A.Left == B.Left && A.Right == B.Right; });
        if (!Joins) {
            FLastBand = Start;
            return;
        }
        const int Bottom = FResult[Start].Bottom;
        FResult.resize(Start);
        for (std::size_t Index = FLastBand; Index < Start; ++Index)
            FResult[Index].Bottom = Bottom;
    }

    const std::vector<TRect>& FLeft;
    const std::vector<TRect>& FRight;
    TOperation FOperation;
    std::vector<TRect> FResult;
    std::size_t FLastBand = 0;
};

TRegion::TRegion(const TRect& Rect)
{
    if (Rect.IsEmpty())
        return;
    FRects.push_back(Rect);
    FBounds = Rect;
}

TRegion TRegion::FromRects(std::span<const TRect> Rects)
{
    // Neighbours in reading order are united first, so that halves rarely interleave; each level of the merge
    // walks every rectangle once.
    std::vector<TRect> Sorted;
    std::copy_if(Rects.begin(), Rects.end(), std::back_inserter(Sorted),
                 [](const TRect& Rect) { return !Rect.IsEmpty(); });
    std::sort(Sorted.begin(), Sorted.end(), [](const TRect& A, const TRect& B) {
        return A.Top != B.Top ? A.Top < B.Top : A.Left < B.Left;
    });
    std::vector<TRegion> Parts;
    Parts.reserve(Sorted.size());
    for (const TRect& Rect : Sorted)
        Parts.emplace_back(Rect);
    while (Parts.size() > 1) {
        const std::size_t Pairs = Parts.size() / 2;
        for (std::size_t Index = 0; Index < Pairs; ++Index) {
            Parts[2 * Index].Union(Parts[2 * Index + 1]);
            if (Index > 0)
                Parts[Index] = std::move(Parts[2 * Index]);
        }
        if (Parts.size() % 2 == 1)
            Parts[Pairs] = std::move(Parts.back());
        Parts.resize((Parts.size() + 1) / 2);
    }
    return Parts.empty() ? TRegion() : std::move(Parts.front());
}

std::size_t TRegion::FirstBelow(int Y) const
{
    const auto Found = std::partition_point(FRects.begin(), FRects.end(),
                                            [Y](const TRect& Rect) { return Rect.Bottom <= Y; });
    return static_cast<std::size_t>(Found - FRects.begin());
}

bool TRegion::Contains(TPoint Point) const
{
    for (std::size_t Index = FirstBelow(Point.Y); Index < FRects.size(); ++Index) {
        const TRect& Rect = FRects[Index];
        if (Rect.Top > Point.Y || Rect.Left > Point.X)
            return false;
        if (Rect.Right > Point.X)
            return true;
    }
    return false;
}

bool TRegion::Contains(const TRect& Rect) const
{
    int Y = Rect.Top;
    if (Rect.IsEmpty())
        return true;
    for (std::size_t Index = FirstBelow(Rect.Top); Index < FRects.size() && Y < Rect.Bottom; ++Index) {
        const TRect& Part = FRects[Index];
        if (Part.Top > Y)
            return false;
        // Spans of a band never touch, so one span has to hold the whole width.
        if (Part.Bottom > Y && Part.Left <= Rect.Left && Part.Right >= Rect.Right)
            Y = Part.Bottom;
    }
    return Y >= Rect.Bottom;
}

bool TRegion::Intersects(const TRect& Rect) const
{
    if (IntersectionOf(FBounds, Rect).IsEmpty())
        return false;
    for (std::size_t Index = FirstBelow(Rect.Top); Index < FRects.size(); ++Index) {
        if (FRects[Index].Top >= Rect.Bottom)
            return false;
        if (FRects[Index].Left < Rect.Right && FRects[Index].Right > Rect.Left)
            return true;
    }
    return false;
}

void TRegion::Clear()
{
    FRects.clear();
    FBounds = {};
}

void TRegion::Union(const TRect& Rect)
{
    Union(TRegion(Rect));
}

void TRegion::Union(const TRegion& Other)
{
    if (Other.IsEmpty() || (Other.IsRect() && Contains(Other.FBounds)))
        return;
    if (IsEmpty() || (IsRect() && Other.Contains(FBounds)))
        *this = Other;
    else
        Combine(Other, TOperation::Union);
}

void TRegion::Intersect(const TRect& Rect)
{
    if (IsEmpty() || (Rect.Left <= FBounds.Left && Rect.Top <= FBounds.Top && Rect.Right >= FBounds.Right &&
                      Rect.Bottom >= FBounds.Bottom))
        return;
    if (IsRect())
        *this = TRegion(IntersectionOf(FBounds, Rect));
    else
        Combine(TRegion(Rect), TOperation::Intersect);
}

void TRegion::Intersect(const TRegion& Other)
{
    if (Other.IsRect())
        Intersect(Other.FBounds);
    else
        Combine(Other, TOperation::Intersect);
}

void TRegion::Subtract(const TRect& Rect)
{
    if (Intersects(Rect))
        Combine(TRegion(Rect), TOperation::Subtract);
}

void TRegion::Subtract(const TRegion& Other)
{
    if (!IntersectionOf(FBounds, Other.FBounds).IsEmpty())
        Combine(Other, TOperation::Subtract);
}

void TRegion::Offset(int DeltaX, int DeltaY)
{
    const auto Moved = [](int Value, int Delta) { return Saturated(std::int64_t{Value} + Delta); };
    for (TRect& Rect : FRects)
        Rect = {Moved(Rect.Left, DeltaX), Moved(Rect.Top, DeltaY), Moved(Rect.Right, DeltaX),
                Moved(Rect.Bottom, DeltaY)};
    std::erase_if(FRects, [](const TRect& Rect) { return Rect.IsEmpty(); });
    UpdateBounds();
}

void TRegion::Combine(const TRegion& Other, TOperation Operation)
{
    FRects = TCombiner(FRects, Other.FRects, Operation).Run();
    UpdateBounds();
}

void TRegion::UpdateBounds()
{
    if (FRects.empty()) {
        FBounds = {};
        return;
    }
    FBounds = {FRects.front().Left, FRects.front().Top, FRects.front().Right, FRects.back().Bottom};
    for (const TRect& Rect : FRects) {
        FBounds.Left = std::min(FBounds.Left, Rect.Left);
        FBounds.Right = std::max(FBounds.Right, Rect.Right);
    }
}

} // namespace vcl
