#include "scheme_services/evaluation/WeekCoverage.h"
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

AlarmSourceKey Key(const char* szSource, int32_t iType)
{
    return {QLatin1String(szSource), iType};
}

} // namespace

class TestWeekCoverage : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void nothingCoversNothing();
    void aSchemeArmedAllTheTimeCoversEveryHalfHour();
    void aSchemeSwitchedOffCoversNothing();
    void halfHoursThatAreTouchedOnlyInPartCountTheirSeconds();
    void theEndOfTheDayIsCovered();
    void overlappingRegionsCountOnce();
    void theDevicesSchemesAlone();
    void oneCategoryAlone();
    void bothFiltersTogether();
    void randomWeeksAreAsCountedOneByOne();
};

void TestWeekCoverage::nothingCoversNothing()
{
    const WeekCoverage coverage = WeekCoverage::Of({}, {});
    QCOMPARE(coverage.iSchemes, 0);
    for (int day = 0; day < 7; ++day) {
        for (int slot = 0; slot < WeekCoverage::SlotsOfDay; ++slot) {
            QCOMPARE(coverage.At(day, slot).iSeconds, int64_t{0});
            QCOMPARE(coverage.Fraction(day, slot), 0.0);
        }
    }
}

void TestWeekCoverage::aSchemeArmedAllTheTimeCoversEveryHalfHour()
{
    AlarmInfo info;
    info.bOpen = true;
    const WeekCoverage coverage =
        WeekCoverage::Of({{Key("1$1$0$2", 101), info}, {Key("1$1$0$2", 102), info}}, {});
    QCOMPARE(coverage.iEnabled, 2);
    for (int day = 0; day < 7; ++day) {
        for (int slot = 0; slot < WeekCoverage::SlotsOfDay; ++slot) {
            QCOMPARE(coverage.At(day, slot).iTouched, 2);
            QCOMPARE(coverage.At(day, slot).iThroughout, 2);
            QCOMPARE(coverage.Fraction(day, slot), 1.0);
        }
    }
}

void TestWeekCoverage::aSchemeSwitchedOffCoversNothing()
{
    const WeekCoverage coverage = WeekCoverage::Of({{Key("1$1$0$2", 101), AlarmInfo()}}, {});
    QCOMPARE(coverage.iSchemes, 1);
    QCOMPARE(coverage.iEnabled, 0);
    QCOMPARE(coverage.At(1, 0).iTouched, 0);
    QCOMPARE(coverage.Fraction(1, 0), 0.0);
}

void TestWeekCoverage::halfHoursThatAreTouchedOnlyInPartCountTheirSeconds()
{
    // Monday 08:10 to 09:10.
    AlarmInfoMap map{{Key("1$1$0$2", 101), Scheme(1, {{8 * 3600 + 600, 9 * 3600 + 600}})}};
    map.insert(Key("1$1$0$2", 102), Scheme(2, {{0, 60}}));
    const WeekCoverage coverage = WeekCoverage::Of(map, {});
    QCOMPARE(coverage.At(1, 15).iSeconds, int64_t{0});
    QCOMPARE(coverage.At(1, 16).iSeconds, int64_t{1200});
    QCOMPARE(coverage.At(1, 16).iTouched, 1);
    QCOMPARE(coverage.At(1, 16).iThroughout, 0);
    QCOMPARE(coverage.At(1, 17).iThroughout, 1);
    QCOMPARE(coverage.At(1, 18).iSeconds, int64_t{600});
    QCOMPARE(coverage.At(1, 19).iSeconds, int64_t{0});
    QCOMPARE(coverage.Fraction(1, 17), 0.5);
    QCOMPARE(coverage.Fraction(1, 18), 600.0 / 1800 / 2);
}

void TestWeekCoverage::theEndOfTheDayIsCovered()
{
    const WeekCoverage coverage =
        WeekCoverage::Of({{Key("1$1$0$2", 101), Scheme(6, {{23 * 3600, 86399}})}}, {});
    QCOMPARE(coverage.At(6, 46).iThroughout, 1);
    QCOMPARE(coverage.At(6, 47).iThroughout, 1);
    QCOMPARE(coverage.At(0, 0).iTouched, 0);
}

void TestWeekCoverage::overlappingRegionsCountOnce()
{
    const WeekCoverage coverage =
        WeekCoverage::Of({{Key("1$1$0$2", 101), Scheme(3, {{0, 3600}, {600, 3600}, {0, 1800}})}}, {});
    QCOMPARE(coverage.At(3, 0).iSeconds, int64_t{1800});
    QCOMPARE(coverage.At(3, 1).iSeconds, int64_t{1800});
    QCOMPARE(coverage.At(3, 2).iSeconds, int64_t{0});
}

void TestWeekCoverage::theDevicesSchemesAlone()
{
    AlarmInfo info;
    info.bOpen = true;
    const AlarmInfoMap map{{Key("1$1$0$2", 101), info},
                           {Key("1$1$0$-1", 22), info},
                           {Key("11$1$0$2", 101), info},
                           {Key("1", 101), info}};
    WeekCoverage::Filter filter;
    filter.deviceId = 1;
    QCOMPARE(WeekCoverage::Of(map, filter).iEnabled, 2);
    filter.deviceId = 2;
    QCOMPARE(WeekCoverage::Of(map, filter).iEnabled, 0);
}

void TestWeekCoverage::oneCategoryAlone()
{
    AlarmInfo info;
    info.bOpen = true;
    const AlarmInfoMap map{{Key("1$1$0$2", 101), info}, {Key("1$1$0$-1", 22), info},
                           {Key("1$1$0$2", 201), info}, {Key("1$1$0$2", 301), info},
                           {Key("1$1$0$2", 302), info}, {Key("1$3$1$3", 2), info},
                           {Key("1$1$0$2", 999), info}};
    const auto count = [&map](EventCategory category) {
        WeekCoverage::Filter filter;
        filter.category = category;
        return WeekCoverage::Of(map, filter).iEnabled;
    };
    QCOMPARE(count(EventCategory::Alarm), 2);
    QCOMPARE(count(EventCategory::Abnormal), 1);
    QCOMPARE(count(EventCategory::Normal), 2);
    QCOMPARE(count(EventCategory::AlarmInput), 1);
    QCOMPARE(count(EventCategory::Unknown), 1);
}

void TestWeekCoverage::bothFiltersTogether()
{
    AlarmInfo info;
    info.bOpen = true;
    const AlarmInfoMap map{
        {Key("1$1$0$2", 101), info}, {Key("1$1$0$2", 201), info}, {Key("5$1$0$6", 101), info}};
    QCOMPARE(WeekCoverage::Of(map, {1, EventCategory::Alarm}).iSchemes, 1);
}

void TestWeekCoverage::randomWeeksAreAsCountedOneByOne()
{
    constexpr quint32 seed = 7;
    QRandomGenerator random(seed);
    AlarmInfoMap map;
    std::vector<WeekOracle> oracles;
    for (int scheme = 0; scheme < 12; ++scheme) {
        AlarmInfo info;
        info.bOpen = true;
        info.defenceTime = WeekOracle::Random(random);
        // Some schemes share their week.
        for (int copy = 0; copy <= scheme % 3; ++copy) {
            map.insert({QStringLiteral("%1$1$0$%2").arg(scheme).arg(copy), 101}, info);
            oracles.emplace_back(info.defenceTime);
        }
    }
    const WeekCoverage coverage = WeekCoverage::Of(map, {});
    for (int day = 0; day < 7; ++day) {
        for (int slot = 0; slot < WeekCoverage::SlotsOfDay; ++slot) {
            WeekCoverage::Slot expected;
            for (const WeekOracle& oracle : oracles) {
                int seconds = 0;
                for (int second = 0; second < 1800; ++second)
                    seconds += oracle.IsArmed(day * WeekOracle::Day + slot * 1800 + second) ? 1 : 0;
                expected.iSeconds += seconds;
                expected.iTouched += seconds > 0 ? 1 : 0;
                expected.iThroughout += seconds == 1800 ? 1 : 0;
            }
            const WeekCoverage::Slot& found = coverage.At(day, slot);
            QVERIFY2(
                found.iSeconds == expected.iSeconds && found.iTouched == expected.iTouched &&
                    found.iThroughout == expected.iThroughout,
                qPrintable(QStringLiteral("seed %1, day %2, half hour %3").arg(seed).arg(day).arg(slot)));
        }
    }
}

QTEST_APPLESS_MAIN(TestWeekCoverage)
#include "tst_week_coverage.moc"
