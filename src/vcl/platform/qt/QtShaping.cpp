#include <QGlyphRun>
#include <QTextLayout>
#include <QTextOption>

#include <algorithm>
#include <cmath>

#include "vcl/platform/qt/QtFont.h"

namespace vcl::qt
{

namespace
{

/// When so many texts are known, those not used since the last such moment go.
constexpr std::size_t MaxRecentTexts = 4096;

/// A line for the layout: what would break it or stand for nothing becomes a blank.
QString OneLine(std::string_view Text)
{
    QString Result = QString::fromUtf8(Text.data(), static_cast<qsizetype>(Text.size()));
    for (QChar& Character : Result) {
        if (Character.unicode() < 0x20 || Character == QChar::LineSeparator ||
            Character == QChar::ParagraphSeparator)
            Character = QChar(' ');
    }
    return Result;
}

/// Advances in logical order add up to Width; inside a cluster the parts share it.
std::vector<double> LogicalExtents(const QString& Text, const QTextLine& Line, double Width)
{
    std::vector<double> Result;
    double Sum = 0;
    for (int Position = 0; Position < Text.size();) {
        const int Units = Text.at(Position).isHighSurrogate() && Position + 1 < Text.size() ? 2 : 1;
        for (int Unit = 0; Unit < Units; ++Unit) {
            int Leading = Position + Unit;
            int Trailing = Position + Unit;
            // Both edges belong to the character's own run, so a change of direction next to it does no harm.
            Sum += std::abs(Line.cursorToX(&Trailing, QTextLine::Trailing) -
                            Line.cursorToX(&Leading, QTextLine::Leading));
        }
        Result.push_back(Sum);
        Position += Units;
    }
    if (Result.empty())
        return Result;
    const double Fit = Sum > 0 ? Width / Sum : 0;
    for (double& Extent : Result)
        Extent *= Fit;
    Result.back() = Width;
    return Result;
}

} // namespace

const TShapedText& TScaledFont::Shape(std::string_view Text, bool RightToLeft)
{
    std::string Key(Text);
    Key.push_back(RightToLeft ? 'R' : 'L');
    if (const auto Found = FRecent.find(Key); Found != FRecent.end())
        return *Found->second;
    std::unique_ptr<TShapedText> Result;
    if (const auto Found = FOlder.find(Key); Found != FOlder.end())
        Result = std::move(Found->second);
    else
        Result = ShapeNow(Text, RightToLeft);
    if (FRecent.size() >= MaxRecentTexts) {
        FOlder = std::move(FRecent);
        FRecent.clear();
    }
    FOlder.erase(Key);
    return *(FRecent[std::move(Key)] = std::move(Result));
}

std::unique_ptr<TShapedText> TScaledFont::ShapeNow(std::string_view Text, bool RightToLeft)
{
    const QString Line = OneLine(Text);
    QTextOption Option;
    Option.setTextDirection(RightToLeft ? Qt::RightToLeft : Qt::LeftToRight);
    Option.setAlignment(Qt::AlignLeft | Qt::AlignAbsolute);
    Option.setWrapMode(QTextOption::NoWrap);
    Option.setFlags(QTextOption::IncludeTrailingSpaces);
    QTextLayout Layout(Line, FFont);
    Layout.setTextOption(Option);
    Layout.beginLayout();
    QTextLine Shaped = Layout.createLine();
    constexpr double NoLimit = 1 << 20;
    if (Shaped.isValid()) {
        Shaped.setLineWidth(NoLimit);
        Shaped.setPosition(QPointF(0, 0));
    }
    Layout.endLayout();

    auto Result = std::make_unique<TShapedText>();
    if (!Shaped.isValid())
        return Result;
    Result->Width = FWhole ? std::round(Shaped.horizontalAdvance()) : Shaped.horizontalAdvance();
    Result->Extents = LogicalExtents(Line, Shaped, Result->Width);
    const double Baseline = Shaped.ascent();
    for (const QGlyphRun& Run : Layout.glyphRuns()) {
        TGlyphFace& Face = FaceOf(Run.rawFont());
        const QList<quint32> Glyphs = Run.glyphIndexes();
        const QList<QPointF> Positions = Run.positions();
        for (qsizetype Index = 0; Index < Glyphs.size(); ++Index)
            Result->Glyphs.push_back({&Face, Glyphs[Index], static_cast<float>(Positions[Index].x()),
                                      static_cast<float>(Positions[Index].y() - Baseline)});
    }
    return Result;
}

} // namespace vcl::qt
