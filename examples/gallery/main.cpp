#include <cstdio>
#include <cstdlib>
#include <exception>
#include <memory>
#include <stdexcept>

#include "gallery/GalleryForm.h"
#include "gallery/Options.h"
#include "gallery/States.h"
#include "package/Package.h"
#include "vcl/forms/Application.h"
#include "vcl/forms/StandardClasses.h"
#include "vcl/platform/qt/QtPlatform.h"
#include "vcl/qt/Snapshot.h"

namespace
{

void PrintList()
{
    for (const gallery::TState& State : gallery::States())
        std::printf("%s %s\n", State.Page, State.Name);
}

/// The state that the command line names, or the first of its page. Throws std::invalid_argument.
const gallery::TState& ChosenState(const gallery::TOptions& Options)
{
    const std::string Page = Options.Page.empty() ? gallery::Pages().front() : Options.Page;
    const auto OnPage = gallery::StatesOf(Page);
    if (OnPage.empty())
        throw std::invalid_argument("there is no page " + Page + "; --list shows what there is");
    const gallery::TState* const State =
        Options.State.empty() ? OnPage.front() : gallery::FindState(Page, Options.State);
    if (!State)
        throw std::invalid_argument("page " + Page + " has no state " + Options.State +
                                    "; --list shows what there is");
    return *State;
}

std::unique_ptr<gallery::TGalleryForm> MakeForm(const gallery::TOptions& Options,
                                                const gallery::TState& State)
{
    vcl::RegisterStandardClasses();
    RegisterKSSuite();
    std::unique_ptr<gallery::TGalleryForm> Form(vcl::New<gallery::TGalleryForm>(nullptr));
    if (Options.Size)
        Form->SetClientSize(*Options.Size);
    Form->ShowState(State);
    return Form;
}

void TakePicture(const gallery::TOptions& Options, const gallery::TState& State)
{
    // An error ends the program with its message instead of a dialog that nobody would see.
    vcl::Application().OnException = [](vcl::TObject*, const std::exception& Error) {
        throw std::runtime_error(Error.what());
    };
    const auto Form = MakeForm(Options, State);
    Form->Show();
    vcl::Application().ProcessMessages();
    vcl::SaveSnapshot(*Form, Options.Screenshot, Options.Scale);
}

void Run(const gallery::TOptions& Options, const gallery::TState& State)
{
    const auto Form = MakeForm(Options, State);
    vcl::Application().SetTitle("Gallery");
    vcl::Application().SetMainForm(Form.get());
    vcl::Application().Run();
}

/// The toolkit ends the program when it finds no screen: say so first, and draw pictures without one.
void PrepareScreen(const gallery::TOptions& Options)
{
    if (!Options.Screenshot.empty())
        setenv("QT_QPA_PLATFORM", "offscreen", 0);
    else if (!std::getenv("DISPLAY") && !std::getenv("WAYLAND_DISPLAY") && !std::getenv("QT_QPA_PLATFORM"))
        throw std::runtime_error("there is no screen; --screenshot FILE.png needs none");
}

} // namespace

int main(int ArgumentCount, char** Arguments)
{
    try {
        const gallery::TOptions Options = gallery::ParseOptions({Arguments + 1, Arguments + ArgumentCount});
        if (Options.Help || Options.List) {
            if (Options.Help)
                std::fputs(gallery::UsageText, stdout);
            else
                PrintList();
            return 0;
        }
        const gallery::TState& State = ChosenState(Options);
        PrepareScreen(Options);
        vcl::qt::UseQt(ArgumentCount, Arguments);
        if (Options.Dark)
            vcl::qt::UseDarkLook();
        if (Options.Screenshot.empty())
            Run(Options, State);
        else
            TakePicture(Options, State);
        return 0;
    } catch (const std::exception& Error) {
        std::fprintf(stderr, "kssuite-gallery: %s\n", Error.what());
        return 1;
    }
}
