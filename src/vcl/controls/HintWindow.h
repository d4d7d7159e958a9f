#pragma once

#include "vcl/controls/CustomControl.h"

namespace vcl
{

/// What CM_HINTSHOW carries: a control may change any of it, or answer 1 to show nothing.
struct THintInfo {
    TControl* HintControl = nullptr;
    /// Screen point of the hint window's top left corner.
    TPoint HintPos;
    int HintMaxWidth = 0;
    TColor HintColor = clInfoBk;
    /// The hint belongs to this part of the control; leaving it asks for the next one.
    TRect CursorRect;
    /// Client point of the pointer.
    TPoint CursorPos;
    /// Milliseconds until the hint is asked for anew while the pointer rests; 0: never.
    int ReshowTimeout = 0;
    int HideTimeout = 0;
    AnsiString HintStr;
};

/// A small window with a text that neither takes the focus nor the mouse.
class THintWindow : public TCustomControl
{
    VCL_CLASS
public:
    explicit THintWindow(TComponent* Owner = nullptr);

    /// The rectangle, its corner at 0, 0, that shows Hint with lines at most MaxWidth pixels long.
    virtual TRect CalcHintRect(int MaxWidth, const AnsiString& Hint);
    /// Shows Hint in a window at Rect (screen coordinates), moved onto the screen where it would leave it.
    virtual void ActivateHint(const TRect& Rect, const AnsiString& Hint);
    /// Hides the window.
    void ReleaseHandle();
    bool IsHintShowing() const { return GetShowing(); }

protected:
    void CreateParams(TCreateParams& Params) override;
    void Paint() override;
    bool CanLiveWithoutParent() const override { return true; }

    /// Shows the window at Rect above all others, without activating it.
    void ShowAt(const TRect& Rect);
};

} // namespace vcl
