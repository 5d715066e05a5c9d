#include "tests/store_faults/FaultTestKit.h"
#include "tests/store_faults/FaultyDisk.h"
#include "tests/store_faults/SoakCount.h"

#include "tests/AlarmSchemeData/RawDatabase.h"

#include <QtTest>

#include <sqlite3.h>

#include <memory>

using Kind = FaultyDisk::Kind;
using Reason = SchemeStoreOutcome::Reason;

namespace {

/// Part of the operations that the suite looks at: quick enough to take more than it has to.
constexpr int EveryTenth = 10;

QString At(int iOperation)
{
    return QStringLiteral("operation %1: ").arg(iOperation);
}

} // namespace

/// What remains of the schemes when the disk does not do what it is told.
class StoreIoErrorsTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();

    void theFileIsOldOrNewWhicheverOperationOfASaveFails_data();
    void theFileIsOldOrNewWhicheverOperationOfASaveFails();
    void theFileIsOldWhenTheDiskIsFullFromAnyWriteOn_data();
    void theFileIsOldWhenTheDiskIsFullFromAnyWriteOn();
    void aFullDiskStillLetsTheSchemesBeLoaded();
    void aLoadThatFailsHalfwayMakesSavingRefuse();
    void theFileOpensWhicheverOperationOfItsMakingFails();
    void aWriteProtectedFileIsLoadedAndNotSaved();
    void aWriteProtectedFolderIsLoadedAndNotSaved_data();
    void aWriteProtectedFolderIsLoadedAndNotSaved();

private:
    /// A client with the old schemes on its page, and the file as it is then.
    void Start(AlarmSchemeStoreBackend& backend, bool bFewPages)
    {
        AlarmInfoMap map;
        QVERIFY(backend.Load(map) == 0 && map == m_change.before);
        if (bFewPages)
            m_connections->KeepFewPages();
    }
    /// How many operations a save takes.
    int OperationsOfASave(bool bFewPages);

    std::unique_ptr<LogCatcher> m_log;
    std::unique_ptr<StoreFolder> m_folder;
    std::unique_ptr<FaultyDisk> m_disk;
    std::unique_ptr<WatchedConnections> m_connections;
    SchemeChange m_change;
    DiskContent m_before;
};

void StoreIoErrorsTest::init()
{
    m_log = std::make_unique<LogCatcher>();
    m_folder = std::make_unique<StoreFolder>();
    m_disk = std::make_unique<FaultyDisk>(m_folder->Root());
    m_connections = std::make_unique<WatchedConnections>();
    m_change = FaultTestKit::FewSchemes();
    if (qstrcmp(QTest::currentDataTag(), "many schemes") == 0)
        m_change = FaultTestKit::ManySchemes();
    FaultTestKit::MakeFile(m_change.before);
    m_before = ReadDisk(m_folder->Root());
}

void StoreIoErrorsTest::cleanup()
{
    m_connections.reset();
    m_disk.reset();
    m_folder.reset();
    m_log.reset();
}

int StoreIoErrorsTest::OperationsOfASave(bool bFewPages)
{
    AlarmSchemeStoreBackend backend;
    Start(backend, bFewPages);
    m_disk->Reset();
    if (SaveAndWait(backend, m_change.after) != 0)
        qFatal("the save fails without a fault");
    return m_disk->Count();
}

void StoreIoErrorsTest::theFileIsOldOrNewWhicheverOperationOfASaveFails_data()
{
    QTest::addColumn<bool>("onlyOnce");
    QTest::addColumn<bool>("many");
    QTest::newRow("few schemes") << true << false;
    QTest::newRow("many schemes") << true << true;
    QTest::newRow("few schemes and a disk that is gone") << false << false;
}

void StoreIoErrorsTest::theFileIsOldOrNewWhicheverOperationOfASaveFails()
{
    QFETCH(bool, onlyOnce);
    QFETCH(bool, many);
    const int operations = OperationsOfASave(many);
    QVERIFY2(operations > 20, qPrintable(QString::number(operations)));
    int tried = 0;
    int failed = 0;
    for (int at = 1; at <= operations; ++tried, at += SoakCount::Step(many ? SoakCount::Share : EveryTenth)) {
        WriteDisk(m_folder->Root(), m_before);
        AlarmSchemeStoreBackend backend;
        Start(backend, many);
        m_disk->Reset(onlyOnce ? FaultyDisk::FailOnce(at) : FaultyDisk::FailFrom(at));
        const bool saved = SaveAndWait(backend, m_change.after) == 0;
        m_disk->Reset();
        failed += saved ? 0 : 1;

        const QString wrong =
            saved ? FaultTestKit::Differs(m_change.stored) : FaultTestKit::IsTornBetween(m_change);
        QVERIFY2(wrong.isEmpty(), qPrintable(At(at) + wrong));

        // The same client goes on as soon as the disk does.
        QVERIFY2(SaveAndWait(backend, m_change.after) == 0,
                 qPrintable(At(at) + backend.LastOutcome().strTechnical));
        const QString again = FaultTestKit::Differs(m_change.stored);
        QVERIFY2(again.isEmpty(), qPrintable(At(at) + again));
        // A step that could not be told when it was made is told by now.
        if (onlyOnce)
            QVERIFY2(FaultTestKit::EndOfHistoryDiffers(m_change.stored).isEmpty(), qPrintable(At(at)));
    }
    qInfo("%d of %d operations of a save failed, %d saves with them", tried, operations, failed);
    QVERIFY(failed > 0);
}

void StoreIoErrorsTest::theFileIsOldWhenTheDiskIsFullFromAnyWriteOn_data()
{
    QTest::addColumn<bool>("many");
    QTest::newRow("few schemes") << false;
    QTest::newRow("many schemes") << true;
}

void StoreIoErrorsTest::theFileIsOldWhenTheDiskIsFullFromAnyWriteOn()
{
    QFETCH(bool, many);
    // Writes that make a file longer; what is there already may be written again on a full disk.
    QMap<QString, qint64> sizes;
    int growths = 0;
    int fullFrom = 0;
    const FaultyDisk::Rule full = [&](const FaultyDisk::Operation& operation) {
        if (operation.eKind == Kind::Truncate)
            sizes[operation.strFile] = operation.iOffset;
        if (operation.eKind != Kind::Write)
            return SQLITE_OK;
        const qint64 end = operation.iOffset + operation.data.size();
        if (end <= sizes.value(operation.strFile))
            return SQLITE_OK;
        if (++growths >= fullFrom && fullFrom != 0)
            return SQLITE_FULL;
        sizes[operation.strFile] = end;
        return SQLITE_OK;
    };
    const auto save = [&](int from, bool& isSaved, Reason& eReason) {
        WriteDisk(m_folder->Root(), m_before);
        AlarmSchemeStoreBackend backend;
        Start(backend, many);
        sizes.clear();
        const DiskContent present = ReadDisk(m_folder->Root());
        for (auto file = present.cbegin(); file != present.cend(); ++file)
            sizes.insert(file.key(), file->size());
        growths = 0;
        fullFrom = from;
        m_disk->Reset(full);
        isSaved = SaveAndWait(backend, m_change.after) == 0;
        eReason = backend.LastOutcome().eReason;
        m_disk->Reset();
    };
    bool saved = false;
    Reason reason = Reason::None;
    save(0, saved, reason);
    QVERIFY(saved);
    const int writes = growths;
    QVERIFY(writes > 5);
    int tried = 0;
    for (int from = 1; from <= writes;
         ++tried, from += SoakCount::Step(many ? SoakCount::Share : EveryTenth)) {
        save(from, saved, reason);
        QVERIFY2(!saved && reason == Reason::DiskFull, qPrintable(At(from)));
        const QString fromOld = FaultTestKit::Differs(m_change.before);
        QVERIFY2(fromOld.isEmpty(), qPrintable(At(from) + fromOld));
    }
    qInfo("the disk was full from %d of %d writes on", tried, writes);
}

void StoreIoErrorsTest::aFullDiskStillLetsTheSchemesBeLoaded()
{
    m_disk->Reset([](const FaultyDisk::Operation& operation) {
        return operation.eKind == Kind::Write ? SQLITE_FULL : SQLITE_OK;
    });
    AlarmSchemeStoreBackend backend;
    AlarmInfoMap map;
    QCOMPARE(backend.Load(map), 0);
    QVERIFY(map == m_change.before);
    QCOMPARE(SaveAndWait(backend, m_change.after), -1);
    QVERIFY(backend.LastOutcome().eReason == Reason::DiskFull);
    m_disk->Reset();
    QCOMPARE(SaveAndWait(backend, m_change.after), 0);
    QCOMPARE(FaultTestKit::Differs(m_change.stored), QString());
}

void StoreIoErrorsTest::aLoadThatFailsHalfwayMakesSavingRefuse()
{
    int refused = 0;
    int operations = 0;
    for (int at = 0; at <= operations; at += at == 0 ? 1 : SoakCount::Step(2)) {
        WriteDisk(m_folder->Root(), m_before);
        AlarmSchemeStoreBackend backend;
        // Somebody else has written meanwhile, so that nothing is left of what opening has read.
        QCOMPARE(RawDatabase(m_folder->File()).Run(QStringLiteral("update BaseInfo set ModifyTime = 'now'")),
                 SQLITE_OK);
        const QByteArray before = m_folder->Bytes();
        m_disk->Reset(at == 0 ? FaultyDisk::Rule() : FaultyDisk::FailOnce(at));
        AlarmInfoMap map;
        const bool loaded = backend.Load(map) == 0;
        if (at == 0)
            operations = m_disk->Count();
        m_disk->Reset();
        if (loaded) {
            QVERIFY2(map == m_change.before, qPrintable(At(at)));
            continue;
        }
        ++refused;
        QVERIFY2(SaveAndWait(backend, map) == -1, qPrintable(At(at)));
        QVERIFY2(backend.LastOutcome().eReason == Reason::LoadFailed, qPrintable(At(at)));
        QVERIFY2(m_folder->Bytes() == before, qPrintable(At(at)));
        // A load that succeeds makes up for it.
        QVERIFY2(backend.Load(map) == 0 && map == m_change.before, qPrintable(At(at)));
        QVERIFY2(SaveAndWait(backend, m_change.after) == 0, qPrintable(At(at)));
    }
    qInfo("%d operations of a load, %d of the loads that failed", operations, refused);
    QVERIFY2(operations > 10 && refused > 0,
             qPrintable(QStringLiteral("%1 of %2").arg(refused).arg(operations)));
}

void StoreIoErrorsTest::theFileOpensWhicheverOperationOfItsMakingFails()
{
    int operations = 0;
    for (int at = 0; at <= operations; at += at == 0 ? 1 : SoakCount::Step(EveryTenth)) {
        WriteDisk(m_folder->Root(), {});
        m_disk->Reset(at == 0 ? FaultyDisk::Rule() : FaultyDisk::FailOnce(at));
        {
            AlarmSchemeStoreBackend backend;
            AlarmInfoMap map;
            backend.Load(map);
            QVERIFY(map.isEmpty());
        }
        if (at == 0)
            operations = m_disk->Count();
        m_disk->Reset();
        const QString differs = FaultTestKit::Differs({});
        QVERIFY2(differs.isEmpty(), qPrintable(At(at) + differs));
        FaultTestKit::MakeFile(m_change.before);
        QVERIFY2(FaultTestKit::Differs(m_change.before).isEmpty(), qPrintable(At(at)));
    }
    QVERIFY(operations > 20);
}

void StoreIoErrorsTest::aWriteProtectedFileIsLoadedAndNotSaved()
{
    m_disk->SetReadOnly(true, false);
    AlarmSchemeStoreBackend backend;
    AlarmInfoMap map;
    QCOMPARE(backend.Load(map), 0);
    QVERIFY(map == m_change.before);
    QCOMPARE(SaveAndWait(backend, m_change.after), -1);
    QVERIFY(backend.LastOutcome().eReason == Reason::ReadOnly);
    QCOMPARE(m_folder->Bytes(), m_before.value(QStringLiteral("Database/AlarmScheme.db")));
    // The next save finds out that the protection was taken away.
    m_disk->SetReadOnly(false, false);
    QCOMPARE(SaveAndWait(backend, m_change.after), 0);
    QCOMPARE(FaultTestKit::Differs(m_change.stored), QString());
}

void StoreIoErrorsTest::aWriteProtectedFolderIsLoadedAndNotSaved_data()
{
    QTest::addColumn<bool>("early");
    QTest::newRow("from the start") << true;
    QTest::newRow("after the load") << false;
}

void StoreIoErrorsTest::aWriteProtectedFolderIsLoadedAndNotSaved()
{
    QFETCH(bool, early);
    // Without the journal that an earlier save may have left: it can be used again.
    QFile::remove(m_folder->File() + QStringLiteral("-journal"));
    m_disk->SetReadOnly(false, early);
    AlarmSchemeStoreBackend backend;
    AlarmInfoMap map;
    QCOMPARE(backend.Load(map), 0);
    QVERIFY(map == m_change.before);
    m_disk->SetReadOnly(false, true);
    if (!early)
        QFile::remove(m_folder->File() + QStringLiteral("-journal"));
    const QByteArray before = m_folder->Bytes();
    const bool saved = SaveAndWait(backend, m_change.after) == 0;
    if (saved) {
        // The journal was still open from the load; all is well then.
        QVERIFY(!early);
        QCOMPARE(FaultTestKit::Differs(m_change.stored), QString());
        return;
    }
    QVERIFY(backend.LastOutcome().eReason == Reason::ReadOnly);
    QCOMPARE(m_folder->Bytes(), before);
    m_disk->SetReadOnly(false, false);
    QCOMPARE(SaveAndWait(backend, m_change.after), 0);
    QCOMPARE(FaultTestKit::Differs(m_change.stored), QString());
}

QTEST_GUILESS_MAIN(StoreIoErrorsTest)
#include "tst_store_io_errors.moc"
