#pragma once

#include "schemeevaluation_export.h"

#include <QDateTime>
#include <QTimeZone>
#include <QVector>

#include <limits>
#include <vector>

/// The wall clock of a time zone: which seconds it shows when. Moments are whole seconds since 1970-01-01
/// 00:00:00 UTC. Keeps what it has learned of the zone, so one object answers many questions quickly; used by
/// one thread at a time.
class SCHEMEEVALUATION_EXPORT ZoneClock
{
public:
    /// The clock by which a date and time is given: its zone, its offset, or the computer's zone.
    explicit ZoneClock(const QDateTime& like);

    /// A stretch of time without a change of the clock.
    struct Piece
    {
        qint64 iBegin =
            std::numeric_limits<qint64>::min();           ///< first moment; the least without a change before
        qint64 iEnd = std::numeric_limits<qint64>::max(); ///< first moment after it; the most without one
        int iOffset = 0;                                  ///< seconds that the clock is ahead of UTC

        bool Holds(qint64 iMoment) const { return iBegin <= iMoment && iMoment < iEnd; }
    };

    Piece PieceAt(qint64 iMoment);
    /// Seconds of the week that the clock shows, 0 (Sunday 00:00:00) to 604799.
    int WeekSecond(qint64 iMoment);
    /// The same within a piece.
    static int WeekSecond(const Piece& piece, qint64 iMoment);
    QDateTime ToDateTime(qint64 iMoment) const;

    /// The moments at which a zone's clock shows this: none in an hour that is skipped, two, in order, in one
    /// that is repeated. Invalid dates and times are never shown.
    static QVector<QDateTime> MomentsOf(const QDate& date, const QTime& time, const QTimeZone& zone);

private:
    QDateTime m_like;
    QTimeZone m_zone; ///< invalid for a fixed offset
    std::vector<Piece> m_pieces;
};
