#pragma once

#include <cstdint>
#include <span>
#include <string_view>
#include <vector>

namespace vcl
{

/// A picture outside of any toolkit: rows from the top, 0xAARRGGBB each, colours not multiplied with alpha.
struct TDecodedImage {
    int Width = 0;
    int Height = 0;
    std::vector<std::uint32_t> Pixels;
};

/// Picture file formats beyond BMP, as far as the platform knows any. Every call may come from any thread.
class IImageCodec
{
public:
    virtual ~IImageCodec() = default;

    /// Decodes a whole file image. Raises EInvalidGraphic with the reason when the format is not known or the
    /// data is damaged, before memory is taken for a size the data cannot fill.
    virtual TDecodedImage Decode(std::span<const std::uint8_t> Bytes) = 0;
    /// Encodes for a format named by its usual file extension without the dot ("png"). Raises
    /// EInvalidGraphicOperation naming the format when it cannot.
    virtual std::vector<std::uint8_t> Encode(const TDecodedImage& Image, std::string_view Format) = 0;
};

/// Knows no format: what a platform without a toolkit has.
class TNullImageCodec : public IImageCodec
{
public:
    TDecodedImage Decode(std::span<const std::uint8_t> Bytes) override;
    std::vector<std::uint8_t> Encode(const TDecodedImage& Image, std::string_view Format) override;
};

} // namespace vcl
