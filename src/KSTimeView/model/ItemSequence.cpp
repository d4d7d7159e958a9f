#include "KSTimeView/model/ItemSequence.h"

#include <algorithm>

#include "KSTimeView/model/TimeViewItem.h"

namespace timeview
{

int TItemSequence::IndexOf(const TKSTimeViewItem* Item) const
{
    // Clearing takes the first again and again, and much else the last.
    if (IsEmpty())
        return -1;
    if (FItems[FFirst] == Item)
        return 0;
    if (FItems.back() == Item)
        return GetCount() - 1;
    auto Found = end();
    if (FInSerialOrder)
        Found = std::lower_bound(
            begin(), end(), Item->GetSerial(),
            [](const TKSTimeViewItem* Entry, std::uint64_t Serial) { return Entry->GetSerial() < Serial; });
    else
        Found = std::find(begin(), end(), Item);
    return Found != end() && *Found == Item ? static_cast<int>(Found - begin()) : -1;
}

void TItemSequence::Append(TKSTimeViewItem* Item)
{
    if (IsEmpty())
        Clear();
    else if (Item->GetSerial() <= FItems.back()->GetSerial())
        FInSerialOrder = false;
    FItems.push_back(Item);
}

void TItemSequence::RemoveAt(int Index)
{
    if (Index == 0)
        FItems[FFirst++] = nullptr;
    else
        FItems.erase(begin() + Index);
    if (IsEmpty())
        Clear();
}

bool TItemSequence::Remove(const TKSTimeViewItem* Item)
{
    const int Index = IndexOf(Item);
    if (Index >= 0)
        RemoveAt(Index);
    return Index >= 0;
}

void TItemSequence::Clear()
{
    FItems.clear();
    FFirst = 0;
    FInSerialOrder = true;
}

} // namespace timeview
