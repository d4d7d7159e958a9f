#include <algorithm>
#include <cstring>
#include <new>
#include <utility>

#include "vcl/classes/Properties.h"
#include "vcl/classes/Stream.h"

namespace vcl
{

namespace
{

/// More than this is a mistake in a position or size, not a wish.
constexpr std::int64_t LargestSize = std::int64_t{1} << 36;

/// Resizes, with running out of memory as the stream error it is to the caller.
void Resize(std::vector<std::uint8_t>& Bytes, std::int64_t Size)
{
    if (Size < 0 || Size > LargestSize)
        throw EStreamError("A stream in memory cannot hold " + IntToStr(Size) + " bytes");
    try {
        Bytes.resize(static_cast<std::size_t>(Size));
    } catch (const std::bad_alloc&) {
        throw EStreamError("Out of memory for a stream of " + IntToStr(Size) + " bytes");
    }
}

/// The sum, or the end of the range.
std::int64_t SaturatedSum(std::int64_t Left, std::int64_t Right)
{
    std::int64_t Sum = 0;
    if (!__builtin_add_overflow(Left, Right, &Sum))
        return Sum;
    return Right < 0 ? INT64_MIN : INT64_MAX;
}

} // namespace

const TClass& TMemoryStream::StaticClass()
{
    static const TClass Class = DefineClass<TMemoryStream, TStream>("TMemoryStream");
    return Class;
}

void TMemoryStream::SetSize(std::int64_t Size)
{
    Resize(FBytes, Size);
    FPosition = std::min(FPosition, Size);
}

std::int64_t TMemoryStream::Read(void* Buffer, std::int64_t Count)
{
    const std::int64_t Size = GetSize();
    if (FPosition < 0 || FPosition >= Size || Count <= 0)
        return 0;
    const std::int64_t Transfer = std::min(Count, Size - FPosition);
    std::memcpy(Buffer, FBytes.data() + FPosition, static_cast<std::size_t>(Transfer));
    FPosition += Transfer;
    return Transfer;
}

std::int64_t TMemoryStream::Write(const void* Buffer, std::int64_t Count)
{
    if (FPosition < 0 || Count <= 0)
        return 0;
    const std::int64_t End = SaturatedSum(FPosition, Count);
    if (End > GetSize())
        Resize(FBytes, End);
    std::memcpy(FBytes.data() + FPosition, Buffer, static_cast<std::size_t>(Count));
    FPosition = End;
    return Count;
}

std::int64_t TMemoryStream::Seek(std::int64_t Offset, TSeekOrigin Origin)
{
    switch (Origin) {
    case TSeekOrigin::soBeginning:
        FPosition = Offset;
        break;
    case TSeekOrigin::soCurrent:
        FPosition = SaturatedSum(FPosition, Offset);
        break;
    case TSeekOrigin::soEnd:
        FPosition = SaturatedSum(GetSize(), Offset);
        break;
    }
    return FPosition;
}

void TMemoryStream::Clear()
{
    std::vector<std::uint8_t>().swap(FBytes);
    FPosition = 0;
}

void TMemoryStream::LoadFromStream(TStream& Source)
{
    TMemoryStream Copy;
    Copy.CopyFrom(Source, 0);
    FBytes = std::move(Copy.FBytes);
    FPosition = 0;
}

void TMemoryStream::LoadFromFile(const AnsiString& FileName)
{
    TFileStream Source(FileName, fmOpenRead);
    LoadFromStream(Source);
}

void TMemoryStream::SaveToStream(TStream& Target)
{
    Target.WriteBuffer(FBytes.data(), GetSize());
}

void TMemoryStream::SaveToFile(const AnsiString& FileName)
{
    TFileStream Target(FileName, fmCreate);
    SaveToStream(Target);
}

} // namespace vcl
