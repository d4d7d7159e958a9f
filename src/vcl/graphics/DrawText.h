#pragma once

#include "vcl/graphics/TextLayout.h"
#include "vcl/system/AnsiString.h"
#include "vcl/system/Types.h"

namespace vcl
{

class TCanvas;

/// Draws or measures text in a rectangle with the canvas's font, as Win32's function of that name.
///
/// Flags are DT_ constants. With DT_CALCRECT nothing is drawn and Rect becomes the text's rectangle: a single
/// line widens it, word-broken text keeps its width and extends its bottom. Params (null for none) holds tab
/// length and margins and receives how many bytes fitted. Returns the height of the text, measured from
/// Rect.Top for DT_VCENTER and DT_BOTTOM.
int DrawText(TCanvas& Canvas, const AnsiString& Text, TRect& Rect, unsigned Flags,
             TDrawTextParams* Params = nullptr);

/// As DrawText; with DT_MODIFYSTRING and an ellipsis flag Text becomes what is shown.
int DrawTextEx(TCanvas& Canvas, AnsiString& Text, TRect& Rect, unsigned Flags,
               TDrawTextParams* Params = nullptr);

} // namespace vcl
