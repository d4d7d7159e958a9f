#pragma once

#include <cstddef>

#include "vcl/system/AnsiString.h"

namespace vcl
{

/// The code point at Index of UTF-8 text, and Index moved behind it. A byte that begins none stands for
/// itself.
char32_t NextCodePoint(const AnsiString& Text, std::size_t& Index);
/// Appends Char as UTF-8.
void AppendCodePoint(AnsiString& Text, char32_t Char);

/// Capitals and small letters of the Latin, Greek and Cyrillic alphabets, one code point for one; anything
/// else stays as it is.
char32_t UpperCodePoint(char32_t Char);
char32_t LowerCodePoint(char32_t Char);
/// Two code points that differ in case alone fold to the same one.
inline char32_t FoldCase(char32_t Char)
{
    return LowerCodePoint(Char);
}

} // namespace vcl
