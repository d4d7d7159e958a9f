#include "vcl/platform/qt/QtPlatform.h"

#include <QApplication>
#include <QPalette>

#include <utility>

#include "vcl/platform/qt/QtImageCodec.h"
#include "vcl/platform/qt/QtSystem.h"
#include "vcl/platform/qt/QtTextEngine.h"
#include "vcl/platform/qt/QtWindowSystem.h"

namespace vcl::qt
{

namespace
{

class TPlatform final : public IPlatform
{
public:
    TPlatform() : FWindows(FSystem) {}

    ITextEngine& Text() override { return FText; }
    ISystem& System() override { return FSystem; }
    IImageCodec& Images() override { return FImages; }
    IWindowSystem& Windows() override { return FWindows; }

    TSystem& QtSystem() { return FSystem; }
    TWindowSystem& QtWindows() { return FWindows; }

private:
    TTextEngine FText;
    TSystem FSystem;
    TImageCodec FImages;
    TWindowSystem FWindows;
};

/// Never destroyed: controls with static lifetime may outlive everything else, and still ask for metrics.
TPlatform& Instance()
{
    static TPlatform* const Platform = new TPlatform;
    return *Platform;
}

/// The application object keeps references to count and arguments, so they stay as long as it does. It is
/// never destroyed: no order of destruction at the end of the process would suit its plug-ins and us both.
void MakeApplication(int ArgumentCount, char** Arguments)
{
    static char Name[] = "vcl";
    static char* Own[] = {Name, nullptr};
    static int Count = 1;
    static char** Values = Own;
    if (ArgumentCount > 0) {
        Count = ArgumentCount;
        Values = Arguments;
    }
    new QApplication(Count, Values);
    QApplication::setQuitOnLastWindowClosed(false);
}

} // namespace

TWindowSystem& WindowSystem()
{
    return Instance().QtWindows();
}

IPlatform& UseQt(int ArgumentCount, char** Arguments)
{
    if (!QCoreApplication::instance())
        MakeApplication(ArgumentCount, Arguments);
    static bool LocaleApplied = false;
    if (!std::exchange(LocaleApplied, true))
        ApplyLocale();
    Instance().QtSystem().PaletteChanged();
    Instance().QtWindows().Attach();
    SetPlatform(&Instance());
    return Instance();
}

void UseDarkLook()
{
    const QColor Window(0x2D, 0x2F, 0x33);
    const QColor Text(0xE8, 0xE8, 0xE8);
    const QColor Faded(0x8C, 0x8E, 0x92);
    QPalette Palette(QColor(0x3A, 0x3D, 0x42), Window);
    for (const QPalette::ColorRole Role : {QPalette::WindowText, QPalette::Text, QPalette::ButtonText}) {
        Palette.setColor(QPalette::All, Role, Text);
        Palette.setColor(QPalette::Disabled, Role, Faded);
    }
    Palette.setColor(QPalette::All, QPalette::Base, QColor(0x1F, 0x21, 0x24));
    Palette.setColor(QPalette::All, QPalette::AlternateBase, QColor(0x26, 0x28, 0x2C));
    Palette.setColor(QPalette::All, QPalette::ToolTipBase, QColor(0x3F, 0x42, 0x48));
    Palette.setColor(QPalette::All, QPalette::ToolTipText, Text);
    Palette.setColor(QPalette::All, QPalette::PlaceholderText, Faded);
    Palette.setColor(QPalette::All, QPalette::Highlight, QColor(0x2F, 0x6F, 0xB5));
    Palette.setColor(QPalette::All, QPalette::HighlightedText, Qt::white);
    Palette.setColor(QPalette::All, QPalette::Link, QColor(0x6F, 0xB1, 0xF2));
    QApplication::setStyle(QStringLiteral("Fusion"));
    QApplication::setPalette(Palette);
    Instance().QtWindows().PaletteChanged();
}

void UseClassicLook(bool Classic)
{
    Instance().QtSystem().UseClassic(Classic);
    Instance().QtWindows().PaletteChanged();
}

} // namespace vcl::qt
