#pragma once

namespace timeview
{

/// What vertical scrolling depends on, in pixels.
struct TScrollMetrics {
    int TotalHeight = 0;
    int ClientHeight = 0;
    /// First row of the scale: below captions and all-day area.
    int Top = 0;
    /// The part of Top that is the all-day area.
    int TopSpace = 0;
    int MarkHeight = 0;
    /// False: offsets are whole marks.
    bool SmoothScroll = true;

    int VisibleHeight() const;
    bool WholeScaleVisible() const { return VisibleHeight() >= TotalHeight; }
};

/// The scroll bar for a size; Offset is the scroll offset that remains possible.
struct TScrollRange {
    int Page = 0;
    int Max = 0;
    int Offset = 0;
    bool operator==(const TScrollRange&) const = default;
};

/// A scrolled-to place: what the bar shows, and the offset the scale gets. They differ without smooth
/// scrolling.
struct TScrollTarget {
    int BarPosition = 0;
    int Offset = 0;
    bool operator==(const TScrollTarget&) const = default;
};

/// Bottom is what the scroll bar's own bottom request means: it stands twice the all-day area above the end
/// of the scale, on purpose. End is the end itself.
enum class TScrollRequest { LineUp, LineDown, PageUp, PageDown, Thumb, Top, Bottom, End };

TScrollRange ScrollRange(const TScrollMetrics& Metrics, int Offset);
/// Clamps to what can be scrolled. While the whole scale is visible there is no upper limit, on purpose.
TScrollTarget ScrollTarget(const TScrollMetrics& Metrics, int Position);
/// The position a scroll bar request asks for, before ScrollTarget.
int RequestedPosition(const TScrollMetrics& Metrics, TScrollRequest Request, int Offset, int ThumbPosition);

/// Where the pointer is during a drag: near an edge of the scale it scrolls on.
enum class TAutoScrollZone { None, Up, Down };
TAutoScrollZone AutoScrollZone(const TScrollMetrics& Metrics, int Y);

} // namespace timeview
