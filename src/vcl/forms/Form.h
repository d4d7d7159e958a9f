#pragma once

#include "vcl/forms/CustomForm.h"

namespace vcl
{

/// The form programs derive theirs from, or load from a form file as it is.
class TForm : public TCustomForm
{
    VCL_CLASS
public:
    using TCustomForm::TCustomForm;
};

} // namespace vcl
