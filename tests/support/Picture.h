#pragma once

#include <cstdint>
#include <string>
#include <vector>

namespace vcl::tests
{

/// Device pixels, 0xAARRGGBB each (not premultiplied), row after row.
struct TPicture {
    int Width = 0;
    int Height = 0;
    std::vector<std::uint32_t> Pixels;

    bool operator==(const TPicture&) const = default;
};

/// Reads a PNG file of any kind as 32-bit colour; throws std::runtime_error that names the file.
TPicture ReadPng(const std::string& FileName);

/// Writes a 32-bit PNG file; throws std::runtime_error that names the file.
void WritePng(const std::string& FileName, const TPicture& Picture);

/// Whether no part (alpha, red, green, blue) of one differs from the other's by more than Allowed, 0 to 255.
bool IsAlike(std::uint32_t Left, std::uint32_t Right, int Allowed);

/// Where the two are not alike: other pixels faded towards white, these red, as large as the larger one.
TPicture Difference(const TPicture& Left, const TPicture& Right, int Allowed = 0);

} // namespace vcl::tests
