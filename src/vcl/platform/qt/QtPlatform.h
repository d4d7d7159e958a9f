#pragma once

#include "vcl/platform/Platform.h"

namespace vcl::qt
{

/// Makes the widget toolkit the current platform and returns it.
///
/// A program's own QApplication is used as it is. When there is none, one is made and kept to the end of the
/// process; it then sees Arguments (argv[0] first), which may be left out. Call from the thread of the user
/// interface; further calls only make the platform current again. The names and formats of dates become those
/// of the user's locale with the first call.
IPlatform& UseQt(int ArgumentCount = 0, char** Arguments = nullptr);

/// A dark palette for the whole application, whatever the desktop has; for pictures and a program's option.
void UseDarkLook();

/// Colours, metrics and the default font come from the fixed classic tables, or live from the application
/// again. For tests and for pictures that must not depend on the machine.
void UseClassicLook(bool Classic);

} // namespace vcl::qt
