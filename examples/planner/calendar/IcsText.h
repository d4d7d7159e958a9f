#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace planner
{

/// One property of an iCalendar text, unfolded: NAME;PARAMETER=VALUE:VALUE.
struct TIcsProperty {
    struct TParameter {
        std::string Name;
        std::string Value;
    };

    /// In upper case.
    std::string Name;
    std::vector<TParameter> Parameters;
    std::string Value;
    /// Where the property begins in the file, from 1.
    int Line = 0;

    /// A parameter's value without quotes; empty when it is not there.
    std::string_view Parameter(std::string_view Name) const;
};

/// What stands between a BEGIN and its END, without them.
struct TIcsBlock {
    /// "VEVENT", in upper case.
    std::string Kind;
    /// Of BEGIN.
    int Line = 0;
    std::vector<TIcsProperty> Properties;
    std::vector<TIcsBlock> Blocks;

    const TIcsProperty* Find(std::string_view Name) const;
    bool HasBlock(std::string_view Kind) const;
};

/// Divides a file's text into its calendars (blocks of kind VCALENDAR). Line ends may be CR LF, LF or CR, a
/// byte order mark is skipped. Throws ECalendarError, which FileName is for, when a line is no property, when
/// BEGIN and END do not match, when blocks are nested too deep, or when there is no calendar.
std::vector<TIcsBlock> ReadIcsText(const std::string& FileName, std::string_view Text);

/// The block as iCalendar text again, unfolded, with CR LF.
std::string ToIcsText(const TIcsBlock& Block);

/// A TEXT value without its escapes: "\\n" is a line feed, "\\," a comma.
std::string UnescapeText(std::string_view Value);

/// The members of a value list, divided at commas.
std::vector<std::string> SplitList(std::string_view Value);

} // namespace planner
