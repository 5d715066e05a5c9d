#include "scheme_services/evaluation/SchemeExplanation.h"

#include <QLocale>
#include <QTest>

namespace {

const QString s_door = QStringLiteral("100$1$0$101");
const QString s_otherDoor = QStringLiteral("100$1$0$102");
const QString s_input = QStringLiteral("100$3$1$103");

/// Monday.
QDateTime Morning()
{
    return QDateTime(QDate(2026, 11, 23), QTime(8, 30), Qt::UTC);
}

AlarmInfo Armed(const AlarmDefenceTime_t& everyDay)
{
    AlarmInfo info;
    info.bOpen = true;
    for (int day = 0; day < 7; ++day)
        info.defenceTime[day] = everyDay;
    return info;
}

} // namespace

class TestSchemeExplanation : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void anArmedSchemeTellsSinceAndUntil();
    void aSchemeThatIsNotArmedTellsWhenItWillBe();
    void aSchemeThatIsSwitchedOffSaysSo();
    void aMissingSchemeSaysSo();
    void theEventOfTheWholeDeviceIsOneForAllItsDoors();
    void theEventOfTheWholeDeviceNeedsADevice();
    void anAlarmInputHasOneEventOnly();
    void reactionsAreWhatHappens();
    void reactionsThatDoNothingAreLeftOut();
    void theLastOfSeveralLinksToAnOutputCounts();
    void sentencesTellSecondsOnlyWhereThereAreAny();
    void aSchemeArmedAllTheTimeOrNeverSaysSo();
    void hostileSourcesHaveNoScheme();
};

void TestSchemeExplanation::initTestCase()
{
    QLocale::setDefault(QLocale::c());
}

void TestSchemeExplanation::anArmedSchemeTellsSinceAndUntil()
{
    const AlarmInfoMap map{{{s_door, 101}, Armed({{8 * 3600, 12 * 3600}})}};
    const SchemeExplanation explanation = SchemeExplanation::Of(map, s_door, 101, Morning());
    QCOMPARE(explanation.at, Morning());
    QVERIFY(explanation.key == (AlarmSourceKey{s_door, 101}));
    QCOMPARE(explanation.verdict, SchemeVerdict::Armed);
    QCOMPARE(*explanation.since, Morning().addSecs(-1800));
    QCOMPARE(*explanation.nextChange, Morning().addSecs(3 * 3600 + 1800));
    QCOMPARE(explanation.Sentence(),
             QStringLiteral("The scheme is armed since Mon 2026-11-23 08:00 until Mon 2026-11-23 12:00."));
}

void TestSchemeExplanation::aSchemeThatIsNotArmedTellsWhenItWillBe()
{
    const AlarmInfoMap map{{{s_door, 101}, Armed({{9 * 3600, 12 * 3600}})}};
    const SchemeExplanation explanation = SchemeExplanation::Of(map, s_door, 101, Morning());
    QCOMPARE(explanation.verdict, SchemeVerdict::NotArmed);
    QCOMPARE(*explanation.nextChange, Morning().addSecs(1800));
    QCOMPARE(explanation.Sentence(),
             QStringLiteral("The scheme is not armed at this time; it will be from Mon 2026-11-23 09:00."));
}

void TestSchemeExplanation::aSchemeThatIsSwitchedOffSaysSo()
{
    AlarmInfo info = Armed({{0, 86399}});
    info.bOpen = false;
    const SchemeExplanation explanation =
        SchemeExplanation::Of({{{s_door, 101}, info}}, s_door, 101, Morning());
    QCOMPARE(explanation.verdict, SchemeVerdict::SwitchedOff);
    QVERIFY(!explanation.since && !explanation.nextChange);
    QCOMPARE(explanation.Sentence(), QStringLiteral("The scheme is switched off."));
}

void TestSchemeExplanation::aMissingSchemeSaysSo()
{
    const AlarmInfoMap map{{{s_door, 101}, Armed({{0, 86399}})}};
    for (const AlarmSourceKey& key : {AlarmSourceKey{s_door, 102}, AlarmSourceKey{s_otherDoor, 101}}) {
        const SchemeExplanation explanation =
            SchemeExplanation::Of(map, key.strEventSource, key.AlarmType, Morning());
        QCOMPARE(explanation.verdict, SchemeVerdict::NoScheme);
        QVERIFY(explanation.key == key);
        QCOMPARE(explanation.Sentence(), QStringLiteral("There is no scheme for this event."));
    }
}

void TestSchemeExplanation::theEventOfTheWholeDeviceIsOneForAllItsDoors()
{
    const AlarmSourceKey whole{QStringLiteral("100$1$0$-1"), 22};
    // What is kept under the door itself is not asked.
    AlarmInfo off;
    const AlarmInfoMap map{{whole, Armed({{0, 86399}})}, {{s_door, 22}, off}};
    for (const QString& strSource :
         {s_door, s_otherDoor, QStringLiteral("100$1$1$0"), QStringLiteral("100$1$0$-1")}) {
        const SchemeExplanation explanation = SchemeExplanation::Of(map, strSource, 22, Morning());
        QVERIFY(explanation.key == whole);
        QCOMPARE(explanation.verdict, SchemeVerdict::Armed);
    }
    QCOMPARE(SchemeExplanation::Of(map, QStringLiteral("101$1$0$101"), 22, Morning()).verdict,
             SchemeVerdict::NoScheme);
}

void TestSchemeExplanation::theEventOfTheWholeDeviceNeedsADevice()
{
    for (const char* const source : {"100", "100$1$0", "x$1$0$101", "", "100$1$0$101$5"}) {
        const SchemeExplanation explanation = SchemeExplanation::Of({}, QLatin1String(source), 22, Morning());
        QVERIFY2(!explanation.key, source);
        QCOMPARE(explanation.verdict, SchemeVerdict::NoScheme);
        QCOMPARE(explanation.Sentence(), QStringLiteral("Such an event does not happen there."));
    }
}

void TestSchemeExplanation::anAlarmInputHasOneEventOnly()
{
    const AlarmInfoMap map{{{s_input, 2}, Armed({{0, 86399}})}, {{s_input, 101}, Armed({{0, 86399}})}};
    QCOMPARE(SchemeExplanation::Of(map, s_input, 2, Morning()).verdict, SchemeVerdict::Armed);
    const SchemeExplanation other = SchemeExplanation::Of(map, s_input, 101, Morning());
    QCOMPARE(other.verdict, SchemeVerdict::NoScheme);
    QVERIFY(!other.key);
    // An input of a device that is no access controller is spelled with a 0.
    QVERIFY(!SchemeExplanation::KeyOf(QStringLiteral("300$3$0$301"), 101));
    QVERIFY(SchemeExplanation::KeyOf(QStringLiteral("300$3$0$301"), 2));
}

void TestSchemeExplanation::reactionsAreWhatHappens()
{
    AlarmInfo info = Armed({{0, 86399}});
    info.bOpenSound = true;
    info.bEmapTwinkle = true;
    info.bSendEmail = true;
    info.listAlarmOut = {{QStringLiteral("104$3$0$0"), true, 45}};
    info.listDoor = {{QStringLiteral("101"), true}, {QStringLiteral("102"), false}};
    info.videoSplit.SplitCount = 2;
    info.videoSplit.videoLinks.insert(1, AlarmLinkVideo{QStringLiteral("400$1$0$401"), 3, 0, true, true, 30});
    const SchemeReactions reactions =
        SchemeExplanation::Of({{{s_door, 101}, info}}, s_door, 101, Morning()).reactions;
    QVERIFY(reactions.bSound && reactions.bTwinkle && reactions.bMail);
    QCOMPARE(reactions.outputs.size(), 1);
    QCOMPARE(reactions.outputs.constFirst().Time, 45);
    QCOMPARE(reactions.doors, info.listDoor);
    QCOMPARE(reactions.videos.size(), 1);
    QCOMPARE(reactions.videos.value(1).Preposition, 3);
    QVERIFY(!reactions.IsEmpty());
    QVERIFY(SchemeReactions::HasAny(info));
}

void TestSchemeExplanation::reactionsThatDoNothingAreLeftOut()
{
    AlarmInfo info = Armed({{0, 86399}});
    info.listAlarmOut = {{QStringLiteral("104$3$0$0"), false, 45}};
    info.videoSplit.SplitCount = 2;
    AlarmLinkVideo idle;
    idle.bOpen = false;
    info.videoSplit.videoLinks.insert(0, idle);
    info.videoSplit.videoLinks.insert(2, AlarmLinkVideo());
    info.videoSplit.videoLinks.insert(-1, AlarmLinkVideo());
    QVERIFY(SchemeReactions::Of(info).IsEmpty());
    QVERIFY(!SchemeReactions::HasAny(info));
    info.videoSplit.SplitCount = 3;
    QCOMPARE(SchemeReactions::Of(info).videos.keys(), QList<int32_t>{2});
    QVERIFY(SchemeReactions::HasAny(info));
}

void TestSchemeExplanation::theLastOfSeveralLinksToAnOutputCounts()
{
    AlarmInfo info;
    info.listAlarmOut = {{QStringLiteral("104$3$0$0"), true, 10},
                         {QStringLiteral("105$3$0$0"), true, 20},
                         {QStringLiteral("104$3$0$0"), false, 30},
                         {QStringLiteral("105$3$0$0"), true, 40}};
    const SchemeReactions reactions = SchemeReactions::Of(info);
    QCOMPARE(reactions.outputs.size(), 1);
    QCOMPARE(reactions.outputs.constFirst().Time, 40);
}

void TestSchemeExplanation::sentencesTellSecondsOnlyWhereThereAreAny()
{
    QCOMPARE(SchemeExplanation::MomentText(Morning()), QStringLiteral("Mon 2026-11-23 08:30"));
    QCOMPARE(SchemeExplanation::MomentText(Morning().addSecs(1)), QStringLiteral("Mon 2026-11-23 08:30:01"));
}

void TestSchemeExplanation::aSchemeArmedAllTheTimeOrNeverSaysSo()
{
    const AlarmInfoMap map{{{s_door, 101}, Armed({{0, 86399}})}, {{s_door, 102}, Armed({})}};
    QCOMPARE(SchemeExplanation::Of(map, s_door, 101, Morning()).Sentence(),
             QStringLiteral("The scheme is armed all the time."));
    QCOMPARE(SchemeExplanation::Of(map, s_door, 102, Morning()).Sentence(),
             QStringLiteral("The scheme is switched on but never armed."));
}

void TestSchemeExplanation::hostileSourcesHaveNoScheme()
{
    const AlarmInfoMap map{{{s_door, 101}, Armed({{0, 86399}})}};
    for (const QString& strSource : {QString(), QStringLiteral("$$$"), QString(100000, QLatin1Char('$')),
                                     QStringLiteral("100$1$0$101 ")})
        QCOMPARE(SchemeExplanation::Of(map, strSource, 101, Morning()).verdict, SchemeVerdict::NoScheme);
    QCOMPARE(SchemeExplanation::Of(map, s_door, -1, Morning()).verdict, SchemeVerdict::NoScheme);
    QCOMPARE(SchemeExplanation::Of(map, s_door, 101, QDateTime()).verdict, SchemeVerdict::NotArmed);
}

QTEST_APPLESS_MAIN(TestSchemeExplanation)
#include "tst_scheme_explanation.moc"
