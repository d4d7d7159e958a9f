#include "vcl/qt/Snapshot.h"

#include <QApplication>
#include <QFile>
#include <QPainter>
#include <QWidget>

#include <cmath>

#include "vcl/forms/CustomForm.h"
#include "vcl/platform/Platform.h"
#include "vcl/platform/qt/QtConvert.h"
#include "vcl/platform/qt/QtWindow.h"
#include "vcl/platform/qt/QtWindowSystem.h"
#include "vcl/qt/Bridge.h"

namespace vcl
{

namespace
{

/// Shows the form of a control without it appearing, until the end of the block.
class TShownForm
{
public:
    explicit TShownForm(TWinControl& Control)
    {
        TCustomForm* const Form = GetParentForm(&Control);
        if (!Form || Form->GetParent() || Form->GetShowing())
            return;
        QWidget* const Window = static_cast<QWidget*>(Form->GetHandle()->NativeHandle());
        Window->setAttribute(Qt::WA_DontShowOnScreen);
        Form->SetVisible(true);
        FForm = Form;
    }

    ~TShownForm()
    {
        TCustomForm* const Form = FForm.Get();
        if (!Form)
            return;
        Form->SetVisible(false);
        if (Form->GetWindow())
            static_cast<QWidget*>(Form->GetWindow()->NativeHandle())
                ->setAttribute(Qt::WA_DontShowOnScreen, false);
    }

    TShownForm(const TShownForm&) = delete;
    TShownForm& operator=(const TShownForm&) = delete;

private:
    TWeak<TCustomForm> FForm;
};

/// All windows in a widget paint at another scale, until the end of the block.
class TOtherScale
{
public:
    TOtherScale(const QWidget& Widget, double Scale)
    {
        for (qt::TWindow* const Window : qt::WindowSystem().Windows()) {
            if (Window->Widget() == &Widget || Widget.isAncestorOf(Window->Widget()))
                FWindows.push_back(Window->Keep());
        }
        Set(Scale);
    }
    ~TOtherScale() { Set(0); }
    TOtherScale(const TOtherScale&) = delete;
    TOtherScale& operator=(const TOtherScale&) = delete;

private:
    void Set(double Scale)
    {
        for (const std::shared_ptr<qt::TWindow>& Window : FWindows)
            Window->SetScaleOverride(Scale);
    }

    std::vector<std::shared_ptr<qt::TWindow>> FWindows;
};

QImage Render(QWidget& Widget, double Scale)
{
    const QSize Size(static_cast<int>(std::lround(Widget.width() * Scale)),
                     static_cast<int>(std::lround(Widget.height() * Scale)));
    QImage Image(Size, QImage::Format_RGB32);
    Image.setDevicePixelRatio(Scale);
    Image.fill(Widget.palette().color(QPalette::Window));
    const TOtherScale Other(Widget, Scale);
    Widget.render(&Image, QPoint(0, 0), QRegion(), QWidget::DrawWindowBackground | QWidget::DrawChildren);
    return Image;
}

QImage SnapshotImage(TWinControl& Control, double Scale)
{
    const TShownForm Shown(Control);
    auto* const Widget = static_cast<QWidget*>(Control.GetHandle()->NativeHandle());
    QCoreApplication::sendPostedEvents();
    return Render(*Widget, Scale);
}

} // namespace

QImage PictureOf(QWidget* Widget, double Scale)
{
    Widget->ensurePolished();
    QCoreApplication::sendPostedEvents();
    QImage Image = Render(*Widget, Scale);
    Image.setDevicePixelRatio(1.0);
    return Image;
}

TDecodedImage Snapshot(TWinControl& Control, double Scale)
{
    const QImage Image = SnapshotImage(Control, Scale).convertToFormat(QImage::Format_ARGB32);
    TDecodedImage Result;
    Result.Width = Image.width();
    Result.Height = Image.height();
    for (int Y = 0; Y < Image.height(); ++Y) {
        const auto* Line = reinterpret_cast<const QRgb*>(Image.constScanLine(Y));
        Result.Pixels.insert(Result.Pixels.end(), Line, Line + Image.width());
    }
    return Result;
}

void SaveSnapshot(TWinControl& Control, const AnsiString& FileName, double Scale)
{
    QImage Image = SnapshotImage(Control, Scale);
    // The picture is as large as it says, whatever the screen it was made for.
    Image.setDevicePixelRatio(1.0);
    QFile File(qt::ToQt(FileName));
    if (!File.open(QIODevice::WriteOnly) || !Image.save(&File, "PNG"))
        throw EFCreateError("Cannot write \"" + FileName + "\": " + qt::FromQt(File.errorString()));
}

} // namespace vcl
