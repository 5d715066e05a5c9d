#include "scheme_services/evaluation/ArmedWeek.h"
#include "tests/scheme_evaluation/WeekOracle.h"

#include <QTest>

#include <limits>

namespace {

constexpr int s_day = ArmedWeek::DaySeconds;

AlarmWeek Empty()
{
    AlarmWeek week;
    for (int day = 0; day < 7; ++day)
        week[day].clear();
    return week;
}

AlarmWeek With(int iDay, const AlarmDefenceTime_t& regions)
{
    AlarmWeek week = Empty();
    week[iDay] = regions;
    return week;
}

} // namespace

class TestArmedWeek : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void aFreshWeekIsArmedAllTheTime();
    void aWeekWithoutRegionsIsNeverArmed();
    void aRegionCoversItsBeginAndNotItsEnd();
    void anEndAtTheLastSecondLastsThroughTheEndOfTheDay();
    void beginEqualToEndCoversNothing();
    void touchingRegionsLeaveNoGap();
    void midnightLeavesNoGap();
    void theWeeksEndLeavesNoGap();
    void overlappingAndUnsortedRegionsCountOnce();
    void whatTheStoreWouldNotLoadCoversNothing_data();
    void whatTheStoreWouldNotLoadCoversNothing();
    void nothingLiesBeyondTheEndOfTheDay();
    void distancesToChangesGoAroundTheWeek();
    void everySecondOfRandomWeeksIsAsCountedOneByOne();
};

void TestArmedWeek::aFreshWeekIsArmedAllTheTime()
{
    const ArmedWeek week{AlarmWeek()};
    QVERIFY(week.IsAlways());
    QVERIFY(!week.IsNever());
    QVERIFY(week.IsArmed(0));
    QVERIFY(week.IsArmed(ArmedWeek::WeekSeconds - 1));
    QVERIFY(!week.ToNextChange(12345));
    QVERIFY(!week.SinceLastChange(12345));
}

void TestArmedWeek::aWeekWithoutRegionsIsNeverArmed()
{
    const ArmedWeek week(Empty());
    QVERIFY(week.IsNever());
    QVERIFY(!week.IsAlways());
    QVERIFY(!week.IsArmed(0));
    QVERIFY(!week.ToNextChange(0));
    QVERIFY(!week.SinceLastChange(0));
}

void TestArmedWeek::aRegionCoversItsBeginAndNotItsEnd()
{
    const AlarmWeek plan = With(2, {{3600, 7200}});
    const ArmedWeek week(plan);
    const int tuesday = 2 * s_day;
    QVERIFY(!week.IsArmed(tuesday + 3599));
    QVERIFY(week.IsArmed(tuesday + 3600));
    QVERIFY(week.IsArmed(tuesday + 7199));
    QVERIFY(!week.IsArmed(tuesday + 7200));
    QVERIFY(!week.IsArmed(tuesday + s_day + 3600));
    QVERIFY(ArmedWeek::IsArmed(plan, 2, 3600));
    QVERIFY(!ArmedWeek::IsArmed(plan, 2, 7200));
    QVERIFY(!ArmedWeek::IsArmed(plan, 1, 3600));
}

void TestArmedWeek::anEndAtTheLastSecondLastsThroughTheEndOfTheDay()
{
    const ArmedWeek week(With(2, {{86000, 86399}}));
    QVERIFY(week.IsArmed(3 * s_day - 1));
    QVERIFY(!week.IsArmed(3 * s_day));
    // One second earlier is an end like any other.
    QVERIFY(!ArmedWeek(With(2, {{86000, 86398}})).IsArmed(3 * s_day - 1));
}

void TestArmedWeek::beginEqualToEndCoversNothing()
{
    for (const int second : {0, 1, 43200, 86398, 86399})
        QVERIFY(ArmedWeek(With(0, {{second, second}})).IsNever());
}

void TestArmedWeek::touchingRegionsLeaveNoGap()
{
    const ArmedWeek week(With(1, {{0, 3600}, {3600, 7200}, {7200, 9000}}));
    QCOMPARE(week.Changes(), (std::vector<int>{s_day, s_day + 9000}));
}

void TestArmedWeek::midnightLeavesNoGap()
{
    AlarmWeek plan = With(1, {{80000, 86399}});
    plan[2] = {{0, 4000}};
    const ArmedWeek week(plan);
    QCOMPARE(week.Changes(), (std::vector<int>{s_day + 80000, 2 * s_day + 4000}));
}

void TestArmedWeek::theWeeksEndLeavesNoGap()
{
    AlarmWeek plan = With(6, {{80000, 86399}});
    plan[0] = {{0, 4000}};
    const ArmedWeek week(plan);
    QCOMPARE(week.Changes(), (std::vector<int>{4000, 6 * s_day + 80000}));
    QVERIFY(week.IsArmed(ArmedWeek::WeekSeconds - 1));
    QVERIFY(week.IsArmed(0));
    QCOMPARE(*week.ToNextChange(ArmedWeek::WeekSeconds - 1), 4001);
    QCOMPARE(*week.SinceLastChange(0), s_day - 80000);
    // Saturday's end by itself is a change of Sunday's first second.
    const ArmedWeek saturday(With(6, {{80000, 86399}}));
    QVERIFY(saturday.IsArmed(ArmedWeek::WeekSeconds - 1));
    QVERIFY(!saturday.IsArmed(0));
    QCOMPARE(*saturday.ToNextChange(ArmedWeek::WeekSeconds - 1), 1);
    QCOMPARE(*saturday.SinceLastChange(0), 0);
}

void TestArmedWeek::overlappingAndUnsortedRegionsCountOnce()
{
    const ArmedWeek week(With(0, {{7000, 9000}, {100, 8000}, {200, 300}, {20000, 30000}}));
    QCOMPARE(week.Changes(), (std::vector<int>{100, 9000, 20000, 30000}));
}

void TestArmedWeek::whatTheStoreWouldNotLoadCoversNothing_data()
{
    QTest::addColumn<int>("begin");
    QTest::addColumn<int>("end");
    QTest::newRow("reversed") << 7200 << 3600;
    QTest::newRow("negative begin") << -1 << 3600;
    QTest::newRow("all negative") << -10 << -5;
    QTest::newRow("the extremes") << std::numeric_limits<int>::min() << std::numeric_limits<int>::max();
    QTest::newRow("the extremes reversed")
        << std::numeric_limits<int>::max() << std::numeric_limits<int>::min();
    QTest::newRow("of another day") << 86400 << 90000;
}

void TestArmedWeek::whatTheStoreWouldNotLoadCoversNothing()
{
    QFETCH(int, begin);
    QFETCH(int, end);
    QVERIFY(ArmedWeek(With(3, {{begin, end}})).IsNever());
    for (const int second : {0, 3600, 7200, 86399})
        QVERIFY(!ArmedWeek::IsArmed(With(3, {{begin, end}}), 3, second));
}

void TestArmedWeek::nothingLiesBeyondTheEndOfTheDay()
{
    for (const int end : {86399, 86400, 90000, std::numeric_limits<int>::max()})
        QCOMPARE(ArmedWeek(With(1, {{86390, end}})).Changes(), (std::vector<int>{2 * s_day - 10, 2 * s_day}));
}

void TestArmedWeek::distancesToChangesGoAroundTheWeek()
{
    const ArmedWeek week(With(3, {{3600, 7200}}));
    const int begin = 3 * s_day + 3600;
    QCOMPARE(*week.ToNextChange(begin - 1), 1);
    QCOMPARE(*week.ToNextChange(begin), 3600);
    QCOMPARE(*week.SinceLastChange(begin), 0);
    QCOMPARE(*week.SinceLastChange(begin + 3600), 0);
    QCOMPARE(*week.ToNextChange(begin + 3600), ArmedWeek::WeekSeconds - 3600);
    QCOMPARE(*week.SinceLastChange(begin - 1), ArmedWeek::WeekSeconds - 3601);
}

void TestArmedWeek::everySecondOfRandomWeeksIsAsCountedOneByOne()
{
    for (quint32 seed = 1; seed <= 8; ++seed) {
        QRandomGenerator random(seed);
        const AlarmWeek plan = WeekOracle::Random(random);
        const WeekOracle oracle(plan);
        const ArmedWeek week(plan);
        const auto fail = [seed](int iSecond) {
            return QStringLiteral("seed %1, second %2").arg(seed).arg(iSecond).toUtf8();
        };
        // Around the week backwards for the next change, and forwards for the last one.
        int next = -1;
        for (int second = 2 * WeekOracle::Week - 1; second >= 0; --second) {
            const int here = second % WeekOracle::Week;
            const bool armed = oracle.IsArmed(here);
            if (armed != oracle.IsArmed((here + 1) % WeekOracle::Week))
                next = second + 1;
            if (second >= WeekOracle::Week)
                continue;
            if (week.IsArmed(here) != armed || ArmedWeek::IsArmed(plan, here / s_day, here % s_day) != armed)
                QFAIL(fail(here).constData());
            if (week.ToNextChange(here) != (next < 0 ? std::nullopt : std::optional(next - second)))
                QFAIL(fail(here).constData());
        }
        int last = -1;
        for (int second = 0; second < 2 * WeekOracle::Week; ++second) {
            const int here = second % WeekOracle::Week;
            if (oracle.IsArmed(here) != oracle.IsArmed((here + WeekOracle::Week - 1) % WeekOracle::Week))
                last = second;
            if (second >= WeekOracle::Week &&
                week.SinceLastChange(here) != (last < 0 ? std::nullopt : std::optional(second - last)))
                QFAIL(fail(here).constData());
        }
    }
}

QTEST_APPLESS_MAIN(TestArmedWeek)
#include "tst_armed_week.moc"
