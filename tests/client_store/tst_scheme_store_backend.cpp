#include "client/store/AlarmSchemeStoreBackend.h"
#include "client/store/AsStored.h"

#include "tests/AlarmSchemeData/RandomSchemes.h"
#include "tests/AlarmSchemeData/RawDatabase.h"
#include "tests/AlarmSchemeData/StoreFolder.h"
#include "tests/client_store/SaveAndWait.h"

#include <QtTest>

#include <sqlite3.h>

#include <memory>

using Operation = SchemeStoreOutcome::Operation;
using Reason = SchemeStoreOutcome::Reason;

namespace {

AlarmSourceKey Key(const char* szSource, int32_t iType = 1)
{
    return AlarmSourceKey{QString::fromLatin1(szSource), iType};
}

/// Schemes that fill many pages.
AlarmInfoMap Map(int iCount, bool bOpen)
{
    AlarmInfoMap map;
    for (int door = 0; door < iCount; ++door) {
        AlarmInfo& info = map[AlarmSourceKey{EventSource::Door(1, door), 3}];
        info.bOpen = bOpen;
        info.listDoor.append(AlarmLinkDoor{QString::number(door), bOpen});
        info.listAlarmOut.append(AlarmLinkAlarmOut{EventSource::AlarmOutput(door), bOpen, 20});
    }
    return map;
}

/// Runs a statement on every connection that is opened during its life.
class EveryConnection
{
public:
    explicit EveryConnection(const QString& strSql)
    {
        Sql() = strSql.toUtf8();
        sqlite3_auto_extension(reinterpret_cast<void (*)()>(&EveryConnection::OnOpen));
    }
    ~EveryConnection()
    {
        sqlite3_cancel_auto_extension(reinterpret_cast<void (*)()>(&EveryConnection::OnOpen));
    }
    EveryConnection(const EveryConnection&) = delete;
    EveryConnection& operator=(const EveryConnection&) = delete;

private:
    static int OnOpen(sqlite3* pDatabase, char**, const void*)
    {
        return sqlite3_exec(pDatabase, Sql().constData(), nullptr, nullptr, nullptr);
    }
    static QByteArray& Sql()
    {
        static QByteArray sql;
        return sql;
    }
};

/// What a client that starts now would see.
AlarmInfoMap Stored()
{
    AlarmSchemeStoreBackend backend;
    AlarmInfoMap map;
    if (backend.Load(map) != 0)
        qFatal("the stored schemes cannot be read");
    return map;
}

} // namespace

class SchemeStoreBackendTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();

    void aFirstStartMakesTheDirectoryAndAnEmptyDatabase();
    void whatIsSavedIsLoadedByTheNextStart();
    void savingTellsHowManySchemesWereWritten();
    void loadingTwiceGivesTheSame();
    void loadingEmptiesTheMap();
    void savingBeforeAnyLoadIsRefused();
    void randomMapsSurviveSavingOverOneAnother();
    void aFailedStatementKeepsTheOldSchemes_data();
    void aFailedStatementKeepsTheOldSchemes();
    void aFullDiskKeepsTheOldSchemes();
    void aWriteProtectedConnectionKeepsTheOldSchemes();
    void aKeyThatCannotBeStoredKeepsTheOldSchemes();
    void savingSucceedsOnceTheTroubleIsGone();
    void aSaveStopsAtTheFirstFailure();
    void aPartialLoadMakesSavingRefuse();
    void aSoundLoadAllowsSavingAgain();
    void aFileThatIsNoDatabaseIsLeftAsItIs();
    void aTruncatedFileIsLeftAsItIs_data();
    void aTruncatedFileIsLeftAsItIs();
    void aDamagedFileIsLeftAsItIsAndGivesWhatIsSound();
    void aDirectoryThatCannotBeMadeMakesBothFail();
    void aDirectoryThatAppearsLaterIsUsedByTheNextLoad();
    void aDatabaseThatWasRemovedIsNoticed();
    void aDatabaseThatWasPutBackIsSavedTo();
    void anOldFileWithoutTheMailColumnLoadsAndSaves();
    void valuesOfOtherTypesAreNoDamage();
    void theHandlerMayBeRemovedAndMayLoadAgain();

private:
    std::unique_ptr<LogCatcher> m_log;
    std::unique_ptr<StoreFolder> m_folder;
};

void SchemeStoreBackendTest::init()
{
    m_log = std::make_unique<LogCatcher>();
    m_folder = std::make_unique<StoreFolder>();
}

void SchemeStoreBackendTest::cleanup()
{
    m_folder.reset();
    m_log.reset();
}

void SchemeStoreBackendTest::aFirstStartMakesTheDirectoryAndAnEmptyDatabase()
{
    QVERIFY(QDir(QGetDatabaseDirPath()).removeRecursively());
    AlarmSchemeStoreBackend backend;
    QVERIFY(backend.IsOpen());
    QCOMPARE(backend.GetPath(), m_folder->File());
    QVERIFY(QFileInfo::exists(m_folder->File()));
    AlarmInfoMap map;
    QCOMPARE(backend.Load(map), 0);
    QVERIFY(map.isEmpty());
}

void SchemeStoreBackendTest::whatIsSavedIsLoadedByTheNextStart()
{
    const AlarmInfoMap map = Map(20, true);
    {
        AlarmSchemeStoreBackend backend;
        AlarmInfoMap loaded;
        QCOMPARE(backend.Load(loaded), 0);
        QCOMPARE(SaveAndWait(backend, map), 0);
    }
    QVERIFY(Stored() == map);
}

void SchemeStoreBackendTest::savingTellsHowManySchemesWereWritten()
{
    AlarmSchemeStoreBackend backend;
    QList<SchemeStoreOutcome> outcomes;
    backend.SetOutcomeHandler([&outcomes](const SchemeStoreOutcome& outcome) { outcomes.append(outcome); });
    QCOMPARE(LoadAndSave(backend, Map(7, true)), 0);
    QCOMPARE(outcomes.size(), 2);
    QVERIFY(outcomes.at(0).eOperation == Operation::Load && outcomes.at(0).IsSuccess());
    QVERIFY(outcomes.at(1).eOperation == Operation::Save && outcomes.at(1).IsSuccess());
    QCOMPARE(outcomes.at(1).iSchemes, 7);
    QVERIFY(outcomes.at(1).Text().contains(QLatin1String("7")));
    QCOMPARE(backend.LastOutcome().iSchemes, 7);
}

void SchemeStoreBackendTest::loadingTwiceGivesTheSame()
{
    AlarmSchemeStoreBackend backend;
    AlarmInfoMap first;
    QCOMPARE(backend.Load(first), 0);
    QCOMPARE(SaveAndWait(backend, Map(5, true)), 0);
    QCOMPARE(backend.Load(first), 0);
    AlarmInfoMap second;
    QCOMPARE(backend.Load(second), 0);
    QVERIFY(first == second && first == Map(5, true));
}

void SchemeStoreBackendTest::loadingEmptiesTheMap()
{
    AlarmSchemeStoreBackend backend;
    AlarmInfoMap map = Map(3, true);
    QCOMPARE(backend.Load(map), 0);
    QVERIFY(map.isEmpty());
}

void SchemeStoreBackendTest::savingBeforeAnyLoadIsRefused()
{
    AlarmSchemeStoreBackend backend;
    QCOMPARE(SaveAndWait(backend, Map(3, true)), -1);
    QVERIFY(backend.LastOutcome().eReason == Reason::NotLoaded);
    QVERIFY(Stored().isEmpty());
}

void SchemeStoreBackendTest::randomMapsSurviveSavingOverOneAnother()
{
    AlarmSchemeStoreBackend backend;
    AlarmInfoMap stored;
    QCOMPARE(backend.Load(stored), 0);
    for (quint32 seed = 1; seed <= 10; ++seed) {
        RandomSchemes random(seed);
        AlarmInfoMap map = random.Map();
        const QList<AlarmSourceKey> keys = map.keys();
        for (const AlarmSourceKey& key : keys) {
            if (RandomSchemes::NamesColumn(key))
                map.remove(key);
        }
        QVERIFY2(SaveAndWait(backend, map) == 0, qPrintable(QString::number(seed)));
        QCOMPARE(backend.Load(stored), 0);
        // Nothing is lost: keys that were left out are still there, switched off.
        for (auto entry = stored.cbegin(); entry != stored.cend(); ++entry)
            QVERIFY2(map.contains(entry.key()) || !entry->bOpen, qPrintable(QString::number(seed)));
        for (auto entry = map.cbegin(); entry != map.cend(); ++entry)
            QVERIFY2(stored.value(entry.key()).bOpen == entry->bOpen, qPrintable(QString::number(seed)));
    }
}

void SchemeStoreBackendTest::aFailedStatementKeepsTheOldSchemes_data()
{
    QTest::addColumn<QString>("failure");
    QTest::newRow("which ends alone") << QStringLiteral("abort");
    QTest::newRow("which ends the transaction") << QStringLiteral("rollback");
}

void SchemeStoreBackendTest::aFailedStatementKeepsTheOldSchemes()
{
    QFETCH(QString, failure);
    AlarmSchemeStoreBackend backend;
    QCOMPARE(LoadAndSave(backend, Map(30, true)), 0);
    RawDatabase raw(m_folder->File());
    QCOMPARE(raw.Run(QStringLiteral("create trigger one before insert on AlarmLinkDoorInfo when "
                                    "new.AlarmLinkDoorID = 17 begin select raise(%1, 'not this door'); end")
                         .arg(failure)),
             0);
    const QStringList before = raw.Content();
    QCOMPARE(SaveAndWait(backend, Map(40, false)), -1);
    QCOMPARE(raw.Content(), before);
    const SchemeStoreOutcome& outcome = backend.LastOutcome();
    QVERIFY(outcome.eOperation == Operation::Save && outcome.eReason == Reason::Other);
    QCOMPARE(outcome.strTechnical, QStringLiteral("not this door"));
    QCOMPARE(outcome.iSchemes, 0);
    QVERIFY(Stored() == Map(30, true));
}

void SchemeStoreBackendTest::aFullDiskKeepsTheOldSchemes()
{
    // A full disk at every possible place: the file may grow by a few pages more each time. SQLite then ends
    // the transaction by itself, and every later statement would be committed alone.
    {
        AlarmSchemeStoreBackend backend;
        QCOMPARE(LoadAndSave(backend, Map(10, true)), 0);
    }
    RawDatabase raw(m_folder->File());
    const QStringList before = raw.Content();
    const int pages = raw.Value(QStringLiteral("PRAGMA page_count")).toInt();
    for (int more = 0; more < 12; ++more) {
        const EveryConnection limited(QStringLiteral("PRAGMA max_page_count = %1").arg(pages + more));
        AlarmSchemeStoreBackend backend;
        AlarmInfoMap map;
        QCOMPARE(backend.Load(map), 0);
        QCOMPARE(SaveAndWait(backend, Map(400, false)), -1);
        QVERIFY(backend.LastOutcome().eReason == Reason::DiskFull);
        QCOMPARE(raw.Content(), before);
    }
    QVERIFY(Stored() == Map(10, true));
}

void SchemeStoreBackendTest::aWriteProtectedConnectionKeepsTheOldSchemes()
{
    {
        AlarmSchemeStoreBackend backend;
        QCOMPARE(LoadAndSave(backend, Map(3, true)), 0);
    }
    const QByteArray before = m_folder->Bytes();
    auto readOnly = std::make_unique<EveryConnection>(QStringLiteral("PRAGMA query_only = ON"));
    AlarmSchemeStoreBackend backend;
    AlarmInfoMap map;
    QCOMPARE(backend.Load(map), 0);
    QVERIFY(map == Map(3, true));
    QCOMPARE(SaveAndWait(backend, Map(4, false)), -1);
    QVERIFY(backend.LastOutcome().eReason == Reason::ReadOnly);
    QCOMPARE(m_folder->Bytes(), before);
    // When the protection is taken away, the next save is not refused for what was.
    readOnly.reset();
    QCOMPARE(SaveAndWait(backend, Map(4, false)), 0);
    QVERIFY(Stored() == Map(4, false));
}

void SchemeStoreBackendTest::aKeyThatCannotBeStoredKeepsTheOldSchemes()
{
    AlarmSchemeStoreBackend backend;
    AlarmInfoMap map;
    QCOMPARE(backend.Load(map), 0);
    QCOMPARE(SaveAndWait(backend, Map(3, true)), 0);
    RawDatabase raw(m_folder->File());
    const QStringList before = raw.Content();
    map = Map(5, false);
    map.insert(Key("x\",1; delete from AlarmUniqueID; --"), AlarmInfo());
    QCOMPARE(SaveAndWait(backend, map), -1);
    QVERIFY(backend.LastOutcome().eReason == Reason::BadText);
    QCOMPARE(raw.Content(), before);
}

void SchemeStoreBackendTest::savingSucceedsOnceTheTroubleIsGone()
{
    AlarmSchemeStoreBackend backend;
    AlarmInfoMap map;
    QCOMPARE(backend.Load(map), 0);
    RawDatabase raw(m_folder->File());
    QCOMPARE(raw.Run(QStringLiteral("create trigger one before insert on AlarmUniqueID begin "
                                    "select raise(abort, 'no'); end")),
             0);
    QCOMPARE(SaveAndWait(backend, Map(4, true)), -1);
    QCOMPARE(raw.Run(QStringLiteral("drop trigger one")), 0);
    QCOMPARE(SaveAndWait(backend, Map(4, true)), 0);
    QVERIFY(Stored() == Map(4, true));
}

void SchemeStoreBackendTest::aSaveStopsAtTheFirstFailure()
{
    AlarmSchemeStoreBackend backend;
    AlarmInfoMap map;
    QCOMPARE(backend.Load(map), 0);
    RawDatabase raw(m_folder->File());
    QCOMPARE(raw.Run(QStringLiteral("create trigger one before insert on AlarmUniqueID begin "
                                    "select raise(abort, 'no'); end")),
             0);
    m_log->Clear();
    QCOMPARE(SaveAndWait(backend, Map(300, true)), -1);
    // One scheme has six parts, each of which makes sure of the key.
    QVERIFY(m_log->Entries().size() <= 6);
}

void SchemeStoreBackendTest::aPartialLoadMakesSavingRefuse()
{
    {
        AlarmSchemeStoreBackend backend;
        QCOMPARE(LoadAndSave(backend, Map(3, true)), 0);
    }
    RawDatabase raw(m_folder->File());
    QCOMPARE(
        raw.Run(QStringLiteral("insert into AlarmUniqueID(strEventSource, AlarmType) values('a\"b', 1)")), 0);
    const QStringList before = raw.Content();
    AlarmSchemeStoreBackend backend;
    AlarmInfoMap map;
    QCOMPARE(backend.Load(map), -1);
    QCOMPARE(map.size(), 4);
    const SchemeStoreOutcome load = backend.LastOutcome();
    QVERIFY(load.eOperation == Operation::Load && load.eReason == Reason::BadText);
    QCOMPARE(SaveAndWait(backend, Map(1, true)), -1);
    QVERIFY(backend.LastOutcome().eOperation == Operation::Save);
    QVERIFY(backend.LastOutcome().eReason == Reason::LoadFailed);
    QVERIFY(backend.LastOutcome().Text().contains(load.strWhat));
    QCOMPARE(raw.Content(), before);
}

void SchemeStoreBackendTest::aSoundLoadAllowsSavingAgain()
{
    AlarmSchemeStoreBackend backend;
    RawDatabase raw(m_folder->File());
    QCOMPARE(raw.Run(QStringLiteral("alter table AlarmLinkDoorInfo rename to Elsewhere")), 0);
    QCOMPARE(raw.Run(QStringLiteral("insert into AlarmUniqueID(strEventSource, AlarmType) values('a', 1)")),
             0);
    AlarmInfoMap map;
    QCOMPARE(backend.Load(map), -1);
    QCOMPARE(SaveAndWait(backend, map), -1);
    QCOMPARE(raw.Run(QStringLiteral("alter table Elsewhere rename to AlarmLinkDoorInfo")), 0);
    QCOMPARE(backend.Load(map), 0);
    QCOMPARE(SaveAndWait(backend, map), 0);
}

void SchemeStoreBackendTest::aFileThatIsNoDatabaseIsLeftAsItIs()
{
    const QByteArray letter = QByteArray("This is a letter, not a database.\n").repeated(300);
    m_folder->Write(letter);
    {
        AlarmSchemeStoreBackend backend;
        QVERIFY(!backend.IsOpen());
        QCOMPARE(backend.GetPath(), QString());
        AlarmInfoMap map = Map(2, true);
        QCOMPARE(backend.Load(map), -1);
        QVERIFY(map.isEmpty());
        QVERIFY(backend.LastOutcome().eReason == Reason::Damaged);
        QCOMPARE(SaveAndWait(backend, Map(2, true)), -1);
        QVERIFY(backend.LastOutcome().eReason == Reason::LoadFailed);
    }
    QCOMPARE(m_folder->Bytes(), letter);
}

void SchemeStoreBackendTest::aTruncatedFileIsLeftAsItIs_data()
{
    QTest::addColumn<int>("missing");
    QTest::newRow("one byte") << 1;
    QTest::newRow("half a page") << 2048;
    QTest::newRow("a page") << 4096;
    QTest::newRow("most of it") << 40000;
}

void SchemeStoreBackendTest::aTruncatedFileIsLeftAsItIs()
{
    QFETCH(int, missing);
    {
        AlarmSchemeStoreBackend backend;
        QCOMPARE(LoadAndSave(backend, Map(100, true)), 0);
    }
    QByteArray bytes = m_folder->Bytes();
    QVERIFY(bytes.size() > missing);
    bytes.chop(missing);
    m_folder->Write(bytes);
    {
        AlarmSchemeStoreBackend backend;
        AlarmInfoMap map;
        QCOMPARE(backend.Load(map), -1);
        QVERIFY(backend.LastOutcome().eReason == Reason::Damaged);
        QCOMPARE(SaveAndWait(backend, map), -1);
    }
    QCOMPARE(m_folder->Bytes(), bytes);
}

void SchemeStoreBackendTest::aDamagedFileIsLeftAsItIsAndGivesWhatIsSound()
{
    {
        AlarmSchemeStoreBackend backend;
        QCOMPARE(LoadAndSave(backend, Map(100, true)), 0);
    }
    int page = 0;
    {
        RawDatabase raw(m_folder->File());
        page =
            raw.Value(QStringLiteral("select rootpage from sqlite_master where name = 'AlarmLinkDoorInfo'"))
                .toInt();
    }
    QByteArray bytes = m_folder->Bytes();
    QVERIFY(page > 1 && page * 4096 <= bytes.size());
    bytes.replace((page - 1) * 4096, 4096, QByteArray(4096, '\x5A'));
    m_folder->Write(bytes);
    {
        AlarmSchemeStoreBackend backend;
        AlarmInfoMap map;
        QCOMPARE(backend.Load(map), -1);
        QVERIFY(backend.LastOutcome().eReason == Reason::Damaged);
        AlarmInfoMap expected = Map(100, true);
        for (AlarmInfo& info : expected)
            info.listDoor.clear();
        QVERIFY(map == expected);
        QCOMPARE(SaveAndWait(backend, map), -1);
    }
    QCOMPARE(m_folder->Bytes(), bytes);
}

void SchemeStoreBackendTest::aDirectoryThatCannotBeMadeMakesBothFail()
{
    QVERIFY(QDir(QGetDatabaseDirPath()).removeRecursively());
    QFile inTheWay(QGetDatabaseDirPath());
    QVERIFY(inTheWay.open(QIODevice::WriteOnly));
    AlarmSchemeStoreBackend backend;
    QVERIFY(!backend.IsOpen());
    AlarmInfoMap map;
    QCOMPARE(backend.Load(map), -1);
    QVERIFY(backend.LastOutcome().eReason == Reason::NotOpen);
    QCOMPARE(SaveAndWait(backend, map), -1);
    QVERIFY(!backend.LastOutcome().Text().isEmpty());
}

void SchemeStoreBackendTest::aDirectoryThatAppearsLaterIsUsedByTheNextLoad()
{
    QVERIFY(QDir(QGetDatabaseDirPath()).removeRecursively());
    {
        QFile inTheWay(QGetDatabaseDirPath());
        QVERIFY(inTheWay.open(QIODevice::WriteOnly));
    }
    AlarmSchemeStoreBackend backend;
    AlarmInfoMap map;
    QCOMPARE(backend.Load(map), -1);
    QVERIFY(QFile::remove(QGetDatabaseDirPath()));
    QCOMPARE(backend.Load(map), 0);
    QCOMPARE(SaveAndWait(backend, Map(2, true)), 0);
    QVERIFY(Stored() == Map(2, true));
}

void SchemeStoreBackendTest::aDatabaseThatWasRemovedIsNoticed()
{
    AlarmSchemeStoreBackend backend;
    AlarmInfoMap map;
    QCOMPARE(backend.Load(map), 0);
    QCOMPARE(SaveAndWait(backend, Map(2, true)), 0);
    if (!QFile::remove(m_folder->File()))
        return; // a system that keeps open files in place
    QCOMPARE(SaveAndWait(backend, Map(3, true)), -1);
    QVERIFY(backend.LastOutcome().eReason == Reason::Moved);
    // A load starts over with whatever lies there now.
    QCOMPARE(backend.Load(map), 0);
    QVERIFY(map.isEmpty());
    QCOMPARE(SaveAndWait(backend, Map(3, true)), 0);
    QVERIFY(Stored() == Map(3, true));
}

void SchemeStoreBackendTest::aDatabaseThatWasPutBackIsSavedTo()
{
    AlarmSchemeStoreBackend backend;
    QCOMPARE(LoadAndSave(backend, Map(2, true)), 0);
    const QString strAway = m_folder->File() + QStringLiteral(".away");
    if (!QFile::rename(m_folder->File(), strAway))
        return; // a system that keeps open files in place
    QCOMPARE(SaveAndWait(backend, Map(3, true)), -1);
    QVERIFY(backend.LastOutcome().eReason == Reason::Moved);
    // What the note says to do keeps the edits.
    QVERIFY(backend.LastOutcome().strNext.endsWith(QLatin1String("Put the file back, then save again.")));
    QVERIFY(QFile::rename(strAway, m_folder->File()));
    QCOMPARE(SaveAndWait(backend, Map(3, true)), 0);
    QVERIFY(Stored() == Map(3, true));
}

void SchemeStoreBackendTest::anOldFileWithoutTheMailColumnLoadsAndSaves()
{
    {
        AlarmSchemeStoreBackend backend;
        QCOMPARE(LoadAndSave(backend, Map(3, true)), 0);
    }
    QCOMPARE(
        RawDatabase(m_folder->File()).Run(QStringLiteral("alter table AlarmBaseInfo drop column bSendEmail")),
        0);
    AlarmSchemeStoreBackend backend;
    AlarmInfoMap map;
    QCOMPARE(backend.Load(map), 0);
    QVERIFY(map == Map(3, true));
    map.first().bSendEmail = true;
    QCOMPARE(SaveAndWait(backend, map), 0);
    QVERIFY(Stored() == map);
}

void SchemeStoreBackendTest::valuesOfOtherTypesAreNoDamage()
{
    {
        AlarmSchemeStoreBackend backend;
        QCOMPARE(LoadAndSave(backend, Map(3, true)), 0);
    }
    RawDatabase raw(m_folder->File());
    QCOMPARE(
        raw.Run(QStringLiteral("update AlarmBaseInfo set bOpen = 'yes', SplitRow = x'41', SplitCount = 1.5; "
                               "update AlarmUniqueID set AlarmType = 'x' where AlarmUniqueID = 2; "
                               "insert into AlarmSplitInfo(AlarmUniqueID, windowID) values(77, 'w')")),
        0);
    AlarmSchemeStoreBackend backend;
    AlarmInfoMap map;
    QCOMPARE(backend.Load(map), 0);
    QCOMPARE(map.size(), 3);
    QCOMPARE(SaveAndWait(backend, map), 0);
}

void SchemeStoreBackendTest::theHandlerMayBeRemovedAndMayLoadAgain()
{
    AlarmSchemeStoreBackend backend;
    int calls = 0;
    backend.SetOutcomeHandler([&](const SchemeStoreOutcome& outcome) {
        AlarmInfoMap map;
        if (++calls == 1)
            backend.Load(map);
        QVERIFY(outcome.IsSuccess() && !outcome.strWhat.isEmpty());
    });
    AlarmInfoMap map;
    QCOMPARE(backend.Load(map), 0);
    QCOMPARE(calls, 2);
    backend.SetOutcomeHandler(nullptr);
    QCOMPARE(backend.Load(map), 0);
    QCOMPARE(calls, 2);
}

QTEST_GUILESS_MAIN(SchemeStoreBackendTest)
#include "tst_scheme_store_backend.moc"
