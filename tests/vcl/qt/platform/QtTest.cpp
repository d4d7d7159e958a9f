#include "vcl/qt/platform/QtTest.h"

#include <gtest/gtest.h>

#include <memory>

namespace vcl
{

namespace
{

std::unique_ptr<QApplication> Application;

class TApplicationEnvironment : public ::testing::Environment
{
public:
    void SetUp() override
    {
        static int Count = 1;
        static char Name[] = "vcl_qt_test";
        static char* Arguments[] = {Name, nullptr};
        Application = std::make_unique<QApplication>(Count, Arguments);
    }
    void TearDown() override { Application.reset(); }
};

[[maybe_unused]] ::testing::Environment* const Registered =
    ::testing::AddGlobalTestEnvironment(new TApplicationEnvironment);

} // namespace

QApplication& TestApplication()
{
    return *Application;
}

} // namespace vcl
