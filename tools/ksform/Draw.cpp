#include <png.h>

#include "ksform/Files.h"
#include "ksform/Options.h"
#include "ksform/Verbs.h"
#include "vcl/graphics/CanvasScript.h"
#include "vcl/platform/System.h"

namespace ksform
{

using namespace vcl;

namespace
{

struct TOptions {
    std::string Script;
    std::string Picture;
    double Scale = 1.0;
};

TOptions Parse(const TArguments& Arguments)
{
    TOptions Result;
    TOptionParser()
        .Value("-o", [&](const std::string& Value) { Result.Picture = Value; })
        .Value("--scale", [&](const std::string& Value) { Result.Scale = ParseScale(Value); })
        .Single(Result.Script, "one script at a time")
        .Parse(Arguments);
    if (Result.Script.empty() || Result.Picture.empty())
        throw EUsage("a script and -o PNG are needed");
    return Result;
}

/// Edges and frame controls come out alike on every machine.
std::uint32_t ClassicPixel(TColor Color)
{
    std::uint32_t Value = static_cast<std::uint32_t>(Color);
    if (IsSystemColor(Color) && SystemColorIndex(Color) < SystemColorCount)
        Value = static_cast<std::uint32_t>(
            ClassicSystemColors()[static_cast<std::size_t>(SystemColorIndex(Color))]);
    return (Value & 0xFF) << 16 | (Value & 0xFF00) | (Value >> 16 & 0xFF);
}

void EncodePng(const TSurface& Surface, TMemoryStream& Output)
{
    std::vector<png_byte> Bytes;
    for (int Y = 0; Y < Surface.GetDeviceHeight(); ++Y)
        for (int X = 0; X < Surface.GetDeviceWidth(); ++X)
            for (const int Shift : {16, 8, 0})
                Bytes.push_back(static_cast<png_byte>(Surface.Row(Y)[X] >> Shift & 0xFF));
    png_image Image{};
    Image.version = PNG_IMAGE_VERSION;
    Image.width = static_cast<png_uint_32>(Surface.GetDeviceWidth());
    Image.height = static_cast<png_uint_32>(Surface.GetDeviceHeight());
    Image.format = PNG_FORMAT_RGB;
    png_alloc_size_t Size = 0;
    if (png_image_write_get_memory_size(Image, Size, 0, Bytes.data(), 0, nullptr) == 0)
        throw EInvalidGraphicOperation(Image.message);
    std::vector<png_byte> Encoded(Size);
    if (png_image_write_to_memory(&Image, Encoded.data(), &Size, 0, Bytes.data(), 0, nullptr) == 0)
        throw EInvalidGraphicOperation(Image.message);
    Output.WriteBuffer(Encoded.data(), static_cast<std::int64_t>(Size));
}

} // namespace

int RunDraw(const TArguments& Arguments)
{
    const TOptions Options = Parse(Arguments);
    TMemoryStream Text;
    ReadWhole(Options.Script, Text);
    TCanvasScript Script(ClassicPixel, Options.Scale);
    try {
        Script.Run({reinterpret_cast<const char*>(Text.GetMemory()), Text.GetBytes().size()});
    } catch (const EScriptError& Error) {
        throw EReadError(Options.Script + ": " + Error.what());
    }
    TMemoryStream Picture;
    EncodePng(Script.GetMain(), Picture);
    WriteWhole(Options.Picture, Picture);
    return Success;
}

} // namespace ksform
