#include "vcl/graphics/Colors.h"

#include <cctype>
#include <charconv>
#include <cstdio>

#include "vcl/classes/Properties.h"
#include "vcl/platform/Platform.h"
#include "vcl/platform/System.h"
#include "vcl/system/Exception.h"

namespace vcl
{

TColor ColorToRGB(TColor Color)
{
    const TColor Real =
        IsSystemColor(Color) ? Platform().System().SystemColor(SystemColorIndex(Color)) : Color;
    return TColor(static_cast<std::int32_t>(Real) & 0xFFFFFF);
}

std::uint32_t ColorToPixel(TColor Color)
{
    const auto Rgb = static_cast<std::uint32_t>(ColorToRGB(Color));
    return (Rgb & 0xFF) << 16 | (Rgb & 0xFF00) | Rgb >> 16;
}

TColor PixelToColor(std::uint32_t Pixel)
{
    return TColor(static_cast<std::int32_t>((Pixel & 0xFF) << 16 | (Pixel & 0xFF00) | (Pixel >> 16 & 0xFF)));
}

bool ColorToIdent(TColor Color, AnsiString& Ident)
{
    const char* const Name = TypeTraits<TColor>::Info().IdentifierName(Color);
    if (!Name)
        return false;
    Ident = Name;
    return true;
}

bool IdentToColor(std::string_view Ident, TColor& Color)
{
    const std::optional<std::int64_t> Value = TypeTraits<TColor>::Info().IdentifierValue(Ident);
    if (!Value)
        return false;
    Color = TColor(static_cast<std::int32_t>(*Value));
    return true;
}

AnsiString ColorToString(TColor Color)
{
    AnsiString Result;
    if (ColorToIdent(Color, Result))
        return Result;
    char Digits[16];
    std::snprintf(Digits, sizeof Digits, "$%08X", static_cast<unsigned>(Color));
    return Digits;
}

TColor StringToColor(std::string_view Text)
{
    TColor Named;
    if (IdentToColor(Text, Named))
        return Named;
    const bool IsHex = Text.starts_with('$');
    const std::string_view Digits = Text.substr(IsHex ? 1 : 0);
    std::int64_t Value = 0;
    const auto [End, Error] =
        std::from_chars(Digits.data(), Digits.data() + Digits.size(), Value, IsHex ? 16 : 10);
    if (Error != std::errc() || End != Digits.data() + Digits.size() || Value < INT32_MIN ||
        Value > UINT32_MAX)
        throw EConvertError("'" + AnsiString(Text) + "' is not a colour");
    return TColor(static_cast<std::int32_t>(static_cast<std::uint32_t>(Value)));
}

void GetColorValues(const std::function<void(const char* Ident, TColor Color)>& Visit)
{
    for (const TIntegerIdentifier& Row : TypeTraits<TColor>::Info().Identifiers)
        Visit(Row.Name, TColor(static_cast<std::int32_t>(Row.Value)));
}

} // namespace vcl
