#pragma once

#include <functional>
#include <map>
#include <string>

#include "ksform/Verbs.h"
#include "vcl/system/Types.h"

namespace ksform
{

/// The arguments of one verb: options with a value, switches, and what stands alone.
class TOptionParser
{
public:
    using TTake = std::function<void(const std::string& Value)>;

    /// Take gets the argument behind the option.
    TOptionParser& Value(const char* Option, TTake Take);
    TOptionParser& Switch(const char* Option, bool& Flag);
    /// What is no option; raises EUsage with Message when there is more than one.
    TOptionParser& Single(std::string& Target, const char* Message);
    /// Raises EUsage for unknown options and missing values.
    void Parse(const TArguments& Arguments) const;

private:
    std::map<std::string, TTake> FValues;
    std::map<std::string, bool*> FSwitches;
    std::string* FSingle = nullptr;
    const char* FSingleMessage = "";
};

/// "800x600"; EUsage for anything else or sizes outside 1..16384.
vcl::TSize ParseSize(const std::string& Text);
/// Device pixels a unit; EUsage outside of what surfaces can have.
double ParseScale(const std::string& Text);

} // namespace ksform
