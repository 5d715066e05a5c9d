#include "scheme_services/evaluation/ZoneClock.h"

#include <QTest>

namespace {

QDateTime Utc(const char* szText)
{
    QDateTime moment = QDateTime::fromString(QLatin1String(szText), Qt::ISODate);
    moment.setTimeSpec(Qt::UTC);
    return moment;
}

QVector<QDateTime> Moments(const char* szZone, const char* szText)
{
    const QDateTime shown = Utc(szText);
    return ZoneClock::MomentsOf(shown.date(), shown.time(), QTimeZone(szZone));
}

} // namespace

class TestZoneClock : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void theTestsHaveTheirZones();
    void secondsOfTheWeekCountFromSundayMidnight();
    void secondsBefore1970CountToo();
    void aPieceLastsFromOneChangeOfTheClockToTheNext();
    void aFixedOffsetNeverChanges();
    void anOrdinaryTimeIsShownOnce();
    void aSkippedTimeIsNeverShown();
    void aRepeatedTimeIsShownTwiceInOrder();
    void aHalfHourIsSkippedAndRepeatedToo();
    void aSkippedDayIsNeverShown();
    void invalidDatesAndTimesAreNeverShown();
    void momentsComeBackInTheirOwnZone();
};

void TestZoneClock::theTestsHaveTheirZones()
{
    for (const char* const zone :
         {"Europe/Berlin", "America/New_York", "Australia/Lord_Howe", "Pacific/Apia"})
        QVERIFY2(QTimeZone(zone).isValid(), zone);
}

void TestZoneClock::secondsOfTheWeekCountFromSundayMidnight()
{
    ZoneClock utc(Utc("2026-11-22T00:00:00"));
    QCOMPARE(utc.WeekSecond(Utc("2026-11-22T00:00:00").toSecsSinceEpoch()), 0);
    QCOMPARE(utc.WeekSecond(Utc("2026-11-21T23:59:59").toSecsSinceEpoch()), 7 * 86400 - 1);
    QCOMPARE(utc.WeekSecond(Utc("2026-11-23T08:30:00").toSecsSinceEpoch()), 86400 + 8 * 3600 + 30 * 60);
    ZoneClock berlin(QDateTime::fromSecsSinceEpoch(0, QTimeZone("Europe/Berlin")));
    QCOMPARE(berlin.WeekSecond(Utc("2026-11-21T23:00:00").toSecsSinceEpoch()), 0);
    QCOMPARE(berlin.WeekSecond(Utc("2026-07-18T22:00:00").toSecsSinceEpoch()), 0);
}

void TestZoneClock::secondsBefore1970CountToo()
{
    ZoneClock utc(Utc("1950-01-01T00:00:00"));
    // A Sunday.
    QCOMPARE(utc.WeekSecond(Utc("1950-01-01T00:00:00").toSecsSinceEpoch()), 0);
    QCOMPARE(utc.WeekSecond(Utc("1949-12-31T23:59:59").toSecsSinceEpoch()), 7 * 86400 - 1);
}

void TestZoneClock::aPieceLastsFromOneChangeOfTheClockToTheNext()
{
    ZoneClock clock(QDateTime::fromSecsSinceEpoch(0, QTimeZone("Europe/Berlin")));
    const qint64 spring = Utc("2026-03-29T01:00:00").toSecsSinceEpoch();
    const qint64 autumn = Utc("2026-10-25T01:00:00").toSecsSinceEpoch();
    for (const qint64 moment : {spring, (spring + autumn) / 2, autumn - 1}) {
        const ZoneClock::Piece piece = clock.PieceAt(moment);
        QCOMPARE(piece.iBegin, spring);
        QCOMPARE(piece.iEnd, autumn);
        QCOMPARE(piece.iOffset, 7200);
    }
    QCOMPARE(clock.PieceAt(spring - 1).iEnd, spring);
    QCOMPARE(clock.PieceAt(spring - 1).iOffset, 3600);
    QCOMPARE(clock.PieceAt(autumn).iBegin, autumn);
    QCOMPARE(clock.PieceAt(autumn).iOffset, 3600);
}

void TestZoneClock::aFixedOffsetNeverChanges()
{
    ZoneClock clock(QDateTime(QDate(2026, 6, 1), QTime(0, 0), Qt::OffsetFromUTC, -5400));
    for (const qint64 moment : {Q_INT64_C(-9000000000), Q_INT64_C(0), Q_INT64_C(9000000000)}) {
        QVERIFY(clock.PieceAt(moment).Holds(moment));
        QCOMPARE(clock.PieceAt(moment).iOffset, -5400);
        QCOMPARE(clock.PieceAt(moment).iEnd, std::numeric_limits<qint64>::max());
    }
}

void TestZoneClock::anOrdinaryTimeIsShownOnce()
{
    const QVector<QDateTime> moments = Moments("Europe/Berlin", "2026-11-23T08:30:00");
    QCOMPARE(moments.size(), 1);
    QCOMPARE(moments.constFirst().toUTC(), Utc("2026-11-23T07:30:00"));
    QCOMPARE(ZoneClock::MomentsOf(QDate(2026, 11, 23), QTime(8, 30), QTimeZone::utc()).size(), 1);
}

void TestZoneClock::aSkippedTimeIsNeverShown()
{
    for (const char* const text : {"2026-03-29T02:00:00", "2026-03-29T02:30:00", "2026-03-29T02:59:59"})
        QVERIFY2(Moments("Europe/Berlin", text).isEmpty(), text);
    QCOMPARE(Moments("Europe/Berlin", "2026-03-29T01:59:59").size(), 1);
    QCOMPARE(Moments("Europe/Berlin", "2026-03-29T03:00:00").size(), 1);
}

void TestZoneClock::aRepeatedTimeIsShownTwiceInOrder()
{
    for (const char* const text : {"2026-10-25T02:00:00", "2026-10-25T02:30:00", "2026-10-25T02:59:59"}) {
        const QVector<QDateTime> moments = Moments("Europe/Berlin", text);
        QCOMPARE(moments.size(), 2);
        QCOMPARE(moments.at(0).secsTo(moments.at(1)), Q_INT64_C(3600));
        QCOMPARE(moments.at(0).toUTC(), Utc(text).addSecs(-7200));
    }
    QCOMPARE(Moments("Europe/Berlin", "2026-10-25T01:59:59").size(), 1);
    QCOMPARE(Moments("Europe/Berlin", "2026-10-25T03:00:00").size(), 1);
    QCOMPARE(Moments("America/New_York", "2026-11-01T01:30:00").size(), 2);
}

void TestZoneClock::aHalfHourIsSkippedAndRepeatedToo()
{
    QVERIFY(Moments("Australia/Lord_Howe", "2026-10-04T02:15:00").isEmpty());
    const QVector<QDateTime> moments = Moments("Australia/Lord_Howe", "2026-04-05T01:45:00");
    QCOMPARE(moments.size(), 2);
    QCOMPARE(moments.at(0).secsTo(moments.at(1)), Q_INT64_C(1800));
}

void TestZoneClock::aSkippedDayIsNeverShown()
{
    QVERIFY(Moments("Pacific/Apia", "2011-12-30T12:00:00").isEmpty());
    QCOMPARE(Moments("Pacific/Apia", "2011-12-29T12:00:00").size(), 1);
    QCOMPARE(Moments("Pacific/Apia", "2011-12-31T12:00:00").size(), 1);
}

void TestZoneClock::invalidDatesAndTimesAreNeverShown()
{
    QVERIFY(ZoneClock::MomentsOf(QDate(2026, 2, 30), QTime(8, 0), QTimeZone::utc()).isEmpty());
    QVERIFY(ZoneClock::MomentsOf(QDate(2026, 2, 28), QTime(24, 0), QTimeZone::utc()).isEmpty());
    QVERIFY(ZoneClock::MomentsOf(QDate(2026, 2, 28), QTime(8, 0), QTimeZone("No/Where")).isEmpty());
}

void TestZoneClock::momentsComeBackInTheirOwnZone()
{
    const QDateTime berlin(QDate(2026, 7, 1), QTime(12, 0), QTimeZone("Europe/Berlin"));
    const QDateTime offset(QDate(2026, 7, 1), QTime(12, 0), Qt::OffsetFromUTC, 19800);
    const QDateTime local(QDate(2026, 7, 1), QTime(12, 0));
    const QDateTime utc = Utc("2026-07-01T12:00:00");
    for (const QDateTime& moment : {berlin, offset, local, utc}) {
        const QDateTime back = ZoneClock(moment).ToDateTime(moment.toSecsSinceEpoch());
        QCOMPARE(back, moment);
        QCOMPARE(back.timeSpec(), moment.timeSpec());
        QCOMPARE(back.offsetFromUtc(), moment.offsetFromUtc());
    }
}

QTEST_APPLESS_MAIN(TestZoneClock)
#include "tst_zone_clock.moc"
