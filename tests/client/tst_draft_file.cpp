#include "client/DraftFile.h"
#include "tests/SystemLibrary/FullDisk.h"

#include <QDir>
#include <QFile>
#include <QTemporaryDir>
#include <QtTest>

#include <cerrno>

class TestDraftFile : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init() { m_folder = std::make_unique<QTemporaryDir>(); }

    void whatWasWrittenIsRead()
    {
        const std::unique_ptr<DraftFile> file = Free();
        const Draft written = Some();
        QString strError;
        QVERIFY(DraftFile::Write(file->Path(), written, strError));
        Draft read;
        QVERIFY2(file->Read(read, strError), qPrintable(strError));
        QCOMPARE(read.strModule, written.strModule);
        QCOMPARE(read.written, written.written);
        QCOMPARE(read.iSchemes, 314);
        QCOMPARE(read.content, written.content);
    }
    void aLaterDraftTakesThePlaceOfTheEarlier()
    {
        const std::unique_ptr<DraftFile> file = Free();
        QString strError;
        Draft draft = Some();
        draft.content = QByteArray(1000000, 'x');
        QVERIFY(DraftFile::Write(file->Path(), draft, strError));
        draft.content = "short";
        QVERIFY(DraftFile::Write(file->Path(), draft, strError));
        Draft read;
        QVERIFY(file->Read(read, strError));
        QCOMPARE(read.content, QByteArray("short"));
    }
    void aFolderThatIsMissingIsMade()
    {
        const QString strFolder = m_folder->filePath(QStringLiteral("a/b"));
        const std::unique_ptr<DraftFile> file = DraftFile::Free(strFolder, m_strModule);
        QVERIFY(file != nullptr);
        QString strError;
        QVERIFY(DraftFile::Write(file->Path(), Some(), strError));
    }
    void aFolderThatCannotBeMadeGivesNoPlace()
    {
        QFile file(m_folder->filePath(QStringLiteral("file")));
        QVERIFY(file.open(QIODevice::WriteOnly));
        QVERIFY(DraftFile::Free(file.fileName() + QStringLiteral("/drafts"), m_strModule) == nullptr);
        QString strError;
        QVERIFY(!DraftFile::Write(file.fileName() + QStringLiteral("/x.draft"), Some(), strError));
        QVERIFY(!strError.isEmpty());
        QVERIFY(DraftFile::Orphans(file.fileName()).empty());
    }
    void aFullDiskIsToldAsSuchAndKeepsTheEarlierDraft()
    {
#ifdef Q_OS_UNIX
        const std::unique_ptr<DraftFile> file = Free();
        QString strError;
        QVERIFY(DraftFile::Write(file->Path(), Some(), strError));
        Draft large = Some();
        large.content = QByteArray(1000000, 'x');
        bool bWritten = true;
        {
            const FullDisk disk(100000);
            QVERIFY(disk.Holds());
            bWritten = DraftFile::Write(file->Path(), large, strError);
        }
        QVERIFY(!bWritten);
        QCOMPARE(strError, qt_error_string(EFBIG));
        Draft read;
        QVERIFY(file->Read(read, strError));
        QCOMPARE(read.content, Some().content);
#endif
    }
    void moduleKeysMayHoldWhatFileNamesMayNot()
    {
        const std::unique_ptr<DraftFile> file =
            DraftFile::Free(m_folder->path(), QStringLiteral("../../etc/<key>:*?"));
        QVERIFY(file != nullptr);
        QCOMPARE(QFileInfo(file->Path()).absolutePath(), QFileInfo(m_folder->path()).absoluteFilePath());
    }
    void everyPageGetsAPlaceOfItsOwn()
    {
        const std::unique_ptr<DraftFile> first = Free();
        const std::unique_ptr<DraftFile> second = Free();
        QVERIFY(first != nullptr && second != nullptr);
        QVERIFY(first->Path() != second->Path());
    }
    void aDraftThatWaitsIsNotOverwritten()
    {
        QString strPath;
        {
            const std::unique_ptr<DraftFile> file = Free();
            strPath = file->Path();
            QString strError;
            QVERIFY(DraftFile::Write(strPath, Some(), strError));
        }
        QVERIFY(Free()->Path() != strPath);
    }
    void placesAreNotEndless()
    {
        std::vector<std::unique_ptr<DraftFile>> files;
        for (int i = 0; i < DraftFile::MaximumPlaces; ++i) {
            files.push_back(Free());
            QVERIFY(files.back() != nullptr);
        }
        QVERIFY(Free() == nullptr);
        files.pop_back();
        QVERIFY(Free() != nullptr);
    }
    void onlyWhatNobodyHoldsIsFound()
    {
        QString strError;
        std::unique_ptr<DraftFile> held = Free();
        std::unique_ptr<DraftFile> left = Free();
        QVERIFY(DraftFile::Write(held->Path(), Some(), strError));
        QVERIFY(DraftFile::Write(left->Path(), Some(), strError));
        const QString strLeft = left->Path();
        left.reset();
        {
            const std::vector<std::unique_ptr<DraftFile>> orphans = DraftFile::Orphans(m_folder->path());
            QCOMPARE(orphans.size(), size_t(1));
            QCOMPARE(orphans.front()->Path(), strLeft);
            QVERIFY(DraftFile::Orphans(m_folder->path()).empty()); // found once, held once
        }
        held.reset();
        QCOMPARE(DraftFile::Orphans(m_folder->path()).size(), size_t(2));
    }
    void anOldLockOfAProgramThatRunsIsNotTakenOver()
    {
        const std::unique_ptr<DraftFile> held = Free();
        QString strError;
        QVERIFY(DraftFile::Write(held->Path(), Some(), strError));
        QFile lock(held->Path() + QStringLiteral(".lock"));
        QVERIFY(lock.open(QIODevice::ReadWrite));
        const QDateTime longAgo = QDateTime::currentDateTimeUtc().addDays(-30);
        QVERIFY(lock.setFileTime(longAgo, QFileDevice::FileModificationTime));
        lock.close();
        QVERIFY(DraftFile::Orphans(m_folder->path()).empty());
    }
    void damageIsNoticed_data()
    {
        QTest::addColumn<QByteArray>("bytes");
        const std::unique_ptr<DraftFile> file = DraftFile::Free(m_folder->path(), m_strModule);
        QString strError;
        QVERIFY(DraftFile::Write(file->Path(), Some(), strError));
        const QByteArray sound = Bytes(file->Path());
        QVERIFY(file->Remove());
        QTest::newRow("empty") << QByteArray();
        QTest::newRow("a letter") << QByteArray("Dear guard,\n").repeated(20);
        QTest::newRow("cut short") << sound.left(sound.size() - 1);
        QTest::newRow("cut in the middle") << sound.left(sound.size() / 2);
        QTest::newRow("more behind it") << sound + 'x';
        QByteArray newer = sound;
        newer[7] = char(newer[7] + 1);
        QTest::newRow("another version") << newer;
        QByteArray huge = sound;
        huge[8] = char(0x7f); // a length that no file has
        QTest::newRow("a length beyond the file") << huge;
        for (int i = 8; i < sound.size(); i += 17) {
            QByteArray flipped = sound;
            flipped[i] = char(flipped[i] ^ 0x10);
            QTest::newRow(qPrintable(QStringLiteral("byte %1").arg(i))) << flipped;
        }
    }
    void damageIsNoticed()
    {
        QFETCH(QByteArray, bytes);
        const std::unique_ptr<DraftFile> file = Free();
        QFile raw(file->Path());
        QVERIFY(raw.open(QIODevice::WriteOnly));
        QCOMPARE(raw.write(bytes), qint64(bytes.size()));
        raw.close();
        Draft draft;
        QString strError;
        QVERIFY(!file->Read(draft, strError));
        QVERIFY(!strError.isEmpty());
        const QString strAside = file->SetAside();
        QVERIFY(!strAside.isEmpty());
        QCOMPARE(Bytes(strAside), bytes);
        QVERIFY(!QFile::exists(file->Path()));
    }
    void whatIsSetAsideTakesNoPlaceOfAnother()
    {
        QStringList asides;
        for (int i = 0; i < 3; ++i) {
            const std::unique_ptr<DraftFile> file = Free();
            QFile raw(file->Path());
            QVERIFY(raw.open(QIODevice::WriteOnly));
            raw.close();
            asides.append(file->SetAside());
        }
        asides.removeDuplicates();
        QCOMPARE(asides.size(), 3);
        QVERIFY(DraftFile::Orphans(m_folder->path()).empty());
    }
    void aDraftThatIsRemovedIsGone()
    {
        const std::unique_ptr<DraftFile> file = Free();
        QVERIFY(file->Remove()); // there is none yet
        QString strError;
        QVERIFY(DraftFile::Write(file->Path(), Some(), strError));
        QVERIFY(file->Remove());
        Draft draft;
        QVERIFY(!file->Read(draft, strError));
    }

private:
    std::unique_ptr<DraftFile> Free() const
    {
        return DraftFile::Free(m_folder->path(), m_strModule);
    }
    Draft Some() const
    {
        return {m_strModule, QDateTime(QDate(2026, 3, 4), QTime(5, 6, 7, 89), Qt::UTC), 314,
                QByteArray("\0edits\xff", 7).repeated(30)};
    }
    static QByteArray Bytes(const QString& strPath)
    {
        QFile file(strPath);
        return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
    }

    const QString m_strModule = QStringLiteral("Module");
    std::unique_ptr<QTemporaryDir> m_folder = std::make_unique<QTemporaryDir>();
};

QTEST_GUILESS_MAIN(TestDraftFile)
#include "tst_draft_file.moc"
