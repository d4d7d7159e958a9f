#pragma once

#include <bit>
#include <cstdint>
#include <string>
#include <string_view>

namespace vcl::tests
{

/// Upper-case hexadecimal digits, two a byte.
inline std::string ToHex(std::string_view Bytes)
{
    constexpr std::string_view Digits = "0123456789ABCDEF";
    std::string Result;
    for (const char Byte : Bytes) {
        Result += Digits[static_cast<unsigned char>(Byte) >> 4U];
        Result += Digits[static_cast<unsigned char>(Byte) & 15U];
    }
    return Result;
}

inline std::string FromHex(std::string_view Hex)
{
    std::string Result;
    for (std::size_t Index = 0; Index + 1 < Hex.size(); Index += 2)
        Result += static_cast<char>(std::stoi(std::string(Hex.substr(Index, 2)), nullptr, 16));
    return Result;
}

/// The double with these bits: 16 digits, the most significant first.
inline double DoubleFromHex(std::string_view Hex)
{
    return std::bit_cast<double>(static_cast<std::uint64_t>(std::stoull(std::string(Hex), nullptr, 16)));
}

} // namespace vcl::tests
