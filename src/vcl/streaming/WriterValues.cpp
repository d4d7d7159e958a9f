// Values: numbers, strings, sets and names as bytes.

#include <algorithm>

#include "vcl/streaming/Writer.h"
#include "vcl/system/CodePage.h"

namespace vcl
{

namespace
{

constexpr std::size_t LongestName = 255;

bool IsAscii(std::u16string_view Text)
{
    return std::all_of(Text.begin(), Text.end(), [](char16_t Unit) { return Unit < 0x80; });
}

} // namespace

void TWriter::WriteBytes(const void* Bytes, std::size_t Count)
{
    FStream.WriteBuffer(Bytes, static_cast<std::int64_t>(Count));
}

void TWriter::WriteValue(TValueType Type)
{
    FStream.WriteByte(static_cast<std::uint8_t>(Type));
}

void TWriter::WriteStr(std::string_view Value)
{
    const std::string_view Kept = Value.substr(0, LongestName);
    FStream.WriteByte(static_cast<std::uint8_t>(Kept.size()));
    WriteBytes(Kept.data(), Kept.size());
}

void TWriter::WriteBoolean(bool Value)
{
    WriteValue(Value ? TValueType::vaTrue : TValueType::vaFalse);
}

void TWriter::WriteChar(char Value)
{
    WriteString(std::string_view(&Value, 1));
}

void TWriter::WriteWideChar(char16_t Value)
{
    WriteWideString(std::u16string_view(&Value, 1));
}

void TWriter::WriteInteger(std::int64_t Value)
{
    if (Value >= INT8_MIN && Value <= INT8_MAX) {
        WriteValue(TValueType::vaInt8);
        FStream.WriteByte(static_cast<std::uint8_t>(Value));
    } else if (Value >= INT16_MIN && Value <= INT16_MAX) {
        WriteValue(TValueType::vaInt16);
        FStream.WriteWord(static_cast<std::uint16_t>(Value));
    } else if (Value >= INT32_MIN && Value <= INT32_MAX) {
        WriteValue(TValueType::vaInt32);
        FStream.WriteDWord(static_cast<std::uint32_t>(Value));
    } else {
        WriteValue(TValueType::vaInt64);
        FStream.WriteDWord(static_cast<std::uint32_t>(Value));
        FStream.WriteDWord(static_cast<std::uint32_t>(Value >> 32));
    }
}

void TWriter::WriteExtended(const TExtended& Value)
{
    WriteValue(TValueType::vaExtended);
    WriteBytes(Value.Bytes().data(), Value.Bytes().size());
}

void TWriter::WriteString(std::string_view Value)
{
    if (Value.size() <= LongestName) {
        WriteValue(TValueType::vaString);
        WriteStr(Value);
        return;
    }
    if (Value.size() > INT32_MAX)
        throw EWriteError("The string is too long for a form");
    WriteValue(TValueType::vaLString);
    FStream.WriteDWord(static_cast<std::uint32_t>(Value.size()));
    WriteBytes(Value.data(), Value.size());
}

void TWriter::WriteWideString(std::u16string_view Value)
{
    if (IsAscii(Value)) {
        WriteString(AnsiString(Value.begin(), Value.end()));
        return;
    }
    if (Value.size() > INT32_MAX / 2)
        throw EWriteError("The string is too long for a form");
    WriteValue(TValueType::vaWString);
    FStream.WriteDWord(static_cast<std::uint32_t>(Value.size()));
    for (char16_t Unit : Value)
        FStream.WriteWord(Unit);
}

void TWriter::WriteIdent(std::string_view Value)
{
    if (SameText(Value, "False"))
        WriteValue(TValueType::vaFalse);
    else if (SameText(Value, "True"))
        WriteValue(TValueType::vaTrue);
    else if (SameText(Value, "nil"))
        WriteValue(TValueType::vaNil);
    else {
        WriteValue(TValueType::vaIdent);
        WriteStr(Value);
    }
}

void TWriter::WriteBinary(const void* Bytes, std::size_t Count)
{
    if (Count > INT32_MAX)
        throw EWriteError("The data is too long for a form");
    WriteValue(TValueType::vaBinary);
    FStream.WriteDWord(static_cast<std::uint32_t>(Count));
    WriteBytes(Bytes, Count);
}

void TWriter::WriteSet(std::int64_t Bits, const TTypeInfo& ElementType)
{
    WriteValue(TValueType::vaSet);
    for (std::size_t Ordinal = 0; Ordinal < ElementType.ValueNames.size(); ++Ordinal)
        if ((Bits >> Ordinal & 1) != 0)
            WriteStr(ElementType.ValueNames[Ordinal]);
    WriteStr("");
}

} // namespace vcl
