#include "vcl/classes/Stream.h"

#include <algorithm>
#include <array>
#include <cstring>
#include <limits>

#include "vcl/classes/Properties.h"

namespace vcl
{

namespace
{

/// Memory is taken in steps of this size, so a length that lies costs no more than the bytes that are there.
constexpr std::int64_t ChunkSize = 65536;

[[noreturn]] void RaiseReadError()
{
    throw EReadError("Stream read error");
}

[[noreturn]] void RaiseWriteError()
{
    throw EWriteError("Stream write error");
}

template <class TValue>
TValue ReadLittleEndian(TStream& Stream)
{
    std::array<std::uint8_t, sizeof(TValue)> Bytes{};
    Stream.ReadBuffer(Bytes.data(), sizeof(TValue));
    TValue Value = 0;
    for (std::size_t Index = 0; Index < sizeof(TValue); ++Index)
        Value = static_cast<TValue>(Value | static_cast<TValue>(Bytes[Index]) << (8 * Index));
    return Value;
}

template <class TValue>
void WriteLittleEndian(TStream& Stream, TValue Value)
{
    std::array<std::uint8_t, sizeof(TValue)> Bytes{};
    for (std::size_t Index = 0; Index < sizeof(TValue); ++Index)
        Bytes[Index] = static_cast<std::uint8_t>(Value >> (8 * Index));
    Stream.WriteBuffer(Bytes.data(), sizeof(TValue));
}

/// Appends Count bytes to Text, growing it only as the bytes arrive.
void AppendBytes(TStream& Stream, AnsiString& Text, std::int64_t Count)
{
    while (Count > 0) {
        const std::int64_t Step = std::min(Count, ChunkSize);
        const std::size_t Filled = Text.size();
        Text.resize(Filled + static_cast<std::size_t>(Step));
        Stream.ReadBuffer(Text.data() + Filled, Step);
        Count -= Step;
    }
}

/// Copies what is left of a stream that cannot tell its size.
std::int64_t CopyToEnd(TStream& Source, TStream& Target)
{
    std::array<std::uint8_t, 4096> Buffer{};
    std::int64_t Copied = 0;
    for (;;) {
        const std::int64_t Count = Source.Read(Buffer.data(), static_cast<std::int64_t>(Buffer.size()));
        if (Count <= 0)
            return Copied;
        Target.WriteBuffer(Buffer.data(), Count);
        Copied += Count;
    }
}

} // namespace

const TClass& TStream::StaticClass()
{
    static const TClass Class = DefineClass<TStream, TObject>("TStream");
    return Class;
}

std::int64_t TStream::GetSize()
{
    const std::int64_t Position = Seek(0, TSeekOrigin::soCurrent);
    const std::int64_t Size = Seek(0, TSeekOrigin::soEnd);
    Seek(Position, TSeekOrigin::soBeginning);
    return Size;
}

void TStream::SetSize(std::int64_t)
{
    throw EStreamError("The size of this stream cannot be set");
}

void TStream::ReadBuffer(void* Buffer, std::int64_t Count)
{
    if (Count < 0 || Read(Buffer, Count) != Count)
        RaiseReadError();
}

void TStream::WriteBuffer(const void* Buffer, std::int64_t Count)
{
    if (Count < 0 || Write(Buffer, Count) != Count)
        RaiseWriteError();
}

std::int64_t TStream::Remaining()
{
    const std::int64_t Size = GetSize();
    const std::int64_t Position = GetPosition();
    return Position >= 0 && Position < Size ? Size - Position : 0;
}

std::uint8_t TStream::ReadByte()
{
    return ReadLittleEndian<std::uint8_t>(*this);
}

std::uint16_t TStream::ReadWord()
{
    return ReadLittleEndian<std::uint16_t>(*this);
}

std::uint32_t TStream::ReadDWord()
{
    return ReadLittleEndian<std::uint32_t>(*this);
}

double TStream::ReadDouble()
{
    const auto Bits = ReadLittleEndian<std::uint64_t>(*this);
    double Value = 0;
    std::memcpy(&Value, &Bits, sizeof(Value));
    return Value;
}

void TStream::WriteByte(std::uint8_t Value)
{
    WriteLittleEndian(*this, Value);
}

void TStream::WriteWord(std::uint16_t Value)
{
    WriteLittleEndian(*this, Value);
}

void TStream::WriteDWord(std::uint32_t Value)
{
    WriteLittleEndian(*this, Value);
}

void TStream::WriteDouble(double Value)
{
    std::uint64_t Bits = 0;
    std::memcpy(&Bits, &Value, sizeof(Bits));
    WriteLittleEndian(*this, Bits);
}

AnsiString TStream::ReadCountedString()
{
    const std::int32_t Length = ReadInt32();
    if (Length < 0 || (GetSize() >= 0 && Length > Remaining()))
        RaiseReadError();
    AnsiString Text;
    AppendBytes(*this, Text, Length);
    return Text;
}

void TStream::WriteCountedString(std::string_view Text)
{
    if (Text.size() > static_cast<std::size_t>(std::numeric_limits<std::int32_t>::max()))
        RaiseWriteError();
    WriteInt32(static_cast<std::int32_t>(Text.size()));
    WriteBuffer(Text.data(), static_cast<std::int64_t>(Text.size()));
}

std::int64_t TStream::CopyFrom(TStream& Source, std::int64_t Count)
{
    if (Count < 0)
        RaiseReadError();
    if (Count == 0) {
        Source.SetPosition(0);
        Count = Source.GetSize();
        if (Count < 0)
            return CopyToEnd(Source, *this);
    }
    std::vector<std::uint8_t> Buffer(static_cast<std::size_t>(std::min(Count, ChunkSize)));
    for (std::int64_t Left = Count; Left > 0;) {
        const std::int64_t Step = std::min(Left, ChunkSize);
        Source.ReadBuffer(Buffer.data(), Step);
        WriteBuffer(Buffer.data(), Step);
        Left -= Step;
    }
    return Count;
}

AnsiString ReadToEnd(TStream& Stream)
{
    AnsiString Text;
    std::int64_t Count = 0;
    do {
        const std::size_t Filled = Text.size();
        Text.resize(Filled + static_cast<std::size_t>(ChunkSize));
        Count = std::max<std::int64_t>(Stream.Read(Text.data() + Filled, ChunkSize), 0);
        Text.resize(Filled + static_cast<std::size_t>(Count));
    } while (Count > 0);
    return Text;
}

} // namespace vcl
