#include "planner/Options.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <functional>
#include <map>
#include <stdexcept>

#include "vcl/system/DateTime.h"

namespace planner
{

const char* const UsageText =
    "usage: kssuite-planner [OPTION...] [FILE.ics...]\n"
    "       kssuite-planner [OPTION...] FILE.txt\n"
    "\n"
    "Shows iCalendar files in a day planner. Without files it opens what it showed last.\n"
    "An indented text file (.txt or .tree) is shown as an organisation chart.\n"
    "\n"
    "  --date YYYY-MM-DD  the first day shown\n"
    "  --days N           the number of days, 1 to 31\n"
    "  --minutes N        minutes of a ruler mark: 5, 6, 10, 15, 30 or 60\n"
    "  --size WxH         size of the window\n"
    "  --dark             dark colours\n"
    "  --right-to-left    mirrored, for right-to-left languages\n"
    "  --screenshot PNG   writes a picture of the window instead of showing it\n"
    "  --scale S          device pixels a unit of the picture, 0.5 to 4\n"
    "  --help\n";

namespace
{

template <class T>
std::optional<T> ParseNumber(std::string_view Text)
{
    T Value{};
    const auto [End, Error] = std::from_chars(Text.data(), Text.data() + Text.size(), Value);
    if (Error != std::errc() || End != Text.data() + Text.size())
        return {};
    return Value;
}

[[noreturn]] void RaiseBadValue(const std::string& Option, const std::string& Value)
{
    throw std::invalid_argument("bad value for " + Option + ": " + Value);
}

int ParseRange(const std::string& Option, const std::string& Value, int Low, int High)
{
    const std::optional<int> Number = ParseNumber<int>(Value);
    if (!Number || *Number < Low || *Number > High)
        RaiseBadValue(Option, Value);
    return *Number;
}

vcl::TSize ParseSize(const std::string& Option, const std::string& Value)
{
    const std::size_t Cross = Value.find('x');
    if (Cross == std::string::npos)
        RaiseBadValue(Option, Value);
    return {ParseRange(Option, Value.substr(0, Cross), 100, 10000),
            ParseRange(Option, Value.substr(Cross + 1), 100, 10000)};
}

double ParseScale(const std::string& Option, const std::string& Value)
{
    const std::optional<double> Scale = ParseNumber<double>(Value);
    if (!Scale || !(*Scale >= 0.5 && *Scale <= 4.0))
        RaiseBadValue(Option, Value);
    return *Scale;
}

int ParseMinutes(const std::string& Option, const std::string& Value)
{
    constexpr std::array Allowed = {5, 6, 10, 15, 30, 60};
    const int Minutes = ParseRange(Option, Value, 1, 60);
    if (std::find(Allowed.begin(), Allowed.end(), Minutes) == Allowed.end())
        RaiseBadValue(Option, Value);
    return Minutes;
}

} // namespace

std::optional<vcl::TDate> ParseDate(const std::string& Text)
{
    if (Text.size() != 10 || Text[4] != '-' || Text[7] != '-')
        return {};
    const std::string_view View = Text;
    const auto Year = ParseNumber<std::uint16_t>(View.substr(0, 4));
    const auto Month = ParseNumber<std::uint16_t>(View.substr(5, 2));
    const auto Day = ParseNumber<std::uint16_t>(View.substr(8, 2));
    if (!Year || !Month || !Day)
        return {};
    return vcl::TryEncodeDate(*Year, *Month, *Day);
}

TOptions ParseOptions(const std::vector<std::string>& Arguments)
{
    TOptions Options;
    const std::map<std::string, std::function<void()>> Switches = {
        {"--dark", [&] { Options.Dark = true; }},
        {"--right-to-left", [&] { Options.RightToLeft = true; }},
        {"--help", [&] { Options.Help = true; }},
    };
    using TTaker = std::function<void(const std::string&, const std::string&)>;
    const std::map<std::string, TTaker> Values = {
        {"--date",
         [&](const std::string& Option, const std::string& Value) {
             Options.Date = ParseDate(Value);
             if (!Options.Date)
                 RaiseBadValue(Option, Value);
         }},
        {"--days", [&](const std::string& Option,
                       const std::string& Value) { Options.Days = ParseRange(Option, Value, 1, 31); }},
        {"--minutes", [&](const std::string& Option,
                          const std::string& Value) { Options.MarkMinutes = ParseMinutes(Option, Value); }},
        {"--size", [&](const std::string& Option,
                       const std::string& Value) { Options.Size = ParseSize(Option, Value); }},
        {"--scale", [&](const std::string& Option,
                        const std::string& Value) { Options.Scale = ParseScale(Option, Value); }},
        {"--screenshot", [&](const std::string&, const std::string& Value) { Options.Screenshot = Value; }},
    };
    for (std::size_t Index = 0; Index < Arguments.size(); ++Index) {
        const std::string& Argument = Arguments[Index];
        if (const auto Switch = Switches.find(Argument); Switch != Switches.end()) {
            Switch->second();
        } else if (const auto Taker = Values.find(Argument); Taker != Values.end()) {
            if (++Index == Arguments.size())
                throw std::invalid_argument(Argument + " needs a value");
            Taker->second(Argument, Arguments[Index]);
        } else if (Argument.size() > 1 && Argument[0] == '-') {
            throw std::invalid_argument("unknown option: " + Argument);
        } else {
            Options.Files.push_back(Argument);
        }
    }
    return Options;
}

} // namespace planner
