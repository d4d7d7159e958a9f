#pragma once

#include <cstdint>
#include <initializer_list>
#include <string>
#include <vector>

namespace vcl::tests
{

/// Builds little-endian binary data.
class TBytes
{
public:
    TBytes& Byte(unsigned Value)
    {
        Content.push_back(static_cast<std::uint8_t>(Value));
        return *this;
    }
    TBytes& Word(unsigned Value) { return Byte(Value).Byte(Value >> 8); }
    TBytes& DWord(std::uint32_t Value) { return Word(Value).Word(Value >> 16); }
    TBytes& All(std::initializer_list<unsigned> Values)
    {
        for (unsigned Value : Values)
            Byte(Value);
        return *this;
    }
    TBytes& Add(const std::vector<std::uint8_t>& Values)
    {
        Content.insert(Content.end(), Values.begin(), Values.end());
        return *this;
    }
    void PutDWord(std::size_t Offset, std::uint32_t Value)
    {
        for (int Index = 0; Index < 4; ++Index)
            Content.at(Offset + static_cast<std::size_t>(Index)) =
                static_cast<std::uint8_t>(Value >> 8 * Index);
    }

    std::vector<std::uint8_t> Content;
};

/// A BMP file with a header of 40 bytes; Extra follows the header (masks, palette), Pixels follow that.
inline std::vector<std::uint8_t> BmpFile(int Width, int Height, int BitCount, unsigned Compression,
                                         const TBytes& Extra, const TBytes& Pixels, unsigned ColorsUsed = 0)
{
    const auto Offset = static_cast<std::uint32_t>(54 + Extra.Content.size());
    TBytes File;
    File.Byte('B').Byte('M').DWord(Offset + static_cast<std::uint32_t>(Pixels.Content.size())).DWord(0);
    File.DWord(Offset).DWord(40).DWord(static_cast<std::uint32_t>(Width));
    File.DWord(static_cast<std::uint32_t>(Height)).Word(1).Word(static_cast<unsigned>(BitCount));
    File.DWord(Compression).DWord(static_cast<std::uint32_t>(Pixels.Content.size()));
    File.DWord(2835).DWord(2835).DWord(ColorsUsed).DWord(0);
    return File.Add(Extra.Content).Add(Pixels.Content).Content;
}

} // namespace vcl::tests
