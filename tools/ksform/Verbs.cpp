#include "ksform/Verbs.h"

#include <cstdio>
#include <exception>

namespace ksform
{

const std::vector<TVerb>& Verbs()
{
    static const std::vector<TVerb> Table{
        {"convert", "[--resource] IN OUT", "turn a form's text into a binary image, or the other way",
         RunConvert},
        {"check", "FILE...", "report every error in form files", RunCheck},
        {"list", "[CLASS] [--json]", "show classes with their properties and events", RunList},
        {"draw", "SCRIPT -o PNG [--scale S]", "run a script of canvas operations and save the picture",
         RunDraw},
        {"render", "FORM -o PNG [--size WxH] [--scale S] [--dark]", "save a picture of a form", RunRender},
        {"data", "FILE --as CLASS [--json]", "show what a collection's stream holds", RunData},
    };
    return Table;
}

namespace
{

void PrintHelp()
{
    std::printf("Usage: ksform VERB ARGUMENT...\n\nWorks with form files.\n\nVerbs:\n");
    for (const TVerb& Verb : Verbs()) {
        const std::string Call = std::string(Verb.Name) + " " + Verb.Arguments;
        std::printf("  %-28s %s\n", Call.c_str(), Verb.Summary);
    }
    std::printf("\n  %-28s %s\n  %-28s %s\n", "--help", "show this text", "--version", "show the version");
}

int ReportUsage(const std::string& Message)
{
    std::fprintf(stderr, "ksform: %s (see ksform --help)\n", Message.c_str());
    return WrongUsage;
}

int RunVerb(const TVerb& Verb, const TArguments& Arguments)
{
    try {
        return Verb.Run(Arguments);
    } catch (const EUsage& Error) {
        return ReportUsage(std::string(Verb.Name) + ": " + Error.GetMessage());
    } catch (const std::exception& Error) {
        std::fprintf(stderr, "ksform: %s\n", Error.what());
        return Failure;
    }
}

} // namespace

int Run(const TArguments& Arguments)
{
    if (Arguments.empty())
        return ReportUsage("a verb is missing");
    const std::string& Name = Arguments.front();
    if (Name == "--help" || Name == "-h") {
        PrintHelp();
        return Success;
    }
    if (Name == "--version") {
        std::printf("ksform %s\n", KS_VERSION);
        return Success;
    }
    for (const TVerb& Verb : Verbs())
        if (Name == Verb.Name)
            return RunVerb(Verb, {Arguments.begin() + 1, Arguments.end()});
    return ReportUsage("there is no verb " + Name);
}

} // namespace ksform
