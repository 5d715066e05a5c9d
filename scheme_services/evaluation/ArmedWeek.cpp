#include "scheme_services/evaluation/ArmedWeek.h"

#include <algorithm>

namespace {

constexpr int LastSecond = ArmedWeek::DaySeconds - 1;

bool Begins(const ArmedWeek::Span& a, const ArmedWeek::Span& b)
{
    return a.iBegin < b.iBegin;
}

} // namespace

std::optional<ArmedWeek::Span> ArmedWeek::CoveredBy(const AlarmTimeRegion& region)
{
    if (region.Begin < 0 || region.Begin >= region.End || region.Begin >= DaySeconds)
        return std::nullopt;
    return Span{region.Begin, region.End >= LastSecond ? DaySeconds : region.End};
}

bool ArmedWeek::IsArmed(const AlarmWeek& week, int iDay, int iSecond)
{
    const AlarmDefenceTime_t& day = week[iDay];
    return std::any_of(day.begin(), day.end(), [iSecond](const AlarmTimeRegion& region) {
        const std::optional<Span> span = CoveredBy(region);
        return span && span->iBegin <= iSecond && iSecond < span->iEnd;
    });
}

ArmedWeek::ArmedWeek(const AlarmWeek& week)
{
    std::vector<Span> spans;
    for (int day = 0; day < AlarmWeek::DayCount; ++day) {
        const auto first = static_cast<std::vector<Span>::difference_type>(spans.size());
        for (const AlarmTimeRegion& region : week[day]) {
            if (const std::optional<Span> span = CoveredBy(region))
                spans.push_back({day * DaySeconds + span->iBegin, day * DaySeconds + span->iEnd});
        }
        std::sort(spans.begin() + first, spans.end(), Begins);
    }
    for (const Span& span : spans) {
        if (!m_changes.empty() && span.iBegin <= m_changes.back()) {
            m_changes.back() = std::max(m_changes.back(), span.iEnd);
        } else {
            m_changes.push_back(span.iBegin);
            m_changes.push_back(span.iEnd);
        }
    }
    if (m_changes.empty())
        return;
    // The week is a circle: its first second follows its last.
    const bool fromStart = m_changes.front() == 0;
    const bool toEnd = m_changes.back() == WeekSeconds;
    m_bArmedAtStart = fromStart;
    if (toEnd)
        m_changes.pop_back();
    if (fromStart && toEnd) {
        m_changes.erase(m_changes.begin());
    } else if (toEnd) {
        m_changes.insert(m_changes.begin(), 0);
    }
}

bool ArmedWeek::IsArmed(int iSecond) const
{
    const auto passed = std::upper_bound(m_changes.begin(), m_changes.end(), iSecond) - m_changes.begin();
    // A change at second 0 is what makes the state of second 0.
    const bool beforeStart =
        !m_changes.empty() && m_changes.front() == 0 ? !m_bArmedAtStart : m_bArmedAtStart;
    return beforeStart != (passed % 2 != 0);
}

std::optional<int> ArmedWeek::ToNextChange(int iSecond) const
{
    if (m_changes.empty())
        return std::nullopt;
    const auto next = std::upper_bound(m_changes.begin(), m_changes.end(), iSecond);
    return (next == m_changes.end() ? m_changes.front() + WeekSeconds : *next) - iSecond;
}

std::optional<int> ArmedWeek::SinceLastChange(int iSecond) const
{
    if (m_changes.empty())
        return std::nullopt;
    const auto next = std::upper_bound(m_changes.begin(), m_changes.end(), iSecond);
    return iSecond - (next == m_changes.begin() ? m_changes.back() - WeekSeconds : *(next - 1));
}
