#include "vcl/classes/StringList.h"

#include <algorithm>
#include <utility>

#include "vcl/classes/List.h"
#include "vcl/classes/QuickSort.h"

namespace vcl
{

const TClass& TStringList::StaticClass()
{
    static const TClass Class = DefineClass<TStringList, TStrings>("TStringList");
    return Class;
}

// A wrong index is an error before OnChanging is raised; the index counts again after it, because the handler
// may have changed the list.

void TStringList::CheckUnsorted() const
{
    if (FSorted)
        throw EStringListError("Operation not allowed on sorted list");
}

void TStringList::SetString(int Index, const AnsiString& Text)
{
    CheckUnsorted();
    Checked(Index);
    Changing();
    FItems[Checked(Index)].Text = Text;
    Changed();
}

void TStringList::SetObject(int Index, TObject* Object)
{
    Checked(Index);
    Changing();
    FItems[Checked(Index)].Object = Object;
    Changed();
}

void TStringList::SetCapacity(int Capacity)
{
    if (Capacity < GetCount())
        throw EStringListError("List capacity out of bounds (" + IntToStr(Capacity) + ")");
    FItems.reserve(static_cast<std::size_t>(Capacity));
}

void TStringList::SetSorted(bool Value)
{
    if (FSorted == Value)
        return;
    if (Value)
        Sort();
    FSorted = Value;
}

void TStringList::SetCaseSensitive(bool Value)
{
    if (FCaseSensitive == Value)
        return;
    FCaseSensitive = Value;
    if (FSorted)
        SortItems();
}

int TStringList::AddObject(const AnsiString& Text, TObject* Object)
{
    int Index = GetCount();
    if (FSorted && Find(Text, Index)) {
        if (FDuplicates == TDuplicates::dupIgnore)
            return Index;
        if (FDuplicates == TDuplicates::dupError)
            throw EStringListError("String list does not allow duplicates");
    }
    InsertItem(Index, Text, Object);
    return Index;
}

void TStringList::InsertObject(int Index, const AnsiString& Text, TObject* Object)
{
    CheckUnsorted();
    if (Index < 0 || Index > GetCount())
        RaiseIndexError(Index);
    InsertItem(Index, Text, Object);
}

void TStringList::InsertItem(int Index, const AnsiString& Text, TObject* Object)
{
    Changing();
    FItems.insert(FItems.begin() + std::min(Index, GetCount()), TItem{Text, Object});
    Changed();
}

void TStringList::Delete(int Index)
{
    Checked(Index);
    Changing();
    FItems.erase(FItems.begin() + static_cast<std::ptrdiff_t>(Checked(Index)));
    Changed();
}

void TStringList::Clear()
{
    if (FItems.empty())
        return;
    Changing();
    FItems.clear();
    Changed();
}

void TStringList::Exchange(int Index1, int Index2)
{
    Checked(Index1);
    Checked(Index2);
    Changing();
    std::swap(FItems[Checked(Index1)], FItems[Checked(Index2)]);
    Changed();
}

int TStringList::IndexOf(std::string_view Text) const
{
    if (!FSorted)
        return TStrings::IndexOf(Text);
    int Index = 0;
    return Find(Text, Index) ? Index : -1;
}

bool TStringList::Find(std::string_view Text, int& Index) const
{
    const auto Place = std::lower_bound(
        FItems.begin(), FItems.end(), Text,
        [this](const TItem& Item, std::string_view Sought) { return CompareStrings(Item.Text, Sought) < 0; });
    Index = static_cast<int>(Place - FItems.begin());
    return Place != FItems.end() && CompareStrings(Place->Text, Text) == 0;
}

void TStringList::Sort()
{
    if (!FSorted)
        SortItems();
}

void TStringList::SortItems()
{
    CustomSort([](const TStringList& List, int Index1, int Index2) {
        return List.CompareStrings(List.FItems[static_cast<std::size_t>(Index1)].Text,
                                   List.FItems[static_cast<std::size_t>(Index2)].Text);
    });
}

void TStringList::CustomSort(const TCompare& Compare)
{
    if (GetCount() < 2)
        return;
    std::vector<int> Order(FItems.size());
    for (std::size_t Index = 0; Index < Order.size(); ++Index)
        Order[Index] = static_cast<int>(Index);
    const std::vector<TItem> Before = FItems;
    const auto CompareIndexes = [&](int Index1, int Index2) { return Compare(*this, Index1, Index2); };
    QuickSort(Order, 0, static_cast<std::ptrdiff_t>(Order.size()) - 1, CompareIndexes);
    if (FItems != Before)
        return;
    Changing();
    for (std::size_t Index = 0; Index < Order.size(); ++Index)
        FItems[Index] = Before[static_cast<std::size_t>(Order[Index])];
    Changed();
}

void TStringList::SetUpdateState(bool IsUpdating)
{
    if (IsUpdating)
        OnChanging(this);
    else
        OnChange(this);
}

int TStringList::CompareStrings(std::string_view Left, std::string_view Right) const
{
    return FCaseSensitive ? Left.compare(Right) : TStrings::CompareStrings(Left, Right);
}

void TStringList::Changing()
{
    if (!IsUpdating())
        OnChanging(this);
}

void TStringList::Changed()
{
    if (!IsUpdating())
        OnChange(this);
}

} // namespace vcl
