#include "platform/SystemLibrary/WholeFile.h"
#include "tests/AlarmSchemeData/TestFile.h"
#include "tests/SystemLibrary/FullDisk.h"

#include <QDataStream>
#include <QDir>
#include <QTemporaryDir>
#include <QtTest>

#ifdef Q_OS_UNIX
#include <sys/stat.h>

#include <cerrno>
#endif

using TestFile::Bytes;

class TestWholeFile : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();

    void aFileIsWrittenWhole();
    void whatWasThereStaysUntilTheCommit();
    void aFullDiskIsToldAsTheSystemTellsIt_data();
    void aFullDiskIsToldAsTheSystemTellsIt();
    void aStreamOntoAFullDiskFails();
    void aFolderIsNotReplaced();
    void aPipeIsNotReplaced();
    void aFolderThatIsMissingIsTold();
    void nothingIsAFileToo();

private:
    QString In(const char* szName) const { return m_folder->filePath(QLatin1String(szName)); }
    QStringList Names() const
    {
        return QDir(m_folder->path()).entryList(QDir::AllEntries | QDir::Hidden | QDir::NoDotAndDotDot);
    }

    std::unique_ptr<QTemporaryDir> m_folder;
    QString m_strReason;
};

void TestWholeFile::init()
{
    m_folder = std::make_unique<QTemporaryDir>();
    m_strReason.clear();
}

void TestWholeFile::aFileIsWrittenWhole()
{
    const QByteArray large(3 * 1024 * 1024, 'x');
    QVERIFY(WholeFile::Write(In("a"), "short", m_strReason));
    QCOMPARE(Bytes(In("a")), QByteArray("short"));
    QVERIFY(WholeFile::Write(In("a"), large, m_strReason));
    QCOMPARE(Bytes(In("a")), large);
    QVERIFY(m_strReason.isEmpty());
    QCOMPARE(Names().size(), 1);
}

void TestWholeFile::whatWasThereStaysUntilTheCommit()
{
    QVERIFY(WholeFile::Write(In("a"), "before", m_strReason));
    {
        WholeFile file(In("a"));
        QVERIFY(file.open(QIODevice::WriteOnly));
        QCOMPARE(file.write("after"), qint64(5));
        QCOMPARE(Bytes(In("a")), QByteArray("before"));
    }
    QCOMPARE(Bytes(In("a")), QByteArray("before"));
    QCOMPARE(Names().size(), 1);
}

void TestWholeFile::aFullDiskIsToldAsTheSystemTellsIt_data()
{
    QTest::addColumn<int>("iRoom");
    QTest::addColumn<int>("iSize");
    QTest::newRow("no room at all") << 0 << 10;
    QTest::newRow("room for a part of a little") << 5 << 10;
    QTest::newRow("room for a part of much") << 100000 << 1000000;
    QTest::newRow("one byte too many") << 99999 << 100000;
}

void TestWholeFile::aFullDiskIsToldAsTheSystemTellsIt()
{
#ifdef Q_OS_UNIX
    QFETCH(int, iRoom);
    QFETCH(int, iSize);
    QVERIFY(WholeFile::Write(In("a"), "before", m_strReason));
    bool bWritten = true;
    {
        const FullDisk disk(static_cast<quint64>(iRoom));
        QVERIFY(disk.Holds());
        bWritten = WholeFile::Write(In("a"), QByteArray(iSize, 'x'), m_strReason);
    }
    QVERIFY(!bWritten);
    QCOMPARE(m_strReason, qt_error_string(EFBIG)); // the limit of this test says so; a disk, that it is full
    QCOMPARE(Bytes(In("a")), QByteArray("before"));
    QCOMPARE(Names().size(), 1);
#endif
}

void TestWholeFile::aStreamOntoAFullDiskFails()
{
#ifdef Q_OS_UNIX
    const FullDisk disk(1000);
    QVERIFY(disk.Holds());
    WholeFile file(In("a"));
    QVERIFY(file.open(QIODevice::WriteOnly));
    QDataStream stream(&file);
    stream << QByteArray(5000, 'x');
    QVERIFY(stream.status() != QDataStream::Ok);
    QCOMPARE(file.errorString(), qt_error_string(EFBIG));
    QVERIFY(!file.commit());
    QVERIFY(Names().isEmpty());
#endif
}

void TestWholeFile::aFolderIsNotReplaced()
{
    QVERIFY(QDir(m_folder->path()).mkdir(QStringLiteral("folder")));
    QVERIFY(!WholeFile::Write(In("folder"), "x", m_strReason));
    QCOMPARE(m_strReason, QStringLiteral("this is no file"));
    QVERIFY(QFileInfo(In("folder")).isDir());
}

void TestWholeFile::aPipeIsNotReplaced()
{
#ifdef Q_OS_UNIX
    QCOMPARE(mkfifo(QFile::encodeName(In("pipe")).constData(), 0600), 0);
    QVERIFY(!WholeFile::Write(In("pipe"), "x", m_strReason));
    QCOMPARE(m_strReason, QStringLiteral("this is no file"));
    QVERIFY(!QFileInfo(In("pipe")).isFile());
#endif
}

void TestWholeFile::aFolderThatIsMissingIsTold()
{
    QVERIFY(!WholeFile::Write(In("none/a"), "x", m_strReason));
    QVERIFY(!m_strReason.isEmpty());
    QVERIFY(Names().isEmpty());
}

void TestWholeFile::nothingIsAFileToo()
{
    QVERIFY2(WholeFile::Write(In("a"), QByteArray(), m_strReason), qPrintable(m_strReason));
    QCOMPARE(Bytes(In("a")), QByteArray());
    QVERIFY(QFileInfo::exists(In("a")));
}

QTEST_GUILESS_MAIN(TestWholeFile)
#include "tst_WholeFile.moc"
