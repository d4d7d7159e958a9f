#pragma once

#include <filesystem>
#include <iterator>
#include <stdexcept>
#include <string>
#include <unistd.h>

namespace vcl::tests
{

/// An empty folder that is removed, with everything in it, at the end.
class TTemporaryFolder
{
public:
    TTemporaryFolder()
    {
        std::string Pattern = (std::filesystem::temp_directory_path() / "vcltest-XXXXXX").string();
        if (!mkdtemp(Pattern.data()))
            throw std::runtime_error("Cannot make a temporary folder");
        FPath = Pattern;
    }
    TTemporaryFolder(const TTemporaryFolder&) = delete;
    TTemporaryFolder& operator=(const TTemporaryFolder&) = delete;
    ~TTemporaryFolder()
    {
        std::error_code Ignored; // nothing more can be done about a file that stays
        std::filesystem::remove_all(FPath, Ignored);
    }

    const std::filesystem::path& GetPath() const { return FPath; }
    std::string File(const std::string& Name) const { return (FPath / Name).string(); }
    /// Files and folders right in it.
    int Count() const
    {
        const std::filesystem::directory_iterator Entries(FPath);
        return static_cast<int>(std::distance(begin(Entries), end(Entries)));
    }

private:
    std::filesystem::path FPath;
};

} // namespace vcl::tests
