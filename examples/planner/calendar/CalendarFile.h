#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "planner/calendar/Series.h"
#include "planner/calendar/TimeZone.h"

namespace planner
{

/// The events of one iCalendar file.
class TCalendarFile
{
public:
    /// Reads a file; throws ECalendarError when that is not possible. Local is the zone of times that name
    /// none.
    static TCalendarFile Load(const std::string& FileName, const TZone& Local);
    /// The same for text that is already in memory; FileName is for messages and for the calendar's name.
    static TCalendarFile Parse(const std::string& FileName, std::string_view Text, const TZone& Local);

    const std::string& GetFileName() const { return FFileName; }
    /// What the file calls itself, otherwise the file's name without folder and extension.
    const std::string& GetName() const { return FName; }
    const std::vector<TSeries>& GetSeries() const { return FSeries; }
    /// What was not understood but does no harm, a sentence each.
    const std::vector<std::string>& GetNotes() const { return FNotes; }

private:
    TCalendarFile() = default;

    std::string FFileName;
    std::string FName;
    TFileZones FZones;
    std::vector<TSeries> FSeries;
    std::vector<std::string> FNotes;
};

} // namespace planner
