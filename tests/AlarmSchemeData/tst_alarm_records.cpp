#include "AlarmCtrl/AlarmSchemeData/AlarmInfo.h"

#include <QtTest>

#include <limits>
#include <memory>
#include <optional>
#include <utility>

#if defined(__has_feature)
#if __has_feature(address_sanitizer)
#define ACS_HEAP_IS_WATCHED
#endif
#endif
#if defined(__SANITIZE_ADDRESS__)
#define ACS_HEAP_IS_WATCHED
#endif
#if defined(__GLIBC__) && !defined(ACS_HEAP_IS_WATCHED)
#if __GLIBC_PREREQ(2, 33)
#include <malloc.h>
#define ACS_HEAP_CAN_BE_MEASURED
#endif
#endif

namespace {

/// Bytes handed out by the heap, its own bookkeeping included; nothing where the heap cannot be asked.
std::optional<size_t> HeapInUse()
{
#ifdef ACS_HEAP_CAN_BE_MEASURED
    const struct mallinfo2 info = mallinfo2();
    return info.uordblks + info.hblkhd;
#else
    return std::nullopt;
#endif
}

/// What one default scheme must cost by its parts: the map's node, the key's text, and the heap's bookkeeping
/// for both.
size_t ComputedBytes(const QString& key)
{
    constexpr size_t bookkeeping = 16;
#if QT_VERSION < QT_VERSION_CHECK(6, 0, 0)
    constexpr size_t textHead = sizeof(QStringData);
    constexpr size_t node = sizeof(QMapNode<AlarmSourceKey, AlarmInfo>);
#else
    // A node of the standard library's map: colour, parent and two children beside the pair.
    constexpr size_t textHead = sizeof(QArrayData);
    constexpr size_t node = 4 * sizeof(void*) + sizeof(std::pair<const AlarmSourceKey, AlarmInfo>);
#endif
    const size_t text = textHead + (static_cast<size_t>(key.size()) + 1) * sizeof(QChar);
    return node + bookkeeping + text + bookkeeping;
}

AlarmInfo WithOneLinkEach()
{
    AlarmInfo info;
    info.listAlarmOut.append(AlarmLinkAlarmOut());
    info.listDoor.append(AlarmLinkDoor());
    info.videoSplit.videoLinks.insert(0, AlarmLinkVideo());
    return info;
}

} // namespace

Q_DECLARE_METATYPE(AlarmInfo)

class AlarmRecordsTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void aFreshSchemeIsDisabledAndArmedAllDayOnAllSevenDays();
    void aFreshSchemeHasNoLinksAndAnEmptySplit();
    void aFreshCellIsEnabledAndOneUnitWide();
    void aFreshAlarmOutLinkSwitchesOnForTwentySeconds();
    void aFreshVideoLinkOpensForTwentySecondsWithoutPresetAndStream();
    void aFreshDoorLinkDoesNotKeepTheDoorOpen();
    void keysSortByTextFirstThenByType();
    void keysOfOneSourceAndTwoTypesAreTwoSchemes();
    void keyTextsCompareCaseSensitively();
    void freshRecordsShareTheirWeekAndCells();
    void readingDoesNotEndTheSharing();
    void writingToACopyLeavesTheOriginal();
    void writingToTheOriginalLeavesTheCopy();
    void writingADayLeavesFreshWeeksFresh();
    void writingACellLeavesFreshCellsFresh();
    void aMovedFromRecordIsUsable();
    void assigningARecordToItselfKeepsIt();
    void aCopiedLinkListIsIndependent();
    void equalContentIsEqualWithoutSharing();
    void aDifferenceInAnyFieldIsSeen_data();
    void aDifferenceInAnyFieldIsSeen();
    void usedCellsAreBoundedAndFormedInWideNumbers_data();
    void usedCellsAreBoundedAndFormedInWideNumbers();
    void theWeekPlanOfADayIsAMetaTypeByName();
    void aDefaultSchemeInAMapTakesAtMostTwoHundredBytes();
};

void AlarmRecordsTest::aFreshSchemeIsDisabledAndArmedAllDayOnAllSevenDays()
{
    const AlarmInfo info;
    QVERIFY(!info.bOpen && !info.bOpenSound && !info.bEmapTwinkle && !info.bSendEmail);
    for (int day = 0; day < AlarmWeek::DayCount; ++day) {
        QCOMPARE(info.defenceTime[day].size(), 1);
        QCOMPARE(info.defenceTime[day].at(0).Begin, 0);
        QCOMPARE(info.defenceTime[day].at(0).End, 24 * 60 * 60 - 1);
        QCOMPARE(info.defenceTime.data() + day, &info.defenceTime[day]);
    }
}

void AlarmRecordsTest::aFreshSchemeHasNoLinksAndAnEmptySplit()
{
    const AlarmInfo info;
    QVERIFY(info.listAlarmOut.isEmpty() && info.listDoor.isEmpty() && info.videoSplit.videoLinks.isEmpty());
    QCOMPARE(info.videoSplit.SplitRow, 0);
    QCOMPARE(info.videoSplit.SplitCloum, 0);
    QCOMPARE(info.videoSplit.SplitCount, 0);
    QCOMPARE(info.videoSplit.UsedCells(), 0);
}

void AlarmRecordsTest::aFreshCellIsEnabledAndOneUnitWide()
{
    const AlarmSplitCells cells;
    for (int window = 0; window < AlarmSplitCells::CellCount; ++window) {
        const AlarmSplitWindow& cell = cells[window];
        QVERIFY(cell.bEnable);
        QCOMPARE(cell.iCombine, 0);
        QVERIFY(cell.X1 == 0 && cell.Y1 == 0 && cell.X2 == 1 && cell.Y2 == 1);
    }
}

void AlarmRecordsTest::aFreshAlarmOutLinkSwitchesOnForTwentySeconds()
{
    const AlarmLinkAlarmOut link;
    QVERIFY(link.strLinkAlarmID.isEmpty() && link.bAutoOpen);
    QCOMPARE(link.Time, 20);
}

void AlarmRecordsTest::aFreshVideoLinkOpensForTwentySecondsWithoutPresetAndStream()
{
    const AlarmLinkVideo link;
    QVERIFY(link.strLinkDevID.isEmpty() && link.bOpen && !link.bRecord);
    QCOMPARE(link.Preposition, -1);
    QCOMPARE(link.StreamType, -1);
    QCOMPARE(link.Time, 20);
}

void AlarmRecordsTest::aFreshDoorLinkDoesNotKeepTheDoorOpen()
{
    const AlarmLinkDoor link;
    QVERIFY(link.strDoorID.isEmpty() && !link.bAlwaysOpen);
}

void AlarmRecordsTest::keysSortByTextFirstThenByType()
{
    const AlarmSourceKey low{QStringLiteral("1$1$0$2"), 900};
    const AlarmSourceKey middle{QStringLiteral("1$1$0$3"), -5};
    const AlarmSourceKey high{QStringLiteral("1$1$0$3"), 4};
    QVERIFY(low < middle && middle < high && low < high);
    QVERIFY(!(middle < low) && !(high < middle) && !(low < low));
    // Text, not numbers: "10" stands before "2".
    QVERIFY((AlarmSourceKey{QStringLiteral("10$1$0$1"), 1}) < (AlarmSourceKey{QStringLiteral("2$1$0$1"), 1}));
}

void AlarmRecordsTest::keysOfOneSourceAndTwoTypesAreTwoSchemes()
{
    AlarmInfoMap map;
    map[AlarmSourceKey{QStringLiteral("1$1$0$2"), 7}].bOpen = true;
    map[AlarmSourceKey{QStringLiteral("1$1$0$2"), 3}].bOpenSound = true;
    QCOMPARE(map.size(), 2);
    QCOMPARE(map.firstKey().AlarmType, 3);
    QVERIFY(!map.first().bOpen && map.last().bOpen);
}

void AlarmRecordsTest::keyTextsCompareCaseSensitively()
{
    const AlarmSourceKey upper{QStringLiteral("A"), 1};
    const AlarmSourceKey lower{QStringLiteral("a"), 1};
    QVERIFY(upper != lower && upper < lower);
}

void AlarmRecordsTest::freshRecordsShareTheirWeekAndCells()
{
    const AlarmInfo a;
    const AlarmInfo b;
    QVERIFY(a.defenceTime.IsSharedWith(b.defenceTime));
    QVERIFY(a.videoSplit.cells.IsSharedWith(b.videoSplit.cells));
}

void AlarmRecordsTest::readingDoesNotEndTheSharing()
{
    const AlarmInfo a;
    const AlarmInfo b = a; // NOLINT(performance-unnecessary-copy-initialization)
    QCOMPARE(a.defenceTime[6].size(), 1);
    QCOMPARE(b.defenceTime.data()[0].size(), 1);
    QCOMPARE(b.videoSplit.cells[63].X2, 1);
    QVERIFY(a.defenceTime.IsSharedWith(b.defenceTime));
    QVERIFY(a.videoSplit.cells.IsSharedWith(b.videoSplit.cells));
}

void AlarmRecordsTest::writingToACopyLeavesTheOriginal()
{
    AlarmInfo original;
    original.defenceTime[1] = {AlarmTimeRegion{60, 120}};
    original.videoSplit.cells[5].X1 = 9;
    AlarmInfo copy = original;
    QVERIFY(copy == original);
    copy.defenceTime.data()[1].append(AlarmTimeRegion{200, 300});
    copy.videoSplit.cells[5].X1 = 10;
    copy.videoSplit.SplitRow = 2;
    QCOMPARE(original.defenceTime[1].size(), 1);
    QCOMPARE(original.videoSplit.cells[5].X1, 9);
    QCOMPARE(original.videoSplit.SplitRow, 0);
    QCOMPARE(copy.defenceTime[1].size(), 2);
}

void AlarmRecordsTest::writingToTheOriginalLeavesTheCopy()
{
    AlarmInfo original;
    const AlarmInfo copy = original;
    original.defenceTime[0].clear();
    original.videoSplit.cells[0].bEnable = false;
    original.videoSplit.videoLinks[3].Time = 5;
    QCOMPARE(copy.defenceTime[0].size(), 1);
    QVERIFY(copy.videoSplit.cells[0].bEnable);
    QVERIFY(copy.videoSplit.videoLinks.isEmpty());
}

void AlarmRecordsTest::writingADayLeavesFreshWeeksFresh()
{
    {
        AlarmWeek week;
        for (int day = 0; day < AlarmWeek::DayCount; ++day)
            week[day].clear();
    }
    QCOMPARE(qAsConst(*std::make_unique<AlarmWeek>())[3].size(), 1);
}

void AlarmRecordsTest::writingACellLeavesFreshCellsFresh()
{
    {
        AlarmSplitCells cells;
        cells[63].bEnable = false;
    }
    QVERIFY(qAsConst(*std::make_unique<AlarmSplitCells>())[63].bEnable);
}

void AlarmRecordsTest::aMovedFromRecordIsUsable()
{
    AlarmInfo first;
    first.defenceTime[2].clear();
    first.videoSplit.cells[2].iCombine = 3;
    AlarmInfo second = std::move(first);
    QCOMPARE(qAsConst(second).defenceTime[2].size(), 0);
    QCOMPARE(qAsConst(second).videoSplit.cells[2].iCombine, 3);
    first.defenceTime[2].append(AlarmTimeRegion{1, 2}); // NOLINT(bugprone-use-after-move)
    first.videoSplit.cells[2].iCombine = 4;
    QCOMPARE(qAsConst(second).defenceTime[2].size(), 0);
    QCOMPARE(qAsConst(second).videoSplit.cells[2].iCombine, 3);

    AlarmInfo third;
    third = std::move(second);
    QCOMPARE(qAsConst(third).defenceTime[2].size(), 0);
    QVERIFY(second.defenceTime.data() != nullptr); // NOLINT(bugprone-use-after-move)
}

void AlarmRecordsTest::assigningARecordToItselfKeepsIt()
{
    AlarmInfo info;
    info.defenceTime[4].clear();
    const AlarmInfo& same = info;
    info = same;
    QCOMPARE(qAsConst(info).defenceTime[4].size(), 0);
    QCOMPARE(qAsConst(info).defenceTime[5].size(), 1);
}

void AlarmRecordsTest::aCopiedLinkListIsIndependent()
{
    AlarmInfo original;
    original.listAlarmOut.append(AlarmLinkAlarmOut());
    original.listDoor.append(AlarmLinkDoor());
    AlarmInfo copy = original;
    copy.listAlarmOut[0].Time = 7;
    copy.listDoor.clear();
    QCOMPARE(original.listAlarmOut.at(0).Time, 20);
    QCOMPARE(original.listDoor.size(), 1);
}

void AlarmRecordsTest::equalContentIsEqualWithoutSharing()
{
    AlarmInfo a;
    a.defenceTime[0].clear();
    a.defenceTime[0].append(AlarmTimeRegion{0, 86399});
    a.videoSplit.cells[1].X2 = 1;
    const AlarmInfo fresh;
    QVERIFY(!a.defenceTime.IsSharedWith(fresh.defenceTime));
    QVERIFY(!a.videoSplit.cells.IsSharedWith(fresh.videoSplit.cells));
    QVERIFY(a == fresh);
}

void AlarmRecordsTest::aDifferenceInAnyFieldIsSeen_data()
{
    QTest::addColumn<AlarmInfo>("changed");
    const auto add = [](const char* name, auto change) {
        AlarmInfo info = WithOneLinkEach();
        change(info);
        QTest::newRow(name) << info;
    };
    add("open", [](AlarmInfo& i) { i.bOpen = true; });
    add("sound", [](AlarmInfo& i) { i.bOpenSound = true; });
    add("map", [](AlarmInfo& i) { i.bEmapTwinkle = true; });
    add("mail", [](AlarmInfo& i) { i.bSendEmail = true; });
    add("rows", [](AlarmInfo& i) { i.videoSplit.SplitRow = 1; });
    add("columns", [](AlarmInfo& i) { i.videoSplit.SplitCloum = 1; });
    add("count", [](AlarmInfo& i) { i.videoSplit.SplitCount = 1; });
    add("cell enabled", [](AlarmInfo& i) { i.videoSplit.cells[63].bEnable = false; });
    add("cell combine", [](AlarmInfo& i) { i.videoSplit.cells[63].iCombine = 1; });
    add("cell x1", [](AlarmInfo& i) { i.videoSplit.cells[0].X1 = 5; });
    add("cell y1", [](AlarmInfo& i) { i.videoSplit.cells[0].Y1 = 5; });
    add("cell x2", [](AlarmInfo& i) { i.videoSplit.cells[0].X2 = 5; });
    add("cell y2", [](AlarmInfo& i) { i.videoSplit.cells[0].Y2 = 5; });
    add("video key", [](AlarmInfo& i) { i.videoSplit.videoLinks[0].strLinkDevID = QStringLiteral("x"); });
    add("video preset", [](AlarmInfo& i) { i.videoSplit.videoLinks[0].Preposition = 0; });
    add("video stream", [](AlarmInfo& i) { i.videoSplit.videoLinks[0].StreamType = 0; });
    add("video open", [](AlarmInfo& i) { i.videoSplit.videoLinks[0].bOpen = false; });
    add("video record", [](AlarmInfo& i) { i.videoSplit.videoLinks[0].bRecord = true; });
    add("video time", [](AlarmInfo& i) { i.videoSplit.videoLinks[0].Time = 21; });
    add("video window", [](AlarmInfo& i) { i.videoSplit.videoLinks.insert(1, AlarmLinkVideo()); });
    add("output key", [](AlarmInfo& i) { i.listAlarmOut[0].strLinkAlarmID = QStringLiteral("x"); });
    add("output open", [](AlarmInfo& i) { i.listAlarmOut[0].bAutoOpen = false; });
    add("output time", [](AlarmInfo& i) { i.listAlarmOut[0].Time = 21; });
    add("outputs", [](AlarmInfo& i) { i.listAlarmOut.clear(); });
    add("door", [](AlarmInfo& i) { i.listDoor[0].strDoorID = QStringLiteral("1"); });
    add("door open", [](AlarmInfo& i) { i.listDoor[0].bAlwaysOpen = true; });
    add("day", [](AlarmInfo& i) { i.defenceTime[6].clear(); });
    add("begin", [](AlarmInfo& i) { i.defenceTime[0][0].Begin = 1; });
    add("end", [](AlarmInfo& i) { i.defenceTime[0][0].End = 1; });
}

void AlarmRecordsTest::aDifferenceInAnyFieldIsSeen()
{
    QFETCH(AlarmInfo, changed);
    const AlarmInfo plain = WithOneLinkEach();
    QVERIFY(plain != changed);
    QVERIFY(!(changed == plain));
    const AlarmInfo same = changed; // NOLINT(performance-unnecessary-copy-initialization)
    QVERIFY(same == changed);
}

void AlarmRecordsTest::usedCellsAreBoundedAndFormedInWideNumbers_data()
{
    constexpr int most = std::numeric_limits<int32_t>::max();
    constexpr int least = std::numeric_limits<int32_t>::min();
    QTest::addColumn<int>("rows");
    QTest::addColumn<int>("columns");
    QTest::addColumn<int>("used");
    QTest::newRow("none") << 0 << 8 << 0;
    QTest::newRow("some") << 3 << 4 << 12;
    QTest::newRow("all") << 8 << 8 << 64;
    QTest::newRow("one more") << 13 << 5 << 64;
    QTest::newRow("negative") << -3 << 4 << 0;
    QTest::newRow("two negatives") << -2 << -3 << 6;
    QTest::newRow("overflow to a small number") << 65537 << 65536 << 64;
    QTest::newRow("overflow to zero") << 65536 << 65536 << 64;
    QTest::newRow("largest") << most << most << 64;
    QTest::newRow("lowest") << least << most << 0;
    QTest::newRow("lowest squared") << least << least << 64;
}

void AlarmRecordsTest::usedCellsAreBoundedAndFormedInWideNumbers()
{
    QFETCH(int, rows);
    QFETCH(int, columns);
    AlarmVideoSplit split;
    split.SplitRow = rows;
    split.SplitCloum = columns;
    QTEST(split.UsedCells(), "used");
}

void AlarmRecordsTest::theWeekPlanOfADayIsAMetaTypeByName()
{
    QVERIFY(QMetaType::type("AlarmDefenceTime_t") != QMetaType::UnknownType);
    QCOMPARE(QMetaType::type("AlarmDefenceTime_t"), qMetaTypeId<AlarmDefenceTime_t>());
}

void AlarmRecordsTest::aDefaultSchemeInAMapTakesAtMostTwoHundredBytes()
{
    constexpr int count = 20000;
    // A text and a list have one word in Qt 5 and three in Qt 6.
    constexpr size_t most = QT_VERSION < QT_VERSION_CHECK(6, 0, 0) ? 200 : 256;
    const AlarmInfo first; // makes the shared block
    AlarmInfoMap map;
    const std::optional<size_t> before = HeapInUse();
    for (int i = 0; i < count; ++i)
        map.insert(AlarmSourceKey{EventSource::Door(10000 + i, 200000 + i), 1}, AlarmInfo());
    const std::optional<size_t> after = HeapInUse();
    QCOMPARE(map.size(), count);
    for (const AlarmInfo& info : qAsConst(map)) {
        QVERIFY(info.defenceTime.IsSharedWith(first.defenceTime));
        QVERIFY(info.videoSplit.cells.IsSharedWith(first.videoSplit.cells));
    }
    QVERIFY(ComputedBytes(map.firstKey().strEventSource) <= most);
    if (before && after) {
        QVERIFY2(*after - *before <= most * count,
                 qPrintable(QString::number(static_cast<double>(*after - *before) / count)));
    }
}

QTEST_APPLESS_MAIN(AlarmRecordsTest)
#include "tst_alarm_records.moc"
