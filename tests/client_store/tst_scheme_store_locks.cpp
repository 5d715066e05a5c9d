#include "client/store/AlarmSchemeStoreBackend.h"

#include "tests/AlarmSchemeData/RawDatabase.h"
#include "tests/AlarmSchemeData/StoreFolder.h"
#include "tests/client_store/OtherProgram.h"
#include "tests/client_store/SaveAndWait.h"

#include <QElapsedTimer>
#include <QtTest>

using Reason = SchemeStoreOutcome::Reason;

namespace {

AlarmInfoMap Map(int iCount, bool bOpen)
{
    AlarmInfoMap map;
    for (int door = 0; door < iCount; ++door)
        map[AlarmSourceKey{EventSource::Door(1, door), 3}].bOpen = bOpen;
    return map;
}

constexpr std::chrono::milliseconds Briefly{700};
constexpr std::chrono::milliseconds TooLong{60000};
/// The time-out and some room for a busy machine.
constexpr qint64 AboutFiveSeconds = AlarmSchemeStoreBackend::BusyTimeOut + 2500;

const QString ForWriting = QStringLiteral("begin immediate");
const QString Alone = QStringLiteral("begin exclusive");
const QString ForReading = QStringLiteral("begin; select * from BaseInfo");

} // namespace

/// A second process that holds the database.
class SchemeStoreLocksTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();

    void aSaveWaitsForAnotherProgramThatLetsGo_data();
    void aSaveWaitsForAnotherProgramThatLetsGo();
    void aSaveGivesUpAfterAboutFiveSecondsAndKeepsTheOldSchemes_data();
    void aSaveGivesUpAfterAboutFiveSecondsAndKeepsTheOldSchemes();
    void openingWaitsForAnotherProgramThatLetsGo_data();
    void openingWaitsForAnotherProgramThatLetsGo();
    void openingGivesUpAfterAboutFiveSecondsAndTheNextLoadSucceeds();
    void makingTheBackendDoesNotWait();
    void aReaderDoesNotDisturbALoad();
    void aReaderWhoStaysLetsALoadSucceedInTheEnd();

private:
    std::unique_ptr<LogCatcher> m_log;
    std::unique_ptr<StoreFolder> m_folder;
};

void SchemeStoreLocksTest::init()
{
    m_log = std::make_unique<LogCatcher>();
    m_folder = std::make_unique<StoreFolder>();
    AlarmSchemeStoreBackend backend;
    AlarmInfoMap map;
    QCOMPARE(backend.Load(map), 0);
    QCOMPARE(SaveAndWait(backend, Map(5, true)), 0);
}

void SchemeStoreLocksTest::cleanup()
{
    m_folder.reset();
    m_log.reset();
}

void SchemeStoreLocksTest::aSaveWaitsForAnotherProgramThatLetsGo_data()
{
    QTest::addColumn<QString>("lock");
    QTest::newRow("a writer") << ForWriting;
    QTest::newRow("a writer that lets nobody read") << Alone;
    QTest::newRow("a reader, which only holds up the end") << ForReading;
}

void SchemeStoreLocksTest::aSaveWaitsForAnotherProgramThatLetsGo()
{
    QFETCH(QString, lock);
    AlarmSchemeStoreBackend backend;
    AlarmInfoMap map;
    QCOMPARE(backend.Load(map), 0);
    QElapsedTimer timer;
    timer.start();
    const OtherProgram other(m_folder->File(), lock, Briefly);
    QVERIFY(other.Holds());
    QCOMPARE(SaveAndWait(backend, Map(9, false)), 0);
    QVERIFY(timer.elapsed() >= Briefly.count() && timer.elapsed() < AlarmSchemeStoreBackend::BusyTimeOut);
    QCOMPARE(backend.Load(map), 0);
    QVERIFY(map == Map(9, false));
}

void SchemeStoreLocksTest::aSaveGivesUpAfterAboutFiveSecondsAndKeepsTheOldSchemes_data()
{
    QTest::addColumn<QString>("lock");
    QTest::newRow("a writer") << ForWriting;
    QTest::newRow("a reader, which only holds up the end") << ForReading;
}

void SchemeStoreLocksTest::aSaveGivesUpAfterAboutFiveSecondsAndKeepsTheOldSchemes()
{
    QFETCH(QString, lock);
    AlarmSchemeStoreBackend backend;
    AlarmInfoMap map;
    QCOMPARE(backend.Load(map), 0);
    OtherProgram other(m_folder->File(), lock, TooLong);
    QVERIFY(other.Holds());
    QElapsedTimer timer;
    timer.start();
    QCOMPARE(SaveAndWait(backend, Map(9, false)), -1);
    QVERIFY(timer.elapsed() >= AlarmSchemeStoreBackend::BusyTimeOut - 100);
    QVERIFY2(timer.elapsed() < AboutFiveSeconds, qPrintable(QString::number(timer.elapsed())));
    QVERIFY(backend.LastOutcome().eReason == Reason::Locked);
    other.Release();
    QCOMPARE(backend.Load(map), 0);
    QVERIFY(map == Map(5, true));
    QCOMPARE(SaveAndWait(backend, Map(9, false)), 0);
}

void SchemeStoreLocksTest::openingWaitsForAnotherProgramThatLetsGo_data()
{
    aSaveWaitsForAnotherProgramThatLetsGo_data();
}

void SchemeStoreLocksTest::openingWaitsForAnotherProgramThatLetsGo()
{
    QFETCH(QString, lock);
    const OtherProgram other(m_folder->File(), lock, Briefly);
    QVERIFY(other.Holds());
    AlarmSchemeStoreBackend backend;
    AlarmInfoMap map;
    QCOMPARE(backend.Load(map), 0);
    QVERIFY(map == Map(5, true));
    QCOMPARE(SaveAndWait(backend, Map(6, true)), 0);
}

void SchemeStoreLocksTest::openingGivesUpAfterAboutFiveSecondsAndTheNextLoadSucceeds()
{
    OtherProgram other(m_folder->File(), Alone, TooLong);
    QVERIFY(other.Holds());
    AlarmSchemeStoreBackend backend;
    AlarmInfoMap map;
    QElapsedTimer timer;
    timer.start();
    QCOMPARE(backend.Load(map), -1);
    QVERIFY(timer.elapsed() >= AlarmSchemeStoreBackend::BusyTimeOut - 100);
    QVERIFY2(timer.elapsed() < AboutFiveSeconds, qPrintable(QString::number(timer.elapsed())));
    QVERIFY(backend.LastOutcome().eReason == Reason::Locked);
    QVERIFY(map.isEmpty());
    timer.restart();
    QCOMPARE(SaveAndWait(backend, Map(1, true)), -1);
    QVERIFY(backend.LastOutcome().eReason == Reason::LoadFailed);
    QVERIFY(timer.elapsed() < AlarmSchemeStoreBackend::BusyTimeOut / 2); // refused without trying
    other.Release();
    QCOMPARE(backend.Load(map), 0);
    QVERIFY(map == Map(5, true));
    QCOMPARE(SaveAndWait(backend, Map(6, true)), 0);
}

void SchemeStoreLocksTest::makingTheBackendDoesNotWait()
{
    const OtherProgram other(m_folder->File(), Alone, TooLong);
    QVERIFY(other.Holds());
    QElapsedTimer timer;
    timer.start();
    const AlarmSchemeStoreBackend backend;
    QVERIFY(timer.elapsed() < AlarmSchemeStoreBackend::BusyTimeOut / 2);
    QVERIFY(!backend.IsOpen());
}

void SchemeStoreLocksTest::aReaderDoesNotDisturbALoad()
{
    AlarmSchemeStoreBackend backend;
    const OtherProgram other(m_folder->File(), ForReading, TooLong);
    QVERIFY(other.Holds());
    QElapsedTimer timer;
    timer.start();
    AlarmInfoMap map;
    QCOMPARE(backend.Load(map), 0);
    QVERIFY(timer.elapsed() < AlarmSchemeStoreBackend::BusyTimeOut / 2);
    QVERIFY(map == Map(5, true));
}

void SchemeStoreLocksTest::aReaderWhoStaysLetsALoadSucceedInTheEnd()
{
    OtherProgram other(m_folder->File(), ForReading, TooLong);
    QVERIFY(other.Holds());
    AlarmSchemeStoreBackend backend;
    // What could not be committed while opening does not keep others from writing.
    RawDatabase third(m_folder->File());
    QCOMPARE(third.Run(QStringLiteral("begin immediate; rollback")), 0);
    QElapsedTimer timer;
    timer.start();
    AlarmInfoMap map;
    QCOMPARE(backend.Load(map), 0);
    QVERIFY2(timer.elapsed() < AboutFiveSeconds, qPrintable(QString::number(timer.elapsed())));
    QVERIFY(map == Map(5, true));
    QCOMPARE(third.Run(QStringLiteral("begin immediate; rollback")), 0);
    other.Release();
    QCOMPARE(SaveAndWait(backend, Map(6, true)), 0);
    QCOMPARE(backend.Load(map), 0);
    QVERIFY(map == Map(6, true));
}

QTEST_GUILESS_MAIN(SchemeStoreLocksTest)
#include "tst_scheme_store_locks.moc"
