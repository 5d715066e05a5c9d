#include "AlarmCtrl/AlarmSchemeData/AlarmSchemeDatabaseParser.h"
#include "tests/AlarmSchemeData/RawDatabase.h"
#include "tests/AlarmSchemeData/StoreFolder.h"

#include <QRandomGenerator>
#include <QtTest>

#include <limits>

namespace {

AlarmInfoMap SomeSchemes()
{
    AlarmInfoMap map;
    for (int door = 0; door < 40; ++door) {
        AlarmInfo& info = map[AlarmSourceKey{EventSource::Door(1, door), 3}];
        info.bOpen = true;
        info.videoSplit.SplitRow = 2;
        info.videoSplit.SplitCloum = 2;
        info.videoSplit.SplitCount = 4;
        info.videoSplit.videoLinks[door % 4].strLinkDevID = EventSource::Unit(door);
        info.listAlarmOut.append(AlarmLinkAlarmOut{EventSource::AlarmOutput(door), true, 20});
    }
    return map;
}

/// A file with schemes in it, and the directory that it lies in.
class StoredSchemes
{
public:
    StoredSchemes()
    {
        AlarmSchemeDatabaseParser store;
        const AlarmInfoMap map = SomeSchemes();
        if (store.SaveAll(&map) != 0)
            qFatal("cannot write schemes for a test");
    }
    const StoreFolder& Folder() const { return m_folder; }

private:
    StoreFolder m_folder;
};

} // namespace

/// Files that no store of ours wrote, or that somebody has damaged.
class SchemeStoreHostileTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void aFileThatIsNoDatabaseStaysAsItIs_data();
    void aFileThatIsNoDatabaseStaysAsItIs();
    void aTruncatedFileStaysAsItIs();
    void aDirectoryInPlaceOfTheFileLeavesTheStoreClosed();
    void damagedBytesNeverCrashALoad();
    void negativeAndHugeCountsLoadWithoutIndexingAnything_data();
    void negativeAndHugeCountsLoadWithoutIndexingAnything();
    void windowNumbersOutOfRangeAreIgnored();
    void textsAndBlobsInNumberColumnsLoadAsNumbers();
    void danglingIdsLoseOnlyTheirLinks();
    void tablesWithForeignColumnsLoadNothingAndReportIt();
    void keysWithInvalidTextLoadWithoutFailing();
    void aKeyWithANullCharacterIsNotTakenForTheShorterOne();
    void aKeyWithADoubleQuoteMakesTheLoadPartial();
    void aViewInPlaceOfATableIsRead();
};

void SchemeStoreHostileTest::aFileThatIsNoDatabaseStaysAsItIs_data()
{
    QTest::addColumn<QByteArray>("bytes");
    QTest::newRow("text") << QByteArray("This is a letter, not a database.\n").repeated(200);
    QTest::newRow("zeros") << QByteArray(8192, '\0');
    QTest::newRow("only the first words") << QByteArray("SQLite format 3\0", 16) + QByteArray(5000, 'x');
    QTest::newRow("short text") << QByteArray("hello");
}

void SchemeStoreHostileTest::aFileThatIsNoDatabaseStaysAsItIs()
{
    QFETCH(QByteArray, bytes);
    const LogCatcher log;
    const StoreFolder folder;
    folder.Write(bytes);
    {
        AlarmSchemeDatabaseParser store;
        QVERIFY(!store.IsOpen());
        QVERIFY(store.FailedStatements() > 0);
        AlarmInfoMap map = SomeSchemes();
        QCOMPARE(store.SaveAll(&map), -1);
        QCOMPARE(store.ReadAll(&map), -1);
    }
    QCOMPARE(folder.Bytes(), bytes);
}

void SchemeStoreHostileTest::aTruncatedFileStaysAsItIs()
{
    const LogCatcher log;
    const StoredSchemes stored;
    const QByteArray whole = stored.Folder().Bytes();
    const auto end = static_cast<int>(whole.size());
    for (const int size : {100, 1000, 4096, end / 2, end - 4097}) {
        stored.Folder().Write(whole.left(size));
        {
            AlarmSchemeDatabaseParser store;
            QVERIFY(!store.IsOpen());
        }
        QCOMPARE(stored.Folder().Bytes(), whole.left(size));
    }
}

void SchemeStoreHostileTest::aDirectoryInPlaceOfTheFileLeavesTheStoreClosed()
{
    const LogCatcher log;
    const StoreFolder folder;
    QVERIFY(QDir().mkpath(folder.File()));
    AlarmSchemeDatabaseParser store;
    QVERIFY(!store.IsOpen());
    QVERIFY(QFileInfo(folder.File()).isDir());
}

void SchemeStoreHostileTest::damagedBytesNeverCrashALoad()
{
    const LogCatcher log;
    const StoredSchemes stored;
    const QByteArray whole = stored.Folder().Bytes();
    for (quint32 seed = 1; seed <= 120; ++seed) {
        QRandomGenerator random(seed);
        QByteArray bytes = whole;
        for (int hit = 1 + random.bounded(30); hit > 0; --hit)
            bytes[100 + random.bounded(bytes.size() - 100)] = static_cast<char>(random.bounded(256));
        stored.Folder().Write(bytes);
        AlarmSchemeDatabaseParser store;
        AlarmInfoMap map;
        const int32_t status = store.ReadAll(&map);
        QVERIFY2(status == 0 || status == -1, qPrintable(QString::number(seed)));
        QVERIFY2(status == 0 || store.FailedStatements() > 0 || !store.IsOpen(),
                 qPrintable(QString::number(seed)));
        QCOMPARE(store.GetTransactionDepth(), 0);
    }
}

void SchemeStoreHostileTest::negativeAndHugeCountsLoadWithoutIndexingAnything_data()
{
    QTest::addColumn<QString>("counts");
    QTest::newRow("negative") << QStringLiteral("-1, -64, -5");
    QTest::newRow("beyond sixty-four") << QStringLiteral("100, 100, 100");
    QTest::newRow("overflowing") << QStringLiteral("2147483647, 2147483647, 2147483647");
    QTest::newRow("beyond 32 bits") << QStringLiteral(
        "9223372036854775807, 4294967297, -9223372036854775808");
    QTest::newRow("null") << QStringLiteral("NULL, NULL, NULL");
    QTest::newRow("texts") << QStringLiteral("'many', '', 'x'");
    QTest::newRow("fractions") << QStringLiteral("1e300, -1e300, 0.5");
}

void SchemeStoreHostileTest::negativeAndHugeCountsLoadWithoutIndexingAnything()
{
    QFETCH(QString, counts);
    const LogCatcher log;
    const StoredSchemes stored;
    RawDatabase raw(stored.Folder().File());
    QCOMPARE(
        raw.Run(
            QStringLiteral("update AlarmBaseInfo set (SplitRow, SplitCloum, SplitCount) = (%1)").arg(counts)),
        0);
    QCOMPARE(raw.Run(QStringLiteral(
                 "insert into AlarmSplitInfo(AlarmUniqueID, windowID, iCombine) values(1, 63, 1), "
                 "(1, 64, 1), (1, 4294967296, 1), (1, -1, 1)")),
             0);
    AlarmSchemeDatabaseParser store;
    AlarmInfoMap map;
    QCOMPARE(store.ReadAll(&map), 0);
    QCOMPARE(map.size(), SomeSchemes().size());
    QCOMPARE(store.SaveAll(&map), 0);
    QCOMPARE(store.FailedStatements(), int64_t(0));
    QCOMPARE(raw.Value(QStringLiteral(
                 "select count(*) from AlarmSplitInfo where windowID between 65 and 4294967295")),
             QStringLiteral("0"));
}

void SchemeStoreHostileTest::windowNumbersOutOfRangeAreIgnored()
{
    const LogCatcher log;
    const StoredSchemes stored;
    RawDatabase raw(stored.Folder().File());
    QCOMPARE(
        raw.Run(QStringLiteral("insert into AlarmLinkVideoInfo(AlarmUniqueID, AlarmLinkVideoID, WindowID) "
                               "values(1, 1, -1), (1, 1, 4), (1, 1, 4294967296), (1, 1, 'x'), (1, 1, NULL), "
                               "(1, 1, x'31'), (1, 1, 1e30)")),
        0);
    QCOMPARE(
        raw.Run(QStringLiteral("insert into AlarmSplitInfo(AlarmUniqueID, windowID, iCombine) "
                               "values(1, -1, 9), (1, 4, 9), (1, 4294967296, 9), (1, 'x', 9), (1, NULL, 9), "
                               "(1, x'31', 9), (1, 1e30, 9)")),
        0);
    AlarmSchemeDatabaseParser store;
    AlarmInfoMap map;
    QCOMPARE(store.ReadAll(&map), 0);
    QVERIFY(map == SomeSchemes());
}

void SchemeStoreHostileTest::textsAndBlobsInNumberColumnsLoadAsNumbers()
{
    const LogCatcher log;
    const StoredSchemes stored;
    RawDatabase raw(stored.Folder().File());
    QCOMPARE(raw.Run(QStringLiteral(
                 "update AlarmBaseInfo set bOpen = 'yes', bOpenSound = x'31', bEmapTwinkle = '1', "
                 "bSendEmail = '2x'")),
             0);
    QCOMPARE(raw.Run(QStringLiteral("update AlarmLinkAlarmOutInfo set Time = 'soon', bAutoOpen = x'00'")), 0);
    QCOMPARE(
        raw.Run(QStringLiteral("update AlarmDefenceTimeInfo set Begin = 'noon', End = 'late' where Day = 1")),
        0);
    AlarmSchemeDatabaseParser store;
    AlarmInfoMap map;
    QCOMPARE(store.ReadAll(&map), 0);
    QCOMPARE(store.FailedStatements(), int64_t(0));
    const AlarmInfo& info = map.first();
    QVERIFY(!info.bOpen && info.bOpenSound && info.bEmapTwinkle && info.bSendEmail);
    QVERIFY(info.listAlarmOut.at(0) == (AlarmLinkAlarmOut{EventSource::AlarmOutput(0), false, 0}));
    QCOMPARE(info.defenceTime[0], (AlarmDefenceTime_t{{0, 0}}));
}

void SchemeStoreHostileTest::danglingIdsLoseOnlyTheirLinks()
{
    const LogCatcher log;
    const StoredSchemes stored;
    RawDatabase raw(stored.Folder().File());
    QCOMPARE(
        raw.Run(QStringLiteral("delete from AlarmLinkAlarmOutID; delete from AlarmLinkVideoID; "
                               "insert into AlarmBaseInfo(AlarmUniqueID, bOpen) values(999, 1), (NULL, 1)")),
        0);
    AlarmSchemeDatabaseParser store;
    AlarmInfoMap map;
    QCOMPARE(store.ReadAll(&map), 0);
    AlarmInfoMap expected = SomeSchemes();
    for (AlarmInfo& info : expected) {
        info.listAlarmOut.clear();
        info.videoSplit.videoLinks.clear();
    }
    QVERIFY(map == expected);
}

void SchemeStoreHostileTest::tablesWithForeignColumnsLoadNothingAndReportIt()
{
    const LogCatcher log;
    const StoreFolder folder;
    {
        RawDatabase raw(folder.File());
        for (const QString& table : RawDatabase::Tables())
            QCOMPARE(raw.Run(QStringLiteral("create table %1(a, b, c, d)").arg(table)), 0);
        QCOMPARE(raw.Run(QStringLiteral("insert into AlarmUniqueID values(1, 'k', 3, 4)")), 0);
    }
    AlarmSchemeDatabaseParser store;
    QVERIFY(store.IsOpen());
    QVERIFY(store.FailedStatements() > 0);
    const int64_t before = store.FailedStatements();
    AlarmInfoMap map;
    QCOMPARE(store.ReadAll(&map), 0);
    QVERIFY(store.FailedStatements() > before);
    QCOMPARE(map.keys(), QList<AlarmSourceKey>{(AlarmSourceKey{QStringLiteral("k"), 3})});
}

void SchemeStoreHostileTest::keysWithInvalidTextLoadWithoutFailing()
{
    const LogCatcher log;
    const StoreFolder folder;
    AlarmSchemeDatabaseParser store;
    RawDatabase raw(folder.File());
    QCOMPARE(raw.Run(QStringLiteral("insert into AlarmUniqueID(strEventSource, AlarmType) values"
                                    "(cast(x'80C3FF' as text), 1), (x'C328', 1), (x'', 4294967297)")),
             0);
    AlarmInfoMap map;
    QCOMPARE(store.ReadAll(&map), 0);
    QCOMPARE(map.size(), 3);
    QCOMPARE(store.FailedStatements(), int64_t(0));
}

void SchemeStoreHostileTest::aKeyWithANullCharacterIsNotTakenForTheShorterOne()
{
    const LogCatcher log;
    const StoreFolder folder;
    AlarmSchemeDatabaseParser store;
    RawDatabase raw(folder.File());
    QCOMPARE(raw.Run(QStringLiteral("insert into AlarmUniqueID(strEventSource, AlarmType) values"
                                    "(cast(x'6B0061' as text), 1), ('k', 1)")),
             0);
    AlarmInfoMap map;
    QCOMPARE(store.ReadAll(&map), 0);
    QCOMPARE(map.size(), 2);
    QVERIFY(store.FailedStatements() > 0);
}

void SchemeStoreHostileTest::aKeyWithADoubleQuoteMakesTheLoadPartial()
{
    const LogCatcher log;
    const StoreFolder folder;
    AlarmSchemeDatabaseParser store;
    RawDatabase raw(folder.File());
    QCOMPARE(raw.Run(QStringLiteral("insert into AlarmUniqueID values(1, 'a\" or 1 --', 1)")), 0);
    AlarmInfoMap map;
    QCOMPARE(store.ReadAll(&map), 0);
    QCOMPARE(map.size(), 1);
    QVERIFY(store.FailedStatements() > 0);
}

void SchemeStoreHostileTest::aViewInPlaceOfATableIsRead()
{
    const LogCatcher log;
    const StoredSchemes stored;
    RawDatabase raw(stored.Folder().File());
    QCOMPARE(raw.Run(QStringLiteral("alter table AlarmUniqueID rename to Real")), 0);
    QCOMPARE(
        raw.Run(QStringLiteral("create view AlarmUniqueID as select * from Real where AlarmUniqueID < 3")),
        0);
    AlarmSchemeDatabaseParser store;
    AlarmInfoMap map;
    QCOMPARE(store.ReadAll(&map), 0);
    QCOMPARE(map.size(), 2);
}

QTEST_GUILESS_MAIN(SchemeStoreHostileTest)
#include "tst_scheme_store_hostile.moc"
