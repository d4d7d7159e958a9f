#pragma once

#include <vector>

#include "vcl/streaming/Reader.h"

namespace vcl
{

/// What a reader has still to do once the last byte is read: references to resolve and components to tell. A
/// setter, a handler or Loaded may destroy components meanwhile; the list forgets those.
class TLoadList final : public TComponent
{
public:
    explicit TLoadList(TReader& Reader) : TComponent(nullptr), FReader(Reader) {}
    ~TLoadList() override;

    /// Adds a component whose properties are about to be read; a second time does nothing.
    void Add(TComponent& Component);
    /// The component whose properties are being read; references found belong to it.
    void SetCurrent(TComponent* Component) { FCurrent = Component; }
    TComponent* GetCurrent() const { return FCurrent; }

    /// Around the items of a collection. References in items read earlier are forgotten: their items are
    /// gone.
    void EnterCollection(TCollection& Collection);
    void LeaveCollection() { FCollections.pop_back(); }

    /// An empty name stands for none: it undoes an earlier assignment in the same form.
    void AddReference(TPersistent& Instance, const TPropertyInfo& Property, const AnsiString& Name,
                      std::int64_t Position);
    /// In the order of the form, so that the last of several assignments wins.
    void Resolve();
    /// Loaded for every component, in the order they were added.
    void TellAll();
    /// After a failure: nobody waits for the end of loading any more.
    void Abandon();

protected:
    void Notification(TComponent* Component, TOperation Operation) override;

private:
    struct TReference {
        TComponent* Holder;
        TPersistent* Instance;
        const TPropertyInfo* Property;
        AnsiString Name;
        TComponent* LookupRoot;
        std::int64_t Position;
        std::vector<TCollection*> Collections;
    };

    TComponent* Find(const TReference& Reference) const;
    TComponent* FindPath(TComponent& Start, std::string_view Path) const;
    void Settle(const TReference& Reference);

    TReader& FReader;
    std::vector<TComponent*> FComponents;
    std::vector<TReference> FReferences;
    std::vector<TCollection*> FCollections;
    TComponent* FCurrent = nullptr;
};

} // namespace vcl
