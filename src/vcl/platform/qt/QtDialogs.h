#pragma once

#include "vcl/platform/Dialogs.h"

namespace vcl::qt
{

/// The desktop's own dialogs.
class TDialogs final : public IDialogs
{
public:
    bool ChooseFile(TFileDialogSpec& Spec, std::vector<AnsiString>& Files, IWindow* Parent) override;
    TMessageButton ShowMessage(TMessageKind Kind, const AnsiString& Caption, const AnsiString& Text,
                               const std::vector<TMessageButton>& Buttons, IWindow* Parent) override;
    bool ChooseColor(TColor& Color, IWindow* Parent) override;
    bool ChooseFont(TFontSpec& Font, TColor& Color, IWindow* Parent) override;
};

} // namespace vcl::qt
