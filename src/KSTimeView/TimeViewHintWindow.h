#pragma once

#include "vcl/controls/HintWindow.h"

/// The hint of a selection or a drag in the time view: a text that follows the pointer.
class TKSTimeViewHintWindow : public vcl::THintWindow
{
    VCL_CLASS
public:
    using THintWindow::THintWindow;

    /// The size for a text with lines at most MaxWidth pixels long.
    vcl::TRect CalcHintRect(int MaxWidth, const vcl::AnsiString& Hint) override;
    /// Shows Hint at Rect (screen coordinates), four pixels taller, above all windows and without activating
    /// its own.
    void ActivateHint(const vcl::TRect& Rect, const vcl::AnsiString& Hint) override;

protected:
    void Paint() override;
};
