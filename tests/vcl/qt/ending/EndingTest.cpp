#include <gtest/gtest.h>

#include <QApplication>

#include "vcl/platform/System.h"
#include "vcl/platform/TextEngine.h"
#include "vcl/qt/platform/TestOwner.h"
#include "vcl/system/Exception.h"

namespace vcl
{

namespace
{

struct TEndListener final : ISystemListener {
    void SystemChanged(TSystemChange) noexcept override {}
    void ProgramActivated(bool) noexcept override {}
    bool Idle() noexcept override { return true; }
    void PlatformEnding() noexcept override { ++Ends; }
    int Ends = 0;
};

int Count = 1;
char Name[] = "ending_test";
char* Arguments[] = {Name, nullptr};

} // namespace

TEST(QtEnding, WindowsTimersAndTextSurviveTheEndOfTheApplication)
{
    TEndListener Listener;
    auto Application = std::make_unique<QApplication>(Count, Arguments);
    IWindowSystem& System = qt::UseQt().Windows();
    System.SetListener(&Listener);
    TTestForm Form;
    TTestOwner Child(TWindowKind::Client, &Form, Bounds(0, 0, 50, 50));
    TTestOwner Edit(TWindowKind::Edit, &Form, Bounds(0, 60, 50, 20));
    const TTimerHandle Timer = System.StartTimer(1, [] {});
    const int Width = Platform().Text().TextWidth(TFontSpec{"Liberation Sans"}, "text");
    EXPECT_GT(Width, 0);

    Application.reset();
    EXPECT_EQ(Listener.Ends, 1);
    EXPECT_TRUE(Form.Destroyed);
    EXPECT_TRUE(Child.Destroyed);
    EXPECT_TRUE(Edit.Destroyed);
    System.StopTimer(Timer);
    System.Post([] {});
    System.ProcessMessages();
    EXPECT_FALSE(System.HasWindows());
    EXPECT_GT(Platform().Text().TextWidth(TFontSpec{"Liberation Sans"}, "text"), 0);
    EXPECT_GT(Platform().System().Metric(TSystemMetric::VScrollBarWidth), 0);
    TTestOwner* const Owner = &Form;
    EXPECT_THROW(System.CreateWindow(*Owner, {}, nullptr, {}), EInvalidOperation);
    System.SetListener(nullptr);
}

TEST(QtEnding, ASecondApplicationIsUsedLikeTheFirst)
{
    for (int Round = 0; Round < 2; ++Round) {
        auto Application = std::make_unique<QApplication>(Count, Arguments);
        TTestForm Form;
        EXPECT_TRUE(Form.Widget()->isVisible());
        bool Posted = false;
        Platform().Windows().Post([&] { Posted = true; });
        ProcessEvents();
        EXPECT_TRUE(Posted);
        EXPECT_GT(Platform().Text().TextWidth(TFontSpec{"Liberation Sans"}, "text"), 0);
    }
}

} // namespace vcl
