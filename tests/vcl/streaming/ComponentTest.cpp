#include <gtest/gtest.h>

#include "vcl/classes/Collection.h"
#include "vcl/classes/Component.h"

namespace vcl::tests
{

namespace
{

class TWatcher : public TComponent
{
public:
    explicit TWatcher(TComponent* Owner, AnsiString* SeenOutside = nullptr)
        : TComponent(Owner), FOutside(SeenOutside)
    {
    }
    AnsiString Seen;

protected:
    void Notification(TComponent* Component, TOperation Operation) override
    {
        TComponent::Notification(Component, Operation);
        const AnsiString Entry = (Operation == TOperation::opInsert ? "+" : "-") + Component->GetName() + " ";
        Seen += Entry;
        if (FOutside)
            *FOutside += Entry;
    }

private:
    AnsiString* FOutside; // outlives the watcher
};

TComponent* Named(TComponent* Owner, const char* Name)
{
    auto* const Component = New<TComponent>(Owner);
    Component->SetName(Name);
    return Component;
}

class TCountedItem : public TCollectionItem
{
    VCL_CLASS
public:
    using TCollectionItem::TCollectionItem;
    int Value = 0;
    void Assign(const TPersistent* Source) override
    {
        Value = static_cast<const TCountedItem*>(Source)->Value;
    }
    using TCollectionItem::Changed;
};

const TClass& TCountedItem::StaticClass()
{
    static const TClass Class = DefineClass<TCountedItem, TCollectionItem>("TCountedItem");
    return Class;
}

class TCountedItems : public TCollection
{
public:
    TCountedItems() : TCollection(TCountedItem::StaticClass()) {}
    AnsiString Updates;
    TCountedItem* At(int Index) { return static_cast<TCountedItem*>(GetItem(Index)); }
    AnsiString Values()
    {
        AnsiString Result;
        for (int Index = 0; Index < GetCount(); ++Index)
            Result += IntToStr(At(Index)->Value) + " ";
        return Result;
    }

protected:
    void Update(TCollectionItem* Item) override { Updates += Item ? "one " : "all "; }
};

} // namespace

TEST(Component, OwnsWhatIsCreatedWithIt)
{
    TComponent Owner(nullptr);
    TComponent* const First = Named(&Owner, "First");
    TComponent* const Second = Named(&Owner, "Second");
    EXPECT_EQ(Owner.GetComponentCount(), 2);
    EXPECT_EQ(Owner.GetComponent(1), Second);
    EXPECT_EQ(Second->GetComponentIndex(), 1);
    EXPECT_EQ(Owner.FindComponent("fIRST"), First);
    delete First;
    EXPECT_EQ(Owner.GetComponentCount(), 1);
    EXPECT_THROW(Owner.GetComponent(1), EListError);
}

TEST(Component, NamesAreIdentifiersAndUniqueInTheirOwner)
{
    TComponent Owner(nullptr);
    TComponent* const First = Named(&Owner, "Same");
    TComponent* const Second = Named(&Owner, "");
    EXPECT_THROW(Second->SetName("SAME"), EComponentError);
    EXPECT_THROW(Second->SetName("1st"), EComponentError);
    EXPECT_THROW(Second->SetName("a b"), EComponentError);
    EXPECT_THROW(Second->SetName("m\xC3\xB6re"), EComponentError);
    EXPECT_NO_THROW(First->SetName("same"));
    EXPECT_NO_THROW(Second->SetName("_Other2"));
    EXPECT_EQ(Second->GetNamePath(), "_Other2");
}

TEST(Component, CannotBeInsertedWhereItsNameIsTakenOrIntoItself)
{
    TComponent Owner(nullptr);
    TComponent Other(nullptr);
    Named(&Owner, "Twin");
    TComponent* const Twin = Named(&Other, "twin");
    EXPECT_THROW(Owner.InsertComponent(Twin), EComponentError);
    EXPECT_EQ(Twin->GetOwner(), &Other);
    EXPECT_THROW(Twin->InsertComponent(&Other), EComponentError);
}

TEST(Component, OwnersComponentsHearOfInsertionAndRemoval)
{
    TComponent Owner(nullptr);
    auto* const Watcher = New<TWatcher>(&Owner);
    Watcher->Seen.clear();
    TComponent* const Component = Named(nullptr, "Late");
    Owner.InsertComponent(Component);
    delete Component;
    EXPECT_EQ(Watcher->Seen, "+Late -Late ");
}

TEST(Component, FreeNotificationReachesComponentsOfOtherOwners)
{
    TComponent Owner(nullptr);
    auto* const Watcher = New<TWatcher>(&Owner);
    TComponent* const Target = Named(nullptr, "Target");
    Watcher->FreeNotification(Target);
    Watcher->Seen.clear();
    delete Target;
    EXPECT_EQ(Watcher->Seen, "-Target ");

    TComponent* const Spared = Named(nullptr, "Spared");
    Watcher->FreeNotification(Spared);
    Watcher->RemoveFreeNotification(Spared);
    Watcher->Seen.clear();
    delete Spared;
    EXPECT_EQ(Watcher->Seen, "");
}

TEST(Component, AWatcherThatDiesFirstIsNotTold)
{
    TComponent* const Target = Named(nullptr, "Target");
    AnsiString Seen;
    {
        TWatcher Watcher(nullptr, &Seen);
        Watcher.FreeNotification(Target);
    }
    delete Target;
    EXPECT_EQ(Seen, "");
}

TEST(Component, ClassesAreFoundByNameWhateverItsCase)
{
    RegisterClass(TComponent::StaticClass());
    RegisterClass(TComponent::StaticClass());
    EXPECT_EQ(GetClass("tcomponent"), &TComponent::StaticClass());
    EXPECT_EQ(GetClass("TNobody"), nullptr);
    EXPECT_THROW(FindClass("TNobody"), EClassNotFound);
}

TEST(Collection, InsertsMovesAndDeletesItems)
{
    TCountedItems Items;
    for (int Index = 0; Index < 3; ++Index)
        static_cast<TCountedItem*>(Items.Add())->Value = Index;
    static_cast<TCountedItem*>(Items.Insert(1))->Value = 9;
    EXPECT_EQ(Items.Values(), "0 9 1 2 ");
    Items[3]->SetIndex(0);
    EXPECT_EQ(Items.Values(), "2 0 9 1 ");
    Items.Delete(1);
    EXPECT_EQ(Items.Values(), "2 9 1 ");
    EXPECT_EQ(Items[2]->GetIndex(), 2);
    EXPECT_THROW(Items.Insert(4), EListError);
    EXPECT_THROW(Items.Delete(-1), EListError);
    EXPECT_THROW(Items[0]->SetIndex(3), EListError);
}

TEST(Collection, NumbersItemsOnceAndForAll)
{
    TCountedItems Items;
    Items.Add();
    Items.Add();
    Items.Delete(1);
    EXPECT_EQ(Items.Add()->GetID(), 2);
    EXPECT_EQ(Items.FindItemID(2), Items[1]);
    EXPECT_EQ(Items.FindItemID(1), nullptr);
}

TEST(Collection, AnnouncesChangesOnceForAnUpdate)
{
    TCountedItems Items;
    Items.BeginUpdate();
    Items.Add();
    Items.Add();
    EXPECT_EQ(Items.Updates, "");
    Items.EndUpdate();
    EXPECT_EQ(Items.Updates, "all ");
    Items.At(0)->Changed(false);
    EXPECT_EQ(Items.Updates, "all one ");
}

TEST(Collection, AssignCopiesItems)
{
    TCountedItems Source;
    TCountedItems Target;
    for (int Value : {4, 5})
        static_cast<TCountedItem*>(Source.Add())->Value = Value;
    Target.Add();
    Target.Assign(&Source);
    EXPECT_EQ(Target.Values(), "4 5 ");
    Target.Assign(&Target);
    EXPECT_EQ(Target.Values(), "4 5 ");
    TComponent Stranger(nullptr);
    EXPECT_THROW(Target.Assign(&Stranger), EConvertError);
}

TEST(Collection, AnItemCanLeaveAndJoinAnother)
{
    TCountedItems Source;
    TCountedItems Target;
    auto* const Item = static_cast<TCountedItem*>(Source.Add());
    Item->SetCollection(&Target);
    EXPECT_EQ(Source.GetCount(), 0);
    EXPECT_EQ(Target[0], Item);
    delete Item;
    EXPECT_EQ(Target.GetCount(), 0);
}

} // namespace vcl::tests
