#include "vcl/graphics/Resources.h"

#include <map>
#include <mutex>

#include "vcl/system/Exception.h"

namespace vcl
{

namespace
{

struct TRegistry {
    std::mutex Lock;
    std::map<AnsiString, std::span<const std::uint8_t>> Blocks;
};

TRegistry& Registry()
{
    static TRegistry Resources;
    return Resources;
}

} // namespace

void RegisterResource(const AnsiString& Name, std::span<const std::uint8_t> Bytes)
{
    const std::lock_guard Guard(Registry().Lock);
    Registry().Blocks[UpperCase(Name)] = Bytes;
}

std::span<const std::uint8_t> FindResource(const AnsiString& Name)
{
    const std::lock_guard Guard(Registry().Lock);
    const auto Found = Registry().Blocks.find(UpperCase(Name));
    if (Found == Registry().Blocks.end())
        throw EResNotFound("Resource " + Name + " not found");
    return Found->second;
}

} // namespace vcl
