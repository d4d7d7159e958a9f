#include <gtest/gtest.h>

#include <QApplication>
#include <QMenu>
#include <QMessageBox>
#include <QPalette>
#include <QPushButton>
#include <QTest>
#include <QTimer>

#include <thread>

#include "vcl/platform/System.h"
#include "vcl/platform/VirtualKeys.h"
#include "vcl/qt/platform/TestOwner.h"

namespace vcl
{

namespace
{

struct TListener final : ISystemListener {
    TListener() { qt::UseQt().Windows().SetListener(this); }
    ~TListener() { Platform().Windows().SetListener(nullptr); }

    void SystemChanged(TSystemChange Change) noexcept override { Changes.push_back(Change); }
    void ProgramActivated(bool) noexcept override {}
    bool Idle() noexcept override { return ++Idles >= WantedIdles; }
    void PlatformEnding() noexcept override {}

    std::vector<TSystemChange> Changes;
    int Idles = 0;
    int WantedIdles = 1;
};

class QtWindowSystem : public ::testing::Test
{
protected:
    QtWindowSystem() : System(qt::UseQt().Windows()) {}

    IWindowSystem& System;
};

/// Runs Action as soon as a modal loop has begun.
void InLoop(std::function<void()> Action)
{
    QTimer::singleShot(0, std::move(Action));
}

} // namespace

TEST_F(QtWindowSystem, PostedCallsRunLaterInTheirOrderFromAnyThread)
{
    std::vector<int> Order;
    System.Post([&] { Order.push_back(1); });
    std::thread([&] { System.Post([&] { Order.push_back(2); }); }).join();
    System.Post([&] { Order.push_back(3); });
    EXPECT_TRUE(Order.empty());
    System.ProcessMessages();
    EXPECT_EQ(Order, (std::vector<int>{1, 2, 3}));
}

TEST_F(QtWindowSystem, ATimerTicksUntilItIsStoppedEvenFromItsOwnTick)
{
    int Ticks = 0;
    TTimerHandle Timer = 0;
    Timer = System.StartTimer(1, [&] {
        if (++Ticks == 3)
            System.StopTimer(Timer);
    });
    System.RunUntil([&] { return Ticks >= 3; });
    QTest::qWait(20);
    EXPECT_EQ(Ticks, 3);
    System.StopTimer(Timer);
    System.StopTimer(0);
}

TEST_F(QtWindowSystem, ATimerThatIsLateTicksOnce)
{
    int Ticks = 0;
    const TTimerHandle Timer = System.StartTimer(2, [&] { ++Ticks; });
    QTest::qSleep(30);
    System.ProcessMessages();
    EXPECT_EQ(Ticks, 1);
    System.StopTimer(Timer);
}

TEST_F(QtWindowSystem, TheLoopRunsUntilItIsDoneAndNests)
{
    bool Inner = false;
    bool Outer = false;
    System.Post([&] {
        System.Post([&] { Inner = true; });
        System.RunUntil([&] { return Inner; });
        Outer = true;
    });
    System.RunUntil([&] { return Outer; });
    EXPECT_TRUE(Inner);
}

TEST_F(QtWindowSystem, ALoopThatIsDoneAlreadyDoesNotWait)
{
    int Asked = 0;
    System.RunUntil([&Asked] { return ++Asked > 0; });
    EXPECT_EQ(Asked, 1);
}

TEST_F(QtWindowSystem, IdleIsCalledAgainWithoutAnEventWhileItHasWork)
{
    TListener Listener;
    Listener.WantedIdles = 5;
    System.RunUntil([&] { return Listener.Idles >= 5; });
    EXPECT_GE(Listener.Idles, 5);
}

TEST_F(QtWindowSystem, APaletteChangeIsToldAndItsColorsAreThereByThen)
{
    TListener Listener;
    const QPalette Before = QApplication::palette();
    QPalette Changed = Before;
    Changed.setColor(QPalette::Base, QColor(0x21, 0x32, 0x43));
    QApplication::setPalette(Changed);
    System.ProcessMessages();
    ASSERT_FALSE(Listener.Changes.empty());
    EXPECT_EQ(Listener.Changes.front(), TSystemChange::Colors);
    EXPECT_EQ(Platform().System().SystemColor(SystemColorIndex(clWindow)), 0x433221);
    QApplication::setPalette(Before);
}

TEST_F(QtWindowSystem, AFontChangeIsTold)
{
    TListener Listener;
    const QFont Before = QApplication::font();
    QFont Larger = Before;
    Larger.setPixelSize(23);
    QApplication::setFont(Larger);
    System.ProcessMessages();
    EXPECT_EQ(std::count(Listener.Changes.begin(), Listener.Changes.end(), TSystemChange::Fonts), 1);
    EXPECT_EQ(Platform().System().DefaultFontHeight(), -23);
    QApplication::setFont(Before);
}

TEST_F(QtWindowSystem, APopupMenuAnswersTheChosenCommand)
{
    TMenuSpec Menu;
    Menu.Items.resize(2);
    Menu.Items[0].Command = 7;
    Menu.Items[0].Caption = "&One";
    Menu.Items[1].Command = 8;
    Menu.Items[1].Caption = "T&wo";
    TTestForm Form;
    InLoop([] {
        QWidget* const Popup = QApplication::activePopupWidget();
        ASSERT_TRUE(Popup);
        QTest::keyClick(Popup, Qt::Key_Down);
        QTest::keyClick(Popup, Qt::Key_Down);
        QTest::keyClick(Popup, Qt::Key_Return);
    });
    EXPECT_EQ(System.PopupMenu(Menu, {50, 50}, Form.Window.get()), 8u);
    EXPECT_EQ(Form.Count(WM_INITMENUPOPUP), 1);
    EXPECT_EQ(Form.Count(WM_COMMAND), 0);
    InLoop([] { QTest::keyClick(QApplication::activePopupWidget(), Qt::Key_Escape); });
    EXPECT_EQ(System.PopupMenu(Menu, {50, 50}, nullptr), 0u);
}

TEST_F(QtWindowSystem, AMessageBoxAnswersTheButtonPressed)
{
    const std::vector<TMessageButton> Buttons = {TMessageButton::Yes, TMessageButton::No,
                                                 TMessageButton::Cancel};
    InLoop([] {
        auto* const Box = qobject_cast<QMessageBox*>(QApplication::activeModalWidget());
        ASSERT_TRUE(Box);
        EXPECT_EQ(Box->text(), "Save <b>changes</b>?");
        Box->button(QMessageBox::No)->click();
    });
    EXPECT_EQ(System.Dialogs().ShowMessage(TMessageKind::Confirmation, "Planner", "Save <b>changes</b>?",
                                           Buttons, nullptr),
              TMessageButton::No);
}

TEST_F(QtWindowSystem, TheClipboardKeepsTextOfAnyScript)
{
    System.Clipboard().SetText("\xD7\xA9\xD7\x9C\xD7\x95\xD7\x9D 10");
    EXPECT_TRUE(System.Clipboard().HasText());
    EXPECT_EQ(System.Clipboard().GetText(), "\xD7\xA9\xD7\x9C\xD7\x95\xD7\x9D 10");
}

TEST_F(QtWindowSystem, TheWorkAreaLiesOnAScreen)
{
    const TRect Area = System.GetWorkArea({10, 10});
    EXPECT_GT(Area.Width(), 100);
    EXPECT_EQ(System.GetWorkArea({-100000, -100000}), Area) << "the nearest screen";
}

} // namespace vcl
