#pragma once

#include "vcl/classes/Persistent.h"
#include "vcl/platform/Messages.h"
#include "vcl/platform/Window.h"

class TCustomKSTreeView;

/// One of a tree view's two scroll bars: where the chart stands in the window, along one axis. The view owns
/// it; layout sets Range.
///
///     View->GetVertScrollBar()->SetPosition(100);
///
/// All measures are pixels.
class TKSTVScrollBar : public vcl::TPersistent
{
    VCL_CLASS
public:
    TKSTVScrollBar(TCustomKSTreeView* Control, vcl::TScrollBarKind Kind) : FControl(Control), FKind(Kind) {}

    /// Kept for form files; the view does not use it.
    std::uint16_t GetMargin() const { return FMargin; }
    void SetMargin(std::uint16_t Value) { FMargin = Value; }
    /// What an arrow of the bar moves.
    int GetIncrement() const { return FIncrement; }
    void SetIncrement(int Value) { FIncrement = Value; }
    /// The length of what is scrolled; below 0 becomes 0.
    int GetRange() const { return FRange; }
    void SetRange(int Value);
    /// 0..MaxPosition, clamped; the chart moves along. While the view is being read any value is kept for
    /// later.
    int GetPosition() const { return FPosition; }
    void SetPosition(int Value);
    /// True: the chart follows the thumb while it is dragged. The view's bars have it on, although the
    /// declared default is off.
    bool GetTracking() const { return FTracking; }
    void SetTracking(bool Value) { FTracking = Value; }
    /// False: the bar never shows and the chart does not scroll along this axis.
    bool GetVisible() const { return FVisible; }
    void SetVisible(bool Value);

    vcl::TScrollBarKind GetKind() const { return FKind; }
    int GetMaxPosition() const { return FMaxPosition; }
    /// Position, or 0 while not Visible.
    int GetScrollPos() const { return FVisible ? FPosition : 0; }
    /// The window shows the bar now.
    bool IsShown() const;

    /// Room along the axis: the client area as it is (ControlSB), or as it would be with the other bar there
    /// (AssumeSB) or gone.
    int ControlSize(bool ControlSB, bool AssumeSB) const;
    bool NeedsScrollBarVisible() const { return ControlSize(false, false) < FRange; }
    /// Computes MaxPosition, tells the window's bar, and clamps Position.
    void Update(bool ControlSB, bool AssumeSB);
    /// Answers WM_HSCROLL or WM_VSCROLL.
    void ScrollMessage(const vcl::TMessage& Message);
    /// Position + Distance, as far as it goes.
    void ScrollBy(int Distance);

    /// Takes Visible, Position and Increment of another scroll bar.
    void Assign(const vcl::TPersistent* Source) override;

private:
    bool IsBeingRead() const;

    TCustomKSTreeView* FControl;
    int FIncrement = 8;
    int FPosition = 0;
    int FRange = 0;
    int FMaxPosition = 0;
    vcl::TScrollBarKind FKind;
    std::uint16_t FMargin = 0;
    bool FVisible = true;
    bool FTracking = false;
};
