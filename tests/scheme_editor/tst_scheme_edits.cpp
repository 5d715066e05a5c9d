#include "platform/SystemLibrary/AlarmSchemeCommon.h"
#include "scheme_editor/SchemeBook.h"
#include "scheme_editor/SchemeCopy.h"
#include "scheme_editor/edits/ModifiedSchemes.h"
#include "scheme_editor/edits/SchemeActionText.h"
#include "scheme_editor/edits/SchemeChange.h"
#include "scheme_editor/edits/SchemeContent.h"
#include "scheme_editor/edits/SchemeDraft.h"
#include "tests/scheme_editor/PageSchemes.h"

#include <QTest>

Q_DECLARE_METATYPE(AlarmInfo)

namespace {

using PageSchemes::On;
using PageSchemes::Output;
using Side = SchemeChange::Side;

bool AllKnown(const QString& /*strLinkAlarmID*/)
{
    return true;
}

AlarmSourceKey Key(const char* szSource, int iType = 5)
{
    return {QLatin1String(szSource), iType};
}

AlarmInfo WithDay(int iDay, const AlarmDefenceTime_t& regions)
{
    AlarmInfo info;
    info.defenceTime[iDay] = regions;
    return info;
}

QString EditText(const AlarmInfo& before, const AlarmInfo& after)
{
    return SchemeActionText::OfEdit(before, after, SchemeActionText::Way::OnPage);
}

/// A door whose every event type has a scheme of its own, and a map with so many other doors.
struct LargeSite
{
    explicit LargeSite(int iDoors)
    {
        const QList<int> types = SchemeCopy::DoorEventTypes();
        for (int i = 0; i < types.size(); ++i) {
            AlarmInfo info = On();
            info.defenceTime[1] = {{i * 60, 80000}};
            map.insert(*EventSource::SchemeKey(strSource, types.at(i)), info);
        }
        for (int i = 0; i < iDoors; ++i)
            targets.append(EventSource::Door(1000 + i / 100, 1000000 + i));
    }

    const QString strSource = EventSource::Door(1, 2);
    AlarmInfoMap map;
    QList<QString> targets;
};

/// One scheme handed over for saving, and another one while that goes on.
struct TwoSaves
{
    TwoSaves()
        : modified(AllKnown)
    {
        for (const char* szKey : {"1$1$0$1", "1$1$0$2"}) {
            const AlarmInfo on = On();
            SchemeChange::Builder builder;
            builder.Add(Key(szKey), nullptr, &on);
            modified.Follow(builder.Take());
            modified.MarkSaved();
            now.insert(Key(szKey), on);
        }
    }

    ModifiedSchemes modified;
    AlarmInfoMap now;
};

} // namespace

/// What happens to schemes on the page, without a page.
class TestSchemeEdits : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void equalRecordsAreTheSame();
    void linksAreComparedById();
    void outputsThatTheSiteLacksDoNotCount();
    void aChangeGoesBothWays();
    void whatStaysIsNoChange();
    void recordsAndRowsAreKeptOnce();
    void aDeviceCanBeTakenOutOfAChange();
    void aCopyToTenThousandDoorsCostsKilobytes();
    void aCopyToTenThousandDoorsIsUndoneAndRedone();
    void aStepAfterALargeCopyCostsLittle();
    void theHistoryIsBoundedInMemory();
    void onlyWhatDiffersIsModified();
    void absentEqualsDefault();
    void aFailedSaveGoesBackToTheStateBeforeIt();
    void whatWaitedBehindAFailedSaveFailsWithIt();
    void whatWaitsBehindASaveThatIsStoredIsUnsavedAlone();
    void aStoredSaveIsNotGoneBackBehind();
    void aDraftOfALargeCopyIsSmall();
    void actionsHaveNames_data();
    void actionsHaveNames();
    void dialogsHaveNamesOfTheirOwn();
};

void TestSchemeEdits::equalRecordsAreTheSame()
{
    QVERIFY(SchemeContent::AreSame(AlarmInfo(), AlarmInfo(), AllKnown));
    QVERIFY(!SchemeContent::AreSame(AlarmInfo(), On(), AllKnown));
    AlarmInfo video;
    video.videoSplit.SplitRow = 1;
    QVERIFY(!SchemeContent::AreSame(AlarmInfo(), video, AllKnown));
    QVERIFY(!SchemeContent::AreSame(AlarmInfo(), WithDay(6, {}), AllKnown));
    QVERIFY(SchemeContent::AreSame(SchemeContent::OrDefault(nullptr), AlarmInfo(), AllKnown));
}

void TestSchemeEdits::linksAreComparedById()
{
    AlarmInfo a;
    a.listAlarmOut = {Output("1$3$0$0"), Output("2$3$0$0", 30)};
    a.listDoor = {{QStringLiteral("1"), true}, {QStringLiteral("2"), false}};
    AlarmInfo b;
    b.listAlarmOut = {Output("2$3$0$0", 99), Output("2$3$0$0", 30), Output("1$3$0$0")};
    b.listDoor = {{QStringLiteral("2"), false}, {QStringLiteral("1"), true}};
    QVERIFY(SchemeContent::AreSame(a, b, AllKnown));
    b.listAlarmOut[1].Time = 31;
    QVERIFY(!SchemeContent::AreSame(a, b, AllKnown));
}

void TestSchemeEdits::outputsThatTheSiteLacksDoNotCount()
{
    const auto isKnown = [](const QString& strKey) { return strKey == QLatin1String("1$3$0$0"); };
    AlarmInfo a;
    a.listAlarmOut = {Output("1$3$0$0"), Output("2$3$0$0")};
    AlarmInfo b;
    b.listAlarmOut = {Output("1$3$0$0")};
    QVERIFY(SchemeContent::AreSame(a, b, isKnown));
    QVERIFY(!SchemeContent::AreSame(a, b, AllKnown));
}

void TestSchemeEdits::aChangeGoesBothWays()
{
    const AlarmInfo on = On();
    const AlarmInfo empty = WithDay(0, {});
    SchemeChange::Builder builder;
    builder.Add(Key("1$1$0$1"), nullptr, &on);
    builder.Add(Key("1$1$0$1", 6), &on, nullptr);
    builder.Add(Key("1$1$0$2"), &on, &empty);
    const SchemeChange change = builder.Take();
    QCOMPARE(change.Count(), 3);

    const AlarmInfoMap before{{Key("0$1$0$1"), on},
                              {Key("1$1$0$1", 6), on},
                              {Key("1$1$0$1", 7), empty},
                              {Key("1$1$0$2"), on},
                              {Key("9$1$0$1"), on}};
    const AlarmInfoMap after{{Key("0$1$0$1"), on},
                             {Key("1$1$0$1"), on},
                             {Key("1$1$0$1", 7), empty},
                             {Key("1$1$0$2"), empty},
                             {Key("9$1$0$1"), on}};
    AlarmInfoMap map = before;
    change.Apply(map, Side::After);
    QCOMPARE(map, after);
    change.Apply(map, Side::After);
    QCOMPARE(map, after);
    change.Apply(map, Side::Before);
    QCOMPARE(map, before);
}

void TestSchemeEdits::whatStaysIsNoChange()
{
    const AlarmInfo on = On();
    const AlarmInfo same = On();
    SchemeChange::Builder builder;
    builder.Add(Key("1$1$0$1"), &on, &same);
    builder.Add(Key("1$1$0$2"), nullptr, nullptr);
    const SchemeChange change = builder.Take();
    QVERIFY(change.IsEmpty());
    QCOMPARE(change.Count(), 0);
    QVERIFY(builder.Take().IsEmpty());
}

void TestSchemeEdits::recordsAndRowsAreKeptOnce()
{
    const AlarmInfo on = On();
    SchemeChange::Builder builder;
    for (const char* const szSource : {"1$1$0$1", "1$1$0$2", "1$1$0$3"}) {
        const AlarmInfo equal = On(); // equal, not the same
        builder.Add(Key(szSource, 5), nullptr, &equal);
        builder.Add(Key(szSource, 6), nullptr, &on);
    }
    const SchemeChange change = builder.Take();
    QCOMPARE(change.Count(), 6);
    QCOMPARE(change.RecordCount(), 1);
    QCOMPARE(change.RowCount(), 1);
}

void TestSchemeEdits::aDeviceCanBeTakenOutOfAChange()
{
    const AlarmInfo on = On();
    SchemeChange::Builder builder;
    for (const char* const szSource : {"1$1$0$1", "10$1$0$1", "100$1$0$1"})
        builder.Add(Key(szSource), nullptr, &on);
    const SchemeChange change = builder.Take();
    AlarmInfoMap map;
    change.WithoutDevice(10).Apply(map, Side::After);
    QCOMPARE(map.keys(), (QList<AlarmSourceKey>{Key("1$1$0$1"), Key("100$1$0$1")}));
    QVERIFY(change.WithoutDevice(1).WithoutDevice(10).WithoutDevice(100).IsEmpty());
    QCOMPARE(change.WithoutDevice(2).Count(), 3);
}

void TestSchemeEdits::aCopyToTenThousandDoorsCostsKilobytes()
{
    const LargeSite site(10000);
    const int iTypes = SchemeCopy::DoorEventTypes().size();
    SchemeChange change;
    const AlarmInfoMap map =
        SchemeCopy::Copy(site.map, site.strSource, site.targets, SchemeCopy::DoorEventTypes(), &change);
    // The per-device type has one scheme for each of the 100 devices.
    QCOMPARE(change.Count(), 10000 * (iTypes - 1) + 100);
    QCOMPARE(change.RecordCount(), iTypes);
    QCOMPARE(change.RowCount(), 2);
    QVERIFY2(change.Cost() < 1024LL * 1024, qPrintable(QString::number(change.Cost())));
    // The step's records share their memory with those of the map.
    int iShared = 0;
    int iVisited = 0;
    change.ForEach([&](const AlarmSourceKey& key, const AlarmInfo* pBefore, const AlarmInfo* pAfter) {
        ++iVisited;
        iShared += pBefore == nullptr && pAfter->defenceTime.IsSharedWith(map.constFind(key)->defenceTime);
    });
    QCOMPARE(iShared, iVisited);
}

void TestSchemeEdits::aCopyToTenThousandDoorsIsUndoneAndRedone()
{
    const LargeSite site(10000);
    const int iTypes = SchemeCopy::DoorEventTypes().size();
    SchemeBook book(AllKnown);
    book.Schemes() = site.map;
    book.MarkLoaded();
    QCOMPARE(book.EnabledCount(), iTypes);
    SchemeStep step;
    book.Schemes() = SchemeCopy::Copy(std::move(book.Schemes()), site.strSource, site.targets,
                                      SchemeCopy::DoorEventTypes(), &step.change);
    book.RecordStep(step);
    const int iCopied = iTypes + 10000 * (iTypes - 1) + 100;
    QCOMPARE(book.EnabledCount(), iCopied);
    QVERIFY(book.IsModified());
    book.History().Undo();
    QCOMPARE(book.Schemes(), site.map);
    QCOMPARE(book.EnabledCount(), iTypes);
    QVERIFY(!book.IsModified());
    book.History().Redo();
    QCOMPARE(book.Schemes().size(), iCopied);
    QCOMPARE(book.EnabledCount(), iCopied);
    QVERIFY(book.IsModified());
}

void TestSchemeEdits::aStepAfterALargeCopyCostsLittle()
{
    const LargeSite site(2000);
    SchemeBook book(AllKnown);
    book.Schemes() = SchemeCopy::Copy(site.map, site.strSource, site.targets, SchemeCopy::DoorEventTypes());
    book.MarkLoaded();
    const AlarmSourceKey key{site.targets.constFirst(), SchemeCopy::DoorEventTypes().constFirst()};
    const AlarmInfo before = book.Schemes().value(key);
    book.Schemes()[key].bOpen = false;
    book.RecordEdit(key, before, SchemeStep(), SchemeActionText::Way::OnPage);
    QVERIFY2(book.History().Cost() < 1024, qPrintable(QString::number(book.History().Cost())));
    QCOMPARE(book.History().Count(), 1);
}

void TestSchemeEdits::theHistoryIsBoundedInMemory()
{
    int iMade = 0;
    constexpr int64_t iMaxCost = 1024LL * 1024;
    SchemeHistory history([&iMade](const SchemeChange&, Side) { ++iMade; }, AllKnown, iMaxCost);
    // Steps that share nothing: every record has a week of its own.
    constexpr int iRecords = 1000;
    constexpr int iSteps = 32;
    for (int i = 0; i < iSteps; ++i) {
        SchemeChange::Builder builder;
        AlarmInfo info = On();
        for (int j = 0; j < iRecords; ++j) {
            info.defenceTime[1] = {{i, j}};
            builder.Add({QStringLiteral("1$1$0$%1").arg(j, 6, 10, QLatin1Char('0')), i}, nullptr, &info);
        }
        SchemeStep step;
        step.strText = QString::number(i);
        step.change = builder.Take();
        history.Push(step);
        QVERIFY(history.Cost() <= iMaxCost);
    }
    QCOMPARE(iMade, 0);
    QVERIFY(history.Count() < iSteps);
    QCOMPARE(history.NextUndo()->strText, QString::number(iSteps - 1));
    const int iKept = history.Count();
    while (history.NextUndo() != nullptr)
        history.Undo();
    QCOMPARE(iMade, iKept);
    QCOMPARE(history.NextRedo()->strText, QString::number(iSteps - iKept));

    SchemeHistory narrow([](const SchemeChange&, Side) {}, AllKnown, 1);
    SchemeChange::Builder builder;
    const AlarmInfo on = On();
    builder.Add(Key("1$1$0$1"), nullptr, &on);
    SchemeStep step;
    step.change = builder.Take();
    narrow.Push(step);
    narrow.Push(step);
    QCOMPARE(narrow.Count(), 1);
}

void TestSchemeEdits::onlyWhatDiffersIsModified()
{
    const AlarmInfo on = On();
    const AlarmInfo empty = WithDay(0, {});
    ModifiedSchemes modified(AllKnown);
    SchemeChange::Builder builder;
    builder.Add(Key("1$1$0$1"), &on, &empty);
    builder.Add(Key("1$1$0$2"), nullptr, &on);
    const SchemeChange first = builder.Take();
    modified.Follow(first);
    QCOMPARE(modified.Count(), 2);
    builder.Add(Key("1$1$0$1"), &empty, nullptr);
    modified.Follow(builder.Take());
    QCOMPARE(modified.Count(), 2);
    builder.Add(Key("1$1$0$1"), nullptr, &on);
    modified.Follow(builder.Take());
    QCOMPARE(modified.Count(), 1);
    builder.Add(Key("1$1$0$2"), &on, nullptr);
    modified.Follow(builder.Take());
    QVERIFY(modified.IsEmpty());
    modified.FollowBack(first);
    QCOMPARE(modified.Count(), 2);
}

void TestSchemeEdits::absentEqualsDefault()
{
    const AlarmInfo fresh;
    ModifiedSchemes modified(AllKnown);
    SchemeChange::Builder builder;
    builder.Add(Key("1$1$0$1"), nullptr, &fresh);
    builder.Add(Key("1$1$0$2"), &fresh, nullptr);
    modified.Follow(builder.Take());
    QVERIFY(modified.IsEmpty());
}

void TestSchemeEdits::aFailedSaveGoesBackToTheStateBeforeIt()
{
    const AlarmInfo on = On();
    const AlarmInfo empty = WithDay(0, {});
    ModifiedSchemes modified(AllKnown);
    SchemeChange::Builder builder;
    builder.Add(Key("1$1$0$1"), nullptr, &on);
    builder.Add(Key("1$1$0$2"), nullptr, &on);
    modified.Follow(builder.Take());
    modified.MarkSaved();
    QVERIFY(modified.IsEmpty());
    builder.Add(Key("1$1$0$1"), &on, nullptr);
    builder.Add(Key("1$1$0$3"), nullptr, &empty);
    modified.Follow(builder.Take());
    const AlarmInfoMap now{{Key("1$1$0$2"), on}, {Key("1$1$0$3"), empty}};
    modified.MarkUnsaved(now);
    QCOMPARE(modified.Count(), 2);
    AlarmInfoMap restored;
    modified.Difference(now).Apply(restored, Side::After);
    QCOMPARE(restored, now);
}

void TestSchemeEdits::whatWaitedBehindAFailedSaveFailsWithIt()
{
    for (const bool bToldOfBoth : {true, false}) {
        const TwoSaves saves;
        ModifiedSchemes modified = saves.modified;
        // A save that is given up with the one that waits ends only once.
        if (bToldOfBoth)
            modified.EndSave(false, true, saves.now);
        QVERIFY(modified.IsEmpty());
        modified.EndSave(false, false, saves.now);
        QCOMPARE(modified.Count(), 2);
        AlarmInfoMap restored;
        modified.Difference(saves.now).Apply(restored, Side::After);
        QCOMPARE(restored, saves.now);
    }
}

void TestSchemeEdits::whatWaitsBehindASaveThatIsStoredIsUnsavedAlone()
{
    TwoSaves saves;
    saves.modified.EndSave(true, true, saves.now);
    saves.modified.EndSave(false, false, saves.now);
    QCOMPARE(saves.modified.Count(), 1);
    AlarmInfoMap restored;
    saves.modified.Difference(saves.now).Apply(restored, Side::After);
    QCOMPARE(restored.keys(), QList<AlarmSourceKey>{Key("1$1$0$2")});
}

void TestSchemeEdits::aStoredSaveIsNotGoneBackBehind()
{
    for (const bool bFirstFails : {true, false}) {
        TwoSaves saves;
        saves.modified.EndSave(!bFirstFails, true, saves.now);
        saves.modified.EndSave(true, false, saves.now);
        saves.modified.MarkUnsaved(saves.now);
        QVERIFY(saves.modified.IsEmpty());
    }
}

void TestSchemeEdits::aDraftOfALargeCopyIsSmall()
{
    const LargeSite site(10000);
    SchemeChange change;
    const AlarmInfoMap map =
        SchemeCopy::Copy({site.map}, site.strSource, site.targets, SchemeCopy::DoorEventTypes(), &change);
    const QByteArray bytes = SchemeDraft::Write(change);
    QVERIFY2(bytes.size() < 1024 * 1024, qPrintable(QString::number(bytes.size())));
    const std::optional<SchemeDraft> draft = SchemeDraft::Read(bytes);
    QVERIFY(draft.has_value());
    int iSame = 0;
    draft->ForEach([&](const AlarmSourceKey& key, const AlarmInfo* pInfo) {
        const auto copied = map.constFind(key);
        iSame += copied != map.cend() && pInfo != nullptr && *copied == *pInfo;
    });
    QCOMPARE(iSame, change.Count());
    QVERIFY(SchemeDraft::Write(SchemeChange()).isEmpty());
}

void TestSchemeEdits::actionsHaveNames_data()
{
    QTest::addColumn<AlarmInfo>("before");
    QTest::addColumn<AlarmInfo>("after");
    QTest::addColumn<QString>("strText");
    const AlarmInfo fresh;
    AlarmInfo sound;
    sound.bOpenSound = true;
    AlarmInfo mail;
    mail.bSendEmail = true;
    AlarmInfo one;
    one.listAlarmOut = {Output("1$3$0$0")};
    AlarmInfo longer;
    longer.listAlarmOut = {Output("1$3$0$0", 60)};
    AlarmInfo two;
    two.listAlarmOut = {Output("1$3$0$0"), Output("2$3$0$0")};
    AlarmInfo other;
    other.listAlarmOut = {Output("2$3$0$0")};
    const AlarmInfo noon = WithDay(1, {{0, 43200}});
    const AlarmInfo afternoon = WithDay(1, {{43200, 86400}});
    AlarmInfo weekend = WithDay(0, {});
    weekend.defenceTime[6].clear();

    QTest::newRow("on") << fresh << On() << "Switch Scheme On";
    QTest::newRow("off") << On() << fresh << "Switch Scheme Off";
    QTest::newRow("sound on") << fresh << sound << "Switch Alarm Sound On";
    QTest::newRow("sound off") << sound << fresh << "Switch Alarm Sound Off";
    QTest::newRow("mail on") << fresh << mail << "Switch Mail On";
    QTest::newRow("mail off") << mail << fresh << "Switch Mail Off";
    QTest::newRow("sound to mail") << sound << mail << "Change Scheme";
    QTest::newRow("link") << fresh << two << "Link 2 Output(s)";
    QTest::newRow("unlink") << two << one << "Unlink 1 Output(s)";
    QTest::newRow("other output") << one << other << "Change Outputs";
    QTest::newRow("time") << one << longer << "Change Output Settings";
    QTest::newRow("paint") << noon << fresh << "Paint Monday";
    QTest::newRow("erase") << fresh << noon << "Erase Monday";
    QTest::newRow("neither") << noon << afternoon << "Change Monday";
    QTest::newRow("erase two") << fresh << weekend << "Erase 2 Day(s)";
    QTest::newRow("paint two") << weekend << fresh << "Paint 2 Day(s)";
    for (int day = 0; day < AlarmWeek::DayCount; ++day) {
        const char* const names[] = {"Sunday",   "Monday", "Tuesday", "Wednesday",
                                     "Thursday", "Friday", "Saturday"};
        QTest::newRow(names[day]) << WithDay(day, {}) << fresh
                                  << QStringLiteral("Paint %1").arg(QLatin1String(names[day]));
    }
}

void TestSchemeEdits::actionsHaveNames()
{
    QFETCH(AlarmInfo, before);
    QFETCH(AlarmInfo, after);
    QFETCH(QString, strText);
    QCOMPARE(EditText(before, after), strText);
}

void TestSchemeEdits::dialogsHaveNamesOfTheirOwn()
{
    const auto text = [](const AlarmInfo& before, const AlarmInfo& after) {
        return SchemeActionText::OfEdit(before, after, SchemeActionText::Way::InDialog);
    };
    const AlarmInfo fresh;
    const AlarmInfo noon = WithDay(1, {{0, 43200}});
    QCOMPARE(text(fresh, noon), QStringLiteral("Set Monday"));
    AlarmInfo copied = noon;
    copied.defenceTime[2] = copied.defenceTime[3] = noon.defenceTime[1];
    QCOMPARE(text(noon, copied), QStringLiteral("Copy Monday to 2 Day(s)"));
    QCOMPARE(text(fresh, copied), QStringLiteral("Set 3 Day(s)"));
}

QTEST_MAIN(TestSchemeEdits)
#include "tst_scheme_edits.moc"
