#pragma once

#include <array>
#include <cstdint>
#include <new>

#include "KSTimeView/model/TimeViewHost.h"
#include "vcl/classes/Persistent.h"
#include "vcl/classes/Stream.h"

/// One appointment of a time view.
///
///     TKSTimeViewItem* Item = View->GetItems()->Add("Dentist", Date + 0.375, Date + 0.4375, false);
///     Item->SetShowReminder(true);
///
/// The collection that made it owns it. An item constructed on its own is detached: it can be filled and
/// assigned, but touches no view. Setters of an attached item put it on the days it now appears on, lay the
/// view out and repaint it; values that do not change anything do nothing.
class TKSTimeViewItem : public vcl::TPersistent
{
    VCL_CLASS
public:
    /// Days whose column numbers an item keeps itself; see TKSTimeviewDay for days beyond them.
    static constexpr int MaxDays = 35;

    /// A detached item. Owner may be null.
    explicit TKSTimeViewItem(TKSTimeViewItems* Owner);
    ~TKSTimeViewItem() override;

    /// Freeing an item that is being freed already (in OnDeletion) does nothing.
    static void operator delete(TKSTimeViewItem* Item, std::destroying_delete_t);
    static void operator delete(void* Memory) { ::operator delete(Memory); }
    static void* operator new(std::size_t Size) { return ::operator new(Size); }

    // Text and looks
    const vcl::AnsiString& GetCaption() const { return FCaption; }
    void SetCaption(const vcl::AnsiString& Value);
    /// Body of a timed item.
    vcl::TColor GetColor() const { return FColor; }
    void SetColor(vcl::TColor Value);
    /// Body of the item in the all-day area.
    vcl::TColor GetAllDayColor() const { return FAllDayColor; }
    void SetAllDayColor(vcl::TColor Value);
    bool GetShowReminder() const { return FShowReminder; }
    void SetShowReminder(bool Value);
    bool GetPrivateItem() const { return FPrivateItem; }
    void SetPrivateItem(bool Value);

    // Times
    /// Ignored unless earlier than the end.
    vcl::TDateTime GetStartTime() const { return FStartTime; }
    void SetStartTime(vcl::TDateTime Value);
    /// Ignored unless later than the start.
    vcl::TDateTime GetEndTime() const { return FEndTime; }
    void SetEndTime(vcl::TDateTime Value);
    /// Both at once; ignored unless End is later than Start.
    void SetStartEnd(vcl::TDateTime Start, vcl::TDateTime End);
    /// Days; moves the end. Ignored unless above 0.
    vcl::TDateTime GetDuration() const { return FEndTime - FStartTime; }
    void SetDuration(vcl::TDateTime Value);
    /// Keeps the duration.
    void MoveTo(vcl::TDateTime NewStart);
    /// Shown in the all-day area instead of on the time scale.
    bool GetAllDay() const { return FAllDay; }
    void SetAllDay(bool Value);

    // Values kept for the program; the view does not use them.
    int GetImageIndex() const { return FImageIndex; }
    void SetImageIndex(int Value) { FImageIndex = Value; }
    void* GetData() const { return FData; }
    void SetData(void* Value) { FData = Value; }
    const vcl::AnsiString& GetUserText() const { return FUserText; }
    void SetUserText(const vcl::AnsiString& Value) { FUserText = Value; }
    std::uint8_t GetUserFlag() const { return FUserFlag; }
    void SetUserFlag(std::uint8_t Value) { FUserFlag = Value; }

    // Days
    /// Day is a whole date. An item that ends at midnight does not appear on the next day; all-day items
    /// follow the same rule.
    bool AppearsOnDay(vcl::TDateTime Day) const { return FStartTime < Day + 1 && FEndTime > Day; }
    /// The first and last of the view's days it appears on, null when none.
    TKSTimeviewDay* GetFirstAppearingDay() const;
    TKSTimeviewDay* GetLastAppearingDay() const;
    /// Puts the item on the days it appears on and takes it from the others. Does not lay out.
    void ReattachToDays();
    void DeleteFromDays();

    // State in the view
    bool IsInCollection() const { return FInCollection; }
    /// In the collection and not being freed.
    bool IsStaying() const { return FInCollection && !FLeaving; }
    TKSTimeViewItems* GetCollection() const { return FOwner; }
    /// Null without a collection.
    TKSTimeView* GetTimeView() const;
    /// Being edited in place.
    bool Edited() const;
    bool Selected() const;
    /// True when the view shows its image for private items, or for reminders, on this item.
    bool PrivateImageExists() const;
    bool ReminderImageExists() const;
    /// Travels as a drag object: days lay it over their full width. Setting it lays nothing out.
    bool GetDragOutside() const { return FDragOutside; }
    void SetDragOutside(bool Value);
    /// While not 0, freeing the item leaves the view's in-place editor open.
    std::uint8_t GetEditorGuard() const { return FEditorGuard; }
    void SetEditorGuard(std::uint8_t Value) { FEditorGuard = Value; }

    // Layout
    /// Column in the day at a position, 0..MaxDays-1; 0 elsewhere.
    int GetColumn(int DayIndex) const;
    /// Row in the all-day area; -1: none.
    int GetAllDayRow() const;

    /// Compares caption, data, colour, times, all-day and reminder flag; the rest is left out on purpose.
    bool IsEqual(const TKSTimeViewItem& Other) const;
    /// Copies everything but place and owner, without any rule for times, laying out or repainting.
    void Assign(const vcl::TPersistent* Source) override;
    /// Frees the item. What an OnDeletion handler throws comes out here, after the item is gone.
    void Delete();

    /// The record of one item, read straight into the fields. Raises EReadError when it is cut short; the
    /// fields read so far keep their new values.
    void ReadData(vcl::TStream& Stream);
    void WriteData(vcl::TStream& Stream) const;

    void BeforeDestruction() override;

    /// Numbers items in the order they were made.
    std::uint64_t GetSerial() const { return FSerial; }

private:
    friend class TKSTimeViewItems;
    friend class TKSTimeviewDay;

    timeview::IViewHost* Host() const;
    void StoreTimes(vcl::TDateTime Start, vcl::TDateTime End);
    void FlushBeforeLeavingDays(vcl::TDateTime Start, vcl::TDateTime End) const;
    void PlacementChanged(bool WasAllDay);
    void MarkDaysChanged();
    bool MayBeOnDays() const;
    void Repaint() const;
    void LeaveCollection();

    // Layout results as the days write them.
    void StoreColumn(int DayIndex, int Column) { FColumns[static_cast<std::size_t>(DayIndex)] = Column; }
    int StoredAllDayRow(std::uint32_t LayoutSerial) const
    {
        return FAllDayRowSerial == LayoutSerial ? FAllDayRow : -1;
    }
    void StoreAllDayRow(int Row, std::uint32_t LayoutSerial)
    {
        FAllDayRow = Row;
        FAllDayRowSerial = LayoutSerial;
    }

    TKSTimeViewItems* FOwner;
    std::uint64_t FSerial;
    vcl::AnsiString FCaption;
    vcl::AnsiString FUserText;
    vcl::TDateTime FStartTime;
    vcl::TDateTime FEndTime;
    void* FData = nullptr;
    // One bit for each day that holds the item, as far as days have bits (see TTimeViewDays::DayMade).
    std::uint64_t FDayMarks = 0;
    std::array<std::int32_t, MaxDays> FColumns{};
    std::int32_t FAllDayRow = 0;
    // The layout that placed the row: a layout takes all rows away by counting on, not by visiting all items.
    std::uint32_t FAllDayRowSerial = 0;
    std::int32_t FImageIndex = -1;
    vcl::TColor FColor = vcl::clWindow;
    vcl::TColor FAllDayColor = vcl::clBtnFace;
    bool FInCollection = false;
    bool FLeaving = false; // from the start of its destruction on
    bool FDragOutside = false;
    bool FAllDay = false;
    bool FShowReminder = false;
    bool FPrivateItem = false;
    std::uint8_t FEditorGuard = 0;
    std::uint8_t FUserFlag = 0;
};
