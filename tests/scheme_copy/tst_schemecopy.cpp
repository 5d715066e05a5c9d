#include "platform/SystemLibrary/AlarmSchemeCommon.h"
#include "scheme_editor/SchemeCopy.h"

#include <QTest>

#include <algorithm>
#include <random>

namespace {

QString Text(const char* szText)
{
    return QString::fromLatin1(szText);
}

AlarmSourceKey Key(const char* szSource, int iType)
{
    return {Text(szSource), iType};
}

/// A scheme that can be told from others by its number; never a default one.
AlarmInfo Scheme(int iNumber)
{
    AlarmInfo info;
    info.bOpen = true;
    info.listAlarmOut = {{QStringLiteral("%1$3$0$0").arg(iNumber), false, iNumber}};
    return info;
}

/// The same rule, said step by step: the yardstick of the random test.
AlarmInfoMap CopyStepByStep(AlarmInfoMap map, const QString& strSource, QList<QString> targets,
                            const QList<int>& types)
{
    if (strSource.isEmpty())
        return map;
    targets.removeOne(strSource);
    for (const int type : types) {
        const auto sourceKey = EventSource::SchemeKey(strSource, type);
        const bool exists = sourceKey && map.contains(*sourceKey);
        const AlarmInfo source = exists ? map.value(*sourceKey) : AlarmInfo();
        const bool copies = exists && !AlarmSchemeCommon::IsAlarmInfoDefault(source);
        for (const QString& strTarget : qAsConst(targets)) {
            const auto targetKey = EventSource::SchemeKey(strTarget, type);
            if (!targetKey)
                continue;
            if (copies) {
                map.insert(*targetKey, source);
            } else {
                map.remove(*targetKey);
            }
        }
    }
    return map;
}

bool SameContent(const AlarmInfoMap& a, const AlarmInfoMap& b)
{
    const auto same = [](const auto& left, const auto& right) {
        return left.first == right.first && left.second == right.second;
    };
    return a.size() == b.size() &&
           std::equal(a.constKeyValueBegin(), a.constKeyValueEnd(), b.constKeyValueBegin(), same);
}

} // namespace

class TestSchemeCopy : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void aDoorCopyTakesEveryEventTypeOfTheHostInItsOrder();
    void anAlarmInputCopyTakesTypeTwoOnly();
    void everyTargetGetsEveryTypeOfTheSource();
    void aTargetsOwnSchemeIsReplacedWhole();
    void otherTypesAndOtherSourcesStay();
    void theSourceIsNotCopiedOntoItself();
    void onlyTheFirstMentionOfTheSourceIsTakenOff();
    void aDefaultSourceClearsItsTargets();
    void aMissingSourceClearsItsTargets();
    void aMissingSourceInsertsNothingForItself();
    void theSourceItselfIsLeftAsItIs();
    void typeTwentyTwoGoesToTheTargetsDevices();
    void twoDoorsOfOneDeviceShareTypeTwentyTwo();
    void typeTwentyTwoOntoTheSourcesOwnDeviceChangesNothing();
    void aDefaultTypeTwentyTwoClearsTheDevicesEntry();
    void malformedTargetsAreLeftOutForTypeTwentyTwoOnly_data();
    void malformedTargetsAreLeftOutForTypeTwentyTwoOnly();
    void aMalformedSourceCopiesItsPlainTypes();
    void anEmptySourceChangesNothing();
    void noTargetsAndNoTypesChangeNothing();
    void repeatedTargetsAndTypesCountOnce();
    void targetsDoNotFollowEachOther();
    void recordsStayValuesAfterTheCopy();
    void copyingTwiceIsCopyingOnce();
    void randomCopiesAgreeWithTheRuleStepByStep();
    void aDoorsSchemesReachTenThousandDoors();
};

void TestSchemeCopy::aDoorCopyTakesEveryEventTypeOfTheHostInItsOrder()
{
    QCOMPARE(SchemeCopy::DoorEventTypes(), AlarmSchemeCommon::ACSAlarmEvent() +
                                               AlarmSchemeCommon::ACSAbnormalEvent() +
                                               AlarmSchemeCommon::ACSNormalEvent());
    QVERIFY(SchemeCopy::DoorEventTypes().contains(22));
}

void TestSchemeCopy::anAlarmInputCopyTakesTypeTwoOnly()
{
    QCOMPARE(SchemeCopy::AlarmInputEventTypes(), QList<int>{2});
    AlarmInfoMap map;
    map[Key("1$3$1$7", 2)] = Scheme(5);
    map[Key("1$3$1$7", 3)] = Scheme(6);
    const AlarmInfoMap copied =
        SchemeCopy::Copy(map, Text("1$3$1$7"), {Text("2$3$1$8")}, SchemeCopy::AlarmInputEventTypes());
    QCOMPARE(copied.size(), 3);
    QCOMPARE(copied.value(Key("2$3$1$8", 2)), Scheme(5));
}

void TestSchemeCopy::everyTargetGetsEveryTypeOfTheSource()
{
    AlarmInfoMap map;
    map[Key("1$1$0$10", 5)] = Scheme(5);
    map[Key("1$1$0$10", 6)] = Scheme(6);
    const AlarmInfoMap copied =
        SchemeCopy::Copy(map, Text("1$1$0$10"), {Text("2$1$0$20"), Text("1$1$0$11")}, {6, 5});
    QCOMPARE(copied.size(), 6);
    for (const char* const target : {"2$1$0$20", "1$1$0$11"}) {
        QCOMPARE(copied.value(Key(target, 5)), Scheme(5));
        QCOMPARE(copied.value(Key(target, 6)), Scheme(6));
    }
}

void TestSchemeCopy::aTargetsOwnSchemeIsReplacedWhole()
{
    AlarmInfoMap map;
    map[Key("1$1$0$10", 5)] = Scheme(5);
    AlarmInfo own = Scheme(99);
    own.bSendEmail = true;
    own.listDoor = {{Text("7"), true}};
    own.defenceTime[0].clear();
    map[Key("2$1$0$20", 5)] = own;
    const AlarmInfoMap copied = SchemeCopy::Copy(map, Text("1$1$0$10"), {Text("2$1$0$20")}, {5});
    QCOMPARE(copied.value(Key("2$1$0$20", 5)), Scheme(5));
}

void TestSchemeCopy::otherTypesAndOtherSourcesStay()
{
    AlarmInfoMap map;
    map[Key("1$1$0$10", 5)] = Scheme(5);
    map[Key("2$1$0$20", 7)] = Scheme(7);
    map[Key("3$1$0$30", 5)] = Scheme(8);
    const AlarmInfoMap copied = SchemeCopy::Copy(map, Text("1$1$0$10"), {Text("2$1$0$20")}, {5, 6});
    QCOMPARE(copied.size(), 4);
    QCOMPARE(copied.value(Key("2$1$0$20", 7)), Scheme(7));
    QCOMPARE(copied.value(Key("3$1$0$30", 5)), Scheme(8));
}

void TestSchemeCopy::theSourceIsNotCopiedOntoItself()
{
    // The default source would otherwise clear itself.
    AlarmInfoMap map;
    map[Key("1$1$0$10", 5)] = AlarmInfo();
    const AlarmInfoMap copied = SchemeCopy::Copy(map, Text("1$1$0$10"), {Text("1$1$0$10")}, {5});
    QVERIFY(SameContent(copied, map));
}

void TestSchemeCopy::onlyTheFirstMentionOfTheSourceIsTakenOff()
{
    AlarmInfoMap map;
    map[Key("1$1$0$10", 5)] = AlarmInfo();
    const AlarmInfoMap copied =
        SchemeCopy::Copy(map, Text("1$1$0$10"), {Text("1$1$0$10"), Text("1$1$0$10")}, {5});
    QVERIFY(copied.isEmpty());
}

void TestSchemeCopy::aDefaultSourceClearsItsTargets()
{
    AlarmInfoMap map;
    map[Key("1$1$0$10", 5)] = AlarmInfo();
    map[Key("2$1$0$20", 5)] = Scheme(5);
    map[Key("2$1$0$20", 6)] = Scheme(6);
    const AlarmInfoMap copied = SchemeCopy::Copy(map, Text("1$1$0$10"), {Text("2$1$0$20")}, {5});
    QVERIFY(!copied.contains(Key("2$1$0$20", 5)));
    QCOMPARE(copied.value(Key("2$1$0$20", 6)), Scheme(6));
    QVERIFY(copied.contains(Key("1$1$0$10", 5)));
}

void TestSchemeCopy::aMissingSourceClearsItsTargets()
{
    AlarmInfoMap map;
    const QList<int> types = SchemeCopy::DoorEventTypes();
    for (const int type : types)
        map[*EventSource::SchemeKey(Text("2$1$0$20"), type)] = Scheme(type);
    map[Key("3$1$0$30", 5)] = Scheme(1);
    const AlarmInfoMap copied =
        SchemeCopy::Copy(map, Text("1$1$0$10"), {Text("2$1$0$20")}, SchemeCopy::DoorEventTypes());
    QCOMPARE(copied.keys(), QList<AlarmSourceKey>{Key("3$1$0$30", 5)});
}

void TestSchemeCopy::aMissingSourceInsertsNothingForItself()
{
    const AlarmInfoMap copied =
        SchemeCopy::Copy({}, Text("1$1$0$10"), {Text("2$1$0$20")}, SchemeCopy::DoorEventTypes());
    QVERIFY(copied.isEmpty());
}

void TestSchemeCopy::theSourceItselfIsLeftAsItIs()
{
    AlarmInfoMap map;
    map[Key("1$1$0$10", 5)] = Scheme(5);
    map[Key("1$1$0$-1", 22)] = Scheme(22);
    const AlarmInfoMap copied = SchemeCopy::Copy(map, Text("1$1$0$10"), {Text("2$1$0$20")}, {5, 22});
    QCOMPARE(copied.value(Key("1$1$0$10", 5)), Scheme(5));
    QCOMPARE(copied.value(Key("1$1$0$-1", 22)), Scheme(22));
}

void TestSchemeCopy::typeTwentyTwoGoesToTheTargetsDevices()
{
    AlarmInfoMap map;
    map[Key("1$1$0$-1", 22)] = Scheme(22);
    map[Key("1$1$0$10", 22)] = Scheme(1); // not where the device's scheme is kept
    const AlarmInfoMap copied = SchemeCopy::Copy(map, Text("1$1$0$10"), {Text("2$1$0$20")}, {22});
    QCOMPARE(copied.value(Key("2$1$0$-1", 22)), Scheme(22));
    QVERIFY(!copied.contains(Key("2$1$0$20", 22)));
    QCOMPARE(copied.size(), 3);
}

void TestSchemeCopy::twoDoorsOfOneDeviceShareTypeTwentyTwo()
{
    AlarmInfoMap map;
    map[Key("1$1$0$-1", 22)] = Scheme(22);
    const AlarmInfoMap copied =
        SchemeCopy::Copy(map, Text("1$1$0$10"), {Text("2$1$0$20"), Text("2$1$0$21")}, {22});
    QCOMPARE(copied.keys(), QList<AlarmSourceKey>({Key("1$1$0$-1", 22), Key("2$1$0$-1", 22)}));
}

void TestSchemeCopy::typeTwentyTwoOntoTheSourcesOwnDeviceChangesNothing()
{
    AlarmInfoMap map;
    map[Key("1$1$0$-1", 22)] = Scheme(22);
    const AlarmInfoMap copied =
        SchemeCopy::Copy(map, Text("1$1$0$10"), {Text("1$1$0$11"), Text("2$1$0$20")}, {22});
    QCOMPARE(copied.value(Key("1$1$0$-1", 22)), Scheme(22));
    QCOMPARE(copied.value(Key("2$1$0$-1", 22)), Scheme(22));
}

void TestSchemeCopy::aDefaultTypeTwentyTwoClearsTheDevicesEntry()
{
    AlarmInfoMap map;
    map[Key("1$1$0$-1", 22)] = AlarmInfo();
    map[Key("2$1$0$-1", 22)] = Scheme(22);
    const AlarmInfoMap copied =
        SchemeCopy::Copy(map, Text("1$1$0$10"), {Text("1$1$0$11"), Text("2$1$0$20")}, {22});
    QVERIFY(copied.isEmpty());
}

void TestSchemeCopy::malformedTargetsAreLeftOutForTypeTwentyTwoOnly_data()
{
    QTest::addColumn<QString>("target");
    for (const char* const target : {"2", "2$1$0", "2$1$0$20$0", "$", ""})
        QTest::newRow(target) << Text(target);
    QTest::newRow("not a number") << Text("x$1$0$20");
    QTest::newRow("beyond 64 bits") << Text("99999999999999999999$1$0$20");
    QTest::newRow("very long") << QString(10000, QLatin1Char('$'));
}

void TestSchemeCopy::malformedTargetsAreLeftOutForTypeTwentyTwoOnly()
{
    QFETCH(QString, target);
    AlarmInfoMap map;
    map[Key("1$1$0$10", 5)] = Scheme(5);
    map[Key("1$1$0$-1", 22)] = Scheme(22);
    const AlarmInfoMap copied = SchemeCopy::Copy(map, Text("1$1$0$10"), {target}, {5, 22});
    QCOMPARE(copied.size(), 3);
    QCOMPARE(copied.value({target, 5}), Scheme(5));
}

void TestSchemeCopy::aMalformedSourceCopiesItsPlainTypes()
{
    AlarmInfoMap map;
    map[Key("odd", 5)] = Scheme(5);
    map[Key("2$1$0$-1", 22)] = Scheme(22);
    const AlarmInfoMap copied = SchemeCopy::Copy(map, Text("odd"), {Text("2$1$0$20")}, {5, 22});
    QCOMPARE(copied.value(Key("2$1$0$20", 5)), Scheme(5));
    QVERIFY(!copied.contains(Key("2$1$0$-1", 22))); // a source without a device has no such scheme
}

void TestSchemeCopy::anEmptySourceChangesNothing()
{
    AlarmInfoMap map;
    map[Key("", 5)] = Scheme(4);
    map[Key("2$1$0$20", 5)] = Scheme(5);
    QVERIFY(SameContent(SchemeCopy::Copy(map, QString(), {Text("2$1$0$20")}, {5}), map));
}

void TestSchemeCopy::noTargetsAndNoTypesChangeNothing()
{
    AlarmInfoMap map;
    map[Key("1$1$0$10", 5)] = Scheme(5);
    QVERIFY(SameContent(SchemeCopy::Copy(map, Text("1$1$0$10"), {}, {5}), map));
    QVERIFY(SameContent(SchemeCopy::Copy(map, Text("1$1$0$10"), {Text("2$1$0$20")}, {}), map));
}

void TestSchemeCopy::repeatedTargetsAndTypesCountOnce()
{
    AlarmInfoMap map;
    map[Key("1$1$0$10", 5)] = Scheme(5);
    const AlarmInfoMap copied =
        SchemeCopy::Copy(map, Text("1$1$0$10"), {Text("2$1$0$20"), Text("2$1$0$20")}, {5, 5, 5});
    QCOMPARE(copied.size(), 2);
}

void TestSchemeCopy::targetsDoNotFollowEachOther()
{
    // A target that comes before its neighbours in the map must not pass its own scheme on.
    AlarmInfoMap map;
    map[Key("5$1$0$50", 5)] = Scheme(5);
    map[Key("1$1$0$10", 5)] = Scheme(1);
    map[Key("2$1$0$20", 6)] = Scheme(2);
    const AlarmInfoMap copied = SchemeCopy::Copy(
        map, Text("5$1$0$50"), {Text("9$1$0$90"), Text("1$1$0$10"), Text("2$1$0$20")}, {5, 6});
    for (const char* const target : {"1$1$0$10", "2$1$0$20", "9$1$0$90"}) {
        QCOMPARE(copied.value(Key(target, 5)), Scheme(5));
        QVERIFY(!copied.contains(Key(target, 6)));
    }
}

void TestSchemeCopy::recordsStayValuesAfterTheCopy()
{
    AlarmInfoMap map;
    map[Key("1$1$0$10", 5)] = Scheme(5);
    AlarmInfoMap copied = SchemeCopy::Copy(map, Text("1$1$0$10"), {Text("2$1$0$20"), Text("3$1$0$30")}, {5});
    copied[Key("2$1$0$20", 5)].defenceTime[3].clear();
    copied[Key("2$1$0$20", 5)].listAlarmOut.clear();
    copied[Key("2$1$0$20", 5)].videoSplit.cells[0].bEnable = false;
    QCOMPARE(copied.value(Key("1$1$0$10", 5)), Scheme(5));
    QCOMPARE(copied.value(Key("3$1$0$30", 5)), Scheme(5));
    QCOMPARE(map.size(), 1); // the caller's map is untouched
}

void TestSchemeCopy::copyingTwiceIsCopyingOnce()
{
    AlarmInfoMap map;
    map[Key("1$1$0$10", 5)] = Scheme(5);
    map[Key("2$1$0$20", 6)] = Scheme(6);
    const auto copy = [](const AlarmInfoMap& from) {
        return SchemeCopy::Copy(from, Text("1$1$0$10"), {Text("2$1$0$20"), Text("3$1$0$30")}, {5, 6, 22});
    };
    const AlarmInfoMap once = copy(map);
    QVERIFY(SameContent(copy(once), once));
}

void TestSchemeCopy::randomCopiesAgreeWithTheRuleStepByStep()
{
    constexpr uint32_t seed = 20240517;
    std::mt19937 random(seed);
    const auto pick = [&random](int iCount) { return static_cast<int>(random() % uint32_t(iCount)); };
    const auto source = [&pick] {
        switch (pick(12)) {
        case 0:
            return QStringLiteral("%1$1$0$-1").arg(pick(4));
        case 1:
            return QStringLiteral("%1$1$0").arg(pick(4));
        default:
            return QStringLiteral("%1$1$0$%2").arg(pick(4)).arg(pick(30));
        }
    };
    const auto type = [&pick] { return pick(4) == 0 ? 22 : pick(8); };
    for (int round = 0; round < 2000; ++round) {
        AlarmInfoMap map;
        for (int entry = pick(60); entry > 0; --entry) {
            map.insert(
                *EventSource::SchemeKey(QStringLiteral("%1$1$0$%2").arg(pick(4)).arg(pick(30)), type()),
                pick(3) == 0 ? AlarmInfo() : Scheme(pick(100)));
        }
        QList<QString> targets;
        for (int target = pick(20); target > 0; --target)
            targets.append(source());
        QList<int> types;
        for (int count = pick(9); count > 0; --count)
            types.append(type());
        const QString strSource =
            pick(10) == 0 ? source() : QStringLiteral("%1$1$0$%2").arg(pick(4)).arg(pick(30));
        QVERIFY2(SameContent(SchemeCopy::Copy(map, strSource, targets, types),
                             CopyStepByStep(map, strSource, targets, types)),
                 qPrintable(QStringLiteral("seed %1, round %2").arg(seed).arg(round)));
    }
}

void TestSchemeCopy::aDoorsSchemesReachTenThousandDoors()
{
    const QList<int> types = SchemeCopy::DoorEventTypes();
    AlarmInfoMap map;
    for (const int type : types)
        map[*EventSource::SchemeKey(Text("1$1$0$2"), type)] = Scheme(type);
    QList<QString> targets;
    for (int door = 0; door < 10000; ++door)
        targets.append(EventSource::Door(10 + door / 8 * 100, 100000 + door));
    map = SchemeCopy::Copy(std::move(map), Text("1$1$0$2"), targets, types);
    // Type 22 once for each of the 1250 controllers, the others for every door.
    QCOMPARE(map.size(), types.size() + 10000 * (types.size() - 1) + 1250);
    const AlarmInfo& last = map[{targets.last(), types.first()}];
    QVERIFY(last.defenceTime.IsSharedWith(map[Key("1$1$0$2", types.first())].defenceTime));
}

QTEST_APPLESS_MAIN(TestSchemeCopy)
#include "tst_schemecopy.moc"
