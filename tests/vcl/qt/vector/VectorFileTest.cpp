#include "vcl/qt/VectorFile.h"

#include <QFile>
#include <QImage>
#include <QPainter>
#include <QPrinter>
#include <QSvgRenderer>
#include <QTemporaryDir>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "vcl/graphics/Bitmap.h"
#include "vcl/graphics/Canvas.h"
#include "vcl/platform/qt/QtConvert.h"
#include "vcl/platform/qt/QtPlatform.h"

namespace vcl::tests
{

namespace
{

using ::testing::HasSubstr;
using ::testing::StartsWith;

constexpr QRgb White = 0xFFFFFFFF;
constexpr QRgb Red = 0xFFFF0000;
constexpr QRgb Blue = 0xFF0000FF;

class TVectorFileTest : public ::testing::Test
{
protected:
    TVectorFileTest() { qt::UseQt(); }

    AnsiString Path(const char* Name) const { return qt::FromQt(FFolder.filePath(QString::fromUtf8(Name))); }

    AnsiString Contents(const char* Name) const
    {
        QFile File(qt::ToQt(Path(Name)));
        EXPECT_TRUE(File.open(QIODevice::ReadOnly)) << Name;
        return File.readAll().toStdString();
    }

    /// The picture that another program makes of an SVG file with this drawing, 60 x 40 pixels.
    QImage Picture(const TDrawing& Draw) const
    {
        SaveSvg(Path("picture.svg"), {60, 40}, Draw);
        QSvgRenderer Renderer(qt::ToQt(Path("picture.svg")));
        EXPECT_TRUE(Renderer.isValid());
        EXPECT_EQ(Renderer.viewBox(), QRect(0, 0, 60, 40));
        QImage Image(60, 40, QImage::Format_RGB32);
        Image.fill(White);
        QPainter Painter(&Image);
        Renderer.render(&Painter, QRectF(0, 0, 60, 40));
        return Image;
    }

    void ExpectNothingIn() const { EXPECT_TRUE(QDir(FFolder.path()).isEmpty()); }

    QTemporaryDir FFolder;
};

void FillRed(TCanvas& Canvas)
{
    Canvas.GetBrush()->SetColor(clRed);
    Canvas.FillRect({10, 10, 20, 20});
}

/// The rectangle that holds all pixels of a colour.
QRect Extent(const QImage& Image, QRgb Color)
{
    QRect Result;
    for (int Y = 0; Y < Image.height(); ++Y)
        for (int X = 0; X < Image.width(); ++X)
            if (Image.pixel(X, Y) == Color)
                Result |= QRect(X, Y, 1, 1);
    return Result;
}

} // namespace

TEST_F(TVectorFileTest, AnSvgFileHoldsTextAsText)
{
    SaveSvg(Path("a.svg"), {200, 100}, [](TCanvas& Canvas) {
        Canvas.GetBrush()->SetStyle(TBrushStyle::bsClear);
        Canvas.GetFont()->SetHeight(-14);
        Canvas.TextOut(10, 20, "Box & office");
    });
    const AnsiString Text = Contents("a.svg");
    EXPECT_THAT(Text, HasSubstr("viewBox=\"0 0 200 100\""));
    EXPECT_THAT(Text, HasSubstr("Box &amp; office"));
    EXPECT_THAT(Text, HasSubstr("font-size=\"14\""));
}

TEST_F(TVectorFileTest, FilledRectanglesLeaveOutTheirRightAndBottomEdge)
{
    const QImage Image = Picture(FillRed);
    EXPECT_EQ(Extent(Image, Red), QRect(10, 10, 10, 10));
    EXPECT_EQ(Image.pixel(9, 10), White);
    EXPECT_EQ(Image.pixel(20, 19), White);
}

TEST_F(TVectorFileTest, OutlinesCoverTheBorderPixelsOfTheirRectangle)
{
    const QImage Image = Picture([](TCanvas& Canvas) {
        Canvas.GetPen()->SetColor(clBlue);
        Canvas.GetBrush()->SetColor(clRed);
        Canvas.Rectangle(10, 10, 20, 20);
    });
    EXPECT_EQ(Extent(Image, Blue), QRect(10, 10, 10, 10));
    EXPECT_EQ(Extent(Image, Red), QRect(11, 11, 8, 8));
}

TEST_F(TVectorFileTest, ThinLinesLeaveOutTheirLastPixel)
{
    const QImage Image = Picture([](TCanvas& Canvas) {
        Canvas.GetPen()->SetColor(clBlue);
        Canvas.MoveTo(5, 8);
        Canvas.LineTo(15, 8);
        Canvas.GetPen()->SetColor(clRed);
        Canvas.MoveTo(30, 30);
        Canvas.LineTo(30, 20);
    });
    EXPECT_EQ(Extent(Image, Blue), QRect(5, 8, 10, 1));
    EXPECT_EQ(Extent(Image, Red), QRect(30, 21, 1, 10));
}

TEST_F(TVectorFileTest, AClipRegionCutsAreasLinesAndPictures)
{
    TBitmap Bitmap(20, 20);
    Bitmap.GetCanvas()->GetBrush()->SetColor(clBlue);
    Bitmap.GetCanvas()->FillRect({0, 0, 20, 20});
    const QImage Image = Picture([&Bitmap](TCanvas& Canvas) {
        Canvas.IntersectClipRect({14, 12, 40, 16});
        FillRed(Canvas);
        Canvas.GetPen()->SetColor(clLime);
        Canvas.MoveTo(0, 13);
        Canvas.LineTo(60, 13);
        Canvas.Draw(30, 0, &Bitmap);
    });
    EXPECT_EQ(Extent(Image, Red), QRect(14, 12, 6, 4));
    EXPECT_EQ(Extent(Image, 0xFF00FF00), QRect(14, 13, 16, 1));
    EXPECT_EQ(Extent(Image, Blue), QRect(30, 12, 10, 4));
}

TEST_F(TVectorFileTest, TextThatAClipRegionHidesIsNotInTheFile)
{
    SaveSvg(Path("a.svg"), {200, 100}, [](TCanvas& Canvas) {
        Canvas.IntersectClipRect({0, 0, 200, 50});
        Canvas.TextOut(10, 10, "Seen");
        Canvas.TextOut(10, 60, "Hidden");
    });
    EXPECT_THAT(Contents("a.svg"), HasSubstr("Seen"));
    EXPECT_THAT(Contents("a.svg"), Not(HasSubstr("Hidden")));
}

TEST_F(TVectorFileTest, RasterOperationsSeeWhitePaper)
{
    const QImage Image = Picture([](TCanvas& Canvas) {
        Canvas.GetPen()->SetMode(TPenMode::pmXor);
        Canvas.GetPen()->SetColor(clYellow); // white without blue
        Canvas.MoveTo(0, 5);
        Canvas.LineTo(10, 5);
        Canvas.GetPen()->SetMode(TPenMode::pmNop);
        Canvas.MoveTo(0, 15);
        Canvas.LineTo(10, 15);
    });
    EXPECT_EQ(Extent(Image, Blue), QRect(0, 5, 10, 1));
    EXPECT_EQ(Image.pixel(5, 15), White);
}

TEST_F(TVectorFileTest, HatchesLieWhereTheScreenHasThem)
{
    const QImage Image = Picture([](TCanvas& Canvas) {
        Canvas.GetBrush()->SetColor(clRed);
        Canvas.GetBrush()->SetStyle(TBrushStyle::bsCross);
        Canvas.FillRect({0, 0, 16, 16});
    });
    for (const int Line : {0, 8}) {
        EXPECT_EQ(Image.pixel(0, Line + 3), Red);
        EXPECT_EQ(Image.pixel(Line + 4, 0), Red);
    }
    EXPECT_EQ(Image.pixel(0, 4), White);
}

TEST_F(TVectorFileTest, APdfDocumentHasOnePageOfTheSizeAskedFor)
{
    SavePdf(Path("a.pdf"), {960, 480}, FillRed);
    const AnsiString Text = Contents("a.pdf");
    EXPECT_THAT(Text, StartsWith("%PDF-"));
    EXPECT_THAT(Text, HasSubstr("%%EOF"));
    // Points: 72 to the inch of 96 units.
    EXPECT_THAT(Text, HasSubstr("/MediaBox [0 0 720"));
    EXPECT_THAT(Text, HasSubstr("/Count 1"));
}

TEST_F(TVectorFileTest, APngFileHasThePixelsOfItsScale)
{
    SavePng(Path("a.png"), {60, 40}, FillRed, 2.0);
    const QImage Image(qt::ToQt(Path("a.png")));
    EXPECT_EQ(Image.size(), QSize(120, 80));
    EXPECT_EQ(Extent(Image, Red), QRect(20, 20, 20, 20));
}

TEST_F(TVectorFileTest, AFileThatCannotBeWrittenIsNamedInTheError)
{
    for (const auto& Save : {SavePdf, SaveSvg}) {
        try {
            Save(Path("none/a.out"), {60, 40}, FillRed);
            FAIL() << "nothing was raised";
        } catch (const EFCreateError& Error) {
            EXPECT_THAT(Error.what(), HasSubstr(Path("none/a.out")));
        }
    }
    EXPECT_THROW(SavePng(Path("none/a.png"), {60, 40}, FillRed), EFCreateError);
    ExpectNothingIn();
}

TEST_F(TVectorFileTest, ADrawingThatFailsLeavesNoFileAndAnOldOneAsItWas)
{
    const auto Fail = [](TCanvas& Canvas) {
        FillRed(Canvas);
        throw EInvalidOperation("no more");
    };
    for (const auto& Save : {SavePdf, SaveSvg})
        EXPECT_THROW(Save(Path("a.out"), {60, 40}, Fail), EInvalidOperation);
    EXPECT_THROW(SavePng(Path("a.out"), {60, 40}, Fail), EInvalidOperation);
    EXPECT_THROW(SaveSvg(Path("a.out"), {0, 40}, FillRed), EInvalidOperation);
    ExpectNothingIn();
    SaveSvg(Path("a.svg"), {60, 40}, FillRed);
    const AnsiString Before = Contents("a.svg");
    EXPECT_THROW(SaveSvg(Path("a.svg"), {60, 40}, Fail), EInvalidOperation);
    EXPECT_EQ(Contents("a.svg"), Before);
}

TEST_F(TVectorFileTest, APrintJobDrawsThePagesOfTheRange)
{
    QPrinter Printer(QPrinter::HighResolution);
    Printer.setOutputFormat(QPrinter::PdfFormat);
    Printer.setOutputFileName(qt::ToQt(Path("job.pdf")));
    Printer.setPageSize(QPageSize(QPageSize::A4));
    Printer.setPrintRange(QPrinter::PageRange);
    Printer.setFromTo(2, 3);
    std::vector<int> Drawn;
    TPrintJob Job;
    Job.Arrange = [](TSize Paper) {
        // A4 is 793 x 1122 units, less its margins.
        EXPECT_GT(Paper.Width, 600);
        EXPECT_LE(Paper.Width, 794);
        return TPrintJob::TPages{{Paper.Width * 2, Paper.Height * 2}, 5};
    };
    Job.DrawPage = [&Drawn](TCanvas& Canvas, TSize, int Page) {
        FillRed(Canvas);
        Drawn.push_back(Page);
    };
    PrintPages(Printer, Job);
    EXPECT_EQ(Drawn, (std::vector<int>{1, 2}));
    EXPECT_THAT(Contents("job.pdf"), HasSubstr("/Count 2"));
}

} // namespace vcl::tests
