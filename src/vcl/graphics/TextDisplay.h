#pragma once

#include <cstddef>
#include <string_view>

#include "vcl/system/AnsiString.h"

namespace vcl
{

/// Text of the code page as one line of valid UTF-8: what cannot be shown in a line (tabs, line breaks, other
/// control characters) becomes a blank.
AnsiString ToDisplayLine(const AnsiString& Text);

/// One code point of valid UTF-8 and how many bytes it takes.
struct TCodePoint {
    char32_t Value = 0;
    int Length = 1;
};

/// The code point that begins at Offset, which must lie inside Text. A byte that begins none counts as one.
TCodePoint CodePointAt(std::string_view Text, std::size_t Offset);

/// Marks that belong to the code point before them, joiners and variation selectors included: a line never
/// breaks before one.
bool IsCombining(char32_t Value);
/// Letters of scripts that run from right to left, and the marks that switch to that direction.
bool IsRightToLeft(char32_t Value);
/// Ideographs and syllables that a line may break between without a blank.
bool IsIdeographic(char32_t Value);
/// Closing punctuation of ideographic text, which no line begins with.
bool IsClosingPunctuation(char32_t Value);

} // namespace vcl
