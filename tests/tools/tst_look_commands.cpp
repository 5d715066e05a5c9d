#include "tests/AlarmSchemeData/RawDatabase.h"
#include "tests/tools/LookTest.h"

#include <QCryptographicHash>
#include <QDirIterator>
#include <QJsonArray>
#include <QTemporaryDir>
#include <QTest>

namespace {

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

/// The commands list and show, and what all commands that only look have in common.
class TestLookCommands : public LookTest
{
    Q_OBJECT

private Q_SLOTS:
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
};

void TestLookCommands::init()
{
    MakeData();
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
