#include "vcl/forms/Form.h"

namespace vcl
{

const TClass& TForm::StaticClass()
{
    using T = TForm;
    static const TClass Class = DefineClass<TForm, TCustomForm>(
        "TForm",
        {
            Publish("Width").Stored<&T::IsFormSizeStored>(),
            Publish("Height").Stored<&T::IsFormSizeStored>(),
            Published<&T::GetActiveControl, &T::SetActiveControl>("ActiveControl"),
            Publish("Align"),
            Publish("Anchors"),
            Publish("BiDiMode"),
            Published<&T::GetBorderIcons, &T::SetBorderIcons>("BorderIcons")
                .Default(TBorderIcons{TBorderIcon::biSystemMenu, TBorderIcon::biMinimize,
                                      TBorderIcon::biMaximize}),
            Published<&T::GetBorderStyle, &T::SetBorderStyle>("BorderStyle")
                .Default(TFormBorderStyle::bsSizeable),
            Publish("Caption"),
            Published<&T::GetClientHeight, &T::SetClientHeight>("ClientHeight")
                .Stored<&T::IsClientSizeStored>(),
            Published<&T::GetClientWidth, &T::SetClientWidth>("ClientWidth").Stored<&T::IsClientSizeStored>(),
            Publish("Color").Default(clBtnFace),
            Publish("Constraints"),
            Publish("Ctl3D"),
            Publish("UseDockManager"),
            Publish("DockSite"),
            Publish("DragKind"),
            Publish("DragMode"),
            Publish("Enabled"),
            Publish("ParentFont").Default(false),
            Publish("Font"),
            Published<&T::GetFormStyle, &T::SetFormStyle>("FormStyle").Default(TFormStyle::fsNormal),
            Published<&T::GetKeyPreview, &T::SetKeyPreview>("KeyPreview").Default(false),
            Published<&T::GetMenu, &T::SetMenu>("Menu"),
            Published<&T::GetOldCreateOrder, &T::SetOldCreateOrder>("OldCreateOrder"),
            Publish("ParentBiDiMode"),
            Published<&T::GetPixelsPerInch, &T::SetPixelsPerInch>("PixelsPerInch").NeverStored(),
            Publish("PopupMenu"),
            Published<&T::GetPosition, &T::SetPosition>("Position").Default(TPosition::poDesigned),
            Published<&T::GetScaled, &T::SetScaled>("Scaled").Default(true),
            Publish("ShowHint"),
            Publish("Visible").Default(false),
            Published<&T::GetWindowState, &T::SetWindowState>("WindowState").Default(TWindowState::wsNormal),
            Published<&T::OnActivate>("OnActivate"),
            Publish("OnCanResize"),
            Publish("OnClick"),
            Published<&T::OnClose>("OnClose"),
            Published<&T::OnCloseQuery>("OnCloseQuery"),
            Publish("OnConstrainedResize"),
            Published<&T::OnCreate>("OnCreate"),
            Publish("OnDblClick"),
            Published<&T::OnDestroy>("OnDestroy"),
            Published<&T::OnDeactivate>("OnDeactivate"),
            Publish("OnDockDrop"),
            Publish("OnDockOver"),
            Publish("OnDragDrop"),
            Publish("OnDragOver"),
            Publish("OnEndDock"),
            Publish("OnGetSiteInfo"),
            Published<&T::OnHide>("OnHide"),
            Publish("OnKeyDown"),
            Publish("OnKeyPress"),
            Publish("OnKeyUp"),
            Publish("OnMouseDown"),
            Publish("OnMouseMove"),
            Publish("OnMouseUp"),
            Publish("OnMouseWheel"),
            Publish("OnMouseWheelDown"),
            Publish("OnMouseWheelUp"),
            Published<&T::OnPaint>("OnPaint"),
            Publish("OnResize"),
            Published<&T::OnShow>("OnShow"),
            Publish("OnStartDock"),
            Publish("OnUnDock"),
        });
    return Class;
}

} // namespace vcl
