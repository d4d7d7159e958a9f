#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <string_view>

#include "planner/calendar/CalendarError.h"
#include "planner/calendar/CalendarFile.h"

/// Any bytes are a calendar, or an error that says why not; expanding a month of it ends soon.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* Data, std::size_t Size)
{
    const planner::TSeconds NewYear = 1704067200;
    try {
        const auto File = planner::TCalendarFile::Parse(
            "input", std::string_view(reinterpret_cast<const char*>(Data), Size), planner::TZone());
        for (const planner::TSeries& Series : File.GetSeries()) {
            std::vector<planner::TSeries::TInstance> Instances;
            Series.Collect(NewYear, NewYear + 31 * planner::SecondsADay, Instances);
            for (const planner::TSeries::TInstance& Instance : Instances) {
                if (Instance.Start >= NewYear + 31 * planner::SecondsADay || Instance.Finish < Instance.Start)
                    std::abort();
            }
        }
    } catch (const planner::ECalendarError&) {
        // An answer, too.
    }
    return 0;
}
