// Where children stand: alignment to the sides, anchors, scaling.

#include <algorithm>

#include "vcl/controls/WinControl.h"

namespace vcl
{

namespace
{

/// The controls keep their references while handlers of the moves may free some of them.
using TChildren = std::vector<TWeak<TControl>>;

/// The edge that decides who comes first; smaller is nearer to the side.
int DistanceFromSide(const TControl& Control, TAlign Align)
{
    switch (Align) {
    case TAlign::alTop:
        return Control.GetTop();
    case TAlign::alBottom:
        return -(Control.GetTop() + Control.GetHeight());
    case TAlign::alLeft:
        return Control.GetLeft();
    case TAlign::alRight:
        return -(Control.GetLeft() + Control.GetWidth());
    default:
        return 0;
    }
}

TRect Strip(TAlign Align, const TRect& Rest, int Width, int Height)
{
    switch (Align) {
    case TAlign::alTop:
        return {Rest.Left, Rest.Top, Rest.Right, Rest.Top + Height};
    case TAlign::alBottom:
        return {Rest.Left, Rest.Bottom - Height, Rest.Right, Rest.Bottom};
    case TAlign::alLeft:
        return {Rest.Left, Rest.Top, Rest.Left + Width, Rest.Bottom};
    case TAlign::alRight:
        return {Rest.Right - Width, Rest.Top, Rest.Right, Rest.Bottom};
    default:
        return Rest;
    }
}

void CutStrip(TAlign Align, TRect& Rest, int Width, int Height)
{
    if (Align == TAlign::alTop)
        Rest.Top += Height;
    else if (Align == TAlign::alBottom)
        Rest.Bottom -= Height;
    else if (Align == TAlign::alLeft)
        Rest.Left += Width;
    else if (Align == TAlign::alRight)
        Rest.Right -= Width;
}

} // namespace

void TWinControl::AlignEdge(TControl* Changed, TAlign Align, TRect& Rest)
{
    std::vector<TControl*> Found;
    for (int Index = 0; Index < GetControlCount(); ++Index) {
        TControl* const Child = GetControl(Index);
        if (Child->GetAlign() == Align && (Child->GetVisible() || Is(TComponentState::csDesigning)))
            Found.insert(Child == Changed ? Found.begin() : Found.end(), Child);
    }
    std::stable_sort(Found.begin(), Found.end(), [Align](const TControl* Left, const TControl* Right) {
        return DistanceFromSide(*Left, Align) < DistanceFromSide(*Right, Align);
    });
    const TChildren Children(Found.begin(), Found.end());
    for (const TWeak<TControl>& Child : Children) {
        TControl* const Control = Child.Get();
        if (!Control || Control->GetParent() != this)
            continue;
        const TRect Place = Strip(Align, Rest, Control->GetWidth(), Control->GetHeight());
        Control->SetBounds(Place.Left, Place.Top, std::max(Place.Width(), 0), std::max(Place.Height(), 0));
        // Constraints may have given it another size.
        if (Child.Get())
            CutStrip(Align, Rest, Control->GetWidth(), Control->GetHeight());
    }
}

void TWinControl::AlignAnchored(TSize Client)
{
    TChildren Children;
    for (int Index = 0; Index < GetControlCount(); ++Index) {
        TControl* const Child = GetControl(Index);
        if (Child->GetAlign() == TAlign::alNone && Child->GetAnchors() != AnchorsOfAlign(TAlign::alNone))
            Children.emplace_back(Child);
    }
    for (const TWeak<TControl>& Child : Children) {
        TControl* const Control = Child.Get();
        if (!Control || Control->GetParent() != this || Control->FAnchorParentSize == TSize{})
            continue;
        TRect Place;
        Control->ParentResized(Client, Place);
        // The distances it keeps are those before this move, else rounding would add up.
        const TFlagScope Moving(*Control, Control->FAnchorMove);
        Control->SetBoundsRect(Place);
    }
}

void TWinControl::AlignControls(TControl* Control)
{
    if (FAligning)
        return;
    if (!FHandle || FAlignLevel > 0 || Is(TComponentState::csLoading) || Is(TComponentState::csDestroying)) {
        FControlState.Include(TControlStateFlag::csAlignmentNeeded);
        return;
    }
    TAliveGuard Guard(*this);
    const TFlagScope Aligning(*this, FAligning);
    FControlState.Exclude(TControlStateFlag::csAlignmentNeeded);
    const TRect Client = GetClientRect();
    TRect Rest = Client;
    AdjustClientRect(Rest);
    using enum TAlign;
    for (const TAlign Align : {alTop, alBottom, alLeft, alRight, alClient}) {
        AlignEdge(Control, Align, Rest);
        if (!Guard.IsAlive())
            return;
    }
    AlignAnchored({Client.Width(), Client.Height()});
}

void TWinControl::EnableAlign()
{
    if (--FAlignLevel == 0 && FControlState.Contains(TControlStateFlag::csAlignmentNeeded))
        Realign();
}

void TWinControl::ScaleControls(int M, int D)
{
    for (int Index = 0; Index < GetControlCount(); ++Index)
        GetControl(Index)->ChangeScale(M, D);
}

void TWinControl::ChangeScale(int M, int D)
{
    DisableAlign();
    ScaleControls(M, D);
    TControl::ChangeScale(M, D);
    EnableAlign();
}

void TWinControl::ScaleBy(int M, int D)
{
    DisableAlign();
    ScaleControls(M, D);
    SetBounds(GetLeft(), GetTop(), RoundHalfEven(static_cast<double>(GetWidth()) * M / D),
              RoundHalfEven(static_cast<double>(GetHeight()) * M / D));
    EnableAlign();
}

void TWinControl::AdjustSize()
{
    if (FHandle)
        TControl::AdjustSize();
}

} // namespace vcl
