#include "scheme_services/evaluation/SchemeCheck.h"
#include "scheme_services/evaluation/SilencedFindings.h"
#include "scheme_services/evaluation/SiteIndex.h"
#include "tests/scheme_evaluation/EvaluationSite.h"

#include <QFile>
#include <QLocale>
#include <QSet>
#include <QTemporaryDir>
#include <QTest>

namespace {

const AlarmSourceKey s_door{QStringLiteral("100$1$0$101"), 101};

/// Switched on, armed all the time, with a reaction: nothing to find.
AlarmInfo Sound()
{
    AlarmInfo info;
    info.bOpen = true;
    info.bOpenSound = true;
    return info;
}

AlarmInfo WithDay(int iDay, const AlarmDefenceTime_t& regions)
{
    AlarmInfo info = Sound();
    info.defenceTime[iDay] = regions;
    return info;
}

QVector<Finding> Check(const AlarmInfoMap& map, const Site& site = {})
{
    return SchemeCheck::Run(map, SiteIndex(site));
}

/// "code day value link", one a finding; the doors that nothing watches are left out unless asked for.
QStringList Words(const QVector<Finding>& findings, bool bDoors = false)
{
    QStringList words;
    for (const Finding& finding : findings) {
        if (finding.code != FindingCode::UnwatchedDoor || bDoors) {
            words += QStringLiteral("%1 %2 %3 %4")
                         .arg(Finding::CodeName(finding.code))
                         .arg(finding.iDay)
                         .arg(finding.iValue)
                         .arg(finding.strLink)
                         .trimmed();
        }
    }
    return words;
}

QString Text(const char* szLatin1)
{
    return QString::fromLatin1(szLatin1);
}

} // namespace

class TestSchemeCheck : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void aSoundSchemeHasNoFinding();
    void aSchemeThatIsNeverArmedIsFound();
    void aSchemeSwitchedOffNeedNotBeArmed();
    void anArmedSchemeWithoutReactionIsFound();
    void everyReactionIsEnough();
    void durationsOutsideTheirBoundsAreFound();
    void moreThanSixRegionsAreFound();
    void overlappingRegionsAreFound_data();
    void overlappingRegionsAreFound();
    void touchingRegionsAreFound();
    void impossibleRegionsAreFound_data();
    void impossibleRegionsAreFound();
    void eachDayIsFoundByItself();
    void regionsOfASchemeSwitchedOffAreFoundToo();
    void sourcesThatTheSiteDoesNotHaveAreFound();
    void linksThatTheSiteDoesNotHaveAreFound();
    void withoutASiteNothingOfItIsFound();
    void doorsThatNothingWatchesAreFound();
    void disabledDoorsNeedNoScheme();
    void theSchemeOfTheWholeDeviceWatchesItsDoors();
    void schemesOnAnOfflineDeviceAreTold();
    void findingsComeInKeyOrderDoorsLast();
    void progressIsToldAndCanStop();
    void codesAreNamedForEver();
    void everyFindingHasPlaceTextAndAdvice();
    void placesNameSourceEventAndDay();
    void codesAreSilencedEverywhereOrAtOnePlace();
    void aListWithOtherThingsIsRefused_data();
    void aListWithOtherThingsIsRefused();
    void aListIsReadFromAFile();
    void whatIsNoListIsRefused();
};

void TestSchemeCheck::initTestCase()
{
    QLocale::setDefault(QLocale::c());
}

void TestSchemeCheck::aSoundSchemeHasNoFinding()
{
    QVERIFY(Check({}).isEmpty());
    QVERIFY(Check({{s_door, Sound()}}).isEmpty());
    QVERIFY(Check({{s_door, AlarmInfo()}}).isEmpty());
    QVERIFY(Check({{s_door, WithDay(3, {{0, 100}, {101, 200}, {300, 86399}})}}).isEmpty());
}

void TestSchemeCheck::aSchemeThatIsNeverArmedIsFound()
{
    AlarmInfo info = Sound();
    for (int day = 0; day < 7; ++day)
        info.defenceTime[day] = {{3600, 3600}};
    QCOMPARE(Words(Check({{s_door, info}})), QStringList(Text("never-armed -1 0")));
    // Never armed with no reaction either is one finding: nobody misses the reaction.
    info.bOpenSound = false;
    QCOMPARE(Words(Check({{s_door, info}})), QStringList(Text("never-armed -1 0")));
    // A second a week is enough.
    info.bOpenSound = true;
    info.defenceTime[4] = {{3600, 3601}};
    QVERIFY(Check({{s_door, info}}).isEmpty());
}

void TestSchemeCheck::aSchemeSwitchedOffNeedNotBeArmed()
{
    AlarmInfo info;
    for (int day = 0; day < 7; ++day)
        info.defenceTime[day].clear();
    QVERIFY(Check({{s_door, info}}).isEmpty());
}

void TestSchemeCheck::anArmedSchemeWithoutReactionIsFound()
{
    AlarmInfo info;
    info.bOpen = true;
    QCOMPARE(Words(Check({{s_door, info}})), QStringList(Text("no-reaction -1 0")));
    info.listAlarmOut = {{Text("104$3$0$0"), false, 20}};
    QCOMPARE(Words(Check({{s_door, info}})), QStringList(Text("no-reaction -1 0")));
}

void TestSchemeCheck::everyReactionIsEnough()
{
    QVector<AlarmInfo> infos(6);
    infos[0].bOpenSound = true;
    infos[1].bEmapTwinkle = true;
    infos[2].bSendEmail = true;
    infos[3].listAlarmOut = {{Text("104$3$0$0"), true, 20}};
    infos[4].listDoor = {{Text("101"), false}};
    infos[5].videoSplit.SplitCount = 1;
    infos[5].videoSplit.videoLinks.insert(0, AlarmLinkVideo());
    for (AlarmInfo& info : infos) {
        info.bOpen = true;
        QVERIFY(Check({{s_door, info}}).isEmpty());
    }
}

void TestSchemeCheck::durationsOutsideTheirBoundsAreFound()
{
    AlarmInfo info = Sound();
    info.listAlarmOut = {{Text("1$3$0$0"), true, 5},     {Text("2$3$0$0"), true, 4},
                         {Text("3$3$0$0"), true, 43200}, {Text("4$3$0$0"), true, 43201},
                         {Text("5$3$0$0"), false, 0},    {Text("6$3$0$0"), true, -2147483647}};
    QCOMPARE(Words(Check({{s_door, info}})),
             QStringList({Text("bad-duration -1 4 2$3$0$0"), Text("bad-duration -1 43201 4$3$0$0"),
                          Text("bad-duration -1 0 5$3$0$0"), Text("bad-duration -1 -2147483647 6$3$0$0")}));
}

void TestSchemeCheck::moreThanSixRegionsAreFound()
{
    AlarmDefenceTime_t regions;
    for (int region = 0; region < 6; ++region)
        regions.append({region * 1000, region * 1000 + 500});
    QVERIFY(Check({{s_door, WithDay(2, regions)}}).isEmpty());
    regions.append({80000, 81000});
    QCOMPARE(Words(Check({{s_door, WithDay(2, regions)}})), QStringList(Text("too-many-regions 2 7")));
}

void TestSchemeCheck::overlappingRegionsAreFound_data()
{
    QTest::addColumn<AlarmDefenceTime_t>("regions");
    QTest::newRow("by a second") << AlarmDefenceTime_t{{0, 101}, {100, 200}};
    QTest::newRow("unsorted") << AlarmDefenceTime_t{{100, 200}, {0, 101}};
    QTest::newRow("twice the same") << AlarmDefenceTime_t{{100, 200}, {100, 200}};
    QTest::newRow("inside") << AlarmDefenceTime_t{{0, 86399}, {100, 200}};
    QTest::newRow("over a third") << AlarmDefenceTime_t{{0, 1000}, {100, 200}, {300, 400}};
    QTest::newRow("at the last second") << AlarmDefenceTime_t{{0, 86399}, {86398, 86399}};
}

void TestSchemeCheck::overlappingRegionsAreFound()
{
    QFETCH(AlarmDefenceTime_t, regions);
    QCOMPARE(Words(Check({{s_door, WithDay(1, regions)}})), QStringList(Text("overlapping-regions 1 0")));
}

void TestSchemeCheck::touchingRegionsAreFound()
{
    QCOMPARE(Words(Check({{s_door, WithDay(0, {{100, 200}, {0, 100}})}})),
             QStringList(Text("touching-regions 0 0")));
    // Regions that cover nothing touch nothing, and midnight is no touch.
    QVERIFY(Check({{s_door, WithDay(0, {{0, 100}, {100, 100}, {200, 86399}})}}).isEmpty());
    QCOMPARE(Words(Check({{s_door, WithDay(0, {{0, 100}, {100, 200}, {150, 300}})}})),
             QStringList({Text("overlapping-regions 0 0"), Text("touching-regions 0 0")}));
}

void TestSchemeCheck::impossibleRegionsAreFound_data()
{
    QTest::addColumn<int>("begin");
    QTest::addColumn<int>("end");
    QTest::newRow("reversed") << 200 << 100;
    QTest::newRow("negative") << -1 << 100;
    QTest::newRow("beyond the day") << 100 << 86400;
    QTest::newRow("of another day") << 90000 << 90001;
}

void TestSchemeCheck::impossibleRegionsAreFound()
{
    QFETCH(int, begin);
    QFETCH(int, end);
    QCOMPARE(Words(Check({{s_door, WithDay(5, {{begin, end}})}})),
             QStringList(Text("impossible-region 5 0")));
}

void TestSchemeCheck::eachDayIsFoundByItself()
{
    AlarmInfo info = WithDay(0, {{0, 100}, {100, 200}, {200, 300}});
    info.defenceTime[6] = {{0, 100}, {100, 200}};
    QCOMPARE(Words(Check({{s_door, info}})),
             QStringList({Text("touching-regions 0 0"), Text("touching-regions 6 0")}));
}

void TestSchemeCheck::regionsOfASchemeSwitchedOffAreFoundToo()
{
    AlarmInfo info = WithDay(3, {{0, 100}, {50, 200}});
    info.bOpen = false;
    QCOMPARE(Words(Check({{s_door, info}})), QStringList(Text("overlapping-regions 3 0")));
}

void TestSchemeCheck::sourcesThatTheSiteDoesNotHaveAreFound()
{
    const AlarmInfoMap map{{{Text("100$1$0$101"), 101}, Sound()}, {{Text("100$1$0$-1"), 22}, Sound()},
                           {{Text("100$3$1$103"), 2}, Sound()},   {{Text("100$1$0$999"), 101}, Sound()},
                           {{Text("999$1$0$-1"), 22}, Sound()},   {{Text("any text"), 101}, AlarmInfo()}};
    QVector<Finding> unknown;
    const QVector<Finding> findings = Check(map, EvaluationSite());
    for (const Finding& finding : findings) {
        if (finding.code == FindingCode::UnknownSource)
            unknown.append(finding);
    }
    QCOMPARE(unknown.size(), 3);
    QCOMPARE(unknown.at(0).key.strEventSource, Text("100$1$0$999"));
    QCOMPARE(unknown.at(1).key.strEventSource, Text("999$1$0$-1"));
    QCOMPARE(unknown.at(2).key.strEventSource, Text("any text"));
}

void TestSchemeCheck::linksThatTheSiteDoesNotHaveAreFound()
{
    AlarmInfo info = Sound();
    info.listAlarmOut = {{Text("104$3$0$0"), true, 20}, {Text("105$3$0$0"), true, 20}, {Text("x"), true, 20}};
    info.listDoor = {{Text("101"), false}, {Text("103"), false}, {Text("no number"), true}};
    info.videoSplit.SplitCount = 2;
    info.videoSplit.videoLinks.insert(0, AlarmLinkVideo{Text("400$1$0$401"), -1, -1, true, false, 20});
    info.videoSplit.videoLinks.insert(1, AlarmLinkVideo{Text("400$1$0$402"), -1, -1, true, false, 20});
    QCOMPARE(Words(Check({{s_door, info}}, EvaluationSite())),
             QStringList({Text("unknown-output -1 0 105$3$0$0"), Text("unknown-output -1 0 x"),
                          Text("unknown-door -1 0 103"), Text("unknown-door -1 0 no number"),
                          Text("unknown-video -1 0 400$1$0$402")}));
}

void TestSchemeCheck::withoutASiteNothingOfItIsFound()
{
    AlarmInfo info = Sound();
    info.listAlarmOut = {{Text("x"), true, 20}};
    QVERIFY(Check({{{Text("any text"), 101}, info}}).isEmpty());
}

void TestSchemeCheck::doorsThatNothingWatchesAreFound()
{
    const auto doors = [](const AlarmInfoMap& map) {
        QStringList sources;
        const QVector<Finding> findings = Check(map, EvaluationSite());
        for (const Finding& finding : findings) {
            if (finding.code == FindingCode::UnwatchedDoor) {
                sources += finding.key.strEventSource;
                if (finding.key.AlarmType != -1)
                    sources += Text("with an event");
            }
        }
        return sources;
    };
    QCOMPARE(doors({}), QStringList({Text("100$1$0$101"), Text("100$1$0$102"), Text("200$1$0$201"),
                                     Text("200$1$0$202")}));
    QCOMPARE(doors({{s_door, Sound()}, {{Text("100$1$0$102"), 101}, AlarmInfo()}}),
             QStringList({Text("100$1$0$102"), Text("200$1$0$201"), Text("200$1$0$202")}));
}

void TestSchemeCheck::disabledDoorsNeedNoScheme()
{
    Site site = EvaluationSite();
    site.devices[0].channels[0].bEnabled = false;
    site.devices[1].bEnabled = false;
    QCOMPARE(Words(Check({}, site), true), QStringList(Text("unwatched-door -1 0")));
}

void TestSchemeCheck::theSchemeOfTheWholeDeviceWatchesItsDoors()
{
    const QVector<Finding> findings = Check({{{Text("100$1$0$-1"), 22}, Sound()}}, EvaluationSite());
    QCOMPARE(findings.size(), 2);
    for (const Finding& finding : findings)
        QVERIFY(finding.key.strEventSource.startsWith(Text("200$")));
}

void TestSchemeCheck::schemesOnAnOfflineDeviceAreTold()
{
    const AlarmInfoMap map{{{Text("200$1$0$201"), 101}, Sound()}, {{Text("200$1$0$202"), 101}, AlarmInfo()}};
    QCOMPARE(Words(Check(map, EvaluationSite())), QStringList(Text("offline-device -1 0")));
}

void TestSchemeCheck::findingsComeInKeyOrderDoorsLast()
{
    const AlarmInfo bad = WithDay(1, {{5, 3}});
    const QVector<Finding> findings =
        Check({{{Text("200$1$0$201"), 101}, bad}, {{Text("100$1$0$101"), 102}, bad}, {s_door, bad}},
              EvaluationSite());
    QCOMPARE(Words(findings, true), QStringList({Text("impossible-region 1 0"), Text("impossible-region 1 0"),
                                                 Text("impossible-region 1 0"), Text("offline-device -1 0"),
                                                 Text("unwatched-door -1 0"), Text("unwatched-door -1 0")}));
    QVERIFY(findings.at(0).key == s_door);
    QCOMPARE(findings.at(1).key.AlarmType, 102);
}

void TestSchemeCheck::progressIsToldAndCanStop()
{
    AlarmInfoMap map;
    for (int scheme = 0; scheme < 2000; ++scheme)
        map.insert({QStringLiteral("%1$1$0$1").arg(scheme), 101}, WithDay(1, {{5, 3}}));
    int last = -1;
    const auto count = [&map, &last](int iStop) {
        last = -1;
        return SchemeCheck::Run(map, SiteIndex(),
                                [&last, iStop](int iDone, int iAll) {
                                    if (iDone <= last || iAll != 2000)
                                        qFatal("progress goes astray");
                                    last = iDone;
                                    return iDone < iStop;
                                })
            .size();
    };
    QCOMPARE(count(100000), 2000);
    QVERIFY(last > 1000);
    const int stopped = count(500);
    QVERIFY(stopped >= 500 && stopped < 2000);
    QCOMPARE(count(0), 0);
}

void TestSchemeCheck::codesAreNamedForEver()
{
    const QStringList names = Text("never-armed no-reaction unknown-source unknown-output unknown-door "
                                   "unknown-video bad-duration too-many-regions overlapping-regions "
                                   "touching-regions impossible-region unwatched-door offline-device")
                                  .split(QLatin1Char(' '));
    QCOMPARE(names.size(), Finding::CodeCount);
    for (int code = 0; code < Finding::CodeCount; ++code) {
        QCOMPARE(Finding::CodeName(static_cast<FindingCode>(code)), names.at(code));
        QVERIFY(Finding::CodeOf(names.at(code)) == static_cast<FindingCode>(code));
        const FindingSeverity expected = code == 11   ? FindingSeverity::Warning
                                         : code == 12 ? FindingSeverity::Information
                                                      : FindingSeverity::Error;
        QCOMPARE(Finding::SeverityOf(static_cast<FindingCode>(code)), expected);
    }
    QVERIFY(!Finding::CodeOf(Text("Never-Armed")));
    QVERIFY(!Finding::CodeOf({}));
}

void TestSchemeCheck::everyFindingHasPlaceTextAndAdvice()
{
    QSet<QString> texts;
    for (int code = 0; code < Finding::CodeCount; ++code) {
        const Finding finding{static_cast<FindingCode>(code), s_door, 1, 7, Text("104$3$0$0")};
        const SiteIndex site(EvaluationSite());
        texts.insert(finding.Text(site));
        QVERIFY(!finding.Place(site).isEmpty());
        QVERIFY(!finding.Advice().isEmpty());
        QVERIFY(!finding.Text(site).contains(QLatin1Char('%')));
    }
    QCOMPARE(texts.size(), Finding::CodeCount);
}

void TestSchemeCheck::placesNameSourceEventAndDay()
{
    const SiteIndex site(EvaluationSite());
    Finding finding{FindingCode::TouchingRegions, s_door, 0, 0, {}};
    QCOMPARE(finding.Place(site), Text("Lobby/Main, Door Forced Open, Sunday"));
    finding.iDay = 6;
    QCOMPARE(finding.Place(site), Text("Lobby/Main, Door Forced Open, Saturday"));
    finding.iDay = -1;
    finding.key.AlarmType = -1;
    QCOMPARE(finding.Place(site), Text("Lobby/Main"));
    QCOMPARE(finding.Place(SiteIndex()), Text("100$1$0$101"));
    // Names are never taken for placeholders.
    Site strange = EvaluationSite();
    strange.devices[0].strName = Text("%1 %2");
    finding.key.AlarmType = 101;
    QCOMPARE(finding.Place(SiteIndex(strange)), Text("%1 %2/Main, Door Forced Open"));
}

void TestSchemeCheck::codesAreSilencedEverywhereOrAtOnePlace()
{
    QString strProblem;
    const auto silenced = SilencedFindings::Parse("\xEF\xBB\xBF# known\r\nnever-armed\n\n"
                                                  "  touching-regions \t 100$1$0$101  # the lobby\n",
                                                  strProblem);
    QVERIFY2(silenced.has_value(), qPrintable(strProblem));
    const AlarmSourceKey other{Text("100$1$0$102"), 101};
    QVERIFY(silenced->Holds({FindingCode::NeverArmed, s_door, -1, 0, {}}));
    QVERIFY(silenced->Holds({FindingCode::NeverArmed, other, -1, 0, {}}));
    QVERIFY(silenced->Holds({FindingCode::TouchingRegions, s_door, 3, 0, {}}));
    QVERIFY(!silenced->Holds({FindingCode::TouchingRegions, other, 3, 0, {}}));
    QVERIFY(!silenced->Holds({FindingCode::NoReaction, s_door, -1, 0, {}}));
    QVERIFY(SilencedFindings::Parse({}, strProblem).has_value());
}

void TestSchemeCheck::aListWithOtherThingsIsRefused_data()
{
    QTest::addColumn<QByteArray>("text");
    QTest::addColumn<QString>("named");
    QTest::newRow("unknown code") << QByteArray("never-armed\nsilence-all\n") << Text("Line 2");
    QTest::newRow("other case") << QByteArray("Never-Armed") << Text("Line 1");
    QTest::newRow("no key") << QByteArray("\n\nnever-armed Lobby/Main") << Text("Line 3");
    QTest::newRow("a comment without its blank") << QByteArray("never-armed#all") << Text("Line 1");
    QTest::newRow("not UTF-8") << QByteArray("never-armed # caf\xe9\n") << Text("UTF-8");
    QTest::newRow("UTF-16") << QByteArray("\xff\xfen\0e\0", 6) << Text("UTF-8");
    QTest::newRow("a NUL") << QByteArray("never-armed\0", 12) << Text("Line 1");
}

void TestSchemeCheck::aListWithOtherThingsIsRefused()
{
    QFETCH(QByteArray, text);
    QFETCH(QString, named);
    QString strProblem;
    QVERIFY(!SilencedFindings::Parse(text, strProblem));
    QVERIFY2(strProblem.contains(named), qPrintable(strProblem));
}

void TestSchemeCheck::aListIsReadFromAFile()
{
    const QTemporaryDir directory;
    const QString strPath = directory.filePath(Text("known.txt"));
    QFile file(strPath);
    QVERIFY(file.open(QIODevice::WriteOnly));
    file.write("never-armed\n");
    file.close();
    QString strProblem;
    const auto silenced = SilencedFindings::Read(strPath, strProblem);
    QVERIFY2(silenced.has_value(), qPrintable(strProblem));
    QVERIFY(silenced->Holds({FindingCode::NeverArmed, s_door, -1, 0, {}}));
}

void TestSchemeCheck::whatIsNoListIsRefused()
{
    const QTemporaryDir directory;
    const QString strHuge = directory.filePath(Text("huge.txt"));
    QFile file(strHuge);
    QVERIFY(file.open(QIODevice::WriteOnly));
    file.write(QByteArray(2 * 1024 * 1024, '\n'));
    file.close();
    for (const QString& strPath : {directory.path(), directory.filePath(Text("missing.txt")), strHuge}) {
        QString strProblem;
        QVERIFY(!SilencedFindings::Read(strPath, strProblem));
        QVERIFY2(strProblem.contains(QFileInfo(strPath).fileName()), qPrintable(strProblem));
    }
}

QTEST_APPLESS_MAIN(TestSchemeCheck)
#include "tst_scheme_check.moc"
