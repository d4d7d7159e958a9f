#include <gtest/gtest.h>

#include <QAccessible>

#include "vcl/platform/WindowStyles.h"
#include "vcl/qt/platform/TestOwner.h"

namespace vcl
{

TEST(QtAccessibility, ASelfDrawnControlTellsItsNameItsRoleAndItsFocus)
{
    TTestForm Form;
    TTestOwner Child(TWindowKind::Client, &Form, Bounds(0, 0, 80, 80), WS_CHILD);
    Child.Window->SetText("Week");
    Child.Window->SetVisible(true);
    QAccessibleInterface* const Interface = QAccessible::queryAccessibleInterface(Child.Widget());
    ASSERT_TRUE(Interface);
    EXPECT_EQ(Interface->text(QAccessible::Name), "Week");
    EXPECT_EQ(Interface->role(), QAccessible::Client);
    EXPECT_TRUE(Interface->state().focusable);
    EXPECT_FALSE(Interface->state().focused);
    Child.Window->SetFocus();
    EXPECT_TRUE(Interface->state().focused);
}

TEST(QtAccessibility, AFormIsAWindowNamedByItsCaption)
{
    TTestForm Form;
    Form.Window->SetText("Planner");
    QAccessibleInterface* const Interface = QAccessible::queryAccessibleInterface(Form.Widget());
    ASSERT_TRUE(Interface);
    EXPECT_EQ(Interface->text(QAccessible::Name), "Planner");
    EXPECT_EQ(Interface->role(), QAccessible::Window);
}

} // namespace vcl
