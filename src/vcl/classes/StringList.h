#pragma once

#include <functional>
#include <vector>

#include "vcl/classes/Strings.h"

namespace vcl
{

/// What a sorted list does with a string it already has: keep one, raise EStringListError, keep both.
enum class TDuplicates { dupIgnore, dupAccept, dupError };

/// A list of strings in memory, in the order of insertion or sorted. It does not own the objects.
class TStringList : public TStrings
{
    VCL_CLASS
public:
    using TCompare = std::function<int(const TStringList& List, int Index1, int Index2)>;

    TStringList() = default;

    int GetCount() const override { return static_cast<int>(FItems.size()); }
    AnsiString GetString(int Index) const override { return FItems[Checked(Index)].Text; }
    /// Not allowed in a sorted list (EStringListError), like every way to put a string at a place.
    void SetString(int Index, const AnsiString& Text) override;
    TObject* GetObject(int Index) const override { return FItems[Checked(Index)].Object; }
    void SetObject(int Index, TObject* Object) override;
    int GetCapacity() const override { return static_cast<int>(FItems.capacity()); }
    void SetCapacity(int Capacity) override;

    /// A sorted list puts each new string at its place; becoming sorted sorts at once.
    bool GetSorted() const { return FSorted; }
    void SetSorted(bool Value);
    /// Heeded by a sorted list only.
    TDuplicates GetDuplicates() const { return FDuplicates; }
    void SetDuplicates(TDuplicates Value) { FDuplicates = Value; }
    /// Whether case counts in comparing, finding and sorting; a sorted list is sorted anew.
    bool GetCaseSensitive() const { return FCaseSensitive; }
    void SetCaseSensitive(bool Value);

    int Add(const AnsiString& Text) override { return AddObject(Text, nullptr); }
    int AddObject(const AnsiString& Text, TObject* Object) override;
    void Insert(int Index, const AnsiString& Text) override { InsertObject(Index, Text, nullptr); }
    void InsertObject(int Index, const AnsiString& Text, TObject* Object) override;
    void Delete(int Index) override;
    void Clear() override;
    void Exchange(int Index1, int Index2) override;

    int IndexOf(std::string_view Text) const override;
    /// Looks for Text in a sorted list by binary search. Index becomes the place of the first such string, or
    /// the place where it would be inserted.
    bool Find(std::string_view Text, int& Index) const;

    /// Sorts once, with the lists' quicksort; does nothing when the list is sorted.
    virtual void Sort();
    /// The same by another order, which sees the list as it was before.
    virtual void CustomSort(const TCompare& Compare);

    /// Before and after each change outside BeginUpdate and EndUpdate, and once for all inside.
    TNotifyEvent OnChanging;
    TNotifyEvent OnChange;

protected:
    void SetUpdateState(bool IsUpdating) override;
    int CompareStrings(std::string_view Left, std::string_view Right) const override;
    virtual void Changing();
    virtual void Changed();

private:
    struct TItem {
        AnsiString Text;
        TObject* Object = nullptr;
        bool operator==(const TItem&) const = default;
    };

    std::size_t Checked(int Index) const
    {
        if (Index < 0 || Index >= GetCount())
            RaiseIndexError(Index);
        return static_cast<std::size_t>(Index);
    }
    void CheckUnsorted() const;
    void InsertItem(int Index, const AnsiString& Text, TObject* Object);
    void SortItems();

    std::vector<TItem> FItems;
    TDuplicates FDuplicates = TDuplicates::dupIgnore;
    bool FSorted = false;
    bool FCaseSensitive = false;
};

} // namespace vcl
