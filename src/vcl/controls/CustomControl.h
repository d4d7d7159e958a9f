#pragma once

#include "vcl/controls/WinControl.h"
#include "vcl/graphics/Canvas.h"

namespace vcl
{

/// A window control that draws itself: descendants override Paint.
class TCustomControl : public TWinControl
{
    VCL_CLASS
public:
    explicit TCustomControl(TComponent* Owner);

    /// Draws into the client area, inside Paint and outside of it; drawing outside goes to the screen at
    /// once. Drawn on before the control has a handle, it makes one.
    TCanvas* GetCanvas() { return &ClientCanvas(); }

protected:
    /// Draws everything the canvas's clip reaches. The background is filled with Color already.
    virtual void Paint() {}
    void PaintWindow(TCanvas& Canvas) override;
};

} // namespace vcl
