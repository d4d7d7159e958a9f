#include "vcl/controls/WindowScrollBars.h"

namespace vcl
{

void TWindowScrollBars::SetStyle(bool Horizontal, bool Vertical)
{
    const auto Take = [](TScrollBarModel& Model, bool& Style, bool Wanted) {
        if (Wanted != Style)
            Model.SetVisible(Wanted);
        Style = Wanted;
    };
    Take(FHorizontal, FHorizontalStyle, Horizontal);
    Take(FVertical, FVerticalStyle, Vertical);
}

TScrollBarState TWindowScrollBars::StateOf(const TScrollBarModel& Model)
{
    return {Model.IsVisible(), Model.IsEnabled(), Model.GetMin(),
            Model.GetMax(),    Model.GetPage(),   Model.GetPos()};
}

void TWindowScrollBars::Apply(IWindow& Window, bool Always)
{
    const auto Give = [&](TScrollBarKind Kind, TScrollBarState& Shown) {
        const TScrollBarState State = StateOf(Bar(Kind));
        if (!Always && State == Shown)
            return;
        Shown = State;
        Window.SetScrollBar(Kind, State);
    };
    Give(TScrollBarKind::sbHorizontal, FShownHorizontal);
    Give(TScrollBarKind::sbVertical, FShownVertical);
}

void TWindowScrollBars::Track(TScrollBarKind Kind, unsigned Request, int Position, bool Done)
{
    TScrollBarModel& Model = Bar(Kind);
    if (Request == SB_THUMBTRACK || (Request == SB_THUMBPOSITION && !Done))
        Model.BeginTracking(Position);
    else if (Request == SB_THUMBPOSITION || Request == SB_ENDSCROLL)
        Model.EndTracking();
}

} // namespace vcl
