#include "planner/ChartFile.h"

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <algorithm>
#include <cerrno>
#include <cmath>
#include <cstdio>
#include <cstdlib>
#include <filesystem>
#include <stdexcept>
#include <system_error>

namespace planner
{

namespace
{

// Text of half its size is the smallest that reads well on paper.
constexpr double MostShrinking = 2.0;

std::string LowerCase(std::string Text)
{
    std::transform(Text.begin(), Text.end(), Text.begin(),
                   [](char Letter) { return Letter >= 'A' && Letter <= 'Z' ? char(Letter + 32) : Letter; });
    return Text;
}

} // namespace

bool IsChartFile(const std::string& FileName)
{
    const std::string Extension = LowerCase(std::filesystem::path(FileName).extension().string());
    return Extension == ".txt" || Extension == ".tree";
}

std::string ChartTitle(const std::string& FileName, bool Modified)
{
    const std::string Name =
        FileName.empty() ? "New chart" : std::filesystem::path(FileName).filename().string();
    return (Modified ? "*" : "") + Name + " - Chart";
}

std::string WithExtension(const std::string& FileName, const std::string& Extension)
{
    return std::filesystem::path(FileName.empty() ? "chart" : FileName)
        .replace_extension("." + Extension)
        .string();
}

std::string LineEndOf(const std::string& Text)
{
    const std::size_t Feed = Text.find('\n');
    const bool IsBare = Feed != std::string::npos && (Feed == 0 || Text[Feed - 1] != '\r');
    return IsBare ? "\n" : "\r\n";
}

std::string WithLineEnds(const std::string& Text, const std::string& LineEnd)
{
    std::string Result;
    Result.reserve(Text.size());
    for (std::size_t From = 0; From < Text.size();) {
        const std::size_t End = std::min(Text.find("\r\n", From), Text.size());
        Result.append(Text, From, End - From);
        if (End < Text.size())
            Result += LineEnd;
        From = End + 2;
    }
    return Result;
}

namespace
{

[[noreturn]] void Refuse(const std::string& FileName, int Error)
{
    throw std::runtime_error("Cannot write " + FileName + ": " + std::generic_category().message(Error));
}

/// Into a file that is open already; 0, or the system's number for what went wrong.
int WriteTo(int File, const std::string& Text)
{
    for (std::size_t Done = 0; Done < Text.size();) {
        const ssize_t Written = write(File, Text.data() + Done, Text.size() - Done);
        if (Written < 0 && errno != EINTR)
            return errno;
        Done += static_cast<std::size_t>(std::max<ssize_t>(Written, 0));
    }
    return 0;
}

/// For devices, and where no second file can stand beside the first: half a file may be left.
void WriteInPlace(const std::string& FileName, const std::string& Text)
{
    const int File = open(FileName.c_str(), O_WRONLY | O_CREAT | O_TRUNC | O_CLOEXEC, 0666);
    if (File < 0)
        Refuse(FileName, errno);
    const int Error = WriteTo(File, Text);
    if (close(File) != 0 || Error != 0)
        Refuse(FileName, Error != 0 ? Error : errno);
}

} // namespace

void ReplaceFile(const std::string& FileName, const std::string& Text)
{
    namespace fs = std::filesystem;
    std::error_code Error;
    // A link stays one: what it leads to is replaced.
    const fs::path Target = fs::is_symlink(FileName) ? fs::canonical(FileName, Error) : fs::path(FileName);
    if (Error)
        Refuse(FileName, Error.value());
    struct stat Old {
    };
    const bool IsThere = stat(Target.c_str(), &Old) == 0;
    std::string Unfinished = Target.string() + ".XXXXXX";
    const int File = IsThere && !S_ISREG(Old.st_mode) ? -1 : mkostemp(Unfinished.data(), O_CLOEXEC);
    if (File < 0)
        return WriteInPlace(FileName, Text);
    int Failure = WriteTo(File, Text);
    // Without a file there before, what any program gives a new one.
    const mode_t Mask = umask(0);
    umask(Mask);
    if (Failure == 0 && fchmod(File, IsThere ? Old.st_mode & 07777 : 0666 & ~Mask) != 0)
        Failure = errno;
    if (close(File) != 0 && Failure == 0)
        Failure = errno;
    if (Failure == 0 && std::rename(Unfinished.c_str(), Target.c_str()) != 0)
        Failure = errno;
    if (Failure == 0)
        return;
    unlink(Unfinished.c_str());
    Refuse(FileName, Failure);
}

vcl::TSize PrintPageFor(vcl::TSize Chart, vcl::TSize Paper)
{
    const double Needed = std::max(static_cast<double>(Chart.Width) / Paper.Width,
                                   static_cast<double>(Chart.Height) / Paper.Height);
    const double Factor = std::clamp(Needed, 1.0, MostShrinking);
    return {static_cast<int>(std::ceil(Paper.Width * Factor)),
            static_cast<int>(std::ceil(Paper.Height * Factor))};
}

std::string BoxCountText(int Count)
{
    return std::to_string(Count) + (Count == 1 ? " box" : " boxes");
}

} // namespace planner
