#pragma once

#include <iterator>
#include <list>
#include <utility>
#include <vector>

#include "vcl/classes/StringList.h"

namespace vcl::tests
{

/// A list of strings that keeps them in a linked list and implements what it can.
class TLinkedStrings : public TStrings
{
public:
    int GetCount() const override { return static_cast<int>(FItems.size()); }
    AnsiString GetString(int Index) const override { return At(Index)->first; }
    void SetString(int Index, const AnsiString& Text) override { Mutable(Index)->first = Text; }
    TObject* GetObject(int Index) const override { return At(Index)->second; }
    void SetObject(int Index, TObject* Object) override { Mutable(Index)->second = Object; }
    void Insert(int Index, const AnsiString& Text) override
    {
        if (Index < 0 || Index > GetCount())
            RaiseIndexError(Index);
        FItems.insert(std::next(FItems.begin(), Index), {Text, nullptr});
    }
    void Delete(int Index) override { FItems.erase(At(Index)); }
    void Clear() override { FItems.clear(); }

private:
    using TItems = std::list<std::pair<AnsiString, TObject*>>;

    TItems::const_iterator At(int Index) const
    {
        if (Index < 0 || Index >= GetCount())
            RaiseIndexError(Index);
        return std::next(FItems.begin(), Index);
    }
    TItems::iterator Mutable(int Index) { return FItems.erase(At(Index), At(Index)); }

    TItems FItems;
};

/// A list of strings that implements only what it must, and keeps the last string first.
class TReversedStrings : public TStrings
{
public:
    int GetCount() const override { return static_cast<int>(FItems.size()); }
    AnsiString GetString(int Index) const override
    {
        if (Index < 0 || Index >= GetCount())
            RaiseIndexError(Index);
        return *std::next(FItems.rbegin(), Index);
    }
    void Insert(int Index, const AnsiString& Text) override { FItems.insert(FItems.end() - Index, Text); }
    void Delete(int Index) override { FItems.erase(FItems.end() - Index - 1); }
    void Clear() override { FItems.clear(); }

private:
    std::vector<AnsiString> FItems;
};

} // namespace vcl::tests
