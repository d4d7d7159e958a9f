#pragma once

#include <memory>

#include "vcl/controls/ControlTypes.h"
#include "vcl/controls/MenuItem.h"
#include "vcl/controls/PopupMenuBase.h"
#include "vcl/system/Liveness.h"

namespace vcl
{

/// Whether a menu helps itself in some way.
enum class TMenuAutoFlag { maAutomatic, maManual };
template <>
struct TypeTraits<TMenuAutoFlag> {
    static const TTypeInfo& Info();
};
/// Which of a popup menu's upper corners, or the middle between them, stands at the point it opens at.
enum class TPopupAlignment { paLeft, paRight, paCenter };
template <>
struct TypeTraits<TPopupAlignment> {
    static const TTypeInfo& Info();
};
enum class TTrackButton { tbRightButton, tbLeftButton };
template <>
struct TypeTraits<TTrackButton> {
    static const TTypeInfo& Info();
};

/// A tree of menu items; what a menu bar and a popup menu share.
class TMenu : public TPopupMenuBase
{
    VCL_CLASS
public:
    explicit TMenu(TComponent* Owner);
    ~TMenu() override;

    /// The root: its items are the menu's top level.
    TMenuItem* GetItems() const { return FItems.get(); }
    /// Kept for form files, as are AutoLineReduction and OwnerDraw: the platform lays menus out.
    TMenuAutoFlag GetAutoHotkeys() const { return FAutoHotkeys; }
    void SetAutoHotkeys(TMenuAutoFlag Value) { FAutoHotkeys = Value; }
    TMenuAutoFlag GetAutoLineReduction() const { return FAutoLineReduction; }
    void SetAutoLineReduction(TMenuAutoFlag Value) { FAutoLineReduction = Value; }
    bool GetOwnerDraw() const { return FOwnerDraw; }
    void SetOwnerDraw(bool Value) { FOwnerDraw = Value; }
    TBiDiMode GetBiDiMode() const { return FBiDiMode; }
    void SetBiDiMode(TBiDiMode Value);
    /// True: the direction is that of the form the menu belongs to.
    bool GetParentBiDiMode() const { return FParentBiDiMode; }
    void SetParentBiDiMode(bool Value);
    bool IsBiDiModeStored() const { return !FParentBiDiMode; }
    bool IsRightToLeft() const;
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
    void SetPopupComponent(TComponent* Component) override;
    TComponent* GetPopupComponent() const { return FPopupComponent; }
    void Popup(int, int) override {}

    void GetChildren(const std::function<void(TComponent*)>& Receive, TComponent* Root) override;
    void SetChildOrder(TComponent* Child, int Order) override { FItems->SetChildOrder(Child, Order); }

    /// For TAliveGuard.
    const TLiveness& GetLiveness() const { return FLiveness; }

    /// For the form that shows the menu.
    TNotifyEvent OnChanged;

protected:
    void Notification(TComponent* Component, TOperation Operation) override;
    void Loaded() override;

private:
    TLiveness FLiveness;
    std::unique_ptr<TMenuItem> FItems;
    TCustomImageList* FImages = nullptr;
    TComponent* FPopupComponent = nullptr;
    TChangeLink FImagesLink;
    TMenuAutoFlag FAutoHotkeys = TMenuAutoFlag::maAutomatic;
    TMenuAutoFlag FAutoLineReduction = TMenuAutoFlag::maAutomatic;
    TBiDiMode FBiDiMode = TBiDiMode::bdLeftToRight;
    bool FOwnerDraw = false;
    bool FParentBiDiMode = true;
};

/// The menu bar of a form.
class TMainMenu : public TMenu
{
    VCL_CLASS
public:
    using TMenu::TMenu;

    /// Kept for form files: menus of several forms are never merged.
    bool GetAutoMerge() const { return FAutoMerge; }
    void SetAutoMerge(bool Value) { FAutoMerge = Value; }

private:
    bool FAutoMerge = false;
};

/// A menu that opens at a point, by itself for the context menu of the controls that name it.
class TPopupMenu : public TMenu
{
    VCL_CLASS
public:
    using TMenu::TMenu;

    /// Kept for form files, as is TrackButton: the platform places its menus.
    TPopupAlignment GetAlignment() const { return FAlignment; }
    void SetAlignment(TPopupAlignment Value) { FAlignment = Value; }
    int GetHelpContext() const { return FHelpContext; }
    void SetHelpContext(int Value) { FHelpContext = Value; }
    TTrackButton GetTrackButton() const { return FTrackButton; }
    void SetTrackButton(TTrackButton Value) { FTrackButton = Value; }
    bool GetAutoPopup() const override { return FAutoPopup; }
    void SetAutoPopup(bool Value) { FAutoPopup = Value; }

    void Popup(int X, int Y) override;

    /// Before the menu opens: the place to enable and check items for what the menu is opened for.
    TNotifyEvent OnPopup;

private:
    int FHelpContext = 0;
    TPopupAlignment FAlignment = TPopupAlignment::paLeft;
    TTrackButton FTrackButton = TTrackButton::tbRightButton;
    bool FAutoPopup = true;
};

} // namespace vcl
