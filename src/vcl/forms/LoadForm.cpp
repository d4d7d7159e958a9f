#include "vcl/forms/LoadForm.h"

#include "vcl/forms/StandardClasses.h"
#include "vcl/streaming/FormFile.h"

namespace vcl
{

void LoadForm(TCustomForm& Form, TStream& Stream)
{
    RegisterStandardClasses();
    ReadForm(Stream, &Form);
}

void LoadForm(TCustomForm& Form, const AnsiString& FileName)
{
    RegisterStandardClasses();
    ReadFormFile(FileName, &Form);
}

} // namespace vcl
