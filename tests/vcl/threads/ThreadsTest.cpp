#include <atomic>
#include <functional>
#include <thread>
#include <vector>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "KSTreeView/model/TreeNodes.h"
#include "vcl/classes/Stream.h"
#include "vcl/classes/StringList.h"
#include "vcl/graphics/Canvas.h"
#include "vcl/graphics/DrawText.h"
#include "vcl/graphics/RasterPainter.h"
#include "vcl/platform/record/RecordPlatform.h"
#include "vcl/system/CodePage.h"
#include "vcl/system/DateTime.h"
#include "vcl/system/FormatDateTime.h"

namespace vcl::tests
{

namespace
{

constexpr int ThreadCount = 4;
constexpr int Rounds = 20;

/// Runs Work in several threads at once, with the number of the thread.
void InThreads(const std::function<void(int)>& Work)
{
    std::vector<std::thread> Threads;
    for (int Thread = 0; Thread < ThreadCount; ++Thread)
        Threads.emplace_back(Work, Thread);
    for (std::thread& Thread : Threads)
        Thread.join();
}

/// How many times Make gave something else than it gives alone, over all threads.
template <class TResult>
int CountDifferences(TResult (*Make)())
{
    const TResult Alone = Make();
    std::atomic<int> Differences{0};
    InThreads([&](int) {
        for (int Round = 0; Round < Rounds; ++Round)
            if (Make() != Alone)
                ++Differences;
    });
    return Differences;
}

std::vector<std::uint32_t> Draw()
{
    TSurface Surface(120, 90, 1.5);
    TRasterPainter Painter(Surface, &Platform().Text());
    TCanvas Canvas(&Painter);
    Canvas.GetBrush()->SetColor(clBtnFace);
    Canvas.GetPen()->SetStyle(TPenStyle::psDot);
    Canvas.Rectangle({5, 5, 110, 80});
    Canvas.GetBrush()->SetStyle(TBrushStyle::bsDiagCross);
    Canvas.Ellipse(20, 10, 100, 70);
    Canvas.GetPen()->SetWidth(3);
    Canvas.MoveTo(0, 0);
    Canvas.LineTo(119, 89);
    Canvas.IntersectClipRect({10, 10, 90, 60});
    TRect Text{12, 12, 100, 80};
    DrawText(Canvas, "Words that are broken into lines", Text, DT_WORDBREAK | DT_CENTER);
    std::vector<std::uint32_t> Pixels;
    for (int Row = 0; Row < Surface.GetDeviceHeight(); ++Row)
        Pixels.insert(Pixels.end(), Surface.Row(Row), Surface.Row(Row) + Surface.GetDeviceWidth());
    return Pixels;
}

AnsiString CopyChart()
{
    TStringList Lines;
    for (int Line = 0; Line < 200; ++Line)
        Lines.Add(AnsiString(static_cast<std::size_t>(Line % 5), '\t') + "Box " + std::to_string(Line));
    TMemoryStream Text;
    Lines.SaveToStream(Text);
    Text.SetPosition(0);
    TKSTreeNodes Nodes;
    Nodes.ReadText(Text);
    TKSTreeNodes Copy;
    Copy.Assign(&Nodes);
    for (int Index = 0; Index < Copy.GetCount(); Index += 7)
        Copy.GetItem(Index)->Expand(true);
    TMemoryStream Back;
    Copy.WriteText(Back);
    return {reinterpret_cast<const char*>(Back.GetMemory()), static_cast<std::size_t>(Back.GetSize())};
}

AnsiString TellDates()
{
    AnsiString Told;
    for (int Day = 1; Day <= 28; ++Day)
        Told += FormatDateTime("dddd d mmmm yyyy hh:nn", EncodeDate(2026, 2, Day) + Day / 30.0) + '\n';
    return Told + AnsiToUtf8(Utf8ToAnsi("\xC3\xA4"));
}

class Threads : public testing::Test
{
protected:
    Threads() { SetPlatform(&Record); }
    ~Threads() override { SetPlatform(nullptr); }

    record::TPlatform Record;
};

} // namespace

TEST_F(Threads, DrawOnSurfacesOfTheirOwn)
{
    EXPECT_EQ(CountDifferences(&Draw), 0);
}

TEST_F(Threads, ReadCopyAndWriteChartsOfTheirOwn)
{
    EXPECT_EQ(CountDifferences(&CopyChart), 0);
}

TEST_F(Threads, FormatDatesAndConvertText)
{
    EXPECT_EQ(CountDifferences(&TellDates), 0);
}

TEST_F(Threads, PostCallsThatRunInTheLoopInTheOrderOfEachThread)
{
    constexpr int Calls = 500;
    const std::thread::id Loop = std::this_thread::get_id();
    std::vector<std::vector<int>> Order(ThreadCount);
    std::vector<std::thread> Posting;
    for (int Thread = 0; Thread < ThreadCount; ++Thread)
        Posting.emplace_back([&, Thread] {
            for (int Call = 0; Call < Calls; ++Call)
                Platform().Windows().Post([&, Thread, Call] {
                    EXPECT_EQ(std::this_thread::get_id(), Loop);
                    Order[static_cast<std::size_t>(Thread)].push_back(Call);
                });
        });
    // The loop runs meanwhile.
    for (int Round = 0; Round < 100; ++Round)
        Record.Windows().ProcessMessages();
    for (std::thread& Thread : Posting)
        Thread.join();
    Record.Windows().ProcessMessages();
    std::vector<int> Expected;
    for (int Call = 0; Call < Calls; ++Call)
        Expected.push_back(Call);
    EXPECT_THAT(Order, testing::Each(Expected));
}

TEST_F(Threads, ReadTheCodePageWhileItIsBeingSet)
{
    std::atomic<bool> Done{false};
    std::thread Setting([&] {
        for (int Round = 0; Round < 1000; ++Round)
            SetDefaultCodePage(Round % 2 == 0 ? cpWindows1252 : cpUtf8);
        SetDefaultCodePage(cpUtf8);
        Done = true;
    });
    int Others = 0;
    while (!Done) {
        const TCodePage Page = GetDefaultCodePage();
        Others += Page != cpWindows1252 && Page != cpUtf8;
    }
    Setting.join();
    EXPECT_EQ(Others, 0);
    EXPECT_EQ(GetDefaultCodePage(), cpUtf8);
}

} // namespace vcl::tests
