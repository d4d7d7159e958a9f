#include "KSTimeView/layout/VerticalScroll.h"

#include <algorithm>

#include "KSTimeView/layout/TimeScale.h"

namespace timeview
{

namespace
{

constexpr int MarksPerPage = 3;

int Sum(std::int64_t Left, std::int64_t Right)
{
    return SaturatedInt(Left + Right);
}

/// The offset at which the end of the scale meets the end of the client area.
int LastOffset(const TScrollMetrics& Metrics)
{
    return SaturatedInt(std::int64_t{Metrics.TotalHeight} - Metrics.ClientHeight + Metrics.Top);
}

} // namespace

int TScrollMetrics::VisibleHeight() const
{
    return SaturatedInt(std::int64_t{ClientHeight} - Top);
}

TScrollRange ScrollRange(const TScrollMetrics& Metrics, int Offset)
{
    TScrollRange Range;
    Range.Page = std::max(Sum(Metrics.VisibleHeight(), 1), 0);
    if (Metrics.WholeScaleVisible())
        return Range;
    Range.Max = Metrics.TotalHeight;
    Range.Offset = std::min(Offset, Metrics.TotalHeight);
    return Range;
}

TScrollTarget ScrollTarget(const TScrollMetrics& Metrics, int Position)
{
    TScrollTarget Target;
    Target.BarPosition = std::max(Position, 0);
    if (!Metrics.WholeScaleVisible())
        Target.BarPosition = std::min(Target.BarPosition, LastOffset(Metrics));
    Target.Offset = Target.BarPosition;
    if (!Metrics.SmoothScroll && Metrics.MarkHeight > 0)
        Target.Offset -= Target.Offset % Metrics.MarkHeight;
    return Target;
}

int RequestedPosition(const TScrollMetrics& Metrics, TScrollRequest Request, int Offset, int ThumbPosition)
{
    const std::int64_t Mark = Metrics.MarkHeight;
    switch (Request) {
    case TScrollRequest::LineUp:
        return Sum(Offset, -Mark);
    case TScrollRequest::LineDown:
        return Sum(Offset, Mark);
    case TScrollRequest::PageUp:
        return Sum(Offset, -MarksPerPage * Mark);
    case TScrollRequest::PageDown:
        return Sum(Offset, MarksPerPage * Mark);
    case TScrollRequest::Thumb:
        return ThumbPosition;
    case TScrollRequest::Top:
        return 0;
    case TScrollRequest::Bottom:
        return SaturatedInt(std::int64_t{LastOffset(Metrics)} - 2 * std::int64_t{Metrics.TopSpace});
    case TScrollRequest::End:
        return LastOffset(Metrics);
    }
    return Offset;
}

TAutoScrollZone AutoScrollZone(const TScrollMetrics& Metrics, int Y)
{
    const int Reach = Metrics.MarkHeight / 2;
    if (Y > Sum(Metrics.ClientHeight, -std::int64_t{Reach}))
        return TAutoScrollZone::Down;
    if (Y < Sum(Metrics.Top, Reach))
        return TAutoScrollZone::Up;
    return TAutoScrollZone::None;
}

} // namespace timeview
