#include "vcl/controls/PeerStrings.h"

#include <algorithm>
#include <numeric>

namespace vcl
{

void TPeerStrings::SetSorted(bool Value)
{
    FSorted = Value;
    if (!Value)
        return;
    if (Live())
        Keep();
    std::vector<int> Order(FRows.size());
    std::iota(Order.begin(), Order.end(), 0);
    const auto RowAt = [this](int Index) -> TRow& { return FRows[static_cast<std::size_t>(Index)]; };
    std::stable_sort(Order.begin(), Order.end(), [&](int Left, int Right) {
        return CompareStrings(RowAt(Left).Text, RowAt(Right).Text) < 0;
    });
    std::vector<TRow> Rows;
    Rows.reserve(FRows.size());
    for (const int Index : Order)
        Rows.push_back(std::move(RowAt(Index)));
    FRows = std::move(Rows);
    if (FItemIndex >= 0)
        FItemIndex = static_cast<int>(std::find(Order.begin(), Order.end(), FItemIndex) - Order.begin());
    if (Live())
        Apply();
    Changed();
}

void TPeerStrings::Apply()
{
    IListPeer* const List = FPeer();
    if (!List)
        return;
    std::vector<AnsiString> Texts;
    Texts.reserve(FRows.size());
    for (const TRow& Row : FRows)
        Texts.push_back(Row.Text);
    List->SetItems(Texts);
    List->SetItemIndex(FItemIndex);
    for (std::size_t Index = 0; Index < FRows.size(); ++Index)
        if (FRows[Index].Selected)
            List->SetSelected(static_cast<int>(Index), true);
}

void TPeerStrings::Keep()
{
    IListPeer* const List = FChoice == TChoice::OfPeer ? FPeer() : nullptr;
    if (!List)
        return;
    SetItemIndex(List->GetItemIndex());
    for (std::size_t Index = 0; Index < FRows.size(); ++Index)
        FRows[Index].Selected = List->IsSelected(static_cast<int>(Index));
}

void TPeerStrings::Changed()
{
    if (!IsUpdating())
        FChanged();
}

std::size_t TPeerStrings::Checked(int Index, std::size_t End) const
{
    if (Index < 0 || static_cast<std::size_t>(Index) >= End)
        RaiseIndexError(Index);
    return static_cast<std::size_t>(Index);
}

AnsiString TPeerStrings::GetString(int Index) const
{
    return FRows[Checked(Index, FRows.size())].Text;
}

void TPeerStrings::SetString(int Index, const AnsiString& Text)
{
    FRows[Checked(Index, FRows.size())].Text = Text;
    if (IListPeer* const List = Live())
        List->SetItemText(Index, Text);
    Changed();
}

TObject* TPeerStrings::GetObject(int Index) const
{
    return FRows[Checked(Index, FRows.size())].Object;
}

void TPeerStrings::SetObject(int Index, TObject* Object)
{
    FRows[Checked(Index, FRows.size())].Object = Object;
}

int TPeerStrings::Add(const AnsiString& Text)
{
    int Index = GetCount();
    if (FSorted) {
        const auto Place = std::upper_bound(FRows.begin(), FRows.end(), Text,
                                            [this](const AnsiString& Left, const TRow& Right) {
                                                return CompareStrings(Left, Right.Text) < 0;
                                            });
        Index = static_cast<int>(Place - FRows.begin());
    }
    Insert(Index, Text);
    return Index;
}

void TPeerStrings::Insert(int Index, const AnsiString& Text)
{
    const auto At = static_cast<std::ptrdiff_t>(Checked(Index, FRows.size() + 1));
    FRows.insert(FRows.begin() + At, TRow{Text});
    if (FItemIndex >= Index)
        ++FItemIndex;
    if (IListPeer* const List = Live())
        List->InsertItem(Index, Text);
    Changed();
}

void TPeerStrings::Delete(int Index)
{
    const auto At = static_cast<std::ptrdiff_t>(Checked(Index, FRows.size()));
    FRows.erase(FRows.begin() + At);
    if (FItemIndex == Index)
        FItemIndex = -1;
    else if (FItemIndex > Index)
        --FItemIndex;
    if (IListPeer* const List = Live())
        List->DeleteItem(Index);
    Changed();
}

void TPeerStrings::Clear()
{
    FRows.clear();
    FItemIndex = -1;
    if (IListPeer* const List = Live())
        List->SetItems({});
    Changed();
}

void TPeerStrings::SetUpdateState(bool Updating)
{
    if (Updating) {
        Keep();
        return;
    }
    Apply();
    Changed();
}

} // namespace vcl
