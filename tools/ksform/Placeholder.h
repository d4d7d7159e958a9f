#pragma once

#include "vcl/controls/Panel.h"

namespace ksform
{

/// Stands on a rendered form for an object whose class nobody knows: a frame with its name and class. Objects
/// without a size get that of a component's icon.
class TPlaceholder : public vcl::TPanel
{
    VCL_CLASS
public:
    explicit TPlaceholder(vcl::TComponent* Owner);
};

} // namespace ksform
