#pragma once

#include <cstdint>
#include <string>
#include <string_view>

namespace vcl
{

/// Counted 8-bit bytes in the current code page (UTF-8 unless the program says otherwise).
using AnsiString = std::string;
using WideString = std::u16string;

AnsiString IntToStr(std::int64_t Value);

/// ASCII-only case folding, as component and property names compare.
bool SameText(std::string_view Left, std::string_view Right);
int CompareText(std::string_view Left, std::string_view Right);
AnsiString UpperCase(std::string_view Text);
AnsiString LowerCase(std::string_view Text);

} // namespace vcl
