#pragma once

#include <vector>

#include "vcl/system/AnsiString.h"

namespace vcl::record
{

/// The code points of UTF-8 text; bytes that are no UTF-8 count as one each.
std::vector<char32_t> CodePointsOf(const AnsiString& Text);
AnsiString TextOf(const std::vector<char32_t>& CodePoints);

} // namespace vcl::record
