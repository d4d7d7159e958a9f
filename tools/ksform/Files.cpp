#include "ksform/Files.h"

#include <algorithm>
#include <cstdio>
#include <filesystem>
#include <unistd.h>

#include "vcl/streaming/Reader.h"

namespace ksform
{

using namespace vcl;

void ReadWhole(const std::string& FileName, TMemoryStream& Stream)
{
    std::error_code Ignored; // a file that cannot be asked cannot be opened either
    if (std::filesystem::is_directory(FileName, Ignored))
        throw EFOpenError("Cannot read " + FileName + ": it is a folder");
    Stream.LoadFromFile(FileName);
    Stream.SetPosition(0);
}

void WriteWhole(const std::string& FileName, const TMemoryStream& Stream)
{
    const std::string Temporary = FileName + ".part" + std::to_string(getpid());
    std::error_code Error;
    try {
        TFileStream File(Temporary, fmCreate);
        File.WriteBuffer(Stream.GetMemory(), static_cast<std::int64_t>(Stream.GetBytes().size()));
    } catch (const Exception&) {
        std::filesystem::remove(Temporary, Error);
        throw;
    }
    std::filesystem::rename(Temporary, FileName, Error);
    if (Error) {
        std::error_code Ignored; // the first error is the one to tell
        std::filesystem::remove(Temporary, Ignored);
        throw EFCreateError("Cannot write " + FileName + ": " + Error.message());
    }
}

std::string TFormImage::Place(const std::string& FileName, std::int64_t Offset) const
{
    if (Format != TStreamOriginalFormat::sofText)
        return FileName + ":" + std::to_string(Offset);
    const auto Above = std::upper_bound(
        Positions.begin(), Positions.end(), Offset,
        [](std::int64_t Value, const TTextPosition& Position) { return Value < Position.Offset; });
    const TTextPosition Position = Above == Positions.begin() ? TTextPosition{0, 1, 1} : *std::prev(Above);
    return FileName + ":" + std::to_string(Position.Line) + ":" + std::to_string(Position.Column);
}

namespace
{

bool ConvertText(const std::string& FileName, TMemoryStream& File, TFormImage& Form,
                 std::vector<TProblem>& Problems)
{
    const auto Report = [&](const EFormParserError& Error) {
        Problems.push_back({Error.GetLine(), FileName + ":" + std::to_string(Error.GetLine()) + ":" +
                                                 std::to_string(Error.GetColumn()) + ": " +
                                                 Error.GetReason()});
        return true;
    };
    TObjectTextOptions Options;
    Options.OnError = Report;
    Options.Positions = &Form.Positions;
    try {
        ObjectTextToBinary(File, Form.Image, Options);
    } catch (const EFormParserError& Error) {
        Report(Error);
        return false;
    }
    Form.Image.SetPosition(0);
    return true;
}

bool TakeBinary(const std::string& FileName, TMemoryStream& File, TFormImage& Form,
                std::vector<TProblem>& Problems)
{
    std::int64_t Start = 0;
    try {
        if (Form.Format == TStreamOriginalFormat::sofResource)
            ReadResourceHeader(File);
        Start = File.GetPosition();
        TReader Reader(File);
        try {
            Reader.SkipRootComponent();
        } catch (const Exception&) {
            Reader.FlushBuffer();
            throw;
        }
    } catch (const Exception& Error) {
        const std::int64_t Offset = File.GetPosition();
        Problems.push_back({Offset, FileName + ":" + std::to_string(Offset) + ": " + Error.what()});
        return false;
    }
    // The whole file, so that offsets are those of the file.
    Form.Image.LoadFromStream(File);
    Form.Image.SetPosition(Start);
    return true;
}

} // namespace

bool LoadForm(const std::string& FileName, TFormImage& Form, std::vector<TProblem>& Problems)
{
    TMemoryStream File;
    ReadWhole(FileName, File);
    Form.Format = TestStreamFormat(File);
    if (Form.Format == TStreamOriginalFormat::sofText)
        return ConvertText(FileName, File, Form, Problems);
    if (Form.Format != TStreamOriginalFormat::sofUnknown)
        return TakeBinary(FileName, File, Form, Problems);
    Problems.push_back({0, FileName + ":0: this is neither a binary form nor a form text"});
    return false;
}

} // namespace ksform
