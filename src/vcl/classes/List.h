#pragma once

#include <algorithm>
#include <cstddef>
#include <unordered_set>
#include <utility>
#include <vector>

#include "vcl/classes/QuickSort.h"
#include "vcl/system/Exception.h"
#include "vcl/system/Object.h"

namespace vcl
{

/// How TList::Assign joins two lists: the source alone; what is in both; what is in either; what is in one
/// only; what only this list has; what only the source has.
enum class TListAssignOp { laCopy, laAnd, laOr, laXor, laSrcUnique, laDestUnique };

/// Raises EListError "List index out of bounds (Index)".
[[noreturn]] void RaiseListIndexError(int Index);
[[noreturn]] void RaiseListCountError(int Count);
[[noreturn]] void RaiseListCapacityError(int Capacity);

/// An ordered list of pointers, which it does not own. Null is an element like any other.
///
/// An index outside 0..Count - 1 raises EListError. Elements are found by address, one after the other.
template <class T>
class TList : public TObject
{
public:
    using TIterator = typename std::vector<T*>::const_iterator;

    TList() = default;

    int GetCount() const { return static_cast<int>(FItems.size()); }
    /// Appends nulls or cuts off the end.
    void SetCount(int Count)
    {
        if (Count < 0)
            RaiseListCountError(Count);
        FItems.resize(static_cast<std::size_t>(Count), nullptr);
    }
    bool IsEmpty() const { return FItems.empty(); }

    /// Elements there is room for without growing; EListError below Count.
    int GetCapacity() const { return static_cast<int>(FItems.capacity()); }
    void SetCapacity(int Capacity)
    {
        if (Capacity < GetCount())
            RaiseListCapacityError(Capacity);
        std::vector<T*> Items;
        Items.reserve(static_cast<std::size_t>(Capacity));
        Items.assign(FItems.begin(), FItems.end());
        FItems = std::move(Items);
    }

    T* GetItem(int Index) const { return FItems[Checked(Index)]; }
    void SetItem(int Index, T* Item) { FItems[Checked(Index)] = Item; }
    T* operator[](int Index) const { return GetItem(Index); }
    /// EListError when the list is empty.
    T* First() const { return GetItem(0); }
    T* Last() const { return GetItem(GetCount() - 1); }

    /// Appends and returns the index.
    int Add(T* Item)
    {
        FItems.push_back(Item);
        return GetCount() - 1;
    }
    /// Index may be Count.
    void Insert(int Index, T* Item)
    {
        if (Index < 0 || Index > GetCount())
            RaiseListIndexError(Index);
        FItems.insert(FItems.begin() + Index, Item);
    }
    void Delete(int Index) { FItems.erase(FItems.begin() + static_cast<std::ptrdiff_t>(Checked(Index))); }
    /// Takes the first occurrence out and returns the index it had, or -1.
    int Remove(T* Item)
    {
        const int Index = IndexOf(Item);
        if (Index >= 0)
            Delete(Index);
        return Index;
    }
    /// The same, returning Item, or null when it is not in the list.
    T* Extract(T* Item) { return Remove(Item) >= 0 ? Item : nullptr; }
    void Clear() { std::vector<T*>().swap(FItems); }
    /// Takes the nulls out.
    void Pack() { std::erase(FItems, nullptr); }

    /// Index of the first occurrence, or -1.
    int IndexOf(const T* Item) const
    {
        const auto Found = std::find(FItems.begin(), FItems.end(), Item);
        return Found == FItems.end() ? -1 : static_cast<int>(Found - FItems.begin());
    }
    bool Contains(const T* Item) const { return IndexOf(Item) >= 0; }

    void Exchange(int Index1, int Index2)
    {
        const std::size_t Place1 = Checked(Index1);
        const std::size_t Place2 = Checked(Index2);
        std::swap(FItems[Place1], FItems[Place2]);
    }
    /// Takes an element out and puts it in again so that it stands at NewIndex.
    void Move(int CurIndex, int NewIndex)
    {
        if (CurIndex == NewIndex)
            return;
        const auto From = FItems.begin() + static_cast<std::ptrdiff_t>(Checked(CurIndex));
        const auto To = FItems.begin() + static_cast<std::ptrdiff_t>(Checked(NewIndex));
        if (From < To)
            std::rotate(From, From + 1, To + 1);
        else
            std::rotate(To, From, From + 1);
    }

    /// Sorts with a quicksort, which is not stable. Compare(Item1, Item2) gives a negative number when Item1
    /// comes first. The list keeps its old order until the end; when Compare changes the list meanwhile, or
    /// raises an exception, nothing is sorted.
    template <class TCompare>
    void Sort(TCompare Compare)
    {
        const std::vector<T*> Before = FItems;
        std::vector<T*> Sorted = FItems;
        QuickSort(Sorted, 0, static_cast<std::ptrdiff_t>(Sorted.size()) - 1, Compare);
        if (FItems == Before)
            FItems = std::move(Sorted);
    }

    /// Joins this list with Source as Operator says; the order is this list's, then Source's.
    void Assign(const TList& Source, TListAssignOp Operator = TListAssignOp::laCopy);
    /// The same with Left in place of this list's elements.
    void Assign(const TList& Left, TListAssignOp Operator, const TList& Right)
    {
        // Either may be this list.
        TList Source;
        Source.FItems = Right.FItems;
        FItems = Left.FItems;
        Assign(Source, Operator);
    }

    TIterator begin() const { return FItems.begin(); }
    TIterator end() const { return FItems.end(); }

private:
    using TPointers = std::unordered_set<const T*>;

    std::size_t Checked(int Index) const
    {
        if (Index < 0 || Index >= GetCount())
            RaiseListIndexError(Index);
        return static_cast<std::size_t>(Index);
    }
    void EraseThoseIn(const TPointers& Pointers, bool In)
    {
        std::erase_if(FItems, [&](const T* Item) { return Pointers.contains(Item) == In; });
    }

    std::vector<T*> FItems;
};

template <class T>
void TList<T>::Assign(const TList& Source, TListAssignOp Operator)
{
    const std::vector<T*> Theirs = Source.FItems;
    const TPointers InSource(Theirs.begin(), Theirs.end());
    TPointers Here(FItems.begin(), FItems.end());
    switch (Operator) {
    case TListAssignOp::laCopy:
        FItems = Theirs;
        return;
    case TListAssignOp::laAnd:
        EraseThoseIn(InSource, false);
        return;
    case TListAssignOp::laSrcUnique:
        EraseThoseIn(InSource, true);
        return;
    case TListAssignOp::laOr:
        break;
    case TListAssignOp::laXor:
        EraseThoseIn(InSource, true);
        break;
    case TListAssignOp::laDestUnique:
        FItems.clear();
        break;
    }
    for (T* Item : Theirs)
        if (Here.insert(Item).second)
            FItems.push_back(Item);
}

} // namespace vcl
