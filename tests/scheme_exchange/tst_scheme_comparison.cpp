#include "scheme_services/exchange/SchemeComparison.h"
#include "tests/AlarmSchemeData/RandomSchemes.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QTest>

namespace {

/// "field: before -> after" each.
QStringList Differences(const AlarmInfo& before, const AlarmInfo& after)
{
    const auto text = [](const QJsonValue& value) {
        return value.isUndefined()
                   ? QStringLiteral("none")
                   : QString::fromUtf8(QJsonDocument(QJsonArray{value}).toJson(QJsonDocument::Compact));
    };
    QStringList lines;
    const QVector<SchemeFieldDifference> fields = SchemeComparison::Fields(before, after);
    for (const SchemeFieldDifference& field : fields)
        lines.append(
            QStringLiteral("%1: %2 -> %3").arg(field.strField, text(field.before), text(field.after)));
    return lines;
}

AlarmSourceKey Key(int iDoor)
{
    return {EventSource::Door(7, iDoor), 101};
}

} // namespace

class TestSchemeComparison : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void equalRecordsDifferInNothing();
    void everyFieldIsNamed();
    void linksAreToldByWhatTheyLink();
    void anotherOrderIsOneDifference();
    void thingsLinkedTwiceAreComparedWhole();
    void windowsAreToldByTheirNumber();
    void mapsAreWalkedInTheOrderOfTheirKeys();
    void mapsWithoutAnythingAreEqual();
    void theSameTheOtherWayRound();
    void recordsDifferExactlyWhenAFieldDoes();
    void progressIsTold();
};

void TestSchemeComparison::equalRecordsDifferInNothing()
{
    RandomSchemes random(5);
    for (int round = 0; round < 50; ++round) {
        const AlarmInfo info = random.Info();
        QCOMPARE(Differences(info, info), QStringList());
    }
}

void TestSchemeComparison::everyFieldIsNamed()
{
    const AlarmInfo before;
    AlarmInfo after;
    after.bOpen = true;
    after.bOpenSound = true;
    after.bEmapTwinkle = true;
    after.bSendEmail = true;
    after.videoSplit.SplitRow = 2;
    after.videoSplit.SplitCloum = 3;
    after.videoSplit.SplitCount = 5;
    after.videoSplit.cells[4] = AlarmSplitWindow{false, 7, 1, 2, 3, 4};
    after.defenceTime[6].clear();
    after.defenceTime[1] = {AlarmTimeRegion{0, 3600}};
    QCOMPARE(
        Differences(before, after),
        (QStringList{
            QStringLiteral("bOpen: [false] -> [true]"), QStringLiteral("bOpenSound: [false] -> [true]"),
            QStringLiteral("bEmapTwinkle: [false] -> [true]"),
            QStringLiteral("bSendEmail: [false] -> [true]"), QStringLiteral("split.SplitRow: [0] -> [2]"),
            QStringLiteral("split.SplitCloum: [0] -> [3]"), QStringLiteral("split.SplitCount: [0] -> [5]"),
            QStringLiteral("split.cells[4].bEnable: [true] -> [false]"),
            QStringLiteral("split.cells[4].iCombine: [0] -> [7]"),
            QStringLiteral("split.cells[4].X1: [0] -> [1]"), QStringLiteral("split.cells[4].Y1: [0] -> [2]"),
            QStringLiteral("split.cells[4].X2: [1] -> [3]"), QStringLiteral("split.cells[4].Y2: [1] -> [4]"),
            QStringLiteral("defenceTime[1]: [[{\"Begin\":0,\"End\":86399}]] -> "
                           "[[{\"Begin\":0,\"End\":3600}]]"),
            QStringLiteral("defenceTime[6]: [[{\"Begin\":0,\"End\":86399}]] -> [[]]")}));
}

void TestSchemeComparison::linksAreToldByWhatTheyLink()
{
    AlarmInfo before;
    before.listAlarmOut = {AlarmLinkAlarmOut{QStringLiteral("1$3$0$0"), true, 20},
                           AlarmLinkAlarmOut{QStringLiteral("2$3$0$0"), true, 20}};
    before.listDoor = {AlarmLinkDoor{QStringLiteral("5"), false}};
    AlarmInfo after;
    after.listAlarmOut = {AlarmLinkAlarmOut{QStringLiteral("2$3$0$0"), false, 30},
                          AlarmLinkAlarmOut{QStringLiteral("3$3$0$0"), true, 40}};
    after.listDoor = {AlarmLinkDoor{QStringLiteral("5"), true}, AlarmLinkDoor{QStringLiteral("6"), true}};
    QCOMPARE(Differences(before, after),
             (QStringList{QStringLiteral("alarmOut[1$3$0$0]: [{\"Time\":20,\"bAutoOpen\":true}] -> none"),
                          QStringLiteral("alarmOut[2$3$0$0].bAutoOpen: [true] -> [false]"),
                          QStringLiteral("alarmOut[2$3$0$0].Time: [20] -> [30]"),
                          QStringLiteral("alarmOut[3$3$0$0]: none -> [{\"Time\":40,\"bAutoOpen\":true}]"),
                          QStringLiteral("doors[5].bAlwaysOpen: [false] -> [true]"),
                          QStringLiteral("doors[6]: none -> [{\"bAlwaysOpen\":true}]")}));
}

void TestSchemeComparison::anotherOrderIsOneDifference()
{
    AlarmInfo before;
    before.listDoor = {AlarmLinkDoor{QStringLiteral("5"), false}, AlarmLinkDoor{QStringLiteral("6"), false}};
    AlarmInfo after;
    after.listDoor = {AlarmLinkDoor{QStringLiteral("6"), false}, AlarmLinkDoor{QStringLiteral("5"), false}};
    QCOMPARE(Differences(before, after),
             QStringList(QStringLiteral("doors: [[\"5\",\"6\"]] -> [[\"6\",\"5\"]]")));
}

void TestSchemeComparison::thingsLinkedTwiceAreComparedWhole()
{
    AlarmInfo before;
    before.listDoor = {AlarmLinkDoor{QStringLiteral("5"), false}, AlarmLinkDoor{QStringLiteral("5"), true}};
    AlarmInfo after;
    after.listDoor = {AlarmLinkDoor{QStringLiteral("5"), true}};
    QCOMPARE(Differences(before, after),
             QStringList(QStringLiteral("doors: [[{\"bAlwaysOpen\":false,\"id\":\"5\"},"
                                        "{\"bAlwaysOpen\":true,\"id\":\"5\"}]] -> "
                                        "[[{\"bAlwaysOpen\":true,\"id\":\"5\"}]]")));
}

void TestSchemeComparison::windowsAreToldByTheirNumber()
{
    AlarmInfo before;
    before.videoSplit.videoLinks.insert(3, AlarmLinkVideo{QStringLiteral("8$1$0$2"), 5, 1, false, true, 30});
    before.videoSplit.videoLinks.insert(4, AlarmLinkVideo());
    AlarmInfo after = before;
    after.videoSplit.videoLinks.remove(4);
    after.videoSplit.videoLinks[3].strLinkDevID = QStringLiteral("9$1$0$2");
    after.videoSplit.videoLinks[3].Time = 31;
    QCOMPARE(
        Differences(before, after),
        (QStringList{QStringLiteral("videoLinks[3].strLinkDevID: [\"8$1$0$2\"] -> [\"9$1$0$2\"]"),
                     QStringLiteral("videoLinks[3].Time: [30] -> [31]"),
                     QStringLiteral("videoLinks[4]: [{\"Preposition\":-1,\"StreamType\":-1,\"Time\":20,"
                                    "\"bOpen\":true,\"bRecord\":false,\"strLinkDevID\":\"\"}] -> none")}));
}

void TestSchemeComparison::mapsAreWalkedInTheOrderOfTheirKeys()
{
    AlarmInfo on;
    on.bOpen = true;
    const AlarmInfoMap before{{Key(1), on}, {Key(2), on}, {Key(3), on}};
    const AlarmInfoMap after{{Key(2), on}, {Key(3), AlarmInfo()}, {Key(4), on}, {Key(5), on}};
    QList<QPair<QString, int>> told;
    const auto counts = SchemeComparison::Compare(before, after, [&told](const SchemeDifference& difference) {
        told.append({difference.key.strEventSource, int(difference.eKind)});
        QCOMPARE(difference.fields.isEmpty(), difference.eKind != SchemeDifference::Kind::Changed);
    });
    using Kind = SchemeDifference::Kind;
    QCOMPARE(told, (QList<QPair<QString, int>>{{Key(1).strEventSource, int(Kind::Removed)},
                                               {Key(3).strEventSource, int(Kind::Changed)},
                                               {Key(4).strEventSource, int(Kind::Added)},
                                               {Key(5).strEventSource, int(Kind::Added)}}));
    QCOMPARE(counts.iRemoved, 1);
    QCOMPARE(counts.iChanged, 1);
    QCOMPARE(counts.iAdded, 2);
    QCOMPARE(counts.iEqual, 1);
    QVERIFY(!counts.IsEqual());
}

void TestSchemeComparison::mapsWithoutAnythingAreEqual()
{
    QVERIFY(SchemeComparison::Compare({}, {}).IsEqual());
    const AlarmInfoMap map{{Key(1), AlarmInfo()}};
    QVERIFY(SchemeComparison::Compare(map, map).IsEqual());
    QCOMPARE(SchemeComparison::Compare(map, {}).iRemoved, 1);
    QCOMPARE(SchemeComparison::Compare({}, map).iAdded, 1);
}

void TestSchemeComparison::theSameTheOtherWayRound()
{
    for (quint32 seed = 1; seed < 50; ++seed) {
        RandomSchemes random(seed);
        const AlarmInfoMap a = random.Map();
        const AlarmInfoMap b = random.Map();
        const auto there = SchemeComparison::Compare(a, b);
        const auto back = SchemeComparison::Compare(b, a);
        QCOMPARE(there.iAdded, back.iRemoved);
        QCOMPARE(there.iRemoved, back.iAdded);
        QCOMPARE(there.iChanged, back.iChanged);
        QCOMPARE(there.iEqual, back.iEqual);
        QCOMPARE(there.iRemoved + there.iChanged + there.iEqual, a.size());
        QCOMPARE(there.iAdded + there.iChanged + there.iEqual, b.size());
    }
}

void TestSchemeComparison::recordsDifferExactlyWhenAFieldDoes()
{
    for (quint32 seed = 1; seed < 300; ++seed) {
        RandomSchemes random(seed);
        const AlarmInfo a = random.Info();
        const AlarmInfo b = seed % 5 == 0 ? a : random.Info();
        QVERIFY2(SchemeComparison::Fields(a, b).isEmpty() == (a == b), qPrintable(QString::number(seed)));
        QCOMPARE(SchemeComparison::Fields(a, b).size(), SchemeComparison::Fields(b, a).size());
    }
}

void TestSchemeComparison::progressIsTold()
{
    AlarmInfoMap map;
    for (int door = 0; door < 1000; ++door)
        map.insert(Key(door), AlarmInfo());
    int calls = 0;
    SchemeComparison::Compare(map, map, {}, [&calls](int iDone, int iAll) {
        ++calls;
        QVERIFY(iDone < iAll);
    });
    QVERIFY(calls > 2);
}

QTEST_MAIN(TestSchemeComparison)
#include "tst_scheme_comparison.moc"
