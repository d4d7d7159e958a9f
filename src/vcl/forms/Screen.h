#pragma once

#include <vector>

#include "vcl/classes/Component.h"
#include "vcl/forms/CustomForm.h"

namespace vcl
{

/// The screen: its size, the program's forms and the cursor that overrides every control's.
class TScreen : public TComponent
{
    VCL_CLASS
public:
    TScreen();

    int GetWidth() const;
    int GetHeight() const;
    /// Without task bars.
    TRect GetWorkArea() const;
    /// crDefault: each control shows its own.
    TCursor GetCursor() const { return FCursor; }
    void SetCursor(TCursor Value);
    /// The form that has the focus, and its active control; null when another program is active.
    TCustomForm* GetActiveForm() const { return FActiveForm; }
    TWinControl* GetActiveControl() const;
    int GetFormCount() const { return static_cast<int>(FForms.size()); }
    TCustomForm* GetForm(int Index) const;
    /// Resolution of a unit: coordinates are independent of the device.
    int GetPixelsPerInch() const { return 96; }

    TNotifyEvent OnActiveFormChange;
    TNotifyEvent OnActiveControlChange;

private:
    friend class TCustomForm;
    void AddForm(TCustomForm* Form) { FForms.push_back(Form); }
    void RemoveForm(TCustomForm* Form);
    void SetActiveForm(TCustomForm* Form);

    std::vector<TCustomForm*> FForms;
    TCustomForm* FActiveForm = nullptr;
    TCursor FCursor = crDefault;
};

TScreen& Screen();

} // namespace vcl
