#pragma once

#include "vcl/classes/Component.h"
#include "vcl/controls/ControlTypes.h"
#include "vcl/platform/Menu.h"

namespace vcl
{

/// What controls and forms need to know of menus: the main menu of a form and the popup menu of a control.
class TMenuBase : public TComponent
{
    VCL_CLASS
public:
    using TComponent::TComponent;

    /// True for a menu that opens at a point; false for one that belongs at the top of a form.
    virtual bool IsPopup() const = 0;
    /// The menu as the platform takes it. Commands must be unique in the program.
    virtual void FillSpec(TMenuSpec& Spec) = 0;
    /// The user chose a command; false when it is no item of this menu.
    virtual bool DispatchCommand(unsigned Command) = 0;
    /// The submenu of the item Command is about to open; false when it is no item of this menu.
    virtual bool DispatchPopup(unsigned Command) = 0;
    /// Finds the enabled item with this shortcut and clicks it; false when there is none.
    virtual bool IsShortCut(std::uint16_t Key, TShiftState Shift) = 0;

    /// The form that shows the menu on top, told by the form itself. It is sent CM_MENUCHANGED after changes.
    TWinControl* GetWindowHandle() const { return FForm; }
    void SetWindowHandle(TWinControl* Form) { FForm = Form; }

    // Popup menus
    /// False: asking for a context menu does not open it by itself.
    virtual bool GetAutoPopup() const { return true; }
    /// The control the menu is opened for.
    TComponent* GetPopupComponent() const { return FPopupComponent; }
    void SetPopupComponent(TComponent* Component) { FPopupComponent = Component; }
    /// Opens the menu at a screen point and waits until it closes.
    virtual void Popup(int /*X*/, int /*Y*/) {}

private:
    TWinControl* FForm = nullptr;
    TComponent* FPopupComponent = nullptr;
};

} // namespace vcl
