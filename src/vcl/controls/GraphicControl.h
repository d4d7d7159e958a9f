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

    /// Called by the parent while it paints: Origin is this control's corner, ParentClip (null: everything)
    /// what is being painted, both in the coordinates of the parent's painter.
    void PaintOn(TCanvas& ParentCanvas, TPoint Origin, const TRegion* ParentClip);

protected:
    virtual void Paint() {}

private:
    std::unique_ptr<TCanvas> FCanvas;
};

} // namespace vcl
