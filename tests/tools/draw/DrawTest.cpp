#include <gtest/gtest.h>
#include <png.h>

#include <filesystem>
#include <fstream>

#include "ksform/Verbs.h"
#include "support/TemporaryFolder.h"

namespace
{

using vcl::tests::TTemporaryFolder;

struct TSavedPicture {
    unsigned Width = 0;
    unsigned Height = 0;
    std::vector<png_byte> Bytes;
};

TSavedPicture Load(const std::string& FileName)
{
    png_image Image{};
    Image.version = PNG_IMAGE_VERSION;
    if (png_image_begin_read_from_file(&Image, FileName.c_str()) == 0)
        throw std::runtime_error(Image.message);
    Image.format = PNG_FORMAT_RGB;
    TSavedPicture Result{Image.width, Image.height, std::vector<png_byte>(PNG_IMAGE_SIZE(Image))};
    if (png_image_finish_read(&Image, nullptr, Result.Bytes.data(), 0, nullptr) == 0)
        throw std::runtime_error(Image.message);
    return Result;
}

class KsformDraw : public testing::Test
{
protected:
    /// The exit status of `ksform draw` with a script in a file; what it says goes to Errors.
    int Draw(const std::string& Script, const std::vector<std::string>& More = {})
    {
        std::ofstream(FFolder.File("a.ops")) << Script;
        std::vector<std::string> Arguments{"draw", FFolder.File("a.ops"), "-o", Picture()};
        Arguments.insert(Arguments.end(), More.begin(), More.end());
        testing::internal::CaptureStderr();
        const int Status = ksform::Run(Arguments);
        Errors = testing::internal::GetCapturedStderr();
        return Status;
    }
    std::string Picture() const { return FFolder.File("a.png"); }
    std::string ScriptName() const { return FFolder.File("a.ops"); }

    std::string Errors;

private:
    TTemporaryFolder FFolder;
};

} // namespace

TEST_F(KsformDraw, SavesWhatTheScriptPaints)
{
    ASSERT_EQ(Draw("size 2 1\nsetpixel 1 0 102030\n"), ksform::Success) << Errors;
    const TSavedPicture Saved = Load(Picture());
    EXPECT_EQ(Saved.Width, 2u);
    EXPECT_EQ(Saved.Bytes, (std::vector<png_byte>{0xFF, 0xFF, 0xFF, 0x10, 0x20, 0x30}));
}

TEST_F(KsformDraw, UsesTheClassicSystemColours)
{
    ASSERT_EQ(Draw("size 1 1\ndrawedge 0 0 1 1 sunkenouter left\n"), ksform::Success) << Errors;
    EXPECT_EQ(Load(Picture()).Bytes, (std::vector<png_byte>{0x80, 0x80, 0x80}));
}

TEST_F(KsformDraw, MultipliesByTheScale)
{
    ASSERT_EQ(Draw("size 10 4\n", {"--scale", "1.5"}), ksform::Success) << Errors;
    EXPECT_EQ(Load(Picture()).Width, 15u);
    EXPECT_EQ(Load(Picture()).Height, 6u);
}

TEST_F(KsformDraw, NamesFileAndLineOfAnErrorAndWritesNothing)
{
    EXPECT_EQ(Draw("size 2 1\nsetpixel 1 zero 102030\n"), ksform::Failure);
    EXPECT_EQ(Errors, "ksform: " + ScriptName() + ": line 2: 'zero' is not an integer\n");
    EXPECT_FALSE(std::filesystem::exists(Picture()));
}

TEST_F(KsformDraw, RefusesAScaleItCannotUse)
{
    for (const char* Scale : {"0", "-1", "1000", "nan", "2x", ""}) {
        EXPECT_EQ(Draw("size 1 1\n", {"--scale", Scale}), ksform::WrongUsage) << Scale;
        EXPECT_FALSE(std::filesystem::exists(Picture()));
    }
}

TEST_F(KsformDraw, LeavesNoPictureWhenItsSizeIsTooLargeForTheScale)
{
    EXPECT_EQ(Draw("size 8000 8000\n", {"--scale", "16"}), ksform::Failure);
    EXPECT_EQ(Errors, "ksform: " + ScriptName() + ": line 1: the surfaces are too large\n");
    EXPECT_EQ(Draw("size 16000 1\n", {"--scale", "16"}), ksform::Failure);
    EXPECT_EQ(Errors, "ksform: " + ScriptName() + ": line 1: Surface of 16000 x 1 is too large\n");
    EXPECT_FALSE(std::filesystem::exists(Picture()));
}
