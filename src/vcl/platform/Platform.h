#pragma once

#include <memory>

namespace vcl
{

class ITextEngine;
class ISystem;
class IImageCodec;
class IWindowSystem;

/// The one door from the component model to the platform it runs on: a bundle of services, each a small
/// interface of its own. There is always a current platform; until a program installs one it is the headless
/// one, which measures text with fixed-width cells and opens no windows.
class IPlatform
{
public:
    virtual ~IPlatform() = default;

    virtual ITextEngine& Text() = 0;
    virtual ISystem& System() = 0;
    virtual IImageCodec& Images() = 0;
    virtual IWindowSystem& Windows() = 0;
};

IPlatform& Platform();

/// Makes Next current and returns what was current before; null restores the headless platform.
IPlatform* SetPlatform(IPlatform* Next);

} // namespace vcl
