#include "KSTimeView/model/TimeViewItem.h"

#include <algorithm>
#include <climits>

#include "KSTimeView/model/TimeViewDays.h"
#include "KSTimeView/model/TimeViewItems.h"
#include "KSTimeView/model/TimeviewDay.h"

using timeview::IViewHost;
using timeview::TTimeViewDays;

namespace
{

constexpr int RecordVersion = 100;

std::uint64_t NextSerial()
{
    static std::uint64_t Last = 0;
    return ++Last;
}

} // namespace

const vcl::TClass& TKSTimeViewItem::StaticClass()
{
    static const vcl::TClass Class = vcl::DefineClass<TKSTimeViewItem, vcl::TPersistent>("TKSTimeViewItem");
    return Class;
}

TKSTimeViewItem::TKSTimeViewItem(TKSTimeViewItems* Owner)
    : FOwner(Owner), FSerial(NextSerial()), FStartTime(8.0 / 24), FEndTime(10.0 / 24)
{
    if (IViewHost* const View = Host())
        FAllDayRowSerial = View->Days().GetLayoutSerial();
}

TKSTimeViewItem::~TKSTimeViewItem() = default;

void TKSTimeViewItem::operator delete(TKSTimeViewItem* Item, std::destroying_delete_t)
{
    if (!Item->FLeaving)
        vcl::TObject::operator delete (Item, std::destroying_delete_t{});
}

IViewHost* TKSTimeViewItem::Host() const
{
    return FOwner ? FOwner->GetHost() : nullptr;
}

TKSTimeView* TKSTimeViewItem::GetTimeView() const
{
    return FOwner ? FOwner->GetTimeView() : nullptr;
}

void TKSTimeViewItem::Repaint() const
{
    if (IViewHost* const View = FInCollection ? Host() : nullptr)
        View->Repaint();
}

void TKSTimeViewItem::SetCaption(const vcl::AnsiString& Value)
{
    if (FCaption == Value)
        return;
    FCaption = Value;
    Repaint();
}

void TKSTimeViewItem::SetColor(vcl::TColor Value)
{
    if (FColor == Value)
        return;
    FColor = Value;
    if (Edited())
        Host()->SetEditorColor(Value);
    Repaint();
}

void TKSTimeViewItem::SetAllDayColor(vcl::TColor Value)
{
    if (FAllDayColor == Value)
        return;
    FAllDayColor = Value;
    Repaint();
}

void TKSTimeViewItem::SetShowReminder(bool Value)
{
    if (FShowReminder == Value)
        return;
    FShowReminder = Value;
    Repaint();
}

void TKSTimeViewItem::SetPrivateItem(bool Value)
{
    if (FPrivateItem == Value)
        return;
    FPrivateItem = Value;
    Repaint();
}

void TKSTimeViewItem::SetStartTime(vcl::TDateTime Value)
{
    if (Value != FStartTime && Value < FEndTime)
        StoreTimes(Value, FEndTime);
}

void TKSTimeViewItem::SetEndTime(vcl::TDateTime Value)
{
    if (Value != FEndTime && Value > FStartTime)
        StoreTimes(FStartTime, Value);
}

void TKSTimeViewItem::SetStartEnd(vcl::TDateTime Start, vcl::TDateTime End)
{
    if ((Start != FStartTime || End != FEndTime) && End > Start)
        StoreTimes(Start, End);
}

void TKSTimeViewItem::SetDuration(vcl::TDateTime Value)
{
    if (Value != GetDuration() && Value > 0)
        SetEndTime(FStartTime + Value);
}

void TKSTimeViewItem::MoveTo(vcl::TDateTime NewStart)
{
    if (NewStart != FStartTime)
        SetStartEnd(NewStart, NewStart + GetDuration());
}

void TKSTimeViewItem::SetAllDay(bool Value)
{
    if (FAllDay == Value)
        return;
    FlushBeforeLeavingDays(FStartTime, FEndTime);
    FAllDay = Value;
    PlacementChanged(!Value);
}

void TKSTimeViewItem::StoreTimes(vcl::TDateTime Start, vcl::TDateTime End)
{
    FlushBeforeLeavingDays(Start, End);
    FStartTime = Start;
    FEndTime = End;
    PlacementChanged(FAllDay);
}

/// An item keeps the column it had on a day it left. A layout that is still due must give it that column
/// first, and with the item as it was.
void TKSTimeViewItem::FlushBeforeLeavingDays(vcl::TDateTime Start, vcl::TDateTime End) const
{
    IViewHost* const View = FInCollection ? Host() : nullptr;
    if (!View || !View->Days().IsLayoutDue())
        return;
    for (const TKSTimeviewDay* Day : View->Days())
        if (Day->HasItem(this) && !(Start < Day->GetDate() + 1 && End > Day->GetDate())) {
            View->Days().EnsureLayout();
            return;
        }
}

namespace
{

/// The columns of the days that a change of an item touches.
struct TTouched {
    int Left = INT_MAX;
    int Right = INT_MIN;

    void AddDaysOf(const TKSTimeViewItem& Item, const TTimeViewDays& Days)
    {
        for (const TKSTimeviewDay* Day : Days)
            if (Day->HasItem(&Item)) {
                Left = std::min(Left, Day->GetExtent().Left);
                Right = std::max(Right, timeview::SaturatedInt(std::int64_t{Day->GetExtent().Left} +
                                                               Day->GetExtent().Width));
            }
    }
    bool IsEmpty() const { return Left > Right; }
};

} // namespace

/// Puts the item on its days, asks for a layout and repaints the days it was and is on; the whole view when
/// the layout picks up other changes too, or for an all-day item, which can move the whole scale.
void TKSTimeViewItem::PlacementChanged(bool WasAllDay)
{
    IViewHost* const View = FInCollection ? Host() : nullptr;
    if (!View)
        return;
    const bool ReachesFarther = FAllDay || WasAllDay || View->Days().HasPendingChanges();
    TTouched Touched;
    Touched.AddDaysOf(*this, View->Days());
    MarkDaysChanged();
    ReattachToDays();
    View->Days().CalcDisplay();
    Touched.AddDaysOf(*this, View->Days());
    if (ReachesFarther)
        View->Repaint();
    else if (!Touched.IsEmpty())
        View->RepaintDays(Touched.Left, Touched.Right);
}

bool TKSTimeViewItem::MayBeOnDays() const
{
    return FDayMarks != 0 || (FInCollection && Host() && Host()->Days().HasUnmarkedDays());
}

/// The next layout arranges the days that hold the item anew.
void TKSTimeViewItem::MarkDaysChanged()
{
    if (!MayBeOnDays())
        return;
    for (TKSTimeviewDay* Day : Host()->Days().GetAllDays())
        if (Day->HasItem(this))
            Day->FIsArranged = false;
}

void TKSTimeViewItem::ReattachToDays()
{
    IViewHost* const View = FInCollection ? Host() : nullptr;
    if (!View)
        return;
    for (TKSTimeviewDay* Day : View->Days()) {
        const bool Appears = AppearsOnDay(Day->GetDate());
        if (Appears == Day->HasItem(this))
            continue;
        if (Appears) {
            Day->Attach(this);
        } else {
            View->Days().EnsureLayout();
            Day->Detach(this);
        }
    }
}

void TKSTimeViewItem::DeleteFromDays()
{
    IViewHost* const View = FInCollection ? Host() : nullptr;
    if (!View)
        return;
    // Nobody reads the columns of an item that is being freed, and no day at all may keep it.
    if (!FLeaving)
        View->Days().EnsureLayout();
    for (TKSTimeviewDay* Day : FLeaving ? View->Days().GetAllDays() : View->Days().GetList())
        if (Day->HasItem(this))
            Day->Detach(this);
}

TKSTimeviewDay* TKSTimeViewItem::GetFirstAppearingDay() const
{
    if (IViewHost* const View = Host())
        for (TKSTimeviewDay* Day : View->Days())
            if (AppearsOnDay(Day->GetDate()))
                return Day;
    return nullptr;
}

TKSTimeviewDay* TKSTimeViewItem::GetLastAppearingDay() const
{
    if (IViewHost* const View = Host())
        for (int Index = View->Days().GetCount() - 1; Index >= 0; --Index)
            if (AppearsOnDay(View->Days().GetDay(Index)->GetDate()))
                return View->Days().GetDay(Index);
    return nullptr;
}

bool TKSTimeViewItem::Edited() const
{
    const IViewHost* const View = FInCollection ? Host() : nullptr;
    return View && View->EditedItem() == this;
}

bool TKSTimeViewItem::Selected() const
{
    const IViewHost* const View = FInCollection ? Host() : nullptr;
    return View && View->SelectedItem() == this;
}

bool TKSTimeViewItem::PrivateImageExists() const
{
    const IViewHost* const View = FInCollection ? Host() : nullptr;
    return FPrivateItem && View && View->HasPrivateImage();
}

bool TKSTimeViewItem::ReminderImageExists() const
{
    const IViewHost* const View = FInCollection ? Host() : nullptr;
    return FShowReminder && View && View->HasReminderImage();
}

void TKSTimeViewItem::SetDragOutside(bool Value)
{
    if (IViewHost* const View = FInCollection ? Host() : nullptr)
        View->Days().EnsureLayout();
    FDragOutside = Value;
    MarkDaysChanged();
}

int TKSTimeViewItem::GetColumn(int DayIndex) const
{
    if (DayIndex < 0 || DayIndex >= MaxDays)
        return 0;
    if (IViewHost* const View = FInCollection ? Host() : nullptr)
        View->Days().EnsureLayout();
    return FColumns[static_cast<std::size_t>(DayIndex)];
}

int TKSTimeViewItem::GetAllDayRow() const
{
    IViewHost* const View = FInCollection ? Host() : nullptr;
    if (!View)
        return FAllDayRow;
    View->Days().EnsureLayout();
    return StoredAllDayRow(View->Days().GetLayoutSerial());
}

bool TKSTimeViewItem::IsEqual(const TKSTimeViewItem& Other) const
{
    return FCaption == Other.FCaption && FData == Other.FData && FColor == Other.FColor &&
           FStartTime == Other.FStartTime && FEndTime == Other.FEndTime && FAllDay == Other.FAllDay &&
           FShowReminder == Other.FShowReminder;
}

void TKSTimeViewItem::Assign(const vcl::TPersistent* Source)
{
    const TKSTimeViewItem* const Item = vcl::As<TKSTimeViewItem>(static_cast<const vcl::TObject*>(Source));
    if (!Item) {
        TPersistent::Assign(Source);
        return;
    }
    if (Item == this)
        return;
    if (IViewHost* const View = Item->FInCollection ? Item->Host() : nullptr)
        View->Days().EnsureLayout();
    if (IViewHost* const View = FInCollection ? Host() : nullptr)
        View->Days().EnsureLayout();
    FColumns = Item->FColumns;
    FImageIndex = Item->FImageIndex;
    FCaption = Item->FCaption;
    FColor = Item->FColor;
    FStartTime = Item->FStartTime;
    FEndTime = Item->FEndTime;
    FData = Item->FData;
    FAllDay = Item->FAllDay;
    FAllDayColor = Item->FAllDayColor;
    FShowReminder = Item->FShowReminder;
    FPrivateItem = Item->FPrivateItem;
    FUserText = Item->FUserText;
    FUserFlag = Item->FUserFlag;
    MarkDaysChanged();
}

void TKSTimeViewItem::ReadData(vcl::TStream& Stream)
{
    // A layout that is due must still see the old times, which matters only when a day holds the item.
    if (MayBeOnDays()) {
        Host()->Days().EnsureLayout();
        MarkDaysChanged();
    }
    Stream.ReadInt32();
    FCaption = Stream.ReadCountedString();
    FStartTime = Stream.ReadDouble();
    FEndTime = Stream.ReadDouble();
    FColor = static_cast<vcl::TColor>(Stream.ReadInt32());
    FImageIndex = Stream.ReadInt32();
    FAllDay = Stream.ReadBoolean();
    FAllDayColor = static_cast<vcl::TColor>(Stream.ReadInt32());
    FShowReminder = Stream.ReadBoolean();
    FPrivateItem = Stream.ReadBoolean();
    FData = reinterpret_cast<void*>(static_cast<std::uintptr_t>(Stream.ReadDWord()));
    FUserFlag = Stream.ReadByte();
    FUserText = Stream.ReadCountedString();
}

void TKSTimeViewItem::WriteData(vcl::TStream& Stream) const
{
    Stream.WriteInt32(RecordVersion);
    Stream.WriteCountedString(FCaption);
    Stream.WriteDouble(FStartTime);
    Stream.WriteDouble(FEndTime);
    Stream.WriteInt32(FColor);
    Stream.WriteInt32(FImageIndex);
    Stream.WriteBoolean(FAllDay);
    Stream.WriteInt32(FAllDayColor);
    Stream.WriteBoolean(FShowReminder);
    Stream.WriteBoolean(FPrivateItem);
    // The format has 32 bits for the pointer, its low ones.
    Stream.WriteDWord(static_cast<std::uint32_t>(reinterpret_cast<std::uintptr_t>(FData)));
    Stream.WriteByte(FUserFlag);
    Stream.WriteCountedString(FUserText);
}

void TKSTimeViewItem::Delete()
{
    if (FLeaving)
        return;
    std::exception_ptr Failure;
    try {
        LeaveCollection();
    } catch (...) {
        Failure = std::current_exception();
    }
    FLeaving = false;
    delete this;
    if (Failure)
        std::rethrow_exception(Failure);
}

void TKSTimeViewItem::BeforeDestruction()
{
    // Nothing may be thrown out of a delete expression; Delete lets it through.
    IViewHost* const View = Host();
    const TKSTimeViewItems* const Collection = FOwner;
    try {
        LeaveCollection();
    } catch (...) {
        if (View && FOwner == Collection)
            View->ReportFailure(std::current_exception());
    }
    FLeaving = true;
}

/// Leaves editor, selection, days and collection, and tells the program. The handlers may free the view; the
/// collection then takes FOwner away.
void TKSTimeViewItem::LeaveCollection()
{
    FLeaving = true;
    IViewHost* const View = FInCollection ? Host() : nullptr;
    // Each step runs whatever the one before has thrown; the first failure comes out at the end.
    std::exception_ptr Failure;
    const auto Step = [&Failure](auto&& Action) {
        try {
            Action();
        } catch (...) {
            if (!Failure)
                Failure = std::current_exception();
        }
    };
    Step([&] {
        if (View && Edited() && FEditorGuard == 0)
            View->HideItemEditor(true);
    });
    Step([&] {
        if (FOwner && View && Selected())
            View->ClearSelectedItem();
    });
    Step([&] {
        if (FOwner && View)
            View->ItemDeleting(this);
    });
    if (FOwner && FInCollection)
        FOwner->Detach(this);
    if (Failure)
        std::rethrow_exception(Failure);
}
