#pragma once

#include <optional>

#include "planner/calendar/CalendarSet.h"
#include "vcl/forms/Form.h"

namespace planner
{

/// Asks for a date, proposing Date. Nothing when cancelled.
std::optional<vcl::TDate> AskForDate(vcl::TCustomForm& Over, vcl::TDate Date);
/// Asks for the times work begins and ends. False when cancelled.
bool AskForWorkingHours(vcl::TCustomForm& Over, vcl::TTime& Begin, vcl::TTime& End);
/// Shows everything the calendar says about an event.
void ShowEvent(vcl::TCustomForm& Over, const TCalendarEvent& Event);

} // namespace planner
