#include "vcl/qt/VectorFile.h"

#include <QFileInfo>
#include <QImage>
#include <QPdfWriter>
#include <QPrintDialog>
#include <QPrinter>
#include <QSaveFile>
#include <QSvgGenerator>

#include <algorithm>

#include "vcl/graphics/Canvas.h"
#include "vcl/graphics/RasterPainter.h"
#include "vcl/graphics/Surface.h"
#include "vcl/platform/Platform.h"
#include "vcl/platform/qt/QtConvert.h"
#include "vcl/qt/QtVectorPainter.h"

namespace vcl
{

namespace
{

constexpr int UnitsPerInch = 96;
constexpr double PointsPerUnit = 72.0 / UnitsPerInch;

[[noreturn]] void RaiseCannotWrite(const AnsiString& FileName, const QString& Reason)
{
    throw EFCreateError("Cannot write \"" + FileName + "\": " + qt::FromQt(Reason));
}

QString TitleOf(const AnsiString& FileName)
{
    return QFileInfo(qt::ToQt(FileName)).completeBaseName();
}

void CheckPage(TSize Page)
{
    if (Page.Width <= 0 || Page.Height <= 0)
        throw EInvalidOperation("A page must have a width and a height");
}

/// The file appears under its name only when everything in it was written.
template <class TWrite>
void WriteFile(const AnsiString& FileName, TSize Page, TWrite&& Write)
{
    CheckPage(Page);
    QSaveFile File(qt::ToQt(FileName));
    if (!File.open(QIODevice::WriteOnly) || !Write(File) || !File.commit())
        RaiseCannotWrite(FileName, File.errorString());
}

void DrawVectors(QPainter& Device, TSize Page, const TDrawing& Draw)
{
    qt::TVectorPainter Painter(Device, Page);
    TCanvas Canvas(&Painter);
    Draw(Canvas);
}

bool DrawOn(QPaintDevice& Device, TSize Page, const TDrawing& Draw)
{
    QPainter Painter;
    if (!Painter.begin(&Device))
        return false;
    DrawVectors(Painter, Page, Draw);
    return Painter.end();
}

TSize PaperOf(const QPrinter& Printer)
{
    const QRectF Inches = Printer.pageRect(QPrinter::Inch);
    return {static_cast<int>(Inches.width() * UnitsPerInch),
            static_cast<int>(Inches.height() * UnitsPerInch)};
}

/// Moves and scales the painter so that a page of units lies on the paper.
void FitPage(QPainter& Painter, const QPrinter& Printer, TSize Paper, TSize Page)
{
    const double DotsPerUnit = static_cast<double>(Printer.resolution()) / UnitsPerInch;
    const double Factor = std::min({1.0, static_cast<double>(Paper.Width) / Page.Width,
                                    static_cast<double>(Paper.Height) / Page.Height});
    Painter.scale(DotsPerUnit, DotsPerUnit);
    Painter.translate((Paper.Width - Page.Width * Factor) / 2, (Paper.Height - Page.Height * Factor) / 2);
    Painter.scale(Factor, Factor);
}

} // namespace

void SavePdf(const AnsiString& FileName, TSize Page, const TDrawing& Draw)
{
    WriteFile(FileName, Page, [&](QSaveFile& File) {
        QPdfWriter Writer(&File);
        Writer.setResolution(UnitsPerInch);
        Writer.setTitle(TitleOf(FileName));
        const QSizeF Points(Page.Width * PointsPerUnit, Page.Height * PointsPerUnit);
        Writer.setPageSize(QPageSize(Points, QPageSize::Point, {}, QPageSize::ExactMatch));
        Writer.setPageMargins(QMarginsF());
        return DrawOn(Writer, Page, Draw);
    });
}

void SaveSvg(const AnsiString& FileName, TSize Page, const TDrawing& Draw)
{
    WriteFile(FileName, Page, [&](QSaveFile& File) {
        QSvgGenerator Generator;
        Generator.setOutputDevice(&File);
        Generator.setResolution(UnitsPerInch);
        Generator.setTitle(TitleOf(FileName));
        Generator.setDescription({});
        Generator.setSize(QSize(Page.Width, Page.Height));
        Generator.setViewBox(QRect(0, 0, Page.Width, Page.Height));
        return DrawOn(Generator, Page, Draw);
    });
}

void SavePng(const AnsiString& FileName, TSize Page, const TDrawing& Draw, double Scale)
{
    WriteFile(FileName, Page, [&](QSaveFile& File) {
        TSurface Surface(Page.Width, Page.Height, Scale);
        TRasterPainter Painter(Surface, &Platform().Text());
        TCanvas Canvas(&Painter);
        Draw(Canvas);
        const TPixelBuffer Pixels = Surface.Buffer();
        const QImage Image(reinterpret_cast<const uchar*>(Pixels.Pixels), Pixels.Width, Pixels.Height,
                           static_cast<qsizetype>(Pixels.Stride) * 4, QImage::Format_RGB32);
        return Image.save(&File, "PNG");
    });
}

bool Print(TWinControl* Parent, const TPrintJob& Job)
{
    QPrinter Printer(QPrinter::HighResolution);
    Printer.setPageOrientation(QPageLayout::Landscape);
    Printer.setDocName(qt::ToQt(Job.Title));
    auto* const Over =
        Parent ? static_cast<QWidget*>(Parent->GetHandle()->NativeHandle())->window() : nullptr;
    QPrintDialog Dialog(&Printer, Over);
    Dialog.setOption(QAbstractPrintDialog::PrintPageRange);
    if (Dialog.exec() != QDialog::Accepted)
        return false;
    PrintPages(Printer, Job);
    return true;
}

void PrintPages(QPrinter& Printer, const TPrintJob& Job)
{
    const TSize Paper = PaperOf(Printer);
    CheckPage(Paper);
    const TPrintJob::TPages Pages = Job.Arrange(Paper);
    CheckPage(Pages.Size);
    const bool HasRange = Printer.printRange() == QPrinter::PageRange && Printer.fromPage() > 0;
    const int First = HasRange ? Printer.fromPage() - 1 : 0;
    const int End = HasRange ? std::min(Printer.toPage(), Pages.Count) : Pages.Count;
    QPainter Painter;
    if (First < End && !Painter.begin(&Printer))
        throw EInvalidOperation("Cannot print \"" + Job.Title + "\"");
    for (int Page = First; Page < End; ++Page) {
        if (Page > First)
            Printer.newPage();
        Painter.save();
        FitPage(Painter, Printer, Paper, Pages.Size);
        DrawVectors(Painter, Pages.Size, [&](TCanvas& Canvas) { Job.DrawPage(Canvas, Pages.Size, Page); });
        Painter.restore();
    }
}

} // namespace vcl
