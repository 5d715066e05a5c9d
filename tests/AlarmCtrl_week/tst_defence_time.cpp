#include "AlarmCtrl/DefenceTime.h"
#include "tests/AlarmCtrl_week/DayBits.h"
#include "tests/AlarmCtrl_week/DayTexts.h"

#include <QObject>
#include <QRandomGenerator>
#include <QTest>

#include <limits>

using namespace DayTexts;
using DefenceTime::Drag;
using DefenceTime::Merge;
using DefenceTime::MergeStatus;
using DefenceTime::Rounding;

namespace {

constexpr int32_t Lowest = std::numeric_limits<int32_t>::min();
constexpr int32_t Highest = std::numeric_limits<int32_t>::max();

Drag Painting(int from, int to)
{
    return {from, to, false};
}

Drag Erasing(int from, int to)
{
    return {from, to, true};
}

} // namespace

#define COMPARE_REGIONS(actual, ...) QCOMPARE(Text(actual), Text(AlarmDefenceTime_t __VA_ARGS__))

class tst_DefenceTime : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void snapsToTheQuarterHour_data();
    void snapsToTheQuarterHour();
    void columnsBecomeSeconds_data();
    void columnsBecomeSeconds();
    void secondsBecomeColumns_data();
    void secondsBecomeColumns();
    void secondsAndColumnsAgreeWithinOnePixelAtEveryWidth();

    void aClickBetweenMarksCoversItsQuarterHour();
    void aClickOnAMarkCoversNothing();
    void theDirectionOfADragDoesNotMatter();
    void hoverTestsTheSnappedRegionWithBothEdges();
    void hoverFindsARegionAnywhereInTheList();

    void aClickBetweenMarksPaintsTheQuarterHour();
    void aClickOnAMarkSucceedsAndChangesNothing();
    void paintingFromEdgeToEdgeArmsTheWholeDay();
    void paintingNextToARegionFusesWithIt();
    void paintingBeforeARegionFusesWithIt();
    void paintingInsideARegionChangesNothingVisible();
    void paintingOverAGapClosesIt();
    void paintingOverEverythingLeavesOneRegion();
    void paintingKeepsTheSecondsOfUntouchedRegions();
    void paintingIsRefusedOnTouchingStoredRegions_data();
    void paintingIsRefusedOnTouchingStoredRegions();
    void aSeventhRegionIsRefused();
    void paintingThatFusesIsAcceptedWithSixRegions();

    void erasingCutsARegionInTwo();
    void erasingTheSplitIsRefusedWithSixRegions();
    void erasingComparesStoredSecondsUnrounded();
    void erasingTrimsAndDropsRegions();
    void erasingUpToARegionLeavesIt();
    void erasingWorksOnTouchingStoredRegions();
    void erasingCanBringALongListBackToSix();

    void aLongListRefusesPaintingAndStays();
    void brokenListsAreMergedWithoutACrash_data();
    void brokenListsAreMergedWithoutACrash();
    void mergingNeverInventsSecondsOutsideTheDay();

    void overlappingRowsAreFused();
    void touchingRowsAreFused();
    void rowsAreSortedAndUnusedOnesDropped();
    void equalRowsComeBackOnce();
    void noRowsGiveNoRegions();
    void typedRowsMayTouchWherePaintingRefuses();
    void theFirstReversedRowIsFound();
    void aRowOfNoLengthIsNotReversed();

    void everyDayHasItsBit();
    void aNameEndsInItsDay_data();
    void aNameEndsInItsDay();

    void randomDragsAgreeWithTheBitsOfTheDay_data();
    void randomDragsAgreeWithTheBitsOfTheDay();
    void randomRowsAgreeWithTheBitsOfTheDay();
    void randomGarbageNeverCrashesOrGrowsPastTheLimit();
};

void tst_DefenceTime::snapsToTheQuarterHour_data()
{
    QTest::addColumn<int>("second");
    QTest::addColumn<int>("down");
    QTest::addColumn<int>("up");
    QTest::newRow("midnight") << 0 << 0 << 0;
    QTest::newRow("one second past") << 1 << 0 << 900;
    QTest::newRow("one second before a mark") << 899 << 0 << 900;
    QTest::newRow("on a mark") << 900 << 900 << 900;
    QTest::newRow("10:07") << 36420 << 36000 << 36900;
    QTest::newRow("last mark") << 85500 << 85500 << 85500;
    QTest::newRow("into the last quarter") << 85501 << 85500 << 86399;
    QTest::newRow("last second") << 86399 << 85500 << 86399;
    QTest::newRow("next midnight") << 86400 << 86399 << 86399;
    QTest::newRow("largest") << int{Highest} << 86399 << 86399;
    QTest::newRow("just before midnight") << -1 << 0 << 0;
    QTest::newRow("negative mark") << -900 << -900 << -900;
    QTest::newRow("smallest") << int{Lowest} << -2147482800 << -2147482800;
}

void tst_DefenceTime::snapsToTheQuarterHour()
{
    QFETCH(int, second);
    QTEST(int{DefenceTime::SnapToQuarter(second, Rounding::Down)}, "down");
    QTEST(int{DefenceTime::SnapToQuarter(second, Rounding::Up)}, "up");
}

void tst_DefenceTime::columnsBecomeSeconds_data()
{
    QTest::addColumn<int>("x");
    QTest::addColumn<int>("width");
    QTest::addColumn<int>("second");
    QTest::newRow("left edge") << 0 << 504 << 0;
    QTest::newRow("left of it") << -1 << 504 << 0;
    QTest::newRow("right edge") << 504 << 504 << 86399;
    QTest::newRow("right of it") << 505 << 504 << 86399;
    QTest::newRow("middle") << 252 << 504 << 43199;  // 43199.5
    QTest::newRow("one hour") << 21 << 504 << 3599;  // 3599.95…
    QTest::newRow("a third") << 100 << 300 << 28799; // 28799.67
    QTest::newRow("no width") << 10 << 0 << 0;
    QTest::newRow("negative width") << 10 << -5 << 0;
    QTest::newRow("wide") << 2000000000 << 2000000000 << 86399;
    QTest::newRow("half of wide") << 1000000000 << 2000000000 << 43199;
    QTest::newRow("far left") << int{Lowest} << 504 << 0;
    QTest::newRow("far right") << int{Highest} << 504 << 86399;
}

void tst_DefenceTime::columnsBecomeSeconds()
{
    QFETCH(int, x);
    QFETCH(int, width);
    QTEST(int{DefenceTime::PixelToSecs(x, width)}, "second");
}

void tst_DefenceTime::secondsBecomeColumns_data()
{
    QTest::addColumn<int>("second");
    QTest::addColumn<int>("width");
    QTest::addColumn<int>("x");
    QTest::newRow("midnight") << 0 << 504 << 0;
    QTest::newRow("negative") << -1 << 504 << 0;
    QTest::newRow("last second") << 86399 << 504 << 504;
    QTest::newRow("one before it") << 86398 << 504 << 503;
    QTest::newRow("beyond the day") << 86400 << 504 << 504;
    QTest::newRow("noon") << 43200 << 504 << 252;  // 252.0029
    QTest::newRow("08:00") << 28800 << 504 << 168; // 168.0019
    QTest::newRow("00:15") << 900 << 504 << 5;     // 5.25
    QTest::newRow("no width") << 900 << 0 << 0;
    QTest::newRow("negative width") << 90000 << -3 << 0;
    QTest::newRow("wide") << 86398 << 2000000000 << 1999976851; // 2e9 less 23148.4…
    QTest::newRow("smallest") << int{Lowest} << 504 << 0;
    QTest::newRow("largest") << int{Highest} << 504 << 504;
}

void tst_DefenceTime::secondsBecomeColumns()
{
    QFETCH(int, second);
    QFETCH(int, width);
    QTEST(DefenceTime::SecsToPixel(second, width), "x");
}

void tst_DefenceTime::secondsAndColumnsAgreeWithinOnePixelAtEveryWidth()
{
    for (int width = 200; width <= 504; ++width) {
        for (int x = 0; x <= width; ++x) {
            const int back = DefenceTime::SecsToPixel(DefenceTime::PixelToSecs(x, width), width);
            QVERIFY2(back == x || back == x - 1, qPrintable(QStringLiteral("%1 of %2").arg(x).arg(width)));
        }
        for (int second = 0; second <= 86399; second += 7) {
            const int back = DefenceTime::PixelToSecs(DefenceTime::SecsToPixel(second, width), width);
            // One pixel of this width in seconds, rounded up, is the most that truncation can lose.
            QVERIFY2(
                back <= second && (second - back - 1) * width <= 86399,
                qPrintable(QStringLiteral("%1 s at %2 px came back as %3").arg(second).arg(width).arg(back)));
        }
    }
}

void tst_DefenceTime::aClickBetweenMarksCoversItsQuarterHour()
{
    const AlarmTimeRegion span = DefenceTime::SnappedSpan(Painting(36420, 36420));
    QCOMPARE(span.Begin, 36000);
    QCOMPARE(span.End, 36900);
}

void tst_DefenceTime::aClickOnAMarkCoversNothing()
{
    const AlarmTimeRegion span = DefenceTime::SnappedSpan(Painting(36000, 36000));
    QCOMPARE(span.Begin, span.End);
}

void tst_DefenceTime::theDirectionOfADragDoesNotMatter()
{
    const AlarmTimeRegion right = DefenceTime::SnappedSpan(Painting(30000, 40000));
    const AlarmTimeRegion left = DefenceTime::SnappedSpan(Painting(40000, 30000));
    QCOMPARE(right.Begin, 29700);
    QCOMPARE(right.End, 40500);
    QVERIFY(left == right);
}

void tst_DefenceTime::hoverTestsTheSnappedRegionWithBothEdges()
{
    const AlarmDefenceTime_t regions{{8 * Hour + 5, 9 * Hour + 5}}; // drawn from 08:00 to 09:15
    QVERIFY(!DefenceTime::IsOnRegion(regions, 8 * Hour - 1));
    QVERIFY(DefenceTime::IsOnRegion(regions, 8 * Hour));
    QVERIFY(DefenceTime::IsOnRegion(regions, 9 * Hour + 15 * Minute));
    QVERIFY(!DefenceTime::IsOnRegion(regions, 9 * Hour + 15 * Minute + 1));
}

void tst_DefenceTime::hoverFindsARegionAnywhereInTheList()
{
    QVERIFY(DefenceTime::IsOnRegion(SixRegions(), 11 * Hour + 1));
    QVERIFY(!DefenceTime::IsOnRegion(SixRegions(), 10 * Hour + 1));
    QVERIFY(!DefenceTime::IsOnRegion({}, 0));
}

void tst_DefenceTime::aClickBetweenMarksPaintsTheQuarterHour()
{
    const auto result = Merge({}, Painting(10 * Hour + 7 * Minute, 10 * Hour + 7 * Minute));
    QVERIFY(result.status == MergeStatus::Changed);
    COMPARE_REGIONS(result.regions, {{36000, 36900}});
}

void tst_DefenceTime::aClickOnAMarkSucceedsAndChangesNothing()
{
    for (const bool erase : {false, true}) {
        const auto result = Merge(SixRegions(), {36000, 36000, erase});
        QVERIFY(result.status == MergeStatus::Unchanged);
        QVERIFY(result.Succeeded());
        QCOMPARE(Text(result.regions), Text(SixRegions()));
    }
}

void tst_DefenceTime::paintingFromEdgeToEdgeArmsTheWholeDay()
{
    COMPARE_REGIONS(Merge({}, Painting(0, 86399)).regions, {{0, 86399}});
}

void tst_DefenceTime::paintingNextToARegionFusesWithIt()
{
    COMPARE_REGIONS(Merge({{8 * Hour, 9 * Hour}}, Painting(9 * Hour, 10 * Hour)).regions,
                    {{8 * Hour, 10 * Hour}});
}

void tst_DefenceTime::paintingBeforeARegionFusesWithIt()
{
    COMPARE_REGIONS(Merge({{9 * Hour, 10 * Hour}}, Painting(8 * Hour, 9 * Hour)).regions,
                    {{8 * Hour, 10 * Hour}});
}

void tst_DefenceTime::paintingInsideARegionChangesNothingVisible()
{
    const auto result =
        Merge({{8 * Hour, 10 * Hour}}, Painting(8 * Hour + 30 * Minute, 8 * Hour + 45 * Minute));
    QVERIFY(result.Succeeded());
    COMPARE_REGIONS(result.regions, {{8 * Hour, 10 * Hour}});
}

void tst_DefenceTime::paintingOverAGapClosesIt()
{
    COMPARE_REGIONS(Merge({{1 * Hour, 2 * Hour}, {3 * Hour, 4 * Hour}}, Painting(2 * Hour, 3 * Hour)).regions,
                    {{1 * Hour, 4 * Hour}});
}

void tst_DefenceTime::paintingOverEverythingLeavesOneRegion()
{
    COMPARE_REGIONS(Merge(SixRegions(), Painting(0, 86399)).regions, {{0, 86399}});
}

void tst_DefenceTime::paintingKeepsTheSecondsOfUntouchedRegions()
{
    COMPARE_REGIONS(Merge({{1, 2}, {50000, 50001}}, Painting(36420, 36420)).regions,
                    {{1, 2}, {36000, 36900}, {50000, 50001}});
}

void tst_DefenceTime::paintingIsRefusedOnTouchingStoredRegions_data()
{
    QTest::addColumn<int>("from");
    QTest::addColumn<int>("to");
    QTest::newRow("before") << 1 * Hour << 2 * Hour;
    QTest::newRow("touching the first") << 7 * Hour << 8 * Hour;
    QTest::newRow("inside the first") << 8 * Hour + 900 << 8 * Hour + 1800;
    QTest::newRow("up to the seam") << 8 * Hour << 9 * Hour;
    QTest::newRow("over the seam") << 8 * Hour + 900 << 9 * Hour + 900;
    QTest::newRow("from the seam") << 9 * Hour << 10 * Hour;
    QTest::newRow("exactly both") << 8 * Hour << 10 * Hour;
    QTest::newRow("over both") << 7 * Hour << 11 * Hour;
    QTest::newRow("behind") << 20 * Hour << 21 * Hour;
    QTest::newRow("the whole day") << 0 << 86399;
}

void tst_DefenceTime::paintingIsRefusedOnTouchingStoredRegions()
{
    QFETCH(int, from);
    QFETCH(int, to);
    const AlarmDefenceTime_t stored{{8 * Hour, 9 * Hour}, {9 * Hour, 10 * Hour}};
    const auto result = Merge(stored, Painting(from, to));
    QVERIFY(result.status == MergeStatus::Inconsistent);
    QVERIFY(!result.Succeeded());
    QCOMPARE(Text(result.regions), Text(stored));
}

void tst_DefenceTime::aSeventhRegionIsRefused()
{
    const auto result = Merge(SixRegions(), Painting(20 * Hour, 21 * Hour));
    QVERIFY(result.status == MergeStatus::TooManyRegions);
    QVERIFY(!result.Succeeded());
    QCOMPARE(Text(result.regions), Text(SixRegions()));
}

void tst_DefenceTime::paintingThatFusesIsAcceptedWithSixRegions()
{
    AlarmDefenceTime_t expected = SixRegions();
    expected.last().End = 13 * Hour;
    const auto result = Merge(SixRegions(), Painting(12 * Hour, 13 * Hour));
    QVERIFY(result.Succeeded());
    QCOMPARE(Text(result.regions), Text(expected));
}

void tst_DefenceTime::erasingCutsARegionInTwo()
{
    COMPARE_REGIONS(Merge({{8 * Hour, 12 * Hour}}, Erasing(10 * Hour, 11 * Hour)).regions,
                    {{8 * Hour, 10 * Hour}, {11 * Hour, 12 * Hour}});
}

void tst_DefenceTime::erasingTheSplitIsRefusedWithSixRegions()
{
    AlarmDefenceTime_t stored = SixRegions();
    stored.last().End = 15 * Hour;
    const auto result = Merge(stored, Erasing(13 * Hour, 14 * Hour));
    QVERIFY(result.status == MergeStatus::TooManyRegions);
    QCOMPARE(Text(result.regions), Text(stored));
}

void tst_DefenceTime::erasingComparesStoredSecondsUnrounded()
{
    COMPARE_REGIONS(Merge({{8 * Hour + 1, 9 * Hour - 1}}, Erasing(8 * Hour + 900, 8 * Hour + 1800)).regions,
                    {{8 * Hour + 1, 8 * Hour + 900}, {8 * Hour + 1800, 9 * Hour - 1}});
}

void tst_DefenceTime::erasingTrimsAndDropsRegions()
{
    COMPARE_REGIONS(
        Merge({{1 * Hour, 3 * Hour}, {4 * Hour, 5 * Hour}, {6 * Hour, 8 * Hour}}, Erasing(2 * Hour, 7 * Hour))
            .regions,
        {{1 * Hour, 2 * Hour}, {7 * Hour, 8 * Hour}});
    COMPARE_REGIONS(Merge({{4 * Hour, 5 * Hour}}, Erasing(4 * Hour, 5 * Hour)).regions, {});
}

void tst_DefenceTime::erasingUpToARegionLeavesIt()
{
    const AlarmDefenceTime_t stored{{8 * Hour, 9 * Hour}};
    QCOMPARE(Text(Merge(stored, Erasing(7 * Hour, 8 * Hour)).regions), Text(stored));
    QCOMPARE(Text(Merge(stored, Erasing(9 * Hour, 10 * Hour)).regions), Text(stored));
}

void tst_DefenceTime::erasingWorksOnTouchingStoredRegions()
{
    const auto result = Merge({{8 * Hour, 9 * Hour}, {9 * Hour, 10 * Hour}},
                              Erasing(8 * Hour + 30 * Minute, 9 * Hour + 30 * Minute));
    QVERIFY(result.Succeeded());
    COMPARE_REGIONS(result.regions,
                    {{8 * Hour, 8 * Hour + 30 * Minute}, {9 * Hour + 30 * Minute, 10 * Hour}});
}

void tst_DefenceTime::erasingCanBringALongListBackToSix()
{
    AlarmDefenceTime_t stored = SixRegions();
    stored.append({20 * Hour, 21 * Hour});
    const auto result = Merge(stored, Erasing(20 * Hour, 21 * Hour));
    QVERIFY(result.Succeeded());
    QCOMPARE(Text(result.regions), Text(SixRegions()));
    QVERIFY(Merge(stored, Erasing(15 * Hour, 16 * Hour)).status == MergeStatus::TooManyRegions);
}

void tst_DefenceTime::aLongListRefusesPaintingAndStays()
{
    AlarmDefenceTime_t stored = SixRegions();
    stored.append({20 * Hour, 21 * Hour});
    const auto result = Merge(stored, Painting(15 * Hour, 16 * Hour));
    QVERIFY(result.status == MergeStatus::TooManyRegions);
    QCOMPARE(Text(result.regions), Text(stored));
}

void tst_DefenceTime::brokenListsAreMergedWithoutACrash_data()
{
    QTest::addColumn<AlarmDefenceTime_t>("stored");
    QTest::addColumn<int>("status");
    const auto row = [](const char* name, const AlarmDefenceTime_t& stored, MergeStatus status) {
        QTest::newRow(name) << stored << static_cast<int>(status);
    };
    // Painted over is 10:00 to 11:00.
    row("unsorted", {{20 * Hour, 21 * Hour}, {1 * Hour, 2 * Hour}}, MergeStatus::Changed);
    row("overlapping", {{1 * Hour, 3 * Hour}, {2 * Hour, 4 * Hour}}, MergeStatus::Changed);
    row("negative", {{-500, -100}}, MergeStatus::Changed);
    row("beyond the day", {{86400, 90000}}, MergeStatus::Changed);
    row("extreme", {{Lowest, Highest}}, MergeStatus::Changed);
    row("no length", {{5000, 5000}}, MergeStatus::Inconsistent);
    row("eight, two of them fused",
        AlarmDefenceTime_t(SixRegions()) << AlarmTimeRegion{60000, 61000} << AlarmTimeRegion{70000, 80000},
        MergeStatus::TooManyRegions);
}

void tst_DefenceTime::brokenListsAreMergedWithoutACrash()
{
    QFETCH(AlarmDefenceTime_t, stored);
    const auto result = Merge(stored, Painting(10 * Hour, 11 * Hour));
    QTEST(static_cast<int>(result.status), "status");
    if (!result.Succeeded()) {
        QCOMPARE(Text(result.regions), Text(stored));
    }
}

void tst_DefenceTime::mergingNeverInventsSecondsOutsideTheDay()
{
    COMPARE_REGIONS(Merge({}, Painting(Highest, 50000)).regions, {{49500, 86399}});
    COMPARE_REGIONS(Merge({{0, 86399}}, Erasing(86399, 86399)).regions, {{0, 85500}});
}

void tst_DefenceTime::overlappingRowsAreFused()
{
    COMPARE_REGIONS(DefenceTime::FuseRows({{8 * Hour, 10 * Hour}, {9 * Hour + 30 * Minute, 11 * Hour}}),
                    {{28800, 39600}});
}

void tst_DefenceTime::touchingRowsAreFused()
{
    COMPARE_REGIONS(DefenceTime::FuseRows({{8 * Hour, 9 * Hour}, {9 * Hour, 10 * Hour}}), {{28800, 36000}});
    COMPARE_REGIONS(DefenceTime::FuseRows({{9 * Hour, 10 * Hour}, {8 * Hour, 9 * Hour}}), {{28800, 36000}});
}

void tst_DefenceTime::rowsAreSortedAndUnusedOnesDropped()
{
    COMPARE_REGIONS(
        DefenceTime::FuseRows({{500, 501}, {0, 0}, {7, 9}, {36000, 36000}, {40, 30}, {86398, 86399}}),
        {{7, 9}, {500, 501}, {86398, 86399}});
}

void tst_DefenceTime::equalRowsComeBackOnce()
{
    COMPARE_REGIONS(DefenceTime::FuseRows({{5, 9}, {5, 9}, {5, 9}}), {{5, 9}});
}

void tst_DefenceTime::noRowsGiveNoRegions()
{
    COMPARE_REGIONS(DefenceTime::FuseRows({}), {});
    COMPARE_REGIONS(DefenceTime::FuseRows({{0, 0}, {0, 0}}), {});
}

void tst_DefenceTime::typedRowsMayTouchWherePaintingRefuses()
{
    const AlarmDefenceTime_t touching{{8 * Hour, 9 * Hour}, {9 * Hour, 10 * Hour}};
    COMPARE_REGIONS(DefenceTime::FuseRows(touching), {{8 * Hour, 10 * Hour}});
    QVERIFY(Merge(touching, Painting(20 * Hour, 21 * Hour)).status == MergeStatus::Inconsistent);
}

void tst_DefenceTime::theFirstReversedRowIsFound()
{
    QCOMPARE(DefenceTime::FirstReversedRow({{0, 0}, {1, 2}, {12 * Hour, 11 * Hour}, {5, 4}}), 3);
    QCOMPARE(DefenceTime::FirstReversedRow({{1, 0}}), 1);
}

void tst_DefenceTime::aRowOfNoLengthIsNotReversed()
{
    QCOMPARE(DefenceTime::FirstReversedRow({{36000, 36000}, {0, 0}}), 0);
    QCOMPARE(DefenceTime::FirstReversedRow({}), 0);
}

void tst_DefenceTime::everyDayHasItsBit()
{
    int all = 0;
    for (int day = 0; day < 7; ++day) {
        all += DefenceTime::DayBit(day);
    }
    QCOMPARE(all, 127);
    QCOMPARE(DefenceTime::DayBit(0), 1);
    QCOMPARE(DefenceTime::DayBit(6), 64);
    QCOMPARE(DefenceTime::DayBit(-1), 0);
    QCOMPARE(DefenceTime::DayBit(7), 0);
    QCOMPARE(DefenceTime::DayBit(int{Lowest}), 0);
}

void tst_DefenceTime::aNameEndsInItsDay_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<int>("bit");
    QTest::newRow("Sunday") << QStringLiteral("editor0") << 1;
    QTest::newRow("Wednesday") << QStringLiteral("editor3") << 8;
    QTest::newRow("Saturday") << QStringLiteral("editor6") << 64;
    QTest::newRow("only the last digit counts") << QStringLiteral("editor12") << 4;
    QTest::newRow("seven") << QStringLiteral("editor7") << 0;
    QTest::newRow("nine") << QStringLiteral("editor9") << 0;
    QTest::newRow("letter") << QStringLiteral("QAlarmDayEditor") << 0;
    QTest::newRow("sign") << QStringLiteral("editor-") << 0;
    QTest::newRow("foreign digit") << QString(QChar(0x0661)) << 0;
    QTest::newRow("empty") << QString() << 0;
}

void tst_DefenceTime::aNameEndsInItsDay()
{
    QFETCH(QString, name);
    QTEST(DefenceTime::DayBitOfName(name), "bit");
}

void tst_DefenceTime::randomDragsAgreeWithTheBitsOfTheDay_data()
{
    QTest::addColumn<quint32>("seed");
    for (int i = 0; i < 8; ++i) {
        const quint32 seed = QRandomGenerator::global()->generate();
        QTest::newRow(qPrintable(QStringLiteral("seed %1").arg(seed))) << seed;
    }
}

void tst_DefenceTime::randomDragsAgreeWithTheBitsOfTheDay()
{
    QFETCH(quint32, seed);
    QRandomGenerator random(seed);
    for (int start = 0; start < 20; ++start) {
        // A valid start to the second, not on the grid: typed rows make one.
        AlarmDefenceTime_t rows;
        const int count = random.bounded(7);
        for (int i = 0; i < count; ++i) {
            const int begin = random.bounded(86399);
            rows.append({begin, qMin(86399, begin + random.bounded(1, 20000))});
        }
        AlarmDefenceTime_t regions = DefenceTime::FuseRows(rows);
        DayBits armed(regions);
        int accepted = 0;
        int refused = 0;
        for (int step = 0; step < 100; ++step) {
            const int press = random.bounded(86400);
            const int reach = random.bounded(4) == 0 ? 86400 : 6000;
            const int current = qBound(0, press + random.bounded(-reach, reach), 86399);
            const Drag drag{press, current, random.bounded(2) == 1};
            DayBits wanted = armed;
            const auto [begin, end] = DayBits::Quarters(qMin(press, current), qMax(press, current));
            drag.bErase ? wanted.Disarm(begin, end) : wanted.Arm(begin, end);

            const auto result = Merge(regions, drag);
            const QString where = QStringLiteral("seed %1, start %2, step %3, %4 %5..%6 on %7")
                                      .arg(seed)
                                      .arg(start)
                                      .arg(step)
                                      .arg(drag.bErase ? QStringLiteral("erase") : QStringLiteral("paint"))
                                      .arg(press)
                                      .arg(current)
                                      .arg(Text(regions));
            QVERIFY2(result.Succeeded() == (wanted.Runs() <= 6), qPrintable(where));
            if (result.Succeeded()) {
                ++accepted;
                QVERIFY2(DayBits(result.regions) == wanted, qPrintable(where));
                QVERIFY2(Unsoundness(result.regions).isEmpty(), qPrintable(where));
                regions = result.regions;
                armed = wanted;
            } else {
                ++refused;
                QVERIFY2(result.status == MergeStatus::TooManyRegions, qPrintable(where));
                QVERIFY2(result.regions == regions, qPrintable(where));
            }
        }
        QVERIFY2(accepted > refused, "the drags hardly tried anything that works");
    }
}

void tst_DefenceTime::randomRowsAgreeWithTheBitsOfTheDay()
{
    const quint32 seed = QRandomGenerator::global()->generate();
    QRandomGenerator random(seed);
    for (int round = 0; round < 2000; ++round) {
        // Few different seconds, so that rows often touch, overlap and repeat.
        const int step = random.bounded(2) == 0 ? 1 : 9000;
        const int limit = 86399 / step;
        AlarmDefenceTime_t rows;
        for (int i = 0; i < 6; ++i) {
            rows.append({random.bounded(limit) * step, random.bounded(limit) * step});
        }
        const AlarmDefenceTime_t fused = DefenceTime::FuseRows(rows);
        const QString where = QStringLiteral("seed %1, %2 became %3").arg(seed).arg(Text(rows), Text(fused));
        QVERIFY2(DayBits(fused) == DayBits(rows), qPrintable(where));
        QVERIFY2(Unsoundness(fused).isEmpty(), qPrintable(where));
    }
}

void tst_DefenceTime::randomGarbageNeverCrashesOrGrowsPastTheLimit()
{
    const quint32 seed = QRandomGenerator::global()->generate();
    QRandomGenerator random(seed);
    const auto anything = [&random] { return static_cast<int32_t>(random.generate()); };
    for (int round = 0; round < 5000; ++round) {
        AlarmDefenceTime_t stored;
        const int count = random.bounded(20);
        for (int i = 0; i < count; ++i) {
            stored.append(random.bounded(2) == 0
                              ? AlarmTimeRegion{anything(), anything()}
                              : AlarmTimeRegion{random.bounded(90000), random.bounded(90000)});
        }
        const auto result = Merge(stored, {anything(), anything(), random.bounded(2) == 1});
        QVERIFY2(result.Succeeded() ? result.status == MergeStatus::Unchanged || result.regions.size() <= 6
                                    : result.regions == stored,
                 qPrintable(QStringLiteral("seed %1: %2").arg(seed).arg(Text(stored))));
    }
}

QTEST_MAIN(tst_DefenceTime)
#include "tst_defence_time.moc"
