#include "scheme_services/evaluation/SchemeMoment.h"

namespace {

/// More changes of the clock than any zone makes while a week plan stays as it is.
constexpr int MaxPieces = 1000;

/// Weeks that are shared by many schemes are met early; keeping more costs more than it saves.
constexpr int MaxKnown = 4096;

} // namespace

SchemeMoment::SchemeMoment(const QDateTime& at)
    : m_clock(at)
    , m_bValid(at.isValid())
{
    if (!m_bValid)
        return;
    // Whole seconds, and those before 1970 rounded downwards too.
    const qint64 milliseconds = at.toMSecsSinceEpoch();
    m_iMoment = milliseconds / 1000 - (milliseconds % 1000 < 0 ? 1 : 0);
    const int second = m_clock.WeekSecond(m_iMoment);
    m_iDay = second / ArmedWeek::DaySeconds;
    m_iSecond = second % ArmedWeek::DaySeconds;
}

SchemeVerdict SchemeMoment::Judge(const AlarmInfo* pInfo) const
{
    if (pInfo == nullptr)
        return SchemeVerdict::NoScheme;
    if (!pInfo->bOpen)
        return SchemeVerdict::SwitchedOff;
    return m_bValid && ArmedWeek::IsArmed(pInfo->defenceTime, m_iDay, m_iSecond) ? SchemeVerdict::Armed
                                                                                 : SchemeVerdict::NotArmed;
}

SchemeState SchemeMoment::Evaluate(const AlarmInfo* pInfo)
{
    SchemeState state;
    state.verdict = Judge(pInfo);
    if (!m_bValid || (state.verdict != SchemeVerdict::Armed && state.verdict != SchemeVerdict::NotArmed))
        return state;
    const AlarmDefenceTime_t* const pBlock = pInfo->defenceTime.data();
    const auto known = m_known.constFind(pBlock);
    if (known != m_known.constEnd())
        return known->state;
    state = StateOf(pInfo->defenceTime);
    if (m_known.size() < MaxKnown)
        m_known.insert(pBlock, {pInfo->defenceTime, state});
    return state;
}

SchemeState SchemeMoment::StateOf(const AlarmWeek& week)
{
    const ArmedWeek plan(week);
    const bool armed = plan.IsArmed(m_iDay * ArmedWeek::DaySeconds + m_iSecond);
    return {armed ? SchemeVerdict::Armed : SchemeVerdict::NotArmed, LastChange(plan, armed),
            NextChange(plan, armed)};
}

std::optional<qint64> SchemeMoment::NextChange(const ArmedWeek& week, bool bArmed)
{
    qint64 moment = m_iMoment;
    for (int pieces = 0; pieces < MaxPieces; ++pieces) {
        const ZoneClock::Piece piece = m_clock.PieceAt(moment);
        const std::optional<int> wait = week.ToNextChange(ZoneClock::WeekSecond(piece, moment));
        if (!wait)
            return std::nullopt;
        if (moment + *wait < piece.iEnd)
            return moment + *wait;
        // The clock changes first, and may show any second of the plan then.
        moment = piece.iEnd;
        if (week.IsArmed(m_clock.WeekSecond(moment)) != bArmed)
            return moment;
    }
    return std::nullopt;
}

std::optional<qint64> SchemeMoment::LastChange(const ArmedWeek& week, bool bArmed)
{
    qint64 moment = m_iMoment;
    for (int pieces = 0; pieces < MaxPieces; ++pieces) {
        const ZoneClock::Piece piece = m_clock.PieceAt(moment);
        const std::optional<int> passed = week.SinceLastChange(ZoneClock::WeekSecond(piece, moment));
        if (!passed)
            return std::nullopt;
        if (moment - *passed > piece.iBegin)
            return moment - *passed;
        if (week.IsArmed(m_clock.WeekSecond(piece.iBegin - 1)) != bArmed)
            return piece.iBegin;
        moment = piece.iBegin - 1;
    }
    return std::nullopt;
}
