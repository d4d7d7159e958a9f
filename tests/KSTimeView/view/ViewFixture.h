#pragma once

// A time view on a form of the platform without a screen.

#include <memory>
#include <string>
#include <vector>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "KSTimeView/KSTimeView.h"
#include "vcl/forms/Application.h"
#include "vcl/forms/Form.h"
#include "vcl/graphics/RecordingPainter.h"
#include "vcl/platform/record/RecordPlatform.h"

class TTimeViewTest : public ::testing::Test
{
protected:
    static constexpr double Monday = 36528; // 3 January 2000

    TTimeViewTest()
    {
        vcl::SetPlatform(&FPlatform);
        FForm = vcl::New<vcl::TForm>(nullptr);
        FForm->SetClientSize({1000, 800});
        vcl::Application().OnException = [this](vcl::TObject*, const std::exception& Error) {
            FErrors.push_back(Error.what());
        };
        FView = vcl::New<TKSTimeView>(FForm);
        FView->SetDate(Monday);
        FView->SetBorderStyle(vcl::TBorderStyle::bsNone);
    }

    ~TTimeViewTest() override
    {
        delete FForm;
        vcl::Application().OnException = nullptr;
        vcl::Application().Detach();
        vcl::SetPlatform(nullptr);
    }

    vcl::record::TWindowSystem& Windows() { return FPlatform.Windows(); }
    TKSTimeView& View() { return *FView; }
    TKSTimeviewDay& Day(int Index) { return *FView->GetDay(Index); }
    vcl::record::TWindow& Window() { return *static_cast<vcl::record::TWindow*>(FView->GetHandle()); }

    /// Shows the view with a client area of this size.
    void Show(int ClientWidth = 757, int ClientHeight = 500)
    {
        const int Bar = FPlatform.System().Metric(vcl::TSystemMetric::VScrollBarWidth);
        FView->SetBounds(10, 10, ClientWidth + Bar, ClientHeight);
        FView->SetParent(FForm);
        FForm->Show();
        Settle();
        ASSERT_EQ(FView->GetClientWidth(), ClientWidth);
        ASSERT_EQ(FView->GetClientHeight(), ClientHeight);
    }
    /// Runs everything that waits, painting included.
    void Settle()
    {
        Windows().ProcessMessages();
        Windows().TakeLog();
    }

    TKSTimeViewItem* Add(double StartHour, double EndHour, bool AllDay = false, const char* Caption = "")
    {
        return FView->GetItems()->Add(Caption, Monday + StartHour / 24, Monday + EndHour / 24, AllDay);
    }

    /// True when the view asked for painting since the last Settle.
    bool Repaints()
    {
        const bool Result = Window().UpdateNow();
        Settle();
        return Result;
    }

    /// What painting the whole view does, without the erasing.
    std::vector<std::string> Painting()
    {
        vcl::TRecordingPainter Recorder({-10000, -10000, 10000, 10000});
        vcl::TCanvas Canvas(&Recorder);
        FView->PaintTo(Canvas, 0, 0);
        return Recorder.GetLines();
    }

    vcl::record::TPlatform FPlatform;
    vcl::TForm* FForm = nullptr;
    TKSTimeView* FView = nullptr;
    std::vector<std::string> FErrors;
};
