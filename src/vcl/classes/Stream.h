#pragma once

#include <cstdint>
#include <vector>

#include "vcl/system/Exception.h"
#include "vcl/system/Object.h"

namespace vcl
{

enum class TSeekOrigin { soBeginning, soCurrent, soEnd };

/// A sequence of bytes with a position. Sizes and positions are in bytes.
class TStream : public TObject
{
    VCL_CLASS
public:
    std::int64_t GetPosition() { return Seek(0, TSeekOrigin::soCurrent); }
    void SetPosition(std::int64_t Position) { Seek(Position, TSeekOrigin::soBeginning); }
    /// -1 when the stream cannot tell.
    virtual std::int64_t GetSize();
    /// Cuts off or appends zeros; EStreamError where that is not possible.
    virtual void SetSize(std::int64_t Size);

    /// Reads or writes at most Count bytes and returns how many; never raises for a short transfer.
    virtual std::int64_t Read(void* Buffer, std::int64_t Count) = 0;
    virtual std::int64_t Write(const void* Buffer, std::int64_t Count) = 0;
    /// Moves the position and returns it; it may lie outside the stream.
    virtual std::int64_t Seek(std::int64_t Offset, TSeekOrigin Origin) = 0;

    /// Transfers exactly Count bytes or raises EReadError / EWriteError.
    void ReadBuffer(void* Buffer, std::int64_t Count);
    void WriteBuffer(const void* Buffer, std::int64_t Count);

    /// Bytes between the position and the end; 0 when the position lies outside, and when the stream cannot
    /// tell its size.
    std::int64_t Remaining();

    /// Fixed-size little-endian values; raise EReadError / EWriteError.
    std::uint8_t ReadByte();
    std::uint16_t ReadWord();
    std::uint32_t ReadDWord();
    std::int32_t ReadInt32() { return static_cast<std::int32_t>(ReadDWord()); }
    double ReadDouble();
    bool ReadBoolean() { return ReadByte() != 0; }
    void WriteByte(std::uint8_t Value);
    void WriteWord(std::uint16_t Value);
    void WriteDWord(std::uint32_t Value);
    void WriteInt32(std::int32_t Value) { WriteDWord(static_cast<std::uint32_t>(Value)); }
    void WriteDouble(double Value);
    void WriteBoolean(bool Value) { WriteByte(Value ? 1 : 0); }

    /// A signed 32-bit byte count followed by that many bytes. A count that is negative or larger than what
    /// is left of the stream raises EReadError before memory is taken for it.
    AnsiString ReadCountedString();
    void WriteCountedString(std::string_view Text);

    /// Copies Count bytes from Source's position, or the whole of Source from its start when Count is 0, and
    /// returns how many. EReadError when Source has fewer or Count is negative; takes a fixed amount of
    /// memory.
    std::int64_t CopyFrom(TStream& Source, std::int64_t Count);
};

/// Everything from Stream's position to its end, whatever size the stream claims to have.
AnsiString ReadToEnd(TStream& Stream);

/// A stream in memory that grows as it is written. Writing behind the end fills the gap with zeros.
class TMemoryStream : public TStream
{
    VCL_CLASS
public:
    std::int64_t GetSize() override { return static_cast<std::int64_t>(FBytes.size()); }
    void SetSize(std::int64_t Size) override;
    std::int64_t Read(void* Buffer, std::int64_t Count) override;
    std::int64_t Write(const void* Buffer, std::int64_t Count) override;
    std::int64_t Seek(std::int64_t Offset, TSeekOrigin Origin) override;

    /// Size and position become 0.
    void Clear();
    const std::uint8_t* GetMemory() const { return FBytes.data(); }
    const std::vector<std::uint8_t>& GetBytes() const { return FBytes; }
    /// Takes the whole of Source, from its start; the position becomes 0. Nothing changes when that fails.
    void LoadFromStream(TStream& Source);
    void LoadFromFile(const AnsiString& FileName);
    /// Writes all bytes; the position stays.
    void SaveToStream(TStream& Target);
    void SaveToFile(const AnsiString& FileName);

private:
    std::vector<std::uint8_t> FBytes;
    std::int64_t FPosition = 0;
};

constexpr int fmCreate = 65535;
constexpr int fmOpenRead = 0;
constexpr int fmOpenWrite = 1;
constexpr int fmOpenReadWrite = 2;

/// A file as a stream; EFCreateError / EFOpenError name the file and the system's reason.
class TFileStream : public TStream
{
    VCL_CLASS
public:
    /// fmCreate makes a new file or empties an old one; the others open an existing one.
    TFileStream(const AnsiString& FileName, int Mode);
    ~TFileStream() override;

    const AnsiString& GetFileName() const { return FFileName; }
    std::int64_t GetSize() override;
    /// The position becomes Size.
    void SetSize(std::int64_t Size) override;
    std::int64_t Read(void* Buffer, std::int64_t Count) override;
    std::int64_t Write(const void* Buffer, std::int64_t Count) override;
    std::int64_t Seek(std::int64_t Offset, TSeekOrigin Origin) override;

private:
    AnsiString FFileName;
    /// Of the operating system; -1 when the file is not open.
    int FDescriptor = -1;
};

} // namespace vcl
