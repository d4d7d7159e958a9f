#include "ksform/Options.h"

#include <charconv>
#include <cstdlib>

#include "vcl/graphics/Surface.h"

namespace ksform
{

namespace
{

constexpr int LargestSide = 16384;

int ParseSide(const std::string& Text, std::string_view Digits)
{
    int Value = 0;
    const auto [End, Error] = std::from_chars(Digits.data(), Digits.data() + Digits.size(), Value);
    if (Error != std::errc() || End != Digits.data() + Digits.size() || Value < 1 || Value > LargestSide)
        throw EUsage(Text + " is not a size");
    return Value;
}

} // namespace

TOptionParser& TOptionParser::Value(const char* Option, TTake Take)
{
    FValues[Option] = std::move(Take);
    return *this;
}

TOptionParser& TOptionParser::Switch(const char* Option, bool& Flag)
{
    FSwitches[Option] = &Flag;
    return *this;
}

TOptionParser& TOptionParser::Single(std::string& Target, const char* Message)
{
    FSingle = &Target;
    FSingleMessage = Message;
    return *this;
}

void TOptionParser::Parse(const TArguments& Arguments) const
{
    for (std::size_t Index = 0; Index < Arguments.size(); ++Index) {
        const std::string& Argument = Arguments[Index];
        if (const auto Found = FValues.find(Argument); Found != FValues.end()) {
            if (++Index == Arguments.size())
                throw EUsage(Argument + " needs a value");
            Found->second(Arguments[Index]);
        } else if (const auto Flag = FSwitches.find(Argument); Flag != FSwitches.end()) {
            *Flag->second = true;
        } else if (Argument.size() > 1 && Argument.front() == '-') {
            throw EUsage("there is no option " + Argument);
        } else if (!FSingle || !FSingle->empty()) {
            throw EUsage(FSingleMessage);
        } else {
            *FSingle = Argument;
        }
    }
}

vcl::TSize ParseSize(const std::string& Text)
{
    const std::size_t Cross = Text.find('x');
    if (Cross == std::string::npos)
        throw EUsage(Text + " is not a size");
    const std::string_view View = Text;
    return {ParseSide(Text, View.substr(0, Cross)), ParseSide(Text, View.substr(Cross + 1))};
}

double ParseScale(const std::string& Text)
{
    char* End = nullptr;
    const double Value = std::strtod(Text.c_str(), &End);
    if (Text.empty() || *End != '\0' ||
        !(Value >= vcl::TSurface::MinScale && Value <= vcl::TSurface::MaxScale))
        throw EUsage(Text + " is not a scale");
    return Value;
}

} // namespace ksform
