#pragma once

#include <string_view>
#include <vector>

#include "vcl/system/AnsiString.h"
#include "vcl/system/Types.h"

namespace vcl
{

constexpr unsigned DT_TOP = 0x0;
constexpr unsigned DT_LEFT = 0x0;
constexpr unsigned DT_CENTER = 0x1;
constexpr unsigned DT_RIGHT = 0x2;
constexpr unsigned DT_VCENTER = 0x4;
constexpr unsigned DT_BOTTOM = 0x8;
constexpr unsigned DT_WORDBREAK = 0x10;
constexpr unsigned DT_SINGLELINE = 0x20;
constexpr unsigned DT_EXPANDTABS = 0x40;
constexpr unsigned DT_TABSTOP = 0x80;
constexpr unsigned DT_NOCLIP = 0x100;
constexpr unsigned DT_EXTERNALLEADING = 0x200;
constexpr unsigned DT_CALCRECT = 0x400;
constexpr unsigned DT_NOPREFIX = 0x800;
constexpr unsigned DT_INTERNAL = 0x1000;
constexpr unsigned DT_EDITCONTROL = 0x2000;
constexpr unsigned DT_PATH_ELLIPSIS = 0x4000;
constexpr unsigned DT_END_ELLIPSIS = 0x8000;
constexpr unsigned DT_MODIFYSTRING = 0x10000;
constexpr unsigned DT_RTLREADING = 0x20000;
constexpr unsigned DT_WORD_ELLIPSIS = 0x40000;
constexpr unsigned DT_NOFULLWIDTHCHARBREAK = 0x80000;
constexpr unsigned DT_HIDEPREFIX = 0x100000;
constexpr unsigned DT_PREFIXONLY = 0x200000;

struct TDrawTextParams {
    /// Characters between tab stops, with DT_TABSTOP; 0 or less means 8.
    int TabLength = 0;
    /// Pixels.
    int LeftMargin = 0;
    int RightMargin = 0;
    /// Receives how many bytes of the text were laid out.
    int LengthDrawn = 0;
};

/// What layout asks about the font. Text is valid UTF-8 without line breaks and tabs.
class ITextMeasure
{
public:
    virtual ~ITextMeasure() = default;

    /// Pixels of one line without and with the font's external leading.
    virtual int LineHeight() = 0;
    virtual int ExternalLeading() = 0;
    virtual int AveCharWidth() = 0;
    virtual int Width(std::string_view Text) = 0;
    /// Widths up to and including each code point.
    virtual void Extents(std::string_view Text, std::vector<int>& Extents) = 0;
};

/// A piece of a line without tabs, prefixes resolved.
struct TTextPiece {
    AnsiString Text;
    int X = 0;
    int Width = 0;
    /// Byte offset of the underlined code point in Text, or -1.
    int Underline = -1;
};

struct TTextLine {
    std::vector<TTextPiece> Pieces;
    int Y = 0;
    int Width = 0;
};

/// Text laid out in a rectangle, in the rectangle's coordinates.
struct TTextLayout {
    /// The lines to draw; with DT_CALCRECT the measured ones.
    std::vector<TTextLine> Lines;
    /// What DT_CALCRECT answers.
    TRect Bounds;
    /// What DrawText returns.
    int Height = 0;
    /// The text as shown (ellipses put in), when DT_MODIFYSTRING asks for it and something was cut.
    AnsiString Modified;
    bool WasModified = false;
    /// Bytes of the text that were laid out.
    int LengthDrawn = 0;
};

/// Lays out Text as DrawText draws it. Work is proportional to what the rectangle can show, not to the length
/// of Text, except with DT_CALCRECT and DT_NOCLIP, which have to see everything.
TTextLayout LayoutText(ITextMeasure& Measure, std::string_view Text, const TRect& Rect, unsigned Flags,
                       const TDrawTextParams& Params = {});

} // namespace vcl
