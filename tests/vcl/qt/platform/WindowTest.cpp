#include <gtest/gtest.h>

#include <QApplication>
#include <QMenu>
#include <QPointer>
#include <QScrollBar>
#include <QTest>
#include <QWheelEvent>

#include "vcl/platform/System.h"
#include "vcl/platform/VirtualKeys.h"
#include "vcl/platform/WindowStyles.h"
#include "vcl/qt/platform/TestOwner.h"

namespace vcl
{

namespace
{

QScrollBar* BarOf(const TTestOwner& Owner, Qt::Orientation Orientation)
{
    for (QScrollBar* Bar : Owner.Widget()->findChildren<QScrollBar*>()) {
        if (Bar->orientation() == Orientation)
            return Bar;
    }
    return nullptr;
}

QWidget* ClientOf(const TTestOwner& Owner)
{
    return Owner.Widget()->childAt(Owner.Widget()->rect().center());
}

class QtWindow : public ::testing::Test
{
protected:
    QtWindow() : Child(TWindowKind::Client, &Form, Bounds(10, 20, 200, 100), WS_CHILD)
    {
        Child.Window->SetVisible(true);
        ProcessEvents();
        Child.Messages.clear();
    }

    TTestForm Form;
    TTestOwner Child;
};

} // namespace

TEST_F(QtWindow, BordersTakeTwoPixelsOneOrNone)
{
    EXPECT_EQ(Child.Window->GetClientSize(), (TSize{200, 100}));
    Child.Window->SetStyle({TWindowKind::Client, WS_CHILD, WS_EX_CLIENTEDGE});
    EXPECT_EQ(Child.Window->GetClientSize(), (TSize{196, 96}));
    Child.Window->SetStyle({TWindowKind::Client, WS_CHILD | WS_BORDER, 0});
    EXPECT_EQ(Child.Window->GetClientSize(), (TSize{198, 98}));
}

TEST_F(QtWindow, ScrollBarsTakeTheirWidthFromTheClientArea)
{
    const int Width = Platform().System().Metric(TSystemMetric::VScrollBarWidth);
    Child.Window->SetScrollBar(TScrollBarKind::sbVertical, {true, true, 0, 1000, 10, 5});
    EXPECT_EQ(Child.Window->GetClientSize(), (TSize{200 - Width, 100}));
    EXPECT_EQ(BarOf(Child, Qt::Vertical)->geometry(), QRect(200 - Width, 0, Width, 100));
    Child.Window->SetStyle({TWindowKind::Client, WS_CHILD, WS_EX_LEFTSCROLLBAR});
    EXPECT_EQ(BarOf(Child, Qt::Vertical)->x(), 0);
    EXPECT_EQ(Child.Window->ClientToScreen({0, 0}).X, Form.Window->ClientToScreen({10, 20}).X + Width);
}

TEST_F(QtWindow, AScrollBarKeepsAllBitsOfItsPosition)
{
    Child.Window->SetScrollBar(TScrollBarKind::sbVertical, {true, true, 0, 3'000'000, 100, 2'000'000});
    QScrollBar* const Bar = BarOf(Child, Qt::Vertical);
    EXPECT_EQ(Bar->value(), 2'000'000);
    EXPECT_EQ(Bar->maximum(), 3'000'000 - 99);
    Bar->triggerAction(QAbstractSlider::SliderSingleStepAdd);
    EXPECT_EQ(ScrollRequest(Child.Messages.at(0).WParam), SB_LINEDOWN);
    EXPECT_EQ(ScrollRequest(Child.Last(WM_VSCROLL).WParam), SB_ENDSCROLL);
    EXPECT_EQ(Bar->value(), 2'000'000) << "the bar moves only when the owner says so";
    Bar->setSliderDown(true);
    Bar->setSliderPosition(2'500'001);
    const TMessage Track = Child.Last(WM_VSCROLL);
    EXPECT_EQ(ScrollRequest(Track.WParam), SB_THUMBTRACK);
    EXPECT_EQ(ScrollPosition(Track.WParam), 2'500'001);
    Bar->setSliderDown(false);
    EXPECT_EQ(ScrollRequest(Child.Messages[Child.Messages.size() - 2].WParam), SB_THUMBPOSITION);
}

TEST_F(QtWindow, MouseEventsBecomeMessagesInClientCoordinates)
{
    Child.Window->SetStyle({TWindowKind::Client, WS_CHILD, WS_EX_CLIENTEDGE});
    QWidget* const Client = ClientOf(Child);
    QTest::mousePress(Client, Qt::LeftButton, Qt::ShiftModifier, QPoint(7, 9));
    const TMessage Down = Child.Last(WM_LBUTTONDOWN);
    EXPECT_EQ(PointOfParam(Down.LParam), (TPoint{7, 9}));
    EXPECT_EQ(Down.WParam & (MK_LBUTTON | MK_SHIFT), std::uint64_t{MK_LBUTTON | MK_SHIFT});
    QTest::mouseRelease(Client, Qt::LeftButton, Qt::NoModifier, QPoint(-3, 200));
    EXPECT_EQ(PointOfParam(Child.Last(WM_LBUTTONUP).LParam), (TPoint{-3, 200}));
    QTest::mouseDClick(Client, Qt::LeftButton, Qt::NoModifier, QPoint(1, 1));
    EXPECT_EQ(Child.Count(WM_LBUTTONDBLCLK), 1);
    EXPECT_EQ(Form.Count(WM_LBUTTONDOWN), 0) << "a click must not pass through to the parent";
}

TEST_F(QtWindow, ACapturedMouseReportsToItsWindowUntilTheLastButtonIsUp)
{
    TTestOwner Other(TWindowKind::Client, &Form, Bounds(220, 20, 100, 100), WS_CHILD);
    Other.Window->SetVisible(true);
    QWidget* const Client = ClientOf(Child);
    QTest::mousePress(Client, Qt::LeftButton, Qt::NoModifier, QPoint(5, 5));
    Other.Window->SetCapture(true);
    QTest::mouseMove(Client, QPoint(15, 25));
    EXPECT_EQ(PointOfParam(Other.Last(WM_MOUSEMOVE).LParam), (TPoint{15 - 210, 25}));
    QTest::mouseRelease(Client, Qt::LeftButton, Qt::NoModifier, QPoint(15, 25));
    EXPECT_EQ(Other.Count(WM_LBUTTONUP), 1);
    EXPECT_EQ(Other.Count(WM_CAPTURECHANGED), 1);
    QTest::mouseMove(Client, QPoint(16, 25));
    EXPECT_EQ(Other.Count(WM_MOUSEMOVE), 1);
}

TEST_F(QtWindow, FineWheelStepsAddUpToNotches)
{
    QWidget* const Client = ClientOf(Child);
    const auto Turn = [&](int Distance) {
        const QPointF Point(10, 10);
        QWheelEvent Event(Point, Client->mapToGlobal(Point), QPoint(), QPoint(0, Distance), Qt::NoButton,
                          Qt::ControlModifier, Qt::NoScrollPhase, false);
        QApplication::sendEvent(Client, &Event);
    };
    Turn(50);
    Turn(50);
    EXPECT_EQ(Child.Count(WM_MOUSEWHEEL), 0);
    Turn(50);
    ASSERT_EQ(Child.Count(WM_MOUSEWHEEL), 1);
    EXPECT_EQ(WheelDistance(Child.Last(WM_MOUSEWHEEL).WParam), 120);
    EXPECT_NE(Child.Last(WM_MOUSEWHEEL).WParam & MK_CONTROL, 0u);
    EXPECT_EQ(PointOfParam(Child.Last(WM_MOUSEWHEEL).LParam), Child.Window->ClientToScreen({10, 10}));
    Turn(-240);
    EXPECT_EQ(WheelDistance(Child.Last(WM_MOUSEWHEEL).WParam), -120) << "30 of the first turns were left";
    EXPECT_EQ(Form.Count(WM_MOUSEWHEEL), 0);
}

TEST_F(QtWindow, AKeyIsDownThenWritesThenIsUp)
{
    Child.Window->SetFocus();
    EXPECT_TRUE(Child.Window->HasFocus());
    EXPECT_EQ(Child.Count(WM_SETFOCUS), 1);
    Child.Messages.clear();
    QTest::keyClick(Child.Widget(), 'q');
    std::vector<std::pair<unsigned, std::uint64_t>> Keys;
    for (const TMessage& Message : Child.Messages)
        if (Message.Msg >= WM_KEYDOWN && Message.Msg <= WM_SYSCHAR)
            Keys.emplace_back(Message.Msg, Message.WParam);
    const std::vector<std::pair<unsigned, std::uint64_t>> Expected = {
        {WM_KEYDOWN, 'Q'}, {WM_CHAR, 'q'}, {WM_KEYUP, 'Q'}};
    EXPECT_EQ(Keys, Expected);
}

TEST_F(QtWindow, AConsumedKeyWritesNothing)
{
    Child.Window->SetFocus();
    Child.OnMessage = [](TMessage& Message) {
        if (Message.Msg == WM_KEYDOWN)
            Message.Result = 1;
        return false;
    };
    QTest::keyClick(Child.Widget(), Qt::Key_B);
    EXPECT_EQ(Child.Count(WM_KEYDOWN), 1);
    EXPECT_EQ(Child.Count(WM_CHAR), 0);
}

TEST_F(QtWindow, TabAndArrowsArriveLikeOtherKeysAndMoveNoFocus)
{
    Child.Window->SetFocus();
    for (const auto& [Key, Virtual] : std::vector<std::pair<Qt::Key, int>>{{Qt::Key_Tab, VK_TAB},
                                                                           {Qt::Key_Backtab, VK_TAB},
                                                                           {Qt::Key_Left, VK_LEFT},
                                                                           {Qt::Key_F5, VK_F5},
                                                                           {Qt::Key_Delete, VK_DELETE},
                                                                           {Qt::Key_Return, VK_RETURN}}) {
        QTest::keyClick(Child.Widget(), Key);
        EXPECT_EQ(Child.Last(WM_KEYDOWN).WParam, std::uint64_t(Virtual));
        EXPECT_TRUE(Child.Window->HasFocus());
    }
    EXPECT_EQ(Form.Count(WM_KEYDOWN), 0);
}

TEST_F(QtWindow, AnEscapeNobodyUsedIsLeftToTheSurroundings)
{
    Child.Window->SetFocus();
    const auto Press = [&] {
        QKeyEvent Event(QEvent::KeyPress, Qt::Key_Escape, Qt::NoModifier);
        QApplication::sendEvent(Child.Widget(), &Event);
        return Event.isAccepted();
    };
    EXPECT_FALSE(Press());
    Child.OnMessage = [](TMessage& Message) { return Message.Msg == WM_KEYDOWN; };
    EXPECT_TRUE(Press());
    EXPECT_EQ(Form.Count(WM_KEYDOWN), 0);
}

TEST_F(QtWindow, TheMenuKeyAsksForAContextMenuOnce)
{
    Child.Window->SetFocus();
    QTest::keyClick(Child.Widget(), Qt::Key_Menu);
    QContextMenuEvent Event(QContextMenuEvent::Keyboard, QPoint(5, 5), QPoint(5, 5));
    QApplication::sendEvent(Child.Widget(), &Event);
    EXPECT_EQ(Child.Count(WM_CONTEXTMENU), 1);
    EXPECT_EQ(Child.Last(WM_CONTEXTMENU).LParam, -1);
    EXPECT_EQ(Form.Count(WM_CONTEXTMENU), 0);
}

TEST_F(QtWindow, WhatAnInputMethodCommitsArrivesAsCharacters)
{
    Child.Window->SetFocus();
    QInputMethodEvent Event;
    Event.setCommitString(QString::fromUtf8("\xE4\xBC\x9A\xF0\x9F\x8E\x89"));
    QApplication::sendEvent(Child.Widget(), &Event);
    ASSERT_EQ(Child.Count(WM_CHAR), 2);
    EXPECT_EQ(Child.Last(WM_CHAR).WParam, 0x1F389u);
}

TEST_F(QtWindow, FocusMovesWithMessagesToBoth)
{
    TTestOwner Other(TWindowKind::Client, &Form, Bounds(220, 20, 100, 100), WS_CHILD);
    Other.Window->SetVisible(true);
    Child.Window->SetFocus();
    Other.Window->SetFocus();
    EXPECT_EQ(Child.Count(WM_KILLFOCUS), 1);
    EXPECT_EQ(Other.Count(WM_SETFOCUS), 1);
    EXPECT_FALSE(Child.Window->HasFocus());
}

TEST_F(QtWindow, AMoveByTheOwnerIsNotTold)
{
    Child.Window->SetBounds(Bounds(5, 5, 90, 80));
    ProcessEvents();
    EXPECT_EQ(Child.Count(WM_SIZE), 0);
    EXPECT_EQ(Child.Count(WM_MOVE), 0);
    EXPECT_EQ(Child.Window->GetClientSize(), (TSize{90, 80}));
    Child.Widget()->setGeometry(0, 1, 70, 60);
    EXPECT_EQ(Child.Count(WM_SIZE), 1);
    EXPECT_EQ(Child.Count(WM_MOVE), 1);
    EXPECT_EQ(PointOfParam(Child.Last(WM_SIZE).LParam), (TPoint{70, 60}));
}

TEST_F(QtWindow, UpdatesAreAskedForOnceAndThePixelsShown)
{
    std::vector<std::uint32_t> Red(200 * 100, 0xFFFF0000);
    Child.Pixels = {Red.data(), 200, 100, 200};
    ProcessEvents();
    Child.Updates = 0;
    Child.Window->RequestUpdate();
    Child.Window->RequestUpdate();
    ProcessEvents();
    EXPECT_EQ(Child.Updates, 1);
    Child.Window->Present(Bounds(0, 0, 200, 100));
    ProcessEvents();
    const QImage Picture = Child.Widget()->grab().toImage();
    EXPECT_EQ(Picture.pixel(0, 0), 0xFFFF0000);
    EXPECT_EQ(Picture.pixel(199, 99), 0xFFFF0000);
}

TEST_F(QtWindow, RenderingDrawsBorderBarsAndPixelsWhereAsked)
{
    std::vector<std::uint32_t> Red(200 * 100, 0xFFFF0000);
    Child.Pixels = {Red.data(), 200, 100, 200};
    Child.Window->SetStyle({TWindowKind::Client, WS_CHILD | WS_BORDER, 0});
    std::vector<std::uint32_t> Target(300 * 200, 0xFF00FF00);
    Child.Window->RenderTo({Target.data(), 300, 200, 300}, {50, 40});
    const auto At = [&](int X, int Y) { return Target[static_cast<std::size_t>(Y * 300 + X)]; };
    EXPECT_EQ(At(49, 40), 0xFF00FF00u);
    EXPECT_NE(At(50, 40), 0xFF00FF00u);
    EXPECT_NE(At(50, 40), 0xFFFF0000u);
    EXPECT_EQ(At(51, 41), 0xFFFF0000u);
    EXPECT_EQ(At(248, 138), 0xFFFF0000u);
    EXPECT_EQ(At(250, 140), 0xFF00FF00u);
}

TEST_F(QtWindow, AReleasedWindowHidesAtOnceAndItsOwnerHearsNothingMore)
{
    const QPointer<QWidget> Widget = Child.Widget();
    Child.Window.reset();
    EXPECT_FALSE(Widget->isVisible());
    Child.Messages.clear();
    ProcessEvents();
    EXPECT_FALSE(Widget);
    EXPECT_TRUE(Child.Messages.empty());
    EXPECT_FALSE(Child.Destroyed);
}

TEST_F(QtWindow, AHandlerMayReleaseTheWindowWithinAnyEvent)
{
    for (const unsigned Msg : {WM_LBUTTONDOWN, WM_LBUTTONUP, WM_MOUSEMOVE, WM_KEYDOWN, WM_CHAR, WM_KEYUP,
                               WM_MOUSEWHEEL, WM_CONTEXTMENU, WM_VSCROLL, WM_KILLFOCUS}) {
        auto Victim =
            std::make_unique<TTestOwner>(TWindowKind::Client, &Form, Bounds(0, 0, 80, 80), WS_CHILD);
        Victim->Window->SetScrollBar(TScrollBarKind::sbVertical, {true, true, 0, 100, 10, 5});
        Victim->Window->SetVisible(true);
        Victim->Window->SetFocus();
        bool Freed = false;
        Victim->OnMessage = [&](TMessage& Message) {
            if (Message.Msg != Msg)
                return false;
            Freed = true;
            Victim->Window.reset();
            return true;
        };
        const QPointer<QWidget> Frame = Victim->Widget();
        const QPointer<QWidget> Client = ClientOf(*Victim);
        const QPointer<QScrollBar> Bar = BarOf(*Victim, Qt::Vertical);
        QTest::mousePress(Client, Qt::LeftButton);
        QTest::mouseMove(Client, QPoint(3, 3));
        QTest::mouseRelease(Client, Qt::LeftButton);
        QWheelEvent Wheel(QPointF(5, 5), Client->mapToGlobal(QPointF(5, 5)), QPoint(), QPoint(0, 120),
                          Qt::NoButton, Qt::NoModifier, Qt::NoScrollPhase, false);
        QApplication::sendEvent(Client, &Wheel);
        QContextMenuEvent Menu(QContextMenuEvent::Mouse, QPoint(5, 5), Client->mapToGlobal(QPoint(5, 5)));
        QApplication::sendEvent(Client, &Menu);
        QTest::keyClick(Frame, Qt::Key_A);
        Bar->triggerAction(QAbstractSlider::SliderPageStepAdd);
        Form.Window->SetFocus();
        EXPECT_TRUE(Freed) << Msg;
        ProcessEvents();
        EXPECT_FALSE(Frame) << Msg;
    }
}

TEST_F(QtWindow, WhenTheToolkitDestroysTheWidgetTheOwnerIsTold)
{
    delete Child.Widget();
    EXPECT_TRUE(Child.Destroyed);
    EXPECT_FALSE(Child.Window);
}

TEST_F(QtWindow, WithItsParentsWidgetAChildsGoesToo)
{
    delete Form.Widget();
    EXPECT_TRUE(Form.Destroyed);
    EXPECT_TRUE(Child.Destroyed);
}

TEST_F(QtWindow, ChildrenOutliveAReleasedParent)
{
    TTestOwner Parent(TWindowKind::Client, &Form, Bounds(0, 0, 80, 80), WS_CHILD);
    TTestOwner Inner(TWindowKind::Client, &Parent, Bounds(0, 0, 40, 40), WS_CHILD);
    Parent.Window.reset();
    ProcessEvents();
    EXPECT_FALSE(Inner.Destroyed);
    Inner.Window->SetParent(Form.Window.get());
    Inner.Window->SetVisible(true);
    EXPECT_TRUE(Inner.Widget()->isVisible());
}

TEST_F(QtWindow, AChildWithoutAParentWaitsUnseen)
{
    TTestOwner Waiting(TWindowKind::Client, nullptr, Bounds(0, 0, 40, 40), WS_CHILD);
    Waiting.Window->SetVisible(true);
    EXPECT_FALSE(Waiting.Widget()->isVisible());
    Waiting.Window->SetParent(Form.Window.get());
    EXPECT_TRUE(Waiting.Widget()->isVisible());
}

TEST_F(QtWindow, AFormIsClosedByItsOwnerOnly)
{
    Form.Widget()->close();
    EXPECT_EQ(Form.Count(WM_CLOSE), 1);
    EXPECT_TRUE(Form.Widget()->isVisible());
}

TEST_F(QtWindow, AMenuBarTakesItsHeightFromTheFormsClientArea)
{
    const TSize Before = Form.Window->GetClientSize();
    TMenuSpec Menu;
    Menu.Items.resize(1);
    Menu.Items[0].Command = 1;
    Menu.Items[0].Caption = "&File";
    Menu.Items[0].Items.resize(1);
    Menu.Items[0].Items[0].Command = 2;
    Menu.Items[0].Items[0].Caption = "&Open";
    Form.Window->SetMenu(&Menu);
    EXPECT_LT(Form.Window->GetClientSize().Height, Before.Height);
    QAction* const Open = Form.Widget()->findChild<QMenu*>()->actions().at(0);
    Open->trigger();
    EXPECT_EQ(Form.Last(WM_COMMAND).WParam, 2u);
    Form.Window->SetMenu(nullptr);
    EXPECT_EQ(Form.Window->GetClientSize(), Before);
}

TEST_F(QtWindow, AHintTakesNeitherFocusNorMouse)
{
    Child.Window->SetFocus();
    TTestOwner Hint(TWindowKind::Hint, nullptr, Bounds(60, 60, 50, 20), WS_POPUP | WS_BORDER);
    Hint.Window->SetVisible(true);
    ProcessEvents();
    EXPECT_TRUE(Hint.Widget()->isVisible());
    EXPECT_TRUE(Child.Window->HasFocus());
    EXPECT_EQ(Hint.Count(WM_SETFOCUS), 0);
    EXPECT_TRUE(Hint.Widget()->testAttribute(Qt::WA_TransparentForMouseEvents));
    EXPECT_EQ(Hint.Window->GetClientSize(), (TSize{48, 18}));
}

TEST_F(QtWindow, ACursorIsShownOverTheClientArea)
{
    Child.Window->SetCursor(crHandPoint);
    EXPECT_EQ(ClientOf(Child)->cursor().shape(), Qt::PointingHandCursor);
    Child.Window->SetCursor(crDefault);
    EXPECT_EQ(ClientOf(Child)->cursor().shape(), Qt::ArrowCursor);
}

TEST_F(QtWindow, AWindowIsFoundAtAScreenPoint)
{
    EXPECT_EQ(Platform().Windows().WindowAt(Child.Window->ClientToScreen({5, 5})), Child.Window.get());
    EXPECT_EQ(Platform().Windows().WindowAt(Form.Window->ClientToScreen({300, 200})), Form.Window.get());
}

} // namespace vcl
