#include "tests/store_faults/FaultTestKit.h"
#include "tests/store_faults/FaultyDisk.h"
#include "tests/store_faults/PowerCut.h"
#include "tests/store_faults/SoakCount.h"

#include <QSet>
#include <QtTest>

#include <functional>
#include <memory>

namespace {

/// Is given what the disk may hold after so many changes; says what is wrong with it.
using Check = std::function<QString(int)>;

} // namespace

/// The power fails: of what was not forced to the medium anything may be missing.
class StorePowerLossTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();

    void theCutsAreAsTornAsTheyAreSaidToBe();
    void everyMomentOfASaveLeavesTheOldOrTheNewSchemes_data();
    void everyMomentOfASaveLeavesTheOldOrTheNewSchemes();
    void everyMomentOfTheMakingLeavesAFileThatOpens();
    void everyMomentOfUndoingATornSaveLeavesTheOldSchemes();

private:
    /// Puts everything onto the disk that may be there after each change of the record, and checks it.
    void CutEverywhere(const DiskContent& before, const QList<FaultyDisk::Operation>& changes, int iStep,
                       const Check& check);

    std::unique_ptr<LogCatcher> m_log;
    std::unique_ptr<StoreFolder> m_folder;
    std::unique_ptr<FaultyDisk> m_disk;
    std::unique_ptr<WatchedConnections> m_connections;
};

void StorePowerLossTest::init()
{
    m_log = std::make_unique<LogCatcher>();
    m_folder = std::make_unique<StoreFolder>();
    m_disk = std::make_unique<FaultyDisk>(m_folder->Root());
    m_connections = std::make_unique<WatchedConnections>();
}

void StorePowerLossTest::cleanup()
{
    m_connections.reset();
    m_disk.reset();
    m_folder.reset();
    m_log.reset();
}

void StorePowerLossTest::CutEverywhere(const DiskContent& before, const QList<FaultyDisk::Operation>& changes,
                                       int iStep, const Check& check)
{
    const int tornCuts = SoakCount::IsWhole() ? 12 : 1;
    PowerCut cut(before);
    int cuts = 0;
    for (int done = 0; done <= changes.size(); ++done) {
        if (done > 0)
            cut.Take(changes.at(done - 1));
        if (done % iStep != 0 && done != changes.size())
            continue;
        QRandomGenerator random(static_cast<quint32>(done) + 1);
        QList<DiskContent> contents{cut.Forced(), cut.All()};
        for (int torn = 0; torn < tornCuts && cut.IsAnythingPending(); ++torn)
            contents.append(cut.Torn(random));
        for (int which = 0; which < contents.size(); ++which, ++cuts) {
            WriteDisk(m_folder->Root(), contents.at(which));
            const QString wrong = check(done);
            QVERIFY2(wrong.isEmpty(), qPrintable(QStringLiteral("after %1 of %2 changes, cut %3: %4")
                                                     .arg(done)
                                                     .arg(changes.size())
                                                     .arg(which)
                                                     .arg(wrong)));
        }
    }
    qInfo("the power failed %d times during %d changes of files", cuts, static_cast<int>(changes.size()));
}

void StorePowerLossTest::theCutsAreAsTornAsTheyAreSaidToBe()
{
    const QString name = QStringLiteral("file");
    FaultyDisk::Operation write;
    write.eKind = FaultyDisk::Kind::Write;
    write.strFile = name;
    write.iOffset = 100;
    write.data = QByteArray(2 * PowerCut::Sector, 'n');
    PowerCut cut({{name, QByteArray(PowerCut::Sector, 'o')}});
    cut.Take(write);
    const QByteArray old(PowerCut::Sector, 'o');
    const QByteArray all = old.left(100) + write.data;
    QVERIFY(cut.IsAnythingPending());
    QCOMPARE(cut.Forced().value(name), old);
    QCOMPARE(cut.All().value(name), all);
    // Three sectors, each of which is there or not: what is missing before the end of the file is zero.
    QSet<QByteArray> outcomes;
    QRandomGenerator random(1);
    for (int time = 0; time < 200; ++time)
        outcomes.insert(cut.Torn(random).value(name));
    const QByteArray first = all.left(PowerCut::Sector);
    const QByteArray second = all.mid(PowerCut::Sector, PowerCut::Sector);
    const QByteArray third = all.mid(2 * PowerCut::Sector);
    const QByteArray gap(PowerCut::Sector, '\0');
    const QSet<QByteArray> expected{old,
                                    first,
                                    old + second,
                                    first + second,
                                    old + gap + third,
                                    first + gap + third,
                                    old + second + third,
                                    all};
    QCOMPARE(outcomes, expected);

    FaultyDisk::Operation sync = write;
    sync.eKind = FaultyDisk::Kind::Sync;
    cut.Take(sync);
    QVERIFY(!cut.IsAnythingPending());
    QCOMPARE(cut.Forced().value(name), all);
    // A file that was deleted may come back, unless its folder was forced as well.
    FaultyDisk::Operation remove = write;
    remove.eKind = FaultyDisk::Kind::Delete;
    cut.Take(remove);
    QVERIFY(cut.Forced().contains(name) && !cut.All().contains(name));
    remove.bSyncsFolder = true;
    cut.Take(remove);
    QVERIFY(!cut.Forced().contains(name));
}

void StorePowerLossTest::everyMomentOfASaveLeavesTheOldOrTheNewSchemes_data()
{
    QTest::addColumn<bool>("many");
    QTest::newRow("few schemes") << false;
    QTest::newRow("many schemes") << true;
}

void StorePowerLossTest::everyMomentOfASaveLeavesTheOldOrTheNewSchemes()
{
    QFETCH(bool, many);
    const SchemeChange change = many ? FaultTestKit::ManySchemes() : FaultTestKit::FewSchemes();
    FaultTestKit::MakeFile(change.before);
    DiskContent before;
    int reported = 0;
    {
        AlarmSchemeStoreBackend backend;
        AlarmInfoMap map;
        QCOMPARE(backend.Load(map), 0);
        QVERIFY(map == change.before);
        if (many)
            m_connections->KeepFewPages();
        before = ReadDisk(m_folder->Root());
        m_disk->Reset();
        QCOMPARE(SaveAndWait(backend, change.after), 0);
        reported = static_cast<int>(m_disk->Changes().size());
    }
    const QList<FaultyDisk::Operation> changes = m_disk->Changes();
    QVERIFY2(reported > 10, qPrintable(QString::number(reported)));
    int found[2] = {0, 0};
    CutEverywhere(before, changes, SoakCount::Step(many ? SoakCount::Share : 4), [&](int done) {
        AlarmInfoMap map;
        QString wrong = FaultTestKit::Read(map);
        if (!wrong.isEmpty())
            return wrong;
        const bool isNew = map == change.stored;
        if (!isNew && map != change.before)
            return QStringLiteral("neither the old nor the new schemes");
        ++found[isNew ? 1 : 0];
        wrong = FaultTestKit::HistoryDiffers(map);
        if (!wrong.isEmpty())
            return wrong;
        return isNew || done < reported ? QString() : QStringLiteral("a reported success is lost");
    });
    QVERIFY(found[0] > 0 && found[1] > 0);
}

void StorePowerLossTest::everyMomentOfTheMakingLeavesAFileThatOpens()
{
    const DiskContent before = ReadDisk(m_folder->Root());
    m_disk->Reset();
    {
        AlarmSchemeStoreBackend backend;
        AlarmInfoMap map;
        QCOMPARE(backend.Load(map), 0);
    }
    CutEverywhere(before, m_disk->Changes(), SoakCount::Step(3),
                  [](int) { return FaultTestKit::Differs({}); });
}

void StorePowerLossTest::everyMomentOfUndoingATornSaveLeavesTheOldSchemes()
{
    const SchemeChange change = FaultTestKit::FewSchemes();
    FaultTestKit::MakeFile(change.before);
    DiskContent before;
    QList<FaultyDisk::Operation> changes;
    {
        AlarmSchemeStoreBackend backend;
        AlarmInfoMap map;
        QCOMPARE(backend.Load(map), 0);
        before = ReadDisk(m_folder->Root());
        m_disk->Reset();
        QCOMPARE(SaveAndWait(backend, change.after), 0);
        changes = m_disk->Changes();
    }
    // In the middle of the pages that go into the database file.
    const QString file = QStringLiteral("Database/AlarmScheme.db");
    PowerCut cut(before);
    int pages = 0;
    for (const FaultyDisk::Operation& operation : qAsConst(changes)) {
        cut.Take(operation);
        if (operation.strFile == file && operation.eKind == FaultyDisk::Kind::Write && ++pages == 4)
            break;
    }
    QCOMPARE(pages, 4);
    const DiskContent torn = cut.All();
    QVERIFY(torn.value(file) != before.value(file));
    WriteDisk(m_folder->Root(), torn);
    m_disk->Reset();
    QCOMPARE(FaultTestKit::Differs(change.before), QString());
    const QList<FaultyDisk::Operation> undoing = m_disk->Changes();
    QVERIFY(!undoing.isEmpty());
    CutEverywhere(torn, undoing, SoakCount::Step(2),
                  [&](int) { return FaultTestKit::Differs(change.before); });
}

QTEST_GUILESS_MAIN(StorePowerLossTest)
#include "tst_store_power_loss.moc"
