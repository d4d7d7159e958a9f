#include "vcl/qt/QtVectorPainter.h"

#include <QImage>

#include <algorithm>
#include <cmath>

#include "vcl/graphics/Surface.h"
#include "vcl/platform/Platform.h"
#include "vcl/platform/qt/QtConvert.h"
#include "vcl/platform/qt/QtFont.h"
#include "vcl/qt/VectorInk.h"

namespace vcl::qt
{

namespace
{

constexpr double HalfPixel = 0.5;

QPointF Centre(TPoint Point)
{
    return {Point.X + HalfPixel, Point.Y + HalfPixel};
}

bool IsThin(const TPenState& Pen)
{
    return Pen.Width <= 1;
}

QPointF StepTowards(TPoint From, TPoint To)
{
    const double X = To.X - static_cast<double>(From.X);
    const double Y = To.Y - static_cast<double>(From.Y);
    const double Length = std::hypot(X, Y);
    return Length > 0 ? QPointF(X, Y) * (HalfPixel / Length) : QPointF();
}

/// Degrees, counter-clockwise on the circle that the box's ellipse is a squeezed picture of.
double AngleOf(const QRectF& Box, TPoint Point)
{
    const QPointF Arm = Centre(Point) - Box.center();
    return std::atan2(-Arm.y() / std::max(Box.height(), 1e-9), Arm.x() / std::max(Box.width(), 1e-9)) * 180 /
           std::acos(-1.0);
}

/// The arc's start, and its length, above 0 and at most 360.
struct TArcAngles {
    TArcAngles(const QRectF& Box, TPoint From, TPoint To) : Start(AngleOf(Box, From))
    {
        Sweep = std::fmod(AngleOf(Box, To) - Start + 720, 360);
        if (Sweep == 0)
            Sweep = 360;
    }
    double Start;
    double Sweep;
};

QRectF Area(const TRect& Rect)
{
    return {static_cast<double>(Rect.Left), static_cast<double>(Rect.Top), static_cast<double>(Rect.Width()),
            static_cast<double>(Rect.Height())};
}

QImage PixelsOf(const TSurface& Source, const TRect& Rect, std::span<const std::uint8_t> Transparent)
{
    const TRect Device = IntersectionOf(Source.ToDevice(Rect), Source.DeviceBounds());
    QImage Picture(Device.Width(), Device.Height(),
                   Transparent.empty() ? QImage::Format_RGB32 : QImage::Format_ARGB32);
    for (int Y = 0; Y < Picture.height(); ++Y) {
        const int From = Y + Device.Top;
        const std::uint32_t* const Row = Source.Row(From) + Device.Left;
        auto* const Line = reinterpret_cast<QRgb*>(Picture.scanLine(Y));
        std::copy(Row, Row + Picture.width(), Line);
        for (int X = 0; X < Picture.width() && !Transparent.empty(); ++X) {
            const auto Index =
                static_cast<std::size_t>(From) * static_cast<std::size_t>(Source.GetDeviceWidth()) +
                static_cast<std::size_t>(X + Device.Left);
            if (Transparent[Index] != 0)
                Line[X] = 0;
        }
    }
    return Picture;
}

} // namespace

TVectorPainter::TVectorPainter(QPainter& Device, TSize Size) : FDevice(Device), FSize(Size)
{
    FDevice.setRenderHint(QPainter::Antialiasing);
}

void TVectorPainter::SetClip(const TRegion* Clip)
{
    FClip.reset();
    FClipPath = {};
    if (!Clip)
        return;
    FClip = *Clip;
    for (const TRect& Rect : Clip->GetRects())
        FClipPath.addRect(Area(Rect));
    if (Clip->GetRects().size() > 1)
        FClipPath = FClipPath.simplified();
}

TRect TVectorPainter::ClipBounds() const
{
    const TRect Page{0, 0, FSize.Width, FSize.Height};
    return FClip ? IntersectionOf(Page, FClip->GetBounds()) : Page;
}

bool TVectorPainter::IsInside(const QRectF& Rect) const
{
    return !FClip || FClip->Contains(FromQt(Rect.toAlignedRect()));
}

void TVectorPainter::FillPath(const QPainterPath& Path, const QColor& Color)
{
    FDevice.fillPath(IsInside(Path.boundingRect()) ? Path : Path.intersected(FClipPath), Color);
}

void TVectorPainter::FillWithTile(const QPainterPath& Path, const QImage& Tile)
{
    const QRect Bounds = Path.boundingRect().toAlignedRect() & ToQt(ClipBounds());
    if (Bounds.isEmpty())
        return;
    QImage Picture(Bounds.size(), QImage::Format_ARGB32_Premultiplied);
    Picture.fill(Qt::transparent);
    QPainter Painter(&Picture);
    Painter.translate(-Bounds.topLeft());
    Painter.setClipPath(FClip ? Path.intersected(FClipPath) : Path);
    Painter.fillRect(Bounds, QBrush(Tile));
    Painter.end();
    FDevice.drawImage(Bounds.topLeft(), Picture);
}

void TVectorPainter::FillWithBrush(const TDrawState& State, const QPainterPath& Path)
{
    switch (State.Brush.Style) {
    case TBrushStyle::bsClear:
        return;
    case TBrushStyle::bsSolid:
        if (const std::optional<QColor> Color = InkOnPaper(State.Mode, State.Brush.Color))
            FillPath(Path, *Color);
        return;
    case TBrushStyle::bsPattern:
    case TBrushStyle::bsMono:
        return FillWithTile(Path, TileOf(State));
    default:
        break;
    }
    if (State.BackMode == TBackgroundMode::bmOpaque)
        if (const std::optional<QColor> Color = InkOnPaper(State.Mode, State.BackColor))
            FillPath(Path, *Color);
    const QRect Bounds = Path.boundingRect().toAlignedRect() & ToQt(ClipBounds());
    if (const std::optional<QColor> Color = InkOnPaper(State.Mode, State.Brush.Color))
        FillPath(HatchOver(State.Brush.Style, Bounds).intersected(Path), *Color);
}

void TVectorPainter::StrokePath(const QPainterPath& Path, const QPen& Pen)
{
    const double Half = Pen.widthF() / 2;
    if (IsInside(Path.boundingRect().adjusted(-Half, -Half, Half, Half))) {
        FDevice.strokePath(Path, Pen);
        return;
    }
    FillPath(QPainterPathStroker(Pen).createStroke(Path), Pen.color());
}

void TVectorPainter::StrokeWithPen(const TDrawState& State, const QPainterPath& Path)
{
    const std::optional<QColor> Color = InkOnPaper(State.Mode, State.Pen.Color);
    if (!Color || State.Pen.Style == TPenStyle::psClear)
        return;
    const QPen Pen = PenOf(State.Pen, *Color);
    if (Pen.style() == Qt::CustomDashLine && State.BackMode == TBackgroundMode::bmOpaque)
        if (const std::optional<QColor> Gap = InkOnPaper(State.Mode, State.BackColor))
            StrokePath(Path, QPen(*Gap, Pen.widthF(), Qt::SolidLine, Qt::FlatCap, Qt::MiterJoin));
    StrokePath(Path, Pen);
}

void TVectorPainter::Figure(const TDrawState& State, const QPainterPath& Path)
{
    FillWithBrush(State, Path);
    StrokeWithPen(State, Path);
}

void TVectorPainter::Polyline(const TDrawState& State, std::span<const TPoint> Points)
{
    if (Points.size() < 2)
        return;
    QPainterPath Path(Centre(Points.front()));
    for (std::size_t Index = 1; Index < Points.size(); ++Index)
        Path.lineTo(Centre(Points[Index]));
    if (IsThin(State.Pen)) {
        // From the first pixel's outer edge to the last pixel's near edge: that one stays free.
        const auto Last = Path.elementCount() - 1;
        const QPointF First = Centre(Points[0]) - StepTowards(Points[0], Points[1]);
        const QPointF End = Centre(Points.back()) - StepTowards(Points[Points.size() - 2], Points.back());
        Path.setElementPositionAt(0, First.x(), First.y());
        Path.setElementPositionAt(Last, End.x(), End.y());
    }
    StrokeWithPen(State, Path);
}

void TVectorPainter::Polygon(const TDrawState& State, std::span<const TPoint> Points)
{
    if (Points.size() < 2)
        return;
    QPainterPath Path(Centre(Points.front()));
    Path.setFillRule(State.FillMode == TFillMode::fmAlternate ? Qt::OddEvenFill : Qt::WindingFill);
    for (const TPoint& Point : Points.subspan(1))
        Path.lineTo(Centre(Point));
    Path.closeSubpath();
    Figure(State, Path);
}

template <class TMake>
void TVectorPainter::BoxFigure(const TDrawState& State, const TRect& Rect, TMake&& Make)
{
    if (Rect.IsEmpty())
        return;
    double Inset = HalfPixel;
    if (State.Pen.Style == TPenStyle::psInsideFrame && !IsThin(State.Pen))
        Inset = State.Pen.Width / 2.0;
    QRectF Box = Area(Rect).adjusted(Inset, Inset, -Inset, -Inset);
    // Without a pen the figure ends before the last row and column, which the outline would have taken.
    if (State.Pen.Style == TPenStyle::psClear)
        Box = Area(Rect).adjusted(0, 0, -1, -1);
    QPainterPath Path;
    Make(Path, Box);
    Figure(State, Path);
}

void TVectorPainter::Rectangle(const TDrawState& State, const TRect& Rect)
{
    BoxFigure(State, Rect, [](QPainterPath& Path, const QRectF& Box) { Path.addRect(Box); });
}

void TVectorPainter::RoundRect(const TDrawState& State, const TRect& Rect, TSize Corner)
{
    BoxFigure(State, Rect, [Corner](QPainterPath& Path, const QRectF& Box) {
        Path.addRoundedRect(Box, std::abs(Corner.Width) / 2.0, std::abs(Corner.Height) / 2.0);
    });
}

void TVectorPainter::Ellipse(const TDrawState& State, const TRect& Rect)
{
    BoxFigure(State, Rect, [](QPainterPath& Path, const QRectF& Box) { Path.addEllipse(Box); });
}

void TVectorPainter::Arc(const TDrawState& State, const TRect& Box, TPoint From, TPoint To)
{
    TDrawState Line = State;
    Line.Brush.Style = TBrushStyle::bsClear;
    BoxFigure(Line, Box, [From, To](QPainterPath& Path, const QRectF& Inner) {
        const TArcAngles Angles(Inner, From, To);
        Path.arcMoveTo(Inner, Angles.Start);
        Path.arcTo(Inner, Angles.Start, Angles.Sweep);
    });
}

void TVectorPainter::Pie(const TDrawState& State, const TRect& Box, TPoint From, TPoint To)
{
    BoxFigure(State, Box, [From, To](QPainterPath& Path, const QRectF& Inner) {
        const TArcAngles Angles(Inner, From, To);
        Path.moveTo(Inner.center());
        Path.arcTo(Inner, Angles.Start, Angles.Sweep);
        Path.closeSubpath();
    });
}

void TVectorPainter::Chord(const TDrawState& State, const TRect& Box, TPoint From, TPoint To)
{
    BoxFigure(State, Box, [From, To](QPainterPath& Path, const QRectF& Inner) {
        const TArcAngles Angles(Inner, From, To);
        Path.arcMoveTo(Inner, Angles.Start);
        Path.arcTo(Inner, Angles.Start, Angles.Sweep);
        Path.closeSubpath();
    });
}

void TVectorPainter::FillRect(const TDrawState& State, const TRect& Rect)
{
    if (Rect.IsEmpty())
        return;
    QPainterPath Path;
    Path.addRect(Area(Rect));
    FillWithBrush(State, Path);
}

void TVectorPainter::FrameRect(const TDrawState& State, const TRect& Rect)
{
    if (Rect.IsEmpty())
        return;
    QPainterPath Path;
    Path.addRect(Area(Rect));
    if (Rect.Width() > 2 && Rect.Height() > 2)
        Path.addRect(Area(Rect).adjusted(1, 1, -1, -1));
    FillWithBrush(State, Path);
}

void TVectorPainter::InvertRect(const TRect& Rect)
{
    if (Rect.IsEmpty())
        return;
    QPainterPath Path;
    Path.addRect(Area(Rect));
    FillPath(Path, QColor(0, 0, 0, 128));
}

void TVectorPainter::FocusRect(const TRect& Rect)
{
    if (Rect.IsEmpty())
        return;
    QPainterPath Path;
    Path.addRect(Area(Rect).adjusted(HalfPixel, HalfPixel, -HalfPixel, -HalfPixel));
    QPen Pen(Qt::black, 1, Qt::CustomDashLine, Qt::FlatCap, Qt::MiterJoin);
    Pen.setDashPattern({1, 1});
    StrokePath(Path, Pen);
}

void TVectorPainter::SetPixel(TPoint Point, std::uint32_t Color)
{
    QPainterPath Path;
    Path.addRect(Point.X, Point.Y, 1, 1);
    FillPath(Path, QColor::fromRgb(Color));
}

void TVectorPainter::DrawPicture(const TRect& Target, QImage Picture)
{
    QRectF Place = Area(Target);
    if (Picture.isNull() || Place.width() == 0 || Place.height() == 0)
        return;
    Picture = Picture.mirrored(Place.width() < 0, Place.height() < 0);
    Place = Place.normalized();
    if (IsInside(Place)) {
        FDevice.drawImage(Place, Picture);
        return;
    }
    const TRect Whole = FromQt(Place.toRect());
    for (const TRect& Rect : FClip->GetRects()) {
        const TRect Part = IntersectionOf(IntersectionOf(Rect, Whole), ClipBounds());
        if (Part.IsEmpty())
            continue;
        // Whole pixels of the picture around the part, at the place they have in the whole.
        const double X = Picture.width() / Place.width();
        const double Y = Picture.height() / Place.height();
        const QRect Cut = QRectF((Part.Left - Place.left()) * X, (Part.Top - Place.top()) * Y,
                                 Part.Width() * X, Part.Height() * Y)
                              .toAlignedRect() &
                          Picture.rect();
        FDevice.drawImage(Area(Part), Picture.copy(Cut));
    }
}

void TVectorPainter::StretchCopy(const TRect& Target, const TSurface& Source, const TRect& SourceRect)
{
    DrawPicture(Target, PixelsOf(Source, SourceRect, {}));
}

void TVectorPainter::MaskedCopy(const TRect& Target, const TSurface& Source, const TRect& SourceRect,
                                std::span<const std::uint8_t> Transparent)
{
    DrawPicture(Target, PixelsOf(Source, SourceRect, Transparent));
}

void TVectorPainter::DrawWords(const QFont& Font, const QColor& Color, QPointF Baseline, double Angle,
                               const QString& Words, bool RightToLeft, const QRectF& Cell)
{
    const QTransform Turn = QTransform().translate(Baseline.x(), Baseline.y()).rotate(Angle);
    // Glyphs may reach out of their cell a little without being cut by a clip region that holds the cell.
    if (!IsInside(Cell)) {
        QPainterPath Path;
        Path.addText({}, Font, Words);
        FillPath(Turn.map(Path), Color);
        return;
    }
    FDevice.save();
    FDevice.setTransform(Turn, true);
    FDevice.setFont(Font);
    FDevice.setPen(Color);
    FDevice.setLayoutDirection(RightToLeft ? Qt::RightToLeft : Qt::LeftToRight);
    FDevice.drawText(QPointF(), Words);
    FDevice.restore();
}

void TVectorPainter::Text(const TDrawState& State, const TFontSpec& Font, TPoint Origin,
                          std::string_view Text, bool RightToLeft)
{
    if (Text.empty())
        return;
    ITextEngine& Engine = Platform().Text();
    const TFontMetrics Metrics = Engine.Metrics(Font);
    const double Angle = -Font.Orientation / 10.0;
    const QTransform Turn = QTransform().translate(Origin.X, Origin.Y).rotate(Angle);
    QPainterPath Cell;
    Cell.addRect(0, 0, Engine.TextWidth(Font, Text), Metrics.Height);
    Cell = Turn.map(Cell);
    if (FClip && !FClip->Intersects(FromQt(Cell.boundingRect().toAlignedRect())))
        return;
    if (State.BackMode == TBackgroundMode::bmOpaque)
        FillPath(Cell, QColor::fromRgb(State.BackColor));
    QFont Face = ToQtFont(Font);
    Face.setHintingPreference(QFont::PreferNoHinting);
    DrawWords(Face, QColor::fromRgb(State.TextColor), Turn.map(QPointF(0, Metrics.Ascent)), Angle,
              ToQt(AnsiString(Text)), RightToLeft, Cell.boundingRect());
}

} // namespace vcl::qt
