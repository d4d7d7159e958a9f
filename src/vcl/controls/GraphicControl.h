#pragma once

#include <memory>

#include "vcl/controls/Control.h"
#include "vcl/graphics/Canvas.h"

namespace vcl
{

/// A control without a window: it paints on its parent's and gets the mouse from there, but never the focus.
class TGraphicControl : public TControl
{
    VCL_CLASS
public:
    explicit TGraphicControl(TComponent* Owner);
    ~TGraphicControl() override;

    /// Coordinates of the control. Attached while the parent paints.
    TCanvas* GetCanvas() const { return FCanvas.get(); }

    /// Called by the parent while it paints; Painter is the parent's, Origin this control's corner there.
    void PaintOn(TCanvas& ParentCanvas, TPoint Origin);

protected:
    virtual void Paint() {}

private:
    std::unique_ptr<TCanvas> FCanvas;
};

} // namespace vcl
