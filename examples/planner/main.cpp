#include <cstdio>
#include <cstdlib>
#include <exception>
#include <memory>
#include <stdexcept>

#include "planner/ChartFile.h"
#include "planner/ChartForm.h"
#include "planner/FormTexts.h"
#include "planner/Options.h"
#include "planner/PlannerForm.h"
#include "planner/State.h"
#include "vcl/forms/Application.h"
#include "vcl/forms/StandardClasses.h"
#include "vcl/platform/qt/QtPlatform.h"
#include "vcl/qt/Snapshot.h"

namespace
{

template <class TForm>
std::unique_ptr<TForm> MakeForm(const char* Name)
{
    vcl::RegisterStandardClasses();
    vcl::RegisterClass(TKSTimeView::StaticClass());
    vcl::RegisterClass(TKSTreeView::StaticClass());
    std::unique_ptr<TForm> Form(vcl::New<TForm>(nullptr));
    planner::ReadForm(*Form, Name);
    return Form;
}

bool WantsChart(const planner::TOptions& Options)
{
    if (Options.Files.empty() || !planner::IsChartFile(Options.Files.front()))
        return false;
    if (Options.Files.size() > 1)
        throw std::invalid_argument("a chart is shown alone: " + Options.Files.front());
    return true;
}

void TakePicture(const planner::TOptions& Options)
{
    // A picture shows what the command line says, whatever the last session left. A file that cannot be read
    // ends the program with its message instead of a dialog that nobody would see.
    vcl::Application().OnException = [](vcl::TObject*, const std::exception& Error) {
        throw std::runtime_error(Error.what());
    };
    if (WantsChart(Options)) {
        const auto Chart = MakeForm<planner::TChartForm>("chart");
        Chart->Start(Options);
        Chart->LoadFile(Options.Files.front());
        return vcl::SaveSnapshot(*Chart, Options.Screenshot, Options.Scale);
    }
    const auto Form = MakeForm<planner::TPlannerForm>("planner");
    planner::TCalendarSet().Load(Options.Files);
    Form->Start({}, Options);
    vcl::SaveSnapshot(*Form, Options.Screenshot, Options.Scale);
}

void RunChart(const planner::TOptions& Options)
{
    const auto Form = MakeForm<planner::TChartForm>("chart");
    vcl::Application().SetTitle("Chart");
    vcl::Application().SetMainForm(Form.get());
    Form->Start(Options);
    Form->OpenFile(Options.Files.front());
    vcl::Application().Run();
}

void Run(const planner::TOptions& Options)
{
    if (WantsChart(Options))
        return RunChart(Options);
    const auto Form = MakeForm<planner::TPlannerForm>("planner");
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
            vcl::qt::UseDarkLook();
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
