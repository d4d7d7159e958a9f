#pragma once

#include <vector>

#include "planner/calendar/EventRecord.h"

namespace planner
{

/// An event with all its instances: the record that recurs and the records that replace single instances of
/// it.
class TSeries
{
public:
    /// One instance, in UTC. Finish is the first second that is no longer part of it.
    struct TInstance {
        const TEventRecord* Record = nullptr;
        TSeconds Start = 0;
        TSeconds Finish = 0;
        bool Recurring = false;
    };

    void Add(TEventRecord Record);

    /// The record that recurs; without one, the first that replaces an instance.
    const TEventRecord& GetMain() const
    {
        return FMasters.empty() ? FReplacements.front() : FMasters.front();
    }

    /// Appends the instances that meet the time from From up to To, which refer to records of this series.
    /// True when there are so many that some were left out.
    bool Collect(TSeconds From, TSeconds To, std::vector<TInstance>& Instances) const;

private:
    bool IsCurrent(const TEventRecord& Master) const;
    void CollectReplacements(TSeconds From, TSeconds To, std::vector<TInstance>& Instances) const;

    std::vector<TEventRecord> FMasters;
    std::vector<TEventRecord> FReplacements;
};

} // namespace planner
