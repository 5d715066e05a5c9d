#include "AlarmCtrl/AlarmSchemeData/AlarmSchemeDatabaseParser.h"
#include "tests/AlarmSchemeData/RawDatabase.h"
#include "tests/AlarmSchemeData/StoreFolder.h"

#include <QtTest>

#include <sqlite3.h>

namespace {

const QString DuplicateColumn =
    QStringLiteral("AlarmSchemeDatabaseParser ExecOnce failed, error = duplicate column name: bSendEmail");

/// "name:type, name:type"; newer versions of SQLite report their own standard type names in capitals.
QString Columns(RawDatabase& database, const QString& table)
{
    return database
        .Rows(QStringLiteral("select name || ':' || replace(type, 'INTEGER', 'integer') "
                             "from pragma_table_xinfo('%1') order by cid")
                  .arg(table))
        .join(QLatin1String(", "));
}

/// Collects the texts of the statements that a connection runs.
class Tracer
{
public:
    explicit Tracer(sqlite3* pDatabase)
        : m_pDatabase(pDatabase)
    {
        sqlite3_trace_v2(
            pDatabase, SQLITE_TRACE_STMT,
            [](unsigned, void* self, void*, void* text) {
                static_cast<Tracer*>(self)->m_statements.append(QString::fromUtf8(static_cast<char*>(text)));
                return 0;
            },
            this);
    }
    ~Tracer() { sqlite3_trace_v2(m_pDatabase, 0, nullptr, nullptr); }
    Tracer(const Tracer&) = delete;
    Tracer& operator=(const Tracer&) = delete;
    const QStringList& Statements() const { return m_statements; }

private:
    sqlite3* m_pDatabase;
    QStringList m_statements;
};

} // namespace

class SchemeStoreOpeningTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void openingMakesTheTenTablesWithTheirColumnsAndTypes_data();
    void openingMakesTheTenTablesWithTheirColumnsAndTypes();
    void theTenTablesAreAllThereIs();
    void schemeTablesFollowTheirSchemeInDeletionAndChange();
    void theFileHasOneVersionRow();
    void aSecondOpeningLogsTheDuplicateColumnAndLeavesTheData();
    void theDuplicateColumnIsNotCountedAsAFailure();
    void aFileFromBeforeTheMailColumnGetsIt();
    void aMissingDirectoryLeavesTheStoreClosedAndSilent();
    void withoutADataDirectoryTheStoreStaysClosed();
    void aClosedStoreAnswersMinusOneToEverything();
    void theUserOfTheStoreMayRefuseTheConnection();
    void nestedTransactionsAreOneForTheDatabase();
    void rollingBackEndsTheTransactionAtAnyDepth();
    void endingOnceTooOftenIsRepairedByRollingBack();
    void aFailedStatementIsLoggedExactlyOnceAndCounted();
    void aStatementWithANullCharacterNeverRuns();
    void twoStoresReadTheSameFile();
    void namesWithNonLatinLettersOpen();
};

void SchemeStoreOpeningTest::openingMakesTheTenTablesWithTheirColumnsAndTypes_data()
{
    QTest::addColumn<QString>("table");
    QTest::addColumn<QString>("columns");
    const auto row = [](const char* table, const char* columns) {
        QTest::newRow(table) << QString::fromLatin1(table) << QString::fromLatin1(columns);
    };
    row("AlarmUniqueID", "AlarmUniqueID:integer, strEventSource:VARCHAR[(1000)], AlarmType:integer");
    row("AlarmBaseInfo", "id:integer, AlarmUniqueID:integer, bOpen:bit, bOpenSound:bit, bEmapTwinkle:bit, "
                         "SplitRow:integer, SplitCloum:integer, SplitCount:integer, bSendEmail:bit");
    row("AlarmSplitInfo",
        "id:integer, AlarmUniqueID:integer, windowID:integer, bEnable:bit, iCombine:integer, "
        "X1:integer, X2:integer, Y1:integer, Y2:integer");
    row("AlarmLinkVideoID", "AlarmLinkVideoID:integer, strLinkDevID:VARCHAR[(1000)]");
    row("AlarmLinkVideoInfo",
        "id:integer, AlarmUniqueID:integer, AlarmLinkVideoID:integer, WindowID:integer, "
        "bOpen:bit, bRecord:bit, Preposition:integer, StreamType:integer, Time:integer");
    row("AlarmLinkAlarmOutID", "AlarmLinkAlarmOutID:integer, strLinkAlarmID:VARCHAR[(1000)]");
    row("AlarmLinkDoorInfo", "id:integer, AlarmUniqueID:integer, AlarmLinkDoorID:integer, bAlwaysOpen:bit");
    row("AlarmLinkAlarmOutInfo",
        "id:integer, AlarmUniqueID:integer, AlarmLinkAlarmOutID:integer, bAutoOpen:bit, Time:integer");
    row("BaseInfo", "id:integer, Version:VARCHAR[(256)], ModifyTime:VARCHAR[(256)]");
    row("AlarmDefenceTimeInfo", "id:integer, AlarmUniqueID:integer, Day:integer, Begin:integer, End:intger");
}

void SchemeStoreOpeningTest::openingMakesTheTenTablesWithTheirColumnsAndTypes()
{
    QFETCH(QString, table);
    const LogCatcher log;
    const StoreFolder folder;
    const AlarmSchemeDatabaseParser store;
    QVERIFY(store.IsOpen());
    QCOMPARE(store.FailedStatements(), int64_t(0));
    RawDatabase database(folder.File());
    QTEST(Columns(database, table), "columns");
    QCOMPARE(database.Value(QStringLiteral("select name || \"notnull\" || pk from pragma_table_xinfo('%1') "
                                           "where cid = 0")
                                .arg(table)),
             Columns(database, table).section(QLatin1Char(':'), 0, 0) + QLatin1String("11"));
}

void SchemeStoreOpeningTest::theTenTablesAreAllThereIs()
{
    const LogCatcher log;
    const StoreFolder folder;
    const AlarmSchemeDatabaseParser store;
    RawDatabase database(folder.File());
    QStringList expected = RawDatabase::Tables();
    expected.sort();
    QStringList found = database.Rows(
        QStringLiteral("select name from sqlite_master where type = 'table' and name not like 'sqlite%'"));
    found.sort();
    QCOMPARE(found, expected);
    QCOMPARE(
        database.Value(QStringLiteral("select count(*) from sqlite_master where sql like '%autoincrement%'")),
        QStringLiteral("10"));
}

void SchemeStoreOpeningTest::schemeTablesFollowTheirSchemeInDeletionAndChange()
{
    const LogCatcher log;
    const StoreFolder folder;
    const AlarmSchemeDatabaseParser store;
    RawDatabase database(folder.File());
    const QString keys = QStringLiteral("select \"table\", \"from\", \"to\", on_update, on_delete from "
                                        "pragma_foreign_key_list('%1') order by 1");
    const QString ofScheme = QStringLiteral("AlarmUniqueID|AlarmUniqueID|AlarmUniqueID|CASCADE|CASCADE");
    for (const char* table : {"AlarmBaseInfo", "AlarmSplitInfo", "AlarmLinkDoorInfo", "AlarmDefenceTimeInfo"})
        QCOMPARE(database.Rows(keys.arg(QLatin1String(table))), QStringList{ofScheme});
    QCOMPARE(
        database.Rows(keys.arg(QLatin1String("AlarmLinkVideoInfo"))),
        (QStringList{QStringLiteral("AlarmLinkVideoID|AlarmLinkVideoID|AlarmLinkVideoID|CASCADE|CASCADE"),
                     ofScheme}));
    QCOMPARE(database.Rows(keys.arg(QLatin1String("AlarmLinkAlarmOutInfo"))),
             (QStringList{QStringLiteral(
                              "AlarmLinkAlarmOutID|AlarmLinkAlarmOutID|AlarmLinkAlarmOutID|CASCADE|CASCADE"),
                          ofScheme}));
}

void SchemeStoreOpeningTest::theFileHasOneVersionRow()
{
    const LogCatcher log;
    const StoreFolder folder;
    for (int opening = 0; opening < 3; ++opening) {
        const AlarmSchemeDatabaseParser store;
        QCOMPARE(store.GetPath(), folder.File());
        QCOMPARE(store.GetTransactionDepth(), 0);
        RawDatabase database(folder.File());
        QCOMPARE(database.Rows(QStringLiteral("select id, Version, ModifyTime from BaseInfo")),
                 QStringList{QStringLiteral("1|V2.01.0|NULL")});
        database.Run(QStringLiteral("update BaseInfo set Version = 'V1'"));
    }
}

void SchemeStoreOpeningTest::aSecondOpeningLogsTheDuplicateColumnAndLeavesTheData()
{
    LogCatcher log;
    const StoreFolder folder;
    {
        AlarmSchemeDatabaseParser store;
        QCOMPARE(store.SaveOpen(AlarmSourceKey{QStringLiteral("1$1$0$2"), 3}, true), 0);
    }
    QCOMPARE(log.Messages(), QStringList());
    const QStringList before = RawDatabase(folder.File()).Content();
    const AlarmSchemeDatabaseParser again;
    QCOMPARE(log.Messages(), QStringList{DuplicateColumn});
    const lxl::DPrintLog::Entry& entry = log.Entries().at(0);
    QCOMPARE(entry.strFile, QStringLiteral("AlarmCtrl\\AlarmSchemeData\\AlarmSchemeDatabaseParser"));
    QCOMPARE(entry.iLine, 1056);
    QCOMPARE(entry.strFunction, QStringLiteral("AlarmSchemeDatabaseParser::ExecOnce"));
    QCOMPARE(entry.strModule, QString());
    QCOMPARE(entry.iLevel, 6);
    QCOMPARE(RawDatabase(folder.File()).Content(), before);
}

void SchemeStoreOpeningTest::theDuplicateColumnIsNotCountedAsAFailure()
{
    const LogCatcher log;
    const StoreFolder folder;
    for (int opening = 0; opening < 2; ++opening) {
        AlarmSchemeDatabaseParser store;
        QCOMPARE(store.FailedStatements(), int64_t(0));
        QVERIFY(!store.TakeFirstFailure());
    }
}

void SchemeStoreOpeningTest::aFileFromBeforeTheMailColumnGetsIt()
{
    LogCatcher log;
    const StoreFolder folder;
    {
        AlarmSchemeDatabaseParser store;
        store.SaveNotify(AlarmSourceKey{QStringLiteral("1$1$0$2"), 3}, AlarmNotifyInfo{true, false, true});
    }
    RawDatabase database(folder.File());
    QCOMPARE(database.Run(QStringLiteral("alter table AlarmBaseInfo drop column bSendEmail")), SQLITE_OK);
    QVERIFY(!Columns(database, QStringLiteral("AlarmBaseInfo")).contains(QLatin1String("bSendEmail")));

    log.Clear();
    AlarmSchemeDatabaseParser store;
    QCOMPARE(log.Messages(), QStringList());
    QVERIFY(Columns(database, QStringLiteral("AlarmBaseInfo")).endsWith(QLatin1String(", bSendEmail:bit")));
    AlarmInfo info;
    QCOMPARE(store.ReadNotify(AlarmSourceKey{QStringLiteral("1$1$0$2"), 3}, info), 0);
    QVERIFY(info.bOpenSound && !info.bSendEmail);
    const AlarmSchemeDatabaseParser again;
    QCOMPARE(log.Messages(), QStringList{DuplicateColumn});
}

void SchemeStoreOpeningTest::aMissingDirectoryLeavesTheStoreClosedAndSilent()
{
    const LogCatcher log;
    const StoreFolder folder;
    QVERIFY(QDir(QGetDatabaseDirPath()).removeRecursively());
    AlarmSchemeDatabaseParser store;
    QVERIFY(!store.IsOpen());
    QVERIFY(store.GetHandle() == nullptr);
    QCOMPARE(store.GetPath(), QString());
    QCOMPARE(store.GetTransactionDepth(), 0);
    QCOMPARE(store.FailedStatements(), int64_t(0));
    const auto failure = store.TakeFirstFailure();
    QVERIFY(failure && (failure->iCode & 0xFF) == SQLITE_CANTOPEN);
    QCOMPARE(log.Messages(), QStringList());
}

void SchemeStoreOpeningTest::withoutADataDirectoryTheStoreStaysClosed()
{
    const LogCatcher log;
    const QTemporaryDir empty;
    const QString before = QDir::currentPath();
    QDir::setCurrent(empty.path());
    SystemPaths::SetDataDirectory(QString());
    const AlarmSchemeDatabaseParser store;
    QVERIFY(!store.IsOpen());
    QCOMPARE(QDir(empty.path()).entryList(QDir::NoDotAndDotDot | QDir::AllEntries), QStringList());
    QDir::setCurrent(before);
}

void SchemeStoreOpeningTest::aClosedStoreAnswersMinusOneToEverything()
{
    const LogCatcher log;
    SystemPaths::SetDataDirectory(QString());
    AlarmSchemeDatabaseParser store;
    const AlarmSourceKey key{QStringLiteral("1$1$0$2"), 3};
    AlarmInfo info;
    info.bOpen = true;
    info.bOpenSound = true;
    info.bSendEmail = true;
    info.listDoor.append(AlarmLinkDoor());
    QCOMPARE(store.ExecOnce(QStringLiteral("select 1")), -1);
    QCOMPARE(store.ReadOpen(key, info), -1);
    QCOMPARE(store.ReadNotify(key, info), -1);
    QCOMPARE(store.ReadDefenceTime(key, info), -1);
    QCOMPARE(store.ReadAlarmOut(key, info), -1);
    QCOMPARE(store.ReadDoor(key, info), -1);
    QCOMPARE(store.ReadSplit(key, info), -1);
    QCOMPARE(store.ReadVideo(key, info), -1);
    // Each part is reset all the same.
    QVERIFY(!info.bOpen && !info.bOpenSound && info.bSendEmail && info.listDoor.isEmpty());
    QCOMPARE(qAsConst(info).defenceTime[0].size(), 0);

    AlarmInfoMap map;
    map.insert(key, info);
    QCOMPARE(store.ReadAll(&map), -1);
    QCOMPARE(store.SaveAll(&map), -1);
    QCOMPARE(store.SaveOpen(key, true), -1);
    QCOMPARE(store.SaveNotify(key, AlarmNotifyInfo()), -1);
    QCOMPARE(store.SaveAlarmOut(key, {}), -1);
    QCOMPARE(store.SaveDoor(key, {}), -1);
    QCOMPARE(store.SaveDefenceTime(key, AlarmWeek()), -1);
    QCOMPARE(store.SaveVideo(key, AlarmVideoSplit()), -1);
    QCOMPARE(store.DeleteSchemes({key}), -1);
    QCOMPARE(store.DeleteAllSchemesBut({key}), -1);
    QCOMPARE(store.DisableAllSchemesBut(map), -1);
    QVERIFY(!store.FindSchemeId(key) && !store.FindVideoId(QString()) && !store.FindAlarmOutId(QString()));
    QCOMPARE(store.RollBack(), -1);
    QCOMPARE(log.Messages(), QStringList());
    QCOMPARE(store.FailedStatements(), int64_t(0));
}

void SchemeStoreOpeningTest::theUserOfTheStoreMayRefuseTheConnection()
{
    const LogCatcher log;
    const StoreFolder folder;
    const AlarmSchemeDatabaseParser refused([](sqlite3*) { return false; });
    QVERIFY(!refused.IsOpen());
    QCOMPARE(QFileInfo(folder.File()).size(), qint64(0));
    sqlite3* seen = nullptr;
    const AlarmSchemeDatabaseParser taken([&seen](sqlite3* handle) {
        seen = handle;
        return true;
    });
    QVERIFY(taken.IsOpen());
    QCOMPARE(taken.GetHandle(), seen);
}

void SchemeStoreOpeningTest::nestedTransactionsAreOneForTheDatabase()
{
    const LogCatcher log;
    const StoreFolder folder;
    AlarmSchemeDatabaseParser store;
    const Tracer tracer(store.GetHandle());
    store.BeginTransaction();
    store.BeginTransaction();
    QCOMPARE(store.GetTransactionDepth(), 2);
    store.EndTransaction();
    QCOMPARE(sqlite3_get_autocommit(store.GetHandle()), 0);
    store.EndTransaction();
    QCOMPARE(store.GetTransactionDepth(), 0);
    QCOMPARE(sqlite3_get_autocommit(store.GetHandle()), 1);
    QCOMPARE(tracer.Statements(), (QStringList{QStringLiteral("Begin"), QStringLiteral("COMMIT")}));
}

void SchemeStoreOpeningTest::rollingBackEndsTheTransactionAtAnyDepth()
{
    const LogCatcher log;
    const StoreFolder folder;
    AlarmSchemeDatabaseParser store;
    store.BeginTransaction();
    store.BeginTransaction();
    store.SaveOpen(AlarmSourceKey{QStringLiteral("1$1$0$2"), 3}, true);
    QCOMPARE(store.RollBack(), 0);
    QCOMPARE(store.GetTransactionDepth(), 0);
    AlarmInfoMap map;
    QCOMPARE(store.ReadAll(&map), 0);
    QVERIFY(map.isEmpty());
    // Without a transaction there is nothing to roll back.
    QCOMPARE(store.RollBack(), SQLITE_ERROR);
}

void SchemeStoreOpeningTest::endingOnceTooOftenIsRepairedByRollingBack()
{
    const LogCatcher log;
    const StoreFolder folder;
    AlarmSchemeDatabaseParser store;
    store.EndTransaction();
    QCOMPARE(store.GetTransactionDepth(), -1);
    store.RollBack();
    QCOMPARE(store.GetTransactionDepth(), 0);
}

void SchemeStoreOpeningTest::aFailedStatementIsLoggedExactlyOnceAndCounted()
{
    LogCatcher log;
    const StoreFolder folder;
    AlarmSchemeDatabaseParser store;
    QCOMPARE(store.ExecOnce(QStringLiteral("select * from nowhere")), SQLITE_ERROR);
    QCOMPARE(log.Messages(),
             QStringList{QStringLiteral(
                 "AlarmSchemeDatabaseParser ExecOnce failed, error = no such table: nowhere")});
    QCOMPARE(store.FailedStatements(), int64_t(1));
    QCOMPARE(store.ExecOnce(QStringLiteral("syntax error %s%n")), SQLITE_ERROR);
    QCOMPARE(log.Entries().size(), 2);
    const auto first = store.TakeFirstFailure();
    QVERIFY(first);
    QCOMPARE(first->strMessage, QStringLiteral("no such table: nowhere"));
    QVERIFY(!store.TakeFirstFailure());
    QCOMPARE(store.FailedStatements(), int64_t(2));
}

void SchemeStoreOpeningTest::aStatementWithANullCharacterNeverRuns()
{
    LogCatcher log;
    const StoreFolder folder;
    AlarmSchemeDatabaseParser store;
    store.SaveOpen(AlarmSourceKey{QStringLiteral("1$1$0$2"), 3}, true);
    QCOMPARE(
        store.ExecOnce(QStringLiteral("delete from AlarmUniqueID") + QChar(0) + QStringLiteral(" where 0")),
        SQLITE_ERROR);
    QCOMPARE(log.Entries().size(), 1);
    QCOMPARE(store.FailedStatements(), int64_t(1));
    QCOMPARE(RawDatabase(folder.File()).Value(QStringLiteral("select count(*) from AlarmUniqueID")),
             QStringLiteral("1"));
}

void SchemeStoreOpeningTest::twoStoresReadTheSameFile()
{
    const LogCatcher log;
    const StoreFolder folder;
    AlarmSchemeDatabaseParser first;
    AlarmSchemeDatabaseParser second;
    QCOMPARE(first.SaveOpen(AlarmSourceKey{QStringLiteral("1$1$0$2"), 3}, true), 0);
    AlarmInfo info;
    QCOMPARE(second.ReadOpen(AlarmSourceKey{QStringLiteral("1$1$0$2"), 3}, info), 0);
    QVERIFY(info.bOpen);
}

void SchemeStoreOpeningTest::namesWithNonLatinLettersOpen()
{
    const LogCatcher log;
    const QTemporaryDir root;
    const QString directory =
        QDir(root.path()).absoluteFilePath(QString::fromUtf8("d\xC3\xBCr \xE9\x97\xA8"));
    SystemPaths::SetDataDirectory(directory);
    QVERIFY(QDir().mkpath(QGetDatabaseDirPath()));
    const AlarmSchemeDatabaseParser store;
    QVERIFY(store.IsOpen());
    QVERIFY(QFileInfo::exists(directory + QStringLiteral("/Database/AlarmScheme.db")));
    SystemPaths::SetDataDirectory(QString());
}

QTEST_GUILESS_MAIN(SchemeStoreOpeningTest)
#include "tst_scheme_store_opening.moc"
