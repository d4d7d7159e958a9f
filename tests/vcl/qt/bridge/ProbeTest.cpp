#include "vcl/platform/VirtualKeys.h"
#include "vcl/qt/bridge/QtFixture.h"

namespace vcl::tests
{

namespace
{

class TQtProbeTest : public TQtControlTest
{
protected:
    TQtProbeTest() : FProbe(AddProbe()) {}

    void Start()
    {
        ShowForm();
        FProbe.TakeNotes();
    }

    TProbe& FProbe;
};

} // namespace

TEST_F(TQtProbeTest, AClickGoesThroughTheHandlersInTheirOrder)
{
    Start();
    QTest::mouseClick(ClientOf(FProbe), Qt::LeftButton, Qt::NoModifier, QPoint(5, 6));
    const std::vector<std::string> Notes = FProbe.TakeNotes();
    std::vector<std::string> Clicks;
    for (const std::string& Note : Notes)
        if (Note.find("Down") != std::string::npos || Note.find("Click") == 0 ||
            Note.find("Up") != std::string::npos)
            Clicks.push_back(Note);
    EXPECT_THAT(Clicks, ElementsAre("MouseDown 5,6", "Click", "MouseUp 5,6"));
}

TEST_F(TQtProbeTest, KeysReachTheFocusedControlAndTabLeavesIt)
{
    TProbe& Other = AddProbe(150);
    FProbe.SetTabStop(true);
    Other.SetTabStop(true);
    Start();
    FProbe.SetFocus();
    EXPECT_TRUE(FProbe.Focused());
    FProbe.TakeNotes();
    QTest::keyClick(FrameOf(FProbe), 'q');
    EXPECT_THAT(FProbe.TakeNotes(), ElementsAre("KeyDown 81", "KeyPress 113", "KeyUp 81"));
    QTest::keyClick(FrameOf(FProbe), Qt::Key_Tab);
    EXPECT_TRUE(Other.Focused());
    EXPECT_THAT(Other.TakeNotes(), Contains("Enter"));
    QTest::keyClick(FrameOf(Other), Qt::Key_Backtab, Qt::ShiftModifier);
    EXPECT_TRUE(FProbe.Focused());
}

TEST_F(TQtProbeTest, AnEditInsideTakesTextAndGivesTabToTheForm)
{
    TEdit& Edit = FProbe.AddEdit();
    Start();
    Edit.SetFocus();
    EXPECT_TRUE(Edit.Focused());
    QTest::keyClicks(FrameOf(Edit), "note");
    EXPECT_EQ(Edit.GetText(), "note");
    EXPECT_EQ(FForm->GetActiveControl(), &Edit);
    QTest::mouseClick(FrameOf(Edit), Qt::LeftButton, Qt::NoModifier, QPoint(2, 8));
    EXPECT_EQ(Edit.GetSelStart(), 0);
    Edit.PostMessage(WM_LBUTTONDOWN, MK_LBUTTON, MakePointParam(60, 8));
    ProcessMessages();
    EXPECT_EQ(Edit.GetSelStart(), 4);
}

TEST_F(TQtProbeTest, BothBarsTakeRoomAndScroll)
{
    FProbe.SetBars(true, true);
    Start();
    TScrollInfo Info;
    Info.Mask = SIF_ALL;
    Info.Max = 1'000'000;
    Info.Page = 10;
    FProbe.SetScrollInfo(TScrollBarKind::sbVertical, Info);
    FProbe.SetScrollInfo(TScrollBarKind::sbHorizontal, Info);
    const int Bar = Platform().System().Metric(TSystemMetric::VScrollBarWidth);
    EXPECT_EQ(FProbe.GetClientRect(), (TRect{0, 0, 100 - Bar, 80 - Bar}));
    FProbe.TakeNotes();
    BarOf(FProbe, Qt::Vertical)->triggerAction(QAbstractSlider::SliderPageStepAdd);
    EXPECT_THAT(FProbe.TakeNotes(), ElementsAre(StartsWith("VScroll " + std::to_string(SB_PAGEDOWN)),
                                                StartsWith("VScroll " + std::to_string(SB_ENDSCROLL))));
    FProbe.SetScrollPos(TScrollBarKind::sbVertical, 777'777);
    EXPECT_EQ(BarOf(FProbe, Qt::Vertical)->value(), 777'777);
}

TEST_F(TQtProbeTest, TimersTickByTheirNumbersAndEndWithTheHandle)
{
    Start();
    FProbe.SetTimer(7, 1);
    QTest::qWait(20);
    EXPECT_THAT(FProbe.TakeNotes(), Contains("Timer 7"));
    FProbe.RecreateWnd();
    FProbe.TakeNotes();
    QTest::qWait(20);
    EXPECT_THAT(FProbe.TakeNotes(), Not(Contains("Timer 7")));
}

TEST_F(TQtProbeTest, ADragGoesFromOneControlToTheOther)
{
    TProbe& Target = AddProbe(150);
    Start();
    std::vector<std::string> Events;
    Target.OnDragOver = [&](TObject*, TObject*, int, int, TDragState, bool& Accept) { Accept = true; };
    Target.OnDragDrop = [&](TObject*, TObject* Source, int X, int Y) {
        Events.push_back((Source == &FProbe ? "drop " : "? ") + std::to_string(X) + "," + std::to_string(Y));
    };
    FProbe.When("MouseDown", [&] { FProbe.BeginDrag(true); });
    QWidget* const Client = ClientOf(FProbe);
    const QPoint There = Client->mapFromGlobal(ClientOf(Target)->mapToGlobal(QPoint(30, 40)));
    QTest::mousePress(Client, Qt::LeftButton, Qt::NoModifier, QPoint(5, 5));
    QTest::mouseMove(Client, There);
    QTest::mouseRelease(Client, Qt::LeftButton, Qt::NoModifier, There);
    EXPECT_THAT(Events, ElementsAre("drop 30,40"));
}

TEST_F(TQtProbeTest, ARecreatedWindowKeepsItsWidgetFocusAndBars)
{
    FProbe.SetBars(false, true);
    Start();
    FProbe.SetFocus();
    const QPointer<QWidget> Before = FrameOf(FProbe);
    FProbe.SetBorderStyle(TBorderStyle::bsSingle); // makes the handle anew
    ProcessMessages();
    EXPECT_EQ(FrameOf(FProbe), Before.data());
    EXPECT_TRUE(FProbe.Focused());
    EXPECT_TRUE(BarOf(FProbe, Qt::Vertical)->isVisible());
    EXPECT_LT(FProbe.GetClientRect().Width(), 100);
}

TEST_F(TQtProbeTest, DrawingOutsidePaintIsShownUntilTheNextPainting)
{
    FProbe.SetColor(clWhite);
    Start();
    FProbe.GetCanvas()->GetBrush()->SetColor(clRed);
    FProbe.GetCanvas()->FillRect({10, 10, 20, 20});
    ProcessMessages();
    EXPECT_EQ(FrameOf(FProbe)->grab().toImage().pixel(15, 15), 0xFFFF0000);
    FProbe.Invalidate();
    ProcessMessages();
    EXPECT_EQ(FrameOf(FProbe)->grab().toImage().pixel(15, 15), 0xFFFFFFFF);
}

TEST_F(TQtProbeTest, APaintingIsDeferredAndCoalesced)
{
    Start();
    FProbe.InvalidateRect({0, 0, 10, 10});
    FProbe.InvalidateRect({50, 50, 60, 60});
    EXPECT_THAT(FProbe.TakeNotes(), IsEmpty());
    ProcessMessages();
    EXPECT_THAT(FProbe.TakeNotes(), ElementsAre("Paint 0,0,60,60"));
}

TEST_F(TQtProbeTest, AHandlerMayFreeTheControl)
{
    for (const char* const Place :
         {"MouseDown", "Click", "MouseUp", "KeyDown", "KeyPress", "VScroll", "Timer"}) {
        TProbe* const Victim = &AddProbe(200);
        Victim->SetBars(false, true);
        ShowForm();
        Victim->SetFocus();
        bool Freed = false;
        Victim->When(Place, [&] {
            Freed = true;
            delete Victim;
        });
        const QPointer<QWidget> Frame = FrameOf(*Victim);
        const QPointer<QWidget> Client = ClientOf(*Victim);
        const QPointer<QScrollBar> Bar = BarOf(*Victim, Qt::Vertical);
        Victim->SetTimer(1, 1);
        if (std::string(Place) == "Timer")
            QTest::qWait(20);
        if (Client && !Freed)
            QTest::mouseClick(Client, Qt::LeftButton);
        if (Frame && !Freed)
            QTest::keyClick(Frame, Qt::Key_A);
        if (Bar && !Freed)
            Bar->triggerAction(QAbstractSlider::SliderPageStepAdd);
        ProcessMessages();
        EXPECT_TRUE(Freed) << Place;
        EXPECT_FALSE(Frame) << Place;
    }
}

TEST_F(TQtProbeTest, AControlSurvivesTheDestructionOfItsWidget)
{
    FProbe.AddEdit();
    Start();
    delete FrameOf(FProbe);
    EXPECT_FALSE(FProbe.HandleAllocated());
    FProbe.Invalidate();
    FProbe.SetBounds(1, 2, 30, 40);
    ProcessMessages();
    FProbe.HandleNeeded();
    EXPECT_TRUE(FProbe.HandleAllocated());
}

TEST_F(TQtProbeTest, WhatAHandlerThrowsEndsInTheApplication)
{
    Start();
    FProbe.When("MouseDown", [] { throw Exception("from the handler"); });
    QTest::mouseClick(ClientOf(FProbe), Qt::LeftButton);
    EXPECT_THAT(FErrors, ElementsAre("from the handler"));
    FErrors.clear();
}

TEST_F(TQtProbeTest, SystemColorsAreRepaintedWhenThePaletteChanges)
{
    FProbe.SetColor(clWindow);
    Start();
    const QPalette Before = QApplication::palette();
    QPalette Changed = Before;
    Changed.setColor(QPalette::Base, QColor(0x12, 0x34, 0x56));
    QApplication::setPalette(Changed);
    ProcessMessages();
    EXPECT_EQ(FrameOf(FProbe)->grab().toImage().pixel(50, 40), 0xFF123456);
    QApplication::setPalette(Before);
}

} // namespace vcl::tests
