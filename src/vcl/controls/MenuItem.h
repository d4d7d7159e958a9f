#pragma once

#include <memory>
#include <vector>

#include "vcl/classes/Component.h"
#include "vcl/controls/Glyph.h"
#include "vcl/graphics/ImageList.h"
#include "vcl/platform/Menu.h"

namespace vcl
{

class TMenu;

/// A shortcut key: a virtual key plus scShift, scCtrl and scAlt; 0 is none.
using TShortCut = std::uint16_t;

/// Whether a menu helps itself in some way; maParent does as the menu above does.
enum class TMenuItemAutoFlag { maAutomatic, maManual, maParent };
template <>
struct TypeTraits<TMenuItemAutoFlag> {
    static const TTypeInfo& Info();
};
enum class TMenuBreak { mbNone, mbBreak, mbBarBreak };
template <>
struct TypeTraits<TMenuBreak> {
    static const TTypeInfo& Info();
};

/// One entry of a menu, or a submenu with entries of its own.
///
///     TMenuItem* Open = New<TMenuItem>(Form);
///     Open->SetCaption("&Open...");
///     Open->OnClick = [this](TObject*) { OpenFile(); };
///     FileMenu->Add(Open);
///
/// An item belongs to the item (or menu) it was added to and leaves it when it is destroyed; destroying an
/// item destroys the items below it.
class TMenuItem : public TComponent
{
    VCL_CLASS
public:
    explicit TMenuItem(TComponent* Owner);
    ~TMenuItem() override;

    /// True: a click toggles Checked.
    bool GetAutoCheck() const { return FAutoCheck; }
    void SetAutoCheck(bool Value) { FAutoCheck = Value; }
    /// Kept for form files, as are AutoLineReduction and Break: the platform lays menus out.
    TMenuItemAutoFlag GetAutoHotkeys() const { return FAutoHotkeys; }
    void SetAutoHotkeys(TMenuItemAutoFlag Value) { FAutoHotkeys = Value; }
    TMenuItemAutoFlag GetAutoLineReduction() const { return FAutoLineReduction; }
    void SetAutoLineReduction(TMenuItemAutoFlag Value) { FAutoLineReduction = Value; }
    TMenuBreak GetBreak() const { return FBreak; }
    void SetBreak(TMenuBreak Value) { FBreak = Value; }
    /// A picture of the item's own; one of the image list comes before it.
    TBitmap* GetBitmap() const { return FBitmap.get(); }
    void SetBitmap(const TBitmap* Value) { FBitmap->Assign(Value); }
    /// "&" marks the access key; "-" makes a separator.
    const AnsiString& GetCaption() const { return FCaption; }
    void SetCaption(const AnsiString& Value);
    /// Checking a radio item unchecks its neighbours of the same group.
    bool GetChecked() const { return FChecked; }
    void SetChecked(bool Value);
    /// The item a double click on its submenu chooses; at most one among neighbours.
    bool GetDefault() const { return FDefault; }
    void SetDefault(bool Value);
    bool GetEnabled() const { return FEnabled; }
    void SetEnabled(bool Value);
    std::uint8_t GetGroupIndex() const { return FGroupIndex; }
    void SetGroupIndex(std::uint8_t Value);
    int GetHelpContext() const { return FHelpContext; }
    void SetHelpContext(int Value) { FHelpContext = Value; }
    const AnsiString& GetHint() const { return FHint; }
    void SetHint(const AnsiString& Value) { FHint = Value; }
    /// Index into the menu's Images; -1 none.
    int GetImageIndex() const { return FImageIndex; }
    void SetImageIndex(int Value);
    bool GetRadioItem() const { return FRadioItem; }
    void SetRadioItem(bool Value);
    /// Pictures of the items below this one, in place of the menu's Images.
    TCustomImageList* GetSubMenuImages() const { return FSubMenuImages; }
    void SetSubMenuImages(TCustomImageList* Value);
    TShortCut GetShortCut() const { return FShortCut; }
    void SetShortCut(TShortCut Value);
    bool GetVisible() const { return FVisible; }
    void SetVisible(bool Value);

    /// The number the platform knows the item by; never 0, never reused.
    unsigned GetCommand() const { return FCommand; }
    TMenuItem* GetParent() const { return FParent; }
    /// The menu whose root this item is below (or is); null while it is in none.
    TMenu* GetMenu() const;

    int GetCount() const { return static_cast<int>(FItems.size()); }
    /// Raises Exception "Menu index out of range".
    TMenuItem* GetItem(int Index) const;
    int IndexOf(const TMenuItem* Item) const;
    void Add(TMenuItem* Item) { Insert(GetCount(), Item); }
    /// Raises Exception "Menu inserted twice" for an item that has a parent.
    void Insert(int Index, TMenuItem* Item);
    /// Takes the item out without destroying it.
    void Remove(TMenuItem* Item);
    /// Destroys the items below this one.
    void Clear();

    /// What choosing the item does: nothing while it is disabled.
    virtual void Click();
    /// The item below this one (this one included) with the command, or the first reachable one with the
    /// shortcut, or null.
    TMenuItem* FindCommand(unsigned Command);
    TMenuItem* FindShortCut(TShortCut ShortCut);
    /// Enabled with all items above it.
    bool IsReachable() const;

    /// The item and those below it as the platform shows them.
    TMenuSpec::TItem BuildSpec(const TCustomImageList* Images);

    void GetChildren(const std::function<void(TComponent*)>& Receive, TComponent* Root) override;
    TComponent* GetParentComponent() const override;
    bool HasParent() const override { return FParent != nullptr; }
    void SetParentComponent(TComponent* Value) override;
    void SetChildOrder(TComponent* Child, int Order) override;

    TNotifyEvent OnClick;

protected:
    void Notification(TComponent* Component, TOperation Operation) override;

private:
    friend class TMenu;
    template <class T>
    void Change(T& Field, const T& Value);
    void Changed();
    void UncheckNeighbours();
    void ForgetGlyphs();
    template <class TTest>
    TMenuItem* Find(const TTest& Test);

    AnsiString FCaption;
    AnsiString FHint;
    std::vector<TMenuItem*> FItems;
    TMenuItem* FParent = nullptr;
    TMenu* FMenu = nullptr; // of a menu's root item only
    TCustomImageList* FSubMenuImages = nullptr;
    TChangeLink FImagesLink;
    std::unique_ptr<TBitmap> FBitmap;
    TGlyph FGlyph;
    bool FGlyphIsMade = false;
    TMenuItemAutoFlag FAutoHotkeys = TMenuItemAutoFlag::maParent;
    TMenuItemAutoFlag FAutoLineReduction = TMenuItemAutoFlag::maParent;
    TMenuBreak FBreak = TMenuBreak::mbNone;
    unsigned FCommand;
    int FImageIndex = -1;
    int FHelpContext = 0;
    TShortCut FShortCut = 0;
    std::uint8_t FGroupIndex = 0;
    bool FAutoCheck = false;
    bool FChecked = false;
    bool FDefault = false;
    bool FEnabled = true;
    bool FRadioItem = false;
    bool FVisible = true;
};

} // namespace vcl
