#pragma once

#include "vcl/controls/WinControl.h"
#include "vcl/platform/ImageCodec.h"

namespace vcl
{

/// A picture of Control with everything on it, at Scale device pixels a unit, as the screen would show it. A
/// control or form that is not shown yet is shown for the moment without appearing on the screen.
///
/// Raises EInvalidOperation for a control that cannot be shown, and what painting raises.
TDecodedImage Snapshot(TWinControl& Control, double Scale = 1.0);

/// The same as a PNG file. Raises EFCreateError when the file cannot be written.
void SaveSnapshot(TWinControl& Control, const AnsiString& FileName, double Scale = 1.0);

} // namespace vcl
