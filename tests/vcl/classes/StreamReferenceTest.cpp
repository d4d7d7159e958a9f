#include <filesystem>
#include <fstream>
#include <memory>
#include <optional>
#include <regex>
#include <unistd.h>

#include <gtest/gtest.h>

#include "support/Hex.h"
#include "support/JsonLines.h"
#include "support/SequenceCase.h"
#include "support/TemporaryFolder.h"
#include "vcl/classes/StringList.h"

namespace vcl::tests
{

namespace
{

namespace fs = std::filesystem;

/// The superuser may write everywhere; permissions mean something only for an ordinary user.
class TOrdinaryUser
{
public:
    explicit TOrdinaryUser(const fs::path& Folder)
    {
        if (geteuid() != 0)
            return;
        for (const fs::directory_entry& Entry : fs::recursive_directory_iterator(Folder))
            Give(Entry.path());
        Give(Folder);
        FIsActive = seteuid(Nobody) == 0;
    }
    TOrdinaryUser(const TOrdinaryUser&) = delete;
    TOrdinaryUser& operator=(const TOrdinaryUser&) = delete;
    ~TOrdinaryUser()
    {
        if (FIsActive && seteuid(0) != 0)
            std::abort();
    }

private:
    static constexpr uid_t Nobody = 65534;

    static void Give(const fs::path& Path)
    {
        if (chown(Path.c_str(), Nobody, Nobody) != 0)
            throw std::runtime_error("Cannot give away " + Path.string());
    }

    bool FIsActive = false;
};

/// A relative name in a case is one in the case's own folder.
class TWorkingFolder
{
public:
    explicit TWorkingFolder(const fs::path& Folder) : FBefore(fs::current_path())
    {
        fs::current_path(Folder);
    }
    TWorkingFolder(const TWorkingFolder&) = delete;
    TWorkingFolder& operator=(const TWorkingFolder&) = delete;
    ~TWorkingFolder() { fs::current_path(FBefore); }

private:
    fs::path FBefore;
};

int ModeOf(const std::string& Name)
{
    static const std::map<std::string, int> Modes = {
        {"create", fmCreate}, {"read", fmOpenRead}, {"write", fmOpenWrite}, {"readwrite", fmOpenReadWrite}};
    return Modes.at(Name);
}

void WriteFile(const fs::path& Path, const std::string& Bytes)
{
    std::ofstream(Path, std::ios::binary) << Bytes;
}

TJson ReadBytes(TStream& Stream, std::int64_t Count, std::int64_t& Read)
{
    std::string Bytes(static_cast<std::size_t>(Count), '\0');
    Read = Stream.Read(Bytes.data(), Count);
    return ToHex(Bytes.substr(0, static_cast<std::size_t>(Read)));
}

TJson Contents(TStream& Stream)
{
    Stream.SetPosition(0);
    return ToHex(ReadToEnd(Stream));
}

TJson CopyInto(TStream& Stream, const std::string& Hex, std::int64_t Position, std::int64_t Count)
{
    TMemoryStream Source;
    const std::string Bytes = FromHex(Hex);
    Source.WriteBuffer(Bytes.data(), static_cast<std::int64_t>(Bytes.size()));
    Source.SetPosition(Position);
    const std::int64_t Copied = Stream.CopyFrom(Source, Count);
    return {Copied, Source.GetPosition()};
}

std::function<TJson(const TJson&)> WithoutResult(const std::function<void(const TJson&)>& Action)
{
    return [Action](const TJson& Arguments) -> TJson {
        Action(Arguments);
        return nullptr;
    };
}

TOperations OperationsOn(TStream& Stream)
{
    const auto Number = [](const TJson& A, std::size_t Index) { return A[Index].get<std::int64_t>(); };
    const auto Bytes = [](const TJson& A) { return FromHex(A[1].get<std::string>()); };
    return {
        {"Read",
         [&, Number](const TJson& A) -> TJson {
             std::int64_t Count = 0;
             const TJson Hex = ReadBytes(Stream, Number(A, 1), Count);
             return {Count, Hex};
         }},
        {"ReadBuffer",
         [&, Number](const TJson& A) -> TJson {
             std::string Buffer(static_cast<std::size_t>(Number(A, 1)), '\0');
             Stream.ReadBuffer(Buffer.data(), Number(A, 1));
             return ToHex(Buffer);
         }},
        {"ReadByte", [&](const TJson&) -> TJson { return Stream.ReadByte(); }},
        {"ReadWord", [&](const TJson&) -> TJson { return Stream.ReadWord(); }},
        {"ReadDWord", [&](const TJson&) -> TJson { return Stream.ReadDWord(); }},
        {"Write",
         [&, Bytes](const TJson& A) -> TJson {
             const std::string Text = Bytes(A);
             return Stream.Write(Text.data(), static_cast<std::int64_t>(Text.size()));
         }},
        {"WriteBuffer", WithoutResult([&, Bytes](const TJson& A) {
             const std::string Text = Bytes(A);
             Stream.WriteBuffer(Text.data(), static_cast<std::int64_t>(Text.size()));
         })},
        {"Seek",
         [&, Number](const TJson& A) -> TJson {
             return Stream.Seek(Number(A, 1), static_cast<TSeekOrigin>(Number(A, 2)));
         }},
        {"SetPosition", WithoutResult([&, Number](const TJson& A) { Stream.SetPosition(Number(A, 1)); })},
        {"Position", [&](const TJson&) -> TJson { return Stream.GetPosition(); }},
        {"Size", [&](const TJson&) -> TJson { return Stream.GetSize(); }},
        {"SetSize", WithoutResult([&, Number](const TJson& A) { Stream.SetSize(Number(A, 1)); })},
        {"Clear", WithoutResult([&](const TJson&) { dynamic_cast<TMemoryStream&>(Stream).Clear(); })},
        {"Contents",
         [&](const TJson&) {
             const std::int64_t Position = Stream.GetPosition();
             const TJson Hex = Contents(Stream);
             Stream.SetPosition(Position);
             return Hex;
         }},
        {"CopyFrom",
         [&, Number](const TJson& A) {
             return CopyInto(Stream, A[1].get<std::string>(), Number(A, 2), Number(A, 3));
         }},
        {"LoadFromFile", WithoutResult([&](const TJson& A) {
             dynamic_cast<TMemoryStream&>(Stream).LoadFromFile(A[1].get<std::string>());
         })},
        {"SaveToFile", WithoutResult([&](const TJson& A) {
             dynamic_cast<TMemoryStream&>(Stream).SaveToFile(A[1].get<std::string>());
         })},
        {"StringsLoadFromFile",
         WithoutResult([](const TJson& A) { TStringList().LoadFromFile(A[1].get<std::string>()); })},
        {"StringsSaveToFile",
         WithoutResult([](const TJson& A) { TStringList().SaveToFile(A[1].get<std::string>()); })},
    };
}

/// "SetPosition(2) ReadBuffer(4)" as operations; arguments are numbers where the operation takes numbers.
TJson ParseOperations(const std::string& Text)
{
    TJson Operations = TJson::array();
    const std::regex Call("([A-Za-z]+)\\(([^)]*)\\)");
    for (std::sregex_iterator Match(Text.begin(), Text.end(), Call); Match != std::sregex_iterator();
         ++Match) {
        const std::string Name = (*Match)[1];
        const bool TakesText = Name.find("File") != std::string::npos || Name.starts_with("Write");
        TJson Operation = {Name};
        for (const std::string& Argument : SplitAt((*Match)[2].str(), ',')) {
            const bool IsFirst = Operation.size() == 1;
            if (TakesText || (Name == "CopyFrom" && IsFirst))
                Operation.push_back(Argument);
            else if (!Argument.empty())
                Operation.push_back(std::stoll(Argument));
        }
        Operations.push_back(Operation);
    }
    return Operations;
}

/// The settings of a case: "name=data.bin;mode=read;existing=0102".
std::map<std::string, std::string> ParseSetup(const std::string& Text)
{
    std::map<std::string, std::string> Setup;
    for (const std::string& Setting : SplitAt(Text, ';')) {
        const std::size_t Equals = Setting.find('=');
        Setup[Setting.substr(0, Equals)] = Setting.substr(Equals + 1);
    }
    return Setup;
}

std::unique_ptr<TStream> MakeStream(const std::map<std::string, std::string>& Setup)
{
    if (Setup.contains("mode"))
        return std::make_unique<TFileStream>(Setup.at("name"), ModeOf(Setup.at("mode")));
    auto Stream = std::make_unique<TMemoryStream>();
    const std::string Bytes = FromHex(Setup.at("bytes"));
    Stream->WriteBuffer(Bytes.data(), static_cast<std::int64_t>(Bytes.size()));
    Stream->SetPosition(0);
    return Stream;
}

void PrepareFolder(const fs::path& Folder, const std::map<std::string, std::string>& Setup)
{
    fs::create_directory(Folder / "sub");
    fs::create_directory(Folder / "rodir");
    fs::permissions(Folder / "rodir", fs::perms(0555));
    if (!Setup.contains("existing"))
        return;
    const fs::path File = Folder / Setup.at("name");
    WriteFile(File, FromHex(Setup.at("existing")));
    fs::permissions(File, fs::perms(std::stoi(Setup.at("permissions"), nullptr, 8)));
}

void ExpectException(const TCsvRow& Row, const TJson& Last)
{
    ASSERT_TRUE(Last.is_object() && Last.contains("exception")) << Row["id"] << ": " << Last.dump();
    // Which class tells of a size that cannot be set is left open.
    if (Row["status"] == "varies")
        EXPECT_EQ("EFileStreamError", Last["exception"]) << Row["id"];
    else
        EXPECT_EQ(Row["exception"], Last["exception"]) << Row["id"];
}

void ExpectRow(const TCsvRow& Row)
{
    const TTemporaryFolder Folder;
    const auto Setup = ParseSetup(Row["setup"]);
    PrepareFolder(Folder.GetPath(), Setup);
    const TWorkingFolder Working(Folder.GetPath());
    const TOrdinaryUser User(Folder.GetPath());
    std::unique_ptr<TStream> Stream;
    TJson Last;
    const TJson Created = RunOperation({{"Create",
                                         [&](const TJson&) -> TJson {
                                             Stream = MakeStream(Setup);
                                             return nullptr;
                                         }}},
                                       {"Create"});
    if (Row["operations"] == "Create") {
        ExpectException(Row, Created);
        return;
    }
    ASSERT_TRUE(Stream) << Row["id"] << ": " << Created.dump();
    for (const TJson& Operation : ParseOperations(Row["operations"]))
        Last = RunOperation(OperationsOn(*Stream), Operation);
    if (!Row["exception"].empty())
        ExpectException(Row, Last);
    else
        EXPECT_EQ(TJson::parse(Row["result"]), Last) << Row["id"];
    EXPECT_EQ(Row.Int("position_after"), Stream->GetPosition()) << Row["id"];
    EXPECT_EQ(Row.Int("size_after"), Stream->GetSize()) << Row["id"];
}

} // namespace

TEST(StreamErrors, EveryReferenceRowFailsOrSucceedsAsItSays)
{
    int Count = 0;
    for (const TCsvRow& Row : ReadCsv("model/streams/errors.csv")) {
        // Reading components is tested where components are read.
        if (Row["operations"].starts_with("ReadComponent"))
            continue;
        ExpectRow(Row);
        ++Count;
    }
    EXPECT_EQ(39, Count);
}

TEST(Streams, EveryReferenceSequenceGivesItsResults)
{
    for (const TJson& Case : ReadJsonLines("model/streams/ops.jsonl")) {
        const TTemporaryFolder Folder;
        std::map<std::string, std::string> Setup;
        if (Case["kind"] == "memory")
            Setup["bytes"] = Case["init"].get<std::string>();
        else {
            Setup["name"] = Folder.File(Case["name"].get<std::string>());
            Setup["mode"] = Case["mode"].get<std::string>();
        }
        if (Case.contains("pre"))
            WriteFile(Setup["name"], FromHex(Case["pre"].get<std::string>()));
        const std::unique_ptr<TStream> Stream = MakeStream(Setup);
        ExpectSequence(Case, OperationsOn(*Stream));
        EXPECT_EQ(Case["position"], Stream->GetPosition()) << Case["id"];
        EXPECT_EQ(Case["size"], Stream->GetSize()) << Case["id"];
    }
}

} // namespace vcl::tests
