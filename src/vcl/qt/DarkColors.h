#pragma once

namespace vcl::qt
{

/// Gives the application a dark palette, as a desktop with a dark theme would.
void UseDarkColors();

} // namespace vcl::qt
