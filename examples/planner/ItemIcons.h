#pragma once

#include <memory>

#include "vcl/graphics/ImageList.h"

namespace planner
{

constexpr int ReminderIcon = 0;
constexpr int PrivateIcon = 1;

/// A bell and a padlock, 11 pixels square, drawn with lines and rectangles.
std::unique_ptr<vcl::TImageList> MakeItemIcons();

} // namespace planner
