#include "vcl/platform/qt/QtTextEngine.h"

#include <QCoreApplication>
#include <QFontMetrics>
#include <QGuiApplication>
#include <QImage>
#include <QPainter>
#include <QThreadStorage>

#include <atomic>
#include <cmath>

#include "vcl/platform/qt/QtConvert.h"
#include "vcl/platform/qt/QtFont.h"

namespace vcl::qt
{

namespace
{

/// What a thread has cached, and for which generation of the system's fonts.
struct TThreadFonts {
    std::unique_ptr<TFontCache> Cache;
    int Generation = 0;
};

std::atomic<int> FontGeneration{1};

QThreadStorage<TThreadFonts*>& ThreadFonts()
{
    static QThreadStorage<TThreadFonts*> Storage;
    return Storage;
}

TFontCache& Fonts()
{
    QThreadStorage<TThreadFonts*>& Storage = ThreadFonts();
    if (!Storage.hasLocalData())
        Storage.setLocalData(new TThreadFonts);
    TThreadFonts& Mine = *Storage.localData();
    const int Generation = FontGeneration.load(std::memory_order_relaxed);
    if (!Mine.Cache || Mine.Generation != Generation) {
        Mine.Cache = std::make_unique<TFontCache>();
        Mine.Generation = Generation;
    }
    return *Mine.Cache;
}

bool HaveApplication()
{
    return qobject_cast<QGuiApplication*>(QCoreApplication::instance()) != nullptr;
}

struct TTextLine {
    double Offset;
    double Thickness;
    double Width;
};

/// A line along the baseline, Offset below it.
void DrawTextLine(const TTextRun& Run, const TGlyphTarget& Glyphs, const TPixelBuffer& Target,
                  std::span<const TRect> Clip, QPointF Baseline, const TTextLine& Line)
{
    if (Run.Font->Orientation == 0) {
        const int Top = static_cast<int>(std::lround(Baseline.y() + Line.Offset));
        Glyphs.Fill(Bounds(Run.Origin.X, Top, static_cast<int>(std::lround(Line.Width)),
                           static_cast<int>(Line.Thickness)));
        return;
    }
    QImage Image(reinterpret_cast<uchar*>(Target.Pixels), Target.Width, Target.Height,
                 static_cast<qsizetype>(Target.Stride) * 4, QImage::Format_RGB32);
    QRegion Region;
    for (const TRect& Rect : Clip)
        Region |= ToQt(Rect);
    QPainter Painter(&Image);
    Painter.setClipRegion(Region);
    Painter.setRenderHint(QPainter::Antialiasing);
    Painter.translate(Baseline);
    Painter.rotate(-Run.Font->Orientation / 10.0);
    Painter.fillRect(QRectF(0, Line.Offset, Line.Width, Line.Thickness), QColor::fromRgb(Run.Color));
}

} // namespace

TTextEngine::TTextEngine()
{
    qAddPostRoutine(ApplicationEnding);
}

void TTextEngine::ApplicationEnding()
{
    FontsChanged();
    if (ThreadFonts().hasLocalData())
        ThreadFonts().setLocalData(nullptr);
}

void TTextEngine::FontsChanged()
{
    FontGeneration.fetch_add(1, std::memory_order_relaxed);
}

TFontMetrics TTextEngine::Metrics(const TFontSpec& Font)
{
    return HaveApplication() ? Fonts().Get(Font, 1.0).Metrics() : FFixed.Metrics(Font);
}

int TTextEngine::TextWidth(const TFontSpec& Font, std::string_view Text)
{
    return HaveApplication() ? Fonts().Get(Font, 1.0).TextWidth(Text) : FFixed.TextWidth(Font, Text);
}

void TTextEngine::Extents(const TFontSpec& Font, std::string_view Text, std::vector<int>& Extents)
{
    if (HaveApplication())
        Fonts().Get(Font, 1.0).Extents(Text, Extents);
    else
        FFixed.Extents(Font, Text, Extents);
}

void TTextEngine::Draw(const TTextRun& Run, const TPixelBuffer& Target, std::span<const TRect> Clip)
{
    const TGlyphTarget Glyphs(Target, Clip, Run.Color);
    if (!Run.Font || Run.Text.empty() || Glyphs.IsEmpty())
        return;
    if (!HaveApplication()) {
        FFixed.Draw(Run, Target, Clip);
        return;
    }
    TScaledFont& Font = Fonts().Get(*Run.Font, Run.Scale);
    const double Width = Run.Width * Run.Scale;
    // The origin is the corner of the cell; the baseline lies an ascent below it, along the rotated cell.
    const double Radians = -Run.Font->Orientation / 10.0 * std::acos(-1.0) / 180;
    const double Ascent = std::round(Font.Ascent());
    const QPointF Baseline(Run.Origin.X - Ascent * std::sin(Radians),
                           Run.Origin.Y + Ascent * std::cos(Radians));
    Font.Draw(Glyphs, Run.Text, Baseline.x(), Baseline.y(), Width, Run.RightToLeft);
    if (Run.Font->Underline)
        DrawTextLine(Run, Glyphs, Target, Clip, Baseline,
                     {std::max(1.0, std::round(Font.UnderlineOffset())), Font.LineThickness(), Width});
    if (Run.Font->StrikeOut)
        DrawTextLine(Run, Glyphs, Target, Clip, Baseline,
                     {std::round(Font.StrikeOutOffset()), Font.LineThickness(), Width});
}

} // namespace vcl::qt
