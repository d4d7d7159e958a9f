#include "vcl/classes/Component.h"

#include <algorithm>

#include "vcl/streaming/Filer.h"
#include "vcl/streaming/Reader.h"
#include "vcl/streaming/Writer.h"

namespace vcl
{

namespace
{

bool IsLetter(char Character)
{
    return (Character >= 'a' && Character <= 'z') || (Character >= 'A' && Character <= 'Z') ||
           Character == '_';
}

std::int16_t LowWord(std::uint32_t Info)
{
    return static_cast<std::int16_t>(Info & 0xFFFFu);
}

std::int16_t HighWord(std::uint32_t Info)
{
    return static_cast<std::int16_t>(Info >> 16);
}

} // namespace

bool IsValidIdent(std::string_view Ident)
{
    return !Ident.empty() && IsLetter(Ident.front()) &&
           std::all_of(Ident.begin(), Ident.end(), [](char Character) {
               return IsLetter(Character) || (Character >= '0' && Character <= '9');
           });
}

namespace detail
{

TComponent* OwnerComponent(TObject* Owner)
{
    return As<TComponent>(Owner);
}

} // namespace detail

const TClass& TComponent::StaticClass()
{
    static const TClass Class = DefineClass<TComponent, TPersistent>(
        "TComponent", {
                          Published<&TComponent::GetName, &TComponent::SetName>("Name").NeverStored(),
                          Published<&TComponent::GetTag, &TComponent::SetTag>("Tag").Default(0),
                      });
    return Class;
}

TComponent::TComponent(TComponent* Owner)
{
    if (Owner)
        Owner->InsertComponent(this);
}

TComponent::~TComponent()
{
    // Objects on the stack come here without BeforeDestruction.
    Destroying();
    NotifyOfDestruction();
    DestroyComponents();
    if (FOwner)
        FOwner->RemoveComponent(this);
}

void TComponent::BeforeDestruction()
{
    Destroying();
    NotifyOfDestruction();
}

void TComponent::Destroying()
{
    if (Is(TComponentState::csDestroying))
        return;
    FState.Include(TComponentState::csDestroying);
    for (TComponent* Component : FComponents)
        Component->Destroying();
}

void TComponent::NotifyOfDestruction()
{
    while (!FFreeNotifies.empty()) {
        TComponent* const Other = FFreeNotifies.back();
        RemoveFreeNotification(Other);
        Other->Notification(this, TOperation::opRemove);
    }
}

void TComponent::SetName(const AnsiString& Name)
{
    if (Name == FName)
        return;
    if (!Name.empty() && !IsValidIdent(Name))
        throw EComponentError("\"" + Name + "\" is not a valid component name");
    if (FOwner)
        FOwner->ValidateRename(this, FName, Name);
    else
        ValidateRename(nullptr, FName, Name);
    FName = Name;
}

void TComponent::ValidateContainerName(TComponent* Component, const AnsiString& Name) const
{
    if (Name.empty())
        return;
    const TComponent* const Existing = FindComponent(Name);
    if (Existing && Existing != Component)
        throw EComponentError("A component named \"" + Name + "\" already exists");
}

void TComponent::ValidateRename(TComponent* Component, const AnsiString& OldName, const AnsiString& NewName)
{
    if (Component && !SameText(OldName, NewName))
        ValidateContainerName(Component, NewName);
    if (Is(TComponentState::csDesigning) && FOwner)
        FOwner->ValidateRename(Component, OldName, NewName);
}

AnsiString TComponent::GetNamePath() const
{
    return FName;
}

TComponent* TComponent::GetComponent(int Index) const
{
    if (Index < 0 || Index >= GetComponentCount())
        throw EListError("List index out of bounds (" + IntToStr(Index) + ")");
    return FComponents[static_cast<std::size_t>(Index)];
}

int TComponent::GetComponentIndex() const
{
    if (!FOwner)
        return -1;
    const auto& Siblings = FOwner->FComponents;
    return static_cast<int>(std::find(Siblings.begin(), Siblings.end(), this) - Siblings.begin());
}

TComponent* TComponent::FindComponent(std::string_view Name) const
{
    if (Name.empty())
        return nullptr;
    const auto Found = std::find_if(FComponents.begin(), FComponents.end(), [Name](TComponent* Component) {
        return SameText(Component->FName, Name);
    });
    return Found == FComponents.end() ? nullptr : *Found;
}

void TComponent::Insert(TComponent* Component)
{
    FComponents.push_back(Component);
    Component->FOwner = this;
}

void TComponent::Remove(TComponent* Component)
{
    Component->FOwner = nullptr;
    // Owners empty themselves from the end, so that is where the search starts.
    const auto Found = std::find(FComponents.rbegin(), FComponents.rend(), Component);
    if (Found != FComponents.rend())
        FComponents.erase(std::next(Found).base());
}

void TComponent::InsertComponent(TComponent* Component)
{
    if (Component->FOwner == this)
        return;
    for (const TComponent* Above = this; Above; Above = Above->FOwner)
        if (Above == Component)
            throw EComponentError("A component cannot own itself");
    ValidateContainerName(Component, Component->FName);
    if (Component->FOwner)
        Component->FOwner->RemoveComponent(Component);
    Insert(Component);
    if (Is(TComponentState::csDesigning))
        Component->SetDesigning(true);
    Notification(Component, TOperation::opInsert);
}

void TComponent::RemoveComponent(TComponent* Component)
{
    if (Component->FOwner != this)
        return;
    Notification(Component, TOperation::opRemove);
    // A handler may have taken it away already.
    if (Component->FOwner != this)
        return;
    Remove(Component);
    Component->SetDesigning(false);
}

void TComponent::DestroyComponents()
{
    while (!FComponents.empty()) {
        TComponent* const Component = FComponents.back();
        // While the owner itself goes, its components need not tell each other.
        if (Component->Is(TComponentState::csFreeNotification) || !Is(TComponentState::csDestroying))
            RemoveComponent(Component);
        else
            Remove(Component);
        delete Component;
    }
}

void TComponent::SetSubComponent(bool IsSubComponent)
{
    if (IsSubComponent)
        FStyle.Include(TComponentStyle::csSubComponent);
    else
        FStyle.Exclude(TComponentStyle::csSubComponent);
}

void TComponent::FreeNotification(TComponent* Other)
{
    if (!Other || Other == this)
        return;
    if (!FOwner || Other->FOwner != FOwner) {
        const auto Found = std::find(FFreeNotifies.begin(), FFreeNotifies.end(), Other);
        if (Found == FFreeNotifies.end()) {
            FFreeNotifies.push_back(Other);
            Other->FFreeNotifies.push_back(this);
        }
    }
    FState.Include(TComponentState::csFreeNotification);
    Other->FState.Include(TComponentState::csFreeNotification);
}

void TComponent::RemoveFreeNotification(TComponent* Other)
{
    std::erase(FFreeNotifies, Other);
    std::erase(Other->FFreeNotifies, this);
}

void TComponent::Notification(TComponent* Component, TOperation Operation)
{
    if (Operation == TOperation::opRemove && Component)
        RemoveFreeNotification(Component);
    // From the end and by index: a component may remove itself or others while it is told.
    for (std::size_t Index = FComponents.size(); Index-- > 0;)
        if (Index < FComponents.size() && !FComponents[Index]->Is(TComponentState::csDestroying))
            FComponents[Index]->Notification(Component, Operation);
}

void TComponent::Loaded()
{
    FState.Exclude(TComponentState::csLoading);
}

void TComponent::ReadState(TReader& Reader)
{
    Reader.ReadData(*this);
}

void TComponent::GetChildren(const std::function<void(TComponent*)>&, TComponent*)
{
}

void TComponent::ChangeState(TComponentState State, bool Value)
{
    if (Value)
        FState.Include(State);
    else
        FState.Exclude(State);
}

void TComponent::SetDesigning(bool Value, bool WithChildren)
{
    ChangeState(TComponentState::csDesigning, Value);
    if (WithChildren)
        for (TComponent* Component : FComponents)
            Component->SetDesigning(Value);
}

void TComponent::SetAncestor(bool Value)
{
    ChangeState(TComponentState::csAncestor, Value);
    for (TComponent* Component : FComponents)
        Component->SetAncestor(Value);
}

void TComponent::SetInline(bool Value)
{
    ChangeState(TComponentState::csInline, Value);
}

void TComponent::DefineProperties(TFiler& Filer)
{
    const TComponent* const Ancestor = As<TComponent>(Filer.GetAncestor());
    const std::uint32_t AncestorInfo = Ancestor ? Ancestor->FDesignInfo : 0;
    Filer.DefineProperty(
        "Left",
        [this](TReader& Reader) {
            FDesignInfo =
                (FDesignInfo & 0xFFFF0000u) | (static_cast<std::uint32_t>(Reader.ReadInteger()) & 0xFFFFu);
        },
        [this](TWriter& Writer) { Writer.WriteInteger(LowWord(FDesignInfo)); },
        LowWord(FDesignInfo) != LowWord(AncestorInfo));
    Filer.DefineProperty(
        "Top",
        [this](TReader& Reader) {
            FDesignInfo = (FDesignInfo & 0xFFFFu) | (static_cast<std::uint32_t>(Reader.ReadInteger()) << 16);
        },
        [this](TWriter& Writer) { Writer.WriteInteger(HighWord(FDesignInfo)); },
        HighWord(FDesignInfo) != HighWord(AncestorInfo));
}

} // namespace vcl
