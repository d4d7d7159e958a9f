#pragma once

#include <functional>
#include <vector>

#include "vcl/classes/Persistent.h"
#include "vcl/system/Set.h"

namespace vcl
{

enum class TComponentState {
    csLoading,
    csReading,
    csWriting,
    csDestroying,
    csDesigning,
    csAncestor,
    csUpdating,
    csFixups,
    csFreeNotification,
    csInline,
    csDesignInstance,
};
using TComponentStates = TSet<TComponentState>;

enum class TComponentStyle { csInheritable, csCheckPropAvail, csSubComponent, csTransient };
using TComponentStyles = TSet<TComponentStyle>;

enum class TOperation { opInsert, opRemove };

/// Something a form can own: it has an owner that frees it, a name unique in that owner, and it is streamed.
class TComponent : public TPersistent
{
    VCL_CLASS
public:
    explicit TComponent(TComponent* Owner);
    ~TComponent() override;

    /// Published: unique among the owner's components, a valid identifier or empty; else EComponentError.
    const AnsiString& GetName() const { return FName; }
    virtual void SetName(const AnsiString& Name);
    std::int64_t GetTag() const { return FTag; }
    void SetTag(std::int64_t Tag) { FTag = Tag; }

    TPersistent* GetOwner() const override { return FOwner; }
    TComponent* GetOwnerComponent() const { return FOwner; }
    AnsiString GetNamePath() const override;

    int GetComponentCount() const { return static_cast<int>(FComponents.size()); }
    TComponent* GetComponent(int Index) const;
    int GetComponentIndex() const;
    TComponent* FindComponent(std::string_view Name) const;
    void InsertComponent(TComponent* Component);
    void RemoveComponent(TComponent* Component);
    void DestroyComponents();

    TComponentStates GetComponentState() const { return FState; }
    TComponentStyles GetComponentStyle() const { return FStyle; }
    bool Is(TComponentState State) const { return FState.Contains(State); }
    void SetSubComponent(bool IsSubComponent);

    /// Asks Other to tell this component, through Notification, when Other is destroyed; mutual, so it does
    /// not matter which of the two asks. An owner and what it owns need not ask.
    void FreeNotification(TComponent* Other);
    void RemoveFreeNotification(TComponent* Other);

    /// Streaming: the children written below this component, in file order. Root is the form being written.
    virtual void GetChildren(const std::function<void(TComponent*)>& Receive, TComponent* Root);
    /// The component whose children list holds this one, when that is not the owner.
    virtual TComponent* GetParentComponent() const { return nullptr; }
    virtual bool HasParent() const { return false; }
    virtual void SetParentComponent(TComponent*) {}
    virtual void SetChildOrder(TComponent*, int) {}
    virtual TComponent* GetChildOwner() { return nullptr; }
    virtual TComponent* GetChildParent() { return this; }

    void DefineProperties(TFiler& Filer) override;
    void BeforeDestruction() override;

    /// Design position of a component that is not a control: Left in the low 16 bits, Top in the high ones.
    std::uint32_t GetDesignInfo() const { return FDesignInfo; }
    void SetDesignInfo(std::uint32_t Info) { FDesignInfo = Info; }

protected:
    friend class TReader;
    friend class TWriter;

    /// Called for every component inserted into or removed from this one's owner, and for those asked for
    /// with FreeNotification.
    virtual void Notification(TComponent* Component, TOperation Operation);
    /// The whole form has been read; ancestors first.
    virtual void Loaded();
    virtual void ReadState(TReader& Reader);
    virtual void Updating() { FState.Include(TComponentState::csUpdating); }
    virtual void Updated() { FState.Exclude(TComponentState::csUpdating); }
    virtual void ValidateRename(TComponent* Component, const AnsiString& OldName, const AnsiString& NewName);
    void SetDesigning(bool Value, bool WithChildren = true);
    void SetAncestor(bool Value);
    void SetInline(bool Value);

    /// Marks this component and all it owns as being destroyed.
    void Destroying();

    TComponentStyles FStyle{TComponentStyle::csInheritable};

private:
    void ChangeState(TComponentState State, bool Value);
    void Insert(TComponent* Component);
    void Remove(TComponent* Component);
    void ValidateContainerName(TComponent* Component, const AnsiString& Name) const;
    void NotifyOfDestruction();

    TComponent* FOwner = nullptr;
    AnsiString FName;
    std::int64_t FTag = 0;
    std::uint32_t FDesignInfo = 0;
    std::vector<TComponent*> FComponents;
    std::vector<TComponent*> FFreeNotifies;
    TComponentStates FState;
};

/// True for a letter or underscore followed by letters, digits and underscores (ASCII).
bool IsValidIdent(std::string_view Ident);

/// Makes classes known by name to form readers and package loaders. Registering a class twice is allowed.
void RegisterClass(const TClass& Class);
void RegisterClasses(std::initializer_list<const TClass*> Classes);
/// The registered class of that name (case ignored) or null; FindClass raises EClassNotFound instead.
const TClass* GetClass(std::string_view Name);
const TClass& FindClass(std::string_view Name);
std::vector<const TClass*> RegisteredClasses();

} // namespace vcl
