#pragma once

#include "AlarmCtrl/AlarmSchemeData/AlarmDefenceTime.h"

#include <bitset>
#include <optional>

/// A day as one bit for every second, which knows nothing of lists and boundaries: what the product's
/// arithmetic is compared with. A bit is set while the day is armed, begin included, end not; 86399 as an end
/// stands for the end of what the editors can say, so its own bit is never set.
class DayBits
{
public:
    static constexpr int Seconds = 86400;
    using Bits = std::bitset<Seconds>;

    DayBits() = default;
    explicit DayBits(const AlarmDefenceTime_t& regions)
    {
        for (const AlarmTimeRegion& region : regions) {
            m_bits |= Span(region.Begin, region.End);
        }
    }

    void Arm(int begin, int end) { m_bits |= Span(begin, end); }
    void Disarm(int begin, int end) { m_bits &= ~Span(begin, end); }
    bool IsArmed(int second) const { return m_bits.test(static_cast<size_t>(second)); }
    /// Uninterrupted runs of armed seconds.
    int Runs() const { return static_cast<int>((m_bits & ~(m_bits << 1)).count()); }
    bool operator==(const DayBits& other) const { return m_bits == other.m_bits; }

    /// The quarter hours from the one that holds `low` to the one that holds `high`; both ends on a mark:
    /// what lies between the marks. Found by stepping along the marks.
    static std::pair<int, int> Quarters(int low, int high)
    {
        int begin = 0;
        while (begin + 900 <= low) {
            begin += 900;
        }
        int end = 0;
        while (end < high) {
            end += 900;
        }
        return {begin, end > 86399 ? 86399 : end};
    }

private:
    static Bits Span(int begin, int end)
    {
        if (begin >= end) {
            return {};
        }
        Bits all;
        all.set();
        return (all << static_cast<size_t>(begin)) & (all >> static_cast<size_t>(Seconds - end));
    }

    Bits m_bits;
};

/// The first thing that is wrong with a day an editor may produce; empty when it is sound.
inline QString Unsoundness(const AlarmDefenceTime_t& regions)
{
    if (regions.size() > 6) {
        return QStringLiteral("%1 regions").arg(regions.size());
    }
    int previousEnd = -1;
    for (const AlarmTimeRegion& region : regions) {
        if (region.Begin < 0 || region.End > 86399 || region.Begin >= region.End) {
            return QStringLiteral("bad region %1..%2").arg(region.Begin).arg(region.End);
        }
        if (region.Begin <= previousEnd) {
            return QStringLiteral("region at %1 is out of order or touches").arg(region.Begin);
        }
        previousEnd = region.End;
    }
    return {};
}
