#include "vcl/platform/ImageCodec.h"

#include "vcl/system/Exception.h"

namespace vcl
{

TDecodedImage TNullImageCodec::Decode(std::span<const std::uint8_t>)
{
    throw EInvalidGraphic("Unknown picture format: only BMP files can be read on this platform");
}

std::vector<std::uint8_t> TNullImageCodec::Encode(const TDecodedImage&, std::string_view Format)
{
    throw EInvalidGraphicOperation("Cannot write pictures of format \"" + AnsiString(Format) +
                                   "\" on this platform");
}

} // namespace vcl
