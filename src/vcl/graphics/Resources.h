#pragma once

#include <cstdint>
#include <span>

#include "vcl/system/AnsiString.h"

namespace vcl
{

/// Makes a named block of bytes known, for LoadFromResourceName. Names compare without regard to case. The
/// bytes are not copied and must live as long as they are registered; registering a name again replaces it.
void RegisterResource(const AnsiString& Name, std::span<const std::uint8_t> Bytes);
/// The bytes registered under Name; raises EResNotFound with the name.
std::span<const std::uint8_t> FindResource(const AnsiString& Name);

} // namespace vcl
