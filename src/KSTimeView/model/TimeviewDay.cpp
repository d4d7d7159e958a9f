#include "KSTimeView/model/TimeviewDay.h"

#include <algorithm>
#include <cmath>

#include "KSTimeView/layout/ColumnPacker.h"
#include "KSTimeView/model/TimeViewDays.h"
#include "KSTimeView/model/TimeViewItem.h"
#include "KSTimeView/model/TimeViewItems.h"
#include "vcl/classes/Properties.h"
#include "vcl/system/Exception.h"
#include "vcl/system/Rects.h"

using timeview::IViewHost;
using timeview::TTimeViewDays;
using timeview::TViewFrame;
using timeview::TViewGeometry;

namespace
{

/// How far above and below its rectangle an item can be hit.
constexpr int HitMargin = 4;

} // namespace

const vcl::TClass& TKSTimeviewDay::StaticClass()
{
    static const vcl::TClass Class = vcl::DefineClass<TKSTimeviewDay, vcl::TObject>("TKSTimeviewDay");
    return Class;
}

TKSTimeviewDay::TKSTimeviewDay(TTimeViewDays* View, vcl::TDateTime Date)
    : FOwner(View), FDate(Date), FMark(View ? View->DayMade(this) : -1)
{
}

TKSTimeviewDay::~TKSTimeviewDay()
{
    DetachAll();
    if (FOwner)
        FOwner->DayFreed(this, FMark);
}

IViewHost* TKSTimeviewDay::GetHost() const
{
    return FOwner ? &FOwner->Host() : nullptr;
}

TKSTimeView* TKSTimeviewDay::GetTimeView() const
{
    return FOwner ? FOwner->Host().View() : nullptr;
}

void TKSTimeviewDay::SetShowWorkingHours(bool Value)
{
    if (FShowWorkingHours == Value)
        return;
    FShowWorkingHours = Value;
    Invalidate();
}

void TKSTimeviewDay::SetBeginWork(vcl::TTime Value)
{
    if (FBeginWork == Value || !(Value < FEndWork))
        return;
    FBeginWork = Value;
    Invalidate();
    if (Host())
        Host()->BeginWorkChanged(this);
}

void TKSTimeviewDay::SetEndWork(vcl::TTime Value)
{
    if (FEndWork == Value || !(Value > FBeginWork))
        return;
    FEndWork = Value;
    Invalidate();
    if (Host())
        Host()->EndWorkChanged(this);
}

TKSTimeViewItem* TKSTimeviewDay::GetItem(int Index) const
{
    if (Index < 0 || Index >= FList.GetCount())
        throw vcl::Exception("Index out of range");
    return FList[Index];
}

void TKSTimeviewDay::SetItem(int Index, const TKSTimeViewItem* Value)
{
    GetItem(Index)->Assign(Value);
}

bool TKSTimeviewDay::HasItem(const TKSTimeViewItem* Item) const
{
    return FMark >= 0 ? (Item->FDayMarks >> FMark & 1) != 0 : FMembers.contains(Item);
}

void TKSTimeviewDay::Attach(TKSTimeViewItem* Item)
{
    if (FMark >= 0)
        Item->FDayMarks |= std::uint64_t{1} << FMark;
    else
        FMembers.insert(Item);
    FList.Append(Item);
    FIsArranged = false;
}

void TKSTimeviewDay::Detach(TKSTimeViewItem* Item)
{
    if (FMark >= 0)
        Item->FDayMarks &= ~(std::uint64_t{1} << FMark);
    else
        FMembers.erase(Item);
    FColumns.erase(Item);
    FList.Remove(Item);
    FIsArranged = false;
}

void TKSTimeviewDay::DetachAll()
{
    if (FMark >= 0)
        for (TKSTimeViewItem* Item : FList)
            Item->FDayMarks &= ~(std::uint64_t{1} << FMark);
    FMembers.clear();
    FColumns.clear();
    FList.Clear();
}

vcl::TDateTime TKSTimeviewDay::GetItemsStart() const
{
    vcl::TDateTime Start = 1.0;
    for (const TKSTimeViewItem* Item : FList)
        Start = Item->FStartTime < Start ? Item->FStartTime : Start;
    return Start;
}

vcl::TDateTime TKSTimeviewDay::GetItemsEnd() const
{
    vcl::TDateTime End = 0.0;
    for (const TKSTimeViewItem* Item : FList)
        End = Item->FEndTime > End ? Item->FEndTime : End;
    return End;
}

int TKSTimeviewDay::GetLeft() const
{
    if (FOwner)
        FOwner->EnsureLayout();
    return FExtent.Left;
}

int TKSTimeviewDay::GetWidth() const
{
    if (FOwner)
        FOwner->EnsureLayout();
    return FExtent.Width;
}

int TKSTimeviewDay::GetColumnCount() const
{
    if (FOwner)
        FOwner->EnsureLayout();
    return FColumnCount;
}

int TKSTimeviewDay::GetAllDayCount() const
{
    if (FOwner)
        FOwner->EnsureLayout();
    return FAllDayCount;
}

int TKSTimeviewDay::GetColumn(const TKSTimeViewItem* Item) const
{
    if (FOwner)
        FOwner->EnsureLayout();
    return StoredColumn(Item);
}

bool TKSTimeviewDay::KeepsColumns() const
{
    return FIndex < 0 || FIndex >= TKSTimeViewItem::MaxDays;
}

int TKSTimeviewDay::StoredColumn(const TKSTimeViewItem* Item) const
{
    if (!KeepsColumns())
        return Item->FColumns[static_cast<std::size_t>(FIndex)];
    const auto Found = FColumns.find(Item);
    return Found == FColumns.end() ? 0 : Found->second;
}

void TKSTimeviewDay::StoreColumn(TKSTimeViewItem* Item, int Column)
{
    if (!KeepsColumns())
        Item->StoreColumn(FIndex, Column);
    else if (Column != 0)
        FColumns[Item] = Column;
}

void TKSTimeviewDay::CalcItemsDisplay()
{
    if (FOwner)
        FOwner->EnsureLayout();
    ArrangeItems();
}

/// For a layout of the view. All-day rows are given anew each time, because those of one day depend on the
/// days before it; columns only when something on this day has changed.
void TKSTimeviewDay::Arrange(const timeview::TDayColumn& Extent, bool Anew)
{
    FExtent = Extent;
    if (Anew || !FIsArranged)
        ArrangeItems();
    else if (FAllDayCount > 0)
        ArrangeAllDayItems();
}

void TKSTimeviewDay::ArrangeItems()
{
    FIsArranged = true;
    FColumns.clear();
    FAllDayCount = 0;
    for (TKSTimeViewItem* Item : FList) {
        StoreColumn(Item, 0);
        if (Item->FAllDay)
            ++FAllDayCount;
    }
    if (FAllDayCount > 0)
        ArrangeAllDayItems();
    ArrangeTimedItems();
}

/// As FindFreeIndexForItem for each item without a row, with the rows that are taken noted once.
void TKSTimeviewDay::ArrangeAllDayItems()
{
    const std::uint32_t Serial = FOwner ? FOwner->GetLayoutSerial() : 0;
    std::vector<bool> Taken(static_cast<std::size_t>(FAllDayCount));
    for (const TKSTimeViewItem* Item : FList) {
        const int Row = Item->FAllDay ? Item->StoredAllDayRow(Serial) : -1;
        if (Row >= 0 && Row < FAllDayCount)
            Taken[static_cast<std::size_t>(Row)] = true;
    }
    int Free = 0;
    for (TKSTimeViewItem* Item : FList) {
        if (!Item->FAllDay || Item->StoredAllDayRow(Serial) != -1)
            continue;
        while (Taken[static_cast<std::size_t>(Free)])
            ++Free;
        Item->StoreAllDayRow(Free, Serial);
        Taken[static_cast<std::size_t>(Free)] = true;
    }
}

void TKSTimeviewDay::ArrangeTimedItems()
{
    FColumnCount = 1;
    if (FList.GetCount() < 2)
        return;
    timeview::TColumnPacker Packer(FDate, FList.GetCount());
    for (TKSTimeViewItem* Item : FList)
        if (!Item->FAllDay && !Item->FDragOutside)
            StoreColumn(Item, Packer.Place(Item->FStartTime, Item->FEndTime));
    FColumnCount = std::max(Packer.ColumnCount(), 1);
}

int TKSTimeviewDay::FindFreeIndexForItem(const TKSTimeViewItem* Item) const
{
    if (FOwner)
        FOwner->EnsureLayout();
    const std::uint32_t Serial = FOwner ? FOwner->GetLayoutSerial() : 0;
    std::vector<bool> Taken(static_cast<std::size_t>(FList.GetCount()) + 1);
    for (const TKSTimeViewItem* Other : FList) {
        const int Row = Other->StoredAllDayRow(Serial);
        if (Other != Item && Other->FAllDay && Row >= 0 && Row < FList.GetCount())
            Taken[static_cast<std::size_t>(Row)] = true;
    }
    return static_cast<int>(std::find(Taken.begin(), Taken.end(), false) - Taken.begin());
}

vcl::TRect TKSTimeviewDay::GetClientRect() const
{
    const int Left = GetLeft();
    return {Left, 0, timeview::SaturatedInt(std::int64_t{Left} + FExtent.Width),
            Host() ? Host()->Geometry().ClientHeight : 0};
}

vcl::TRect TKSTimeviewDay::GetItemRect(const TKSTimeViewItem* Item) const
{
    return FOwner ? GetItemRect(Item, FOwner->Frame()) : vcl::TRect();
}

vcl::TRect TKSTimeviewDay::GetItemRect(const TKSTimeViewItem* Item, const TViewFrame& Frame) const
{
    if (!Host() || !Host()->HasWindow())
        return {};
    FOwner->EnsureLayout();
    return Item->FAllDay ? AllDayRect(*Item, Frame.Geometry) : TimedRect(*Item, Frame);
}

vcl::TRect TKSTimeviewDay::AllDayRect(const TKSTimeViewItem& Item, const TViewGeometry& Geometry) const
{
    // An item that was written to directly may have lost all its days; it then lies in this one.
    const TKSTimeviewDay* First = Item.GetFirstAppearingDay();
    const TKSTimeviewDay* Last = Item.GetLastAppearingDay();
    First = First ? First : this;
    Last = Last ? Last : this;
    return timeview::AllDayItemRect(First->FExtent, Last->FExtent, Geometry.CaptionHeight,
                                    Geometry.RulerMarkHeight, Item.GetAllDayRow());
}

TKSTimeviewDay::TRows TKSTimeviewDay::GetItemRows(const TKSTimeViewItem& Item,
                                                  const timeview::TTimeScale& Scale) const
{
    const vcl::TTime Start = Item.FStartTime < FDate ? 0.0 : timeview::TimeOfDay(Item.FStartTime);
    const vcl::TTime End = Item.FEndTime >= FDate + 1 ? 1.0 : timeview::TimeOfDay(Item.FEndTime);
    return {Scale.TimeToPos(Start, 1), Scale.TimeToPos(End, 1)};
}

vcl::TRect TKSTimeviewDay::TimedRect(const TKSTimeViewItem& Item, const TViewFrame& Frame) const
{
    timeview::TItemPlace Place;
    Place.Day = FExtent;
    Place.Column = StoredColumn(&Item);
    Place.ColumnCount = FColumnCount;
    Place.GapWidth = Frame.Geometry.DaysGapWidth;
    Place.GapCover = Frame.Geometry.ShowDaysGapCover;
    Place.OverWholeDay = Item.FDragOutside;
    const timeview::TItemExtent Extent = timeview::TimedItemExtent(Place);
    const TRows Rows = GetItemRows(Item, Frame.Scale);
    return {Extent.Left, Rows.Top, Extent.Right, Rows.Bottom};
}

vcl::TRect TKSTimeviewDay::GetItemsRect() const
{
    vcl::TRect Union;
    if (!FOwner)
        return Union;
    const TViewFrame Frame = FOwner->Frame();
    for (const TKSTimeViewItem* Item : FList)
        vcl::UnionRect(Union, Union, GetItemRect(Item, Frame));
    return Union;
}

TKSTimeViewItem* TKSTimeviewDay::GetItemAt(int X, int Y) const
{
    if (!Host())
        return nullptr;
    const TViewFrame Frame = FOwner->Frame();
    const bool InAllDayArea = Y <= Frame.Scale.Top();
    for (TKSTimeViewItem* Item : FList) {
        if (Item->FAllDay != InAllDayArea)
            continue;
        vcl::TRect Rect = GetItemRect(Item, Frame);
        vcl::InflateRect(Rect, 0, HitMargin);
        if (Rect.Contains({X, Y}))
            return Item;
    }
    return nullptr;
}

void TKSTimeviewDay::Invalidate()
{
    if (Host() && !Host()->Items().IsUpdating())
        Host()->RepaintRect(GetClientRect());
}

void TKSTimeviewDay::Paint()
{
    if (Host())
        Host()->PaintDay(*this);
}

void TKSTimeviewDay::DrawItem(TKSTimeViewItem* Item)
{
    if (Host())
        Host()->DrawItem(*this, Item);
}
