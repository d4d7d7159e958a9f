#pragma once

#include <cstdint>
#include <vector>

class TKSTimeViewItem;

namespace timeview
{

/// An ordered list of items. Appending, taking from either end and reaching by index cost nothing; taking
/// from the middle moves the pointers behind it. An item is found by its serial number in logarithmic time as
/// long as the list grew in the order the items were made, otherwise by looking at each.
class TItemSequence
{
public:
    using TIterator = std::vector<TKSTimeViewItem*>::const_iterator;

    int GetCount() const { return static_cast<int>(FItems.size() - FFirst); }
    bool IsEmpty() const { return FItems.size() == FFirst; }
    TKSTimeViewItem* operator[](int Index) const { return FItems[FFirst + static_cast<std::size_t>(Index)]; }
    TIterator begin() const { return FItems.begin() + static_cast<std::ptrdiff_t>(FFirst); }
    TIterator end() const { return FItems.end(); }

    /// -1 when it is not in the list.
    int IndexOf(const TKSTimeViewItem* Item) const;
    void Append(TKSTimeViewItem* Item);
    void RemoveAt(int Index);
    bool Remove(const TKSTimeViewItem* Item);
    void Clear();

private:
    std::vector<TKSTimeViewItem*> FItems;
    std::size_t FFirst = 0; // places in front whose items were taken
    bool FInSerialOrder = true;
};

} // namespace timeview
