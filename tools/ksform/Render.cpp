#include <cstdio>
#include <cstdlib>
#include <filesystem>
#include <memory>
#include <optional>

#include "ksform/Files.h"
#include "ksform/Options.h"
#include "ksform/Placeholder.h"
#include "ksform/Verbs.h"
#include "vcl/forms/Form.h"
#include "vcl/platform/qt/QtPlatform.h"
#include "vcl/qt/Snapshot.h"
#include "vcl/streaming/Reader.h"

namespace ksform
{

using namespace vcl;

namespace
{

struct TRenderOptions {
    std::string Form;
    std::string Picture;
    std::optional<TSize> Size;
    double Scale = 1.0;
    bool Dark = false;
};

TRenderOptions Parse(const TArguments& Arguments)
{
    TRenderOptions Result;
    TOptionParser()
        .Value("-o", [&](const std::string& Value) { Result.Picture = Value; })
        .Value("--size", [&](const std::string& Value) { Result.Size = ParseSize(Value); })
        .Value("--scale", [&](const std::string& Value) { Result.Scale = ParseScale(Value); })
        .Switch("--dark", Result.Dark)
        .Single(Result.Form, "one form at a time")
        .Parse(Arguments);
    if (Result.Form.empty() || Result.Picture.empty())
        throw EUsage("a form and -o PNG are needed");
    return Result;
}

/// Reads a form whatever its program is: unknown objects become placeholders, unknown properties and handlers
/// are passed over.
class TFormReading
{
public:
    explicit TFormReading(const std::string& FileName)
    {
        FForm.reset(New<TForm>(nullptr));
        ReadFormFile(FileName, FForm.get(), [this](TReader& Reader) { Prepare(Reader); });
    }

    TForm& GetForm() { return *FForm; }

private:
    void Prepare(TReader& Reader)
    {
        Reader.OnError = [](TReader&, const Exception&, bool& Handled) { Handled = true; };
        Reader.OnFindMethod = [](TReader&, TEventBase&, const AnsiString&, bool& Handled) { Handled = true; };
        Reader.OnFindComponentClass = [this](TReader&, const AnsiString& Name, const TClass*& Class) {
            if (Class)
                return;
            Class = &TPlaceholder::StaticClass();
            FUnknownClass = Name;
        };
        Reader.OnSetName = [this](TReader&, TComponent* Component, AnsiString& Name) {
            if (TPlaceholder* const Placeholder = As<TPlaceholder>(Component))
                Placeholder->SetCaption(Name.empty() ? FUnknownClass : Name + ": " + FUnknownClass);
        };
    }

    std::unique_ptr<TForm> FForm;
    AnsiString FUnknownClass;
};

} // namespace

int RunRender(const TArguments& Arguments)
{
    const TRenderOptions Options = Parse(Arguments);
    // Whatever screen there is, a picture needs none.
    setenv("QT_QPA_PLATFORM", "offscreen", 1);
    qt::UseQt();
    if (Options.Dark)
        qt::UseDarkLook();
    TFormReading Reading(Options.Form);
    TForm& Form = Reading.GetForm();
    if (Options.Size)
        Form.SetClientSize(*Options.Size);
    const std::string Unfinished = Options.Picture + ".part";
    try {
        SaveSnapshot(Form, Unfinished, Options.Scale);
        std::filesystem::rename(Unfinished, Options.Picture);
    } catch (...) {
        std::error_code Ignored;
        std::filesystem::remove(Unfinished, Ignored);
        throw;
    }
    return Success;
}

} // namespace ksform
