#include "AlarmCtrl/AlarmSchemeData/AlarmSchemeDatabaseParser.h"
#include "tests/AlarmSchemeData/LiteralStore.h"
#include "tests/AlarmSchemeData/RawDatabase.h"
#include "tests/AlarmSchemeData/SampleSchemes.h"
#include "tests/AlarmSchemeData/StoreFolder.h"

#include <QDateTime>
#include <QtTest>

#include <sqlite3.h>

#include <limits>

using SampleSchemes::Key;
using SampleSchemes::Output;
using SampleSchemes::Rich;

namespace {

/// Schemes of five doors.
AlarmInfoMap Doors()
{
    AlarmInfoMap map;
    for (int door = 0; door < 5; ++door)
        map.insert({EventSource::Door(1, door), 3}, door % 2 == 0 ? Rich() : AlarmInfo());
    return map;
}

/// How often a connection runs statements that begin so.
class Counter
{
public:
    Counter(sqlite3* pDatabase, const char* szBegin)
        : m_pDatabase(pDatabase)
        , m_strBegin(QString::fromLatin1(szBegin))
    {
        sqlite3_trace_v2(
            pDatabase, SQLITE_TRACE_STMT,
            [](unsigned, void* pSelf, void*, void* pText) {
                auto* const self = static_cast<Counter*>(pSelf);
                if (QString::fromUtf8(static_cast<char*>(pText)).startsWith(self->m_strBegin))
                    ++self->m_iCount;
                return 0;
            },
            this);
    }
    ~Counter() { sqlite3_trace_v2(m_pDatabase, 0, nullptr, nullptr); }
    Counter(const Counter&) = delete;
    Counter& operator=(const Counter&) = delete;
    int Count() const { return m_iCount; }

private:
    sqlite3* m_pDatabase;
    QString m_strBegin;
    int m_iCount = 0;
};

} // namespace

/// What the one-pass roads do with each unusual thing, beside the literal statements on a copy of the file.
class SchemeStoreRoadsTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();

    void aKnownFileIsReadAndWrittenInOnePass();
    void whateverIsNotKnownTakesTheLiteralRoad_data();
    void whateverIsNotKnownTakesTheLiteralRoad();
    void foreignKeysOffTakesTheLiteralRoad();
    void temporaryThingsOfTheConnectionTakeTheLiteralRoad();
    void anUnusualSchemeAloneTakesTheLiteralRoad_data();
    void anUnusualSchemeAloneTakesTheLiteralRoad();
    void strangeRowsComeOutAsByTheLiteralStatements_data();
    void strangeRowsComeOutAsByTheLiteralStatements();
    void aSecondOutputInAListKeepsThePlaceOfTheFirst();
    void manyDoublesInAListKeepTheirFirstPlaces();
    void doorsAreDoublesByTheirNumber();
    void anOversizedLayoutWritesSixtyFourCellsAndLeavesTheRest();
    void dictionariesAndCountersGrowAsByTheLiteralStatements();
    void theStampIsWrittenOnceWithTheClockHandedIn();
    void savingSomeSchemesLeavesTheOthers();
    void savingNoSchemesOnlyStamps();
    void disablingHitsExactlyTheSchemesThatTheMapMisses();
    void equalTextsOfALoadedMapShareTheirMemory();
    void equalWeeksAndCellsOfALoadedMapShareTheirMemory();
    void aFailingStatementIsCountedLoggedAndLeavesTheRoad();
    void aLoadThatFailsOnTheWayIsDoneLiterally();

private:
    /// Takes a copy of the file for the literal statements.
    void Fork();
    void CompareFiles();
    void CompareLoads();
    /// Saves by both and compares.
    void SaveBoth(const AlarmInfoMap& map);
    bool IsReadInOnePass();
    bool IsWrittenInOnePass();
    void Change(const QString& strSql);

    std::unique_ptr<LogCatcher> m_log;
    std::unique_ptr<StoreFolder> m_folder;
    std::unique_ptr<AlarmSchemeDatabaseParser> m_store;
    std::unique_ptr<RawDatabase> m_raw;
    std::unique_ptr<RawDatabase> m_other;
    std::unique_ptr<LiteralStore> m_literal;
};

void SchemeStoreRoadsTest::init()
{
    m_log = std::make_unique<LogCatcher>();
    m_folder = std::make_unique<StoreFolder>();
    m_store = std::make_unique<AlarmSchemeDatabaseParser>([](sqlite3* handle) {
        return sqlite3_exec(handle, "PRAGMA synchronous = OFF", nullptr, nullptr, nullptr) == SQLITE_OK;
    });
    m_raw = std::make_unique<RawDatabase>(m_folder->File());
    const AlarmInfoMap map = Doors();
    QCOMPARE(m_store->SaveAll(&map), 0);
}

void SchemeStoreRoadsTest::cleanup()
{
    QCOMPARE(m_store->GetTransactionDepth(), 0);
    QCOMPARE(sqlite3_get_autocommit(m_store->GetHandle()), 1);
    m_literal.reset();
    m_other.reset();
    m_raw.reset();
    m_store.reset();
    m_folder.reset();
    m_log.reset();
}

void SchemeStoreRoadsTest::Change(const QString& strSql)
{
    QCOMPARE(m_raw->Run(strSql), 0);
}

void SchemeStoreRoadsTest::Fork()
{
    const QString other = QDir(m_folder->Root()).absoluteFilePath(QStringLiteral("other.db"));
    QVERIFY(QFile::copy(m_folder->File(), other));
    m_other = std::make_unique<RawDatabase>(other);
    m_literal = std::make_unique<LiteralStore>(m_other->Handle());
}

void SchemeStoreRoadsTest::CompareFiles()
{
    QCOMPARE(m_raw->Content(), m_other->Content());
}

void SchemeStoreRoadsTest::CompareLoads()
{
    AlarmInfoMap loaded;
    QCOMPARE(m_store->ReadAll(&loaded), 0);
    QVERIFY(loaded == m_literal->ReadAll());
}

void SchemeStoreRoadsTest::SaveBoth(const AlarmInfoMap& map)
{
    m_literal->SaveAll(map);
    QCOMPARE(m_store->SaveAll(&map), 0);
    CompareFiles();
}

bool SchemeStoreRoadsTest::IsReadInOnePass()
{
    const Counter literal(m_store->GetHandle(), "select Day,Begin,End from");
    AlarmInfoMap map;
    return m_store->ReadAll(&map) == 0 && literal.Count() == 0;
}

bool SchemeStoreRoadsTest::IsWrittenInOnePass()
{
    const Counter literal(m_store->GetHandle(), "update AlarmBaseInfo set bOpenSound");
    return m_store->SaveSchemes(Doors()) == 0 && literal.Count() == 0;
}

void SchemeStoreRoadsTest::aKnownFileIsReadAndWrittenInOnePass()
{
    QVERIFY(IsReadInOnePass());
    QVERIFY(IsWrittenInOnePass());
    // Also one that lay without indexes and without the mail column until now.
    const QStringList indexes =
        m_raw->Rows(QStringLiteral("select name from sqlite_master where type = 'index'"));
    QCOMPARE(indexes.size(), 9);
    for (const QString& index : indexes)
        Change(QStringLiteral("drop index ") + index);
    Change(QStringLiteral("alter table AlarmBaseInfo drop column bSendEmail"));
    m_store.reset();
    m_store = std::make_unique<AlarmSchemeDatabaseParser>();
    QVERIFY(IsReadInOnePass());
    QVERIFY(IsWrittenInOnePass());
    QCOMPARE(m_store->FailedStatements(), int64_t(0));
}

void SchemeStoreRoadsTest::whateverIsNotKnownTakesTheLiteralRoad_data()
{
    QTest::addColumn<QString>("change");
    QTest::addColumn<bool>("readInOnePass");
    const auto row = [](const char* name, const char* change, bool read = false) {
        QTest::newRow(name) << QString::fromLatin1(change) << read;
    };
    row("a trigger", "create trigger T after delete on AlarmLinkDoorInfo begin select 1; end");
    row("a view", "create view V as select 1");
    row("statistics", "analyze");
    row("a column more", "alter table AlarmLinkDoorInfo add Extra integer");
    row("an index more", "create index I on AlarmLinkAlarmOutInfo(AlarmUniqueID, AlarmLinkAlarmOutID)");
    row("a unique index", "create unique index I on AlarmLinkDoorInfo(id)");
    row("no index", "drop index AlarmUniqueID_ByKey");
    row("another index of the name", "drop index AlarmLinkDoorInfo_ByScheme; create index "
                                     "AlarmLinkDoorInfo_ByScheme on AlarmLinkDoorInfo(AlarmLinkDoorID)");
    row("a descending index of the name",
        "drop index AlarmLinkDoorInfo_ByScheme; create index "
        "AlarmLinkDoorInfo_ByScheme on AlarmLinkDoorInfo(AlarmUniqueID desc)");
    row("a partial index of the name",
        "drop index AlarmLinkDoorInfo_ByScheme; create index AlarmLinkDoorInfo_ByScheme on "
        "AlarmLinkDoorInfo(AlarmUniqueID) where bAlwaysOpen = 1");
    row("a table that follows ours", "create table T(a references AlarmLinkDoorInfo(id) on delete cascade)");
    row("another type", "alter table AlarmBaseInfo drop column bSendEmail; alter table AlarmBaseInfo add "
                        "bSendEmail text");
    row("a default", "alter table AlarmBaseInfo drop column bSendEmail; alter table AlarmBaseInfo add "
                     "bSendEmail bit default 1");
    row("a collation", "alter table AlarmBaseInfo drop column bSendEmail; alter table AlarmBaseInfo add "
                       "bSendEmail bit collate nocase");
    // Reading does not care for the counters.
    row("no counter", "delete from sqlite_sequence where name = 'AlarmLinkDoorInfo'", true);
    row("two counters", "insert into sqlite_sequence values('AlarmLinkDoorInfo', 99)", true);
    row("a low counter", "update sqlite_sequence set seq = 1", true);
    row("a counter that is a text", "update sqlite_sequence set seq = 'x' where name = 'AlarmBaseInfo'",
        true);
    row("ids beyond 32 bits", "update sqlite_sequence set seq = 2147483648 where name = 'AlarmBaseInfo'",
        true);
}

void SchemeStoreRoadsTest::whateverIsNotKnownTakesTheLiteralRoad()
{
    QFETCH(QString, change);
    Change(change);
    Fork();
    QTEST(IsReadInOnePass(), "readInOnePass");
    QVERIFY(!IsWrittenInOnePass());
    m_literal->SaveSome(Doors());
    CompareFiles();
    CompareLoads();
    // Opening the file again does not mend what somebody else has made of it.
    if (!change.startsWith(QLatin1String("drop index AlarmUniqueID"))) {
        const QString schema = QStringLiteral("select group_concat(name || sql) from sqlite_master");
        const QString before = m_raw->Value(schema);
        const AlarmSchemeDatabaseParser again;
        QCOMPARE(m_raw->Value(schema), before);
    }
}

void SchemeStoreRoadsTest::foreignKeysOffTakesTheLiteralRoad()
{
    QCOMPARE(m_store->ExecOnce(QStringLiteral("PRAGMA foreign_keys = OFF")), 0);
    QVERIFY(!IsReadInOnePass() && !IsWrittenInOnePass());
    QCOMPARE(m_store->ExecOnce(QStringLiteral("PRAGMA foreign_keys = ON")), 0);
    QVERIFY(IsReadInOnePass() && IsWrittenInOnePass());
}

void SchemeStoreRoadsTest::temporaryThingsOfTheConnectionTakeTheLiteralRoad()
{
    QCOMPARE(m_store->ExecOnce(QStringLiteral("create temp table AlarmLinkDoorInfo(a)")), 0);
    QVERIFY(!IsReadInOnePass() && !IsWrittenInOnePass());
    QCOMPARE(m_store->ExecOnce(QStringLiteral("drop table temp.AlarmLinkDoorInfo")), 0);
    QVERIFY(IsReadInOnePass() && IsWrittenInOnePass());
}

void SchemeStoreRoadsTest::anUnusualSchemeAloneTakesTheLiteralRoad_data()
{
    QTest::addColumn<QString>("source");
    QTest::addColumn<QString>("link");
    const QString plain = QStringLiteral("1$1$0$2");
    QTest::newRow("a key that is a column") << QStringLiteral("strEventSource") << plain;
    QTest::newRow("a key that is a column of a part") << QStringLiteral("DAY") << plain;
    QTest::newRow("a key that is the row id") << QStringLiteral("oid") << plain;
    QTest::newRow("an empty key") << QString() << plain;
    QTest::newRow("a key beyond ASCII") << QString::fromUtf8("\xE9\x97\xA8") << plain;
    QTest::newRow("a key that is no text") << QString(QChar(0xD800)) << plain;
    QTest::newRow("a link that is a column") << QStringLiteral("k") << QStringLiteral("strLinkAlarmID");
    QTest::newRow("an empty link") << QStringLiteral("k") << QString();
    QTest::newRow("a link beyond ASCII") << QStringLiteral("k") << QString::fromUtf8("\xC3\xBC");
}

void SchemeStoreRoadsTest::anUnusualSchemeAloneTakesTheLiteralRoad()
{
    QFETCH(QString, source);
    QFETCH(QString, link);
    Fork();
    AlarmInfoMap map = Doors();
    AlarmInfo info = Rich();
    info.listAlarmOut = {AlarmLinkAlarmOut{link, true, 20}};
    info.videoSplit.videoLinks[1].strLinkDevID = link;
    map.insert({source, 5}, info);
    map.insert(Key("9$1$0$9", 3), Rich());
    {
        // Every part of that one scheme makes sure of its key.
        const Counter counter(m_store->GetHandle(),
                              "insert into AlarmUniqueID(strEventSource, AlarmType) select");
        SaveBoth(map);
        QCOMPARE(counter.Count(), 6);
    }
    CompareLoads();
    SaveBoth(map);
    QCOMPARE(m_store->FailedStatements(), int64_t(0));
}

void SchemeStoreRoadsTest::strangeRowsComeOutAsByTheLiteralStatements_data()
{
    QTest::addColumn<QString>("change");
    const auto row = [](const char* name, const char* change) {
        QTest::newRow(name) << QString::fromLatin1(change);
    };
    row("the same key twice",
        "insert into AlarmUniqueID(strEventSource, AlarmType) select strEventSource, 3 from AlarmUniqueID; "
        "insert into AlarmBaseInfo(AlarmUniqueID, bOpen) values(6, 1), (7, 1)");
    row("the same key before the first",
        "insert into AlarmUniqueID values(-4, '1$1$0$2', 3); insert into AlarmBaseInfo(AlarmUniqueID, bOpen) "
        "values(-4, 1)");
    row("several base rows", "insert into AlarmBaseInfo(AlarmUniqueID, bOpen, SplitCount) values(1, 0, 2), "
                             "(1, 1, 3), (2, 1, NULL)");
    row("a base row with nothing in it",
        "delete from AlarmBaseInfo; insert into AlarmBaseInfo(AlarmUniqueID) values(2), (1)");
    row("rows that wait for a new id",
        "insert into AlarmBaseInfo(AlarmUniqueID, bSendEmail) values(6, 1); insert into AlarmLinkDoorInfo"
        "(AlarmUniqueID, AlarmLinkDoorID) values(6, 5); insert into AlarmSplitInfo(AlarmUniqueID, windowID, "
        "iCombine) values(6, 0, 5), (6, 9, 5); insert into AlarmLinkVideoInfo(AlarmUniqueID, WindowID) "
        "values(6, 1); insert into AlarmLinkAlarmOutInfo(AlarmUniqueID) values(6); insert into "
        "AlarmDefenceTimeInfo(AlarmUniqueID, Day) values(6, 1)");
    row("outputs that lead nowhere", "insert into AlarmLinkAlarmOutInfo(AlarmUniqueID, AlarmLinkAlarmOutID, "
                                     "Time) values(1, 77, 1), (1, NULL, 2), (1, 1, 3)");
    row("video rows in the order of their rows",
        "insert into AlarmLinkVideoInfo(AlarmUniqueID, AlarmLinkVideoID, WindowID, Time) values(1, 2, 3, 5), "
        "(1, 77, 0, 6), (1, 1, 3, 7), (1, 77, 3, 8), (1, 1, 3, NULL), (1, 1, 4, 1), (1, 1, -1, 1)");
    row("a window that is a text", "update AlarmLinkVideoInfo set WindowID = 'x' where AlarmUniqueID = 1");
    row("a window that is a fraction", "update AlarmLinkVideoInfo set WindowID = 1.5");
    row("a cell that is a fraction", "update AlarmSplitInfo set windowID = 0.5 where AlarmUniqueID = 1");
    row("a cell without a number", "update AlarmSplitInfo set windowID = NULL");
    row("cells twice", "insert into AlarmSplitInfo(AlarmUniqueID, windowID, iCombine, X2) select "
                       "AlarmUniqueID, windowID, 7, NULL from AlarmSplitInfo");
    row("cells out of range", "insert into AlarmSplitInfo(AlarmUniqueID, windowID) values(1, 4), (1, 63), "
                              "(1, 64), (1, -1), (1, 4294967296)");
    row("layouts that overflow", "update AlarmBaseInfo set SplitRow = 2147483647, SplitCloum = 2147483647, "
                                 "SplitCount = 2147483647");
    row("counts beyond 32 bits", "update AlarmBaseInfo set SplitRow = 4294967297, SplitCount = -4294967295");
    row("flags that are texts", "update AlarmBaseInfo set bOpen = 'yes', bOpenSound = x'31'");
    row("flags beyond one", "update AlarmBaseInfo set bOpen = 2, bOpenSound = -1, bSendEmail = 4294967296");
    row("times that are texts", "update AlarmDefenceTimeInfo set Begin = 'noon' where AlarmUniqueID = 2");
    row("times that are not sound",
        "insert into AlarmDefenceTimeInfo(AlarmUniqueID, Day, Begin, End) values(1, 0, 1, 2), (1, 8, 1, 2), "
        "(1, 2, 5, 4), (1, 2, -1, 4), (1, 2, 0, 4294967296), (1, NULL, 1, 2), (1, 2, NULL, NULL)");
    row("times of a scheme that lie apart",
        "insert into AlarmDefenceTimeInfo(AlarmUniqueID, Day, Begin, End) "
        "values(1, 1, 5, 6), (2, 1, 7, 8), (1, 1, 1, 2)");
    row("only unsound times", "delete from AlarmBaseInfo; update AlarmDefenceTimeInfo set Day = 9");
    row("no times", "delete from AlarmDefenceTimeInfo where AlarmUniqueID < 3");
    row("nothing but keys", "delete from AlarmDefenceTimeInfo; delete from AlarmBaseInfo");
    row("doors beyond 32 bits", "update AlarmLinkDoorInfo set AlarmLinkDoorID = 4294967299");
    row("doors that are texts", "update AlarmLinkDoorInfo set AlarmLinkDoorID = 'door'");
    row("types that are no integers", "insert into AlarmUniqueID(strEventSource, AlarmType) values"
                                      "('1$1$0$2', 'x'), ('1$1$0$2', NULL), ('1$1$0$2', 3.5), "
                                      "('1$1$0$2', 4294967299), ('9', 4294967299), ('9', x'33')");
    row("keys that are blobs", "insert into AlarmUniqueID(strEventSource, AlarmType) values"
                               "(x'31', 3), (x'', 3), (cast('1$1$0$2' as blob), 3)");
    row("keys that are no text", "insert into AlarmUniqueID(strEventSource, AlarmType) values"
                                 "(cast(x'80C3FF' as text), 3), (NULL, 3), ('', 3), (char(65279) || 'a', 3)");
    row("keys that are columns", "insert into AlarmUniqueID(strEventSource, AlarmType) values"
                                 "('bopen', 3), ('Day', 3), ('rowid', 3), ('windowID', 4)");
    row("an owner that is no integer",
        "update AlarmLinkDoorInfo set AlarmUniqueID = 1.5 where id = 1; update "
        "AlarmLinkDoorInfo set AlarmUniqueID = '1x' where id = 2");
    row("scheme ids beyond 32 bits",
        "update AlarmUniqueID set AlarmUniqueID = 4294967297 where AlarmUniqueID "
        "= 1; update AlarmBaseInfo set AlarmUniqueID = 4294967297 where id = 1");
    row("dictionary ids beyond 32 bits",
        "update AlarmLinkAlarmOutID set AlarmLinkAlarmOutID = 4294967297 where AlarmLinkAlarmOutID = 1; "
        "update "
        "AlarmLinkAlarmOutInfo set AlarmLinkAlarmOutID = 4294967297 where AlarmLinkAlarmOutID = 1");
    row("dictionaries with doubles and blobs",
        "insert into AlarmLinkVideoID(strLinkDevID) select strLinkDevID from AlarmLinkVideoID; update "
        "AlarmLinkVideoID set strLinkDevID = x'31' where AlarmLinkVideoID = 1; update AlarmLinkAlarmOutID "
        "set "
        "strLinkAlarmID = NULL where AlarmLinkAlarmOutID = 1");
}

void SchemeStoreRoadsTest::strangeRowsComeOutAsByTheLiteralStatements()
{
    QFETCH(QString, change);
    Change(change);
    Fork();
    QVERIFY(m_raw->Content() == m_other->Content());
    CompareLoads();
    AlarmInfoMap map = Doors();
    map.insert(Key("9$1$0$9", 3), Rich());
    map.remove(Key("1$1$0$1", 3));
    SaveBoth(map);
    CompareLoads();
    SaveBoth(Doors());
    CompareLoads();
    QCOMPARE(m_store->FailedStatements(), int64_t(0));
    QCOMPARE(m_log->Messages(), QStringList());
}

void SchemeStoreRoadsTest::aSecondOutputInAListKeepsThePlaceOfTheFirst()
{
    Fork();
    AlarmInfoMap map = Doors();
    map.first().listAlarmOut = {Output("a", 1), Output("b", 2), Output("a", 3, false)};
    SaveBoth(map);
    AlarmInfoMap loaded;
    QCOMPARE(m_store->ReadAll(&loaded), 0);
    QCOMPARE(loaded.first().listAlarmOut, (QList<AlarmLinkAlarmOut>{Output("a", 3, false), Output("b", 2)}));
}

void SchemeStoreRoadsTest::manyDoublesInAListKeepTheirFirstPlaces()
{
    Fork();
    AlarmInfoMap map = Doors();
    for (int i = 0; i < 100; ++i) {
        map.first().listAlarmOut.append(
            AlarmLinkAlarmOut{EventSource::AlarmOutput(i * 7 % 30), i % 2 == 0, i});
        map.first().listDoor.append(AlarmLinkDoor{QString::number(i * 11 % 40), i % 3 == 0});
    }
    SaveBoth(map);
    CompareLoads();
    AlarmInfoMap loaded;
    m_store->ReadAll(&loaded);
    QCOMPARE(loaded.first().listAlarmOut.size(), 2 + 30);
}

void SchemeStoreRoadsTest::doorsAreDoublesByTheirNumber()
{
    Fork();
    AlarmInfoMap map = Doors();
    map.first().listDoor.clear();
    for (const char* door : {"7", " 7", "+7", "07", "x", "", "0", "4294967303", "9223372036854775808", "-7"})
        map.first().listDoor.append(AlarmLinkDoor{QString::fromLatin1(door), true});
    SaveBoth(map);
    AlarmInfoMap loaded;
    m_store->ReadAll(&loaded);
    QStringList doors;
    for (const AlarmLinkDoor& door : qAsConst(loaded.first().listDoor))
        doors.append(door.strDoorID);
    QCOMPARE(doors, (QStringList{QStringLiteral("7"), QStringLiteral("0"), QStringLiteral("4294967303"),
                                 QStringLiteral("-7")}));
}

void SchemeStoreRoadsTest::anOversizedLayoutWritesSixtyFourCellsAndLeavesTheRest()
{
    Change(QStringLiteral("insert into AlarmSplitInfo(AlarmUniqueID, windowID, iCombine) values(2, 64, 5), "
                          "(2, 100, 5)"));
    Fork();
    AlarmInfoMap map = Doors();
    for (const int side : {70000, std::numeric_limits<int>::max(), 1, -3, 0}) {
        AlarmVideoSplit& split = map[Key("1$1$0$1", 3)].videoSplit;
        split.SplitRow = side;
        split.SplitCloum = side;
        split.cells[0].iCombine = side;
        SaveBoth(map);
        QCOMPARE(m_raw->Value(QStringLiteral("select count(*) from AlarmSplitInfo where AlarmUniqueID = 2")),
                 QStringLiteral("66"));
    }
}

void SchemeStoreRoadsTest::dictionariesAndCountersGrowAsByTheLiteralStatements()
{
    Fork();
    AlarmInfoMap map;
    for (int round = 0; round < 4; ++round) {
        AlarmInfo info = Rich();
        info.listAlarmOut.append(AlarmLinkAlarmOut{EventSource::AlarmOutput(100 - round), true, 1});
        info.videoSplit.videoLinks[2].strLinkDevID = EventSource::Door(round % 2, 1);
        map.insert({EventSource::Door(50 - round, 1), round}, info);
        SaveBoth(map);
    }
    QCOMPARE(m_raw->Value(QStringLiteral("select group_concat(strLinkAlarmID) from AlarmLinkAlarmOutID")),
             QStringLiteral("31$3$0$0,30$3$0$0,100$3$0$0,99$3$0$0,98$3$0$0,97$3$0$0"));
}

void SchemeStoreRoadsTest::theStampIsWrittenOnceWithTheClockHandedIn()
{
    m_store->SetClock([] { return QDateTime(QDate(2031, 2, 3), QTime(4, 5, 6)); });
    const AlarmInfoMap map = Doors();
    {
        const Counter stamps(m_store->GetHandle(), "update baseinfo set ModifyTime");
        QCOMPARE(m_store->SaveSchemes(map), 0);
        QCOMPARE(stamps.Count(), 1);
    }
    QCOMPARE(m_raw->Value(QStringLiteral("select ModifyTime from BaseInfo")),
             QStringLiteral("2031/2/3 04:05:06"));
    m_store->SetClock({});
    QCOMPARE(m_store->SaveAll(&map), 0);
    QVERIFY(m_raw->Value(QStringLiteral("select ModifyTime from BaseInfo")) !=
            QLatin1String("2031/2/3 04:05:06"));
}

void SchemeStoreRoadsTest::savingSomeSchemesLeavesTheOthers()
{
    Fork();
    AlarmInfoMap some;
    some.insert(Key("1$1$0$1", 3), Rich());
    some.insert(Key("2$1$0$1", 3), Rich());
    m_literal->SaveSome(some);
    QCOMPARE(m_store->SaveSchemes(some), 0);
    CompareFiles();
    QCOMPARE(m_raw->Value(QStringLiteral("select sum(bOpen) from AlarmBaseInfo")), QStringLiteral("5"));
}

void SchemeStoreRoadsTest::savingNoSchemesOnlyStamps()
{
    Fork();
    Change(QStringLiteral("update BaseInfo set ModifyTime = 'never'"));
    QCOMPARE(m_store->SaveSchemes({}), 0);
    CompareFiles();
    QVERIFY(m_raw->Value(QStringLiteral("select ModifyTime from BaseInfo")) != QLatin1String("never"));
}

void SchemeStoreRoadsTest::disablingHitsExactlyTheSchemesThatTheMapMisses()
{
    Change(QStringLiteral(
        "insert into AlarmUniqueID(strEventSource, AlarmType) values('1$1$0$0', 3), ('1$1$0$0', -3), "
        "('1$1$0', 3), ('1$1$0$00', 4), (x'31243124302430', 3), ('1$1$0$0', 'x'), ('z', 3), (NULL, 3), "
        "('\xE9\x97\xA8', 3), ('\xF0\x9F\x9A\xAA', 3), ('\xEF\xBF\xBD', 3), ('a', 4294967299); insert into "
        "AlarmBaseInfo(AlarmUniqueID, bOpen) select AlarmUniqueID, 1 from AlarmUniqueID"));
    Fork();
    AlarmInfoMap map;
    for (const char* source :
         {"0", "1$1$0$0", "1$1$0$3", "1$1$0$33", "a", "\xF0\x9F\x9A\xAA", "\xEF\xBF\xBD"})
        map.insert(Key(source, 3), AlarmInfo());
    map.insert(Key("1$1$0$00", 3), AlarmInfo());
    SaveBoth(map);
    // Once more with the literal list of ids, in the order of the rows.
    const Counter statement(
        m_store->GetHandle(),
        "update AlarmBaseInfo set  bOpen = 0  where AlarmUniqueID in (2 ,3 ,5 ,7 ,8 ,9 ,");
    QCOMPARE(m_store->DisableAllSchemesBut(map), 0);
    QCOMPARE(statement.Count(), 1);
}

void SchemeStoreRoadsTest::equalTextsOfALoadedMapShareTheirMemory()
{
    AlarmInfoMap map = Doors();
    map.insert(Key("1$1$0$4", 4), Rich());
    map.insert(Key("\xC3\xBC", 4), AlarmInfo());
    map.insert(Key("\xC3\xBC", 5), AlarmInfo());
    QCOMPARE(m_store->SaveAll(&map), 0);
    for (const bool known : {true, false}) {
        if (!known)
            Change(QStringLiteral("create view V as select 1"));
        AlarmInfoMap loaded;
        QCOMPARE(m_store->ReadAll(&loaded), 0);
        QVERIFY(loaded == map);
        QHash<QString, const QChar*> texts;
        const auto isShared = [&texts](const QString& text) {
            if (!texts.contains(text))
                texts.insert(text, text.constData());
            return texts.value(text) == text.constData();
        };
        for (auto entry = loaded.cbegin(); entry != loaded.cend(); ++entry) {
            QVERIFY(isShared(entry.key().strEventSource));
            for (const AlarmLinkAlarmOut& link : entry->listAlarmOut)
                QVERIFY(isShared(link.strLinkAlarmID));
            for (const AlarmLinkVideo& link : entry->videoSplit.videoLinks)
                QVERIFY(isShared(link.strLinkDevID));
        }
        QVERIFY(texts.size() >= 10);
    }
}

void SchemeStoreRoadsTest::equalWeeksAndCellsOfALoadedMapShareTheirMemory()
{
    AlarmInfoMap map;
    map.insert(Key("1", 1), Rich());
    map.insert(Key("1", 2), Rich());
    AlarmInfo never;
    for (int day = 0; day < AlarmWeek::DayCount; ++day)
        never.defenceTime[day].clear();
    map.insert(Key("1", 3), never);
    map.insert(Key("1", 4), never);
    map.insert(Key("1", 5), AlarmInfo());
    QCOMPARE(m_store->SaveAll(&map), 0);
    AlarmInfoMap loaded;
    QCOMPARE(m_store->ReadAll(&loaded), 0);
    const auto week = [&loaded](int type) { return loaded.value(Key("1", type)).defenceTime; };
    QVERIFY(week(1).IsSharedWith(week(2)));
    QVERIFY(week(3).IsSharedWith(week(4)));
    QVERIFY(week(5).IsSharedWith(AlarmWeek()));
    QVERIFY(
        loaded.value(Key("1", 1)).videoSplit.cells.IsSharedWith(loaded.value(Key("1", 2)).videoSplit.cells));
    for (auto entry = map.cbegin(); entry != map.cend(); ++entry)
        QVERIFY(loaded.value(entry.key()) == entry.value());
}

void SchemeStoreRoadsTest::aFailingStatementIsCountedLoggedAndLeavesTheRoad()
{
    // The writing of one table is refused as a full or broken disk would refuse it: in the middle.
    sqlite3_set_authorizer(
        m_store->GetHandle(),
        [](void*, int iAction, const char* szTable, const char*, const char*, const char*) {
            return iAction == SQLITE_DELETE && qstrcmp(szTable, "AlarmLinkDoorInfo") == 0 ? SQLITE_DENY
                                                                                          : SQLITE_OK;
        },
        nullptr);
    int asked = 0;
    QCOMPARE(m_store->SaveSchemes(Doors(), [&] { return ++asked > 0 && m_store->FailedStatements() == 0; }),
             0);
    sqlite3_set_authorizer(m_store->GetHandle(), nullptr, nullptr);
    QVERIFY(m_store->FailedStatements() > 0);
    QCOMPARE(int64_t(m_log->Messages().size()), m_store->FailedStatements());
    const QStringList messages = m_log->Messages();
    for (const QString& message : messages)
        QVERIFY(message.startsWith(QLatin1String("AlarmSchemeDatabaseParser ExecOnce failed, error = ")));
    QVERIFY(m_store->TakeFirstFailure());
}

void SchemeStoreRoadsTest::aLoadThatFailsOnTheWayIsDoneLiterally()
{
    sqlite3_set_authorizer(
        m_store->GetHandle(),
        [](void*, int iAction, const char* szTable, const char* szColumn, const char*, const char*) {
            return iAction == SQLITE_READ && qstrcmp(szTable, "AlarmLinkDoorInfo") == 0 &&
                           qstrcmp(szColumn, "bAlwaysOpen") == 0
                       ? SQLITE_DENY
                       : SQLITE_OK;
        },
        nullptr);
    AlarmInfoMap loaded;
    QCOMPARE(m_store->ReadAll(&loaded), 0);
    sqlite3_set_authorizer(m_store->GetHandle(), nullptr, nullptr);
    QCOMPARE(m_store->FailedStatements(), int64_t(5)); // the doors of each scheme
    AlarmInfoMap expected = Doors();
    for (AlarmInfo& info : expected)
        info.listDoor.clear();
    QVERIFY(loaded == expected);
}

QTEST_GUILESS_MAIN(SchemeStoreRoadsTest)
#include "tst_scheme_store_roads.moc"
