#include "KSTreeView/TreeScrollBar.h"

#include <algorithm>

#include "KSTreeView/CustomTreeView.h"
#include "vcl/graphics/ScrollInfo.h"
#include "vcl/platform/Platform.h"
#include "vcl/platform/System.h"

using vcl::TScrollBarKind;

const vcl::TClass& TKSTVScrollBar::StaticClass()
{
    using T = TKSTVScrollBar;
    static const vcl::TClass Class = vcl::DefineClass<TKSTVScrollBar, vcl::TPersistent>(
        "TKSTVScrollBar", {
                              vcl::Published<&T::GetMargin, &T::SetMargin>("Margin").Default(0),
                              vcl::Published<&T::GetIncrement, &T::SetIncrement>("Increment").Default(8),
                              vcl::Published<&T::GetRange, &T::SetRange>("Range").Default(0),
                              vcl::Published<&T::GetPosition, &T::SetPosition>("Position").Default(0),
                              vcl::Published<&T::GetTracking, &T::SetTracking>("Tracking").Default(false),
                              vcl::Published<&T::GetVisible, &T::SetVisible>("Visible").Default(true),
                          });
    return Class;
}

bool TKSTVScrollBar::IsBeingRead() const
{
    return FControl->Is(vcl::TComponentState::csReading) || FControl->Is(vcl::TComponentState::csLoading);
}

bool TKSTVScrollBar::IsShown() const
{
    return FControl->HandleAllocated() && FMaxPosition > 0;
}

int TKSTVScrollBar::ControlSize(bool ControlSB, bool AssumeSB) const
{
    const bool IsHorizontal = FKind == TScrollBarKind::sbHorizontal;
    const int Size = IsHorizontal ? FControl->GetClientWidth() : FControl->GetClientHeight();
    if (ControlSB)
        return Size;
    const TKSTVScrollBar* const Other =
        IsHorizontal ? FControl->GetVertScrollBar() : FControl->GetHorzScrollBar();
    const int Thickness = vcl::Platform().System().Metric(
        IsHorizontal ? vcl::TSystemMetric::VScrollBarWidth : vcl::TSystemMetric::HScrollBarHeight);
    if (AssumeSB == Other->IsShown())
        return Size;
    return AssumeSB ? Size - Thickness : Size + Thickness;
}

void TKSTVScrollBar::Update(bool ControlSB, bool AssumeSB)
{
    const int Size = ControlSize(ControlSB, AssumeSB);
    FMaxPosition = FVisible ? std::max(0, FRange - Size) : 0;
    vcl::TScrollInfo Info;
    // Without the flag that only disables it, a bar with nothing to scroll goes.
    Info.Mask = vcl::SIF_ALL;
    Info.Max = FMaxPosition < 1 ? 0 : FRange;
    Info.Page = static_cast<unsigned>(std::max(0, Size + 1));
    Info.Pos = FPosition;
    const vcl::TAliveGuard Guard(*FControl);
    FControl->SetScrollInfo(FKind, Info);
    if (Guard.IsAlive())
        SetPosition(FPosition);
}

void TKSTVScrollBar::SetPosition(int Value)
{
    if (IsBeingRead()) {
        FPosition = Value;
        return;
    }
    const int Position = std::clamp(Value, 0, FMaxPosition);
    if (Position != FPosition) {
        const int Distance = FPosition - Position;
        FPosition = Position;
        FControl->ContentsMoved(FKind == TScrollBarKind::sbHorizontal ? Distance : 0,
                                FKind == TScrollBarKind::sbVertical ? Distance : 0);
    }
    if (FControl->GetScrollPos(FKind) != Position)
        FControl->SetScrollPos(FKind, Position);
}

void TKSTVScrollBar::ScrollBy(int Distance)
{
    SetPosition(vcl::SaturateToInt(std::int64_t{FPosition} + Distance));
}

void TKSTVScrollBar::SetRange(int Value)
{
    FRange = std::max(0, Value);
    FControl->UpdateScrollBars();
}

void TKSTVScrollBar::SetVisible(bool Value)
{
    FVisible = Value;
    FControl->UpdateScrollBars();
}

void TKSTVScrollBar::ScrollMessage(const vcl::TMessage& Message)
{
    switch (vcl::ScrollRequest(Message.WParam)) {
    case vcl::SB_LINEUP:
        return ScrollBy(vcl::SaturateToInt(-std::int64_t{FIncrement}));
    case vcl::SB_LINEDOWN:
        return ScrollBy(FIncrement);
    case vcl::SB_PAGEUP:
        return ScrollBy(-ControlSize(true, false));
    case vcl::SB_PAGEDOWN:
        return ScrollBy(ControlSize(true, false));
    case vcl::SB_THUMBPOSITION:
        return SetPosition(vcl::ScrollPosition(Message.WParam));
    case vcl::SB_THUMBTRACK:
        if (FTracking)
            SetPosition(vcl::ScrollPosition(Message.WParam));
        return;
    case vcl::SB_TOP:
        return SetPosition(0);
    case vcl::SB_BOTTOM:
        return SetPosition(FMaxPosition);
    default:
        return;
    }
}

void TKSTVScrollBar::Assign(const vcl::TPersistent* Source)
{
    const auto* const Bar = vcl::As<TKSTVScrollBar>(static_cast<const vcl::TObject*>(Source));
    if (!Bar) {
        TPersistent::Assign(Source);
        return;
    }
    const vcl::TAliveGuard Guard(*FControl);
    FIncrement = Bar->FIncrement;
    const int Position = Bar->FPosition;
    SetVisible(Bar->FVisible);
    if (Guard.IsAlive())
        SetPosition(Position);
}
