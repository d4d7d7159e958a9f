#pragma once

// A form of the toolkit with a probe on it.

#include <QApplication>
#include <QPointer>
#include <QScrollBar>
#include <QTest>
#include <QWidget>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "vcl/controls/ProbeControl.h"
#include "vcl/forms/Application.h"
#include "vcl/forms/Form.h"
#include "vcl/platform/Platform.h"
#include "vcl/platform/System.h"
#include "vcl/platform/qt/QtPlatform.h"
#include "vcl/platform/qt/QtWindow.h"

namespace vcl::tests
{

using ::testing::Contains;
using ::testing::ElementsAre;
using ::testing::IsEmpty;
using ::testing::Not;
using ::testing::StartsWith;

inline QWidget* FrameOf(TWinControl& Control)
{
    return static_cast<QWidget*>(Control.GetHandle()->NativeHandle());
}

/// The widget that gets the mouse of a self-drawn control.
inline QWidget* ClientOf(TWinControl& Control)
{
    return qt::TWindow::Of(Control.GetHandle())->ClientWidget();
}

inline QScrollBar* BarOf(TWinControl& Control, Qt::Orientation Orientation)
{
    for (QScrollBar* const Bar : FrameOf(Control)->findChildren<QScrollBar*>()) {
        if (Bar->orientation() == Orientation)
            return Bar;
    }
    return nullptr;
}

class TQtControlTest : public ::testing::Test
{
protected:
    TQtControlTest()
    {
        qt::UseQt();
        FForm = New<TForm>(nullptr);
        FForm->SetClientSize({400, 300});
        Application().OnException = [this](TObject*, const std::exception& Error) {
            FErrors.push_back(Error.what());
        };
    }

    ~TQtControlTest() override
    {
        delete FForm;
        ProcessMessages();
        Application().OnException = nullptr;
        EXPECT_THAT(FErrors, IsEmpty());
    }

    static void ProcessMessages() { Platform().Windows().ProcessMessages(); }

    TProbe& AddProbe(int Left = 10)
    {
        TProbe* const Probe = New<TProbe>(FForm);
        Probe->SetBounds(Left, 20, 100, 80);
        Probe->SetParent(FForm);
        return *Probe;
    }

    void ShowForm()
    {
        FForm->Show();
        static_cast<void>(QTest::qWaitForWindowActive(FrameOf(*FForm)));
        ProcessMessages();
    }

    TForm* FForm = nullptr;
    std::vector<std::string> FErrors;
};

} // namespace vcl::tests
