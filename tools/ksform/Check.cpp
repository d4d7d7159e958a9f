#include <algorithm>
#include <cstdio>

#include "ksform/Files.h"
#include "ksform/Verbs.h"
#include "vcl/streaming/Reader.h"

namespace ksform
{

using namespace vcl;

namespace
{

/// Reads the form with the classes that are known and collects what they do not accept.
class TClassCheck
{
public:
    TClassCheck(const std::string& FileName, TFormImage& Form, std::vector<TProblem>& Problems)
        : FFileName(FileName), FForm(Form), FProblems(Problems), FReader(Form.Image)
    {
    }

    void Run()
    {
        FReader.OnError = [this](TReader& Reader, const Exception& Error, bool& Handled) {
            Report(Reader.GetErrorPosition(), Error.what());
            Handled = true;
        };
        FReader.OnFindComponentClass = [this](TReader& Reader, const AnsiString&, const TClass*& Class) {
            if (!Reader.GetRoot() && !Class)
                Class = StandIn();
        };
        FReader.OnFindMethod = [](TReader& Reader, TEventBase& Event, const AnsiString& Name, bool& Handled) {
            // The form's own class, which has the handlers, belongs to a program and is not known here.
            Handled = !SameText(Reader.GetRoot()->ClassName(), Reader.GetRootClassName());
            Event.SetHandlerName(Name);
        };
        FReader.OnAncestorNotFound = [](TReader& Reader, const AnsiString& ClassName, const AnsiString& Name,
                                        TComponent*& Component) {
            if (Reader.IsInherited() && Reader.GetLookupRoot() == Reader.GetRoot())
                Component = Ancestor(Reader, ClassName, Name);
        };
        try {
            const std::unique_ptr<TComponent> Root(FReader.ReadRootComponent());
        } catch (const Exception& Error) {
            Report(FReader.GetErrorPosition(), Error.what());
        }
        for (const TUnresolvedReference& Reference : FReader.GetUnresolved())
            // A name with a dot may mean a component of another form.
            if (Reference.Name.find('.') == AnsiString::npos)
                Report(Reference.Position,
                       "Error reading " + Reference.Property + ": there is no component " + Reference.Name);
    }

private:
    /// What a form of an unknown class is read as.
    static const TClass* StandIn() { return GetClass("TForm"); }

    /// The form's ancestor is in another file, so a component of the class named there takes the place.
    static TComponent* Ancestor(TReader& Reader, const AnsiString& ClassName, const AnsiString& Name)
    {
        const TClass& Class = FindClass(ClassName);
        if (!Class.InheritsFrom(TComponent::StaticClass()) || !Class.Create)
            throw EClassNotFound("Class " + ClassName + " not found");
        auto* const Component = static_cast<TComponent*>(Class.Create(Reader.GetLookupRoot()));
        Component->SetParentComponent(Reader.GetParent());
        Component->SetName(Name);
        return Component;
    }

    void Report(std::int64_t Offset, const std::string& Reason)
    {
        FProblems.push_back({Offset, FForm.Place(FFileName, Offset) + ": " + Reason});
    }

    const std::string& FFileName;
    TFormImage& FForm;
    std::vector<TProblem>& FProblems;
    TReader FReader;
};

/// Problems of syntax and structure come first; those of classes are told by their place in the image.
std::vector<TProblem> CheckFile(const std::string& FileName)
{
    TFormImage Form;
    std::vector<TProblem> Problems;
    const bool IsReadable = LoadForm(FileName, Form, Problems);
    std::stable_sort(Problems.begin(), Problems.end());
    if (!IsReadable || RegisteredClasses().empty())
        return Problems;
    std::vector<TProblem> ClassProblems;
    TClassCheck(FileName, Form, ClassProblems).Run();
    std::stable_sort(ClassProblems.begin(), ClassProblems.end());
    Problems.insert(Problems.end(), ClassProblems.begin(), ClassProblems.end());
    return Problems;
}

} // namespace

int RunCheck(const TArguments& Arguments)
{
    if (Arguments.empty())
        throw EUsage("at least one file name is needed");
    int Status = Success;
    for (const std::string& FileName : Arguments) {
        if (FileName.size() > 1 && FileName.front() == '-')
            throw EUsage("there is no option " + FileName);
        try {
            for (const TProblem& Problem : CheckFile(FileName)) {
                std::printf("%s\n", Problem.Text.c_str());
                Status = Failure;
            }
        } catch (const Exception& Error) {
            // A file that cannot be read at all does not keep the others from being checked.
            std::fprintf(stderr, "ksform: %s\n", Error.what());
            Status = Failure;
        }
    }
    return Status;
}

} // namespace ksform
