#include "AlarmCtrl/AlarmSchemeData/AlarmSchemeDatabaseParser.h"
#include "tests/AlarmSchemeData/RawDatabase.h"
#include "tests/AlarmSchemeData/SampleSchemes.h"
#include "tests/AlarmSchemeData/StoreFolder.h"

#include <QtTest>

#include <sqlite3.h>

using SampleSchemes::Key;
using SampleSchemes::Output;
using SampleSchemes::Rich;

class SchemeStoreWritesTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();

    void aSavedMapLoadsAsItWas();
    void savingTwiceLeavesOneRowAndTheSecondValues();
    void twoSchemesWithOneOutputAddOneDictionaryRow();
    void dictionariesNeverLoseRows();
    void anEmptyMapDisablesEverySchemeAndStamps();
    void schemesThatAreNotInTheMapAreDisabledOnly();
    void deletingUnknownKeysRunsNothingAndDoesNotStamp();
    void deletingRemovesEverythingOfTheScheme();
    void deletingAllButTheListedKeepsThem();
    void deletingWithAnEmptyListFails();
    void idListsAreJoinedWithABlankBeforeTheComma();
    void aDayWithoutRegionsWritesNoRowAndLoadsEmpty();
    void anEmptyWeekLoadsAsSevenEmptyDays();
    void savingOnlyTheEnabledFlagLeavesNoWeek();
    void aDoorThatIsNoNumberIsWrittenAsZero();
    void doorsBeyondThirtyTwoBitsAreWrittenWhole();
    void aSecondLinkToTheSameOutputUpdatesTheFirstRow();
    void splitRowsBeyondTheLayoutStay();
    void anOversizedSplitWritesSixtyFourCells_data();
    void anOversizedSplitWritesSixtyFourCells();
    void negativeWindowsAreWrittenButNotLoaded();
    void theStampIsTheLocalTimeWithoutLeadingZerosInTheDate();
    void everySaveStamps();
    void aKeyWithADoubleQuoteIsRefusedAndLogged();
    void aLinkWithADoubleQuoteIsSkipped();
    void aTextThatLooksLikeAStatementIsText();
    void aKeyThatIsAColumnNameIsReadAsTheColumn();
    void aFailingStatementIsSkippedAndTheRestCommitted();
    void aSaveWhoseKeyCannotBeMadeFailsBeforeItsTransaction();
    void savingNoMapFails();
    void aLongSaveCanBeEndedEarly();
    void aNewSchemeTakesOverRowsThatWaitForItsId();

private:
    QString Value(const char* szStatement) { return m_raw->Value(QString::fromLatin1(szStatement)); }
    QStringList Rows(const char* szStatement) { return m_raw->Rows(QString::fromLatin1(szStatement)); }
    void ForgetStamp()
    {
        QCOMPARE(m_raw->Run(QStringLiteral("update BaseInfo set ModifyTime = 'never'")), 0);
    }
    QString Stamp() { return Value("select ModifyTime from BaseInfo"); }

    std::unique_ptr<LogCatcher> m_log;
    std::unique_ptr<StoreFolder> m_folder;
    std::unique_ptr<AlarmSchemeDatabaseParser> m_store;
    std::unique_ptr<RawDatabase> m_raw;
};

void SchemeStoreWritesTest::init()
{
    m_log = std::make_unique<LogCatcher>();
    m_folder = std::make_unique<StoreFolder>();
    m_store = std::make_unique<AlarmSchemeDatabaseParser>();
    m_raw = std::make_unique<RawDatabase>(m_folder->File());
}

void SchemeStoreWritesTest::cleanup()
{
    QCOMPARE(m_store->GetTransactionDepth(), 0);
    m_raw.reset();
    m_store.reset();
    m_folder.reset();
    m_log.reset();
}

void SchemeStoreWritesTest::aSavedMapLoadsAsItWas()
{
    AlarmInfoMap map;
    map.insert(Key("1$1$0$2", 3), Rich());
    map.insert(Key("1$1$0$2", 4), AlarmInfo());
    map.insert(Key("1$1$0$-1", 22), Rich());
    QCOMPARE(m_store->SaveAll(&map), 0);
    AlarmInfoMap loaded;
    QCOMPARE(m_store->ReadAll(&loaded), 0);
    QVERIFY(loaded == map);
    QCOMPARE(m_store->FailedStatements(), int64_t(0));
    QCOMPARE(m_log->Messages(), QStringList());
}

void SchemeStoreWritesTest::savingTwiceLeavesOneRowAndTheSecondValues()
{
    AlarmInfoMap map;
    map.insert(Key("1$1$0$2", 3), Rich());
    QCOMPARE(m_store->SaveAll(&map), 0);
    AlarmInfo& second = map.first();
    second.bOpen = false;
    second.listAlarmOut = {Output("30$3$0$0", 7)};
    second.listDoor = {{QStringLiteral("99"), false}};
    second.videoSplit.videoLinks.remove(0);
    second.defenceTime[0] = {{7, 8}};
    QCOMPARE(m_store->SaveAll(&map), 0);
    QCOMPARE(Value("select count(*) from AlarmUniqueID"), QStringLiteral("1"));
    QCOMPARE(Value("select count(*) from AlarmBaseInfo"), QStringLiteral("1"));
    QCOMPARE(Rows("select AlarmLinkDoorID, bAlwaysOpen from AlarmLinkDoorInfo"),
             QStringList{QStringLiteral("99|0")});
    QCOMPARE(Rows("select bAutoOpen, Time from AlarmLinkAlarmOutInfo"), QStringList{QStringLiteral("1|7")});
    QCOMPARE(Value("select count(*) from AlarmSplitInfo"), QStringLiteral("6"));
    AlarmInfoMap loaded;
    QCOMPARE(m_store->ReadAll(&loaded), 0);
    QVERIFY(loaded == map);
}

void SchemeStoreWritesTest::twoSchemesWithOneOutputAddOneDictionaryRow()
{
    QCOMPARE(m_store->SaveAlarmOut(Key("a", 1), {Output("30$3$0$0", 5)}), 0);
    QCOMPARE(m_store->SaveAlarmOut(Key("b", 1), {Output("30$3$0$0", 6)}), 0);
    QCOMPARE(Rows("select * from AlarmLinkAlarmOutID"), QStringList{QStringLiteral("1|30$3$0$0")});
    QCOMPARE(Value("select count(*) from AlarmLinkAlarmOutInfo"), QStringLiteral("2"));
}

void SchemeStoreWritesTest::dictionariesNeverLoseRows()
{
    AlarmInfoMap map;
    map.insert(Key("a", 1), Rich());
    QCOMPARE(m_store->SaveAll(&map), 0);
    QCOMPARE(m_store->DeleteSchemes({Key("a", 1)}), 0);
    QCOMPARE(Value("select count(*) from AlarmLinkAlarmOutID"), QStringLiteral("2"));
    QCOMPARE(Value("select count(*) from AlarmLinkVideoID"), QStringLiteral("2"));
}

void SchemeStoreWritesTest::anEmptyMapDisablesEverySchemeAndStamps()
{
    QCOMPARE(m_store->SaveOpen(Key("a", 1), true), 0);
    QCOMPARE(m_store->SaveOpen(Key("b", 1), true), 0);
    ForgetStamp();
    const AlarmInfoMap empty;
    QCOMPARE(m_store->SaveAll(&empty), 0);
    QCOMPARE(Rows("select bOpen from AlarmBaseInfo"),
             (QStringList{QStringLiteral("0"), QStringLiteral("0")}));
    QVERIFY(Stamp() != QLatin1String("never"));
}

void SchemeStoreWritesTest::schemesThatAreNotInTheMapAreDisabledOnly()
{
    AlarmInfoMap map;
    map.insert(Key("a", 1), Rich());
    map.insert(Key("b", 1), Rich());
    QCOMPARE(m_store->SaveAll(&map), 0);
    map.remove(Key("a", 1));
    QCOMPARE(m_store->SaveAll(&map), 0);
    AlarmInfoMap loaded;
    QCOMPARE(m_store->ReadAll(&loaded), 0);
    AlarmInfo disabled = Rich();
    disabled.bOpen = false;
    QVERIFY(loaded.value(Key("a", 1)) == disabled);
    QVERIFY(loaded.value(Key("b", 1)) == Rich());
}

void SchemeStoreWritesTest::deletingUnknownKeysRunsNothingAndDoesNotStamp()
{
    QCOMPARE(m_store->SaveOpen(Key("a", 1), true), 0);
    ForgetStamp();
    const int before = sqlite3_total_changes(m_store->GetHandle());
    QCOMPARE(m_store->DeleteSchemes({Key("a", 2), Key("A", 1)}), 0);
    QCOMPARE(m_store->DeleteAllSchemesBut({Key("a", 1)}), 0);
    QCOMPARE(sqlite3_total_changes(m_store->GetHandle()), before);
    QCOMPARE(Stamp(), QStringLiteral("never"));
}

void SchemeStoreWritesTest::deletingRemovesEverythingOfTheScheme()
{
    AlarmInfoMap map;
    map.insert(Key("a", 1), Rich());
    map.insert(Key("b", 1), Rich());
    QCOMPARE(m_store->SaveAll(&map), 0);
    ForgetStamp();
    QCOMPARE(m_store->DeleteSchemes({Key("x", 9), Key("a", 1)}), 0);
    for (const char* table : {"AlarmUniqueID", "AlarmBaseInfo", "AlarmSplitInfo", "AlarmLinkVideoInfo",
                              "AlarmLinkDoorInfo", "AlarmLinkAlarmOutInfo", "AlarmDefenceTimeInfo"}) {
        QCOMPARE(m_raw->Value(QStringLiteral("select group_concat(distinct AlarmUniqueID) from %1")
                                  .arg(QLatin1String(table))),
                 QStringLiteral("2"));
    }
    QVERIFY(Stamp() != QLatin1String("never"));
}

void SchemeStoreWritesTest::deletingAllButTheListedKeepsThem()
{
    for (const char* source : {"a", "b", "c"})
        QCOMPARE(m_store->SaveOpen(Key(source, 1), true), 0);
    QCOMPARE(m_raw->Run(QStringLiteral("insert into AlarmUniqueID values(9, NULL, 1)")), 0);
    QCOMPARE(m_store->DeleteAllSchemesBut({Key("b", 1)}), 0);
    // A row without a key is no scheme of anybody.
    QCOMPARE(Rows("select AlarmUniqueID from AlarmUniqueID"),
             (QStringList{QStringLiteral("2"), QStringLiteral("9")}));
}

void SchemeStoreWritesTest::deletingWithAnEmptyListFails()
{
    QCOMPARE(m_store->SaveOpen(Key("a", 1), true), 0);
    QCOMPARE(m_store->DeleteSchemes({}), -1);
    QCOMPARE(m_store->DeleteAllSchemesBut({}), -1);
    QCOMPARE(Value("select count(*) from AlarmUniqueID"), QStringLiteral("1"));
}

void SchemeStoreWritesTest::idListsAreJoinedWithABlankBeforeTheComma()
{
    for (const char* source : {"a", "b", "c"})
        QCOMPARE(m_store->SaveOpen(Key(source, 1), true), 0);
    QStringList statements;
    sqlite3_trace_v2(
        m_store->GetHandle(), SQLITE_TRACE_STMT,
        [](unsigned, void* list, void*, void* text) {
            static_cast<QStringList*>(list)->append(QString::fromUtf8(static_cast<char*>(text)));
            return 0;
        },
        &statements);
    AlarmInfoMap map;
    map.insert(Key("b", 1), AlarmInfo());
    QCOMPARE(m_store->DisableAllSchemesBut(map), 0);
    QCOMPARE(m_store->DeleteSchemes({Key("c", 1), Key("a", 1)}), 0);
    sqlite3_trace_v2(m_store->GetHandle(), 0, nullptr, nullptr);
    QVERIFY(statements.contains(
        QStringLiteral("update AlarmBaseInfo set  bOpen = 0  where AlarmUniqueID in (1 ,3);")));
    QVERIFY(statements.contains(QStringLiteral("delete from AlarmUniqueID where AlarmUniqueID in (1 ,3);")));
}

void SchemeStoreWritesTest::aDayWithoutRegionsWritesNoRowAndLoadsEmpty()
{
    AlarmInfoMap map;
    map[Key("a", 1)].defenceTime[2].clear();
    QCOMPARE(m_store->SaveAll(&map), 0);
    QCOMPARE(Rows("select Day from AlarmDefenceTimeInfo order by Day").join(QLatin1Char(' ')),
             QStringLiteral("1 2 4 5 6 7"));
    AlarmInfoMap loaded;
    QCOMPARE(m_store->ReadAll(&loaded), 0);
    QCOMPARE(qAsConst(loaded).first().defenceTime[2].size(), 0);
    QVERIFY(loaded == map);
}

void SchemeStoreWritesTest::anEmptyWeekLoadsAsSevenEmptyDays()
{
    AlarmInfoMap map;
    for (int day = 0; day < AlarmWeek::DayCount; ++day)
        map[Key("a", 1)].defenceTime[day].clear();
    QCOMPARE(m_store->SaveAll(&map), 0);
    AlarmInfoMap loaded;
    QCOMPARE(m_store->ReadAll(&loaded), 0);
    QVERIFY(loaded == map);
}

void SchemeStoreWritesTest::savingOnlyTheEnabledFlagLeavesNoWeek()
{
    QCOMPARE(m_store->SaveOpen(Key("a", 1), true), 0);
    AlarmInfoMap loaded;
    QCOMPARE(m_store->ReadAll(&loaded), 0);
    for (int day = 0; day < AlarmWeek::DayCount; ++day)
        QCOMPARE(qAsConst(loaded).first().defenceTime[day].size(), 0);
}

void SchemeStoreWritesTest::aDoorThatIsNoNumberIsWrittenAsZero()
{
    QCOMPARE(m_store->SaveDoor(Key("a", 1), {{QStringLiteral("gate"), true},
                                             {QString(), false},
                                             {QStringLiteral("0x10"), false},
                                             {QStringLiteral("99999999999999999999"), true}}),
             0);
    // They all are door 0: one row, with the last value.
    QCOMPARE(Rows("select AlarmLinkDoorID, bAlwaysOpen from AlarmLinkDoorInfo"),
             QStringList{QStringLiteral("0|1")});
}

void SchemeStoreWritesTest::doorsBeyondThirtyTwoBitsAreWrittenWhole()
{
    const QList<AlarmLinkDoor> doors{{QStringLiteral("9223372036854775807"), true},
                                     {QStringLiteral("-4294967297"), false}};
    QCOMPARE(m_store->SaveDoor(Key("a", 1), doors), 0);
    AlarmInfo info;
    QCOMPARE(m_store->ReadDoor(Key("a", 1), info), 0);
    QCOMPARE(info.listDoor, doors);
}

void SchemeStoreWritesTest::aSecondLinkToTheSameOutputUpdatesTheFirstRow()
{
    QCOMPARE(m_store->SaveAlarmOut(Key("a", 1),
                                   {Output("30$3$0$0", 5), Output("31$3$0$0", 6), Output("30$3$0$0", 7)}),
             0);
    AlarmInfo info;
    QCOMPARE(m_store->ReadAlarmOut(Key("a", 1), info), 0);
    const QList<AlarmLinkAlarmOut> expected{Output("30$3$0$0", 7), Output("31$3$0$0", 6)};
    QCOMPARE(info.listAlarmOut, expected);
}

void SchemeStoreWritesTest::splitRowsBeyondTheLayoutStay()
{
    AlarmVideoSplit split;
    split.SplitRow = 4;
    split.SplitCloum = 4;
    split.cells[15].iCombine = 7;
    QCOMPARE(m_store->SaveVideo(Key("a", 1), split), 0);
    split.SplitRow = 1;
    split.SplitCloum = 1;
    split.cells[15].iCombine = 8;
    QCOMPARE(m_store->SaveVideo(Key("a", 1), split), 0);
    QCOMPARE(Value("select count(*) from AlarmSplitInfo"), QStringLiteral("16"));
    QCOMPARE(Value("select iCombine from AlarmSplitInfo where windowID = 15"), QStringLiteral("7"));
}

void SchemeStoreWritesTest::anOversizedSplitWritesSixtyFourCells_data()
{
    QTest::addColumn<int>("rows");
    QTest::addColumn<int>("columns");
    QTest::addColumn<QString>("written");
    QTest::newRow("nine by nine") << 9 << 9 << QStringLiteral("64");
    QTest::newRow("overflow") << 65537 << 65536 << QStringLiteral("64");
    QTest::newRow("negative") << -8 << 8 << QStringLiteral("0");
    QTest::newRow("two negatives") << -2 << -2 << QStringLiteral("4");
}

void SchemeStoreWritesTest::anOversizedSplitWritesSixtyFourCells()
{
    QFETCH(int, rows);
    QFETCH(int, columns);
    AlarmVideoSplit split;
    split.SplitRow = rows;
    split.SplitCloum = columns;
    QCOMPARE(m_store->SaveVideo(Key("a", 1), split), 0);
    QTEST(Value("select count(*) from AlarmSplitInfo"), "written");
    QCOMPARE(Value("select SplitRow from AlarmBaseInfo"), QString::number(rows));
    AlarmInfo info;
    QCOMPARE(m_store->ReadVideo(Key("a", 1), info), 0);
    QVERIFY(info.videoSplit == split);
}

void SchemeStoreWritesTest::negativeWindowsAreWrittenButNotLoaded()
{
    AlarmVideoSplit split;
    split.SplitCount = 3;
    split.videoLinks[-4].strLinkDevID = QStringLiteral("v");
    split.videoLinks[3].strLinkDevID = QStringLiteral("v");
    QCOMPARE(m_store->SaveVideo(Key("a", 1), split), 0);
    QCOMPARE(Rows("select WindowID from AlarmLinkVideoInfo"),
             (QStringList{QStringLiteral("-4"), QStringLiteral("3")}));
    AlarmInfo info;
    QCOMPARE(m_store->ReadVideo(Key("a", 1), info), 0);
    QVERIFY(info.videoSplit.videoLinks.isEmpty());
}

void SchemeStoreWritesTest::theStampIsTheLocalTimeWithoutLeadingZerosInTheDate()
{
    const QDateTime before = QDateTime::currentDateTime().addSecs(-1);
    QCOMPARE(m_store->SaveOpen(Key("a", 1), true), 0);
    const QString stamp = Stamp();
    const QRegularExpression form(
        QStringLiteral("^(\\d{4})/([1-9]\\d?)/([1-9]\\d?) (\\d\\d):(\\d\\d):(\\d\\d)$"));
    const QRegularExpressionMatch match = form.match(stamp);
    QVERIFY2(match.hasMatch(), qPrintable(stamp));
    const QDateTime time(
        QDate(match.captured(1).toInt(), match.captured(2).toInt(), match.captured(3).toInt()),
        QTime(match.captured(4).toInt(), match.captured(5).toInt(), match.captured(6).toInt()));
    QVERIFY(time >= before.addMSecs(-before.time().msec()) && time <= QDateTime::currentDateTime());
}

void SchemeStoreWritesTest::everySaveStamps()
{
    const AlarmSourceKey key = Key("a", 1);
    const AlarmInfo info = Rich();
    const std::vector<std::function<int32_t()>> saves{
        [&] { return m_store->SaveOpen(key, true); },
        [&] {
            return m_store->SaveNotify(key, AlarmNotifyInfo{true, true, true});
        },
        [&] { return m_store->SaveAlarmOut(key, info.listAlarmOut); },
        [&] { return m_store->SaveDoor(key, info.listDoor); },
        [&] { return m_store->SaveDefenceTime(key, info.defenceTime); },
        [&] { return m_store->SaveVideo(key, info.videoSplit); },
        [&] { return m_store->DisableAllSchemesBut(AlarmInfoMap()); },
        [&] { return m_store->DeleteSchemes({key}); },
    };
    for (const auto& save : saves) {
        ForgetStamp();
        QCOMPARE(save(), 0);
        QVERIFY(Stamp() != QLatin1String("never"));
        QCOMPARE(sqlite3_get_autocommit(m_store->GetHandle()), 1);
    }
}

void SchemeStoreWritesTest::aKeyWithADoubleQuoteIsRefusedAndLogged()
{
    QCOMPARE(m_store->SaveOpen(Key("a", 1), true), 0);
    const QStringList before = m_raw->Content();
    const AlarmSourceKey hostile = Key("x\",1; delete from AlarmUniqueID; --", 1);
    QCOMPARE(m_store->SaveOpen(hostile, true), -1);
    QCOMPARE(m_log->Entries().size(), 1);
    QVERIFY(m_log->Messages().at(0).startsWith(
        QLatin1String("AlarmSchemeDatabaseParser ExecOnce failed, error = ")));
    QCOMPARE(m_log->Entries().at(0).iLine, 1056);
    QCOMPARE(m_store->FailedStatements(), int64_t(2)); // the making and the looking up
    QCOMPARE(m_store->TakeFirstFailure()->iCode, AlarmSchemeStatementFailure::TextRefused + 0);

    AlarmInfoMap map;
    map.insert(hostile, Rich());
    map.insert(Key("a", 1), AlarmInfo());
    QCOMPARE(m_store->SaveAll(&map), 0);
    QCOMPARE(Rows("select strEventSource from AlarmUniqueID"), QStringList{QStringLiteral("a")});
    QVERIFY(m_raw->Content() != before);
}

void SchemeStoreWritesTest::aLinkWithADoubleQuoteIsSkipped()
{
    QCOMPARE(m_store->SaveAlarmOut(Key("a", 1), {Output("\"", 5), Output("30$3$0$0", 6)}), 0);
    AlarmInfo info;
    QCOMPARE(m_store->ReadAlarmOut(Key("a", 1), info), 0);
    QCOMPARE(info.listAlarmOut, QList<AlarmLinkAlarmOut>{Output("30$3$0$0", 6)});
    AlarmVideoSplit split;
    split.SplitCount = 9;
    split.videoLinks[0].strLinkDevID = QStringLiteral("a") + QChar(0) + QStringLiteral("b");
    split.videoLinks[1].strLinkDevID = QStringLiteral("v");
    QCOMPARE(m_store->SaveVideo(Key("a", 1), split), 0);
    QCOMPARE(Rows("select WindowID from AlarmLinkVideoInfo"), QStringList{QStringLiteral("1")});
    QCOMPARE(Rows("select strLinkDevID from AlarmLinkVideoID"), QStringList{QStringLiteral("v")});
}

void SchemeStoreWritesTest::aTextThatLooksLikeAStatementIsText()
{
    AlarmInfoMap map;
    for (const char* source : {"'; drop table AlarmUniqueID; --", "%1%2%3%4%5%6%7%8%9", "%L1", "a\\", "`",
                               "[x]", "a\nb\tc", " ", "*/ /*"})
        map.insert(Key(source, 1), Rich());
    map.insert(AlarmSourceKey{QString(5000, QLatin1Char('k')), -2147483647 - 1}, Rich());
    map[Key(" ", 1)].listAlarmOut = {Output("%1", 1), Output("%2", 2), Output("%4", 3)};
    map[Key(" ", 1)].videoSplit.videoLinks[0].strLinkDevID = QStringLiteral("%3 %8");
    QCOMPARE(m_store->SaveAll(&map), 0);
    AlarmInfoMap loaded;
    QCOMPARE(m_store->ReadAll(&loaded), 0);
    QVERIFY(loaded == map);
    QCOMPARE(m_store->FailedStatements(), int64_t(0));
}

void SchemeStoreWritesTest::aKeyThatIsAColumnNameIsReadAsTheColumn()
{
    // Between double quotes a name of a column is that column. No editor makes such a key; this pins what
    // would come of one: it finds the first scheme of its type, whoever's that is, and writes there.
    QCOMPARE(m_store->SaveOpen(Key("1$1$0$-1", 22), false), 0);
    QCOMPARE(m_store->SaveOpen(Key("strEventSource", 22), true), 0);
    QCOMPARE(Rows("select * from AlarmUniqueID"), QStringList{QStringLiteral("1|1$1$0$-1|22")});
    AlarmInfo info;
    QCOMPARE(m_store->ReadOpen(Key("1$1$0$-1", 22), info), 0);
    QVERIFY(info.bOpen);
    // Where no scheme has the type, a row of that name is made, and a later scheme of the type has its own.
    QCOMPARE(m_store->SaveOpen(Key("strEventSource", 23), true), 0);
    QCOMPARE(m_store->SaveOpen(Key("1$1$0$-1", 23), false), 0);
    QCOMPARE(Rows("select * from AlarmUniqueID"),
             (QStringList{QStringLiteral("1|1$1$0$-1|22"), QStringLiteral("2|strEventSource|23"),
                          QStringLiteral("3|1$1$0$-1|23")}));
    QCOMPARE(m_store->FailedStatements(), int64_t(0));
}

void SchemeStoreWritesTest::aFailingStatementIsSkippedAndTheRestCommitted()
{
    QCOMPARE(m_raw->Run(QStringLiteral("create trigger no_doors before insert on AlarmLinkDoorInfo begin "
                                       "select raise(abort, 'no doors'); end")),
             0);
    AlarmInfoMap map;
    map.insert(Key("a", 1), Rich());
    QCOMPARE(m_store->SaveAll(&map), 0);
    QCOMPARE(m_log->Messages(),
             (QStringList{QStringLiteral("AlarmSchemeDatabaseParser ExecOnce failed, error = no doors"),
                          QStringLiteral("AlarmSchemeDatabaseParser ExecOnce failed, error = no doors")}));
    QCOMPARE(m_store->FailedStatements(), int64_t(2));
    AlarmInfoMap loaded;
    QCOMPARE(m_store->ReadAll(&loaded), 0);
    map.first().listDoor.clear();
    QVERIFY(loaded == map);
}

void SchemeStoreWritesTest::aSaveWhoseKeyCannotBeMadeFailsBeforeItsTransaction()
{
    QCOMPARE(m_raw->Run(QStringLiteral("create trigger no_keys before insert on AlarmUniqueID begin "
                                       "select raise(abort, 'no keys'); end")),
             0);
    const AlarmSourceKey key = Key("a", 1);
    ForgetStamp();
    QCOMPARE(m_store->SaveOpen(key, true), -1);
    QCOMPARE(m_store->SaveNotify(key, AlarmNotifyInfo()), -1);
    QCOMPARE(m_store->SaveAlarmOut(key, {}), -1);
    QCOMPARE(m_store->SaveDoor(key, {}), -1);
    QCOMPARE(m_store->SaveDefenceTime(key, AlarmWeek()), -1);
    QCOMPARE(m_store->SaveVideo(key, AlarmVideoSplit()), -1);
    QCOMPARE(Stamp(), QStringLiteral("never"));
    QCOMPARE(m_store->GetTransactionDepth(), 0);
}

void SchemeStoreWritesTest::savingNoMapFails()
{
    QCOMPARE(m_store->SaveAll(nullptr), -1);
}

void SchemeStoreWritesTest::aLongSaveCanBeEndedEarly()
{
    AlarmInfoMap map;
    for (int type = 0; type < 5; ++type)
        map.insert(Key("a", type), AlarmInfo());
    int asked = 0;
    QCOMPARE(m_store->SaveAll(&map, [&asked] { return ++asked <= 2; }), 0);
    QCOMPARE(asked, 3);
    QCOMPARE(Rows("select AlarmType from AlarmUniqueID"),
             (QStringList{QStringLiteral("0"), QStringLiteral("1")}));
}

void SchemeStoreWritesTest::aNewSchemeTakesOverRowsThatWaitForItsId()
{
    QCOMPARE(m_raw->Run(QStringLiteral("insert into AlarmSplitInfo(AlarmUniqueID, windowID, iCombine) "
                                       "values(1, 0, 5), (1, 9, 5)")),
             0);
    AlarmVideoSplit split;
    split.SplitRow = 1;
    split.SplitCloum = 1;
    QCOMPARE(m_store->SaveVideo(Key("a", 1), split), 0);
    QCOMPARE(Rows("select windowID, iCombine from AlarmSplitInfo"),
             (QStringList{QStringLiteral("0|0"), QStringLiteral("9|5")}));
}

QTEST_GUILESS_MAIN(SchemeStoreWritesTest)
#include "tst_scheme_store_writes.moc"
