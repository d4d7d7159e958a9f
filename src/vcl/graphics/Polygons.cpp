#include "vcl/graphics/Polygons.h"

#include <algorithm>

#include "vcl/graphics/WideMath.h"

namespace vcl
{

namespace
{

/// One side of a polygon on its way down: Boundary is the first pixel on or right of it in the current row.
struct TEdge {
    int Top;
    int Bottom;
    int Direction;
    std::int64_t Boundary;
    std::int64_t Height; // whole height, also above the bounds
    std::int64_t Error;  // exact x minus Boundary, in 1 / Height: -Height < Error <= 0
    std::int64_t Step;
    std::int64_t StepError;

    void NextRow()
    {
        Boundary += Step;
        Error += StepError;
        if (Error > 0) {
            ++Boundary;
            Error -= Height;
        }
    }
};

class TScanner
{
public:
    TScanner(std::span<const TPoint> Points, TFillMode Mode, const TRect& Bounds, const TSpanSink& Sink)
        : FMode(Mode), FBounds(Bounds), FSink(Sink)
    {
        for (std::size_t Index = 0; Index < Points.size(); ++Index)
            AddEdge(Points[Index], Points[(Index + 1) % Points.size()]);
        std::sort(FWaiting.begin(), FWaiting.end(),
                  [](const TEdge& A, const TEdge& B) { return A.Top > B.Top; });
    }

    void Run()
    {
        while (!FActive.empty() || !FWaiting.empty()) {
            if (FActive.empty())
                FRow = FWaiting.back().Top;
            while (!FWaiting.empty() && FWaiting.back().Top == FRow) {
                FActive.push_back(FWaiting.back());
                FWaiting.pop_back();
            }
            SortActive();
            EmitRow();
            ++FRow;
            std::erase_if(FActive, [this](const TEdge& Edge) { return Edge.Bottom <= FRow; });
            for (TEdge& Edge : FActive)
                Edge.NextRow();
        }
    }

private:
    void AddEdge(TPoint From, TPoint To)
    {
        const int Direction = From.Y < To.Y ? 1 : -1;
        if (Direction < 0)
            std::swap(From, To);
        const int Top = std::max(From.Y, FBounds.Top);
        const int Bottom = std::min(To.Y, FBounds.Bottom);
        if (Top >= Bottom)
            return;
        const std::int64_t Height = std::int64_t{To.Y} - From.Y;
        const std::int64_t Width = std::int64_t{To.X} - From.X;
        const TWide Progress = TWide{std::int64_t{Top} - From.Y} * Width;
        const TWide Boundary = CeilDiv(Progress, Height);
        const auto Step = static_cast<std::int64_t>(FloorDiv(Width, Height));
        FWaiting.push_back({Top, Bottom, Direction, From.X + static_cast<std::int64_t>(Boundary), Height,
                            static_cast<std::int64_t>(Progress - Boundary * Height), Step,
                            Width - Step * Height});
    }

    /// Edges rarely change places from one row to the next.
    void SortActive()
    {
        for (std::size_t Index = 1; Index < FActive.size(); ++Index)
            for (std::size_t Place = Index;
                 Place > 0 && FActive[Place].Boundary < FActive[Place - 1].Boundary; --Place)
                std::swap(FActive[Place], FActive[Place - 1]);
    }

    void EmitRow()
    {
        int Winding = 0;
        for (std::size_t Index = 0; Index + 1 < FActive.size(); ++Index) {
            Winding += FMode == TFillMode::fmWinding ? FActive[Index].Direction : 1;
            const bool Inside = FMode == TFillMode::fmWinding ? Winding != 0 : Winding % 2 != 0;
            if (Inside)
                EmitSpan(FActive[Index].Boundary, FActive[Index + 1].Boundary);
        }
    }

    void EmitSpan(std::int64_t From, std::int64_t To)
    {
        From = std::max<std::int64_t>(From, FBounds.Left);
        To = std::min<std::int64_t>(To, FBounds.Right);
        if (From < To)
            FSink(FRow, static_cast<int>(From), static_cast<int>(To));
    }

    TFillMode FMode;
    TRect FBounds;
    const TSpanSink& FSink;
    std::vector<TEdge> FWaiting; // the next one last
    std::vector<TEdge> FActive;
    int FRow = 0;
};

} // namespace

void ScanPolygon(std::span<const TPoint> Points, TFillMode Mode, const TRect& Bounds, const TSpanSink& Sink)
{
    if (Points.size() > 2 && !Bounds.IsEmpty())
        TScanner(Points, Mode, Bounds, Sink).Run();
}

void TSpanSet::Emit(const TSpanSink& Sink)
{
    std::sort(FSpans.begin(), FSpans.end());
    for (std::size_t Index = 0; Index < FSpans.size();) {
        TSpan Joined = FSpans[Index++];
        for (; Index < FSpans.size() && FSpans[Index].Y == Joined.Y && FSpans[Index].From <= Joined.To;
             ++Index)
            Joined.To = std::max(Joined.To, FSpans[Index].To);
        Sink(Joined.Y, Joined.From, Joined.To);
    }
}

} // namespace vcl
