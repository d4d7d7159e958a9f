#pragma once

#include <string>

namespace ksform
{

/// Text as a JSON string, quotes included. Bytes above 127 are kept: text is UTF-8.
std::string JsonString(const std::string& Text);

} // namespace ksform
