#pragma once

#include "vcl/forms/Form.h"

namespace vcl
{

class TStream;

/// Reads a form file, text or binary (told apart by its first bytes), into Form, which has just been made.
/// Raises what reading raises; Form then has to be freed.
void LoadForm(TCustomForm& Form, TStream& Stream);
/// As above from a file, whose name the messages carry.
void LoadForm(TCustomForm& Form, const AnsiString& FileName);

} // namespace vcl
