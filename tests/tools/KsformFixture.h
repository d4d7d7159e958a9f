#pragma once

#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <sstream>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "support/Expected.h"
#include "support/TemporaryFolder.h"

namespace vcl::tests
{

struct TOutcome {
    int Status = 0;
    std::string Output;
    std::string Errors;
};

inline std::string Load(const std::string& FileName)
{
    std::ifstream File(FileName, std::ios::binary);
    return {std::istreambuf_iterator<char>(File), {}};
}

inline void Save(const std::string& FileName, const std::string& Content)
{
    std::ofstream(FileName, std::ios::binary) << Content;
}

inline std::vector<std::string> Lines(const std::string& Text)
{
    std::vector<std::string> Result;
    std::istringstream Stream(Text);
    for (std::string Line; std::getline(Stream, Line);)
        Result.push_back(Line);
    return Result;
}

/// Runs the program inside a folder of its own.
class Ksform : public testing::Test
{
protected:
    TOutcome Run(const std::string& Arguments, const std::string& Program = KSFORM) const
    {
        const std::string Command = "cd '" + FFolder.GetPath().string() + "' && '" + Program + "' " +
                                    Arguments + " >stdout.txt 2>stderr.txt";
        const int Status = std::system(Command.c_str());
        return {WEXITSTATUS(Status), Load(FFolder.File("stdout.txt")), Load(FFolder.File("stderr.txt"))};
    }
    TOutcome RunSample(const std::string& Arguments) const { return Run(Arguments, KSFORM_SAMPLE); }

    static std::string Data(const std::string& Name) { return ReadTestData("model/forms/" + Name); }
    void Put(const std::string& Name, const std::string& Content) const { Save(FFolder.File(Name), Content); }
    std::string Get(const std::string& Name) const { return Load(FFolder.File(Name)); }
    std::string Path(const std::string& Name) const { return FFolder.File(Name); }
    bool Exists(const std::string& Name) const { return std::filesystem::exists(FFolder.File(Name)); }
    int FileCount() const { return FFolder.Count(); }

private:
    TTemporaryFolder FFolder;
};

} // namespace vcl::tests
