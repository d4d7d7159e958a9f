#include <gtest/gtest.h>

#include "vcl/graphics/CanvasScript.h"
#include "vcl/graphics/raster/Picture.h"

using namespace vcl;

namespace
{

const TColorResolver Gray = [](TColor) { return 0x808080u; };

AnsiString ErrorOf(const AnsiString& Text, const TScriptLimits& Limits = {})
{
    TCanvasScript Script(Gray, 1.0, Limits);
    try {
        Script.Run(Text);
    } catch (const EScriptError& Error) {
        EXPECT_EQ(AnsiString(Error.what()).find('\n'), AnsiString::npos) << "one line";
        return Error.what();
    }
    return "no error";
}

} // namespace

TEST(CanvasScript, NamesTheLineThatIsWrong)
{
    const std::pair<const char*, const char*> Cases[] = {
        {"", "the script has no operation"},
        {"# nothing\n\n", "the script has no operation"},
        {"pen solid 1 000000", "line 1: the first operation has to be 'size'"},
        {"size 4 4\nsize 4 4", "line 2: 'size' may only be the first operation"},
        {"size 4 4\n\n# c\nfrobnicate 1", "line 4: unknown operation 'frobnicate'"},
        {"size 4", "line 1: too few words"},
        {"size 4 4 4", "line 1: too many words, from '4' on"},
        {"size 4 x", "line 1: 'x' is not an integer"},
        {"size 4 99999999999", "line 1: '99999999999' is not an integer"},
        {"size 4 4.5", "line 1: '4.5' is not an integer"},
        {"size 0 4", "line 1: size of a surface out of range 1..16384"},
        {"size 4 4\npen wavy 1 000000", "line 2: unknown word 'wavy'"},
        {"size 4 4\npen solid -1 000000", "line 2: the pen's width is negative"},
        {"size 4 4\npen solid 1 00000", "line 2: '00000' is not a colour RRGGBB"},
        {"size 4 4\nbrush mono 1 2 3 4 5 6 7", "line 2: too few words"},
        {"size 4 4\nbrush mono 1 2 3 4 5 6 7 100", "line 2: '100' is not a hexadecimal byte"},
        {"size 4 4\nbrush tile 0 0 0 0 0 0 0 0", "line 2: '0' is not a row of eight digits"},
        {"size 4 4\nbrush tile 00000000 00000000 00000000 00000000 00000000 00000000 00000000 00000001 "
         "FFFFFF",
         "line 2: the pattern uses more colours than are given"},
        {"size 4 4\ntarget b", "line 2: unknown surface 'b'"},
        {"size 4 4\nsurface main 2 2", "line 2: surface 'main' is there already"},
        {"size 4 4\npolyline 1 2 3", "line 2: too few words"},
        {"size 4 4\nbitblt 0 0 -1 2 main 0 0", "line 2: the size of a copy is negative"},
        {"size 4 4\ndrawedge 0 0 4 4 raised rect+", "line 2: unknown word ''"},
        {"size 4 4\nclip 1 2 3", "line 2: too few words"},
    };
    for (const auto& [Text, Message] : Cases)
        EXPECT_EQ(ErrorOf(Text), Message) << Text;
}

TEST(CanvasScript, QuotesHostileWordsSafely)
{
    EXPECT_EQ(ErrorOf("size 1 1\n\x1b[2J 1"), "line 2: unknown operation '?[2J'");
    EXPECT_EQ(ErrorOf("size 1 1\n" + AnsiString(5000, 'a')),
              "line 2: unknown operation '" + AnsiString(40, 'a') + "...'");
}

TEST(CanvasScript, RefusesMoreThanItsLimits)
{
    EXPECT_EQ(ErrorOf("size 2000000000 2000000000"), "line 1: size of a surface out of range 1..16384");
    EXPECT_EQ(ErrorOf("size 16384 16384"), "line 1: the surfaces are too large");
    AnsiString Many = "size 4 4\n";
    for (int Index = 0; Index < 100; ++Index)
        Many += "surface s" + std::to_string(Index) + " 1 1\n";
    EXPECT_EQ(ErrorOf(Many), "line 65: too many surfaces");
    TScriptLimits Small;
    Small.MaxWork = 100000;
    AnsiString Busy = "size 100 100\n";
    for (int Index = 0; Index < 20; ++Index)
        Busy += "fillrect -2000000000 -2000000000 2000000000 2000000000\n";
    EXPECT_EQ(ErrorOf(Busy, Small), "line 11: the script paints too much");
}

TEST(CanvasScript, KeepsWhatWasPaintedBeforeAnError)
{
    TCanvasScript Script(Gray);
    EXPECT_THROW(Script.Run("size 3 1\nsetpixel 1 0 000000\nboom\nsetpixel 0 0 000000"), EScriptError);
    EXPECT_EQ(raster::Rows(Script.GetMain()), ".#.\n");
}

TEST(CanvasScript, TakesLinesThatEndInCarriageReturns)
{
    TCanvasScript Script(Gray);
    Script.Run("size 3 1\r\n\r\n# comment\r\n\tsetpixel 1 0\t000000\r\n");
    EXPECT_EQ(raster::Rows(Script.GetMain()), ".#.\n");
}

TEST(CanvasScript, GivesEachSurfaceAStateOfItsOwn)
{
    TCanvasScript Script(Gray);
    Script.Run("size 4 1\nbrush solid FF0000\nsurface b 2 1\ntarget b\nfillrect 0 0 1 1\nbrush solid 0000FF\n"
               "fillrect 1 0 2 1\ntarget main\nfillrect 0 0 1 1\nbitblt 2 0 2 1 b 0 0\n");
    EXPECT_EQ(raster::Rows(Script.GetMain()), "r..b\n");
}

TEST(CanvasScript, DrawsAtAScale)
{
    TCanvasScript Script(Gray, 2.0);
    Script.Run("size 2 1\nsetpixel 1 0 000000\n");
    EXPECT_EQ(raster::Rows(Script.GetMain()), "..##\n..##\n");
}
