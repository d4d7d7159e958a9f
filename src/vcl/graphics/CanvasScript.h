#pragma once

#include <map>
#include <memory>
#include <optional>
#include <string_view>

#include "vcl/graphics/Edge.h"
#include "vcl/graphics/RasterPainter.h"
#include "vcl/graphics/ScriptLine.h"

namespace vcl
{

/// What a script may use up. A script that asks for more is refused.
struct TScriptLimits {
    /// Of one surface, in units.
    int MaxSide = 16384;
    /// Of all surfaces together, in device pixels.
    std::int64_t MaxPixels = std::int64_t{1} << 26;
    int MaxSurfaces = 64;
    /// Pixels that all operations together may have to look at.
    std::int64_t MaxWork = std::int64_t{1} << 34;
};

/// Runs a text of canvas operations, one a line: sizes and surfaces, pens and brushes, lines and figures,
/// edges, copies and clipping. Useful for tests and for pictures in documents.
///
///     TCanvasScript Script(Resolve);
///     Script.Run("size 40 30\npen solid 1 FF0000\nrectangle 2 2 38 28\n");
///     Script.GetMain().Row(0) ...
class TCanvasScript
{
public:
    /// Resolve gives the system colours of edges and frame controls; the surfaces get the scale.
    explicit TCanvasScript(TColorResolver Resolve, double Scale = 1.0, const TScriptLimits& Limits = {});
    ~TCanvasScript();

    /// Runs the whole text. EScriptError names the first line that is wrong; what came before it is painted.
    void Run(std::string_view Text);
    /// The surface that the first operation, `size`, makes. EScriptError when there is none.
    const TSurface& GetMain() const;

private:
    struct TSheet;
    using TOperation = void (TCanvasScript::*)(TScriptLine&);
    static TOperation FindOperation(std::string_view Name);

    void RunLine(TScriptLine& Line);
    TSheet& AddSheet(TScriptLine& Line, std::string_view Name);
    TSheet& FindSheet(TScriptLine& Line);
    /// Counts the pixels a figure may touch. Rows: how often each row of it is looked at.
    void Charge(const TScriptLine& Line, const TRect& Figure, std::int64_t Rows = 1);
    void ChargePoints(const TScriptLine& Line, std::span<const TPoint> Points);

    void Size(TScriptLine& Line);
    void Surface(TScriptLine& Line);
    void Target(TScriptLine& Line);
    void Pen(TScriptLine& Line);
    void Brush(TScriptLine& Line);
    void TileBrush(TScriptLine& Line, TBrushState& Brush);
    void TextColor(TScriptLine& Line);
    void BackColor(TScriptLine& Line);
    void BackMode(TScriptLine& Line);
    void PenMode(TScriptLine& Line);
    void FillMode(TScriptLine& Line);
    void MoveTo(TScriptLine& Line);
    void LineTo(TScriptLine& Line);
    void Polyline(TScriptLine& Line);
    void Polygon(TScriptLine& Line);
    void Rectangle(TScriptLine& Line);
    void Ellipse(TScriptLine& Line);
    void RoundRect(TScriptLine& Line);
    void Arc(TScriptLine& Line);
    void Pie(TScriptLine& Line);
    void Chord(TScriptLine& Line);
    void FillRect(TScriptLine& Line);
    void FrameRect(TScriptLine& Line);
    void InvertRect(TScriptLine& Line);
    void FocusRect(TScriptLine& Line);
    void SetPixel(TScriptLine& Line);
    void Edge(TScriptLine& Line);
    void FrameControl(TScriptLine& Line);
    void BitBlt(TScriptLine& Line);
    void StretchBlt(TScriptLine& Line);
    void ClipTo(TScriptLine& Line);
    void ClipAnd(TScriptLine& Line);
    void ClipNot(TScriptLine& Line);
    void Unclip(TScriptLine& Line);
    TRect TakeFigure(TScriptLine& Line);

    TColorResolver FResolve;
    double FScale;
    TScriptLimits FLimits;
    std::int64_t FPixels = 0;
    std::int64_t FWork = 0;
    std::map<AnsiString, std::unique_ptr<TSheet>, std::less<>> FSheets;
    TSheet* FTarget = nullptr;
};

} // namespace vcl
