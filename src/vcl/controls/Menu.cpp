#include "vcl/controls/Menu.h"

#include "vcl/controls/WinControl.h"
#include "vcl/platform/Platform.h"

namespace vcl
{

const TClass& TMenu::StaticClass()
{
    static const TClass Class = DefineClass<TMenu, TPopupMenuBase>(
        "TMenu", {Declared(Published<&TMenu::GetImages, &TMenu::SetImages>("Images"))});
    return Class;
}

const TClass& TMainMenu::StaticClass()
{
    static const TClass Class = DefineClass<TMainMenu, TMenu>("TMainMenu", {Publish("Images")});
    return Class;
}

const TClass& TPopupMenu::StaticClass()
{
    static const TClass Class = DefineClass<TPopupMenu, TMenu>(
        "TPopupMenu",
        {
            Published<&TPopupMenu::GetAutoPopup, &TPopupMenu::SetAutoPopup>("AutoPopup").Default(true),
            Publish("Images"),
            Published<&TPopupMenu::OnPopup>("OnPopup"),
        });
    return Class;
}

TMenu::TMenu(TComponent* Owner) : TPopupMenuBase(Owner), FItems(New<TMenuItem>(nullptr))
{
    FItems->FMenu = this;
    FImagesLink.OnChange = [this](TObject*) { MenuChanged(); };
}

TMenu::~TMenu()
{
    OnChanged.Reset();
    FItems->Clear();
}

void TMenu::SetImages(TCustomImageList* Value)
{
    if (FImages == Value)
        return;
    if (FImages)
        FImages->UnregisterChanges(&FImagesLink);
    FImages = Value;
    if (FImages) {
        FImages->RegisterChanges(&FImagesLink);
        FImages->FreeNotification(this);
    }
    MenuChanged();
}

TMenuSpec TMenu::BuildSpec()
{
    TMenuSpec Spec;
    Spec.Items = FItems->BuildSpec(FImages).Items;
    return Spec;
}

bool TMenu::DispatchCommand(unsigned Command)
{
    TMenuItem* const Item = FItems->FindCommand(Command);
    if (Item)
        Item->Click();
    return Item != nullptr;
}

bool TMenu::DispatchShortCut(std::uint16_t Key, TShiftState Shift)
{
    TShortCut ShortCut = Key;
    if (Shift.Contains(TShiftKey::ssShift))
        ShortCut |= scShift;
    if (Shift.Contains(TShiftKey::ssCtrl))
        ShortCut |= scCtrl;
    if (Shift.Contains(TShiftKey::ssAlt))
        ShortCut |= scAlt;
    TMenuItem* const Item = FItems->FindShortCut(ShortCut);
    if (!Item || !Item->GetEnabled())
        return false;
    Item->Click();
    return true;
}

void TMenu::MenuChanged()
{
    if (!Is(TComponentState::csLoading) && !Is(TComponentState::csDestroying))
        OnChanged(this);
}

void TMenu::GetChildren(const std::function<void(TComponent*)>& Receive, TComponent* Root)
{
    FItems->GetChildren(Receive, Root);
}

void TMenu::Notification(TComponent* Component, TOperation Operation)
{
    TPopupMenuBase::Notification(Component, Operation);
    if (Operation == TOperation::opRemove && Component == FImages)
        SetImages(nullptr);
}

void TMenu::Loaded()
{
    TPopupMenuBase::Loaded();
    MenuChanged();
}

void TPopupMenu::Popup(int X, int Y)
{
    OnPopup(this);
    TMenuSpec Spec = BuildSpec();
    const TControl* const Control = As<TControl>(GetPopupComponent());
    Spec.RightToLeft = Control && Control->UseRightToLeftReading();
    TWinControl* const Window = As<TWinControl>(GetPopupComponent());
    const unsigned Command =
        Platform().Windows().PopupMenu(Spec, {X, Y}, Window ? Window->GetWindow() : nullptr);
    if (Command != 0)
        DispatchCommand(Command);
}

} // namespace vcl
