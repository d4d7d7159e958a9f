#pragma once

#include <unordered_map>
#include <unordered_set>

#include "KSTimeView/layout/DayColumns.h"
#include "KSTimeView/layout/TimeScale.h"
#include "KSTimeView/model/ItemSequence.h"
#include "KSTimeView/model/TimeViewHost.h"
#include "vcl/system/Object.h"

/// One day of a time view: its column, its working hours and the items that appear on it, in the order they
/// were attached. The view owns its days, nobody here owns items.
///
/// The first 35 days of a view keep the column numbers of their items in the items; days beyond that keep
/// them themselves, so they look and behave like any other.
class TKSTimeviewDay : public vcl::TObject
{
    VCL_CLASS
public:
    /// A day that is not in the view's list yet; View may be null.
    TKSTimeviewDay(timeview::TTimeViewDays* View, vcl::TDateTime Date);
    ~TKSTimeviewDay() override;

    vcl::TDateTime GetDate() const { return FDate; }
    /// Null without a view.
    TKSTimeView* GetTimeView() const;
    timeview::IViewHost* GetHost() const;
    /// Position in the view's list, -1 when it is not in it.
    int GetIndex() const { return FIndex; }

    // Working hours, times of day. A begin that is not before the end (or the other way round) is ignored.
    bool GetShowWorkingHours() const { return FShowWorkingHours; }
    void SetShowWorkingHours(bool Value);
    vcl::TTime GetBeginWork() const { return FBeginWork; }
    void SetBeginWork(vcl::TTime Value);
    vcl::TTime GetEndWork() const { return FEndWork; }
    void SetEndWork(vcl::TTime Value);

    // Items
    int GetCount() const { return FList.GetCount(); }
    /// Exception "Index out of range" outside 0..Count-1. Writing assigns the given item to the one at Index.
    TKSTimeViewItem* GetItem(int Index) const;
    void SetItem(int Index, const TKSTimeViewItem* Value);
    timeview::TItemSequence::TIterator begin() const { return FList.begin(); }
    timeview::TItemSequence::TIterator end() const { return FList.end(); }
    bool HasItem(const TKSTimeViewItem* Item) const;
    /// The smallest start of the items, but at most 1.0, and the largest end: both are dates with times, so
    /// the first is 1.0 for any item after the first day of 1900.
    vcl::TDateTime GetItemsStart() const;
    vcl::TDateTime GetItemsEnd() const;

    // Layout; pixels in the view's client area
    /// Left and width as last laid out, without waiting for a layout that is due.
    const timeview::TDayColumn& GetExtent() const { return FExtent; }
    int GetLeft() const;
    int GetWidth() const;
    /// Columns of timed items side by side: at least 1 once laid out.
    int GetColumnCount() const;
    int GetAllDayCount() const;
    /// An item's column in this day.
    int GetColumn(const TKSTimeViewItem* Item) const;
    vcl::TRect GetClientRect() const;
    /// Lays out this day alone: columns of its timed items, rows of its all-day items that have none.
    void CalcItemsDisplay();
    /// The lowest row that no other all-day item of this day has.
    int FindFreeIndexForItem(const TKSTimeViewItem* Item) const;
    /// Empty while the view has no window.
    vcl::TRect GetItemRect(const TKSTimeViewItem* Item) const;
    /// The same from a frame taken before, for those who ask for many.
    vcl::TRect GetItemRect(const TKSTimeViewItem* Item, const timeview::TViewFrame& Frame) const;
    /// Top and bottom of a timed item alone.
    struct TRows {
        int Top = 0;
        int Bottom = 0;
    };
    TRows GetItemRows(const TKSTimeViewItem& Item, const timeview::TTimeScale& Scale) const;
    /// The union of all items' rectangles.
    vcl::TRect GetItemsRect() const;
    /// The first item whose rectangle, 4 pixels higher above and below, holds the point: an all-day item
    /// inside the all-day area, a timed one below. Null when none.
    TKSTimeViewItem* GetItemAt(int X, int Y) const;

    /// Repaints the column unless the items are being updated.
    void Invalidate();
    /// Paints the day, or one item of it, on the view's canvas.
    void Paint();
    void DrawItem(TKSTimeViewItem* Item);

private:
    friend class TKSTimeViewItem;
    friend class timeview::TTimeViewDays;

    timeview::IViewHost* Host() const { return GetHost(); }
    bool KeepsColumns() const;
    void Attach(TKSTimeViewItem* Item);
    void Detach(TKSTimeViewItem* Item);
    void DetachAll();
    void Arrange(const timeview::TDayColumn& Extent, bool Anew);
    void ArrangeItems();
    void ArrangeAllDayItems();
    void ArrangeTimedItems();
    int StoredColumn(const TKSTimeViewItem* Item) const;
    void StoreColumn(TKSTimeViewItem* Item, int Column);
    vcl::TRect AllDayRect(const TKSTimeViewItem& Item, const timeview::TViewGeometry& Geometry) const;
    vcl::TRect TimedRect(const TKSTimeViewItem& Item, const timeview::TViewFrame& Frame) const;

    timeview::TItemSequence FList;
    timeview::TTimeViewDays* FOwner;
    vcl::TDateTime FDate;
    timeview::TDayColumn FExtent;
    int FIndex = -1;
    int FMark;                // the bit that items on this day carry, -1 when there was none left
    bool FIsArranged = false; // columns are those of the items as they are
    bool FShowWorkingHours = false;
    vcl::TTime FBeginWork = 8.0 / 24;
    vcl::TTime FEndWork = 17.5 / 24;
    int FColumnCount = 0;
    int FAllDayCount = 0;
    std::unordered_map<const TKSTimeViewItem*, int> FColumns; // for days beyond those the items know
    std::unordered_set<const TKSTimeViewItem*> FMembers;      // for days without a mark
};
