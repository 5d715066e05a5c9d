#include "client/store/SchemeHistoryFile.h"
#include "client/store/SchemeHistoryPacking.h"
#include "tests/AlarmSchemeData/RandomSchemes.h"
#include "tests/AlarmSchemeData/RawDatabase.h"

#include <QFileInfo>
#include <QRandomGenerator>
#include <QTemporaryDir>
#include <QtEndian>
#include <QtTest>

#include <sqlite3.h>

namespace {

AlarmSourceKey Door(int iDoor, int iType = 101)
{
    return {EventSource::Door(7, iDoor), iType};
}

SchemeHistoryEntry Entry(const QString& strWho, qint64 iSecond = 0)
{
    SchemeHistoryEntry entry;
    entry.time = QDateTime::fromSecsSinceEpoch(1'800'000'000 + iSecond, Qt::UTC);
    entry.strWho = strWho;
    return entry;
}

QString HistoryPath(const QTemporaryDir& folder)
{
    return SchemeHistoryFile::PathBeside(folder.filePath(QStringLiteral("schemes.db")));
}

/// A scheme database with its history attached, as a writing program has them.
struct Writer
{
    explicit Writer(const QTemporaryDir& folder)
        : strPath(HistoryPath(folder))
        , database(folder.filePath(QStringLiteral("schemes.db")))
        , history(database.Handle(), SchemeHistoryFile::Place::Attached)
        , attached(history.Attach(strPath))
    {
        sqlite3_extended_result_codes(database.Handle(), 1);
    }

    bool Append(const SchemeHistoryEntry& entry, const AlarmInfoMap& map)
    {
        database.Run(QStringLiteral("begin"));
        const bool appended = history.Append(entry, SchemeHistoryBetween(state, map));
        database.Run(QStringLiteral("commit"));
        if (appended)
            state = map;
        return appended;
    }

    QString strPath;
    RawDatabase database;
    SchemeHistoryFile history;
    bool attached;
    AlarmInfoMap state;
};

} // namespace

class SchemeHistoryFileTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init() { m_folder = std::make_unique<QTemporaryDir>(); }
    void cleanup() { m_folder.reset(); }

    void whatChangedIsToldAsItWas();
    void stepsAreListedTheNewestFirst();
    void additionsChangesAndRemovalsLeadFromOneMapToTheOther();
    void theStateIsWhatTheLastStepLeft();
    void theStateOfALongHistoryIsStillRight();
    void aRecordIsKeptOnce();
    void aCopyToTenThousandDoorsTakesLittle();
    void aStepWhoseTransactionIsRolledBackLeavesNothing();
    void recordsOfARolledBackStepAreNotCountedOn();
    void theCounterOfTheSchemeFileIsRemembered();
    void oldStepsGoAndTheStateStays();
    void theLastStepStaysHoweverOldItIs();
    void recordsThatAreStillToldOfStay();
    void aFileThatIsNoHistoryIsNotAttached();
    void aHistoryOfALaterVersionIsNotAttached();
    void aFolderInItsPlaceIsNotAttached();
    void aDamagedStepIsSaidAndTheOthersAreTold();
    void aHistoryIsReadAlone();
    void anUnknownStepIsNotTold();
    void packedChangesComeBack();
    void packedBytesFromAnywhereDoNoHarm();

private:
    std::unique_ptr<QTemporaryDir> m_folder;
};

void SchemeHistoryFileTest::whatChangedIsToldAsItWas()
{
    Writer writer(*m_folder);
    QVERIFY(writer.attached);
    AlarmInfo sound;
    sound.bOpenSound = true;
    QVERIFY(writer.Append(Entry(QStringLiteral("anna")), {{Door(1), AlarmInfo()}, {Door(2), AlarmInfo()}}));
    QVERIFY(writer.Append(Entry(QString::fromUtf8("bj\xC3\xB6rn")), {{Door(1), sound}}));
    const auto entries = writer.history.Entries(10);
    QVERIFY(entries);
    const auto changes = writer.history.Changes(entries->first().iId);
    QVERIFY(changes);
    QCOMPARE(changes->size(), 2);
    QVERIFY(changes->at(0).key == Door(1));
    QVERIFY(*changes->at(0).before == AlarmInfo() && *changes->at(0).after == sound);
    QVERIFY(changes->at(1).key == Door(2));
    QVERIFY(*changes->at(1).before == AlarmInfo() && !changes->at(1).after);
}

void SchemeHistoryFileTest::stepsAreListedTheNewestFirst()
{
    Writer writer(*m_folder);
    for (int step = 1; step <= 5; ++step) {
        SchemeHistoryEntry entry = Entry(QStringLiteral("user %1").arg(step), step);
        entry.eKind = SchemeHistoryKind::Import;
        entry.strNote = QStringLiteral("file \"%1\"").arg(step);
        QVERIFY(writer.Append(entry, {{Door(step), AlarmInfo()}}));
    }
    const auto newest = writer.history.Entries(2);
    QVERIFY(newest);
    QCOMPARE(newest->size(), 2);
    QCOMPARE(newest->at(0).strWho, QStringLiteral("user 5"));
    QCOMPARE(newest->at(0).strNote, QStringLiteral("file \"5\""));
    QVERIFY(newest->at(0).eKind == SchemeHistoryKind::Import);
    QCOMPARE(newest->at(0).iSchemes, 2); // one left, one came
    QCOMPARE(newest->at(0).time, QDateTime::fromSecsSinceEpoch(1'800'000'005, Qt::UTC));
    const auto older = writer.history.Entries(10, newest->at(1).iId);
    QVERIFY(older);
    QCOMPARE(older->size(), 3);
    QCOMPARE(older->first().strWho, QStringLiteral("user 3"));
}

void SchemeHistoryFileTest::additionsChangesAndRemovalsLeadFromOneMapToTheOther()
{
    for (quint32 seed = 1; seed <= 50; ++seed) {
        AlarmInfoMap before = RandomSchemes(seed).Map();
        const AlarmInfoMap after = RandomSchemes(seed + 1000).Map();
        const SchemeHistoryChanges changes = SchemeHistoryBetween(before, after);
        for (const SchemeHistoryChange& change : changes) {
            QCOMPARE(before.contains(change.key), change.before.has_value());
            QVERIFY(!change.before || before.value(change.key) == *change.before);
            if (change.after)
                before.insert(change.key, *change.after);
            else
                before.remove(change.key);
        }
        QVERIFY2(before == after, qPrintable(QString::number(seed)));
        QVERIFY(SchemeHistoryBetween(after, after).isEmpty());
    }
}

void SchemeHistoryFileTest::theStateIsWhatTheLastStepLeft()
{
    Writer writer(*m_folder);
    QVERIFY(writer.history.State() && writer.history.State()->isEmpty());
    for (quint32 seed = 1; seed <= 20; ++seed) {
        const AlarmInfoMap map = RandomSchemes(seed).Map();
        QVERIFY(writer.Append(Entry(QString()), map));
        QVERIFY2(writer.history.State() == map, qPrintable(QString::number(seed)));
    }
}

void SchemeHistoryFileTest::theStateOfALongHistoryIsStillRight()
{
    Writer writer(*m_folder);
    QRandomGenerator random(4);
    AlarmInfoMap map;
    for (int step = 0; step < 60; ++step) {
        for (int change = 0; change < 150; ++change) {
            const AlarmSourceKey key = Door(random.bounded(400), 101 + random.bounded(3));
            if (random.bounded(4) == 0) {
                map.remove(key);
            } else {
                map[key].bOpen = !map[key].bOpen;
                map[key].listAlarmOut = {{EventSource::AlarmOutput(random.bounded(9)), true, 20}};
            }
        }
        QVERIFY(writer.Append(Entry(QString(), step), map));
    }
    QVERIFY(writer.history.State() == map);
    // It did not have to start from nothing.
    QVERIFY(writer.database.Value(QStringLiteral("select Entry from SchemeHistory.Checkpoint")).toInt() > 30);
}

void SchemeHistoryFileTest::aRecordIsKeptOnce()
{
    Writer writer(*m_folder);
    AlarmInfoMap map;
    AlarmInfo info;
    for (int door = 0; door < 500; ++door) {
        info.bOpen = door % 2 == 0;
        info.defenceTime[door % 7] = {{0, 3600}};
        info.defenceTime = AlarmWeek();
        map.insert(Door(door), info);
    }
    QVERIFY(writer.Append(Entry(QString()), map));
    QVERIFY(writer.Append(Entry(QString()), {}));
    QVERIFY(writer.Append(Entry(QString()), map));
    QCOMPARE(writer.database.Value(QStringLiteral("select count(*) from SchemeHistory.Records")),
             QStringLiteral("2"));
}

void SchemeHistoryFileTest::aCopyToTenThousandDoorsTakesLittle()
{
    Writer writer(*m_folder);
    AlarmInfo info = RandomSchemes(3).Info();
    AlarmInfoMap map;
    for (int door = 0; door < 10'000; ++door) {
        for (int type = 0; type < 4; ++type)
            map.insert(Door(door, 101 + type), info);
    }
    QVERIFY(writer.Append(Entry(QString()), map));
    const qint64 size = QFileInfo(writer.strPath).size();
    // The step itself and the state behind it: some bytes a scheme, and not its record.
    QVERIFY2(size < qint64(map.size()) * 20, qPrintable(QString::number(size)));
}

void SchemeHistoryFileTest::aStepWhoseTransactionIsRolledBackLeavesNothing()
{
    Writer writer(*m_folder);
    QVERIFY(writer.Append(Entry(QStringLiteral("first")), {{Door(1), AlarmInfo()}}));
    QCOMPARE(writer.database.Run(QStringLiteral("begin")), SQLITE_OK);
    QVERIFY(writer.history.Append(Entry(QStringLiteral("second")), {{Door(1), AlarmInfo(), std::nullopt}}));
    QCOMPARE(writer.database.Run(QStringLiteral("rollback")), SQLITE_OK);
    QCOMPARE(writer.history.Entries(10)->size(), 1);
    QCOMPARE(writer.history.State()->size(), 1);
}

void SchemeHistoryFileTest::recordsOfARolledBackStepAreNotCountedOn()
{
    Writer writer(*m_folder);
    const AlarmInfo info = RandomSchemes(9).Info();
    QCOMPARE(writer.database.Run(QStringLiteral("begin")), SQLITE_OK);
    QVERIFY(writer.history.Append(Entry(QString()), {{Door(1), std::nullopt, info}}));
    QCOMPARE(writer.database.Run(QStringLiteral("rollback")), SQLITE_OK);
    QVERIFY(writer.Append(Entry(QString()), {{Door(1), info}}));
    QVERIFY(writer.history.State() == AlarmInfoMap({{Door(1), info}}));
}

void SchemeHistoryFileTest::theCounterOfTheSchemeFileIsRemembered()
{
    {
        Writer writer(*m_folder);
        QVERIFY(!writer.history.SchemeFileCounter());
        QVERIFY(writer.history.SetSchemeFileCounter(0xFFFFFFFEU));
    }
    Writer writer(*m_folder);
    QCOMPARE(writer.history.SchemeFileCounter().value_or(1), 0xFFFFFFFEU);
}

void SchemeHistoryFileTest::oldStepsGoAndTheStateStays()
{
    Writer writer(*m_folder);
    AlarmInfoMap map;
    for (int step = 0; step < 10; ++step) {
        map.insert(Door(step), RandomSchemes(static_cast<quint32>(step)).Info());
        QVERIFY(writer.Append(Entry(QString(), step), map));
    }
    QVERIFY(writer.history.DropBefore(Entry(QString(), 6).time));
    QCOMPARE(writer.history.Entries(100)->size(), 4);
    QVERIFY(writer.history.State() == map);
    // The next step builds on it.
    map.remove(Door(0));
    QVERIFY(writer.Append(Entry(QString(), 11), map));
    QVERIFY(writer.history.State() == map);
}

void SchemeHistoryFileTest::theLastStepStaysHoweverOldItIs()
{
    Writer writer(*m_folder);
    QVERIFY(writer.history.DropBefore(Entry(QString(), 1000).time)); // of nothing
    QVERIFY(writer.Append(Entry(QString(), 1), {{Door(1), AlarmInfo()}}));
    QVERIFY(writer.Append(Entry(QString(), 2), {}));
    QVERIFY(writer.history.DropBefore(Entry(QString(), 1000).time));
    QCOMPARE(writer.history.Entries(100)->size(), 1);
}

void SchemeHistoryFileTest::recordsThatAreStillToldOfStay()
{
    Writer writer(*m_folder);
    AlarmInfo old;
    old.bOpen = true;
    AlarmInfo kept;
    kept.bOpenSound = true;
    QVERIFY(writer.Append(Entry(QString(), 1), {{Door(1), old}, {Door(2), kept}}));
    QVERIFY(writer.Append(Entry(QString(), 2), {{Door(1), AlarmInfo()}, {Door(2), kept}}));
    QVERIFY(writer.Append(Entry(QString(), 3), {{Door(2), kept}}));
    QVERIFY(writer.history.DropBefore(Entry(QString(), 3).time));
    const auto changes = writer.history.Changes(writer.history.Entries(1)->constFirst().iId);
    QVERIFY(changes && changes->size() == 1 && *changes->at(0).before == AlarmInfo());
    QCOMPARE(writer.database.Value(QStringLiteral("select count(*) from SchemeHistory.Records")),
             QStringLiteral("2")); // the fresh one and the kept one; nobody knows the old one
}

void SchemeHistoryFileTest::aFileThatIsNoHistoryIsNotAttached()
{
    QFile file(HistoryPath(*m_folder));
    QVERIFY(file.open(QIODevice::WriteOnly));
    file.write(QByteArray(5000, 'x'));
    file.close();
    Writer writer(*m_folder);
    QVERIFY(!writer.attached);
    QVERIFY(!writer.history.LastError().isEmpty());
    // The connection goes on without it, and the file is as it was.
    QCOMPARE(writer.database.Run(QStringLiteral("create table T(a)")), SQLITE_OK);
    QVERIFY(file.open(QIODevice::ReadOnly));
    QCOMPARE(file.readAll(), QByteArray(5000, 'x'));
}

void SchemeHistoryFileTest::aHistoryOfALaterVersionIsNotAttached()
{
    {
        Writer writer(*m_folder);
        QCOMPARE(writer.database.Run(QStringLiteral("update SchemeHistory.Format set Version = 2")),
                 SQLITE_OK);
    }
    Writer writer(*m_folder);
    QVERIFY(!writer.attached);
    QVERIFY(writer.history.LastError().contains(QLatin1Char('2')));
}

void SchemeHistoryFileTest::aFolderInItsPlaceIsNotAttached()
{
    QVERIFY(QDir().mkdir(HistoryPath(*m_folder)));
    QVERIFY(!Writer(*m_folder).attached);
}

void SchemeHistoryFileTest::aDamagedStepIsSaidAndTheOthersAreTold()
{
    Writer writer(*m_folder);
    QVERIFY(writer.Append(Entry(QString(), 1), {{Door(1), AlarmInfo()}}));
    QVERIFY(writer.Append(Entry(QString(), 2), {}));
    QCOMPARE(writer.database.Run(
                 QStringLiteral("update SchemeHistory.Entries set Changes = x'0102' where id = 1")),
             SQLITE_OK);
    QVERIFY(!writer.history.Changes(1));
    QVERIFY(writer.history.LastError().contains(QLatin1Char('1')));
    QVERIFY(!writer.history.State());
    QVERIFY(writer.history.Changes(2));
    QCOMPARE(writer.history.Entries(10)->size(), 2);
    // A record whose bytes are not those it was kept for is not shown as if they were.
    QCOMPARE(writer.database.Run(QStringLiteral("update SchemeHistory.Records set Hash = x'00'")), SQLITE_OK);
    QVERIFY(!writer.history.Changes(2));
}

void SchemeHistoryFileTest::aHistoryIsReadAlone()
{
    const AlarmInfoMap map = RandomSchemes(5).Map();
    QString path;
    {
        Writer writer(*m_folder);
        path = writer.strPath;
        QVERIFY(writer.Append(Entry(QStringLiteral("anna")), map));
    }
    RawDatabase alone(path);
    SchemeHistoryFile history(alone.Handle(), SchemeHistoryFile::Place::Main);
    QVERIFY(history.IsSound());
    QCOMPARE(history.Entries(1)->constFirst().strWho, QStringLiteral("anna"));
    QVERIFY(history.State() == map);
}

void SchemeHistoryFileTest::anUnknownStepIsNotTold()
{
    Writer writer(*m_folder);
    QVERIFY(!writer.history.Changes(1));
    QVERIFY(writer.history.Entries(0)->isEmpty());
    QVERIFY(writer.history.Entries(-1)->isEmpty());
    QVERIFY(writer.history.Append(Entry(QString()), {}));
    QVERIFY(writer.history.Changes(1) && writer.history.Changes(1)->isEmpty());
}

void SchemeHistoryFileTest::packedChangesComeBack()
{
    QVector<PackedSchemeChange> changes;
    for (int at = 0; at < 300; ++at)
        changes.append({Door(at / 7, at), at % 3, at * 1'000'000'000LL});
    changes.append({{QString(), -1}, 1, 0});
    QVERIFY(SchemeHistoryPacking::Unpack(SchemeHistoryPacking::Pack(changes)) == changes);
    QVERIFY(SchemeHistoryPacking::Unpack(SchemeHistoryPacking::Pack({})) == QVector<PackedSchemeChange>());
}

void SchemeHistoryFileTest::packedBytesFromAnywhereDoNoHarm()
{
    QVERIFY(!SchemeHistoryPacking::Unpack(QByteArray()));
    QVERIFY(!SchemeHistoryPacking::Unpack("\xFF\xFF\xFF\xFFxyz"));
    const QByteArray packed = SchemeHistoryPacking::Pack({{Door(1), 1, 2}, {Door(2), 3, 4}});
    const QByteArray plain = SchemeHistoryPacking::Uncompress(packed);
    QVERIFY(!plain.isEmpty());
    for (int size = 0; size < plain.size(); ++size)
        QVERIFY2(!SchemeHistoryPacking::Unpack(qCompress(plain.left(size))),
                 qPrintable(QString::number(size)));
    QVERIFY(!SchemeHistoryPacking::Unpack(qCompress(plain + 'x')));
    // A block of a few bytes that claims to become a gigabyte gets no gigabyte.
    QByteArray huge = packed;
    qToBigEndian<quint32>(1U << 30, huge.data());
    QVERIFY(SchemeHistoryPacking::Uncompress(huge).isEmpty());
    QRandomGenerator random(8);
    for (int round = 0; round < 500; ++round) {
        QByteArray spoilt = plain;
        spoilt[random.bounded(spoilt.size())] = static_cast<char>(random.bounded(256));
        SchemeHistoryPacking::Unpack(qCompress(spoilt)); // returns
    }
}

QTEST_GUILESS_MAIN(SchemeHistoryFileTest)
#include "tst_scheme_history_file.moc"
