#pragma once

#include <QColor>
#include <QImage>
#include <QPainterPath>
#include <QPen>

#include <optional>

#include "vcl/graphics/Painter.h"

namespace vcl::qt
{

/// What a raster operation with a colour (0x00RRGGBB) leaves on white paper; nothing when it paints nothing.
std::optional<QColor> InkOnPaper(TPenMode Mode, std::uint32_t Color);

/// Dashes belong to thin pens; wide ones are solid and round.
QPen PenOf(const TPenState& Pen, const QColor& Color);

/// The lines of a hatch over some area, each one unit wide; they stand at the same places in every area.
QPainterPath HatchOver(TBrushStyle Style, const QRect& Area);

/// The 8x8 pixels of a bsPattern or bsMono brush.
QImage TileOf(const TDrawState& State);

} // namespace vcl::qt
