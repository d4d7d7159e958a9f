#include "vcl/streaming/Reader.h"

#include <algorithm>

#include "vcl/streaming/LoadList.h"
#include "vcl/streaming/ReaderDepth.h"

namespace vcl
{

namespace
{

constexpr std::uint8_t PrefixMark = 0xF0;
constexpr std::uint8_t PrefixInherited = 1;
constexpr std::uint8_t PrefixChildPosition = 2;
constexpr std::uint8_t PrefixInline = 4;

/// Sets a variable for a scope.
template <class T>
class TScoped
{
public:
    TScoped(T& Variable, T Value) : FVariable(Variable), FSaved(Variable) { Variable = Value; }
    ~TScoped() { FVariable = FSaved; }
    TScoped(const TScoped&) = delete;
    TScoped& operator=(const TScoped&) = delete;

private:
    T& FVariable;
    T FSaved;
};

} // namespace

struct TReader::TObjectHeader {
    std::int64_t Position = 0;
    std::uint8_t Flags = 0;
    int ChildPosition = -1;
    AnsiString ClassName;
    AnsiString Name;

    bool IsInherited() const { return (Flags & PrefixInherited) != 0; }
    bool IsInline() const { return (Flags & PrefixInline) != 0; }
};

TReader::TReader(TStream& Stream) : FStream(Stream)
{
}

TReader::~TReader() = default;

bool TReader::Watch(TComponent& Component, TComponent& Watcher)
{
    auto& Watchers = Component.FFreeNotifies;
    if (std::find(Watchers.begin(), Watchers.end(), &Watcher) != Watchers.end())
        return false;
    Watchers.push_back(&Watcher);
    return true;
}

void TReader::Unwatch(TComponent& Component, TComponent& Watcher)
{
    std::erase(Component.FFreeNotifies, &Watcher);
}

void TReader::TellLoaded(TComponent& Component)
{
    Component.Loaded();
}

void TReader::EndLoading(TComponent& Component)
{
    Component.FState.Exclude(TComponentState::csLoading).Exclude(TComponentState::csReading);
}

AnsiString TReader::PathOf(const TPersistent& Instance) const
{
    AnsiString Path = Instance.GetNamePath();
    return Path.empty() ? Instance.ClassName() : Path;
}

bool TReader::IsAccepted(const Exception& Error, std::int64_t Position)
{
    FErrorPosition = Position;
    bool Handled = false;
    if (OnError)
        OnError(*this, Error, Handled);
    return Handled;
}

void TReader::ReadSignature()
{
    char Signature[4] = {};
    ReadBytes(Signature, sizeof Signature);
    if (std::string_view(Signature, sizeof Signature) != "TPF0")
        throw EReadError("Invalid stream format: this is not a binary form");
}

TReader::TObjectHeader TReader::ReadHeader()
{
    TObjectHeader Header;
    Header.Position = GetPosition();
    if ((PeekByte() & PrefixMark) == PrefixMark) {
        Header.Flags = static_cast<std::uint8_t>(ReadByte() & ~PrefixMark);
        if ((Header.Flags & PrefixChildPosition) != 0)
            Header.ChildPosition = ReadInteger();
    }
    Header.ClassName = ReadStr();
    Header.Name = ReadStr();
    return Header;
}

const TClass& TReader::ComponentClass(const AnsiString& Name)
{
    const TClass* Class = GetClass(Name);
    if (OnFindComponentClass)
        OnFindComponentClass(*this, Name, Class);
    if (!Class || !Class->InheritsFrom(TComponent::StaticClass()) || !Class->Create)
        throw EClassNotFound("Class " + Name + " not found");
    return *Class;
}

void TReader::NameComponent(TComponent& Component, AnsiString Name)
{
    if (OnSetName)
        OnSetName(*this, &Component, Name);
    Component.SetName(Name);
}

TComponent* TReader::ReadRootComponent(TComponent* Root)
{
    ReadSignature();
    const TObjectHeader Header = ReadHeader();
    FIsInherited = Header.IsInherited();
    FRootClassName = Header.ClassName;
    std::unique_ptr<TComponent> Created;
    if (!Root) {
        Created.reset(static_cast<TComponent*>(ComponentClass(Header.ClassName).Create(nullptr)));
        Root = Created.get();
    }
    FLoading = std::make_unique<TLoadList>(*this);
    try {
        ReadRoot(*Root, Header);
        FlushBuffer();
    } catch (...) {
        FLoading->Abandon();
        FLoading.reset();
        throw;
    }
    FLoading.reset();
    return Created ? Created.release() : Root;
}

void TReader::ReadRoot(TComponent& Root, const TObjectHeader& Header)
{
    const TScoped<TComponent*> KeepRoot(FRoot, &Root);
    const TScoped<TComponent*> KeepLookupRoot(FLookupRoot, &Root);
    const TScoped<TComponent*> KeepOwner(FOwner, &Root);
    const TScoped<TComponent*> KeepParent(FParent, nullptr);
    if (Header.IsInherited())
        Root.Updating();
    try {
        NameComponent(Root, Header.Name);
    } catch (const Exception& Error) {
        if (!IsAccepted(Error, Header.Position))
            throw;
    }
    Root.FState.Include(TComponentState::csLoading);
    Root.ReadState(*this);
    FLoading->Resolve();
    FLoading->TellAll();
    if (Header.IsInherited())
        Root.Updated();
}

void TReader::ReadData(TComponent& Instance)
{
    const TDepth Depth(*this);
    FLoading->Add(Instance);
    Instance.FState.Include(TComponentState::csLoading).Include(TComponentState::csReading);
    TComponent* const Outer = FLoading->GetCurrent();
    FLoading->SetCurrent(&Instance);
    ReadProperties(Instance);
    FLoading->SetCurrent(Outer);
    ReadListEnd();
    ReadChildren(Instance);
    Instance.FState.Exclude(TComponentState::csReading);
}

void TReader::ReadChildren(TComponent& Instance)
{
    TComponent* const Owner = Instance.GetChildOwner();
    const TScoped<TComponent*> KeepOwner(FOwner, Owner ? Owner : FLookupRoot);
    const TScoped<TComponent*> KeepParent(FParent, Instance.GetChildParent());
    while (!EndOfList())
        ReadChild();
    ReadListEnd();
}

TComponent* TReader::FindInherited(const TObjectHeader& Header)
{
    TComponent* Found = FLookupRoot->FindComponent(Header.Name);
    if (!Found && OnAncestorNotFound)
        OnAncestorNotFound(*this, Header.ClassName, Header.Name, Found);
    if (!Found)
        throw EReadError("The ancestor of " + Header.Name + " was not found");
    return Found;
}

TComponent* TReader::CreateChild(const TObjectHeader& Header)
{
    const TClass& Class = ComponentClass(Header.ClassName);
    auto* const Component = static_cast<TComponent*>(Class.Create(FOwner));
    if (Header.IsInline())
        Component->SetInline(true);
    Component->FState.Include(TComponentState::csLoading);
    if (FRoot->Is(TComponentState::csDesigning))
        Component->SetDesigning(true);
    return Component;
}

void TReader::ReadChild()
{
    const TObjectHeader Header = ReadHeader();
    const std::int64_t Body = GetPosition();
    TComponent* Component = nullptr;
    try {
        Component = Header.IsInherited() ? FindInherited(Header) : CreateChild(Header);
    } catch (const Exception& Error) {
        if (!IsAccepted(Error, Header.Position))
            throw;
        SetPosition(Body);
        SkipComponentBody();
        return;
    }
    ReadChildBody(*Component, Header);
}

void TReader::ReadChildBody(TComponent& Component, const TObjectHeader& Header)
{
    // Known from now on, so that a failure finds it.
    FLoading->Add(Component);
    const TScoped<TComponent*> KeepLookupRoot(
        FLookupRoot, Component.Is(TComponentState::csInline) ? &Component : FLookupRoot);
    if (Header.IsInherited()) {
        Component.Updating();
        Component.FState.Include(TComponentState::csAncestor);
    } else {
        Component.SetParentComponent(FParent);
        try {
            NameComponent(Component, Header.Name);
        } catch (const Exception& Error) {
            if (!IsAccepted(Error, Header.Position))
                throw;
        }
    }
    Component.FState.Include(TComponentState::csLoading);
    Component.ReadState(*this);
    if (FParent && (Header.Flags & PrefixChildPosition) != 0)
        FParent->SetChildOrder(&Component, Header.ChildPosition);
    if (Header.IsInherited())
        Component.Updated();
}

void TReader::SkipRootComponent()
{
    ReadSignature();
    ReadHeader();
    SkipComponentBody();
}

void TReader::SkipComponentBody()
{
    const TDepth Depth(*this);
    SkipProperties();
    while (!EndOfList()) {
        ReadHeader();
        SkipComponentBody();
    }
    ReadListEnd();
}

} // namespace vcl
