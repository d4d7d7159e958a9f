#include <QApplication>
#include <QTest>
#include <QWheelEvent>
#include <QWidget>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "KSTreeView/KSTreeView.h"
#include "vcl/controls/Button.h"
#include "vcl/forms/Application.h"
#include "vcl/forms/Form.h"
#include "vcl/platform/Platform.h"
#include "vcl/platform/qt/QtPlatform.h"
#include "vcl/platform/qt/QtWindow.h"

namespace
{

class TreeOnQt : public testing::Test
{
protected:
    TreeOnQt()
    {
        vcl::qt::UseQt();
        Form = vcl::New<vcl::TForm>(nullptr);
        Form->SetClientSize({400, 300});
        vcl::Application().OnException = [](vcl::TObject*, const std::exception& Error) {
            ADD_FAILURE() << Error.what();
        };
        Tree = vcl::New<TKSTreeView>(Form);
        Tree->SetBounds(0, 0, 300, 200);
        Tree->SetParent(Form);
    }
    ~TreeOnQt() override
    {
        delete Form;
        Process();
        vcl::Application().OnException = nullptr;
    }
    static void Process() { vcl::Platform().Windows().ProcessMessages(); }
    QWidget* Frame(vcl::TWinControl& Control)
    {
        return static_cast<QWidget*>(Control.GetHandle()->NativeHandle());
    }
    QWidget* Client() { return vcl::qt::TWindow::Of(Tree->GetHandle())->ClientWidget(); }
    void Show()
    {
        Form->Show();
        static_cast<void>(QTest::qWaitForWindowActive(Frame(*Form)));
        Process();
    }
    static QPoint Middle(const vcl::TRect& Rect)
    {
        return {(Rect.Left + Rect.Right) / 2, (Rect.Top + Rect.Bottom) / 2};
    }
    void Click(const vcl::TRect& Rect)
    {
        QTest::mouseClick(Client(), Qt::LeftButton, Qt::NoModifier, Middle(Rect));
        Process();
    }

    vcl::TForm* Form = nullptr;
    TKSTreeView* Tree = nullptr;
};

TEST_F(TreeOnQt, IsWalkedWithTheKeyboardAndRenamedInPlace)
{
    TKSTreeNode* const Boss = Tree->GetItems()->Add(nullptr, "Boss");
    TKSTreeNode* const Aide = Tree->GetItems()->AddChild(Boss, "Aide");
    Show();
    Click(Boss->GetRect());
    EXPECT_TRUE(Tree->Focused());
    EXPECT_EQ(Tree->GetSelected(), Boss);
    QTest::keyClick(Frame(*Tree), Qt::Key_Down);
    EXPECT_TRUE(Boss->GetExpanded());
    QTest::keyClick(Frame(*Tree), Qt::Key_Down);
    EXPECT_EQ(Tree->GetSelected(), Aide);
    QTest::keyClick(Frame(*Tree), Qt::Key_F2);
    Process();
    ASSERT_TRUE(Tree->IsEditing());
    QTest::keyClicks(Frame(*Tree->GetEditor()), "Deputy");
    EXPECT_EQ(Tree->GetEditor()->GetText(), "Deputy");
    QTest::keyClick(Frame(*Tree->GetEditor()), Qt::Key_Return);
    Process();
    EXPECT_FALSE(Tree->IsEditing());
    EXPECT_EQ(Aide->GetText(), "Deputy");
    EXPECT_TRUE(Tree->Focused());
    QTest::keyClick(Frame(*Tree), Qt::Key_F2);
    Process();
    ASSERT_TRUE(Tree->IsEditing());
    QTest::keyClicks(Frame(*Tree->GetEditor()), "Nobody");
    QTest::keyClick(Frame(*Tree->GetEditor()), Qt::Key_Escape);
    Process();
    EXPECT_EQ(Aide->GetText(), "Deputy");
    QTest::keyClick(Frame(*Tree), Qt::Key_Up);
    EXPECT_EQ(Tree->GetSelected(), Boss);
}

TEST_F(TreeOnQt, ASecondClickEditsAfterAWhile)
{
    TKSTreeNode* const Boss = Tree->GetItems()->Add(nullptr, "Boss");
    Tree->GetItems()->Add(nullptr, "Other");
    Show();
    Click(Boss->GetRect());
    QTest::qWait(QApplication::doubleClickInterval() + 50);
    Click(Boss->GetRect());
    EXPECT_TRUE(Tree->IsEditPending());
    ASSERT_TRUE(QTest::qWaitFor([this] { return Tree->IsEditing(); }, 5000));
    Click(Tree->GetItems()->GetLastTopNode()->GetRect());
    EXPECT_FALSE(Tree->IsEditing());
    EXPECT_EQ(Tree->GetSelected(), Boss) << "that click only closed the editor";
}

TEST_F(TreeOnQt, ButtonsToggleTheWheelScrollsAndTheBackgroundPans)
{
    TKSTreeNode* const Boss = Tree->GetItems()->Add(nullptr, "Boss");
    for (int Index = 0; Index < 10; ++Index)
        Tree->GetItems()->AddChild(Boss, "Aide");
    Show();
    Click(Boss->ButtonRect());
    EXPECT_TRUE(Boss->GetExpanded());
    EXPECT_EQ(Tree->GetSelected(), nullptr);
    ASSERT_GT(Tree->GetHorzScrollBar()->GetMaxPosition(), 200);
    const QPointF At(150, 5);
    QWheelEvent Wheel(At, Client()->mapToGlobal(At), {}, {0, -120}, Qt::NoButton, Qt::NoModifier,
                      Qt::NoScrollPhase, false);
    QApplication::sendEvent(Client(), &Wheel);
    EXPECT_EQ(Tree->GetHorzScrollBar()->GetPosition(), 40);
    // A wheel turned to the right, which the toolkit counts as negative, shows what is on the right.
    QWheelEvent Sideways(At, Client()->mapToGlobal(At), {}, {-120, 0}, Qt::NoButton, Qt::NoModifier,
                         Qt::NoScrollPhase, false);
    QApplication::sendEvent(Client(), &Sideways);
    EXPECT_EQ(Tree->GetHorzScrollBar()->GetPosition(), 80);
    QApplication::sendEvent(Client(), &Wheel);
    EXPECT_EQ(Tree->GetHorzScrollBar()->GetPosition(), 120);
    Tree->GetHorzScrollBar()->SetPosition(40);
    QTest::mousePress(Client(), Qt::LeftButton, Qt::NoModifier, {150, 5});
    QMouseEvent Move(QEvent::MouseMove, QPointF(100, 5), Client()->mapToGlobal(QPointF(100, 5)),
                     Qt::LeftButton, Qt::LeftButton, Qt::NoModifier);
    QApplication::sendEvent(Client(), &Move);
    QTest::mouseRelease(Client(), Qt::LeftButton, Qt::NoModifier, {100, 5});
    EXPECT_EQ(Tree->GetHorzScrollBar()->GetPosition(), 90);
}

TEST_F(TreeOnQt, TabInTheEditorAcceptsAndMovesOn)
{
    auto* const Next = vcl::New<vcl::TButton>(Form);
    Next->SetBounds(0, 250, 50, 20);
    Next->SetParent(Form);
    TKSTreeNode* const Boss = Tree->GetItems()->Add(nullptr, "Boss");
    Show();
    Tree->SetFocus();
    const auto TabWith = [&](Qt::KeyboardModifiers Modifiers) {
        Boss->SetText("Boss");
        Boss->EditText();
        Process();
        ASSERT_TRUE(Tree->IsEditing());
        QTest::keyClicks(Frame(*Tree->GetEditor()), "x");
        QTest::keyClick(Frame(*Tree->GetEditor()), Qt::Key_Tab, Modifiers);
        Process();
        EXPECT_FALSE(Tree->IsEditing());
        EXPECT_EQ(Boss->GetText(), "x");
    };
    TabWith(Qt::NoModifier);
    EXPECT_TRUE(Next->Focused());
    Tree->SetFocus();
    TabWith(Qt::ShiftModifier);
    EXPECT_TRUE(Tree->Focused()) << "the view stands before its editor";
}

} // namespace
