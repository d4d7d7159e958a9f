#include "vcl/streaming/LoadList.h"

#include <algorithm>

#include "vcl/classes/Collection.h"

namespace vcl
{

TLoadList::~TLoadList()
{
    for (TComponent* Component : FComponents)
        if (Component)
            TReader::Unwatch(*Component, *this);
}

void TLoadList::Add(TComponent& Component)
{
    if (TReader::Watch(Component, *this))
        FComponents.push_back(&Component);
}

void TLoadList::Notification(TComponent* Component, TOperation Operation)
{
    TComponent::Notification(Component, Operation);
    if (Operation != TOperation::opRemove)
        return;
    std::replace(FComponents.begin(), FComponents.end(), Component, static_cast<TComponent*>(nullptr));
    std::erase_if(FReferences, [Component](const TReference& Reference) {
        return Reference.Holder == Component || Reference.LookupRoot == Component;
    });
}

void TLoadList::EnterCollection(TCollection& Collection)
{
    std::erase_if(FReferences, [&Collection](const TReference& Reference) {
        const auto& Collections = Reference.Collections;
        return std::find(Collections.begin(), Collections.end(), &Collection) != Collections.end();
    });
    FCollections.push_back(&Collection);
}

void TLoadList::AddReference(TPersistent& Instance, const TPropertyInfo& Property, const AnsiString& Name,
                             std::int64_t Position)
{
    FReferences.push_back(
        {FCurrent, &Instance, &Property, Name, FReader.GetLookupRoot(), Position, FCollections});
}

TComponent* TLoadList::FindPath(TComponent& Start, std::string_view Path) const
{
    TComponent* Component = &Start;
    while (Component && !Path.empty()) {
        const std::size_t Dot = Path.find('.');
        const std::string_view Part = Path.substr(0, Dot);
        Path = Dot == std::string_view::npos ? std::string_view() : Path.substr(Dot + 1);
        if (!SameText(Part, "Owner"))
            Component = Component->FindComponent(Part);
    }
    return Component;
}

TComponent* TLoadList::Find(const TReference& Reference) const
{
    const std::string_view Name = Reference.Name;
    if (TComponent* const Found = FindPath(*Reference.LookupRoot, Name))
        return Found;
    // From inside a frame, or to the form itself, the path starts with the name of a root.
    const std::size_t Dot = Name.find('.');
    const std::string_view First = Name.substr(0, Dot);
    const std::string_view Rest = Dot == std::string_view::npos ? std::string_view() : Name.substr(Dot + 1);
    for (TComponent* Root : {Reference.LookupRoot, FReader.GetRoot()})
        if (SameText(Root->GetName(), First))
            if (TComponent* const Found = FindPath(*Root, Rest))
                return Found;
    return FReader.OnFindReference ? FReader.OnFindReference(FReader, Reference.Name) : nullptr;
}

void TLoadList::Settle(const TReference& Reference)
{
    TComponent* const Found = Reference.Name.empty() ? nullptr : Find(Reference);
    if (!Found && !Reference.Name.empty()) {
        FReader.FUnresolved.push_back({FReader.PathOf(*Reference.Instance) + "." + Reference.Property->Name,
                                       Reference.Name, Reference.Position});
        return;
    }
    if (Found && !Found->InheritsFrom(Reference.Property->Type->Class())) {
        const EReadError Error("Error reading " + FReader.PathOf(*Reference.Instance) + "." +
                               Reference.Property->Name + ": " + Reference.Name + " is not a " +
                               Reference.Property->Type->DisplayName());
        if (!FReader.IsAccepted(Error, Reference.Position))
            throw Error;
        return;
    }
    Reference.Property->Set(*Reference.Instance, Found);
}

void TLoadList::Resolve()
{
    // From the end of a reversed list: a setter may destroy a component, which takes its references along.
    std::reverse(FReferences.begin(), FReferences.end());
    while (!FReferences.empty()) {
        const TReference Reference = std::move(FReferences.back());
        FReferences.pop_back();
        Settle(Reference);
    }
}

void TLoadList::TellAll()
{
    for (std::size_t Index = 0; Index < FComponents.size(); ++Index)
        if (TComponent* const Component = FComponents[Index])
            TReader::TellLoaded(*Component);
}

void TLoadList::Abandon()
{
    for (TComponent* Component : FComponents)
        if (Component)
            TReader::EndLoading(*Component);
}

} // namespace vcl
