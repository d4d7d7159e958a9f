#pragma once

// A form on the platform without a screen, with a probe on it.

#include <memory>
#include <string>
#include <vector>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "ProbeControl.h"
#include "vcl/forms/Application.h"
#include "vcl/forms/Form.h"
#include "vcl/platform/record/RecordPlatform.h"

namespace vcl::tests
{

using ::testing::ElementsAre;
using ::testing::IsEmpty;

class TControlTest : public ::testing::Test
{
protected:
    TControlTest()
    {
        SetPlatform(&FPlatform);
        FForm = New<TForm>(nullptr);
        FForm->SetClientSize({400, 300});
        Application().OnException = [this](TObject*, const std::exception& Error) {
            FErrors.push_back(Error.what());
        };
    }

    ~TControlTest() override
    {
        delete FForm;
        Application().OnException = nullptr;
        Application().Detach();
        SetPlatform(nullptr);
    }

    record::TWindowSystem& Windows() { return FPlatform.Windows(); }
    TForm& Form() { return *FForm; }

    /// A probe at 10, 20 with 100 x 80 pixels.
    TProbe& AddProbe()
    {
        TProbe* const Probe = New<TProbe>(FForm);
        Probe->SetBounds(10, 20, 100, 80);
        Probe->SetParent(FForm);
        return *Probe;
    }

    template <class T>
    T& Add(int Left, int Top, int Width, int Height)
    {
        T* const Control = New<T>(FForm);
        Control->SetBounds(Left, Top, Width, Height);
        Control->SetParent(FForm);
        return *Control;
    }

    void ShowForm()
    {
        FForm->Show();
        Windows().ProcessMessages();
        Windows().TakeLog();
    }

    static record::TWindow& WindowOf(TWinControl& Control)
    {
        return *static_cast<record::TWindow*>(Control.GetHandle());
    }

    record::TPlatform FPlatform;
    TForm* FForm = nullptr;
    std::vector<std::string> FErrors;
};

} // namespace vcl::tests
