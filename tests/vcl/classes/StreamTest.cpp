#include <climits>
#include <cmath>
#include <fstream>
#include <limits>

#include <gtest/gtest.h>

#include "support/Hex.h"
#include "support/TemporaryFolder.h"
#include "vcl/classes/Stream.h"

namespace vcl::tests
{

namespace
{

/// A stream of the given bytes that says what the test tells it to about its size, and remembers how much was
/// asked of it at once.
class TBoastingStream : public TStream
{
public:
    TBoastingStream(std::string Bytes, std::int64_t ClaimedSize)
        : FBytes(std::move(Bytes)), FClaimedSize(ClaimedSize)
    {
    }

    std::int64_t GetSize() override { return FClaimedSize; }
    std::int64_t Read(void* Buffer, std::int64_t Count) override
    {
        FLargestRequest = std::max(FLargestRequest, Count);
        const auto Left = static_cast<std::int64_t>(FBytes.size()) - FPosition;
        const std::int64_t Transfer = std::min(Count, Left);
        std::copy_n(FBytes.data() + FPosition, Transfer, static_cast<char*>(Buffer));
        FPosition += Transfer;
        return Transfer;
    }
    std::int64_t Write(const void*, std::int64_t) override { return 0; }
    std::int64_t Seek(std::int64_t Offset, TSeekOrigin Origin) override
    {
        if (Origin == TSeekOrigin::soBeginning)
            FPosition = Offset;
        return FPosition;
    }

    std::int64_t GetLargestRequest() const { return FLargestRequest; }

private:
    std::string FBytes;
    std::int64_t FClaimedSize;
    std::int64_t FPosition = 0;
    std::int64_t FLargestRequest = 0;
};

constexpr std::int64_t SmallRequest = 1 << 20;

void Put(TStream& Stream, const std::string& Hex)
{
    const std::string Bytes = FromHex(Hex);
    Stream.WriteBuffer(Bytes.data(), static_cast<std::int64_t>(Bytes.size()));
    Stream.SetPosition(0);
}

std::string HexOf(const TMemoryStream& Stream)
{
    return ToHex(std::string(Stream.GetBytes().begin(), Stream.GetBytes().end()));
}

} // namespace

TEST(Stream, ValuesAreLittleEndian)
{
    TMemoryStream Stream;
    Stream.WriteByte(0xFE);
    Stream.WriteWord(0x1234);
    Stream.WriteDWord(0x89ABCDEF);
    Stream.WriteInt32(-2);
    Stream.WriteDouble(-1.25);
    Stream.WriteBoolean(true);
    EXPECT_EQ("FE3412EFCDAB89FEFFFFFF000000000000F4BF01", HexOf(Stream));
    Stream.SetPosition(0);
    EXPECT_EQ(0xFE, Stream.ReadByte());
    EXPECT_EQ(0x1234, Stream.ReadWord());
    EXPECT_EQ(0x89ABCDEF, Stream.ReadDWord());
    EXPECT_EQ(-2, Stream.ReadInt32());
    EXPECT_EQ(-1.25, Stream.ReadDouble());
    EXPECT_TRUE(Stream.ReadBoolean());
    EXPECT_EQ(0, Stream.Remaining());
    EXPECT_THROW(Stream.ReadDouble(), EReadError);
}

TEST(Stream, ADoubleKeepsItsBits)
{
    TMemoryStream Stream;
    Put(Stream, "010000000000F87F");
    const double Value = Stream.ReadDouble();
    EXPECT_TRUE(std::isnan(Value));
    TMemoryStream Copy;
    Copy.WriteDouble(Value);
    EXPECT_EQ("010000000000F87F", HexOf(Copy));
}

TEST(CountedString, KeepsEveryByte)
{
    TMemoryStream Stream;
    const AnsiString Text("a\0\xFF\r\n", 5);
    Stream.WriteCountedString(Text);
    Stream.WriteCountedString("");
    EXPECT_EQ("050000006100FF0D0A00000000", HexOf(Stream));
    Stream.SetPosition(0);
    EXPECT_EQ(Text, Stream.ReadCountedString());
    EXPECT_EQ("", Stream.ReadCountedString());
}

TEST(CountedString, ALengthThatLiesIsAReadError)
{
    for (const char* Hex : {"FFFFFFFF61", "FFFFFF7F61", "0000008061", "0200000061", "010000", ""}) {
        TMemoryStream Stream;
        Put(Stream, Hex);
        EXPECT_THROW(Stream.ReadCountedString(), EReadError) << Hex;
    }
}

TEST(CountedString, AStreamThatClaimsAHugeSizeCostsNoMoreThanItHas)
{
    TBoastingStream Stream(FromHex("FFFFFF7F6161"), INT64_MAX);
    EXPECT_THROW(Stream.ReadCountedString(), EReadError);
    EXPECT_LE(Stream.GetLargestRequest(), SmallRequest);
}

TEST(CountedString, AStreamThatCannotTellItsSizeIsReadPieceByPiece)
{
    TBoastingStream Lying(FromHex("FFFFFF7F6161"), -1);
    EXPECT_THROW(Lying.ReadCountedString(), EReadError);
    EXPECT_LE(Lying.GetLargestRequest(), SmallRequest);
    TBoastingStream Honest(FromHex("020000006162"), -1);
    EXPECT_EQ("ab", Honest.ReadCountedString());
    std::string Bytes = FromHex("40420F00"); // a million
    Bytes.append(1000000, 'x');
    TBoastingStream Long(Bytes, -1);
    EXPECT_EQ(std::string(1000000, 'x'), Long.ReadCountedString());
}

TEST(Stream, NegativeCountsAreErrors)
{
    TMemoryStream Stream;
    Put(Stream, "0102");
    char Buffer[4] = {};
    EXPECT_THROW(Stream.ReadBuffer(Buffer, -1), EReadError);
    EXPECT_THROW(Stream.WriteBuffer(Buffer, -1), EWriteError);
    TMemoryStream Target;
    EXPECT_THROW(Target.CopyFrom(Stream, -1), EReadError);
    EXPECT_THROW(Target.CopyFrom(Stream, INT64_MIN), EReadError);
    EXPECT_EQ(0, Target.GetSize());
}

TEST(CopyFrom, GoesPieceByPieceHoweverMuchIsAskedFor)
{
    TBoastingStream Source("abc", INT64_MAX);
    TMemoryStream Target;
    EXPECT_THROW(Target.CopyFrom(Source, INT64_MAX), EReadError);
    EXPECT_THROW(Target.CopyFrom(Source, 0), EReadError);
    EXPECT_LE(Source.GetLargestRequest(), SmallRequest);
    EXPECT_EQ(0, Target.GetSize());
}

TEST(CopyFrom, CopiesManyPieces)
{
    TMemoryStream Source;
    for (std::uint32_t Value = 0; Value < 100000; ++Value)
        Source.WriteDWord(Value * 2654435761U);
    TMemoryStream Target;
    EXPECT_EQ(400000, Target.CopyFrom(Source, 0));
    EXPECT_EQ(Source.GetBytes(), Target.GetBytes());
    Source.SetPosition(4);
    EXPECT_EQ(399990, Target.CopyFrom(Source, 399990));
    EXPECT_EQ(399994, Source.GetPosition());
    EXPECT_EQ(799990, Target.GetSize());
}

TEST(CopyFrom, TakesAllOfAStreamThatCannotTellItsSize)
{
    TBoastingStream Source(std::string(10000, 'z'), -1);
    TMemoryStream Target;
    EXPECT_EQ(10000, Target.CopyFrom(Source, 0));
    EXPECT_EQ(10000, Target.GetSize());
}

TEST(ReadToEnd, TakesWhatIsThereWhateverTheStreamClaims)
{
    for (const std::int64_t Claim : {std::int64_t{-1}, std::int64_t{0}, std::int64_t{INT64_MAX}}) {
        TBoastingStream Stream(std::string(70000, 'y'), Claim);
        Stream.SetPosition(1);
        EXPECT_EQ(std::string(69999, 'y'), ReadToEnd(Stream));
    }
}

TEST(Stream, NothingRemainsOutsideTheStream)
{
    TMemoryStream Stream;
    Put(Stream, "010203");
    Stream.SetPosition(1);
    EXPECT_EQ(2, Stream.Remaining());
    Stream.SetPosition(7);
    EXPECT_EQ(0, Stream.Remaining());
    Stream.SetPosition(-2);
    EXPECT_EQ(0, Stream.Remaining());
    TBoastingStream Unknown("abc", -1);
    EXPECT_EQ(0, Unknown.Remaining());
}

TEST(MemoryStream, WritingBehindTheEndFillsTheGapWithZeros)
{
    TMemoryStream Stream;
    Put(Stream, "FF");
    Stream.SetPosition(3);
    Stream.WriteByte(1);
    EXPECT_EQ("FF000001", HexOf(Stream));
}

TEST(MemoryStream, PositionsBeyondAnyMemoryAreErrorsOnlyWhenWritten)
{
    TMemoryStream Stream;
    Put(Stream, "0102");
    EXPECT_EQ(INT64_MAX, Stream.Seek(INT64_MAX, TSeekOrigin::soEnd));
    EXPECT_EQ(INT64_MAX, Stream.Seek(5, TSeekOrigin::soCurrent));
    EXPECT_THROW(Stream.WriteByte(1), EStreamError);
    EXPECT_EQ(2, Stream.GetSize());
    Stream.SetPosition(-1);
    EXPECT_THROW(Stream.WriteByte(1), EWriteError);
    EXPECT_THROW(Stream.SetSize(-1), EStreamError);
    EXPECT_EQ("0102", HexOf(Stream));
}

TEST(MemoryStream, LoadingTakesAllAndAFailureChangesNothing)
{
    TMemoryStream Source;
    Put(Source, "010203");
    Source.SetPosition(2);
    TMemoryStream Stream;
    Put(Stream, "FF");
    Stream.LoadFromStream(Source);
    EXPECT_EQ("010203", HexOf(Stream));
    EXPECT_EQ(0, Stream.GetPosition());
    TBoastingStream Lying("abc", 1000);
    EXPECT_THROW(Stream.LoadFromStream(Lying), EReadError);
    EXPECT_EQ("010203", HexOf(Stream));
}

TEST(MemoryStream, FilesHoldItsBytes)
{
    const TTemporaryFolder Folder;
    TMemoryStream Stream;
    Put(Stream, "00FF10");
    Stream.SetPosition(1);
    Stream.SaveToFile(Folder.File("bytes.bin"));
    EXPECT_EQ(1, Stream.GetPosition());
    TMemoryStream Copy;
    Copy.LoadFromFile(Folder.File("bytes.bin"));
    EXPECT_EQ("00FF10", HexOf(Copy));
}

TEST(FileStream, AnErrorNamesTheFileAndTheReason)
{
    const TTemporaryFolder Folder;
    const AnsiString Name = Folder.File("missing.ics");
    try {
        TFileStream Stream(Name, fmOpenRead);
        FAIL();
    } catch (const EFOpenError& Error) {
        EXPECT_EQ("Unable to open file \"" + Name + "\": No such file or directory", Error.GetMessage());
    }
}

TEST(FileStream, ANameWithANullCharacterOpensNothing)
{
    const TTemporaryFolder Folder;
    std::ofstream(Folder.File("a")) << "secret";
    EXPECT_THROW(TFileStream(Folder.File("a") + AnsiString("\0.txt", 5), fmOpenRead), EFOpenError);
}

TEST(FileStream, AFileIsThereOnceTheStreamIsGone)
{
    const TTemporaryFolder Folder;
    {
        TFileStream Stream(Folder.File("out.bin"), fmCreate);
        Stream.WriteCountedString("hello");
        EXPECT_EQ(9, Stream.GetSize());
        EXPECT_EQ(Folder.File("out.bin"), Stream.GetFileName());
    }
    TFileStream Stream(Folder.File("out.bin"), fmOpenRead);
    EXPECT_EQ("hello", Stream.ReadCountedString());
}

TEST(FileStream, ADeviceThatHasNoSizeCanBeRead)
{
    TFileStream Zeros("/dev/zero", fmOpenRead);
    EXPECT_EQ(0U, Zeros.ReadDWord());
}

} // namespace vcl::tests
