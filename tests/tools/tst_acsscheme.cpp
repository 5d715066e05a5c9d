#include "tests/tools/CommandKit.h"
#include "tools/SiteMaker.h"

#include <QFileInfo>
#include <QStandardPaths>
#include <QTemporaryDir>
#include <QTest>

class TestAcsScheme : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void helpListsTheCommands();
    void theVersionIsTold();
    void noCommandIsWrongUse();
    void anUnknownCommandIsWrongUse();
    void helpOfACommandListsItsOptions();
    void aSiteGoesToTheStandardOutput();
    void aSiteGoesIntoAFile();
    void theSeedIsOneByDefault();
    void wrongUseChangesNothing_data();
    void wrongUseChangesNothing();
    void theLargestSeedIsTaken();
    void aFileThatCannotBeWrittenIsAFailure();
    void everyCommandHasHelpAndASentence();
    void everyCommandTakesAFormat();
    void theClientsDirectoryIsTheOneTheClientUses();
    void anExistingFileIsReplaced();
};

void TestAcsScheme::helpListsTheCommands()
{
    for (const char* const option : {"--help", "-h"}) {
        const Run run(Words(option));
        QCOMPARE(run.code, 0);
        QVERIFY(run.out.contains(QStringLiteral("make-site")));
        QVERIFY(run.err.isEmpty());
    }
}

void TestAcsScheme::theVersionIsTold()
{
    QCoreApplication::setApplicationVersion(QStringLiteral("4.5.6"));
    const Run run(Words("--version"));
    QCOMPARE(run.code, 0);
    QCOMPARE(run.out, QStringLiteral("acs-scheme 4.5.6\n"));
}

void TestAcsScheme::noCommandIsWrongUse()
{
    const Run run({});
    QCOMPARE(run.code, 2);
    QVERIFY(run.out.isEmpty());
    QVERIFY(run.err.contains(QStringLiteral("make-site")));
}

void TestAcsScheme::anUnknownCommandIsWrongUse()
{
    for (const char* const line : {"make-sites", "--doors 5", "MAKE-SITE --doors 5"}) {
        const Run run(Words(line));
        QCOMPARE(run.code, 2);
        QVERIFY(run.out.isEmpty());
        QVERIFY(run.err.contains(Words(line).constFirst()));
    }
}

void TestAcsScheme::helpOfACommandListsItsOptions()
{
    const Run run(Words("make-site --help"));
    QCOMPARE(run.code, 0);
    for (const char* const option : {"--doors", "--seed", "--output", "acs-scheme make-site"})
        QVERIFY2(run.out.contains(QLatin1String(option)), option);
}

void TestAcsScheme::aSiteGoesToTheStandardOutput()
{
    const Run run(Words("make-site --doors 25 --seed 3"));
    QCOMPARE(run.code, 0);
    QVERIFY(run.err.isEmpty());
    QCOMPARE(run.out.toUtf8(), SiteFile::ToText(SiteMaker::MakeSite(25, 3)));
}

void TestAcsScheme::aSiteGoesIntoAFile()
{
    const QTemporaryDir directory;
    const QString strPath = directory.filePath(QString::fromUtf8("Gebäude 1.json"));
    const Run run(Words("make-site --doors=25 --seed=3 --output") + QStringList(strPath));
    QCOMPARE(run.code, 0);
    QVERIFY(run.out.isEmpty());
    Site site;
    SiteFileError error;
    QVERIFY2(SiteFile::Read(strPath, site, error), qPrintable(error.Text()));
    QCOMPARE(SiteFile::ToText(site), SiteFile::ToText(SiteMaker::MakeSite(25, 3)));
}

void TestAcsScheme::theSeedIsOneByDefault()
{
    QCOMPARE(Run(Words("make-site --doors 25")).out, Run(Words("make-site --doors 25 --seed 1")).out);
}

void TestAcsScheme::wrongUseChangesNothing_data()
{
    QTest::addColumn<QStringList>("arguments");
    for (const char* const line :
         {"", "--doors", "--doors 0", "--doors -5", "--doors 200001", "--doors 1e3", "--doors 0x10",
          "--doors 1,000", "--doors 99999999999999999999999", "--doors ten", "--doors 5 --seed -1",
          "--doors 5 --seed 4294967296", "--doors 5 --seed x", "--doors 5 more", "--doors 5 --colour red",
          "--seed 5", "--doors=", "--doors +5"})
        QTest::newRow(line) << Words(line);
    QTest::newRow("blanks") << QStringList({QStringLiteral("--doors"), QStringLiteral(" 5")});
    QTest::newRow("other digits") << QStringList({QStringLiteral("--doors"), QString(QChar(0x0665))});
    QTest::newRow("no file name") << QStringList(
        {QStringLiteral("--doors"), QStringLiteral("5"), QStringLiteral("--output"), QString()});
}

void TestAcsScheme::wrongUseChangesNothing()
{
    QFETCH(QStringList, arguments);
    const QTemporaryDir directory;
    const QString strPath = directory.filePath(QStringLiteral("site.json"));
    if (!arguments.contains(QStringLiteral("--output")) && arguments != Words("--doors"))
        arguments += {QStringLiteral("--output"), strPath};
    const Run run(QStringList(QStringLiteral("make-site")) + arguments);
    QCOMPARE(run.code, 2);
    QVERIFY(run.out.isEmpty());
    QVERIFY(!run.err.isEmpty());
    QVERIFY(!QFileInfo::exists(strPath));
}

void TestAcsScheme::theLargestSeedIsTaken()
{
    const Run run(Words("make-site --doors 5 --seed 4294967295"));
    QCOMPARE(run.code, 0);
    QCOMPARE(run.out.toUtf8(), SiteFile::ToText(SiteMaker::MakeSite(5, 4294967295U)));
}

void TestAcsScheme::aFileThatCannotBeWrittenIsAFailure()
{
    const QTemporaryDir directory;
    const Run run(Words("make-site --doors 5 --output") +
                  QStringList(directory.filePath(QStringLiteral("missing/site.json"))));
    QCOMPARE(run.code, 3);
    QVERIFY(run.out.isEmpty());
    QVERIFY(run.err.contains(QStringLiteral("site.json")));
}

void TestAcsScheme::everyCommandHasHelpAndASentence()
{
    // Name and sentence stand two blanks apart, below the word that heads them.
    const QStringList lines = Run(Words("--help")).out.split(QLatin1Char('\n'));
    int commands = 0;
    const QStringList listed = lines.mid(lines.indexOf(QStringLiteral("Commands:")) + 1);
    for (const QString& strLine : listed) {
        if (!strLine.startsWith(QStringLiteral("  ")))
            break;
        const QString strName = strLine.trimmed().section(QLatin1Char(' '), 0, 0);
        QVERIFY2(strLine.endsWith(QLatin1Char('.')), qPrintable(strLine));
        const Run run({strName, QStringLiteral("--help")});
        QCOMPARE(run.code, 0);
        QVERIFY2(run.out.startsWith(QStringLiteral("Usage: acs-scheme %1 ").arg(strName)),
                 qPrintable(run.out));
        QVERIFY(run.err.isEmpty());
        ++commands;
    }
    QVERIFY(commands >= 6);
}

void TestAcsScheme::everyCommandTakesAFormat()
{
    for (const char* const command : {"list", "show", "explain", "who-switches", "check", "make-site"}) {
        QVERIFY2(Run(Words(command) + Words("--help")).out.contains(QStringLiteral("--format <text|json>")),
                 command);
        const Run run(Words(command) + Words("--format xml"));
        QCOMPARE(run.code, 2);
        QVERIFY(run.out.isEmpty());
    }
    QCOMPARE(Run(Words("make-site --doors 3 --format json")).out, Run(Words("make-site --doors 3")).out);
}

void TestAcsScheme::theClientsDirectoryIsTheOneTheClientUses()
{
    QCoreApplication::setApplicationName(QStringLiteral("acs-client"));
    const QString strClient = QStandardPaths::writableLocation(QStandardPaths::AppLocalDataLocation);
    QCoreApplication::setApplicationName(QStringLiteral("acs-scheme"));
    QCOMPARE(ClientDataDirectory(), QDir::cleanPath(strClient));
}

void TestAcsScheme::anExistingFileIsReplaced()
{
    const QTemporaryDir directory;
    const QString strPath = directory.filePath(QStringLiteral("site.json"));
    QCOMPARE(Run(Words("make-site --doors 50 --output") + QStringList(strPath)).code, 0);
    QCOMPARE(Run(Words("make-site --doors 5 --output") + QStringList(strPath)).code, 0);
    Site site;
    SiteFileError error;
    QVERIFY(SiteFile::Read(strPath, site, error));
    QCOMPARE(SiteFile::ToText(site), SiteFile::ToText(SiteMaker::MakeSite(5, 1)));
}

QTEST_GUILESS_MAIN(TestAcsScheme)
#include "tst_acsscheme.moc"
