// Scroll bars, and moving what they scroll.

#include "vcl/controls/ClientSurface.h"
#include "vcl/controls/WinControl.h"
#include "vcl/controls/WindowScrollBars.h"

namespace vcl
{

void TWinControl::ApplyScrollBars(bool Always)
{
    if (FHandle)
        FScrollBars->Apply(*FWindow, Always);
}

int TWinControl::SetScrollInfo(TScrollBarKind Bar, const TScrollInfo& Info, bool)
{
    if (!FHandle)
        return 0;
    const int Position = FScrollBars->Bar(Bar).SetInfo(Info);
    ScrollBarsChanged();
    return Position;
}

bool TWinControl::GetScrollInfo(TScrollBarKind Bar, TScrollInfo& Info) const
{
    if (!FHandle)
        return false;
    FScrollBars->Bar(Bar).GetInfo(Info);
    return true;
}

int TWinControl::SetScrollPos(TScrollBarKind Bar, int Position, bool)
{
    if (!FHandle)
        return 0;
    const int Previous = FScrollBars->Bar(Bar).SetPos(Position);
    ScrollBarsChanged();
    return Previous;
}

int TWinControl::GetScrollPos(TScrollBarKind Bar) const
{
    return FHandle ? FScrollBars->Bar(Bar).GetPos() : 0;
}

void TWinControl::SetScrollRange(TScrollBarKind Bar, int Min, int Max, bool)
{
    if (!FHandle)
        return;
    FScrollBars->Bar(Bar).SetRange(Min, Max);
    ScrollBarsChanged();
}

void TWinControl::ShowScrollBar(TScrollBarKind Bar, bool Show)
{
    if (!FHandle)
        return;
    FScrollBars->Bar(Bar).SetVisible(Show);
    ScrollBarsChanged();
}

void TWinControl::ScrollBarsChanged()
{
    ApplyScrollBars();
    // A bar that came or went leaves another client area; while the handle is being made that is told later.
    if (FSentClientSize.Width >= 0)
        TellSize();
}

void TWinControl::ScrollBy(int DeltaX, int DeltaY)
{
    if (!FHandle || (DeltaX == 0 && DeltaY == 0))
        return;
    FClient->Scroll(DeltaX, DeltaY);
    const TFlagScope Aligning(*this, FAligning);
    std::vector<TWeak<TControl>> Children;
    for (int Index = 0; Index < GetControlCount(); ++Index)
        Children.emplace_back(GetControl(Index));
    for (const TWeak<TControl>& Child : Children)
        if (TControl* const Control = Child.Get())
            Control->MoveWithContents(DeltaX, DeltaY);
}

} // namespace vcl
