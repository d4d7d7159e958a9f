#pragma once

#include <memory>
#include <optional>
#include <span>
#include <vector>

#include "vcl/classes/Persistent.h"
#include "vcl/graphics/Brush.h"
#include "vcl/graphics/Font.h"
#include "vcl/graphics/Painter.h"
#include "vcl/graphics/Pen.h"
#include "vcl/graphics/Region.h"

namespace vcl
{

class TGraphic;

/// Draws with a pen, a brush and a font through a painter.
///
///     Canvas->GetPen()->SetColor(clBtnShadow);
///     Canvas->MoveTo(0, 0);
///     Canvas->LineTo(10, 0); // the last point stays unpainted
///
/// Rectangles leave out their right and bottom edge. With a solid brush text has an opaque background and
/// dashed lines have gaps in the brush's colour; with any other brush both are transparent. Text is in the
/// code page. The canvas owns its pen, brush and font; the painter belongs to whoever attached it.
class TCanvas : public TPersistent
{
    VCL_CLASS
public:
    TCanvas();
    explicit TCanvas(IPainter* Painter);
    ~TCanvas() override;

    TPen* GetPen() const { return FPen.get(); }
    void SetPen(const TPen* Value) { FPen->Assign(Value); }
    TBrush* GetBrush() const { return FBrush.get(); }
    void SetBrush(const TBrush* Value) { FBrush->Assign(Value); }
    TFont* GetFont() const { return FFont.get(); }
    void SetFont(const TFont* Value) { FFont->Assign(Value); }
    /// Where LineTo starts.
    TPoint GetPenPos() const { return FPenPos; }
    void SetPenPos(TPoint Value) { FPenPos = Value; }
    /// The bounds of what drawing can reach now; empty when nothing.
    TRect GetClipRect();
    /// Colour of a pixel, or clNone (as Win32's CLR_INVALID) outside and where the painter holds no pixels.
    TColor GetPixel(int X, int Y);
    void SetPixel(int X, int Y, TColor Color);
    TFillMode GetFillMode() const { return FFillMode; }
    void SetFillMode(TFillMode Value) { FFillMode = Value; }
    /// Whether text and gaps get a background. Lasts until the brush changes, which sets it anew.
    TBackgroundMode GetBkMode() const;
    void SetBkMode(TBackgroundMode Value) { FBkMode = Value; }
    /// What 0, 0 of this canvas is in the painter's coordinates. Patterns stay where they are.
    TPoint GetOrigin() const { return FOrigin; }
    void SetOrigin(TPoint Value);

    // Lines
    void MoveTo(int X, int Y) { FPenPos = {X, Y}; }
    void LineTo(int X, int Y);
    void Polyline(std::span<const TPoint> Points);
    void Arc(int Left, int Top, int Right, int Bottom, int FromX, int FromY, int ToX, int ToY);

    // Outlined and filled figures
    void Polygon(std::span<const TPoint> Points);
    void Rectangle(const TRect& Rect);
    void Rectangle(int Left, int Top, int Right, int Bottom) { Rectangle({Left, Top, Right, Bottom}); }
    void RoundRect(int Left, int Top, int Right, int Bottom, int CornerWidth, int CornerHeight);
    void Ellipse(const TRect& Rect);
    void Ellipse(int Left, int Top, int Right, int Bottom) { Ellipse(TRect{Left, Top, Right, Bottom}); }
    void Pie(int Left, int Top, int Right, int Bottom, int FromX, int FromY, int ToX, int ToY);
    void Chord(int Left, int Top, int Right, int Bottom, int FromX, int FromY, int ToX, int ToY);

    // The brush alone, or inversion
    void FillRect(const TRect& Rect);
    void FrameRect(const TRect& Rect);
    void InvertRect(const TRect& Rect);
    /// A dotted frame by inversion: drawn twice it is gone.
    void DrawFocusRect(const TRect& Rect);

    // Edges and controls in system colours; see Edge.h and FrameControl.h
    /// False when nothing can be drawn. With BF_ADJUST Rect becomes what remains inside.
    bool DrawEdge(TRect& Rect, unsigned Edge, unsigned Flags);
    bool DrawFrameControl(const TRect& Rect, unsigned Type, unsigned State);

    // Text
    /// One line with its top left corner at X, Y; the pen position moves to its end.
    void TextOut(int X, int Y, const AnsiString& Text);
    /// As TextOut, but only inside Rect, which a solid brush fills first.
    void TextRect(const TRect& Rect, int X, int Y, const AnsiString& Text);
    /// Width of the text as one line, and the height of one line of the font.
    TSize TextExtent(const AnsiString& Text);
    int TextWidth(const AnsiString& Text) { return TextExtent(Text).Width; }
    int TextHeight(const AnsiString& Text) { return TextExtent(Text).Height; }
    /// One line of valid UTF-8 without tabs and line breaks; the pen position stays.
    void DrawTextRun(TPoint Origin, std::string_view DisplayText, bool RightToLeft);

    /// Fills with the font's colour: underlines of access keys.
    void FillTextColor(const TRect& Rect);

    // Pictures
    /// Null draws nothing.
    void Draw(int X, int Y, TGraphic* Graphic);
    void StretchDraw(const TRect& Rect, TGraphic* Graphic);
    /// Copies Source of another canvas that holds pixels (or of this one) to Target, stretched.
    void CopyRect(const TRect& Target, TCanvas& SourceCanvas, const TRect& Source);
    void CopySurface(const TRect& Target, const TSurface& Surface, const TRect& Source);
    /// Leaves out pixels whose mask byte (one for each pixel of Surface) is not 0.
    void CopyMasked(const TRect& Target, const TSurface& Surface, const TRect& Source,
                    std::span<const std::uint8_t> Transparent);

    // Clipping and state
    /// From now on drawing stays inside Region, in this canvas's coordinates; null: no region. What
    /// SetSystemClip excludes stays excluded.
    void SelectClipRegion(const TRegion* Region);
    /// Leaves only what also lies in Rect.
    void IntersectClipRect(const TRect& Rect);
    /// The selected region in this canvas's coordinates, or nothing.
    std::optional<TRegion> GetClipRegion() const;
    /// The part of the painter this canvas may reach at all, in the painter's coordinates; null: everything.
    void SetSystemClip(const TRegion* Region);
    /// True when nothing inside Rect can be painted.
    bool IsClippedOut(const TRect& Rect);
    /// Keeps pen, brush, font, positions and clip, and returns how deep the stack now is.
    int SaveState();
    /// Returns to what SaveState kept when it answered Depth (the last one without a depth), dropping later
    /// states. A depth that is not on the stack is ignored.
    void RestoreState(int Depth = 0);

    /// The painter drawn through; null when detached.
    IPainter* GetPainter() const { return FPainter; }
    /// Attaches the canvas to a painter, or detaches it with null. Pen, brush, font and clip stay.
    void SetPainter(IPainter* Value);
    /// The pixels behind the painter, or null when it has none.
    virtual TSurface* GetSurface() { return nullptr; }
    /// Everything a painter depends on, colours resolved.
    TDrawState GetDrawState() const;

    /// Before the first drawing after a change, and after each drawing.
    TNotifyEvent OnChanging;
    TNotifyEvent OnChange;

protected:
    /// Called when something is drawn while no painter is attached; a descendant attaches one.
    virtual void CreateHandle() {}
    /// The painter; raises EInvalidOperation when there is none even after CreateHandle.
    IPainter& RequirePainter();

private:
    struct TSavedState;

    TPoint ToPainter(TPoint Point) const;
    TRect ToPainter(const TRect& Rect) const;
    std::vector<TPoint> ToPainter(std::span<const TPoint> Points) const;
    void ApplyClip();
    template <class TOperation>
    void Paint(TOperation&& Operation);

    std::unique_ptr<TPen> FPen;
    std::unique_ptr<TBrush> FBrush;
    std::unique_ptr<TFont> FFont;
    IPainter* FPainter = nullptr;
    TPoint FPenPos;
    TPoint FOrigin;
    TFillMode FFillMode = TFillMode::fmAlternate;
    std::optional<TBackgroundMode> FBkMode;
    std::optional<TRegion> FClip; // both in the painter's coordinates
    std::optional<TRegion> FSystemClip;
    std::vector<std::unique_ptr<TSavedState>> FStack;
};

/// Keeps a canvas's state for the length of a block.
class TCanvasStateGuard
{
public:
    explicit TCanvasStateGuard(TCanvas& Canvas) : FCanvas(Canvas), FDepth(Canvas.SaveState()) {}
    ~TCanvasStateGuard() { FCanvas.RestoreState(FDepth); }
    TCanvasStateGuard(const TCanvasStateGuard&) = delete;
    TCanvasStateGuard& operator=(const TCanvasStateGuard&) = delete;

private:
    TCanvas& FCanvas;
    int FDepth;
};

} // namespace vcl
