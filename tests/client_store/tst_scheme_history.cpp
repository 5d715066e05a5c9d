#include "client/store/SchemeHistoryFile.h"
#include "client/store/StoredSchemes.h"

#include "tests/AlarmSchemeData/RandomSchemes.h"
#include "tests/AlarmSchemeData/RawDatabase.h"
#include "tests/AlarmSchemeData/StoreFolder.h"
#include "tests/client_store/StoreClient.h"

#include <QVector>
#include <QtTest>

#include <sqlite3.h>

#include <memory>

using Kind = SchemeHistoryKind;

namespace {

AlarmSourceKey Door(int iDoor)
{
    return AlarmSourceKey{EventSource::Door(1, iDoor), 3};
}

AlarmInfo Sounding()
{
    AlarmInfo info;
    info.bOpen = true;
    info.bOpenSound = true;
    return info;
}

AlarmInfoMap Map(int iDoors)
{
    AlarmInfoMap map;
    for (int door = 0; door < iDoors; ++door)
        map.insert(Door(door), Sounding());
    return map;
}

QString HistoryPath()
{
    return SchemeHistoryFile::PathBeside(
        QDir(QGetDatabaseDirPath()).filePath(QStringLiteral("AlarmScheme.db")));
}

/// The history as somebody else reads it.
struct Reader
{
    Reader()
        : database(HistoryPath())
        , history(database.Handle(), SchemeHistoryFile::Place::Main)
    {
        // A client that has loaded may still be at its catching up.
        sqlite3_busy_timeout(database.Handle(), AlarmSchemeStoreBackend::BusyTimeOut);
    }
    QList<SchemeHistoryEntry> Entries()
    {
        return history.Entries(1000).value_or(QList<SchemeHistoryEntry>());
    }
    QVector<Kind> Kinds()
    {
        QVector<Kind> kinds;
        const QList<SchemeHistoryEntry> entries = Entries();
        for (const SchemeHistoryEntry& entry : entries)
            kinds.prepend(entry.eKind);
        return kinds;
    }

    RawDatabase database;
    SchemeHistoryFile history;
};

bool Run(const QString& strSql)
{
    return RawDatabase(QDir(QGetDatabaseDirPath()).filePath(QStringLiteral("AlarmScheme.db"))).Run(strSql) ==
           0;
}

SaveResult Replace(StoredSchemes& schemes, const AlarmInfoMap& map,
                   const std::optional<QList<AlarmSourceKey>>& remove)
{
    SaveProgress progress;
    return schemes.Replace(map, remove, {QStringLiteral("carl"), Kind::Import, QStringLiteral("a file")},
                           progress);
}

} // namespace

/// What the history tells of what clients, the command line and other programs do to the schemes.
class SchemeHistoryTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();

    void aSaveTellsWhoWhenAndWhat();
    void savesOfAClientAreNotTakenForChangesFromOutside();
    void aSaveWithoutAChangeIsNoStep();
    void theHistoryEndsWithWhatTheFileHolds();
    void whatTheFileHeldBeforeIsTheStart();
    void anotherProgramsChangeIsToldAsOutside();
    void aChangeFromOutsideIsNotedWhenTheSchemesAreLoaded();
    void theSchemeFileKeepsExactlyItsTables();
    void aFailedSaveIsNotTold();
    void twoClientsTellOneHistory();
    void aBrokenHistoryDoesNotKeepSchemesFromBeingSaved();
    void aHistoryThatBreaksInTheMiddleDoesNotEither();
    void aLockedHistoryDoesNotEither();
    void aStepIsTakenBack();
    void takingBackANewSchemeRemovesIt();
    void schemesThatHaveChangedSinceAreLeftAloneAndCounted();
    void takingBackTheTakingBackBringsTheStepAgain();
    void aStepThatNobodyKnowsIsNotTakenBack();
    void takingBackIsForTheEditorsAChangeByOthers();
    void anExactReplacementDeletesTheOthers();
    void aReplacementOfSomeLeavesTheOthersAlone();
    void oldStepsGo();

private:
    std::unique_ptr<LogCatcher> m_log;
    std::unique_ptr<StoreFolder> m_folder;
};

void SchemeHistoryTest::init()
{
    m_log = std::make_unique<LogCatcher>();
    m_folder = std::make_unique<StoreFolder>();
}

void SchemeHistoryTest::cleanup()
{
    m_folder.reset();
    m_log.reset();
}

void SchemeHistoryTest::aSaveTellsWhoWhenAndWhat()
{
    StoreClient client;
    client.store.SetAuthor([] { return QStringLiteral("anna"); });
    client.map = Map(2);
    const QDateTime before = QDateTime::currentDateTimeUtc();
    QCOMPARE(client.Save(), 0);
    Reader reader;
    const QList<SchemeHistoryEntry> entries = reader.Entries();
    QCOMPARE(entries.size(), 1);
    QCOMPARE(entries.first().strWho, QStringLiteral("anna"));
    QVERIFY(entries.first().eKind == Kind::Save);
    QVERIFY(entries.first().time >= before.addMSecs(-1) &&
            entries.first().time <= QDateTime::currentDateTimeUtc());
    const auto changes = reader.history.Changes(entries.first().iId);
    QVERIFY(changes && changes->size() == 2);
    QVERIFY(changes->at(1).key == Door(1) && !changes->at(1).before && *changes->at(1).after == Sounding());
}

void SchemeHistoryTest::savesOfAClientAreNotTakenForChangesFromOutside()
{
    for (int start = 0; start < 3; ++start) {
        StoreClient client;
        for (int save = 0; save < 3; ++save) {
            client.map[Door(0)].listAlarmOut = {{EventSource::AlarmOutput(start * 10 + save), true, 20}};
            QCOMPARE(client.Save(), 0);
        }
    }
    QCOMPARE(Reader().Kinds(), QVector<Kind>(9, Kind::Save));
}

void SchemeHistoryTest::aSaveWithoutAChangeIsNoStep()
{
    StoreClient client;
    client.map = Map(3);
    QCOMPARE(client.Save(), 0);
    QCOMPARE(client.Save(), 0);
    client.map[Door(0)].bSendEmail = true;
    QCOMPARE(client.Save(), 0);
    QCOMPARE(Reader().Kinds(), (QVector<Kind>{Kind::Save, Kind::Save}));
}

void SchemeHistoryTest::theHistoryEndsWithWhatTheFileHolds()
{
    for (quint32 seed = 1; seed <= 10; ++seed) {
        StoreClient client;
        const AlarmInfoMap random = RandomSchemes(seed).Map();
        client.map.clear();
        for (auto entry = random.cbegin(); entry != random.cend(); ++entry) {
            if (!RandomSchemes::NamesColumn(entry.key()))
                client.map.insert(entry.key(), *entry);
        }
        QCOMPARE(client.Save(), 0);
        QVERIFY2(Reader().history.State() == StoreClient().map, qPrintable(QString::number(seed)));
    }
    // What is told is what is stored, so nobody from outside shows up.
    QVERIFY(!Reader().Kinds().contains(Kind::Outside));
}

void SchemeHistoryTest::whatTheFileHeldBeforeIsTheStart()
{
    {
        StoreClient client;
        client.map = Map(4);
        QCOMPARE(client.Save(), 0);
    }
    QVERIFY(QFile::remove(HistoryPath()));
    StoreClient client;
    client.map.remove(Door(3));
    QCOMPARE(client.Save(), 0);
    Reader reader;
    QCOMPARE(reader.Kinds(), (QVector<Kind>{Kind::Start, Kind::Save}));
    QCOMPARE(reader.Entries().constLast().iSchemes, 4);
    QCOMPARE(reader.Entries().constFirst().iSchemes, 1); // the one that was left out is switched off
}

void SchemeHistoryTest::anotherProgramsChangeIsToldAsOutside()
{
    StoreClient client;
    client.map = Map(2);
    QCOMPARE(client.Save(), 0);
    QVERIFY(Run(QStringLiteral("update AlarmBaseInfo set bSendEmail = 1 where AlarmUniqueID = 1")));
    client.map[Door(1)].bOpenSound = false;
    client.answer = SchemeConflictAnswer::KeepOthers;
    QCOMPARE(client.Save(), 0);
    Reader reader;
    QCOMPARE(reader.Kinds(), (QVector<Kind>{Kind::Save, Kind::Outside, Kind::Save}));
    const SchemeHistoryEntry outside = reader.Entries().at(1);
    QVERIFY(outside.strWho.isEmpty());
    const auto changes = reader.history.Changes(outside.iId);
    QVERIFY(changes && changes->size() == 1 && changes->first().key == Door(0));
    QVERIFY(!changes->first().before->bSendEmail && changes->first().after->bSendEmail);
    QVERIFY(reader.history.State() == StoreClient().map);
}

void SchemeHistoryTest::aChangeFromOutsideIsNotedWhenTheSchemesAreLoaded()
{
    {
        StoreClient client;
        client.map = Map(2);
        QCOMPARE(client.Save(), 0);
    }
    QVERIFY(Run(QStringLiteral("delete from AlarmUniqueID where AlarmUniqueID = 2")));
    {
        StoreClient client; // only looks
    }
    QCOMPARE(Reader().Kinds(), (QVector<Kind>{Kind::Save, Kind::Outside}));
    {
        StoreClient again;
    }
    QCOMPARE(Reader().Entries().size(), 2);
}

void SchemeHistoryTest::theSchemeFileKeepsExactlyItsTables()
{
    StoreClient client;
    client.map = Map(2);
    QCOMPARE(client.Save(), 0);
    RawDatabase raw(m_folder->File());
    const QStringList tables = raw.Rows(QStringLiteral("select lower(name) from sqlite_master where type = "
                                                       "'table' and name not like 'sqlite_%' order by 1"));
    QStringList expected;
    for (const QString& table : RawDatabase::Tables())
        expected.append(table.toLower());
    expected.sort();
    QCOMPARE(tables, expected);
}

void SchemeHistoryTest::aFailedSaveIsNotTold()
{
    StoreClient client;
    client.map = Map(2);
    QCOMPARE(client.Save(), 0);
    QVERIFY(Run(QStringLiteral(
        "create trigger No before update on AlarmBaseInfo begin select raise(fail, 'no'); end")));
    client.map[Door(0)].bSendEmail = true;
    QCOMPARE(client.Save(), -1);
    QVERIFY(Run(QStringLiteral("drop trigger No")));
    QCOMPARE(Reader().Kinds(), QVector<Kind>{Kind::Save});
    QVERIFY(Reader().history.State() == Map(2));
}

void SchemeHistoryTest::twoClientsTellOneHistory()
{
    StoreClient first;
    first.map = Map(4);
    QCOMPARE(first.Save(), 0);
    StoreClient second;
    first.store.SetAuthor([] { return QStringLiteral("anna"); });
    second.store.SetAuthor([] { return QStringLiteral("bert"); });
    for (StoreClient* client : {&first, &second})
        client->answer = SchemeConflictAnswer::KeepOthers;
    for (int round = 0; round < 6; ++round) {
        StoreClient& client = round % 2 == 0 ? first : second;
        client.map[Door(round % 2)].bSendEmail = round % 4 < 2;
        QCOMPARE(client.Save(), 0);
    }
    Reader reader;
    QCOMPARE(reader.Kinds(), QVector<Kind>(7, Kind::Save));
    QCOMPARE(reader.Entries().constFirst().strWho, QStringLiteral("bert"));
    QVERIFY(reader.history.State() == StoreClient().map);
}

void SchemeHistoryTest::aBrokenHistoryDoesNotKeepSchemesFromBeingSaved()
{
    QFile file(HistoryPath());
    QVERIFY(file.open(QIODevice::WriteOnly));
    file.write(QByteArray(10'000, '?'));
    file.close();
    StoreClient client;
    client.map = Map(2);
    QCOMPARE(client.Save(), 0);
    QVERIFY(client.saves.last().IsSuccess());
    QVERIFY(client.saves.last().Text().contains(QLatin1String("history")));
    QVERIFY(StoreClient().map == Map(2));
    // It is not thrown away: somebody may still mend it.
    QVERIFY(file.open(QIODevice::ReadOnly));
    QCOMPARE(file.readAll(), QByteArray(10'000, '?'));
}

void SchemeHistoryTest::aHistoryThatBreaksInTheMiddleDoesNotEither()
{
    StoreClient client;
    client.map = Map(2);
    QCOMPARE(client.Save(), 0);
    {
        Reader reader;
        QCOMPARE(reader.database.Run(QStringLiteral("drop table Records")), 0);
    }
    client.map[Door(0)].bSendEmail = true;
    QCOMPARE(client.Save(), 0);
    QVERIFY(client.saves.last().Text().contains(QLatin1String("history")));
    QVERIFY(StoreClient().map == client.map);
}

void SchemeHistoryTest::aLockedHistoryDoesNotEither()
{
    StoredSchemes schemes(std::chrono::milliseconds(50));
    AlarmInfoMap map;
    QVERIFY(schemes.Load(map).eReason == SchemeStoreOutcome::Reason::None);
    SaveProgress progress;
    QVERIFY(schemes.Save(Map(1), std::nullopt, {}, progress).strHistoryFailure.isEmpty());
    {
        Reader reader;
        QCOMPARE(reader.database.Run(QStringLiteral("begin exclusive")), 0);
        const SaveResult result = schemes.Save(Map(2), std::nullopt, {}, progress);
        QVERIFY(result.eReason == SchemeStoreOutcome::Reason::None);
        QVERIFY(!result.strHistoryFailure.isEmpty());
        QVERIFY(StoreClient().map == Map(2));
    }
    // What was not told shows up as a change from outside.
    {
        StoreClient client;
    }
    QCOMPARE(Reader().Kinds(), (QVector<Kind>{Kind::Save, Kind::Outside}));
}

void SchemeHistoryTest::aStepIsTakenBack()
{
    StoreClient client;
    client.map = Map(3);
    QCOMPARE(client.Save(), 0);
    client.map[Door(1)].bOpenSound = false;
    client.map[Door(2)].defenceTime[0].clear();
    QCOMPARE(client.Save(), 0);
    client.store.SetAuthor([] { return QStringLiteral("anna"); });
    QCOMPARE(client.store.Revert(Reader().Entries().constFirst().iId, QStringLiteral("2")), 0);
    client.store.WaitForSaves();
    QVERIFY(client.saves.last().IsSuccess());
    QCOMPARE(client.saves.last().iSchemes, 2);
    QCOMPARE(client.iReloads, 1);
    QVERIFY(client.map == Map(3));
    const SchemeHistoryEntry entry = Reader().Entries().constFirst();
    QVERIFY(entry.eKind == Kind::Revert);
    QCOMPARE(entry.strWho, QStringLiteral("anna"));
    QCOMPARE(entry.strNote, QStringLiteral("2"));
}

void SchemeHistoryTest::takingBackANewSchemeRemovesIt()
{
    StoreClient client;
    client.map = Map(1);
    QCOMPARE(client.Save(), 0);
    client.map = Map(2);
    QCOMPARE(client.Save(), 0);
    QCOMPARE(client.store.Revert(Reader().Entries().constFirst().iId, QString()), 0);
    client.store.WaitForSaves();
    QVERIFY(StoreClient().map == Map(1));
}

void SchemeHistoryTest::schemesThatHaveChangedSinceAreLeftAloneAndCounted()
{
    StoreClient client;
    client.map = Map(3);
    QCOMPARE(client.Save(), 0);
    for (AlarmInfo& info : client.map)
        info.bSendEmail = true;
    QCOMPARE(client.Save(), 0);
    const qint64 step = Reader().Entries().constFirst().iId;
    client.map[Door(1)].bEmapTwinkle = true;
    QCOMPARE(client.Save(), 0);
    QCOMPARE(client.store.Revert(step, QString()), 0);
    client.store.WaitForSaves();
    QCOMPARE(client.saves.last().iSchemes, 2);
    QVERIFY(client.saves.last().strNext.contains(QLatin1Char('1')));
    AlarmInfoMap expected = Map(3);
    expected[Door(1)].bSendEmail = true;
    expected[Door(1)].bEmapTwinkle = true;
    QVERIFY(client.map == expected);
}

void SchemeHistoryTest::takingBackTheTakingBackBringsTheStepAgain()
{
    StoreClient client;
    client.map = Map(2);
    QCOMPARE(client.Save(), 0);
    client.map[Door(0)].bSendEmail = true;
    const AlarmInfoMap changed = client.map;
    QCOMPARE(client.Save(), 0);
    for (int time = 0; time < 2; ++time) {
        QCOMPARE(client.store.Revert(Reader().Entries().constFirst().iId, QString()), 0);
        client.store.WaitForSaves();
    }
    QVERIFY(client.map == changed);
    QVERIFY(Reader().history.State() == changed);
}

void SchemeHistoryTest::aStepThatNobodyKnowsIsNotTakenBack()
{
    StoreClient client;
    client.map = Map(1);
    QCOMPARE(client.Save(), 0);
    QCOMPARE(client.store.Revert(99, QString()), 0);
    client.store.WaitForSaves();
    QVERIFY(client.saves.last().eReason == SchemeStoreOutcome::Reason::NoHistory);
    QCOMPARE(client.iReloads, 0);
    QVERIFY(StoreClient().map == Map(1));
}

void SchemeHistoryTest::takingBackIsForTheEditorsAChangeByOthers()
{
    StoreClient client;
    client.map = Map(2);
    QCOMPARE(client.Save(), 0);
    client.map[Door(0)].bSendEmail = true;
    QCOMPARE(client.Save(), 0);
    client.store.SetReloadHandler({}); // the page still shows what was there before
    QCOMPARE(client.store.Revert(Reader().Entries().constFirst().iId, QString()), 0);
    client.store.WaitForSaves();
    client.map[Door(0)].bOpenSound = false;
    QCOMPARE(client.Save(), -1);
    QCOMPARE(client.questions.size(), 1);
    QVERIFY(StoreClient().map == Map(2));
}

void SchemeHistoryTest::anExactReplacementDeletesTheOthers()
{
    StoreClient client;
    client.map = Map(5);
    QCOMPARE(client.Save(), 0);
    StoredSchemes schemes(std::chrono::milliseconds(1000));
    AlarmInfoMap wanted{{Door(2), AlarmInfo()}, {Door(9), Sounding()}};
    const SaveResult result = Replace(schemes, wanted, std::nullopt);
    QVERIFY(result.eReason == SchemeStoreOutcome::Reason::None);
    QCOMPARE(result.iSchemes, 6); // one changed, one new, four gone
    QVERIFY(StoreClient().map == wanted);
    Reader reader;
    QVERIFY(reader.Entries().constFirst().eKind == Kind::Import);
    QCOMPARE(reader.Entries().constFirst().strWho, QStringLiteral("carl"));
    QCOMPARE(reader.Entries().constFirst().strNote, QStringLiteral("a file"));
    QVERIFY(reader.history.State() == wanted);
    // An empty list is the empty file.
    QCOMPARE(Replace(schemes, {}, std::nullopt).iSchemes, 2);
    QVERIFY(StoreClient().map.isEmpty());
}

void SchemeHistoryTest::aReplacementOfSomeLeavesTheOthersAlone()
{
    StoreClient client;
    client.map = Map(3);
    QCOMPARE(client.Save(), 0);
    StoredSchemes schemes(std::chrono::milliseconds(1000));
    const SaveResult result =
        Replace(schemes, {{Door(0), AlarmInfo()}}, QList<AlarmSourceKey>{Door(1), Door(7)});
    QCOMPARE(result.iSchemes, 2);
    QVERIFY(StoreClient().map == AlarmInfoMap({{Door(0), AlarmInfo()}, {Door(2), Sounding()}}));
}

void SchemeHistoryTest::oldStepsGo()
{
    {
        StoreClient client;
        for (int step = 0; step < 3; ++step) {
            client.map = Map(step + 1);
            QCOMPARE(client.Save(), 0);
        }
    }
    QCOMPARE(
        Reader().database.Run(QStringLiteral("update Entries set Time = Time - 86400000 * 40 where id < 3")),
        0);
    StoreClient client;
    client.Load();
    client.map[Door(1)].bSendEmail = true;
    QCOMPARE(client.Save(), 0);
    QCOMPARE(Reader().Entries().size(), 4); // nobody has said how old they may become
    client.store.SetHistoryDays(30);
    client.Load();
    client.map[Door(0)].bSendEmail = true;
    QCOMPARE(client.Save(), 0);
    QCOMPARE(Reader().Entries().size(), 3);
    QVERIFY(Reader().history.State() == client.map);
}

QTEST_GUILESS_MAIN(SchemeHistoryTest)
#include "tst_scheme_history.moc"
