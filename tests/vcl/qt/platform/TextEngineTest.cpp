#include <gmock/gmock.h>

#include <algorithm>
#include <thread>

#include "vcl/platform/qt/QtTextEngine.h"

namespace vcl
{

namespace
{

constexpr std::uint32_t White = 0xFFFFFFFF;

struct TCanvasBuffer {
    TCanvasBuffer(int Width, int Height)
        : Pixels(static_cast<std::size_t>(Width) * static_cast<std::size_t>(Height), White),
          Buffer{Pixels.data(), Width, Height, Width}
    {
    }

    /// The smallest rectangle around everything that is not white.
    TRect Ink() const
    {
        TRect Result{Buffer.Width, Buffer.Height, 0, 0};
        for (int Y = 0; Y < Buffer.Height; ++Y) {
            for (int X = 0; X < Buffer.Width; ++X) {
                if (At(X, Y) == White)
                    continue;
                Result = {std::min(Result.Left, X), std::min(Result.Top, Y), std::max(Result.Right, X + 1),
                          std::max(Result.Bottom, Y + 1)};
            }
        }
        return Result;
    }

    std::uint32_t At(int X, int Y) const
    {
        return Pixels[static_cast<std::size_t>(Y) * static_cast<std::size_t>(Buffer.Width) +
                      static_cast<std::size_t>(X)];
    }

    std::vector<std::uint32_t> Pixels;
    TPixelBuffer Buffer;
};

const std::vector<TRect> Everywhere = {{0, 0, 4096, 4096}};

class QtTextEngine : public ::testing::Test
{
protected:
    void Draw(TCanvasBuffer& Canvas, const TFontSpec& With, std::string_view Text, TPoint Origin,
              const std::vector<TRect>& Clip = Everywhere, double Scale = 1.0, bool RightToLeft = false)
    {
        Engine.Draw({&With, Text, Origin, 0xFF000000, Scale, RightToLeft, Engine.TextWidth(With, Text)},
                    Canvas.Buffer, Clip);
    }

    qt::TTextEngine Engine;
    TFontSpec Font{.Name = "Liberation Sans", .Height = -13};
};

const std::vector<AnsiString> Samples = {
    "Budget review",
    "fi fl AV Ta office",
    "\xD0\x92\xD1\x81\xD1\x82\xD1\x80\xD0\xB5\xD1\x87\xD0\xB0",
    "\xD7\xA4\xD7\x92\xD7\x99\xD7\xA9\xD7\x94 10:30 room B",
    "\xD9\x84\xD8\xA7 \xD8\xA7\xD8\xAC\xD8\xAA\xD9\x85\xD8\xA7\xD8\xB9",
    "\xE4\xBC\x9A\xE8\xAD\xB0 10:30",
    "e\xCC\x81t\xC3\xA9",
    "party \xF0\x9F\x8E\x89 time",
    "",
};

} // namespace

TEST_F(QtTextEngine, TheLastExtentIsTheWidthOfTheText)
{
    std::vector<int> Extents;
    for (const AnsiString& Text : Samples) {
        Engine.Extents(Font, Text, Extents);
        EXPECT_EQ(Extents.empty() ? 0 : Extents.back(), Engine.TextWidth(Font, Text)) << Text;
        EXPECT_TRUE(std::is_sorted(Extents.begin(), Extents.end())) << Text;
    }
}

TEST_F(QtTextEngine, ThereIsOneExtentForEachCodePoint)
{
    std::vector<int> Extents;
    Engine.Extents(Font, "ab\xC3\xA9\xD7\xA9\xF0\x9F\x8E\x89z", Extents);
    EXPECT_EQ(Extents.size(), 6u);
}

TEST_F(QtTextEngine, WidthsOfStandaloneLettersAddUp)
{
    EXPECT_EQ(Engine.TextWidth(Font, "AVAV"),
              2 * Engine.TextWidth(Font, "A") + 2 * Engine.TextWidth(Font, "V"));
    EXPECT_GT(Engine.TextWidth(Font, "mmmm"), Engine.TextWidth(Font, "iiii"));
}

TEST_F(QtTextEngine, ANegativeHeightIsTheCharacterHeightAndAPositiveOneTheCell)
{
    const TFontMetrics Character = Engine.Metrics({.Name = "Liberation Sans", .Height = -20});
    EXPECT_EQ(Character.Height - Character.InternalLeading, 20);
    EXPECT_EQ(Character.Height, Character.Ascent + Character.Descent);
    for (const int Cell : {12, 16, 20, 33}) {
        const TFontMetrics Metrics = Engine.Metrics({.Name = "Liberation Sans", .Height = Cell});
        EXPECT_LE(Metrics.Height, Cell);
        EXPECT_GE(Metrics.Height, Cell - 1);
    }
}

TEST_F(QtTextEngine, TextStaysInItsCell)
{
    for (const AnsiString& Text : {AnsiString("Budget review"), Samples[3], Samples[4]}) {
        TCanvasBuffer Canvas(400, 60);
        Draw(Canvas, Font, Text, {20, 10});
        const TFontMetrics Metrics = Engine.Metrics(Font);
        const TRect Ink = Canvas.Ink();
        EXPECT_GE(Ink.Left, 19) << Text;
        EXPECT_LE(Ink.Right, 20 + Engine.TextWidth(Font, Text) + 1) << Text;
        EXPECT_GT(Ink.Right, 20 + Engine.TextWidth(Font, Text) - 5) << Text;
        EXPECT_GE(Ink.Top, 10) << Text;
        EXPECT_LE(Ink.Bottom, 10 + Metrics.Height + 1) << Text;
    }
}

TEST_F(QtTextEngine, TextAtAnotherScaleFitsItsScaledWidth)
{
    for (const AnsiString& Text : Samples) {
        if (Text.empty())
            continue;
        for (const double Scale : {1.25, 1.5, 2.0}) {
            TCanvasBuffer Canvas(800, 120);
            Draw(Canvas, Font, Text, {40, 20}, Everywhere, Scale);
            const double Width = Engine.TextWidth(Font, Text) * Scale;
            const TRect Ink = Canvas.Ink();
            EXPECT_GE(Ink.Left, 38) << Text;
            EXPECT_LE(Ink.Right, 40 + Width + 2) << Text;
            EXPECT_GT(Ink.Right, 40 + Width * 0.9) << Text;
        }
    }
}

TEST_F(QtTextEngine, NothingIsDrawnOutsideTheClipRectangles)
{
    TCanvasBuffer Whole(200, 40);
    Draw(Whole, Font, "Clip me apart", {5, 5});
    TCanvasBuffer Parts(200, 40);
    const std::vector<TRect> Clip = {{0, 0, 20, 12}, {30, 0, 60, 40}, {-10, 30, 500, 90}};
    Draw(Parts, Font, "Clip me apart", {5, 5}, Clip);
    for (int Y = 0; Y < 40; ++Y) {
        for (int X = 0; X < 200; ++X) {
            const bool Inside = std::any_of(Clip.begin(), Clip.end(), [&](const TRect& Rect) {
                return Rect.Contains({X, Y});
            });
            ASSERT_EQ(Parts.At(X, Y), Inside ? Whole.At(X, Y) : White) << X << ", " << Y;
        }
    }
}

TEST_F(QtTextEngine, AnEmptyClipDrawsNothing)
{
    TCanvasBuffer Canvas(100, 30);
    Draw(Canvas, Font, "Nothing", {5, 5}, {});
    Draw(Canvas, Font, "Nothing", {5, 5}, {{10, 10, 10, 30}});
    EXPECT_TRUE(Canvas.Ink().IsEmpty());
}

TEST_F(QtTextEngine, PixelsStayOpaque)
{
    TCanvasBuffer Canvas(300, 40);
    Draw(Canvas, Font, Samples[7], {5, 5});
    EXPECT_FALSE(Canvas.Ink().IsEmpty());
    EXPECT_TRUE(std::all_of(Canvas.Pixels.begin(), Canvas.Pixels.end(),
                            [](std::uint32_t Pixel) { return Pixel >> 24 == 0xFF; }));
}

TEST_F(QtTextEngine, AnUnderlineRunsBelowTheWholeText)
{
    Font.Underline = true;
    TCanvasBuffer Canvas(200, 40);
    Draw(Canvas, Font, "    ", {10, 5});
    const TRect Ink = Canvas.Ink();
    EXPECT_EQ(Ink.Left, 10);
    EXPECT_EQ(Ink.Right, 10 + Engine.TextWidth(Font, "    "));
    EXPECT_GT(Ink.Top, 5 + Engine.Metrics(Font).Ascent);
    EXPECT_EQ(Ink.Height(), 1);
}

TEST_F(QtTextEngine, ARightToLeftParagraphPutsTheFullStopLeft)
{
    TCanvasBuffer Left(200, 40);
    TCanvasBuffer Right(200, 40);
    Draw(Left, Font, "mmm .", {10, 5});
    Draw(Right, Font, "mmm .", {10, 5}, Everywhere, 1.0, true);
    EXPECT_NE(Left.Pixels, Right.Pixels);
    EXPECT_EQ(Left.Ink().Bottom, Right.Ink().Bottom);
    EXPECT_NEAR(Right.Ink().Width(), Left.Ink().Width(), 3);
    // The stop comes first, and its ink is low:
    // the upper half of the first columns stays empty.
    bool UpperHalfEmpty = true;
    for (int X = 10; X < 14; ++X) {
        for (int Y = 0; Y < 14; ++Y)
            UpperHalfEmpty = UpperHalfEmpty && Right.At(X, Y) == White;
    }
    EXPECT_TRUE(UpperHalfEmpty);
}

TEST_F(QtTextEngine, AQuarterTurnRunsUpwards)
{
    Font.Orientation = 900;
    TCanvasBuffer Canvas(100, 200);
    Draw(Canvas, Font, "Upwards", {30, 150});
    const TRect Ink = Canvas.Ink();
    EXPECT_GT(Ink.Height(), 2 * Ink.Width());
    EXPECT_LE(Ink.Bottom, 152);
    EXPECT_GE(Ink.Left, 30);
    EXPECT_LE(Ink.Right, 30 + Engine.Metrics(Font).Height + 1);
}

TEST_F(QtTextEngine, AnotherThreadMeasuresAndDrawsTheSame)
{
    TCanvasBuffer Here(200, 40);
    Draw(Here, Font, Samples[3], {5, 5});
    TCanvasBuffer There(200, 40);
    int Width = 0;
    std::thread Worker([&] {
        Width = Engine.TextWidth(Font, Samples[3]);
        Draw(There, Font, Samples[3], {5, 5});
    });
    Worker.join();
    EXPECT_EQ(Width, Engine.TextWidth(Font, Samples[3]));
    EXPECT_EQ(Here.Pixels, There.Pixels);
}

TEST_F(QtTextEngine, ExtremeHeightsAreHarmless)
{
    TCanvasBuffer Canvas(50, 50);
    for (const int Height : {0, 1, -1, 5000, -5000, INT32_MIN, INT32_MAX}) {
        const TFontSpec Extreme{.Name = "Liberation Sans", .Height = Height};
        EXPECT_GE(Engine.Metrics(Extreme).Height, 1);
        EXPECT_GE(Engine.TextWidth(Extreme, "x"), 0);
        Draw(Canvas, Extreme, "x", {0, 0});
    }
}

} // namespace vcl
