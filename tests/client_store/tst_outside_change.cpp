#include "client/store/AlarmSchemeStoreBackend.h"
#include "client/store/StoredSchemes.h"
#include "tests/AlarmSchemeData/StoreFolder.h"
#include "tests/client_store/OtherProgram.h"
#include "tests/client_store/StoreClient.h"

#include <QSignalSpy>
#include <QtTest>

#include <memory>

namespace {

constexpr std::chrono::milliseconds NoWait{0};
constexpr std::chrono::milliseconds TooLong{60000};
const SaveOrigin Somebody{QStringLiteral("somebody"), SchemeHistoryKind::Import, QString()};
using Reason = SchemeStoreOutcome::Reason;

AlarmInfoMap Doors(int iDoors)
{
    AlarmInfoMap map;
    for (int door = 1; door <= iDoors; ++door)
        map[AlarmSourceKey{EventSource::Door(1, door), 3}].bOpen = true;
    return map;
}

/// Another program makes the file hold exactly so many schemes.
bool Import(const QString& strFile, int iDoors)
{
    SaveProgress progress;
    return StoredSchemes(NoWait, strFile).Replace(Doors(iDoors), std::nullopt, Somebody, progress).eReason ==
           Reason::None;
}

} // namespace

/// That another program has changed the schemes is noticed without a save or a load, and told once.
class OutsideChangeTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();

    void nothingIsFoundWhileNothingHappens();
    void ownSavesAreNoChange();
    void eachChangeIsFoundOnce();
    void aChangeThatIsTakenBackAtOnceIsNone();
    void aWriteThatChangesNothingIsNone();
    void beforeALoadNothingIsFound();
    void whatASaveAskedAboutIsNotFoundAgain();
    void aSaveThatFailedHidesNoChange();
    void aStepTakenBackIsNoForeignChange();
    void aLockedFileIsLookedAtLater();
    void aFileThatWasReplacedIsFoundOnce();
    void theClientIsToldWithinSeconds();

private:
    bool Load() { return m_stored->Load(m_map).eReason == Reason::None; }
    SaveResult Save(const AlarmInfoMap& map)
    {
        SaveProgress progress;
        return m_stored->Save(map, std::nullopt, Somebody, progress);
    }

    std::unique_ptr<LogCatcher> m_log;
    std::unique_ptr<StoreFolder> m_folder;
    std::unique_ptr<StoredSchemes> m_stored;
    AlarmInfoMap m_map;
};

void OutsideChangeTest::init()
{
    m_log = std::make_unique<LogCatcher>();
    m_folder = std::make_unique<StoreFolder>();
    QVERIFY(Import(m_folder->File(), 3));
    m_stored = std::make_unique<StoredSchemes>(NoWait);
    QVERIFY(Load());
    QCOMPARE(m_map.size(), 3);
}

void OutsideChangeTest::cleanup()
{
    m_stored.reset();
    m_folder.reset();
    m_log.reset();
}

void OutsideChangeTest::nothingIsFoundWhileNothingHappens()
{
    QVERIFY(!m_stored->FindOutsideChange());
    m_stored->CatchUpHistory();
    QVERIFY(!m_stored->FindOutsideChange());
}

void OutsideChangeTest::ownSavesAreNoChange()
{
    for (int doors = 4; doors < 7; ++doors) {
        QVERIFY(Save(Doors(doors)).eReason == Reason::None);
        QVERIFY(!m_stored->FindOutsideChange());
    }
}

void OutsideChangeTest::eachChangeIsFoundOnce()
{
    for (int doors = 4; doors < 7; ++doors) {
        QVERIFY(Import(m_folder->File(), doors));
        QVERIFY(m_stored->FindOutsideChange());
        QVERIFY(!m_stored->FindOutsideChange());
    }
    QVERIFY(Load());
    QVERIFY(!m_stored->FindOutsideChange());
    QVERIFY(Import(m_folder->File(), 1));
    QVERIFY(m_stored->FindOutsideChange());
}

void OutsideChangeTest::aChangeThatIsTakenBackAtOnceIsNone()
{
    QVERIFY(Import(m_folder->File(), 4));
    QVERIFY(Import(m_folder->File(), 3));
    QVERIFY(!m_stored->FindOutsideChange());
    QVERIFY(Save(Doors(5)).eReason == Reason::None); // without a question
}

void OutsideChangeTest::aWriteThatChangesNothingIsNone()
{
    StoreClient other;
    QCOMPARE(other.Save(), 0);
    QVERIFY(!m_stored->FindOutsideChange());
    QVERIFY(!m_stored->FindOutsideChange());
}

void OutsideChangeTest::beforeALoadNothingIsFound()
{
    m_stored = std::make_unique<StoredSchemes>(NoWait);
    QVERIFY(Import(m_folder->File(), 4));
    QVERIFY(!m_stored->FindOutsideChange());
}

void OutsideChangeTest::whatASaveAskedAboutIsNotFoundAgain()
{
    QVERIFY(Import(m_folder->File(), 4));
    AlarmInfoMap own = m_map;
    own.begin()->bOpen = false;
    QVERIFY(Save(own).eReason == Reason::Conflict);
    QVERIFY(!m_stored->FindOutsideChange());
    QVERIFY(Import(m_folder->File(), 6));
    QVERIFY(m_stored->FindOutsideChange());
}

void OutsideChangeTest::aSaveThatFailedHidesNoChange()
{
    AlarmInfoMap map = m_map;
    map.insert({QStringLiteral("a\"b"), 1}, AlarmInfo());
    QVERIFY(Save(map).eReason == Reason::BadText);
    QVERIFY(!m_stored->FindOutsideChange());
    QVERIFY(Import(m_folder->File(), 4));
    QVERIFY(m_stored->FindOutsideChange());
    QVERIFY(!m_stored->FindOutsideChange());
}

void OutsideChangeTest::aStepTakenBackIsNoForeignChange()
{
    QVERIFY(Save(Doors(5)).eReason == Reason::None);
    qint64 step = 0;
    {
        RawDatabase history(SchemeHistoryFile::PathBeside(m_folder->File()));
        const auto entries = SchemeHistoryFile(history.Handle(), SchemeHistoryFile::Place::Main).Entries(1);
        QVERIFY(entries && entries->size() == 1);
        step = entries->constFirst().iId;
    }
    SaveProgress progress;
    QVERIFY(m_stored->Revert(step, Somebody, progress).eReason == Reason::None);
    QVERIFY(!m_stored->FindOutsideChange());
    QVERIFY(Load());
    QVERIFY(m_map == Doors(3));
    QVERIFY(!m_stored->FindOutsideChange());
}

void OutsideChangeTest::aLockedFileIsLookedAtLater()
{
    QVERIFY(Import(m_folder->File(), 4));
    {
        OtherProgram other(m_folder->File(), QStringLiteral("begin exclusive"), TooLong);
        QVERIFY(other.Holds());
        QVERIFY(!m_stored->FindOutsideChange());
    }
    QVERIFY(m_stored->FindOutsideChange());
}

void OutsideChangeTest::aFileThatWasReplacedIsFoundOnce()
{
#ifdef Q_OS_UNIX // elsewhere a file that is open cannot be replaced
    const QString aside = m_folder->File() + QStringLiteral(".aside");
    QVERIFY(QFile::rename(m_folder->File(), aside));
    QVERIFY(!m_stored->FindOutsideChange()); // what takes its place is still to come
    QVERIFY(QFile::copy(aside, m_folder->File()));
    QVERIFY(m_stored->FindOutsideChange());
    QVERIFY(!m_stored->FindOutsideChange());
    QVERIFY(Load());
    QVERIFY(!m_stored->FindOutsideChange());
#endif
}

void OutsideChangeTest::theClientIsToldWithinSeconds()
{
    StoreClient client;
    QSignalSpy told(&client.store, &AlarmSchemeStoreBackend::SignalChangedOutside);
    client.map = Doors(4);
    QCOMPARE(client.Save(), 0);
    QVERIFY(Import(m_folder->File(), 5));
    QTRY_COMPARE_WITH_TIMEOUT(told.count(), 1, 20000);
    QVERIFY(client.map == Doors(4));
    client.Load();
    QVERIFY(client.map == Doors(5));
}

QTEST_GUILESS_MAIN(OutsideChangeTest)
#include "tst_outside_change.moc"
