// The property table that every window control shares.

#include "vcl/controls/WinControl.h"

namespace vcl
{

const TClass& TWinControl::StaticClass()
{
    using T = TWinControl;
    static const TClass Class = DefineClass<TWinControl, TControl>(
        "TWinControl",
        {
            Declared(Published<&T::GetCtl3D, &T::SetCtl3D>("Ctl3D").Stored<&T::IsCtl3DStored>()),
            Declared(Published<&T::GetDockSite, &T::SetDockSite>("DockSite").Default(false)),
            Declared(Published<&T::GetImeMode, &T::SetImeMode>("ImeMode").Default(TImeMode::imDontCare)),
            Declared(Published<&T::GetImeName, &T::SetImeName>("ImeName")),
            Declared(Published<&T::GetParentCtl3D, &T::SetParentCtl3D>("ParentCtl3D").Default(true)),
            Declared(Published<&T::GetTabOrder, &T::SetTabOrder>("TabOrder").Default(-1)),
            Declared(Published<&T::GetTabStop, &T::SetTabStop>("TabStop").Default(false)),
            Declared(
                Published<&T::GetUseDockManager, &T::SetUseDockManager>("UseDockManager").Default(false)),
            Declared(Published<&T::OnDockDrop>("OnDockDrop")),
            Declared(Published<&T::OnDockOver>("OnDockOver")),
            Declared(Published<&T::OnEnter>("OnEnter")),
            Declared(Published<&T::OnExit>("OnExit")),
            Declared(Published<&T::OnGetSiteInfo>("OnGetSiteInfo")),
            Declared(Published<&T::OnKeyDown>("OnKeyDown")),
            Declared(Published<&T::OnKeyPress>("OnKeyPress")),
            Declared(Published<&T::OnKeyUp>("OnKeyUp")),
            Declared(Published<&T::OnUnDock>("OnUnDock")),
        });
    return Class;
}

} // namespace vcl
