#include "vcl/controls/Menu.h"

#include "vcl/controls/MouseTracker.h"
#include "vcl/controls/WinControl.h"
#include "vcl/platform/Platform.h"

namespace vcl
{

const TTypeInfo& TypeTraits<TMenuAutoFlag>::Info()
{
    static const TTypeInfo Type = EnumerationType("TMenuAutoFlag", {"maAutomatic", "maManual"});
    return Type;
}

const TTypeInfo& TypeTraits<TPopupAlignment>::Info()
{
    static const TTypeInfo Type = EnumerationType("TPopupAlignment", {"paLeft", "paRight", "paCenter"});
    return Type;
}

const TTypeInfo& TypeTraits<TTrackButton>::Info()
{
    static const TTypeInfo Type = EnumerationType("TTrackButton", {"tbRightButton", "tbLeftButton"});
    return Type;
}

const TClass& TMenu::StaticClass()
{
    static const TClass Class = DefineClass<TMenu, TPopupMenuBase>(
        "TMenu",
        {
            Declared(Published<&TMenu::GetAutoHotkeys, &TMenu::SetAutoHotkeys>("AutoHotkeys")
                         .Default(TMenuAutoFlag::maAutomatic)),
            Declared(
                Published<&TMenu::GetAutoLineReduction, &TMenu::SetAutoLineReduction>("AutoLineReduction")
                    .Default(TMenuAutoFlag::maAutomatic)),
            Declared(Published<&TMenu::GetBiDiMode, &TMenu::SetBiDiMode>("BiDiMode")
                         .Stored<&TMenu::IsBiDiModeStored>()),
            Declared(Published<&TMenu::GetImages, &TMenu::SetImages>("Images")),
            Declared(Published<&TMenu::GetOwnerDraw, &TMenu::SetOwnerDraw>("OwnerDraw").Default(false)),
            Declared(Published<&TMenu::GetParentBiDiMode, &TMenu::SetParentBiDiMode>("ParentBiDiMode")
                         .Default(true)),
        });
    return Class;
}

const TClass& TMainMenu::StaticClass()
{
    static const TClass Class = DefineClass<TMainMenu, TMenu>(
        "TMainMenu",
        {
            Publish("AutoHotkeys"),
            Publish("AutoLineReduction"),
            Published<&TMainMenu::GetAutoMerge, &TMainMenu::SetAutoMerge>("AutoMerge").Default(false),
            Publish("BiDiMode"),
            Publish("Images"),
            Publish("OwnerDraw"),
            Publish("ParentBiDiMode"),
        });
    return Class;
}

const TClass& TPopupMenu::StaticClass()
{
    static const TClass Class = DefineClass<TPopupMenu, TMenu>(
        "TPopupMenu",
        {
            Published<&TPopupMenu::GetAlignment, &TPopupMenu::SetAlignment>("Alignment")
                .Default(TPopupAlignment::paLeft),
            Publish("AutoHotkeys"),
            Publish("AutoLineReduction"),
            Published<&TPopupMenu::GetAutoPopup, &TPopupMenu::SetAutoPopup>("AutoPopup").Default(true),
            Publish("BiDiMode"),
            Published<&TPopupMenu::GetHelpContext, &TPopupMenu::SetHelpContext>("HelpContext").Default(0),
            Publish("Images"),
            Publish("OwnerDraw"),
            Publish("ParentBiDiMode"),
            Published<&TPopupMenu::GetTrackButton, &TPopupMenu::SetTrackButton>("TrackButton")
                .Default(TTrackButton::tbRightButton),
            Published<&TPopupMenu::OnPopup>("OnPopup"),
        });
    return Class;
}

TMenu::TMenu(TComponent* Owner) : TPopupMenuBase(Owner), FItems(New<TMenuItem>(nullptr))
{
    FItems->FMenu = this;
    FImagesLink.OnChange = [this](TObject*) {
        FItems->ForgetGlyphs();
        MenuChanged();
    };
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
    FImages = Value;
    FImagesLink.Follow(Value, *this);
    FItems->ForgetGlyphs();
    MenuChanged();
}

void TMenu::SetBiDiMode(TBiDiMode Value)
{
    FBiDiMode = Value;
    FParentBiDiMode = false;
    MenuChanged();
}

void TMenu::SetParentBiDiMode(bool Value)
{
    FParentBiDiMode = Value;
    MenuChanged();
}

bool TMenu::IsRightToLeft() const
{
    const TControl* const Form = As<TControl>(GetOwnerComponent());
    if (FParentBiDiMode)
        return Form && Form->UseRightToLeftReading();
    return FBiDiMode != TBiDiMode::bdLeftToRight;
}

void TMenu::SetPopupComponent(TComponent* Component)
{
    FPopupComponent = Component;
    if (Component)
        Component->FreeNotification(this);
}

TMenuSpec TMenu::BuildSpec()
{
    TMenuSpec Spec;
    // The link's list, not FImages: of a list that is dying the item may hear before the menu does.
    Spec.Items = FItems->BuildSpec(FImagesLink.GetSender()).Items;
    Spec.RightToLeft = IsRightToLeft();
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
    if (Item)
        Item->Click();
    return Item != nullptr;
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
    if (Operation == TOperation::opRemove && Component == FPopupComponent)
        FPopupComponent = nullptr;
}

void TMenu::Loaded()
{
    TPopupMenuBase::Loaded();
    MenuChanged();
}

void TPopupMenu::Popup(int X, int Y)
{
    TAliveGuard Guard(*this);
    OnPopup(this);
    if (!Guard.IsAlive())
        return;
    TMenuSpec Spec = BuildSpec();
    TControl* const Control = As<TControl>(GetPopupComponent());
    if (GetParentBiDiMode() && Control)
        Spec.RightToLeft = Control->UseRightToLeftReading();
    TWinControl* const Window = Control ? WindowControlOf(Control) : nullptr;
    const unsigned Command =
        Platform().Windows().PopupMenu(Spec, {X, Y}, Window ? Window->GetWindow() : nullptr);
    if (Command != 0 && Guard.IsAlive())
        DispatchCommand(Command);
}

} // namespace vcl
