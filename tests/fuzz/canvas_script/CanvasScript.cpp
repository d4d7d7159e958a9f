// Any bytes as a canvas script: refused or painted, in bounded time and memory. The first byte picks the
// scale.

#include <array>
#include <cstddef>
#include <cstdint>
#include <string_view>

#include "vcl/graphics/CanvasScript.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* Data, std::size_t Size)
{
    if (Size == 0)
        return 0;
    constexpr std::array Scales{1.0, 1.25, 1.5, 2.0, 0.5, 3.0};
    vcl::TScriptLimits Limits;
    Limits.MaxSide = 300;
    Limits.MaxPixels = 200000;
    Limits.MaxSurfaces = 4;
    Limits.MaxWork = 20000000;
    const std::string_view Text(reinterpret_cast<const char*>(Data + 1), Size - 1);
    vcl::TCanvasScript Script([](vcl::TColor Color) { return static_cast<std::uint32_t>(Color) & 0xFFFFFF; },
                              Scales[Data[0] % Scales.size()], Limits);
    try {
        Script.Run(Text);
    } catch (const vcl::EScriptError&) {
        // Most inputs are not scripts; what was painted until then counts.
    }
    return 0;
}
