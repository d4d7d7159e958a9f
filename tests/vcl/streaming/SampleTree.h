#pragma once

#include <nlohmann/json.hpp>

#include "vcl/classes/Component.h"

namespace vcl::tests
{

/// A component with all it holds as data/model/forms/*.json tells it, without decimal spellings of numbers.
nlohmann::json DescribeTree(TComponent& Root);

/// The expected tree without decimal spellings of numbers.
nlohmann::json WithoutSpellings(const nlohmann::json& Tree);

} // namespace vcl::tests
