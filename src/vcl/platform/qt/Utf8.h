#pragma once

#include <cstddef>
#include <cstdint>
#include <string_view>

namespace vcl::qt
{

/// The code point at Position of valid UTF-8, which moves behind it. A byte that starts nothing stands for
/// itself as U+FFFD.
inline std::uint32_t NextCodePoint(std::string_view Text, std::size_t& Position)
{
    const auto Byte = [Text](std::size_t Index) -> std::uint32_t {
        return static_cast<unsigned char>(Text[Index]);
    };
    const std::uint32_t First = Byte(Position++);
    if (First < 0x80)
        return First;
    const int Following = First >= 0xF0 ? 3 : First >= 0xE0 ? 2 : First >= 0xC0 ? 1 : 0;
    std::uint32_t Result = First & (0x3Fu >> Following);
    for (int Index = 0; Index < Following; ++Index) {
        if (Position >= Text.size() || (Byte(Position) & 0xC0) != 0x80)
            return 0xFFFD;
        Result = Result << 6 | (Byte(Position++) & 0x3F);
    }
    return Following == 0 ? 0xFFFD : Result;
}

} // namespace vcl::qt
