#pragma once

#include <cstdint>
#include <functional>
#include <span>
#include <vector>

#include "vcl/graphics/Painter.h"

namespace vcl
{

/// Takes the pixels From .. To - 1 of a row; never empty.
using TSpanSink = std::function<void(int Y, int From, int To)>;

/// Hands out the inside of a polygon, row by row from the top, each pixel once and nothing outside Bounds. A
/// pixel is inside when its integer coordinates are: points on left and top edges count, points on right and
/// bottom edges do not. Costs edges log edges, plus rows times the edges that cross them.
void ScanPolygon(std::span<const TPoint> Points, TFillMode Mode, const TRect& Bounds, const TSpanSink& Sink);

/// Collects spans that may overlap and hands out their union.
class TSpanSet
{
public:
    void Add(int Y, int From, int To)
    {
        if (From < To)
            FSpans.push_back({Y, From, To});
    }
    /// Row by row, from left to right.
    void Emit(const TSpanSink& Sink);

private:
    struct TSpan {
        int Y;
        int From;
        int To;
        auto operator<=>(const TSpan&) const = default;
    };
    std::vector<TSpan> FSpans;
};

} // namespace vcl
