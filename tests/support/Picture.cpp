#include "support/Picture.h"

#include <algorithm>
#include <cstdlib>
#include <stdexcept>

#include <png.h>

namespace vcl::tests
{

namespace
{

constexpr std::uint32_t DifferentPixel = 0xFFFF0000;

png_image NewImage()
{
    png_image Image{};
    Image.version = PNG_IMAGE_VERSION;
    return Image;
}

/// A pixel at a quarter of its contrast, so that differences stand out on it.
std::uint32_t Faded(std::uint32_t Pixel)
{
    std::uint32_t Result = 0xFF000000;
    for (int Shift = 0; Shift < 24; Shift += 8) {
        const std::uint32_t Part = (Pixel >> Shift) & 0xFFu;
        Result |= (255u - (255u - Part) / 4u) << Shift;
    }
    return Result;
}

bool Has(const TPicture& Picture, int X, int Y)
{
    return X < Picture.Width && Y < Picture.Height;
}

std::uint32_t At(const TPicture& Picture, int X, int Y)
{
    return Picture.Pixels[static_cast<std::size_t>(Y) * static_cast<std::size_t>(Picture.Width) +
                          static_cast<std::size_t>(X)];
}

} // namespace

TPicture ReadPng(const std::string& FileName)
{
    png_image Image = NewImage();
    if (!png_image_begin_read_from_file(&Image, FileName.c_str()))
        throw std::runtime_error(FileName + ": " + Image.message);
    // The memory order B, G, R, A is 0xAARRGGBB as a little-endian number.
    Image.format = PNG_FORMAT_BGRA;
    TPicture Result{static_cast<int>(Image.width), static_cast<int>(Image.height), {}};
    Result.Pixels.resize(static_cast<std::size_t>(Image.width) * Image.height);
    if (!png_image_finish_read(&Image, nullptr, Result.Pixels.data(), 0, nullptr)) {
        const std::string Reason = Image.message;
        png_image_free(&Image);
        throw std::runtime_error(FileName + ": " + Reason);
    }
    return Result;
}

void WritePng(const std::string& FileName, const TPicture& Picture)
{
    png_image Image = NewImage();
    Image.width = static_cast<png_uint_32>(Picture.Width);
    Image.height = static_cast<png_uint_32>(Picture.Height);
    Image.format = PNG_FORMAT_BGRA;
    if (!png_image_write_to_file(&Image, FileName.c_str(), 0, Picture.Pixels.data(), 0, nullptr))
        throw std::runtime_error(FileName + ": " + Image.message);
}

bool IsAlike(std::uint32_t Left, std::uint32_t Right, int Allowed)
{
    for (int Shift = 0; Shift < 32; Shift += 8) {
        const int LeftPart = static_cast<int>((Left >> Shift) & 0xFFu);
        const int RightPart = static_cast<int>((Right >> Shift) & 0xFFu);
        if (std::abs(LeftPart - RightPart) > Allowed)
            return false;
    }
    return true;
}

TPicture Difference(const TPicture& Left, const TPicture& Right, int Allowed)
{
    TPicture Result{std::max(Left.Width, Right.Width), std::max(Left.Height, Right.Height), {}};
    Result.Pixels.reserve(static_cast<std::size_t>(Result.Width) * static_cast<std::size_t>(Result.Height));
    for (int Y = 0; Y < Result.Height; ++Y) {
        for (int X = 0; X < Result.Width; ++X) {
            const bool Same =
                Has(Left, X, Y) && Has(Right, X, Y) && IsAlike(At(Left, X, Y), At(Right, X, Y), Allowed);
            Result.Pixels.push_back(Same ? Faded(At(Left, X, Y)) : DifferentPixel);
        }
    }
    return Result;
}

} // namespace vcl::tests
