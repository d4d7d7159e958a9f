#pragma once

#include "vcl/platform/WindowSystem.h"

namespace vcl::qt
{

/// The desktop's clipboard; empty while there is no application object.
class TClipboard final : public IClipboard
{
public:
    bool HasText() override;
    AnsiString GetText() override;
    void SetText(const AnsiString& Text) override;
};

} // namespace vcl::qt
