#include "vcl/platform/FixedTextEngine.h"

#include <gtest/gtest.h>

namespace vcl::tests
{

namespace
{

TFontSpec FontOfHeight(int Height)
{
    TFontSpec Font;
    Font.Height = Height;
    return Font;
}

/// Text drawn on white, one character a pixel: '#' where something was painted.
std::vector<std::string> Drawn(TTextRun Run, int Width, int Height, std::vector<TRect> Clip = {})
{
    std::vector<std::uint32_t> Pixels(static_cast<std::size_t>(Width * Height), 0xFFFFFFFF);
    if (Clip.empty())
        Clip.push_back({0, 0, Width, Height});
    TFixedTextEngine().Draw(Run, {Pixels.data(), Width, Height, Width}, Clip);
    std::vector<std::string> Rows;
    for (int Y = 0; Y < Height; ++Y) {
        Rows.emplace_back();
        for (int X = 0; X < Width; ++X)
            Rows.back() += Pixels[static_cast<std::size_t>(Y * Width + X)] == 0xFFFFFFFF ? '.' : '#';
    }
    return Rows;
}

std::string RowAt(const std::vector<std::string>& Rows, int Y)
{
    return Rows[static_cast<std::size_t>(Y)];
}

} // namespace

TEST(FixedTextEngine, AFontOfHeightMinus15HasCellsOf9By17WithAnAscentOf12)
{
    const TFontMetrics Metrics = TFixedTextEngine().Metrics(FontOfHeight(-15));
    EXPECT_EQ(Metrics.AveCharWidth, 9);
    EXPECT_EQ(Metrics.Height, 17);
    EXPECT_EQ(Metrics.Ascent, 12);
    EXPECT_EQ(Metrics.Descent, 5);
    EXPECT_EQ(Metrics.InternalLeading, 2);
}

TEST(FixedTextEngine, OtherHeightsAreInProportionAndAPositiveHeightIsTheCells)
{
    TFixedTextEngine Engine;
    EXPECT_EQ(Engine.Metrics(FontOfHeight(-30)).AveCharWidth, 18);
    EXPECT_EQ(Engine.Metrics(FontOfHeight(-30)).Height, 34);
    EXPECT_EQ(Engine.Metrics(FontOfHeight(-11)).Height, 12);
    EXPECT_EQ(Engine.Metrics(FontOfHeight(-11)).AveCharWidth, 7);
    EXPECT_EQ(Engine.Metrics(FontOfHeight(17)).AveCharWidth, 9);
    EXPECT_EQ(Engine.Metrics(FontOfHeight(34)).Height, 34);
    EXPECT_EQ(Engine.Metrics(FontOfHeight(0)).Height, Engine.Metrics(FontOfHeight(-11)).Height);
}

TEST(FixedTextEngine, ExtremeHeightsStayUsable)
{
    for (int Height : {-1, 1, INT32_MIN, INT32_MAX}) {
        const TFontMetrics Metrics = TFixedTextEngine().Metrics(FontOfHeight(Height));
        EXPECT_GE(Metrics.AveCharWidth, 1) << Height;
        EXPECT_GE(Metrics.Descent, 0) << Height;
        EXPECT_LE(Metrics.Height, 20000) << Height;
    }
}

TEST(FixedTextEngine, WidthsCountCodePointsNotBytes)
{
    TFixedTextEngine Engine;
    EXPECT_EQ(Engine.TextWidth(FontOfHeight(-15), "a\u00E9\u20AC\U0001F600"), 36);
    std::vector<int> Extents;
    Engine.Extents(FontOfHeight(-15), "a\u00E9b", Extents);
    EXPECT_EQ(Extents, (std::vector<int>{9, 18, 27}));
    Engine.Extents(FontOfHeight(-15), "", Extents);
    EXPECT_TRUE(Extents.empty());
}

TEST(FixedTextEngine, GlyphsAreBlocksOnTheBaselineAndBlanksPaintNothing)
{
    const TFontSpec Font = FontOfHeight(-15);
    const std::vector<std::string> Rows = Drawn({&Font, "a b", {0, 0}}, 27, 17);
    EXPECT_EQ(RowAt(Rows, 3), "...........................");
    EXPECT_EQ(RowAt(Rows, 4), "########..........########.");
    EXPECT_EQ(RowAt(Rows, 11), "########..........########.");
    EXPECT_EQ(RowAt(Rows, 12), "...........................");
}

TEST(FixedTextEngine, RightToLeftTextRunsFromTheRight)
{
    const TFontSpec Font = FontOfHeight(-15);
    TTextRun Run{&Font, "ab ", {0, 0}};
    Run.RightToLeft = true;
    EXPECT_EQ(RowAt(Drawn(Run, 27, 17), 8), ".........########.########.");
}

TEST(FixedTextEngine, NothingIsPaintedOutsideTheClipOrTheBuffer)
{
    const TFontSpec Font = FontOfHeight(-15);
    const std::vector<std::string> Rows =
        Drawn({&Font, "abc", {-5, -8}}, 12, 6, {{2, 0, 5, 2}, {8, -100, 100, 100}});
    EXPECT_EQ(RowAt(Rows, 0), "..#.#...####");
    EXPECT_EQ(RowAt(Rows, 1), "..#.#...####");
    EXPECT_EQ(RowAt(Rows, 3), "........####");
    EXPECT_EQ(RowAt(Rows, 4), "............");
}

TEST(FixedTextEngine, TextAtScaleTwoIsTwiceAsLarge)
{
    const TFontSpec Font = FontOfHeight(-15);
    TTextRun Run{&Font, "a", {0, 0}};
    Run.Scale = 2;
    const std::vector<std::string> Rows = Drawn(Run, 18, 34);
    EXPECT_EQ(RowAt(Rows, 7), "..................");
    EXPECT_EQ(RowAt(Rows, 8), "################..");
    EXPECT_EQ(RowAt(Rows, 23), "################..");
    EXPECT_EQ(RowAt(Rows, 24), "..................");
}

TEST(FixedTextEngine, AQuarterTurnRunsUpwardsFromTheOrigin)
{
    TFontSpec Font = FontOfHeight(-15);
    Font.Orientation = 900;
    const std::vector<std::string> Rows = Drawn({&Font, "a", {0, 10}}, 17, 12);
    EXPECT_EQ(RowAt(Rows, 1), ".................");
    EXPECT_EQ(RowAt(Rows, 2), "....########.....");
    EXPECT_EQ(RowAt(Rows, 9), "....########.....");
    EXPECT_EQ(RowAt(Rows, 10), ".................");
}

TEST(FixedTextEngine, UnderlinesAndStrikeOutsSpanTheWholeText)
{
    TFontSpec Font = FontOfHeight(-15);
    Font.Underline = Font.StrikeOut = true;
    const std::vector<std::string> Rows = Drawn({&Font, "  ", {0, 0}}, 20, 17);
    EXPECT_EQ(RowAt(Rows, 13), "##################..");
    EXPECT_EQ(RowAt(Rows, 2), "##################..");
}

} // namespace vcl::tests
