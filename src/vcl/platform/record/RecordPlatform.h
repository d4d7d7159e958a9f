#pragma once

#include "vcl/platform/FixedTextEngine.h"
#include "vcl/platform/ImageCodec.h"
#include "vcl/platform/Platform.h"
#include "vcl/platform/System.h"
#include "vcl/platform/record/RecordWindowSystem.h"

namespace vcl::record
{

/// The platform without a screen: fixed-width text, classic colours and metrics, windows as plain objects.
class TPlatform final : public IPlatform
{
public:
    ITextEngine& Text() override { return FText; }
    ISystem& System() override { return FSystem; }
    IImageCodec& Images() override { return FImages; }
    TWindowSystem& Windows() override { return FWindows; }

private:
    TFixedTextEngine FText;
    TClassicSystem FSystem;
    TNullImageCodec FImages;
    TWindowSystem FWindows;
};

} // namespace vcl::record
