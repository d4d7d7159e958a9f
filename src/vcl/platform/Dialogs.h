#pragma once

#include <vector>

#include "vcl/platform/TextEngine.h"
#include "vcl/system/AnsiString.h"
#include "vcl/system/Types.h"

namespace vcl
{

class IWindow;

struct TFileDialogSpec {
    bool Save = false;
    AnsiString Title;
    AnsiString InitialDir;
    AnsiString FileName;
    /// "Calendars|*.ics;*.ical|All files|*" ; FilterIndex is 1-based.
    AnsiString Filter;
    int FilterIndex = 1;
    /// Added to a name without extension, without the dot.
    AnsiString DefaultExt;
    bool AllowMultiSelect = false;
    bool FileMustExist = false;
    bool OverwritePrompt = false;
};

enum class TMessageKind { Information, Warning, Error, Confirmation };
enum class TMessageButton { Ok, Cancel, Yes, No, Abort, Retry, Ignore, YesToAll, NoToAll };

/// The platform's modal dialogs. Parent may be null.
class IDialogs
{
public:
    virtual ~IDialogs() = default;

    /// False when cancelled; otherwise Files has at least one name and Spec.FilterIndex the chosen filter.
    virtual bool ChooseFile(TFileDialogSpec& Spec, std::vector<AnsiString>& Files, IWindow* Parent) = 0;
    virtual TMessageButton ShowMessage(TMessageKind Kind, const AnsiString& Caption, const AnsiString& Text,
                                       const std::vector<TMessageButton>& Buttons, IWindow* Parent) = 0;
    virtual bool ChooseColor(TColor& Color, IWindow* Parent) = 0;
    virtual bool ChooseFont(TFontSpec& Font, TColor& Color, IWindow* Parent) = 0;
};

} // namespace vcl
