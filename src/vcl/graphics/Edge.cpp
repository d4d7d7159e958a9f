#include "vcl/graphics/Edge.h"

#include "vcl/graphics/WideMath.h"

namespace vcl
{

namespace
{

struct TRingColors {
    TColor LeftTop;
    TColor RightBottom;
};

TRingColors BevelColors(unsigned Ring, bool Soft)
{
    switch (Ring) {
    case BDR_RAISEDOUTER:
        return {Soft ? clBtnHighlight : cl3DLight, cl3DDkShadow};
    case BDR_SUNKENOUTER:
        return {Soft ? cl3DDkShadow : clBtnShadow, clBtnHighlight};
    case BDR_RAISEDINNER:
        return {Soft ? cl3DLight : clBtnHighlight, clBtnShadow};
    default:
        return {Soft ? clBtnShadow : cl3DDkShadow, cl3DLight};
    }
}

/// Ring is one of the four rings. In flat and mono edges only the outer ring stands out.
TRingColors ColorsOf(unsigned Ring, unsigned Flags)
{
    const bool IsOuter = (Ring & BDR_OUTER) != 0;
    if ((Flags & BF_MONO) != 0)
        return IsOuter ? TRingColors{clWindowFrame, clWindowFrame} : TRingColors{clWindow, clWindow};
    if ((Flags & BF_FLAT) != 0)
        return IsOuter ? TRingColors{clBtnShadow, clBtnShadow} : TRingColors{clBtnFace, clBtnFace};
    return BevelColors(Ring, (Flags & BF_SOFT) != 0);
}

class TEdgePainter
{
public:
    TEdgePainter(IPainter& Painter, const TColorResolver& Resolve, const TRect& Rect)
        : FPainter(Painter), FResolve(Resolve), FRect(Rect)
    {
    }

    const TRect& GetRect() const { return FRect; }

    /// Bottom and right go over left and top where they meet.
    void Ring(unsigned Ring, unsigned Flags)
    {
        const TRingColors Colors = ColorsOf(Ring, Flags);
        const TRect Whole = FRect;
        if (Whole.IsEmpty())
            return;
        if ((Flags & BF_TOP) != 0)
            Fill({Whole.Left, Whole.Top, Whole.Right, Whole.Top + 1}, Colors.LeftTop);
        if ((Flags & BF_LEFT) != 0)
            Fill({Whole.Left, Whole.Top, Whole.Left + 1, Whole.Bottom}, Colors.LeftTop);
        if ((Flags & BF_BOTTOM) != 0)
            Fill({Whole.Left, Whole.Bottom - 1, Whole.Right, Whole.Bottom}, Colors.RightBottom);
        if ((Flags & BF_RIGHT) != 0)
            Fill({Whole.Right - 1, Whole.Top, Whole.Right, Whole.Bottom}, Colors.RightBottom);
    }

    void Shrink(unsigned Flags)
    {
        const auto Moved = [Flags](int Edge, unsigned Side, int By) {
            return (Flags & Side) != 0 ? Saturate(std::int64_t{Edge} + By) : Edge;
        };
        FRect = {Moved(FRect.Left, BF_LEFT, 1), Moved(FRect.Top, BF_TOP, 1), Moved(FRect.Right, BF_RIGHT, -1),
                 Moved(FRect.Bottom, BF_BOTTOM, -1)};
    }

    void Fill(const TRect& Rect, TColor Color)
    {
        FState.Brush.Color = FResolve(Color);
        FPainter.FillRect(FState, Rect);
    }

private:
    IPainter& FPainter;
    const TColorResolver& FResolve;
    TRect FRect;
    TDrawState FState;
};

} // namespace

bool DrawEdge(IPainter& Painter, const TColorResolver& Resolve, TRect& Rect, unsigned Edge, unsigned Flags)
{
    if ((Edge & BDR_OUTER) == BDR_OUTER || (Edge & BDR_INNER) == BDR_INNER)
        return false;
    TEdgePainter Work(Painter, Resolve, Rect);
    for (const unsigned Ring : {Edge & BDR_OUTER, Edge & BDR_INNER}) {
        if (Ring == 0)
            continue;
        Work.Ring(Ring, Flags);
        Work.Shrink(Flags);
    }
    if ((Flags & BF_MIDDLE) != 0)
        Work.Fill(Work.GetRect(), (Flags & BF_MONO) != 0 ? clWindow : clBtnFace);
    if ((Flags & BF_ADJUST) != 0)
        Rect = Work.GetRect();
    return true;
}

} // namespace vcl
