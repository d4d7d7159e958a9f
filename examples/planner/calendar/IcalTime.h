#pragma once

#include <libical/ical.h>

#include "planner/calendar/TimeZone.h"

namespace planner
{

/// Wall seconds of a broken-down time, whatever zone it claims.
TSeconds ToSeconds(const icaltimetype& Time);

/// A floating time; IsDate leaves out the time of day.
icaltimetype ToIcalTime(TSeconds Wall, bool IsDate);

} // namespace planner
