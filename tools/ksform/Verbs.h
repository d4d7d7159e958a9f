#pragma once

#include <string>
#include <vector>

namespace ksform
{

using TArguments = std::vector<std::string>;

/// A mistake in the command line; the message is shown with a hint at --help.
class EUsage
{
public:
    explicit EUsage(std::string Message) : FMessage(std::move(Message)) {}
    const std::string& GetMessage() const { return FMessage; }

private:
    std::string FMessage;
};

/// One verb: a row in the table of Verbs.cpp and a function in a file of its own.
struct TVerb {
    const char* Name;
    const char* Arguments; // for the usage line
    const char* Summary;   // one line
    /// Gets the arguments behind the verb; answers the exit status. May raise EUsage, or vcl::Exception with
    /// the one line to be shown.
    int (*Run)(const TArguments& Arguments);
};

const std::vector<TVerb>& Verbs();

constexpr int Success = 0;
constexpr int Failure = 1;
constexpr int WrongUsage = 2;

/// The whole program: finds the verb, runs it, reports what it raises.
int Run(const TArguments& Arguments);

int RunConvert(const TArguments& Arguments);
int RunCheck(const TArguments& Arguments);
int RunList(const TArguments& Arguments);
int RunDraw(const TArguments& Arguments);
int RunRender(const TArguments& Arguments);
int RunData(const TArguments& Arguments);

} // namespace ksform
