#include "AlarmCtrl/AlarmSchemeData/AlarmSchemeStoreReader.h"
#include "tests/AlarmSchemeData/RawDatabase.h"
#include "tests/store_faults/FaultTestKit.h"
#include "tests/store_faults/FaultyDisk.h"
#include "tests/store_faults/SoakCount.h"

#include <QCoreApplication>
#include <QProcess>
#include <QtTest>

#include <sqlite3.h>

#include <memory>
#include <vector>

namespace {

constexpr int LongEnough = 600000; // milliseconds; nothing waits that long

/// Another process that works on the same file.
class Victim
{
public:
    explicit Victim(const QStringList& arguments)
    {
        m_process.setProcessChannelMode(QProcess::ForwardedErrorChannel);
        const QString program =
            QDir(QCoreApplication::applicationDirPath()).filePath(QStringLiteral("store_victim"));
        m_process.start(program, arguments);
        if (!m_process.waitForStarted(LongEnough))
            qFatal("cannot start the other process of a test");
    }

    bool IsReady()
    {
        return m_process.waitForReadyRead(LongEnough) && m_process.readLine().trimmed() == "ready";
    }
    void Kill()
    {
        m_process.kill();
        m_process.waitForFinished(LongEnough);
    }
    /// Its exit code.
    int End()
    {
        m_process.closeWriteChannel();
        m_process.waitForFinished(LongEnough);
        m_output += m_process.readAllStandardOutput();
        return m_process.exitStatus() == QProcess::NormalExit ? m_process.exitCode() : -1;
    }
    bool HasSaved() const { return m_output.contains("saved"); }

private:
    QProcess m_process;
    QByteArray m_output;
};

} // namespace

/// Several processes on one file, and processes that end in the middle of their work.
class StoreProcessesTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();

    void theFileIsOldOrNewWhereverTheProcessEnds_data();
    void theFileIsOldOrNewWhereverTheProcessEnds();
    void whatAKilledProcessHeldIsFree_data();
    void whatAKilledProcessHeldIsFree();
    void aReaderInTheProcessThatSavesTakesNoLockAway();
    void twoProcessesThatSaveAtOnceLoseNoUpdate();

private:
    std::unique_ptr<LogCatcher> m_log;
    std::unique_ptr<StoreFolder> m_folder;
    SchemeChange m_change;
};

void StoreProcessesTest::init()
{
    m_log = std::make_unique<LogCatcher>();
    m_folder = std::make_unique<StoreFolder>();
    m_change = FaultTestKit::FewSchemes();
}

void StoreProcessesTest::cleanup()
{
    m_folder.reset();
    m_log.reset();
}

void StoreProcessesTest::theFileIsOldOrNewWhereverTheProcessEnds_data()
{
    QTest::addColumn<QString>("schemes");
    QTest::addColumn<QString>("how");
    QTest::addColumn<int>("step");
    const QString few = QStringLiteral("few");
    const QString many = QStringLiteral("many");
    QTest::newRow("few schemes") << few << QStringLiteral("before") << 50;
    QTest::newRow("few schemes, a write torn") << few << QStringLiteral("halfway") << 50;
    QTest::newRow("many schemes") << many << QStringLiteral("before") << 200;
}

void StoreProcessesTest::theFileIsOldOrNewWhereverTheProcessEnds()
{
    QFETCH(QString, schemes);
    QFETCH(QString, how);
    QFETCH(int, step);
    if (schemes == QLatin1String("many"))
        m_change = FaultTestKit::ManySchemes();
    FaultTestKit::MakeFile(m_change.before);
    const DiskContent before = ReadDisk(m_folder->Root());

    // Until there is no such operation any more, those after the report of success included.
    int ended = 0;
    for (int at = 1;; at += SoakCount::Step(step)) {
        WriteDisk(m_folder->Root(), before);
        Victim victim({QStringLiteral("save"), schemes, how, QString::number(at), m_folder->Root()});
        const int code = victim.End();
        QVERIFY2(code == FaultyDisk::EndedByDisk || (code == 0 && victim.HasSaved()),
                 qPrintable(QStringLiteral("operation %1: exit code %2").arg(at).arg(code)));
        const QString wrong = victim.HasSaved() ? FaultTestKit::Differs(m_change.stored)
                                                : FaultTestKit::IsTornBetween(m_change);
        QVERIFY2(wrong.isEmpty(), qPrintable(QStringLiteral("operation %1: %2").arg(at).arg(wrong)));
        AlarmInfoMap stored;
        QCOMPARE(FaultTestKit::Read(stored), QString());
        const QString untold = FaultTestKit::HistoryDiffers(stored);
        QVERIFY2(untold.isEmpty(), qPrintable(QStringLiteral("operation %1: %2").arg(at).arg(untold)));
        if (code == 0)
            break;
        ++ended;
    }
    qInfo("the process ended at %d operations of a save", ended);
    QVERIFY(ended > 1);
}

void StoreProcessesTest::whatAKilledProcessHeldIsFree_data()
{
    QTest::addColumn<QString>("statement");
    QTest::addColumn<bool>("torn");
    QTest::newRow("a writer") << QStringLiteral("begin immediate") << false;
    QTest::newRow("a writer that lets nobody read") << QStringLiteral("begin exclusive") << false;
    QTest::newRow("a reader") << QStringLiteral("begin; select * from BaseInfo") << false;
    QTest::newRow("a torn change")
        << QStringLiteral(
               "pragma cache_size = 1; begin; update AlarmBaseInfo set bOpen = 0; delete from AlarmUniqueID; "
               "delete from AlarmDefenceTimeInfo; delete from AlarmLinkDoorInfo")
        << true;
}

void StoreProcessesTest::whatAKilledProcessHeldIsFree()
{
    QFETCH(QString, statement);
    QFETCH(bool, torn);
    FaultTestKit::MakeFile(m_change.before);
    AlarmSchemeStoreBackend backend;
    AlarmInfoMap map;
    QCOMPARE(backend.Load(map), 0);
    const QByteArray before = m_folder->Bytes();
    Victim victim({QStringLiteral("hold"), statement, m_folder->Root()});
    QVERIFY(victim.IsReady());
    QCOMPARE(m_folder->Bytes() != before, torn);
    QCOMPARE(backend.Save(m_change.after), 0);
    QVERIFY(backend.IsSaving());
    victim.Kill();
    backend.WaitForSaves();
    QVERIFY2(backend.LastOutcome().IsSuccess(), qPrintable(backend.LastOutcome().strTechnical));
    QCOMPARE(FaultTestKit::Differs(m_change.stored), QString());
}

// The system forgets all locks of a process on a file when the process closes it, however often it is open.
void StoreProcessesTest::aReaderInTheProcessThatSavesTakesNoLockAway()
{
    FaultTestKit::MakeFile(m_change.before);
    const QString file = QGetAbsolutePath(QStringLiteral("AlarmScheme.db"), QGetDatabaseDirPath());
    RawDatabase saving(file);
    QCOMPARE(saving.Run(QStringLiteral("begin immediate; update AlarmBaseInfo set bOpen = 0")), SQLITE_OK);
    AlarmInfoMap map;
    QVERIFY(AlarmSchemeStoreReader(file).Read(map).IsSuccess());
    QCOMPARE(map.size(), m_change.before.size());
    Victim victim({QStringLiteral("hold"), QStringLiteral("begin immediate"), m_folder->Root()});
    QCOMPARE(victim.End(), 1);
    QCOMPARE(saving.Run(QStringLiteral("commit")), SQLITE_OK);
}

void StoreProcessesTest::twoProcessesThatSaveAtOnceLoseNoUpdate()
{
    const int rounds = SoakCount::Of(1000);
    FaultTestKit::MakeFile(m_change.before);
    {
        std::vector<std::unique_ptr<Victim>> clients;
        for (int which : {0, 1}) {
            clients.push_back(
                std::make_unique<Victim>(QStringList{QStringLiteral("client"), QString::number(which),
                                                     QString::number(rounds), m_folder->Root()}));
        }
        for (const auto& client : clients)
            QCOMPARE(client->End(), 0);
    }
    AlarmInfoMap map;
    QCOMPARE(FaultTestKit::Read(map), QString());
    QCOMPARE(FaultTestKit::LostRound(map, 2, rounds), QString());
    QCOMPARE(map.size(), m_change.before.size() + 2 * rounds);
    qInfo("two processes saved at once, %d rounds each", rounds);
}

QTEST_GUILESS_MAIN(StoreProcessesTest)
#include "tst_store_processes.moc"
