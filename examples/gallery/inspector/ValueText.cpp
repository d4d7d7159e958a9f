#include "gallery/inspector/ValueText.h"

#include <array>
#include <charconv>
#include <cmath>
#include <cstdio>

#include "vcl/classes/Component.h"
#include "vcl/system/CodePage.h"
#include "vcl/system/DateTime.h"
#include "vcl/system/Exception.h"

namespace gallery
{

using vcl::AnsiString;
using vcl::EPropertyError;
using vcl::TPropertyValue;
using vcl::TTypeInfo;
using vcl::TTypeKind;

namespace
{

template <class... TArguments>
AnsiString Format(const char* Pattern, TArguments... Arguments)
{
    std::array<char, 64> Buffer{};
    std::snprintf(Buffer.data(), Buffer.size(), Pattern, Arguments...);
    return Buffer.data();
}

std::string_view Trim(std::string_view Text)
{
    const std::size_t First = Text.find_first_not_of(" \t");
    if (First == std::string_view::npos)
        return {};
    return Text.substr(First, Text.find_last_not_of(" \t") - First + 1);
}

[[noreturn]] void Refuse(std::string_view Text, const AnsiString& Expected)
{
    throw EPropertyError("\"" + AnsiString(Text) + "\" is not " + Expected);
}

bool IsNamed(const TTypeInfo& Type, std::string_view Name)
{
    return Name == Type.Name;
}

template <class T>
bool ParseWhole(std::string_view Text, T& Value, int Base = 10)
{
    const auto [End, Error] = std::from_chars(Text.data(), Text.data() + Text.size(), Value, Base);
    return Error == std::errc() && End == Text.data() + Text.size() && !Text.empty();
}

// Ordinals

AnsiString IntegerToText(const TTypeInfo& Type, std::int64_t Value)
{
    if (const char* const Identifier = Type.IdentifierName(Value))
        return Identifier;
    if (IsNamed(Type, "TColor"))
        return Format("$%08X", static_cast<unsigned>(Value & 0xFFFFFFFF));
    return std::to_string(Value);
}

std::int64_t TextToInteger(const TTypeInfo& Type, std::string_view Text)
{
    if (const std::optional<std::int64_t> Value = Type.IdentifierValue(Text))
        return *Value;
    std::int64_t Value = 0;
    if (Text.starts_with("$")) {
        std::uint32_t Bits = 0;
        if (!ParseWhole(Text.substr(1), Bits, 16))
            Refuse(Text, "a hexadecimal number of up to eight digits");
        // Eight digits may set the sign, as system colours do.
        Value = Type.Min < 0 ? static_cast<std::int32_t>(Bits) : static_cast<std::int64_t>(Bits);
    } else if (!ParseWhole(Text, Value)) {
        Refuse(Text, Type.Identifiers.empty() ? "a whole number" : "a name or a whole number");
    }
    if (Value < Type.Min || Value > Type.Max)
        Refuse(Text, "between " + std::to_string(Type.Min) + " and " + std::to_string(Type.Max));
    return Value;
}

AnsiString OrdinalToName(const TTypeInfo& Type, std::int64_t Ordinal)
{
    const auto Index = static_cast<std::size_t>(Ordinal);
    return Ordinal >= 0 && Index < Type.ValueNames.size() ? Type.ValueNames[Index] : std::to_string(Ordinal);
}

std::int64_t NameToOrdinal(const TTypeInfo& Type, std::string_view Text)
{
    const std::optional<std::int64_t> Ordinal = Type.OrdinalOf(Text);
    if (!Ordinal)
        Refuse(Text, AnsiString("a value of ") + Type.Name);
    return *Ordinal;
}

AnsiString SetToText(const TTypeInfo& Type, std::int64_t Bits)
{
    AnsiString Text = "[";
    for (std::int64_t Ordinal = 0; Ordinal <= Type.Element->Max; ++Ordinal) {
        if ((Bits >> Ordinal & 1) == 0)
            continue;
        if (Text.size() > 1)
            Text += ", ";
        Text += OrdinalToName(*Type.Element, Ordinal);
    }
    return Text + "]";
}

std::int64_t TextToSet(const TTypeInfo& Type, std::string_view Text)
{
    if (Text.size() < 2 || Text.front() != '[' || Text.back() != ']')
        Refuse(Text, "a set, which is written as [a, b]");
    std::string_view Rest = Trim(Text.substr(1, Text.size() - 2));
    std::int64_t Bits = 0;
    while (!Rest.empty()) {
        const std::size_t Comma = Rest.find(',');
        Bits |= std::int64_t{1} << NameToOrdinal(*Type.Element, Trim(Rest.substr(0, Comma)));
        if (Comma == std::string_view::npos)
            break;
        Rest = Trim(Rest.substr(Comma + 1));
        if (Rest.empty())
            Refuse(Text, "a set, which is written as [a, b]");
    }
    return Bits;
}

// Characters show as themselves where they can be seen, else as "#" and their number.

AnsiString CharToText(std::int64_t Value)
{
    if (Value > 0x20 && Value < 0x7F && Value != '#')
        return AnsiString(1, static_cast<char>(Value));
    return "#" + std::to_string(Value);
}

std::int64_t TextToChar(const TTypeInfo& Type, std::string_view Text)
{
    if (Text.size() == 1)
        return static_cast<unsigned char>(Text[0]);
    std::int64_t Value = 0;
    if (Text.empty() || Text[0] != '#' || !ParseWhole(Text.substr(1), Value) || Value < 0 || Value > Type.Max)
        Refuse(Text, "one character, or # and the number of one");
    return Value;
}

// Dates and numbers

AnsiString TimeText(vcl::TDateTime Value)
{
    const vcl::TTimeParts Time = vcl::DecodeTime(Value);
    return Format("%02d:%02d:%02d", Time.Hour, Time.Minute, Time.Second);
}

AnsiString DateText(vcl::TDateTime Value)
{
    const vcl::TDateParts Date = vcl::DecodeDate(Value);
    return Format("%04d-%02d-%02d", Date.Year, Date.Month, Date.Day);
}

AnsiString FloatToText(const TTypeInfo& Type, const vcl::TExtended& Value)
{
    const double Number = Value.ToDouble();
    if (vcl::IsCalendarDate(Number)) {
        if (IsNamed(Type, "TDate"))
            return DateText(Number);
        if (IsNamed(Type, "TTime"))
            return TimeText(Number);
        if (IsNamed(Type, "TDateTime"))
            return DateText(Number) + " " + TimeText(Number);
    }
    // The shortest digits of what the property can hold, not of the wider value it travels in.
    std::array<char, 32> Buffer{};
    const auto Result =
        Type.Float == vcl::TFloatKind::Single
            ? std::to_chars(Buffer.data(), Buffer.data() + Buffer.size(), static_cast<float>(Number))
            : std::to_chars(Buffer.data(), Buffer.data() + Buffer.size(), Number);
    if (Type.Float == vcl::TFloatKind::Extended)
        return Value.ToText();
    return {Buffer.data(), Result.ptr};
}

/// Numbers separated by Separator, two or more digits each after the first; false when Text is not such.
bool ParseFields(std::string_view Text, char Separator, std::array<int, 3>& Fields)
{
    for (std::size_t Index = 0; Index < Fields.size(); ++Index) {
        const std::size_t End = Text.find(Separator);
        const bool IsLast = Index + 1 == Fields.size();
        if (IsLast != (End == std::string_view::npos) || !ParseWhole(Text.substr(0, End), Fields[Index]))
            return false;
        if (!IsLast)
            Text.remove_prefix(End + 1);
    }
    return true;
}

vcl::TDateTime ParseDay(std::string_view Text)
{
    std::array<int, 3> Fields{};
    std::optional<vcl::TDateTime> Day;
    if (ParseFields(Text, '-', Fields))
        Day = vcl::TryEncodeDate(Fields[0], Fields[1], Fields[2]);
    if (!Day)
        Refuse(Text, "a day, which is written as 2026-03-18");
    return *Day;
}

vcl::TDateTime ParseTimeOfDay(std::string_view Text)
{
    std::array<int, 3> Fields{};
    std::optional<vcl::TDateTime> Time;
    if (ParseFields(Text, ':', Fields))
        Time = vcl::TryEncodeTime(Fields[0], Fields[1], Fields[2], 0);
    if (!Time)
        Refuse(Text, "a time, which is written as 09:30:00");
    return *Time;
}

vcl::TExtended TextToFloat(const TTypeInfo& Type, std::string_view Text)
{
    if (IsNamed(Type, "TDate") && Text.find('-', 1) != std::string_view::npos)
        return vcl::TExtended(ParseDay(Text));
    if (IsNamed(Type, "TTime") && Text.find(':') != std::string_view::npos)
        return vcl::TExtended(ParseTimeOfDay(Text));
    if (IsNamed(Type, "TDateTime") && Text.find(':') != std::string_view::npos) {
        const std::size_t Blank = Text.find(' ');
        if (Blank == std::string_view::npos)
            Refuse(Text, "a day and a time, which are written as 2026-03-18 09:30:00");
        return vcl::TExtended(
            vcl::ReplaceTime(ParseDay(Text.substr(0, Blank)), ParseTimeOfDay(Trim(Text.substr(Blank)))));
    }
    if (IsNamed(Type, "TDateTime") && Text.find('-', 1) != std::string_view::npos)
        return vcl::TExtended(ParseDay(Text));
    vcl::TExtended Value;
    if (!vcl::TExtended::Parse(Text, Value) || !std::isfinite(Value.ToDouble()))
        Refuse(Text, "a number");
    return Value;
}

AnsiString ObjectToText(const TTypeInfo& Type, const vcl::TPersistent* Object)
{
    if (!IsReferenceType(Type))
        return "(" + (Object ? Object->ClassName() : Type.DisplayName()) + ")";
    const auto* const Component = vcl::As<vcl::TComponent>(Object);
    return Component ? Component->GetName() : AnsiString();
}

} // namespace

bool IsReferenceType(const TTypeInfo& Type)
{
    return Type.Kind == TTypeKind::Class && Type.Class().InheritsFrom(vcl::TComponent::StaticClass());
}

AnsiString ValueToText(const TTypeInfo& Type, const TPropertyValue& Value)
{
    switch (Type.Kind) {
    case TTypeKind::Integer:
    case TTypeKind::Int64:
        return IntegerToText(Type, std::get<std::int64_t>(Value));
    case TTypeKind::Char:
    case TTypeKind::WideChar:
        return CharToText(std::get<std::int64_t>(Value));
    case TTypeKind::Enumeration:
        return OrdinalToName(Type, std::get<std::int64_t>(Value));
    case TTypeKind::Set:
        return SetToText(Type, std::get<std::int64_t>(Value));
    case TTypeKind::String:
        return std::get<AnsiString>(Value);
    case TTypeKind::WideText:
        return vcl::WideToAnsi(std::get<vcl::WideString>(Value));
    case TTypeKind::Float:
        return FloatToText(Type, std::get<vcl::TExtended>(Value));
    case TTypeKind::Class:
        return ObjectToText(Type, std::get<vcl::TPersistent*>(Value));
    case TTypeKind::Method: {
        const vcl::TEventBase* const Event = std::get<vcl::TEventBase*>(Value);
        return !Event->GetHandlerName().empty() || !Event->IsAssigned() ? Event->GetHandlerName()
                                                                        : "(set by the program)";
    }
    }
    return {};
}

TPropertyValue TextToValue(const TTypeInfo& Type, std::string_view Text)
{
    switch (Type.Kind) {
    case TTypeKind::Integer:
    case TTypeKind::Int64:
        return TextToInteger(Type, Trim(Text));
    case TTypeKind::Char:
    case TTypeKind::WideChar:
        return TextToChar(Type, Text);
    case TTypeKind::Enumeration:
        return NameToOrdinal(Type, Trim(Text));
    case TTypeKind::Set:
        return TextToSet(Type, Trim(Text));
    case TTypeKind::String:
        return AnsiString(Text);
    case TTypeKind::WideText:
        return vcl::AnsiToWide(Text);
    case TTypeKind::Float:
        return TextToFloat(Type, Trim(Text));
    case TTypeKind::Class:
    case TTypeKind::Method:
        break;
    }
    throw EPropertyError("This property cannot be written as text");
}

} // namespace gallery
