#include "client/store/AlarmSchemeStoreBackend.h"
#include "client/store/SchemeBackups.h"
#include "tests/AlarmSchemeData/RandomSchemes.h"
#include "tests/client_store/OtherProgram.h"
#include "tests/client_store/SaveAndWait.h"
#include "tests/tools/ExchangeKit.h"

#include <QTest>

class TestExchangeCommands : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void anExportGoesToTheStandardOutput();
    void anExportGoesIntoAFile();
    void anExportChangesNothing();
    void exportImportExportGivesTheSameText();
    void anImportMergesOrReplaces();
    void anImportIsNeverGuessed_data();
    void anImportIsNeverGuessed();
    void aDryRunTellsAndChangesNothing();
    void aDryRunWithoutAModeTellsBoth();
    void aDryRunThatWouldChangeNothingIsDone();
    void anUnsoundTextChangesNothing();
    void anImportThatChangesNothingWritesNothing();
    void anImportMakesADatabaseThatIsMissing();
    void anImportLeavesOtherDatabasesAlone();
    void anImportStandsInTheHistory();
    void aRunningClientNoticesAnImport();
    void aLockedDatabaseIsAFailure();
    void aDiffTellsByFields();
    void aDiffOfEqualFilesIsDone();
    void aDiffNeedsTwoFiles();
    void aBackupIsKept();
    void aBackupGoesIntoAFile();
    void aRestoreBringsEverythingBack();
    void aRestoreOfTheOldestBackupBringsItBack();
    void aRestoreReplacesADamagedDatabase();
    void aRestoreOfSomethingElseChangesNothing();
};

void TestExchangeCommands::anExportGoesToTheStandardOutput()
{
    const Data data(Doors(3));
    const Run run = data.Do(Words("export"));
    QCOMPARE(run.code, 0);
    QCOMPARE(run.err, QString());
    QCOMPARE(run.out.toUtf8(), SchemeTexts::Write(Doors(3)));
    const Run named =
        Run({Text("export"), Text("--database"), data->Database(), Text("--format"), Text("json")});
    QCOMPARE(named.out, run.out);
}

void TestExchangeCommands::anExportGoesIntoAFile()
{
    const Data data(Doors(3));
    const QString file = data->File("export.json");
    Run run = data.Do({Text("export"), Text("--output"), file});
    QCOMPARE(run.code, 0);
    QCOMPARE(run.out, Text("Schemes written: 3\n"));
    QCOMPARE(Bytes(file), SchemeTexts::Write(Doors(3)));
    run = data.Do({Text("export"), Text("--format"), Text("json"), Text("--output"), file});
    QCOMPARE(run.code, 0);
    QCOMPARE(Json(run.out).value(Text("schemes")).toInt(), 3);
    QCOMPARE(Json(run.out).value(Text("file")).toString(), file);

    run = data.Do({Text("export"), Text("--output"), data->Directory()});
    QCOMPARE(run.code, 3);
    QVERIFY(run.out.isEmpty() && run.err.contains(Text("this is no file")));
    run = Run({Text("export"), Text("--database"), data->File("none.db"), Text("--output"), file});
    QCOMPARE(run.code, 3);
    QCOMPARE(Bytes(file), SchemeTexts::Write(Doors(3)));
    QVERIFY(!QFileInfo::exists(data->File("none.db")));
}

void TestExchangeCommands::anExportChangesNothing()
{
    const Data data(Doors(3));
    const QByteArray before = Bytes(data->Database());
    const QStringList files = QFileInfo(data->Database()).dir().entryList(QDir::AllEntries | QDir::Hidden);
    QCOMPARE(data.Do(Words("export")).code, 0);
    QCOMPARE(Bytes(data->Database()), before);
    QCOMPARE(QFileInfo(data->Database()).dir().entryList(QDir::AllEntries | QDir::Hidden), files);
}

void TestExchangeCommands::exportImportExportGivesTheSameText()
{
    int same = 0;
    for (quint32 seed = 1; seed <= 8; ++seed) {
        const Data data(RandomSchemes(seed).Map());
        const QString text = data->File("export.json");
        const QString database = data->File("new.db");
        QCOMPARE(data.Do({Text("export"), Text("--output"), text}).code, 0);
        const Run import = Run({Text("import"), text, Text("--replace"), Text("--database"), database});
        if (import.code != 0) {
            // Some of the random texts are names of columns.
            QVERIFY2(import.err.contains(Text("a word that the database keeps for itself")),
                     qPrintable(QString::number(seed) + import.err));
            QVERIFY(!QFileInfo::exists(database));
            continue;
        }
        ++same;
        const Run again = Run({Text("export"), Text("--database"), database});
        // For nothing no file is made.
        const bool nothing = Bytes(text) == SchemeTexts::Write({});
        QCOMPARE(again.code, nothing ? 3 : 0);
        if (!nothing)
            QVERIFY2(again.out.toUtf8() == Bytes(text), qPrintable(QString::number(seed)));
    }
    QVERIFY(same > 3);
}

void TestExchangeCommands::anImportMergesOrReplaces()
{
    AlarmInfoMap listed = Doors(2);
    listed[Key(2)].bOpenSound = true;
    listed[Key(2)].listAlarmOut.clear();
    listed.insert(Key(9), AlarmInfo());
    {
        Data data(Doors(4));
        const QString text = data->Write("listed.json", SchemeTexts::Write(listed));
        const Run run = data.Do({Text("import"), text, Text("--merge")});
        QCOMPARE(run.err, QString());
        QCOMPARE(run.code, 0);
        QCOMPARE(run.out, Text("Added: 1, removed: 0, changed: 1, equal: 3\n"));
        AlarmInfoMap expected = Doors(4);
        expected[Key(2)] = listed[Key(2)];
        expected[Key(9)] = listed[Key(9)];
        QVERIFY(data.Schemes() == expected);
    }
    {
        Data data(Doors(4));
        const QString text = data->Write("listed.json", SchemeTexts::Write(listed));
        const Run run = data.Do({Text("import"), Text("--replace"), text, Text("--format"), Text("json")});
        QCOMPARE(run.code, 0);
        const QJsonObject counts = Json(run.out).value(Text("replace")).toObject();
        QCOMPARE(counts.value(Text("removed")).toInt(), 2);
        QCOMPARE(Json(run.out).value(Text("dryRun")).toBool(true), false);
        QVERIFY(data.Schemes() == listed);
        // Deleted, not only switched off.
        RawDatabase database(data->Database());
        QCOMPARE(database.Value(Text("select count(*) from AlarmUniqueID")), Text("3"));
    }
    {
        Data data(Doors(4));
        const QString text = data->Write("none.json", SchemeTexts::Write({}));
        QCOMPARE(data.Do({Text("import"), Text("--replace"), text}).code, 0);
        QVERIFY(data.Schemes().isEmpty());
    }
}

void TestExchangeCommands::anImportIsNeverGuessed_data()
{
    QTest::addColumn<QString>("options");
    QTest::newRow("neither") << QString();
    QTest::newRow("both") << Text("--merge --replace");
    QTest::newRow("both on trial") << Text("--merge --replace --dry-run");
    QTest::newRow("two files") << Text("--merge other.json");
    QTest::newRow("unknown option") << Text("--merge --force");
}

void TestExchangeCommands::anImportIsNeverGuessed()
{
    QFETCH(QString, options);
    Data data(Doors(4));
    const QByteArray before = Bytes(data->Database());
    const QString text = data->Write("listed.json", SchemeTexts::Write(Doors(1)));
    const Run run =
        data.Do(QStringList{Text("import"), text} + options.split(QLatin1Char(' '), Qt::SkipEmptyParts));
    QCOMPARE(run.code, 2);
    QVERIFY(run.out.isEmpty() && !run.err.isEmpty());
    QCOMPARE(Bytes(data->Database()), before);
}

void TestExchangeCommands::aDryRunTellsAndChangesNothing()
{
    AlarmInfoMap listed = Doors(2);
    listed[Key(2)].listAlarmOut[0].Time = 45;
    listed[Key(2)].defenceTime[1] = {AlarmTimeRegion{3600, 7200}};
    listed.insert(Key(9), AlarmInfo());
    Data data(Doors(3));
    const QByteArray before = Bytes(data->Database());
    const QString text = data->Write("listed.json", SchemeTexts::Write(listed));
    Run run = data.Do({Text("import"), Text("--replace"), Text("--dry-run"), text});
    QCOMPARE(run.code, 1);
    QCOMPARE(run.err, QString());
    QCOMPARE(run.out, Text("changed  7$1$0$2, Door Forced Open [7$1$0$2, 101]\n"
                           "  alarmOut[30$3$0$0].Time: 20 -> 45\n"
                           "  Monday: 00:00-24:00 -> 01:00-02:00\n"
                           "removed  7$1$0$3, Door Forced Open [7$1$0$3, 101]\n"
                           "added    7$1$0$9, Door Forced Open [7$1$0$9, 101]\n"
                           "Added: 1, removed: 1, changed: 1, equal: 1\n"));
    run = data.Do({Text("import"), Text("--merge"), Text("--dry-run"), text, Text("--format"), Text("json")});
    QCOMPARE(run.code, 1);
    const QJsonObject json = Json(run.out);
    QCOMPARE(json.value(Text("format")).toString(), Text("acs-scheme-import"));
    QCOMPARE(json.value(Text("schemes")).toArray().size(), 2);
    QCOMPARE(json.value(Text("schemes")).toArray().at(0).toObject().value(Text("fields")).toArray().size(),
             2);
    QCOMPARE(json.value(Text("merge")).toObject().value(Text("removed")).toInt(-1), 0);
    QVERIFY(json.value(Text("dryRun")).toBool() && !json.contains(Text("replace")));
    QCOMPARE(Bytes(data->Database()), before);
    QVERIFY(data.Schemes() == Doors(3));
}

void TestExchangeCommands::aDryRunWithoutAModeTellsBoth()
{
    Data data(Doors(3));
    const QString text = data->Write("listed.json", SchemeTexts::Write(Doors(2)));
    Run run = data.Do({Text("import"), Text("--dry-run"), text});
    QCOMPARE(run.code, 1);
    QCOMPARE(run.out, Text("With --merge:\n"
                           "Added: 0, removed: 0, changed: 0, equal: 3\n"
                           "With --replace:\n"
                           "removed  7$1$0$3, Door Forced Open [7$1$0$3, 101]\n"
                           "Added: 0, removed: 1, changed: 0, equal: 2\n"));
    run = data.Do({Text("import"), Text("--dry-run"), text, Text("--format"), Text("json")});
    const QJsonObject json = Json(run.out);
    QCOMPARE(json.value(Text("schemes")).toArray().size(), 1);
    QVERIFY(json.contains(Text("merge")) && json.contains(Text("replace")));
}

void TestExchangeCommands::aDryRunThatWouldChangeNothingIsDone()
{
    Data data(Doors(3));
    const QString text = data->Write("listed.json", SchemeTexts::Write(Doors(3)));
    QCOMPARE(data.Do({Text("import"), Text("--dry-run"), text}).code, 0);
    QCOMPARE(data.Do({Text("import"), Text("--replace"), Text("--dry-run"), text}).code, 0);
}

void TestExchangeCommands::anUnsoundTextChangesNothing()
{
    Data data(Doors(3));
    const QByteArray before = Bytes(data->Database());
    const QString text = data->Write(
        "listed.json", SchemeTexts::File("{\"strEventSource\":\"7$1$0$1\",\"AlarmType\":101},\n"
                                         "{\"strEventSource\":\"7$1$0$2\",\"AlarmType\":99999999999},\n"
                                         "{\"strEventSource\":\"7$1$0$1\",\"AlarmType\":101}"));
    for (const char* const mode : {"--merge", "--replace", "--dry-run"}) {
        Run run = data.Do({Text("import"), Text(mode), text});
        QCOMPARE(run.code, 3);
        QCOMPARE(run.out, QString());
        QCOMPARE(
            run.err.split(QLatin1Char('\n')),
            (QStringList{text + Text(", line 3: \"AlarmType\" must be a whole number from -2147483648 to "
                                     "2147483647"),
                         text + Text(", line 4: the scheme 7$1$0$1, event type 101, is listed twice"),
                         Text("Nothing was changed."), QString()}));
        run = data.Do({Text("import"), Text(mode), text, Text("--format"), Text("json")});
        QCOMPARE(run.code, 3);
        const QJsonArray problems = Json(run.out).value(Text("problems")).toArray();
        QCOMPARE(problems.size(), 2);
        QCOMPARE(problems.at(1).toObject().value(Text("line")).toInt(), 4);
    }
    QCOMPARE(Bytes(data->Database()), before);
    QCOMPARE(data.Do({Text("import"), Text("--merge"), data->Directory()}).code, 3);
    QCOMPARE(data.Do({Text("import"), Text("--merge"), data->File("none")}).code, 3);
    QCOMPARE(data.Do({Text("import"), Text("--merge"), data->Database()}).code, 3);
    QCOMPARE(Bytes(data->Database()), before);
}

void TestExchangeCommands::anImportThatChangesNothingWritesNothing()
{
    Data data(Doors(3));
    const QByteArray before = Bytes(data->Database());
    const QString text = data->Write("listed.json", SchemeTexts::Write(Doors(2)));
    const Run run = data.Do({Text("import"), Text("--merge"), text});
    QCOMPARE(run.code, 0);
    QCOMPARE(run.out, Text("Added: 0, removed: 0, changed: 0, equal: 3\n"));
    QCOMPARE(Bytes(data->Database()), before);
}

void TestExchangeCommands::anImportMakesADatabaseThatIsMissing()
{
    const QTemporaryDir folder;
    const QString text = QDir(folder.path()).absoluteFilePath(Text("listed.json"));
    QFile file(text);
    QVERIFY(file.open(QIODevice::WriteOnly));
    file.write(SchemeTexts::Write(Doors(2)));
    file.close();
    const QString directory = QDir(folder.path()).absoluteFilePath(Text("data"));
    QCOMPARE(Run({Text("import"), Text("--merge"), Text("--dry-run"), text}, directory).code, 1);
    QVERIFY(!QFileInfo::exists(directory));
    QCOMPARE(Run({Text("import"), Text("--merge"), text}, directory).code, 0);
    QCOMPARE(Run({Text("export")}, directory).out.toUtf8(), SchemeTexts::Write(Doors(2)));
}

void TestExchangeCommands::anImportLeavesOtherDatabasesAlone()
{
    Data data(Doors(3));
    const QString text = data->Write("listed.json", SchemeTexts::Write(Doors(2)));
    const QString other = data->File("other.db");
    {
        RawDatabase database(other);
        database.Run(Text("create table Cheese(name text)"));
    }
    const QByteArray before = Bytes(other);
    QCOMPARE(Run({Text("import"), Text("--merge"), text, Text("--database"), other}).code, 3);
    QCOMPARE(Bytes(other), before);
    const QString noDatabase = data->Write("photo.png", "not a database, but long enough to be looked at");
    QCOMPARE(Run({Text("import"), Text("--merge"), text, Text("--database"), noDatabase}).code, 3);
    QCOMPARE(Run({Text("import"), Text("--merge"), text, Text("--database"), data->Directory()}).code, 3);
}

void TestExchangeCommands::anImportStandsInTheHistory()
{
    Data data(Doors(3));
    const QString text = data->Write("listed.json", SchemeTexts::Write(Doors(2)));
    QCOMPARE(data.Do({Text("import"), Text("--replace"), text}).code, 0);
    const QList<SchemeHistoryEntry> history = data.History();
    QVERIFY(!history.isEmpty());
    QCOMPARE(int(history.first().eKind), int(SchemeHistoryKind::Import));
    QCOMPARE(history.first().iSchemes, 1);
    QCOMPARE(history.first().strNote, Text("listed.json"));
}

void TestExchangeCommands::aRunningClientNoticesAnImport()
{
    Data data(Doors(3));
    const LogCatcher log;
    AlarmSchemeStoreBackend client;
    AlarmInfoMap held;
    QCOMPARE(client.Load(held), 0);
    AlarmInfoMap listed = Doors(2);
    listed[Key(1)].bSendEmail = true;
    const QString text = data->Write("listed.json", SchemeTexts::Write(listed));
    const Run run = data.Do({Text("import"), Text("--replace"), text});
    QVERIFY2(run.code == 0, qPrintable(run.err));

    int asked = 0;
    client.SetConflictHandler([&asked](const SchemeConflict& conflict) {
        ++asked;
        return conflict.iSchemes == 2 ? SchemeConflictAnswer::KeepOthers : SchemeConflictAnswer::Cancel;
    });
    held[Key(2)].bOpenSound = true;
    QCOMPARE(SaveAndWait(client, held), 0);
    QCOMPARE(asked, 1);
    listed[Key(2)].bOpenSound = true;
    QCOMPARE(client.Load(held), 0);
    QVERIFY(held == listed);
}

void TestExchangeCommands::aLockedDatabaseIsAFailure()
{
    Data data(Doors(3));
    const QString text = data->Write("listed.json", SchemeTexts::Write(Doors(2)));
    const OtherProgram other(data->Database(), Text("begin immediate"), std::chrono::seconds(60));
    QVERIFY(other.Holds());
    const Run run = data.Do({Text("import"), Text("--replace"), text});
    QCOMPARE(run.code, 3);
    QVERIFY(run.out.isEmpty() && run.err.contains(Text("another program")));
}

void TestExchangeCommands::aDiffTellsByFields()
{
    AlarmInfoMap other = Doors(3);
    other.remove(Key(1));
    other[Key(2)].bOpen = false;
    other[Key(2)].listAlarmOut.append(AlarmLinkAlarmOut{EventSource::AlarmOutput(31), false, 5});
    other[Key(3)].defenceTime[0].clear();
    other.insert(Key(4), AlarmInfo());
    Data data(Doors(3));
    const QString text = data->Write("other.json", SchemeTexts::Write(other));
    Run run({Text("diff"), data->Database(), text});
    QCOMPARE(run.err, QString());
    QCOMPARE(run.code, 1);
    QCOMPARE(run.out, Text("removed  7$1$0$1, Door Forced Open [7$1$0$1, 101]\n"
                           "changed  7$1$0$2, Door Forced Open [7$1$0$2, 101]\n"
                           "  bOpen: yes -> no\n"
                           "  alarmOut[31$3$0$0]: none -> Time 5, bAutoOpen no\n"
                           "changed  7$1$0$3, Door Forced Open [7$1$0$3, 101]\n"
                           "  Sunday: 00:00-24:00 -> not armed\n"
                           "added    7$1$0$4, Door Forced Open [7$1$0$4, 101]\n"
                           "Added: 1, removed: 1, changed: 2, equal: 0\n"));
    run = Run({Text("diff"), data->Database(), text, Text("--format"), Text("json")});
    QCOMPARE(run.code, 1);
    QVERIFY(run.out.contains(Text(
        "{\"after\":{\"Time\":5,\"bAutoOpen\":false},\"before\":null,\"field\":\"alarmOut[31$3$0$0]\"}")));
    const QJsonObject json = Json(run.out);
    QCOMPARE(json.value(Text("format")).toString(), Text("acs-scheme-diff"));
    QCOMPARE(json.value(Text("schemes")).toArray().size(), 4);
    QCOMPARE(json.value(Text("changed")).toInt(), 2);
}

void TestExchangeCommands::aDiffOfEqualFilesIsDone()
{
    Data data(Doors(3));
    const QString text = data->Write("same.json", SchemeTexts::Write(Doors(3)));
    const Run run({Text("diff"), text, data->Database()});
    QCOMPARE(run.code, 0);
    QCOMPARE(run.out, Text("Added: 0, removed: 0, changed: 0, equal: 3\n"));
    QCOMPARE(data.Do(Words("backup")).code, 0);
    const QString backup = SchemeBackups(data->Database()).List().value(0).strPath;
    QCOMPARE(Run({Text("diff"), backup, data->Database()}).code, 0);
}

void TestExchangeCommands::aDiffNeedsTwoFiles()
{
    Data data(Doors(3));
    QCOMPARE(Run({Text("diff"), data->Database()}).code, 2);
    QCOMPARE(Run({Text("diff"), data->Database(), data->Database(), data->Database()}).code, 2);
    QCOMPARE(Run({Text("diff"), data->Database(), data->File("none")}).code, 3);
    QCOMPARE(Run({Text("diff"), data->Directory(), data->Database()}).code, 3);
}

void TestExchangeCommands::aBackupIsKept()
{
    Data data(Doors(3));
    Run run = data.Do(Words("backup"));
    QCOMPARE(run.err, QString());
    QCOMPARE(run.code, 0);
    const QList<SchemeBackup> backups = SchemeBackups(data->Database()).List();
    QCOMPARE(backups.size(), 1);
    QCOMPARE(run.out,
             Text("Schemes: 3, copied to %1\n").arg(QDir::toNativeSeparators(backups.first().strPath)));
    QCOMPARE(Run({Text("export"), Text("--database"), backups.first().strPath}).out.toUtf8(),
             SchemeTexts::Write(Doors(3)));
    run = data.Do(Words("backup --format json"));
    QCOMPARE(Json(run.out).value(Text("schemes")).toInt(), 3);
    QCOMPARE(SchemeBackups(data->Database()).List().size(), 2);
}

void TestExchangeCommands::aBackupGoesIntoAFile()
{
    Data data(Doors(3));
    const QString file = data->File("copy.db");
    QCOMPARE(data.Do({Text("backup"), Text("--output"), file}).code, 0);
    QCOMPARE(Run({Text("diff"), file, data->Database()}).code, 0);
    // What is there is never written over.
    const QByteArray before = Bytes(file);
    QCOMPARE(data.Do({Text("backup"), Text("--output"), file}).code, 2);
    QCOMPARE(Bytes(file), before);
    QCOMPARE(data.Do({Text("backup"), Text("--output"), data->File("none/copy.db")}).code, 3);
    QCOMPARE(Run({Text("backup"), Text("--database"), data->File("none.db")}).code, 3);
    QVERIFY(!QFileInfo::exists(data->File("none.db")));
    QCOMPARE(QDir(data->Directory()).entryList({Text("copy.db*")}), QStringList(Text("copy.db")));
}

void TestExchangeCommands::aRestoreBringsEverythingBack()
{
    Data data(Doors(3));
    const QString file = data->File("copy.db");
    QCOMPARE(data.Do({Text("backup"), Text("--output"), file}).code, 0);
    const QString text = data->Write("listed.json", SchemeTexts::Write(Doors(1)));
    QCOMPARE(data.Do({Text("import"), Text("--replace"), text}).code, 0);
    QCOMPARE(data.Schemes().size(), 1);

    const Run run = data.Do({Text("restore"), file});
    QCOMPARE(run.err, QString());
    QCOMPARE(run.code, 0);
    QCOMPARE(run.out, Text("Schemes: 3\n"));
    QVERIFY(data.Schemes() == Doors(3));
    const QList<SchemeHistoryEntry> history = data.History();
    QCOMPARE(int(history.value(0).eKind), int(SchemeHistoryKind::Restore));
    QCOMPARE(history.value(0).iSchemes, 2);
    QCOMPARE(history.value(0).strNote, Text("copy.db"));
    QCOMPARE(int(history.value(1).eKind), int(SchemeHistoryKind::Import));
    // What was there before is a backup now.
    const QString backup = SchemeBackups(data->Database()).List().value(0).strPath;
    QCOMPARE(Run({Text("export"), Text("--database"), backup}).out.toUtf8(), SchemeTexts::Write(Doors(1)));
    // And the next save finds nothing from outside.
    QCOMPARE(data.Do({Text("import"), Text("--replace"), text}).code, 0);
    QCOMPARE(data.History().size(), history.size() + 1);
}

void TestExchangeCommands::aRestoreOfTheOldestBackupBringsItBack()
{
    Data data(Doors(1));
    for (int doors = 1; doors <= SchemeBackups::Kept; ++doors) {
        data->Store(Doors(doors));
        QCOMPARE(data.Do(Words("backup")).code, 0);
    }
    data->Store(Doors(20));
    const QList<SchemeBackup> backups = SchemeBackups(data->Database()).List();
    QCOMPARE(backups.size(), SchemeBackups::Kept);
    // Its place is taken by the one that is made before.
    const Run run = data.Do({Text("restore"), backups.last().strPath});
    QVERIFY2(run.code == 0, qPrintable(run.err));
    QVERIFY(data.Schemes() == Doors(1));
}

void TestExchangeCommands::aRestoreReplacesADamagedDatabase()
{
    Data data(Doors(3));
    const QString file = data->File("copy.db");
    QCOMPARE(data.Do({Text("backup"), Text("--output"), file}).code, 0);
    const QByteArray damaged = Bytes(data->Database()).replace(8192, 4096, QByteArray(4096, '\xAA'));
    QFile database(data->Database());
    QVERIFY(database.open(QIODevice::WriteOnly));
    database.write(damaged);
    database.close();
    QCOMPARE(data.Do(Words("export")).code, 3);

    const Run run = data.Do({Text("restore"), file, Text("--format"), Text("json")});
    QVERIFY2(run.code == 0, qPrintable(run.err));
    QCOMPARE(Bytes(Json(run.out).value(Text("keptAs")).toString()), damaged);
    QVERIFY(data.Schemes() == Doors(3));
}

void TestExchangeCommands::aRestoreOfSomethingElseChangesNothing()
{
    Data data(Doors(3));
    const QByteArray before = Bytes(data->Database());
    const QString text = data->Write("listed.json", SchemeTexts::Write(Doors(1)));
    QCOMPARE(data.Do({Text("restore"), text}).code, 3);
    QCOMPARE(data.Do({Text("restore"), data->Directory()}).code, 3);
    QCOMPARE(data.Do({Text("restore"), data->File("none.db")}).code, 3);
    QCOMPARE(data.Do({Text("restore"), data->Database()}).code, 2);
    QCOMPARE(data.Do({Text("restore")}).code, 2);
    const QString cut = data->Write("cut.db", before.left(before.size() / 2));
    QCOMPARE(data.Do({Text("restore"), cut}).code, 3);
    QCOMPARE(Bytes(data->Database()), before);
}

QTEST_MAIN(TestExchangeCommands)
#include "tst_exchange_commands.moc"
