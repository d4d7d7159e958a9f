#pragma once

#include "vcl/platform/ImageCodec.h"

namespace vcl::qt
{

/// The picture formats the toolkit knows: PNG, JPEG, GIF, SVG and whatever its plug-ins add.
class TImageCodec final : public IImageCodec
{
public:
    TDecodedImage Decode(std::span<const std::uint8_t> Bytes) override;
    std::vector<std::uint8_t> Encode(const TDecodedImage& Image, std::string_view Format) override;
};

} // namespace vcl::qt
