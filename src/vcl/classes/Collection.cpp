#include "vcl/classes/Collection.h"

#include <algorithm>

namespace vcl
{

namespace detail
{

TCollection* OwnerCollection(TObject* Owner)
{
    return As<TCollection>(Owner);
}

} // namespace detail

const TClass& TCollectionItem::StaticClass()
{
    static const TClass Class = DefineClass<TCollectionItem, TPersistent>("TCollectionItem");
    return Class;
}

const TClass& TCollection::StaticClass()
{
    static const TClass Class = DefineClass<TCollection, TPersistent>("TCollection");
    return Class;
}

const TClass& TOwnedCollection::StaticClass()
{
    static const TClass Class = DefineClass<TOwnedCollection, TCollection>("TOwnedCollection");
    return Class;
}

TCollectionItem::TCollectionItem(TCollection* Collection)
{
    // An owner that looks at the items must not see one without its fields: AfterConstruction tells of it.
    if (Collection)
        Collection->InsertItem(this);
}

void TCollectionItem::AfterConstruction()
{
    TPersistent::AfterConstruction();
    if (FCollection)
        FCollection->Changed();
}

TCollectionItem::~TCollectionItem()
{
    if (FCollection)
        FCollection->RemoveItem(this);
}

void TCollectionItem::SetCollection(TCollection* Collection)
{
    if (FCollection == Collection)
        return;
    if (Collection && !InheritsFrom(Collection->GetItemClass()))
        throw EInvalidOperation("A " + ClassName() + " does not fit into this collection");
    if (FCollection)
        FCollection->RemoveItem(this);
    if (!Collection)
        return;
    Collection->InsertItem(this);
    Collection->Changed();
}

int TCollectionItem::GetIndex() const
{
    if (!FCollection)
        return -1;
    const auto& Items = FCollection->FItems;
    return static_cast<int>(std::find(Items.begin(), Items.end(), this) - Items.begin());
}

void TCollectionItem::SetIndex(int Index)
{
    const int Current = GetIndex();
    if (Current < 0 || Current == Index)
        return;
    FCollection->GetItem(Index);
    auto& Items = FCollection->FItems;
    Items.erase(Items.begin() + Current);
    Items.insert(Items.begin() + Index, this);
    Changed(true);
}

TPersistent* TCollectionItem::GetOwner() const
{
    return FCollection;
}

AnsiString TCollectionItem::GetNamePath() const
{
    return FCollection ? FCollection->GetNamePath() + "[" + IntToStr(GetIndex()) + "]" : ClassName();
}

void TCollectionItem::Changed(bool AllItems)
{
    if (FCollection && FCollection->FUpdateCount == 0)
        FCollection->Update(AllItems ? nullptr : this);
}

TCollection::TCollection(const TClass& ItemClass) : FItemClass(ItemClass)
{
}

TCollection::~TCollection()
{
    // Nobody is left to hear of changes.
    FUpdateCount = 1;
    Clear();
}

void TCollection::BeforeDestruction()
{
    FUpdateCount = 1;
    Clear();
}

TCollectionItem* TCollection::GetItem(int Index) const
{
    if (Index < 0 || Index >= GetCount())
        throw EListError("List index out of bounds (" + IntToStr(Index) + ")");
    return FItems[static_cast<std::size_t>(Index)];
}

void TCollection::SetItem(int Index, const TCollectionItem* Value)
{
    GetItem(Index)->Assign(Value);
}

TCollectionItem* TCollection::Add()
{
    if (!FItemClass.Create)
        throw EInvalidOperation(AnsiString("Items of class ") + FItemClass.Name + " cannot be created");
    return static_cast<TCollectionItem*>(FItemClass.Create(this));
}

TCollectionItem* TCollection::Insert(int Index)
{
    if (Index < 0 || Index > GetCount())
        throw EListError("List index out of bounds (" + IntToStr(Index) + ")");
    BeginUpdate();
    TCollectionItem* Item = nullptr;
    try {
        Item = Add();
        Item->SetIndex(Index);
    } catch (...) {
        EndUpdate();
        throw;
    }
    EndUpdate();
    return Item;
}

void TCollection::Delete(int Index)
{
    TCollectionItem* const Item = GetItem(Index);
    Notify(Item, TCollectionNotification::cnDeleting);
    delete Item;
}

void TCollection::Clear()
{
    if (FItems.empty())
        return;
    BeginUpdate();
    while (!FItems.empty())
        Delete(GetCount() - 1);
    EndUpdate();
}

TCollectionItem* TCollection::FindItemID(int ID) const
{
    const auto Found =
        std::find_if(FItems.begin(), FItems.end(), [ID](TCollectionItem* Item) { return Item->FID == ID; });
    return Found == FItems.end() ? nullptr : *Found;
}

void TCollection::BeginUpdate()
{
    ++FUpdateCount;
}

void TCollection::EndUpdate()
{
    --FUpdateCount;
    Changed();
}

void TCollection::Changed()
{
    if (FUpdateCount == 0)
        Update(nullptr);
}

void TCollection::Update(TCollectionItem*)
{
}

void TCollection::Notify(TCollectionItem*, TCollectionNotification)
{
}

void TCollection::InsertItem(TCollectionItem* Item)
{
    FItems.push_back(Item);
    Item->FCollection = this;
    Item->FID = FNextID++;
    Notify(Item, TCollectionNotification::cnAdded);
}

void TCollection::RemoveItem(TCollectionItem* Item)
{
    Notify(Item, TCollectionNotification::cnExtracting);
    // Collections empty themselves from the end, so that is where the search starts.
    const auto Found = std::find(FItems.rbegin(), FItems.rend(), Item);
    if (Found != FItems.rend())
        FItems.erase(std::next(Found).base());
    Item->FCollection = nullptr;
    Item->FID = -1;
    Changed();
}

void TCollection::Assign(const TPersistent* Source)
{
    const TCollection* const Other = As<TCollection>(Source);
    if (!Other)
        return TPersistent::Assign(Source);
    if (Other == this)
        return;
    BeginUpdate();
    try {
        Clear();
        for (int Index = 0; Index < Other->GetCount(); ++Index)
            Add()->Assign(Other->GetItem(Index));
    } catch (...) {
        EndUpdate();
        throw;
    }
    EndUpdate();
}

AnsiString TCollection::PropertyName() const
{
    const TPersistent* const Owner = GetOwner();
    if (!Owner)
        return "";
    for (const TPropertyInfo* Row : PublishedProperties(Owner->ClassType())) {
        if (Row->Type->Kind != TTypeKind::Class)
            continue;
        const TPropertyValue Value = Row->Get(*Owner);
        if (std::get<TPersistent*>(Value) == this)
            return Row->Name;
    }
    return "";
}

AnsiString TCollection::GetNamePath() const
{
    const TPersistent* const Owner = GetOwner();
    const AnsiString Path = Owner ? Owner->GetNamePath() : "";
    const AnsiString Property = PropertyName();
    if (Path.empty() || Property.empty())
        return Property.empty() ? ClassName() : Property;
    return Path + "." + Property;
}

} // namespace vcl
