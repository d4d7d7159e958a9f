#pragma once

#include "KSTimeView/model/ItemSequence.h"
#include "KSTimeView/model/TimeViewItem.h"
#include "vcl/system/Liveness.h"

/// The items of a time view, in the order they were added. The view owns the collection, the collection its
/// items.
///
///     TKSTimeViewItems* Items = View->GetItems();
///     Items->BeginUpdate();
///     for (const TMeeting& Meeting : Meetings)
///         Items->Add(Meeting.Title, Meeting.Start, Meeting.End, false);
///     Items->EndUpdate();
class TKSTimeViewItems : public vcl::TPersistent
{
    VCL_CLASS
public:
    explicit TKSTimeViewItems(timeview::IViewHost* Host);
    ~TKSTimeViewItems() override;

    int GetCount() const { return FList.GetCount(); }
    /// EListError outside 0..Count-1. Writing assigns the given item to the one at Index.
    TKSTimeViewItem* GetItem(int Index) const;
    void SetItem(int Index, const TKSTimeViewItem* Value) { GetItem(Index)->Assign(Value); }
    TKSTimeViewItem* operator[](int Index) const { return GetItem(Index); }
    /// Null when there are none.
    TKSTimeViewItem* FirstItem() const { return FList.IsEmpty() ? nullptr : FList[0]; }
    TKSTimeViewItem* LastItem() const { return FList.IsEmpty() ? nullptr : FList[FList.GetCount() - 1]; }
    timeview::TItemSequence::TIterator begin() const { return FList.begin(); }
    timeview::TItemSequence::TIterator end() const { return FList.end(); }

    /// Adds an item. Exception "Invalid time range" when a time is negative; an end before the start is
    /// accepted here, on purpose.
    TKSTimeViewItem* Add(const vcl::AnsiString& Caption, vcl::TDateTime StartTime, vcl::TDateTime EndTime,
                         bool AllDay);
    TKSTimeViewItem* AddObject(const vcl::AnsiString& Caption, vcl::TDateTime StartTime,
                               vcl::TDateTime EndTime, bool AllDay, void* Data);
    void Delete(TKSTimeViewItem* Item);
    void Clear();
    /// As Clear, for a view on its way out: nothing is laid out any more, and what handlers throw is reported
    /// and stops nothing.
    void FreeItems();

    /// Nested; between them nothing is laid out or repainted.
    void BeginUpdate();
    void EndUpdate();
    bool IsUpdating() const { return FUpdateCount > 0; }
    const vcl::TLiveness& GetLiveness() const { return FLife; }

    TKSTimeView* GetTimeView() const { return FHost ? FHost->View() : nullptr; }
    /// The view's window, made when there is none.
    vcl::IWindow* GetHandle() const { return FHost ? FHost->Handle() : nullptr; }
    void ReattachToDays();

    /// Copies the items of another collection through the stream format. They are on no day until
    /// ReattachToDays.
    void Assign(const vcl::TPersistent* Source) override;
    void WriteData(vcl::TStream& Stream) const;
    /// Replaces the items. Raises EReadError when the stream is cut short; items read so far stay, the last
    /// one with as much of its record as there was. The items are on no day until ReattachToDays.
    void ReadData(vcl::TStream& Stream);
    void DefineProperties(vcl::TFiler& Filer) override;

    timeview::IViewHost* GetHost() const { return FHost; }

private:
    friend class TKSTimeViewItem;

    bool DiffersFrom(const TKSTimeViewItems& Ancestor) const;
    /// The first item that is not being freed.
    TKSTimeViewItem* FirstStaying() const;
    /// Takes an item from days and list, lays out and repaints.
    void Detach(TKSTimeViewItem* Item);

    timeview::IViewHost* FHost;
    timeview::TItemSequence FList;
    int FUpdateCount = 0;
    vcl::TLiveness FLife;
};
