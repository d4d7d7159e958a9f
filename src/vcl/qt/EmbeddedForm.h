#pragma once

#include "vcl/forms/CustomForm.h"

class QWidget;

namespace vcl
{

/// The parent of a control that stands in a widget of the surrounding program: a form without a window frame,
/// filled by its one control.
class TEmbeddedForm final : public TCustomForm
{
    VCL_CLASS
public:
    explicit TEmbeddedForm(QWidget& Outside);

    QWidget& Outside() const { return FOutside; }
    /// Gives the focus to the first control, to the last, or to the one that had it before.
    void EnterFirst();
    void EnterLast();
    void EnterAgain();

protected:
    void CreateParams(TCreateParams& Params) override;
    void AlignControls(TControl* Control) override;

private:
    void Enter(TWinControl* Control);

    QWidget& FOutside;
};

} // namespace vcl
