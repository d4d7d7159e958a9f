#pragma once

#include "vcl/graphics/ScrollInfo.h"
#include "vcl/platform/Window.h"

namespace vcl
{

/// The two scroll bars of a window control. Their state outlives the handle, so a re-created one shows the
/// same.
class TWindowScrollBars
{
public:
    TScrollBarModel& Bar(TScrollBarKind Kind)
    {
        return Kind == TScrollBarKind::sbHorizontal ? FHorizontal : FVertical;
    }
    const TScrollBarModel& Bar(TScrollBarKind Kind) const
    {
        return Kind == TScrollBarKind::sbHorizontal ? FHorizontal : FVertical;
    }

    /// The bars that a new handle's style asks for. One that was asked for before stays as it was, hidden
    /// ones hidden.
    void SetStyle(bool Horizontal, bool Vertical);
    /// Gives the window what changed since the last time; everything when Always.
    void Apply(IWindow& Window, bool Always);
    /// The user works the bar: keeps track of the thumb. Call before and, with Done, after the message is
    /// handled.
    void Track(TScrollBarKind Kind, unsigned Request, int Position, bool Done);

private:
    static TScrollBarState StateOf(const TScrollBarModel& Model);

    TScrollBarModel FHorizontal;
    TScrollBarModel FVertical;
    bool FHorizontalStyle = false;
    bool FVerticalStyle = false;
    TScrollBarState FShownHorizontal;
    TScrollBarState FShownVertical;
};

} // namespace vcl
