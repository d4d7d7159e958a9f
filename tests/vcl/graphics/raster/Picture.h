#pragma once

#include <cstdint>
#include <filesystem>
#include <string>
#include <vector>

#include "vcl/graphics/Surface.h"

namespace raster
{

/// Device pixels 0x00RRGGBB, for comparing and for looking at.
struct TPicture {
    int Width = 0;
    int Height = 0;
    std::vector<std::uint32_t> Pixels;

    std::uint32_t At(int X, int Y) const
    {
        return Pixels[static_cast<std::size_t>(Y) * static_cast<std::size_t>(Width) +
                      static_cast<std::size_t>(X)];
    }
    bool operator==(const TPicture&) const = default;
};

TPicture PictureOf(const vcl::TSurface& Surface);
/// Throws std::runtime_error naming the file.
TPicture ReadPng(const std::filesystem::path& Path);
std::string ReadFile(const std::filesystem::path& Path);
/// The lines of a comma-separated file without quotes, the header left out.
std::vector<std::vector<std::string>> ReadTable(const std::filesystem::path& Path);

/// A letter for each pixel: '.' white, '#' black, 'r' red, 'b' blue, '?' anything else.
std::string Rows(const vcl::TSurface& Surface);

} // namespace raster
