#include "vcl/graphics/FrameControl.h"

#include <algorithm>
#include <array>
#include <vector>

namespace vcl
{

namespace
{

constexpr unsigned ScrollDirections = 0x3;
constexpr unsigned ButtonKinds = 0x1F;

/// A glyph's outline is given on a field of 13 x 13 pixels.
constexpr int CheckField = 13;
constexpr std::array<TPoint, 8> CheckMark{{{3, 6}, {3, 8}, {4, 9}, {5, 9}, {9, 5}, {9, 3}, {5, 7}, {4, 7}}};

void FillShape(IPainter& Painter, std::uint32_t Color, std::span<const TPoint> Points)
{
    TDrawState State;
    State.Pen.Color = Color;
    State.Brush.Color = Color;
    Painter.Polygon(State, Points);
}

/// The triangle of a scroll arrow: its point and base lie around the middle of the button.
std::array<TPoint, 3> ArrowOf(const TRect& Rect, unsigned Direction)
{
    const int Size = std::max(1, std::min(Rect.Width(), Rect.Height()) / 4);
    const TPoint Middle{Rect.Left + (Rect.Width() - 1) / 2, Rect.Top + (Rect.Height() - 1) / 2};
    const int Reach = Size - 1;
    const bool AlongX = Direction == DFCS_SCROLLLEFT || Direction == DFCS_SCROLLRIGHT;
    const bool Ascending = Direction == DFCS_SCROLLDOWN || Direction == DFCS_SCROLLRIGHT;
    const int Base = Ascending ? -1 : 0;
    const int Tip = Ascending ? Reach - 1 : -Reach;
    const auto At = [&](int Along, int Across) {
        return AlongX ? TPoint{Middle.X + Along, Middle.Y + Across}
                      : TPoint{Middle.X + Across, Middle.Y + Along};
    };
    return {At(Tip, 0), At(Base, -Reach), At(Base, Reach)};
}

template <class TPoints>
TPoints Moved(TPoints Points, int Distance)
{
    for (TPoint& Point : Points)
        Point = {Point.X + Distance, Point.Y + Distance};
    return Points;
}

/// Pushed and inactive buttons use the soft rings as well.
void DrawButtonFace(IPainter& Painter, const TColorResolver& Resolve, TRect Rect, unsigned State,
                    unsigned Extra)
{
    if ((State & DFCS_FLAT) != 0)
        Extra = BF_FLAT;
    DrawEdge(Painter, Resolve, Rect, (State & DFCS_PUSHED) != 0 ? EDGE_SUNKEN : EDGE_RAISED,
             BF_RECT | BF_MIDDLE | Extra);
}

void DrawScrollButton(IPainter& Painter, const TColorResolver& Resolve, const TRect& Rect, unsigned State)
{
    const bool IsPlain = (State & (DFCS_PUSHED | DFCS_INACTIVE)) == 0;
    DrawButtonFace(Painter, Resolve, Rect, State, IsPlain ? 0 : BF_SOFT);
    auto Arrow = ArrowOf(Rect, State & ScrollDirections);
    if ((State & DFCS_PUSHED) != 0)
        Arrow = Moved(Arrow, 1);
    if ((State & DFCS_INACTIVE) != 0) {
        FillShape(Painter, Resolve(clBtnHighlight), Moved(Arrow, 1));
        FillShape(Painter, Resolve(clBtnShadow), Arrow);
    } else {
        FillShape(Painter, Resolve(clBtnText), Arrow);
    }
}

void DrawCheckBox(IPainter& Painter, const TColorResolver& Resolve, const TRect& Rect, unsigned State)
{
    const int Side = std::min(Rect.Width(), Rect.Height());
    const TPoint Origin{Rect.Left + (Rect.Width() - Side) / 2, Rect.Top + (Rect.Height() - Side) / 2};
    TRect Field = Bounds(Origin.X, Origin.Y, Side, Side);
    DrawEdge(Painter, Resolve, Field, EDGE_SUNKEN,
             BF_RECT | BF_ADJUST | ((State & DFCS_FLAT) != 0 ? BF_FLAT : 0));
    TDrawState Inside;
    Inside.Brush.Color = Resolve((State & (DFCS_PUSHED | DFCS_INACTIVE)) != 0 ? clBtnFace : clWindow);
    Painter.FillRect(Inside, Field);
    if ((State & DFCS_CHECKED) == 0)
        return;
    auto Mark = CheckMark;
    for (TPoint& Point : Mark) {
        const auto Scaled = [Side](int Value) {
            return (Value * (Side - 1) + (CheckField - 1) / 2) / (CheckField - 1);
        };
        Point = {Origin.X + Scaled(Point.X), Origin.Y + Scaled(Point.Y)};
    }
    FillShape(Painter, Resolve((State & DFCS_INACTIVE) != 0 ? clBtnShadow : clWindowText), Mark);
}

} // namespace

bool DrawFrameControl(IPainter& Painter, const TColorResolver& Resolve, const TRect& Rect, unsigned Type,
                      unsigned State)
{
    constexpr int Largest = 1 << 20;
    if (Type != DFC_SCROLL && Type != DFC_BUTTON)
        return false;
    if (Type == DFC_BUTTON && (State & ButtonKinds) != DFCS_BUTTONCHECK &&
        (State & ButtonKinds) != DFCS_BUTTONPUSH)
        return false;
    const std::int64_t Width = std::int64_t{Rect.Right} - Rect.Left;
    const std::int64_t Height = std::int64_t{Rect.Bottom} - Rect.Top;
    if (Width <= 0 || Height <= 0 || Width > Largest || Height > Largest)
        return true;
    if (Type == DFC_SCROLL)
        DrawScrollButton(Painter, Resolve, Rect, State);
    else if ((State & ButtonKinds) == DFCS_BUTTONPUSH)
        DrawButtonFace(Painter, Resolve, Rect, State, BF_SOFT);
    else
        DrawCheckBox(Painter, Resolve, Rect, State);
    return true;
}

} // namespace vcl
