#include "scheme_services/evaluation/SchemeMoment.h"
#include "tests/scheme_evaluation/WeekOracle.h"

#include <QTest>

namespace {

AlarmInfo Scheme(int iDay, const AlarmDefenceTime_t& regions)
{
    AlarmInfo info;
    info.bOpen = true;
    for (int day = 0; day < 7; ++day)
        info.defenceTime[day] = day == iDay ? regions : AlarmDefenceTime_t();
    return info;
}

constexpr int s_sunday = 0;
constexpr int s_monday = 1;
constexpr int s_hour = 3600;
constexpr qint64 s_threeHours = 10800;

QTimeZone Berlin()
{
    return QTimeZone("Europe/Berlin");
}

/// A moment by the clock of UTC, looked at in the zone.
QDateTime At(const char* szUtc, const QTimeZone& zone)
{
    QDateTime moment = QDateTime::fromString(QLatin1String(szUtc), Qt::ISODate);
    moment.setTimeSpec(Qt::UTC);
    return moment.toTimeZone(zone);
}

qint64 Seconds(const char* szUtc)
{
    return At(szUtc, QTimeZone::utc()).toSecsSinceEpoch();
}

/// The clock of a zone and a plan, every second by itself.
class ZoneOracle
{
public:
    ZoneOracle(const AlarmWeek& week, const QTimeZone& zone, qint64 iFirst, qint64 iLast)
        : m_week(week)
        , m_iFirst(iFirst)
    {
        int offset = 0;
        for (qint64 moment = iFirst; moment <= iLast; ++moment) {
            // No zone changes its clock at any other time than a full quarter of an hour.
            if (moment == iFirst || moment % 900 == 0)
                offset = zone.offsetFromUtc(QDateTime::fromSecsSinceEpoch(moment, Qt::UTC));
            const qint64 shown = moment + offset;
            const int day = QDate::fromJulianDay(2440588 + shown / 86400).dayOfWeek() % 7;
            m_armed.push_back(m_week.IsArmed(day * 86400 + static_cast<int>(shown % 86400)));
        }
    }

    bool IsArmed(qint64 iMoment) const { return m_armed[static_cast<std::size_t>(iMoment - m_iFirst)]; }

private:
    WeekOracle m_week;
    qint64 m_iFirst;
    std::vector<bool> m_armed;
};

} // namespace

class TestSchemeMoment : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void nothingIsNoScheme();
    void aDisabledSchemeIsSwitchedOff();
    void aSchemeIsArmedSinceAndUntil();
    void outsideItsRegionsASchemeIsNotArmed();
    void aSchemeThatIsAlwaysArmedHasNoChange();
    void aSchemeWithoutRegionsHasNoChange();
    void theArmedTimeGoesOnOverMidnightAndTheWeeksEnd();
    void fractionsOfASecondDoNotCount();
    void anInvalidTimeArmsNothing();
    void aSkippedHourNeverArms();
    void aRegionAroundTheSkippedHourIsShorter();
    void regionsOnBothSidesOfTheSkippedHourMeet();
    void aRepeatedHourArmsTwice();
    void aWholeRepeatedHourIsArmedForTwoHours();
    void changesAreFoundOverAChangeOfTheClock();
    void schemesThatShareTheirWeekAreAnsweredAlike();
    void everySecondOfAWeekIsAsCountedOneByOne();
    void everySecondAroundAChangeOfTheClockIsAsCountedOneByOne_data();
    void everySecondAroundAChangeOfTheClockIsAsCountedOneByOne();
};

void TestSchemeMoment::nothingIsNoScheme()
{
    SchemeMoment moment(At("2026-11-23T08:30:00", Berlin()));
    const SchemeState state = moment.Evaluate(nullptr);
    QCOMPARE(state.verdict, SchemeVerdict::NoScheme);
    QVERIFY(!state.since && !state.nextChange);
    QCOMPARE(moment.Judge(nullptr), SchemeVerdict::NoScheme);
}

void TestSchemeMoment::aDisabledSchemeIsSwitchedOff()
{
    AlarmInfo info = Scheme(s_monday, {{0, 86399}});
    info.bOpen = false;
    SchemeMoment moment(At("2026-11-23T08:30:00", Berlin()));
    const SchemeState state = moment.Evaluate(&info);
    QCOMPARE(state.verdict, SchemeVerdict::SwitchedOff);
    QVERIFY(!state.since && !state.nextChange);
}

void TestSchemeMoment::aSchemeIsArmedSinceAndUntil()
{
    const AlarmInfo info = Scheme(s_monday, {{8 * s_hour, 12 * s_hour}});
    SchemeMoment moment(At("2026-11-23T07:30:00", Berlin()));
    const SchemeState state = moment.Evaluate(&info);
    QCOMPARE(state.verdict, SchemeVerdict::Armed);
    QCOMPARE(*state.since, Seconds("2026-11-23T07:00:00"));
    QCOMPARE(*state.nextChange, Seconds("2026-11-23T11:00:00"));
    QCOMPARE(moment.ToDateTime(*state.since).time(), QTime(8, 0));
}

void TestSchemeMoment::outsideItsRegionsASchemeIsNotArmed()
{
    const AlarmInfo info = Scheme(s_monday, {{8 * s_hour, 12 * s_hour}});
    for (const char* const utc : {"2026-11-23T11:00:00", "2026-11-30T06:59:59"}) {
        SchemeMoment moment(At(utc, Berlin()));
        const SchemeState state = moment.Evaluate(&info);
        QCOMPARE(state.verdict, SchemeVerdict::NotArmed);
        QCOMPARE(*state.since, Seconds("2026-11-23T11:00:00"));
        QCOMPARE(*state.nextChange, Seconds("2026-11-30T07:00:00"));
    }
}

void TestSchemeMoment::aSchemeThatIsAlwaysArmedHasNoChange()
{
    AlarmInfo info;
    info.bOpen = true;
    SchemeMoment moment(At("2026-10-25T00:30:00", Berlin()));
    const SchemeState state = moment.Evaluate(&info);
    QCOMPARE(state.verdict, SchemeVerdict::Armed);
    QVERIFY(!state.since && !state.nextChange);
}

void TestSchemeMoment::aSchemeWithoutRegionsHasNoChange()
{
    const AlarmInfo info = Scheme(s_monday, {});
    SchemeMoment moment(At("2026-11-23T08:30:00", Berlin()));
    const SchemeState state = moment.Evaluate(&info);
    QCOMPARE(state.verdict, SchemeVerdict::NotArmed);
    QVERIFY(!state.since && !state.nextChange);
}

void TestSchemeMoment::theArmedTimeGoesOnOverMidnightAndTheWeeksEnd()
{
    AlarmInfo info = Scheme(s_sunday, {{0, s_hour}});
    info.defenceTime[6] = {{23 * s_hour, 86399}};
    for (const char* const utc : {"2026-11-21T22:00:00", "2026-11-21T22:59:59", "2026-11-21T23:00:00"}) {
        SchemeMoment moment(At(utc, Berlin()));
        const SchemeState state = moment.Evaluate(&info);
        QCOMPARE(state.verdict, SchemeVerdict::Armed);
        QCOMPARE(*state.since, Seconds("2026-11-21T22:00:00"));
        QCOMPARE(*state.nextChange, Seconds("2026-11-22T00:00:00"));
    }
}

void TestSchemeMoment::fractionsOfASecondDoNotCount()
{
    const AlarmInfo info = Scheme(s_monday, {{8 * s_hour, 12 * s_hour}});
    const QDateTime end = At("2026-11-23T11:00:00", Berlin());
    QCOMPARE(SchemeMoment(end.addMSecs(-1)).Judge(&info), SchemeVerdict::Armed);
    QCOMPARE(SchemeMoment(end).Judge(&info), SchemeVerdict::NotArmed);
    // Monday, 1 January 1968.
    const QDateTime early = At("1968-01-01T12:00:00", QTimeZone::utc());
    QCOMPARE(SchemeMoment(early.addMSecs(-1)).Judge(&info), SchemeVerdict::Armed);
    QCOMPARE(SchemeMoment(early).Judge(&info), SchemeVerdict::NotArmed);
}

void TestSchemeMoment::anInvalidTimeArmsNothing()
{
    AlarmInfo info;
    info.bOpen = true;
    SchemeMoment moment{QDateTime()};
    QCOMPARE(moment.Judge(&info), SchemeVerdict::NotArmed);
    const SchemeState state = moment.Evaluate(&info);
    QCOMPARE(state.verdict, SchemeVerdict::NotArmed);
    QVERIFY(!state.since && !state.nextChange);
}

void TestSchemeMoment::aSkippedHourNeverArms()
{
    // On 29 March 2026 the clock of Berlin goes from 2 to 3 at 1:00 UTC.
    const AlarmInfo info = Scheme(s_sunday, {{2 * s_hour, 3 * s_hour}});
    for (const char* const utc : {"2026-03-29T00:59:59", "2026-03-29T01:00:00", "2026-03-29T01:30:00"}) {
        SchemeMoment moment(At(utc, Berlin()));
        const SchemeState state = moment.Evaluate(&info);
        QCOMPARE(state.verdict, SchemeVerdict::NotArmed);
        QCOMPARE(*state.since, Seconds("2026-03-22T02:00:00"));
        // A week later the hour is there again, in summer time.
        QCOMPARE(*state.nextChange, Seconds("2026-04-05T00:00:00"));
    }
}

void TestSchemeMoment::aRegionAroundTheSkippedHourIsShorter()
{
    const AlarmInfo info = Scheme(s_sunday, {{s_hour, 4 * s_hour}});
    SchemeMoment moment(At("2026-03-29T01:00:00", Berlin()));
    const SchemeState state = moment.Evaluate(&info);
    QCOMPARE(state.verdict, SchemeVerdict::Armed);
    QCOMPARE(*state.since, Seconds("2026-03-29T00:00:00"));
    QCOMPARE(*state.nextChange, Seconds("2026-03-29T02:00:00"));
    // One that ends within the skipped hour ends where the clock jumps.
    const AlarmInfo cut = Scheme(s_sunday, {{s_hour, 2 * s_hour + 1800}});
    SchemeMoment before(At("2026-03-29T00:30:00", Berlin()));
    QCOMPARE(*before.Evaluate(&cut).nextChange, Seconds("2026-03-29T01:00:00"));
    // And one that begins within it begins there.
    const AlarmInfo late = Scheme(s_sunday, {{2 * s_hour + 1800, 4 * s_hour}});
    SchemeMoment after(At("2026-03-29T01:30:00", Berlin()));
    QCOMPARE(*after.Evaluate(&late).since, Seconds("2026-03-29T01:00:00"));
}

void TestSchemeMoment::regionsOnBothSidesOfTheSkippedHourMeet()
{
    const AlarmInfo info = Scheme(s_sunday, {{s_hour, 2 * s_hour}, {3 * s_hour, 4 * s_hour}});
    for (const char* const utc : {"2026-03-29T00:30:00", "2026-03-29T01:30:00"}) {
        SchemeMoment moment(At(utc, Berlin()));
        const SchemeState state = moment.Evaluate(&info);
        QCOMPARE(*state.since, Seconds("2026-03-29T00:00:00"));
        QCOMPARE(*state.nextChange, Seconds("2026-03-29T02:00:00"));
    }
}

void TestSchemeMoment::aRepeatedHourArmsTwice()
{
    // On 25 October 2026 the clock of Berlin goes from 3 back to 2 at 1:00 UTC.
    const AlarmInfo info = Scheme(s_sunday, {{2 * s_hour + 900, 2 * s_hour + 2700}});
    SchemeMoment first(At("2026-10-25T00:30:00", Berlin()));
    const SchemeState early = first.Evaluate(&info);
    QCOMPARE(early.verdict, SchemeVerdict::Armed);
    QCOMPARE(*early.since, Seconds("2026-10-25T00:15:00"));
    QCOMPARE(*early.nextChange, Seconds("2026-10-25T00:45:00"));
    SchemeMoment between(At("2026-10-25T00:50:00", Berlin()));
    QCOMPARE(between.Evaluate(&info).verdict, SchemeVerdict::NotArmed);
    QCOMPARE(*between.Evaluate(&info).nextChange, Seconds("2026-10-25T01:15:00"));
    SchemeMoment second(At("2026-10-25T01:30:00", Berlin()));
    const SchemeState late = second.Evaluate(&info);
    QCOMPARE(late.verdict, SchemeVerdict::Armed);
    QCOMPARE(*late.since, Seconds("2026-10-25T01:15:00"));
    QCOMPARE(*late.nextChange, Seconds("2026-10-25T01:45:00"));
}

void TestSchemeMoment::aWholeRepeatedHourIsArmedForTwoHours()
{
    const AlarmInfo info = Scheme(s_sunday, {{2 * s_hour, 3 * s_hour}});
    for (const char* const utc : {"2026-10-25T00:00:00", "2026-10-25T01:59:59"}) {
        SchemeMoment moment(At(utc, Berlin()));
        const SchemeState state = moment.Evaluate(&info);
        QCOMPARE(state.verdict, SchemeVerdict::Armed);
        QCOMPARE(*state.since, Seconds("2026-10-25T00:00:00"));
        QCOMPARE(*state.nextChange, Seconds("2026-10-25T02:00:00"));
    }
}

void TestSchemeMoment::changesAreFoundOverAChangeOfTheClock()
{
    const AlarmInfo info = Scheme(s_monday, {{8 * s_hour, 12 * s_hour}});
    SchemeMoment moment(At("2026-10-24T12:00:00", Berlin()));
    const SchemeState state = moment.Evaluate(&info);
    QCOMPARE(*state.since, Seconds("2026-10-19T10:00:00"));
    QCOMPARE(*state.nextChange, Seconds("2026-10-26T07:00:00"));
}

void TestSchemeMoment::schemesThatShareTheirWeekAreAnsweredAlike()
{
    AlarmInfo info = Scheme(s_monday, {{8 * s_hour, 12 * s_hour}});
    SchemeMoment moment(At("2026-11-23T07:30:00", Berlin()));
    QCOMPARE(moment.Evaluate(&info).verdict, SchemeVerdict::Armed);
    AlarmInfo off = info;
    off.bOpen = false;
    QCOMPARE(moment.Evaluate(&off).verdict, SchemeVerdict::SwitchedOff);
    const AlarmInfo copy = info;
    QCOMPARE(*moment.Evaluate(&copy).since, *moment.Evaluate(&info).since);
    // A week that is changed is another one, whatever its memory was.
    for (int hour = 8; hour < 24; ++hour) {
        info.defenceTime[s_monday] = {{hour * s_hour, 86399}};
        QCOMPARE(moment.Evaluate(&info).verdict, hour <= 8 ? SchemeVerdict::Armed : SchemeVerdict::NotArmed);
    }
}

void TestSchemeMoment::everySecondOfAWeekIsAsCountedOneByOne()
{
    const qint64 sunday = Seconds("2026-11-22T00:00:00");
    for (quint32 seed = 100; seed < 102; ++seed) {
        QRandomGenerator random(seed);
        AlarmInfo info;
        info.bOpen = true;
        info.defenceTime = WeekOracle::Random(random);
        const WeekOracle oracle(info.defenceTime);
        qint64 change = -1;
        for (int second = 2 * WeekOracle::Week - 1; second >= 0; --second) {
            const int here = second % WeekOracle::Week;
            if (oracle.IsArmed(here) != oracle.IsArmed((here + 1) % WeekOracle::Week))
                change = sunday + second + 1;
            if (second >= WeekOracle::Week)
                continue;
            SchemeMoment moment(QDateTime::fromSecsSinceEpoch(sunday + second, Qt::UTC));
            const SchemeState state = moment.Evaluate(&info);
            if ((state.verdict == SchemeVerdict::Armed) != oracle.IsArmed(here) ||
                state.nextChange.value_or(-1) != change)
                QFAIL(qPrintable(QStringLiteral("seed %1, second %2").arg(seed).arg(second)));
        }
    }
}

void TestSchemeMoment::everySecondAroundAChangeOfTheClockIsAsCountedOneByOne_data()
{
    QTest::addColumn<QByteArray>("zone");
    QTest::addColumn<qint64>("change");
    QTest::newRow("Berlin, spring") << QByteArray("Europe/Berlin") << Seconds("2026-03-29T01:00:00");
    QTest::newRow("Berlin, autumn") << QByteArray("Europe/Berlin") << Seconds("2026-10-25T01:00:00");
    QTest::newRow("New York, spring") << QByteArray("America/New_York") << Seconds("2026-03-08T07:00:00");
    QTest::newRow("half an hour") << QByteArray("Australia/Lord_Howe") << Seconds("2026-04-04T15:00:00");
    QTest::newRow("no change") << QByteArray("Asia/Kolkata") << Seconds("2026-03-29T01:00:00");
}

void TestSchemeMoment::everySecondAroundAChangeOfTheClockIsAsCountedOneByOne()
{
    QFETCH(QByteArray, zone);
    QFETCH(qint64, change);
    const QTimeZone timeZone(zone);
    QVERIFY(timeZone.isValid());
    constexpr qint64 day = 86400;
    for (quint32 seed = 200; seed < 202; ++seed) {
        QRandomGenerator random(seed);
        AlarmInfo info;
        info.bOpen = true;
        info.defenceTime = WeekOracle::Random(random);
        const qint64 first = change - 10 * day;
        const qint64 last = change + 10 * day;
        const ZoneOracle oracle(info.defenceTime, timeZone, first, last);
        // The change of the clock lies in the middle of these hours.
        const qint64 begin = change - s_threeHours;
        const qint64 end = change + s_threeHours;
        qint64 since = begin;
        while (oracle.IsArmed(since - 1) == oracle.IsArmed(begin))
            --since;
        qint64 next = begin;
        for (qint64 second = begin; second < end; ++second) {
            if (oracle.IsArmed(second) != oracle.IsArmed(second - 1))
                since = second;
            if (next <= second) {
                next = second + 1;
                while (oracle.IsArmed(next) == oracle.IsArmed(second))
                    ++next;
            }
            SchemeMoment moment(QDateTime::fromSecsSinceEpoch(second, timeZone));
            const SchemeState state = moment.Evaluate(&info);
            if ((state.verdict == SchemeVerdict::Armed) != oracle.IsArmed(second) || state.since != since ||
                state.nextChange != next)
                QFAIL(qPrintable(
                    QStringLiteral("seed %1, %2 s after the change").arg(seed).arg(second - change)));
        }
        // The whole week, by the verdict alone.
        for (qint64 second = change - 4 * day; second < change + 4 * day; second += 61) {
            const SchemeMoment moment(QDateTime::fromSecsSinceEpoch(second, timeZone));
            if ((moment.Judge(&info) == SchemeVerdict::Armed) != oracle.IsArmed(second))
                QFAIL(qPrintable(
                    QStringLiteral("seed %1, %2 s after the change").arg(seed).arg(second - change)));
        }
    }
}

QTEST_APPLESS_MAIN(TestSchemeMoment)
#include "tst_scheme_moment.moc"
