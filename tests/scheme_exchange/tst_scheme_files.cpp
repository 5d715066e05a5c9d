#include "AlarmCtrl/AlarmSchemeData/AlarmSchemeDatabaseParser.h"
#include "scheme_services/exchange/SchemeFiles.h"
#include "tests/AlarmSchemeData/OracleRounds.h"
#include "tests/AlarmSchemeData/StoreFolder.h"
#include "tests/AlarmSchemeData/TestFile.h"
#include "tests/SystemLibrary/FullDisk.h"
#include "tests/scheme_exchange/SchemeTexts.h"

#include <QTest>

#ifdef Q_OS_UNIX
#include <sys/stat.h>

#include <cerrno>
#endif

using TestFile::Bytes;
using TestFile::Write;

namespace {

QString In(const QTemporaryDir& folder, const char* szName)
{
    return QDir(folder.path()).absoluteFilePath(QLatin1String(szName));
}

AlarmInfoMap Doors(int iDoors)
{
    AlarmInfoMap map;
    for (int door = 0; door < iDoors; ++door) {
        AlarmInfo info;
        info.bOpen = door % 2 == 0;
        map.insert(AlarmSourceKey{EventSource::Door(7, door), 101}, info);
    }
    return map;
}

QString Texts(const SchemeFileProblems& problems)
{
    QStringList texts;
    for (const SchemeFileProblem& problem : problems)
        texts.append(problem.Text());
    return texts.join(QLatin1Char('\n'));
}

} // namespace

class TestSchemeFiles : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void whatIsWrittenIsRead();
    void aDatabaseAndATextAreToldByTheirContent();
    void problemsNameTheFileAndTheLine();
    void whatIsNoFileIsNotRead();
    void whatIsNoFileIsNotReplaced();
    void aFileIsReplacedWhole();
    void whatCannotBeWrittenLeavesTheFileThatWasThere();
    void aFullDiskLeavesNoHalfFile();
    void progressIsTold();
};

void TestSchemeFiles::whatIsWrittenIsRead()
{
    const QTemporaryDir folder;
    const QString path = In(folder, "export.json");
    QCOMPARE(Texts(SchemeFiles::WriteText(path, Doors(300))), QString());
    QCOMPARE(Bytes(path), SchemeTexts::Write(Doors(300)));
    AlarmInfoMap read;
    QCOMPARE(Texts(SchemeFiles::ReadText(path, read)), QString());
    QVERIFY(read == Doors(300));
}

void TestSchemeFiles::aDatabaseAndATextAreToldByTheirContent()
{
    const StoreFolder folder;
    const LogCatcher log;
    {
        const AlarmInfoMap map = Doors(5);
        AlarmSchemeDatabaseParser store(&OracleRounds::HurryAlong);
        store.SaveAll(&map);
    }
    const QTemporaryDir other;
    const QString database = In(other, "database.json");
    const QString text = In(other, "text.db");
    QVERIFY(QFile::copy(folder.File(), database));
    Write(text, SchemeTexts::Write(Doors(6)));
    AlarmInfoMap read;
    QCOMPARE(Texts(SchemeFiles::Read(database, read)), QString());
    QCOMPARE(read.size(), 5);
    QCOMPARE(Texts(SchemeFiles::Read(text, read)), QString());
    QCOMPARE(read.size(), 6);
    // A text is asked for, and this is none.
    QCOMPARE(SchemeFiles::ReadText(database, read).size(), 1);
    QVERIFY(read.isEmpty());
    Write(database, Bytes(database).left(9000));
    QCOMPARE(SchemeFiles::Read(database, read).size(), 1);
    QVERIFY(Texts(SchemeFiles::Read(database, read)).contains(QStringLiteral("damaged")));
}

void TestSchemeFiles::problemsNameTheFileAndTheLine()
{
    const QTemporaryDir folder;
    const QString path = In(folder, "bad.json");
    Write(path, SchemeTexts::Scheme("\"bOpen\":1,\n\"bOpne\":1"));
    AlarmInfoMap read = Doors(1);
    const SchemeFileProblems problems = SchemeFiles::Read(path, read);
    QVERIFY(read.isEmpty());
    const QString shown = QDir::toNativeSeparators(path);
    QCOMPARE(Texts(problems), QStringLiteral("%1, line 2: \"bOpen\" must be true or false\n"
                                             "%1, line 3: there is no field \"bOpne\" here")
                                  .arg(shown));
}

void TestSchemeFiles::whatIsNoFileIsNotRead()
{
    const QTemporaryDir folder;
    AlarmInfoMap read;
    QCOMPARE(Texts(SchemeFiles::Read(folder.path(), read)),
             QDir::toNativeSeparators(folder.path()) + QStringLiteral(": this is no file"));
    const QString none = In(folder, "none");
    QCOMPARE(Texts(SchemeFiles::Read(none, read)),
             QDir::toNativeSeparators(none) + QStringLiteral(": there is no such file"));
#ifdef Q_OS_UNIX
    // Opening a pipe that nobody writes into would never return.
    const QString pipe = In(folder, "pipe");
    QCOMPARE(mkfifo(QFile::encodeName(pipe).constData(), 0600), 0);
    QCOMPARE(SchemeFiles::Read(pipe, read).size(), 1);
    QCOMPARE(SchemeFiles::ReadText(pipe, read).size(), 1);
    QCOMPARE(SchemeFiles::WriteText(pipe, Doors(1)).size(), 1);
#endif
}

void TestSchemeFiles::whatIsNoFileIsNotReplaced()
{
    const QTemporaryDir folder;
    QVERIFY(QDir(folder.path()).mkdir(QStringLiteral("directory")));
    QCOMPARE(Texts(SchemeFiles::WriteText(In(folder, "directory"), Doors(1))),
             QDir::toNativeSeparators(In(folder, "directory")) + QStringLiteral(": this is no file"));
    QCOMPARE(SchemeFiles::WriteText(In(folder, "none/export.json"), Doors(1)).size(), 1);
    QCOMPARE(QDir(folder.path()).entryList(QDir::AllEntries | QDir::NoDotAndDotDot).size(), 1);
}

void TestSchemeFiles::aFileIsReplacedWhole()
{
    const QTemporaryDir folder;
    const QString path = In(folder, "export.json");
    Write(path, QByteArray(1000000, 'x'));
    QCOMPARE(Texts(SchemeFiles::WriteText(path, Doors(1))), QString());
    QCOMPARE(Bytes(path), SchemeTexts::Write(Doors(1)));
}

void TestSchemeFiles::whatCannotBeWrittenLeavesTheFileThatWasThere()
{
    const QTemporaryDir folder;
    const QString path = In(folder, "export.json");
    Write(path, "before");
    AlarmInfoMap map = Doors(2000);
    map.insert(AlarmSourceKey{QStringLiteral("9\"9"), 1}, AlarmInfo());
    const QString texts = Texts(SchemeFiles::WriteText(path, map));
    QVERIFY2(texts.contains(QStringLiteral("double quote")), qPrintable(texts));
    QCOMPARE(Bytes(path), QByteArray("before"));
    QCOMPARE(QDir(folder.path()).entryList(QDir::Files | QDir::Hidden).size(), 1);
}

void TestSchemeFiles::aFullDiskLeavesNoHalfFile()
{
#ifdef Q_OS_UNIX
    const QTemporaryDir folder;
    const QString path = In(folder, "export.json");
    Write(path, "before");
    SchemeFileProblems problems;
    {
        const FullDisk disk(200000);
        QVERIFY(disk.Holds());
        problems = SchemeFiles::WriteText(path, Doors(2000));
    }
    QCOMPARE(problems.size(), 1);
    QCOMPARE(problems.first().strReason, qt_error_string(EFBIG));
    QCOMPARE(Bytes(path), QByteArray("before"));
    QCOMPARE(QDir(folder.path()).entryList(QDir::Files | QDir::Hidden).size(), 1);
    QVERIFY(SchemeTexts::Write(Doors(2000)).size() > 250 * 1024);
#endif
}

void TestSchemeFiles::progressIsTold()
{
    const QTemporaryDir folder;
    const QString path = In(folder, "export.json");
    int calls = 0;
    const auto count = [&calls](qint64 iDone, qint64 iAll) {
        QVERIFY(iDone <= iAll);
        ++calls;
    };
    QCOMPARE(Texts(SchemeFiles::WriteText(path, Doors(1000), count)), QString());
    QVERIFY(calls > 2);
    calls = 0;
    AlarmInfoMap read;
    QCOMPARE(Texts(SchemeFiles::Read(path, read, count)), QString());
    QVERIFY(calls > 2);
}

QTEST_MAIN(TestSchemeFiles)
#include "tst_scheme_files.moc"
