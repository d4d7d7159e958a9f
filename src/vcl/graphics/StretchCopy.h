#pragma once

#include <cstdint>
#include <span>

#include "vcl/graphics/RasterTarget.h"

namespace vcl
{

/// Copies a part of one surface to another or to another place of the same, taking for each device pixel the
/// source pixel under its centre. Both rectangles are in units of their surfaces; a rectangle with a negative
/// side mirrors and covers the pixels from its first coordinate backwards. Source pixels outside the source,
/// and those whose Transparent byte (one for each device pixel of the source, or none at all) is not 0, leave
/// the target as it is.
void StretchCopyPixels(TRasterTarget& Target, const TRect& TargetRect, const TSurface& Source,
                       const TRect& SourceRect, std::span<const std::uint8_t> Transparent);

} // namespace vcl
