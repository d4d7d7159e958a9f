#pragma once

#include <string_view>

#include "vcl/forms/CustomForm.h"

/// The text of NAME.dfm of this folder; empty when there is none. Written by the build.
std::string_view FormText(std::string_view Name);

namespace planner
{

/// Reads the form of that name into Form, which has just been made.
void ReadForm(vcl::TCustomForm& Form, std::string_view Name);

} // namespace planner
