#include "client/store/AsStored.h"

#include "AlarmCtrl/AlarmSchemeData/AlarmSchemeDatabaseParser.h"
#include "tests/AlarmSchemeData/RandomSchemes.h"
#include "tests/AlarmSchemeData/StoreFolder.h"

#include <QtTest>

#include <limits>
#include <memory>

class AsStoredTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();

    void aFreshRecordIsItsOwnStoredForm();
    void theStoreGivesBackTheStoredForm();
    void theStoredFormIsStoredAsItIs();
    void theStoreGivesBackTheStoredFormOfAwkwardRecords_data();
    void theStoreGivesBackTheStoredFormOfAwkwardRecords();
    void aKeyIsKeptAsUtf8KeepsIt();
    void whatIsDefaultGoesOnSharingItsMemory();
    void wordsMayNameColumnsAndKeysOfTheEditorsDoNot();

private:
    /// What a load gives back of these after they were saved.
    AlarmInfoMap Through(const AlarmInfoMap& map)
    {
        AlarmSchemeDatabaseParser store;
        store.BeginTransaction();
        store.SaveSchemes(map);
        store.EndTransaction();
        AlarmInfoMap loaded;
        if (store.ReadAll(&loaded) != 0 || store.FailedStatements() != 0)
            qFatal("the store failed");
        return loaded;
    }

    std::unique_ptr<LogCatcher> m_log;
    std::unique_ptr<StoreFolder> m_folder;
};

Q_DECLARE_METATYPE(AlarmInfo)

void AsStoredTest::init()
{
    m_log = std::make_unique<LogCatcher>();
    m_folder = std::make_unique<StoreFolder>();
}

void AsStoredTest::cleanup()
{
    m_folder.reset();
    m_log.reset();
}

void AsStoredTest::aFreshRecordIsItsOwnStoredForm()
{
    QVERIFY(AsStored(AlarmInfo()) == AlarmInfo());
}

void AsStoredTest::theStoreGivesBackTheStoredForm()
{
    constexpr int Records = 200;
    AlarmInfoMap map;
    for (int seed = 1; seed <= Records; ++seed) {
        const AlarmSourceKey key{EventSource::Door(1, seed), 3};
        AlarmInfo info = RandomSchemes(quint32(seed)).Info();
        if (MayNameColumns(key, info)) { // no promise is made about these
            info.listAlarmOut.clear();
            info.videoSplit.videoLinks.clear();
        }
        map.insert(key, info);
    }
    const AlarmInfoMap loaded = Through(map);
    QCOMPARE(loaded.size(), Records);
    for (int seed = 1; seed <= Records; ++seed) {
        const AlarmSourceKey key{EventSource::Door(1, seed), 3};
        QVERIFY2(loaded.value(key) == AsStored(map.value(key)), qPrintable(QString::number(seed)));
    }
}

void AsStoredTest::theStoredFormIsStoredAsItIs()
{
    for (quint32 seed = 1; seed <= 500; ++seed) {
        const AlarmInfo stored = AsStored(RandomSchemes(seed).Info());
        QVERIFY2(AsStored(stored) == stored, qPrintable(QString::number(seed)));
    }
}

void AsStoredTest::theStoreGivesBackTheStoredFormOfAwkwardRecords_data()
{
    QTest::addColumn<AlarmInfo>("info");
    QTest::addColumn<AlarmInfo>("stored");

    AlarmInfo info;
    AlarmInfo stored;
    const auto row = [&info, &stored](const char* szName) {
        QTest::newRow(szName) << info << stored;
        info = AlarmInfo();
        stored = AlarmInfo();
    };
    info.listDoor = {
        {QStringLiteral("7"), false}, {QStringLiteral("8"), false}, {QStringLiteral("+07"), true}};
    stored.listDoor = {{QStringLiteral("7"), true}, {QStringLiteral("8"), false}};
    row("a door twice, written in two ways: the first place, the last value");
    info.listDoor = {{QStringLiteral("x"), true}, {QStringLiteral("0"), false}, {QString(), true}};
    stored.listDoor = {{QStringLiteral("0"), true}};
    row("doors that are no numbers are one door");
    info.listDoor = {{QStringLiteral("9223372036854775807"), true},
                     {QStringLiteral("9223372036854775808"), true}};
    stored.listDoor = {{QStringLiteral("9223372036854775807"), true}, {QStringLiteral("0"), true}};
    row("a door beyond 64 bits is no number");
    info.listAlarmOut = {
        {QStringLiteral("a"), true, 1}, {QStringLiteral("A"), true, 2}, {QStringLiteral("a"), false, 3}};
    stored.listAlarmOut = {{QStringLiteral("a"), false, 3}, {QStringLiteral("A"), true, 2}};
    row("an output twice");
    const QString half = QStringLiteral("a") + QChar(0xD83D);
    info.listAlarmOut = {{half, true, 1}};
    stored.listAlarmOut = {{QString::fromUtf8(half.toUtf8()), true, 1}};
    row("half a surrogate pair");
    info.videoSplit.SplitRow = std::numeric_limits<int32_t>::max();
    info.videoSplit.SplitCloum = std::numeric_limits<int32_t>::max();
    info.videoSplit.cells[63].iCombine = 5;
    stored = info;
    row("a layout of more cells than there are");
    info.videoSplit.SplitRow = -3;
    info.videoSplit.SplitCloum = 3;
    info.videoSplit.cells[0].iCombine = 5;
    stored.videoSplit.SplitRow = -3;
    stored.videoSplit.SplitCloum = 3;
    row("a layout of less than no cells");
    info.videoSplit.SplitCount = 2;
    for (const int window : {-1, 0, 1, 2})
        info.videoSplit.videoLinks[window].strLinkDevID = QString::number(window);
    stored.videoSplit.SplitCount = 2;
    for (const int window : {0, 1})
        stored.videoSplit.videoLinks[window].strLinkDevID = QString::number(window);
    row("channels outside the used cells");
    info.defenceTime[2] = {{5, 4}, {-1, 3}, {0, 0}, {10, 100000}, {7, 8}, {0, 0}};
    stored.defenceTime[2] = {{0, 0}, {10, 100000}, {7, 8}, {0, 0}};
    row("regions that are none");
    for (int day = 0; day < AlarmWeek::DayCount; ++day)
        info.defenceTime[day].clear();
    stored = info;
    row("a week that is never armed");
}

void AsStoredTest::theStoreGivesBackTheStoredFormOfAwkwardRecords()
{
    QFETCH(AlarmInfo, info);
    QFETCH(AlarmInfo, stored);
    QVERIFY(AsStored(info) == stored);
    const AlarmInfoMap loaded = Through({{{QStringLiteral("key"), 1}, info}});
    QVERIFY(loaded.first() == stored);
}

void AsStoredTest::aKeyIsKeptAsUtf8KeepsIt()
{
    const AlarmSourceKey sound{QString::fromUtf8("1$\xF0\x9F\x9A\xAA$0"), -5};
    QVERIFY(AsStored(sound) == sound);
    const AlarmSourceKey half{QString(QChar(0xDEAA)), 2};
    const AlarmInfoMap loaded = Through({{half, AlarmInfo()}});
    QCOMPARE(loaded.size(), 1);
    QVERIFY(loaded.firstKey() == AsStored(half));
}

void AsStoredTest::whatIsDefaultGoesOnSharingItsMemory()
{
    AlarmInfo info;
    info.defenceTime[0].append({5, 4}); // none, so that the week becomes a fresh one
    info.videoSplit.cells[9].iCombine = 1;
    const AlarmInfo stored = AsStored(info);
    QVERIFY(stored.defenceTime.IsSharedWith(AlarmWeek()));
    QVERIFY(stored.videoSplit.cells.IsSharedWith(AlarmSplitCells()));
}

void AsStoredTest::wordsMayNameColumnsAndKeysOfTheEditorsDoNot()
{
    const auto key = [](const char* szText) { return AlarmSourceKey{QString::fromLatin1(szText), 1}; };
    for (const char* text : {"strEventSource", "oid", "_ROWID_", "X1"})
        QVERIFY2(MayNameColumns(key(text), AlarmInfo()), text);
    for (const char* text : {"", "1", "1$1$0$-1", "a key", "1X"})
        QVERIFY2(!MayNameColumns(key(text), AlarmInfo()), text);
    AlarmInfo output;
    output.listAlarmOut.append({QStringLiteral("rowid"), true, 20});
    QVERIFY(MayNameColumns(key("1$1$0$0"), output));
    AlarmInfo channel;
    channel.videoSplit.videoLinks[3].strLinkDevID = QStringLiteral("rowid");
    QVERIFY(MayNameColumns(key("1$1$0$0"), channel));
}

QTEST_GUILESS_MAIN(AsStoredTest)
#include "tst_as_stored.moc"
