#include "vcl/platform/qt/QtPlatform.h"

#include <QApplication>

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

void UseClassicLook(bool Classic)
{
    Instance().QtSystem().UseClassic(Classic);
    Instance().QtWindows().PaletteChanged();
}

} // namespace vcl::qt
