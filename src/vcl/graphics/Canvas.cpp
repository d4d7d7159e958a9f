#include "vcl/graphics/Canvas.h"

#include <algorithm>
#include <climits>

#include "vcl/graphics/Colors.h"
#include "vcl/graphics/Edge.h"
#include "vcl/graphics/FrameControl.h"
#include "vcl/graphics/Graphic.h"
#include "vcl/graphics/Surface.h"
#include "vcl/graphics/TextDisplay.h"
#include "vcl/platform/Platform.h"
#include "vcl/system/Exception.h"

namespace vcl
{

namespace
{

/// Coordinates saturate: a rectangle may reach to the ends of int to say "everything".
int Sum(int Left, int Right)
{
    return static_cast<int>(std::clamp<std::int64_t>(std::int64_t{Left} + Right, INT_MIN, INT_MAX));
}

TRect Shifted(const TRect& Rect, int X, int Y)
{
    return {Sum(Rect.Left, X), Sum(Rect.Top, Y), Sum(Rect.Right, X), Sum(Rect.Bottom, Y)};
}

} // namespace

struct TCanvas::TSavedState {
    TPen Pen;
    TBrush Brush;
    TFont Font;
    TPoint PenPos;
    TPoint Origin;
    TFillMode FillMode;
    std::optional<TBackgroundMode> BkMode;
    std::optional<TRegion> Clip;
};

const TClass& TCanvas::StaticClass()
{
    static const TClass Class = DefineClass<TCanvas, TPersistent>("TCanvas");
    return Class;
}

TCanvas::TCanvas() : TCanvas(nullptr)
{
}

TCanvas::TCanvas(IPainter* Painter)
    : FPen(std::make_unique<TPen>()), FBrush(std::make_unique<TBrush>()), FFont(std::make_unique<TFont>()),
      FPainter(Painter)
{
    FBrush->OnChange = [this](TObject*) { FBkMode.reset(); };
}

TCanvas::~TCanvas() = default;

TRect TCanvas::GetClipRect()
{
    TRect Bounds = RequirePainter().ClipBounds();
    if (FSystemClip)
        Bounds = IntersectionOf(Bounds, FSystemClip->GetBounds());
    if (FClip)
        Bounds = IntersectionOf(Bounds, FClip->GetBounds());
    return Bounds.IsEmpty() ? TRect{} : Shifted(Bounds, -FOrigin.X, -FOrigin.Y);
}

TColor TCanvas::GetPixel(int X, int Y)
{
    RequirePainter();
    const TSurface* const Surface = GetSurface();
    const TPoint Point = ToPainter(TPoint{X, Y});
    if (!Surface || !TRect{0, 0, Surface->GetWidth(), Surface->GetHeight()}.Contains(Point))
        return clNone;
    return PixelToColor(Surface->GetPixel(Point));
}

void TCanvas::SetPixel(int X, int Y, TColor Color)
{
    Paint([&](IPainter& Painter) { Painter.SetPixel(ToPainter(TPoint{X, Y}), ColorToPixel(Color)); });
}

TBackgroundMode TCanvas::GetBkMode() const
{
    if (FBkMode)
        return *FBkMode;
    const bool IsSolid = FBrush->GetStyle() == TBrushStyle::bsSolid && !FBrush->GetBitmap();
    return IsSolid ? TBackgroundMode::bmOpaque : TBackgroundMode::bmTransparent;
}

void TCanvas::SetOrigin(TPoint Value)
{
    FOrigin = Value;
}

void TCanvas::LineTo(int X, int Y)
{
    const TPoint Points[] = {FPenPos, {X, Y}};
    Polyline(Points);
    FPenPos = {X, Y};
}

void TCanvas::Polyline(std::span<const TPoint> Points)
{
    Paint([&](IPainter& Painter) { Painter.Polyline(GetDrawState(), ToPainter(Points)); });
}

void TCanvas::Arc(int Left, int Top, int Right, int Bottom, int FromX, int FromY, int ToX, int ToY)
{
    Paint([&](IPainter& Painter) {
        Painter.Arc(GetDrawState(), ToPainter(TRect{Left, Top, Right, Bottom}),
                    ToPainter(TPoint{FromX, FromY}), ToPainter(TPoint{ToX, ToY}));
    });
}

void TCanvas::Polygon(std::span<const TPoint> Points)
{
    Paint([&](IPainter& Painter) { Painter.Polygon(GetDrawState(), ToPainter(Points)); });
}

void TCanvas::Rectangle(const TRect& Rect)
{
    Paint([&](IPainter& Painter) { Painter.Rectangle(GetDrawState(), ToPainter(Rect)); });
}

void TCanvas::RoundRect(int Left, int Top, int Right, int Bottom, int CornerWidth, int CornerHeight)
{
    Paint([&](IPainter& Painter) {
        Painter.RoundRect(GetDrawState(), ToPainter(TRect{Left, Top, Right, Bottom}),
                          {CornerWidth, CornerHeight});
    });
}

void TCanvas::Ellipse(const TRect& Rect)
{
    Paint([&](IPainter& Painter) { Painter.Ellipse(GetDrawState(), ToPainter(Rect)); });
}

void TCanvas::Pie(int Left, int Top, int Right, int Bottom, int FromX, int FromY, int ToX, int ToY)
{
    Paint([&](IPainter& Painter) {
        Painter.Pie(GetDrawState(), ToPainter(TRect{Left, Top, Right, Bottom}),
                    ToPainter(TPoint{FromX, FromY}), ToPainter(TPoint{ToX, ToY}));
    });
}

void TCanvas::Chord(int Left, int Top, int Right, int Bottom, int FromX, int FromY, int ToX, int ToY)
{
    Paint([&](IPainter& Painter) {
        Painter.Chord(GetDrawState(), ToPainter(TRect{Left, Top, Right, Bottom}),
                      ToPainter(TPoint{FromX, FromY}), ToPainter(TPoint{ToX, ToY}));
    });
}

void TCanvas::FillRect(const TRect& Rect)
{
    Paint([&](IPainter& Painter) { Painter.FillRect(GetDrawState(), ToPainter(Rect)); });
}

void TCanvas::FrameRect(const TRect& Rect)
{
    Paint([&](IPainter& Painter) { Painter.FrameRect(GetDrawState(), ToPainter(Rect)); });
}

void TCanvas::InvertRect(const TRect& Rect)
{
    Paint([&](IPainter& Painter) { Painter.InvertRect(ToPainter(Rect)); });
}

void TCanvas::DrawFocusRect(const TRect& Rect)
{
    Paint([&](IPainter& Painter) { Painter.FocusRect(ToPainter(Rect)); });
}

bool TCanvas::DrawEdge(TRect& Rect, unsigned Edge, unsigned Flags)
{
    bool IsDrawn = false;
    Paint([&](IPainter& Painter) {
        TRect Target = ToPainter(Rect);
        IsDrawn = vcl::DrawEdge(Painter, &ColorToPixel, Target, Edge, Flags);
        if (Flags & BF_ADJUST)
            Rect = Shifted(Target, -FOrigin.X, -FOrigin.Y);
    });
    return IsDrawn;
}

bool TCanvas::DrawFrameControl(const TRect& Rect, unsigned Type, unsigned State)
{
    bool IsDrawn = false;
    Paint([&](IPainter& Painter) {
        IsDrawn = vcl::DrawFrameControl(Painter, &ColorToPixel, ToPainter(Rect), Type, State);
    });
    return IsDrawn;
}

void TCanvas::TextOut(int X, int Y, const AnsiString& Text)
{
    const AnsiString Line = ToDisplayLine(Text);
    DrawTextRun({X, Y}, Line, false);
    FPenPos = {Sum(X, Platform().Text().TextWidth(FFont->GetSpec(), Line)), Y};
}

void TCanvas::TextRect(const TRect& Rect, int X, int Y, const AnsiString& Text)
{
    const int Depth = SaveState();
    IntersectClipRect(Rect);
    if (GetBkMode() == TBackgroundMode::bmOpaque)
        FillRect(Rect);
    DrawTextRun({X, Y}, ToDisplayLine(Text), false);
    RestoreState(Depth);
}

TSize TCanvas::TextExtent(const AnsiString& Text)
{
    ITextEngine& Engine = Platform().Text();
    const TFontSpec& Font = FFont->GetSpec();
    return {Text.empty() ? 0 : Engine.TextWidth(Font, ToDisplayLine(Text)), Engine.Metrics(Font).Height};
}

void TCanvas::DrawTextRun(TPoint Origin, std::string_view DisplayText, bool RightToLeft)
{
    Paint([&](IPainter& Painter) {
        Painter.Text(GetDrawState(), FFont->GetSpec(), ToPainter(Origin), DisplayText, RightToLeft);
    });
}

void TCanvas::FillTextColor(const TRect& Rect)
{
    Paint([&](IPainter& Painter) {
        TDrawState State = GetDrawState();
        State.Brush = {TBrushStyle::bsSolid, State.TextColor, {}, {}};
        Painter.FillRect(State, ToPainter(Rect));
    });
}

void TCanvas::Draw(int X, int Y, TGraphic* Graphic)
{
    if (Graphic && !Graphic->GetEmpty())
        Graphic->Draw(*this, Bounds(X, Y, Graphic->GetWidth(), Graphic->GetHeight()));
}

void TCanvas::StretchDraw(const TRect& Rect, TGraphic* Graphic)
{
    if (Graphic && !Graphic->GetEmpty())
        Graphic->Draw(*this, Rect);
}

void TCanvas::CopyRect(const TRect& Target, TCanvas& SourceCanvas, const TRect& Source)
{
    SourceCanvas.RequirePainter();
    if (const TSurface* const Surface = SourceCanvas.GetSurface())
        CopySurface(Target, *Surface, SourceCanvas.ToPainter(Source));
}

void TCanvas::CopySurface(const TRect& Target, const TSurface& Surface, const TRect& Source)
{
    Paint([&](IPainter& Painter) { Painter.StretchCopy(ToPainter(Target), Surface, Source); });
}

void TCanvas::CopyMasked(const TRect& Target, const TSurface& Surface, const TRect& Source,
                         std::span<const std::uint8_t> Transparent)
{
    Paint([&](IPainter& Painter) { Painter.MaskedCopy(ToPainter(Target), Surface, Source, Transparent); });
}

void TCanvas::SelectClipRegion(const TRegion* Region)
{
    FClip.reset();
    if (Region) {
        FClip = *Region;
        FClip->Offset(FOrigin.X, FOrigin.Y);
    }
    ApplyClip();
}

void TCanvas::IntersectClipRect(const TRect& Rect)
{
    if (FClip)
        FClip->Intersect(ToPainter(Rect));
    else
        FClip = TRegion(ToPainter(Rect));
    ApplyClip();
}

std::optional<TRegion> TCanvas::GetClipRegion() const
{
    std::optional<TRegion> Region = FClip;
    if (Region)
        Region->Offset(-FOrigin.X, -FOrigin.Y);
    return Region;
}

void TCanvas::SetSystemClip(const TRegion* Region)
{
    FSystemClip.reset();
    if (Region)
        FSystemClip = *Region;
    ApplyClip();
}

bool TCanvas::IsClippedOut(const TRect& Rect)
{
    const TRect Inside = IntersectionOf(ToPainter(Rect), RequirePainter().ClipBounds());
    return Inside.IsEmpty() || (FClip && !FClip->Intersects(Inside)) ||
           (FSystemClip && !FSystemClip->Intersects(Inside));
}

int TCanvas::SaveState()
{
    auto Saved = std::make_unique<TSavedState>();
    Saved->Pen.Assign(FPen.get());
    Saved->Brush.Assign(FBrush.get());
    Saved->Font.SetPixelsPerInch(FFont->GetPixelsPerInch());
    Saved->Font.Assign(FFont.get());
    Saved->PenPos = FPenPos;
    Saved->Origin = FOrigin;
    Saved->FillMode = FFillMode;
    Saved->BkMode = FBkMode;
    Saved->Clip = FClip;
    FStack.push_back(std::move(Saved));
    return static_cast<int>(FStack.size());
}

void TCanvas::RestoreState(int Depth)
{
    const int Wanted = Depth == 0 ? static_cast<int>(FStack.size()) : Depth;
    if (Wanted < 1 || Wanted > static_cast<int>(FStack.size()))
        return;
    const std::unique_ptr<TSavedState> Saved = std::move(FStack[static_cast<std::size_t>(Wanted - 1)]);
    FStack.resize(static_cast<std::size_t>(Wanted - 1));
    FPen->Assign(&Saved->Pen);
    FBrush->Assign(&Saved->Brush);
    FFont->SetPixelsPerInch(Saved->Font.GetPixelsPerInch());
    FFont->Assign(&Saved->Font);
    FPenPos = Saved->PenPos;
    FOrigin = Saved->Origin;
    FFillMode = Saved->FillMode;
    FBkMode = Saved->BkMode;
    if (FClip != Saved->Clip) {
        FClip = std::move(Saved->Clip);
        ApplyClip();
    }
}

void TCanvas::SetPainter(IPainter* Value)
{
    FPainter = Value;
    ApplyClip();
}

TDrawState TCanvas::GetDrawState() const
{
    TDrawState State;
    State.Pen = FPen->GetState();
    State.Brush = FBrush->GetState();
    State.TextColor = ColorToPixel(FFont->GetColor());
    State.BackColor = ColorToPixel(FBrush->GetColor());
    State.BackMode = GetBkMode();
    State.Mode = FPen->GetMode();
    State.FillMode = FFillMode;
    return State;
}

IPainter& TCanvas::RequirePainter()
{
    if (!FPainter)
        CreateHandle();
    if (!FPainter)
        throw EInvalidOperation("Canvas does not allow drawing");
    return *FPainter;
}

TPoint TCanvas::ToPainter(TPoint Point) const
{
    return {Sum(Point.X, FOrigin.X), Sum(Point.Y, FOrigin.Y)};
}

TRect TCanvas::ToPainter(const TRect& Rect) const
{
    return Shifted(Rect, FOrigin.X, FOrigin.Y);
}

std::vector<TPoint> TCanvas::ToPainter(std::span<const TPoint> Points) const
{
    std::vector<TPoint> Result(Points.begin(), Points.end());
    for (TPoint& Point : Result)
        Point = ToPainter(Point);
    return Result;
}

void TCanvas::ApplyClip()
{
    if (!FPainter)
        return;
    if (FClip && FSystemClip) {
        TRegion Both = *FSystemClip;
        Both.Intersect(*FClip);
        FPainter->SetClip(&Both);
        return;
    }
    const std::optional<TRegion>& Only = FClip ? FClip : FSystemClip;
    FPainter->SetClip(Only ? &*Only : nullptr);
}

template <class TOperation>
void TCanvas::Paint(TOperation&& Operation)
{
    OnChanging(this);
    Operation(RequirePainter());
    OnChange(this);
}

} // namespace vcl
