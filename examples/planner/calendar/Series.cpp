#include "planner/calendar/Series.h"

#include <algorithm>
#include <cstdlib>
#include <map>
#include <set>
#include <utility>

namespace planner
{

namespace
{

/// Zones differ by less than this, so a range in UTC widened by it holds the range on any wall.
constexpr TSeconds ZoneSlack = 2 * SecondsADay;

bool Meets(TSeconds Start, TSeconds Finish, TSeconds From, TSeconds To)
{
    return Start < To && (Finish > From || Start >= From);
}

TSeconds Midnight(TSeconds Wall)
{
    return Wall - (Wall % SecondsADay + SecondsADay) % SecondsADay;
}

/// A set of moments that an instance can be looked up in. A date stands for every instance of that day.
class TMomentSet
{
public:
    void Add(const TMoment& Moment, bool EventHasDates)
    {
        if (Moment.IsDate || EventHasDates)
            FDays.insert(Midnight(Moment.Wall));
        else
            FTimes.insert(Moment.ToUtc());
    }

    bool Has(const TMoment& Start) const
    {
        return FDays.count(Midnight(Start.Wall)) > 0 || (!Start.IsDate && FTimes.count(Start.ToUtc()) > 0);
    }

private:
    std::set<TSeconds> FDays;
    std::set<TSeconds> FTimes;
};

/// What the replacing records mean for one recurring record.
class TReplacements
{
public:
    TReplacements(const TEventRecord& Master, const std::vector<TEventRecord>& Records)
        : FZone(Master.Start.Zone)
    {
        for (const TEventRecord& Record : Records) {
            FReplaced.Add(*Record.RecurrenceId, Master.Start.IsDate);
            if (!Record.ThisAndFuture)
                continue;
            FFollowing.insert_or_assign(Record.RecurrenceId->ToUtc(), &Record);
            FReach = std::max(FReach, std::abs(ShiftOf(Record)) + Record.Span.Longest());
        }
    }

    bool IsReplaced(const TMoment& Start) const { return FReplaced.Has(Start); }

    /// The record that took over all instances at or before Utc; null when none did.
    const TEventRecord* FollowingAt(TSeconds Utc) const
    {
        const auto After = FFollowing.upper_bound(Utc);
        return After == FFollowing.begin() ? nullptr : std::prev(After)->second;
    }

    /// How far a record moves its instance, on the wall of the series: a weekly meeting moved from ten to
    /// eleven stays at eleven when the clocks change.
    TSeconds ShiftOf(const TEventRecord& Record) const
    {
        return FZone.ToWall(Record.Start.ToUtc()) - FZone.ToWall(Record.RecurrenceId->ToUtc());
    }

    /// How far outside of a range an instance can begin that is moved into it.
    TSeconds GetReach() const { return FReach; }

private:
    TZone FZone;
    TMomentSet FReplaced;
    std::map<TSeconds, const TEventRecord*> FFollowing;
    TSeconds FReach = 0;
};

/// Finds the instances of one recurring record.
class TExpansion
{
public:
    TExpansion(const TEventRecord& Master, const std::vector<TEventRecord>& Replacements, TSeconds From,
               TSeconds To)
        : FMaster(Master), FReplacements(Master, Replacements), FFrom(From), FTo(To)
    {
        TSeconds Longest = Master.Span.Longest();
        for (const TEventRecord::TExtraStart& Extra : Master.ExtraStarts)
            Longest = std::max(Longest, Extra.Span ? Extra.Span->Longest() : 0);
        FFromWall = From - Longest - FReplacements.GetReach() - ZoneSlack;
        FToWall = To + FReplacements.GetReach() + ZoneSlack;
    }

    bool Collect(std::vector<TSeries::TInstance>& Instances)
    {
        FindStarts();
        RemoveExceptions();
        for (const auto& [Wall, Span] : FStarts)
            Take({Wall, FMaster.Start.Zone, FMaster.Start.IsDate}, Span, Instances);
        return FCapped;
    }

private:
    std::vector<TSeconds> Expand(const TRule& Rule)
    {
        TRule::TResult Result = Rule.Expand(FMaster.Start.Wall, FFromWall, FToWall);
        FCapped = FCapped || Result.Capped;
        return std::move(Result.Starts);
    }

    void FindStarts()
    {
        FStarts.emplace(FMaster.Start.Wall, FMaster.Span);
        for (const TRule& Rule : FMaster.Rules) {
            for (const TSeconds Wall : Expand(Rule))
                FStarts.emplace(Wall, FMaster.Span);
        }
        for (const TEventRecord::TExtraStart& Extra : FMaster.ExtraStarts) {
            const TSeconds Wall = FMaster.Start.IsDate ? Midnight(Extra.Start.Wall)
                                                       : FMaster.Start.Zone.ToWall(Extra.Start.ToUtc());
            FStarts.insert_or_assign(Wall, Extra.Span.value_or(FMaster.Span));
        }
    }

    void RemoveExceptions()
    {
        for (const TRule& Rule : FMaster.ExceptionRules) {
            for (const TSeconds Wall : Expand(Rule))
                FStarts.erase(Wall);
        }
        TMomentSet Exceptions;
        for (const TMoment& Moment : FMaster.ExceptionStarts)
            Exceptions.Add(Moment, FMaster.Start.IsDate);
        std::erase_if(FStarts, [&](const auto& Start) {
            return Exceptions.Has({Start.first, FMaster.Start.Zone, FMaster.Start.IsDate});
        });
    }

    void Take(TMoment Start, TSpan Span, std::vector<TSeries::TInstance>& Instances) const
    {
        if (FReplacements.IsReplaced(Start))
            return;
        const TEventRecord* Record = &FMaster;
        if (const TEventRecord* Following = FReplacements.FollowingAt(Start.ToUtc())) {
            if (Following->Cancelled)
                return;
            Record = Following;
            Span = Following->Span;
            Start.Wall += FReplacements.ShiftOf(*Following);
        }
        const TSeconds StartUtc = Start.ToUtc();
        const TSeconds Finish = Span.FinishOf(Start);
        if (Meets(StartUtc, Finish, FFrom, FTo))
            Instances.push_back({Record, StartUtc, Finish, FMaster.IsRecurring()});
    }

    const TEventRecord& FMaster;
    TReplacements FReplacements;
    TSeconds FFrom;
    TSeconds FTo;
    TSeconds FFromWall = 0;
    TSeconds FToWall = 0;
    std::map<TSeconds, TSpan> FStarts;
    bool FCapped = false;
};

} // namespace

void TSeries::Add(TEventRecord Record)
{
    (Record.RecurrenceId ? FReplacements : FMasters).push_back(std::move(Record));
}

/// A calendar may also hold older states of an event; those with the highest sequence number count.
bool TSeries::IsCurrent(const TEventRecord& Master) const
{
    return std::none_of(FMasters.begin(), FMasters.end(),
                        [&](const TEventRecord& Other) { return Other.Sequence > Master.Sequence; });
}

void TSeries::CollectReplacements(TSeconds From, TSeconds To, std::vector<TInstance>& Instances) const
{
    for (const TEventRecord& Record : FReplacements) {
        const TSeconds Start = Record.Start.ToUtc();
        const TSeconds Finish = Record.Span.FinishOf(Record.Start);
        if (!Record.Cancelled && Meets(Start, Finish, From, To))
            Instances.push_back({&Record, Start, Finish, true});
    }
}

bool TSeries::Collect(TSeconds From, TSeconds To, std::vector<TInstance>& Instances) const
{
    bool Capped = false;
    bool IsAlive = FMasters.empty();
    for (const TEventRecord& Master : FMasters) {
        if (Master.Cancelled || !IsCurrent(Master))
            continue;
        IsAlive = true;
        Capped = TExpansion(Master, FReplacements, From, To).Collect(Instances) || Capped;
    }
    if (IsAlive)
        CollectReplacements(From, To, Instances);
    return Capped;
}

} // namespace planner
