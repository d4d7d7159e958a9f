#pragma once

#include <memory>

#include "vcl/controls/ControlTypes.h"
#include "vcl/controls/MenuItem.h"
#include "vcl/controls/PopupMenuBase.h"

namespace vcl
{

/// A tree of menu items; what a menu bar and a popup menu share.
class TMenu : public TPopupMenuBase
{
    VCL_CLASS
public:
    explicit TMenu(TComponent* Owner);
    ~TMenu() override;

    /// The root: its items are the menu's top level.
    TMenuItem* GetItems() const { return FItems.get(); }
    TCustomImageList* GetImages() const { return FImages; }
    void SetImages(TCustomImageList* Value);

    /// The menu as the platform shows it; its glyph pixels stay until the next call.
    TMenuSpec BuildSpec();
    /// Clicks the item with the command; false when there is none.
    bool DispatchCommand(unsigned Command);
    /// Clicks the enabled item with the shortcut; false when there is none.
    bool DispatchShortCut(std::uint16_t Key, TShiftState Shift);
    /// Called by the items. Tells OnChanged unless the menu is being loaded or destroyed.
    void MenuChanged();

    bool GetAutoPopup() const override { return false; }
    void SetPopupComponent(TComponent* Component) override { FPopupComponent = Component; }
    TComponent* GetPopupComponent() const { return FPopupComponent; }
    void Popup(int, int) override {}

    void GetChildren(const std::function<void(TComponent*)>& Receive, TComponent* Root) override;
    void SetChildOrder(TComponent* Child, int Order) override { FItems->SetChildOrder(Child, Order); }

    /// For the form that shows the menu.
    TNotifyEvent OnChanged;

protected:
    void Notification(TComponent* Component, TOperation Operation) override;
    void Loaded() override;

private:
    std::unique_ptr<TMenuItem> FItems;
    TCustomImageList* FImages = nullptr;
    TComponent* FPopupComponent = nullptr;
    TChangeLink FImagesLink;
};

/// The menu bar of a form.
class TMainMenu : public TMenu
{
    VCL_CLASS
public:
    using TMenu::TMenu;
};

/// A menu that opens at a point, by itself for the context menu of the controls that name it.
class TPopupMenu : public TMenu
{
    VCL_CLASS
public:
    using TMenu::TMenu;

    bool GetAutoPopup() const override { return FAutoPopup; }
    void SetAutoPopup(bool Value) { FAutoPopup = Value; }

    void Popup(int X, int Y) override;

    /// Before the menu opens: the place to enable and check items for what the menu is opened for.
    TNotifyEvent OnPopup;

private:
    bool FAutoPopup = true;
};

} // namespace vcl
