#pragma once

#include <cstdint>
#include <functional>
#include <string_view>

#include "vcl/system/AnsiString.h"
#include "vcl/system/Types.h"

namespace vcl
{

/// The real colour behind Color, as 0x00BBGGRR: system colours come from the current platform at the moment
/// of the call; clNone and clDefault lose their flag bits and are white and black.
TColor ColorToRGB(TColor Color);

/// A colour as pixels hold it, 0x00RRGGBB; system colours are resolved.
std::uint32_t ColorToPixel(TColor Color);
/// The colour of a pixel; its highest byte is ignored.
TColor PixelToColor(std::uint32_t Pixel);

/// "clRed" and the like. False, and Ident untouched, when the colour has no name.
bool ColorToIdent(TColor Color, AnsiString& Ident);
/// Case is ignored. False, and Color untouched, when no colour has that name.
bool IdentToColor(std::string_view Ident, TColor& Color);
/// The name, or "$00BBGGRR" with eight hexadecimal digits.
AnsiString ColorToString(TColor Color);
/// The reverse of ColorToString; decimal numbers are accepted too. Raises EConvertError naming the text.
TColor StringToColor(std::string_view Text);
/// Calls Visit for each named colour, basic ones first.
void GetColorValues(const std::function<void(const char* Ident, TColor Color)>& Visit);

} // namespace vcl
