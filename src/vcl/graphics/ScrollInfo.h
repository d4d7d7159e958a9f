#pragma once

#include <cstdint>

namespace vcl
{

// What a TScrollInfo sets or asks for.
constexpr unsigned SIF_RANGE = 0x1;
constexpr unsigned SIF_PAGE = 0x2;
constexpr unsigned SIF_POS = 0x4;
/// Setting: a bar that has nothing to scroll is shown disabled instead of being hidden.
constexpr unsigned SIF_DISABLENOSCROLL = 0x8;
constexpr unsigned SIF_TRACKPOS = 0x10;
constexpr unsigned SIF_ALL = SIF_RANGE | SIF_PAGE | SIF_POS | SIF_TRACKPOS;

struct TScrollInfo {
    unsigned Mask = SIF_ALL;
    int Min = 0;
    int Max = 0;
    /// The visible share of the range, in its units; 0 for none.
    unsigned Page = 0;
    int Pos = 0;
    /// Where the user has dragged the thumb to; only answered.
    int TrackPos = 0;
};

/// The state of one scroll bar of a window and the rules it follows; no window, no pixels.
///
/// Positions are 32 bits wide. The position always lies in Min .. Max - Page + 1 and the page is at most the
/// whole range. A range and page that leave nothing to scroll hide the bar (or disable it, see
/// SIF_DISABLENOSCROLL); the next one that does shows and enables it again.
class TScrollBarModel
{
public:
    explicit TScrollBarModel(bool Visible = false) : FVisible(Visible) {}

    int GetMin() const { return FMin; }
    int GetMax() const { return FMax; }
    unsigned GetPage() const { return FPage; }
    int GetPos() const { return FPos; }
    /// The last position the bar can take.
    int GetLastPos() const;
    /// While the user drags the thumb: where it is, otherwise the position.
    int GetTrackPos() const { return FTracking ? FTrackPos : FPos; }
    bool IsVisible() const { return FVisible; }
    bool IsEnabled() const { return FEnabled; }
    /// Whether the range exceeds what a page shows.
    bool CanScroll() const;

    /// Takes over what Info.Mask names and returns the position that results. A range whose end lies before
    /// its beginning, or that does not fit 31 bits, becomes 0 .. 0.
    int SetInfo(const TScrollInfo& Info);
    /// Fills in what Info.Mask names.
    void GetInfo(TScrollInfo& Info) const;
    /// Returns the previous position.
    int SetPos(int Value);
    void SetRange(int Min, int Max);
    void SetVisible(bool Value) { FVisible = Value; }
    void SetEnabled(bool Value) { FEnabled = Value; }
    void BeginTracking(int TrackPos);
    void EndTracking() { FTracking = false; }

private:
    void Normalize();
    void Show(bool DisableNoScroll);

    int FMin = 0;
    int FMax = 100;
    unsigned FPage = 0;
    int FPos = 0;
    int FTrackPos = 0;
    bool FTracking = false;
    bool FVisible;
    bool FEnabled = true;
};

} // namespace vcl
