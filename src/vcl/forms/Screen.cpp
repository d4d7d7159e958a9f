#include "vcl/forms/Screen.h"

#include <algorithm>

#include "vcl/controls/MouseTracker.h"
#include "vcl/platform/Platform.h"
#include "vcl/platform/System.h"

namespace vcl
{

const TClass& TScreen::StaticClass()
{
    static const TClass Class = [] {
        TClass Single = DefineClass<TScreen, TComponent>("TScreen");
        Single.Create = nullptr;
        return Single;
    }();
    return Class;
}

TScreen::TScreen() : TComponent(nullptr)
{
}

TScreen& Screen()
{
    // Lives until the process ends: forms of any static duration may still ask.
    static TScreen* const Instance = new TScreen;
    return *Instance;
}

int TScreen::GetWidth() const
{
    return Platform().System().Metric(TSystemMetric::ScreenWidth);
}

int TScreen::GetHeight() const
{
    return Platform().System().Metric(TSystemMetric::ScreenHeight);
}

TRect TScreen::GetWorkArea() const
{
    return Platform().Windows().GetWorkArea({0, 0});
}

void TScreen::SetCursor(TCursor Value)
{
    if (Value == FCursor)
        return;
    FCursor = Value;
    MouseTracker().UpdateCursor();
}

TWinControl* TScreen::GetActiveControl() const
{
    return FActiveForm ? FActiveForm->GetActiveControl() : nullptr;
}

TCustomForm* TScreen::GetForm(int Index) const
{
    if (Index < 0 || Index >= GetFormCount())
        throw EListError("List index out of bounds (" + IntToStr(Index) + ")");
    return FForms[static_cast<std::size_t>(Index)];
}

void TScreen::RemoveForm(TCustomForm* Form)
{
    std::erase(FForms, Form);
    if (FActiveForm == Form)
        FActiveForm = nullptr;
}

void TScreen::SetActiveForm(TCustomForm* Form)
{
    if (Form == FActiveForm)
        return;
    FActiveForm = Form;
    OnActiveFormChange(this);
}

} // namespace vcl
