#include "vcl/platform/qt/QtSystem.h"

#include <QApplication>
#include <QFontInfo>
#include <QScreen>
#include <QStyle>
#include <QStyleHints>

#include <algorithm>

#include "vcl/platform/qt/QtConvert.h"

namespace vcl::qt
{

namespace
{

/// Share of To in percent.
QColor Blend(const QColor& From, const QColor& To, int Percent)
{
    const auto Channel = [Percent](int Left, int Right) { return Left + (Right - Left) * Percent / 100; };
    return QColor(Channel(From.red(), To.red()), Channel(From.green(), To.green()),
                  Channel(From.blue(), To.blue()));
}

bool IsDark(const QColor& Color)
{
    return qGray(Color.rgb()) < 128;
}

struct TEdges {
    QColor Highlight;
    QColor Light;
    QColor Shadow;
    QColor DarkShadow;
};

/// Shadow is also the colour of thin lines on faces and windows, so it must stand out from both. On a dark
/// palette that means lighter.
TEdges EdgesOf(const QColor& Face, const QColor& Text)
{
    if (IsDark(Face))
        return {Blend(Face, Text, 20), Blend(Face, Text, 10), Blend(Face, Text, 34),
                Blend(Face, Qt::black, 60)};
    return {Blend(Face, Qt::white, 90), Blend(Face, Qt::white, 40), Blend(Face, Qt::black, 34),
            Blend(Face, Qt::black, 60)};
}

bool HaveApplication()
{
    return qobject_cast<QApplication*>(QCoreApplication::instance()) != nullptr;
}

int StyleMetric(QStyle::PixelMetric Metric)
{
    return QApplication::style()->pixelMetric(Metric);
}

} // namespace

std::array<TColor, SystemColorCount> SystemColorsOf(const QPalette& Palette)
{
    const auto Role = [&Palette](QPalette::ColorRole Of) { return Palette.color(QPalette::Active, Of); };
    const auto Faded = [&Palette](QPalette::ColorRole Of) { return Palette.color(QPalette::Disabled, Of); };
    const QColor Face = Role(QPalette::Window);
    const QColor Text = Role(QPalette::WindowText);
    const TEdges Edges = EdgesOf(Face, Text);
    const std::array<QColor, SystemColorCount> Colors = {
        Blend(Face, Text, 8),            // clScrollBar
        Edges.Shadow,                    // clBackground
        Role(QPalette::Highlight),       // clActiveCaption
        Edges.Shadow,                    // clInactiveCaption
        Face,                            // clMenu
        Role(QPalette::Base),            // clWindow
        Text,                            // clWindowFrame
        Text,                            // clMenuText
        Role(QPalette::Text),            // clWindowText
        Role(QPalette::HighlightedText), // clCaptionText
        Face,                            // clActiveBorder
        Face,                            // clInactiveBorder
        Edges.Shadow,                    // clAppWorkSpace
        Role(QPalette::Highlight),       // clHighlight
        Role(QPalette::HighlightedText), // clHighlightText
        Face,                            // clBtnFace
        Edges.Shadow,                    // clBtnShadow
        Faded(QPalette::WindowText),     // clGrayText
        Text,                            // clBtnText
        Face,                            // clInactiveCaptionText
        Edges.Highlight,                 // clBtnHighlight
        Edges.DarkShadow,                // cl3DDkShadow
        Edges.Light,                     // cl3DLight
        Role(QPalette::ToolTipText),     // clInfoText
        Role(QPalette::ToolTipBase),     // clInfoBk
    };
    std::array<TColor, SystemColorCount> Result{};
    std::transform(Colors.begin(), Colors.end(), Result.begin(),
                   [](const QColor& Color) { return FromQt(Color); });
    return Result;
}

TSystem::TSystem() : FColors(ClassicSystemColors())
{
    PaletteChanged();
}

void TSystem::PaletteChanged()
{
    if (!HaveApplication())
        return;
    const std::array<TColor, SystemColorCount> Colors = SystemColorsOf(QApplication::palette());
    const std::lock_guard Lock(FMutex);
    FColors = Colors;
}

TColor TSystem::SystemColor(int Index)
{
    if (FUseClassic)
        return FClassic.SystemColor(Index);
    const std::lock_guard Lock(FMutex);
    return Index >= 0 && Index < SystemColorCount ? FColors[static_cast<std::size_t>(Index)] : clBlack;
}

int TSystem::Metric(TSystemMetric Metric)
{
    if (FUseClassic || !HaveApplication())
        return FClassic.Metric(Metric);
    const QScreen* Screen = QGuiApplication::primaryScreen();
    switch (Metric) {
    case TSystemMetric::VScrollBarWidth:
    case TSystemMetric::HScrollBarHeight:
        return StyleMetric(QStyle::PM_ScrollBarExtent);
    case TSystemMetric::DragThreshold:
        return QApplication::startDragDistance();
    case TSystemMetric::DoubleClickTime:
        return QApplication::doubleClickInterval();
    case TSystemMetric::CaretBlinkTime:
        return QApplication::cursorFlashTime() / 2;
    case TSystemMetric::WheelScrollLines:
        return QApplication::wheelScrollLines();
    case TSystemMetric::ScreenWidth:
        return Screen ? Screen->size().width() : FClassic.Metric(Metric);
    case TSystemMetric::ScreenHeight:
        return Screen ? Screen->size().height() : FClassic.Metric(Metric);
    default:
        return FClassic.Metric(Metric);
    }
}

AnsiString TSystem::DefaultFontName()
{
    if (FUseClassic || !HaveApplication())
        return FClassic.DefaultFontName();
    return FromQt(QFontInfo(QApplication::font()).family());
}

int TSystem::DefaultFontHeight()
{
    if (FUseClassic || !HaveApplication())
        return FClassic.DefaultFontHeight();
    return -QFontInfo(QApplication::font()).pixelSize();
}

} // namespace vcl::qt
