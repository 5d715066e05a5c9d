#include "client/store/SchemeBackups.h"

#include "client/store/FileHealth.h"
#include "tests/client_store/SchemeFiles.h"

#include <QFileInfo>
#include <QTemporaryDir>
#include <QtTest>

#include <memory>

namespace {

constexpr std::chrono::milliseconds NoWait{0};

QDateTime Noon(int iDay)
{
    return QDateTime(QDate(2026, 11, iDay), QTime(12, 0, 0));
}

} // namespace

class SchemeBackupsTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();

    void aBackupIsAWholeDatabaseWithADatedName();
    void theDatabaseStaysAsItIs();
    void oneBackupADayIsDue();
    void theLastSevenAreKept();
    void sevenOfOneMomentStandInTheOrderOfTheirMaking();
    void aClockThatGoesBackTakesNoNewBackupForAnOldOne();
    void anUnchangedFileIsNotBackedUpTwiceWhenThatIsAskedFor();
    void onlyOurNamesAreEverRemoved_data();
    void onlyOurNamesAreEverRemoved();
    void aFileInThePlaceOfTheFolderIsAFailure();
    void aMissingDatabaseIsAFailure();
    void aDamagedDatabaseGivesNoBackup();
    void aFailureLeavesTheFolderAsItWas();
    void aCopyThatWasCutOffIsRemovedAfterADay();
    void whatAnotherProgramHasNotCommittedIsNotInIt();
    void aProgramThatHoldsTheFileAloneIsWaitedFor();
    void aCopyOfAFileWithAWriteAheadLogNeedsNone();
    void theNewestSoundOneIsFound();
    void withoutASoundOneNothingIsFound();
    void lookingAtABackupLeavesNoTrace();
    void numbersThatCannotGrowAreAFailure();
    void aNameBesideIsNotMistaken();

private:
    SchemeBackups Backups() const
    {
        return SchemeBackups(m_strFile, [this] { return m_now; });
    }
    QStringList Names() const { return SchemeFiles::Names(Backups().Folder()); }
    QString InFolder(const QString& strName) const { return QDir(Backups().Folder()).filePath(strName); }
    bool Make() const { return !Backups().Make(NoWait); }

    std::unique_ptr<QTemporaryDir> m_folder;
    QString m_strFile;
    QDateTime m_now;
};

void SchemeBackupsTest::init()
{
    m_folder = std::make_unique<QTemporaryDir>();
    m_strFile = QDir(m_folder->path()).absoluteFilePath(QStringLiteral("AlarmScheme.db"));
    m_now = Noon(21);
    SchemeFiles::Make(m_strFile, 3);
}

void SchemeBackupsTest::aBackupIsAWholeDatabaseWithADatedName()
{
    QVERIFY(Make());
    QCOMPARE(Names(), QStringList{QStringLiteral("AlarmScheme-0001-20261121-120000.db")});
    const QList<SchemeBackup> backups = Backups().List();
    QCOMPARE(backups.size(), 1);
    QCOMPARE(backups.first().time, m_now);
    QCOMPARE(backups.first().iNumber, 1);
    QCOMPARE(QFileInfo(backups.first().strPath).absolutePath(),
             QFileInfo(m_strFile).absolutePath() + QStringLiteral("/backups"));
    QCOMPARE(RawDatabase(backups.first().strPath).Content(), RawDatabase(m_strFile).Content());
}

void SchemeBackupsTest::theDatabaseStaysAsItIs()
{
    const QByteArray before = SchemeFiles::Bytes(m_strFile);
    QVERIFY(Make());
    QCOMPARE(SchemeFiles::Bytes(m_strFile), before);
    QCOMPARE(SchemeFiles::Names(m_folder->path()),
             (QStringList{QStringLiteral("AlarmScheme.db"), QStringLiteral("backups")}));
}

void SchemeBackupsTest::oneBackupADayIsDue()
{
    QVERIFY(Backups().IsDue());
    m_now = QDateTime(QDate(2026, 11, 21), QTime(0, 0, 0));
    QVERIFY(Make());
    QVERIFY(!Backups().IsDue());
    m_now = QDateTime(QDate(2026, 11, 21), QTime(23, 59, 59));
    QVERIFY(!Backups().IsDue());
    m_now = QDateTime(QDate(2026, 11, 22), QTime(0, 0, 0));
    QVERIFY(Backups().IsDue());
}

void SchemeBackupsTest::theLastSevenAreKept()
{
    for (int day = 1; day <= 20; ++day) {
        m_now = Noon(day);
        QVERIFY(Make());
        QCOMPARE(Backups().List().size(), std::min(day, SchemeBackups::Kept));
    }
    const QList<SchemeBackup> backups = Backups().List();
    for (int i = 0; i < backups.size(); ++i)
        QCOMPARE(backups.at(i).time, Noon(20 - i));
}

void SchemeBackupsTest::sevenOfOneMomentStandInTheOrderOfTheirMaking()
{
    for (int schemes = 1; schemes <= 9; ++schemes) {
        SchemeFiles::Make(m_strFile, schemes);
        QVERIFY(Make());
    }
    const QList<SchemeBackup> backups = Backups().List();
    QCOMPARE(backups.size(), 7);
    // The file of three schemes had only three to begin with; the others grew by one.
    for (int i = 0; i < backups.size(); ++i)
        QCOMPARE(FileHealth::Inspect(backups.at(i).strPath).iSchemes, 9 - i);
}

void SchemeBackupsTest::aClockThatGoesBackTakesNoNewBackupForAnOldOne()
{
    for (int day = 14; day <= 20; ++day) {
        m_now = Noon(day);
        QVERIFY(Make());
    }
    m_now = Noon(3);
    QVERIFY(Backups().IsDue());
    for (int more = 1; more <= 3; ++more) {
        SchemeFiles::Make(m_strFile, 3 + more);
        QVERIFY(Make());
        // Neither removed at once as the oldest, nor taken for older than what it comes after.
        QCOMPARE(FileHealth::Inspect(Backups().List().constFirst().strPath).iSchemes, 3 + more);
        QCOMPARE(Backups().NewestSound()->iSchemes, 3 + more);
    }
    QCOMPARE(Backups().List().constLast().time, Noon(17));
    QVERIFY(!Backups().IsDue());
}

void SchemeBackupsTest::anUnchangedFileIsNotBackedUpTwiceWhenThatIsAskedFor()
{
    QVERIFY(!Backups().MakeUnlessSame(NoWait));
    QVERIFY(!Backups().MakeUnlessSame(NoWait));
    QCOMPARE(Names().size(), 1);
    RawDatabase(m_strFile).Run(QStringLiteral("update AlarmBaseInfo set bOpenSound = 1 where id = 2"));
    QVERIFY(!Backups().MakeUnlessSame(NoWait));
    QCOMPARE(Names().size(), 2);
    // One that has been spoilt meanwhile holds something else.
    SchemeFiles::DamageTable(Backups().List().constFirst().strPath);
    QVERIFY(!Backups().MakeUnlessSame(NoWait));
    QCOMPARE(Names().size(), 3);
}

void SchemeBackupsTest::onlyOurNamesAreEverRemoved_data()
{
    QTest::addColumn<QString>("name");
    for (const char* name :
         {"letter.txt", "AlarmScheme.db", "AlarmScheme-0001-20261121-120000.db.bak",
          "AlarmScheme-0001-20261121-120000.db-journal", "xAlarmScheme-0001-20261121-120000.db",
          "AlarmScheme-001-20261121-120000.db", "AlarmScheme-0001-20261321-120000.db",
          "AlarmScheme-0001-20261121-250000.db", "AlarmScheme-0001-2026112-120000.db",
          "AlarmScheme--001-20261121-120000.db", "Other-0001-20261121-120000.db",
          "AlarmScheme-0001-20261121-120000.db\n", "alarmscheme-0001-20261121-120000.db",
          "AlarmScheme-1234567890123-20261121-120000.db", "AlarmScheme-letter.copying",
          "AlarmScheme-\xD9\xA0\xD9\xA0\xD9\xA0\xD9\xA1-20261121-120000.db"})
        QTest::newRow(name) << QString::fromUtf8(name);
}

void SchemeBackupsTest::onlyOurNamesAreEverRemoved()
{
    QFETCH(QString, name);
    QVERIFY(QDir().mkpath(Backups().Folder()));
    SchemeFiles::Write(InFolder(name), "somebody's");
    QFile file(InFolder(name));
    QVERIFY(file.open(QIODevice::ReadWrite));
    QVERIFY(file.setFileTime(QDateTime(QDate(2001, 1, 1), QTime(0, 0)), QFileDevice::FileModificationTime));
    file.close();
    QVERIFY(QDir(Backups().Folder())
                .mkdir(QStringLiteral("AlarmScheme-0009-20261101-120000.db"))); // a folder is none either
    for (int i = 0; i < 9; ++i)
        QVERIFY(Make());
    QCOMPARE(Backups().List().size(), 7);
    QCOMPARE(SchemeFiles::Bytes(InFolder(name)), QByteArray("somebody's"));
    QCOMPARE(Names().size(), 7 + 2);
}

void SchemeBackupsTest::aFileInThePlaceOfTheFolderIsAFailure()
{
    SchemeFiles::Write(Backups().Folder(), "a file");
    QVERIFY(Backups().Make(NoWait));
    QVERIFY(Backups().List().isEmpty());
    QVERIFY(Backups().IsDue());
    QVERIFY(!Backups().NewestSound());
    QCOMPARE(SchemeFiles::Bytes(Backups().Folder()), QByteArray("a file"));
}

void SchemeBackupsTest::aMissingDatabaseIsAFailure()
{
    QVERIFY(QFile::remove(m_strFile));
    QVERIFY(Backups().Make(NoWait));
    QVERIFY(Names().isEmpty());
    QVERIFY(!QFileInfo::exists(m_strFile));
}

void SchemeBackupsTest::aDamagedDatabaseGivesNoBackup()
{
    QVERIFY(Make());
    SchemeFiles::DamageTable(m_strFile);
    QVERIFY(Backups().Make(NoWait));
    SchemeFiles::Write(m_strFile, QByteArray(8192, 'x'));
    QVERIFY(Backups().Make(NoWait));
    SchemeFiles::Write(m_strFile, QByteArray());
    QVERIFY(Backups().Make(NoWait));
    QCOMPARE(Names().size(), 1);
}

void SchemeBackupsTest::aFailureLeavesTheFolderAsItWas()
{
    for (int day = 1; day <= 7; ++day) {
        m_now = Noon(day);
        QVERIFY(Make());
    }
    const QStringList before = Names();
    SchemeFiles::DamageTable(m_strFile);
    QVERIFY(Backups().Make(NoWait));
    QCOMPARE(Names(), before);
}

void SchemeBackupsTest::aCopyThatWasCutOffIsRemovedAfterADay()
{
    QVERIFY(QDir().mkpath(Backups().Folder()));
    const auto leave = [this](const char* name, qint64 age) {
        const QString path = InFolder(QString::fromLatin1(name));
        SchemeFiles::Write(path, "half a copy");
        SchemeFiles::Write(path + QStringLiteral("-journal"), "its journal");
        QFile file(path);
        return file.open(QIODevice::ReadWrite) && file.setFileTime(QDateTime::currentDateTime().addSecs(-age),
                                                                   QFileDevice::FileModificationTime);
    };
    const char* old = "AlarmScheme-01234567-89ab-cdef-0123-456789abcdef.copying";
    const char* fresh = "AlarmScheme-11234567-89ab-cdef-0123-456789abcdef.copying";
    QVERIFY(leave(old, 90000) && leave(fresh, 3600));
    QVERIFY(Make());
    QCOMPARE(Names().size(), 3); // the backup, and what another program may still be working on
    QVERIFY(!QFileInfo::exists(InFolder(QString::fromLatin1(old))));
    QCOMPARE(Backups().List().size(), 1);
}

void SchemeBackupsTest::whatAnotherProgramHasNotCommittedIsNotInIt()
{
    RawDatabase other(m_strFile);
    QCOMPARE(other.Run(QStringLiteral("begin immediate; delete from AlarmUniqueID where AlarmUniqueID = 1")),
             0);
    QVERIFY(Make());
    QCOMPARE(Backups().NewestSound()->iSchemes, 3);
    QCOMPARE(other.Run(QStringLiteral("commit")), 0);
    QVERIFY(Make());
    QCOMPARE(Backups().NewestSound()->iSchemes, 2);
}

void SchemeBackupsTest::aProgramThatHoldsTheFileAloneIsWaitedFor()
{
    RawDatabase other(m_strFile);
    QCOMPARE(other.Run(QStringLiteral("begin exclusive")), 0);
    const auto failure = Backups().Make(std::chrono::milliseconds(50));
    QVERIFY(failure);
    QCOMPARE(failure->iCode & 0xFF, 5); // SQLITE_BUSY
    QVERIFY(Names().isEmpty());
    QCOMPARE(other.Run(QStringLiteral("rollback")), 0);
    QVERIFY(Make());
}

void SchemeBackupsTest::aCopyOfAFileWithAWriteAheadLogNeedsNone()
{
    RawDatabase other(m_strFile);
    QCOMPARE(other.Value(QStringLiteral("PRAGMA journal_mode = WAL")), QStringLiteral("wal"));
    QCOMPARE(other.Run(QStringLiteral("delete from AlarmUniqueID where AlarmUniqueID = 1")), 0);
    QVERIFY(Make());
    QCOMPARE(Backups().NewestSound()->iSchemes, 2);
    const QString backup = Backups().List().constFirst().strPath;
    QCOMPARE(RawDatabase(backup).Value(QStringLiteral("PRAGMA journal_mode")), QStringLiteral("delete"));
    QCOMPARE(Names().size(), 1);
}

void SchemeBackupsTest::theNewestSoundOneIsFound()
{
    for (int schemes = 3; schemes <= 6; ++schemes) {
        SchemeFiles::Make(m_strFile, schemes);
        m_now = Noon(10 + schemes);
        QVERIFY(Make());
    }
    QCOMPARE(Backups().NewestSound()->iSchemes, 6);
    SchemeFiles::Write(Backups().List().at(0).strPath, "no database at all");
    QCOMPARE(Backups().NewestSound()->iSchemes, 5);
    QByteArray cut = SchemeFiles::Bytes(Backups().List().at(1).strPath);
    cut.chop(100);
    SchemeFiles::Write(Backups().List().at(1).strPath, cut);
    QCOMPARE(Backups().NewestSound()->iSchemes, 4);
    SchemeFiles::DamageIndex(Backups().List().at(2).strPath);
    const auto sound = Backups().NewestSound();
    QCOMPARE(sound->iSchemes, 3);
    QCOMPARE(sound->backup.time, Noon(13));
}

void SchemeBackupsTest::withoutASoundOneNothingIsFound()
{
    QVERIFY(!Backups().NewestSound());
    QVERIFY(Make());
    // A database, and a sound one, but of something else.
    const QString path = Backups().List().constFirst().strPath;
    QVERIFY(QFile::remove(path));
    RawDatabase(path).Run(QStringLiteral("create table Other(a)"));
    QVERIFY(!Backups().NewestSound());
    SchemeFiles::Write(path, QByteArray());
    QVERIFY(!Backups().NewestSound());
}

void SchemeBackupsTest::lookingAtABackupLeavesNoTrace()
{
    QVERIFY(Make());
    const QString path = Backups().List().constFirst().strPath;
    // Somebody has worked on it and left a write-ahead log to it, which a look must not begin to use.
    QCOMPARE(RawDatabase(path).Value(QStringLiteral("PRAGMA journal_mode = WAL")), QStringLiteral("wal"));
    const QByteArray before = SchemeFiles::Bytes(path);
    const QStringList names = Names();
    QVERIFY(Backups().NewestSound());
    QCOMPARE(SchemeFiles::Bytes(path), before);
    QCOMPARE(Names(), names);
}

void SchemeBackupsTest::numbersThatCannotGrowAreAFailure()
{
    QVERIFY(QDir().mkpath(Backups().Folder()));
    SchemeFiles::Write(InFolder(QStringLiteral("AlarmScheme-999999999999-20261120-120000.db")), "x");
    QVERIFY(Backups().Make(NoWait));
    QCOMPARE(Names().size(), 1);
}

void SchemeBackupsTest::aNameBesideIsNotMistaken()
{
    // Two databases in one folder share the folder of their backups.
    const QString other = QDir(m_folder->path()).absoluteFilePath(QStringLiteral("AlarmScheme-0001.db"));
    SchemeFiles::Make(other, 1);
    QVERIFY(!SchemeBackups(other, [this] { return m_now; }).Make(NoWait));
    QVERIFY(Backups().List().isEmpty());
    QVERIFY(Make());
    QCOMPARE(Backups().NewestSound()->iSchemes, 3);
    QCOMPARE(SchemeBackups(other).NewestSound()->iSchemes, 1);
}

QTEST_GUILESS_MAIN(SchemeBackupsTest)
#include "tst_scheme_backups.moc"
