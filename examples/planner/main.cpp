#include <cstdio>
#include <cstdlib>
#include <exception>
#include <memory>
#include <stdexcept>

#include "planner/FormTexts.h"
#include "planner/Options.h"
#include "planner/PlannerForm.h"
#include "planner/State.h"
#include "vcl/forms/Application.h"
#include "vcl/forms/StandardClasses.h"
#include "vcl/platform/qt/QtPlatform.h"
#include "vcl/qt/DarkColors.h"
#include "vcl/qt/Snapshot.h"

namespace
{

std::unique_ptr<planner::TPlannerForm> MakeForm()
{
    vcl::RegisterStandardClasses();
    vcl::RegisterClass(TKSTimeView::StaticClass());
    std::unique_ptr<planner::TPlannerForm> Form(vcl::New<planner::TPlannerForm>(nullptr));
    planner::ReadForm(*Form, "planner");
    return Form;
}

void TakePicture(const planner::TOptions& Options)
{
    // A picture shows what the command line says, whatever the last session left. A file that cannot be read
    // ends the program with its message instead of a dialog that nobody would see.
    vcl::Application().OnException = [](vcl::TObject*, const std::exception& Error) {
        throw std::runtime_error(Error.what());
    };
    const auto Form = MakeForm();
    planner::TCalendarSet().Load(Options.Files);
    Form->Start({}, Options);
    vcl::SaveSnapshot(*Form, Options.Screenshot, Options.Scale);
}

void Run(const planner::TOptions& Options)
{
    const auto Form = MakeForm();
    Form->OnRemember = planner::SaveState;
    vcl::Application().SetTitle("Planner");
    vcl::Application().SetMainForm(Form.get());
    Form->Start(planner::LoadState(), Options);
    vcl::Application().Run();
}

bool HasScreen()
{
    return std::getenv("DISPLAY") || std::getenv("WAYLAND_DISPLAY") || std::getenv("QT_QPA_PLATFORM");
}

/// The toolkit ends the program when it finds no screen: say so first, and draw pictures without one.
void PrepareScreen(const planner::TOptions& Options)
{
    if (!Options.Screenshot.empty())
        setenv("QT_QPA_PLATFORM", "offscreen", 0);
    else if (!HasScreen())
        throw std::runtime_error("there is no screen; --screenshot FILE.png needs none");
}

} // namespace

int main(int ArgumentCount, char** Arguments)
{
    try {
        const planner::TOptions Options = planner::ParseOptions({Arguments + 1, Arguments + ArgumentCount});
        if (Options.Help) {
            std::fputs(planner::UsageText, stdout);
            return 0;
        }
        PrepareScreen(Options);
        vcl::qt::UseQt(ArgumentCount, Arguments);
        if (Options.Dark)
            vcl::qt::UseDarkColors();
        if (Options.Screenshot.empty())
            Run(Options);
        else
            TakePicture(Options);
        return 0;
    } catch (const std::exception& Error) {
        std::fprintf(stderr, "kssuite-planner: %s\n", Error.what());
        return 1;
    }
}
