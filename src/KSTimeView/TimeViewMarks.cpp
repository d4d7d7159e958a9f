#include "KSTimeView/TimeViewMarks.h"

#include <cstdint>
#include <span>

#include "vcl/graphics/Resources.h"
#include "vcl/system/Exception.h"

// Made from resources/KSTimeView by the build.
extern const std::uint8_t KSItemsAboveBitmap[];
extern const std::size_t KSItemsAboveBitmapSize;
extern const std::uint8_t KSItemsBelowBitmap[];
extern const std::size_t KSItemsBelowBitmapSize;

namespace
{

void RegisterUnlessKnown(const char* Name, std::span<const std::uint8_t> Bytes)
{
    try {
        vcl::FindResource(Name);
    } catch (const vcl::EResNotFound&) {
        vcl::RegisterResource(Name, Bytes);
    }
}

} // namespace

void RegisterTimeViewMarks()
{
    RegisterUnlessKnown("ITEMS_ABOVE_BITMAP", {KSItemsAboveBitmap, KSItemsAboveBitmapSize});
    RegisterUnlessKnown("ITEMS_BELOW_BITMAP", {KSItemsBelowBitmap, KSItemsBelowBitmapSize});
}
