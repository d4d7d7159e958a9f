#include "vcl/controls/MenuItem.h"

#include <algorithm>

#include "vcl/controls/Menu.h"

namespace vcl
{

namespace
{

unsigned NextCommand()
{
    static unsigned Last = 0;
    return ++Last;
}

} // namespace

const TTypeInfo& TypeTraits<TMenuItemAutoFlag>::Info()
{
    static const TTypeInfo Type =
        EnumerationType("TMenuItemAutoFlag", {"maAutomatic", "maManual", "maParent"});
    return Type;
}

const TTypeInfo& TypeTraits<TMenuBreak>::Info()
{
    static const TTypeInfo Type = EnumerationType("TMenuBreak", {"mbNone", "mbBreak", "mbBarBreak"});
    return Type;
}

const TClass& TMenuItem::StaticClass()
{
    static const TClass Class = DefineClass<TMenuItem, TComponent>(
        "TMenuItem",
        {
            Published<&TMenuItem::GetAutoCheck, &TMenuItem::SetAutoCheck>("AutoCheck").Default(false),
            Published<&TMenuItem::GetAutoHotkeys, &TMenuItem::SetAutoHotkeys>("AutoHotkeys")
                .Default(TMenuItemAutoFlag::maParent),
            Published<&TMenuItem::GetAutoLineReduction, &TMenuItem::SetAutoLineReduction>("AutoLineReduction")
                .Default(TMenuItemAutoFlag::maParent),
            Published<&TMenuItem::GetBitmap, &TMenuItem::SetBitmap>("Bitmap"),
            Published<&TMenuItem::GetBreak, &TMenuItem::SetBreak>("Break").Default(TMenuBreak::mbNone),
            Published<&TMenuItem::GetCaption, &TMenuItem::SetCaption>("Caption"),
            Published<&TMenuItem::GetChecked, &TMenuItem::SetChecked>("Checked").Default(false),
            Published<&TMenuItem::GetSubMenuImages, &TMenuItem::SetSubMenuImages>("SubMenuImages"),
            Published<&TMenuItem::GetDefault, &TMenuItem::SetDefault>("Default").Default(false),
            Published<&TMenuItem::GetEnabled, &TMenuItem::SetEnabled>("Enabled").Default(true),
            Published<&TMenuItem::GetGroupIndex, &TMenuItem::SetGroupIndex>("GroupIndex").Default(0),
            Published<&TMenuItem::GetHelpContext, &TMenuItem::SetHelpContext>("HelpContext").Default(0),
            Published<&TMenuItem::GetHint, &TMenuItem::SetHint>("Hint"),
            Published<&TMenuItem::GetImageIndex, &TMenuItem::SetImageIndex>("ImageIndex").Default(-1),
            Published<&TMenuItem::GetRadioItem, &TMenuItem::SetRadioItem>("RadioItem").Default(false),
            Published<&TMenuItem::GetShortCut, &TMenuItem::SetShortCut>("ShortCut").Default(0),
            Published<&TMenuItem::GetVisible, &TMenuItem::SetVisible>("Visible").Default(true),
            Published<&TMenuItem::OnClick>("OnClick"),
        });
    return Class;
}

TMenuItem::TMenuItem(TComponent* Owner)
    : TComponent(Owner), FBitmap(std::make_unique<TBitmap>()), FCommand(NextCommand())
{
    FBitmap->OnChange = [this](TObject*) {
        FGlyphIsMade = false;
        Changed();
    };
    FImagesLink.OnChange = [this](TObject*) {
        ForgetGlyphs();
        Changed();
    };
}

TMenuItem::~TMenuItem()
{
    Clear();
    if (FParent)
        FParent->Remove(this);
}

template <class T>
void TMenuItem::Change(T& Field, const T& Value)
{
    if (Field == Value)
        return;
    Field = Value;
    Changed();
}

void TMenuItem::SetCaption(const AnsiString& Value)
{
    Change(FCaption, Value);
}

void TMenuItem::SetChecked(bool Value)
{
    if (FChecked == Value)
        return;
    FChecked = Value;
    if (Value && FRadioItem)
        UncheckNeighbours();
    Changed();
}

void TMenuItem::SetDefault(bool Value)
{
    if (Value && FParent)
        for (TMenuItem* Item : FParent->FItems)
            if (Item != this)
                Item->FDefault = false;
    Change(FDefault, Value);
}

void TMenuItem::SetEnabled(bool Value)
{
    Change(FEnabled, Value);
}

void TMenuItem::SetImageIndex(int Value)
{
    if (FImageIndex != Value)
        FGlyphIsMade = false;
    Change(FImageIndex, Value);
}

void TMenuItem::SetRadioItem(bool Value)
{
    if (FRadioItem == Value)
        return;
    FRadioItem = Value;
    if (FChecked && FRadioItem)
        UncheckNeighbours();
    Changed();
}

void TMenuItem::SetGroupIndex(std::uint8_t Value)
{
    if (FGroupIndex == Value)
        return;
    FGroupIndex = Value;
    if (FChecked && FRadioItem)
        UncheckNeighbours();
}

void TMenuItem::SetSubMenuImages(TCustomImageList* Value)
{
    if (FSubMenuImages == Value)
        return;
    FSubMenuImages = Value;
    FImagesLink.Follow(Value, *this);
    ForgetGlyphs();
    Changed();
}

void TMenuItem::Notification(TComponent* Component, TOperation Operation)
{
    TComponent::Notification(Component, Operation);
    if (Operation == TOperation::opRemove && Component == FSubMenuImages)
        SetSubMenuImages(nullptr);
}

void TMenuItem::ForgetGlyphs()
{
    FGlyphIsMade = false;
    for (TMenuItem* Item : FItems)
        Item->ForgetGlyphs();
}

bool TMenuItem::IsReachable() const
{
    return FEnabled && (!FParent || FParent->IsReachable());
}

void TMenuItem::SetShortCut(TShortCut Value)
{
    Change(FShortCut, Value);
}

void TMenuItem::SetVisible(bool Value)
{
    Change(FVisible, Value);
}

TMenu* TMenuItem::GetMenu() const
{
    const TMenuItem* Item = this;
    while (Item->FParent)
        Item = Item->FParent;
    return Item->FMenu;
}

TMenuItem* TMenuItem::GetItem(int Index) const
{
    if (Index < 0 || Index >= GetCount())
        throw Exception("Menu index out of range");
    return FItems[static_cast<std::size_t>(Index)];
}

int TMenuItem::IndexOf(const TMenuItem* Item) const
{
    const auto Found = std::find(FItems.begin(), FItems.end(), Item);
    return Found == FItems.end() ? -1 : static_cast<int>(Found - FItems.begin());
}

void TMenuItem::Insert(int Index, TMenuItem* Item)
{
    const TMenuItem* Above = this;
    while (Above && Above != Item)
        Above = Above->FParent;
    // Neither into a second menu nor into itself.
    if (Item->FParent || Above)
        throw Exception("Menu inserted twice");
    if (Index < 0 || Index > GetCount())
        throw Exception("Menu index out of range");
    FItems.insert(FItems.begin() + Index, Item);
    Item->FParent = this;
    Item->ForgetGlyphs();
    Changed();
}

void TMenuItem::Remove(TMenuItem* Item)
{
    const int Index = IndexOf(Item);
    if (Index < 0)
        return;
    FItems.erase(FItems.begin() + Index);
    Item->FParent = nullptr;
    Changed();
}

void TMenuItem::Clear()
{
    while (!FItems.empty())
        delete FItems.back();
}

void TMenuItem::Click()
{
    if (!FEnabled)
        return;
    if (FAutoCheck && (!FRadioItem || !FChecked))
        SetChecked(!FChecked);
    OnClick(this);
}

template <class TTest>
TMenuItem* TMenuItem::Find(const TTest& Test)
{
    if (Test(*this))
        return this;
    for (TMenuItem* Item : FItems)
        if (TMenuItem* Found = Item->Find(Test))
            return Found;
    return nullptr;
}

TMenuItem* TMenuItem::FindCommand(unsigned Command)
{
    return Find([Command](const TMenuItem& Item) { return Item.FCommand == Command; });
}

TMenuItem* TMenuItem::FindShortCut(TShortCut ShortCut)
{
    if (ShortCut == 0)
        return nullptr;
    return Find(
        [ShortCut](const TMenuItem& Item) { return Item.FShortCut == ShortCut && Item.IsReachable(); });
}

TMenuSpec::TItem TMenuItem::BuildSpec(const TCustomImageList* Images)
{
    if (!FGlyphIsMade) {
        FGlyph = TGlyph(Images, FImageIndex);
        if (FGlyph.IsEmpty())
            FGlyph = TGlyph(*FBitmap);
        FGlyphIsMade = true;
    }
    // The link's list, not FSubMenuImages: of a list that is dying the menu may hear before the item does.
    const TCustomImageList* const Own = FImagesLink.GetSender();
    TMenuSpec::TItem Spec;
    Spec.Command = FCommand;
    Spec.Caption = FCaption;
    Spec.ShortCut = FShortCut;
    Spec.Enabled = FEnabled;
    Spec.Visible = FVisible;
    Spec.Checked = FChecked;
    Spec.Radio = FRadioItem;
    Spec.Default = FDefault;
    Spec.Glyph = FGlyph.Buffer();
    Spec.Items.reserve(FItems.size());
    for (TMenuItem* Item : FItems)
        Spec.Items.push_back(Item->BuildSpec(Own ? Own : Images));
    return Spec;
}

void TMenuItem::GetChildren(const std::function<void(TComponent*)>& Receive, TComponent*)
{
    for (TMenuItem* Item : FItems)
        Receive(Item);
}

TComponent* TMenuItem::GetParentComponent() const
{
    // A menu's root item is not seen in form files: its items stand directly below the menu.
    return FParent && FParent->FMenu ? static_cast<TComponent*>(FParent->FMenu) : FParent;
}

void TMenuItem::SetParentComponent(TComponent* Value)
{
    if (FParent)
        FParent->Remove(this);
    if (TMenu* Menu = As<TMenu>(Value))
        Menu->GetItems()->Add(this);
    else if (TMenuItem* Item = As<TMenuItem>(Value))
        Item->Add(this);
}

void TMenuItem::SetChildOrder(TComponent* Child, int Order)
{
    const auto Found = std::find(FItems.begin(), FItems.end(), Child);
    if (Found == FItems.end())
        return;
    TMenuItem* const Item = *Found;
    FItems.erase(Found);
    FItems.insert(FItems.begin() + std::clamp(Order, 0, GetCount()), Item);
    Changed();
}

void TMenuItem::Changed()
{
    if (TMenu* Menu = GetMenu())
        Menu->MenuChanged();
}

void TMenuItem::UncheckNeighbours()
{
    if (!FParent)
        return;
    for (TMenuItem* Item : FParent->FItems)
        if (Item != this && Item->FRadioItem && Item->FGroupIndex == FGroupIndex)
            Item->SetChecked(false);
}

} // namespace vcl
