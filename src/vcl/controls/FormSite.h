#pragma once

#include <cstdint>

#include "vcl/controls/ControlTypes.h"
#include "vcl/platform/Messages.h"

namespace vcl
{

/// What controls ask of the form they stand on.
class IFormSite
{
public:
    virtual TWinControl& SiteControl() = 0;
    /// The control that has the focus when the form is active; null: none.
    virtual TWinControl* GetActiveControl() const = 0;
    /// Makes Control the active one and gives it the focus when the form has it. Raises EInvalidOperation for
    /// a control that is hidden or disabled.
    virtual void FocusControl(TWinControl* Control) = 0;
    /// Control is about to vanish, be disabled or (Removing) go: it must not stay active.
    virtual void DefocusControl(TWinControl* Control, bool Removing) = 0;
    /// Control's window got the focus: tells who was left and entered. False when a handler moved it on.
    virtual bool SetFocusedControl(TWinControl* Control) = 0;
    virtual bool IsFormActive() const = 0;
    virtual bool GetKeyPreview() const = 0;
    /// Ends the form's ShowModal when Result is not 0.
    virtual void SetModalResult(int Result) = 0;
    /// A key that a menu of the form takes.
    virtual bool IsShortCut(std::uint16_t Key, TShiftState Shift) = 0;

protected:
    ~IFormSite() = default;
};

} // namespace vcl
