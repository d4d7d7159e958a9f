#include "KSTimeView/model/TimeViewDays.h"

#include <algorithm>
#include <bit>

#include "KSTimeView/layout/DayColumns.h"
#include "KSTimeView/model/TimeViewItems.h"
#include "KSTimeView/model/TimeviewDay.h"
#include "vcl/classes/Updating.h"
#include "vcl/system/Exception.h"

namespace timeview
{

TTimeViewDays::TTimeViewDays(IViewHost& Host) : FHost(Host)
{
}

TTimeViewDays::~TTimeViewDays()
{
    FreeDays();
    for (TKSTimeviewDay* Day : FAllDays) {
        Day->DetachAll();
        Day->FOwner = nullptr;
    }
}

TKSTimeviewDay* TTimeViewDays::GetDay(int Index) const
{
    if (Index < 0 || Index >= GetCount())
        throw vcl::Exception("Index out of range");
    return FDays[static_cast<std::size_t>(Index)];
}

void TTimeViewDays::SetDay(int Index, TKSTimeviewDay* Day)
{
    if (GetDay(Index) == Day)
        return;
    if (!Day)
        throw vcl::EInvalidOperation("There is no day to put into the list");
    EnsureLayout();
    GetDay(Index)->FIndex = -1;
    FDays[static_cast<std::size_t>(Index)] = Day;
    Renumber();
}

/// A day that stands in the list twice (while two are being exchanged) has its first position.
void TTimeViewDays::Renumber()
{
    ++FRevision;
    for (int Index = GetCount() - 1; Index >= 0; --Index) {
        TKSTimeviewDay& Day = *FDays[static_cast<std::size_t>(Index)];
        // Items keep columns by position.
        Day.FIsArranged = Day.FIsArranged && Day.FIndex == Index;
        Day.FIndex = Index;
    }
}

void TTimeViewDays::AllocDays(int Count)
{
    ++FAllocations;
    for (int Index = 0; Index < Count; ++Index)
        FDays.push_back(vcl::New<TKSTimeviewDay>(this, FDate + Index));
    Renumber();
}

void TTimeViewDays::FreeDays()
{
    std::sort(FDays.begin(), FDays.end());
    FDays.erase(std::unique(FDays.begin(), FDays.end()), FDays.end());
    for (TKSTimeviewDay* Day : FDays)
        delete Day;
    FDays.clear();
    ++FRevision;
}

void TTimeViewDays::SetDateRange(vcl::TDateTime Date, int Count)
{
    Count = std::clamp(Count, 1, MaxRange);
    if (Date == FDate && Count == GetCount())
        return;
    const vcl::TAliveGuard Witness(FLife);
    FHost.HideItemEditor(true);
    if (!Witness.IsAlive())
        return;
    FDate = Date;
    vcl::WhileUpdating(FHost.Items(), [&] {
        FreeDays();
        AllocDays(Count);
        FHost.Items().ReattachToDays();
        AnnounceNewDays();
    });
}

/// A handler may change the days: those that are gone are left out, and days that replaced all of them have
/// been announced already.
void TTimeViewDays::AnnounceNewDays()
{
    if (!FHost.WantsNewDays())
        return;
    const vcl::TAliveGuard Witness(FLife);
    const std::uint32_t Allocation = FAllocations;
    for (TKSTimeviewDay* Day : std::vector<TKSTimeviewDay*>(FDays)) {
        if (std::find(FDays.begin(), FDays.end(), Day) != FDays.end())
            FHost.NewDay(Day);
        if (!Witness.IsAlive() || FAllocations != Allocation)
            return;
    }
}

int TTimeViewDays::FindExact(vcl::TDateTime Date) const
{
    for (int Index = 0; Index < GetCount(); ++Index)
        if (FDays[static_cast<std::size_t>(Index)]->GetDate() == Date)
            return Index;
    return -1;
}

void TTimeViewDays::Insert(TKSTimeviewDay* Day)
{
    const auto Place = std::find_if(FDays.begin(), FDays.end(), [Day](const TKSTimeviewDay* Other) {
        return Other->GetDate() > Day->GetDate();
    });
    FDays.insert(Place, Day);
    Renumber();
}

TKSTimeviewDay* TTimeViewDays::AddDate(vcl::TDateTime Date)
{
    if (DayExists(Date))
        return nullptr;
    EnsureLayout();
    TKSTimeviewDay* const Day = vcl::New<TKSTimeviewDay>(this, Date);
    Insert(Day);
    DaysChanged();
    const vcl::TAliveGuard Witness(FLife);
    FHost.NewDay(Day);
    const bool IsThere = Witness.IsAlive() && std::find(FDays.begin(), FDays.end(), Day) != FDays.end();
    return IsThere ? Day : nullptr;
}

void TTimeViewDays::DeleteDate(vcl::TDateTime Date)
{
    const int Index = FindExact(Date);
    if (Index < 0 || GetCount() == 1)
        return;
    EnsureLayout();
    TKSTimeviewDay* const Day = FDays[static_cast<std::size_t>(Index)];
    FDays.erase(FDays.begin() + Index);
    Renumber();
    if (std::find(FDays.begin(), FDays.end(), Day) == FDays.end())
        delete Day;
    DaysChanged();
}

void TTimeViewDays::DaysChanged()
{
    FHost.Items().ReattachToDays();
    CalcDisplay();
    FHost.UpdateScrollBar();
    FHost.Repaint();
}

void TTimeViewDays::AddDatesRange(vcl::TDateTime First, vcl::TDateTime Last)
{
    const vcl::TAliveGuard Witness(FLife);
    // Dates so far away that the next one is the same number would never end.
    for (vcl::TDateTime Date = First; Date <= Last && Witness.IsAlive(); Date += 1) {
        AddDate(Date);
        if (Date + 1 == Date)
            return;
    }
}

void TTimeViewDays::DeleteDatesRange(vcl::TDateTime First, vcl::TDateTime Last)
{
    for (vcl::TDateTime Date = First; Date <= Last; Date += 1) {
        DeleteDate(Date);
        if (Date + 1 == Date)
            return;
    }
}

TKSTimeviewDay* TTimeViewDays::GetDayFromDate(vcl::TDateTime Date) const
{
    if (Date < 0)
        throw vcl::Exception("Invalid date");
    for (TKSTimeviewDay* Day : FDays)
        if (Day->GetDate() <= Date && Date < Day->GetDate() + 1)
            return Day;
    return nullptr;
}

TKSTimeviewDay* TTimeViewDays::GetOverDay(int X)
{
    const TViewGeometry Geometry = FHost.Geometry();
    if (FDays.empty())
        return nullptr;
    if (X < Geometry.RulerWidth)
        return FDays.front();
    if (X >= Geometry.ClientWidth)
        return FDays.back();
    EnsureLayout();
    for (TKSTimeviewDay* Day : FDays)
        if (Day->FExtent.Left <= X && X <= std::int64_t{Day->FExtent.Left} + Day->FExtent.Width)
            return Day;
    return nullptr;
}

void TTimeViewDays::CalcDisplay()
{
    if (!FHost.HasWindow() || FHost.Items().IsUpdating())
        return;
    FInput = CurrentInput();
    FIsDue = true;
    if (FIsEager)
        EnsureLayout();
}

TTimeViewDays::TLayoutInput TTimeViewDays::CurrentInput() const
{
    const TViewGeometry Geometry = FHost.Geometry();
    return {Geometry.ClientWidth, Geometry.RulerWidth, Geometry.RulerMarkHeight, Geometry.ShowRuler};
}

bool TTimeViewDays::HasPendingChanges() const
{
    return FIsDue || FInput != CurrentInput() ||
           std::any_of(FDays.begin(), FDays.end(),
                       [](const TKSTimeviewDay* Day) { return !Day->FIsArranged; });
}

void TTimeViewDays::Layout()
{
    FIsDue = false;
    ++FLayoutSerial;
    const std::vector<TDayColumn> Columns =
        DivideWidth(FInput.ClientWidth, FInput.ShowRuler, FInput.RulerWidth, GetCount());
    int LargestAllDayCount = 0;
    for (std::size_t Index = 0; Index < FDays.size(); ++Index) {
        FDays[Index]->Arrange(Columns[Index], FIsEager);
        LargestAllDayCount = std::max(LargestAllDayCount, FDays[Index]->FAllDayCount);
    }
    // One spare row stays below the all-day items.
    FTopSpace = SaturatedInt((std::int64_t{std::max(LargestAllDayCount, 1)} + 1) * FInput.RulerMarkHeight);
}

int TTimeViewDays::GetTopSpace()
{
    EnsureLayout();
    return FTopSpace;
}

TViewFrame TTimeViewDays::Frame()
{
    TViewFrame Result;
    Result.Geometry = FHost.Geometry();
    Result.Scale.TotalHeight = Result.Geometry.TotalScaleHeight;
    Result.Scale.CaptionHeight = Result.Geometry.CaptionHeight;
    Result.Scale.TopSpace = Result.Geometry.ShowTopSpace ? GetTopSpace() : 0;
    Result.Scale.ScrollOffset = Result.Geometry.ScrollOffset;
    return Result;
}

int TTimeViewDays::DayMade(TKSTimeviewDay* Day)
{
    FAllDays.push_back(Day);
    if (FFreeMarks == 0)
        return -1;
    const int Mark = std::countr_zero(FFreeMarks);
    FFreeMarks &= FFreeMarks - 1;
    return Mark;
}

void TTimeViewDays::DayFreed(TKSTimeviewDay* Day, int Mark)
{
    std::erase(FAllDays, Day);
    if (Mark >= 0)
        FFreeMarks |= std::uint64_t{1} << Mark;
}

} // namespace timeview
