#include "client/store/SchemeChanges.h"

#include "client/store/AsStored.h"
#include "tests/AlarmSchemeData/RandomSchemes.h"

#include <QtTest>

namespace {

const AlarmSourceKey A{QStringLiteral("a"), 1};
const AlarmSourceKey B{QStringLiteral("b"), 1};
const AlarmSourceKey C{QStringLiteral("c"), 1};

/// A scheme that cannot be a key alone, told from others by the number.
AlarmInfo Info(int iNumber, bool bOpen = true)
{
    AlarmInfo info;
    info.bOpen = bOpen;
    info.bSendEmail = true;
    info.listAlarmOut = {{QStringLiteral("out"), true, iNumber}};
    return info;
}

SchemeBase Base(const AlarmInfoMap& held)
{
    SchemeBase base;
    base.held = held;
    return base;
}

/// What the file holds after the plan was carried out.
AlarmInfoMap After(const SavePlan& plan, AlarmInfoMap theirs)
{
    if (plan.bDisable) {
        for (auto entry = theirs.begin(); entry != theirs.end(); ++entry)
            entry->bOpen = entry->bOpen && plan.remaining.contains(entry.key());
    }
    for (const SavePlan::Change& change : plan.changes)
        theirs.insert(change.key, change.stored);
    return theirs;
}

} // namespace

class SchemeChangesTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void equalRecordsDifferInNoPart();
    void eachFieldBelongsToItsPart_data();
    void eachFieldBelongsToItsPart();
    void aSchemeThatMayBeAKeyAloneIsSavedWhole();
    void withoutAChangeThereIsNothingToDo();
    void aChangeIsWrittenAlone();
    void aNewSchemeIsWrittenWhole();
    void aChangeThatIsNotStoredIsNone();
    void whatIsLeftOutIsDisabled();
    void theRuleReachesSchemesThatAreDisabledAlready();
    void foreignChangesAreKeptUnlessTheyAreSavedOver();
    void aForeignNewSchemeIsKeptUnlessItIsSavedOver();
    void aForeignRemovalIsKeptUnlessItIsSavedOver();
    void aSchemeChangedByBothBecomesOurs();
    void theSameChangeOnBothSidesIsNoConflict();
    void keptChangesAreNotAskedAboutAgainUntilTheyAreTouched();
    void theFileBecomesWhatTheRuleSays();
};

void SchemeChangesTest::equalRecordsDifferInNoPart()
{
    QCOMPARE(SchemeParts::Differing(Info(1), Info(1)), 0U);
    QCOMPARE(SchemeParts::ToSave(AlarmInfo(), AlarmInfo()), 0U);
}

void SchemeChangesTest::eachFieldBelongsToItsPart_data()
{
    QTest::addColumn<int>("field");
    QTest::addColumn<uint>("part");
    QTest::newRow("enabled") << 0 << uint(SchemeParts::Open);
    QTest::newRow("sound") << 1 << uint(SchemeParts::Notify);
    QTest::newRow("map") << 2 << uint(SchemeParts::Notify);
    QTest::newRow("mail") << 3 << uint(SchemeParts::Notify);
    QTest::newRow("layout") << 4 << uint(SchemeParts::Video);
    QTest::newRow("channel") << 5 << uint(SchemeParts::Video);
    QTest::newRow("door") << 6 << uint(SchemeParts::Door);
    QTest::newRow("output") << 7 << uint(SchemeParts::AlarmOut);
    QTest::newRow("week") << 8 << uint(SchemeParts::DefenceTime);
}

void SchemeChangesTest::eachFieldBelongsToItsPart()
{
    QFETCH(int, field);
    QFETCH(uint, part);
    AlarmInfo info = Info(1);
    bool* const flags[] = {&info.bOpen, &info.bOpenSound, &info.bEmapTwinkle, &info.bSendEmail};
    if (field < 4)
        *flags[field] = !*flags[field];
    else if (field == 4)
        info.videoSplit.SplitRow = 2;
    else if (field == 5)
        info.videoSplit.videoLinks[0].Time = 9;
    else if (field == 6)
        info.listDoor.append({QStringLiteral("1"), false});
    else if (field == 7)
        info.listAlarmOut.clear();
    else
        info.defenceTime[6].clear();
    QCOMPARE(SchemeParts::Differing(Info(1), info), part);
    QCOMPARE(SchemeParts::ToSave(Info(1), info), part);
}

void SchemeChangesTest::aSchemeThatMayBeAKeyAloneIsSavedWhole()
{
    AlarmInfo wanted;
    wanted.bOpen = true;
    QCOMPARE(SchemeParts::ToSave(AlarmInfo(), wanted), unsigned(SchemeParts::All));
    AlarmInfo linked; // links do not need the row that the week hangs on
    linked.listDoor.append({QStringLiteral("1"), false});
    QCOMPARE(SchemeParts::ToSave(linked, wanted), unsigned(SchemeParts::All));
    AlarmInfo never;
    never.defenceTime[0].clear();
    wanted.defenceTime = never.defenceTime;
    QCOMPARE(SchemeParts::ToSave(never, wanted), unsigned(SchemeParts::Open));
}

void SchemeChangesTest::withoutAChangeThereIsNothingToDo()
{
    const AlarmInfoMap map{{A, Info(1)}, {B, AlarmInfo()}};
    for (const SaveRule rule : {SaveRule::OwnChanges, SaveRule::Everything}) {
        const SavePlan plan = PlanSave(Base(map), map, map, rule);
        QVERIFY(plan.IsEmpty() && !plan.bDisable && !plan.bAsk && plan.iForeign == 0);
    }
}

void SchemeChangesTest::aChangeIsWrittenAlone()
{
    const AlarmInfoMap map{{A, Info(1)}, {B, Info(1)}};
    AlarmInfoMap mine = map;
    mine[B] = Info(2);
    const SavePlan plan = PlanSave(Base(map), map, mine, SaveRule::OwnChanges);
    QCOMPARE(plan.changes.size(), 1);
    QVERIFY(plan.changes.first().key == B);
    QCOMPARE(plan.changes.first().iParts, unsigned(SchemeParts::AlarmOut));
    QVERIFY(!plan.bDisable && !plan.bAsk);
}

void SchemeChangesTest::aNewSchemeIsWrittenWhole()
{
    const SavePlan plan = PlanSave(SchemeBase(), {}, {{A, AlarmInfo()}}, SaveRule::OwnChanges);
    QCOMPARE(plan.changes.size(), 1);
    QCOMPARE(plan.changes.first().iParts, unsigned(SchemeParts::All));
}

void SchemeChangesTest::aChangeThatIsNotStoredIsNone()
{
    AlarmInfo mine = Info(1);
    mine.videoSplit.cells[5].iCombine = 3; // no layout shows it
    mine.listAlarmOut.prepend({QStringLiteral("out"), false, 77});
    const AlarmInfoMap held{{A, Info(1)}};
    QVERIFY(PlanSave(Base(held), held, {{A, mine}}, SaveRule::OwnChanges).IsEmpty());
}

void SchemeChangesTest::whatIsLeftOutIsDisabled()
{
    const AlarmInfoMap held{{A, Info(1)}, {B, Info(1)}};
    const SavePlan plan = PlanSave(Base(held), held, {{A, Info(1)}}, SaveRule::OwnChanges);
    QVERIFY(plan.bDisable && plan.changes.isEmpty());
    QCOMPARE(plan.Schemes(), 1);
    QVERIFY(plan.disabled.value(B) == Info(1, false));
    QVERIFY(plan.remaining.contains(A) && !plan.remaining.contains(B));
}

void SchemeChangesTest::theRuleReachesSchemesThatAreDisabledAlready()
{
    const AlarmInfoMap held{{A, Info(1, false)}};
    const SavePlan plan = PlanSave(Base(held), held, {}, SaveRule::OwnChanges);
    QVERIFY(plan.bDisable && plan.IsEmpty());
}

void SchemeChangesTest::foreignChangesAreKeptUnlessTheyAreSavedOver()
{
    const AlarmInfoMap held{{A, Info(1)}, {B, Info(1)}};
    const AlarmInfoMap theirs{{A, Info(2)}, {B, Info(1)}};
    const AlarmInfoMap mine{{A, Info(1)}, {B, Info(3)}};
    const SavePlan kept = PlanSave(Base(held), theirs, mine, SaveRule::OwnChanges);
    QVERIFY(kept.bAsk);
    QCOMPARE(kept.iForeign, 1);
    QCOMPARE(kept.iBoth, 0);
    const AlarmInfoMap both{{A, Info(2)}, {B, Info(3)}};
    QVERIFY(After(kept, theirs) == both);
    QVERIFY(kept.stale.value(A) == SchemeBase::State(Info(1)));
    const SavePlan over = PlanSave(Base(held), theirs, mine, SaveRule::Everything);
    QVERIFY(After(over, theirs) == mine);
    QVERIFY(over.stale.isEmpty());
}

void SchemeChangesTest::aForeignNewSchemeIsKeptUnlessItIsSavedOver()
{
    const AlarmInfoMap held{{A, Info(1)}, {C, Info(1)}};
    const AlarmInfoMap theirs{{A, Info(1)}, {B, Info(2)}, {C, Info(1)}};
    const AlarmInfoMap mine{{A, Info(3)}}; // one changed, one left out
    const SavePlan kept = PlanSave(Base(held), theirs, mine, SaveRule::OwnChanges);
    const AlarmInfoMap both{{A, Info(3)}, {B, Info(2)}, {C, Info(1, false)}};
    QVERIFY(kept.bAsk && After(kept, theirs) == both);
    const SavePlan over = PlanSave(Base(held), theirs, mine, SaveRule::Everything);
    const AlarmInfoMap ours{{A, Info(3)}, {B, Info(2, false)}, {C, Info(1, false)}};
    QVERIFY(After(over, theirs) == ours);
}

void SchemeChangesTest::aForeignRemovalIsKeptUnlessItIsSavedOver()
{
    const AlarmInfoMap held{{A, Info(1)}, {B, Info(1)}};
    const AlarmInfoMap theirs{{B, Info(1)}};
    const SavePlan kept = PlanSave(Base(held), theirs, held, SaveRule::OwnChanges);
    QVERIFY(kept.bAsk && kept.IsEmpty());
    const SavePlan over = PlanSave(Base(held), theirs, held, SaveRule::Everything);
    QVERIFY(After(over, theirs) == held);
    QCOMPARE(over.changes.first().iParts, unsigned(SchemeParts::All));
}

void SchemeChangesTest::aSchemeChangedByBothBecomesOurs()
{
    const AlarmInfoMap held{{A, Info(1)}};
    const SavePlan plan = PlanSave(Base(held), {{A, Info(2)}}, {{A, Info(3)}}, SaveRule::OwnChanges);
    QVERIFY(plan.bAsk);
    QCOMPARE(plan.iForeign, 1);
    QCOMPARE(plan.iBoth, 1);
    const AlarmInfoMap ours{{A, Info(3)}};
    QVERIFY(After(plan, {{A, Info(2)}}) == ours);
    QVERIFY(plan.stale.isEmpty());
}

void SchemeChangesTest::theSameChangeOnBothSidesIsNoConflict()
{
    const AlarmInfoMap held{{A, Info(1)}};
    const SavePlan plan = PlanSave(Base(held), {{A, Info(2)}}, {{A, Info(2)}}, SaveRule::OwnChanges);
    QVERIFY(plan.IsEmpty() && !plan.bAsk);
}

void SchemeChangesTest::keptChangesAreNotAskedAboutAgainUntilTheyAreTouched()
{
    SchemeBase base = Base({{A, Info(2)}, {B, Info(1)}});
    base.stale.insert(A, Info(1)); // the editors still show the first form
    const SavePlan other = PlanSave(base, base.held, {{A, Info(1)}, {B, Info(3)}}, SaveRule::OwnChanges);
    QVERIFY(!other.bAsk);
    QCOMPARE(other.changes.size(), 1);
    QVERIFY(other.stale.contains(A));
    const SavePlan touched = PlanSave(base, base.held, {{A, Info(4)}, {B, Info(1)}}, SaveRule::OwnChanges);
    QVERIFY(touched.bAsk);
    QCOMPARE(touched.iBoth, 1);
}

void SchemeChangesTest::theFileBecomesWhatTheRuleSays()
{
    for (quint32 seed = 1; seed <= 300; ++seed) {
        RandomSchemes random(seed);
        AlarmInfoMap maps[3];
        for (AlarmInfoMap& map : maps) {
            map = random.Map();
            for (AlarmInfo& info : map)
                info = AsStored(info);
        }
        const auto& [held, theirs, mine] = maps;
        const QByteArray where = QByteArray::number(seed);
        // Without a foreign change: everything of ours, and what we left out disabled.
        AlarmInfoMap expected = held;
        for (AlarmInfo& info : expected)
            info.bOpen = false;
        for (auto entry = mine.cbegin(); entry != mine.cend(); ++entry)
            expected.insert(entry.key(), entry.value());
        const SavePlan plain = PlanSave(Base(held), held, mine, SaveRule::OwnChanges);
        QVERIFY2(After(plain, held) == expected && !plain.bAsk, where);
        // Saved over: the same, whatever the base was.
        AlarmInfoMap over = theirs;
        for (AlarmInfo& info : over)
            info.bOpen = false;
        for (auto entry = mine.cbegin(); entry != mine.cend(); ++entry)
            over.insert(entry.key(), entry.value());
        QVERIFY2(After(PlanSave(Base(held), theirs, mine, SaveRule::Everything), theirs) == over, where);
        // Without a change of ours: as they have it.
        QVERIFY2(After(PlanSave(Base(held), theirs, held, SaveRule::OwnChanges), theirs) == theirs, where);
    }
}

QTEST_GUILESS_MAIN(SchemeChangesTest)
#include "tst_scheme_changes.moc"
