#pragma once

#include <QApplication>

namespace vcl
{

/// The application object of the test program; made before the first test, gone after the last.
QApplication& TestApplication();

} // namespace vcl
