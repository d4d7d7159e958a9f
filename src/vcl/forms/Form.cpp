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
            Published<&T::GetAlphaBlend, &T::SetAlphaBlend>("AlphaBlend").Default(false),
            Published<&T::GetAlphaBlendValue, &T::SetAlphaBlendValue>("AlphaBlendValue").Default(255),
            Publish("Anchors"),
            Published<&T::GetAutoScroll, &T::SetAutoScroll>("AutoScroll").Default(true),
            Publish("AutoSize"),
            Publish("BiDiMode"),
            Published<&T::GetBorderIcons, &T::SetBorderIcons>("BorderIcons")
                .Default(TBorderIcons{TBorderIcon::biSystemMenu, TBorderIcon::biMinimize,
                                      TBorderIcon::biMaximize}),
            Published<&T::GetBorderStyle, &T::SetBorderStyle>("BorderStyle")
                .Default(TFormBorderStyle::bsSizeable),
            Published<&T::GetBorderWidth, &T::SetBorderWidth>("BorderWidth").Default(0),
            Publish("Caption"),
            Published<&T::GetClientHeight, &T::SetClientHeight>("ClientHeight")
                .Stored<&T::IsClientSizeStored>(),
            Published<&T::GetClientWidth, &T::SetClientWidth>("ClientWidth").Stored<&T::IsClientSizeStored>(),
            // Always written, as form files have it.
            Publish("Color").NoDefault(),
            Publish("Constraints"),
            Publish("Ctl3D"),
            Publish("UseDockManager"),
            Published<&T::GetDefaultMonitor, &T::SetDefaultMonitor>("DefaultMonitor")
                .Default(TDefaultMonitor::dmActiveForm),
            Publish("DockSite"),
            Publish("DragKind"),
            Publish("DragMode"),
            Publish("Enabled"),
            Publish("ParentFont").Default(false),
            Publish("Font"),
            Published<&T::GetFormStyle, &T::SetFormStyle>("FormStyle").Default(TFormStyle::fsNormal),
            Published<&T::GetHelpFile, &T::SetHelpFile>("HelpFile"),
            Published<&T::GetHorzScrollBar, &T::SetHorzScrollBar>("HorzScrollBar"),
            Published<&T::GetIcon, &T::SetIcon>("Icon"),
            Published<&T::GetKeyPreview, &T::SetKeyPreview>("KeyPreview").Default(false),
            Published<&T::GetMenu, &T::SetMenu>("Menu"),
            Published<&T::GetOldCreateOrder, &T::SetOldCreateOrder>("OldCreateOrder"),
            Publish("ParentBiDiMode"),
            Published<&T::GetPixelsPerInch, &T::SetPixelsPerInch>("PixelsPerInch").NeverStored(),
            Publish("PopupMenu"),
            Published<&T::GetPosition, &T::SetPosition>("Position").Default(TPosition::poDesigned),
            Published<&T::GetPrintScale, &T::SetPrintScale>("PrintScale")
                .Default(TPrintScale::poProportional),
            Published<&T::GetScaled, &T::SetScaled>("Scaled").Default(true),
            Published<&T::GetScreenSnap, &T::SetScreenSnap>("ScreenSnap").Default(false),
            Publish("ShowHint"),
            Published<&T::GetSnapBuffer, &T::SetSnapBuffer>("SnapBuffer").Default(10),
            Published<&T::GetTransparentColor, &T::SetTransparentColor>("TransparentColor").Default(false),
            Published<&T::GetTransparentColorValue, &T::SetTransparentColorValue>("TransparentColorValue")
                .Default(clBlack),
            Published<&T::GetVertScrollBar, &T::SetVertScrollBar>("VertScrollBar"),
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
            Published<&T::OnShortCut>("OnShortCut"),
            Published<&T::OnShow>("OnShow"),
            Publish("OnStartDock"),
            Publish("OnUnDock"),
        });
    return Class;
}

TForm::TForm(TComponent* Owner)
    : TCustomForm(Owner), FHorzScrollBar(std::make_unique<TControlScrollBar>()),
      FVertScrollBar(std::make_unique<TControlScrollBar>()), FIcon(std::make_unique<TIcon>())
{
}

TForm::~TForm() = default;

bool TForm::IsShortCut(std::uint16_t Key, TShiftState Shift)
{
    TAliveGuard Guard(*this);
    bool Handled = false;
    OnShortCut(this, Key, Shift, Handled);
    return Handled || Key == 0 || !Guard.IsAlive() || TCustomForm::IsShortCut(Key, Shift);
}

} // namespace vcl
