#include "client/store/AlarmSchemeStoreBackend.h"

#include "client/store/FileHealth.h"
#include "client/store/SchemeBackups.h"
#include "client/store/SchemeHistoryReader.h"
#include "client/store/StoredSchemes.h"
#include "tests/AlarmSchemeData/StoreFolder.h"
#include "tests/client_store/SaveAndWait.h"
#include "tests/client_store/SchemeFiles.h"

#include <QFileInfo>
#include <QtTest>

#include <memory>

using Answer = SchemeDamageAnswer;
using Operation = SchemeStoreOutcome::Operation;
using Reason = SchemeStoreOutcome::Reason;

namespace {

/// One client: its store, what it is asked and how it answers.
struct Client
{
    AlarmSchemeStoreBackend store;
    AlarmInfoMap map;
    QList<SchemeDamage> questions;
    QList<SchemeStoreOutcome> repairs;
    Answer answer = Answer::LeaveAlone;
    int iReloads = 0;

    explicit Client(Answer eAnswer = Answer::LeaveAlone)
        : answer(eAnswer)
    {
        store.SetOutcomeHandler([this](const SchemeStoreOutcome& outcome) {
            if (outcome.eOperation == Operation::Repair)
                repairs.append(outcome);
        });
        store.SetReloadHandler([this] { ++iReloads; });
        store.SetDamageHandler([this](const SchemeDamage& damage) {
            questions.append(damage);
            return answer;
        });
    }
    int Save(const AlarmInfoMap& schemes) { return SaveAndWait(store, schemes); }
};

} // namespace

/// Backups before saves, and what becomes of a damaged file.
class SchemeStoreRepairTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();

    void theFirstSaveOfADayIsPrecededByABackup();
    void theSecondSaveOfADayIsNot();
    void withoutSchemesThereIsNothingToBackUp();
    void aQuestionThatIsCancelledMakesNoBackup();
    void aFailingBackupIsToldAndTheSaveGoesOn_data();
    void aFailingBackupIsToldAndTheSaveGoesOn();
    void aJournalThatIsNotSafeMakesSavingRefuse();
    void whoChoosesNothingFindsTheFileAsItWas();
    void theBackupTakesThePlaceOfADamagedFile_data();
    void theBackupTakesThePlaceOfADamagedFile();
    void startingEmptyKeepsTheDamagedFile();
    void theNextSoundBackupIsOfferedWhenTheNewestIsDamaged();
    void withoutASoundBackupNoneIsOffered();
    void theQuestionIsAskedOnce();
    void theQuestionComesWithoutAnyLoad();
    void aLoadIsNotHeldUpByTheQuestion();
    void savingGoesOnAfterARepair();
    void theHistoryTellsOfTheBackupThatWasRestored();
    void aRepairOfWhatSomebodyElseHasRepairedChangesNothing();
    void anotherClientThatHasItOpenIsInTheWay();
    void aRepairThatFailsLeavesEverythingAndMayBeTriedAgain();
    void aSoundFileRaisesNoQuestion();
    void aDestroyedHandlerIsNotCalled();

private:
    SchemeBackups Backups() const { return SchemeBackups(m_folder->File()); }
    QStringList Kept() const
    {
        return QDir(QGetDatabaseDirPath())
            .entryList({QStringLiteral("AlarmScheme.damaged-*.db")}, QDir::Files, QDir::Name);
    }
    /// A client that has saved on two days, so that there are two backups; the file holds 30 schemes.
    void PrepareTwoBackups()
    {
        for (const int schemes : {10, 20, 30}) {
            // Yesterday's backups: the name is all that dates them.
            const QList<SchemeBackup> backups = Backups().List();
            for (const SchemeBackup& backup : backups) {
                QString name = backup.strPath;
                name.replace(backup.time.toString(QStringLiteral("yyyyMMdd")),
                             backup.time.addDays(-1).toString(QStringLiteral("yyyyMMdd")));
                QVERIFY(QFile::rename(backup.strPath, name));
            }
            AlarmSchemeStoreBackend store;
            AlarmInfoMap map;
            QCOMPARE(store.Load(map), 0);
            QCOMPARE(SaveAndWait(store, SchemeFiles::Map(schemes)), 0);
        }
        QCOMPARE(Backups().List().size(), 2);
    }

    std::unique_ptr<LogCatcher> m_log;
    std::unique_ptr<StoreFolder> m_folder;
};

void SchemeStoreRepairTest::init()
{
    m_log = std::make_unique<LogCatcher>();
    m_folder = std::make_unique<StoreFolder>();
}

void SchemeStoreRepairTest::cleanup()
{
    m_folder.reset();
    m_log.reset();
}

void SchemeStoreRepairTest::theFirstSaveOfADayIsPrecededByABackup()
{
    SchemeFiles::Make(m_folder->File(), 5);
    Client client;
    QCOMPARE(client.store.Load(client.map), 0);
    QVERIFY(Backups().List().isEmpty());
    QCOMPARE(client.Save(SchemeFiles::Map(9)), 0);
    QVERIFY(!client.store.LastOutcome().bWarning);
    const QList<SchemeBackup> backups = Backups().List();
    QCOMPARE(backups.size(), 1);
    QCOMPARE(backups.first().time.date(), QDate::currentDate());
    QVERIFY(SchemeFiles::Read(backups.first().strPath) == SchemeFiles::Map(5));
    QCOMPARE(client.store.Load(client.map), 0);
    QVERIFY(client.map == SchemeFiles::Map(9));
}

void SchemeStoreRepairTest::theSecondSaveOfADayIsNot()
{
    SchemeFiles::Make(m_folder->File(), 5);
    for (int i = 0; i < 2; ++i) {
        Client client;
        QCOMPARE(client.store.Load(client.map), 0);
        QCOMPARE(client.Save(SchemeFiles::Map(6 + i)), 0);
        QCOMPARE(client.Save(SchemeFiles::Map(16 + i)), 0);
    }
    QCOMPARE(Backups().List().size(), 1);
}

void SchemeStoreRepairTest::withoutSchemesThereIsNothingToBackUp()
{
    Client client;
    QCOMPARE(client.store.Load(client.map), 0);
    QCOMPARE(client.Save(SchemeFiles::Map(2)), 0);
    QVERIFY(!QFileInfo::exists(Backups().Folder()));
    QCOMPARE(client.Save(SchemeFiles::Map(3)), 0);
    QCOMPARE(Backups().NewestSound()->iSchemes, 2);
}

void SchemeStoreRepairTest::aQuestionThatIsCancelledMakesNoBackup()
{
    SchemeFiles::Make(m_folder->File(), 5);
    Client client;
    QCOMPARE(client.store.Load(client.map), 0);
    QCOMPARE(RawDatabase(m_folder->File()).Run(QStringLiteral("update AlarmBaseInfo set bSendEmail = 1")), 0);
    QCOMPARE(client.Save(SchemeFiles::Map(6)), -1);
    QVERIFY(client.store.LastOutcome().eReason == Reason::Conflict);
    QVERIFY(Backups().List().isEmpty());
}

void SchemeStoreRepairTest::aFailingBackupIsToldAndTheSaveGoesOn_data()
{
    QTest::addColumn<QString>("trouble");
    QTest::newRow("a file in the place of the folder") << QStringLiteral("file");
    QTest::newRow("a folder that cannot be made") << QStringLiteral("link");
}

void SchemeStoreRepairTest::aFailingBackupIsToldAndTheSaveGoesOn()
{
    QFETCH(QString, trouble);
    SchemeFiles::Make(m_folder->File(), 5);
    const bool linked = trouble == QLatin1String("link") &&
                        QFile::link(m_folder->Root() + QStringLiteral("/none/none"), Backups().Folder());
    if (!linked) // a system without links makes it the first case again
        SchemeFiles::Write(Backups().Folder(), "a file");
    Client client;
    QCOMPARE(client.store.Load(client.map), 0);
    for (int schemes = 6; schemes < 8; ++schemes) {
        QCOMPARE(client.Save(SchemeFiles::Map(schemes)), 0);
        const SchemeStoreOutcome& outcome = client.store.LastOutcome();
        QVERIFY(outcome.IsSuccess() && outcome.bWarning);
        QVERIFY(outcome.Text().contains(QLatin1String("No backup")));
        QVERIFY(!outcome.strTechnical.isEmpty());
        QVERIFY(SchemeFiles::Read(m_folder->File()) == SchemeFiles::Map(schemes));
    }
    QVERIFY(QFile::remove(Backups().Folder()));
    QCOMPARE(client.Save(SchemeFiles::Map(9)), 0);
    QVERIFY(!client.store.LastOutcome().bWarning);
    QCOMPARE(Backups().List().size(), 1);
}

void SchemeStoreRepairTest::aJournalThatIsNotSafeMakesSavingRefuse()
{
    SchemeFiles::Make(m_folder->File(), 5);
    StoredSchemes schemes(std::chrono::milliseconds(50));
    AlarmInfoMap map;
    QVERIFY(schemes.Load(map).eReason == Reason::None);
    SaveProgress progress;
    const auto save = [&] { return schemes.Save(SchemeFiles::Map(6), std::nullopt, SaveOrigin(), progress); };
    auto other = std::make_unique<RawDatabase>(m_folder->File());
    QCOMPARE(other->Value(QStringLiteral("PRAGMA journal_mode = WAL")), QStringLiteral("wal"));
    QCOMPARE(other->Value(QStringLiteral("select count(*) from AlarmUniqueID")), QStringLiteral("5"));
    const SaveResult refused = save();
    QVERIFY(refused.eReason == Reason::Journal);
    QVERIFY(!refused.strTechnical.isEmpty());
    other.reset();
    QVERIFY(save().eReason == Reason::None);
    QVERIFY(SchemeFiles::Read(m_folder->File()) == SchemeFiles::Map(6));
}

void SchemeStoreRepairTest::whoChoosesNothingFindsTheFileAsItWas()
{
    PrepareTwoBackups();
    SchemeFiles::DamageTable(m_folder->File());
    const QByteArray before = m_folder->Bytes();
    {
        Client client(Answer::LeaveAlone);
        QCOMPARE(client.store.Load(client.map), -1);
        QCOMPARE(client.map.size(), 30);
        QTRY_COMPARE(client.questions.size(), 1);
        QCOMPARE(client.Save(client.map), -1);
        QVERIFY(client.repairs.isEmpty() && client.iReloads == 0);
    }
    QCOMPARE(m_folder->Bytes(), before);
    QVERIFY(Kept().isEmpty());
}

void SchemeStoreRepairTest::theBackupTakesThePlaceOfADamagedFile_data()
{
    QTest::addColumn<QString>("damage");
    for (const char* damage : {"a page", "a letter", "nothing in it", "cut off"})
        QTest::newRow(damage) << QString::fromLatin1(damage);
}

void SchemeStoreRepairTest::theBackupTakesThePlaceOfADamagedFile()
{
    QFETCH(QString, damage);
    PrepareTwoBackups();
    if (damage == QLatin1String("a page"))
        SchemeFiles::DamageTable(m_folder->File());
    else if (damage == QLatin1String("a letter"))
        m_folder->Write(QByteArray("This is a letter.\n").repeated(1000));
    else if (damage == QLatin1String("nothing in it"))
        m_folder->Write(QByteArray());
    else
        m_folder->Write(m_folder->Bytes().chopped(1000));
    const QByteArray damaged = m_folder->Bytes();
    const QByteArray backup = SchemeFiles::Bytes(Backups().List().constFirst().strPath);

    Client client(Answer::Restore);
    QTRY_COMPARE(client.repairs.size(), 1);
    QCOMPARE(client.questions.size(), 1);
    const SchemeDamage& question = client.questions.first();
    QCOMPARE(question.strFile, m_folder->File());
    QVERIFY(!question.strTechnical.isEmpty());
    QVERIFY(question.backup);
    QCOMPARE(question.backup->iSchemes, 20);
    QCOMPARE(question.backup->time, Backups().List().constFirst().time);

    QVERIFY(client.repairs.first().IsSuccess());
    QCOMPARE(client.repairs.first().iSchemes, 20);
    QCOMPARE(client.iReloads, 1);
    QVERIFY(client.store.IsOpen());
    QCOMPARE(client.store.Load(client.map), 0);
    QVERIFY(client.map == SchemeFiles::Map(20));
    QCOMPARE(Kept().size(), 1);
    QVERIFY(client.repairs.first().Text().contains(Kept().constFirst()));
    QCOMPARE(SchemeFiles::Bytes(QDir(QGetDatabaseDirPath()).filePath(Kept().constFirst())), damaged);
    QCOMPARE(SchemeFiles::Bytes(Backups().List().constFirst().strPath), backup);
}

void SchemeStoreRepairTest::startingEmptyKeepsTheDamagedFile()
{
    PrepareTwoBackups();
    SchemeFiles::DamageTable(m_folder->File());
    const QByteArray damaged = m_folder->Bytes();
    Client client(Answer::StartEmpty);
    QTRY_COMPARE(client.repairs.size(), 1);
    QVERIFY(client.repairs.first().IsSuccess());
    QCOMPARE(client.iReloads, 1);
    QCOMPARE(client.store.Load(client.map), 0);
    QVERIFY(client.map.isEmpty());
    QCOMPARE(Kept().size(), 1);
    QCOMPARE(SchemeFiles::Bytes(QDir(QGetDatabaseDirPath()).filePath(Kept().constFirst())), damaged);
    QCOMPARE(Backups().List().size(), 2);
    QCOMPARE(client.Save(SchemeFiles::Map(1)), 0);
}

void SchemeStoreRepairTest::theNextSoundBackupIsOfferedWhenTheNewestIsDamaged()
{
    PrepareTwoBackups();
    SchemeFiles::DamageTable(m_folder->File());
    SchemeFiles::DamageTable(Backups().List().constFirst().strPath);
    Client client(Answer::Restore);
    QTRY_COMPARE(client.repairs.size(), 1);
    QCOMPARE(client.questions.first().backup->iSchemes, 10);
    QCOMPARE(client.store.Load(client.map), 0);
    QVERIFY(client.map == SchemeFiles::Map(10));
}

void SchemeStoreRepairTest::withoutASoundBackupNoneIsOffered()
{
    m_folder->Write(QByteArray(10000, 'x'));
    Client client(Answer::StartEmpty);
    QTRY_COMPARE(client.repairs.size(), 1);
    QVERIFY(!client.questions.first().backup);
    QCOMPARE(client.store.Load(client.map), 0);
    QCOMPARE(Kept().size(), 1);
}

void SchemeStoreRepairTest::theQuestionIsAskedOnce()
{
    m_folder->Write(QByteArray(10000, 'x'));
    Client client(Answer::LeaveAlone);
    QCOMPARE(client.store.Load(client.map), -1);
    QCOMPARE(client.store.Load(client.map), -1);
    QTRY_COMPARE(client.questions.size(), 1);
    QCOMPARE(client.store.Load(client.map), -1);
    QCOMPARE(client.Save(client.map), -1);
    // What is on its way arrives before what is posted behind it.
    bool arrived = false;
    QMetaObject::invokeMethod(
        &client.store, [&arrived] { arrived = true; }, Qt::QueuedConnection);
    QTRY_VERIFY(arrived);
    QCOMPARE(client.questions.size(), 1);
}

void SchemeStoreRepairTest::theQuestionComesWithoutAnyLoad()
{
    PrepareTwoBackups();
    SchemeFiles::DamageTable(m_folder->File());
    Client client(Answer::LeaveAlone);
    QVERIFY(client.questions.isEmpty());
    QTRY_COMPARE(client.questions.size(), 1);
}

void SchemeStoreRepairTest::aLoadIsNotHeldUpByTheQuestion()
{
    PrepareTwoBackups();
    SchemeFiles::DamageTable(m_folder->File());
    Client client(Answer::Restore);
    QCOMPARE(client.store.Load(client.map), -1);
    QVERIFY(client.questions.isEmpty());
    QTRY_COMPARE(client.iReloads, 1);
    QCOMPARE(client.questions.size(), 1);
}

void SchemeStoreRepairTest::savingGoesOnAfterARepair()
{
    PrepareTwoBackups();
    SchemeFiles::DamageTable(m_folder->File());
    Client client(Answer::Restore);
    QTRY_COMPARE(client.repairs.size(), 1);
    // Not before the load that has to follow: what is shown may still be what the damaged file held.
    QCOMPARE(client.Save(SchemeFiles::Map(25)), -1);
    QCOMPARE(client.store.Load(client.map), 0);
    QCOMPARE(client.Save(SchemeFiles::Map(25)), 0);
    QVERIFY(SchemeFiles::Read(m_folder->File()) == SchemeFiles::Map(25));
    QVERIFY(!QFileInfo::exists(m_folder->File() + QStringLiteral(".open-2")));
}

void SchemeStoreRepairTest::theHistoryTellsOfTheBackupThatWasRestored()
{
    PrepareTwoBackups(); // of 10 and of 20 schemes
    const QString backup = QFileInfo(Backups().List().constFirst().strPath).fileName();
    SchemeFiles::DamageTable(m_folder->File());
    Client client(Answer::Restore);
    client.store.SetAuthor([] { return QStringLiteral("anna"); });
    QTRY_COMPARE(client.repairs.size(), 1);
    QCOMPARE(client.store.Load(client.map), 0);
    QCOMPARE(client.Save(SchemeFiles::Map(25)), 0);

    SchemeHistoryReader history(m_folder->File());
    const std::optional<QList<SchemeHistoryEntry>> entries = history.Entries(2);
    QVERIFY2(entries && entries->size() == 2, qPrintable(history.Problem()));
    QVERIFY(entries->at(0).eKind == SchemeHistoryKind::Save);
    const SchemeHistoryEntry& restored = entries->at(1);
    QVERIFY(restored.eKind == SchemeHistoryKind::Restore);
    QCOMPARE(restored.strWho, QStringLiteral("anna"));
    QCOMPARE(restored.strNote, backup);
    QVERIFY(SchemeHistoryBetween(SchemeFiles::Map(30), SchemeFiles::Map(20)).size() == restored.iSchemes);
}

void SchemeStoreRepairTest::aRepairOfWhatSomebodyElseHasRepairedChangesNothing()
{
    PrepareTwoBackups();
    const QByteArray sound = m_folder->Bytes();
    SchemeFiles::DamageTable(m_folder->File());
    Client client;
    client.store.SetDamageHandler([&](const SchemeDamage&) {
        m_folder->Write(sound);
        return Answer::Restore;
    });
    QTRY_COMPARE(client.repairs.size(), 1);
    QVERIFY(client.repairs.first().IsSuccess());
    QVERIFY(Kept().isEmpty());
    QCOMPARE(client.store.Load(client.map), 0);
    QVERIFY(client.map == SchemeFiles::Map(30));
}

void SchemeStoreRepairTest::anotherClientThatHasItOpenIsInTheWay()
{
    PrepareTwoBackups();
    SchemeFiles::DamageTable(m_folder->File());
    const QByteArray before = m_folder->Bytes();
    auto other = std::make_unique<Client>(Answer::LeaveAlone);
    Client client(Answer::Restore);
    QTRY_COMPARE(client.repairs.size(), 1);
    QVERIFY(client.repairs.first().eReason == Reason::Locked);
    QCOMPARE(client.iReloads, 0);
    QCOMPARE(m_folder->Bytes(), before);
    QVERIFY(Kept().isEmpty());
    other.reset();
    QCOMPARE(client.store.Load(client.map), -1); // raises the question again
    QTRY_COMPARE(client.repairs.size(), 2);
    QVERIFY(client.repairs.last().IsSuccess());
    QCOMPARE(client.store.Load(client.map), 0);
}

void SchemeStoreRepairTest::aRepairThatFailsLeavesEverythingAndMayBeTriedAgain()
{
    PrepareTwoBackups();
    SchemeFiles::DamageTable(m_folder->File());
    const QByteArray damaged = m_folder->Bytes();
    Client client(Answer::Restore);
    const QByteArray backup = SchemeFiles::Bytes(Backups().List().constFirst().strPath);
    client.store.SetDamageHandler([&](const SchemeDamage& damage) {
        client.questions.append(damage);
        if (client.questions.size() == 1) // it goes bad after it was found sound
            SchemeFiles::Write(damage.backup->strPath, "bad");
        return Answer::Restore;
    });
    QTRY_COMPARE(client.repairs.size(), 1);
    QVERIFY(client.repairs.first().eReason == Reason::Damaged);
    QVERIFY(!client.repairs.first().Text().isEmpty());
    QCOMPARE(m_folder->Bytes(), damaged);
    QVERIFY(Kept().isEmpty());
    QCOMPARE(client.store.Load(client.map), -1);
    QTRY_COMPARE(client.repairs.size(), 2);
    QCOMPARE(client.questions.last().backup->iSchemes, 10);
    QVERIFY(client.repairs.last().IsSuccess());
    QVERIFY(backup.size() > 10);
}

void SchemeStoreRepairTest::aSoundFileRaisesNoQuestion()
{
    SchemeFiles::Make(m_folder->File(), 3);
    Client client(Answer::StartEmpty);
    QCOMPARE(client.store.Load(client.map), 0);
    QCOMPARE(client.Save(client.map), 0);
    bool arrived = false;
    QMetaObject::invokeMethod(
        &client.store, [&arrived] { arrived = true; }, Qt::QueuedConnection);
    QTRY_VERIFY(arrived);
    QVERIFY(client.questions.isEmpty() && client.repairs.isEmpty());
}

void SchemeStoreRepairTest::aDestroyedHandlerIsNotCalled()
{
    m_folder->Write(QByteArray(10000, 'x'));
    {
        Client client(Answer::StartEmpty);
        client.store.SetDamageHandler(nullptr);
        QCOMPARE(client.store.Load(client.map), -1);
    }
    {
        const Client client(Answer::StartEmpty); // the question is on its way when the client ends
    }
    QVERIFY(Kept().isEmpty());
    QCOMPARE(m_folder->Bytes(), QByteArray(10000, 'x'));
}

QTEST_GUILESS_MAIN(SchemeStoreRepairTest)
#include "tst_scheme_store_repair.moc"
