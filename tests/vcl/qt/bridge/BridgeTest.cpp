#include "vcl/qt/Bridge.h"

#include <QCalendarWidget>
#include <QLineEdit>
#include <QVBoxLayout>

#include "vcl/qt/bridge/QtFixture.h"

namespace vcl::tests
{

namespace
{

/// A program's window: an edit, an embedded probe, another edit.
class TEmbeddingTest : public ::testing::Test
{
protected:
    TEmbeddingTest()
    {
        qt::UseQt();
        FProbe = New<TProbe>(nullptr);
        FProbe->SetBounds(0, 0, 180, 90);
        FProbe->SetTabStop(true);
        auto* const Layout = new QVBoxLayout(&FWindow);
        Layout->addWidget(&FAbove);
        FPlace = WidgetOf(FProbe);
        Layout->addWidget(FPlace, 1);
        Layout->addWidget(&FBelow);
    }

    ~TEmbeddingTest() override
    {
        delete FProbe;
        Platform().Windows().ProcessMessages();
    }

    void Show()
    {
        FWindow.resize(300, 250);
        FWindow.show();
        FWindow.activateWindow();
        static_cast<void>(QTest::qWaitForWindowActive(&FWindow));
        Platform().Windows().ProcessMessages();
    }

    QWidget FWindow;
    QLineEdit FAbove;
    QLineEdit FBelow;
    TProbe* FProbe;
    QPointer<QWidget> FPlace;
};

} // namespace

TEST_F(TEmbeddingTest, TheControlFillsItsPlaceInTheLayout)
{
    EXPECT_EQ(FPlace->sizeHint(), QSize(180, 90));
    Show();
    EXPECT_TRUE(FrameOf(*FProbe)->isVisible());
    EXPECT_EQ(FProbe->GetWidth(), FPlace->width());
    EXPECT_EQ(FProbe->GetHeight(), FPlace->height());
    EXPECT_THAT(FProbe->TakeNotes(), Contains(StartsWith("Paint")));
    FWindow.resize(400, 400);
    Platform().Windows().ProcessMessages();
    EXPECT_EQ(FProbe->GetWidth(), FPlace->width());
    EXPECT_EQ(FProbe->GetAlign(), TAlign::alNone) << "what a form file would keep is left alone";
}

TEST_F(TEmbeddingTest, AskedAgainItIsTheSameWidget)
{
    EXPECT_EQ(WidgetOf(FProbe), FPlace.data());
    TForm* const Form = New<TForm>(nullptr);
    TProbe* const Elsewhere = New<TProbe>(Form);
    Elsewhere->SetParent(Form);
    EXPECT_THROW(WidgetOf(Elsewhere), EInvalidOperation);
    delete Form;
}

TEST_F(TEmbeddingTest, NothingOfItIsAWindowOfItsOwn)
{
    Show();
    for (const QWidget* const Widget : QApplication::topLevelWidgets())
        EXPECT_TRUE(Widget == &FWindow || !Widget->isVisible());
}

TEST_F(TEmbeddingTest, TabWalksInAndOutInBothDirections)
{
    Show();
    FAbove.setFocus();
    QTest::keyClick(&FAbove, Qt::Key_Tab);
    EXPECT_TRUE(FProbe->Focused());
    QTest::keyClick(FrameOf(*FProbe), Qt::Key_Tab);
    EXPECT_TRUE(FBelow.hasFocus());
    QTest::keyClick(&FBelow, Qt::Key_Backtab, Qt::ShiftModifier);
    EXPECT_TRUE(FProbe->Focused());
    QTest::keyClick(FrameOf(*FProbe), Qt::Key_Backtab, Qt::ShiftModifier);
    EXPECT_TRUE(FAbove.hasFocus());
}

TEST_F(TEmbeddingTest, EnterAndExitFollowTheFocusOfTheProgram)
{
    Show();
    FAbove.setFocus();
    FProbe->TakeNotes();
    FProbe->SetFocus();
    EXPECT_TRUE(FProbe->Focused());
    EXPECT_THAT(FProbe->TakeNotes(), Contains("Enter"));
    TCustomForm* const Form = GetParentForm(FProbe);
    ASSERT_TRUE(Form);
    EXPECT_TRUE(Form->GetActive());
    FBelow.setFocus();
    EXPECT_FALSE(Form->GetActive());
    EXPECT_TRUE(FBelow.hasFocus());
}

TEST_F(TEmbeddingTest, FontAndColorsOfTheSurroundingsArriveInTheControl)
{
    Show();
    QFont Font = FWindow.font();
    Font.setPixelSize(21);
    FWindow.setFont(Font);
    EXPECT_EQ(FProbe->GetFont()->GetHeight(), -21);
    QPalette Palette = FWindow.palette();
    Palette.setColor(QPalette::Window, QColor(1, 2, 3));
    FWindow.setPalette(Palette);
    FProbe->SetParentColor(true);
    EXPECT_EQ(FProbe->GetColor(), TColor(0x030201));
}

TEST_F(TEmbeddingTest, KeysNobodyUsedStayInTheProgram)
{
    Show();
    FProbe->SetFocus();
    FProbe->TakeNotes();
    QTest::keyClick(FrameOf(*FProbe), 'x');
    EXPECT_THAT(FProbe->TakeNotes(), ElementsAre("KeyDown 88", "KeyPress 120", "KeyUp 88"));
    EXPECT_EQ(FAbove.text() + FBelow.text(), QString());
}

TEST_F(TEmbeddingTest, TheControlMayGoFirst)
{
    Show();
    delete std::exchange(FProbe, nullptr);
    Platform().Windows().ProcessMessages();
    EXPECT_TRUE(FPlace);
    FWindow.resize(350, 300);
    Platform().Windows().ProcessMessages();
}

TEST_F(TEmbeddingTest, TheWidgetMayGoFirst)
{
    Show();
    delete FPlace;
    EXPECT_EQ(FProbe->GetParent(), nullptr);
    EXPECT_FALSE(FProbe->HandleAllocated());
    FProbe->Invalidate();
    QWidget* const Again = WidgetOf(FProbe);
    FWindow.layout()->addWidget(Again);
    Platform().Windows().ProcessMessages();
    EXPECT_TRUE(FrameOf(*FProbe)->isVisible());
}

TEST_F(TEmbeddingTest, AHandlerMayFreeTheControlInTheLayout)
{
    Show();
    FProbe->When("MouseDown", [this] { delete std::exchange(FProbe, nullptr); });
    QTest::mouseClick(ClientOf(*FProbe), Qt::LeftButton);
    EXPECT_FALSE(FProbe);
    Platform().Windows().ProcessMessages();
}

namespace
{

class TQtHostTest : public TQtControlTest
{
protected:
    TQtHostTest() : FHost(New<TQtHost>(FForm))
    {
        FHost->SetBounds(120, 20, 200, 150);
        FHost->SetParent(FForm);
    }

    TQtHost* FHost;
};

} // namespace

TEST_F(TQtHostTest, AForeignWidgetFillsTheHost)
{
    auto* const Calendar = new QCalendarWidget;
    FHost->SetWidget(Calendar);
    ShowForm();
    EXPECT_TRUE(Calendar->isVisible());
    EXPECT_EQ(Calendar->size(), QSize(200, 150));
    FHost->SetBounds(120, 20, 180, 140);
    EXPECT_EQ(Calendar->size(), QSize(180, 140));
}

TEST_F(TQtHostTest, TabWalksThroughTheForeignWidgetAndOn)
{
    TProbe& Probe = AddProbe();
    Probe.SetTabStop(true);
    Probe.SetTabOrder(0);
    auto* const Pair = new QWidget;
    auto* const First = new QLineEdit(Pair);
    auto* const Second = new QLineEdit(Pair);
    FHost->SetWidget(Pair);
    ShowForm();
    Probe.SetFocus();
    QTest::keyClick(FrameOf(Probe), Qt::Key_Tab);
    EXPECT_TRUE(First->hasFocus());
    EXPECT_TRUE(FHost->Focused());
    EXPECT_EQ(FForm->GetActiveControl(), FHost);
    QTest::keyClick(First, Qt::Key_Tab);
    EXPECT_TRUE(Second->hasFocus());
    QTest::keyClick(Second, Qt::Key_Tab);
    EXPECT_TRUE(Probe.Focused());
}

TEST_F(TQtHostTest, AClickIntoTheForeignWidgetMakesTheHostActive)
{
    TProbe& Probe = AddProbe();
    auto* const Line = new QLineEdit;
    FHost->SetWidget(Line);
    ShowForm();
    Probe.SetFocus();
    Line->setFocus(Qt::MouseFocusReason);
    EXPECT_EQ(FForm->GetActiveControl(), FHost);
    EXPECT_THAT(Probe.TakeNotes(), Contains("Exit"));
}

TEST_F(TQtHostTest, TheHostOwnsTheWidgetUnlessItIsTaken)
{
    const QPointer<QWidget> Owned = new QLineEdit;
    FHost->SetWidget(Owned);
    ShowForm();
    const QPointer<QWidget> Other = new QLineEdit;
    FHost->SetWidget(Other);
    EXPECT_FALSE(Owned);
    EXPECT_EQ(FHost->TakeWidget(), Other.data());
    delete FHost;
    EXPECT_TRUE(Other);
    delete Other;
}

} // namespace vcl::tests
