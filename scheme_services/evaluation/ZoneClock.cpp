#include "scheme_services/evaluation/ZoneClock.h"

#include "scheme_services/evaluation/ArmedWeek.h"

#include <algorithm>

namespace {

/// 1970-01-01 was a Thursday.
constexpr qint64 EpochDay = 4;

/// No clock is further from UTC, and none is put further.
constexpr qint64 WidestOffset = qint64(2) * ArmedWeek::DaySeconds;

QTimeZone ZoneOf(const QDateTime& like)
{
    switch (like.timeSpec()) {
    case Qt::TimeZone:
        return like.timeZone();
    case Qt::LocalTime:
        return QTimeZone::systemTimeZone();
    case Qt::UTC:
    case Qt::OffsetFromUTC:
        break;
    }
    return {};
}

QDateTime Utc(qint64 iMoment)
{
    return QDateTime::fromSecsSinceEpoch(iMoment, Qt::UTC);
}

} // namespace

ZoneClock::ZoneClock(const QDateTime& like)
    : m_like(like)
    , m_zone(ZoneOf(like))
{
}

ZoneClock::Piece ZoneClock::PieceAt(qint64 iMoment)
{
    const auto known = std::find_if(m_pieces.begin(), m_pieces.end(),
                                    [iMoment](const Piece& piece) { return piece.Holds(iMoment); });
    if (known != m_pieces.end())
        return *known;
    Piece piece;
    piece.iOffset = m_zone.isValid() ? m_zone.offsetFromUtc(Utc(iMoment)) : m_like.offsetFromUtc();
    if (m_zone.isValid() && m_zone.hasTransitions()) {
        const QTimeZone::OffsetData last = m_zone.previousTransition(Utc(iMoment + 1));
        if (last.atUtc.isValid())
            piece.iBegin = last.atUtc.toSecsSinceEpoch();
        const QTimeZone::OffsetData next = m_zone.nextTransition(Utc(iMoment));
        if (next.atUtc.isValid())
            piece.iEnd = next.atUtc.toSecsSinceEpoch();
    }
    m_pieces.push_back(piece);
    return piece;
}

int ZoneClock::WeekSecond(qint64 iMoment)
{
    return WeekSecond(PieceAt(iMoment), iMoment);
}

int ZoneClock::WeekSecond(const Piece& piece, qint64 iMoment)
{
    constexpr qint64 week = ArmedWeek::WeekSeconds;
    const qint64 second = (iMoment + piece.iOffset + EpochDay * ArmedWeek::DaySeconds) % week;
    return static_cast<int>(second < 0 ? second + week : second);
}

QDateTime ZoneClock::ToDateTime(qint64 iMoment) const
{
    switch (m_like.timeSpec()) {
    case Qt::TimeZone:
        return QDateTime::fromSecsSinceEpoch(iMoment, m_zone);
    case Qt::OffsetFromUTC:
        return QDateTime::fromSecsSinceEpoch(iMoment, Qt::OffsetFromUTC, m_like.offsetFromUtc());
    case Qt::UTC:
    case Qt::LocalTime:
        break;
    }
    return QDateTime::fromSecsSinceEpoch(iMoment, m_like.timeSpec());
}

QVector<QDateTime> ZoneClock::MomentsOf(const QDate& date, const QTime& time, const QTimeZone& zone)
{
    if (!date.isValid() || !time.isValid() || !zone.isValid())
        return {};
    const qint64 shown = QDateTime(date, time, Qt::UTC).toSecsSinceEpoch();
    ZoneClock clock(QDateTime::fromSecsSinceEpoch(0, zone));
    QVector<QDateTime> moments;
    // Every piece that can show it, each of which shows it once at most.
    for (qint64 at = shown - WidestOffset;;) {
        const Piece piece = clock.PieceAt(at);
        const qint64 moment = shown - piece.iOffset;
        if (piece.Holds(moment))
            moments.append(clock.ToDateTime(moment));
        if (piece.iEnd > shown + WidestOffset)
            return moments;
        at = piece.iEnd;
    }
}
