#include "tools/MomentArgument.h"

#include "scheme_services/evaluation/ZoneClock.h"

#include <QRegularExpression>
#include <QTimeZone>

namespace {

MomentArgument Refused(const QString& strProblem)
{
    MomentArgument argument;
    argument.strProblem = strProblem;
    return argument;
}

/// Seconds ahead of UTC that "Z", "+01:00" or "-0330" say.
int OffsetOf(const QRegularExpressionMatch& match)
{
    const int seconds = match.captured(QStringLiteral("hours")).toInt() * 3600 +
                        match.captured(QStringLiteral("minutes")).toInt() * 60;
    return match.captured(QStringLiteral("sign")) == QLatin1String("-") ? -seconds : seconds;
}

} // namespace

MomentArgument MomentArgument::Parse(const QString& strText, const QString& strZone)
{
    const QTimeZone zone = strZone.isEmpty() ? QTimeZone::systemTimeZone() : QTimeZone(strZone.toUtf8());
    if (!zone.isValid())
        return Refused(tr("There is no time zone \"%1\".").arg(strZone));
    static const QRegularExpression form(
        QStringLiteral("\\A(?<date>[0-9]{4}-[0-9]{2}-[0-9]{2})[T "
                       "](?<hour>[0-9]{2}):(?<minute>[0-9]{2})(?::(?<second>[0-9]{2}))?"
                       "(?<zone>Z|(?<sign>[+-])(?<hours>[0-9]{2}):?(?<minutes>[0-5][0-9]))?\\z"));
    const QRegularExpressionMatch match = form.match(strText);
    const QDate date = QDate::fromString(match.captured(QStringLiteral("date")), Qt::ISODate);
    const auto number = [&match](const QString& strName) { return match.captured(strName).toInt(); };
    const QTime time(number(QStringLiteral("hour")), number(QStringLiteral("minute")),
                     number(QStringLiteral("second")));
    const int offset = OffsetOf(match);
    constexpr int widest = 14 * 3600;
    if (!match.hasMatch() || !date.isValid() || !time.isValid() || offset < -widest || offset > widest) {
        return Refused(
            tr("\"%1\" is no date and time; they are written like 2026-11-23T08:30.").arg(strText));
    }
    MomentArgument argument;
    if (match.capturedLength(QStringLiteral("zone")) > 0) {
        argument.at = QDateTime(date, time, Qt::OffsetFromUTC, offset).toTimeZone(zone);
        return argument;
    }
    const QVector<QDateTime> moments = ZoneClock::MomentsOf(date, time, zone);
    if (moments.isEmpty()) {
        return Refused(
            tr("The clock skips %1 in the time zone %2.").arg(strText, QString::fromUtf8(zone.id())));
    }
    argument.at = moments.constFirst();
    argument.bTwice = moments.size() > 1;
    return argument;
}
