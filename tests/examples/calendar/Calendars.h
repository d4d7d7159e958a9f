#pragma once

#include <string>
#include <vector>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "planner/calendar/CalendarSet.h"

namespace planner::tests
{

using TLines = std::vector<std::string>;
using ::testing::ElementsAre;
using ::testing::HasSubstr;
using ::testing::IsEmpty;

/// "2024-03-31" as a date of the component model.
vcl::TDate Day(const std::string& Text);
/// Wraps events into a calendar.
std::string Calendar(const std::string& Events);
/// An event with an identity, a summary and the given properties, one a line.
std::string Event(const std::string& Summary, const std::string& Properties);

/// Calendars in a folder of their own, which goes when the test ends.
class CalendarTest : public ::testing::Test
{
protected:
    CalendarTest();
    ~CalendarTest() override;

    /// Writes a file and returns its whole name.
    std::string Write(const std::string& Name, const std::string& Text) const;
    /// The events of a calendar from one day up to another as lines "2024-03-31 09:00-10:30 Summary", with
    /// the day of the end where it is another one, and without times for all-day events.
    TLines Show(const std::string& Text, const std::string& From, const std::string& To,
                const std::string& Zone = "Europe/Berlin") const;
    /// What a file that cannot be read says, without the folder: "bad.ics:3: ...".
    std::string ErrorOf(const std::string& Text) const;

    std::string FFolder;
};

TLines ToLines(const TCalendarSet::TEvents& Events);

} // namespace planner::tests
