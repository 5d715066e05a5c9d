#include "client/store/StoreConnection.h"

#include "client/store/DurableJournal.h"
#include "client/store/FileHealth.h"
#include "client/store/SchemeBackups.h"
#include "client/store/SchemeStoreOutcome.h"
#include "client/store/UncleanEndMarker.h"
#include "tests/AlarmSchemeData/StoreFolder.h"
#include "tests/client_store/SchemeFiles.h"

#include <QCoreApplication>
#include <QFileInfo>
#include <QProcess>
#include <QtTest>

#include <sqlite3.h>

#include <memory>

using Reason = SchemeStoreOutcome::Reason;

/// What the opening sees to before the store's first statement.
class StoreConnectionTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();

    void theJournalIsDurableAfterEachOpening();
    void aWriteAheadLogThatWasLeftBehindIsLeft();
    void aWriteAheadLogThatIsInUseMakesItReadOnly();
    void aJournalThatIsChangedLaterIsNoticed();
    void foreignKeysActAsBefore();
    void onlyAnUncleanEndMakesTheCheckThorough();
    void damageThatWasFoundIsNotForgotten();
    void rowsThatLeadNowhereAreToldOnceAfterAnUncleanEnd();
    void theMarkerStandsWhileTheFileIsOpen();
    void whatAKilledProgramHasLeftIsRolledBack();
    void aDamagedJournalIsNoReasonToGiveUpASoundFile();
    void anOldFileIsBackedUpBeforeItIsUpgraded_data();
    void anOldFileIsBackedUpBeforeItIsUpgraded();
    void aFileOfTodayIsNotBackedUpByOpeningIt();
    void anUpgradeThatCannotComeAboutIsBackedUpOnce();
    void aFailingBackupIsToldAndTheUpgradeGoesOn();
    void aBackupTakesNoLockAway();
    void anEmptyFileIsANewOneUnlessThereAreBackups();
    void aFolderInItsPlaceIsNoDamage();
    void aFileThatIsNamedIsCaredForInTheSameWay();

private:
    SchemeBackups Backups() const { return SchemeBackups(m_folder->File()); }
    /// As a program leaves it that is killed.
    void LeaveMarker() const
    {
        SchemeFiles::Write(m_folder->File() + QStringLiteral(".open-1"), QByteArray());
    }
    QString Ask(const StoreConnection& connection, const char* szSql) const
    {
        sqlite3_stmt* statement = nullptr;
        QString value;
        if (sqlite3_prepare_v2(connection.Store()->GetHandle(), szSql, -1, &statement, nullptr) ==
                SQLITE_OK &&
            sqlite3_step(statement) == SQLITE_ROW)
            value = QString::fromUtf8(reinterpret_cast<const char*>(sqlite3_column_text(statement, 0)));
        sqlite3_finalize(statement);
        return value;
    }

    std::unique_ptr<LogCatcher> m_log;
    std::unique_ptr<StoreFolder> m_folder;
};

void StoreConnectionTest::init()
{
    m_log = std::make_unique<LogCatcher>();
    m_folder = std::make_unique<StoreFolder>();
    SchemeFiles::Make(m_folder->File(), 50);
}

void StoreConnectionTest::cleanup()
{
    m_folder.reset();
    m_log.reset();
}

void StoreConnectionTest::theJournalIsDurableAfterEachOpening()
{
    StoreConnection connection;
    for (int i = 0; i < 2; ++i) {
        connection.Open();
        QVERIFY(connection.IsOpen() && !connection.OpeningFailure() && connection.HasDurableJournal());
        QCOMPARE(Ask(connection, "PRAGMA main.journal_mode"), QStringLiteral("truncate"));
        QCOMPARE(Ask(connection, "PRAGMA main.synchronous"), QStringLiteral("2"));
    }
    // As seen from outside: the journal stays behind, without content.
    const AlarmInfoMap map = SchemeFiles::Map(3);
    QCOMPARE(connection.Store()->SaveAll(&map), 0);
    const QFileInfo journal(m_folder->File() + QStringLiteral("-journal"));
    QVERIFY(journal.exists());
    QCOMPARE(journal.size(), 0);
}

void StoreConnectionTest::aWriteAheadLogThatWasLeftBehindIsLeft()
{
    {
        RawDatabase other(m_folder->File());
        QCOMPARE(other.Value(QStringLiteral("PRAGMA journal_mode = WAL")), QStringLiteral("wal"));
        QCOMPARE(other.Run(QStringLiteral("delete from AlarmUniqueID where AlarmUniqueID > 10")), 0);
    }
    StoreConnection connection;
    connection.Open();
    QVERIFY(connection.IsOpen() && !connection.OpeningFailure() && connection.HasDurableJournal());
    QVERIFY(!QFileInfo::exists(m_folder->File() + QStringLiteral("-wal")));
    connection.Close();
    QCOMPARE(RawDatabase(m_folder->File()).Value(QStringLiteral("PRAGMA journal_mode")),
             QStringLiteral("delete"));
    QCOMPARE(SchemeFiles::Read(m_folder->File()).size(), 10);
}

void StoreConnectionTest::aWriteAheadLogThatIsInUseMakesItReadOnly()
{
    StoreConnection connection;
    {
        RawDatabase other(m_folder->File());
        QCOMPARE(other.Value(QStringLiteral("PRAGMA journal_mode = WAL")), QStringLiteral("wal"));
        QCOMPARE(other.Value(QStringLiteral("select count(*) from AlarmUniqueID")), QStringLiteral("50"));
        connection.Open();
        QVERIFY(connection.IsOpen() && !connection.IsDamaged());
        QVERIFY(connection.OpeningFailure());
        QCOMPARE(connection.OpeningFailure()->iCode, DurableJournal::Refused);
        QVERIFY(ReasonOfFailure(*connection.OpeningFailure()) == Reason::Journal);
        AlarmInfoMap map;
        QCOMPARE(connection.Store()->ReadAll(&map), 0);
        QCOMPARE(map.size(), 50);
        QVERIFY(connection.Store()->ExecOnce(QStringLiteral("delete from AlarmUniqueID")) != 0);
    }
    connection.Open();
    QVERIFY(!connection.OpeningFailure() && connection.HasDurableJournal());
}

void StoreConnectionTest::aJournalThatIsChangedLaterIsNoticed()
{
    StoreConnection connection;
    connection.Open();
    QVERIFY(connection.HasDurableJournal());
    {
        RawDatabase other(m_folder->File());
        QCOMPARE(other.Value(QStringLiteral("PRAGMA journal_mode = WAL")), QStringLiteral("wal"));
        QVERIFY(!connection.HasDurableJournal());
    }
    connection.Open();
    QVERIFY(connection.HasDurableJournal());
}

void StoreConnectionTest::foreignKeysActAsBefore()
{
    StoreConnection connection;
    connection.Open();
    QCOMPARE(Ask(connection, "PRAGMA foreign_keys"), QStringLiteral("1"));
    QCOMPARE(connection.Store()->ExecOnce(QStringLiteral("delete from AlarmUniqueID")), 0);
    QCOMPARE(Ask(connection, "select count(*) from AlarmBaseInfo"), QStringLiteral("0"));
}

void StoreConnectionTest::onlyAnUncleanEndMakesTheCheckThorough()
{
    SchemeFiles::DamageIndex(m_folder->File());
    StoreConnection connection;
    connection.Open();
    QVERIFY(!connection.OpeningFailure());
    connection.Close();
    LeaveMarker();
    const QByteArray before = m_folder->Bytes();
    connection.Open();
    QVERIFY(connection.IsDamaged());
    connection.Close();
    QCOMPARE(m_folder->Bytes(), before);
}

void StoreConnectionTest::damageThatWasFoundIsNotForgotten()
{
    SchemeFiles::DamageIndex(m_folder->File());
    LeaveMarker();
    for (int i = 0; i < 3; ++i) {
        StoreConnection connection;
        connection.Open();
        QVERIFY(connection.IsDamaged());
    }
    QCOMPARE(RawDatabase(m_folder->File()).Run(QStringLiteral("reindex")), 0);
    for (int i = 0; i < 2; ++i) {
        StoreConnection connection;
        connection.Open();
        QVERIFY(!connection.OpeningFailure());
    }
    QVERIFY(!QFileInfo::exists(m_folder->File() + QStringLiteral(".open-1")));
}

void StoreConnectionTest::rowsThatLeadNowhereAreToldOnceAfterAnUncleanEnd()
{
    RawDatabase(m_folder->File())
        .Run(QStringLiteral("PRAGMA foreign_keys = OFF; delete from AlarmUniqueID where AlarmUniqueID = 1"));
    StoreConnection connection;
    connection.Open();
    QCOMPARE(connection.TakeNotices().iOrphanRows, 0);
    connection.Close();
    LeaveMarker();
    connection.Open();
    // No damage: a base row, a link to a door and seven days of nobody.
    QVERIFY(!connection.OpeningFailure());
    QCOMPARE(connection.TakeNotices().iOrphanRows, 9);
    QCOMPARE(connection.TakeNotices().iOrphanRows, 0);
}

void StoreConnectionTest::theMarkerStandsWhileTheFileIsOpen()
{
    const QString marker = m_folder->File() + QStringLiteral(".open-1");
    StoreConnection connection;
    connection.Open();
    QVERIFY(QFileInfo::exists(marker));
    QVERIFY(!connection.IsShared());
    StoreConnection second;
    second.Open();
    QVERIFY(connection.IsShared() && second.IsShared());
    QVERIFY(!second.OpeningFailure());
    second.Close();
    QVERIFY(QFileInfo::exists(marker) && !connection.IsShared());
    connection.Close();
    QVERIFY(!QFileInfo::exists(marker));
    // Nothing of it is in the database.
    QCOMPARE(RawDatabase(m_folder->File())
                 .Value(QStringLiteral("select count(*) from sqlite_master where type = 'table' and name not "
                                       "like 'sqlite%'")),
             QStringLiteral("10"));
}

void StoreConnectionTest::whatAKilledProgramHasLeftIsRolledBack()
{
    const QString file = m_folder->File();
    const QStringList before = RawDatabase(file).Content();
    QByteArray torn;
    QByteArray journal;
    {
        // A transaction that has begun to reach the file, as a copy of both at that moment shows it.
        RawDatabase other(file);
        other.Run(QStringLiteral("PRAGMA cache_size = 1; begin; delete from AlarmDefenceTimeInfo; "
                                 "delete from AlarmLinkDoorInfo; update AlarmBaseInfo set bOpen = 0"));
        torn = SchemeFiles::Bytes(file);
        journal = SchemeFiles::Bytes(file + QStringLiteral("-journal"));
        other.Run(QStringLiteral("rollback"));
    }
    QVERIFY(torn != m_folder->Bytes() && journal.size() > 512);
    SchemeFiles::Write(file, torn);
    SchemeFiles::Write(file + QStringLiteral("-journal"), journal);
    LeaveMarker();
    StoreConnection connection;
    connection.Open();
    QVERIFY(connection.IsOpen() && !connection.OpeningFailure());
    connection.Close();
    QCOMPARE(RawDatabase(file).Content(), before);
    QVERIFY(!QFileInfo::exists(file + QStringLiteral(".open-1")));
}

void StoreConnectionTest::aDamagedJournalIsNoReasonToGiveUpASoundFile()
{
    const QStringList before = RawDatabase(m_folder->File()).Content();
    for (const QByteArray& journal :
         {QByteArray("x"), QByteArray(5000, 'x'), QByteArray(5000, '\0'), QByteArray(1, '\xD9')}) {
        SchemeFiles::Write(m_folder->File() + QStringLiteral("-journal"), journal);
        LeaveMarker();
        StoreConnection connection;
        connection.Open();
        QVERIFY(connection.IsOpen() && !connection.OpeningFailure());
        connection.Close();
        QCOMPARE(RawDatabase(m_folder->File()).Content(), before);
    }
}

void StoreConnectionTest::anOldFileIsBackedUpBeforeItIsUpgraded_data()
{
    QTest::addColumn<QString>("change");
    QTest::newRow("without the mail flag")
        << QStringLiteral("alter table AlarmBaseInfo drop column bSendEmail");
    QTest::newRow("without a table") << QStringLiteral("drop table AlarmSplitInfo");
    QTest::newRow("of something else")
        << QStringLiteral("drop table AlarmUniqueID; create table Other(a); insert into Other values(1)");
    QTest::newRow("without an index") << QStringLiteral("drop index AlarmBaseInfo_ByScheme");
    QTest::newRow("of another version") << QStringLiteral("update BaseInfo set Version = 'V1.00.0'");
}

void StoreConnectionTest::anOldFileIsBackedUpBeforeItIsUpgraded()
{
    QFETCH(QString, change);
    QCOMPARE(RawDatabase(m_folder->File()).Run(change), 0);
    const auto schema = [](const QString& path) {
        RawDatabase raw(path);
        return raw.Rows(QStringLiteral("select name, sql from sqlite_master order by name")) +
               raw.Rows(QStringLiteral("select Version from BaseInfo"));
    };
    const QStringList old = schema(m_folder->File());
    StoreConnection connection;
    connection.Open();
    QVERIFY(!connection.OpeningFailure());
    connection.Close();
    QVERIFY(schema(m_folder->File()) != old);
    const QList<SchemeBackup> backups = Backups().List();
    QCOMPARE(backups.size(), 1);
    QCOMPARE(schema(backups.first().strPath), old);
    // Once is enough.
    connection.Open();
    QCOMPARE(Backups().List().size(), 1);
}

void StoreConnectionTest::aFileOfTodayIsNotBackedUpByOpeningIt()
{
    StoreConnection connection;
    connection.Open();
    QVERIFY(Backups().List().isEmpty());
    connection.Close();
    QVERIFY(QFile::remove(m_folder->File()));
    connection.Open(); // a new one
    QVERIFY(Backups().List().isEmpty());
    QVERIFY(!QFileInfo::exists(Backups().Folder()));
}

void StoreConnectionTest::anUpgradeThatCannotComeAboutIsBackedUpOnce()
{
    // The version cannot be written, so every opening finds an old file.
    QCOMPARE(RawDatabase(m_folder->File())
                 .Run(QStringLiteral("update BaseInfo set Version = 'V1.00.0'; create trigger one before "
                                     "update on BaseInfo begin select raise(ignore); end")),
             0);
    for (int i = 0; i < 3; ++i) {
        StoreConnection connection;
        connection.Open();
        QVERIFY(connection.IsOpen());
    }
    QCOMPARE(Backups().List().size(), 1);
}

void StoreConnectionTest::aFailingBackupIsToldAndTheUpgradeGoesOn()
{
    SchemeFiles::Write(Backups().Folder(), "a file");
    QCOMPARE(RawDatabase(m_folder->File()).Run(QStringLiteral("drop index AlarmBaseInfo_ByScheme")), 0);
    StoreConnection connection;
    connection.Open();
    QVERIFY(!connection.OpeningFailure());
    QVERIFY(connection.TakeNotices().noBackup);
    QVERIFY(!connection.TakeNotices().noBackup);
    QCOMPARE(RawDatabase(m_folder->File())
                 .Value(QStringLiteral(
                     "select count(*) from sqlite_master where name = 'AlarmBaseInfo_ByScheme'")),
             QStringLiteral("1"));
}

void StoreConnectionTest::aBackupTakesNoLockAway()
{
    QCOMPARE(RawDatabase(m_folder->File()).Run(QStringLiteral("update BaseInfo set Version = 'V1.00.0'")), 0);
    QVERIFY(!Backups().Make(std::chrono::milliseconds(0)));
    RawDatabase writing(m_folder->File());
    QCOMPARE(writing.Run(QStringLiteral("begin immediate; delete from AlarmUniqueID")), 0);
    QVERIFY(!Backups().MakeUnlessSame(std::chrono::milliseconds(0)));
    QVERIFY(!Backups().Make(std::chrono::milliseconds(0)));
    QVERIFY(!FileHealth::Inspect(Backups().List().constFirst().strPath).failure);
    // Another process, which is what the locks are for.
    QProcess other;
    other.start(QCoreApplication::applicationFilePath(),
                {QStringLiteral("--try-to-write"), m_folder->File()});
    QVERIFY(other.waitForFinished());
    QCOMPARE(other.exitCode(), SQLITE_BUSY);
    QCOMPARE(writing.Run(QStringLiteral("rollback")), 0);
    other.start(QCoreApplication::applicationFilePath(),
                {QStringLiteral("--try-to-write"), m_folder->File()});
    QVERIFY(other.waitForFinished());
    QCOMPARE(other.exitCode(), SQLITE_OK);
}

void StoreConnectionTest::anEmptyFileIsANewOneUnlessThereAreBackups()
{
    SchemeFiles::Write(m_folder->File(), QByteArray());
    StoreConnection connection;
    connection.Open();
    QVERIFY(connection.IsOpen() && !connection.OpeningFailure());
    connection.Close();
    SchemeFiles::Make(m_folder->File(), 2);
    QVERIFY(!Backups().Make(std::chrono::milliseconds(0)));
    SchemeFiles::Write(m_folder->File(), QByteArray());
    connection.Open();
    QVERIFY(connection.IsDamaged() && !connection.IsOpen());
    connection.Close();
    QCOMPARE(QFileInfo(m_folder->File()).size(), 0);
}

void StoreConnectionTest::aFolderInItsPlaceIsNoDamage()
{
    QVERIFY(QFile::remove(m_folder->File()));
    QVERIFY(QDir().mkpath(m_folder->File()));
    StoreConnection connection;
    connection.Open();
    QVERIFY(!connection.IsOpen() && !connection.IsDamaged());
    QVERIFY(ReasonOfFailure(*connection.OpeningFailure()) == Reason::NotOpen);
    QVERIFY(QFileInfo(m_folder->File()).isDir());
}

void StoreConnectionTest::aFileThatIsNamedIsCaredForInTheSameWay()
{
    const QString path = QDir(m_folder->Root()).absoluteFilePath(QStringLiteral("other.db"));
    SchemeFiles::Make(path, 3);
    QCOMPARE(RawDatabase(path).Run(QStringLiteral("drop index AlarmBaseInfo_ByScheme")), 0);
    StoreConnection connection(path);
    connection.Open();
    QVERIFY(connection.HasDurableJournal());
    QCOMPARE(connection.FilePath(), path);
    QVERIFY(QFileInfo::exists(path + QStringLiteral(".open-1")));
    QCOMPARE(SchemeBackups(path).List().size(), 1);
    QVERIFY(Backups().List().isEmpty());
}

int main(int argc, char* argv[])
{
    const QCoreApplication application(argc, argv);
    const QStringList arguments = QCoreApplication::arguments();
    if (arguments.value(1) == QLatin1String("--try-to-write"))
        return RawDatabase(arguments.value(2)).Run(QStringLiteral("begin immediate; rollback"));
    StoreConnectionTest test;
    return QTest::qExec(&test, argc, argv);
}
#include "tst_store_connection.moc"
