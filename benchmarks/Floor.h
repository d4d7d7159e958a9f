#pragma once

#include "benchmarks/Table.h"

namespace ks::bench
{

/// Milliseconds, the median of nine, that the toolkit's painter needs for so many rectangles with an outline
/// and texts of 20 characters on an image of 1400 x 900. Needs a QGuiApplication.
double FloorMilliseconds(const TFloor& Floor);

} // namespace ks::bench
