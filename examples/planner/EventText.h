#pragma once

#include <cstddef>
#include <string>

#include "planner/calendar/CalendarSet.h"

namespace planner
{

/// End of the item that shows an event: one without length gets a quarter of an hour, so that it can be seen.
vcl::TDateTime ShownEnd(const TCalendarEvent& Event);
/// "Wed 18 March 2026, 10:00 - 11:30", or only dates for all-day events.
std::string WhenText(const TCalendarEvent& Event);
/// One line about an event for the status bar.
std::string DetailsText(const TCalendarEvent& Event);
/// "16 - 22 March 2026"
std::string RangeText(vcl::TDate First, int Days);
/// "1 event", "12 events"
std::string CountText(std::size_t Count);

} // namespace planner
