#include "vcl/streaming/FormFile.h"

#include "vcl/streaming/Reader.h"
#include "vcl/streaming/Writer.h"

namespace vcl
{

namespace
{

constexpr std::uint8_t ResourceMark = 0xFF;
constexpr std::uint16_t DataResource = 10;
constexpr std::uint16_t ResourceFlags = 0x1030;

bool BeginsObject(std::string_view Text)
{
    if (Text.substr(0, 3) == "\xEF\xBB\xBF")
        Text.remove_prefix(3);
    while (!Text.empty() && (Text.front() == ' ' || (Text.front() >= '\t' && Text.front() <= '\r')))
        Text.remove_prefix(1);
    for (std::string_view Word : {"object", "inherited", "inline"})
        if (SameText(Text.substr(0, Word.size()), Word))
            return true;
    return false;
}

/// Raises the error again with the file's name in its message; its class stays.
template <class TError>
[[noreturn]] void RaiseNamed(const AnsiString& FileName, const Exception& Error)
{
    throw TError(FileName + ": " + Error.what());
}

} // namespace

TStreamOriginalFormat TestStreamFormat(TStream& Stream)
{
    char Start[256] = {};
    const std::int64_t Position = Stream.GetPosition();
    const std::int64_t Count = Stream.Read(Start, sizeof Start);
    Stream.SetPosition(Position);
    const std::string_view Text(Start, static_cast<std::size_t>(std::max<std::int64_t>(Count, 0)));
    if (Text.substr(0, 4) == "TPF0")
        return TStreamOriginalFormat::sofBinary;
    if (!Text.empty() && static_cast<std::uint8_t>(Text.front()) == ResourceMark)
        return TStreamOriginalFormat::sofResource;
    return BeginsObject(Text) ? TStreamOriginalFormat::sofText : TStreamOriginalFormat::sofUnknown;
}

void WriteResourceHeader(TStream& Stream, const AnsiString& ResourceName, std::int64_t Size)
{
    Stream.WriteByte(ResourceMark);
    Stream.WriteWord(DataResource);
    const AnsiString Name = UpperCase(ResourceName);
    Stream.WriteBuffer(Name.c_str(), static_cast<std::int64_t>(Name.size()) + 1);
    Stream.WriteWord(ResourceFlags);
    Stream.WriteDWord(static_cast<std::uint32_t>(Size));
}

std::int64_t ReadResourceHeader(TStream& Stream)
{
    if (Stream.Remaining() < 10 || Stream.ReadByte() != ResourceMark || Stream.ReadWord() != DataResource)
        throw EInvalidImage("Invalid stream format: this is not a form resource");
    while (Stream.ReadByte() != 0) {
    }
    if (Stream.ReadWord() != ResourceFlags)
        throw EInvalidImage("Invalid stream format: this is not a form resource");
    const std::int64_t Size = Stream.ReadDWord();
    if (Size > Stream.Remaining())
        throw EInvalidImage("The form resource is longer than the stream");
    return Size;
}

void ObjectTextToResource(TStream& Input, TStream& Output)
{
    TMemoryStream Image;
    ObjectTextToBinary(Input, Image);
    Image.SetPosition(4);
    TReader Reader(Image);
    if ((static_cast<unsigned>(Reader.NextValue()) & 0xF0u) == 0xF0u &&
        (static_cast<unsigned>(Reader.ReadValue()) & 2u) != 0)
        Reader.ReadInt64();
    WriteResourceHeader(Output, Reader.ReadStr(), Image.GetSize());
    Output.WriteBuffer(Image.GetMemory(), Image.GetSize());
}

void ObjectResourceToText(TStream& Input, TStream& Output)
{
    const std::int64_t Size = ReadResourceHeader(Input);
    const std::int64_t Start = Input.GetPosition();
    ObjectBinaryToText(Input, Output);
    Input.SetPosition(Start + Size);
}

TStream& OpenFormImage(TStream& Stream, TMemoryStream& Converted, const TObjectTextOptions& Options)
{
    switch (TestStreamFormat(Stream)) {
    case TStreamOriginalFormat::sofBinary:
        return Stream;
    case TStreamOriginalFormat::sofResource:
        ReadResourceHeader(Stream);
        return Stream;
    case TStreamOriginalFormat::sofText:
        Converted.Clear();
        ObjectTextToBinary(Stream, Converted, Options);
        Converted.SetPosition(0);
        return Converted;
    case TStreamOriginalFormat::sofUnknown:
        break;
    }
    throw EReadError("Invalid stream format: this is neither a binary form nor a form text");
}

TComponent* ReadForm(TStream& Stream, TComponent* Root, const std::function<void(TReader&)>& Prepare)
{
    TMemoryStream Converted;
    TReader Reader(OpenFormImage(Stream, Converted));
    if (Prepare)
        Prepare(Reader);
    return Reader.ReadRootComponent(Root);
}

TComponent* ReadFormFile(const AnsiString& FileName, TComponent* Root,
                         const std::function<void(TReader&)>& Prepare)
{
    TMemoryStream Stream;
    Stream.LoadFromFile(FileName);
    Stream.SetPosition(0);
    try {
        return ReadForm(Stream, Root, Prepare);
    } catch (const EParserError& Error) {
        RaiseNamed<EParserError>(FileName, Error);
    } catch (const EClassNotFound& Error) {
        RaiseNamed<EClassNotFound>(FileName, Error);
    } catch (const EReadError& Error) {
        RaiseNamed<EReadError>(FileName, Error);
    } catch (const EInvalidImage& Error) {
        RaiseNamed<EInvalidImage>(FileName, Error);
    } catch (const EComponentError& Error) {
        RaiseNamed<EComponentError>(FileName, Error);
    }
}

TComponent* ReadComponent(TStream& Stream, TComponent* Instance)
{
    return TReader(Stream).ReadRootComponent(Instance);
}

void WriteComponent(TStream& Stream, TComponent* Instance, TComponent* Ancestor)
{
    TWriter(Stream).WriteDescendent(Instance, Ancestor);
}

} // namespace vcl
