#include <gtest/gtest.h>

#include <algorithm>
#include <cstdlib>

#include "vcl/graphics/CanvasScript.h"
#include "vcl/graphics/raster/Picture.h"

using namespace vcl;
using raster::TPicture;

namespace
{

const std::filesystem::path Data = std::filesystem::path(KS_TEST_DATA) / "gdi";

struct TCase {
    std::string Name;
    bool IsExact;
};

void PrintTo(const TCase& Case, std::ostream* Stream)
{
    *Stream << Case.Name;
}

std::vector<TCase> ReadCases()
{
    std::vector<TCase> Result;
    for (const auto& Row : raster::ReadTable(Data / "raster" / "index.csv"))
        Result.push_back({Row.at(0), Row.at(3) == "exact"});
    return Result;
}

/// The system colours the pictures were made with.
TColorResolver ReferenceColors()
{
    std::vector<std::uint32_t> Table;
    for (const auto& Row : raster::ReadTable(Data / "tables" / "syscolors.csv"))
        Table.push_back(static_cast<std::uint32_t>(std::stoul(Row.at(2), nullptr, 16)));
    return [Table](TColor Color) {
        EXPECT_TRUE(IsSystemColor(Color));
        return Table.at(static_cast<std::size_t>(SystemColorIndex(Color)));
    };
}

bool OccursAround(const TPicture& Picture, int X, int Y, std::uint32_t Color)
{
    for (int Row = std::max(0, Y - 1); Row < std::min(Picture.Height, Y + 2); ++Row)
        for (int Column = std::max(0, X - 1); Column < std::min(Picture.Width, X + 2); ++Column)
            if (Picture.At(Column, Row) == Color)
                return true;
    return false;
}

std::string Place(int X, int Y)
{
    return "at " + std::to_string(X) + ", " + std::to_string(Y);
}

void ExpectNear(const TPicture& Actual, const TPicture& Expected)
{
    int Different = 0;
    for (int Y = 0; Y < Expected.Height; ++Y) {
        for (int X = 0; X < Expected.Width; ++X) {
            Different += Actual.At(X, Y) != Expected.At(X, Y) ? 1 : 0;
            ASSERT_TRUE(OccursAround(Expected, X, Y, Actual.At(X, Y))) << Place(X, Y);
            ASSERT_TRUE(OccursAround(Actual, X, Y, Expected.At(X, Y))) << Place(X, Y);
        }
    }
    EXPECT_LE(Different * 100, 4 * Expected.Width * Expected.Height) << Different << " pixels differ";
}

void ExpectEqual(const TPicture& Actual, const TPicture& Expected)
{
    for (int Y = 0; Y < Expected.Height; ++Y)
        for (int X = 0; X < Expected.Width; ++X)
            ASSERT_EQ(Actual.At(X, Y), Expected.At(X, Y)) << Place(X, Y);
}

class ReferencePictures : public testing::TestWithParam<TCase>
{
};

} // namespace

TEST_P(ReferencePictures, AScriptGivesItsPicture)
{
    const auto Folder = Data / "raster";
    const TPicture Expected = raster::ReadPng(Folder / (GetParam().Name + ".png"));
    TCanvasScript Script(ReferenceColors());
    Script.Run(raster::ReadFile(Folder / (GetParam().Name + ".ops")));
    const TPicture Actual = raster::PictureOf(Script.GetMain());
    ASSERT_EQ(Actual.Width, Expected.Width);
    ASSERT_EQ(Actual.Height, Expected.Height);
    if (GetParam().IsExact)
        ExpectEqual(Actual, Expected);
    else
        ExpectNear(Actual, Expected);
}

INSTANTIATE_TEST_SUITE_P(Gdi, ReferencePictures, testing::ValuesIn(ReadCases()),
                         [](const testing::TestParamInfo<TCase>& Info) { return Info.param.Name; });

TEST(ReferencePicturesIndex, NamesEveryScriptOfTheFolder)
{
    std::size_t Scripts = 0;
    for (const auto& Entry : std::filesystem::directory_iterator(Data / "raster"))
        Scripts += Entry.path().extension() == ".ops" ? 1 : 0;
    EXPECT_GT(Scripts, 100u);
    EXPECT_EQ(ReadCases().size(), Scripts);
}
