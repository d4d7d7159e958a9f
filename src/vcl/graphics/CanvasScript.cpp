#include "vcl/graphics/CanvasScript.h"

#include <algorithm>
#include <array>

#include "vcl/graphics/FrameControl.h"
#include "vcl/graphics/WideMath.h"

namespace vcl
{

namespace
{

template <class TValue>
struct TNamed {
    std::string_view Name;
    TValue Value;
};

template <class TValue, std::size_t Count>
TValue Lookup(const TScriptLine& Line, std::string_view Word, const TNamed<TValue> (&Table)[Count])
{
    for (const TNamed<TValue>& Entry : Table)
        if (Entry.Name == Word)
            return Entry.Value;
    Line.Fail("unknown word " + QuotedWord(Word));
}

/// Words joined by '+', each adding its bits.
template <std::size_t Count>
unsigned LookupFlags(const TScriptLine& Line, std::string_view Words, const TNamed<unsigned> (&Table)[Count])
{
    unsigned Result = 0;
    for (std::size_t Start = 0; Start <= Words.size();) {
        const std::size_t End = std::min(Words.find('+', Start), Words.size());
        Result |= Lookup(Line, Words.substr(Start, End - Start), Table);
        Start = End + 1;
    }
    return Result;
}

constexpr TNamed<TPenStyle> PenStyles[] = {
    {"solid", TPenStyle::psSolid},
    {"dash", TPenStyle::psDash},
    {"dot", TPenStyle::psDot},
    {"dashdot", TPenStyle::psDashDot},
    {"clear", TPenStyle::psClear},
    {"dashdotdot", TPenStyle::psDashDotDot},
    {"insideframe", TPenStyle::psInsideFrame},
};

constexpr TNamed<TBrushStyle> BrushStyles[] = {
    {"solid", TBrushStyle::bsSolid},
    {"clear", TBrushStyle::bsClear},
    {"horizontal", TBrushStyle::bsHorizontal},
    {"vertical", TBrushStyle::bsVertical},
    {"fdiagonal", TBrushStyle::bsFDiagonal},
    {"bdiagonal", TBrushStyle::bsBDiagonal},
    {"cross", TBrushStyle::bsCross},
    {"diagcross", TBrushStyle::bsDiagCross},
    {"mono", TBrushStyle::bsMono},
    {"tile", TBrushStyle::bsPattern},
};

constexpr TNamed<TPenMode> PenModes[] = {
    {"black", TPenMode::pmBlack},
    {"notmergepen", TPenMode::pmNotMerge},
    {"masknotpen", TPenMode::pmMaskNotPen},
    {"notcopypen", TPenMode::pmNotCopy},
    {"maskpennot", TPenMode::pmMaskPenNot},
    {"not", TPenMode::pmNot},
    {"xorpen", TPenMode::pmXor},
    {"notmaskpen", TPenMode::pmNotMask},
    {"maskpen", TPenMode::pmMask},
    {"notxorpen", TPenMode::pmNotXor},
    {"nop", TPenMode::pmNop},
    {"mergenotpen", TPenMode::pmMergeNotPen},
    {"copypen", TPenMode::pmCopy},
    {"mergepennot", TPenMode::pmMergePenNot},
    {"mergepen", TPenMode::pmMerge},
    {"white", TPenMode::pmWhite},
};

constexpr TNamed<TFillMode> FillModes[] = {
    {"alternate", TFillMode::fmAlternate},
    {"winding", TFillMode::fmWinding},
};

constexpr TNamed<TBackgroundMode> BackModes[] = {
    {"opaque", TBackgroundMode::bmOpaque},
    {"transparent", TBackgroundMode::bmTransparent},
};

constexpr TNamed<unsigned> Edges[] = {
    {"raisedouter", BDR_RAISEDOUTER}, {"sunkenouter", BDR_SUNKENOUTER},
    {"raisedinner", BDR_RAISEDINNER}, {"sunkeninner", BDR_SUNKENINNER},
    {"raised", EDGE_RAISED},          {"sunken", EDGE_SUNKEN},
    {"etched", EDGE_ETCHED},          {"bump", EDGE_BUMP},
};

constexpr TNamed<unsigned> EdgeFlags[] = {
    {"left", BF_LEFT},
    {"top", BF_TOP},
    {"right", BF_RIGHT},
    {"bottom", BF_BOTTOM},
    {"rect", BF_RECT},
    {"topleft", BF_TOPLEFT},
    {"topright", BF_TOPRIGHT},
    {"bottomleft", BF_BOTTOMLEFT},
    {"bottomright", BF_BOTTOMRIGHT},
    {"middle", BF_MIDDLE},
    {"soft", BF_SOFT},
    {"flat", BF_FLAT},
    {"mono", BF_MONO},
    {"adjust", BF_ADJUST},
};

constexpr TNamed<unsigned> ControlTypes[] = {{"scroll", DFC_SCROLL}, {"button", DFC_BUTTON}};

constexpr TNamed<unsigned> ControlStates[] = {
    {"scrollup", DFCS_SCROLLUP},       {"scrolldown", DFCS_SCROLLDOWN}, {"scrollleft", DFCS_SCROLLLEFT},
    {"scrollright", DFCS_SCROLLRIGHT}, {"buttonpush", DFCS_BUTTONPUSH}, {"buttoncheck", DFCS_BUTTONCHECK},
    {"pushed", DFCS_PUSHED},           {"inactive", DFCS_INACTIVE},     {"flat", DFCS_FLAT},
    {"checked", DFCS_CHECKED},
};

TRect OrderedRect(const TRect& Rect)
{
    return {std::min(Rect.Left, Rect.Right), std::min(Rect.Top, Rect.Bottom), std::max(Rect.Left, Rect.Right),
            std::max(Rect.Top, Rect.Bottom)};
}

/// A rectangle from its first corner and its size, which may be negative.
TRect SizedRect(TPoint Corner, int Width, int Height)
{
    return {Corner.X, Corner.Y, Saturate(std::int64_t{Corner.X} + Width),
            Saturate(std::int64_t{Corner.Y} + Height)};
}

} // namespace

/// A surface with the state of its own that operations on it use.
struct TCanvasScript::TSheet {
    TSheet(int Width, int Height, double Scale) : Surface(Width, Height, Scale), Painter(Surface) {}

    void ApplyClip() { Painter.SetClip(Clip ? &*Clip : nullptr); }

    TSurface Surface;
    TRasterPainter Painter;
    TDrawState State;
    TPoint Position;
    std::optional<TRegion> Clip;
};

TCanvasScript::TCanvasScript(TColorResolver Resolve, double Scale, const TScriptLimits& Limits)
    : FResolve(std::move(Resolve)), FScale(Scale), FLimits(Limits)
{
}

TCanvasScript::~TCanvasScript() = default;

TCanvasScript::TOperation TCanvasScript::FindOperation(std::string_view Name)
{
    static constexpr TNamed<TOperation> Operations[] = {
        {"size", &TCanvasScript::Size},
        {"surface", &TCanvasScript::Surface},
        {"target", &TCanvasScript::Target},
        {"pen", &TCanvasScript::Pen},
        {"brush", &TCanvasScript::Brush},
        {"textcolor", &TCanvasScript::TextColor},
        {"bkcolor", &TCanvasScript::BackColor},
        {"bkmode", &TCanvasScript::BackMode},
        {"rop2", &TCanvasScript::PenMode},
        {"fillmode", &TCanvasScript::FillMode},
        {"moveto", &TCanvasScript::MoveTo},
        {"lineto", &TCanvasScript::LineTo},
        {"polyline", &TCanvasScript::Polyline},
        {"polygon", &TCanvasScript::Polygon},
        {"rectangle", &TCanvasScript::Rectangle},
        {"ellipse", &TCanvasScript::Ellipse},
        {"roundrect", &TCanvasScript::RoundRect},
        {"arc", &TCanvasScript::Arc},
        {"pie", &TCanvasScript::Pie},
        {"chord", &TCanvasScript::Chord},
        {"fillrect", &TCanvasScript::FillRect},
        {"framerect", &TCanvasScript::FrameRect},
        {"invertrect", &TCanvasScript::InvertRect},
        {"focusrect", &TCanvasScript::FocusRect},
        {"setpixel", &TCanvasScript::SetPixel},
        {"drawedge", &TCanvasScript::Edge},
        {"framecontrol", &TCanvasScript::FrameControl},
        {"bitblt", &TCanvasScript::BitBlt},
        {"stretchblt", &TCanvasScript::StretchBlt},
        {"clip", &TCanvasScript::ClipTo},
        {"clipand", &TCanvasScript::ClipAnd},
        {"clipnot", &TCanvasScript::ClipNot},
        {"unclip", &TCanvasScript::Unclip},
    };
    for (const TNamed<TOperation>& Operation : Operations)
        if (Operation.Name == Name)
            return Operation.Value;
    return nullptr;
}

void TCanvasScript::Run(std::string_view Text)
{
    int Number = 0;
    for (std::size_t Start = 0; Start < Text.size();) {
        const std::size_t End = std::min(Text.find('\n', Start), Text.size());
        TScriptLine Line(++Number, Text.substr(Start, End - Start));
        if (!Line.IsEmpty())
            RunLine(Line);
        Start = End + 1;
    }
    if (FTarget == nullptr)
        throw EScriptError(0, "the script has no operation");
}

void TCanvasScript::RunLine(TScriptLine& Line)
{
    const std::string_view Name = Line.TakeWord();
    const TOperation Operation = FindOperation(Name);
    if (Operation == nullptr)
        Line.Fail("unknown operation " + QuotedWord(Name));
    if (FTarget == nullptr && Name != "size")
        Line.Fail("the first operation has to be 'size'");
    (this->*Operation)(Line);
    Line.ExpectEnd();
}

const TSurface& TCanvasScript::GetMain() const
{
    const auto Found = FSheets.find("main");
    if (Found == FSheets.end())
        throw EScriptError(0, "the script has no operation");
    return Found->second->Surface;
}

TCanvasScript::TSheet& TCanvasScript::AddSheet(TScriptLine& Line, std::string_view Name)
{
    const int Width = Line.TakeInt();
    const int Height = Line.TakeInt();
    if (FSheets.contains(Name))
        Line.Fail("surface " + QuotedWord(Name) + " is there already");
    if (Width < 1 || Height < 1 || Width > FLimits.MaxSide || Height > FLimits.MaxSide)
        Line.Fail("size of a surface out of range 1.." + std::to_string(FLimits.MaxSide));
    if (FSheets.size() >= static_cast<std::size_t>(FLimits.MaxSurfaces))
        Line.Fail("too many surfaces");
    FPixels += static_cast<std::int64_t>(Width * FScale + 1) * static_cast<std::int64_t>(Height * FScale + 1);
    if (FPixels > FLimits.MaxPixels)
        Line.Fail("the surfaces are too large");
    try {
        auto Sheet = std::make_unique<TSheet>(Width, Height, FScale);
        return *FSheets.emplace(Name, std::move(Sheet)).first->second;
    } catch (const EInvalidGraphicOperation& Error) {
        Line.Fail(Error.what());
    }
}

TCanvasScript::TSheet& TCanvasScript::FindSheet(TScriptLine& Line)
{
    const std::string_view Name = Line.TakeWord();
    const auto Found = FSheets.find(Name);
    if (Found == FSheets.end())
        Line.Fail("unknown surface " + QuotedWord(Name));
    return *Found->second;
}

void TCanvasScript::Charge(const TScriptLine& Line, const TRect& Figure, std::int64_t Rows)
{
    constexpr std::int64_t EachOperation = 64;
    const std::int64_t Pen = std::clamp(FTarget->State.Pen.Width, 1, FLimits.MaxSide);
    const TRect Ordered = OrderedRect(Figure);
    const TRect Widened{Saturate(Ordered.Left - Pen), Saturate(Ordered.Top - Pen),
                        Saturate(Ordered.Right + Pen), Saturate(Ordered.Bottom + Pen)};
    const TRect Reached = IntersectionOf(FTarget->Surface.ToDevice(Widened), FTarget->Surface.DeviceBounds());
    // A region with many holes makes every figure dearer.
    const std::int64_t Clip = FTarget->Clip ? static_cast<std::int64_t>(FTarget->Clip->GetRects().size()) : 0;
    FWork +=
        EachOperation + Clip + std::int64_t{Reached.Width()} * Reached.Height() + Rows * Reached.Height();
    if (FWork > FLimits.MaxWork)
        Line.Fail("the script paints too much");
}

void TCanvasScript::ChargePoints(const TScriptLine& Line, std::span<const TPoint> Points)
{
    if (Points.empty())
        return;
    TRect Box{Points[0].X, Points[0].Y, Points[0].X, Points[0].Y};
    for (const TPoint& Point : Points)
        Box = {std::min(Box.Left, Point.X), std::min(Box.Top, Point.Y), std::max(Box.Right, Point.X),
               std::max(Box.Bottom, Point.Y)};
    const std::int64_t EachRow = FTarget->State.Pen.Width > 1 ? FTarget->State.Pen.Width : 4;
    Charge(Line, Box, static_cast<std::int64_t>(Points.size()) * std::min<std::int64_t>(EachRow, 64));
}

TRect TCanvasScript::TakeFigure(TScriptLine& Line)
{
    const TRect Result = Line.TakeRect();
    Charge(Line, Result);
    return Result;
}

void TCanvasScript::Size(TScriptLine& Line)
{
    if (FTarget != nullptr)
        Line.Fail("'size' may only be the first operation");
    FTarget = &AddSheet(Line, "main");
}

void TCanvasScript::Surface(TScriptLine& Line)
{
    const std::string_view Name = Line.TakeWord();
    AddSheet(Line, Name);
}

void TCanvasScript::Target(TScriptLine& Line)
{
    FTarget = &FindSheet(Line);
}

void TCanvasScript::Pen(TScriptLine& Line)
{
    TPenState Pen;
    Pen.Style = Lookup(Line, Line.TakeWord(), PenStyles);
    Pen.Width = Line.TakeInt();
    if (Pen.Width < 0)
        Line.Fail("the pen's width is negative");
    Pen.Color = Line.TakeColor();
    FTarget->State.Pen = Pen;
}

void TCanvasScript::Brush(TScriptLine& Line)
{
    TBrushState Brush;
    Brush.Style = Lookup(Line, Line.TakeWord(), BrushStyles);
    if (Brush.Style == TBrushStyle::bsMono) {
        for (std::uint8_t& Row : Brush.Mono)
            Row = Line.TakeByte();
    } else if (Brush.Style == TBrushStyle::bsPattern) {
        TileBrush(Line, Brush);
    } else if (Brush.Style != TBrushStyle::bsClear) {
        Brush.Color = Line.TakeColor();
    }
    FTarget->State.Brush = Brush;
}

void TCanvasScript::TileBrush(TScriptLine& Line, TBrushState& Brush)
{
    constexpr std::string_view Digits = "0123456789ABCDEF";
    std::array<std::size_t, 64> Cells;
    for (std::size_t Row = 0; Row < 8; ++Row) {
        const std::string_view Word = Line.TakeWord();
        if (Word.size() != 8)
            Line.Fail(QuotedWord(Word) + " is not a row of eight digits");
        for (std::size_t Column = 0; Column < 8; ++Column) {
            const char Letter = Word[Column];
            const std::size_t Digit = Digits.find(Letter >= 'a' ? static_cast<char>(Letter - 0x20) : Letter);
            if (Digit == std::string_view::npos)
                Line.Fail(QuotedWord(Word) + " is not a row of eight digits");
            Cells[Row * 8 + Column] = Digit;
        }
    }
    std::vector<std::uint32_t> Colors;
    while (Line.HasMore())
        Colors.push_back(Line.TakeColor());
    for (std::size_t Cell = 0; Cell < Cells.size(); ++Cell) {
        if (Cells[Cell] >= Colors.size())
            Line.Fail("the pattern uses more colours than are given");
        Brush.Pattern[Cell] = Colors[Cells[Cell]];
    }
}

void TCanvasScript::TextColor(TScriptLine& Line)
{
    FTarget->State.TextColor = Line.TakeColor();
}

void TCanvasScript::BackColor(TScriptLine& Line)
{
    FTarget->State.BackColor = Line.TakeColor();
}

void TCanvasScript::BackMode(TScriptLine& Line)
{
    FTarget->State.BackMode = Lookup(Line, Line.TakeWord(), BackModes);
}

void TCanvasScript::PenMode(TScriptLine& Line)
{
    FTarget->State.Mode = Lookup(Line, Line.TakeWord(), PenModes);
}

void TCanvasScript::FillMode(TScriptLine& Line)
{
    FTarget->State.FillMode = Lookup(Line, Line.TakeWord(), FillModes);
}

void TCanvasScript::MoveTo(TScriptLine& Line)
{
    FTarget->Position = Line.TakePoint();
}

void TCanvasScript::LineTo(TScriptLine& Line)
{
    const std::array Points{FTarget->Position, Line.TakePoint()};
    ChargePoints(Line, Points);
    FTarget->Painter.Polyline(FTarget->State, Points);
    FTarget->Position = Points[1];
}

void TCanvasScript::Polyline(TScriptLine& Line)
{
    const std::vector<TPoint> Points = Line.TakePoints();
    ChargePoints(Line, Points);
    FTarget->Painter.Polyline(FTarget->State, Points);
}

void TCanvasScript::Polygon(TScriptLine& Line)
{
    const std::vector<TPoint> Points = Line.TakePoints();
    ChargePoints(Line, Points);
    FTarget->Painter.Polygon(FTarget->State, Points);
}

void TCanvasScript::Rectangle(TScriptLine& Line)
{
    FTarget->Painter.Rectangle(FTarget->State, TakeFigure(Line));
}

void TCanvasScript::Ellipse(TScriptLine& Line)
{
    FTarget->Painter.Ellipse(FTarget->State, TakeFigure(Line));
}

void TCanvasScript::RoundRect(TScriptLine& Line)
{
    const TRect Rect = TakeFigure(Line);
    const TPoint Corner = Line.TakePoint();
    FTarget->Painter.RoundRect(FTarget->State, Rect, {Corner.X, Corner.Y});
}

void TCanvasScript::Arc(TScriptLine& Line)
{
    const TRect Box = TakeFigure(Line);
    const TPoint From = Line.TakePoint();
    FTarget->Painter.Arc(FTarget->State, Box, From, Line.TakePoint());
}

void TCanvasScript::Pie(TScriptLine& Line)
{
    const TRect Box = TakeFigure(Line);
    const TPoint From = Line.TakePoint();
    FTarget->Painter.Pie(FTarget->State, Box, From, Line.TakePoint());
}

void TCanvasScript::Chord(TScriptLine& Line)
{
    const TRect Box = TakeFigure(Line);
    const TPoint From = Line.TakePoint();
    FTarget->Painter.Chord(FTarget->State, Box, From, Line.TakePoint());
}

void TCanvasScript::FillRect(TScriptLine& Line)
{
    FTarget->Painter.FillRect(FTarget->State, TakeFigure(Line));
}

void TCanvasScript::FrameRect(TScriptLine& Line)
{
    FTarget->Painter.FrameRect(FTarget->State, TakeFigure(Line));
}

void TCanvasScript::InvertRect(TScriptLine& Line)
{
    FTarget->Painter.InvertRect(TakeFigure(Line));
}

void TCanvasScript::FocusRect(TScriptLine& Line)
{
    FTarget->Painter.FocusRect(TakeFigure(Line));
}

void TCanvasScript::SetPixel(TScriptLine& Line)
{
    const TPoint Point = Line.TakePoint();
    FTarget->Painter.SetPixel(Point, Line.TakeColor());
}

void TCanvasScript::Edge(TScriptLine& Line)
{
    TRect Rect = TakeFigure(Line);
    const unsigned Rings = Lookup(Line, Line.TakeWord(), Edges);
    DrawEdge(FTarget->Painter, FResolve, Rect, Rings, LookupFlags(Line, Line.TakeWord(), EdgeFlags));
}

void TCanvasScript::FrameControl(TScriptLine& Line)
{
    const TRect Rect = TakeFigure(Line);
    const unsigned Type = Lookup(Line, Line.TakeWord(), ControlTypes);
    const unsigned State = LookupFlags(Line, Line.TakeWord(), ControlStates);
    DrawFrameControl(FTarget->Painter, FResolve, Rect, Type, State);
}

void TCanvasScript::BitBlt(TScriptLine& Line)
{
    const TPoint Place = Line.TakePoint();
    const TPoint Size = Line.TakePoint();
    const TSheet& Source = FindSheet(Line);
    const TPoint From = Line.TakePoint();
    if (Size.X < 0 || Size.Y < 0)
        Line.Fail("the size of a copy is negative");
    const TRect Target = SizedRect(Place, Size.X, Size.Y);
    Charge(Line, Target);
    FTarget->Painter.StretchCopy(Target, Source.Surface, SizedRect(From, Size.X, Size.Y));
}

void TCanvasScript::StretchBlt(TScriptLine& Line)
{
    const TPoint Place = Line.TakePoint();
    const TPoint Size = Line.TakePoint();
    const TSheet& Source = FindSheet(Line);
    const TPoint From = Line.TakePoint();
    const TPoint SourceSize = Line.TakePoint();
    const TRect Target = SizedRect(Place, Size.X, Size.Y);
    Charge(Line, Target);
    FTarget->Painter.StretchCopy(Target, Source.Surface, SizedRect(From, SourceSize.X, SourceSize.Y));
}

void TCanvasScript::ClipTo(TScriptLine& Line)
{
    FTarget->Clip = TRegion(OrderedRect(Line.TakeRect()));
    FTarget->ApplyClip();
}

void TCanvasScript::ClipAnd(TScriptLine& Line)
{
    const TRegion Rect(OrderedRect(Line.TakeRect()));
    if (FTarget->Clip)
        FTarget->Clip->Intersect(Rect);
    else
        FTarget->Clip = Rect;
    FTarget->ApplyClip();
}

void TCanvasScript::ClipNot(TScriptLine& Line)
{
    const TRect Rect = OrderedRect(Line.TakeRect());
    if (!FTarget->Clip)
        FTarget->Clip = TRegion(TRect{0, 0, FTarget->Surface.GetWidth(), FTarget->Surface.GetHeight()});
    Charge(Line, Rect);
    FTarget->Clip->Subtract(Rect);
    FTarget->ApplyClip();
}

void TCanvasScript::Unclip(TScriptLine&)
{
    FTarget->Clip.reset();
    FTarget->ApplyClip();
}

} // namespace vcl
