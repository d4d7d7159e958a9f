#include "vcl/qt/VectorInk.h"

#include <algorithm>

namespace vcl::qt
{

namespace
{

constexpr int Tile = 8;
// Where the lines of a tile lie.
constexpr int HatchRow = 3;
constexpr int HatchColumn = 4;

int TileStart(int Value)
{
    return Value >= 0 ? Value / Tile * Tile : -((-Value + Tile - 1) / Tile) * Tile;
}

/// Units of dash and gap in turn.
QList<qreal> DashesOf(TPenStyle Style)
{
    switch (Style) {
    case TPenStyle::psDash:
        return {18, 6};
    case TPenStyle::psDot:
        return {3, 3};
    case TPenStyle::psDashDot:
        return {9, 6, 3, 6};
    case TPenStyle::psDashDotDot:
        return {9, 3, 3, 3, 3, 3};
    default:
        return {};
    }
}

/// A slanted line one unit thick, whose middle is X at the area's top.
void AddSlope(QPainterPath& Path, const QRect& Area, double X, int Direction)
{
    constexpr double Half = 0.5;
    const double Top = Area.top();
    const double Bottom = Top + Area.height();
    const double End = X + Direction * Area.height();
    Path.addPolygon(QPolygonF({QPointF(X - Half, Top), QPointF(X + Half, Top), QPointF(End + Half, Bottom),
                               QPointF(End - Half, Bottom)}));
    Path.closeSubpath();
}

void AddSlopes(QPainterPath& Path, const QRect& Area, int Direction)
{
    // Falling lines go through the tiles' top left corners, rising ones through their bottom left corners.
    const int Shift = Direction > 0 ? Area.top() : -Area.top();
    const int First = TileStart(Area.left() - Area.height() - Tile) + Shift % Tile;
    for (int X = First; X < Area.left() + Area.width() + Area.height() + Tile; X += Tile)
        AddSlope(Path, Area, X, Direction);
}

} // namespace

std::optional<QColor> InkOnPaper(TPenMode Mode, std::uint32_t Color)
{
    if (Mode == TPenMode::pmNop)
        return {};
    // A mode's number is its truth table: bit 2 * pen + paper is the result. Paper is all ones.
    const auto Table = static_cast<unsigned>(Mode);
    const std::uint32_t WherePenIsOne = (Table & 8) != 0 ? Color : 0;
    const std::uint32_t WherePenIsZero = (Table & 2) != 0 ? ~Color : 0;
    return QColor::fromRgb((WherePenIsOne | WherePenIsZero) & 0xFFFFFF);
}

QPen PenOf(const TPenState& Pen, const QColor& Color)
{
    if (Pen.Width > 1)
        return QPen(Color, Pen.Width, Qt::SolidLine, Qt::RoundCap,
                    Pen.Style == TPenStyle::psInsideFrame ? Qt::MiterJoin : Qt::RoundJoin);
    QPen Result(Color, 1, Qt::SolidLine, Qt::FlatCap, Qt::MiterJoin);
    if (const QList<qreal> Dashes = DashesOf(Pen.Style); !Dashes.isEmpty())
        Result.setDashPattern(Dashes);
    return Result;
}

QPainterPath HatchOver(TBrushStyle Style, const QRect& Area)
{
    QPainterPath Path;
    Path.setFillRule(Qt::WindingFill);
    if (Style == TBrushStyle::bsHorizontal || Style == TBrushStyle::bsCross)
        for (int Y = TileStart(Area.top()) + HatchRow; Y <= Area.bottom(); Y += Tile)
            Path.addRect(Area.left(), Y, Area.width(), 1);
    if (Style == TBrushStyle::bsVertical || Style == TBrushStyle::bsCross)
        for (int X = TileStart(Area.left()) + HatchColumn; X <= Area.right(); X += Tile)
            Path.addRect(X, Area.top(), 1, Area.height());
    if (Style == TBrushStyle::bsFDiagonal || Style == TBrushStyle::bsDiagCross)
        AddSlopes(Path, Area, 1);
    if (Style == TBrushStyle::bsBDiagonal || Style == TBrushStyle::bsDiagCross)
        AddSlopes(Path, Area, -1);
    return Path;
}

QImage TileOf(const TDrawState& State)
{
    QImage Result(Tile, Tile, QImage::Format_RGB32);
    for (int Y = 0; Y < Tile; ++Y)
        for (int X = 0; X < Tile; ++X) {
            std::uint32_t Color = State.Brush.Pattern[static_cast<std::size_t>(Y * Tile + X)];
            if (State.Brush.Style == TBrushStyle::bsMono) {
                const bool IsBack =
                    (State.Brush.Mono[static_cast<std::size_t>(Y)] >> (Tile - 1 - X) & 1) != 0;
                Color = IsBack ? State.BackColor : State.TextColor;
            }
            Result.setPixel(X, Y, Color);
        }
    return Result;
}

} // namespace vcl::qt
