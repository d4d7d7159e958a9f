#include "vcl/controls/PeerStrings.h"

#include <algorithm>

namespace vcl
{

void TPeerStrings::SetSorted(bool Value)
{
    FSorted = Value;
    if (!Value)
        return;
    std::vector<std::pair<AnsiString, TObject*>> Rows;
    for (std::size_t Index = 0; Index < FTexts.size(); ++Index)
        Rows.emplace_back(FTexts[Index], FObjects[Index]);
    std::stable_sort(Rows.begin(), Rows.end(), [this](const auto& Left, const auto& Right) {
        return CompareStrings(Left.first, Right.first) < 0;
    });
    for (std::size_t Index = 0; Index < Rows.size(); ++Index) {
        FTexts[Index] = std::move(Rows[Index].first);
        FObjects[Index] = Rows[Index].second;
    }
    if (Live())
        Apply();
}

void TPeerStrings::Apply()
{
    if (IListPeer* const List = FPeer())
        List->SetItems(FTexts);
}

std::size_t TPeerStrings::Checked(int Index, std::size_t End) const
{
    if (Index < 0 || static_cast<std::size_t>(Index) >= End)
        RaiseIndexError(Index);
    return static_cast<std::size_t>(Index);
}

AnsiString TPeerStrings::GetString(int Index) const
{
    return FTexts[Checked(Index, FTexts.size())];
}

void TPeerStrings::SetString(int Index, const AnsiString& Text)
{
    FTexts[Checked(Index, FTexts.size())] = Text;
    if (IListPeer* const List = Live())
        List->SetItemText(Index, Text);
}

TObject* TPeerStrings::GetObject(int Index) const
{
    return FObjects[Checked(Index, FObjects.size())];
}

void TPeerStrings::SetObject(int Index, TObject* Object)
{
    FObjects[Checked(Index, FObjects.size())] = Object;
}

int TPeerStrings::Add(const AnsiString& Text)
{
    int Index = GetCount();
    if (FSorted) {
        const auto Place = std::upper_bound(FTexts.begin(), FTexts.end(), Text,
                                            [this](const AnsiString& Left, const AnsiString& Right) {
                                                return CompareStrings(Left, Right) < 0;
                                            });
        Index = static_cast<int>(Place - FTexts.begin());
    }
    Insert(Index, Text);
    return Index;
}

void TPeerStrings::Insert(int Index, const AnsiString& Text)
{
    const auto At = static_cast<std::ptrdiff_t>(Checked(Index, FTexts.size() + 1));
    FTexts.insert(FTexts.begin() + At, Text);
    FObjects.insert(FObjects.begin() + At, nullptr);
    if (IListPeer* const List = Live())
        List->InsertItem(Index, Text);
}

void TPeerStrings::Delete(int Index)
{
    const auto At = static_cast<std::ptrdiff_t>(Checked(Index, FTexts.size()));
    FTexts.erase(FTexts.begin() + At);
    FObjects.erase(FObjects.begin() + At);
    if (IListPeer* const List = Live())
        List->DeleteItem(Index);
}

void TPeerStrings::Clear()
{
    FTexts.clear();
    FObjects.clear();
    if (IListPeer* const List = Live())
        List->SetItems({});
}

void TPeerStrings::SetUpdateState(bool Updating)
{
    if (!Updating)
        Apply();
}

} // namespace vcl
