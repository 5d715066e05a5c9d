#include "client/store/DamagedFile.h"

#include "tests/client_store/SchemeFiles.h"

#include <QFileInfo>
#include <QTemporaryDir>
#include <QtTest>

#include <memory>

class DamagedFileTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();

    void itIsRenamedWithItsJournal();
    void everyFileOfItGoesAlong();
    void nothingIsEverWrittenOver();
    void whenItCannotBeRenamedEverythingLiesWhereItLay();
    void aBackupTakesItsPlaceAndStays();
    void aBackupThatIsNoneChangesNothing_data();
    void aBackupThatIsNoneChangesNothing();
    void aReplacingThatWasCutOffIsFinished();
    void finishingNeverReplacesAFile();
    void whatACutOffReplacingLeftIsNotTakenForTheBackup();

private:
    DamagedFile Damaged() const
    {
        return DamagedFile(m_strFile, [] { return QDateTime(QDate(2026, 11, 21), QTime(18, 45, 0)); });
    }
    QStringList Names() const { return SchemeFiles::Names(m_folder->path()); }
    QString Path(const char* szName) const
    {
        return QDir(m_folder->path()).absoluteFilePath(QString::fromLatin1(szName));
    }

    std::unique_ptr<QTemporaryDir> m_folder;
    QString m_strFile;
    QString m_strBackup;
};

void DamagedFileTest::init()
{
    m_folder = std::make_unique<QTemporaryDir>();
    m_strFile = Path("AlarmScheme.db");
    m_strBackup = Path("backup.db");
    SchemeFiles::Write(m_strFile, "damaged");
    SchemeFiles::Make(m_strBackup, 4);
}

void DamagedFileTest::itIsRenamedWithItsJournal()
{
    SchemeFiles::Write(Path("AlarmScheme.db-journal"), "journal");
    DamagedFile file = Damaged();
    QVERIFY(file.KeptAs().isEmpty());
    QVERIFY(!file.SetAside());
    QCOMPARE(file.KeptAs(), Path("AlarmScheme.damaged-20261121-184500.db"));
    // A journal that is named after its database can still be made use of.
    QCOMPARE(Names(), (QStringList{QStringLiteral("AlarmScheme.damaged-20261121-184500.db"),
                                   QStringLiteral("AlarmScheme.damaged-20261121-184500.db-journal"),
                                   QStringLiteral("backup.db")}));
    QCOMPARE(SchemeFiles::Bytes(file.KeptAs()), QByteArray("damaged"));
    QCOMPARE(SchemeFiles::Bytes(file.KeptAs() + QStringLiteral("-journal")), QByteArray("journal"));
}

void DamagedFileTest::everyFileOfItGoesAlong()
{
    for (const char* name : {"AlarmScheme.db-journal", "AlarmScheme.db-wal", "AlarmScheme.db-shm"})
        SchemeFiles::Write(Path(name), name);
    QVERIFY(!Damaged().SetAside());
    QCOMPARE(Names().size(), 5);
    const QStringList names = Names();
    for (const QString& name : names)
        QVERIFY(name == QLatin1String("backup.db") || name.startsWith(QLatin1String("AlarmScheme.damaged-")));
}

void DamagedFileTest::nothingIsEverWrittenOver()
{
    QStringList kept;
    for (int i = 0; i < 4; ++i) {
        SchemeFiles::Write(m_strFile, "damaged " + QByteArray::number(i));
        if (i == 2) // only a journal stands in the way of the next name
            SchemeFiles::Write(Path("AlarmScheme.damaged-20261121-184500-3.db-journal"), "somebody's");
        DamagedFile file = Damaged();
        QVERIFY(!file.SetAside());
        kept.append(file.KeptAs());
    }
    QCOMPARE(kept.removeDuplicates(), 0);
    for (int i = 0; i < 4; ++i)
        QCOMPARE(SchemeFiles::Bytes(kept.at(i)), "damaged " + QByteArray::number(i));
    QCOMPARE(SchemeFiles::Bytes(Path("AlarmScheme.damaged-20261121-184500-3.db-journal")),
             QByteArray("somebody's"));
}

void DamagedFileTest::whenItCannotBeRenamedEverythingLiesWhereItLay()
{
    // File systems end names at 255 bytes; this one has no room for the date.
    const QString path = Path("x").chopped(1) + QString(240, QLatin1Char('a')) + QStringLiteral(".db");
    SchemeFiles::Write(path, "damaged");
    SchemeFiles::Write(path + QStringLiteral("-journal"), "journal");
    const QStringList before = Names();
    DamagedFile file(path);
    const DamagedFile::Failure aside = file.SetAside();
    QVERIFY(aside && !aside->strMessage.isEmpty());
    QVERIFY(file.ReplaceBy(m_strBackup));
    QVERIFY(file.KeptAs().isEmpty());
    QCOMPARE(Names(), before);
}

void DamagedFileTest::aBackupTakesItsPlaceAndStays()
{
    const QByteArray backup = SchemeFiles::Bytes(m_strBackup);
    DamagedFile file = Damaged();
    QVERIFY(!file.ReplaceBy(m_strBackup));
    QCOMPARE(SchemeFiles::Bytes(file.KeptAs()), QByteArray("damaged"));
    QCOMPARE(SchemeFiles::Bytes(m_strBackup), backup);
    QCOMPARE(Names(), (QStringList{QStringLiteral("AlarmScheme.damaged-20261121-184500.db"),
                                   QStringLiteral("AlarmScheme.db"), QStringLiteral("backup.db")}));
    QCOMPARE(RawDatabase(m_strFile).Content(), RawDatabase(m_strBackup).Content());
}

void DamagedFileTest::aBackupThatIsNoneChangesNothing_data()
{
    QTest::addColumn<QString>("kind");
    for (const char* kind : {"missing", "empty", "letter", "damaged", "folder", "other"})
        QTest::newRow(kind) << QString::fromLatin1(kind);
}

void DamagedFileTest::aBackupThatIsNoneChangesNothing()
{
    QFETCH(QString, kind);
    if (kind == QLatin1String("damaged"))
        SchemeFiles::DamageTable(m_strBackup);
    else
        QVERIFY(QFile::remove(m_strBackup));
    if (kind == QLatin1String("empty"))
        SchemeFiles::Write(m_strBackup, QByteArray());
    if (kind == QLatin1String("letter"))
        SchemeFiles::Write(m_strBackup, QByteArray(5000, 'x'));
    if (kind == QLatin1String("other"))
        QCOMPARE(RawDatabase(m_strBackup).Run(QStringLiteral("create table Other(a)")), 0);
    if (kind == QLatin1String("folder"))
        QVERIFY(QDir().mkpath(m_strBackup));
    const QStringList before = Names();
    DamagedFile file = Damaged();
    QVERIFY(file.ReplaceBy(m_strBackup));
    QVERIFY(file.KeptAs().isEmpty());
    QCOMPARE(Names(), before);
    QCOMPARE(SchemeFiles::Bytes(m_strFile), QByteArray("damaged"));
}

void DamagedFileTest::aReplacingThatWasCutOffIsFinished()
{
    // Between the two renamings: the damaged file is away, the copy waits.
    QVERIFY(QFile::rename(m_strFile, Path("AlarmScheme.damaged-20261121-184500.db")));
    QVERIFY(QFile::copy(m_strBackup, Path("AlarmScheme.db.restored")));
    DamagedFile::FinishReplacing(m_strFile);
    QCOMPARE(SchemeFiles::Read(m_strFile).size(), 4);
    QVERIFY(!QFileInfo::exists(Path("AlarmScheme.db.restored")));
    // A copy that was still being made is none.
    QVERIFY(QFile::remove(m_strFile));
    SchemeFiles::Write(Path("AlarmScheme.db.restoring"), "half");
    DamagedFile::FinishReplacing(m_strFile);
    QVERIFY(!QFileInfo::exists(m_strFile));
}

void DamagedFileTest::finishingNeverReplacesAFile()
{
    QVERIFY(QFile::copy(m_strBackup, Path("AlarmScheme.db.restored")));
    DamagedFile::FinishReplacing(m_strFile);
    QCOMPARE(SchemeFiles::Bytes(m_strFile), QByteArray("damaged"));
}

void DamagedFileTest::whatACutOffReplacingLeftIsNotTakenForTheBackup()
{
    SchemeFiles::Make(Path("AlarmScheme.db.restored"), 9);
    SchemeFiles::Write(Path("AlarmScheme.db.restoring"), "half");
    QVERIFY(!Damaged().ReplaceBy(m_strBackup));
    QCOMPARE(SchemeFiles::Read(m_strFile).size(), 4);
    SchemeFiles::Make(Path("AlarmScheme.db.restored"), 9);
    QVERIFY(!Damaged().SetAside());
    DamagedFile::FinishReplacing(m_strFile);
    QVERIFY(!QFileInfo::exists(m_strFile));
}

QTEST_GUILESS_MAIN(DamagedFileTest)
#include "tst_damaged_file.moc"
