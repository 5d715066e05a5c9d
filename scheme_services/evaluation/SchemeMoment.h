#pragma once

#include "AlarmCtrl/AlarmSchemeData/AlarmInfo.h"
#include "scheme_services/evaluation/ArmedWeek.h"
#include "scheme_services/evaluation/ZoneClock.h"
#include "schemeevaluation_export.h"

#include <QDateTime>
#include <QHash>

#include <optional>

enum class SchemeVerdict
{
    NoScheme,
    SwitchedOff,
    NotArmed, ///< switched on, but not at this time
    Armed,
};

/// How a scheme stands at one moment. Moments are seconds since 1970-01-01 00:00:00 UTC.
struct SchemeState
{
    SchemeVerdict verdict = SchemeVerdict::NoScheme;
    /// Since when it has been armed, or not armed; nothing when it has always been so, and for a scheme that
    /// is switched off.
    std::optional<qint64> since;
    /// When that ends; nothing when it does not, and for a scheme that is switched off.
    std::optional<qint64> nextChange;
};

/// One moment at which schemes are looked at: all of a site as well as one.
///
/// Schemes are armed by the wall clock of the moment's own zone: an hour that the clock skips arms nothing,
/// one that it shows twice arms twice. Weeks that schemes share are worked out once. An invalid date and time
/// arms nothing. Used by one thread at a time.
class SCHEMEEVALUATION_EXPORT SchemeMoment
{
public:
    explicit SchemeMoment(const QDateTime& at);

    /// Null is no scheme.
    SchemeState Evaluate(const AlarmInfo* pInfo);
    /// The verdict alone.
    SchemeVerdict Judge(const AlarmInfo* pInfo) const;

    QDateTime ToDateTime(qint64 iMoment) const { return m_clock.ToDateTime(iMoment); }

private:
    struct Known
    {
        AlarmWeek week; ///< keeps the block alive that the look-up goes by
        SchemeState state;
    };

    SchemeState StateOf(const AlarmWeek& week);
    std::optional<qint64> NextChange(const ArmedWeek& week, bool bArmed);
    std::optional<qint64> LastChange(const ArmedWeek& week, bool bArmed);

    ZoneClock m_clock;
    qint64 m_iMoment = 0;
    int m_iDay = 0;
    int m_iSecond = 0; ///< of the day
    bool m_bValid = false;
    QHash<const AlarmDefenceTime_t*, Known> m_known;
};
