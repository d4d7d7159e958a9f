#pragma once

#include <cstdint>

#include "vcl/system/AnsiString.h"

namespace treeview
{

/// Collects what is typed quickly one after the other.
class TTypeAhead
{
public:
    /// A longer pause starts anew; milliseconds.
    static constexpr std::uint64_t Pause = 1000;

    /// Adds a code point typed at Now (milliseconds) and returns all that was typed so far.
    const vcl::AnsiString& Type(char32_t Key, std::uint64_t Now);
    void Reset() { FTyped.clear(); }
    /// One and the same character, once or again and again: the search goes on to the next match.
    bool IsRepeat() const { return FIsRepeat; }
    /// What to look for: one character where it was repeated.
    const vcl::AnsiString& GetPrefix() const { return FIsRepeat ? FFirst : FTyped; }

private:
    vcl::AnsiString FTyped;
    vcl::AnsiString FFirst;
    std::uint64_t FLast = 0;
    bool FIsRepeat = false;
};

/// True when Text begins with Prefix; letters of ASCII match in either case.
bool BeginsWith(const vcl::AnsiString& Text, const vcl::AnsiString& Prefix);

} // namespace treeview
