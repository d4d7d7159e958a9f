// The vertical scale and its scroll bar.

#include <utility>

#include "KSTimeView/TimeView.h"
#include "vcl/graphics/ScrollInfo.h"
#include "vcl/platform/Platform.h"
#include "vcl/platform/System.h"
#include "vcl/platform/WindowSystem.h"

using timeview::TAutoScrollZone;
using timeview::TScrollRequest;

namespace
{

constexpr auto VerticalBar = vcl::TScrollBarKind::sbVertical;
constexpr std::uint64_t AutoScrollTimer = 1;
constexpr unsigned AutoScrollInterval = 50;

} // namespace

int TKSTimeView::TimeToPos(vcl::TTime Time, int Resolution) const
{
    return FDays->Frame().Scale.TimeToPos(Time, Resolution);
}

vcl::TTime TKSTimeView::PosToTime(int Y, int Resolution, bool Nearest) const
{
    return FDays->Frame().Scale.PosToTime(Y, Resolution, Nearest);
}

timeview::TScrollMetrics TKSTimeView::ScrollMetrics() const
{
    const timeview::TViewFrame Frame = FDays->Frame();
    return {Frame.Geometry.TotalScaleHeight, Frame.Geometry.ClientHeight,    Frame.Scale.Top(),
            GetEffectiveTopSpace(),          Frame.Geometry.RulerMarkHeight, FSmoothScroll};
}

int TKSTimeView::GetVScrollPosition() const
{
    return HandleAllocated() ? GetScrollPos(VerticalBar) : FBarPosition;
}

void TKSTimeView::SetVScrollPosition(int Value)
{
    // A form file's position may stand before the sizes it depends on.
    if (Is(vcl::TComponentState::csLoading))
        FLoadedScrollPosition = Value;
    ScrollTo(Value);
}

void TKSTimeView::ScrollTo(int Value)
{
    const timeview::TScrollTarget Target = timeview::ScrollTarget(ScrollMetrics(), Value);
    FBarPosition = Target.BarPosition;
    if (Target.Offset != FScrollOffset) {
        FScrollOffset = Target.Offset;
        Invalidate();
    }
    if (HandleAllocated() && GetScrollPos(VerticalBar) != Target.BarPosition)
        SetScrollPos(VerticalBar, Target.BarPosition, true);
}

void TKSTimeView::UpdateVScrollBar()
{
    if (!HandleAllocated())
        return;
    FBarTopSpace = GetEffectiveTopSpace();
    const timeview::TScrollRange Range = timeview::ScrollRange(ScrollMetrics(), FScrollOffset);
    FScrollOffset = Range.Offset;
    vcl::TScrollInfo Info;
    // The bar stays when there is nothing to scroll: the columns keep their width.
    Info.Mask = vcl::SIF_RANGE | vcl::SIF_PAGE | vcl::SIF_DISABLENOSCROLL;
    Info.Max = Range.Max;
    Info.Page = static_cast<unsigned>(Range.Page);
    SetScrollInfo(VerticalBar, Info, true);
    ScrollTo(FScrollOffset);
}

void TKSTimeView::WMSize(vcl::TMessage& Message)
{
    const vcl::TAliveGuard Guard(*this);
    TCustomControl::WMSize(Message);
    if (!Guard.IsAlive())
        return;
    UpdateVScrollBar();
    CalcDisplay();
    // The first layout makes the top space; the bar was computed without it.
    if (FBarTopSpace != GetEffectiveTopSpace())
        UpdateVScrollBar();
    ApplyLoadedScrollPosition();
    Invalidate();
}

void TKSTimeView::Loaded()
{
    TCustomControl::Loaded();
    ApplyLoadedScrollPosition();
}

void TKSTimeView::ApplyLoadedScrollPosition()
{
    if (FLoadedScrollPosition && HandleAllocated() && !Is(vcl::TComponentState::csLoading))
        ScrollTo(*std::exchange(FLoadedScrollPosition, std::nullopt));
}

void TKSTimeView::ScrollInView(TKSTimeViewItem* Item, TKSTimeviewDay* Day)
{
    if (!Item || !Day || Item->GetAllDay())
        return;
    const int Hidden = ScrollMetrics().Top - Day->GetItemRect(Item).Top;
    if (Hidden > 0)
        SetVScrollPosition(timeview::SaturatedInt(std::int64_t{GetVScrollPosition()} - Hidden));
}

void TKSTimeView::Scroll(TScrollRequest Request, int ThumbPosition)
{
    SetVScrollPosition(timeview::RequestedPosition(ScrollMetrics(), Request, FScrollOffset, ThumbPosition));
}

void TKSTimeView::ScrollByMarks(int Marks)
{
    SetVScrollPosition(
        timeview::SaturatedInt(FScrollOffset + std::int64_t{Marks} * ScrollMetrics().MarkHeight));
}

void TKSTimeView::WMVScroll(vcl::TMessage& Message)
{
    const vcl::TAliveGuard Guard(*this);
    if (CanFocus())
        SetFocus();
    if (Guard.IsAlive())
        HideItemEditor(true);
    if (!Guard.IsAlive())
        return;
    switch (vcl::ScrollRequest(Message.WParam)) {
    case vcl::SB_LINEUP:
        return Scroll(TScrollRequest::LineUp);
    case vcl::SB_LINEDOWN:
        return Scroll(TScrollRequest::LineDown);
    case vcl::SB_PAGEUP:
        return Scroll(TScrollRequest::PageUp);
    case vcl::SB_PAGEDOWN:
        return Scroll(TScrollRequest::PageDown);
    case vcl::SB_THUMBTRACK:
    case vcl::SB_THUMBPOSITION:
        return Scroll(TScrollRequest::Thumb, vcl::ScrollPosition(Message.WParam));
    case vcl::SB_TOP:
        return Scroll(TScrollRequest::Top);
    case vcl::SB_BOTTOM:
        return Scroll(TScrollRequest::Bottom);
    default:
        return;
    }
}

bool TKSTimeView::DoMouseWheelDown(vcl::TShiftState Shift, vcl::TPoint MousePos)
{
    const vcl::TAliveGuard Guard(*this);
    if (TCustomControl::DoMouseWheelDown(Shift, MousePos) || !Guard.IsAlive())
        return true;
    HideItemEditor(true);
    if (Guard.IsAlive())
        ScrollByMarks(vcl::Platform().System().Metric(vcl::TSystemMetric::WheelScrollLines));
    return true;
}

bool TKSTimeView::DoMouseWheelUp(vcl::TShiftState Shift, vcl::TPoint MousePos)
{
    const vcl::TAliveGuard Guard(*this);
    if (TCustomControl::DoMouseWheelUp(Shift, MousePos) || !Guard.IsAlive())
        return true;
    HideItemEditor(true);
    if (Guard.IsAlive())
        ScrollByMarks(-vcl::Platform().System().Metric(vcl::TSystemMetric::WheelScrollLines));
    return true;
}

void TKSTimeView::HandleAutoScrolling(int, int Y)
{
    const TAutoScrollZone Zone = timeview::AutoScrollZone(ScrollMetrics(), Y);
    if (Zone == TAutoScrollZone::None) {
        KillAutoScrolling();
        return;
    }
    if (FAutoScroll != TAutoScrollZone::None) {
        // With the timer running only the way down is taken over.
        if (Zone == TAutoScrollZone::Down)
            FAutoScroll = Zone;
        return;
    }
    FAutoScroll = Zone;
    ScrollByMarks(Zone == TAutoScrollZone::Down ? 1 : -1);
    SetTimer(AutoScrollTimer, AutoScrollInterval);
}

void TKSTimeView::KillAutoScrolling()
{
    if (FAutoScroll == TAutoScrollZone::None)
        return;
    FAutoScroll = TAutoScrollZone::None;
    KillTimer(AutoScrollTimer);
}

void TKSTimeView::AutoScrollTick()
{
    ScrollByMarks(FAutoScroll == TAutoScrollZone::Up ? -1 : 1);
    const vcl::TPoint Pointer = ScreenToClient(vcl::Platform().Windows().GetCursorPos());
    ContinueOperation(timeview::ActiveOperation(FOperations), Pointer.X, Pointer.Y);
}

void TKSTimeView::ContinueOperation(timeview::TMouseOperation, int, int)
{
}
