#pragma once

#include <cstdint>
#include <vector>

#include "KSTimeView/layout/TimeScale.h"
#include "KSTimeView/model/TimeViewHost.h"
#include "vcl/system/Liveness.h"

namespace timeview
{

/// The view's measures and its vertical scale.
struct TViewFrame {
    TViewGeometry Geometry;
    TTimeScale Scale;
};

/// The days of a time view in the order they stand side by side, and the layout of the view.
///
/// The layout is computed when a result is next read (EnsureLayout is the one door), not when CalcDisplay
/// asks for it. Nobody can tell the difference, because
///  - CalcDisplay keeps the sizes of the moment it was called, so changing one later does not matter;
///  - BeginUpdate, DestroyWnd, changes to the list of days, items leaving a day and raw writes of items
///    (Assign, ReadData, DragOutside) compute what is due before they change anything;
///  - what else changes between two layouts, adding items and setting times, is placed entirely by the
/// A layout arranges the days on which something has changed since the last one.
///  second.
class TTimeViewDays
{
public:
    static constexpr int MaxRange = 31;

    explicit TTimeViewDays(IViewHost& Host);
    ~TTimeViewDays();
    TTimeViewDays(const TTimeViewDays&) = delete;
    TTimeViewDays& operator=(const TTimeViewDays&) = delete;

    IViewHost& Host() const { return FHost; }

    // The list. An index outside 0..Count-1 raises Exception "Index out of range".
    int GetCount() const { return static_cast<int>(FDays.size()); }
    TKSTimeviewDay* GetDay(int Index) const;
    /// Replaces the entry; EInvalidOperation for null. The day that stood there is the caller's to free.
    void SetDay(int Index, TKSTimeviewDay* Day);
    const std::vector<TKSTimeviewDay*>& GetList() const { return FDays; }
    std::vector<TKSTimeviewDay*>::const_iterator begin() const { return FDays.begin(); }
    std::vector<TKSTimeviewDay*>::const_iterator end() const { return FDays.end(); }

    /// Counts changes of the list: who goes through the days while events are raised stops when it changes.
    std::uint32_t GetRevision() const { return FRevision; }

    /// First date of the range last set; adding an earlier day does not change it.
    vcl::TDateTime GetDate() const { return FDate; }
    /// Before the days exist: what AllocDays starts from.
    void SetFirstDate(vcl::TDateTime Date) { FDate = Date; }
    void AllocDays(int Count);
    void FreeDays();
    /// Replaces all days unless date and count (clamped to 1..31) are what they were. Raises OnNewDay.
    void SetDateRange(vcl::TDateTime Date, int Count);
    /// The new day, null when there is one of that date. No upper limit. Raises OnNewDay.
    TKSTimeviewDay* AddDate(vcl::TDateTime Date);
    /// The last day stays.
    void DeleteDate(vcl::TDateTime Date);
    void AddDatesRange(vcl::TDateTime First, vcl::TDateTime Last);
    void DeleteDatesRange(vcl::TDateTime First, vcl::TDateTime Last);
    bool DayExists(vcl::TDateTime Date) const { return FindExact(Date) >= 0; }
    /// Exception "Invalid date" when Date is negative; null when there is none.
    TKSTimeviewDay* GetDayFromDate(vcl::TDateTime Date) const;
    /// The day under a pixel column; left of the ruler's width the first one (even when the ruler is hidden),
    /// at or right of the client width the last one.
    TKSTimeviewDay* GetOverDay(int X);

    // Layout
    /// Asks for a layout: nothing happens without a window or while the items are being updated.
    void CalcDisplay();
    bool IsLayoutDue() const { return FIsDue; }
    /// The next layout will show more than what the change under way touches: a layout is due already, days
    /// were written to without one, or the view has changed since the last one.
    bool HasPendingChanges() const;
    void EnsureLayout()
    {
        if (FIsDue)
            Layout();
    }
    /// Counts layouts.
    std::uint32_t GetLayoutSerial() const { return FLayoutSerial; }
    /// Height of the all-day area, whether shown or not; 0 before the first layout.
    int GetTopSpace();
    /// What all rectangles are computed from, as it is now.
    TViewFrame Frame();
    /// Lays out everything at every CalcDisplay, instead of what has changed when a result is read. The
    /// results are the same; for comparing.
    void SetEager(bool Value) { FIsEager = Value; }

    // For the days
    /// Every day of this view says so while it lives, also one that is not in the list. The result is a bit
    /// that no other day uses, or -1 when all are taken.
    int DayMade(TKSTimeviewDay* Day);
    void DayFreed(TKSTimeviewDay* Day, int Mark);
    const std::vector<TKSTimeviewDay*>& GetAllDays() const { return FAllDays; }
    bool HasUnmarkedDays() const { return FAllDays.size() > MarkCount; }

private:
    /// What a layout reads of the view, as it was when the layout was asked for.
    struct TLayoutInput {
        int ClientWidth = 0;
        int RulerWidth = 0;
        int RulerMarkHeight = 0;
        bool ShowRuler = true;
        bool operator==(const TLayoutInput&) const = default;
    };

    static constexpr std::size_t MarkCount = 64;

    int FindExact(vcl::TDateTime Date) const;
    void Insert(TKSTimeviewDay* Day);
    void Renumber();
    void DaysChanged();
    void AnnounceNewDays();
    void Layout();
    TLayoutInput CurrentInput() const;

    IViewHost& FHost;
    std::vector<TKSTimeviewDay*> FDays;
    std::vector<TKSTimeviewDay*> FAllDays;
    vcl::TDateTime FDate = 0;
    std::uint64_t FFreeMarks = ~std::uint64_t{0};
    std::uint32_t FAllocations = 0; // counts wholesale replacements of the days
    std::uint32_t FRevision = 0;
    std::uint32_t FLayoutSerial = 0;
    int FTopSpace = 0;
    TLayoutInput FInput;
    bool FIsDue = false;
    bool FIsEager = false;
    vcl::TLiveness FLife;
};

} // namespace timeview
