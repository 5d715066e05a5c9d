#include "AlarmCtrl/AlarmSchemeData/AlarmSchemeDatabaseParser.h"
#include "AlarmCtrl/AlarmSchemeData/AlarmSchemeStoreReader.h"
#include "tests/AlarmSchemeData/OracleRounds.h"
#include "tests/AlarmSchemeData/RandomSchemes.h"
#include "tests/AlarmSchemeData/RawDatabase.h"
#include "tests/AlarmSchemeData/StoreFolder.h"
#include "tests/AlarmSchemeData/StrangeFile.h"
#include "tests/AlarmSchemeData/TestFile.h"
#include "tests/client_store/OtherProgram.h"

#include <QElapsedTimer>
#include <QMap>
#include <QTest>

#include <algorithm>

using Reason = AlarmSchemeReadOutcome::Reason;
Q_DECLARE_METATYPE(AlarmSchemeReadOutcome::Reason)

namespace {

QString Number(int iNumber)
{
    return QString::number(iNumber);
}

/// Everything that lies in a folder, byte for byte.
QMap<QString, QByteArray> Everything(const QString& strFolder)
{
    QMap<QString, QByteArray> files;
    const QStringList names =
        QDir(strFolder).entryList(QDir::Files | QDir::Dirs | QDir::Hidden | QDir::NoDotAndDotDot);
    for (const QString& name : names) {
        QFile file(QDir(strFolder).absoluteFilePath(name));
        files.insert(name, file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray("no file"));
    }
    return files;
}

AlarmInfoMap Stored()
{
    AlarmSchemeDatabaseParser store(&OracleRounds::HurryAlong);
    AlarmInfoMap map;
    store.ReadAll(&map);
    return map;
}

void Save(const AlarmInfoMap& map)
{
    AlarmSchemeDatabaseParser store(&OracleRounds::HurryAlong);
    store.SaveAll(&map);
}

QString Difference(const AlarmInfoMap& found, const AlarmInfoMap& expected)
{
    if (!std::equal(found.keyBegin(), found.keyEnd(), expected.keyBegin(), expected.keyEnd()))
        return QStringLiteral("other keys");
    for (auto entry = expected.cbegin(); entry != expected.cend(); ++entry) {
        if (found.value(entry.key()) != entry.value())
            return entry.key().strEventSource + QLatin1Char('/') + Number(entry.key().AlarmType);
    }
    return QString();
}

/// A folder of its own for a file that lies where no store looks.
class Elsewhere
{
public:
    QString File(const char* szName = "copy.db") const
    {
        return QDir(m_directory.path()).absoluteFilePath(QString::fromLatin1(szName));
    }
    QString Folder() const { return m_directory.path(); }
    void Write(const QByteArray& bytes) const { TestFile::Write(File(), bytes); }

private:
    QTemporaryDir m_directory;
};

AlarmInfoMap ManySchemes()
{
    AlarmInfoMap map;
    for (int door = 0; door < 300; ++door) {
        AlarmInfo info;
        info.bOpen = door % 2 == 0;
        info.defenceTime[door % 7] = {AlarmTimeRegion{door, 2 * door + 1}};
        info.listAlarmOut = {AlarmLinkAlarmOut{EventSource::AlarmOutput(door % 5), true, 20 + door}};
        map.insert(AlarmSourceKey{EventSource::Door(7, door), 101}, info);
    }
    return map;
}

} // namespace

class TestSchemeStoreReader : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void randomMapsAreReadAsTheStoreLoadsThem();
    void strangeFilesAreReadAsTheStoreLoadsThem();
    void filesFromBeforeTheMailFlagAndTheIndexesAreRead();
    void unusualSchemesOfAnEarlierFileAreRead();
    void aFileThatLacksTablesIsRead();
    void theFileIsFoundWhateverItsName_data();
    void theFileIsFoundWhateverItsName();
    void whatCannotBeReadIsToldApart_data();
    void whatCannotBeReadIsToldApart();
    void aHotJournalStandsInTheWay();
    void anEmptyJournalDoesNot();
    void aWriteAheadLogOfALivingWriterIsReadAlong();
    void aWriteAheadLogThatWasLeftBehindStandsInTheWay();
    void aFileInThatModeWithoutALogIsRead();
    void aLockedFileIsWaitedFor();
    void aWriterThatIsNotYetCommittingIsNoHindrance();
    void theWaitEndsInTime();
    void thePulseStopsTheReading();
    void theReaderReadsAgain();
    void everyReasonHasItsWords();
};

void TestSchemeStoreReader::randomMapsAreReadAsTheStoreLoadsThem()
{
    for (quint32 seed = 1; seed <= 30; ++seed) {
        const StoreFolder folder;
        const LogCatcher log;
        RandomSchemes random(seed);
        Save(random.Map());
        Save(random.Map());
        const auto before = Everything(QGetDatabaseDirPath());
        AlarmInfoMap read;
        const auto outcome = AlarmSchemeStoreReader(folder.File()).Read(read);
        QVERIFY2(outcome.IsSuccess(), qPrintable(Number(int(seed)) + outcome.strTechnical));
        QCOMPARE(Everything(QGetDatabaseDirPath()), before);
        const QString difference = Difference(read, Stored());
        QVERIFY2(difference.isEmpty(), qPrintable(Number(int(seed)) + QLatin1Char(' ') + difference));
    }
}

void TestSchemeStoreReader::strangeFilesAreReadAsTheStoreLoadsThem()
{
    int sound = 0;
    for (quint32 seed = 1; seed <= 120; ++seed) {
        const StoreFolder folder;
        LogCatcher log;
        RandomSchemes schemes(seed);
        Save(schemes.Map());
        Save(schemes.Map());
        bool healthy = false;
        QStringList changes;
        {
            RawDatabase database(folder.File());
            OracleRounds::HurryAlong(database.Handle());
            QRandomGenerator random(seed);
            changes = MakeStrange(database, random);
            healthy = database.Value(QStringLiteral("PRAGMA quick_check(1)")) == QLatin1String("ok");
        }
        changes.prepend(Number(int(seed)));
        const auto before = Everything(QGetDatabaseDirPath());
        log.Clear();
        AlarmInfoMap read;
        const auto outcome = AlarmSchemeStoreReader(folder.File()).Read(read);
        QVERIFY2(outcome.eReason == (healthy ? Reason::None : Reason::Damaged),
                 qPrintable(changes.join(QLatin1Char('\n')) + outcome.strTechnical));
        QCOMPARE(Everything(QGetDatabaseDirPath()), before);
        QCOMPARE(log.Messages(), QStringList());
        const QString difference = Difference(read, healthy ? Stored() : AlarmInfoMap());
        QVERIFY2(difference.isEmpty(),
                 qPrintable(changes.join(QLatin1Char('\n')) + QLatin1Char('\n') + difference));
        sound += healthy ? 1 : 0;
    }
    QVERIFY(sound > 30);
}

namespace {

void MakeEarlier(const QString& strPath)
{
    RawDatabase database(strPath);
    const QStringList indexes = database.Rows(
        QStringLiteral("select name from sqlite_master where type = 'index' and sql is not null"));
    QCOMPARE(indexes.size(), 9);
    for (const QString& index : indexes)
        QCOMPARE(database.Run(QStringLiteral("drop index ") + index), 0);
    QCOMPARE(database.Run(QStringLiteral("alter table AlarmBaseInfo drop column bSendEmail")), 0);
}

} // namespace

void TestSchemeStoreReader::filesFromBeforeTheMailFlagAndTheIndexesAreRead()
{
    const StoreFolder folder;
    const LogCatcher log;
    AlarmInfoMap map = ManySchemes();
    map.first().bOpenSound = true;
    map.first().bSendEmail = true; // it gets lost with the column
    Save(map);
    MakeEarlier(folder.File());
    const QByteArray bytes = folder.Bytes();

    AlarmInfoMap read;
    QVERIFY(AlarmSchemeStoreReader(folder.File()).Read(read).IsSuccess());
    QCOMPARE(folder.Bytes(), bytes);
    map.first().bSendEmail = false;
    QCOMPARE(Difference(read, map), QString());
    QCOMPARE(Difference(read, Stored()), QString());
}

void TestSchemeStoreReader::unusualSchemesOfAnEarlierFileAreRead()
{
    const StoreFolder folder;
    const LogCatcher log;
    AlarmInfoMap map = ManySchemes();
    AlarmInfo info;
    info.bOpen = true;
    info.bOpenSound = true;
    map.insert(AlarmSourceKey{QString::fromUtf8("\xE9\x97\xA8"), 3}, info);
    Save(map);
    MakeEarlier(folder.File());
    const QByteArray bytes = folder.Bytes();

    AlarmInfoMap read;
    QVERIFY(AlarmSchemeStoreReader(folder.File()).Read(read).IsSuccess());
    QCOMPARE(folder.Bytes(), bytes);
    QCOMPARE(Difference(read, map), QString());
}

void TestSchemeStoreReader::aFileThatLacksTablesIsRead()
{
    const StoreFolder folder;
    const LogCatcher log;
    const AlarmInfoMap map = ManySchemes();
    Save(map);
    {
        RawDatabase database(folder.File());
        for (const char* const table : {"AlarmSplitInfo", "AlarmDefenceTimeInfo", "AlarmLinkAlarmOutID"})
            QCOMPARE(database.Run(QStringLiteral("drop table ") + QLatin1String(table)), 0);
    }
    const QByteArray bytes = folder.Bytes();
    AlarmInfoMap read;
    QVERIFY(AlarmSchemeStoreReader(folder.File()).Read(read).IsSuccess());
    QCOMPARE(folder.Bytes(), bytes);
    QCOMPARE(read.size(), map.size());
    QVERIFY(read.first().defenceTime[1].isEmpty());
    QVERIFY(read.first().listAlarmOut.isEmpty());
    QCOMPARE(Difference(read, Stored()), QString());
}

void TestSchemeStoreReader::theFileIsFoundWhateverItsName_data()
{
    QTest::addColumn<QString>("name");
    QTest::newRow("blank") << QStringLiteral("a copy of.db");
    QTest::newRow("other letters") << QString::fromUtf8("\xE9\x97\xA8.db");
    QTest::newRow("like an address") << QStringLiteral("file:x?mode=memory");
    QTest::newRow("percent") << QStringLiteral("100%41#?.db");
}

void TestSchemeStoreReader::theFileIsFoundWhateverItsName()
{
    QFETCH(QString, name);
    const StoreFolder folder;
    const LogCatcher log;
    Save(ManySchemes());
    const Elsewhere elsewhere;
    const QString path = QDir(elsewhere.Folder()).absoluteFilePath(name);
    QVERIFY(QFile::copy(folder.File(), path));
    AlarmInfoMap read;
    QVERIFY(AlarmSchemeStoreReader(path).Read(read).IsSuccess());
    QCOMPARE(read.size(), 300);
    // The same once more, by the road of a write-ahead log.
    {
        RawDatabase database(path);
        QCOMPARE(database.Value(QStringLiteral("PRAGMA journal_mode = WAL")), QStringLiteral("wal"));
    }
    QVERIFY(AlarmSchemeStoreReader(path).Read(read).IsSuccess());
    QCOMPARE(read.size(), 300);
    QCOMPARE(QDir(elsewhere.Folder()).entryList(QDir::Files | QDir::Hidden), QStringList(name));
}

void TestSchemeStoreReader::whatCannotBeReadIsToldApart_data()
{
    QTest::addColumn<QByteArray>("bytes");
    QTest::addColumn<Reason>("reason");

    const StoreFolder folder;
    const LogCatcher log;
    Save(ManySchemes());
    const QByteArray sound = folder.Bytes();
    QByteArray other;
    {
        RawDatabase database(QDir(folder.Root()).absoluteFilePath(QStringLiteral("x.db")));
        database.Run(QStringLiteral("create table Cheese(name text)"));
    }
    QFile file(QDir(folder.Root()).absoluteFilePath(QStringLiteral("x.db")));
    QVERIFY(file.open(QIODevice::ReadOnly));
    other = file.readAll();

    QTest::newRow("sound") << sound << Reason::None;
    QTest::newRow("empty") << QByteArray() << Reason::NoSchemes;
    QTest::newRow("one byte") << QByteArray("S") << Reason::NotADatabase;
    QTest::newRow("text") << QByteArray(5000, 'x') << Reason::NotADatabase;
    QTest::newRow("json") << QByteArray("{\"format\":\"alarm-schemes\"}") << Reason::NotADatabase;
    QTest::newRow("only the header") << sound.left(100) << Reason::NotADatabase;
    QTest::newRow("database of something else") << other << Reason::NoSchemes;
    QTest::newRow("cut off within a page") << sound.left(sound.size() - 1000) << Reason::Damaged;
    QTest::newRow("cut off between pages") << sound.left(sound.size() - 4096) << Reason::Damaged;
    QByteArray scratched = sound;
    scratched.replace(8192, 4096, QByteArray(4096, '\xAA'));
    QTest::newRow("scratched") << scratched << Reason::Damaged;
}

void TestSchemeStoreReader::whatCannotBeReadIsToldApart()
{
    QFETCH(QByteArray, bytes);
    QFETCH(Reason, reason);
    const Elsewhere elsewhere;
    elsewhere.Write(bytes);
    AlarmInfoMap read = ManySchemes();
    const auto outcome = AlarmSchemeStoreReader(elsewhere.File()).Read(read);
    QCOMPARE(int(outcome.eReason), int(reason));
    QCOMPARE(outcome.strPath, elsewhere.File());
    QCOMPARE(read.isEmpty(), reason != Reason::None);
    QCOMPARE(Everything(elsewhere.Folder()), (QMap<QString, QByteArray>{{QStringLiteral("copy.db"), bytes}}));

    QCOMPARE(int(AlarmSchemeStoreReader(elsewhere.File("none.db")).Read(read).eReason),
             int(Reason::NotFound));
    QCOMPARE(int(AlarmSchemeStoreReader(QString()).Read(read).eReason), int(Reason::NotFound));
    QCOMPARE(int(AlarmSchemeStoreReader(elsewhere.Folder()).Read(read).eReason), int(Reason::NotAFile));
    QCOMPARE(Everything(elsewhere.Folder()).size(), 1);
}

void TestSchemeStoreReader::aHotJournalStandsInTheWay()
{
    const StoreFolder folder;
    const LogCatcher log;
    Save(ManySchemes());
    const Elsewhere elsewhere;
    {
        // A program that is killed in the middle of a write leaves these two behind.
        RawDatabase writer(folder.File());
        QCOMPARE(writer.Run(QStringLiteral("PRAGMA cache_size = 2; PRAGMA journal_mode = TRUNCATE; begin; "
                                           "update AlarmBaseInfo set bOpen = 1; "
                                           "update AlarmDefenceTimeInfo set Begin = 5, End = 6")),
                 0);
        QVERIFY(QFile::copy(folder.File(), elsewhere.File()));
        QVERIFY(QFile::copy(folder.File() + QLatin1String("-journal"), elsewhere.File("copy.db-journal")));
    }
    const auto before = Everything(elsewhere.Folder());
    AlarmInfoMap read;
    const auto outcome = AlarmSchemeStoreReader(elsewhere.File()).Read(read);
    QCOMPARE(int(outcome.eReason), int(Reason::UnfinishedJob));
    QVERIFY(outcome.Text().contains(elsewhere.File()));
    QVERIFY(read.isEmpty());
    QCOMPARE(Everything(elsewhere.Folder()), before);
    {
        RawDatabase repairing(elsewhere.File());
        QCOMPARE(repairing.Value(QStringLiteral("select count(*) from AlarmDefenceTimeInfo where Begin = 5 "
                                                "and End = 6")),
                 QStringLiteral("0"));
    }
    QVERIFY(AlarmSchemeStoreReader(elsewhere.File()).Read(read).IsSuccess());
    QCOMPARE(Difference(read, Stored()), QString());
}

void TestSchemeStoreReader::anEmptyJournalDoesNot()
{
    const StoreFolder folder;
    const LogCatcher log;
    Save(ManySchemes());
    QFile journal(folder.File() + QLatin1String("-journal"));
    QVERIFY(journal.open(QIODevice::WriteOnly));
    journal.close();
    AlarmInfoMap read;
    QVERIFY(AlarmSchemeStoreReader(folder.File()).Read(read).IsSuccess());
    QCOMPARE(read.size(), 300);
    QVERIFY(journal.exists());
}

void TestSchemeStoreReader::aWriteAheadLogOfALivingWriterIsReadAlong()
{
    const StoreFolder folder;
    const LogCatcher log;
    Save(ManySchemes());
    RawDatabase writer(folder.File());
    QCOMPARE(writer.Value(QStringLiteral("PRAGMA journal_mode = WAL")), QStringLiteral("wal"));
    QCOMPARE(writer.Run(QStringLiteral("update AlarmBaseInfo set bOpenSound = 1")), 0);
    AlarmInfoMap read;
    const auto before = Everything(QGetDatabaseDirPath());
    const auto outcome = AlarmSchemeStoreReader(folder.File()).Read(read);
    QVERIFY2(outcome.IsSuccess(), qPrintable(outcome.strTechnical));
    QCOMPARE(read.size(), 300);
    QVERIFY(read.first().bOpenSound); // it stands in the log only
    const auto after = Everything(QGetDatabaseDirPath());
    QCOMPARE(after.keys(), before.keys());
    for (const char* const name : {"AlarmScheme.db", "AlarmScheme.db-wal"})
        QCOMPARE(after.value(QString::fromLatin1(name)), before.value(QString::fromLatin1(name)));
}

void TestSchemeStoreReader::aWriteAheadLogThatWasLeftBehindStandsInTheWay()
{
    const StoreFolder folder;
    const LogCatcher log;
    Save(ManySchemes());
    const Elsewhere elsewhere;
    {
        RawDatabase writer(folder.File());
        writer.Run(QStringLiteral("PRAGMA journal_mode = WAL"));
        QCOMPARE(writer.Run(QStringLiteral("update AlarmBaseInfo set bOpenSound = 1")), 0);
        QVERIFY(QFile::copy(folder.File(), elsewhere.File()));
        QVERIFY(QFile::copy(folder.File() + QLatin1String("-wal"), elsewhere.File("copy.db-wal")));
    }
    const auto before = Everything(elsewhere.Folder());
    AlarmInfoMap read;
    QCOMPARE(int(AlarmSchemeStoreReader(elsewhere.File()).Read(read).eReason), int(Reason::UnfinishedJob));
    QCOMPARE(Everything(elsewhere.Folder()), before);
}

void TestSchemeStoreReader::aFileInThatModeWithoutALogIsRead()
{
    const StoreFolder folder;
    const LogCatcher log;
    Save(ManySchemes());
    {
        RawDatabase writer(folder.File());
        writer.Run(QStringLiteral("PRAGMA journal_mode = WAL"));
        QCOMPARE(writer.Run(QStringLiteral("update AlarmBaseInfo set bOpenSound = 1")), 0);
    }
    const auto before = Everything(QGetDatabaseDirPath());
    QCOMPARE(before.size(), 1);
    AlarmInfoMap read;
    QVERIFY(AlarmSchemeStoreReader(folder.File()).Read(read).IsSuccess());
    QVERIFY(read.size() == 300 && read.first().bOpenSound);
    QCOMPARE(Everything(QGetDatabaseDirPath()), before);

    // And one that only a copy can tell.
    {
        RawDatabase writer(folder.File());
        QCOMPARE(writer.Run(QStringLiteral("create view V as select 1; update AlarmBaseInfo set bOpen = 1")),
                 0);
    }
    const auto strange = Everything(QGetDatabaseDirPath());
    QVERIFY(AlarmSchemeStoreReader(folder.File()).Read(read).IsSuccess());
    QVERIFY(read.size() == 300 && read.last().bOpen);
    QCOMPARE(Everything(QGetDatabaseDirPath()), strange);
}

void TestSchemeStoreReader::aLockedFileIsWaitedFor()
{
    const StoreFolder folder;
    const LogCatcher log;
    Save(ManySchemes());
    const OtherProgram other(folder.File(), QStringLiteral("begin exclusive"),
                             std::chrono::milliseconds(200));
    QVERIFY(other.Holds());
    AlarmInfoMap read;
    QVERIFY(AlarmSchemeStoreReader(folder.File()).Read(read).IsSuccess());
    QCOMPARE(read.size(), 300);
}

void TestSchemeStoreReader::aWriterThatIsNotYetCommittingIsNoHindrance()
{
    const StoreFolder folder;
    const LogCatcher log;
    Save(ManySchemes());
    const OtherProgram other(folder.File(),
                             QStringLiteral("begin immediate; update AlarmBaseInfo set bOpenSound = 1"),
                             std::chrono::seconds(60));
    QVERIFY(other.Holds());
    AlarmInfoMap read;
    QVERIFY(AlarmSchemeStoreReader(folder.File()).Read(read).IsSuccess());
    QCOMPARE(Difference(read, ManySchemes()), QString());
}

void TestSchemeStoreReader::theWaitEndsInTime()
{
    const StoreFolder folder;
    const LogCatcher log;
    Save(ManySchemes());
    const OtherProgram other(folder.File(), QStringLiteral("begin exclusive"), std::chrono::seconds(60));
    QVERIFY(other.Holds());
    AlarmSchemeStoreReader reader(folder.File());
    reader.SetBusyTimeOut(std::chrono::milliseconds(60));
    AlarmInfoMap read;
    QCOMPARE(int(reader.Read(read).eReason), int(Reason::Locked));

    // A wait can be cut short, too.
    reader.SetBusyTimeOut(std::chrono::hours(1));
    int pulses = 0;
    reader.SetPulse([&pulses] { return ++pulses < 2; });
    QCOMPARE(int(reader.Read(read).eReason), int(Reason::Stopped));
    QCOMPARE(pulses, 2);
}

void TestSchemeStoreReader::thePulseStopsTheReading()
{
    const StoreFolder folder;
    const LogCatcher log;
    // A file that is busy with itself when it is brought up to date.
    Save(ManySchemes());
    {
        RawDatabase database(folder.File());
        QCOMPARE(database.Run(QStringLiteral(
                     "create trigger T before update on BaseInfo begin insert into AlarmLinkVideoID"
                     "(strLinkDevID) select 1 from AlarmBaseInfo a, AlarmBaseInfo b, AlarmBaseInfo c, "
                     "AlarmBaseInfo d where a.id + b.id + c.id + d.id < 0; end")),
                 0);
    }
    const QByteArray bytes = folder.Bytes();
    AlarmSchemeStoreReader reader(folder.File());
    int pulses = 0;
    reader.SetPulse([&pulses] { return ++pulses < 3; });
    AlarmInfoMap read;
    QCOMPARE(int(reader.Read(read).eReason), int(Reason::Stopped));
    QCOMPARE(pulses, 3);
    QVERIFY(read.isEmpty());
    QCOMPARE(folder.Bytes(), bytes);
}

void TestSchemeStoreReader::theReaderReadsAgain()
{
    const StoreFolder folder;
    const LogCatcher log;
    Save(ManySchemes());
    const AlarmSchemeStoreReader reader(folder.File());
    AlarmInfoMap read;
    QVERIFY(reader.Read(read).IsSuccess());
    AlarmInfoMap more = read;
    more.insert(AlarmSourceKey{QStringLiteral("9$1$0$9"), 5}, AlarmInfo());
    Save(more);
    QVERIFY(reader.Read(read).IsSuccess());
    QCOMPARE(read.size(), 301);
}

void TestSchemeStoreReader::everyReasonHasItsWords()
{
    QSet<QString> texts;
    for (int reason = int(Reason::NotFound); reason <= int(Reason::Other); ++reason) {
        const AlarmSchemeReadOutcome outcome{Reason(reason), QStringLiteral("the-file"),
                                             QStringLiteral("the-detail")};
        QVERIFY(!outcome.IsSuccess());
        QVERIFY(outcome.Text().contains(QStringLiteral("the-file")));
        texts.insert(outcome.Text());
    }
    QCOMPARE(texts.size(), int(Reason::Other));
    QVERIFY(AlarmSchemeReadOutcome().Text().isEmpty());
}

QTEST_MAIN(TestSchemeStoreReader)
#include "tst_scheme_store_reader.moc"
