#include "planner/calendar/TimeZone.h"

#include <chrono>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <string_view>

#include "planner/calendar/IcalTime.h"
#include "planner/calendar/IcsText.h"

namespace planner
{

namespace
{

constexpr std::string_view ZoneFolder = "/zoneinfo/";

/// "…/zoneinfo/Europe/Berlin" to "Europe/Berlin".
std::string NameBelowZoneFolder(const std::string& Path)
{
    const std::size_t Found = Path.find(ZoneFolder);
    return Found == std::string::npos ? std::string() : Path.substr(Found + ZoneFolder.size());
}

/// The change between summer and winter time comes once a year. A rule that says "every second" instead would
/// keep the library busy for ever, so such rules are left out.
bool IsReasonableRule(const TIcsProperty& Rule)
{
    return Rule.Value.find("FREQ=YEARLY") != std::string::npos &&
           Rule.Value.find("BYHOUR") == std::string::npos &&
           Rule.Value.find("BYMINUTE") == std::string::npos &&
           Rule.Value.find("BYSECOND") == std::string::npos;
}

TIcsBlock WithReasonableRules(TIcsBlock Zone)
{
    for (TIcsBlock& Observance : Zone.Blocks) {
        std::erase_if(Observance.Properties, [](const TIcsProperty& Property) {
            return Property.Name == "RRULE" && !IsReasonableRule(Property);
        });
    }
    return Zone;
}

} // namespace

TSeconds ToSeconds(const icaltimetype& Time)
{
    using namespace std::chrono;
    const sys_days Day =
        year(Time.year) / month(static_cast<unsigned>(Time.month)) / day(static_cast<unsigned>(Time.day));
    const TSeconds Seconds = Day.time_since_epoch().count() * SecondsADay;
    return Time.is_date ? Seconds : Seconds + Time.hour * 3600 + Time.minute * 60 + Time.second;
}

icaltimetype ToIcalTime(TSeconds Wall, bool IsDate)
{
    using namespace std::chrono;
    const sys_days Day = floor<days>(sys_seconds(seconds(Wall)));
    const year_month_day Date(Day);
    icaltimetype Time = icaltime_null_time();
    Time.year = static_cast<int>(Date.year());
    Time.month = static_cast<int>(static_cast<unsigned>(Date.month()));
    Time.day = static_cast<int>(static_cast<unsigned>(Date.day()));
    Time.is_date = IsDate;
    if (!IsDate) {
        const int Second = static_cast<int>(Wall - Day.time_since_epoch().count() * SecondsADay);
        Time.hour = Second / 3600;
        Time.minute = Second / 60 % 60;
        Time.second = Second % 60;
    }
    return Time;
}

TSeconds TZone::OffsetAt(TSeconds Utc) const
{
    if (!FZone)
        return 0;
    icaltimetype Time = ToIcalTime(Utc, false);
    int IsDaylight = 0;
    return icaltimezone_get_utc_offset_of_utc_time(FZone, &Time, &IsDaylight);
}

TSeconds TZone::ToUtc(TSeconds Wall) const
{
    const TSeconds Before = OffsetAt(Wall - SecondsADay);
    if (OffsetAt(Wall - Before) == Before)
        return Wall - Before;
    const TSeconds After = OffsetAt(Wall + SecondsADay);
    if (OffsetAt(Wall - After) == After)
        return Wall - After;
    return Wall - Before;
}

std::optional<TZone> FindZone(const std::string& Name)
{
    if (Name == "UTC" || Name == "Etc/UTC" || Name == "GMT" || Name == "Z")
        return TZone();
    icaltimezone* Zone = icaltimezone_get_builtin_timezone(Name.c_str());
    return Zone ? std::optional(TZone(Zone)) : std::nullopt;
}

std::string LocalZoneName()
{
    const char* Variable = std::getenv("TZ");
    if (Variable && *Variable) {
        const std::string Name = *Variable == ':' ? Variable + 1 : Variable;
        const std::string Below = NameBelowZoneFolder(Name);
        return Below.empty() ? Name : Below;
    }
    std::error_code Error;
    std::string Name = NameBelowZoneFolder(std::filesystem::canonical("/etc/localtime", Error).string());
    // A copy of the zone's file does not tell its name.
    if (Name.empty())
        std::getline(std::ifstream("/etc/timezone"), Name);
    return Name.empty() ? "UTC" : Name;
}

void TFileZones::TDelete::operator()(_icaltimezone* Zone) const
{
    icaltimezone_free(Zone, 1);
}

TFileZones::TFileZones() = default;
TFileZones::~TFileZones() = default;
TFileZones::TFileZones(TFileZones&&) noexcept = default;
TFileZones& TFileZones::operator=(TFileZones&&) noexcept = default;

void TFileZones::Add(const TIcsBlock& Block)
{
    const TIcsProperty* Name = Block.Find("TZID");
    if (!Name)
        return;
    icalcomponent* Component = icalcomponent_new_from_string(ToIcsText(WithReasonableRules(Block)).c_str());
    if (!Component)
        return;
    std::unique_ptr<_icaltimezone, TDelete> Zone(icaltimezone_new());
    if (icaltimezone_set_component(Zone.get(), Component))
        FZones.insert_or_assign(Name->Value, std::move(Zone));
    else
        icalcomponent_free(Component);
}

std::optional<TZone> TFileZones::Find(const std::string& Name) const
{
    if (const auto Found = FZones.find(Name); Found != FZones.end())
        return TZone(Found->second.get());
    std::string Rest = Name;
    while (true) {
        if (const std::optional<TZone> Zone = FindZone(Rest))
            return Zone;
        const std::size_t Slash = Rest.find('/', 1);
        if (Slash == std::string::npos)
            return std::nullopt;
        Rest.erase(0, Slash + 1);
    }
}

} // namespace planner
