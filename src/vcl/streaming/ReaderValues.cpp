// Values: from the bytes of the stream to strings, sets and lists.

#include <algorithm>
#include <bit>
#include <climits>

#include "vcl/classes/Collection.h"
#include "vcl/streaming/ReaderDepth.h"
#include "vcl/system/CodePage.h"

namespace vcl
{

namespace
{

constexpr std::size_t BufferSize = 4096;

} // namespace

void TReader::InvalidValue()
{
    throw EReadError("The value is of a kind that does not fit here");
}

std::int64_t TReader::GetPosition()
{
    return FStream.GetPosition() - static_cast<std::int64_t>(FBuffer.size() - FBufferPosition);
}

void TReader::SetPosition(std::int64_t Position)
{
    FStream.SetPosition(Position);
    FBuffer.clear();
    FBufferPosition = 0;
}

void TReader::FlushBuffer()
{
    SetPosition(GetPosition());
}

std::int64_t TReader::Available()
{
    return FStream.Remaining() + static_cast<std::int64_t>(FBuffer.size() - FBufferPosition);
}

std::uint8_t TReader::PeekByte()
{
    if (FBufferPosition == FBuffer.size()) {
        FBuffer.resize(BufferSize);
        FBufferPosition = 0;
        const std::int64_t Count = FStream.Read(FBuffer.data(), BufferSize);
        FBuffer.resize(static_cast<std::size_t>(std::max<std::int64_t>(Count, 0)));
        if (FBuffer.empty())
            throw EReadError("The stream ends inside the form");
    }
    return FBuffer[FBufferPosition];
}

std::uint8_t TReader::ReadByte()
{
    const std::uint8_t Byte = PeekByte();
    ++FBufferPosition;
    return Byte;
}

void TReader::ReadBytes(void* Buffer, std::size_t Count)
{
    auto* Target = static_cast<std::uint8_t*>(Buffer);
    while (Count > 0) {
        PeekByte();
        const std::size_t Part = std::min(Count, FBuffer.size() - FBufferPosition);
        std::copy_n(FBuffer.data() + FBufferPosition, Part, Target);
        FBufferPosition += Part;
        Target += Part;
        Count -= Part;
    }
}

void TReader::SkipBytes(std::int64_t Count)
{
    if (Count > Available())
        throw EReadError("The stream ends inside the form");
    SetPosition(GetPosition() + Count);
}

std::uint64_t TReader::ReadLittleEndian(int Count)
{
    std::uint64_t Result = 0;
    for (int Index = 0; Index < Count; ++Index)
        Result |= static_cast<std::uint64_t>(ReadByte()) << (8 * Index);
    return Result;
}

std::size_t TReader::ReadLength(std::size_t UnitSize)
{
    const std::uint64_t Size = ReadLittleEndian(4) * UnitSize;
    if (static_cast<std::int64_t>(Size) > Available())
        throw EReadError("A value is longer than the rest of the stream");
    return static_cast<std::size_t>(Size);
}

AnsiString TReader::ReadCharacters(std::size_t Count)
{
    AnsiString Result(Count, '\0');
    ReadBytes(Result.data(), Count);
    return Result;
}

AnsiString TReader::ReadStr()
{
    return ReadCharacters(ReadByte());
}

TValueType TReader::NextValue()
{
    return static_cast<TValueType>(PeekByte());
}

TValueType TReader::ReadValue()
{
    return static_cast<TValueType>(ReadByte());
}

bool TReader::EndOfList()
{
    return NextValue() == TValueType::vaNull;
}

void TReader::ReadListBegin()
{
    if (NextValue() != TValueType::vaList)
        InvalidValue();
    ReadValue();
}

void TReader::ReadListEnd()
{
    if (NextValue() != TValueType::vaNull)
        InvalidValue();
    ReadValue();
}

bool TReader::ReadBoolean()
{
    const TValueType Type = NextValue();
    if (Type != TValueType::vaTrue && Type != TValueType::vaFalse)
        InvalidValue();
    return ReadValue() == TValueType::vaTrue;
}

std::int64_t TReader::ReadInt64()
{
    switch (NextValue()) {
    case TValueType::vaInt8:
        ReadValue();
        return static_cast<std::int8_t>(ReadLittleEndian(1));
    case TValueType::vaInt16:
        ReadValue();
        return static_cast<std::int16_t>(ReadLittleEndian(2));
    case TValueType::vaInt32:
        ReadValue();
        return static_cast<std::int32_t>(ReadLittleEndian(4));
    case TValueType::vaInt64:
        ReadValue();
        return static_cast<std::int64_t>(ReadLittleEndian(8));
    default:
        InvalidValue();
    }
}

int TReader::ReadInteger()
{
    const std::int64_t Value = ReadInt64();
    if (Value < INT_MIN || Value > INT_MAX)
        throw EReadError("The number " + IntToStr(Value) + " does not fit into 32 bits");
    return static_cast<int>(Value);
}

TExtended TReader::ReadExtended()
{
    switch (NextValue()) {
    case TValueType::vaExtended: {
        ReadValue();
        std::array<std::uint8_t, 10> Bytes{};
        ReadBytes(Bytes.data(), Bytes.size());
        return TExtended(Bytes);
    }
    case TValueType::vaSingle:
        ReadValue();
        return TExtended(double{std::bit_cast<float>(static_cast<std::uint32_t>(ReadLittleEndian(4)))});
    case TValueType::vaDate:
    case TValueType::vaDouble:
        ReadValue();
        return TExtended(std::bit_cast<double>(ReadLittleEndian(8)));
    case TValueType::vaCurrency:
        ReadValue();
        return TExtended(TCurrency{static_cast<std::int64_t>(ReadLittleEndian(8))});
    default:
        return TExtended::FromInt64(ReadInt64());
    }
}

AnsiString TReader::ReadString()
{
    switch (NextValue()) {
    case TValueType::vaString:
        ReadValue();
        return ReadStr();
    case TValueType::vaLString:
        ReadValue();
        return ReadCharacters(ReadLength(1));
    case TValueType::vaUTF8String:
        ReadValue();
        return GetDefaultCodePage() == cpUtf8 ? ReadCharacters(ReadLength(1))
                                              : Utf8ToAnsi(ReadCharacters(ReadLength(1)));
    case TValueType::vaWString:
        return WideToAnsi(ReadWideString());
    default:
        InvalidValue();
    }
}

WideString TReader::ReadWideString()
{
    switch (NextValue()) {
    case TValueType::vaWString: {
        ReadValue();
        WideString Result(ReadLength(2) / 2, u'\0');
        for (char16_t& Unit : Result)
            Unit = static_cast<char16_t>(ReadLittleEndian(2));
        return Result;
    }
    case TValueType::vaUTF8String:
        ReadValue();
        return Utf8ToWide(ReadCharacters(ReadLength(1)));
    default:
        return AnsiToWide(ReadString());
    }
}

char TReader::ReadChar()
{
    const AnsiString Text = ReadString();
    if (Text.size() != 1)
        InvalidValue();
    return Text.front();
}

char16_t TReader::ReadWideChar()
{
    const WideString Text = ReadWideString();
    if (Text.size() != 1)
        InvalidValue();
    return Text.front();
}

AnsiString TReader::ReadIdent()
{
    switch (NextValue()) {
    case TValueType::vaIdent:
        ReadValue();
        return ReadStr();
    case TValueType::vaFalse:
        ReadValue();
        return "False";
    case TValueType::vaTrue:
        ReadValue();
        return "True";
    case TValueType::vaNil:
        ReadValue();
        return "nil";
    default:
        InvalidValue();
    }
}

std::vector<std::uint8_t> TReader::ReadBinary()
{
    if (NextValue() != TValueType::vaBinary)
        InvalidValue();
    ReadValue();
    std::vector<std::uint8_t> Result(ReadLength(1));
    ReadBytes(Result.data(), Result.size());
    return Result;
}

std::int64_t TReader::ReadSet(const TTypeInfo& ElementType)
{
    if (NextValue() != TValueType::vaSet)
        InvalidValue();
    ReadValue();
    std::int64_t Bits = 0;
    for (AnsiString Name = ReadStr(); !Name.empty(); Name = ReadStr()) {
        const std::optional<std::int64_t> Ordinal = ElementType.OrdinalOf(Name);
        if (!Ordinal)
            throw EReadError("\"" + Name + "\" is no " + ElementType.Name);
        Bits |= std::int64_t{1} << *Ordinal;
    }
    return Bits;
}

void TReader::SkipProperties()
{
    while (!EndOfList()) {
        ReadStr();
        SkipValue();
    }
    ReadListEnd();
}

void TReader::SkipValue()
{
    const TDepth Depth(*this);
    switch (NextValue()) {
    case TValueType::vaList:
        ReadListBegin();
        while (!EndOfList())
            SkipValue();
        ReadListEnd();
        break;
    case TValueType::vaInt8:
    case TValueType::vaInt16:
    case TValueType::vaInt32:
    case TValueType::vaInt64:
        ReadInt64();
        break;
    case TValueType::vaExtended:
    case TValueType::vaSingle:
    case TValueType::vaCurrency:
    case TValueType::vaDate:
    case TValueType::vaDouble:
        ReadExtended();
        break;
    case TValueType::vaString:
    case TValueType::vaIdent:
        ReadValue();
        ReadStr();
        break;
    case TValueType::vaFalse:
    case TValueType::vaTrue:
    case TValueType::vaNil:
        ReadValue();
        break;
    case TValueType::vaBinary:
    case TValueType::vaLString:
    case TValueType::vaUTF8String:
        ReadValue();
        SkipBytes(static_cast<std::int64_t>(ReadLength(1)));
        break;
    case TValueType::vaWString:
        ReadValue();
        SkipBytes(static_cast<std::int64_t>(ReadLength(2)));
        break;
    case TValueType::vaSet:
        ReadValue();
        while (!ReadStr().empty()) {
        }
        break;
    case TValueType::vaCollection:
        ReadValue();
        while (!EndOfList()) {
            if (NextValue() != TValueType::vaList)
                ReadInt64();
            ReadListBegin();
            SkipProperties();
        }
        ReadListEnd();
        break;
    default:
        throw EReadError("Unknown kind of value: " + IntToStr(PeekByte()));
    }
}

} // namespace vcl
