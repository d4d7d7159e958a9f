#pragma once

#include "KSTimeView/model/TimeViewDays.h"
#include "KSTimeView/painting/TimeViewLook.h"

namespace timeview
{

/// Paints the ruler of hours and the marks of hidden items.
class TRulerPainter
{
public:
    TRulerPainter(vcl::TCanvas& Canvas, const TTimeViewLook& Look, const TViewFrame& Frame,
                  TTimeViewDays& Days, IOwnerDraw& Owner)
        : FCanvas(Canvas), FLook(Look), FFrame(Frame), FDays(Days), FOwner(Owner)
    {
    }

    void PaintRuler() const;
    /// Small arrows that tell of timed items above and below the visible part of the scale.
    void PaintItemsMark() const;

private:
    /// Pixel row of a distance from the top of the scale.
    int RowTop(int Distance) const;
    void Label(const char* Text, const vcl::TRect& Rect, unsigned Flags) const;
    void PaintHourMarks() const;
    void PaintHourNumbers() const;
    void PaintCorner() const;

    vcl::TCanvas& FCanvas;
    const TTimeViewLook& FLook;
    const TViewFrame& FFrame;
    TTimeViewDays& FDays;
    IOwnerDraw& FOwner;
};

} // namespace timeview
