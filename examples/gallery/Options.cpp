#include "gallery/Options.h"

#include <charconv>
#include <stdexcept>

namespace gallery
{

const char* const UsageText = "usage: kssuite-gallery [OPTION...]\n"
                              "\n"
                              "Shows every control in its states, with its properties to change.\n"
                              "\n"
                              "  --list             prints the pages and their states\n"
                              "  --page NAME        the control's class, such as TKSTimeView\n"
                              "  --state NAME       one of the page's states\n"
                              "  --size WxH         size of the window\n"
                              "  --dark             dark colours\n"
                              "  --screenshot PNG   writes a picture of the window instead of showing it\n"
                              "  --scale S          device pixels a unit of the picture, 0.5 to 4\n"
                              "  --help\n";

namespace
{

/// A number between Low and High; throws otherwise.
template <class T>
T ParseNumber(const std::string& Option, std::string_view Text, T Low, T High)
{
    T Value{};
    const auto [End, Error] = std::from_chars(Text.data(), Text.data() + Text.size(), Value);
    if (Error != std::errc() || End != Text.data() + Text.size() || !(Value >= Low && Value <= High))
        throw std::invalid_argument("bad value for " + Option + ": " + std::string(Text));
    return Value;
}

vcl::TSize ParseSize(const std::string& Option, std::string_view Text)
{
    const std::size_t Cross = Text.find('x');
    if (Cross == std::string_view::npos)
        throw std::invalid_argument("bad value for " + Option + ": " + std::string(Text));
    return {ParseNumber(Option, Text.substr(0, Cross), 100, 10000),
            ParseNumber(Option, Text.substr(Cross + 1), 100, 10000)};
}

bool TakeSwitch(TOptions& Options, const std::string& Argument)
{
    bool* const Switch = Argument == "--dark"   ? &Options.Dark
                         : Argument == "--list" ? &Options.List
                         : Argument == "--help" ? &Options.Help
                                                : nullptr;
    if (Switch)
        *Switch = true;
    return Switch != nullptr;
}

bool IsValueOption(const std::string& Argument)
{
    for (const char* const Name : {"--page", "--state", "--size", "--scale", "--screenshot"})
        if (Argument == Name)
            return true;
    return false;
}

void TakeValue(TOptions& Options, const std::string& Option, const std::string& Value)
{
    if (Option == "--page")
        Options.Page = Value;
    else if (Option == "--state")
        Options.State = Value;
    else if (Option == "--size")
        Options.Size = ParseSize(Option, Value);
    else if (Option == "--scale")
        Options.Scale = ParseNumber(Option, Value, 0.5, 4.0);
    else
        Options.Screenshot = Value;
}

} // namespace

TOptions ParseOptions(const std::vector<std::string>& Arguments)
{
    TOptions Options;
    for (std::size_t Index = 0; Index < Arguments.size(); ++Index) {
        const std::string& Argument = Arguments[Index];
        if (TakeSwitch(Options, Argument))
            continue;
        if (!IsValueOption(Argument))
            throw std::invalid_argument("unknown option: " + Argument);
        if (++Index == Arguments.size())
            throw std::invalid_argument(Argument + " needs a value");
        TakeValue(Options, Argument, Arguments[Index]);
    }
    return Options;
}

} // namespace gallery
