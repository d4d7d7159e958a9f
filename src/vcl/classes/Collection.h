#pragma once

#include <vector>

#include "vcl/classes/Persistent.h"

namespace vcl
{

class TCollection;

/// One item of a collection; it belongs to the collection from its constructor on.
class TCollectionItem : public TPersistent
{
    VCL_CLASS
public:
    explicit TCollectionItem(TCollection* Collection);
    ~TCollectionItem() override;

    TCollection* GetCollection() const { return FCollection; }
    /// Moves the item to the end of another collection of the same item class, or out of any.
    virtual void SetCollection(TCollection* Collection);
    /// Unique within the collection and never used again there; -1 without a collection.
    int GetID() const { return FID; }
    /// Place in the collection, -1 without one. Setting it moves the item; out of range raises EListError.
    int GetIndex() const;
    virtual void SetIndex(int Index);

    /// What an editor shows for the item; the class's name unless a descendant knows better.
    virtual AnsiString GetDisplayName() const { return ClassName(); }
    TPersistent* GetOwner() const override;
    AnsiString GetNamePath() const override;
    /// Tells the collection of the finished item.
    void AfterConstruction() override;

protected:
    /// Tells the collection that this item, or with AllItems the arrangement of all, has changed.
    void Changed(bool AllItems);

private:
    friend class TCollection;

    TCollection* FCollection = nullptr;
    int FID = -1;
};

enum class TCollectionNotification { cnAdded, cnExtracting, cnDeleting };

/// An ordered list of items of one class, which it makes, owns and streams.
///
///     TOwnedCollection Columns(Grid, TGridColumn::StaticClass());
///     Columns.Add();
class TCollection : public TPersistent
{
    VCL_CLASS
public:
    /// ItemClass must be a TCollectionItem class that can be created.
    explicit TCollection(const TClass& ItemClass);
    ~TCollection() override;
    void BeforeDestruction() override;

    const TClass& GetItemClass() const { return FItemClass; }
    int GetCount() const { return static_cast<int>(FItems.size()); }
    /// Raises EListError when Index is out of range.
    TCollectionItem* GetItem(int Index) const;
    TCollectionItem* operator[](int Index) const { return GetItem(Index); }
    /// Copies Value's content into the item.
    void SetItem(int Index, const TCollectionItem* Value);

    TCollectionItem* Add();
    TCollectionItem* Insert(int Index);
    void Delete(int Index);
    void Clear();
    TCollectionItem* FindItemID(int ID) const;

    /// Between the two, changes are counted and announced once, by the last EndUpdate.
    virtual void BeginUpdate();
    virtual void EndUpdate();
    int GetUpdateCount() const { return FUpdateCount; }

    /// Makes the items copies of Source's, which must be a collection.
    void Assign(const TPersistent* Source) override;
    AnsiString GetNamePath() const override;

protected:
    /// Item has changed, or with null all of them.
    virtual void Update(TCollectionItem* Item);
    virtual void Notify(TCollectionItem* Item, TCollectionNotification Action);
    void Changed();

private:
    friend class TCollectionItem;

    void InsertItem(TCollectionItem* Item);
    void RemoveItem(TCollectionItem* Item);
    AnsiString PropertyName() const;

    const TClass& FItemClass;
    std::vector<TCollectionItem*> FItems;
    int FUpdateCount = 0;
    int FNextID = 0;
};

/// A collection that belongs to a persistent.
class TOwnedCollection : public TCollection
{
    VCL_CLASS
public:
    TOwnedCollection(TPersistent* Owner, const TClass& ItemClass) : TCollection(ItemClass), FOwner(Owner) {}
    TPersistent* GetOwner() const override { return FOwner; }

private:
    TPersistent* FOwner;
};

} // namespace vcl
