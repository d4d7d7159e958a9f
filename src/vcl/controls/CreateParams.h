#pragma once

#include "vcl/platform/Window.h"
#include "vcl/system/AnsiString.h"
#include "vcl/system/Types.h"

namespace vcl
{

/// How a control wants its window; TWinControl::CreateParams of each class adds its part.
struct TCreateParams {
    TWindowKind Kind = TWindowKind::Client;
    std::uint32_t Style = 0;   // WS_..., ES_..., ...
    std::uint32_t ExStyle = 0; // WS_EX_...
    int X = 0;
    int Y = 0;
    int Width = 0;
    int Height = 0;
    AnsiString Caption;
    /// A toolkit's own window (QWidget*) to live in instead of a parent control's.
    void* ForeignParent = nullptr;
};

} // namespace vcl
