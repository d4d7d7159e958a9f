#pragma once

#include <cstddef>
#include <string_view>

#include "vcl/system/AnsiString.h"

namespace vcl
{

/// A code page by its usual number. UTF-8, Windows-1252 and Latin-1 are built in; others (437, 850, 932, 1250
/// to 1258, 20866, 28592, ...) come from the system.
enum TCodePage : unsigned {
    cpWindows1252 = 1252,
    cpLatin1 = 28591,
    cpUtf8 = 65001,
};

/// The code page of AnsiString; UTF-8 until a program says otherwise.
TCodePage GetDefaultCodePage();
/// Raises EConvertError for a code page the system does not know. Call it at the start of a program: strings
/// that exist already are not converted.
void SetDefaultCodePage(TCodePage CodePage);
bool IsCodePageSupported(TCodePage CodePage);

/// Shortest forms only, no surrogates, nothing above U+10FFFF.
bool IsValidUtf8(std::string_view Text);
/// True when every byte sequence of Text stands for a character of the code page.
bool IsValidText(std::string_view Text, TCodePage CodePage = GetDefaultCodePage());

/// The code point that starts at Position (less than the size of Text), which moves behind it. A byte that
/// begins no valid sequence is U+FFFD and one byte long.
char32_t DecodeUtf8(std::string_view Text, std::size_t& Position);
/// Appends a code point; surrogates and numbers above U+10FFFF as U+FFFD.
void AppendUtf8(AnsiString& Text, char32_t CodePoint);

/// Conversions of valid and invalid text: what cannot be read becomes U+FFFD.
WideString Utf8ToWide(std::string_view Text);
AnsiString WideToUtf8(std::u16string_view Text);

/// Text of the code page as UTF-8, fit to be drawn. Text that is not valid in its code page is read whole as
/// Windows-1252, whose five unused bytes stand for the control characters of the same number.
AnsiString AnsiToUtf8(std::string_view Text, TCodePage CodePage = GetDefaultCodePage());
WideString AnsiToWide(std::string_view Text, TCodePage CodePage = GetDefaultCodePage());
/// Into the code page; a character it does not have becomes "?".
AnsiString Utf8ToAnsi(std::string_view Text, TCodePage CodePage = GetDefaultCodePage());
AnsiString WideToAnsi(std::u16string_view Text, TCodePage CodePage = GetDefaultCodePage());

/// Compares without regard to case, as the user reads the text: letters of all bicameral European scripts
/// fold.
int AnsiCompareText(std::string_view Left, std::string_view Right);
bool AnsiSameText(std::string_view Left, std::string_view Right);

} // namespace vcl
