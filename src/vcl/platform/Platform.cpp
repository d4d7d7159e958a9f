#include "vcl/platform/Platform.h"

#include <atomic>

#include "vcl/platform/FixedTextEngine.h"
#include "vcl/platform/ImageCodec.h"
#include "vcl/platform/System.h"
#include "vcl/system/Exception.h"

namespace vcl
{

namespace
{

class THeadlessPlatform final : public IPlatform
{
public:
    ITextEngine& Text() override { return FText; }
    ISystem& System() override { return FSystem; }
    IImageCodec& Images() override { return FImages; }
    IWindowSystem& Windows() override
    {
        throw EInvalidOperation("Windows cannot be opened: no platform with a window system is installed");
    }

private:
    TFixedTextEngine FText;
    TClassicSystem FSystem;
    TNullImageCodec FImages;
};

IPlatform& Headless()
{
    static THeadlessPlatform Platform;
    return Platform;
}

// Text is measured and colours are resolved in any thread.
std::atomic<IPlatform*> Current{nullptr};

} // namespace

IPlatform& Platform()
{
    IPlatform* const Installed = Current.load(std::memory_order_acquire);
    return Installed ? *Installed : Headless();
}

IPlatform* SetPlatform(IPlatform* Next)
{
    return Current.exchange(Next, std::memory_order_acq_rel);
}

} // namespace vcl
