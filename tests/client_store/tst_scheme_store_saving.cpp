#include "client/store/AlarmSchemeStoreBackend.h"
#include "client/store/StoredSchemes.h"

#include "tests/AlarmSchemeData/StoreFolder.h"
#include "tests/client_store/OtherProgram.h"
#include "tests/client_store/StoreClient.h"
#include "tests/client_store/TouchedTables.h"
#include "tests/store_faults/SoakCount.h"

#include <QSignalSpy>
#include <QtTest>

#include <memory>

using Answer = SchemeConflictAnswer;
using Client = StoreClient;
using Reason = SchemeStoreOutcome::Reason;

namespace {

const QString ForWriting = QStringLiteral("begin immediate");
constexpr std::chrono::milliseconds TooLong{60000};

AlarmSourceKey Door(int iDoor)
{
    return AlarmSourceKey{EventSource::Door(1, iDoor), 3};
}

/// Schemes with links in every part.
AlarmInfoMap Map(int iCount, bool bOpen = true)
{
    AlarmInfoMap map;
    for (int door = 0; door < iCount; ++door) {
        AlarmInfo& info = map[Door(door)];
        info.bOpen = bOpen;
        info.bSendEmail = true;
        info.listDoor.append({QString::number(door), true});
        info.listAlarmOut.append({EventSource::AlarmOutput(door), true, 20});
        info.videoSplit.SplitRow = 1;
        info.videoSplit.SplitCloum = 1;
        info.videoSplit.SplitCount = 1;
        info.videoSplit.videoLinks[0].strLinkDevID = EventSource::Door(2, door);
    }
    return map;
}

QSet<QString> Names(std::initializer_list<const char*> names)
{
    QSet<QString> set;
    for (const char* name : names)
        set.insert(QString::fromLatin1(name));
    return set;
}

AlarmInfoMap Stored()
{
    return Client().map;
}

} // namespace

/// What a save writes, when, and what it does about others.
class SchemeStoreSavingTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();

    void onlyTheChangedPartsAreWritten_data();
    void onlyTheChangedPartsAreWritten();
    void aNewSchemeGetsAllItsParts();
    void aStoredKeyAloneKeepsItsWeekWhenItIsSwitchedOn();
    void aSchemeThatIsLeftOutIsDisabledAndKeepsTheRest();
    void manyChangesAreHandedOverTogether();
    void withoutAChangeOnlyTheTimeOfTheSaveIsWritten();
    void aSecondSaveOfTheSameWritesNothing();
    void savingReturnsBeforeAnythingIsWritten();
    void theNewestMapIsSavedNext();
    void editingTheMapDuringASaveChangesNothingOfIt();
    void theEndWaitsForWhatWasTaken();
    void theEndAsksNothing();
    void loadingWaitsForTheSaveBeforeIt();
    void aFailureIsMadeUpForByTheNextSave();
    void aFailureDoesNotKeepTheQueuedMap();
    void aRefusedSaveIsToldAtOnce();
    void theOperatorMayCancel();
    void theOperatorMayReload();
    void theOperatorMaySaveOver();
    void theOperatorMayKeepTheOthersChanges();
    void withoutAnybodyToAskNothingIsSaved();
    void aForeignSaveThatChangedNothingIsNoConflict();
    void theSameChangeElsewhereIsNoConflict();
    void aChangeDuringTheQuestionIsAskedAboutToo();
    void aMapThatComesDuringTheQuestionIsSavedInstead();
    void keptChangesStayAndAreAskedAboutWhenTheyAreTouched();
    void aReloadDuringTheQuestionMakesTheAnswerVoid();
    void noUpdateIsLostBetweenTwoClients();
    void textsThatNameColumnsAreNoForeignChange();
    void theWindowStaysAliveDuringALongSave();

private:
    std::unique_ptr<LogCatcher> m_log;
    std::unique_ptr<StoreFolder> m_folder;
};

void SchemeStoreSavingTest::init()
{
    m_log = std::make_unique<LogCatcher>();
    m_folder = std::make_unique<StoreFolder>();
    Client client;
    client.map = Map(5);
    QCOMPARE(client.Save(), 0);
}

void SchemeStoreSavingTest::cleanup()
{
    m_folder.reset();
    m_log.reset();
}

void SchemeStoreSavingTest::onlyTheChangedPartsAreWritten_data()
{
    QTest::addColumn<int>("change");
    QTest::addColumn<QSet<QString>>("tables");
    QTest::newRow("enabled") << 0 << Names({"AlarmBaseInfo"});
    QTest::newRow("notification") << 1 << Names({"AlarmBaseInfo"});
    QTest::newRow("video") << 2 << Names({"AlarmBaseInfo", "AlarmSplitInfo", "AlarmLinkVideoInfo"});
    QTest::newRow("door") << 3 << Names({"AlarmLinkDoorInfo"});
    QTest::newRow("output") << 4 << Names({"AlarmLinkAlarmOutInfo"});
    QTest::newRow("week") << 5 << Names({"AlarmDefenceTimeInfo"});
}

void SchemeStoreSavingTest::onlyTheChangedPartsAreWritten()
{
    QFETCH(int, change);
    QFETCH(QSet<QString>, tables);
    const TouchedTables touched;
    Client client;
    AlarmInfo& info = client.map[Door(2)];
    if (change == 0)
        info.bOpen = !info.bOpen;
    else if (change == 1)
        info.bEmapTwinkle = true;
    else if (change == 2)
        info.videoSplit.videoLinks[0].Time = 9;
    else if (change == 3)
        info.listDoor[0].bAlwaysOpen = false;
    else if (change == 4)
        info.listAlarmOut[0].Time = 99;
    else
        info.defenceTime[3] = {{1, 2}};
    TouchedTables::Take();
    QCOMPARE(client.Save(), 0);
    QCOMPARE(TouchedTables::Take(), tables);
    QCOMPARE(client.saves.last().iSchemes, 1);
    QVERIFY(Stored() == client.map);
}

void SchemeStoreSavingTest::aNewSchemeGetsAllItsParts()
{
    Client client;
    client.map[Door(77)].bOpen = true;
    QCOMPARE(client.Save(), 0);
    QCOMPARE(client.saves.last().iSchemes, 1);
    QVERIFY(Stored().value(Door(77)).defenceTime == AlarmWeek());
    QVERIFY(Stored() == client.map);
}

void SchemeStoreSavingTest::aStoredKeyAloneKeepsItsWeekWhenItIsSwitchedOn()
{
    RawDatabase raw(m_folder->File());
    QCOMPARE(
        raw.Run(QStringLiteral("insert into AlarmUniqueID(strEventSource, AlarmType) values('alone', 1)")),
        0);
    Client client;
    client.map[{QStringLiteral("alone"), 1}].bOpen = true;
    QCOMPARE(client.Save(), 0);
    QVERIFY(Stored() == client.map);
}

void SchemeStoreSavingTest::aSchemeThatIsLeftOutIsDisabledAndKeepsTheRest()
{
    Client client;
    const AlarmInfo before = client.map.take(Door(3));
    QCOMPARE(client.Save(), 0);
    QCOMPARE(client.saves.last().iSchemes, 1);
    AlarmInfo expected = before;
    expected.bOpen = false;
    QVERIFY(before.bOpen && Stored().value(Door(3)) == expected);
    // Once it is disabled there is nothing more to do about it.
    QCOMPARE(client.Save(), 0);
    QCOMPARE(client.saves.last().iSchemes, 0);
    QCOMPARE(Stored().size(), 5);
}

void SchemeStoreSavingTest::manyChangesAreHandedOverTogether()
{
    for (const int count : {StoredSchemes::FewSchemes, StoredSchemes::FewSchemes + 1}) {
        const TouchedTables touched;
        Client client;
        client.map = Map(100);
        QCOMPARE(client.Save(), 0);
        for (int door = 0; door < count; ++door)
            client.map[Door(door)].listDoor[0].bAlwaysOpen ^= true;
        TouchedTables::Take();
        QCOMPARE(client.Save(), 0);
        QCOMPARE(client.saves.last().iSchemes, count);
        const bool together = count > StoredSchemes::FewSchemes;
        QCOMPARE(TouchedTables::Take().contains(QStringLiteral("AlarmDefenceTimeInfo")), together);
        QVERIFY(Stored() == client.map);
        client.map = Map(100);
        QCOMPARE(client.Save(), 0);
    }
}

void SchemeStoreSavingTest::withoutAChangeOnlyTheTimeOfTheSaveIsWritten()
{
    const TouchedTables touched;
    Client client;
    RawDatabase raw(m_folder->File());
    QCOMPARE(raw.Run(QStringLiteral("update BaseInfo set ModifyTime = 'then'")), 0);
    TouchedTables::Take();
    QCOMPARE(client.Save(), 0);
    QCOMPARE(client.saves.last().iSchemes, 0);
    QVERIFY(TouchedTables::Take().isEmpty());
    QVERIFY(raw.Value(QStringLiteral("select ModifyTime from BaseInfo")) != QLatin1String("then"));
}

void SchemeStoreSavingTest::aSecondSaveOfTheSameWritesNothing()
{
    Client client;
    // Of what is written here, loading gives back less.
    client.map[Door(0)].listDoor = {{QStringLiteral("x"), true}, {QStringLiteral("0"), false}};
    client.map[Door(1)].videoSplit.videoLinks[5].Time = 3;
    client.map[Door(1)].videoSplit.cells[9].iCombine = 3;
    client.map[Door(2)].defenceTime[1] = {{9, 3}};
    QCOMPARE(client.Save(), 0);
    const QByteArray before = m_folder->Bytes();
    QCOMPARE(client.Save(), 0);
    QCOMPARE(client.saves.last().iSchemes, 0);
    QCOMPARE(m_folder->Bytes(), before);
}

void SchemeStoreSavingTest::savingReturnsBeforeAnythingIsWritten()
{
    Client client;
    OtherProgram other(m_folder->File(), ForWriting, TooLong);
    QVERIFY(other.Holds());
    QSignalSpy saving(&client.store, &AlarmSchemeStoreBackend::SignalSavingChanged);
    client.map[Door(0)].bOpenSound = true;
    QCOMPARE(client.store.Save(client.map), 0);
    QVERIFY(client.store.IsSaving() && client.saves.isEmpty());
    QCOMPARE(saving.count(), 1);
    other.Release();
    QTRY_COMPARE(saving.count(), 2);
    QVERIFY(!client.store.IsSaving());
    QCOMPARE(saving.at(0).at(0).toBool(), true);
    QCOMPARE(saving.at(1).at(0).toBool(), false);
    QCOMPARE(client.saves.size(), 1);
    QCOMPARE(client.store.SchemesToWrite(), 1);
    QCOMPARE(client.store.SchemesWritten(), 1);
    QVERIFY(Stored() == client.map);
}

void SchemeStoreSavingTest::theNewestMapIsSavedNext()
{
    Client client;
    OtherProgram other(m_folder->File(), ForWriting, TooLong);
    QVERIFY(other.Holds());
    for (int time = 1; time <= 4; ++time) {
        client.map[Door(time)].listAlarmOut[0].Time = 1000 + time;
        QCOMPARE(client.store.Save(client.map), 0);
        client.map[Door(time)].listAlarmOut[0].Time = 20; // each map differs in one scheme of its own
    }
    client.map[Door(4)].listAlarmOut[0].Time = 1004;
    other.Release();
    QTRY_VERIFY(!client.store.IsSaving());
    QCOMPARE(client.saves.size(), 2);
    QCOMPARE(client.saves.at(0).iSchemes, 1);
    QCOMPARE(client.saves.at(1).iSchemes, 2); // the first one's change taken back, and its own
    QVERIFY(Stored() == client.map);
}

void SchemeStoreSavingTest::editingTheMapDuringASaveChangesNothingOfIt()
{
    Client client;
    OtherProgram other(m_folder->File(), ForWriting, TooLong);
    client.map[Door(0)].bOpenSound = true;
    const AlarmInfoMap saved = client.map;
    QCOMPARE(client.store.Save(client.map), 0);
    for (AlarmInfo& info : client.map)
        info.listAlarmOut.clear();
    other.Release();
    QTRY_VERIFY(!client.store.IsSaving());
    QVERIFY(Stored() == saved);
}

void SchemeStoreSavingTest::theEndWaitsForWhatWasTaken()
{
    AlarmInfoMap last;
    {
        Client client;
        for (int count = 10; count <= 30; count += 10)
            QCOMPARE(client.store.Save(Map(count)), 0);
        last = Map(30);
    }
    QVERIFY(Stored() == last);
}

void SchemeStoreSavingTest::theEndAsksNothing()
{
    auto client = std::make_unique<Client>();
    Client other;
    other.map[Door(0)].bOpenSound = true;
    QCOMPARE(other.Save(), 0);
    bool asked = false;
    client->store.SetConflictHandler([&asked](const SchemeConflict&) {
        asked = true;
        return Answer::SaveOver;
    });
    client->store.SetOutcomeHandler(nullptr);
    QCOMPARE(client->store.Save(Map(1)), 0);
    client.reset();
    QVERIFY(!asked);
    QVERIFY(Stored() == other.map);
}

void SchemeStoreSavingTest::loadingWaitsForTheSaveBeforeIt()
{
    Client client;
    QCOMPARE(client.store.Save(Map(20)), 0);
    QCOMPARE(client.store.Save(Map(40)), 0);
    AlarmInfoMap loaded;
    QCOMPARE(client.store.Load(loaded), 0);
    QVERIFY(loaded == Map(40));
    QVERIFY(!client.store.IsSaving());
}

void SchemeStoreSavingTest::aFailureIsMadeUpForByTheNextSave()
{
    Client client;
    RawDatabase raw(m_folder->File());
    QCOMPARE(raw.Run(QStringLiteral("create trigger no before update on AlarmBaseInfo when new.bOpenSound "
                                    "begin select raise(abort, 'no'); end")),
             0);
    const QStringList before = raw.Content();
    client.map[Door(0)].listDoor.clear();
    client.map[Door(4)].bOpenSound = true;
    QCOMPARE(client.Save(), -1);
    QCOMPARE(raw.Content(), before);
    QCOMPARE(client.saves.last().strTechnical, QStringLiteral("no"));
    QCOMPARE(raw.Run(QStringLiteral("drop trigger no")), 0);
    QCOMPARE(client.Save(), 0);
    QCOMPARE(client.saves.last().iSchemes, 2);
    QVERIFY(client.questions.isEmpty());
    QVERIFY(Stored() == client.map);
}

void SchemeStoreSavingTest::aFailureDoesNotKeepTheQueuedMap()
{
    Client client;
    AlarmInfoMap bad = client.map;
    bad.insert({QStringLiteral("a\"b"), 1}, AlarmInfo());
    QCOMPARE(client.store.Save(bad), 0);
    client.map[Door(0)].bOpenSound = true;
    QCOMPARE(client.store.Save(client.map), 0);
    QTRY_VERIFY(!client.store.IsSaving());
    QCOMPARE(client.saves.size(), 2);
    QVERIFY(client.saves.at(0).eReason == Reason::BadText && client.saves.at(1).IsSuccess());
    QVERIFY(Stored() == client.map);
}

void SchemeStoreSavingTest::aRefusedSaveIsToldAtOnce()
{
    AlarmSchemeStoreBackend backend;
    QCOMPARE(backend.Save(Map(3)), -1);
    QVERIFY(backend.LastOutcome().eReason == Reason::NotLoaded && !backend.IsSaving());
}

void SchemeStoreSavingTest::theOperatorMayCancel()
{
    Client client;
    Client other;
    other.map[Door(0)].bOpenSound = true;
    other.map[Door(1)].bOpenSound = true;
    QCOMPARE(other.Save(), 0);
    client.map[Door(1)].bEmapTwinkle = true;
    client.map[Door(2)].bEmapTwinkle = true;
    for (int time = 1; time <= 2; ++time) { // it stays a question
        QCOMPARE(client.Save(), -1);
        QVERIFY(client.saves.last().eReason == Reason::Conflict);
        QCOMPARE(client.questions.size(), time);
        QCOMPARE(client.questions.last().iSchemes, 2);
        QCOMPARE(client.questions.last().iBoth, 1);
        QVERIFY(Stored() == other.map);
    }
}

void SchemeStoreSavingTest::theOperatorMayReload()
{
    Client client;
    Client other;
    other.map[Door(0)].bOpenSound = true;
    QCOMPARE(other.Save(), 0);
    client.map[Door(1)].bEmapTwinkle = true;
    client.answer = Answer::Reload;
    QCOMPARE(client.store.Save(client.map), 0);
    QTRY_COMPARE(client.iReloads, 1);
    QVERIFY(client.map == other.map && Stored() == other.map);
    QVERIFY(!client.store.IsSaving() && client.saves.isEmpty());
    client.map[Door(1)].bEmapTwinkle = true;
    QCOMPARE(client.Save(), 0);
    QCOMPARE(client.questions.size(), 1);
    QVERIFY(Stored() == client.map);
}

void SchemeStoreSavingTest::theOperatorMaySaveOver()
{
    Client client;
    Client other;
    other.map[Door(0)].bOpenSound = true;
    other.map[Door(9)].bOpen = true;
    QCOMPARE(other.Save(), 0);
    client.map[Door(1)].bEmapTwinkle = true;
    client.answer = Answer::SaveOver;
    QCOMPARE(client.Save(), 0);
    QCOMPARE(client.questions.size(), 1);
    QCOMPARE(client.questions.first().iSchemes, 2);
    AlarmInfoMap expected = client.map;
    expected[Door(9)].bOpen = false; // theirs is not in our map
    QVERIFY(Stored() == expected);
    QCOMPARE(client.saves.last().iSchemes, 3);
    QCOMPARE(client.Save(), 0);
    QCOMPARE(client.questions.size(), 1);
}

void SchemeStoreSavingTest::theOperatorMayKeepTheOthersChanges()
{
    Client client;
    Client other;
    other.map[Door(0)].bOpenSound = true;
    other.map[Door(9)].bOpen = true;
    other.map[Door(1)].listDoor.clear();
    QCOMPARE(other.Save(), 0);
    client.map[Door(1)].bEmapTwinkle = true;
    client.map.remove(Door(2));
    client.answer = Answer::KeepOthers;
    QCOMPARE(client.Save(), 0);
    AlarmInfoMap expected = other.map;
    expected[Door(1)] = client.map.value(Door(1)); // changed by both: ours, by scheme
    expected[Door(2)].bOpen = false;
    QVERIFY(Stored() == expected);
    QCOMPARE(client.saves.last().iSchemes, 2);
    QVERIFY(client.saves.last().Text().contains(QLatin1Char('2')));
}

void SchemeStoreSavingTest::withoutAnybodyToAskNothingIsSaved()
{
    Client client;
    client.store.SetConflictHandler(nullptr);
    Client other;
    other.map[Door(0)].bOpenSound = true;
    QCOMPARE(other.Save(), 0);
    client.map.clear();
    QCOMPARE(client.Save(), -1);
    QVERIFY(client.saves.last().eReason == Reason::Conflict);
    QVERIFY(Stored() == other.map);
}

void SchemeStoreSavingTest::aForeignSaveThatChangedNothingIsNoConflict()
{
    Client client;
    RawDatabase raw(m_folder->File());
    QCOMPARE(raw.Run(QStringLiteral("update BaseInfo set ModifyTime = 'now'; "
                                    "update AlarmBaseInfo set bOpen = bOpen")),
             0);
    client.map[Door(1)].bEmapTwinkle = true;
    QCOMPARE(client.Save(), 0);
    QVERIFY(client.questions.isEmpty());
    QVERIFY(Stored() == client.map);
}

void SchemeStoreSavingTest::theSameChangeElsewhereIsNoConflict()
{
    Client client;
    Client other;
    for (Client* both : {&client, &other})
        both->map[Door(1)].bEmapTwinkle = true;
    QCOMPARE(other.Save(), 0);
    QCOMPARE(client.Save(), 0);
    QCOMPARE(client.saves.last().iSchemes, 0);
    QVERIFY(client.questions.isEmpty());
}

void SchemeStoreSavingTest::aChangeDuringTheQuestionIsAskedAboutToo()
{
    Client client;
    Client other;
    other.map[Door(0)].bOpenSound = true;
    QCOMPARE(other.Save(), 0);
    QList<int> asked;
    client.store.SetConflictHandler([&](const SchemeConflict& conflict) {
        asked.append(conflict.iSchemes);
        if (asked.size() == 1) {
            other.map[Door(3)].bOpenSound = true;
            if (other.Save() != 0)
                qFatal("the other client cannot save");
        }
        return Answer::SaveOver;
    });
    QCOMPARE(client.Save(), 0);
    QCOMPARE(asked, (QList<int>{1, 2}));
    QVERIFY(Stored() == client.map);
}

void SchemeStoreSavingTest::aMapThatComesDuringTheQuestionIsSavedInstead()
{
    Client client;
    Client other;
    other.map[Door(0)].bOpenSound = true;
    QCOMPARE(other.Save(), 0);
    client.store.SetConflictHandler([&client](const SchemeConflict&) {
        client.map[Door(4)].bEmapTwinkle = true;
        return client.store.Save(client.map) == 0 ? Answer::KeepOthers : Answer::Cancel;
    });
    QCOMPARE(client.Save(), 0);
    QCOMPARE(client.saves.size(), 1);
    AlarmInfoMap expected = other.map;
    expected[Door(4)].bEmapTwinkle = true;
    QVERIFY(Stored() == expected);
}

void SchemeStoreSavingTest::keptChangesStayAndAreAskedAboutWhenTheyAreTouched()
{
    Client client;
    Client other;
    other.map[Door(0)].bOpenSound = true;
    other.map[Door(9)].bOpen = true;
    QCOMPARE(other.Save(), 0);
    client.answer = Answer::KeepOthers;
    AlarmInfoMap expected = other.map;
    for (const int door :
         {1, 2, 3}) { // the page still shows the first scheme as it was, and not the last one
        client.map[Door(door)].bEmapTwinkle = true;
        expected[Door(door)].bEmapTwinkle = true;
        QCOMPARE(client.Save(), 0);
        QVERIFY(Stored() == expected);
        QCOMPARE(client.questions.size(), 1);
    }
    client.answer = Answer::Cancel;
    client.map[Door(0)].listDoor.clear();
    QCOMPARE(client.Save(), -1);
    QCOMPARE(client.questions.size(), 2);
    QCOMPARE(client.questions.last().iBoth, 1);
    QVERIFY(Stored() == expected);
}

void SchemeStoreSavingTest::aReloadDuringTheQuestionMakesTheAnswerVoid()
{
    Client client;
    Client other;
    other.map[Door(0)].bOpenSound = true;
    QCOMPARE(other.Save(), 0);
    client.store.SetConflictHandler([&client](const SchemeConflict&) {
        client.Load();
        return Answer::SaveOver;
    });
    client.map.clear();
    QCOMPARE(client.Save(), -1);
    QVERIFY(Stored() == other.map);
}

void SchemeStoreSavingTest::noUpdateIsLostBetweenTwoClients()
{
    const int rounds = SoakCount::Of(1000);
    Client clients[2];
    for (Client& client : clients)
        client.answer = Answer::KeepOthers;
    for (int round = 1; round <= rounds; ++round) {
        for (int which : {0, 1}) {
            Client& client = clients[which];
            client.map[Door(which)].listAlarmOut[0].Time = round;
            client.map[AlarmSourceKey{EventSource::Door(5 + which, round), 3}].bOpen = true;
            QCOMPARE(client.Save(), 0);
        }
    }
    const AlarmInfoMap stored = Stored();
    QCOMPARE(stored.size(), 5 + 2 * rounds);
    for (const AlarmInfo& info : stored)
        QVERIFY(info.bOpen);
    for (int which : {0, 1})
        QCOMPARE(stored.value(Door(which)).listAlarmOut.at(0).Time, rounds);
    qInfo("two clients saved in turn, %d rounds", rounds);
}

void SchemeStoreSavingTest::textsThatNameColumnsAreNoForeignChange()
{
    Client client;
    client.map[Door(0)].listAlarmOut.append({QStringLiteral("_rowid_"), false, 33});
    QCOMPARE(client.Save(), 0);
    // What SQLite made of it is looked up, and is not taken for somebody else's work later.
    RawDatabase raw(m_folder->File());
    QCOMPARE(raw.Run(QStringLiteral("update BaseInfo set ModifyTime = 'now'")), 0);
    client.map[Door(1)].bOpenSound = true;
    QCOMPARE(client.Save(), 0);
    QVERIFY(client.questions.isEmpty());
    QVERIFY(Stored().value(Door(1)) == client.map.value(Door(1)));
}

void SchemeStoreSavingTest::theWindowStaysAliveDuringALongSave()
{
    Client client;
    client.map = Map(20000);
    int ticks = 0;
    QTimer timer;
    timer.setInterval(5);
    connect(&timer, &QTimer::timeout, this, [&ticks] { ++ticks; });
    QSignalSpy saving(&client.store, &AlarmSchemeStoreBackend::SignalSavingChanged);
    timer.start();
    QCOMPARE(client.store.Save(client.map), 0);
    constexpr int LongEnough = 120000;
    QTRY_COMPARE_WITH_TIMEOUT(saving.count(), 2, LongEnough);
    QCOMPARE(client.saves.size(), 1);
    QVERIFY(client.saves.first().IsSuccess());
    QVERIFY2(ticks >= 5, qPrintable(QString::number(ticks)));
    QVERIFY(Stored() == client.map);
}

QTEST_GUILESS_MAIN(SchemeStoreSavingTest)
#include "tst_scheme_store_saving.moc"
