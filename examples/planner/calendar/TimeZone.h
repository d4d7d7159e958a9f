#pragma once

#include <cstdint>
#include <map>
#include <memory>
#include <optional>
#include <string>

struct _icaltimezone;

namespace planner
{

struct TIcsBlock;

/// Seconds since 1970-01-01 00:00 of a clock on the wall, or of UTC; the name of the variable says which.
using TSeconds = std::int64_t;

constexpr TSeconds SecondsADay = 86400;

/// A time zone: how clocks on its walls differ from UTC. Cheap to copy; what it was looked up in must live
/// on.
class TZone
{
public:
    /// UTC.
    TZone() = default;
    explicit TZone(_icaltimezone* Zone) : FZone(Zone) {}

    TSeconds ToWall(TSeconds Utc) const { return Utc + OffsetAt(Utc); }
    /// A wall time that comes twice is the first of the two; one that is skipped is read with the offset that
    /// held before, so that 02:30 becomes 03:30.
    TSeconds ToUtc(TSeconds Wall) const;

private:
    TSeconds OffsetAt(TSeconds Utc) const;

    _icaltimezone* FZone = nullptr;
};

/// The zone of a name such as "Europe/Berlin" or "UTC"; nothing when the system does not know it.
std::optional<TZone> FindZone(const std::string& Name);

/// The name of the zone this computer is set to; "UTC" when that cannot be found out.
std::string LocalZoneName();

/// The zones that a calendar file defines itself.
class TFileZones
{
public:
    TFileZones();
    ~TFileZones();
    TFileZones(TFileZones&&) noexcept;
    TFileZones& operator=(TFileZones&&) noexcept;

    /// Takes a VTIMEZONE; one without a name, or that cannot be understood, is left out.
    void Add(const TIcsBlock& Block);

    /// A zone of the file by its TZID, otherwise the system's zone of that name. Names with a prefix such as
    /// "/maker/version/Europe/Berlin" are known by their end.
    std::optional<TZone> Find(const std::string& Name) const;

private:
    struct TDelete {
        void operator()(_icaltimezone* Zone) const;
    };
    std::map<std::string, std::unique_ptr<_icaltimezone, TDelete>> FZones;
};

} // namespace planner
