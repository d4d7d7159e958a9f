#include "vcl/forms/LoadForm.h"

#include "vcl/streaming/FormFile.h"

namespace vcl
{

void LoadForm(TCustomForm& Form, TStream& Stream)
{
    ReadForm(Stream, &Form);
}

void LoadForm(TCustomForm& Form, const AnsiString& FileName)
{
    ReadFormFile(FileName, &Form);
}

} // namespace vcl
