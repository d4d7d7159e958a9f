#pragma once

#include "vcl/graphics/ImageList.h"

namespace gallery
{

/// Puts the gallery's two pictures into an image list: a blue disc and an orange diamond, 12 pixels wide.
void MakeIcons(vcl::TCustomImageList& Images);

} // namespace gallery
