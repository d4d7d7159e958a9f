#pragma once

namespace vcl::qt
{

/// Self-drawn controls tell assistive programs their name (the caption), that they can have the focus, and
/// whether they have it. May be called again for each application object.
void InstallAccessibility();

} // namespace vcl::qt
