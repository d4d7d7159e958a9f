#pragma once

namespace vcl
{

/// Makes the forms, standard controls, menus, dialogs and image lists known to form readers by name. Calling
/// it again does nothing.
void RegisterStandardClasses();

} // namespace vcl
