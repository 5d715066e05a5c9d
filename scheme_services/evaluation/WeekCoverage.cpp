#include "scheme_services/evaluation/WeekCoverage.h"

#include "scheme_services/evaluation/ArmedWeek.h"

#include <QHash>

#include <algorithm>

namespace {

struct SharedWeek
{
    AlarmWeek week;
    int iSchemes = 0;
};

void Add(WeekCoverage& coverage, const ArmedWeek::Span& armed, int iSchemes)
{
    for (int slot = armed.iBegin / WeekCoverage::SlotSeconds; slot < WeekCoverage::Slots; ++slot) {
        const int begin = slot * WeekCoverage::SlotSeconds;
        if (begin >= armed.iEnd)
            return;
        const int seconds =
            std::min(armed.iEnd, begin + WeekCoverage::SlotSeconds) - std::max(armed.iBegin, begin);
        coverage.week[static_cast<std::size_t>(slot)].iSeconds += int64_t{seconds} * iSchemes;
    }
}

/// Schemes with one week, in which no span is counted twice.
void Add(WeekCoverage& coverage, const SharedWeek& shared)
{
    const ArmedWeek plan(shared.week);
    WeekCoverage own;
    bool armed = plan.IsArmed(0);
    int begin = 0;
    for (const int change : plan.Changes()) {
        if (armed && change > begin)
            Add(own, {begin, change}, 1);
        armed = plan.IsArmed(change);
        begin = change;
    }
    if (armed)
        Add(own, {begin, ArmedWeek::WeekSeconds}, 1);
    for (std::size_t slot = 0; slot < WeekCoverage::Slots; ++slot) {
        const int64_t seconds = own.week[slot].iSeconds;
        WeekCoverage::Slot& all = coverage.week[slot];
        all.iTouched += seconds > 0 ? shared.iSchemes : 0;
        all.iThroughout += seconds == WeekCoverage::SlotSeconds ? shared.iSchemes : 0;
        all.iSeconds += seconds * shared.iSchemes;
    }
}

bool Passes(const WeekCoverage::Filter& filter, const AlarmSourceKey& key)
{
    return (!filter.category || EventCategories::CategoryOf(key.AlarmType) == *filter.category) &&
           (!filter.deviceId || EventSource::BelongsToDevice(key.strEventSource, *filter.deviceId));
}

} // namespace

double WeekCoverage::Fraction(int iDay, int iSlot) const
{
    return iEnabled == 0 ? 0.0 : static_cast<double>(At(iDay, iSlot).iSeconds) / SlotSeconds / iEnabled;
}

WeekCoverage WeekCoverage::Of(const AlarmInfoMap& map, const Filter& filter)
{
    WeekCoverage coverage;
    QHash<const AlarmDefenceTime_t*, SharedWeek> weeks;
    for (auto scheme = map.begin(); scheme != map.end(); ++scheme) {
        if (!Passes(filter, scheme.key()))
            continue;
        ++coverage.iSchemes;
        if (!scheme->bOpen)
            continue;
        ++coverage.iEnabled;
        SharedWeek& shared = weeks[scheme->defenceTime.data()];
        if (shared.iSchemes++ == 0)
            shared.week = scheme->defenceTime;
    }
    for (const SharedWeek& shared : qAsConst(weeks))
        Add(coverage, shared);
    return coverage;
}
