#include "vcl/graphics/raster/Picture.h"

#include <png.h>

#include <fstream>
#include <sstream>
#include <stdexcept>

namespace raster
{

TPicture PictureOf(const vcl::TSurface& Surface)
{
    TPicture Result{Surface.GetDeviceWidth(), Surface.GetDeviceHeight(), {}};
    for (int Y = 0; Y < Result.Height; ++Y)
        for (int X = 0; X < Result.Width; ++X)
            Result.Pixels.push_back(Surface.Row(Y)[X] & 0xFFFFFF);
    return Result;
}

TPicture ReadPng(const std::filesystem::path& Path)
{
    png_image Image{};
    Image.version = PNG_IMAGE_VERSION;
    if (png_image_begin_read_from_file(&Image, Path.c_str()) == 0)
        throw std::runtime_error(Path.string() + ": " + Image.message);
    Image.format = PNG_FORMAT_RGB;
    std::vector<png_byte> Bytes(PNG_IMAGE_SIZE(Image));
    if (png_image_finish_read(&Image, nullptr, Bytes.data(), 0, nullptr) == 0)
        throw std::runtime_error(Path.string() + ": " + Image.message);
    TPicture Result{static_cast<int>(Image.width), static_cast<int>(Image.height), {}};
    for (std::size_t Index = 0; Index + 2 < Bytes.size(); Index += 3)
        Result.Pixels.push_back(std::uint32_t{Bytes[Index]} << 16 | std::uint32_t{Bytes[Index + 1]} << 8 |
                                Bytes[Index + 2]);
    return Result;
}

std::string ReadFile(const std::filesystem::path& Path)
{
    std::ifstream File(Path, std::ios::binary);
    if (!File)
        throw std::runtime_error("cannot read " + Path.string());
    std::ostringstream Text;
    Text << File.rdbuf();
    return Text.str();
}

std::vector<std::vector<std::string>> ReadTable(const std::filesystem::path& Path)
{
    std::istringstream Text(ReadFile(Path));
    std::vector<std::vector<std::string>> Result;
    std::string Line;
    std::getline(Text, Line);
    while (std::getline(Text, Line)) {
        std::istringstream Fields(Line);
        std::vector<std::string> Row;
        for (std::string Field; std::getline(Fields, Field, ',');)
            Row.push_back(Field);
        Result.push_back(Row);
    }
    return Result;
}

std::string Rows(const vcl::TSurface& Surface)
{
    std::string Result;
    for (int Y = 0; Y < Surface.GetDeviceHeight(); ++Y) {
        for (int X = 0; X < Surface.GetDeviceWidth(); ++X) {
            switch (Surface.Row(Y)[X] & 0xFFFFFF) {
            case 0xFFFFFF:
                Result += '.';
                break;
            case 0x000000:
                Result += '#';
                break;
            case 0xFF0000:
                Result += 'r';
                break;
            case 0x0000FF:
                Result += 'b';
                break;
            default:
                Result += '?';
            }
        }
        Result += '\n';
    }
    return Result;
}

} // namespace raster
