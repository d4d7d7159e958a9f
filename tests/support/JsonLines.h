#pragma once

#include <stdexcept>
#include <string_view>
#include <vector>

#include <nlohmann/json.hpp>

#include "support/Csv.h"

namespace vcl::tests
{

/// The objects of a file in tests/data with one a line; raises when there is none.
inline std::vector<nlohmann::json> ReadJsonLines(std::string_view Name)
{
    std::vector<nlohmann::json> Objects;
    for (const std::string& Line : SplitAt(ReadTestData(Name), '\n'))
        if (!Line.empty())
            Objects.push_back(nlohmann::json::parse(Line));
    if (Objects.empty())
        throw std::runtime_error("No lines in " + std::string(Name));
    return Objects;
}

} // namespace vcl::tests
