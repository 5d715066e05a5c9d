#pragma once

#include "AlarmCtrl/AlarmSchemeData/AlarmDefenceTime.h"
#include "schemeevaluation_export.h"

#include <optional>
#include <vector>

/// When a week plan is armed, in seconds of the wall clock since Sunday 00:00:00.
///
/// A region covers begin <= t < end, an end of 86399 lasts through the end of the day, and begin = end covers
/// nothing; so neither touching regions nor midnight leave a gap. Regions that the store would not load (a
/// negative begin, a begin after the end) cover nothing, and nothing lies beyond the end of a day.
class SCHEMEEVALUATION_EXPORT ArmedWeek
{
public:
    static constexpr int DaySeconds = 24 * 60 * 60;
    static constexpr int WeekSeconds = 7 * DaySeconds;

    /// Half-open, within one day.
    struct Span
    {
        int iBegin = 0;
        int iEnd = 0;
    };

    explicit ArmedWeek(const AlarmWeek& week);

    /// What a region covers of its day; nothing when it covers nothing.
    static std::optional<Span> CoveredBy(const AlarmTimeRegion& region);
    /// The quick answer for one moment: day 0 (Sunday) to 6, second 0 to 86399.
    static bool IsArmed(const AlarmWeek& week, int iDay, int iSecond);

    bool IsNever() const { return m_changes.empty() && !m_bArmedAtStart; }
    bool IsAlways() const { return m_changes.empty() && m_bArmedAtStart; }
    /// `iSecond` is 0 to WeekSeconds - 1 here and below.
    bool IsArmed(int iSecond) const;
    /// Seconds until the plan changes, 1 to WeekSeconds; nothing when it never does.
    std::optional<int> ToNextChange(int iSecond) const;
    /// Seconds since it changed last, 0 to WeekSeconds - 1; nothing when it never does.
    std::optional<int> SinceLastChange(int iSecond) const;
    /// The seconds at which it changes, ascending, taking turns.
    const std::vector<int>& Changes() const { return m_changes; }

private:
    std::vector<int> m_changes;
    bool m_bArmedAtStart = false; ///< at Sunday 00:00:00
};
