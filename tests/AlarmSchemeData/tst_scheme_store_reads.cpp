#include "AlarmCtrl/AlarmSchemeData/AlarmSchemeDatabaseParser.h"
#include "tests/AlarmSchemeData/RawDatabase.h"
#include "tests/AlarmSchemeData/SampleSchemes.h"
#include "tests/AlarmSchemeData/StoreFolder.h"

#include <QtTest>

using SampleSchemes::Key;

class SchemeStoreReadsTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();

    void aKeyWithNoRowsOfItsOwnLoadsAsAFreshScheme();
    void aBaseRowWithoutTimeRowsLoadsAsSevenEmptyDays();
    void timeRowsWithoutABaseRowKeepTheirDays();
    void unsoundTimeRowsAreNotLoaded_data();
    void unsoundTimeRowsAreNotLoaded();
    void timeRowsKeepTheirOrder();
    void aStoredMondayIsPositionOne();
    void cellsBeyondTheLayoutOrTheSixtyFourAreIgnored();
    void videoRowsAtOrBeyondTheCountAreIgnored();
    void videoRowsKeepTheirOrderWithinAWindow();
    void aDanglingVideoIdRemovesTheWindow();
    void aDanglingOutputIdRemovesTheLink();
    void doorIdsAreReadAsText();
    void twoRowsOfOneKeyLoadOnce();
    void aRowWithoutAKeyIsSkipped();
    void theFirstBaseRowIsRead();
    void readingTheEnabledFlagOfAnUnknownKeyResetsIt();
    void readingTheNotificationOfAnUnknownKeyKeepsTheMailFlag();
    void readingTheSplitOfAnUnknownKeyKeepsTheCounts();
    void lookingUpAnUnknownKeyFindsNothing();
    void lookingUpAKnownKeyGivesItsId();
    void aFullLoadEmptiesTheMapFirst();
    void aFullLoadWithoutAMapFails();
    void aFullLoadWithoutTheKeyTableFailsOutsideAnyTransaction();
    void aReadThatDoesNotCompileResetsItsPartAndIsCounted();
    void aReadThatFailsWhileItRunsIsCountedAndSucceeds();
    void aTextWithADoubleQuoteFailsAReadWithoutALogLine();
    void aPlaceholderInAKeyIsText();
    void loadedDefaultsShareTheirMemory();

private:
    void Insert(const char* szStatement);

    std::unique_ptr<LogCatcher> m_log;
    std::unique_ptr<StoreFolder> m_folder;
    std::unique_ptr<AlarmSchemeDatabaseParser> m_store;
    std::unique_ptr<RawDatabase> m_raw;
};

void SchemeStoreReadsTest::init()
{
    m_log = std::make_unique<LogCatcher>();
    m_folder = std::make_unique<StoreFolder>();
    m_store = std::make_unique<AlarmSchemeDatabaseParser>();
    m_raw = std::make_unique<RawDatabase>(m_folder->File());
    Insert("insert into AlarmUniqueID values(5, '1$1$0$2', 3)");
}

void SchemeStoreReadsTest::cleanup()
{
    m_raw.reset();
    m_store.reset();
    m_folder.reset();
    m_log.reset();
}

void SchemeStoreReadsTest::Insert(const char* szStatement)
{
    QCOMPARE(m_raw->Run(QString::fromLatin1(szStatement)), 0);
}

void SchemeStoreReadsTest::aKeyWithNoRowsOfItsOwnLoadsAsAFreshScheme()
{
    AlarmInfoMap map;
    QCOMPARE(m_store->ReadAll(&map), 0);
    QCOMPARE(map.size(), 1);
    QVERIFY(map.firstKey() == Key("1$1$0$2", 3));
    QVERIFY(map.first() == AlarmInfo());
}

void SchemeStoreReadsTest::aBaseRowWithoutTimeRowsLoadsAsSevenEmptyDays()
{
    Insert("insert into AlarmBaseInfo(AlarmUniqueID, bOpen) values(5, 1)");
    AlarmInfoMap map;
    QCOMPARE(m_store->ReadAll(&map), 0);
    const AlarmInfo& info = map.first();
    QVERIFY(info.bOpen);
    for (int day = 0; day < AlarmWeek::DayCount; ++day)
        QCOMPARE(info.defenceTime[day].size(), 0);
}

void SchemeStoreReadsTest::timeRowsWithoutABaseRowKeepTheirDays()
{
    Insert("insert into AlarmDefenceTimeInfo(AlarmUniqueID, Day, Begin, End) values(5, 9, 0, 5)");
    AlarmInfoMap map;
    QCOMPARE(m_store->ReadAll(&map), 0);
    QCOMPARE(qAsConst(map).first().defenceTime[0].size(), 0);
}

void SchemeStoreReadsTest::unsoundTimeRowsAreNotLoaded_data()
{
    QTest::addColumn<QString>("values");
    QTest::newRow("day 0") << QStringLiteral("0, 10, 20");
    QTest::newRow("day 8") << QStringLiteral("8, 10, 20");
    QTest::newRow("day -1") << QStringLiteral("-1, 10, 20");
    QTest::newRow("a day that is 1 in 32 bits") << QStringLiteral("4294967297, 10, 20");
    QTest::newRow("no day") << QStringLiteral("NULL, 10, 20");
    QTest::newRow("a word for a day") << QStringLiteral("'Sunday', 10, 20");
    QTest::newRow("negative begin") << QStringLiteral("1, -1, 20");
    QTest::newRow("negative end") << QStringLiteral("1, -20, -10");
    QTest::newRow("begin after end") << QStringLiteral("1, 20, 10");
    QTest::newRow("a begin that is small in 32 bits") << QStringLiteral("1, 4294967297, 4294967299");
    QTest::newRow("an end beyond 32 bits") << QStringLiteral("1, 0, 2147483648");
}

void SchemeStoreReadsTest::unsoundTimeRowsAreNotLoaded()
{
    QFETCH(QString, values);
    QCOMPARE(m_raw->Run(QStringLiteral("insert into AlarmDefenceTimeInfo(AlarmUniqueID, Day, Begin, End) "
                                       "values(5, %1), (5, 2, 7, 7)")
                            .arg(values)),
             0);
    AlarmInfo info;
    QCOMPARE(m_store->ReadDefenceTime(Key("1$1$0$2", 3), info), 0);
    for (int day = 0; day < AlarmWeek::DayCount; ++day)
        QCOMPARE(qAsConst(info).defenceTime[day].size(), day == 1 ? 1 : 0);
}

void SchemeStoreReadsTest::timeRowsKeepTheirOrder()
{
    Insert(
        "insert into AlarmDefenceTimeInfo(AlarmUniqueID, Day, Begin, End) values(5, 7, 500, 600), (5, 7, 0, "
        "100000), (5, 7, 500, 600)");
    AlarmInfo info;
    QCOMPARE(m_store->ReadDefenceTime(Key("1$1$0$2", 3), info), 0);
    const AlarmDefenceTime_t expected{{500, 600}, {0, 100000}, {500, 600}};
    QCOMPARE(qAsConst(info).defenceTime[6], expected);
}

void SchemeStoreReadsTest::aStoredMondayIsPositionOne()
{
    Insert("insert into AlarmDefenceTimeInfo(AlarmUniqueID, Day, Begin, End) values(5, 2, 1, 2)");
    AlarmInfo info;
    QCOMPARE(m_store->ReadDefenceTime(Key("1$1$0$2", 3), info), 0);
    QCOMPARE(qAsConst(info).defenceTime[1], (AlarmDefenceTime_t{{1, 2}}));
}

void SchemeStoreReadsTest::cellsBeyondTheLayoutOrTheSixtyFourAreIgnored()
{
    Insert("insert into AlarmBaseInfo(AlarmUniqueID, SplitRow, SplitCloum) values(5, 2, 2)");
    Insert("insert into AlarmSplitInfo(AlarmUniqueID, windowID, bEnable, iCombine, X1, X2, Y1, Y2) values"
           "(5, 3, 0, 9, 1, 2, 3, 4), (5, 4, 0, 9, 1, 2, 3, 4), (5, 64, 0, 9, 1, 2, 3, 4), "
           "(5, -1, 0, 9, 1, 2, 3, 4), (5, 2147483647, 0, 9, 1, 2, 3, 4)");
    AlarmInfo info;
    QCOMPARE(m_store->ReadSplit(Key("1$1$0$2", 3), info), 0);
    AlarmVideoSplit expected;
    expected.SplitRow = 2;
    expected.SplitCloum = 2;
    expected.cells[3] = AlarmSplitWindow{false, 9, 1, 3, 2, 4};
    QVERIFY(info.videoSplit == expected);

    Insert("update AlarmBaseInfo set SplitRow = 65536, SplitCloum = 65536");
    QCOMPARE(m_store->ReadSplit(Key("1$1$0$2", 3), info), 0);
    expected.SplitRow = 65536;
    expected.SplitCloum = 65536;
    expected.cells[4] = expected.cells[3];
    QVERIFY(info.videoSplit == expected);
}

void SchemeStoreReadsTest::videoRowsAtOrBeyondTheCountAreIgnored()
{
    Insert("insert into AlarmBaseInfo(AlarmUniqueID, SplitCount) values(5, 2)");
    Insert("insert into AlarmLinkVideoID values(4, '9$1$0$0')");
    Insert("insert into AlarmLinkVideoInfo(AlarmUniqueID, AlarmLinkVideoID, WindowID, bOpen, bRecord, "
           "Preposition, "
           "StreamType, Time) values(5, 4, 1, 0, 1, 6, 7, 8), (5, 4, 2, 0, 1, 6, 7, 8), (5, 4, -1, 0, 1, 6, "
           "7, 8)");
    AlarmInfo info;
    info.videoSplit.videoLinks[40].Time = 1;
    QCOMPARE(m_store->ReadVideo(Key("1$1$0$2", 3), info), 0);
    QCOMPARE(info.videoSplit.videoLinks.keys(), QList<int32_t>{1});
    QVERIFY(info.videoSplit.videoLinks.first() ==
            (AlarmLinkVideo{QStringLiteral("9$1$0$0"), 6, 7, false, true, 8}));
}

void SchemeStoreReadsTest::videoRowsKeepTheirOrderWithinAWindow()
{
    Insert("insert into AlarmBaseInfo(AlarmUniqueID, SplitCount) values(5, 2)");
    Insert("insert into AlarmLinkVideoID values(4, 'a'), (6, 'b')");
    Insert("insert into AlarmLinkVideoInfo(AlarmUniqueID, AlarmLinkVideoID, WindowID, Time) values"
           "(5, 4, 1, 10), (5, 6, 1, 11)");
    AlarmInfo info;
    QCOMPARE(m_store->ReadVideo(Key("1$1$0$2", 3), info), 0);
    QCOMPARE(info.videoSplit.videoLinks.value(1).strLinkDevID, QStringLiteral("b"));
    QCOMPARE(info.videoSplit.videoLinks.value(1).Time, 11);
}

void SchemeStoreReadsTest::aDanglingVideoIdRemovesTheWindow()
{
    Insert("insert into AlarmBaseInfo(AlarmUniqueID, SplitCount) values(5, 9)");
    Insert("insert into AlarmLinkVideoID values(4, 'a')");
    Insert("insert into AlarmLinkVideoInfo(AlarmUniqueID, AlarmLinkVideoID, WindowID) values"
           "(5, 4, 1), (5, 77, 1), (5, 77, 2), (5, 4, 2), (5, NULL, 3)");
    AlarmInfo info;
    QCOMPARE(m_store->ReadVideo(Key("1$1$0$2", 3), info), 0);
    // A later good row brings the window back.
    QCOMPARE(info.videoSplit.videoLinks.keys(), QList<int32_t>{2});
}

void SchemeStoreReadsTest::aDanglingOutputIdRemovesTheLink()
{
    Insert("insert into AlarmLinkAlarmOutID values(4, '9$3$0$0'), (8, NULL)");
    Insert("insert into AlarmLinkAlarmOutInfo(AlarmUniqueID, AlarmLinkAlarmOutID, bAutoOpen, Time) values"
           "(5, 77, 1, 5), (5, 4, 0, 60), (5, NULL, 1, 5), (5, 8, 1, 7)");
    AlarmInfo info;
    QCOMPARE(m_store->ReadAlarmOut(Key("1$1$0$2", 3), info), 0);
    QCOMPARE(info.listAlarmOut.size(), 2);
    QVERIFY(info.listAlarmOut.at(0) == (AlarmLinkAlarmOut{QStringLiteral("9$3$0$0"), false, 60}));
    QVERIFY(info.listAlarmOut.at(1) == (AlarmLinkAlarmOut{QString(), true, 7}));
}

void SchemeStoreReadsTest::doorIdsAreReadAsText()
{
    Insert("insert into AlarmLinkDoorInfo(AlarmUniqueID, AlarmLinkDoorID, bAlwaysOpen) values"
           "(5, 12, 1), (5, 9223372036854775807, 0), (5, 'gate', 0), (5, NULL, NULL)");
    AlarmInfo info;
    QCOMPARE(m_store->ReadDoor(Key("1$1$0$2", 3), info), 0);
    const QList<AlarmLinkDoor> expected{{QStringLiteral("12"), true},
                                        {QStringLiteral("9223372036854775807"), false},
                                        {QStringLiteral("gate"), false},
                                        {QString(), false}};
    QCOMPARE(info.listDoor, expected);
}

void SchemeStoreReadsTest::twoRowsOfOneKeyLoadOnce()
{
    Insert("insert into AlarmUniqueID values(6, '1$1$0$2', 3)");
    Insert("insert into AlarmBaseInfo(AlarmUniqueID, bOpen) values(6, 0), (5, 1)");
    AlarmInfoMap map;
    QCOMPARE(m_store->ReadAll(&map), 0);
    QCOMPARE(map.size(), 1);
    QVERIFY(map.first().bOpen);
}

void SchemeStoreReadsTest::aRowWithoutAKeyIsSkipped()
{
    Insert("insert into AlarmUniqueID values(6, NULL, 3), (7, '', NULL)");
    AlarmInfoMap map;
    QCOMPARE(m_store->ReadAll(&map), 0);
    QCOMPARE(map.size(), 2);
    QVERIFY(map.firstKey() == Key("", 0));
}

void SchemeStoreReadsTest::theFirstBaseRowIsRead()
{
    Insert("insert into AlarmBaseInfo(AlarmUniqueID, bOpen, bOpenSound, SplitRow) values(5, 1, 0, 4), (5, 0, "
           "1, 9)");
    AlarmInfoMap map;
    QCOMPARE(m_store->ReadAll(&map), 0);
    QVERIFY(map.first().bOpen && !map.first().bOpenSound);
    QCOMPARE(map.first().videoSplit.SplitRow, 4);
}

void SchemeStoreReadsTest::readingTheEnabledFlagOfAnUnknownKeyResetsIt()
{
    AlarmInfo info;
    info.bOpen = true;
    QCOMPARE(m_store->ReadOpen(Key("nobody", 3), info), 0);
    QVERIFY(!info.bOpen);
}

void SchemeStoreReadsTest::readingTheNotificationOfAnUnknownKeyKeepsTheMailFlag()
{
    AlarmInfo info;
    info.bOpenSound = true;
    info.bEmapTwinkle = true;
    info.bSendEmail = true;
    QCOMPARE(m_store->ReadNotify(Key("nobody", 3), info), 0);
    QVERIFY(!info.bOpenSound && !info.bEmapTwinkle && info.bSendEmail);
    Insert("insert into AlarmBaseInfo(AlarmUniqueID, bOpenSound) values(5, 1)");
    QCOMPARE(m_store->ReadNotify(Key("1$1$0$2", 3), info), 0);
    QVERIFY(info.bOpenSound && !info.bSendEmail);
}

void SchemeStoreReadsTest::readingTheSplitOfAnUnknownKeyKeepsTheCounts()
{
    AlarmInfo info;
    info.videoSplit.SplitRow = 3;
    info.videoSplit.SplitCount = 4;
    QCOMPARE(m_store->ReadSplit(Key("nobody", 3), info), 0);
    QCOMPARE(info.videoSplit.SplitRow, 3);
    QCOMPARE(info.videoSplit.SplitCount, 4);
}

void SchemeStoreReadsTest::lookingUpAnUnknownKeyFindsNothing()
{
    QVERIFY(!m_store->FindSchemeId(Key("1$1$0$2", 4)));
    QVERIFY(!m_store->FindVideoId(QStringLiteral("x")));
    QVERIFY(!m_store->FindAlarmOutId(QStringLiteral("x")));
    QCOMPARE(m_store->FailedStatements(), int64_t(0));
}

void SchemeStoreReadsTest::lookingUpAKnownKeyGivesItsId()
{
    Insert("insert into AlarmLinkVideoID values(-1, 'v')");
    Insert("insert into AlarmLinkAlarmOutID values(5000000000, 'o')");
    QVERIFY(m_store->FindSchemeId(Key("1$1$0$2", 3)) == 5);
    QVERIFY(m_store->FindVideoId(QStringLiteral("v")) == -1);
    QVERIFY(m_store->FindAlarmOutId(QStringLiteral("o")) == 5000000000);
}

void SchemeStoreReadsTest::aFullLoadEmptiesTheMapFirst()
{
    AlarmInfoMap map;
    map.insert(Key("old", 1), AlarmInfo());
    QCOMPARE(m_store->ReadAll(&map), 0);
    QCOMPARE(map.size(), 1);
    QCOMPARE(m_store->GetTransactionDepth(), 0);
}

void SchemeStoreReadsTest::aFullLoadWithoutAMapFails()
{
    QCOMPARE(m_store->ReadAll(nullptr), -1);
    QCOMPARE(m_store->GetTransactionDepth(), 0);
}

void SchemeStoreReadsTest::aFullLoadWithoutTheKeyTableFailsOutsideAnyTransaction()
{
    QCOMPARE(m_store->ExecOnce(QStringLiteral("drop table AlarmUniqueID")), 0);
    AlarmInfoMap map;
    map.insert(Key("old", 1), AlarmInfo());
    QCOMPARE(m_store->ReadAll(&map), -1);
    QVERIFY(map.isEmpty());
    QCOMPARE(m_store->GetTransactionDepth(), 0);
    QCOMPARE(m_store->FailedStatements(), int64_t(1));
    QCOMPARE(m_log->Messages(), QStringList());
}

void SchemeStoreReadsTest::aReadThatDoesNotCompileResetsItsPartAndIsCounted()
{
    QCOMPARE(m_store->ExecOnce(QStringLiteral("drop table AlarmDefenceTimeInfo")), 0);
    AlarmInfo info;
    QCOMPARE(m_store->ReadDefenceTime(Key("1$1$0$2", 3), info), -1);
    QCOMPARE(qAsConst(info).defenceTime[3].size(), 0);
    QCOMPARE(m_store->FailedStatements(), int64_t(1));
    QCOMPARE(m_log->Messages(), QStringList());
    AlarmInfoMap map;
    QCOMPARE(m_store->ReadAll(&map), 0); // what can be read is read
    QCOMPARE(map.size(), 1);
    QCOMPARE(m_store->FailedStatements(), int64_t(2));
}

void SchemeStoreReadsTest::aReadThatFailsWhileItRunsIsCountedAndSucceeds()
{
    // Another connection takes the table away: that shows when the compiled statement runs.
    AlarmInfo info;
    QCOMPARE(m_store->ReadDoor(Key("1$1$0$2", 3), info), 0);
    Insert("drop table AlarmLinkDoorInfo");
    QCOMPARE(m_store->ReadDoor(Key("1$1$0$2", 3), info), 0);
    QCOMPARE(m_store->FailedStatements(), int64_t(1));
    QVERIFY(m_store->TakeFirstFailure()->strMessage.contains(QLatin1String("AlarmLinkDoorInfo")));
}

void SchemeStoreReadsTest::aTextWithADoubleQuoteFailsAReadWithoutALogLine()
{
    AlarmInfo info;
    info.bOpen = true;
    const AlarmSourceKey quoted = Key("1\" or \"1\"=\"1", 3);
    QCOMPARE(m_store->ReadOpen(quoted, info), -1);
    QVERIFY(!info.bOpen);
    QVERIFY(!m_store->FindSchemeId(quoted));
    QCOMPARE(m_store->FailedStatements(), int64_t(2));
    const AlarmSourceKey cut{QStringLiteral("1$1$0$2") + QChar(0), 3};
    QVERIFY(!m_store->FindSchemeId(cut));
    QCOMPARE(m_store->FailedStatements(), int64_t(3));
    QCOMPARE(m_log->Messages(), QStringList());
}

void SchemeStoreReadsTest::aPlaceholderInAKeyIsText()
{
    Insert("insert into AlarmUniqueID values(6, '%2$%1$%3', 3)");
    Insert("insert into AlarmBaseInfo(AlarmUniqueID, bOpen, SplitRow, SplitCloum) values(6, 1, 1, 1)");
    Insert("insert into AlarmSplitInfo(AlarmUniqueID, windowID, iCombine) values(6, 0, 8)");
    AlarmInfo info;
    QCOMPARE(m_store->ReadOpen(Key("%2$%1$%3", 3), info), 0);
    QVERIFY(info.bOpen);
    QCOMPARE(m_store->ReadSplit(Key("%2$%1$%3", 3), info), 0);
    QCOMPARE(qAsConst(info).videoSplit.cells[0].iCombine, 8);
}

void SchemeStoreReadsTest::loadedDefaultsShareTheirMemory()
{
    AlarmInfoMap map;
    map.insert(Key("a", 1), AlarmInfo());
    map[Key("b", 1)].videoSplit.SplitRow = 8;
    map[Key("b", 1)].videoSplit.SplitCloum = 8;
    QCOMPARE(m_store->SaveAll(&map), 0);
    QCOMPARE(m_store->ReadAll(&map), 0);
    const AlarmInfo fresh;
    for (const AlarmInfo& info : qAsConst(map)) {
        QVERIFY(info.defenceTime.IsSharedWith(fresh.defenceTime));
        QVERIFY(info.videoSplit.cells.IsSharedWith(fresh.videoSplit.cells));
    }
}

QTEST_GUILESS_MAIN(SchemeStoreReadsTest)
#include "tst_scheme_store_reads.moc"
