#include "support/Expected.h"

#include <algorithm>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <optional>
#include <stdexcept>

#include <fnmatch.h>

namespace vcl::tests
{

namespace fs = std::filesystem;
using ::testing::AssertionFailure;
using ::testing::AssertionResult;
using ::testing::AssertionSuccess;

namespace
{

std::optional<std::string> ReadFile(const fs::path& FileName)
{
    std::ifstream File(FileName, std::ios::binary);
    if (!File)
        return std::nullopt;
    return std::string(std::istreambuf_iterator<char>(File), {});
}

void WriteFile(const fs::path& FileName, std::string_view Text)
{
    std::ofstream File(FileName, std::ios::binary);
    File.write(Text.data(), static_cast<std::streamsize>(Text.size()));
    if (!File.flush())
        throw std::runtime_error(FileName.string() + ": cannot be written");
}

/// KS_ACCEPT is an expected file's name, the name without its extension, or a pattern with * and ?.
bool IsAccepted(const std::string& Name)
{
    const char* Pattern = std::getenv("KS_ACCEPT");
    if (!Pattern || !*Pattern)
        return false;
    const std::string Stem = fs::path(Name).replace_extension().string();
    return fnmatch(Pattern, Name.c_str(), 0) == 0 || fnmatch(Pattern, Stem.c_str(), 0) == 0;
}

/// Tells the script what was rewritten; several test programs may write at the same time.
void NoteAccepted(const fs::path& FileName)
{
    const char* Log = std::getenv("KS_ACCEPT_LOG");
    if (!Log)
        return;
    std::ofstream(Log, std::ios::app) << FileName.string() + "\n";
}

void RemoveLeftovers(const fs::path& Expected)
{
    for (const char* Suffix : {".actual", ".actual.png", ".difference.png"}) {
        fs::path Leftover =
            Expected.extension() == ".png" ? fs::path(Expected).replace_extension() : Expected;
        Leftover += Suffix;
        fs::remove(Leftover);
    }
}

struct TLineReader {
    std::string_view Rest;
    bool AtEnd = false;

    std::string_view Next()
    {
        AtEnd = Rest.empty();
        const std::size_t Length = Rest.find('\n');
        const std::string_view Line = Rest.substr(0, Length);
        Rest = Length == std::string_view::npos ? std::string_view{} : Rest.substr(Length + 1);
        return Line;
    }
};

std::string Shown(const TLineReader& Reader, std::string_view Line)
{
    return Reader.AtEnd ? "(no more lines)" : '"' + std::string(Line) + '"';
}

std::string FirstDifference(std::string_view Expected, std::string_view Actual)
{
    TLineReader Left{Expected};
    TLineReader Right{Actual};
    for (int Number = 1;; ++Number) {
        const std::string_view LeftLine = Left.Next();
        const std::string_view RightLine = Right.Next();
        if (Left.AtEnd && Right.AtEnd)
            return "only the line ending at the end differs";
        if (Left.AtEnd != Right.AtEnd || LeftLine != RightLine)
            return "line " + std::to_string(Number) + "\n  expected: " + Shown(Left, LeftLine) +
                   "\n  actual:   " + Shown(Right, RightLine);
    }
}

std::string FirstDifference(const TPicture& Expected, const TPicture& Actual, int Allowed)
{
    const auto Size = [](const TPicture& Picture) {
        return std::to_string(Picture.Width) + " x " + std::to_string(Picture.Height);
    };
    if (Expected.Width != Actual.Width || Expected.Height != Actual.Height)
        return "size: expected " + Size(Expected) + ", actual " + Size(Actual);
    std::size_t First = Expected.Pixels.size();
    std::size_t Count = 0;
    for (std::size_t Index = Expected.Pixels.size(); Index-- > 0;) {
        if (!IsAlike(Expected.Pixels[Index], Actual.Pixels[Index], Allowed)) {
            First = Index;
            ++Count;
        }
    }
    const std::size_t Width = static_cast<std::size_t>(Expected.Width);
    return std::to_string(Count) + " pixels, the first at " + std::to_string(First % Width) + ", " +
           std::to_string(First / Width);
}

bool AreAlike(const TPicture& Left, const TPicture& Right, int Allowed)
{
    if (Left.Width != Right.Width || Left.Height != Right.Height)
        return false;
    const auto Pixels = [Allowed](std::uint32_t L, std::uint32_t R) { return IsAlike(L, R, Allowed); };
    return std::equal(Left.Pixels.begin(), Left.Pixels.end(), Right.Pixels.begin(), Pixels);
}

AssertionResult Missing(const fs::path& FileName, const std::string& Name, const fs::path& ActualName)
{
    return AssertionFailure() << FileName.string() << " does not exist. Look at " << ActualName.string()
                              << "; if it is right: ./test --accept " << Name;
}

AssertionResult Differs(const std::string& Name, const std::string& Where, const fs::path& ActualName)
{
    return AssertionFailure() << Name << " differs: " << Where << "\n  written: " << ActualName.string()
                              << "\n  if it is right: ./test --accept " << Name;
}

} // namespace

AssertionResult MatchesExpectedIn(const std::string& Folder, std::string_view Name, std::string_view Actual)
{
    const std::string Relative(Name);
    const fs::path FileName = fs::path(Folder) / Relative;
    const std::optional<std::string> Expected = ReadFile(FileName);
    if (Expected == Actual) {
        RemoveLeftovers(FileName);
        return AssertionSuccess();
    }
    fs::create_directories(FileName.parent_path());
    if (IsAccepted(Relative)) {
        WriteFile(FileName, Actual);
        RemoveLeftovers(FileName);
        NoteAccepted(FileName);
        return AssertionSuccess();
    }
    fs::path ActualName = FileName;
    ActualName += ".actual";
    WriteFile(ActualName, Actual);
    if (!Expected)
        return Missing(FileName, Relative, ActualName);
    return Differs(Relative, FirstDifference(*Expected, Actual), ActualName);
}

AssertionResult MatchesExpectedIn(const std::string& Folder, std::string_view Name, const TPicture& Actual,
                                  int Allowed)
{
    const std::string Relative(Name);
    const fs::path FileName = fs::path(Folder) / Relative;
    const bool Exists = fs::exists(FileName);
    const TPicture Expected = Exists ? ReadPng(FileName.string()) : TPicture{};
    if (Exists && AreAlike(Expected, Actual, Allowed)) {
        RemoveLeftovers(FileName);
        return AssertionSuccess();
    }
    fs::create_directories(FileName.parent_path());
    if (IsAccepted(Relative)) {
        WritePng(FileName.string(), Actual);
        RemoveLeftovers(FileName);
        NoteAccepted(FileName);
        return AssertionSuccess();
    }
    const std::string Base = fs::path(FileName).replace_extension().string();
    WritePng(Base + ".actual.png", Actual);
    if (!Exists)
        return Missing(FileName, Relative, Base + ".actual.png");
    WritePng(Base + ".difference.png", Difference(Expected, Actual, Allowed));
    return Differs(Relative, FirstDifference(Expected, Actual, Allowed), Base + ".actual.png");
}

AssertionResult MatchesExpected(std::string_view Name, std::string_view Actual)
{
    return MatchesExpectedIn(KS_TEST_DATA, Name, Actual);
}

AssertionResult MatchesExpected(std::string_view Name, const TPicture& Actual, int Allowed)
{
    return MatchesExpectedIn(KS_TEST_DATA, Name, Actual, Allowed);
}

std::string ReadTestData(std::string_view Name)
{
    const fs::path FileName = fs::path(KS_TEST_DATA) / Name;
    std::optional<std::string> Text = ReadFile(FileName);
    if (!Text)
        throw std::runtime_error(FileName.string() + ": cannot be read");
    return *std::move(Text);
}

} // namespace vcl::tests
