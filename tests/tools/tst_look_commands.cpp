// The commands that only look: list, show, explain, who-switches and check.

#include "tests/AlarmSchemeData/RawDatabase.h"
#include "tests/scheme_evaluation/EvaluationSite.h"
#include "tests/tools/CommandKit.h"

#include <QCryptographicHash>
#include <QDirIterator>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QLocale>
#include <QTest>

#include <memory>

namespace {

QString Text(const char* szUtf8)
{
    return QString::fromUtf8(szUtf8);
}

AlarmWeek WorkingHours()
{
    AlarmWeek week;
    for (int day = 0; day < 7; ++day)
        week[day] = {};
    for (int day = 1; day < 6; ++day)
        week[day] = {{8 * 3600, 12 * 3600}, {13 * 3600, 86399}};
    return week;
}

/// The lobby's main door forced open: everything that a scheme can do, in working hours.
AlarmInfo RichScheme()
{
    AlarmInfo info;
    info.bOpen = true;
    info.bOpenSound = true;
    info.bSendEmail = true;
    info.listAlarmOut = {{Text("104$3$0$0"), true, 45}, {Text("302$3$0$0"), false, 20}};
    info.listDoor = {{Text("102"), true}};
    info.videoSplit.SplitRow = 1;
    info.videoSplit.SplitCloum = 2;
    info.videoSplit.SplitCount = 2;
    info.videoSplit.videoLinks.insert(1, AlarmLinkVideo{Text("400$1$0$401"), 3, 0, true, true, 30});
    info.defenceTime = WorkingHours();
    return info;
}

AlarmInfoMap Schemes()
{
    AlarmInfo always;
    always.bOpen = true;
    always.bEmapTwinkle = true;
    AlarmInfo faulty;
    faulty.bOpen = true;
    faulty.listAlarmOut = {{Text("104$3$0$0"), true, 3}, {Text("999$3$0$0"), true, 20}};
    faulty.defenceTime[0] = {{0, 3600}, {3600, 7200}};
    faulty.defenceTime[6] = {{0, 3600}, {1800, 7200}};
    return {{{Text("100$1$0$101"), 101}, RichScheme()},
            {{Text("100$1$0$-1"), 22}, always},
            {{Text("100$3$1$103"), 2}, always},
            {{Text("100$1$0$102"), 201}, AlarmInfo()},
            {{Text("200$1$0$201"), 101}, faulty}};
}

QJsonObject Json(const QString& strText)
{
    QJsonParseError error;
    const QJsonDocument document = QJsonDocument::fromJson(strText.toUtf8(), &error);
    if (error.error != QJsonParseError::NoError)
        qWarning("%s", qPrintable(error.errorString()));
    return document.object();
}

/// Everything below a directory, names and contents.
QByteArray Fingerprint(const QString& strDirectory)
{
    QStringList paths;
    QDirIterator files(strDirectory, QDir::Files | QDir::Hidden, QDirIterator::Subdirectories);
    while (files.hasNext())
        paths += files.next();
    paths.sort();
    QCryptographicHash hash(QCryptographicHash::Sha256);
    for (const QString& strPath : qAsConst(paths)) {
        QFile file(strPath);
        hash.addData(strPath.toUtf8());
        if (file.open(QIODevice::ReadOnly))
            hash.addData(&file);
    }
    return hash.result();
}

} // namespace

class TestLookCommands : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void init();

    void listListsEverythingInKeyOrder();
    void listTakesPartOfIt_data();
    void listTakesPartOfIt();
    void listAsJson();
    void listWithoutASiteShowsKeys();
    void showShowsEverything();
    void showAsJsonIsAnExportOfOneScheme();
    void showOfAMissingSchemeIsAFinding();
    void showOfTheWholeDevicesEventThroughADoor();
    void explainAnArmedScheme();
    void explainANotArmedScheme();
    void explainASchemeSwitchedOffOrMissing();
    void explainTheEventOfAWholeDevice();
    void explainAnAlarmInput();
    void explainAsJson();
    void explainOverChangesOfTheClock();
    void explainTakesNamesAndNumbers();
    void explainByTheComputersOwnClock();
    void wrongDatesAreWrongUse_data();
    void wrongDatesAreWrongUse();
    void wrongUseOfExplain_data();
    void wrongUseOfExplain();
    void whoSwitchesAnOutput();
    void whoSwitchesAnOutputThatNobodySwitches();
    void whoSwitchesAsJson();
    void checkFindsEverything();
    void checkAsJson();
    void checkOfASoundSiteIsDone();
    void checkWithoutASiteSaysSo();
    void checkLeavesOutWhatIsSilenced();
    void checkRefusesAListThatIsNone();
    void theDataDirectoryIsTheClientsUnlessToldOtherwise();
    void lookingChangesNothing();
    void filesThatAreNoDatabaseAreAFailure_data();
    void filesThatAreNoDatabaseAreAFailure();
    void aWriteThatWasCutOffStandsInTheWay();
    void aBrokenSiteFileIsAFailure();
    void aMissingSiteFileMattersOnlyWhenAskedFor();
    void wrongOptionsAreWrongUse_data();
    void wrongOptionsAreWrongUse();
    void textsOfADatabaseCannotReachTheTerminal();
    void eachJsonIsOneDocument();

private:
    Run Look(const char* szLine, const QStringList& further = {}) const
    {
        return Run(Words(szLine) + further, m_data->Directory());
    }

    /// For tests that change the data, which is made anew for the next one.
    ClientData& Changed()
    {
        m_bChanged = true;
        return *m_data;
    }

    std::unique_ptr<ClientData> m_data;
    bool m_bChanged = false;
};

void TestLookCommands::initTestCase()
{
    QLocale::setDefault(QLocale::c());
}

void TestLookCommands::init()
{
    if (m_data != nullptr && !m_bChanged)
        return;
    m_data.reset();
    m_data = std::make_unique<ClientData>(EvaluationSite(), Schemes());
    m_bChanged = false;
}

void TestLookCommands::listListsEverythingInKeyOrder()
{
    const Run run = Look("list");
    QCOMPARE(run.out, Text("on   100$1$0$-1   22   Lobby, Controller Tampered\n"
                           "on   100$1$0$101  101  Lobby/Main, Door Forced Open\n"
                           "off  100$1$0$102  201  Lobby/Side, Unknown Card\n"
                           "on   100$3$1$103  2    Lobby/Glass, External Alarm\n"
                           "on   200$1$0$201  101  Yard/Main, Door Forced Open\n"
                           "Schemes: 5, switched on: 4\n"));
    QCOMPARE(run.code, 0);
    QVERIFY(run.err.isEmpty());
}

void TestLookCommands::listTakesPartOfIt_data()
{
    QTest::addColumn<QStringList>("arguments");
    QTest::addColumn<QString>("last");
    QTest::newRow("a door") << QStringList{Text("--source"), Text("Lobby/Main")}
                            << Text("Schemes: 2, switched on: 2");
    QTest::newRow("a key") << QStringList{Text("--source"), Text("100$1$0$102")}
                           << Text("Schemes: 2, switched on: 1");
    QTest::newRow("a type") << Words("--event 101") << Text("Schemes: 2, switched on: 2");
    QTest::newRow("a name") << QStringList{Text("--event"), Text("unknown card")}
                            << Text("Schemes: 1, switched on: 0");
    QTest::newRow("both") << QStringList{Text("--event"), Text("101"), Text("--source"), Text("Yard/Main")}
                          << Text("Schemes: 1, switched on: 1");
    QTest::newRow("switched on") << Words("--enabled") << Text("Schemes: 4, switched on: 4");
    QTest::newRow("nothing") << Words("--event 312") << Text("Schemes: 0, switched on: 0");
}

void TestLookCommands::listTakesPartOfIt()
{
    QFETCH(QStringList, arguments);
    QFETCH(QString, last);
    const Run run = Look("list", arguments);
    QCOMPARE(run.code, 0);
    QCOMPARE(run.out.trimmed().section(QLatin1Char('\n'), -1), last);
}

void TestLookCommands::listAsJson()
{
    const Run run = Look("list --event 101 --format json");
    QCOMPARE(run.code, 0);
    QCOMPARE(
        run.out,
        Text("{\"format\":\"acs-scheme-list\",\"version\":1,\"schemes\":[\n"
             "{\"enabled\":true,\"event\":101,\"eventName\":\"Door Forced Open\",\"source\":\"100$1$0$101\","
             "\"sourceName\":\"Lobby/Main\"},\n"
             "{\"enabled\":true,\"event\":101,\"eventName\":\"Door Forced Open\",\"source\":\"200$1$0$201\","
             "\"sourceName\":\"Yard/Main\"}\n"
             "]}\n"));
    QCOMPARE(Look("list --event 312 --format json").out,
             Text("{\"format\":\"acs-scheme-list\",\"version\":1,\"schemes\":[]}\n"));
}

void TestLookCommands::listWithoutASiteShowsKeys()
{
    const Run run(
        QStringList{Text("list"), Text("--database"), m_data->Database(), Text("--event"), Text("2")});
    QCOMPARE(run.code, 0);
    QCOMPARE(run.out, Text("on   100$3$1$103  2    100$3$1$103, External Alarm\n"
                           "Schemes: 1, switched on: 1\n"));
    const Run named(QStringList{Text("list"), Text("--database"), m_data->Database(), Text("--event"),
                                Text("2"), Text("--site"), m_data->File("site.json")});
    QVERIFY(named.out.contains(Text("Lobby/Glass")));
}

void TestLookCommands::showShowsEverything()
{
    const Run run = Look("show --source Lobby/Main --event 101");
    QCOMPARE(run.out, Text("Lobby/Main, Door Forced Open\n"
                           "Key: 100$1$0$101, event type 101\n"
                           "Switched on: yes\n"
                           "Sound: yes\n"
                           "Twinkle on the e-map: no\n"
                           "Mail: yes\n"
                           "Outputs:\n"
                           "  Lobby/Siren (104$3$0$0): switched on for 45 s\n"
                           "  Panel/Siren (302$3$0$0): not switched on by itself, for 20 s otherwise\n"
                           "Doors:\n"
                           "  Lobby/Side (102): kept open\n"
                           "Video:\n"
                           "  Window 1: Cameras/Lobby (400$1$0$401), shown: yes, recorded: yes, preset 3, "
                           "stream 0, 30 s\n"
                           "Video windows: 1 rows, 2 columns, 2 used\n"
                           "Defence time:\n"
                           "  Sunday: not armed\n"
                           "  Monday: 08:00-12:00, 13:00-24:00\n"
                           "  Tuesday: 08:00-12:00, 13:00-24:00\n"
                           "  Wednesday: 08:00-12:00, 13:00-24:00\n"
                           "  Thursday: 08:00-12:00, 13:00-24:00\n"
                           "  Friday: 08:00-12:00, 13:00-24:00\n"
                           "  Saturday: not armed\n"));
    QCOMPARE(run.code, 0);
}

void TestLookCommands::showAsJsonIsAnExportOfOneScheme()
{
    const Run run = Look("show --source Lobby/Main --event 101 --format json");
    QCOMPARE(run.code, 0);
    const QJsonObject json = Json(run.out);
    QCOMPARE(json.value(Text("format")).toString(), Text("alarm-schemes"));
    QCOMPARE(json.value(Text("version")).toInt(), 1);
    const QJsonArray schemes = json.value(Text("schemes")).toArray();
    QCOMPARE(schemes.size(), 1);
    const QJsonObject scheme = schemes.at(0).toObject();
    QCOMPARE(scheme.value(Text("strEventSource")).toString(), Text("100$1$0$101"));
    QCOMPARE(scheme.value(Text("AlarmType")).toInt(), 101);
    QCOMPARE(scheme.value(Text("alarmOut")).toArray().size(), 2);
    QVERIFY(run.out.endsWith(QLatin1Char('\n')));
}

void TestLookCommands::showOfAMissingSchemeIsAFinding()
{
    for (const char* const line :
         {"show --source Lobby/Main --event 102", "show --source 7$1$0$8 --event 101",
          "show --source 7$1$0$8 --event 101 --format json"}) {
        const Run run = Look(line);
        QCOMPARE(run.code, 1);
        QVERIFY(run.out.isEmpty());
        QVERIFY(!run.err.isEmpty());
    }
}

void TestLookCommands::showOfTheWholeDevicesEventThroughADoor()
{
    const Run run = Look("show --source Lobby/Side --event 22");
    QCOMPARE(run.code, 0);
    QVERIFY(run.out.contains(Text("Key: 100$1$0$-1, event type 22")));
}

void TestLookCommands::explainAnArmedScheme()
{
    const Run run =
        Look("explain --source Lobby/Main --event 101 --at 2026-11-23T08:30 --zone Europe/Berlin");
    QCOMPARE(run.out, Text("Lobby/Main, Door Forced Open, Mon 2026-11-23 08:30\n"
                           "The scheme is armed since Mon 2026-11-23 08:00 until Mon 2026-11-23 12:00.\n"
                           "It does this:\n"
                           "  plays the alarm sound\n"
                           "  sends a mail\n"
                           "  switches on Lobby/Siren for 45 s\n"
                           "  keeps Lobby/Side open\n"
                           "  shows and records Cameras/Lobby in window 1 for 30 s\n"
                           "The next change is at Mon 2026-11-23 12:00.\n"));
    QCOMPARE(run.code, 0);
}

void TestLookCommands::explainANotArmedScheme()
{
    // The end of a region is not armed, and Friday's last region goes on to midnight.
    const Run noon = Look("explain --source Lobby/Main --event 101 --at 2026-11-23T12:00 --zone UTC");
    QCOMPARE(noon.out, Text("Lobby/Main, Door Forced Open, Mon 2026-11-23 12:00\n"
                            "The scheme is not armed at this time; it will be from Mon 2026-11-23 13:00.\n"
                            "The next change is at Mon 2026-11-23 13:00.\n"));
    QCOMPARE(noon.code, 1);
    QCOMPARE(Look("explain --source Lobby/Main --event 101 --at 2026-11-27T23:59:59 --zone UTC").code, 0);
    const Run weekend = Look("explain --source Lobby/Main --event 101 --at 2026-11-28T00:00 --zone UTC");
    QCOMPARE(weekend.code, 1);
    QVERIFY(weekend.out.contains(Text("from Mon 2026-11-30 08:00.")));
}

void TestLookCommands::explainASchemeSwitchedOffOrMissing()
{
    const Run off = Look("explain --source Lobby/Side --event 201 --at 2026-11-23T08:30 --zone UTC");
    QCOMPARE(off.out, Text("Lobby/Side, Unknown Card, Mon 2026-11-23 08:30\n"
                           "The scheme is switched off.\n"
                           "Nothing changes with time.\n"));
    QCOMPARE(off.code, 1);
    const Run missing = Look("explain --source Lobby/Side --event 202 --at 2026-11-23T08:30 --zone UTC");
    QCOMPARE(missing.out, Text("Lobby/Side, Card Expired, Mon 2026-11-23 08:30\n"
                               "There is no scheme for this event.\n"
                               "Nothing changes with time.\n"));
    QCOMPARE(missing.code, 1);
}

void TestLookCommands::explainTheEventOfAWholeDevice()
{
    const Run run = Look("explain --source Lobby/Side --event 22 --at 2026-11-23T08:30 --zone UTC");
    QCOMPARE(run.out, Text("Lobby/Side, Controller Tampered, Mon 2026-11-23 08:30\n"
                           "The scheme is armed all the time.\n"
                           "A device has one scheme for this event, whichever door it comes from.\n"
                           "It does this:\n"
                           "  lets the icon twinkle on the e-map\n"
                           "Nothing changes with time.\n"));
    QCOMPARE(run.code, 0);
}

void TestLookCommands::explainAnAlarmInput()
{
    QCOMPARE(Look("explain --source Lobby/Glass --event 2 --at 2026-11-23T08:30 --zone UTC").code, 0);
    const Run other = Look("explain --source Lobby/Glass --event 101 --at 2026-11-23T08:30 --zone UTC");
    QCOMPARE(other.code, 1);
    QVERIFY(other.out.contains(Text("Such an event does not happen there.")));
}

void TestLookCommands::explainAsJson()
{
    const Run run = Look("explain --source Lobby/Main --event 101 --at 2026-11-23T08:30 --zone Europe/Berlin "
                         "--format json");
    QCOMPARE(run.code, 0);
    const QJsonObject json = Json(run.out);
    QCOMPARE(json.value(Text("format")).toString(), Text("acs-scheme-explanation"));
    QCOMPARE(json.value(Text("source")).toString(), Text("100$1$0$101"));
    QCOMPARE(json.value(Text("scheme")).toString(), Text("100$1$0$101"));
    QCOMPARE(json.value(Text("event")).toInt(), 101);
    QCOMPARE(json.value(Text("at")).toString(), Text("2026-11-23T08:30:00+01:00"));
    QCOMPARE(json.value(Text("verdict")).toString(), Text("armed"));
    QCOMPARE(json.value(Text("since")).toString(), Text("2026-11-23T08:00:00+01:00"));
    QCOMPARE(json.value(Text("nextChange")).toString(), Text("2026-11-23T12:00:00+01:00"));
    const QJsonObject reactions = json.value(Text("reactions")).toObject();
    QCOMPARE(reactions.value(Text("sound")).toBool(), true);
    QCOMPARE(reactions.value(Text("twinkle")).toBool(), false);
    QCOMPARE(reactions.value(Text("outputs")).toArray().size(), 1);
    QCOMPARE(reactions.value(Text("outputs")).toArray().at(0).toObject().value(Text("seconds")).toInt(), 45);
    QCOMPARE(reactions.value(Text("doors")).toArray().at(0).toObject().value(Text("keptOpen")).toBool(),
             true);
    QCOMPARE(reactions.value(Text("videos")).toArray().at(0).toObject().value(Text("window")).toInt(), 1);

    const QJsonObject off = Json(
        Look("explain --source Lobby/Side --event 201 --at 2026-11-23T08:30 --zone UTC --format json").out);
    QCOMPARE(off.value(Text("verdict")).toString(), Text("switched-off"));
    QVERIFY(off.value(Text("since")).isNull());
    QVERIFY(off.value(Text("nextChange")).isNull());
    QVERIFY(off.value(Text("reactions")).toObject().value(Text("outputs")).toArray().isEmpty());
    for (const auto& [line, verdict] :
         {std::pair("--event 202", "no-scheme"), {"--event 201", "switched-off"}}) {
        const Run one =
            Run(Words("explain --source Lobby/Side --at 2026-11-23T12:00 --format json") + Words(line),
                m_data->Directory());
        QCOMPARE(Json(one.out).value(Text("verdict")).toString(), Text(verdict));
    }
    QCOMPARE(Json(Look("explain --source Lobby/Main --event 101 --at 2026-11-23T12:00 --format json").out)
                 .value(Text("verdict"))
                 .toString(),
             Text("not-armed"));
}

void TestLookCommands::explainOverChangesOfTheClock()
{
    AlarmInfo night;
    night.bOpen = true;
    for (int day = 0; day < 7; ++day)
        night.defenceTime[day] = {{2 * 3600 + 900, 2 * 3600 + 2700}};
    Changed().Store({{{Text("100$1$0$101"), 101}, night}});
    const Run skipped =
        Look("explain --source Lobby/Main --event 101 --at 2026-03-29T02:30 --zone Europe/Berlin");
    QCOMPARE(skipped.code, 2);
    QVERIFY2(skipped.err.contains(Text("skips")), qPrintable(skipped.err));
    const Run before =
        Look("explain --source Lobby/Main --event 101 --at 2026-03-29T01:59:59 --zone Europe/Berlin");
    QVERIFY2(before.out.contains(Text("from Mon 2026-03-30 02:15.")), qPrintable(before.out));
    const Run twice =
        Look("explain --source Lobby/Main --event 101 --at 2026-10-25T02:30 --zone Europe/Berlin");
    QCOMPARE(twice.code, 0);
    QVERIFY(twice.out.contains(Text("twice")));
    const QString strJson =
        Text("explain --source Lobby/Main --event 101 --format json --zone Europe/Berlin --at ");
    const QJsonObject first = Json(Look(qPrintable(strJson + Text("2026-10-25T02:30"))).out);
    QCOMPARE(first.value(Text("since")).toString(), Text("2026-10-25T02:15:00+02:00"));
    QCOMPARE(first.value(Text("nextChange")).toString(), Text("2026-10-25T02:45:00+02:00"));
    const QJsonObject second = Json(Look(qPrintable(strJson + Text("2026-10-25T02:30+01:00"))).out);
    QCOMPARE(second.value(Text("since")).toString(), Text("2026-10-25T02:15:00+01:00"));
    const QJsonObject zulu = Json(Look(qPrintable(strJson + Text("2026-10-25T01:30:00Z"))).out);
    QCOMPARE(zulu.value(Text("at")).toString(), Text("2026-10-25T02:30:00+01:00"));
}

void TestLookCommands::explainTakesNamesAndNumbers()
{
    const QString strWanted =
        Look("explain --source 100$1$0$101 --event 101 --at 2026-11-23T08:30 --zone UTC").out;
    QVERIFY(strWanted.contains(Text("armed since")));
    const Run named = Look("explain --at 2026-11-23T08:30:00 --zone UTC --source lobby/main",
                           {Text("--event"), Text("Door Forced Open")});
    QCOMPARE(named.out, strWanted);
    const Run blank =
        Look("explain --zone UTC --source lobby/main --event 101", {Text("--at"), Text("2026-11-23 08:30")});
    QCOMPARE(blank.out, strWanted);
}

void TestLookCommands::explainByTheComputersOwnClock()
{
    QCOMPARE(Look("explain --source Lobby/Main --event 101 --at 2026-11-23T08:30").code, 0);
    QCOMPARE(Look("explain --source Lobby/Main --event 101 --at 2026-11-22T08:30").code, 1);
}

void TestLookCommands::wrongDatesAreWrongUse_data()
{
    QTest::addColumn<QByteArray>("text");
    for (const char* const text : {"now",
                                   "2026-11-23",
                                   "08:30",
                                   "2026-11-31T08:30",
                                   "2026-02-29T08:30",
                                   "2026-13-01T08:30",
                                   "2026-11-23T24:00",
                                   "2026-11-23T08:60",
                                   "2026-11-23T8:30",
                                   "2026-1-1T08:30",
                                   "26-11-23T08:30",
                                   "2026-11-23T08:30:60",
                                   "2026-11-23T08:30:00.5",
                                   "2026-11-23T08:30+25:00",
                                   "2026-11-23T08:30+1",
                                   "2026-11-23T08:30 ",
                                   " 2026-11-23T08:30",
                                   "+2026-11-23T08:30",
                                   "2026-11-23T08:30\n",
                                   "0000-01-01T00:00",
                                   "2026/11/23T08:30"})
        QTest::newRow(text) << QByteArray(text);
}

void TestLookCommands::wrongDatesAreWrongUse()
{
    QFETCH(QByteArray, text);
    const Run run =
        Look("explain --source Lobby/Main --event 101 --zone UTC --at", {QString::fromLatin1(text)});
    QCOMPARE(run.code, 2);
    QVERIFY(run.out.isEmpty());
    QVERIFY(run.err.contains(Text("date and time")));
}

void TestLookCommands::wrongUseOfExplain_data()
{
    QTest::addColumn<QByteArray>("text");
    for (const char* const line :
         {"", "--source Lobby/Main --event 101", "--source Lobby/Main --at 2026-11-23T08:30",
          "--event 101 --at 2026-11-23T08:30", "--source Lobby/Nothing --event 101 --at 2026-11-23T08:30",
          "--source Lobby/Main --event 999 --at 2026-11-23T08:30",
          "--source Lobby/Main --event -1 --at 2026-11-23T08:30",
          "--source Lobby/Main --event x --at 2026-11-23T08:30",
          "--source Lobby/Main --event 101 --at 2026-11-23T08:30 --zone Mars/Olympus",
          "--source Lobby/Main --event 101 --at 2026-11-23T08:30 --zone Europe/../Berlin",
          "--source Lobby/Main --event 101 --at 2026-11-23T08:30 more"})
        QTest::newRow(line) << QByteArray(line);
}

void TestLookCommands::wrongUseOfExplain()
{
    QFETCH(QByteArray, text);
    const Run run = Look("explain", Words(text.constData()));
    QCOMPARE(run.code, 2);
    QVERIFY(run.out.isEmpty());
    QVERIFY(!run.err.isEmpty());
}

void TestLookCommands::whoSwitchesAnOutput()
{
    const Run run = Look("who-switches Lobby/Siren");
    QCOMPARE(run.out, Text("Lobby/Siren, linked by 2:\n"
                           "  Lobby/Main, Door Forced Open: for 45 s\n"
                           "  Yard/Main, Door Forced Open: for 3 s\n"));
    QCOMPARE(run.code, 0);
    QCOMPARE(Look("who-switches 104$3$0$0").out, run.out);
}

void TestLookCommands::whoSwitchesAnOutputThatNobodySwitches()
{
    const Run linked = Look("who-switches Panel/Siren");
    QCOMPARE(linked.out,
             Text("Panel/Siren, linked by 1:\n"
                  "  Lobby/Main, Door Forced Open: no: the output is not opened automatically\n"));
    QCOMPARE(linked.code, 1);
    const Run unlinked = Look("who-switches Yard/Lamp");
    QCOMPARE(unlinked.out, Text("Yard/Lamp, linked by 0:\n"));
    QCOMPARE(unlinked.code, 1);
    for (const char* const line :
         {"who-switches", "who-switches Lobby/Main", "who-switches Lobby/Siren more", "who-switches Nothing"})
        QCOMPARE(Look(line).code, 2);
    QCOMPARE(Look("who-switches", {QString()}).code, 2);
}

void TestLookCommands::whoSwitchesAsJson()
{
    const QJsonObject json = Json(Look("who-switches Panel/Siren --format json").out);
    QCOMPARE(json.value(Text("output")).toString(), Text("302$3$0$0"));
    QCOMPARE(json.value(Text("outputName")).toString(), Text("Panel/Siren"));
    const QJsonArray schemes = json.value(Text("schemes")).toArray();
    QCOMPARE(schemes.size(), 1);
    const QJsonObject scheme = schemes.at(0).toObject();
    QCOMPARE(scheme.value(Text("switches")), QJsonValue(false));
    QCOMPARE(scheme.value(Text("automatic")), QJsonValue(false));
    QCOMPARE(scheme.value(Text("enabled")), QJsonValue(true));
    QCOMPARE(scheme.value(Text("everArmed")), QJsonValue(true));
    QCOMPARE(scheme.value(Text("seconds")), QJsonValue(20));
}

void TestLookCommands::checkFindsEverything()
{
    const Run run = Look("check");
    QCOMPARE(
        run.out,
        Text(
            "Error touching-regions: Yard/Main, Door Forced Open, Sunday\n"
            "  Time regions of the day touch each other. Open the day's details and confirm them; regions "
            "that belong together are joined.\n"
            "Error overlapping-regions: Yard/Main, Door Forced Open, Saturday\n"
            "  Time regions of the day overlap. Open the day's details and confirm them; regions that belong "
            "together are joined.\n"
            "Error bad-duration: Yard/Main, Door Forced Open\n"
            "  The output Lobby/Siren stays on for 3 s, which is not within 5 to 43200 s. Set a time from 5 "
            "to "
            "43200 s.\n"
            "Error unknown-output: Yard/Main, Door Forced Open\n"
            "  The linked output 999$3$0$0 is not part of the site. Remove the link, or bring the device "
            "back "
            "into the site.\n"
            "Information offline-device: Yard/Main, Door Forced Open\n"
            "  The scheme waits for events of a device that is offline. Look after the device; until it "
            "answers, nothing is reported.\n"
            "Warning unwatched-door: Yard/Gate/East\n"
            "  No scheme of this door is switched on. Switch on a scheme for the door if its events matter.\n"
            "Schemes: 5, errors: 4, warnings: 1, information: 1, silenced: 0\n"));
    QCOMPARE(run.code, 1);
    QVERIFY(run.err.isEmpty());
}

void TestLookCommands::checkAsJson()
{
    const Run run = Look("check --format json");
    QCOMPARE(run.code, 1);
    const QJsonObject json = Json(run.out);
    QCOMPARE(json.value(Text("format")).toString(), Text("acs-scheme-check"));
    QCOMPARE(json.value(Text("errors")).toInt(), 4);
    QCOMPARE(json.value(Text("warnings")).toInt(), 1);
    QCOMPARE(json.value(Text("information")).toInt(), 1);
    QCOMPARE(json.value(Text("silenced")).toInt(), 0);
    QCOMPARE(json.value(Text("siteKnown")).toBool(), true);
    const QJsonArray findings = json.value(Text("findings")).toArray();
    QCOMPARE(findings.size(), 6);
    const QJsonObject touching = findings.at(0).toObject();
    QCOMPARE(touching.value(Text("code")).toString(), Text("touching-regions"));
    QCOMPARE(touching.value(Text("severity")).toString(), Text("error"));
    QCOMPARE(touching.value(Text("source")).toString(), Text("200$1$0$201"));
    QCOMPARE(touching.value(Text("event")).toInt(), 101);
    QCOMPARE(touching.value(Text("day")), QJsonValue(0));
    QCOMPARE(touching.value(Text("place")).toString(), Text("Yard/Main, Door Forced Open, Sunday"));
    QVERIFY(!touching.value(Text("text")).toString().isEmpty());
    QVERIFY(!touching.value(Text("advice")).toString().isEmpty());
    QCOMPARE(findings.at(3).toObject().value(Text("link")).toString(), Text("999$3$0$0"));
    const QJsonObject door = findings.at(5).toObject();
    QCOMPARE(door.value(Text("severity")).toString(), Text("warning"));
    QVERIFY(!door.contains(Text("event")) && !door.contains(Text("day")) && !door.contains(Text("link")));
}

void TestLookCommands::checkOfASoundSiteIsDone()
{
    AlarmInfo always;
    always.bOpen = true;
    always.bOpenSound = true;
    Changed().Store({{{Text("100$1$0$101"), 101}, RichScheme()},
                     {{Text("100$1$0$102"), 101}, always},
                     {{Text("100$1$0$-1"), 22}, always},
                     {{Text("200$1$0$201"), 101}, always}});
    const Run run = Look("check");
    // A warning and an information remain, and they are no errors.
    QVERIFY(run.out.endsWith(Text("errors: 0, warnings: 1, information: 1, silenced: 0\n")));
    QCOMPARE(run.code, 0);
}

void TestLookCommands::checkWithoutASiteSaysSo()
{
    const Run run(QStringList{Text("check"), Text("--database"), m_data->Database()});
    QCOMPARE(run.code, 1);
    QVERIFY(run.out.endsWith(Text("No site file: sources, links, doors and devices were not looked at.\n"
                                  "Schemes: 5, errors: 3, warnings: 0, information: 0, silenced: 0\n")));
}

void TestLookCommands::checkLeavesOutWhatIsSilenced()
{
    const QString strList = Changed().Write("known.txt", "# agreed with the guards\n"
                                                         "unwatched-door\n"
                                                         "offline-device\n"
                                                         "touching-regions 200$1$0$201\n"
                                                         "overlapping-regions 200$1$0$202\n"
                                                         "bad-duration\n");
    const Run run = Look("check --silence", {strList});
    QCOMPARE(run.code, 1);
    QVERIFY2(run.out.endsWith(Text("errors: 2, warnings: 0, information: 0, silenced: 4\n")),
             qPrintable(run.out));
    const QString strAll = Changed().Write("all.txt", "touching-regions\noverlapping-regions\n"
                                                      "bad-duration\nunknown-output\n");
    QCOMPARE(Look("check --silence", {strAll}).code, 0);
}

void TestLookCommands::checkRefusesAListThatIsNone()
{
    for (const QString& strList : {Changed().Write("other.txt", "never-armed\nnothing\n"),
                                   m_data->Directory(), m_data->File("missing.txt")}) {
        const Run run = Look("check --silence", {strList});
        QCOMPARE(run.code, 3);
        QVERIFY(run.out.isEmpty());
        QVERIFY(!run.err.isEmpty());
    }
    QCOMPARE(Look("check --silence", {QString()}).code, 2);
}

void TestLookCommands::theDataDirectoryIsTheClientsUnlessToldOtherwise()
{
    const QString strWanted = Look("list").out;
    QCOMPARE(Run(Words("list --data-dir") + QStringList(m_data->Directory()), Text("/nowhere")).out,
             strWanted);
    QCOMPARE(Run(Words("list"), Text("/nowhere")).code, 3);
}

void TestLookCommands::lookingChangesNothing()
{
    const QByteArray before = Fingerprint(m_data->Directory());
    for (const char* const line :
         {"list", "show --source Lobby/Main --event 101", "check", "who-switches Lobby/Siren",
          "explain --source Lobby/Main --event 101 --at 2026-11-23T08:30"})
        QVERIFY(Look(line).code < 2);
    QCOMPARE(Fingerprint(m_data->Directory()), before);
    // Nor is anything made where nothing was.
    const QTemporaryDir empty;
    QCOMPARE(Run(Words("check"), empty.path()).code, 3);
    QVERIFY(QDir(empty.path()).isEmpty());
}

void TestLookCommands::filesThatAreNoDatabaseAreAFailure_data()
{
    QTest::addColumn<QString>("name");
    QTest::newRow("a text") << Text("site.json");
    QTest::newRow("a directory") << Text("Database");
    QTest::newRow("nothing") << Text("missing.db");
    QTest::newRow("empty") << Text("empty.db");
}

void TestLookCommands::filesThatAreNoDatabaseAreAFailure()
{
    QFETCH(QString, name);
    Changed().Write("empty.db", {});
    for (const char* const line :
         {"list", "check", "show --source 1$1$0$1 --event 101", "who-switches 1$3$0$0",
          "explain --source 1$1$0$1 --event 101 --at 2026-11-23T08:30"}) {
        const Run run(Words(line) + QStringList{Text("--database"), m_data->File(name.toUtf8().constData())});
        QCOMPARE(run.code, 3);
        QVERIFY(run.out.isEmpty());
        QVERIFY2(run.err.contains(name), qPrintable(run.err));
    }
}

void TestLookCommands::aWriteThatWasCutOffStandsInTheWay()
{
    AlarmInfoMap many;
    for (int door = 0; door < 400; ++door)
        many.insert({Text("100$1$0$%1").arg(1000 + door), 101}, RichScheme());
    Changed().Store(many);
    const QTemporaryDir elsewhere;
    const QString strCopy = elsewhere.filePath(Text("copy.db"));
    {
        // A program that is killed in the middle of a write leaves these two behind.
        RawDatabase writer(m_data->Database());
        QCOMPARE(writer.Run(Text("PRAGMA cache_size = 2; PRAGMA journal_mode = TRUNCATE; begin; "
                                 "update AlarmBaseInfo set bOpen = 0; "
                                 "update AlarmDefenceTimeInfo set Begin = 5, End = 6")),
                 0);
        QVERIFY(QFile::copy(m_data->Database(), strCopy));
        QVERIFY(QFile::copy(m_data->Database() + Text("-journal"), strCopy + Text("-journal")));
    }
    const QByteArray before = Fingerprint(elsewhere.path());
    for (const char* const line :
         {"list", "check", "explain --source 100$1$0$1000 --event 101 --at 2026-11-23T08:30"}) {
        const Run run(Words(line) + QStringList{Text("--database"), strCopy});
        QCOMPARE(run.code, 3);
        QVERIFY(run.out.isEmpty());
        QVERIFY2(run.err.contains(Text("journal")), qPrintable(run.err));
    }
    QCOMPARE(Fingerprint(elsewhere.path()), before);
}

void TestLookCommands::aBrokenSiteFileIsAFailure()
{
    Changed().Write("site.json", "{\"devices\":[{]}");
    const Run run = Look("list");
    QCOMPARE(run.code, 3);
    QVERIFY(run.out.isEmpty());
    QVERIFY(run.err.contains(Text("site.json")));
}

void TestLookCommands::aMissingSiteFileMattersOnlyWhenAskedFor()
{
    QVERIFY(QFile::remove(Changed().File("site.json")));
    QCOMPARE(Look("list").code, 0);
    const Run asked = Look("list --site", {m_data->File("site.json")});
    QCOMPARE(asked.code, 3);
    QVERIFY(asked.err.contains(Text("site.json")));
    QCOMPARE(Look("list --site", {m_data->Directory()}).code, 3);
}

void TestLookCommands::wrongOptionsAreWrongUse_data()
{
    QTest::addColumn<QByteArray>("text");
    for (const char* const line :
         {"list more", "list --format", "list --format yaml", "list --colour",
          "list --database a --data-dir b", "list --data-dir=", "list --database=", "list --site=",
          "list --source=", "list --source Nothing", "list --event 999", "check more", "check --enabled",
          "show", "show --source Lobby/Main", "show --event 101", "show --source Lobby/Main --event 999"})
        QTest::newRow(line) << QByteArray(line);
}

void TestLookCommands::wrongOptionsAreWrongUse()
{
    QFETCH(QByteArray, text);
    const Run run = Look(text.constData());
    QCOMPARE(run.code, 2);
    QVERIFY(run.out.isEmpty());
    QVERIFY(!run.err.isEmpty());
}

void TestLookCommands::textsOfADatabaseCannotReachTheTerminal()
{
    AlarmInfo info;
    info.bOpen = true;
    info.listAlarmOut = {{Text("\x1b[2Jout"), true, 3}};
    Changed().Store({{{Text("\x1b]0;title\x07\nnew line\xe2\x80\xae"), 101}, info}});
    const Run listed = Look("list --event 101");
    QVERIFY(listed.out.contains(Text("\\u001b]0;title\\u0007\\u000anew line\\u202e")));
    for (const Run& run : {listed, Look("check"), Look("check --format json"), Look("list --format json")}) {
        QVERIFY(!run.out.contains(QLatin1Char('\x1b')));
        QVERIFY(run.code < 2);
    }
}

void TestLookCommands::eachJsonIsOneDocument()
{
    for (const char* const line :
         {"list", "check", "who-switches Lobby/Siren", "show --source Lobby/Main --event 101",
          "explain --source Lobby/Main --event 101 --at 2026-11-23T08:30"}) {
        const Run run = Look(line, Words("--format json"));
        const QJsonObject json = Json(run.out);
        QVERIFY2(!json.isEmpty(), qPrintable(run.out));
        QVERIFY2(!json.value(Text("format")).toString().isEmpty(), line);
        QCOMPARE(json.value(Text("version")).toInt(), 1);
    }
}

QTEST_GUILESS_MAIN(TestLookCommands)
#include "tst_look_commands.moc"
