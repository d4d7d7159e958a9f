#include "KSTimeView/model/TimeViewItems.h"

#include <algorithm>
#include <vector>

#include "KSTimeView/model/TimeViewDays.h"
#include "vcl/classes/List.h"
#include "vcl/classes/Updating.h"
#include "vcl/streaming/Filer.h"

namespace
{

constexpr int StreamVersion = 100;

} // namespace

const vcl::TClass& TKSTimeViewItems::StaticClass()
{
    static const vcl::TClass Class = vcl::DefineClass<TKSTimeViewItems, vcl::TPersistent>("TKSTimeViewItems");
    return Class;
}

TKSTimeViewItems::TKSTimeViewItems(timeview::IViewHost* Host) : FHost(Host)
{
}

void TKSTimeViewItems::FreeItems()
{
    ++FUpdateCount;
    while (TKSTimeViewItem* const Item = FirstStaying())
        delete Item;
}

TKSTimeViewItems::~TKSTimeViewItems()
{
    FreeItems();
    // What is left is being freed further up the stack, by whoever raised the event that freed us.
    while (!FList.IsEmpty()) {
        TKSTimeViewItem* const Item = FList[FList.GetCount() - 1];
        Detach(Item);
        Item->FOwner = nullptr;
    }
}

TKSTimeViewItem* TKSTimeViewItems::GetItem(int Index) const
{
    if (Index < 0 || Index >= FList.GetCount())
        vcl::RaiseListIndexError(Index);
    return FList[Index];
}

TKSTimeViewItem* TKSTimeViewItems::FirstStaying() const
{
    for (TKSTimeViewItem* Item : FList)
        if (!Item->FLeaving)
            return Item;
    return nullptr;
}

TKSTimeViewItem* TKSTimeViewItems::Add(const vcl::AnsiString& Caption, vcl::TDateTime StartTime,
                                       vcl::TDateTime EndTime, bool AllDay)
{
    return AddObject(Caption, StartTime, EndTime, AllDay, nullptr);
}

TKSTimeViewItem* TKSTimeViewItems::AddObject(const vcl::AnsiString& Caption, vcl::TDateTime StartTime,
                                             vcl::TDateTime EndTime, bool AllDay, void* Data)
{
    if (StartTime < 0 || EndTime < 0)
        throw vcl::Exception("Invalid time range");
    TKSTimeViewItem* const Item = vcl::New<TKSTimeViewItem>(this);
    FList.Append(Item);
    Item->FInCollection = true;
    Item->FCaption = Caption;
    Item->FStartTime = StartTime;
    Item->FEndTime = EndTime;
    Item->FAllDay = AllDay;
    Item->FData = Data;
    Item->PlacementChanged(AllDay);
    return Item;
}

void TKSTimeViewItems::Delete(TKSTimeViewItem* Item)
{
    Item->Delete();
}

void TKSTimeViewItems::Detach(TKSTimeViewItem* Item)
{
    Item->DeleteFromDays();
    FList.Remove(Item);
    Item->FInCollection = false;
    if (!FHost)
        return;
    FHost->Days().CalcDisplay();
    FHost->Repaint();
}

void TKSTimeViewItems::Clear()
{
    vcl::WhileUpdating(*this, [this] {
        const vcl::TAliveGuard Witness(FLife);
        while (TKSTimeViewItem* const Item = Witness.IsAlive() ? FirstStaying() : nullptr)
            Item->Delete();
    });
}

void TKSTimeViewItems::BeginUpdate()
{
    // Inside, layout results are those from before.
    if (FUpdateCount++ == 0 && FHost)
        FHost->Days().EnsureLayout();
}

void TKSTimeViewItems::EndUpdate()
{
    if (--FUpdateCount != 0 || !FHost)
        return;
    FHost->Days().CalcDisplay();
    FHost->Repaint();
}

void TKSTimeViewItems::ReattachToDays()
{
    for (TKSTimeViewItem* Item : FList)
        Item->ReattachToDays();
}

void TKSTimeViewItems::Assign(const vcl::TPersistent* Source)
{
    const auto* const Items = vcl::As<TKSTimeViewItems>(static_cast<const vcl::TObject*>(Source));
    if (!Items) {
        TPersistent::Assign(Source);
        return;
    }
    vcl::WhileUpdating(*this, [&] {
        const vcl::TAliveGuard Witness(FLife);
        vcl::TMemoryStream Stream;
        Items->WriteData(Stream);
        // The stream holds the low half of a pointer.
        std::vector<void*> Pointers;
        for (const TKSTimeViewItem* Item : *Items)
            Pointers.push_back(Item->GetData());
        Stream.SetPosition(0);
        ReadData(Stream);
        if (!Witness.IsAlive())
            return;
        for (int Index = 0; Index < std::min(GetCount(), static_cast<int>(Pointers.size())); ++Index)
            FList[Index]->SetData(Pointers[static_cast<std::size_t>(Index)]);
    });
}

void TKSTimeViewItems::WriteData(vcl::TStream& Stream) const
{
    Stream.WriteInt32(StreamVersion);
    Stream.WriteInt32(GetCount());
    for (const TKSTimeViewItem* Item : FList)
        Item->WriteData(Stream);
}

void TKSTimeViewItems::ReadData(vcl::TStream& Stream)
{
    const vcl::TAliveGuard Witness(FLife);
    Clear();
    if (!Witness.IsAlive())
        return;
    Stream.ReadInt32();
    const int Count = Stream.ReadInt32();
    // The count decides nothing but when to stop: a lying one meets the end of the stream.
    for (int Index = 0; Index < Count; ++Index)
        Add("", 0, 0, false)->ReadData(Stream);
}

bool TKSTimeViewItems::DiffersFrom(const TKSTimeViewItems& Ancestor) const
{
    if (Ancestor.GetCount() != GetCount())
        return true;
    for (int Index = 0; Index < GetCount(); ++Index)
        if (!FList[Index]->IsEqual(*Ancestor.FList[Index]))
            return true;
    return false;
}

void TKSTimeViewItems::DefineProperties(vcl::TFiler& Filer)
{
    TPersistent::DefineProperties(Filer);
    const auto* const Ancestor = vcl::As<TKSTimeViewItems>(static_cast<vcl::TObject*>(Filer.GetAncestor()));
    Filer.DefineBinaryProperty(
        "Data", [this](vcl::TStream& Stream) { ReadData(Stream); },
        [this](vcl::TStream& Stream) { WriteData(Stream); },
        Ancestor ? DiffersFrom(*Ancestor) : GetCount() > 0);
}
