#pragma once

// A form with standard controls on the platform without a screen.

#include <memory>
#include <string>
#include <vector>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "vcl/forms/Application.h"
#include "vcl/forms/Form.h"
#include "vcl/forms/StandardClasses.h"
#include "vcl/platform/VirtualKeys.h"
#include "vcl/platform/record/RecordPlatform.h"

namespace vcl::tests
{

using ::testing::ElementsAre;
using ::testing::IsEmpty;

/// Makes RecreateWnd callable, as a descendant that changes a window's style would use it.
template <class T>
class TRemade : public T
{
public:
    using T::RecreateWnd;
    using T::T;
};

class TStandardTest : public ::testing::Test
{
protected:
    TStandardTest()
    {
        SetPlatform(&FPlatform);
        RegisterStandardClasses();
        FForm = New<TForm>(nullptr);
        FForm->SetClientSize({400, 300});
        Application().OnException = [this](TObject*, const std::exception& Error) {
            FErrors.push_back(Error.what());
        };
    }

    ~TStandardTest() override
    {
        EXPECT_THAT(FErrors, IsEmpty());
        delete FForm;
        Application().OnException = nullptr;
        Application().Detach();
        SetPlatform(nullptr);
    }

    record::TWindowSystem& Windows() { return FPlatform.Windows(); }
    TForm& Form() { return *FForm; }

    /// A control on the form; each call puts it a little lower.
    template <class T>
    T& Add()
    {
        T* const Control = New<T>(FForm);
        Control->SetBounds(10, FNextTop, 100, 20);
        FNextTop += 25;
        Control->SetParent(FForm);
        return *Control;
    }

    void ShowForm()
    {
        FForm->Show();
        Windows().ProcessMessages();
        Windows().TakeLog();
    }

    /// A handler that writes Text down.
    TNotifyEvent Noting(const std::string& Text)
    {
        return [this, Text](TObject*) { FNotes.push_back(Text); };
    }
    std::vector<std::string> TakeNotes() { return std::exchange(FNotes, {}); }

    static record::TWindow& WindowOf(TWinControl& Control)
    {
        return *static_cast<record::TWindow*>(Control.GetHandle());
    }
    void Click(TWinControl& Control) { Windows().MouseClick(WindowOf(Control), {5, 5}); }

    record::TPlatform FPlatform;
    TForm* FForm = nullptr;
    int FNextTop = 10;
    std::vector<std::string> FNotes;
    std::vector<std::string> FErrors;
};

} // namespace vcl::tests
