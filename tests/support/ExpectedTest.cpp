#include "support/Expected.h"

#include <cstdlib>
#include <filesystem>
#include <fstream>

#include <gmock/gmock.h>
#include <unistd.h>

namespace vcl::tests
{
namespace
{

namespace fs = std::filesystem;
using ::testing::HasSubstr;

/// A folder of expected files of its own, without whatever --accept the whole run was started with.
class ExpectedFiles : public ::testing::Test
{
protected:
    ExpectedFiles()
    {
        const char* Accept = std::getenv("KS_ACCEPT");
        FAccept = Accept ? Accept : "";
        unsetenv("KS_ACCEPT");
        FLog = std::getenv("KS_ACCEPT_LOG") ? std::getenv("KS_ACCEPT_LOG") : "";
        unsetenv("KS_ACCEPT_LOG");
        fs::create_directories(FFolder);
    }
    ~ExpectedFiles() override
    {
        setenv("KS_ACCEPT", FAccept.c_str(), 1);
        if (!FLog.empty())
            setenv("KS_ACCEPT_LOG", FLog.c_str(), 1);
        fs::remove_all(FFolder);
    }

    ::testing::AssertionResult Compare(const std::string& Name, const std::string& Actual)
    {
        return MatchesExpectedIn(FFolder, Name, Actual);
    }
    void Write(const std::string& Name, const std::string& Text) const
    {
        std::ofstream(FFolder + "/" + Name, std::ios::binary) << Text;
    }
    bool Exists(const std::string& Name) const { return fs::exists(FFolder + "/" + Name); }

    std::string FFolder = fs::temp_directory_path().string() + "/expected-files-" + std::to_string(getpid());
    std::string FAccept;
    std::string FLog;
};

TEST_F(ExpectedFiles, AnEqualTextPassesAndRemovesAnOldActualFile)
{
    Write("a.txt", "one\ntwo\n");
    Write("a.txt.actual", "old");
    EXPECT_TRUE(Compare("a.txt", "one\ntwo\n"));
    EXPECT_FALSE(Exists("a.txt.actual"));
}

TEST_F(ExpectedFiles, AMissingFileFailsAndTheActualTextIsLeftToBeLookedAt)
{
    const auto Result = Compare("new.txt", "one\n");
    EXPECT_FALSE(Result);
    EXPECT_THAT(Result.message(), HasSubstr("new.txt does not exist"));
    EXPECT_TRUE(Exists("new.txt.actual"));
    EXPECT_FALSE(Exists("new.txt"));
}

TEST_F(ExpectedFiles, AMismatchTellsTheFirstDifferentLine)
{
    Write("a.txt", "one\ntwo\nthree\n");
    const auto Result = Compare("a.txt", "one\n2\n3\n");
    EXPECT_FALSE(Result);
    EXPECT_THAT(Result.message(), HasSubstr("line 2\n  expected: \"two\"\n  actual:   \"2\""));
}

TEST_F(ExpectedFiles, ATextThatOnlyEndsEarlierOrLacksItsLastLineBreakDiffers)
{
    Write("a.txt", "one\ntwo\n");
    EXPECT_THAT(Compare("a.txt", "one\n").message(), HasSubstr("actual:   (no more lines)"));
    EXPECT_THAT(Compare("a.txt", "one\ntwo").message(), HasSubstr("line ending at the end"));
}

TEST_F(ExpectedFiles, AcceptRewritesOnlyWhatIsNamed)
{
    setenv("KS_ACCEPT", "a.*", 1);
    Write("b.txt", "old\n");
    EXPECT_TRUE(Compare("a.txt", "new\n"));
    EXPECT_FALSE(Compare("b.txt", "new\n"));
    unsetenv("KS_ACCEPT");
    EXPECT_TRUE(Compare("a.txt", "new\n"));
}

TEST_F(ExpectedFiles, AcceptTakesANameWithoutItsExtension)
{
    setenv("KS_ACCEPT", "a", 1);
    EXPECT_TRUE(Compare("a.txt", "new\n"));
    EXPECT_FALSE(Compare("ab.txt", "new\n"));
}

TEST_F(ExpectedFiles, APictureIsComparedPixelByPixelAndItsDifferenceIsPainted)
{
    const TPicture White{2, 1, {0xFFFFFFFF, 0xFFFFFFFF}};
    const TPicture Other{2, 1, {0xFFFFFFFF, 0xFF123456}};
    WritePng(FFolder + "/p.png", White);
    EXPECT_TRUE(MatchesExpectedIn(FFolder, "p.png", White));
    const auto Result = MatchesExpectedIn(FFolder, "p.png", Other);
    EXPECT_FALSE(Result);
    EXPECT_THAT(Result.message(), HasSubstr("1 pixels, the first at 1, 0"));
    EXPECT_EQ(ReadPng(FFolder + "/p.actual.png"), Other);
    EXPECT_EQ(ReadPng(FFolder + "/p.difference.png"), (TPicture{2, 1, {0xFFFFFFFF, 0xFFFF0000}}));
}

TEST_F(ExpectedFiles, APictureMayDifferByWhatIsAllowedInEveryColourPart)
{
    WritePng(FFolder + "/p.png", TPicture{1, 1, {0xFF204060}});
    EXPECT_TRUE(MatchesExpectedIn(FFolder, "p.png", TPicture{1, 1, {0xFF284058}}, 8));
    EXPECT_FALSE(MatchesExpectedIn(FFolder, "p.png", TPicture{1, 1, {0xFF294060}}, 8));
    EXPECT_FALSE(MatchesExpectedIn(FFolder, "p.png", TPicture{1, 1, {0xFF204069}}, 8));
    EXPECT_FALSE(MatchesExpectedIn(FFolder, "p.png", TPicture{1, 2, {0xFF204060, 0xFF204060}}, 8));
}

TEST_F(ExpectedFiles, APictureOfAnotherSizeDiffers)
{
    WritePng(FFolder + "/p.png", TPicture{1, 1, {0xFF000000}});
    const auto Result = MatchesExpectedIn(FFolder, "p.png", TPicture{2, 1, {0xFF000000, 0xFF000000}});
    EXPECT_THAT(Result.message(), HasSubstr("size: expected 1 x 1, actual 2 x 1"));
}

TEST(Pictures, AFileThatIsNoPictureIsAnErrorThatNamesIt)
{
    EXPECT_THROW(ReadPng("/nowhere/p.png"), std::runtime_error);
}

} // namespace
} // namespace vcl::tests
