#include "vcl/qt/platform/TestOwner.h"

#include <QApplication>
#include <QTest>

#include "vcl/platform/WindowStyles.h"

namespace vcl
{

TTestForm::TTestForm()
    : TTestOwner(TWindowKind::Form, nullptr, Bounds(20, 30, 400, 300),
                 WS_POPUP | WS_CAPTION | WS_SYSMENU | WS_THICKFRAME)
{
    Window->SetVisible(true);
    Window->Activate();
    static_cast<void>(QTest::qWaitForWindowActive(Widget()));
}

void ProcessEvents()
{
    Platform().Windows().ProcessMessages();
}

} // namespace vcl
